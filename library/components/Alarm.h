// Tells at a time of day, on some days of the week.
#pragma once
#include <QDateTime>

#include "rtl/Component.h"

enum class TVRXWeekday : std::uint8_t {
  wdMonday,
  wdTuesday,
  wdWednesday,
  wdThursday,
  wdFriday,
  wdSaturday,
  wdSunday
};
VRX_ENUM(TVRXWeekday,
         {"wdMonday", "wdTuesday", "wdWednesday", "wdThursday", "wdFriday", "wdSaturday", "wdSunday"})
using TVRXWeekdays = TSet<TVRXWeekday>;
VRX_SET(TVRXWeekdays, TVRXWeekday)

class TVRXAlarmComponent : public TComponent {
  VRX_CLASS(TVRXAlarmComponent)
 public:
  using TComponent::TComponent;
  static constexpr TKept<TDateTime> AlarmTime{"AlarmTime"};
  static constexpr TKept<TVRXWeekdays> Days{
      "Days",
      {TVRXWeekday::wdMonday, TVRXWeekday::wdTuesday, TVRXWeekday::wdWednesday, TVRXWeekday::wdThursday,
       TVRXWeekday::wdFriday, TVRXWeekday::wdSaturday, TVRXWeekday::wdSunday}};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<int> SnoozeMinutes{"SnoozeMinutes", 5};

  // The first moment after that one at which it tells; invalid where it never does.
  QDateTime NextAfter(const QDateTime& moment) const;
  // When it tells once more after it was put off.
  QDateTime PutOff(const QDateTime& moment) const;
};
