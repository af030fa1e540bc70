#include "ide/UnitText.h"

#include <algorithm>

namespace {
bool IsWordChar(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}
bool Same(QByteArrayView a, QByteArrayView b) {
  return a.size() == b.size() && a.compare(b, Qt::CaseInsensitive) == 0;
}

// Words and single characters, without blanks, comments and strings.
class Tokens {
 public:
  explicit Tokens(QByteArrayView text) : rest_(text) {}
  // Empty at the end.
  QByteArrayView Next() {
    for (;;) {
      if (rest_.isEmpty()) return {};
      if (rest_[0] == '{') {
        SkipBehind("}");
      } else if (rest_.startsWith("(*")) {
        SkipBehind("*)");
      } else if (rest_.startsWith("//")) {
        SkipBehind("\n");
      } else if (rest_[0] == '\'') {
        rest_ = rest_.sliced(1);
        SkipBehind("'");
      } else if (IsWordChar(rest_[0])) {
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), IsWordChar);
        return Take(end - rest_.begin());
      } else if (static_cast<unsigned char>(rest_[0]) <= ' ') {
        rest_ = rest_.sliced(1);
      } else {
        return Take(1);
      }
    }
  }

 private:
  QByteArrayView Take(qsizetype size) {
    const QByteArrayView token = rest_.first(size);
    rest_ = rest_.sliced(size);
    return token;
  }
  void SkipBehind(QByteArrayView end) {
    const qsizetype at = rest_.indexOf(end);
    rest_ = at < 0 ? QByteArrayView() : rest_.sliced(at + end.size());
  }
  QByteArrayView rest_;
};
}  // namespace

// "TForm2 = class sealed (Unit1.TForm1, IOther)"
QByteArray DeclaredAncestor(QByteArrayView unit, QByteArrayView className) {
  Tokens tokens(unit);
  QByteArrayView token = tokens.Next();
  while (!token.isEmpty()) {
    const bool named = Same(token, className);
    token = tokens.Next();
    if (!named || token != "=") continue;
    token = tokens.Next();
    if (!Same(token, "class")) continue;
    token = tokens.Next();
    if (Same(token, "sealed") || Same(token, "abstract")) token = tokens.Next();
    if (token != "(") continue;
    QByteArrayView ancestor = tokens.Next();
    while ((token = tokens.Next()) == ".") ancestor = tokens.Next();
    return ancestor.toByteArray();
  }
  return {};
}
