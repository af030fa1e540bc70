#include "rtl/Printable.h"

#include <algorithm>

bool IsControl(QChar c) {
  const char16_t u = c.unicode();
  return u < 0x20 || (u >= 0x7F && u < 0xA0) || (u >= 0x2028 && u <= 0x202E) || (u >= 0x2066 && u <= 0x2069);
}

QString Printable(const QString& text) {
  if (std::none_of(text.begin(), text.end(), IsControl)) return text;
  QString result;
  result.reserve(text.size() + 16);
  for (const QChar c : text) {
    const ushort u = c.unicode();
    if (!IsControl(c))
      result += c;
    else if (u == '\n')
      result += QStringLiteral("\\n");
    else if (u == '\r')
      result += QStringLiteral("\\r");
    else if (u == '\t')
      result += QStringLiteral("\\t");
    else if (u < 0x100)
      result += QStringLiteral("\\x%1").arg(QString::number(u, 16).toUpper(), 2, u'0');
    else
      result += QStringLiteral("\\u%1").arg(QString::number(u, 16).toUpper(), 4, u'0');
  }
  return result;
}
