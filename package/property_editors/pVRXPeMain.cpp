#include "package/property_editors/pVRXPeMain.h"

#include "package/dialogs/pVRXLEDEditorDlg.h"
#include "package/property_editors/pVRXCPGetMain.h"

using enum TPropertyAttribute;

TPropertyAttributes TVRXLEDProperty::GetAttributes() const {
  return {paSubProperties, paDialog, paMultiSelect};
}

// The dialog's preview is the copy that is edited.
void TVRXLEDProperty::Edit() {
  TVRXLEDEditorDlg dialog(nullptr);
  dialog.test->LED()->Assign(GetObjectValue());
  if (const auto* label = As<TVRXLEDCustomLabel>(GetComponent(0))) {
    dialog.test->SetTransparent(label->Transparent());
    dialog.test->SetColor(label->Color());
  }
  dialog.SetLabels();
  if (dialog.ShowModal() == mrOk) SetOrdValue(dialog.test->LED());
}

bool TVRXCaptionProperty::Launch(TVRXCaption& copy) { return VRXCPGetVRXCaption(copy, true); }

// The region component shows two states, as a button does; its descendants are shaped windows.
bool TVRXRegionMaskProperty::Launch(TVRXRegionMask& copy) {
  return VRXCPGetRegionMask(copy, GetComponent(0)->ClassType().ClassName() != "TVRXRegion");
}

TPropertyAttributes TVRXButtonFaceProperty::GetAttributes() const { return {paDialog}; }
void TVRXButtonFaceProperty::Edit() {
  auto* button = As<TVRXCustom3DButton>(GetComponent(0));
  if (button && VRXCPGetButtonFace3D(*button)) Modified();
}
