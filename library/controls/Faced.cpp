#include "library/controls/Faced.h"

#include "rtl/PropAccess.h"

TClassBuilder VRXWithFace(TClassBuilder builder) {
  return std::move(builder)
      .Published(VRXFaceControllerRef)
      .Doc(QStringLiteral("Gives the control another look in each of its states."));
}

TVRXStateKinds VRXStatesOf(const TControl& control) {
  using enum TVRXStateKind;
  static constexpr std::pair<const char*, TVRXStateKind> values[] = {
      {"Down", skPressed}, {"Checked", skChecked}, {"Default", skDefault}, {"ReadOnly", skReadOnly}};
  TVRXStateKinds kinds;
  if (!control.Enabled()) kinds.Include(skDisabled);
  for (const auto& [name, kind] : values) {
    const TPropInfo* prop = control.ClassType().FindProp(name);
    if (prop && prop->IsOrdinal() && GetOrdProp(control, *prop) != 0) kinds.Include(kind);
  }
  return kinds;
}

TVRXFaceLook VRXFaceOf(const TControl& control) {
  const TVRXFaceController* controller = control.Get(VRXFaceControllerRef);
  if (!controller) return {};
  std::uint64_t kinds = VRXStatesOf(control).Bits();
  if (control.IsDesigning()) kinds |= controller->Get(TVRXFaceController::DesignStates).Bits();
  return controller->LookIn(TVRXStateKinds::FromBits(kinds));
}
