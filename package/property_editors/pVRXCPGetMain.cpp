#include "package/property_editors/pVRXCPGetMain.h"

#include <QCheckBox>

#include "dclstd/EditValue.h"
#include "library_design/Encoding.h"
#include "package/dialogs/pVRX3DEffectEditorDlg.h"
#include "package/dialogs/pVRXBmpRegionEditorDlg.h"
#include "package/dialogs/pVRXCaptionEditorDlg.h"
#include "package/dialogs/pVRXLEDEditorDlg.h"

bool VRXCPGetButtonFace3D(TVRXCustom3DButton& button) {
  TVRX3DEffectEditorDlg dialog(ApplicationOwner());
  const TBitmap& original = *dialog.bitmaps[0];
  if (dialog.ShowModal() != mrOk || original.Empty()) return false;
  const TColor transparent = original.Pixel(0, original.Height() - 1);
  const auto masks = [&](int state) { return VRXBmpCreateMasksExt(*dialog.bitmaps[state], transparent); };
  TVRXButtonFace face;
  face.SetPictures(masks(1), masks(2), masks(3));
  if (!Encoded(face)) return false;
  button.BeginUpdate();
  button.SetButtonFace(&face);
  button.SetBounds(button.Left(), button.Top(), dialog.bitmaps[1]->Width(), dialog.bitmaps[1]->Height());
  button.EndUpdate();
  return true;
}

bool VRXCPGetVRXCaption(TVRXCaption& caption, bool showMultiLine) {
  return EditValue<TVRXCaptionEditorDlg>(caption, ApplicationOwner(),
                                         [=](auto& dialog) { dialog.chk->setVisible(showMultiLine); });
}
bool VRXCPGetLED(TVRXLED& led) { return EditValue<TVRXLEDEditorDlg>(led, nullptr); }
bool VRXCPGetRegionMask(TVRXRegionMask& mask, bool window) {
  return EditValue<TVRXfrmRegionFromBMPdlg>(mask, ApplicationOwner(), [=](auto& dialog) {
    if (!window) dialog.SetButtonFace();
  });
}
