#include "vcl/Calendar.h"

#include <QSet>
#include <cmath>

#include "rtl/Class.h"
#include "vcl/PropertyGroups.h"

const TTypeInfo& DateType() {
  static const TTypeInfo info = FloatTypeInfo("TDate", TFloatType::ftDateTime);
  return info;
}
const TTypeInfo& TimeType() {
  static const TTypeInfo info = FloatTypeInfo("TTime", TFloatType::ftDateTime);
  return info;
}

namespace {
QDate Today() { return QDate::currentDate(); }
}  // namespace

QString PlainNumber(const QLocale& locale, int value) {
  QLocale plain = locale;
  plain.setNumberOptions(QLocale::OmitGroupSeparator);
  return plain.toString(value);
}

QString DayHeading(const QLocale& locale, int day) {
  const auto cut = [&](int d) { return locale.dayName(d, QLocale::ShortFormat).left(2); };
  const auto narrow = [&](int d) { return locale.dayName(d, QLocale::NarrowFormat); };
  const auto whole = [&](int d) { return locale.dayName(d, QLocale::ShortFormat); };
  const auto differ = [](const auto& name) {
    QSet<QString> names;
    for (int d = 1; d <= 7; ++d) names.insert(name(d));
    return names.size() == 7;
  };
  return differ(cut) ? cut(day) : differ(narrow) ? narrow(day) : whole(day);
}

QString MonthHeading(const QLocale& locale, QDate month) {
  const QString whole = locale.dateFormat(QLocale::LongFormat);
  const qsizetype year = whole.indexOf(u'y'), day = whole.indexOf(u'd', std::max<qsizetype>(year, 0));
  const bool yearFirst = year >= 0 && year < whole.indexOf(u'M') && day > whole.lastIndexOf(u'M');
  return locale.toString(month,
                         yearFirst ? whole.sliced(year, day - year).trimmed() : QStringLiteral("MMMM yyyy"));
}

QDate DayOf(TDateTime value) {
  constexpr double most = 3'000'000;  // beyond year 9999
  if (value.Days == 0 || !(std::abs(value.Days) < most)) return Today();
  const QDate day = QDate(1899, 12, 30).addDays(static_cast<qint64>(std::trunc(value.Days)));
  return day.isValid() && day.year() > 0 ? day : Today();
}

const TClass& TMonthCalColors::StaticClass() {
  using C = TMonthCalColors;
  static const TClass cls(
      DescribeClass<C>("TMonthCalColors", TPersistent::StaticClass())
          .Published("BackColor", &C::BackColor, &C::SetBackColor, clWindow)
          .Published("MonthBackColor", &C::MonthBackColor, &C::SetMonthBackColor, clWindow)
          .Published("TextColor", &C::TextColor, &C::SetTextColor, clWindowText)
          .Published("TitleBackColor", &C::TitleBackColor, &C::SetTitleBackColor, clActiveCaption)
          .Published("TitleTextColor", &C::TitleTextColor, &C::SetTitleTextColor, clWhite)
          .Published("TrailingTextColor", &C::TrailingTextColor, &C::SetTrailingTextColor, SysColor(19)));
  return cls;
}

const TClass& TMonthCalendar::StaticClass() {
  static const TTypeInfo range = OrdinalType("Integer", INT32_MIN, INT32_MAX);
  static const TClass cls(
      DescribeClass<TMonthCalendar>("TMonthCalendar", TWinControl::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Windowed, Help, Input,
                      Styling, "AutoSize", "ParentColor", WheelEvents, MouseEvents, KeyEvents, FocusEvents,
                      DragEvents)
          .PublishedAll(CalColors, FirstDayOfWeek, ShowToday, ShowTodayCircle, WeekNumbers)
          .Published(Date)
          .Type(DateType())
          .Passive("BorderWidth", 0)
          .Passive<TDateTime>("EndDate")
          .Type(DateType())
          .Passive<TDateTime>("MaxDate")
          .Type(DateType())
          .Passive("MaxSelectRange", 31)
          .Type(range)
          .Passive<TDateTime>("MinDate")
          .Type(DateType())
          .Passive("MultiSelect", false)
          .Publish("TabStop", true)
          .Event("OnGetMonthBoldInfo", "TOnGetMonthBoldInfoEvent")
          .Event("OnGetMonthInfo", "TOnGetMonthInfoEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("The days of a month to choose from."),
              "pen line 1.5 brush fill box 3.5 4.5 17 16 2 path 3.5 9 20.5 9 pen none brush accent box 6 11 "
              "3 3 0 box 10.5 11 3 3 0 box 15 11 3 3 0 brush line box 6 15.5 3 3 0 box 10.5 15.5 3 3 0"));
  return cls;
}

