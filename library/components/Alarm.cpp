#include "library/components/Alarm.h"

#include <cmath>

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
    const QDateTime candidate(moment.date().addDays(i), QTime::fromMSecsSinceStartOfDay(at));
    const auto day = static_cast<TVRXWeekday>(candidate.date().dayOfWeek() - 1);
    if (candidate > moment && Get(Days).Contains(day)) return candidate;
  }
  return {};
}

QDateTime TVRXAlarmComponent::PutOff(const QDateTime& moment) const {
  return Get(Enabled) ? moment.addSecs(60ll * std::max(0, Get(SnoozeMinutes))) : QDateTime();
}
