// A position between two ends: it is never outside of them, and no end is beyond the other.
#pragma once
#include <algorithm>

#include "rtl/Exceptions.h"
#include "vcl/AsGiven.h"

// The control's class keeps Min, Max and Position.
template <class C>
void ChangeRange(C& control, int min, int max) {
  const bool asGiven = TakesAsGiven(control);
  if (!asGiven && max < min)
    throw EPropertyError(QStringLiteral("%1 cannot go from %2 to %3: Min is not more than Max.")
                             .arg(control.Name())
                             .arg(min)
                             .arg(max));
  const TUpdateLock once(control);
  control.Set(C::Min, min);
  control.Set(C::Max, max);
  if (!asGiven) control.Set(C::Position, std::clamp(control.Get(C::Position), min, max));
}

template <class C>
void ChangePosition(C& control, int position) {
  const int min = control.Get(C::Min), max = control.Get(C::Max);
  // Ends that a file gives may be in any order.
  const bool limited = min <= max && !TakesAsGiven(control);
  control.Set(C::Position, limited ? std::clamp(position, min, max) : position);
}
