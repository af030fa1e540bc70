// What lists and fields with a list have in common.
#pragma once
#include "vcl/Control.h"

class TCustomListControl : public TWinControl {
  VRX_CLASS(TCustomListControl)
 public:
  using TWinControl::TWinControl;
  static constexpr TKept<bool> MultiSelect{"MultiSelect", false};
};
