// The text form: one grammar for checking a whole file and for decoding one value.
#pragma once
#include <array>

#include "forms/Document.h"

namespace forms {

class TextReader {
 public:
  explicit TextReader(QByteArrayView text, std::size_t at = 0);

  // Reads the root object into `document`, whose source is this reader's text.
  void ReadDocument(Document& document);
  // Reads one value at the current place; with null it is only checked.
  void ReadValue(Value* out, int depth = 0);
  void SkipBlanks();
  // Refuses anything but blanks up to the end.
  void ExpectEnd();

 private:
  using Scratch = std::vector<Property>;

  std::unique_ptr<Object> ReadObject(Document& document, std::size_t nodeBegin, int depth);
  void ReadProperties(Document& document, Object& object);
  void ReadNumber(Value* out);
  void ReadString(Value* out);
  bool ReadPlainString(Value* out);
  void ReadIdent(Value* out);
  void ReadSet(Value* out);
  void ReadList(Value* out, int depth);
  void ReadCollection(Value* out, int depth);
  void ReadBinary(Value* out);
  std::int64_t ReadInteger();

  std::size_t NodeEnd();
  QByteArrayView PeekWord() const;
  QByteArrayView Word(const char* what);
  QByteArrayView HeaderWord(const char* what);
  QByteArrayView PropertyPath();
  void Expect(char c, const char* what);
  std::size_t Offset() const { return static_cast<std::size_t>(p_ - begin_); }
  QByteArray Here() const;
  [[noreturn]] void Fail(const QString& text, const char* at = nullptr) const;

  const char* begin_;
  const char* p_;
  const char* end_;
  Scratch scratch_;
  bool directives_ = false;
  // Signs of the file's style, met on the way.
  int glued_ = 0, apart_ = 0;           // closing brackets
  int doubledQuotes_ = 0, coded39_ = 0; // apostrophes
  int fixedFloats_ = 0, shortFloats_ = 0;
  int blankIndex_ = 0, tightIndex_ = 0;
  int highBytes_ = 0;
};

constexpr bool IsIdentStart(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
// Asked for every character of a file.
inline constexpr std::array<bool, 256> IdentChars = [] {
  std::array<bool, 256> table{};
  for (unsigned c = 0; c < 128; ++c)
    table[c] = IsIdentStart(static_cast<char>(c)) || (c >= '0' && c <= '9');
  return table;
}();
constexpr bool IsIdentChar(char c) { return IdentChars[static_cast<unsigned char>(c)]; }
// What the reader would take for an identifier with points, a property's name, a name in an object's header.
bool IsPath(QByteArrayView text);
bool IsPropertyPath(QByteArrayView text);
bool IsHeaderName(QByteArrayView text);

}  // namespace forms
