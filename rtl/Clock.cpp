#include "rtl/Clock.h"

#include <chrono>
#include <utility>

namespace {
std::function<std::int64_t()>& Replaced() {
  static std::function<std::int64_t()> now;
  return now;
}
}  // namespace

std::int64_t ClockMilliseconds() {
  if (const auto& now = Replaced()) return now();
  using namespace std::chrono;
  return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

QDateTime ClockDateTime() {
  if (!Replaced()) return QDateTime::currentDateTime();
  return QDateTime(QDate(2000, 1, 1), QTime(0, 0), Qt::UTC).addMSecs(ClockMilliseconds());
}

TClockOverride::TClockOverride(std::function<std::int64_t()> now)
    : before_(std::exchange(Replaced(), std::move(now))) {}
TClockOverride::~TClockOverride() { Replaced() = std::move(before_); }
