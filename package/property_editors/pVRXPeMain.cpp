#include "package/property_editors/pVRXPeMain.h"

#include "package/dialogs/pVRXLEDEditorDlg.h"

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
