#include "package/dialogs/RegExprLibrary.h"

#include <QHash>

#include "rtl/Exceptions.h"

RegExprLibrary::RegExprLibrary(const QByteArray& bytes) {
  constexpr char Mark[] = "\xEF\xBB\xBF";
  if (bytes.startsWith(Mark)) start_ = Mark;
  const QByteArray text = bytes.mid(start_.size());
  utf8_ = QString::fromUtf8(text).toUtf8() == text;
  if (text.isEmpty()) return;
  const qsizetype first = text.indexOf('\n');
  if (first > 0 && text[first - 1] == '\r') end_ = "\r\n";
  lines_ = text.split('\n');
  lastEnds_ = lines_.last().isEmpty();
  if (lastEnds_) lines_.removeLast();
  // Where all lines end alike, the ends are no part of them.
  const qsizetype ended = lines_.size() - (lastEnds_ ? 0 : 1);
  const bool alike =
      end_ == "\r\n" && std::all_of(lines_.begin(), lines_.begin() + ended,
                                    [](const QByteArray& line) { return line.endsWith('\r'); });
  if (!alike) end_ = "\n";
  for (qsizetype i = 0; alike && i < ended; ++i) lines_[i].chop(1);
}

QByteArray RegExprLibrary::Bytes() const {
  QByteArray bytes = start_ + lines_.join(end_);
  if (lastEnds_ && !lines_.isEmpty()) bytes += end_;
  return bytes;
}

QString RegExprLibrary::TextOf(const QByteArray& bytes) const {
  return utf8_ ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
}

QList<TTextPair> RegExprLibrary::Rows() const {
  QList<TTextPair> rows;
  QHash<QString, QString> values;
  for (QByteArray line : lines_) {
    if (line.endsWith('\r')) line.chop(1);
    const QString text = TextOf(line);
    const QString name = text.section(u'=', 0, 0), value = text.section(u'=', 1);
    if (!values.contains(name)) values.insert(name, value);
    rows.append({name, values[name]});
  }
  return rows;
}

QByteArray RegExprLibrary::LineOf(const TTextPair& entry) const {
  if (entry.First.contains(u'='))
    throw Exception(
        QStringLiteral("\"%1\" cannot be a name: it holds \"=\", which ends the names of the file.")
            .arg(entry.First));
  const QString line = entry.First + u'=' + entry.Second;
  if (line.contains(u'\n') || line.contains(u'\r'))
    throw Exception(QStringLiteral("Only expressions of one line can be kept in the file."));
  const QByteArray bytes = utf8_ ? line.toUtf8() : line.toLatin1();
  if (TextOf(bytes) != line)
    throw Exception(
        QStringLiteral("The file has one byte for a letter and cannot keep all of \"%1\".").arg(line));
  return bytes;
}

void RegExprLibrary::Append(const TTextPair& entry) {
  const QByteArray line = LineOf(entry);
  lines_ << line;
  lastEnds_ = true;
}
void RegExprLibrary::Update(qsizetype row, const TTextPair& entry) { lines_[row] = LineOf(entry); }
