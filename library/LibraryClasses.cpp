#include "library/LibraryClasses.h"

#include "library/controls/Button3D.h"
#include "library/controls/LEDLabel.h"
#include "library/controls/RegionControl.h"
#include "library/controls/ShapeControl.h"
#include "rtl/ClassRegistry.h"

const TClass* FindLibraryClass(const QByteArray& name) {
  static const std::vector<const TClass*> classes{
      &TVRXLEDLabel::StaticClass(),     &TVRX3DEffectButton::StaticClass(),
      &TVRXShapeControl::StaticClass(), &TVRXWndButtonShape::StaticClass(),
      &TVRXRegion::StaticClass(),
  };
  for (const TClass* cls : classes)
    if (cls->ClassName() == name) return cls;
  return nullptr;
}

namespace {
// On no palette page, but in forms: known from the moment the library is in memory.
[[maybe_unused]] const bool Registered = [] {
  RegisterClass(TVRXRegion::StaticClass());
  return true;
}();
}  // namespace
