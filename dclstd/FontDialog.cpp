#include "dclstd/FontDialog.h"

#include <QtWidgets>

#include "designintf/CustomColors.h"
#include "designintf/IdeTheme.h"
#include "rtl/IntegerConsts.h"

namespace {
// What can be chosen; a font of another size keeps it and is shown with it.
constexpr int MaxSize = 999, MaxHeight = 1332;

QString CharsetText(int value) {
  QByteArray name;
  const TIntegerConsts* consts = FindIntegerConsts(TypeInfoOf<TFontCharset>::Get());
  return consts && consts->IntToIdent(value, name) ? QString::fromLatin1(name) : QString::number(value);
}
bool HasName(int charset) { return CharsetText(charset) != QString::number(charset); }
}  // namespace

FontDialog::FontDialog(QWidget* owner)
    : EditorDialog(tr("Font Editor"), QSize(533, 318), owner), test(std::make_unique<TLabel>(nullptr)) {
  Build();
  Connect();
  ApplyIDETheme(*this, [this](const QWidget& control) { return &control != testView; });
}
FontDialog::~FontDialog() { testView->SetControl(nullptr); }

void FontDialog::Build() {
  const auto row = [this](const QString& label, auto* control, const char* name) {
    control->setObjectName(QLatin1StringView(name));
    AddRow(label, control);
    return control;
  };
  cmbname = row(tr("&Name:"), new QFontComboBox(this), "cmbname");
  // A name that begins like that of an installed font is a name of its own.
  cmbname->completer()->setCompletionMode(QCompleter::PopupCompletion);
  edsize = row(tr("Si&ze:"), new SpinEdit(MaxSize, 4, this), "edsize");
  edsize->setRange(-MaxSize, MaxSize);
  edsize->setToolTip(tr("Points. Negative: the height of the line instead of that of the letters."));
  edheight = row(tr("&Height:"), new SpinEdit(MaxHeight, 5, this), "edheight");
  edheight->setRange(-MaxHeight, MaxHeight);
  edheight->setToolTip(tr("Pixels. Negative: the height of the letters instead of that of the line."));
  cmbcolor = row(tr("&Color:"), new ColorComboBox(AllColors, this), "cmbcolor");
  ShareCustomColors({cmbcolor});
  cmbcharset = row(tr("Cha&rset:"), new QComboBox(this), "cmbcharset");
  for (int value = 0; value <= 255; ++value)
    if (HasName(value)) cmbcharset->addItem(CharsetText(value), value);
  cmbpitch = row(tr("&Pitch:"), new QComboBox(this), "cmbpitch");
  for (const QByteArray& name : TypeInfoOf<TFontPitch>::Get().Elements)
    cmbpitch->addItem(QString::fromLatin1(name));

  auto* boxes = new QWidget(this);
  auto* grid = new QGridLayout(boxes);
  grid->setContentsMargins(0, 0, 0, 0);
  const QString names[] = {tr("&Bold"), tr("&Italic"), tr("&Underline"), tr("Stri&ke out")};
  for (int i = 0; i < 4; ++i) grid->addWidget(styles[i] = new QCheckBox(names[i], this), i / 2, i % 2);
  AddWide(boxes);

  test->SetShowAccelChar(false);
  test->SetCaption(QStringLiteral("AaBbYyZz 123"));
  testView = new ControlView(test.get(), this);
  testView->setObjectName(QStringLiteral("test"));
  SetPreview(testView, Qt::AlignCenter);
  ok = AddButton(tr("OK"));
  cancel = AddButton(tr("Cancel"));
  reset = AddButton(tr("Reset"));
  AddOk(ok);
  AddCancel(cancel);
  SetTabSequence({cmbname, edsize, edheight, cmbcolor, cmbcharset, cmbpitch, styles[0], styles[1], styles[2],
                  styles[3], ok, cancel, reset});
  FinishLayout();
}

