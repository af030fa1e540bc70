// Files that a person names.
#pragma once
#include <QByteArray>
#include <QString>

// Throw Exception with what is wrong. Only regular files are read.
QByteArray ReadUserFile(const QString& file);
// What is no UTF-8 was written with one byte a letter. Lines end with a line feed.
QString ReadUserText(const QString& file);
// A file that is there already is replaced as a whole or stays.
void WriteUserFile(const QString& file, const QByteArray& bytes);
// Throws that it cannot be read, as the others do, for a reason that the reader of its content has.
[[noreturn]] void CannotReadUserFile(const QString& file, const QString& why);
