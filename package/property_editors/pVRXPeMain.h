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
