// The text form: one grammar for checking a whole file and for decoding one value.
#pragma once
#include "forms/FormTree.h"
#include "forms/TextChars.h"

namespace forms {

class TextReader {
 public:
  explicit TextReader(QByteArrayView text, std::size_t at = 0);

  // Reads the root object into `tree`, whose source is this reader's text.
  void ReadDocument(FormTree& tree);
  // Reads objects up to the end, as children of a root that is not in the text.
  void ReadObjects(FormTree& tree);
  // Reads one value at the current place; with null it is only checked.
  void ReadValue(Value* out, int depth = 0);
  void SkipBlanks() {
    while (p_ != end_ && IsBlank(*p_)) ++p_;
    if (p_ != end_ && *p_ == '{') SkipDirectives();
  }
  // Refuses anything but blanks up to the end.
  void ExpectEnd();
  // Where the reader stands.
  std::size_t Offset() const { return static_cast<std::size_t>(p_ - begin_); }

 private:
  using Scratch = std::vector<Property>;

  void TakeStyle(FormTree& tree) const;
  std::unique_ptr<Object> ReadObject(FormTree& tree, std::size_t nodeBegin, int depth);
  void ReadProperties(FormTree& tree, Object& object);
  void ReadNumber(Value* out);
  void ReadString(Value* out);
  void ReadIdent(Value* out);
  void ReadSet(Value* out);
  void ReadList(Value* out, int depth);
  void ReadCollection(Value* out, int depth);
  void ReadBinary(Value* out);
  std::int64_t ReadInteger();

  void SkipDirectives();
  std::size_t NodeEnd();
  QByteArrayView PeekWord() const {
    const char* q = p_;
    if (q == end_ || !IsIdentStart(*q)) return {};
    while (q != end_ && IsIdentChar(*q)) ++q;
    return {p_, q};
  }
  QByteArrayView Take(QByteArrayView word, const char* what);
  QByteArrayView Word(const char* what) { return Take(PeekWord(), what); }
  QByteArrayView HeaderWord(const char* what);
  QByteArrayView PropertyPath(QByteArrayView firstWord);
  QByteArrayView UsualName(QByteArrayView firstWord);
  void Expect(char c, const char* what);
  QByteArray Here() const;
  [[noreturn]] void Fail(const QString& text, const char* at = nullptr) const;
  [[noreturn]] void FailTooMany() const;
  void Charge(std::int64_t pieceCost) {
    if (!budget_.Take(pieceCost)) FailTooMany();
  }

  const char* begin_;
  const char* p_;
  const char* end_;
  Scratch scratch_;
  bool directives_ = false;
  Budget budget_;
  // Signs of the file's style, met on the way.
  int glued_ = 0, apart_ = 0;            // closing brackets
  int doubledQuotes_ = 0, coded39_ = 0;  // apostrophes
  int fixedFloats_ = 0, shortFloats_ = 0;
  int blankIndex_ = 0, tightIndex_ = 0;
  int highBytes_ = 0;
};

// What the reader would take for an identifier with points, a property's name, a name in an object's header.
bool IsPath(QByteArrayView text);
bool IsPropertyPath(QByteArrayView text);
bool IsHeaderName(QByteArrayView text);

}  // namespace forms
