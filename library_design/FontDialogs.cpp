#include "library_design/FontDialogs.h"

#include <QtWidgets>

#include "designintf/IdeTheme.h"
#include "library_design/pVRXCommon.h"

namespace {
std::unique_ptr<TVRXShapeControl> SampleShape(const QString& text) {
  auto shape = std::make_unique<TVRXShapeControl>(nullptr);
  shape->Brush()->SetColor(clBtnFace);
  shape->SetBevelColor(clBtnShadow);
  shape->Caption()->SetCaption(text);
  return shape;
}

ControlView* FillingView(TControl& control, QWidget* parent) {
  auto* view = new ControlView(&control, parent);
  view->setObjectName(QStringLiteral("test"));
  view->setToolTip(QStringLiteral("Shows the current settings."));
  view->SetFillView(true);
  return view;
}

void Theme(EditorDialog& dialog, const QWidget* preview) {
  VRXSetThemeMode(dialog, 1);
  ApplyIDETheme(dialog, [preview](const QWidget& control) { return &control != preview; });
}
}  // namespace

TVRXFontEditorDlg::TVRXFontEditorDlg()
    : EditorDialog(QStringLiteral("Font Editor"), QSize(533, 318)),
      test(SampleShape(QStringLiteral("AaBbYyZz"))) {
  cmbname = new QFontComboBox(this);
  cmbname->setObjectName(QStringLiteral("cmbname"));
  edsize = new TVRXSpinEdit(500, 3, this);
  edsize->setObjectName(QStringLiteral("edsize"));
  edsize->setMinimum(1);
  cmbcolor = new TVRXColorComboBox;
  ShareCustomColors({cmbcolor});
  cmbcolor->setObjectName(QStringLiteral("cmbcolor"));
  AddRow(tr("&Name:"), cmbname);
  AddRow(tr("&Size:"), edsize);
  AddRow(tr("&Color:"), cmbcolor);
  const QString names[] = {tr("&Bold"), tr("&Italic"), tr("&Underline"), tr("Stri&ke out")};
  for (std::size_t i = 0; i < 4; ++i) {
    styles[i] = new QCheckBox(names[i], this);
    AddWide(styles[i]);
  }
  testView = FillingView(*test, this);
  SetPreview(testView);
  QPushButton* ok = AddButton(tr("OK"));
  QPushButton* cancel = AddButton(tr("Cancel"));
  AddOk(ok);
  AddCancel(cancel);
  const auto changed = [this] { Guarded([this] { Changed(); }); };
  connect(cmbname, &QComboBox::currentTextChanged, this, changed);
  connect(edsize, &QSpinBox::valueChanged, this, changed);
  connect(cmbcolor, &TVRXColorComboBox::Change, this, changed);
  for (QCheckBox* box : styles) connect(box, &QCheckBox::toggled, this, changed);
  SetTabSequence({cmbname, edsize, cmbcolor, styles[0], styles[1], styles[2], styles[3], ok, cancel});
  FinishLayout();
  Theme(*this, testView);
}
TVRXFontEditorDlg::~TVRXFontEditorDlg() { testView->SetControl(nullptr); }

void TVRXFontEditorDlg::SetLabels() {
  const QScopedValueRollback loading(loading_, true);
  // A family that this machine does not have stays the font's until another one is chosen.
  cmbname->setEditText(Font().Name());
  edsize->setValue(std::abs(Font().Size()));
  cmbcolor->SetSelected(Font().Color());
  for (std::size_t i = 0; i < 4; ++i)
    styles[i]->setChecked(Font().Style().Contains(static_cast<TFontStyle>(i)));
}

void TVRXFontEditorDlg::Changed() {
  if (loading_) return;
  TFont& font = Font();
  font.BeginUpdate();
  font.SetName(cmbname->currentText());
  if (edsize->value() != std::abs(font.Size())) font.SetSize(edsize->value());
  font.SetColor(cmbcolor->Selected());
  TFontStyles style;
  for (std::size_t i = 0; i < 4; ++i)
    if (styles[i]->isChecked()) style.Include(static_cast<TFontStyle>(i));
  font.SetStyle(style);
  font.EndUpdate();
}

void TVRXFontEditorDlg::FormClose() { VRXSaveCustomColors(cmbcolor->CustomColors()); }

