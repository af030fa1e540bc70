#include "library/values/ColorDepth.h"

#include <QtEndian>
#include <array>
#include <cstring>

#include "vcl/PictureFile.h"

namespace {
constexpr QRgb Plain = 0x00FFFFFF;  // a pixel without its transparency

template <class F>
QImage Mapped(const QImage& image, F&& map) {
  QImage result =
      image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  for (int y = 0; y < result.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < result.width(); ++x) row[x] = (row[x] & ~Plain) | (map(row[x]) & Plain);
  }
  return result;
}

// A level of a few, as one of 256.
constexpr int LevelValue(int level, int levels) { return level * 255 / (levels - 1); }

QRgb ToLevels(QRgb pixel, int red, int green, int blue) {
  const auto nearest = [](int value, int levels) {
    return LevelValue((value * (levels - 1) + 127) / 255, levels);
  };
  return qRgb(nearest(qRed(pixel), red), nearest(qGreen(pixel), green), nearest(qBlue(pixel), blue));
}

QRgb ToPlatformColor(QRgb pixel) {
  static constexpr std::array<QRgb, 16> colors{0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                                               0x008080, 0xC0C0C0, 0x808080, 0xFF0000, 0x00FF00, 0xFFFF00,
                                               0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  QRgb best = 0;
  int least = INT_MAX;
  for (const QRgb color : colors) {
    const int r = qRed(color) - qRed(pixel), g = qGreen(color) - qGreen(pixel),
              b = qBlue(color) - qBlue(pixel);
    const int distance = r * r + g * g + b * b;
    if (distance < least) {
      least = distance;
      best = color;
    }
  }
  return best;
}

// The plain colours of a picture in the order in which they occur, up to a limit of 256.
class Palette {
 public:
  explicit Palette(int limit) : limit_(limit) { slots_.fill(-1); }
  // The number of a colour; -1 when there is no room for it.
  int IndexOf(QRgb pixel) {
    const QRgb color = pixel & Plain;
    std::size_t at = color * 0x9E3779B1u >> 22;
    for (; slots_[at] >= 0; at = (at + 1) % slots_.size())
      if (colors[slots_[at]] == (color | ~Plain)) return slots_[at];
    if (colors.size() == limit_) return -1;
    slots_[at] = static_cast<int>(colors.size());
    colors.append(color | ~Plain);
    return slots_[at];
  }
  QList<QRgb> colors;

 private:
  int limit_;
  std::array<int, 1024> slots_;
};

bool HasFewColors(const QImage& image, int limit) {
  const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
  Palette palette(limit);
  for (int y = 0; y < pixels.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
    for (int x = 0; x < pixels.width(); ++x)
      if (palette.IndexOf(row[x]) < 0) return false;
  }
  return true;
}

QImage Zeros(QSize size, QImage::Format format) {
  QImage image(size, format);
  if (image.isNull()) throw EInvalidPicture(QStringLiteral("There is not enough memory for the picture."));
  // What is behind the pixels of a row is stored, too; fill() leaves it.
  std::memset(image.bits(), 0, static_cast<std::size_t>(image.sizeInBytes()));
  return image;
}

QImage BlackAndWhite(const QImage& reduced) {
  const QImage pixels = reduced.convertToFormat(QImage::Format_RGB32);
  QImage result = Zeros(pixels.size(), QImage::Format_Mono);
  result.setColorTable({~Plain, ~0u});
  for (int y = 0; y < pixels.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
    uchar* to = result.scanLine(y);
    for (int x = 0; x < pixels.width(); ++x)
      if (row[x] & Plain) to[x / 8] = static_cast<uchar>(to[x / 8] | 0x80 >> x % 8);
  }
  return result;
}

QImage Indexed(const QImage& reduced, int limit) {
  const QImage pixels = reduced.convertToFormat(QImage::Format_RGB32);
  QImage result = Zeros(pixels.size(), QImage::Format_Indexed8);
  Palette palette(limit);
  for (int y = 0; y < pixels.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
    uchar* to = result.scanLine(y);
    for (int x = 0; x < pixels.width(); ++x) to[x] = static_cast<uchar>(std::max(0, palette.IndexOf(row[x])));
  }
  // The writer chooses the bits of a pixel by the length of the table.
  palette.colors.resize(limit, ~Plain);
  result.setColorTable(palette.colors);
  return result;
}

// The head of a bitmap file of 16 bits a pixel with masks for the channels.
constexpr quint32 FileHead = 14, InfoHead = 40, Masks = 12, Head = FileHead + InfoHead + Masks;
constexpr quint32 RedMask = 0xF800, GreenMask = 0x07E0, BlueMask = 0x001F;
constexpr quint32 ByMasks = 3;

QByteArray Bitmap16(const QImage& reduced) {
  const QImage pixels = reduced.convertToFormat(QImage::Format_RGB32);
  const qsizetype stride = (qsizetype{pixels.width()} * 2 + 3) / 4 * 4;
  QByteArray bytes(qsizetype{Head} + stride * pixels.height(), '\0');
  char* at = bytes.data();
  const auto put = [&at](auto value) {
    qToLittleEndian(value, at);
    at += sizeof(value);
  };
  put(quint16{0x4D42});
  put(static_cast<quint32>(bytes.size()));
  put(quint32{0});
  put(Head);
  put(InfoHead);
  put(qint32{pixels.width()});
  put(qint32{pixels.height()});
  put(quint16{1});
  put(quint16{16});
  put(ByMasks);
  put(static_cast<quint32>(stride * pixels.height()));
  put(qint32{pixels.dotsPerMeterX()});
  put(qint32{pixels.dotsPerMeterY()});
  put(quint32{0});
  put(quint32{0});
  for (const quint32 mask : {RedMask, GreenMask, BlueMask}) put(mask);
  const auto level = [](int value, int levels) { return (value * (levels - 1) + 127) / 255; };
  for (int y = pixels.height() - 1; y >= 0; --y) {
    const auto* row = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
    char* start = at;
    for (int x = 0; x < pixels.width(); ++x)
      put(static_cast<quint16>(level(qRed(row[x]), 32) << 11 | level(qGreen(row[x]), 64) << 5 |
                               level(qBlue(row[x]), 32)));
    at = start + stride;
  }
  return bytes;
}

bool IsBitmap16(const QByteArray& bytes) {
  if (bytes.size() < qsizetype{Head} || !bytes.startsWith("BM")) return false;
  const auto at = [&bytes](qsizetype place) { return qFromLittleEndian<quint32>(bytes.constData() + place); };
  return qFromLittleEndian<quint16>(bytes.constData() + 28) == 16 && at(30) == ByMasks && at(54) == RedMask &&
         at(58) == GreenMask && at(62) == BlueMask;
}
}  // namespace

