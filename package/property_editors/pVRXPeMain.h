// Property editors of the library's value objects. Each edits a copy in a modal dialog and writes it back
// only when the user confirms.
#pragma once
#include "designintf/BasicEditors.h"

class TVRXLEDProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

class TVRXCaptionProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

class TVRXRegionMaskProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

// The face of a button; opens the editor that belongs to the kind of button.
class TVRXButtonFaceProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};
