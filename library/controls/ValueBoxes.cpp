#include "library/controls/ValueBoxes.h"

#include <QLocale>
#include <cmath>

#include "library/controls/Calculator.h"
#include "library/controls/Calendar.h"
#include "library/controls/Faced.h"
#include "library/values/DateTimeFormat.h"
#include "vcl/ItemPainting.h"

// --- Numbers

const TClass& TVRXCustomCalculatorBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCustomCalculatorBox>("TVRXCustomCalculatorBox", TVRXCustomDropDownBox::StaticClass())
          .Declared(Decimals)
          .Doc(QStringLiteral("Digits behind the point; -1 is as many as the number has."))
          .Declared(Prefix)
          .Doc(QStringLiteral("A text in front of the number."))
          .Declared(ShowMemory)
          .Doc(QStringLiteral("Keys of a memory on the calculator."))
          .Declared(Suffix)
          .Doc(QStringLiteral("A text behind the number: a unit, a currency."))
          .Declared(ThousandSeparator)
          .Doc(QStringLiteral("Separates thousands as the country does."))
          .Declared(Value)
          .Doc(QStringLiteral("The number."))
          .Publish("Alignment", TAlignment::taRightJustify));
  return cls;
}

TClassBuilder TVRXCustomCalculatorBox::AsCalculatorBox(TClassBuilder b) {
  return AsBox(
      std::move(b).PublishAll("Decimals", "Prefix", "ShowMemory", "Suffix", "ThousandSeparator", "Value"));
}

TVRXCustomCalculatorBox::TVRXCustomCalculatorBox(TComponent* owner) : TVRXCustomDropDownBox(owner) {
  Set(Alignment, TAlignment::taRightJustify);
}

QString TVRXCustomCalculatorBox::ShownText() const {
  const double value = Get(Value);
  if (!std::isfinite(value)) return TVRXCalculatorEngine::Format(value);
  QLocale locale;
  locale.setNumberOptions(Get(ThousandSeparator) ? QLocale::DefaultNumberOptions
                                                 : QLocale::OmitGroupSeparator);
  constexpr int most = 15;
  const int decimals = Get(Decimals);
  const QString number = decimals < 0 ? locale.toString(value, 'g', TVRXCalculatorEngine::MaxDigits)
                                      : locale.toString(value, 'f', std::min(decimals, most));
  return Get(Prefix) + number + Get(Suffix);
}

std::unique_ptr<TControl> TVRXCustomCalculatorBox::MakeDropDown() const {
  auto calculator = Dropped<TVRXCalculator>(std::to_array({"ShowMemory", "Value"}));
  calculator->Set(TVRXCalculator::ShowDisplay, false);  // the field is the display
  calculator->SetBounds(0, 0, 200, 148);
  return calculator;
}

const TClass& TVRXCalculatorComboBox::StaticClass() {
  static const TClass cls(
      AsCalculatorBox(DescribeClass<TVRXCalculatorComboBox>("TVRXCalculatorComboBox",
                                                            TVRXCustomCalculatorBox::StaticClass()))
          .ClassDoc(
              QStringLiteral("A field for a number with a calculator that drops down."),
              "pen line 1.5 brush fill box 2.5 3.5 19 7 2 pen none brush line box 4 13 3.5 3 0 box 9 13 "
              "3.5 3 0 box 4 17.5 3.5 3 0 box 9 17.5 3.5 3 0 brush accent box 14 13 3.5 7.5 0 brush none "
              "pen accent 2 path 14.5 6 17 8.5 19.5 6"));
  return cls;
}

const TClass& TVRXCalculatorEdit::StaticClass() {
  static const TClass cls(
      AsCalculatorBox(
          DescribeClass<TVRXCalculatorEdit>("TVRXCalculatorEdit", TVRXCustomCalculatorBox::StaticClass()))
          .ClassDoc(
              QStringLiteral("An edit for a number, with a calculator behind its button."),
              "pen line 1.5 brush fill box 2.5 6.5 19 11 2 path 5.5 9.5 5.5 14.5 pen line 1.2 brush none "
              "pen accent 2 path 16 9 16 15 path 13 12 19 12"));
  return cls;
}

