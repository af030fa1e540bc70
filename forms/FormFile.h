// Form files on disk. Everything that is written for a person goes through here.
#pragma once
#include "forms/Document.h"
#include "forms/FileBytes.h"

namespace forms {

// The style of a file that shows none, by the ending of its name (".lfm").
Dialect DialectOfName(const QString& fileName);
// Whether two names lead to one file; links are followed.
bool SameFile(const QString& a, const QString& b);
// Replaces the file in one step (forms/SafeFile.h); "-" is standard output. Throws Exception and leaves the
// old file.
void WriteFile(const QString& fileName, const QByteArray& bytes, const QByteArray* expected = nullptr);

}  // namespace forms
