#include "designintf/Purposes.h"

#include <QDir>
#include <QFile>
#include <QHash>

namespace {
using Texts = QHash<QByteArray, QString>;

Texts ReadTexts() {
  Texts texts;
  const QDir folder(QStringLiteral(":/purposes"));
  for (const QString& name : folder.entryList(QDir::Files)) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) continue;
    for (const QByteArray& line : file.readAll().split('\n')) {
      const qsizetype colon = line.indexOf(": ");
      if (colon > 0 && !line.startsWith('#'))
        texts.insert(line.first(colon), QString::fromUtf8(line.mid(colon + 2)));
    }
  }
  return texts;
}
QString TextOf(const QByteArray& key) {
  static const Texts texts = ReadTexts();
  return texts.value(key);
}
}  // namespace

QString PurposeOf(const TClass& cls) {
  return cls.Description().isEmpty() ? TextOf("class " + cls.ClassName()) : cls.Description();
}

QString PurposeOf(const TClass& cls, const TPropInfo& prop) {
  if (!prop.Description.isEmpty()) return prop.Description;
  for (const TClass* c = &cls; c; c = c->ClassParent())
    if (const QString text = TextOf(c->ClassName() + '.' + prop.Name); !text.isEmpty()) return text;
  return TextOf(prop.Name);
}
