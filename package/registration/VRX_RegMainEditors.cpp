#include "package/registration/VRX_RegMainEditors.h"

#include "dclstd/DialogRegistration.h"
#include "library/values/ButtonFace.h"
#include "library/values/Caption.h"
#include "library/values/RegionMask.h"
#include "package/dialogs/pVRX3DEffectEditorDlg.h"
#include "package/dialogs/pVRXBmpRegionEditorDlg.h"
#include "package/dialogs/pVRXCaptionEditorDlg.h"
#include "package/dialogs/pVRXLEDEditorDlg.h"
#include "package/property_editors/pVRXPeMain.h"

using namespace registration;

namespace {
const Row kRows[] = {
    Property<TVRXCaption, TVRXCaptionProperty>(),
    Property<TVRXRegionMask, TVRXRegionMaskProperty>(),
    Property<TVRXButtonFace, TVRXButtonFaceProperty>(),

    Dialogs<TVRXLEDEditorDlg, TVRXCaptionEditorDlg, TVRX3DEffectEditorDlg, TVRXfrmRegionFromBMPdlg>(),
};
}  // namespace

void VRX_RegMainEditors::Register() { MakeCalls(kRows); }
