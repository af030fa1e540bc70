#include "library_design/LookDialogs.h"

#include "dclstd/EditValue.h"
#include "library_design/pVRXCommon.h"

TVRXBevelEditorDlg::TVRXBevelEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Bevel Editor"), QSize(533, 318), owner) {
  using D = TVRXBevelEditorDlg;
  Preview(test, "Shows the current settings.");
  test->Set(TVRXCustomLight::Style, TVRXLightStyle::ltRectangle);
  test->Set(TVRXCustomLight::Active, false);
  Edits(*test->Bevel());
  Row(cmbouter, "cmbouter", "Outer", "&Outer bevel:");
  Row(cmbinner, "cmbinner", "Inner", "&Inner bevel:");
  Row(edwidth, "edwidth", "Width", "&Width:").Range(0, 99, 2);
  Row(cmbL, "cmbL", "LightColor", "&LightColor:").WithButton(dlgl, "dlgl", &D::btn);
  Row(cmbs, "cmbs", "ShadowColor", "&ShadowColor:").WithButton(dlgs, "dlgs", &D::btn);
  Row(edborder, "edborder", "BorderWidth", "&BorderWidth:").Range(0, 99, 2);
  Row(cmbb, "cmbb", "BorderColor", "Border&Color:").WithButton(dlgb, "dlgb", &D::btn);
  Buttons({ok, "ok"}, {cancel, "cancel"}, {reset, "reset"});
  VRXSetThemeMode(*this, 1);
  Finish();
}

void TVRXBevelEditorDlg::btn(const QToolButton* sender) {
  (sender == dlgl ? cmbL : sender == dlgs ? cmbs : cmbb)->Execute();
}

TVRXBrushEditorDlg::TVRXBrushEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Brush Editor"), QSize(462, 220), owner) {
  Preview(test, "Shows the current settings.");
  Edits(*test->Brush());
  Row(cmbstyle, "cmbstyle", "Style", "&Style:");
  Row(cmbcolor, "cmbcolor", "Color", "&Color:").WithButton(dlgc, "dlgc", &TVRXBrushEditorDlg::btn);
  Buttons({ok, "ok"}, {cancel, "cancel"}, {reset, "reset"});
  VRXSetThemeMode(*this, 1);
  Finish();
}

bool VRXCPGetBevel(TVRXBevel& bevel) { return EditValue<TVRXBevelEditorDlg>(bevel); }
bool VRXCPGetBrush(TBrush& brush) { return EditValue<TVRXBrushEditorDlg>(brush); }