// Only what a person does is listened to: a combo of fonts changes its text also when fonts are installed.
void FontDialog::Connect() {
  const auto name = [this](const QString& text) {
    if (!text.trimmed().isEmpty()) Change([&] { font_.SetName(text); });
  };
  connect(cmbname->lineEdit(), &QLineEdit::textEdited, this, name);
  // Leaving the field, the combo takes a family that differs from the text only in case; that is no choice.
  connect(cmbname, &QComboBox::textActivated, this, [this, name](const QString& text) {
    if (text.compare(font_.Name(), Qt::CaseInsensitive) != 0) return name(text);
    const QSignalBlocker quiet(cmbname);
    cmbname->setEditText(font_.Name());
  });
  connect(cmbname->lineEdit(), &QLineEdit::editingFinished, this, &FontDialog::SetLabels);  // no name is none
  connect(edsize, &QSpinBox::valueChanged, this, [this](int v) { Change([&] { font_.SetSize(v); }); });
  connect(edheight, &QSpinBox::valueChanged, this, [this](int v) { Change([&] { font_.SetHeight(v); }); });
  connect(cmbcolor, &ColorComboBox::Change, this,
          [this] { Change([&] { font_.SetColor(cmbcolor->Selected()); }); });
  connect(cmbcharset, &QComboBox::activated, this, [this](int index) {
    Change([&] { font_.SetCharset(static_cast<TFontCharset>(cmbcharset->itemData(index).toInt())); });
  });
  connect(cmbpitch, &QComboBox::activated, this,
          [this](int index) { Change([&] { font_.SetPitch(static_cast<TFontPitch>(index)); }); });
  for (int i = 0; i < 4; ++i)
    connect(styles[i], &QCheckBox::clicked, this, [this, i](bool on) {
      Change([&] {
        TFontStyles style = font_.Style();
        const auto element = static_cast<TFontStyle>(i);
        on ? style.Include(element) : style.Exclude(element);
        font_.SetStyle(style);
      });
    });
  connect(reset, &QPushButton::clicked, this, [this] {
    Change([&] {
      const TFont defaults;
      font_.Assign(&defaults);
    });
  });
}

void FontDialog::Change(const std::function<void()>& change) {
  Guarded([&] {
    change();
    SetLabels();
  });
}

void FontDialog::LoadControls() {
  // The name stands there whether or not such a font is installed.
  if (cmbname->currentText() != font_.Name()) cmbname->setEditText(font_.Name());
  edsize->Show(font_.Size());
  edheight->Show(font_.Height());
  cmbcolor->SetSelected(font_.Color());
  // Light letters are shown on a dark ground.
  const auto light = [](TColor c) { return qGray(ToQColor(c).rgb()); };
  const bool faint = std::abs(light(font_.Color()) - light(clBtnFace)) < 64;
  test->SetTransparent(!faint);
  test->SetColor(light(clBtnFace) > 128 ? TColor(0x00404040) : TColor(0x00E0E0E0));
  ShowCharset();
  cmbpitch->setCurrentIndex(static_cast<int>(font_.Pitch()));
  for (int i = 0; i < 4; ++i) styles[i]->setChecked(font_.Style().Contains(static_cast<TFontStyle>(i)));
  ShowPreview();
}

void FontDialog::ShowCharset() {
  const int value = static_cast<int>(font_.Charset());
  if (cmbcharset->findData(value) < 0) cmbcharset->addItem(CharsetText(value), value);
  cmbcharset->setCurrentIndex(cmbcharset->findData(value));
}

void FontDialog::ShowPreview() {
  TFont shown;
  shown.Assign(&font_);
  shown.SetHeight(std::clamp(font_.Height(), -MaxHeight, MaxHeight));
  test->SetFont(&shown);
}

void FontDialog::FormClose() { SaveIDECustomColors(cmbcolor->CustomColors()); }

bool EditFont(TFont& font) {
  FontDialog dialog(QApplication::activeWindow());
  dialog.Font().Assign(&font);
  dialog.SetLabels();
  if (dialog.ShowModal() != mrOk) return false;
  font.Assign(&dialog.Font());
  return true;
}