void TVRXCalculatorEdit::PaintKnob(TCanvas& canvas, const QRect& rect) const {
  PaintKnobWith(canvas, rect, PartStates(), [](QPainter& p, const QRectF& r) {
    const QColor ink = p.pen().color();
    p.drawRect(r.adjusted(1.5, 0.5, -1.5, -0.5));
    p.fillRect(r.adjusted(3, 2, -3, -7), ink);
    for (const int y : {5, 8})
      for (const int x : {3, 5, 7}) p.fillRect(QRectF(r.left() + x, r.top() + y, 1, 1), ink);
  });
}

// --- Days

const TClass& TVRXCustomCalendarBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCustomCalendarBox>("TVRXCustomCalendarBox", TVRXCustomDropDownBox::StaticClass())
          .Declared(AllowEmpty)
          .Doc(QStringLiteral("A date of 0 is none, not today."))
          .Declared(CalColors)
          .Doc(QStringLiteral("Colors of the calendar."))
          .Declared(DateFormat)
          .Type(TVRXDateTimeFormat())
          .Doc(QStringLiteral("How the day is written, as dd.mm.yyyy; empty is as the country has it."))
          .Declared(FirstDayOfWeek)
          .Doc(QStringLiteral("The day that the calendar's weeks begin with."))
          .DeclaredAll(ShowToday, ShowTodayCircle)
          .Declared(WeekNumbers)
          .Doc(QStringLiteral("Numbers of the weeks in the calendar.")));
  return cls;
}

TClassBuilder TVRXCustomCalendarBox::AsCalendarBox(TClassBuilder b) {
  return AsBox(PublishDates(std::move(b).PublishAll("AllowEmpty", "CalColors", "DateFormat", "FirstDayOfWeek",
                                                    "ShowToday", "ShowTodayCircle", "WeekNumbers")));
}

QString TVRXCustomCalendarBox::Formatted(const QDateTime& moment, const QString& usual) const {
  const QString own = Get(DateFormat);
  if (own.isEmpty()) return QLocale().toString(moment, usual);
  try {
    return VRXFormatDateTime(own, moment);
  } catch (const EConvertError&) {
    return own;  // what is no format is shown as it stands
  }
}

QString TVRXCustomCalendarBox::ShownText() const {
  return IsEmpty() ? QString() : Formatted(Day().startOfDay(), QLocale().dateFormat(QLocale::ShortFormat));
}

std::unique_ptr<TControl> TVRXCustomCalendarBox::MakeDropDown() const {
  auto calendar =
      Dropped<TVRXCalendar>(std::to_array({"CalColors", "Date", "FirstDayOfWeek", "MaxDate", "MinDate",
                                           "ShowToday", "ShowTodayCircle", "WeekNumbers"}));
  calendar->SetBounds(0, 0, Get(WeekNumbers) ? 232 : 208, Get(ShowToday) ? 164 : 146);
  return calendar;
}

const TClass& TVRXCalendarComboBox::StaticClass() {
  static const TClass cls(
      AsCalendarBox(
          DescribeClass<TVRXCalendarComboBox>("TVRXCalendarComboBox", TVRXCustomCalendarBox::StaticClass()))
          .ClassDoc(
              QStringLiteral("A field for a day with a calendar that drops down."),
              "pen line 1.5 brush fill box 2.5 3.5 19 7 2 box 2.5 10.5 15 10 1 path 2.5 13.5 17.5 13.5 "
              "pen none brush line box 5 15.2 2 2 0 box 9 15.2 2 2 0 brush accent box 13 15.2 2 2 0 brush "
              "line box 5 18 2 1.5 0 brush none pen accent 2 path 14.5 6 17 8.5 19.5 6"));
  return cls;
}

