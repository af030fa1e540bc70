#include "package/dialogs/pVRXTeethEditorDlg.h"

#include "library_design/pVRXCommon.h"

using D = TVRXTeethEditorDlg;

TVRXTeethEditorDlg::TVRXTeethEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Teeth Editor"), QSize(563, 371), owner) {
  Preview(test, "Displays the current settings.");
  test->Set(TVRXBaseShape::DrawTeeth, true);
  Edits(*test->Teeth());
  Row(cmb, "cmb", "Direction", "Direction:", "Specifies the directions the\r\nteeth point to.")
      .Changes(&D::cmbChange);
  Row(spinc, "spinc", "Count", "Count:", "Specifies the count of teeth.")
      .Range(-9, 99, 2)
      .Changes(&D::spincChange);
  Row(spinW, "spinW", "Width", "Width:", "Specifies the width of the teeth.")
      .Range(0, 250, 3)
      .Changes(&D::spincChange);
  Row(spinh, "spinh", "Height", "Height:", "Specifies the height of the teeth.")
      .Range(0, 250, 3)
      .Changes(&D::spincChange);
  Row(chkc, "chkc", "SetPerCount", "SetPerCount").Changes(&D::chkcClick);
  Row(chko, "chko", "Offset", "Offset").Changes(&D::chkcClick);
  Note(
      "SetPerCount decides either the \"Count\"-value or the \"Width/Height\"-values will be used to draw "
      "the shape.");
  Note("Offset decides whether the outer edges are drawn sharp.", "note2");
  Buttons({ok, "ok"}, {Button1, "Button1"}, {reset, "reset"});
  VRXSetThemeMode(*this, 1);
  Finish();
}
