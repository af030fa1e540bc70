// The edits and fields that drop down, each with a label of its own.
#pragma once
#include "library/controls/ListBoxes.h"
#include "library/controls/ValueBoxes.h"
#include "vcl/Labeled.h"

#define VRX_LABELED(Name)                                \
  class TVRXLabeled##Name : public Labeled<TVRX##Name> { \
    VRX_CLASS(TVRXLabeled##Name)                         \
   public:                                               \
    using Labeled::Labeled;                              \
  };

VRX_LABELED(CalendarEdit)
VRX_LABELED(CalculatorEdit)
VRX_LABELED(ListComboBox)
VRX_LABELED(DriveComboBox)
VRX_LABELED(CalculatorComboBox)
VRX_LABELED(TrackBarComboBox)
VRX_LABELED(CalendarComboBox)
VRX_LABELED(HeaderListComboBox)
VRX_LABELED(CheckListComboBox)
VRX_LABELED(TreeComboBox)

#undef VRX_LABELED
