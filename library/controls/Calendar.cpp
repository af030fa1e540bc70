#include "library/controls/Calendar.h"

#include <QLocale>

#include "vcl/ItemPainting.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXCalendar::StaticClass() {
  static const TClass cls(
      PublishDates(DescribeClass<TVRXCalendar>("TVRXCalendar", TWinControl::StaticClass())
                       .PublishAll(Placing, "AutoSize")
                       .Published(BorderStyle)
                       .Published(CalColors)
                       .Doc(QStringLiteral("Colors of the page and its title.")))
          .PublishAll("Enabled")
          .Published(FirstDayOfWeek)
          .Doc(QStringLiteral("The day that weeks begin with."))
          .PublishAll("Font")
          .Published(GridLines)
          .Doc(QStringLiteral("Lines between the days."))
          .PublishAll(Hints, "ParentFont", "PopupMenu")
          .Published(SelectedColor)
          .Doc(QStringLiteral("Color behind the chosen day."))
          .Published(SelectedTextColor)
          .Doc(QStringLiteral("Color of the chosen day's number."))
          .Published(ShowButtons)
          .Doc(QStringLiteral("Buttons to the months before and after."))
          .Published(ShowToday)
          .Doc(QStringLiteral("Tells below the days which day is today."))
          .Published(ShowTodayCircle)
          .Doc(QStringLiteral("A circle around today."))
          .Published(ShowTrailingDays)
          .Doc(QStringLiteral("Days of the months before and after in the first and last weeks."))
          .PublishAll("TabOrder")
          .Publish("TabStop", true)
          .Published(TodayColor)
          .Doc(QStringLiteral("Color of the circle around today."))
          .PublishAll("Visible")
          .Published(WeekNumbers)
          .Doc(QStringLiteral("Numbers of the weeks beside them."))
          .Published(WeekendColor)
          .Doc(QStringLiteral("Color of Saturdays and Sundays; clDefault is that of other days."))
          .PublishAll(MouseEvents, KeyEvents, FocusEvents)
          .Event("OnChange")
          .ClassDoc(
              QStringLiteral("The page of a month to choose a day from."),
              "pen line 1.5 brush fill box 3.5 4.5 17 16 2 path 8 2.5 8 6.5 path 16 2.5 16 6.5 path 3.5 9.5 "
              "20.5 9.5 pen none brush line box 6.5 12 2.5 2.5 0 box 6.5 16 2.5 2.5 0 box 10.8 12 2.5 2.5 0 "
              "box 15 16 2.5 2.5 0 brush none pen accent 1.8 oval 14 11 4.6 4.6"));
  return cls;
}

TVRXCalendar::TVRXCalendar(TComponent* owner) : WithDate(owner) {
  tabStop_ = true;
  SetBounds(0, 0, 224, 176);
}

// The rows: the title, the names of the days, six weeks, today.
struct TVRXCalendar::Page {
  QRect all;
  int rows = 0, lead = 0, columns = 0;
  QDate first, from;  // of the month, of the page
  bool IsShown() const { return all.width() >= columns * 4 && all.height() >= rows * 4; }
  QRect Cell(int row, int column) const {
    const int left = all.left() + column * all.width() / columns, top = all.top() + row * all.height() / rows;
    return {QPoint(left, top), QPoint(all.left() + (column + 1) * all.width() / columns - 1,
                                      all.top() + (row + 1) * all.height() / rows - 1)};
  }
  QRect Row(int row) const { return Cell(row, 0).united(Cell(row, columns - 1)); }
  QRect DayCell(int i) const { return Cell(2 + i / 7, lead + i % 7); }
};

namespace {
constexpr int Days = 42, Usual = 8, DayInMilliseconds = 24 * 60 * 60 * 1000;
bool IsWeekend(QDate day) { return day.dayOfWeek() >= Qt::Saturday; }
}  // namespace

