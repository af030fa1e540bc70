#include "library/values/StoredPicture.h"

#include "library/values/ColorDepth.h"
#include "vcl/PictureFile.h"

void StoredPicture::Decode() const {
  if (decoded_ || Empty()) return;
  full_ = shown_ = WithFullLevels(ImageFromBytes(bytes_), bytes_);
  decoded_ = true;
}

void StoredPicture::Reduce() const {
  Decode();
  if (std::exchange(reduced_, true)) return;
  shown_ = full_.isNull() ? QImage() : WithDepth(full_, depth_);
}

const QImage& StoredPicture::Image() const {
  Reduce();
  return shown_;
}

const QImage& StoredPicture::FullImage() const {
  Decode();
  return full_;
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
    bytes_ = png ? PictureToBytes(shown_, "PNG") : BitmapOfDepth(shown_, depth_);
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
