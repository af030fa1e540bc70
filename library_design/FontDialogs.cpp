#include "library_design/FontDialogs.h"

#include <QtWidgets>

#include "dclstd/FontDialog.h"
#include "designintf/IdeTheme.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"

TVRXFontFxEditorDlg::TVRXFontFxEditorDlg()
    : EditorDialog(QStringLiteral("FontFX Editor"), QSize(533, 318)),
      test(std::make_unique<TVRXShapeControl>(nullptr)) {
  test->Brush()->SetColor(clBtnFace);
  test->SetBevelColor(clBtnShadow);
  test->Caption()->SetCaption(QStringLiteral("Preview"));
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
  edtracing = new TVRXSpinEdit(INT16_MAX, 6, this);
  edtracing->setObjectName(QStringLiteral("edtracing"));
  edtracing->setMinimum(INT16_MIN);
  AddRow(tr("&Tracing:"), edtracing);
  testView = Named(new ControlView(test.get(), this), "test", "Shows the current settings.");
  testView->SetFillView(true);
  SetPreview(testView);
  QPushButton* ok = AddButton(tr("OK"));
  QPushButton* cancel = AddButton(tr("Cancel"));
  reset = AddButton(tr("Reset"));
  AddOk(ok);
  AddCancel(cancel);
  connect(cmbstyle, &QComboBox::activated, this,
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
  VRXSetThemeMode(*this, 1);
  ApplyIDETheme(*this, [this](const QWidget& control) { return &control != testView; });
}
TVRXFontFxEditorDlg::~TVRXFontFxEditorDlg() { testView->SetControl(nullptr); }

void TVRXFontFxEditorDlg::LoadControls() {
  const TVRXFxCaption& fx = FontFx();
  cmbstyle->setCurrentIndex(static_cast<int>(fx.Style()));
  eddepth[0]->Show(fx.LightDepth());
  eddepth[1]->Show(fx.ShadowDepth());
  cmbcolor[0]->SetSelected(fx.LightColor());
  cmbcolor[1]->SetSelected(fx.ShadowColor());
  edangle->Show(fx.Angle());
  edtracing->Show(fx.Tracing());
}

void TVRXFontFxEditorDlg::FormClose() { VRXSaveCustomColors(cmbcolor[0]->CustomColors()); }

bool VRXCPGetFont(TFont& font) { return EditFont(font); }

bool VRXCPGetFontFx(TVRXFxCaption& fx) {
  TVRXFontFxEditorDlg dialog;
  dialog.FontFx().Assign(&fx);
  dialog.SetLabels();
  if (dialog.ShowModal() != mrOk) return false;
  fx.Assign(&dialog.FontFx());
  return true;
}

QIcon FontFxIcon() {
  QIcon icon;
  const QPalette palette = QApplication::palette();
  for (const qreal scale : {1.0, 2.0}) {
    QPixmap pixmap(QSize(20, 20) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    QFont font = QApplication::font();
    font.setPixelSize(16);
    font.setBold(true);
    font.setItalic(true);
    p.setFont(font);
    p.setPen(palette.color(QPalette::PlaceholderText));
    p.drawText(QRect(2, 2, 20, 20), Qt::AlignCenter, QStringLiteral("fx"));
    p.setPen(palette.color(QPalette::ButtonText));
    p.drawText(QRect(0, 0, 20, 20), Qt::AlignCenter, QStringLiteral("fx"));
    p.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}
