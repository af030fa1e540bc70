// The page of a month to choose a day from.
#pragma once
#include "library/controls/DateRange.h"
#include "vcl/Edit.h"
#include "vcl/RepaintTimer.h"

enum class TVRXCalendarPart : std::uint8_t { None, Title, PreviousMonth, NextMonth, WeekNumber, Day, Today };

class TVRXCalendar : public WithDate<TWinControl> {
  VRX_CLASS(TVRXCalendar)
 public:
  explicit TVRXCalendar(TComponent* owner);
  static constexpr TKept<TBorderStyle> BorderStyle{"BorderStyle", TBorderStyle::bsSingle};
  static constexpr TKept<TMonthCalColors*> CalColors{"CalColors"};
  static constexpr TKept<TCalDayOfWeek> FirstDayOfWeek{"FirstDayOfWeek", TCalDayOfWeek::dowLocaleDefault};
  static constexpr TKept<bool> GridLines{"GridLines", false};
  static constexpr TKept<TColor> SelectedColor{"SelectedColor", clHighlight};
  static constexpr TKept<TColor> SelectedTextColor{"SelectedTextColor", clHighlightText};
  static constexpr TKept<bool> ShowButtons{"ShowButtons", true};
  static constexpr TKept<bool> ShowToday{"ShowToday", true};
  static constexpr TKept<bool> ShowTodayCircle{"ShowTodayCircle", true};
  static constexpr TKept<bool> ShowTrailingDays{"ShowTrailingDays", true};
  static constexpr TKept<TColor> TodayColor{"TodayColor", clRed};
  static constexpr TKept<bool> WeekNumbers{"WeekNumbers", false};
  // clDefault: as other days.
  static constexpr TKept<TColor> WeekendColor{"WeekendColor", clDefault};

  struct Hit {
    TVRXCalendarPart part = TVRXCalendarPart::None;
    QDate day;  // of a day; the first of the week of a week's number
  };
  // What is at the point. Days that cannot be chosen are nothing.
  Hit HitAt(QPoint point) const;
  // Where the parts there is one of are; empty when the calendar does not show it.
  QRect PartRect(TVRXCalendarPart part) const;
  // Empty for a day that is not on the page.
  QRect DayRect(QDate day) const;
  // The number that the page shows beside a week: the one most of whose days are in it.
  static int WeekNumberOf(QDate firstOfWeek) { return firstOfWeek.addDays(3).weekNumber(); }

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;

 private:
  struct Page;
  Page PageOf() const;
  // A week without days of this month may show none.
  bool HasDays(QDate firstOfWeek) const;
  void PaintTitle(TCanvas& canvas, const Page& page) const;
  void PaintDays(TCanvas& canvas, const Page& page) const;
  void PaintDay(TCanvas& canvas, const QRect& rect, QDate day, const Page& page) const;
  void Write(TCanvas& canvas, const QRect& rect, const QString& text, TColor color) const;
  TRepaintTimer timer_{*this};
};
