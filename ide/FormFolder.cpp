#include "ide/FormFolder.h"

#include <QDir>
#include <QFile>

#include "forms/Document.h"

namespace {
constexpr int MostFiles = 2000;
constexpr qint64 HeadSize = 1024;

QByteArrayView Trimmed(QByteArrayView text) {
  while (!text.isEmpty() && static_cast<unsigned char>(text[0]) <= ' ') text = text.sliced(1);
  return text;
}
QByteArrayView TakeWord(QByteArrayView& text) {
  text = Trimmed(text);
  qsizetype size = 0;
  while (size < text.size() && static_cast<unsigned char>(text[size]) > ' ' && text[size] != ':' &&
         text[size] != '[')
    ++size;
  const QByteArrayView word = text.first(size);
  text = text.sliced(size);
  return word;
}
bool Is(QByteArrayView word, QByteArrayView what) { return word.compare(what, Qt::CaseInsensitive) == 0; }

// "inherited Form2: TForm2 [3]"; the name may be left out.
QByteArray RootClassOfText(QByteArrayView text) {
  if (text.startsWith("\xEF\xBB\xBF")) text = text.sliced(3);
  const QByteArrayView kind = TakeWord(text);
  if (!Is(kind, "object") && !Is(kind, "inherited") && !Is(kind, "inline")) return {};
  const QByteArrayView name = TakeWord(text);
  text = Trimmed(text);
  if (!text.startsWith(':')) return name.toByteArray();
  text = text.sliced(1);
  return TakeWord(text).toByteArray();
}

// Behind the signature: flags, which may be left out, and the class as a short string.
QByteArray RootClassOfStream(QByteArrayView head) {
  const qsizetype at = head.indexOf("TPF0");
  if (at < 0) return {};
  QByteArrayView rest = head.sliced(at + 4);
  if (!rest.isEmpty() && (static_cast<unsigned char>(rest[0]) & 0xF0u) == 0xF0u) {
    // A place among others, which roots have no use for, would be a number behind the flags.
    const bool placed = static_cast<unsigned char>(rest[0]) & 2u;
    if (placed) return {};
    rest = rest.sliced(1);
  }
  if (rest.isEmpty()) return {};
  const auto size = static_cast<qsizetype>(static_cast<unsigned char>(rest[0]));
  return rest.size() > size ? rest.sliced(1, size).toByteArray() : QByteArray();
}
}  // namespace

QByteArray RootClassOf(QByteArrayView head) {
  return forms::Document::Detect(head) == forms::Format::Text ? RootClassOfText(head)
                                                              : RootClassOfStream(head);
}

FormFolder::FormFolder(const QString& formFile) {
  const QFileInfo form(formFile);
  const QDir dir = form.absoluteDir();
  folder_ = dir.path();
  // Files with another ending are another framework's, and may be another program's.
  const QFileInfoList files = dir.entryInfoList(
      {QStringLiteral("*.") + form.suffix(), QStringLiteral("*.pas"), QStringLiteral("*.pp")}, QDir::Files,
      QDir::Name);
  int read = 0;
  for (const QFileInfo& f : files) {
    const QString suffix = f.suffix().toLower();
    if (suffix == QStringLiteral("pas") || suffix == QStringLiteral("pp")) {
      const QString name = f.completeBaseName().toLower();
      if (!units_.contains(name)) units_.insert(name, f.filePath());
      continue;
    }
    // Only files: opening a pipe would wait.
    QFile file(f.filePath());
    if (read == MostFiles || !f.isFile() || !file.open(QIODevice::ReadOnly)) continue;
    ++read;
    const QByteArray cls = RootClassOf(file.read(HeadSize)).toLower();
    if (!cls.isEmpty() && !files_.contains(cls)) files_.insert(cls, f.filePath());
  }
}

QString FormFolder::FileOf(const QByteArray& className) const { return files_.value(className.toLower()); }

QString FormFolder::UnitOf(const QString& formFile) const {
  return units_.value(QFileInfo(formFile).completeBaseName().toLower());
}
