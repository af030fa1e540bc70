#include "package/registration/VRX_RegMain.h"

#include "designintf/RegistrationTable.h"
#include "library/controls/Button3D.h"
#include "library/controls/LEDLabel.h"
#include "library/controls/Light.h"
#include "library/controls/RegionControl.h"
#include "library/controls/ShapeControl.h"
#include "library/controls/Switch.h"
#include "library/controls/TechnicalLine.h"
#include "package/component_editors/pVRXCEMain.h"
#include "package/property_editors/pVRXPeMain.h"

using namespace registration;

namespace {
// Each page, and then the editors of what is on it.
const Row kRows[] = {
    Page("VRX Ext", TellingClasses<TVRXTechnicalLine, TVRXLEDLabel, TVRXSwitch, TVRXWSwitch, TVRXLight>()),
    Property<TVRXLED, TVRXLEDProperty>(),
    Component<TVRXLEDCustomLabel, TVRXLEDLabelComponentEditor>(),
    Component<TVRXTechnicalLine, TVRXTechnicalLineComponentEditor>(),
    Component<TVRXCustomSwitch, TVRXSwitchComponentEditor>(),
    Property<TVRXLightColor, TVRXLightColorProperty>(),
    Component<TVRXCustomLight, TVRXLightComponentEditor>(),

    Page("VRX MM",
         TellingClasses<TVRX3DEffectButton, TVRXShapeControl, TVRXRepeatedShape, TVRXWndButtonShape>()),
    Component<TVRXBaseShape, TVRXCustomShapeComponentEditor>(),
    Component<TVRXCustom3DButton, TVRXExtGraphicButtonComponentEditor>(),
};
}  // namespace

void VRX_RegMain::Register() { MakeCalls(kRows); }
