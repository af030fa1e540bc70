// A library of named expressions in a text file, a line each: name "=" expression. The bytes of lines that
// nobody changed stay as they are, whatever they are.
#pragma once
#include <QByteArray>
#include <QList>
#include <QString>

#include "package/dialogs/PairsGrid.h"

class RegExprLibrary {
 public:
  RegExprLibrary() = default;
  explicit RegExprLibrary(const QByteArray& bytes);
  QByteArray Bytes() const;

  // What a grid shows. The value of a name is that of its first line.
  QList<TTextPair> Rows() const;
  // Throw Exception for what no line can hold.
  void Append(const TTextPair& entry);
  void Update(qsizetype row, const TTextPair& entry);
  void Remove(qsizetype row) { lines_.removeAt(row); }
  qsizetype Count() const { return lines_.size(); }

 private:
  QByteArray LineOf(const TTextPair& entry) const;
  QString TextOf(const QByteArray& bytes) const;
  QByteArray start_;  // a mark of the encoding
  QByteArray end_ = "\n";
  bool utf8_ = true;
  QList<QByteArray> lines_;  // without their ends, but for a carriage return that others have not
  bool lastEnds_ = true;
};
