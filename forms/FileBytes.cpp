#include "forms/FileBytes.h"

#include <QFile>
#include <QFileInfo>
#include <cstdio>

#include "forms/Limits.h"
#include "rtl/Exceptions.h"
#include "rtl/LargePages.h"

namespace forms {

namespace {
// The size is a guess: pipes have none, and a file may grow or shrink meanwhile.
QByteArray ReadAll(QFile& file) {
  QByteArray bytes(file.size(), Qt::Uninitialized);
  PreferLargePages(bytes.data(), static_cast<std::size_t>(bytes.size()));
  bytes.truncate(std::max<qint64>(file.read(bytes.data(), bytes.size()), 0));
  const QByteArray rest = file.readAll();
  return rest.isEmpty() ? bytes : bytes + rest;
}
}  // namespace

QByteArray ReadFile(const QString& fileName) {
  QFile file;
  bool open;
  if (fileName == QStringLiteral("-")) {
    open = file.open(stdin, QIODevice::ReadOnly);
  } else {
    file.setFileName(fileName);
    open = !QFileInfo(fileName).isDir() && file.open(QIODevice::ReadOnly);
  }
  if (!open)
    throw Exception(QStringLiteral("Cannot read %1: %2")
                        .arg(fileName, QFileInfo(fileName).isDir() ? QStringLiteral("it is a folder")
                                                                   : file.errorString()));
  if (file.size() > MaxFileSize)
    throw Exception(QStringLiteral("%1 is larger than %2 MB").arg(fileName).arg(MaxFileSize >> 20));
  QByteArray bytes = ReadAll(file);
  if (file.error() != QFile::NoError)
    throw Exception(QStringLiteral("Cannot read %1: %2").arg(fileName, file.errorString()));
  return bytes;
}

}  // namespace forms