QImage WithDepth(const QImage& image, TVRXColorDepth depth) {
  switch (depth) {
    case TVRXColorDepth::spfMono:
      return Mapped(image, [](QRgb p) { return qGray(p) < 128 ? 0u : Plain; });
    case TVRXColorDepth::spf4bit:
      return HasFewColors(image, 16) ? image : Mapped(image, ToPlatformColor);
    case TVRXColorDepth::spf8bit:
      return HasFewColors(image, 256) ? image : Mapped(image, [](QRgb p) { return ToLevels(p, 8, 8, 4); });
    case TVRXColorDepth::spf16bit:
      return Mapped(image, [](QRgb p) { return ToLevels(p, 32, 64, 32); });
    default:
      return image;
  }
}

QByteArray BitmapOfDepth(const QImage& reduced, TVRXColorDepth depth) {
  switch (depth) {
    case TVRXColorDepth::spfMono:
      return PictureToBytes(BlackAndWhite(reduced), "BMP");
    case TVRXColorDepth::spf4bit:
      return PictureToBytes(Indexed(reduced, 16), "BMP");
    case TVRXColorDepth::spf8bit:
      return PictureToBytes(Indexed(reduced, 256), "BMP");
    case TVRXColorDepth::spf16bit:
      return Bitmap16(reduced);
    default:
      return PictureToBytes(reduced, "BMP");
  }
}

QImage WithFullLevels(const QImage& read, const QByteArray& bytes) {
  if (!IsBitmap16(bytes)) return read;
  return Mapped(read, [](QRgb p) {
    return qRgb(LevelValue(qRed(p) >> 3, 32), LevelValue(qGreen(p) >> 2, 64), LevelValue(qBlue(p) >> 3, 32));
  });
}
