// Form files on disk. Saving is atomic: whatever fails, the old file is still whole.
#pragma once
#include "forms/Document.h"

namespace forms {

// The style of a file that shows none, by the ending of its name (".lfm").
Dialect DialectOfName(const QString& fileName);
// "-" is standard input. Errors: Exception (cannot be read) or EFormError.
QByteArray ReadFile(const QString& fileName);
Document LoadForm(const QString& fileName);
// Replaces the file in one step; "-" is standard output. Throws Exception and leaves the old file.
void WriteFile(const QString& fileName, const QByteArray& bytes);

}  // namespace forms
