#include "vcl/PictureFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

namespace {
// `what` names the picture at the start of a sentence.
QImage Read(QImageReader& reader, const QString& what) {
  // Ours is the limit for formats that tell the size at once, the toolkit's, in megabytes, for the others.
  static const bool limited = (QImageReader::setAllocationLimit(1024), true);
  Q_UNUSED(limited)
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  if (!reader.canRead()) {
    QStringList formats;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
      formats << QString::fromLatin1(format);
    throw EInvalidPicture(QStringLiteral("%1 is not a picture of a format that can be read (%2).")
                              .arg(what, formats.join(QStringLiteral(", "))));
  }
  const QSize size = reader.size();
  if (std::int64_t{size.width()} * size.height() > MaxPicturePixels)
    throw EInvalidPicture(
        QStringLiteral("%1 has %2 x %3 pixels. Pictures of more than 67,108,864 pixels (8192 x "
                       "8192) cannot be used; make it smaller first.")
            .arg(what)
            .arg(size.width())
            .arg(size.height()));
  const QImage image = reader.read();
  if (image.isNull())
    throw EInvalidPicture(QStringLiteral("%1 is damaged or incomplete: %2.").arg(what, reader.errorString()));
  return image;
}
}  // namespace

TBitmap LoadPicture(const QString& file) {
  const QFileInfo info(file);
  if (!info.exists()) throw EInvalidPicture(QStringLiteral("There is no file %1.").arg(file));
  if (info.isDir()) throw EInvalidPicture(QStringLiteral("%1 is a folder, not a picture.").arg(file));
  QImageReader reader(file);
  return TBitmap::FromImage(Read(reader, file));
}

QImage ImageFromBytes(const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  QImageReader reader(&buffer);
  const QImage image = Read(reader, QStringLiteral("The stored data (%1 bytes)").arg(bytes.size()));
  return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

TBitmap PictureFromBytes(const QByteArray& bytes) { return TBitmap::FromImage(ImageFromBytes(bytes)); }

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
  for (const QByteArray& format : QImageReader::supportedImageFormats())
    patterns << QStringLiteral("*.") + QString::fromLatin1(format);
  return QObject::tr("Pictures (%1)").arg(patterns.join(u' ')) + QStringLiteral(";;") +
         QObject::tr("All files (*)");
}
