#include "package/dialogs/pVRXShadowEditorDlg.h"

#include "library_design/pVRXCommon.h"

using D = TVRXShadowEditorDlg;

TVRXShadowEditorDlg::TVRXShadowEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Shadow Editor"), QSize(462, 315), owner, 190) {
  Preview(test);
  test->Caption()->SetCaption(QStringLiteral("Preview"));
  test->Set(TVRXBaseShape::Shape, TVRXShapeType::stEllipse);
  test->Set(TVRXBaseShape::RoundPercent, 100);
  test->Set(TVRXBaseShape::FillStyle, TVRXShapeFillStyle::sfShapeFill);
  Edits(*test->Shadow());
  Row(cmbstyle, "cmbstyle", "Style", "Style: ", "Specifies the stlye of shadow to be used.")
      .Changes(&D::cmbChange);
  Row(cmbS, "cmbS", "Color", "Color: ", "Specifies the color of the shadow.")
      .WithButton(dlgl, "dlgl", &D::dlglClick)
      .Changes(&D::cmbSChange);
  cmbS->SetStyles({TColorChoice::csDefaultColors, TColorChoice::csSystemColors, TColorChoice::csAnyColor});
  // Three characters, of which the lowest eight bits are kept.
  Row(spind, "spind", "Depth", "Depth:", "Specifies the Depth of the shadow.")
      .Range(-99, 999, 3)
      .Changes(&D::spindChange);
  Note("Using white as shadow-color will not work if tracing style is selected.");
  Buttons({ok, "ok"}, {Button1, "Button1"}, {reset, "reset"});
  VRXSetThemeMode(*this, 1);
  Finish();
}
