#include "package/registration/VRX_RegMainEditors.h"

#include "designintf/RegistrationTable.h"
#include "library/values/ButtonFace.h"
#include "library/values/Caption.h"
#include "library/values/RegionMask.h"
#include "package/property_editors/pVRXPeMain.h"

using namespace registration;

namespace {
const Row kRows[] = {
    Property<TVRXCaption, TVRXCaptionProperty>(),
    Property<TVRXRegionMask, TVRXRegionMaskProperty>(),
    Property<TVRXButtonFace, TVRXButtonFaceProperty>(),
};
}  // namespace

void VRX_RegMainEditors::Register() { MakeCalls(kRows); }
