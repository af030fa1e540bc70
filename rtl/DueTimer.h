// Something that is to be done at a time, by the program's clock (Clock.h).
#pragma once
#include <cstdint>
#include <functional>

class TDueTimer {
 public:
  // `act` may free the timer.
  explicit TDueTimer(std::function<void()> act) : act_(std::move(act)) {}
  ~TDueTimer() { Cancel(); }
  TDueTimer(const TDueTimer&) = delete;
  TDueTimer& operator=(const TDueTimer&) = delete;

  // In so many milliseconds, once; another call takes the place of the one before.
  void Wait(std::int64_t milliseconds);
  void Cancel();
  bool IsWaiting() const { return waiting_; }
  // Does what is due by the clock. Returns how many that were.
  static int RunDue();

 private:
  std::function<void()> act_;
  std::int64_t due_ = 0;
  bool waiting_ = false;
};
