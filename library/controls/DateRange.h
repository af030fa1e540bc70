// Controls that show a day between two ends.
#pragma once
#include "rtl/Clock.h"
#include "rtl/Exceptions.h"
#include "vcl/AsGiven.h"
#include "vcl/Calendar.h"

// The day of a value; today for 0.
inline QDate VRXDayOf(TDateTime value) { return value.Days == 0 ? ClockDateTime().date() : DayOf(value); }

//   class TVRXCalendar : public WithDate<TWinControl> { ... };
//   WithDate<TWinControl>::PublishDates(DescribeClass<TVRXCalendar>(...))
template <class Base>
class WithDate : public Base {
 public:
  using Base::Base;
  static constexpr TKept<TDateTime> Date{"Date"};
  static constexpr TKept<TDateTime> MaxDate{"MaxDate"};
  static constexpr TKept<TDateTime> MinDate{"MinDate"};

  // The date stays within its ends; ends that would change places are refused.
  TDateTime DateOf() const { return this->Get(Date); }
  void SetDate(TDateTime v) { this->Set(Date, TakesAsGiven(*this) ? v : Limited(v)); }
  TDateTime MaxDateOf() const { return this->Get(MaxDate); }
  void SetMaxDate(TDateTime v) { SetEnd(MaxDate, v, this->Get(MinDate), v); }
  TDateTime MinDateOf() const { return this->Get(MinDate); }
  void SetMinDate(TDateTime v) { SetEnd(MinDate, v, v, this->Get(MaxDate)); }

  QDate Day() const { return VRXDayOf(this->Get(Date)); }
  bool IsInRange(QDate day) const {
    const TDateTime from = this->Get(MinDate), to = this->Get(MaxDate);
    return (from.Days == 0 || day >= VRXDayOf(from)) && (to.Days == 0 || day <= VRXDayOf(to));
  }

  static TClassBuilder PublishDates(TClassBuilder b) {
    return std::move(b)
        .Published("Date", &WithDate::DateOf, &WithDate::SetDate)
        .Type(DateType())
        .Doc(QStringLiteral("The chosen day; 0 is today."))
        .Published("MaxDate", &WithDate::MaxDateOf, &WithDate::SetMaxDate)
        .Type(DateType())
        .Doc(QStringLiteral("The last day that can be chosen; 0 is no limit."))
        .Published("MinDate", &WithDate::MinDateOf, &WithDate::SetMinDate)
        .Type(DateType())
        .Doc(QStringLiteral("The first day that can be chosen; 0 is no limit."));
  }

 private:
  TDateTime Limited(TDateTime v) const {
    const TDateTime from = this->Get(MinDate), to = this->Get(MaxDate);
    if (v.Days == 0) return v;
    if (to.Days != 0 && v.Days > to.Days) v = to;
    return from.Days != 0 && v.Days < from.Days ? from : v;
  }
  void SetEnd(const TKept<TDateTime>& end, TDateTime v, TDateTime from, TDateTime to) {
    const bool asGiven = TakesAsGiven(*this);
    if (!asGiven && from.Days != 0 && to.Days != 0 && from.Days > to.Days)
      throw EPropertyError(
          QStringLiteral("%1 cannot go from %2 to %3: MinDate is not after MaxDate.")
              .arg(this->Name(), DayOf(from).toString(Qt::ISODate), DayOf(to).toString(Qt::ISODate)));
    const TUpdateLock once(*this);
    this->Set(end, v);
    if (!asGiven) this->Set(Date, Limited(this->Get(Date)));
  }
};
