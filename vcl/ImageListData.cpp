#include "vcl/ImageListData.h"

#include <zlib.h>

#include <QtEndian>

#include "vcl/PictureFile.h"

namespace {
constexpr qsizetype PlainHead = 14, BmpHead = 54;
constexpr int PerRow = 4;            // pictures in a row of the strip
constexpr std::uint16_t Masked = 1;  // a bit of the strip's flags
constexpr std::uint16_t Colors32 = 0x20;
constexpr auto PlainStart = "Li", PackedStart = "Lz";
const QByteArrayView StripStart("IL\x01\x01", 4);

[[noreturn]] void Damaged(qsizetype size, const QString& why) {
  throw EInvalidPicture(
      QStringLiteral("The image list's data (%1 bytes) is damaged or incomplete: %2.").arg(size).arg(why));
}

// Bytes from the front; what is not there is damage.
class Front {
 public:
  explicit Front(QByteArrayView bytes) : rest_(bytes), whole_(bytes.size()) {}
  QByteArrayView Take(std::int64_t count) {
    if (count > rest_.size())
      Damaged(whole_, QStringLiteral("it ends %1 bytes early").arg(count - rest_.size()));
    const QByteArrayView taken = rest_.first(count);
    rest_ = rest_.sliced(count);
    return taken;
  }
  template <class T>
  T Number() {
    return qFromLittleEndian<T>(Take(sizeof(T)).data());
  }
  QByteArrayView Rest() const { return rest_; }

 private:
  QByteArrayView rest_;
  qsizetype whole_;
};

struct Head {
  TImageListLayout layout;
  bool packed = false, masked = false;
  std::int64_t count = 0, width = 0, height = 0;

