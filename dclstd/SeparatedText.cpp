#include "dclstd/SeparatedText.h"

QList<QStringList> ReadSeparated(const QString& text, QChar separator) {
  QList<QStringList> rows;
  QStringList row;
  QString cell;
  bool quoted = false;
  const qsizetype size = text.size();
  for (qsizetype i = 0; i < size; ++i) {
    const QChar c = text[i];
    if (quoted && c == u'"' && i + 1 < size && text[i + 1] == u'"') {
      cell += c;
      ++i;
    } else if (c == u'"' && (quoted || cell.isEmpty())) {
      quoted = !quoted;
    } else if (!quoted && c == separator) {
      row << std::exchange(cell, {});
    } else if (!quoted && c == u'\n') {
      row << std::exchange(cell, {});
      rows << std::exchange(row, {});
    } else {
      cell += c;
    }
  }
  if (!cell.isEmpty() || !row.isEmpty()) rows << (row << cell);
  return rows;
}

QString WriteSeparated(const QList<QStringList>& rows, QChar separator) {
  QString text;
  for (const QStringList& row : rows) {
    for (qsizetype i = 0; i < row.size(); ++i) {
      QString cell = row[i];
      if (cell.contains(separator) || cell.contains(u'"') || cell.contains(u'\n'))
        cell = u'"' + cell.replace(u'"', QStringLiteral("\"\"")) + u'"';
      if (i > 0) text += separator;
      text += cell;
    }
    text += u'\n';
  }
  return text;
}

QChar SeparatorOf(const QString& text) {
  const QStringView line = QStringView(text).left(text.indexOf(u'\n'));
  for (const QChar separator : {QChar(u'\t'), QChar(u';')})
    if (line.contains(separator) && !line.contains(u',')) return separator;
  return u',';
}
