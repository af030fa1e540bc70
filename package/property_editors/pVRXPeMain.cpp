#include "package/property_editors/pVRXPeMain.h"

#include "dclstd/EditValue.h"
#include "library/controls/Assist.h"
#include "library/controls/MMButton.h"
#include "library/controls/NoteBook.h"
#include "library/controls/ShapeControl.h"
#include "library/values/ValueListControl.h"
#include "package/dialogs/pVRXFilterPropertyEditorDlg.h"
#include "package/dialogs/pVRXLEDEditorDlg.h"
#include "package/dialogs/pVRXMMButtonFaceEditorDlg.h"
#include "package/dialogs/pVRXValueListDlg.h"
#include "package/dialogs/pVRXVldRegExpEditor.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "rtl/PropAccess.h"
#include "vcl/Prompts.h"

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

bool TVRXShadowProperty::Launch(TVRXShadow& copy) { return VRXCPGetShadow(copy); }
bool TVRXShapeFillProperty::Launch(TVRXShapeFill& copy) {
  const auto* shape = As<TVRXBaseShape>(GetComponent(0));
  return VRXCPGetShapeFill(copy, shape ? shape->Get(TVRXBaseShape::ShapeFillImageList) : nullptr);
}
bool TVRXSimpleBevelProperty::Launch(TVRXSimpleBevel& copy) { return VRXCPGetSimpleBevel(copy); }
bool TVRXTeethProperty::Launch(TVRXTeeth& copy) { return VRXCPGetTeeth(copy); }

TPropertyAttributes TVRXPictureEnumProperty::GetAttributes() const {
  return {paValueList, paDialog, paMultiSelect, paRevertable};
}
// An unchanged value is written, too, unless that gave the first one's to others.
void TVRXPictureEnumProperty::Edit() {
  const std::int64_t before = GetOrdValue(), picked = Pick(before) & 0xFF;
  if (picked != before || AllEqual()) SetOrdValue(picked);
}
std::int64_t TVRXShapeProperty::Pick(std::int64_t value) {
  return static_cast<std::int64_t>(VRXCPGetShape(static_cast<TVRXShapeType>(value)));
}
std::int64_t TVRXLightColorProperty::Pick(std::int64_t value) {
  return static_cast<std::int64_t>(VRXCPGetLightColor(static_cast<TVRXLightColor>(value)));
}

TPropertyAttributes TVRXButtonFaceProperty::GetAttributes() const { return {paDialog}; }
void TVRXButtonFaceProperty::Edit() {
  TPersistent* const component = GetComponent(0);
  if (auto* button = As<TVRXCustom3DButton>(component)) {
    if (VRXCPGetButtonFace3D(*button)) Modified();
    return;
  }
  const TPropInfo* prop = component->ClassType().FindProp("ButtonFaceImageList");
  auto* owner = As<TComponent>(component);
  if (!owner || !prop || prop->Kind() != TTypeKind::tkClass) return;
  if (VRXCPGetButtonFaceMM(*owner, As<TCustomImageList>(GetObjectProp(*owner, *prop)))) Modified();
}

namespace {
// The dialog works on the numbers; the component takes them when the person confirms.
template <class C>
bool EditFace(C& component, TCustomImageList& images) {
  TVRXButtonFaceDlg dialog(nullptr);
  dialog.SetFace(images, component.GetButtonFaceIndices());
  if (dialog.ShowModal() != mrOk) return false;
  const bool changed = dialog.Face() != component.GetButtonFaceIndices();
  component.SetButtonFaceIndices(dialog.Face());
  component.SetTransCol();
  return changed;
}
}  // namespace

