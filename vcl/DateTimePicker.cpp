#include "vcl/DateTimePicker.h"

#include <QDateTime>
#include <QLocale>
#include <cmath>

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TDateTimePicker::StaticClass() {
  static const TTypeInfo century = OrdinalType("Word", 0, UINT16_MAX);
  static const TClass cls(
      DescribeClass<TDateTimePicker>("TDateTimePicker", TWinControl::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Input, Styling, "AutoSize", WheelEvents, MouseEvents, KeyEvents, FocusEvents,
                      DragEvents)
          .Published(Date)
          .Type(DateType())
          .Published(Time)
          .Type(TimeType())
          .PublishedAll(Checked, DateFormat, DateMode, Format, Kind, ShowCheckbox)
          .Passive("ArrowShape", TArrowShape::asTheme)
          .Passive("AutoButtonSize", false)
          .Passive("AutoAdvance", true)
          .Passive("CalAlignment", TDTCalAlignment::dtaLeft)
          .Passive<TMonthCalColors*>("CalColors")
          .Passive("Cascade", false)
          .Passive("CenturyFrom", std::uint16_t{1941})
          .Type(century)
          .Passive("DateDisplayOrder", TDateDisplayOrder::ddoTryDefault)
          .Passive<QString>("DateSeparator")
          .Passive("HideDateTimeParts", TDateTimeParts{})
          .Passive("LeadingZeros", true)
          .Passive<TDateTime>("MaxDate")
          .Type(DateType())
          .Passive<TDateTime>("MinDate")
          .Type(DateType())
          .Passive<QString>("MonthNames")
          .Passive("NullInputAllowed", true)
          .Passive("Options", TDateTimePickerOptions{})
          .Passive("ParseInput", false)
          .Passive("ReadOnly", false)
          .Passive("ShowMonthNames", false)
          .Passive<QString>("TextForNullDate")
          .Passive("TimeDisplay", TTimeDisplay::tdHMS)
          .Passive("TimeFormat", TTimeFormat::tf24)
          .Passive<QString>("TimeSeparator")
          .Passive("TrailingSeparator", false)
          .Passive("UseDefaultSeparators", true)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Event("OnChange")
          .Event("OnCloseUp")
          .Event("OnDropDown")
          .Event("OnUserInput", "TDTParseInputEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A field for a day or a time of day."),
              "pen line 1.5 brush fill box 2.5 7.5 19 9 2 pen none brush accent box 4.5 9.5 8 2 0 brush line "
              "box 4.5 12.7 2 1.8 0 box 7.5 12.7 2 1.8 0 box 10.5 12.7 2 1.8 0 brush none pen accent 2 "
              "path 14.5 11 17 13.5 19.5 11"));
  return cls;
}

TDateTimePicker::TDateTimePicker(TComponent* owner) : TWinControl(owner) {
  tabStop_ = true;
  StartWith(clWindow);
  SetBounds(0, 0, 186, 21);
}

QString TDateTimePicker::ShownText() const {
  const QLocale locale;
  const double time = Get(Time).Days;
  constexpr double dayInSeconds = 86400;
  const QTime clock =
      std::isfinite(time)
          ? QTime(0, 0).addSecs(static_cast<int>(std::lround((time - std::floor(time)) * dayInSeconds)))
          : QTime(0, 0);
  const QDateTime at(DayOf(Get(Date)), clock);
  QString format = Get(Format);
  const TDateTimeKind kind = Get(Kind);
  if (format.isEmpty()) {
    const auto length = Get(DateFormat) == TDTDateFormat::dfLong ? QLocale::LongFormat : QLocale::ShortFormat;
    if (kind != TDateTimeKind::dtkTime) format = locale.dateFormat(length);
    if (kind == TDateTimeKind::dtkDateTime) format += u' ';
    if (kind != TDateTimeKind::dtkDate) format += QStringLiteral("HH:mm:ss");
  }
  format.replace(u't', u'A');  // the platform's word for before and after noon
  return locale.toString(at, format);
}

void TDateTimePicker::Paint(TCanvas& canvas) {
  const QRect frame = ClientRect();
  QRect inside = PaintEditFrame(canvas, frame, PartStates(), Color());
  constexpr int usual = 17;
  const int width = std::min(usual, frame.width() / 2);
  const QRect knob(frame.right() - width, frame.top() + 1, width, frame.height() - 2);
  if (Get(Kind) == TDateTimeKind::dtkTime || Get(DateMode) == TDTDateMode::dmUpDown)
    PaintSpinButtons(canvas, knob, PartStates());
  else if (Get(DateMode) == TDTDateMode::dmComboBox)
    PaintDropButton(canvas, knob, PartStates());
  inside.setRight(knob.left() - 1);
  const bool on = !Get(ShowCheckbox) || Get(Checked);
  if (Get(ShowCheckbox)) {
    const int side = CheckMarkSize().width();
    PaintCheckMark(canvas, QRect(inside.left(), inside.top(), side, inside.height()), PartStates(),
                   Get(Checked) ? TCheckBoxState::cbChecked : TCheckBoxState::cbUnchecked);
    inside.setLeft(inside.left() + side + 4);
  }
  if (inside.width() > 0)
    canvas.TextRect(inside, Qt::AlignLeft | Qt::AlignVCenter, ShownText(), *Font(), Enabled() && on);
}
