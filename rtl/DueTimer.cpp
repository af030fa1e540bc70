#include "rtl/DueTimer.h"

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <vector>

#include "rtl/Clock.h"

namespace {
std::vector<TDueTimer*>& Waiting() {
  static std::vector<TDueTimer*> waiting;
  return waiting;
}
// Whose turn has come. What is freed meanwhile leaves the line.
std::vector<TDueTimer*>& Line() {
  static std::vector<TDueTimer*> line;
  return line;
}

// One for the process, as long as there is an application; pictures can be made without one.
QTimer* Timer() {
  static QTimer* timer = nullptr;
  if (!timer && QCoreApplication::instance()) {
    timer = new QTimer(QCoreApplication::instance());
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, timer, [] { TDueTimer::RunDue(); });
    QObject::connect(timer, &QObject::destroyed, timer, [] { timer = nullptr; });
  }
  return timer;
}

void StartFor(std::int64_t milliseconds) {
  constexpr std::int64_t Least = 10, Most = 60 * 60 * 1000;
  QTimer* const timer = Timer();
  const int wait = static_cast<int>(std::clamp(milliseconds, Least, Most));
  if (timer && (!timer->isActive() || timer->remainingTime() > wait)) timer->start(wait);
}
}  // namespace

void TDueTimer::Wait(std::int64_t milliseconds) {
  Cancel();
  due_ = ClockMilliseconds() + milliseconds;
  Waiting().push_back(this);
  waiting_ = true;
  StartFor(milliseconds);
}

void TDueTimer::Cancel() {
  std::erase(Waiting(), this);
  std::erase(Line(), this);
  waiting_ = false;
}

int TDueTimer::RunDue() {
  const std::int64_t now = ClockMilliseconds();
  std::erase_if(Waiting(), [&](TDueTimer* timer) {
    if (timer->due_ > now) return false;
    Line().push_back(timer);
    return true;
  });
  if (!Waiting().empty()) {
    const auto next = std::min_element(Waiting().begin(), Waiting().end(),
                                       [](const auto* a, const auto* b) { return a->due_ < b->due_; });
    StartFor((*next)->due_ - now);
  }
  int done = 0;
  for (; !Line().empty(); ++done) {
    TDueTimer* const timer = Line().front();
    timer->Cancel();
    const auto act = timer->act_;
    act();
  }
  return done;
}
