#include "forms/FormFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cstdio>

namespace forms {

Dialect DialectOfName(const QString& fileName) {
  Dialect d;
  d.lcl = fileName.endsWith(QStringLiteral(".lfm"), Qt::CaseInsensitive);
  d.fixedFloats = !d.lcl;
  return d;
}

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
  QByteArray bytes = file.readAll();
  if (file.error() != QFile::NoError)
    throw Exception(QStringLiteral("Cannot read %1: %2").arg(fileName, file.errorString()));
  return bytes;
}

Document LoadForm(const QString& fileName) {
  return Document::Parse(ReadFile(fileName), DialectOfName(fileName));
}

void WriteFile(const QString& fileName, const QByteArray& bytes) {
  const auto fail = [&](const QString& why) {
    throw Exception(QStringLiteral("Cannot save %1: %2. The file on disk is unchanged.").arg(fileName, why));
  };
  if (fileName == QStringLiteral("-")) {
    QFile out;
    if (!out.open(stdout, QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.flush())
      throw Exception(QStringLiteral("Cannot write to standard output: %1").arg(out.errorString()));
    return;
  }
  QSaveFile file(fileName);
  // Never write in place: a half-written form would be worse than an error.
  file.setDirectWriteFallback(false);
  if (!file.open(QIODevice::WriteOnly)) fail(file.errorString());
  if (file.write(bytes) != bytes.size() || !file.commit()) fail(file.errorString());
}

}  // namespace forms