TMonthCalendar::TMonthCalendar(TComponent* owner) : TWinControl(owner) {
  tabStop_ = true;
  SetBounds(0, 0, 191, 154);
}

QSize TMonthCalendar::AutoSizeHint() const {
  const QSize cell = TextExtent(QStringLiteral("00"), *Font()) + QSize(10, 3);
  return {cell.width() * (Get(WeekNumbers) ? 8 : 7) + 8, cell.height() * (Get(ShowToday) ? 9 : 8) + 8};
}

void TMonthCalendar::Paint(TCanvas& canvas) {
  const TMonthCalColors& colors = *Get(CalColors);
  canvas.FillRect(ClientRect(), colors.BackColor());
  const QRect all = canvas.Frame3D(ClientRect(), clBtnShadow, clBtnShadow, 1);
  const int rows = Get(ShowToday) ? 9 : 8, lead = Get(WeekNumbers) ? 1 : 0, columns = 7 + lead;
  if (all.width() < columns * 4 || all.height() < rows * 4) return;
  const auto cell = [&](int row, int column) {
    const int left = all.left() + column * all.width() / columns, top = all.top() + row * all.height() / rows;
    return QRect(left, top, all.left() + (column + 1) * all.width() / columns - left,
                 all.top() + (row + 1) * all.height() / rows - top);
  };
  TFont font;
  font.Assign(Font());
  const auto write = [&](const QRect& rect, const QString& text, TColor color) {
    font.SetColor(color);
    canvas.TextRect(rect, Qt::AlignCenter, text, font, Enabled());
  };
  const QDate day = DayOf(Get(Date)), first(day.year(), day.month(), 1), today = Today();
  const QLocale words;
  const QRect title = cell(0, 0).united(cell(0, columns - 1));
  canvas.FillRect(title, colors.TitleBackColor());
  write(title, MonthHeading(words, first), colors.TitleTextColor());
  canvas.FillRect(cell(1, 0).united(cell(7, columns - 1)), colors.MonthBackColor());
  const int begins = Get(FirstDayOfWeek) == TCalDayOfWeek::dowLocaleDefault
                         ? words.firstDayOfWeek()
                         : static_cast<int>(Get(FirstDayOfWeek)) + 1;
  const QDate from = first.addDays(-((first.dayOfWeek() - begins + 7) % 7));
  for (int i = 0; i < 7; ++i)
    write(cell(1, lead + i), DayHeading(words, (begins - 1 + i) % 7 + 1), colors.TitleBackColor());
  const QRect line = cell(1, 0).united(cell(1, columns - 1));
  canvas.FillRect(QRect(line.left() + 3, line.bottom(), line.width() - 6, 1), colors.TextColor());
  for (int i = 0; i < 42; ++i) {
    const QDate date = from.addDays(i);
    const QRect rect = cell(2 + i / 7, lead + i % 7);
    if (lead > 0 && i % 7 == 0)
      write(cell(2 + i / 7, 0), PlainNumber(words, date.weekNumber()), colors.TitleBackColor());
    const bool chosen = date == day;
    if (chosen) canvas.FillRect(rect, Enabled() ? clHighlight : clBtnShadow);
    write(rect, PlainNumber(words, date.day()),
          chosen                          ? clHighlightText
          : date.month() == first.month() ? colors.TextColor()
                                          : colors.TrailingTextColor());
    if (date == today && Get(ShowTodayCircle)) canvas.Frame3D(rect, clHighlight, clHighlight, 1);
  }
  if (Get(ShowToday))
    write(cell(8, 0).united(cell(8, columns - 1)),
          QStringLiteral("Today: ") + words.toString(today, QLocale::ShortFormat), colors.TextColor());
}
