#include "library/values/DateList.h"

#include <QLocale>

#include "rtl/Class.h"
#include "rtl/DateText.h"
#include "rtl/Exceptions.h"

const TClass& TVRXDateList::StaticClass() {
  static const TClass cls(DescribeClass<TVRXDateList>("TVRXDateList", TValueList::StaticClass()));
  return cls;
}

namespace {
// A moment that its text does not tell to the last bit is a number.
QString TextOf(TDateTime moment) {
  if (moment.Days == 0) return QStringLiteral("1899-12-30");
  const QString text = DateTimeToText(moment);
  return TextToDateTime(text) == moment ? text
                                        : QString::number(moment.Days, 'g', QLocale::FloatingPointShortest);
}
}  // namespace

TVRXDateEntry TVRXDateList::Entry(int index) const {
  const QString text = TextAt(static_cast<std::size_t>(index));
  const qsizetype end = text.indexOf(u';');
  const QString date = text.left(end);
  const std::optional<TDateTime> moment = date.trimmed().isEmpty() ? std::nullopt : TextToDateTime(date);
  if (!moment || end < 0)
    throw EConvertError(QStringLiteral("Entry %1 of the dates, \"%2\", does not begin with a date and \";\".")
                            .arg(index + 1)
                            .arg(text.left(60)));
  return {*moment, text.mid(end + 1), date};
}

QList<TVRXDateEntry> TVRXDateList::Entries() const {
  QList<TVRXDateEntry> entries;
  entries.reserve(Count());
  for (int i = 0; i < Count(); ++i) entries << Entry(i);
  return entries;
}

void TVRXDateList::AddEntry(const TVRXDateEntry& entry) {
  const bool same = !entry.Written.isEmpty() && TextToDateTime(entry.Written) == entry.Moment;
  Add((same ? entry.Written : TextOf(entry.Moment)) + u';' + entry.Description);
}
