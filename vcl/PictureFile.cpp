#include "vcl/PictureFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include "vcl/SvgCheck.h"

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

// The endings of files that can be read here.
QStringList Endings() {
  static constexpr const char* all[] = {"bmp", "cur", "gif", "ico", "jpeg", "jpg", "pbm",
                                        "pgm", "png", "ppm", "svg", "svgz", "xbm", "xpm"};
  QStringList endings;
  for (const char* ending : all)
    if (QImageReader::supportedImageFormats().contains(ending)) endings << QString::fromLatin1(ending);
  return endings;
}

QImage Decoded(const QByteArray& bytes, const char* format, const QString& what) {
  // Ours is the limit for formats that tell the size at once, the toolkit's, in megabytes, for the others.
  static const bool limited = (QImageReader::setAllocationLimit(1024), true);
  Q_UNUSED(limited)
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, format);
  reader.setAutoDetectImageFormat(false);
  reader.setAutoTransform(true);
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

QByteArray ReadRegularFile(const QString& name) {
  const QFileInfo info(name);
  if (!info.exists()) throw EInvalidPicture(QStringLiteral("There is no file %1.").arg(name));
  if (info.isDir()) throw EInvalidPicture(QStringLiteral("%1 is a folder, not a picture.").arg(name));
  const auto irregular = [&] {
    throw EInvalidPicture(
        QStringLiteral("%1 is a pipe or a device, not a file; it is not opened.").arg(name));
  };
  if (!info.isFile()) irregular();
  // It may have become something else meanwhile: nothing waits for a pipe, and what was opened is asked.
  const int handle = ::open(QFile::encodeName(name).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  const auto cannotRead = [&](const QString& why) {
    throw EInvalidPicture(QStringLiteral("%1 cannot be read: %2.").arg(name, why));
  };
  if (handle < 0) cannotRead(qt_error_string(errno));
  QFile file;
  file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
  struct stat status {};
  if (::fstat(handle, &status) != 0 || !S_ISREG(status.st_mode)) irregular();
  constexpr qint64 MaxPictureFile = qint64{512} << 20;
  QByteArray bytes = file.read(MaxPictureFile + 1);
  if (file.error() != QFileDevice::NoError) cannotRead(file.errorString());
  if (bytes.size() > MaxPictureFile)
    throw EInvalidPicture(QStringLiteral("%1 is larger than %2 MB.").arg(name).arg(MaxPictureFile >> 20));
  return bytes;
}
}  // namespace

QImage PixelPictureFromBytes(const QByteArray& bytes, const QString& what) {
  for (const FormatRow& row : Formats)
    if (bytes.startsWith(row.start)) return Decoded(LeanPng(bytes), row.format, what);
  throw EInvalidPicture(QStringLiteral("%1 is not a picture of a format that can be read (%2).")
                            .arg(what, Endings().join(QStringLiteral(", "))));
}

TBitmap LoadPicture(const QString& file) {
  const QByteArray bytes = ReadRegularFile(file);
  return TBitmap::FromImage(IsSvg(bytes) ? Decoded(SelfContainedSvg(bytes, file), "svg", file)
                                         : PixelPictureFromBytes(bytes, file));
}

QImage ImageFromBytes(const QByteArray& bytes) {
  const TPictureHead head = StoredPictureHead(bytes, bytes.size());
  QImage image =
      Decoded(LeanPng(bytes), head.format, QStringLiteral("The stored data (%1 bytes)").arg(bytes.size()));
  image = std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32
                                                                   : QImage::Format_RGB32);
  if (image.isNull()) throw std::bad_alloc();
  return image;
}

QByteArray PictureToBytes(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!image.isNull() && !image.save(&buffer, format))
    throw EInvalidPicture(
        QStringLiteral("The picture cannot be written as %1.").arg(QString::fromLatin1(format)));
  return bytes;
}

QString PictureFilter() {
  QStringList patterns;
  for (const QString& ending : Endings()) patterns << QStringLiteral("*.") + ending;
  return QObject::tr("Pictures (%1)").arg(patterns.join(u' ')) + QStringLiteral(";;") +
         QObject::tr("All files (*)");
}