bool VRXCPGetButtonFaceMM(TComponent& component, TCustomImageList* images) {
  const auto refuse = [](const char* why) {
    Prompts().Inform(ApplicationOwner(), QStringLiteral("Button Face Editor"), QString::fromLatin1(why));
    return false;
  };
  if (!images) return refuse("Can't run Editor because no ButtonFaceImageList is selected.");
  if (auto* controller = As<TVRXMMButtonFaceController>(&component)) return EditFace(*controller, *images);
  auto* button = As<TVRXCustomMMButton>(&component);
  if (!button) return false;
  if (button->Get(TVRXCustomMMButton::ButtonFaceController))
    return refuse("Can't run Editor because control is connected to a ButtonFaceController component.");
  return EditFace(*button, *images);
}

TPropertyAttributes TVRXListProperty::GetAttributes() const { return {paDialog}; }
void TVRXListProperty::Edit() {
  TPersistent* list = GetObjectValue();
  if (list && Launch(*list)) SetOrdValue(list);
}
bool TVRXDateListProperty::Launch(TPersistent& list) {
  return VRXCPGetDateList(dynamic_cast<TVRXDateList&>(list));
}
bool TVRXPointListProperty::Launch(TPersistent& list) {
  return VRXCPGetPointList(dynamic_cast<TVRXPointList&>(list));
}

TPropertyAttributes TVRXFilterProperty::GetAttributes() const { return {paDialog}; }
void TVRXFilterProperty::Edit() {
  TVRXFilterPropsDlg dialog(ApplicationOwner());
  dialog.Filter = GetStrValue();
  if (dialog.ShowModal() == mrOk) SetStrValue(dialog.Filter);
}

TVRXVldRegExprProperty::TVRXVldRegExprProperty(IDesigner* designer, TInstProps props)
    : TPropertyEditor(designer, std::move(props)) {}
TVRXVldRegExprProperty::~TVRXVldRegExprProperty() = default;
TPropertyAttributes TVRXVldRegExprProperty::GetAttributes() const { return {paDialog}; }
QString TVRXVldRegExprProperty::GetValue() const { return GetStrValue(); }
void TVRXVldRegExprProperty::SetValue(const QString& value) { SetStrValue(value); }
void TVRXVldRegExprProperty::Edit() {
  if (!form_) form_ = std::make_unique<TVRXRegExprForm>(nullptr);
  SetStrValue(form_->EditExpression(GetStrValue()));
}

namespace {
IVRXValueListControl* ValueListOf(const TPropertyEditor& editor) {
  return dynamic_cast<IVRXValueListControl*>(editor.GetComponent(0));
}
}  // namespace

TPropertyAttributes TVRXValueListProperty::GetAttributes() const { return {paDialog, paReadOnly}; }
void TVRXValueListProperty::Edit() {
  IVRXValueListControl* control = ValueListOf(*this);
  if (control && TVRXValueListDlg::Execute(*control)) Modified();
}

TPropertyAttributes TVRXValueListValueProperty::GetAttributes() const { return {paValueList}; }
void TVRXValueListValueProperty::GetValues(const TGetStrProc& proc) const {
  IVRXValueListControl* control = ValueListOf(*this);
  if (!control) return;
  for (const QString& item : control->ItemNames().Lines())
    if (!item.isEmpty()) proc(item);
}

TPropertyAttributes TVRXAssistPageProperty::GetAttributes() const { return {paValueList}; }
void TVRXAssistPageProperty::GetValues(const TGetStrProc& proc) const {
  const auto* assist = As<TVRXAssist>(GetComponent(0));
  if (!assist) return;
  for (const TVRXAssistPage* page : assist->Pages()) proc(page->Name());
}
TPropertyAttributes TVRXNoteBookPageProperty::GetAttributes() const { return {paValueList}; }
void TVRXNoteBookPageProperty::GetValues(const TGetStrProc& proc) const {
  const auto* book = As<TVRXCustomSheetControl>(GetComponent(0));
  if (!book) return;
  for (const TVRXCustomSheet* sheet : book->Sheets()) proc(sheet->Name());
}

TPropertyAttributes TVRXPanelCaptionProperty::GetAttributes() const {
  return {paSubProperties, paMultiSelect};
}
