#include "package/experts/pVRXRegOS.h"

#include "dclstd/DialogRegistration.h"
#include "dclstd/EditValue.h"
#include "package/experts/pVRXOSPropForm.h"

namespace pVRXRegOS {
void Initialization() { LoadExcludedProperties(); }
void Finalization() { DropExcludedProperties(); }

namespace {
using namespace registration;
const Row kRows[] = {
    Page("VRX Sys", TellingClasses<TVRXObjectStorage>()),
    Component<TVRXObjectStorage, TVRXOSComponentEditor>(),
    Property<TVRXPropertyStorage, TVRXPropertiesProperty, TVRXObjectStorage>(),

    Dialogs<TVRXOSPropForm>(),
};
}  // namespace
void Register() { MakeCalls(kRows); }
}  // namespace pVRXRegOS

namespace {
// Whether the person confirmed.
bool EditStorage(TVRXObjectStorage& storage) {
  TVRXOSPropForm dialog(ApplicationOwner());
  dialog.Edit(storage);
  return dialog.ShowModal() == mrOk;
}
}  // namespace

TPropertyAttributes TVRXPropertiesProperty::GetAttributes() const {
  using enum TPropertyAttribute;
  return {paDialog, paMultiSelect, paReadOnly};
}
QString TVRXPropertiesProperty::GetValue() const {
  const auto* items = As<TVRXPropertyStorage>(GetObjectValue());
  return QStringLiteral("(%1 selected)").arg(items ? items->Count() : 0);
}
void TVRXPropertiesProperty::Edit() {
  auto* storage = As<TVRXObjectStorage>(GetComponent(0));
  if (storage && EditStorage(*storage)) Modified();
}

void TVRXOSComponentEditor::ExecuteVerb(int) {
  auto* storage = As<TVRXObjectStorage>(GetComponent());
  if (storage && EditStorage(*storage) && GetDesigner()) GetDesigner()->Modified();
}