TVRXCalendar::Page TVRXCalendar::PageOf() const {
  Page page;
  page.all = Get(BorderStyle) == TBorderStyle::bsSingle ? ClientRect().adjusted(2, 2, -2, -2) : ClientRect();
  page.rows = Get(ShowToday) ? Usual + 1 : Usual;
  page.lead = Get(WeekNumbers) ? 1 : 0;
  page.columns = 7 + page.lead;
  const QDate day = Day();
  page.first = QDate(day.year(), day.month(), 1);
  const int begins = Get(FirstDayOfWeek) == TCalDayOfWeek::dowLocaleDefault
                         ? QLocale().firstDayOfWeek()
                         : static_cast<int>(Get(FirstDayOfWeek)) + 1;
  page.from = page.first.addDays(-((page.first.dayOfWeek() - begins + 7) % 7));
  return page;
}

QRect TVRXCalendar::PartRect(TVRXCalendarPart part) const {
  const Page page = PageOf();
  const QRect title = page.Row(0);
  const int side = Get(ShowButtons) ? std::min(title.height(), title.width() / 4) : 0;
  switch (part) {
    case TVRXCalendarPart::Title:
      return title.adjusted(side, 0, -side, 0);
    case TVRXCalendarPart::PreviousMonth:
      return side ? QRect(title.left(), title.top(), side, title.height()) : QRect();
    case TVRXCalendarPart::NextMonth:
      return side ? QRect(title.right() - side + 1, title.top(), side, title.height()) : QRect();
    case TVRXCalendarPart::Today:
      return Get(ShowToday) ? page.Row(Usual) : QRect();
    default:
      return {};
  }
}

QRect TVRXCalendar::DayRect(QDate day) const {
  const Page page = PageOf();
  const qint64 i = page.from.daysTo(day);
  const bool shown = i >= 0 && i < Days && (Get(ShowTrailingDays) || day.month() == page.first.month());
  return shown ? page.DayCell(static_cast<int>(i)) : QRect();
}

bool TVRXCalendar::HasDays(QDate firstOfWeek) const {
  return !DayRect(firstOfWeek).isEmpty() || !DayRect(firstOfWeek.addDays(6)).isEmpty();
}

TVRXCalendar::Hit TVRXCalendar::HitAt(QPoint point) const {
  using enum TVRXCalendarPart;
  const Page page = PageOf();
  if (!page.IsShown()) return {};
  for (const auto part : {Title, PreviousMonth, NextMonth, Today})
    if (PartRect(part).contains(point)) return {part, {}};
  for (int i = 0; i < Days; ++i) {
    const QDate day = page.from.addDays(i);
    if (page.lead > 0 && i % 7 == 0 && HasDays(day) && page.Cell(2 + i / 7, 0).contains(point))
      return {WeekNumber, day};
    if (DayRect(day).contains(point) && IsInRange(day)) return {Day, day};
  }
  return {};
}

QSize TVRXCalendar::AutoSizeHint() const {
  const QSize cell = TextExtent(QStringLiteral("00"), *Font()) + QSize(14, 6);
  const int frame = Get(BorderStyle) == TBorderStyle::bsSingle ? 4 : 0;
  return {cell.width() * (Get(WeekNumbers) ? 8 : 7) + frame,
          cell.height() * (Get(ShowToday) ? Usual + 1 : Usual) + frame};
}

void TVRXCalendar::Write(TCanvas& canvas, const QRect& rect, const QString& text, TColor color) const {
  TFont font;
  font.Assign(Font());
  font.SetColor(color);
  PaintPlainText(canvas, rect, Qt::AlignHCenter, text, font, Enabled());
}

void TVRXCalendar::Paint(TCanvas& canvas) {
  // Tomorrow another day is today.
  timer_.PaintAgainIn(DayInMilliseconds - ClockDateTime().time().msecsSinceStartOfDay());
  if (Get(BorderStyle) == TBorderStyle::bsSingle) PaintListFrame(canvas, ClientRect(), PartStates());
  const Page page = PageOf();
  canvas.FillRect(page.all, Get(CalColors)->BackColor());
  if (!page.IsShown()) return;
  canvas.FillRect(page.Row(1).united(page.Row(7)), Get(CalColors)->MonthBackColor());
  PaintTitle(canvas, page);
  PaintDays(canvas, page);
  if (!Get(ShowToday)) return;
  const QString today = QLocale().toString(ClockDateTime().date(), QLocale::ShortFormat);
  Write(canvas, page.Row(Usual), QStringLiteral("Today: ") + today, Get(CalColors)->TextColor());
}

