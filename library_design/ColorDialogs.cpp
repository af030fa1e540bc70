#include "library_design/ColorDialogs.h"

#include <QtWidgets>

#include "dclstd/EditValue.h"
#include "designintf/CustomColors.h"
#include "rtl/Exceptions.h"
#include "vcl/ColorSwatch.h"

bool ChooseColorEnh(QWidget* parent, TColor& color, QStringList& customColors) {
  ColorEnhDialog dialog(color, customColors, parent);
  const bool chosen = dialog.ShowModal() == mrOk;
  customColors = dialog.CustomColors();
  if (chosen) color = dialog.Color();
  return chosen;
}

bool VRXCPGetColor(TColor& color, QStringList& customColors) {
  return ChooseColorEnh(ApplicationOwner(), color, customColors);
}

namespace {
// Old and new colour side by side.
class Sample : public QWidget {
 public:
  Sample(const TColor& before, const TColor& now, QWidget* parent)
      : QWidget(parent), before_(before), now_(now) {
    setMinimumHeight(40);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    const int half = width() / 2;
    p.fillRect(QRect(0, 0, half, height()), ToQColor(before_));
    p.fillRect(QRect(half, 0, width() - half, height()), ToQColor(now_));
    p.setPen(palette().color(QPalette::Mid));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
  }

 private:
  const TColor& before_;
  const TColor& now_;
};
}  // namespace

ColorEnhDialog::ColorEnhDialog(TColor color, const QStringList& customColors, QWidget* parent)
    : ModalDialog(tr("Extended color selection"), parent),
      original_(color),
      color_(color),
      custom_(CustomColorValues(customColors)) {
  Build();
  FillCustom();
  SetColor(color, nullptr);
}

void ColorEnhDialog::Build() {
  filter_ = new QLineEdit;
  filter_->setPlaceholderText(tr("Find a color..."));
  filter_->setClearButtonEnabled(true);
  named_ = new QListWidget;
  named_->setIconSize(QSize(28, 14));
  for (const TColorEntry& e : NamedColors()) {
    auto* item = new QListWidgetItem(ColorSwatch(e.Value), QString::fromLatin1(e.Name), named_);
    item->setData(Qt::UserRole, static_cast<uint>(e.Value));
  }
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
    for (int i = 0; i < named_->count(); ++i)
      named_->item(i)->setHidden(!named_->item(i)->text().contains(text, Qt::CaseInsensitive));
  });

  auto* numbers = new QFormLayout;
  static const char* const names[] = {QT_TR_NOOP("&Red:"), QT_TR_NOOP("&Green:"), QT_TR_NOOP("&Blue:")};
  for (int i = 0; i < 3; ++i) {
    rgb_[i] = new QSpinBox;
    rgb_[i]->setRange(0, 255);
    numbers->addRow(tr(names[i]), rgb_[i]);
    connect(rgb_[i], &QSpinBox::valueChanged, this, [this] {
      const auto part = [this](int of) { return static_cast<unsigned>(rgb_[of]->value()); };
      Guarded([&] { SetColor(RGBColor(part(0), part(1), part(2)), rgb_[0]); });
    });
  }
  text_ = new QLineEdit;
  text_->setToolTip(tr("A name, $00BBGGRR or #rrggbb"));
  numbers->addRow(tr("&Value:"), text_);
  connect(text_, &QLineEdit::textEdited, this, [this](const QString& value) {
    try {
      SetColor(StringToColor(value), text_);
    } catch (const EConvertError&) {
      // Half-typed: the last good colour stays until the text is one again.
    }
  });

  customList_ = new QListWidget;
  customList_->setIconSize(QSize(28, 14));
  customList_->setMaximumHeight(120);
  auto* add = new QPushButton(tr("&Add"));
  add->setObjectName(QStringLiteral("addCustom"));
  add->setToolTip(tr("Keeps the new color among the custom colors"));
  auto* remove = new QPushButton(tr("Re&move"));
  remove->setObjectName(QStringLiteral("removeCustom"));
  connect(add, &QPushButton::clicked, this, &ColorEnhDialog::AddCustom);
  connect(remove, &QPushButton::clicked, this, &ColorEnhDialog::RemoveCustom);
  for (QListWidget* list : {named_, customList_})
    // Selected, not only current, which the first one becomes when the focus passes by.
    connect(list, &QListWidget::itemSelectionChanged, this, [this, list] {
      const auto selected = list->selectedItems();
      if (selected.isEmpty()) return;
      Guarded([&] { SetColor(TColor(selected.first()->data(Qt::UserRole).toUInt()), list); });
    });
  connect(named_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);

  sample_ = new Sample(original_, color_, this);
  sample_->setToolTip(tr("Left: the color so far. Right: the new color."));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* left = new QVBoxLayout;
  left->addWidget(filter_);
  left->addWidget(named_);
  auto* customButtons = new QHBoxLayout;
  customButtons->addWidget(add);
  customButtons->addWidget(remove);
  auto* right = new QVBoxLayout;
  right->addWidget(sample_);
  right->addLayout(numbers);
  right->addWidget(new QLabel(tr("Custom colours:")));
  right->addWidget(customList_);
  right->addLayout(customButtons);
  right->addStretch(1);
  auto* columns = new QHBoxLayout;
  columns->addLayout(left, 1);
  columns->addLayout(right, 1);
  auto* all = new QVBoxLayout(this);
  all->addLayout(columns);
  all->addWidget(buttons);
  resize(480, 420);
}

void ColorEnhDialog::FillCustom() {
  const QSignalBlocker quiet(customList_);
  customList_->clear();
  for (const TColor c : custom_) {
    auto* item = new QListWidgetItem(ColorSwatch(c), ColorToString(c), customList_);
    item->setData(Qt::UserRole, static_cast<uint>(c));
  }
}

void ColorEnhDialog::SetColor(TColor color, const QObject* source) {
  color_ = color;
  source_ = source;
  SetLabels();
  source_ = nullptr;
  sample_->update();
}

// The field that the colour comes from is left as it is.
void ColorEnhDialog::LoadControls() {
  const QColor q = ToQColor(ColorToRGB(color_));
  rgb_[0]->setValue(q.red());
  rgb_[1]->setValue(q.green());
  rgb_[2]->setValue(q.blue());
  if (source_ != text_) text_->setText(ColorToString(color_));
  if (source_ == named_) return;
  named_->setCurrentItem(nullptr);
  for (int i = 0; i < named_->count(); ++i)
    if (TColor(named_->item(i)->data(Qt::UserRole).toUInt()) == color_) named_->setCurrentRow(i);
}

void ColorEnhDialog::AddCustom() {
  if (std::find(custom_.begin(), custom_.end(), color_) != custom_.end()) return;
  if (custom_.size() == MaxCustomColors) custom_.erase(custom_.begin());
  custom_.push_back(color_);
  FillCustom();
}

void ColorEnhDialog::RemoveCustom() {
  const int row = customList_->currentRow();
  if (row < 0) return;
  custom_.erase(custom_.begin() + row);
  FillCustom();
}

QStringList ColorEnhDialog::CustomColors() const { return CustomColorEntries(custom_); }
