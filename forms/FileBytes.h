// A whole file in memory.
#pragma once
#include <QByteArray>
#include <QString>

namespace forms {

// "-" is standard input. Throws Exception when it cannot be read or is larger than a form may be.
QByteArray ReadFile(const QString& fileName);

}  // namespace forms
