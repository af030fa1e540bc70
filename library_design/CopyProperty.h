// Editors of value objects that work on a copy: a dialog changes the copy, and only when the user confirms is
// it written back, to all selected components.
#pragma once
#include "designintf/BasicEditors.h"

// Whether the inspector shows the object's own properties, too, and edits several components together.
enum class TCopyEditing : bool { DialogOnly, Expanding };

template <class Value, TCopyEditing Editing = TCopyEditing::Expanding>
class TCopyProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override {
    using enum TPropertyAttribute;
    if (Editing == TCopyEditing::DialogOnly) return {paDialog};
    return {paSubProperties, paDialog, paMultiSelect};
  }
  void Edit() override {
    Value copy;
    copy.Assign(GetObjectValue());
    if (Launch(copy)) SetOrdValue(&copy);
  }

 protected:
  // Whether the copy was changed and is to be kept.
  virtual bool Launch(Value& copy) = 0;
};
