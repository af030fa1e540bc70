#include "package/registration/VRX_RegMainEditors.h"

#include "designintf/DesignIntf.h"
#include "library/values/ButtonFace.h"
#include "library/values/Caption.h"
#include "library/values/RegionMask.h"
#include "package/property_editors/pVRXPeMain.h"

void VRX_RegMainEditors::Register() {
  RegisterPropertyEditor(TVRXCaption::StaticTypeInfo(), nullptr, {},
                         VRX_PROPERTY_EDITOR(TVRXCaptionProperty));
  RegisterPropertyEditor(TVRXRegionMask::StaticTypeInfo(), nullptr, {},
                         VRX_PROPERTY_EDITOR(TVRXRegionMaskProperty));
  RegisterPropertyEditor(TVRXButtonFace::StaticTypeInfo(), nullptr, {},
                         VRX_PROPERTY_EDITOR(TVRXButtonFaceProperty));
}