  std::int64_t Pixels() const { return count * width * height; }
};

Head ReadHead(Front& front, qsizetype whole) {
  Head head{};
  const QByteArrayView start = front.Rest();
  if (start.startsWith(StripStart)) {
    front.Take(4);
    head.layout = TImageListLayout::CommonControls;
    head.count = front.Number<std::uint16_t>();
    front.Take(4);  // room and growth
    head.width = front.Number<std::uint16_t>();
    head.height = front.Number<std::uint16_t>();
    front.Take(4);  // background
    head.masked = (front.Number<std::uint16_t>() & Masked) != 0;
    front.Take(8);  // overlays
  } else if (start.startsWith(PlainStart) || start.startsWith(PackedStart)) {
    head.layout = TImageListLayout::Plain;
    head.packed = start.startsWith(PackedStart);
    front.Take(2);
    head.count = front.Number<std::int32_t>();
    head.width = front.Number<std::int32_t>();
    head.height = front.Number<std::int32_t>();
  } else {
    throw EInvalidPicture(
        QStringLiteral("The image list's data (%1 bytes) is of a layout that is not known.").arg(whole));
  }
  if (head.count < 0 || head.width <= 0 || head.height <= 0)
    Damaged(whole, QStringLiteral("%1 pictures of %2 x %3").arg(head.count).arg(head.width).arg(head.height));
  RequirePictureSize(QStringLiteral("The image list"), head.width, head.height);
  RequirePictureSize(QStringLiteral("The image list"), head.width * head.height, head.count);
  return head;
}

// A BMP inside of the strip. Its own head tells how long it is: the length in front of it often does not.
QImage TakeBitmap(Front& front, qsizetype whole) {
  const QByteArrayView bytes = front.Rest();
  if (bytes.size() < BmpHead || !bytes.startsWith("BM"))
    Damaged(whole, QStringLiteral("a bitmap is missing"));
  const auto number = [&](qsizetype at) { return qFromLittleEndian<std::int32_t>(bytes.data() + at); };
  const auto bits = qFromLittleEndian<std::uint16_t>(bytes.data() + 28);
  const std::int64_t width = number(18), height = std::abs(std::int64_t{number(22)});
  RequirePictureSize(QStringLiteral("The image list"), width, height);
  const std::int64_t used = number(46), palette = bits > 8 ? 0
                                                           : 4 * (used > 0 ? std::min<std::int64_t>(used, 256)
                                                                           : std::int64_t{1} << bits);
  const std::int64_t masks = number(30) == 3 ? 12 : 0;
  const QByteArrayView taken = front.Take(BmpHead + palette + masks + (width * bits + 31) / 32 * 4 * height);
  QByteArray bmp(taken.data(), taken.size());
  // Strips are written with the place of the pixels as it was before the palette.
  qToLittleEndian(static_cast<std::uint32_t>(BmpHead + palette + masks), bmp.data() + 10);
  qToLittleEndian(static_cast<std::uint32_t>(bmp.size()), bmp.data() + 2);
  QImage image = ImageFromBytes(bmp).convertToFormat(QImage::Format_ARGB32);
  if (bits != 32) return image;
  // The decoder takes no notice of the fourth byte.
  QImage alpha = image;
  bool any = false;
  const bool up = number(22) > 0;
  for (int y = 0; y < alpha.height(); ++y) {
    const auto* from = reinterpret_cast<const uchar*>(bmp.constData() + BmpHead + masks) +
                       4 * width * (up ? alpha.height() - 1 - y : y);
    auto* to = reinterpret_cast<QRgb*>(alpha.scanLine(y));
    for (int x = 0; x < alpha.width(); ++x, from += 4) {
      to[x] = qRgba(from[2], from[1], from[0], from[3]);
      any = any || from[3] != 0;
    }
  }
  return any ? alpha : image;
}

void ReadStrip(Front& front, const Head& head, TImageListData& list, qsizetype whole) {
  const QImage strip = TakeBitmap(front, whole);
  const QImage mask = head.masked ? TakeBitmap(front, whole) : QImage();
  const std::int64_t rows = (head.count + PerRow - 1) / PerRow;
  for (const QImage& image : {strip, mask})
    if (!image.isNull() && (image.width() < head.width * PerRow || image.height() < head.height * rows))
      Damaged(whole, QStringLiteral("%1 pictures do not fit on %2 x %3")
                         .arg(head.count)
                         .arg(image.width())
                         .arg(image.height()));
  for (int i = 0; i < head.count; ++i) {
    const QRect place(QPoint(i % PerRow * list.size.width(), i / PerRow * list.size.height()), list.size);
    QImage picture = strip.copy(place);
    bool sheer = false;
    for (int y = 0; y < picture.height() && !sheer; ++y)
      for (int x = 0; x < picture.width() && !sheer; ++x) sheer = qAlpha(picture.pixel(x, y)) != 255;
    // Pixels that say themselves how sheer they are need no mask.
    for (int y = 0; y < picture.height() && !sheer && !mask.isNull(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        if ((mask.pixel(place.x() + x, place.y() + y) & 0xFFFFFF) != 0) picture.setPixel(x, y, 0);
    list.images << picture;
  }
}

void ReadPlain(Front& front, const Head& head, TImageListData& list, qsizetype whole) {
  QByteArray unpacked;
  QByteArrayView pixels;
  const std::int64_t needed = head.Pixels() * 4;
  if (head.packed) {
    const auto size = front.Number<std::int64_t>();
    if (size < 0) Damaged(whole, QStringLiteral("a negative length"));
    const QByteArrayView packed = front.Take(size);
    unpacked.resize(needed);
    uLongf got = static_cast<uLongf>(needed);
    const int result = ::uncompress(reinterpret_cast<Bytef*>(unpacked.data()), &got,
                                    reinterpret_cast<const Bytef*>(packed.data()), static_cast<uLong>(size));
    if (result != Z_OK || static_cast<std::int64_t>(got) != needed)
      Damaged(whole, QStringLiteral("it does not unpack to %1 bytes of pixels").arg(needed));
    pixels = unpacked;
  } else {
    pixels = front.Take(needed);
  }
  const auto* from = reinterpret_cast<const uchar*>(pixels.data());
  for (std::int64_t i = 0; i < head.count; ++i) {
    QImage picture(list.size, QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
      auto* to = reinterpret_cast<QRgb*>(picture.scanLine(y));
      for (int x = 0; x < picture.width(); ++x, from += 4) to[x] = qRgba(from[2], from[1], from[0], from[3]);
    }
    list.images << picture;
  }
}

template <class T>
void Put(QByteArray& bytes, T value) {
  char little[sizeof(T)];
  qToLittleEndian(value, little);
  bytes.append(little, sizeof(T));
}

// Without the length in front, as strips have it: bottom row first.
void PutBitmap(QByteArray& bytes, const QImage& image, int bits) {
  const int stride = (image.width() * bits + 31) / 32 * 4, palette = bits == 1 ? 8 : 0;
  bytes.append("BM");
  Put<std::uint32_t>(bytes, static_cast<std::uint32_t>(BmpHead + palette + stride * image.height()));
  Put<std::uint32_t>(bytes, 0);
  Put<std::uint32_t>(bytes, static_cast<std::uint32_t>(BmpHead + palette));
  Put<std::uint32_t>(bytes, 40);
  Put<std::int32_t>(bytes, image.width());
  Put<std::int32_t>(bytes, image.height());
  Put<std::uint16_t>(bytes, 1);
  Put<std::uint16_t>(bytes, static_cast<std::uint16_t>(bits));
  Put<std::uint32_t>(bytes, 0);
  Put<std::uint32_t>(bytes, static_cast<std::uint32_t>(stride * image.height()));
  for (int i = 0; i < 4; ++i) Put<std::uint32_t>(bytes, 0);
  if (bits == 1) Put<std::uint32_t>(bytes, 0), Put<std::uint32_t>(bytes, 0xFFFFFF);
  for (int y = image.height() - 1; y >= 0; --y) {
    QByteArray row(stride, '\0');
    for (int x = 0; x < image.width(); ++x) {
      const QRgb p = image.pixel(x, y);
      if (bits == 1 && qAlpha(p) < 128) row[x / 8] = static_cast<char>(row[x / 8] | (0x80 >> x % 8));
      if (bits == 32) qToLittleEndian<std::uint32_t>(qAlpha(p) == 0 ? 0 : p, row.data() + 4 * x);
    }
    bytes += row;
  }
}
}  // namespace

std::int64_t ImageListDecodedBytes(QByteArrayView bytes) {
  if (bytes.size() < PlainHead ||
      !(bytes.startsWith(StripStart) || bytes.startsWith(PlainStart) || bytes.startsWith(PackedStart)))
    return 0;
  Front front(bytes);
  return ReadHead(front, bytes.size()).Pixels() * 4;
}

TImageListData ReadImageList(const QByteArray& bytes) {
  TImageListData list;
  if (bytes.isEmpty()) return list;
  Front front(bytes);
  const Head head = ReadHead(front, bytes.size());
  list.layout = head.layout;
  list.size = QSize(static_cast<int>(head.width), static_cast<int>(head.height));
  (head.layout == TImageListLayout::Plain ? ReadPlain : ReadStrip)(front, head, list, bytes.size());
  return list;
}

QByteArray WriteImageList(const TImageListData& list) {
  QByteArray bytes;
  if (list.images.isEmpty()) return bytes;
  const auto count = list.images.size();
  if (list.layout == TImageListLayout::Plain) {
    bytes.append(PlainStart);
    for (const qsizetype n : {count, qsizetype{list.size.width()}, qsizetype{list.size.height()}})
      Put(bytes, static_cast<std::int32_t>(n));
    for (const QImage& image : list.images)
      for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) Put<std::uint32_t>(bytes, image.pixel(x, y));
    return bytes;
  }
  const auto rows = static_cast<int>((count + PerRow - 1) / PerRow);
  QImage strip(list.size.width() * PerRow, list.size.height() * rows, QImage::Format_ARGB32);
  strip.fill(0);
  for (int i = 0; i < count; ++i)
    for (int y = 0; y < list.size.height(); ++y)
      for (int x = 0; x < list.size.width(); ++x)
        strip.setPixel(i % PerRow * list.size.width() + x, i / PerRow * list.size.height() + y,
                       list.images[i].pixel(x, y));
  bytes.append(StripStart.data(), StripStart.size());
  Put(bytes, static_cast<std::uint16_t>(count));
  Put(bytes, static_cast<std::uint16_t>(rows * PerRow));
  Put(bytes, static_cast<std::uint16_t>(PerRow));
  Put(bytes, static_cast<std::uint16_t>(list.size.width()));
  Put(bytes, static_cast<std::uint16_t>(list.size.height()));
  Put<std::uint32_t>(bytes, 0xFFFFFFFF);  // no background
  Put<std::uint16_t>(bytes, Masked | Colors32);
  for (int i = 0; i < 4; ++i) Put<std::int16_t>(bytes, -1);
  PutBitmap(bytes, strip, 32);
  PutBitmap(bytes, strip, 1);
  return bytes;
}
