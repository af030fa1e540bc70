#include "package/dialogs/RegExprLibrary.h"

#include <QHash>
#include <QRegularExpression>

#include "rtl/Exceptions.h"

RegExprLibrary::RegExprLibrary(const QByteArray& bytes) {
  constexpr char Mark[] = "\xEF\xBB\xBF";
  if (bytes.startsWith(Mark)) start_ = Mark;
  const QByteArray read = bytes.mid(start_.size());
  const qsizetype first = read.indexOf('\n');
  if (first > 0 && read[first - 1] == '\r') end_ = "\r\n";
  QString text = QString::fromUtf8(read);
  utf8_ = text.toUtf8() == read;
  if (!utf8_) text = QString::fromLatin1(read);
  static const QRegularExpression LineEnd(QStringLiteral("\r\n|\n|\r"));
  QStringList lines = text.split(LineEnd);
  if (lines.last().isEmpty()) lines.removeLast();
  QHash<QString, QString> values;
  for (const QString& line : lines) {
    const QString name = line.section(u'=', 0, 0), value = line.section(u'=', 1);
    if (!values.contains(name)) values.insert(name, value);
    rows_.append({name, values[name]});
  }
}

QByteArray RegExprLibrary::Bytes() const {
  QByteArray bytes = start_;
  for (const auto& [name, expression] : rows_) bytes += Encoded(name + u'=' + expression) + end_;
  return bytes;
}

const TTextPair& RegExprLibrary::Checked(const TTextPair& entry) const {
  if (entry.First.contains(u'='))
    throw Exception(
        QStringLiteral("\"%1\" cannot be a name: it holds \"=\", which ends the names of the file.")
            .arg(entry.First));
  const QString line = entry.First + u'=' + entry.Second;
  if (line.contains(u'\n') || line.contains(u'\r'))
    throw Exception(QStringLiteral("Only expressions of one line can be kept in the file."));
  if (!utf8_ && QString::fromLatin1(line.toLatin1()) != line)
    throw Exception(
        QStringLiteral("The file has one byte for a letter and cannot keep all of \"%1\".").arg(line));
  return entry;
}

void RegExprLibrary::Append(const TTextPair& entry) { rows_.append(Checked(entry)); }
void RegExprLibrary::Update(qsizetype row, const TTextPair& entry) { rows_[row] = Checked(entry); }
