// Days: the colours that calendars have, and the page of a month.
#pragma once
#include <QDate>
#include <QLocale>

#include "vcl/Control.h"

enum class TCalDayOfWeek : std::uint8_t {
  dowMonday,
  dowTuesday,
  dowWednesday,
  dowThursday,
  dowFriday,
  dowSaturday,
  dowSunday,
  dowLocaleDefault
};
VRX_ENUM(TCalDayOfWeek, {"dowMonday", "dowTuesday", "dowWednesday", "dowThursday", "dowFriday", "dowSaturday",
                         "dowSunday", "dowLocaleDefault"})

// "TDate" and "TTime": the whole and the broken part of a TDateTime, as properties have them.
const TTypeInfo& DateType();
const TTypeInfo& TimeType();
// The day of a value; today for 0, as a calendar that nobody gave a day shows it.
QDate DayOf(TDateTime value);

// Headings of a calendar as the country writes them: the day (1 is Monday) so short that the seven differ,
// and the month with its year.
QString DayHeading(const QLocale& locale, int day);
QString MonthHeading(const QLocale& locale, QDate month);
// In its digits, without separators.
QString PlainNumber(const QLocale& locale, int value);

class TMonthCalColors : public TOwnedPersistent {
  VRX_CLASS(TMonthCalColors)
 public:
  explicit TMonthCalColors(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}
  TColor BackColor() const { return back_; }
  void SetBackColor(TColor v) { Change(back_, v); }
  TColor MonthBackColor() const { return month_; }
  void SetMonthBackColor(TColor v) { Change(month_, v); }
  TColor TextColor() const { return text_; }
  void SetTextColor(TColor v) { Change(text_, v); }
  TColor TitleBackColor() const { return titleBack_; }
  void SetTitleBackColor(TColor v) { Change(titleBack_, v); }
  TColor TitleTextColor() const { return titleText_; }
  void SetTitleTextColor(TColor v) { Change(titleText_, v); }
  TColor TrailingTextColor() const { return trailing_; }
  void SetTrailingTextColor(TColor v) { Change(trailing_, v); }

 private:
  TColor back_ = clWindow, month_ = clWindow, text_ = clWindowText;
  TColor titleBack_ = clActiveCaption, titleText_ = clWhite, trailing_ = SysColor(19);
};

class TMonthCalendar : public TWinControl {
  VRX_CLASS(TMonthCalendar)
 public:
  explicit TMonthCalendar(TComponent* owner);
  static constexpr TKept<TMonthCalColors*> CalColors{"CalColors"};
  static constexpr TKept<TDateTime> Date{"Date"};
  static constexpr TKept<TCalDayOfWeek> FirstDayOfWeek{"FirstDayOfWeek", TCalDayOfWeek::dowLocaleDefault};
  static constexpr TKept<bool> ShowToday{"ShowToday", true};
  static constexpr TKept<bool> ShowTodayCircle{"ShowTodayCircle", true};
  static constexpr TKept<bool> WeekNumbers{"WeekNumbers", false};

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;
};
