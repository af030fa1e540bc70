#include "package/property_editors/pVRXCPGetMain.h"

#include "package/dialogs/pVRXLEDEditorDlg.h"

bool VRXCPGetLED(TVRXLED& led) {
  TVRXLEDEditorDlg dialog(nullptr);
  dialog.test->LED()->Assign(&led);
  dialog.SetLabels();
  if (dialog.ShowModal() != mrOk) return false;
  led.Assign(dialog.test->LED());
  return true;
}
