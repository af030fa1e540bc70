#include "forms/FormFile.h"

#include <QFile>
#include <QFileInfo>
#include <cstdio>

#include "forms/SafeFile.h"
#include "rtl/LargePages.h"

namespace forms {

Dialect DialectOfName(const QString& fileName) {
  Dialect d;
  d.lcl = fileName.endsWith(QStringLiteral(".lfm"), Qt::CaseInsensitive);
  d.fixedFloats = !d.lcl;
  d.foreignWords = d.lcl;
  return d;
}

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

bool SameFile(const QString& a, const QString& b) {
  const QFileInfo first(a);
  return a == b || (first.exists() && first == QFileInfo(b));
}

void WriteFile(const QString& fileName, const QByteArray& bytes, const QByteArray* expected) {
  if (fileName != QStringLiteral("-")) return ReplaceFile(fileName, bytes, expected);
  QFile out;
  if (!out.open(stdout, QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.flush())
    throw Exception(QStringLiteral("Cannot write to standard output: %1").arg(out.errorString()));
}

}  // namespace forms
