#include "package/dialogs/pVRXLEDEditorDlg.h"

#include <QtWidgets>

#include "library/values/LightColor.h"
#include "library_design/pVRXCommon.h"

using D = TVRXLEDEditorDlg;

TVRXLEDEditorDlg::TVRXLEDEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("LED Editor"), QSize(533, 318), owner) {
  Preview(test, "Shows the current settings.", Qt::AlignTop | Qt::AlignRight);
  test->SetCaption(QStringLiteral("Preview"));
  test->LED()->SetSize(1, 9);
  test->LED()->SetSize(3, 7);
  Edits(*test->LED());
  Row(edhs, "edhs", "HorzSize", "&HorzSize:", "Defines the horizontal size of the LED-letters.")
      .Changes(&D::edchange);
  Row(edvs, "edvs", "VertSize", "&VertSize:", "Defines the vertical size of the LED-letters.")
      .Changes(&D::edchange);
  Row(edt, "edt", "Thickness", "&Thickness:", "Defines the thickness of the LED-letters.")
      .Length(2)
      .Changes(&D::edchange);
  Row(cmbb, "cmbb", "ActiveColor", "&ActiveColor:", "Defines the color for active LED-letters.")
      .WithButton(bt1, "bt1", &D::btn)
      .Changes(&D::cmbc);
  Row(cmbL, "cmbL", "InActiveColor", "&InActiveColor:", "Defines the color for inactive LED-letters.")
      .WithButton(bt2, "bt2", &D::btn)
      .Changes(&D::cmbc);
  Row(pred, "pred", "", "&Pred. Color:", "Defines the color for both \r\nactive and inactive LED-letters.")
      .Items(TypeInfoOf<TVRXLightColor>::Get())
      .Changes(&D::predChange);
  for (ColorComboBox* combo : {cmbb, cmbL})
    combo->SetStyles({TColorChoice::csDefaultColors, TColorChoice::csSystemColors, TColorChoice::csAnyColor});
  pred->setMaxVisibleItems(4);
  Note("Predefined Color-Settings for Active-/InActiveColor\r\ndon't appear in the Combobox.");
  Row(chk, "chk", "DisabledDigits", " &DisabledDigits",
      "If DisabledDigits is set to true and\r\nEnabled to false, the LED will be \r\ndisplayed with the "
      "InactiveColor.")
      .Changes(&D::chkClick);
  Buttons({ok, "ok"}, {Button1, "Button1"}, {reset, "reset"});
  VRXSetThemeMode(*this, 1);
  Finish();
}

void TVRXLEDEditorDlg::predChange() {
  if (pred->currentIndex() == -1) return;
  const TVRXLightColors colors = VRXGetLightColors(static_cast<TVRXLightColor>(pred->currentIndex()));
  test->LED()->SetColor(0, colors.Active);
  test->LED()->SetColor(1, colors.Inactive);
  if (activated) SetLabels();
  // The list chooses once and never shows a current value.
  pred->setCurrentIndex(-1);
}

// Both dialogs work on the one list of custom colours that cmbb holds.
void TVRXLEDEditorDlg::btn(const QToolButton* sender) {
  sender == bt1 ? cmbb->Execute() : cmbL->ExecuteEnh(*cmbb);
}
