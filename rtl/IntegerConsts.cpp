#include "rtl/IntegerConsts.h"

#include <vector>

namespace {
std::vector<std::pair<const TTypeInfo*, TIntegerConsts>>& Consts() {
  static std::vector<std::pair<const TTypeInfo*, TIntegerConsts>> consts;
  return consts;
}
}  // namespace

void RegisterIntegerConsts(const TTypeInfo& type, TIntegerConsts consts) {
  if (!FindIntegerConsts(type)) Consts().emplace_back(&type, consts);
}

const TIntegerConsts* FindIntegerConsts(const TTypeInfo& type) {
  for (const auto& [t, consts] : Consts())
    if (t == &type) return &consts;
  return nullptr;
}
