#include "library/values/StoredPicture.h"

#include "library/values/ColorDepth.h"
#include "vcl/PictureFile.h"

const QImage& StoredPicture::Image() const {
  if (shownStale_) {
    shown_ = full_.isNull() ? QImage() : WithDepth(full_, depth_);
    shownStale_ = false;
  }
  return shown_;
}

// Made only when they are asked for: whoever looks at a picture need not wait for its file.
QByteArray StoredPicture::Bytes() const {
  if (bytesStale_) {
    const QImage& image = Image();
    if (image.isNull())
      bytes_.clear();
    else
      bytes_ =
          compress_ || image.hasAlphaChannel() ? PictureToBytes(image, "PNG") : BitmapOfDepth(image, depth_);
    bytesStale_ = false;
  }
  return bytes_;
}

void StoredPicture::SetImage(const QImage& image) {
  full_ = image;
  shownStale_ = bytesStale_ = true;
}

void StoredPicture::SetBytes(const QByteArray& bytes) {
  full_ = bytes.isEmpty() ? QImage() : WithFullLevels(ImageFromBytes(bytes), bytes);
  shown_ = full_;
  bytes_ = bytes;
  shownStale_ = bytesStale_ = false;
}

void StoredPicture::SetStorage(bool compress, TVRXColorDepth depth) {
  if (compress == compress_ && depth == depth_) return;
  compress_ = compress;
  depth_ = depth;
  shownStale_ = bytesStale_ = !full_.isNull();
}
