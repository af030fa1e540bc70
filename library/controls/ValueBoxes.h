// Fields for a number, a day or a position, with the control that it is chosen with below them.
#pragma once
#include "library/controls/DateRange.h"
#include "library/controls/DropDownBox.h"
#include "vcl/DateTimePicker.h"
#include "vcl/Ranged.h"
#include "vcl/TrackBar.h"

class TVRXCustomCalculatorBox : public TVRXCustomDropDownBox {
  VRX_CLASS(TVRXCustomCalculatorBox)
 public:
  explicit TVRXCustomCalculatorBox(TComponent* owner);
  // -1: as many as the number has.
  static constexpr TKept<int> Decimals{"Decimals", -1};
  static constexpr TKept<QString> Prefix{"Prefix"};
  static constexpr TKept<bool> ShowMemory{"ShowMemory", true};
  static constexpr TKept<QString> Suffix{"Suffix"};
  static constexpr TKept<bool> ThousandSeparator{"ThousandSeparator", false};
  static constexpr TKept<double> Value{"Value"};

  std::unique_ptr<TControl> MakeDropDown() const override;

 protected:
  QString ShownText() const override;
  static TClassBuilder AsCalculatorBox(TClassBuilder b);
};
class TVRXCalculatorComboBox : public TVRXCustomCalculatorBox {
  VRX_CLASS(TVRXCalculatorComboBox)
 public:
  using TVRXCustomCalculatorBox::TVRXCustomCalculatorBox;
};
class TVRXCalculatorEdit : public TVRXCustomCalculatorBox {
  VRX_CLASS(TVRXCalculatorEdit)
 public:
  using TVRXCustomCalculatorBox::TVRXCustomCalculatorBox;

 protected:
  void PaintKnob(TCanvas& canvas, const QRect& rect) const override;
};

class TVRXCustomCalendarBox : public WithDate<TVRXCustomDropDownBox> {
  VRX_CLASS(TVRXCustomCalendarBox)
 public:
  using WithDate::WithDate;
  // A date of 0 is none, not today.
  static constexpr TKept<bool> AllowEmpty{"AllowEmpty", false};
  static constexpr TKept<TMonthCalColors*> CalColors{"CalColors"};
  // Empty: as the country has it.
  static constexpr TKept<QString> DateFormat{"DateFormat"};
  static constexpr TKept<TCalDayOfWeek> FirstDayOfWeek{"FirstDayOfWeek", TCalDayOfWeek::dowLocaleDefault};
  static constexpr TKept<bool> ShowToday{"ShowToday", true};
  static constexpr TKept<bool> ShowTodayCircle{"ShowTodayCircle", true};
  static constexpr TKept<bool> WeekNumbers{"WeekNumbers", false};

  std::unique_ptr<TControl> MakeDropDown() const override;

 protected:
  QString ShownText() const override;
  static TClassBuilder AsCalendarBox(TClassBuilder b);
  bool IsEmpty() const { return Get(AllowEmpty) && Get(Date).Days == 0; }
  QString Formatted(const QDateTime& moment, const QString& usual) const;
};
class TVRXCalendarComboBox : public TVRXCustomCalendarBox {
  VRX_CLASS(TVRXCalendarComboBox)
 public:
  using TVRXCustomCalendarBox::TVRXCustomCalendarBox;
};
class TVRXCalendarEdit : public TVRXCustomCalendarBox {
  VRX_CLASS(TVRXCalendarEdit)
 public:
  using TVRXCustomCalendarBox::TVRXCustomCalendarBox;

 protected:
  void PaintKnob(TCanvas& canvas, const QRect& rect) const override;
};
// A day, a time of day, or both.
class TVRXDateTimePicker : public TVRXCustomCalendarBox {
  VRX_CLASS(TVRXDateTimePicker)
 public:
  explicit TVRXDateTimePicker(TComponent* owner);
  static constexpr TKept<bool> Checked{"Checked", true};
  static constexpr TKept<TDTDateMode> DateMode{"DateMode", TDTDateMode::dmComboBox};
  static constexpr TKept<TDateTimeKind> Kind{"Kind", TDateTimeKind::dtkDate};
  static constexpr TKept<bool> ShowCheckbox{"ShowCheckbox", false};
  static constexpr TKept<TDateTime> Time{"Time"};

  std::unique_ptr<TControl> MakeDropDown() const override;

 protected:
  QString ShownText() const override;
  QRect PaintMark(TCanvas& canvas, const QRect& line) const override;
  void PaintKnob(TCanvas& canvas, const QRect& rect) const override;
  void PaintText(TCanvas& canvas, const QRect& room) const override;
  bool HasKnob() const override;

 private:
  bool CountsUp() const;
};

class TVRXTrackBarComboBox : public TRangedControl<10, TVRXCustomDropDownBox> {
  VRX_CLASS(TVRXTrackBarComboBox)
 public:
  using TRangedControl::TRangedControl;
  static constexpr TKept<int> Frequency{"Frequency", 1};
  static constexpr TKept<QString> Prefix{"Prefix"};
  static constexpr TKept<bool> ShowBar{"ShowBar", true};
  static constexpr TKept<QString> Suffix{"Suffix"};
  static constexpr TKept<TTickMark> TickMarks{"TickMarks", TTickMark::tmBottomRight};
  static constexpr TKept<TTickStyle> TickStyle{"TickStyle", TTickStyle::tsAuto};

  std::unique_ptr<TControl> MakeDropDown() const override;

 protected:
  QString ShownText() const override;
  void PaintText(TCanvas& canvas, const QRect& room) const override;
};
