#include "forms/FormFile.h"

#include <QFile>
#include <QFileInfo>
#include <cstdio>

#include "forms/SafeFile.h"

namespace forms {

Dialect DialectOfName(const QString& fileName) {
  Dialect d;
  d.lcl = fileName.endsWith(QStringLiteral(".lfm"), Qt::CaseInsensitive);
  d.fixedFloats = !d.lcl;
  d.foreignWords = d.lcl;
  return d;
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
