// Byte strings of form files and their code pages.
#pragma once
#include <QByteArray>
#include <QString>

namespace forms {

bool IsUtf8(QByteArrayView bytes);
// UTF-8 when it is valid UTF-8, else the code page.
QString DecodeBytes(QByteArrayView bytes, const QByteArray& codePage);
// The code page that a font charset of a form stands for ("RUSSIAN_CHARSET" -> "windows-1251"); empty for a
// charset that tells nothing.
QByteArray CodePageOfCharset(QByteArrayView charset);

}  // namespace forms
