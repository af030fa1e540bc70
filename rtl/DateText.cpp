#include "rtl/DateText.h"

#include <QHash>
#include <cmath>

#include "rtl/Exceptions.h"

namespace {
constexpr double DayMilliseconds = 86'400'000;
const QDate& FirstDay() {
  static const QDate day(1899, 12, 30);
  return day;
}
// Beyond the calendar the number says it.
bool IsInCalendar(TDateTime value) { return std::isfinite(value.Days) && std::abs(value.Days) <= 3'000'000; }
QString NumberOf(TDateTime value) { return QString::number(value.Days, 'g', 17); }
}  // namespace

QDateTime SplitDateTime(TDateTime value) {
  const double day = std::trunc(value.Days);
  const auto ms = static_cast<qint64>(std::llround(std::abs(value.Days - day) * DayMilliseconds));
  return QDateTime(FirstDay().addDays(static_cast<qint64>(day)), QTime(0, 0), Qt::UTC).addMSecs(ms);
}
TDateTime JoinDateTime(const QDateTime& value) {
  const auto days = static_cast<double>(FirstDay().daysTo(value.date()));
  const double part = value.time().msecsSinceStartOfDay() / DayMilliseconds;
  return {days < 0 ? days - part : days + part};
}

TDateTime WithPart(TDateTime value, TDateTime from, TMomentPart part) {
  if (part == TMomentPart::Both) return from;
  const TDateTime& day = part == TMomentPart::Date ? from : value;
  const TDateTime& clock = part == TMomentPart::Time ? from : value;
  const double days = std::trunc(day.Days), rest = std::abs(clock.Days - std::trunc(clock.Days));
  return {days < 0 ? days - rest : days + rest};
}

QString DateTimeToText(TDateTime value, TMomentPart part) {
  const QString text = DateTimeToText(part == TMomentPart::Both ? value : WithPart({}, value, part));
  return text.isEmpty() && part == TMomentPart::Time ? QStringLiteral("00:00:00") : text;
}

QString DateTimeToText(TDateTime value) {
  if (value.Days == 0) return {};
  if (!IsInCalendar(value)) return NumberOf(value);
  const QDateTime split = SplitDateTime(value);
  const QTime time = split.time();
  const QString clock = time.toString(time.msec() != 0 ? u"HH:mm:ss.zzz" : u"HH:mm:ss");
  if (split.date() == FirstDay()) return clock;
  const QString day = split.date().toString(Qt::ISODate);
  return time == QTime(0, 0) ? day : day + u' ' + clock;
}

std::optional<TDateTime> TextToDateTime(const QString& text) {
  const QString trimmed = text.trimmed();
  if (trimmed.isEmpty()) return TDateTime{};
  bool number = false;
  const double days = trimmed.toDouble(&number);
  if (number && std::isfinite(days)) return TDateTime{days};
  const QStringList parts = trimmed.split(u' ', Qt::SkipEmptyParts);
  QDate date = FirstDay();
  QTime time(0, 0);
  if (parts.size() > 2) return {};
  const bool clockOnly = parts.size() == 1 && parts[0].contains(u':');
  if (!clockOnly) date = QDate::fromString(parts[0], Qt::ISODate);
  if (clockOnly || parts.size() == 2) time = QTime::fromString(parts.last(), Qt::ISODateWithMs);
  if (!date.isValid() || !time.isValid()) return {};
  return JoinDateTime(QDateTime(date, time, Qt::UTC));
}

namespace {
// What every part of shows whether a format can be read again.
const QDate ProbeDate(1987, 11, 24);
const QTime ProbeTime(21, 43, 8);

// Two digits do not tell the century; the zone is no part of a time of day.
QString LongYear(QString format) {
  return format.contains(QStringLiteral("yyyy"))
             ? format
             : format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
}
QString WithoutZone(QString format) {
  for (const QStringView zone : {u"(t)", u"[t]", u"t"}) format.remove(zone.toString());
  return format.trimmed();
}

struct Formats {
  explicit Formats(const QLocale& locale)
      : words(locale),
        date(LongYear(locale.dateFormat(QLocale::ShortFormat))),
        time(WithoutZone(locale.timeFormat(QLocale::LongFormat))) {
    if (CanRead()) return;
    date = QStringLiteral("yyyy-MM-dd");
    time = QStringLiteral("HH:mm:ss");
    // Digits that the platform writes but does not read.
    if (!CanRead()) words = QLocale::c();
  }
  bool CanRead() const {
    return words.toDate(words.toString(ProbeDate, date), date) == ProbeDate &&
           words.toTime(words.toString(ProbeTime, time), time) == ProbeTime;
  }
  QLocale words;
  QString date, time;
};
// Asked for every line of a long list.
const Formats& FormatsOf(const QLocale& locale) {
  static QHash<QLocale, Formats> known;
  if (const auto it = known.constFind(locale); it != known.cend()) return *it;
  return *known.insert(locale, Formats(locale));
}
}  // namespace

QString DateFormatOf(const QLocale& locale) { return FormatsOf(locale).date; }
QString TimeFormatOf(const QLocale& locale) { return FormatsOf(locale).time; }

QString DateToStr(TDateTime value, const QLocale& locale) {
  if (!IsInCalendar(value)) return NumberOf(value);
  const Formats& formats = FormatsOf(locale);
  return formats.words.toString(SplitDateTime(value).date(), formats.date);
}
QString TimeToStr(TDateTime value, const QLocale& locale) {
  const QTime time = IsInCalendar(value) ? SplitDateTime(value).time() : QTime(0, 0);
  const Formats& formats = FormatsOf(locale);
  return formats.words.toString(time, formats.time);
}

TDateTime StrToDate(const QString& text, const QLocale& locale) {
  const Formats& formats = FormatsOf(locale);
  const QDate date = formats.words.toDate(text, formats.date);
  if (!date.isValid())
    throw EConvertError(QStringLiteral("\"%1\" is no date. It is written as in %2.")
                            .arg(text, formats.words.toString(ProbeDate, formats.date)));
  return JoinDateTime(QDateTime(date, QTime(0, 0), Qt::UTC));
}
TDateTime StrToTime(const QString& text, const QLocale& locale) {
  const Formats& formats = FormatsOf(locale);
  const QTime time = formats.words.toTime(text, formats.time);
  if (!time.isValid())
    throw EConvertError(QStringLiteral("\"%1\" is no time of day. It is written as in %2.")
                            .arg(text, formats.words.toString(ProbeTime, formats.time)));
  return JoinDateTime(QDateTime(FirstDay(), time, Qt::UTC));
}
