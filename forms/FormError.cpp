#include "forms/FormError.h"

namespace forms {

Location LocationOf(QByteArrayView text, std::size_t offset) {
  Location where{offset, 1, 1};
  const std::size_t end = std::min(offset, static_cast<std::size_t>(text.size()));
  std::size_t lineStart = 0;
  for (std::size_t i = 0; i < end; ++i) {
    const char c = text[static_cast<qsizetype>(i)];
    const bool crlf = c == '\r' && i + 1 < static_cast<std::size_t>(text.size()) &&
                      text[static_cast<qsizetype>(i + 1)] == '\n';
    if (c == '\n' || (c == '\r' && !crlf)) {
      ++where.line;
      lineStart = i + 1;
    }
  }
  if (lineStart == 0 && text.startsWith("\xEF\xBB\xBF"))
    lineStart = 3;  // the byte-order mark takes no column
  for (std::size_t i = lineStart; i < end; ++i)
    if ((static_cast<unsigned char>(text[static_cast<qsizetype>(i)]) & 0xC0u) != 0x80u) ++where.column;
  return where;
}

namespace {
QString Placed(const QString& text, const Location& where) {
  if (where.line == 0) return QStringLiteral("%1 (byte %2)").arg(text).arg(where.offset);
  return QStringLiteral("%1 (line %2, column %3)").arg(text).arg(where.line).arg(where.column);
}
}  // namespace

EFormError::EFormError(const QString& text, Location where)
    : Exception(Placed(text, where)), text_(text), where_(where) {}

void ThrowOutOfMemory(Location where) {
  throw EFormError(QStringLiteral("Out of memory: there is not enough of it for this form"), where);
}

}  // namespace forms
