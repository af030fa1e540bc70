#include "package/styles/pVRXCstMain.h"

#include "designintf/Designer.h"
#include "package/styles/StyleRegistry.h"

TVRXEditStyles VRXEditStyles = nullptr;

QString TVRXStyleManEditor::GetVerb(int index) const {
  return index == 0 ? QStringLiteral("Style Designer...") : QString();
}

void TVRXStyleManEditor::ExecuteVerb(int) {
  auto* manager = dynamic_cast<TVRXStyleManager*>(GetComponent());
  if (!manager || !VRXEditStyles) return;
  VRXExcludeStylePropertiesOnce();
  if (const TComponent* root = manager->Owner()) RegisterStyleMgrForm(*root, manager);
  if (VRXEditStyles(*manager) && GetDesigner()) GetDesigner()->Modified();
}
