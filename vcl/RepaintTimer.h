// Controls that show something that moves: a clock, a running text. Such a control says, whenever it is
// painted, when its picture will be another one, and is asked to paint itself again then. Nobody asks one
// that is not painted, so what is out of sight costs nothing.
#pragma once
#include <cstdint>

class TControl;

class TRepaintTimer {
 public:
  explicit TRepaintTimer(TControl& control) : control_(control) {}
  ~TRepaintTimer();
  TRepaintTimer(const TRepaintTimer&) = delete;
  TRepaintTimer& operator=(const TRepaintTimer&) = delete;

  // In so many milliseconds, once; another call takes the place of the one before.
  void PaintAgainIn(std::int64_t milliseconds);
  bool IsWaiting() const { return waiting_; }
  // Paints again what is due by the clock. Returns how many controls that were.
  static int RunDue();

 private:
  TControl& control_;
  std::int64_t due_ = 0;
  bool waiting_ = false;
};
