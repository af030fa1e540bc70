// Property editors of the library's value objects. Each edits a copy in a modal dialog and writes it back
// only when the user confirms.
#pragma once
#include "library/values/Caption.h"
#include "library/values/RegionMask.h"
#include "library_design/CopyProperty.h"

class TVRXLEDProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

class TVRXCaptionProperty : public TCopyProperty<TVRXCaption> {
  using TCopyProperty::TCopyProperty;
  bool Launch(TVRXCaption& copy) override;
};

class TVRXRegionMaskProperty : public TCopyProperty<TVRXRegionMask, TCopyEditing::DialogOnly> {
  using TCopyProperty::TCopyProperty;
  bool Launch(TVRXRegionMask& copy) override;
};

// The face of a button; opens the editor that belongs to the kind of button.
class TVRXButtonFaceProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};
