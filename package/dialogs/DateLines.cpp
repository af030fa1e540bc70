#include "package/dialogs/DateLines.h"

namespace {
QString NotNull(const QString& text) { return text.isNull() ? QStringLiteral("") : text; }
}  // namespace

TVRXDateLine SplitDateLine(const QString& line) {
  return {line.section(u';', 0, 0), line.section(u';', 1, 1), line.section(u';', 2)};
}
QString JoinDateLine(const TVRXDateLine& line) {
  return line.Date + u';' + line.Time + u';' + line.Description;
}

void DateLines::SetEntries(const QList<TVRXDateEntry>& entries) {
  beginResetModel();
  rows_.clear();
  rows_.reserve(entries.size());
  for (const TVRXDateEntry& entry : entries) rows_.append(TRow{entry});
  endResetModel();
}

TVRXDateEntry DateLines::Entry(int row) const {
  const TRow& r = rows_.at(row);
  TVRXDateEntry entry = r.entry;
  if (!r.date.isNull()) entry.Moment = WithPart(entry.Moment, StrToDate(r.date), TMomentPart::Date);
  if (!r.time.isNull()) entry.Moment = WithPart(entry.Moment, StrToTime(r.time), TMomentPart::Time);
  return entry;
}

TVRXDateLine DateLines::Line(int row) const {
  const TRow& r = rows_.at(row);
  return {r.date.isNull() ? DateToStr(r.entry.Moment) : r.date,
          r.time.isNull() ? TimeToStr(r.entry.Moment) : r.time, r.entry.Description};
}

void DateLines::Append(const TVRXDateLine& line) {
  beginInsertRows({}, rowCount(), rowCount());
  rows_.append(TRow{{{}, line.Description}, NotNull(line.Date), NotNull(line.Time)});
  endInsertRows();
}
void DateLines::Remove(int row) {
  beginRemoveRows({}, row, row);
  rows_.removeAt(row);
  endRemoveRows();
}

void DateLines::SetDate(int row, const QString& text) {
  rows_[row].date = NotNull(text);
  Tell(row, 0);
}
void DateLines::SetTime(int row, const QString& text) {
  rows_[row].time = NotNull(text);
  Tell(row, 1);
}
void DateLines::SetDescription(int row, const QString& text) {
  rows_[row].entry.Description = text;
  Tell(row, 2);
}
void DateLines::Tell(int row, int column) { emit dataChanged(index(row, column), index(row, column)); }

QVariant DateLines::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole) return {};
  const TVRXDateLine line = Line(index.row());
  return index.column() == 0 ? line.Date : index.column() == 1 ? line.Time : line.Description;
}
QVariant DateLines::headerData(int section, Qt::Orientation orientation, int role) const {
  static const QString titles[] = {QStringLiteral("Date"), QStringLiteral("Time"),
                                   QStringLiteral("Description")};
  return role == Qt::DisplayRole && orientation == Qt::Horizontal ? titles[section] : QVariant();
}
