#include "forms/FormError.h"

namespace forms {

namespace {
constexpr std::size_t Step = 4096;

// Counts on from `at` to the offset.
void Advance(QByteArrayView text, Location& at, std::size_t offset) {
  const auto size = static_cast<std::size_t>(text.size());
  const std::size_t end = std::min(offset, size);
  std::size_t i = at.offset;
  // The byte-order mark takes no column.
  if (i == 0 && text.startsWith("\xEF\xBB\xBF")) i = 3;
  for (; i < end; ++i) {
    const char c = text[static_cast<qsizetype>(i)];
    const bool crlf = c == '\r' && i + 1 < size && text[static_cast<qsizetype>(i + 1)] == '\n';
    if (c == '\n' || (c == '\r' && !crlf)) {
      ++at.line;
      at.column = 1;
    } else if ((static_cast<unsigned char>(c) & 0xC0u) != 0x80u) {
      ++at.column;
    }
  }
  at.offset = offset;
}
}  // namespace

Location LocationOf(QByteArrayView text, std::size_t offset) {
  Location where{0, 1, 1};
  Advance(text, where, offset);
  return where;
}

Location Locator::At(QByteArrayView text, std::size_t offset) {
  if (passed_.empty()) passed_.push_back({0, 1, 1});
  while (passed_.size() <= offset / Step) {
    Location next = passed_.back();
    Advance(text, next, next.offset + Step);
    passed_.push_back(next);
  }
  Location where = passed_[offset / Step];
  Advance(text, where, offset);
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
