// Pictures from files, for dialogs and commands.
#pragma once
#include "rtl/Exceptions.h"
#include "vcl/Bitmap.h"

// A file or a stream of bytes is not a picture that can be used; the text says which, why, and what to do.
class EInvalidPicture : public Exception {
 public:
  using Exception::Exception;
};

// Larger pictures are refused: work on them needs several copies in memory.
constexpr std::int64_t MaxPicturePixels = std::int64_t{8192} * 8192;

// Any format the toolkit reads; the picture is turned upright when it says that it lies.
TBitmap LoadPicture(const QString& file);
TBitmap PictureFromBytes(const QByteArray& bytes);
// The same with its transparency, as QImage::Format_ARGB32 or RGB32.
QImage ImageFromBytes(const QByteArray& bytes);
QByteArray PictureToBytes(const QImage& image, const char* format);
// For file dialogs: all readable formats first, then every file.
QString PictureFilter();
