// Characters and words of the text form.
#pragma once
#include <QByteArray>
#include <algorithm>
#include <array>
#include <string_view>

namespace forms {

constexpr bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr int HexDigit(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}
constexpr bool IsIdentStart(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
// Asked for every character of a file.
inline constexpr std::array<bool, 256> IdentChars = [] {
  std::array<bool, 256> table{};
  for (unsigned c = 0; c < 128; ++c) table[c] = IsIdentStart(static_cast<char>(c)) || (c >= '0' && c <= '9');
  return table;
}();
constexpr bool IsIdentChar(char c) { return IdentChars[static_cast<unsigned char>(c)]; }

// No regard to case; the keyword is in lower case.
inline bool Is(QByteArrayView word, std::string_view keyword) {
  return word.size() == static_cast<qsizetype>(keyword.size()) &&
         std::equal(word.begin(), word.end(), keyword.begin(),
                    [](char c, char k) { return (c | 0x20) == k; });
}

// A property path may have blanks and directives behind its points; this is the path without them.
QByteArray WithoutBlanks(QByteArrayView path);

}  // namespace forms
