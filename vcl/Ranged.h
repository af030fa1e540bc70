// Controls with a position between two ends: it is never outside of them, and no end is beyond the other.
#pragma once
#include <algorithm>

#include "rtl/Exceptions.h"
#include "vcl/AsGiven.h"
#include "vcl/Control.h"

template <int FirstMax, class Base = TWinControl>
class TRangedControl : public Base {
 public:
  using Base::Base;
  static constexpr TKept<int> Max{"Max", FirstMax};
  static constexpr TKept<int> Min{"Min", 0};
  static constexpr TKept<int> Position{"Position", 0};

  // The position stays within its ends; ends that would change places are refused. Ends that a file gives may
  // be in any order.
  int MaxOf() const { return this->Get(Max); }
  void SetMax(int v) { ChangeRange(this->Get(Min), v); }
  int MinOf() const { return this->Get(Min); }
  void SetMin(int v) { ChangeRange(v, this->Get(Max)); }
  int PositionOf() const { return this->Get(Position); }
  void SetPosition(int v) {
    const int min = this->Get(Min), max = this->Get(Max);
    const bool limited = min <= max && !TakesAsGiven(*this);
    this->Set(Position, limited ? std::clamp(v, min, max) : v);
  }

 private:
  void ChangeRange(int min, int max) {
    const bool asGiven = TakesAsGiven(*this);
    if (!asGiven && max < min)
      throw EPropertyError(QStringLiteral("%1 cannot go from %2 to %3: Min is not more than Max.")
                               .arg(this->Name())
                               .arg(min)
                               .arg(max));
    const TUpdateLock once(*this);
    this->Set(Min, min);
    this->Set(Max, max);
    if (!asGiven) this->Set(Position, std::clamp(this->Get(Position), min, max));
  }
};
