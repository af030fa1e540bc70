// Functions of dates. A date is a number: days since the end of 1899, as the framework counts them, and the
// fraction is the time of day.
#include <cmath>

#include "library/expression/ExprFunctions.h"
#include "library/values/DateTimeFormat.h"
#include "rtl/Clock.h"

namespace expression {

namespace {
constexpr int LastYear = 9999, DayMilliseconds = 86'400'000;
const QDate& First() {
  static const QDate date(1899, 12, 30);
  return date;
}

double Days(const QDate& date) { return static_cast<double>(First().daysTo(date)); }
Value FromMoment(const QDateTime& moment) {
  return Days(moment.date()) + double(moment.time().msecsSinceStartOfDay()) / DayMilliseconds;
}

QDateTime MomentOf(double number) {
  if (!(number > -800'000 && number < 3'000'000)) throw EValueError(QStringLiteral("there is no such date"));
  double day = std::floor(number);
  auto milliseconds = static_cast<int>(std::lround((number - day) * DayMilliseconds));
  if (milliseconds == DayMilliseconds) ++day, milliseconds = 0;
  const QDate date = First().addDays(static_cast<qint64>(day));
  if (date.year() < 1 || date.year() > LastYear) throw EValueError(QStringLiteral("there is no such date"));
  return {date, QTime::fromMSecsSinceStartOfDay(milliseconds), Qt::UTC};
}
QDate DateOf(const Arguments& v) { return MomentOf(v.Number(0)).date(); }
QTime TimeOf(const Arguments& v) { return MomentOf(v.Number(0)).time(); }

Value FromDate(const QDate& date) {
  if (!date.isValid() || date.year() < 1 || date.year() > LastYear)
    throw EValueError(QStringLiteral("there is no such date"));
  return Days(date);
}

// With the time of day that the first value has.
Value Added(const Arguments& v, QDate (QDate::*add)(int) const) {
  const QDateTime moment = MomentOf(v.Number(0));
  const Value date = FromDate((moment.date().*add)(v.Whole(1, -120'000, 120'000)));
  return std::get<double>(date) + double(moment.time().msecsSinceStartOfDay()) / DayMilliseconds;
}

Value Parsed(const Arguments& v) {
  const QString text = v.Text(0).trimmed();
  const QDateTime moment = QDateTime::fromString(text.left(40), Qt::ISODate);
  if (!moment.isValid() || text.size() > 40)
    throw EValueError(QStringLiteral("%1 is no date: expected one like 2031-07-04 or 2031-07-04T17:05:09")
                          .arg(Described(v.At(0))));
  FromDate(moment.date());
  return FromMoment(moment);
}

const Function All[] = {
    {"addmonths", 2, 2, [](const Arguments& v) { return Added(v, &QDate::addMonths); }},
    {"addyears", 2, 2, [](const Arguments& v) { return Added(v, &QDate::addYears); }},
    {"date", 3, 3,
     [](const Arguments& v) {
       return FromDate(QDate(v.Whole(0, 1, LastYear), v.Whole(1, 1, 12), v.Whole(2, 1, 31)));
     }},
    {"day", 1, 1, [](const Arguments& v) -> Value { return double(DateOf(v).day()); }},
    {"dayofyear", 1, 1, [](const Arguments& v) -> Value { return double(DateOf(v).dayOfYear()); }},
    {"daysinmonth", 1, 1, [](const Arguments& v) -> Value { return double(DateOf(v).daysInMonth()); }},
    {"formatdate", 2, 2,
     [](const Arguments& v) -> Value {
       try {
         VRXCheckDateTimeFormat(v.Text(1));
         return Checked(VRXFormatDateTime(v.Text(1), MomentOf(v.Number(0)), QLocale::c()));
       } catch (const EConvertError& error) {
         QString reason = error.Message();
         if (reason.endsWith(u'.')) reason.chop(1);
         throw EValueError(reason);
       }
     }},
    {"hour", 1, 1, [](const Arguments& v) -> Value { return double(TimeOf(v).hour()); }},
    {"isleap", 1, 1, [](const Arguments& v) -> Value { return QDate::isLeapYear(v.Whole(0, 1, LastYear)); }},
    {"minute", 1, 1, [](const Arguments& v) -> Value { return double(TimeOf(v).minute()); }},
    {"month", 1, 1, [](const Arguments& v) -> Value { return double(DateOf(v).month()); }},
    {"now", 0, 0, [](const Arguments&) { return FromMoment(ClockDateTime()); }},
    {"parsedate", 1, 1, Parsed},
    {"second", 1, 1, [](const Arguments& v) -> Value { return double(TimeOf(v).second()); }},
    {"time", 2, 3,
     [](const Arguments& v) -> Value {
       const QTime time(v.Whole(0, 0, 23), v.Whole(1, 0, 59), v.Whole(2, 0, 59, 0));
       return double(time.msecsSinceStartOfDay()) / DayMilliseconds;
     }},
    {"today", 0, 0, [](const Arguments&) -> Value { return Days(ClockDateTime().date()); }},
    {"week", 1, 1, [](const Arguments& v) -> Value { return double(DateOf(v).weekNumber()); }},
    {"weekday", 1, 1,  // Monday is 1
     [](const Arguments& v) -> Value { return double(DateOf(v).dayOfWeek()); }},
    {"year", 1, 1, [](const Arguments& v) -> Value { return double(DateOf(v).year()); }},
};
}  // namespace

std::span<const Function> DateFunctions() { return All; }

}  // namespace expression