namespace {
void DrawCalendar(QPainter& p, const QRectF& r) {
  const QColor ink = p.pen().color();
  p.drawRect(r.adjusted(0.5, 1.5, -0.5, -0.5));
  p.fillRect(r.adjusted(1, 2, -1, -7), ink);
  for (const int y : {5, 8})
    for (const int x : {2, 5, 8}) p.fillRect(QRectF(r.left() + x, r.top() + y, 1, 1), ink);
}
}  // namespace

const TClass& TVRXCalendarEdit::StaticClass() {
  static const TClass cls(
      AsCalendarBox(DescribeClass<TVRXCalendarEdit>("TVRXCalendarEdit", TVRXCustomCalendarBox::StaticClass()))
          .ClassDoc(
              QStringLiteral("An edit for a day, with a calendar behind its button."),
              "pen line 1.5 brush fill box 2.5 6.5 19 11 2 path 5.5 9.5 5.5 14.5 pen line 1.2 brush none "
              "box 12 9 7 6.5 0 pen none brush accent box 12 8.5 7 2.4 0 brush line box 13.5 12.5 1.2 1.2 "
              "0 box 16.3 12.5 1.2 1.2 0"));
  return cls;
}

void TVRXCalendarEdit::PaintKnob(TCanvas& canvas, const QRect& rect) const {
  PaintKnobWith(canvas, rect, PartStates(), DrawCalendar);
}

// --- Days and times

const TClass& TVRXDateTimePicker::StaticClass() {
  static const TClass cls(
      AsCalendarBox(
          DescribeClass<TVRXDateTimePicker>("TVRXDateTimePicker", TVRXCustomCalendarBox::StaticClass())
              .Published(Checked)
              .Doc(QStringLiteral("Whether the field's mark is set; without it there is no date."))
              .Published(DateMode)
              .Doc(QStringLiteral("A calendar that drops down, buttons that count, or neither."))
              .Published(Kind)
              .Doc(QStringLiteral("Whether the field is for a day, a time of day, or both."))
              .Published(ShowCheckbox)
              .Doc(QStringLiteral("A mark in front that tells whether there is a date."))
              .Published(Time)
              .Type(TimeType())
              .Doc(QStringLiteral("The time of day.")))
          .ClassDoc(
              QStringLiteral("A field for a day, a time of day, or both."),
              "pen line 1.5 brush fill box 2.5 6.5 19 11 2 oval 4.5 8.5 7 7 pen accent 1.6 path 8 10 8 12 "
              "9.5 13 pen accent 2 path 14.5 11 17 13.5 19.5 11"));
  return cls;
}

TVRXDateTimePicker::TVRXDateTimePicker(TComponent* owner) : TVRXCustomCalendarBox(owner) {
  SetBounds(0, 0, 184, 23);
}

bool TVRXDateTimePicker::CountsUp() const {
  return Get(Kind) == TDateTimeKind::dtkTime || Get(DateMode) == TDTDateMode::dmUpDown;
}
bool TVRXDateTimePicker::HasKnob() const { return CountsUp() || Get(DateMode) != TDTDateMode::dmNone; }

std::unique_ptr<TControl> TVRXDateTimePicker::MakeDropDown() const {
  return HasKnob() && !CountsUp() ? TVRXCustomCalendarBox::MakeDropDown() : nullptr;
}

void TVRXDateTimePicker::PaintKnob(TCanvas& canvas, const QRect& rect) const {
  CountsUp() ? PaintSpinButtons(canvas, rect, PartStates()) : PaintDropButton(canvas, rect, PartStates());
}

QString TVRXDateTimePicker::ShownText() const {
  if (IsEmpty()) return {};
  constexpr double dayInMilliseconds = 24 * 60 * 60 * 1000.0;
  const double days = Get(Time).Days;
  const double fraction = std::isfinite(days) ? std::abs(days - std::trunc(days)) : 0;
  const QTime time =
      QTime(0, 0).addMSecs(static_cast<int>(std::lround(fraction * dayInMilliseconds / 1000)) * 1000);
  QStringList usual;
  if (Get(Kind) != TDateTimeKind::dtkTime) usual << QLocale().dateFormat(QLocale::ShortFormat);
  if (Get(Kind) != TDateTimeKind::dtkDate) usual << QStringLiteral("HH:mm:ss");
  return Formatted(QDateTime(Day(), time), usual.join(u' '));
}

