// Text of strangers on a terminal.
#pragma once
#include <QString>

// The text on one line and harmless: control characters, line and paragraph separators and what turns the
// direction of writing are shown as \n, \x1B or \u202E. Everything else stays.
QString Printable(const QString& text);
// Whether Printable changes the character.
bool IsControl(QChar c);
