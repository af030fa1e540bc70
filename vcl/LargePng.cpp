#include "vcl/LargePng.h"

#include <zlib.h>

#include <QSemaphore>
#include <QThreadPool>
#include <QtEndian>
#include <atomic>
#include <vector>

namespace {
constexpr int StripRows = 64;

void Put(QByteArray& to, std::uint32_t value) {
  char bytes[4];
  qToBigEndian(value, bytes);
  to.append(bytes, 4);
}
void PutChunk(QByteArray& to, const char* type, const QByteArray& data) {
  Put(to, static_cast<std::uint32_t>(data.size()));
  const qsizetype from = to.size();
  to.append(type, 4).append(data);
  Put(to, static_cast<std::uint32_t>(crc32(0, reinterpret_cast<const Bytef*>(to.constData() + from),
                                           static_cast<uInt>(to.size() - from))));
}

struct Strip {
  QByteArray deflated;
  uLong sum = 0;
  uLong plainSize = 0;
};

// Each byte as the difference to that of the pixel before it, which is 0 on plain ground.
QByteArray Filtered(const QImage& image, int top, int bottom) {
  constexpr char Sub = 1;
  const bool alpha = image.hasAlphaChannel();
  const int channels = alpha ? 4 : 3;
  QByteArray plain((qsizetype{image.width()} * channels + 1) * (bottom - top), Qt::Uninitialized);
  char* to = plain.data();
  for (int y = top; y < bottom; ++y) {
    *to++ = Sub;
    QRgb before = 0;
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const QRgb at = row[x];
      *to++ = static_cast<char>(qRed(at) - qRed(before));
      *to++ = static_cast<char>(qGreen(at) - qGreen(before));
      *to++ = static_cast<char>(qBlue(at) - qBlue(before));
      if (alpha) *to++ = static_cast<char>(qAlpha(at) - qAlpha(before));
      before = at;
    }
  }
  return plain;
}

Strip Deflate(const QByteArray& plain, bool last) {
  constexpr int Quick = 1, RawStream = -15, Memory = 9;
  z_stream stream{};
  if (deflateInit2(&stream, Quick, Z_DEFLATED, RawStream, Memory, Z_FILTERED) != Z_OK) throw std::bad_alloc();
  Strip strip;
  // Room for the mark between two strips, which the bound leaves out.
  strip.deflated.resize(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(plain.size()))) + 16);
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(plain.constData()));
  stream.avail_in = static_cast<uInt>(plain.size());
  stream.next_out = reinterpret_cast<Bytef*>(strip.deflated.data());
  stream.avail_out = static_cast<uInt>(strip.deflated.size());
  deflate(&stream, last ? Z_FINISH : Z_SYNC_FLUSH);
  strip.deflated.resize(strip.deflated.size() - stream.avail_out);
  deflateEnd(&stream);
  strip.plainSize = static_cast<uLong>(plain.size());
  strip.sum = adler32(1, reinterpret_cast<const Bytef*>(plain.constData()), static_cast<uInt>(plain.size()));
  return strip;
}
}  // namespace

QByteArray LargePng(const QImage& source, const TGoOn& goOn) {
  const QImage image =
      source.convertToFormat(source.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  if (image.isNull()) throw std::bad_alloc();
  const int count = (image.height() + StripRows - 1) / StripRows;
  std::vector<Strip> strips(static_cast<std::size_t>(count));
  std::atomic<bool> ended = false, outOfMemory = false;
  QSemaphore done;
  QThreadPool pool;
  for (int i = 0; i < count; ++i)
    pool.start([&, i] {
      try {
        const int top = i * StripRows, bottom = std::min(top + StripRows, image.height());
        if (!ended)
          strips[static_cast<std::size_t>(i)] = Deflate(Filtered(image, top, bottom), i + 1 == count);
      } catch (const std::bad_alloc&) {
        outOfMemory = ended = true;
      }
      done.release();
    });
  constexpr int Breath = 15;  // milliseconds
  for (int finished = 0; finished < count;) {
    if (goOn && !ended && !goOn(finished * 100 / count)) ended = true;
    if (done.tryAcquire(1, Breath)) ++finished;
    while (done.tryAcquire()) ++finished;
  }
  pool.waitForDone();
  if (outOfMemory) throw std::bad_alloc();
  if (ended) return {};

  QByteArray png("\x89PNG\r\n\x1a\n", 8);
  QByteArray head;
  Put(head, static_cast<std::uint32_t>(image.width()));
  Put(head, static_cast<std::uint32_t>(image.height()));
  head.append(8).append(image.hasAlphaChannel() ? 6 : 2).append(3, '\0');
  PutChunk(png, "IHDR", head);
  QByteArray scale;
  Put(scale, static_cast<std::uint32_t>(image.dotsPerMeterX()));
  Put(scale, static_cast<std::uint32_t>(image.dotsPerMeterY()));
  PutChunk(png, "pHYs", scale.append(1));
  uLong sum = adler32(0, nullptr, 0);
  strips.front().deflated.prepend("\x78\x01", 2);
  for (Strip& strip : strips) {
    sum = adler32_combine(sum, strip.sum, static_cast<z_off_t>(strip.plainSize));
    if (&strip == &strips.back()) Put(strip.deflated, static_cast<std::uint32_t>(sum));
    PutChunk(png, "IDAT", strip.deflated);
    strip.deflated = QByteArray();
  }
  PutChunk(png, "IEND", {});
  return png;
}
