// Tables as text: cells between separators, rows in lines. A cell that holds a separator, a quote or a line
// feed stands in quotes, with its own quotes doubled.
#pragma once
#include <QStringList>

QList<QStringList> ReadSeparated(const QString& text, QChar separator);
QString WriteSeparated(const QList<QStringList>& rows, QChar separator);
// What the first line is separated by: tabs, semicolons or commas.
QChar SeparatorOf(const QString& text);