void TVRXCalendar::PaintTitle(TCanvas& canvas, const Page& page) const {
  const TMonthCalColors& colors = *Get(CalColors);
  canvas.FillRect(page.Row(0), Enabled() ? colors.TitleBackColor() : clBtnFace);
  Write(canvas, PartRect(TVRXCalendarPart::Title), MonthHeading(QLocale(), page.first),
        colors.TitleTextColor());
  for (const auto part : {TVRXCalendarPart::PreviousMonth, TVRXCalendarPart::NextMonth}) {
    const QRect rect = PartRect(part);
    if (rect.isEmpty()) continue;
    const QPointF middle = QRectF(rect).center();
    const double size = std::min(rect.width(), rect.height()) / 4.0;
    const double tip = part == TVRXCalendarPart::NextMonth ? size / 2 : -size / 2;
    QPainter& p = canvas.Painter();
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(ToQColor(Enabled() ? colors.TitleTextColor() : clGrayText));
    p.drawPolygon(
        QPolygonF({middle + QPointF(tip, 0), middle + QPointF(-tip, -size), middle + QPointF(-tip, size)}));
    p.restore();
  }
}

void TVRXCalendar::PaintDays(TCanvas& canvas, const Page& page) const {
  const TMonthCalColors& colors = *Get(CalColors);
  const QLocale words;
  for (int i = 0; i < 7; ++i)
    Write(canvas, page.Cell(1, page.lead + i), DayHeading(words, page.from.addDays(i).dayOfWeek()),
          colors.TitleBackColor());
  const QRect names = page.Row(1);
  canvas.FillRect(QRect(names.left() + 3, names.bottom(), names.width() - 6, 1), colors.TextColor());
  if (Get(GridLines)) {
    for (int week = 1; week < 6; ++week)
      canvas.FillRect(QRect(names.left(), page.Cell(2 + week, 0).top(), names.width(), 1),
                      colors.TrailingTextColor());
    for (int column = 1; column < page.columns; ++column)
      canvas.FillRect(
          QRect(page.Cell(2, column).topLeft(), QPoint(page.Cell(2, column).left(), page.Row(7).bottom())),
          colors.TrailingTextColor());
  }
  for (int i = 0; i < Days; ++i) {
    const QDate day = page.from.addDays(i);
    if (page.lead > 0 && i % 7 == 0 && HasDays(day))
      Write(canvas, page.Cell(2 + i / 7, 0), PlainNumber(QLocale(), WeekNumberOf(day)),
            colors.TitleBackColor());
    if (const QRect rect = DayRect(day); !rect.isEmpty()) PaintDay(canvas, rect, day, page);
  }
}

void TVRXCalendar::PaintDay(TCanvas& canvas, const QRect& rect, QDate day, const Page& page) const {
  const TMonthCalColors& colors = *Get(CalColors);
  TColor ink = colors.TextColor();
  if (IsWeekend(day) && Get(WeekendColor) != clDefault) ink = Get(WeekendColor);
  if (day.month() != page.first.month() || !IsInRange(day)) ink = colors.TrailingTextColor();
  if (const QRect mark = rect.adjusted(1, 1, -1, -1); day == Day() && Enabled()) {
    canvas.FillRect(mark, Get(SelectedColor));
    ink = Get(SelectedTextColor);
  } else if (day == Day()) {
    canvas.Frame3D(mark, clGrayText, clGrayText, 1);
  }
  Write(canvas, rect, PlainNumber(QLocale(), day.day()), ink);
  if (day != ClockDateTime().date() || !Get(ShowTodayCircle)) return;
  QPainter& p = canvas.Painter();
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(ToQColor(Enabled() ? Get(TodayColor) : clGrayText), 1.5));
  p.setBrush(Qt::NoBrush);
  QRectF circle(0, 0, std::min<double>(rect.width(), rect.height() * 1.5) - 2, rect.height() - 2);
  circle.moveCenter(QRectF(rect).center());
  p.drawEllipse(circle);
  p.restore();
}
