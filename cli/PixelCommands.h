// What the commands that work on pictures share.
#pragma once
#include <functional>

#include "cli/Commands.h"
#include "vcl/Bitmap.h"

// Names (clRed), $00BBGGRR or #rrggbb; a UsageError that names the option otherwise.
TColor ColorOption(const QString& option, const QString& text);
// A PNG, written at once or not at all.
void WritePng(const QString& file, const TBitmap& picture);

// Runs the jobs on all cores. What fails is told on `err`, one line each; the others go on. The exit code of
// the whole.
int RunOnAllCores(const QStringList& sources, Console& console, const QString& command,
                  const std::function<void(const QString& source)>& job);
// Two sources that would be written to files of one name are a UsageError.
void CheckDistinct(const QStringList& sources);
// A file in the folder, named after the source: "NAME-suffix".
QString OutputFile(const QString& folder, const QString& source, const QString& suffix);
