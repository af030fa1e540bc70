// What a control shows of its action. The framework copies these values when a program runs, where the
// control has none of its own; here they are only painted.
#pragma once
#include "vcl/Control.h"
#include "vcl/Painters.h"

struct TActionLook {
  QString caption;
  bool enabled = true;
  bool checked = false;
  TPartStates States() const { return enabled ? TPartStates() : TPartStates{TPartState::Disabled}; }
};
// `checked`: whether the control itself is.
TActionLook LookOf(const TControl& control, bool checked = false);
