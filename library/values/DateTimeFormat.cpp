#include "library/values/DateTimeFormat.h"

#include <vector>

#include "rtl/Exceptions.h"
#include "rtl/TypeInfo.h"

const TTypeInfo& TVRXDateTimeFormat() {
  static const TTypeInfo info = StringType("TVRXDateTimeFormat");
  return info;
}

namespace {
QString Padded(int number, int digits) {
  return QStringLiteral("%1").arg(number, digits, 10, QLatin1Char('0'));
}

struct Moment {
  QDate date;
  QTime time;
  QLocale locale;
  bool halves = false;  // hours go to 12
  int Hour() const { return halves ? (time.hour() + 11) % 12 + 1 : time.hour(); }
  QString Half(QStringView morning, QStringView afternoon) const {
    return (time.hour() < 12 ? morning : afternoon).toString();
  }
};

constexpr int Day = 24 * 60 * 60 * 1000, Minute = 60 * 1000, Second = 1000;

// The longest of a letter first.
struct Placeholder {
  const char16_t* letters;
  int lasts;  // milliseconds, after which it can be another text
  QString (*text)(const Moment& m);
};
constexpr Placeholder Placeholders[] = {
    {u"am/pm", Minute, [](const Moment& m) { return m.Half(u"am", u"pm"); }},
    {u"a/p", Minute, [](const Moment& m) { return m.Half(u"a", u"p"); }},
    {u"ampm", Minute,
     [](const Moment& m) { return m.time.hour() < 12 ? m.locale.amText() : m.locale.pmText(); }},
    {u"dddd", Day, [](const Moment& m) { return m.locale.dayName(m.date.dayOfWeek()); }},
    {u"ddd", Day, [](const Moment& m) { return m.locale.dayName(m.date.dayOfWeek(), QLocale::ShortFormat); }},
    {u"dd", Day, [](const Moment& m) { return Padded(m.date.day(), 2); }},
    {u"d", Day, [](const Moment& m) { return Padded(m.date.day(), 1); }},
    {u"mmmm", Day, [](const Moment& m) { return m.locale.monthName(m.date.month()); }},
    {u"mmm", Day, [](const Moment& m) { return m.locale.monthName(m.date.month(), QLocale::ShortFormat); }},
    {u"mm", Day, [](const Moment& m) { return Padded(m.date.month(), 2); }},
    {u"m", Day, [](const Moment& m) { return Padded(m.date.month(), 1); }},
    {u"yyyy", Day, [](const Moment& m) { return Padded(m.date.year(), 4); }},
    {u"yy", Day, [](const Moment& m) { return Padded(m.date.year() % 100, 2); }},
    {u"hh", Minute, [](const Moment& m) { return Padded(m.Hour(), 2); }},
    {u"h", Minute, [](const Moment& m) { return Padded(m.Hour(), 1); }},
    {u"nn", Minute, [](const Moment& m) { return Padded(m.time.minute(), 2); }},
    {u"n", Minute, [](const Moment& m) { return Padded(m.time.minute(), 1); }},
    {u"ss", Second, [](const Moment& m) { return Padded(m.time.second(), 2); }},
    {u"s", Second, [](const Moment& m) { return Padded(m.time.second(), 1); }},
    {u"zzz", 1, [](const Moment& m) { return Padded(m.time.msec(), 3); }},
    {u"z", 1, [](const Moment& m) { return Padded(m.time.msec(), 1); }},
};

const Placeholder& Named(QStringView letters) {
  for (const Placeholder& p : Placeholders)
    if (letters == QStringView(p.letters)) return p;
  throw EConvertError(QStringLiteral("\"%1\" is no placeholder of a date or a time. Put text in quotes.")
                          .arg(letters.toString()));
}

// A placeholder, or a text.
struct Piece {
  const Placeholder* placeholder = nullptr;
  QString text;
};

// The placeholder at the place, or as many equal letters as there are: one that is too long is none.
QStringView LettersAt(QStringView format, qsizetype at) {
  for (const QStringView half : {QStringView(u"am/pm"), QStringView(u"a/p"), QStringView(u"ampm")})
    if (format.sliced(at).startsWith(half, Qt::CaseInsensitive)) return format.sliced(at, half.size());
  qsizetype end = at;
  while (end < format.size() && format[end].toLower() == format[at].toLower()) ++end;
  return format.sliced(at, end - at);
}

std::vector<Piece> Pieces(QStringView format) {
  std::vector<Piece> pieces;
  bool behindHour = false;
  for (qsizetype at = 0; at < format.size();) {
    const QChar sign = format[at];
    if (sign == u'"' || sign == u'\'') {
      const qsizetype end = format.indexOf(sign, at + 1);
      if (end < 0) throw EConvertError(QStringLiteral("The quote at place %1 is not closed.").arg(at + 1));
      pieces.push_back({nullptr, format.sliced(at + 1, end - at - 1).toString()});
      at = end + 1;
    } else if (!sign.isLetter()) {
      pieces.push_back({nullptr, QString(sign)});
      ++at;
    } else {
      const QStringView letters = LettersAt(format, at);
      QString name = letters.toString().toLower();
      if (behindHour && (name == u"m" || name == u"mm")) name.replace(u'm', u'n');
      pieces.push_back({&Named(name), {}});
      behindHour = name.startsWith(u'h');
      at += letters.size();
    }
  }
  return pieces;
}
}  // namespace

void VRXCheckDateTimeFormat(const QString& format) { Pieces(format); }

QString VRXFormatDateTime(const QString& format, const QDateTime& moment, const QLocale& locale) {
  const auto pieces = Pieces(format);
  Moment m{moment.date(), moment.time(), locale};
  for (const Piece& piece : pieces) m.halves |= piece.placeholder && piece.placeholder->letters[0] == u'a';
  QString text;
  for (const Piece& piece : pieces) text += piece.placeholder ? piece.placeholder->text(m) : piece.text;
  return text;
}

int VRXNextDateTimeText(const QString& format, const QTime& time) {
  int lasts = Day;
  for (const Piece& piece : Pieces(format))
    if (piece.placeholder) lasts = std::min(lasts, piece.placeholder->lasts);
  return lasts - time.msecsSinceStartOfDay() % lasts;
}
