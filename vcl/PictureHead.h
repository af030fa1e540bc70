// What a picture that a form keeps says about itself in its first bytes: known before anything is decoded.
#pragma once
#include <QByteArray>
#include <QSize>

#include "rtl/Exceptions.h"

// A file or a stream of bytes is not a picture that can be used; the text says which, why, and what to do.
class EInvalidPicture : public Exception {
 public:
  using Exception::Exception;
};

// Larger pictures are refused: work on them needs several copies in memory.
constexpr std::int64_t MaxPicturePixels = std::int64_t{8192} * 8192;
// What the pictures of one form may take in memory: a value with three of the largest and some room for
// others, so that reading them all stays a matter of seconds.
constexpr std::int64_t MaxFormPictureBytes = 3 * MaxPicturePixels * 4 + (std::int64_t{64} << 20);

// The one limit for pictures that are read, stored or about to be made. `what` stands at the start of the
// sentence.
void RequirePictureSize(const QString& what, std::int64_t width, std::int64_t height);

struct TPictureHead {
  const char* format = "";  // as QImageReader calls it
  QSize size;
  int pixelBytes = 4;  // in memory while it is decoded
  std::int64_t DecodedBytes() const { return std::int64_t{size.width()} * size.height() * pixelBytes; }
};

// Whether the bytes begin like one of the formats that a form keeps: BMP and PNG, those that are written
// here.
bool IsStoredPicture(QByteArrayView bytes);
// Throws EInvalidPicture for any other format, for sizes beyond the limit and for a BMP that is shorter than
// it says. `bytes` may be the first bytes of `wholeSize`; 64 are enough.
TPictureHead StoredPictureHead(QByteArrayView bytes, std::int64_t wholeSize);

// A PNG without the parts that pixels do not need (texts, profiles): they can grow a thousandfold when they
// are read. The same bytes when it has none.
QByteArray LeanPng(const QByteArray& bytes);
