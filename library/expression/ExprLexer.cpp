#include "library/expression/ExprLexer.h"

#include <cmath>

namespace expression {

namespace {
// Longer ones first.
constexpr const char* Signs[] = {"**", "//", "<=", ">=", "==", "!=", "<>", "=", "<",
                                 ">",  "+",  "-",  "*",  "/",  "%",  "(",  ")", ","};

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }
bool StartsName(QChar c) { return c.isLetter() || c == u'_'; }
bool InName(QChar c) { return c.isLetterOrNumber() || c == u'_'; }
}  // namespace

Token Lexer::Made(TokenKind kind, qsizetype end) {
  Token token{kind, static_cast<int>(at_), static_cast<int>(end - at_)};
  at_ = end;
  return token;
}

Token Lexer::Next() {
  while (At(at_).isSpace()) ++at_;
  if (at_ >= text_.size()) return Made(TokenKind::End, at_);
  const QChar c = text_[at_];
  if (IsDigit(c) || (c == u'.' && IsDigit(At(at_ + 1)))) return Number();
  if (c == u'"' || c == u'\'') return Text();
  if (StartsName(c)) {
    qsizetype end = at_ + 1;
    while (InName(At(end))) ++end;
    const QString word = text_.mid(at_, end - at_).toLower();
    Token token = Made(TokenKind::Name, end);
    token.word = word;
    return token;
  }
  for (const char* sign : Signs)
    if (const QLatin1String word(sign); QStringView(text_).mid(at_).startsWith(word)) {
      Token token = Made(TokenKind::Sign, at_ + word.size());
      token.word = word;
      return token;
    }
  throw EExpressionError(
      static_cast<int>(at_),
      QStringLiteral("\"%1\" belongs to no expression").arg(text_.mid(at_, c.isHighSurrogate() ? 2 : 1)));
}

Token Lexer::Based(int base) {
  qsizetype end = at_ + 2;
  double value = 0;
  while (InName(At(end))) {
    const int digit = QStringView(text_).mid(end, 1).toInt(nullptr, 36);
    const bool isDigit = IsDigit(At(end)) || digit >= 10;
    if (!isDigit || digit >= base)
      throw EExpressionError(
          static_cast<int>(end),
          QStringLiteral("expected a digit of base %1, found \"%2\"").arg(base).arg(text_[end]));
    value = value * base + digit;
    ++end;
  }
  if (end == at_ + 2 || !std::isfinite(value))
    throw EExpressionError(static_cast<int>(at_), QStringLiteral("this is no number of base %1").arg(base));
  Token token = Made(TokenKind::Number, end);
  token.value = value;
  return token;
}

Token Lexer::Number() {
  if (text_[at_] == u'0') {
    const QChar letter = At(at_ + 1).toLower();
    if (const int base = letter == u'x' ? 16 : letter == u'o' ? 8 : letter == u'b' ? 2 : 0)
      return Based(base);
  }
  qsizetype end = at_;
  const auto digits = [&] {
    while (IsDigit(At(end))) ++end;
  };
  digits();
  if (At(end) == u'.') ++end, digits();
  if (At(end).toLower() == u'e') {
    const qsizetype mark = end++;
    if (At(end) == u'+' || At(end) == u'-') ++end;
    if (!IsDigit(At(end)))
      throw EExpressionError(static_cast<int>(mark),
                             QStringLiteral("expected digits behind the \"e\" of a number"));
    digits();
  }
  if (InName(At(end)))
    throw EExpressionError(static_cast<int>(end),
                           QStringLiteral("expected an operator, found \"%1\"").arg(text_[end]));
  const double value = QStringView(text_).mid(at_, end - at_).toDouble();
  if (!std::isfinite(value))
    throw EExpressionError(static_cast<int>(at_), QStringLiteral("the number is too large"));
  Token token = Made(TokenKind::Number, end);
  token.value = value;
  return token;
}

// What a backslash and the letters behind it mean; at_ is on the first letter, and behind the last one then.
QChar Lexer::Escaped() {
  constexpr std::pair<char16_t, char16_t> letters[] = {{u'n', u'\n'}, {u't', u'\t'},  {u'r', u'\r'},
                                                       {u'"', u'"'},  {u'\'', u'\''}, {u'\\', u'\\'}};
  const QChar letter = At(at_);
  for (const auto& [from, to] : letters)
    if (letter == from) return ++at_, to;
  const int digits = letter == u'x' ? 2 : letter == u'u' ? 4 : 0;
  bool ok = false;
  const uint code = QStringView(text_).mid(at_ + 1, digits).toUInt(&ok, 16);
  const bool plain = !QStringView(text_).mid(at_ + 1, digits).contains(u'+');
  if (digits == 0 || !ok || !plain || at_ + digits >= text_.size())
    throw EExpressionError(static_cast<int>(at_ - 1),
                           QStringLiteral("expected \\n, \\t, \\r, \\\\, \\\", \\', \\xHH or \\uHHHH"));
  at_ += 1 + digits;
  return QChar(static_cast<char16_t>(code));
}

Token Lexer::Text() {
  const qsizetype start = at_;
  const QChar quote = text_[at_++];
  QString value;
  while (at_ < text_.size() && text_[at_] != quote) {
    if (text_[at_] == u'\\') {
      ++at_;
      value += Escaped();
    } else {
      value += text_[at_++];
    }
  }
  if (at_ >= text_.size())
    throw EExpressionError(static_cast<int>(start), QStringLiteral("the text has no closing %1").arg(quote));
  const qsizetype end = at_ + 1;
  at_ = start;
  Token token = Made(TokenKind::Text, end);
  token.value = std::move(value);
  return token;
}

}  // namespace expression
