#include "package/property_editors/pVRXCPGetMain.h"

#include <QApplication>
#include <QCheckBox>
#include <QProgressDialog>

#include "package/dialogs/pVRX3DEffectEditorDlg.h"
#include "package/dialogs/pVRXBmpRegionEditorDlg.h"
#include "package/dialogs/pVRXCaptionEditorDlg.h"
#include "package/dialogs/pVRXLEDEditorDlg.h"

namespace {
// The dialogs of the application belong to the window that the user is in.
QWidget* ApplicationOwner() { return QApplication::activeWindow(); }

// Large pictures take their time to be compressed. That is shown, and can be cancelled: then nothing changes.
template <class TValue>
bool Encoded(const TValue& value) {
  if (!value.NeedsTime()) return true;
  QProgressDialog progress(QObject::tr("The pictures are being compressed..."), QObject::tr("Cancel"), 0, 100,
                           ApplicationOwner());
  progress.setWindowModality(Qt::ApplicationModal);
  progress.setMinimumDuration(0);
  return value.Encode([&](int percent) {
    progress.setValue(percent);
    return !progress.wasCanceled();
  });
}
}  // namespace

bool VRXCPGetButtonFace3D(TVRXCustom3DButton& button) {
  TBitmap original, up, down, disabled;
  TVRX3DEffectEditorDlg dialog(ApplicationOwner());
  dialog.colors[0] = clBlack;
  dialog.colors[1] = clWhite;
  dialog.colors[2] = clWhite;
  dialog.colors[3] = clGray;
  dialog.bevelWidth = 2;
  TBitmap* const bitmaps[] = {&original, &up, &down, &disabled};
  std::copy_n(bitmaps, 4, dialog.bitmaps);
  if (dialog.ShowModal() != mrOk || original.Empty()) return false;
  const TColor transparent = original.Pixel(0, original.Height() - 1);
  TVRXButtonFace face;
  face.SetPictures(VRXBmpCreateMasksExt(up, transparent), VRXBmpCreateMasksExt(down, transparent),
                   VRXBmpCreateMasksExt(disabled, transparent));
  if (!Encoded(face)) return false;
  button.BeginUpdate();
  button.SetButtonFace(&face);
  button.SetBounds(button.Left(), button.Top(), up.Width(), up.Height());
  button.EndUpdate();
  return true;
}

bool VRXCPGetVRXCaption(TVRXCaption& caption, bool showMultiLine) {
  TVRXCaptionEditorDlg dialog(ApplicationOwner());
  dialog.test->Caption()->Assign(&caption);
  dialog.chk->setVisible(showMultiLine);
  dialog.SetLabels();
  if (dialog.ShowModal() != mrOk) return false;
  caption.Assign(dialog.test->Caption());
  return true;
}

bool VRXCPGetLED(TVRXLED& led) {
  TVRXLEDEditorDlg dialog(nullptr);
  dialog.test->LED()->Assign(&led);
  dialog.SetLabels();
  if (dialog.ShowModal() != mrOk) return false;
  led.Assign(dialog.test->LED());
  return true;
}

bool VRXCPGetRegionMask(TVRXRegionMask& mask, bool window) {
  TVRXfrmRegionFromBMPdlg dialog(ApplicationOwner());
  dialog.mask->Assign(&mask);
  if (!window) dialog.SetButtonFace();
  dialog.SetLabels();
  if (dialog.ShowModal() != mrOk) return false;
  if (!Encoded(*dialog.mask)) return false;
  mask.Assign(dialog.mask.get());
  return true;
}
