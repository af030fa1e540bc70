#include "vcl/UserFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "rtl/Exceptions.h"

void CannotReadUserFile(const QString& file, const QString& why) {
  throw Exception(QStringLiteral("%1 cannot be read: %2.").arg(QDir::toNativeSeparators(file), why));
}

QByteArray ReadUserFile(const QString& file) {
  constexpr qint64 Most = qint64{256} << 20;
  const auto fail = [&](const QString& why) { CannotReadUserFile(file, why); };
  QFile source(file);
  if (QFileInfo(file).exists() && !QFileInfo(file).isFile()) fail(QStringLiteral("it is no file"));
  if (!source.open(QIODevice::ReadOnly)) fail(source.errorString());
  if (source.size() > Most) fail(QStringLiteral("it is larger than %1 MB").arg(Most >> 20));
  return source.readAll();
}

QString ReadUserText(const QString& file) {
  QByteArray bytes = ReadUserFile(file);
  if (bytes.startsWith("\xEF\xBB\xBF")) bytes.remove(0, 3);
  QString text = QString::fromUtf8(bytes);
  if (text.toUtf8() != bytes) text = QString::fromLatin1(bytes);
  return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

void WriteUserFile(const QString& file, const QByteArray& bytes) {
  QSaveFile target(file);
  if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size() || !target.commit())
    throw Exception(QStringLiteral("%1 cannot be written: %2.")
                        .arg(QDir::toNativeSeparators(file), target.errorString()));
}
