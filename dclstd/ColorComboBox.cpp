#include "dclstd/ColorComboBox.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QToolButton>

#include "dclstd/ColorDialog.h"
#include "designintf/CustomColors.h"

ColorComboBox::ColorComboBox(QWidget* parent) : QComboBox(parent) {
  setIconSize(QSize(28, 14));
  setMaxVisibleItems(16);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(12);
  Fill();
  connect(this, &QComboBox::activated, this, [this](int index) {
    const QVariant value = itemData(index);
    if (value.isValid())
      Choose(TColor(value.toUInt()));
    else
      Execute();
  });
}

void ColorComboBox::Add(TColor color) {
  if (findData(static_cast<uint>(color)) < 0)
    addItem(ColorSwatch(color), ColorToString(color), static_cast<uint>(color));
}

void ColorComboBox::Fill() {
  const QSignalBlocker block(this);
  clear();
  if (styles_.Contains(TColorChoice::csAnyColor)) addItem(tr("Custom..."));
  for (const TColorEntry& e : NamedColors())
    if (styles_.Contains(e.System ? TColorChoice::csSystemColors : TColorChoice::csDefaultColors))
      Add(e.Value);
  if (styles_.Contains(TColorChoice::csCustomColors))
    for (const TColor c : CustomColorValues(customColors_)) Add(c);
  listed_ = count();
  SetSelected(selected_);
}

void ColorComboBox::SetStyles(TColorChoices styles) {
  styles_ = styles;
  Fill();
}

void ColorComboBox::SetSelected(TColor color) {
  const QSignalBlocker block(this);
  selected_ = color;
  const QVariant value = static_cast<uint>(color);
  if (const int old = count() - 1; old >= listed_ && itemData(old) != value) removeItem(old);
  Add(color);
  setCurrentIndex(findData(value));
}

void ColorComboBox::SetCustomColors(const QStringList& colors) {
  if (colors == customColors_) return;
  customColors_ = colors;
  Fill();
  emit CustomColorsChanged();
}

void ColorComboBox::Choose(TColor color) {
  SetSelected(color);
  emit Change();
}

bool ColorComboBox::Execute() {
  // The entry that may have led here is none to stay on.
  SetSelected(selected_);
  TColor color = selected_;
  QStringList custom = customColors_;
  const bool chosen = ChooseColor(this, color, custom);
  SetCustomColors(custom);
  if (chosen) Choose(color);
  return chosen;
}

class ColorComboBox::WithoutCustom {
 public:
  explicit WithoutCustom(ColorComboBox& combo) : combo_(combo) { Enable(false); }
  ~WithoutCustom() { Enable(true); }
  WithoutCustom(const WithoutCustom&) = delete;
  WithoutCustom& operator=(const WithoutCustom&) = delete;

 private:
  void Enable(bool on) {
    if (combo_.styles_.Contains(TColorChoice::csAnyColor))
      static_cast<QStandardItemModel*>(combo_.model())->item(0)->setEnabled(on);
  }
  ColorComboBox& combo_;
};

// A step through the closed list changes the colour, and never opens a dialog.
void ColorComboBox::keyPressEvent(QKeyEvent* event) {
  const WithoutCustom steps(*this);
  QComboBox::keyPressEvent(event);
}
void ColorComboBox::wheelEvent(QWheelEvent* event) {
  const WithoutCustom steps(*this);
  QComboBox::wheelEvent(event);
}

void ShareCustomColors(const std::vector<ColorComboBox*>& combos) {
  const QStringList colors = LoadIDECustomColors();
  for (ColorComboBox* combo : combos) {
    combo->SetCustomColors(colors);
    QObject::connect(combo, &ColorComboBox::CustomColorsChanged, combo, [combos, combo] {
      for (ColorComboBox* other : combos)
        if (other != combo) other->SetCustomColors(combo->CustomColors());
    });
  }
}

namespace {
// Four colours; the same mark is readable on light and dark buttons.
QIcon ColorsIcon() {
  QIcon icon;
  static constexpr QRgb colors[] = {0xE5484D, 0xF5B83D, 0x3E9B4F, 0x3B7DD8};
  for (const int scale : {1, 2}) {
    QPixmap pixmap(QSize(16, 16) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    for (int i = 0; i < 4; ++i) p.fillRect(QRect(2 + i % 2 * 6, 2 + i / 2 * 6, 5, 5), QColor(colors[i]));
    p.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}
}  // namespace

QToolButton* NewColorButton(const char* name, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setIcon(ColorsIcon());
  button->setFixedSize(23, 23);
  button->setAccessibleName(QObject::tr("Choose a color"));
  return button;
}
