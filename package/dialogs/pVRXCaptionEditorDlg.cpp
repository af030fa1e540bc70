#include "package/dialogs/pVRXCaptionEditorDlg.h"

#include <QtWidgets>

#include "library_design/FontDialogs.h"
#include "library_design/pVRXCommon.h"

using D = TVRXCaptionEditorDlg;

TVRXCaptionEditorDlg::TVRXCaptionEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Caption Editor"), QSize(533, 318), owner) {
  Preview(test);
  test->Brush()->SetColor(clBtnFace);
  test->Set(TVRXBaseShape::BevelColor, clBtnShadow);
  Edits(*test->Caption());
  Row(cap, "cap", "Caption", "&Caption:").Changes(&D::capChange);
  Row(cmb, "cmb", "Alignment", "Alignment:", "Aligns your text in the object it is embedded in.")
      .Changes(&D::cmbChange);
  Row(chk, "chk", "MultiLine", "MultiLine", "Specifies whether WordWrap is used.").Changes(&D::chkClick);
  Button(btnf, "btnf", "Font >>", &D::btncClick);
  Button(btnffx, "btnffx", "", &D::btncClick, "Changes rotation, 3D-effect etc.");
  btnffx->setIcon(FontFxIcon());
  btnffx->setIconSize(QSize(20, 20));
  btnffx->setAccessibleName(QStringLiteral("FontFX"));
  btnffx->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  Wide({btnf, btnffx});
  Buttons({ok, "ok"}, {Button1, "Button1"}, {reset, "reset"});
  VRXSetThemeMode(*this, 1);
  Finish();
}

void TVRXCaptionEditorDlg::btncClick(const QPushButton* sender) {
  if (sender == btnf)
    VRXCPGetFont(*test->Caption()->Font());
  else
    VRXCPGetFontFx(*test->Caption()->FontFX());
}
