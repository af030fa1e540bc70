#include "forms/Encoding.h"

#include <QStringConverter>
#include <array>

namespace forms {

bool IsUtf8(QByteArrayView bytes) { return bytes.isValidUtf8(); }

QString DecodeBytes(QByteArrayView bytes, const QByteArray& codePage) {
  if (IsUtf8(bytes)) return QString::fromUtf8(bytes);
  QStringDecoder decoder(codePage.isEmpty() ? "windows-1252" : codePage.constData());
  if (!decoder.isValid()) return QString::fromLatin1(bytes);
  return decoder(bytes);
}

QByteArray CodePageOfCharset(QByteArrayView charset) {
  struct Row {
    const char* charset;
    const char* codePage;
  };
  static constexpr std::array rows{
      Row{"ANSI_CHARSET", "windows-1252"},
      Row{"EASTEUROPE_CHARSET", "windows-1250"},
      Row{"RUSSIAN_CHARSET", "windows-1251"},
      Row{"GREEK_CHARSET", "windows-1253"},
      Row{"TURKISH_CHARSET", "windows-1254"},
      Row{"HEBREW_CHARSET", "windows-1255"},
      Row{"ARABIC_CHARSET", "windows-1256"},
      Row{"BALTIC_CHARSET", "windows-1257"},
      Row{"VIETNAMESE_CHARSET", "windows-1258"},
      Row{"THAI_CHARSET", "windows-874"},
      Row{"SHIFTJIS_CHARSET", "Shift_JIS"},
      Row{"GB2312_CHARSET", "GBK"},
      Row{"HANGEUL_CHARSET", "EUC-KR"},
      Row{"CHINESEBIG5_CHARSET", "Big5"},
      Row{"OEM_CHARSET", "IBM850"},
  };
  for (const Row& row : rows)
    if (charset.compare(QByteArrayView(row.charset), Qt::CaseInsensitive) == 0) return row.codePage;
  return {};
}

}  // namespace forms
