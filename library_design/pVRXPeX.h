// The property editor of image lists.
#pragma once
#include "designintf/BasicEditors.h"

// A reference to an image list of the form, which can also be chosen by its pictures.
class TVRXCustomImageListProperty : public TComponentProperty {
 public:
  using TComponentProperty::TComponentProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};
