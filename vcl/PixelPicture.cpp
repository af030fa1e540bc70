#include "vcl/PixelPicture.h"

#include <QBuffer>
#include <QImageReader>

#include "vcl/PictureHead.h"

namespace {
// How a file begins, and the decoder for it. None of these but the drawing can refer to anything.
struct FormatRow {
  QByteArrayView start;
  const char* format;
};
const FormatRow Formats[] = {
    {{"\x89PNG\r\n\x1a\n", 8}, "png"},
    {{"BM", 2}, "bmp"},
    {{"\xFF\xD8\xFF", 3}, "jpeg"},
    {{"GIF8", 4}, "gif"},
    {{"\0\0\1\0", 4}, "ico"},
    {{"\0\0\2\0", 4}, "cur"},
    {{"/* XPM", 6}, "xpm"},
    {{"#define", 7}, "xbm"},
    {{"P1", 2}, "pbm"},
    {{"P4", 2}, "pbm"},
    {{"P2", 2}, "pgm"},
    {{"P5", 2}, "pgm"},
    {{"P3", 2}, "ppm"},
    {{"P6", 2}, "ppm"},
};
}  // namespace

QStringList PictureEndings() {
  static constexpr const char* all[] = {"bmp", "cur", "gif", "ico", "jpeg", "jpg", "pbm",
                                        "pgm", "png", "ppm", "svg", "svgz", "xbm", "xpm"};
  QStringList endings;
  for (const char* ending : all)
    if (QImageReader::supportedImageFormats().contains(ending)) endings << QString::fromLatin1(ending);
  return endings;
}

namespace {
const char* FormatOf(const QByteArray& bytes, const QString& what) {
  for (const FormatRow& row : Formats)
    if (bytes.startsWith(row.start)) return row.format;
  throw EInvalidPicture(QStringLiteral("%1 is not a picture of a format that can be read (%2).")
                            .arg(what, PictureEndings().join(QStringLiteral(", "))));
}

// The picture that the reader stands at.
QImage ReadOne(QImageReader& reader, const QString& what) {
  const QSize size = reader.size();
  if (size.isValid()) {
    RequirePictureSize(what, size.width(), size.height());
    // The decoder would call a picture damaged that there is no memory for.
    const QImage::Format pixels = reader.imageFormat();
    if (QImage(size, pixels == QImage::Format_Invalid ? QImage::Format_ARGB32 : pixels).isNull())
      throw std::bad_alloc();
  }
  QImage image = reader.read();
  if (image.isNull())
    throw EInvalidPicture(QStringLiteral("%1 is damaged or incomplete: %2.").arg(what, reader.errorString()));
  return image;
}

QList<QImage> ReadFirst(int most, const QByteArray& bytes, const char* format, const QString& what) {
  // Ours is the limit for formats that tell the size at once, the toolkit's, in megabytes, for the others.
  static const bool limited = (QImageReader::setAllocationLimit(1024), true);
  Q_UNUSED(limited)
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, format);
  reader.setAutoDetectImageFormat(false);
  reader.setAutoTransform(true);
  QList<QImage> images{ReadOne(reader, what)};
  const int count = std::min(most, reader.imageCount());
  for (int i = 1; i < count && reader.jumpToImage(i); ++i) images << ReadOne(reader, what);
  return images;
}
}  // namespace

QImage DecodedPicture(const QByteArray& bytes, const char* format, const QString& what) {
  return ReadFirst(1, bytes, format, what).first();
}

QImage PixelPictureFromBytes(const QByteArray& bytes, const QString& what) {
  const char* const format = FormatOf(bytes, what);
  return DecodedPicture(LeanPng(bytes), format, what);
}

QList<QImage> PixelPicturesFromBytes(const QByteArray& bytes, const QString& what) {
  constexpr int most = 256;
  const QByteArrayView format(FormatOf(bytes, what));
  if (format != "ico" && format != "cur") return {PixelPictureFromBytes(bytes, what)};
  return ReadFirst(most, bytes, format.data(), what);
}
