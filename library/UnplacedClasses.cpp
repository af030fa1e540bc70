// Components that are on no palette page but in forms: known from the moment the library is in memory.
#include "library/components/ImageListContainer.h"
#include "library/components/ShapeHint.h"
#include "library/components/SpecialDates.h"
#include "library/controls/Assist.h"
#include "library/controls/DlgButtonPanel.h"
#include "library/controls/FillControl.h"
#include "library/controls/NoteBook.h"
#include "library/controls/RegionControl.h"
#include "rtl/ClassRegistry.h"

namespace {
[[maybe_unused]] const bool Registered = [] {
  for (const TClass* cls :
       {&TVRXRegion::StaticClass(), &TVRXFill::StaticClass(), &TVRXShapeHint::StaticClass(),
        &TVRXSpecialDates::StaticClass(), &TVRXButton::StaticClass(), &TVRXImageListContainer::StaticClass(),
        &TVRXAssistPage::StaticClass(), &TVRXNoteBookPage::StaticClass()}) {
    RegisterClass(*cls);
    PromiseTelling(*cls);
  }
  return true;
}();
}  // namespace