QRect TVRXDateTimePicker::PaintMark(TCanvas& canvas, const QRect& line) const {
  if (!Get(ShowCheckbox)) return line;
  const int side = CheckMarkSize().width();
  PaintCheckMark(canvas, QRect(line.left(), line.top(), side, line.height()), PartStates(),
                 Get(Checked) ? TCheckBoxState::cbChecked : TCheckBoxState::cbUnchecked);
  return line.adjusted(side + 4, 0, 0, 0);
}

void TVRXDateTimePicker::PaintText(TCanvas& canvas, const QRect& room) const {
  const bool off = Get(ShowCheckbox) && !Get(Checked);
  if (!off || IsEmpty()) return TVRXCustomCalendarBox::PaintText(canvas, room);
  PaintPlainText(canvas, room, AlignmentFlag(Get(Alignment)), ShownText(), VRXFaceOf(*this).Font(*Font()),
                 false);
}

// --- Positions

const TClass& TVRXTrackBarComboBox::StaticClass() {
  using C = TVRXTrackBarComboBox;
  static const TClass cls(
      AsBox(
          DescribeClass<C>("TVRXTrackBarComboBox", TVRXCustomDropDownBox::StaticClass())
              .Published(Frequency)
              .Doc(QStringLiteral("Steps from one tick to the next."))
              .Published("Max", &C::MaxOf, &C::SetMax, 10)
              .Published("Min", &C::MinOf, &C::SetMin, 0)
              .Published("Position", &C::PositionOf, &C::SetPosition, 0)
              .Doc(QStringLiteral("The position between Min and Max."))
              .Published(Prefix)
              .Doc(QStringLiteral("A text in front of the position."))
              .Published(ShowBar)
              .Doc(QStringLiteral("A bar below the text that shows where between its ends the position is."))
              .Published(Suffix)
              .Doc(QStringLiteral("A text behind the position: a unit."))
              .PublishedAll(TickMarks, TickStyle))
          .ClassDoc(
              QStringLiteral("A field for a position with a handle on a track that drops down."),
              "pen line 1.5 brush fill box 2.5 3.5 19 7 2 path 3.5 16 20.5 16 path 4 20 4 21.5 path 12 20 "
              "12 21.5 path 20 20 20 21.5 brush accent box 7.5 12.8 4 6 1 brush none pen accent 2 path "
              "14.5 6 17 8.5 19.5 6"));
  return cls;
}

QString TVRXTrackBarComboBox::ShownText() const {
  return Get(Prefix) + QLocale().toString(Get(Position)) + Get(Suffix);
}

void TVRXTrackBarComboBox::PaintText(TCanvas& canvas, const QRect& room) const {
  TVRXCustomDropDownBox::PaintText(canvas, room);
  const std::int64_t min = Get(Min), length = Get(Max) - min;
  if (!Get(ShowBar) || length <= 0) return;
  const std::int64_t way = std::clamp<std::int64_t>(Get(Position) - min, 0, length);
  const QRect bar(room.left(), room.bottom() - 2, room.width() - 2, 2);
  canvas.FillRect(bar, clBtnFace);
  canvas.FillRect(QRect(bar.topLeft(), QSize(static_cast<int>(bar.width() * way / length), bar.height())),
                  Enabled() ? clHighlight : clGrayText);
}

std::unique_ptr<TControl> TVRXTrackBarComboBox::MakeDropDown() const {
  auto track =
      Dropped<TTrackBar>(std::to_array({"Frequency", "Max", "Min", "Position", "TickMarks", "TickStyle"}));
  track->SetHeight(Get(TickMarks) == TTickMark::tmBoth ? 44 : 36);
  return track;
}
