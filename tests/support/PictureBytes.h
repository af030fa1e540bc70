// Pictures as strangers make them, byte by byte.
#pragma once
#include <zlib.h>

#include <QByteArray>
#include <QtEndian>

inline QByteArray Number32(quint32 value, bool bigEndian) {
  char bytes[4];
  bigEndian ? qToBigEndian(value, bytes) : qToLittleEndian(value, bytes);
  return QByteArray(bytes, 4);
}
inline QByteArray Deflated(const QByteArray& plain) {
  return qCompress(plain, 9).sliced(4);  // without the length in front
}
inline QByteArray PngChunk(const char* type, const QByteArray& data) {
  const QByteArray body = QByteArray(type, 4) + data;
  const uLong sum =
      crc32(0, reinterpret_cast<const Bytef*>(body.constData()), static_cast<uInt>(body.size()));
  return Number32(static_cast<quint32>(data.size()), true) + body + Number32(static_cast<quint32>(sum), true);
}
// Plain black of so many bits a pixel (1 to 8 grey, 24 colour), with other chunks between head and pixels.
inline QByteArray PngOf(quint32 width, quint32 height, int bits, const QByteArray& between = {}) {
  const QByteArray row(
      static_cast<qsizetype>((std::size_t{width} * static_cast<std::size_t>(bits) + 7) / 8 + 1), '\0');
  const char kind = bits == 24 ? 2 : 0, depth = static_cast<char>(bits == 24 ? 8 : bits);
  const QByteArray head = Number32(width, true) + Number32(height, true) + QByteArray(1, depth) +
                          QByteArray(1, kind) + QByteArray(3, '\0');
  return QByteArray("\x89PNG\r\n\x1a\n", 8) + PngChunk("IHDR", head) + between +
         PngChunk("IDAT", Deflated(row.repeated(static_cast<qsizetype>(height)))) + PngChunk("IEND", {});
}
// The head of a BMP and whatever follows it.
inline QByteArray BmpOf(qint32 width, qint32 height, int bits, quint32 compression, const QByteArray& data) {
  const auto number = [](qint64 v) { return Number32(static_cast<quint32>(v), false); };
  const QByteArray planesAndBits =
      QByteArray("\1\0", 2) + QByteArray(1, static_cast<char>(bits)) + QByteArray(1, '\0');
  const QByteArray colors = bits == 8 ? QByteArray(1024, '\x55') : QByteArray();
  return "BM" + number(54 + colors.size() + data.size()) + number(0) + number(54 + colors.size()) +
         number(40) + number(width) + number(height) + planesAndBits + number(compression) + number(0) +
         number(2835) + number(2835) + number(0) + number(0) + colors + data;
}
// A drawing of 9 x 5 with this inside.
inline QByteArray SvgOf(const QByteArray& inside, const QByteArray& before = {}) {
  return before +
         "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='9' "
         "height='5'><rect width='4' height='5' fill='#0000ff'/>" +
         inside + "</svg>";
}
inline QByteArray SvgImage(const QByteArray& href) {
  return SvgOf("<image width='9' height='5' xlink:href='" + href + "'/>");
}
