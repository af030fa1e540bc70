#include "rtl/Printable.h"

#include <gtest/gtest.h>

TEST(Printable, EveryControlCharacterIsEscaped) {
  EXPECT_EQ(Printable(QStringLiteral("a\n\r\t\x1B[31m\x07\x7F")),
            QStringLiteral("a\\n\\r\\t\\x1B[31m\\x07\\x7F"));
  for (int u = 1; u < 0x3000; ++u) {
    const bool control =
        u < 0x20 || (u >= 0x7F && u <= 0x9F) || (u >= 0x2028 && u <= 0x202E) || (u >= 0x2066 && u <= 0x2069);
    const QString text(1, QChar(u));
    EXPECT_EQ(Printable(text) != text, control) << u;
    EXPECT_FALSE(control && Printable(text).contains(QChar(u))) << u;
  }
}

TEST(Printable, OrdinaryTextStays) {
  const QString text = QStringLiteral("Gr\u00FC\u00DFe, \u0434\u043E\u043C, C:\\form.dfm");
  EXPECT_EQ(Printable(text), text);
}
