#include "package/registration/VRX_RegMain.h"

#include "designintf/RegistrationTable.h"
#include "library/controls/Button3D.h"
#include "library/controls/LEDLabel.h"
#include "library/controls/RegionControl.h"
#include "library/controls/ShapeControl.h"
#include "package/component_editors/pVRXCEMain.h"
#include "package/property_editors/pVRXPeMain.h"

using namespace registration;

namespace {
// Each page, and then the editors of what is on it.
const Row kRows[] = {
    Page("VRX Ext", TellingClasses<TVRXLEDLabel>()),
    Property<TVRXLED, TVRXLEDProperty>(),
    Component<TVRXLEDCustomLabel, TVRXLEDLabelComponentEditor>(),

    Page("VRX MM", TellingClasses<TVRX3DEffectButton, TVRXShapeControl, TVRXWndButtonShape>()),
    Component<TVRXCustom3DButton, TVRXExtGraphicButtonComponentEditor>(),
};
}  // namespace

void VRX_RegMain::Register() { MakeCalls(kRows); }
