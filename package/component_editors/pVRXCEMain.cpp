#include "package/component_editors/pVRXCEMain.h"

#include "library/controls/Button3D.h"
#include "library/controls/LEDLabel.h"
#include "package/property_editors/pVRXCPGetMain.h"

QString TVRXLEDLabelComponentEditor::GetVerb(int index) const {
  return index == 0 ? QStringLiteral("LED") : QString();
}

void TVRXLEDLabelComponentEditor::ExecuteVerb(int index) {
  if (index != 0) return;
  auto* label = As<TVRXLEDCustomLabel>(GetComponent());
  if (label && VRXCPGetLED(*label->LED())) GetDesigner()->Modified();
}

bool TVRXLEDLabelComponentEditor::EditProperty(const TPropertyEditor& property) const {
  return property.GetName() == QStringLiteral("LED");
}

int TVRXExtGraphicButtonComponentEditor::GetVerbCount() const {
  return As<TVRXCustom3DButton>(GetComponent()) ? 1 : 0;
}
QString TVRXExtGraphicButtonComponentEditor::GetVerb(int index) const {
  return index == 0 && GetVerbCount() > 0 ? QStringLiteral("Button-Editor") : QString();
}
void TVRXExtGraphicButtonComponentEditor::ExecuteVerb(int index) {
  auto* button = As<TVRXCustom3DButton>(GetComponent());
  if (index == 0 && button && VRXCPGetButtonFace3D(*button)) GetDesigner()->Modified();
}
