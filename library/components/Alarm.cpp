#include "library/components/Alarm.h"

#include <cmath>

#include "rtl/Clock.h"
#include "rtl/Exceptions.h"
#include "vcl/Calendar.h"

const TClass& TVRXAlarmComponent::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXAlarmComponent>("TVRXAlarmComponent", TComponent::StaticClass())
          .Published(AlarmTime)
          .Type(TimeType())
          .Doc(QStringLiteral("The time of day."))
          .Published(Days)
          .Doc(QStringLiteral("The days of the week on which it tells."))
          .Published(Enabled)
          .Doc(QStringLiteral("Whether it tells at all."))
          .Passive<QString>("Message")
          .Doc(QStringLiteral("What there is to say."))
          .Published(SnoozeMinutes)
          .Doc(QStringLiteral("For how many minutes it can be put off."))
          .Event("OnAlarm")
          .ClassDoc(
              QStringLiteral("Raises an event at a time of day, on the days of the week that are wanted."),
              "pen line 1.5 brush fill oval 4.5 5.5 15 15 path 7 19.5 5 21.5 path 17 19.5 19 21.5 pen "
              "accent 2 path 12 9 12 13 15 14.5 path 3 7 6.5 3.5 path 21 7 17.5 3.5"));
  return cls;
}

QDateTime TVRXAlarmComponent::NextAfter(const QDateTime& moment) const {
  if (!Get(Enabled) || !moment.isValid()) return {};
  const double days = Get(AlarmTime).Days;
  constexpr int DayMilliseconds = 24 * 60 * 60 * 1000;
  const int at =
      std::isfinite(days)
          ? static_cast<int>(std::llround((std::abs(days) - std::floor(std::abs(days))) * DayMilliseconds)) %
                DayMilliseconds
          : 0;
  // The same day of next week counts when it is too late today.
  for (int i = 0; i <= 7; ++i) {
    QDateTime candidate = moment;  // in its time zone
    candidate.setDate(moment.date().addDays(i));
    candidate.setTime(QTime::fromMSecsSinceStartOfDay(at));
    const auto day = static_cast<TVRXWeekday>(candidate.date().dayOfWeek() - 1);
    if (candidate > moment && Get(Days).Contains(day)) return candidate;
  }
  return {};
}

QDateTime TVRXAlarmComponent::PutOff(const QDateTime& moment) const {
  return Get(Enabled) ? moment.addSecs(60ll * std::max(0, Get(SnoozeMinutes))) : QDateTime();
}

void TVRXAlarmComponent::Start(Ring ring) {
  Stop();
  if (IsDesigning())
    throw EComponentError(
        QStringLiteral("%1 rings when the form runs, not while it is designed.").arg(Name()));
  ring_ = std::move(ring);
  next_ = NextAfter(ClockDateTime());
  Plan();
}

void TVRXAlarmComponent::Stop() {
  ring_ = nullptr;
  next_ = snoozed_ = {};
  timer_.Cancel();
}

void TVRXAlarmComponent::Snooze() {
  if (!ring_) return;
  snoozed_ = PutOff(ClockDateTime());
  Plan();
}

QDateTime TVRXAlarmComponent::Next() const {
  if (!next_.isValid() || !snoozed_.isValid()) return next_.isValid() ? next_ : snoozed_;
  return std::min(next_, snoozed_);
}

void TVRXAlarmComponent::Plan() {
  timer_.Cancel();
  // Clocks are set, and machines sleep: the time is looked at now and then.
  constexpr qint64 often = 30'000;
  if (const QDateTime next = Next(); next.isValid())
    timer_.Wait(std::clamp<qint64>(ClockDateTime().msecsTo(next), 0, often));
}

bool TVRXAlarmComponent::IsDue(const QDateTime& now) const { return Next().isValid() && Next() <= now; }

void TVRXAlarmComponent::Look() {
  const QDateTime now = ClockDateTime();
  const bool due = IsDue(now);
  if (due) {
    next_ = NextAfter(now);
    snoozed_ = {};
  }
  Plan();
  if (!due) return;
  // Who hears of it may free the component.
  const Ring ring = ring_;
  ring();
}

void TVRXAlarmComponent::DoChanged() {
  TComponent::DoChanged();
  const QDateTime now = ClockDateTime();
  // What is due is about to be told.
  if (!ring_ || (Get(Enabled) && IsDue(now))) return;
  next_ = NextAfter(now);
  if (!Get(Enabled)) snoozed_ = {};
  Plan();
}
