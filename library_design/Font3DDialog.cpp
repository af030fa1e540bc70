#include "library_design/Font3DDialog.h"

#include <QtWidgets>

#include "dclstd/EditValue.h"
#include "library_design/pVRXCommon.h"

TVRXFont3DEditorDlg::TVRXFont3DEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Font3D Editor"), QSize(533, 318), owner) {
  Preview(test, "Shows the current settings.");
  test->SetAutoSize(false);
  test->Set(TVRXCustomLabel::Alignment, TAlignment::taCenter);
  test->Set(TVRXCustomLabel::Layout, TTextLayout::tlCenter);
  test->SetCaption(QStringLiteral("Preview"));
  test->Font()->SetHeight(-28);
  test->Font()->SetStyle({TFontStyle::fsBold});
  Edits(*test->Font3D());
  Row(cmbstyle, "cmbstyle", "Style", "&Style:");
  Row(eddepth[0], "edlight", "LightDepth", "Light&depth:");
  Row(cmbcolor[0], "cmbL", "LightColor", "&LightColor:");
  Row(eddepth[1], "edshadow", "ShadowDepth", "Shado&wdepth:");
  Row(cmbcolor[1], "cmbs", "ShadowColor", "S&hadowColor:");
  Row(edx, "edx", "OffsetX", "Offset&X:", "How far the shadow lies to the right beyond its depth.");
  Row(edy, "edy", "OffsetY", "Offset&Y:", "How far the shadow lies below beyond its depth.");
  Buttons({ok, "ok"}, {cancel, "cancel"}, {reset, "reset"});
  VRXSetThemeMode(*this, 1);
  Finish();
}

bool VRXCPGetFont3D(TVRXFont3D& font) { return EditValue<TVRXFont3DEditorDlg>(font, nullptr); }
