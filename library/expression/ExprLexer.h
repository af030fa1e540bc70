// An expression as words: numbers, texts, names and signs.
#pragma once
#include "library/expression/ExprValue.h"

namespace expression {

enum class TokenKind { Number, Text, Name, Sign, End };

struct Token {
  TokenKind kind = TokenKind::End;
  int at = 0;
  int length = 0;
  Value value{};   // of a number or a text
  QString word{};  // a name in small letters, or the sign

  bool Is(const char* wordOrSign) const {
    return (kind == TokenKind::Name || kind == TokenKind::Sign) && word == QLatin1String(wordOrSign);
  }
};

class Lexer {
 public:
  explicit Lexer(const QString& text) : text_(text) {}
  // Throws EExpressionError for what is no word; at the end it goes on saying so.
  Token Next();

 private:
  QChar At(qsizetype i) const { return i < text_.size() ? text_[i] : QChar(); }
  Token Number();
  Token Based(int base);
  Token Text();
  Token Made(TokenKind kind, qsizetype end);
  QChar Escaped();

  const QString& text_;
  qsizetype at_ = 0;
};

}  // namespace expression
