// Components that are on no palette page but in forms: known from the moment the library is in memory.
#include "library/controls/RegionControl.h"
#include "rtl/ClassRegistry.h"

namespace {
[[maybe_unused]] const bool Registered = [] {
  RegisterClass(TVRXRegion::StaticClass());
  PromiseTelling(TVRXRegion::StaticClass());
  return true;
}();
}  // namespace
