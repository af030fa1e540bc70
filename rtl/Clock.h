// Time as the program sees it. Tests put a clock of their own in its place, so that nothing they check hangs
// on how fast or busy the machine is.
#pragma once
#include <QDateTime>
#include <cstdint>
#include <functional>

// Milliseconds since some start. Never goes back.
std::int64_t ClockMilliseconds();
// Date and time of day. Of a clock that was put in place: so long after midnight of the first day of 2000.
QDateTime ClockDateTime();

// While it lives, `now` is the clock.
class TClockOverride {
 public:
  explicit TClockOverride(std::function<std::int64_t()> now);
  ~TClockOverride();
  TClockOverride(const TClockOverride&) = delete;
  TClockOverride& operator=(const TClockOverride&) = delete;

 private:
  std::function<std::int64_t()> before_;
};
