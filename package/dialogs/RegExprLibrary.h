// A library of named expressions in a text file, a line each: name "=" expression, written as the grid shows
// them. The ends of lines and the encoding of the file stay.
#pragma once
#include <QByteArray>
#include <QList>
#include <QString>

#include "package/dialogs/PairsGrid.h"

class RegExprLibrary {
 public:
  RegExprLibrary() = default;
  explicit RegExprLibrary(const QByteArray& bytes);
  // Every row is a line.
  QByteArray Bytes() const;

  // Where the file holds a name twice, the value is that of its first line.
  const QList<TTextPair>& Rows() const { return rows_; }
  // Throw Exception for what no line can hold.
  void Append(const TTextPair& entry);
  void Update(qsizetype row, const TTextPair& entry);
  void Remove(qsizetype row) { rows_.removeAt(row); }
  qsizetype Count() const { return rows_.size(); }

 private:
  const TTextPair& Checked(const TTextPair& entry) const;
  QByteArray Encoded(const QString& text) const { return utf8_ ? text.toUtf8() : text.toLatin1(); }
  QByteArray start_;  // a mark of the encoding
  QByteArray end_ = "\n";
  bool utf8_ = true;
  QList<TTextPair> rows_;
};
