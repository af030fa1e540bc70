// Controls that show something that moves: a clock, a running text. Such a control says, whenever it is
// painted, when its picture will be another one, and is asked to paint itself again then. Nobody asks one
// that is not painted, so what is out of sight costs nothing.
#pragma once
#include "rtl/DueTimer.h"

class TControl;

class TRepaintTimer {
 public:
  explicit TRepaintTimer(TControl& control);

  // In so many milliseconds, once; another call takes the place of the one before.
  void PaintAgainIn(std::int64_t milliseconds) { timer_.Wait(milliseconds); }
  bool IsWaiting() const { return timer_.IsWaiting(); }
  // Paints again what is due by the clock. Returns how many controls that were.
  static int RunDue() { return TDueTimer::RunDue(); }

 private:
  TDueTimer timer_;
};
