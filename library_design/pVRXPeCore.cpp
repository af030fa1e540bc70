#include "library_design/pVRXPeCore.h"

#include "library/values/DateTimeFormat.h"
#include "library_design/DateTimeFormatDialog.h"

using enum TPropertyAttribute;

TPropertyAttributes TVRXDateTimeFormatProperty::GetAttributes() const {
  return {paDialog, paMultiSelect, paRevertable};
}

void TVRXDateTimeFormatProperty::SetValue(const QString& value) {
  VRXCheckDateTimeFormat(value);
  TStringProperty::SetValue(value);
}

void TVRXDateTimeFormatProperty::Edit() {
  QString format = GetStrValue();
  if (VRXCPGetDateTimeFormat(format)) SetStrValue(format);
}
