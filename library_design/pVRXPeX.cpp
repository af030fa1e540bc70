#include "library_design/pVRXPeX.h"

#include "library_design/ImageListDialogs.h"
#include "rtl/PropAccess.h"

TPropertyAttributes TVRXCustomImageListProperty::GetAttributes() const {
  TPropertyAttributes attributes = TComponentProperty::GetAttributes();
  attributes.Include(TPropertyAttribute::paDialog);
  return attributes;
}

void TVRXCustomImageListProperty::Edit() {
  if (!Designer()) return;
  auto* list = As<TCustomImageList>(GetObjectProp(*GetComponent(0), GetPropInfo()));
  int picture = -1;
  if (VRXCPGetIML(*Designer(), list, picture)) SetValue(list ? list->Name() : QString());
}
