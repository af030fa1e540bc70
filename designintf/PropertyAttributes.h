// What an inspector may do with a property.
#pragma once
#include "rtl/TypeInfo.h"

enum class TPropertyAttribute : std::uint8_t {
  paValueList,
  paSubProperties,
  paDialog,
  paMultiSelect,
  paAutoUpdate,
  paSortList,
  paReadOnly,
  paRevertable,
  paFullWidthName,
  paVolatileSubProperties,
  paVCL,
  paNotNestable,
  paDisplayReadOnly,
  paCustomDropDown,
  paValueEditable,
};
using TPropertyAttributes = TSet<TPropertyAttribute>;

VRX_ENUM(TPropertyAttribute,
         {"paValueList", "paSubProperties", "paDialog", "paMultiSelect", "paAutoUpdate", "paSortList",
          "paReadOnly", "paRevertable", "paFullWidthName", "paVolatileSubProperties", "paVCL",
          "paNotNestable", "paDisplayReadOnly", "paCustomDropDown", "paValueEditable"})
VRX_SET(TPropertyAttributes, TPropertyAttribute)
