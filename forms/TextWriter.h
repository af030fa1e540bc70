// Writes values and headers of the text form in the style of a file.
#pragma once
#include "forms/FormTree.h"

namespace forms {

class TextWriter {
 public:
  explicit TextWriter(const Dialect& style) : style_(style) {}

  void ObjectHeader(const Object& object, int level);
  void ObjectFooter(int level);
  void PropertyLine(QByteArrayView path, const Value& value, int level);
  // A value that starts on the current line; `level` is that of the property.
  void WriteValue(const Value& value, int level);
  void Raw(QByteArrayView text) { out_.append(text); }
  void Reserve(qsizetype size);
  // A piece of the source as it stands; on a new line where it would run into what now stands before it. Its
  // lines are indented by so many levels more.
  void Copy(QByteArrayView piece, int moreLevels = 0);
  // Starts a new line unless the output is at the start of one.
  void FreshLine();
  bool Empty() const { return out_.isEmpty(); }
  QByteArray Result() && { return std::move(out_); }

 private:
  void Indent(int level) { out_.append(2 * level, ' '); }
  void RawIndented(QByteArrayView text, int more);
  void NewLine() { out_.append(style_.eol); }
  void WriteString(const Value& value, int level);
  void WriteUnits(const std::vector<char32_t>& units, bool highLiteral, int level);
  void WriteReal(const Value& value);
  void WriteBinary(const QByteArray& bytes, int level);
  void WriteCollection(const std::vector<CollectionItem>& items, int level);

  const Dialect& style_;
  QByteArray out_;
  const char* copiedEnd_ = nullptr;  // in the source, of the last piece copied
  qsizetype sizeThen_ = -1;          // of the output, behind it
};

// One value as it stands in a form file, on one line where the style allows.
QByteArray ValueToText(const Value& value, const Dialect& style = {}, int level = 0);
// Parses a whole text as one value; the result does not refer to `text`. EFormError on anything else.
Value TextToValue(QByteArrayView text);

}  // namespace forms
