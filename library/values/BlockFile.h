// Text files of blocks. The first line says what it is and in which version; then blocks, whose heads begin
// at the margin and whose lines are indented; the last line is "end", so that a piece of a file is not taken
// for the whole. Blocks that nobody here knows are kept.
#pragma once
#include <QStringList>

inline const QString VRXBlockEnd = QStringLiteral("end"), VRXBlockIndent = QStringLiteral("  ");

// UTF-8, with or without its mark. Throws Exception for what is no text.
QStringList VRXBlockLines(const QByteArray& bytes);
QByteArray VRXBlockText(const QStringList& lines);
// Its first line.
QString VRXBlockTitle(const QString& title);
bool VRXIsBlockHead(const QString& line);

// Reads such a file into what its descendant makes of blocks and their lines.
class VRXBlockReader {
 public:
  virtual ~VRXBlockReader() = default;

 protected:
  // Throws Exception with line and reason, as Refuse does.
  void ReadLines(const QString& title, const QStringList& lines);
  // False for a block of a later version.
  virtual bool Block(const QString& word, const QString& rest) = 0;
  // A line of a block that is known.
  virtual void Inside(const QString& line) = 0;
  [[noreturn]] void Refuse(const QString& why) const;
  // As much of it as a message has room for.
  static QString Short(const QString& text);
  // Blocks of later versions with their lines.
  const QStringList& Foreign() const { return foreign_; }

 private:
  void Head(const QString& title, const QString& line) const;
  void Line(const QString& line);
  qsizetype at_ = 0;
  bool known_ = false;
  QStringList foreign_;
};
