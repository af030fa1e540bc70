#include "library_design/VerbEditor.h"

const char* const BoolStr[2] = {": False", ": True"};

bool VRXCPIsDBControl(const TComponent& component) {
  return component.ClassType().ClassName().contains("TVRXDB");
}

namespace {
std::int64_t BitsOf(const TFlagVerb& flag) { return flag.Element < 0 ? 1 : std::int64_t{1} << flag.Element; }
}  // namespace

QString TFlagVerb::Caption(const TPersistent& instance) const {
  const std::int64_t value = GetOrdProp(instance, instance.ClassType().GetProp(Property));
  return QString::fromUtf8(Name) + QString::fromUtf8(Texts[(value & BitsOf(*this)) != 0]);
}

void TFlagVerb::Toggle(TPersistent& instance) const {
  const TPropInfo& prop = instance.ClassType().GetProp(Property);
  SetOrdProp(instance, prop, GetOrdProp(instance, prop) ^ BitsOf(*this));
}
