// The values that nearly all properties of a text have: short numbers, strings on one line without
// apostrophes, names, sets of names. Everything else is left to the grammar of TextReader.
#pragma once
#include <bit>
#include <cstring>

#include "forms/TextChars.h"
#include "forms/Value.h"

namespace forms {

constexpr std::ptrdiff_t MaxWord = 255;  // characters of a name

// The end of the run of printable ASCII without apostrophes that begins at `p`.
inline const char* PlainRunEnd(const char* p, const char* end) {
  if constexpr (std::endian::native == std::endian::little) {
    // Eight characters at once: a marked bit is right up to the first one that is not plain.
    constexpr std::uint64_t ones = 0x0101010101010101u, high = 0x8080808080808080u;
    for (; end - p >= 8; p += 8) {
      std::uint64_t c;
      std::memcpy(&c, p, 8);
      const std::uint64_t quote = c ^ ones * '\'';
      const std::uint64_t marked = (c | ((quote - ones) & ~quote) | ((c - ones * ' ') & ~c)) & high;
      if (marked) return p + std::countr_zero(marked) / 8;
    }
  }
  while (p != end && *p >= ' ' && *p != '\'' && static_cast<unsigned char>(*p) < 128) ++p;
  return p;
}

// Each of these returns where the value ends, or null when it is none of the plain ones; `out` may be null,
// and may hold anything then.
inline const char* PlainInteger(const char* p, const char* end, std::int64_t& value) {
  const bool negative = *p == '-';
  const char* digits = p + (negative ? 1 : 0);
  const char* q = digits;
  std::int64_t v = 0;
  while (q != end && IsDigit(*q) && q - digits < 18) v = v * 10 + (*q++ - '0');
  if (q == digits || (q != end && (IsIdentChar(*q) || *q == '.'))) return nullptr;
  value = negative ? -v : v;
  return q;
}

inline const char* PlainString(const char* p, const char* end, Value* out) {
  const char* q = PlainRunEnd(p + 1, end);
  if (q == end || *q != '\'') return nullptr;
  // More of it may follow, on the next line too.
  const char* next = q + 1;
  while (next != end && IsBlank(*next)) ++next;
  if (next != end && (*next == '\'' || *next == '#' || *next == '+' || *next == '{')) return nullptr;
  if (out) {
    out->Reset(q - p - 1 <= 255 ? ValueType::String : ValueType::LString);
    out->bytes = QByteArray::fromRawData(p + 1, q - p - 1);
  }
  return q + 1;
}

inline const char* PlainIdent(const char* p, const char* end, Value* out) {
  const char* q = p + 1;
  while (q != end && IsIdentChar(*q)) ++q;
  if (q - p > MaxWord || (q != end && *q == '.')) return nullptr;
  if (!out) return q;
  const QByteArrayView word(p, q);
  out->Reset(Is(word, "true")    ? ValueType::True
             : Is(word, "false") ? ValueType::False
             : Is(word, "nil")   ? ValueType::Nil
                                 : ValueType::Ident);
  if (out->type == ValueType::Ident) out->bytes = QByteArray::fromRawData(p, q - p);
  return q;
}

inline const char* PlainSet(const char* p, const char* end, Value* out) {
  if (out) out->Reset(ValueType::Set);
  if (++p != end && *p == ']') return p + 1;
  for (;;) {
    const char* word = p;
    if (p == end || !IsIdentStart(*p)) return nullptr;
    while (p != end && IsIdentChar(*p)) ++p;
    if (p == end || p - word > MaxWord) return nullptr;
    if (out) out->elements.append(QByteArray::fromRawData(word, p - word));
    if (*p == ']') return p + 1;
    if (*p++ != ',') return nullptr;
    if (p != end && *p == ' ') ++p;
  }
}

// `p` is not at the end.
inline const char* PlainValue(const char* p, const char* end, Value* out) {
  if (IsIdentStart(*p)) return PlainIdent(p, end, out);
  if (*p == '\'') return PlainString(p, end, out);
  if (IsDigit(*p) || *p == '-') {
    std::int64_t v = 0;
    const char* q = PlainInteger(p, end, v);
    if (q && out) {
      out->Reset(IntegerTypeFor(v));
      out->integer = v;
    }
    return q;
  }
  return *p == '[' ? PlainSet(p, end, out) : nullptr;
}

}  // namespace forms
