#include "vcl/ItemStream.h"

QByteArrayView TItemReader::Take(qsizetype count) {
  if (count < 0 || count > rest_.size()) fits_ = false;
  if (!fits_) return {};
  const QByteArrayView taken = rest_.first(count);
  rest_ = rest_.sliced(count);
  return taken;
}

QString TItemReader::Text(TStreamText kind) {
  const qsizetype length = kind == TStreamText::Counted ? Number() : Byte();
  const QByteArrayView bytes = Take(kind == TStreamText::Wide ? 2 * length : length);
  if (!fits_) return {};
  if (kind == TStreamText::Counted) return QString::fromUtf8(bytes);
  if (kind == TStreamText::Short) return QString::fromLatin1(bytes);
  QString text(length, Qt::Uninitialized);
  for (qsizetype i = 0; i < length; ++i) text[i] = QChar(qFromLittleEndian<char16_t>(bytes.data() + 2 * i));
  return text;
}

void TItemWriter::Text(TStreamText kind, const QString& text) {
  constexpr int Most = 255;
  if (kind == TStreamText::Counted) {
    const QByteArray utf8 = text.toUtf8();
    Number(static_cast<std::int32_t>(utf8.size()));
    bytes_ += utf8;
    return;
  }
  const QString cut = text.left(Most);
  Byte(static_cast<std::uint8_t>(cut.size()));
  if (kind == TStreamText::Short)
    bytes_ += cut.toLatin1();
  else
    for (const QChar c : cut) Little<std::uint16_t>(c.unicode());
}
