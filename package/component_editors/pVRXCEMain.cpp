#include "package/component_editors/pVRXCEMain.h"

#include "package/property_editors/pVRXCPGetMain.h"

const TVRXLEDLabelComponentEditor::Verbs TVRXLEDLabelComponentEditor::Table = {
    {"LED", Launch(&TVRXLEDCustomLabel::LED, VRXCPGetLED)},
};
bool TVRXLEDLabelComponentEditor::EditProperty(const TPropertyEditor& property) const {
  return property.GetName() == QStringLiteral("LED");
}

const TVRXExtGraphicButtonComponentEditor::Verbs TVRXExtGraphicButtonComponentEditor::Table = {
    {"Button-Editor", VRXCPGetButtonFace3D},
};
