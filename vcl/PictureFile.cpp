#include "vcl/PictureFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include "vcl/SvgCheck.h"

namespace {
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

TBitmap LoadPicture(const QString& file) {
  const QByteArray bytes = ReadRegularFile(file);
  return TBitmap::FromImage(IsSvg(bytes) ? DecodedPicture(SelfContainedSvg(bytes, file), "svg", file)
                                         : PixelPictureFromBytes(bytes, file));
}

QList<QImage> LoadIcons(const QString& file) {
  const QByteArray bytes = ReadRegularFile(file);
  if (IsSvg(bytes)) return {DecodedPicture(SelfContainedSvg(bytes, file), "svg", file)};
  return PixelPicturesFromBytes(bytes, file);
}

QImage ImageFromBytes(const QByteArray& bytes) {
  const TPictureHead head = StoredPictureHead(bytes, bytes.size());
  QImage image = DecodedPicture(LeanPng(bytes), head.format,
                                QStringLiteral("The stored data (%1 bytes)").arg(bytes.size()));
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
  for (const QString& ending : PictureEndings()) patterns << QStringLiteral("*.") + ending;
  return QObject::tr("Pictures (%1)").arg(patterns.join(u' ')) + QStringLiteral(";;") +
         QObject::tr("All files (*)");
}
