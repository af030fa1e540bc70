#include "cli/PixelCommands.h"

#include <QDir>
#include <QFileInfo>
#include <QThreadPool>

#include "designintf/PackageCall.h"
#include "forms/FormFile.h"
#include "rtl/Exceptions.h"
#include "vcl/PictureFile.h"

TColor ColorOption(const QString& option, const QString& text) {
  try {
    return StringToColor(text);
  } catch (const EConvertError& e) {
    throw UsageError{QStringLiteral("%1: %2").arg(option, e.Message())};
  }
}

void WritePng(const QString& file, const TBitmap& picture) {
  if (picture.Empty())
    throw Exception(QStringLiteral("%1: a picture of %2 x %3 pixels cannot be written")
                        .arg(file)
                        .arg(picture.Width())
                        .arg(picture.Height()));
  forms::WriteFile(file, PictureToBytes(picture.Image(), "PNG"));
}

int RunOnAllCores(const QStringList& sources, Console& console, const QString& command,
                  const std::function<void(const QString& source)>& job) {
  QThreadPool pool;
  std::vector<QString> failures(static_cast<std::size_t>(sources.size()));
  for (qsizetype i = 0; i < sources.size(); ++i)
    pool.start([&, i] {
      try {
        job(sources[i]);
      } catch (...) {
        failures[static_cast<std::size_t>(i)] = CurrentExceptionMessage();
      }
    });
  pool.waitForDone();
  int result = ExitOk;
  for (const QString& failure : failures) {
    if (failure.isEmpty()) continue;
    console.Tell(QStringLiteral("vrx %1: %2").arg(command, failure));
    result = ExitFindings;
  }
  return result;
}

void CheckDistinct(const QStringList& sources) {
  QHash<QString, QString> seen;
  for (const QString& source : sources) {
    const QString name = QFileInfo(source).completeBaseName();
    if (seen.contains(name))
      throw UsageError{
          QStringLiteral("%1 and %2 would be written to the same files; give them different names")
              .arg(seen[name], source)};
    seen.insert(name, source);
  }
}

QString OutputFile(const QString& folder, const QString& source, const QString& suffix) {
  return QDir(folder).filePath(QFileInfo(source).completeBaseName() + u'-' + suffix);
}
