#include "library_design/ColorCombo.h"

#include <QSignalBlocker>
#include <QToolButton>

#include "dclstd/ColorDialog.h"
#include "designintf/CustomColors.h"
#include "library_design/ColorDialogs.h"
#include "library_design/pVRXCommon.h"

TVRXColorComboBox::TVRXColorComboBox(TVRXColorStyles styles, QWidget* parent)
    : QComboBox(parent), styles_(styles) {
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

void TVRXColorComboBox::Fill() {
  const QSignalBlocker block(this);
  clear();
  const auto add = [this](TColor c, const QString& name) {
    addItem(ColorSwatch(c), name, static_cast<uint>(c));
  };
  if (styles_.Contains(TVRXColorStyle::csAnyColor)) addItem(tr("Custom..."));
  for (const TColorEntry& e : NamedColors())
    if (styles_.Contains(e.System ? TVRXColorStyle::csSystemColors : TVRXColorStyle::csDefaultColors))
      add(e.Value, QString::fromLatin1(e.Name));
  if (styles_.Contains(TVRXColorStyle::csCustomColors))
    for (const TColor c : CustomColorValues(customColors_)) add(c, ColorToString(c));
  SetSelected(selected_);
}

void TVRXColorComboBox::SetSelected(TColor color) {
  const QSignalBlocker block(this);
  selected_ = color;
  int index = findData(static_cast<uint>(color));
  if (index < 0) {
    addItem(ColorSwatch(color), ColorToString(color), static_cast<uint>(color));
    index = count() - 1;
  }
  setCurrentIndex(index);
}

void TVRXColorComboBox::SetCustomColors(const QStringList& colors) {
  customColors_ = colors;
  Fill();
}

void TVRXColorComboBox::Choose(TColor color) {
  SetSelected(color);
  emit Change();
}

bool TVRXColorComboBox::Execute() {
  TColor color = selected_;
  const QStringList before = customColors_;
  const bool chosen = ChooseColor(this, color, customColors_);
  Fill();
  if (customColors_ != before) emit CustomColorsChanged();
  if (chosen) Choose(color);
  return chosen;
}

bool TVRXColorComboBox::ExecuteEnh(QStringList& customColors) {
  TColor color = selected_;
  const bool chosen = ChooseColorEnh(this, color, customColors);
  if (&customColors == &customColors_) Fill();
  if (chosen)
    Choose(color);
  else
    SetSelected(selected_);
  return chosen;
}

void ShareCustomColors(const std::vector<TVRXColorComboBox*>& combos) {
  QStringList colors;
  VRXLoadCustomColors(colors);
  for (TVRXColorComboBox* combo : combos) {
    combo->SetCustomColors(colors);
    QObject::connect(combo, &TVRXColorComboBox::CustomColorsChanged, combo, [combos, combo] {
      for (TVRXColorComboBox* other : combos)
        if (other != combo) other->SetCustomColors(combo->CustomColors());
    });
  }
}

QToolButton* NewColorButton(const char* name, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setText(QStringLiteral("\u2026"));
  button->setFixedSize(23, 23);
  button->setAccessibleName(QObject::tr("Choose a colour"));
  return button;
}
