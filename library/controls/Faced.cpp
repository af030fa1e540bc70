#include "library/controls/Faced.h"

#include <algorithm>

#include "rtl/PropAccess.h"

TClassBuilder VRXWithFace(TClassBuilder builder) {
  return VRXWithStyles(std::move(builder)
                           .Published(VRXFaceControllerRef)
                           .Doc(QStringLiteral("Gives the control another look in each of its states.")))
      .Published(VRXStyleRef)
      .Doc(QStringLiteral("The style of the control; without one it has its class's."));
}
TClassBuilder VRXWithStyles(TClassBuilder builder) {
  return std::move(builder)
      .Published(VRXStyleManagerRef)
      .Doc(QStringLiteral("Has the styles that the control can take over."));
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

namespace {
using enum TVRXCFCSettingObjectKind;

// What styles say of one part of the control: a copy of what it has, changed as they say.
void TakePart(const TControl& control, const TPropInfo& prop, const std::vector<const TVRXStylePlan*>& plans,
              bool disabled, TVRXFaceLook& look) {
  const TPersistent* own = GetObjectProp(control, prop);
  const TVRXCFCSettingObjectKind kind = VRXCFCGetSettingsKindObject(own);
  if (kind == okNone) return;
  const std::shared_ptr<TPersistent> copy = own->ClassType().NewPersistent();
  const TPersistent* now = look.Of(kind);
  copy->Assign(now ? now : own);
  for (const TVRXStylePlan* plan : plans) plan->ApplyToPart(*copy, prop.Name);
  look.Take(kind, copy, disabled && kind == okFont && plans.back()->Sets(prop.Name));
}

void TakeStyles(const TControl& control, TVRXStateKinds kinds, TVRXFaceLook& look) {
  const TVRXStyleManager* manager = control.Get(VRXStyleManagerRef);
  if (!manager) return;
  const QString named = manager->PathOf({}, control.Get(VRXStyleRef));
  const QString base = named.isEmpty() ? manager->PathOfClass(control.ClassType()) : named;
  QStringList paths;
  const auto add = [&](const QString& path) {
    if (!path.isEmpty() && manager->Styles().Has(path) && !paths.contains(path)) paths << path;
  };
  add(base);
  // The lighter states first, those that count more over them.
  std::vector<std::size_t> states;
  for (std::size_t i = 0; i < VRXStateKindCount; ++i)
    if (kinds.Contains(static_cast<TVRXStateKind>(i))) states.push_back(i);
  std::sort(states.begin(), states.end(), [](std::size_t a, std::size_t b) {
    return VRXRankOf({static_cast<TVRXStateKind>(a)}) < VRXRankOf({static_cast<TVRXStateKind>(b)});
  });
  for (const std::size_t i : states) add(VRXStylePath(base, QString::fromLatin1(StateStyleNames[i])));
  if (const auto* style = static_cast<const TVRXStateStyle*>(look.Of(okStyle)))
    add(manager->PathOf(base, style->Get(TVRXStateStyle::StyleName)));
  if (paths.isEmpty()) return;

  std::vector<const TVRXStylePlan*> plans;
  // What stands above the control's own style counts once; what is below it says only itself.
  for (const QString& path : paths)
    plans.push_back(&manager->PlanFor(control.ClassType(), path,
                                      path == base || !path.startsWith(base + VRXStyleSeparator)));
  const bool disabled = kinds.Contains(TVRXStateKind::skDisabled);
  for (const TPropInfo* prop : control.ClassType().Properties()) {
    const auto sets = [&](const TVRXStylePlan* plan) { return plan->Sets(prop->Name); };
    if (prop->IsPart() && std::any_of(plans.begin(), plans.end(), sets))
      TakePart(control, *prop, plans, disabled, look);
    if (prop->Name == "Color")
      for (const TVRXStylePlan* plan : plans)
        if (const auto color = plan->OrdinalOf(prop->Name)) {
          auto object = std::make_shared<TVRXColorObject>();
          object->Set(TVRXColorObject::Color, TColor(static_cast<std::uint32_t>(*color)));
          look.Take(okColor, object, false);
        }
  }
}
}  // namespace

TVRXFaceLook VRXFaceOf(const TControl& control) {
  const TVRXFaceController* controller = control.Get(VRXFaceControllerRef);
  if (!controller && !control.Get(VRXStyleManagerRef)) return {};
  std::uint64_t kinds = VRXStatesOf(control).Bits();
  if (controller && control.IsDesigning()) kinds |= controller->Get(TVRXFaceController::DesignStates).Bits();
  const auto states = TVRXStateKinds::FromBits(kinds);
  TVRXFaceLook look = controller ? controller->LookIn(states) : TVRXFaceLook();
  TakeStyles(control, states, look);
  return look;
}
