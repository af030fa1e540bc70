#include "vcl/PictureHead.h"

#include <QtEndian>
#include <algorithm>
#include <cstdlib>

namespace {
const QByteArrayView PngSignature("\x89PNG\r\n\x1a\n", 8);
constexpr qsizetype ChunkFrame = 12;  // length, type and checksum around the data

template <class T>
T Little(QByteArrayView bytes, qsizetype at) {
  return qFromLittleEndian<T>(bytes.data() + at);
}
std::uint32_t Big(QByteArrayView bytes, qsizetype at) {
  return qFromBigEndian<std::uint32_t>(bytes.data() + at);
}

[[noreturn]] void Damaged(std::int64_t size, const QString& why) {
  throw EInvalidPicture(
      QStringLiteral("The stored data (%1 bytes) is damaged or incomplete: %2.").arg(size).arg(why));
}

TPictureHead PngHead(QByteArrayView bytes, std::int64_t wholeSize) {
  if (bytes.size() < 33 || Big(bytes, 8) != 13 || bytes.sliced(12, 4) != QByteArrayView("IHDR", 4))
    Damaged(wholeSize, QStringLiteral("a PNG begins with its size"));
  const std::uint32_t width = Big(bytes, 16), height = Big(bytes, 20);
  if (width == 0 || height == 0) Damaged(wholeSize, QStringLiteral("its size is 0"));
  RequirePictureSize(QStringLiteral("The stored picture"), width, height);
  return {"png", QSize(static_cast<int>(width), static_cast<int>(height)), bytes[24] == 16 ? 8 : 4};
}

TPictureHead BmpHead(QByteArrayView bytes, std::int64_t wholeSize) {
  constexpr qsizetype FileHead = 14;
  const auto tooShort = [&] { Damaged(wholeSize, QStringLiteral("it ends inside its head")); };
  if (bytes.size() < FileHead + 12) tooShort();
  const auto headSize = Little<std::uint32_t>(bytes, FileHead);
  std::int64_t width = 0, height = 0;
  int bits = 0;
  std::uint32_t compression = 0;
  if (headSize == 12) {
    width = Little<std::uint16_t>(bytes, 18);
    height = Little<std::uint16_t>(bytes, 20);
    bits = Little<std::uint16_t>(bytes, 24);
  } else {
    if (bytes.size() < FileHead + 40) tooShort();
    width = Little<std::int32_t>(bytes, 18);
    height = std::abs(std::int64_t{Little<std::int32_t>(bytes, 22)});
    bits = Little<std::uint16_t>(bytes, 28);
    compression = Little<std::uint32_t>(bytes, 30);
  }
  if (width <= 0 || height == 0) Damaged(wholeSize, QStringLiteral("its size is 0 or negative"));
  RequirePictureSize(QStringLiteral("The stored picture"), width, height);
  constexpr std::uint32_t RunLength8 = 1, RunLength4 = 2;
  if (compression != RunLength8 && compression != RunLength4) {
    const std::int64_t start =
        std::max<std::int64_t>(Little<std::uint32_t>(bytes, 10), FileHead + std::int64_t{headSize});
    const std::int64_t needed = (width * bits + 31) / 32 * 4 * height;
    if (wholeSize - start < needed)
      Damaged(wholeSize, QStringLiteral("%1 x %2 pixels of %3 bits take %4 bytes")
                             .arg(width)
                             .arg(height)
                             .arg(bits)
                             .arg(needed));
  }
  return {"bmp", QSize(static_cast<int>(width), static_cast<int>(height)), 4};
}

// Of the parts that may be left out, those of a few bytes; what is read is the same picture, at the same
// scale.
bool IsNeeded(QByteArrayView type) {
  static constexpr const char* small[] = {"tRNS", "gAMA", "cHRM", "sRGB", "sBIT", "pHYs"};
  const bool critical = (type[0] & 0x20) == 0;
  return critical || std::any_of(std::begin(small), std::end(small),
                                 [type](const char* name) { return type == QByteArrayView(name, 4); });
}
}  // namespace

void RequirePictureSize(const QString& what, std::int64_t width, std::int64_t height) {
  if (height <= 0 || width <= MaxPicturePixels / height) return;
  throw EInvalidPicture(
      QStringLiteral("%1 has %2 x %3 pixels. Pictures of more than 67,108,864 pixels (8192 x 8192) cannot be "
                     "used; make it smaller first.")
          .arg(what)
          .arg(width)
          .arg(height));
}

bool IsStoredPicture(QByteArrayView bytes) {
  return bytes.startsWith("BM") || bytes.startsWith(PngSignature);
}

TPictureHead StoredPictureHead(QByteArrayView bytes, std::int64_t wholeSize) {
  if (bytes.startsWith(PngSignature)) return PngHead(bytes, wholeSize);
  if (bytes.startsWith("BM")) return BmpHead(bytes, wholeSize);
  throw EInvalidPicture(
      QStringLiteral("The stored data (%1 bytes) is not a picture of a format that forms keep (bmp, png).")
          .arg(wholeSize));
}

QByteArray LeanPng(const QByteArray& bytes) {
  if (!bytes.startsWith(PngSignature)) return bytes;
  QByteArray lean;
  qsizetype at = PngSignature.size(), copied = 0;
  while (bytes.size() - at >= ChunkFrame) {
    const std::int64_t size = std::int64_t{Big(bytes, at)} + ChunkFrame;
    if (size > bytes.size() - at) break;  // the decoder tells of the damage
    if (!IsNeeded(QByteArrayView(bytes).sliced(at + 4, 4))) {
      lean.append(bytes.constData() + copied, at - copied);
      copied = at + size;
    }
    at += size;
  }
  return copied == 0 ? bytes : lean.append(bytes.constData() + copied, bytes.size() - copied);
}