TVRXFontFxEditorDlg::TVRXFontFxEditorDlg()
    : EditorDialog(QStringLiteral("FontFX Editor"), QSize(533, 318)),
      test(SampleShape(QStringLiteral("Preview"))) {
  test->Caption()->Font()->SetHeight(-28);
  test->Caption()->Font()->SetStyle({TFontStyle::fsBold});
  cmbstyle = new QComboBox(this);
  cmbstyle->setObjectName(QStringLiteral("cmbstyle"));
  for (const QByteArray& name : TypeInfoOf<TVRX3DTextStyle>::Get().Elements)
    cmbstyle->addItem(QString::fromLatin1(name));
  AddRow(tr("&Style:"), cmbstyle);
  const QString depths[] = {tr("Light&depth:"), tr("Shado&wdepth:")};
  const QString colors[] = {tr("&LightColor:"), tr("S&hadowColor:")};
  for (int i = 0; i < 2; ++i) {
    eddepth[i] = new TVRXSpinEdit(255, 3, this);
    eddepth[i]->setObjectName(i == 0 ? QStringLiteral("edlight") : QStringLiteral("edshadow"));
    AddRow(depths[i], eddepth[i]);
    connect(eddepth[i], &QSpinBox::valueChanged, this,
            [this, i](int v) { Guarded([&] { FontFx().SetDepth(i, static_cast<std::uint8_t>(v)); }); });
    cmbcolor[i] = new TVRXColorComboBox;
    cmbcolor[i]->setObjectName(i == 0 ? QStringLiteral("cmbL") : QStringLiteral("cmbs"));
    AddRow(colors[i], cmbcolor[i]);
    connect(cmbcolor[i], &TVRXColorComboBox::Change, this,
            [this, i] { Guarded([&] { FontFx().SetColor(i, cmbcolor[i]->Selected()); }); });
  }
  ShareCustomColors({cmbcolor[0], cmbcolor[1]});
  edangle = new TVRXSpinEdit(360, 3, this);
  edangle->setObjectName(QStringLiteral("edangle"));
  AddRow(tr("&Angle:"), edangle);
  edtracing = new TVRXSpinEdit(100, 4, this);
  edtracing->setObjectName(QStringLiteral("edtracing"));
  edtracing->setMinimum(-100);
  AddRow(tr("&Tracing:"), edtracing);
  testView = FillingView(*test, this);
  SetPreview(testView);
  QPushButton* ok = AddButton(tr("OK"));
  QPushButton* cancel = AddButton(tr("Cancel"));
  reset = AddButton(tr("Reset"));
  AddOk(ok);
  AddCancel(cancel);
  connect(cmbstyle, &QComboBox::currentIndexChanged, this,
          [this](int index) { Guarded([&] { FontFx().SetStyle(static_cast<TVRX3DTextStyle>(index)); }); });
  connect(edangle, &QSpinBox::valueChanged, this,
          [this](int v) { Guarded([&] { FontFx().SetAngle(static_cast<std::uint16_t>(v)); }); });
  connect(edtracing, &QSpinBox::valueChanged, this,
          [this](int v) { Guarded([&] { FontFx().SetTracing(static_cast<std::int16_t>(v)); }); });
  connect(reset, &QPushButton::clicked, this, [this] {
    Guarded([&] {
      const TVRXFxCaption defaults;
      FontFx().Assign(&defaults);
      SetLabels();
    });
  });
  SetTabSequence(
      {cmbstyle, eddepth[0], cmbcolor[0], eddepth[1], cmbcolor[1], edangle, edtracing, ok, cancel, reset});
  FinishLayout();
  Theme(*this, testView);
}
TVRXFontFxEditorDlg::~TVRXFontFxEditorDlg() { testView->SetControl(nullptr); }

void TVRXFontFxEditorDlg::SetLabels() {
  const TVRXFxCaption& fx = FontFx();
  cmbstyle->setCurrentIndex(static_cast<int>(fx.Style()));
  eddepth[0]->setValue(fx.LightDepth());
  eddepth[1]->setValue(fx.ShadowDepth());
  cmbcolor[0]->SetSelected(fx.LightColor());
  cmbcolor[1]->SetSelected(fx.ShadowColor());
  edangle->setValue(fx.Angle());
  edtracing->setValue(fx.Tracing());
}

void TVRXFontFxEditorDlg::FormClose() { VRXSaveCustomColors(cmbcolor[0]->CustomColors()); }

bool VRXCPGetFont(TFont& font) {
  TVRXFontEditorDlg dialog;
  dialog.Font().Assign(&font);
  dialog.SetLabels();
  if (dialog.ShowModal() != mrOk) return false;
  font.Assign(&dialog.Font());
  return true;
}

bool VRXCPGetFontFx(TVRXFxCaption& fx) {
  TVRXFontFxEditorDlg dialog;
  dialog.FontFx().Assign(&fx);
  dialog.SetLabels();
  if (dialog.ShowModal() != mrOk) return false;
  fx.Assign(&dialog.FontFx());
  return true;
}
