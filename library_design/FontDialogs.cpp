#include "library_design/FontDialogs.h"

#include <QtWidgets>

#include "dclstd/EditValue.h"
#include "dclstd/FontDialog.h"
#include "library_design/pVRXCommon.h"

TVRXFontFxEditorDlg::TVRXFontFxEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("FontFX Editor"), QSize(533, 318), owner) {
  Preview(test, "Shows the current settings.");
  test->Brush()->SetColor(clBtnFace);
  test->Set(TVRXBaseShape::BevelColor, clBtnShadow);
  test->Caption()->SetCaption(QStringLiteral("Preview"));
  test->Caption()->Font()->SetHeight(-28);
  test->Caption()->Font()->SetStyle({TFontStyle::fsBold});
  Edits(FontFx());
  Row(cmbstyle, "cmbstyle", "Style", "&Style:");
  Row(eddepth[0], "edlight", "LightDepth", "Light&depth:");
  Row(cmbcolor[0], "cmbL", "LightColor", "&LightColor:");
  Row(eddepth[1], "edshadow", "ShadowDepth", "Shado&wdepth:");
  Row(cmbcolor[1], "cmbs", "ShadowColor", "S&hadowColor:");
  Row(edangle, "edangle", "Angle", "&Angle:").Range(0, 360, 3);
  Row(edtracing, "edtracing", "Tracing", "&Tracing:");
  Buttons({ok, "ok"}, {cancel, "cancel"}, {reset, "reset"});
  VRXSetThemeMode(*this, 1);
  Finish();
}

bool VRXCPGetFont(TFont& font) { return EditFont(font); }
bool VRXCPGetFontFx(TVRXFxCaption& fx) { return EditValue<TVRXFontFxEditorDlg>(fx, nullptr); }

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
