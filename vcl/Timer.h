// An event at regular intervals.
#pragma once
#include "rtl/Component.h"

class TTimer : public TComponent {
  VRX_CLASS(TTimer)
 public:
  using TComponent::TComponent;
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool v) { Change(enabled_, v); }
  unsigned Interval() const { return interval_; }  // milliseconds
  void SetInterval(unsigned v) { Change(interval_, v); }

 private:
  unsigned interval_ = 1000;
  bool enabled_ = true;
};
