#include "vcl/RepaintTimer.h"

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <vector>

#include "rtl/Clock.h"
#include "vcl/Control.h"

namespace {
std::vector<TRepaintTimer*>& Waiting() {
  static std::vector<TRepaintTimer*> waiting;
  return waiting;
}

// One for the process, as long as there is an application; pictures can be made without one.
QTimer* Timer() {
  static QTimer* timer = nullptr;
  if (!timer && QCoreApplication::instance()) {
    timer = new QTimer(QCoreApplication::instance());
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, timer, [] { TRepaintTimer::RunDue(); });
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

TRepaintTimer::~TRepaintTimer() { std::erase(Waiting(), this); }

void TRepaintTimer::PaintAgainIn(std::int64_t milliseconds) {
  due_ = ClockMilliseconds() + milliseconds;
  if (!waiting_) Waiting().push_back(this);
  waiting_ = true;
  StartFor(milliseconds);
}

int TRepaintTimer::RunDue() {
  const std::int64_t now = ClockMilliseconds();
  std::vector<TRepaintTimer*> due;
  std::erase_if(Waiting(), [&](TRepaintTimer* timer) {
    if (timer->due_ > now) return false;
    timer->waiting_ = false;
    due.push_back(timer);
    return true;
  });
  if (!Waiting().empty()) {
    const auto next = std::min_element(Waiting().begin(), Waiting().end(),
                                       [](const auto* a, const auto* b) { return a->due_ < b->due_; });
    StartFor((*next)->due_ - now);
  }
  // A host only notes what is to be painted; none frees a control here.
  for (TRepaintTimer* timer : due) timer->control_.Invalidate();
  return static_cast<int>(due.size());
}
