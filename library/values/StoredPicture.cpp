#include "library/values/StoredPicture.h"

#include "library/values/RegionMask.h"
#include "vcl/PictureFile.h"

namespace {
// To the nearest of a few levels of each channel; doing it twice changes nothing more.
QImage Quantized(const QImage& image, int redLevels, int greenLevels, int blueLevels) {
  QImage result =
      image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  const auto nearest = [](int value, int levels) {
    const int step = (value * (levels - 1) + 127) / 255;
    return step * 255 / (levels - 1);
  };
  for (int y = 0; y < result.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < result.width(); ++x)
      row[x] = qRgba(nearest(qRed(row[x]), redLevels), nearest(qGreen(row[x]), greenLevels),
                     nearest(qBlue(row[x]), blueLevels), qAlpha(row[x]));
  }
  return result;
}

QImage Mono(const QImage& image) {
  QImage result =
      image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  for (int y = 0; y < result.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < result.width(); ++x) {
      const int v = qGray(row[x]) < 128 ? 0 : 255;
      row[x] = qRgba(v, v, v, qAlpha(row[x]));
    }
  }
  return result;
}

QImage Reduced(const QImage& image, TVRXColorDepth depth) {
  switch (depth) {
    case TVRXColorDepth::spfMono:
      return Mono(image);
    case TVRXColorDepth::spf4bit:
      return Quantized(image, 2, 4, 2);
    case TVRXColorDepth::spf8bit:
      return Quantized(image, 8, 8, 4);
    case TVRXColorDepth::spf16bit:
      return Quantized(image, 32, 64, 32);
    default:
      return image;
  }
}
}  // namespace

void StoredPicture::Decode() const {
  if (decoded_ || Empty()) return;
  full_ = shown_ = ImageFromBytes(bytes_);
  decoded_ = true;
}

void StoredPicture::Reduce() const {
  Decode();
  if (std::exchange(reduced_, true)) return;
  shown_ = full_.isNull() ? QImage() : Reduced(full_, depth_);
}

const QImage& StoredPicture::Image() const {
  Reduce();
  return shown_;
}

bool StoredPicture::Encode(const TGoOn& goOn) const {
  if (!stale_) return true;
  Reduce();
  const bool png = compress_ || shown_.hasAlphaChannel();
  if (png && IsLargePicture(size_)) {
    const QByteArray bytes = LargePng(shown_, goOn);
    if (bytes.isEmpty()) return false;
    bytes_ = bytes;
  } else {
    bytes_ = PictureToBytes(shown_, png ? "PNG" : "BMP");
  }
  stale_ = false;
  return true;
}

QByteArray StoredPicture::Bytes() const {
  Encode({});
  return bytes_;
}

void StoredPicture::SetImage(const QImage& image) {
  RequirePictureSize(QStringLiteral("The picture"), image.width(), image.height());
  full_ = image;
  size_ = image.size();
  decoded_ = true;
  reduced_ = false;
  stale_ = true;
}

void StoredPicture::SetBytes(const QByteArray& bytes) {
  size_ = bytes.isEmpty() ? QSize() : ImageFromBytes(bytes).size();
  full_ = shown_ = QImage();
  bytes_ = bytes;
  decoded_ = false;
  reduced_ = true;
  stale_ = false;
}

void StoredPicture::SetStorage(bool compress, TVRXColorDepth depth) {
  if (compress == compress_ && depth == depth_) return;
  compress_ = compress;
  depth_ = depth;
  reduced_ = Empty();
  stale_ = !Empty();
}

bool EncodeAll(std::initializer_list<const StoredPicture*> pictures, const TGoOn& goOn) {
  const int count = static_cast<int>(pictures.size());
  int before = 0;
  for (const StoredPicture* picture : pictures) {
    const TGoOn part = [&](int percent) { return goOn((before * 100 + percent) / count); };
    if (!picture->Encode(goOn ? part : TGoOn())) return false;
    ++before;
  }
  return true;
}
