#include "package/component_editors/pVRXCEMain.h"

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
