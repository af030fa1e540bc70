// Tells at a time of day, on some days of the week.
#pragma once
#include <QDateTime>

#include "rtl/Component.h"
#include "rtl/DueTimer.h"

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
  explicit TVRXAlarmComponent(TComponent* owner) : TComponent(owner) {}
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

  // From now on `ring` hears whenever it is time, once for all times that a machine slept through; until
  // Stop or the end of the component. Throws EComponentError while the form is being designed.
  using Ring = std::function<void()>;
  void Start(Ring ring);
  void Stop();
  bool IsRunning() const { return ring_ != nullptr; }
  // Rings once more, so many minutes from now as it can be put off.
  void Snooze();
  // When it rings next; invalid when it does not.
  QDateTime Next() const;

 protected:
  void DoChanged() override;

 private:
  bool IsDue(const QDateTime& now) const;
  void Plan();
  void Look();
  Ring ring_;
  QDateTime next_, snoozed_;
  TDueTimer timer_{[this] { Look(); }};
};
