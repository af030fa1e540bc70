// Components that forms may hold though no palette page has them, or none at times: known from the moment the
// library is in memory.
#include "library/components/ImageListContainer.h"
#include "library/components/ShapeHint.h"
#include "library/components/SpecialDates.h"
#include "library/controls/Assist.h"
#include "library/controls/DlgButtonPanel.h"
#include "library/controls/FillControl.h"
#include "library/controls/LabeledBoxes.h"
#include "library/controls/NoteBook.h"
#include "library/controls/RegionControl.h"
#include "rtl/ClassRegistry.h"

namespace {
[[maybe_unused]] const bool Registered = [] {
  for (const TClass* cls :
       {&TVRXRegion::StaticClass(), &TVRXFill::StaticClass(), &TVRXShapeHint::StaticClass(),
        &TVRXSpecialDates::StaticClass(), &TVRXButton::StaticClass(), &TVRXImageListContainer::StaticClass(),
        &TVRXAssistPage::StaticClass(), &TVRXNoteBookPage::StaticClass(),
        &TVRXLabeledCalendarEdit::StaticClass(), &TVRXLabeledCalculatorEdit::StaticClass(),
        &TVRXLabeledListComboBox::StaticClass(), &TVRXLabeledDriveComboBox::StaticClass(),
        &TVRXLabeledCalculatorComboBox::StaticClass(), &TVRXLabeledTrackBarComboBox::StaticClass(),
        &TVRXLabeledCalendarComboBox::StaticClass(), &TVRXLabeledHeaderListComboBox::StaticClass(),
        &TVRXLabeledCheckListComboBox::StaticClass(), &TVRXLabeledTreeComboBox::StaticClass()}) {
    RegisterClass(*cls);
    PromiseTelling(*cls);
  }
  return true;
}();
}  // namespace
