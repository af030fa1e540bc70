#include "library/controls/LabeledBoxes.h"

// The label's line above what the field looks like.
#define VRX_LABELED(Name, Sentence, Drawing)                                                \
  const TClass& TVRXLabeled##Name::StaticClass() {                                          \
    static const TClass cls(                                                                \
        Labeled<TVRX##Name>::Describe<TVRXLabeled##Name>("TVRXLabeled" #Name)               \
            .ClassDoc(QStringLiteral(Sentence),                                             \
                      "pen line 1.5 brush fill box 2.5 9.5 19 8 2 pen accent 2 brush none " \
                      "path 3.5 5.5 11 5.5 pen line 1.3 " Drawing));                        \
    return cls;                                                                             \
  }

VRX_LABELED(CalendarEdit, "An edit for a day with a label of its own.",
            "box 13 11.5 6 4.5 0 path 13 13 19 13 path 5.5 11.5 5.5 15.5")
VRX_LABELED(CalculatorEdit, "An edit for a number with a label of its own.",
            "path 5.5 11.5 5.5 15.5 pen accent 1.6 path 16 11.2 16 15.8 path 13.7 13.5 18.3 13.5")
VRX_LABELED(ListComboBox, "A field with a list of texts and a label of its own.",
            "path 15 12.5 17 14.5 19 12.5 path 5 13.5 11 13.5 path 5 20 13 20 path 5 22 10 22")
VRX_LABELED(DriveComboBox, "A field with the computer's drives and a label of its own.",
            "path 15 12.5 17 14.5 19 12.5 box 5 12.5 7 2.6 0.5")
VRX_LABELED(CalculatorComboBox, "A field for a number, with a calculator and a label of its own.",
            "path 15 12.5 17 14.5 19 12.5 box 5 19 3 2.5 0 box 10 19 3 2.5 0 box 15 19 3 2.5 0")
VRX_LABELED(TrackBarComboBox, "A field for a position with a label of its own.",
            "path 15 12.5 17 14.5 19 12.5 path 4 20.5 20 20.5 box 8 18.8 3 3.4 0")
VRX_LABELED(CalendarComboBox, "A field for a day, with a calendar and a label of its own.",
            "path 15 12.5 17 14.5 19 12.5 box 4 18.5 10 4 0 path 4 20 14 20")
VRX_LABELED(HeaderListComboBox, "A field with a table and a label of its own.",
            "path 15 12.5 17 14.5 19 12.5 box 4 18.4 16 3 0 path 9.5 18.4 9.5 21.4 path 15 18.4 15 21.4")
VRX_LABELED(CheckListComboBox, "A field with a list to check and a label of its own.",
            "path 15 12.5 17 14.5 19 12.5 path 5 13.2 6.5 14.7 9 11.7 path 5 20.5 6.5 22 9 19")
VRX_LABELED(TreeComboBox, "A field with a tree and a label of its own.",
            "path 15 12.5 17 14.5 19 12.5 path 5 18 5 22 9 22 path 5 20 9 20")

#undef VRX_LABELED
