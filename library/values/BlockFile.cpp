#include "library/values/BlockFile.h"

#include <QRegularExpression>

#include "rtl/Exceptions.h"

namespace {
constexpr int Version = 1;
}

QStringList VRXBlockLines(const QByteArray& bytes) {
  const QByteArray mark = "\xEF\xBB\xBF";
  const QByteArray plain = bytes.startsWith(mark) ? bytes.mid(mark.size()) : bytes;
  QStringList lines;
  for (QByteArray bytesOfLine : plain.split('\n')) {
    if (bytesOfLine.endsWith('\r')) bytesOfLine.chop(1);
    const QString line = QString::fromUtf8(bytesOfLine);
    if (line.toUtf8() != bytesOfLine || line.contains(QChar(0)))
      throw Exception(QStringLiteral("line %1: it is no text").arg(lines.size() + 1));
    lines << line;
  }
  return lines;
}

QByteArray VRXBlockText(const QStringList& lines) { return (lines.join(u'\n') + u'\n').toUtf8(); }

QString VRXBlockTitle(const QString& title) { return QStringLiteral("%1 %2").arg(title).arg(Version); }

bool VRXIsBlockHead(const QString& line) {
  static const QRegularExpression head(QStringLiteral("^[A-Za-z][A-Za-z0-9_]*( .*)?$"));
  return line != VRXBlockEnd && head.match(line).hasMatch();
}

void VRXBlockReader::Refuse(const QString& why) const {
  throw Exception(QStringLiteral("line %1: %2").arg(at_ + 1).arg(why));
}

QString VRXBlockReader::Short(const QString& text) {
  constexpr int most = 40;
  return text.size() > most ? text.left(most) + QStringLiteral("...") : text;
}

void VRXBlockReader::ReadLines(const QString& title, const QStringList& lines) {
  at_ = 0;
  Head(title, lines.value(0));
  bool ended = false;
  for (at_ = 1; at_ < lines.size(); ++at_) {
    const QString& line = lines[at_];
    if (line.trimmed().isEmpty()) continue;
    if (ended) Refuse(QStringLiteral("there is something behind the end"));
    ended = line == VRXBlockEnd;
    if (!ended) Line(line);
  }
  at_ = lines.size() - 1;
  if (!ended) Refuse(QStringLiteral("it ends before its last line, \"end\""));
}

void VRXBlockReader::Head(const QString& title, const QString& line) const {
  static const QRegularExpression form(QStringLiteral("^(.*) ([0-9]{1,6})$"));
  const auto match = form.match(line);
  if (!match.hasMatch() || match.captured(1) != title)
    Refuse(QStringLiteral("a file that begins with \"%1\" is needed").arg(VRXBlockTitle(title)));
  if (const int version = match.captured(2).toInt(); version != Version)
    Refuse(
        QStringLiteral("the file is of version %1, and only version %2 is known").arg(version).arg(Version));
}

void VRXBlockReader::Line(const QString& line) {
  if (line.startsWith(u' ') || line.startsWith(u'\t')) {
    if (known_) return Inside(line.trimmed());
    if (foreign_.isEmpty()) Refuse(QStringLiteral("a line of a block stands in none"));
    foreign_ << VRXBlockIndent + line.trimmed();
    return;
  }
  if (!VRXIsBlockHead(line)) Refuse(QStringLiteral("\"%1\" begins no block").arg(Short(line)));
  known_ = Block(line.section(u' ', 0, 0), line.section(u' ', 1).trimmed());
  if (!known_) foreign_ << line;
}
