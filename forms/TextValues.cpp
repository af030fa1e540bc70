// The values of the text form.
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

#include "forms/PlainValues.h"
#include "forms/TextReader.h"

namespace forms {

namespace {
// Whether a number that fits no type is too small, not too large.
bool IsTiny(const char* digits, const char* end) {
  const char* exponent = std::find_if(digits, end, [](char c) { return c == 'e' || c == 'E'; });
  if (exponent != end) return exponent[1] == '-';
  const char* significant =
      std::find_if(digits, end, [](char c) { return (c >= '1' && c <= '9') || c == '.'; });
  return significant != end && *significant == '.';
}
}  // namespace

void TextReader::ReadValue(Value* out, int depth) {
  if (depth > MaxDepth) Fail(QStringLiteral("Values are nested more than %1 deep").arg(MaxDepth));
  if (p_ == end_) Fail(QStringLiteral("A value expected, but the file ends"));
  if (const char* stop = PlainValue(p_, end_, out)) {
    if (*p_ == '[') Charge((stop - p_) / 2 * cost::SetElement);  // as many as it can be
    p_ = stop;
    return;
  }
  switch (*p_) {
    case '\'':
    case '#':
      return ReadString(out);
    case '[':
      return ReadSet(out);
    case '(':
      return ReadList(out, depth);
    case '<':
      return ReadCollection(out, depth);
    case '{':
      return ReadBinary(out);
    default:
      if (IsDigit(*p_) || *p_ == '-' || *p_ == '$') return ReadNumber(out);
      if (IsIdentStart(*p_)) return ReadIdent(out);
      Fail(QStringLiteral("A value expected, but %1 found").arg(QString::fromLatin1(Here())));
  }
}

// Decimal or hexadecimal; more than 64 bits are refused, the upper half of unsigned wraps to negative.
std::int64_t TextReader::ReadInteger() {
  const char* start = p_;
  const bool negative = p_ != end_ && *p_ == '-';
  if (negative) ++p_;
  const int base = !negative && p_ != end_ && *p_ == '$' ? 16 : 10;
  if (base == 16) ++p_;
  std::uint64_t magnitude = 0;
  const auto [stop, error] = std::from_chars(p_, end_, magnitude, base);
  if (error == std::errc::invalid_argument || stop == p_)
    Fail(QStringLiteral("A number expected, but %1 found").arg(QString::fromLatin1(Here())));
  if (error == std::errc::result_out_of_range || (negative && magnitude > 0x8000000000000000ull))
    Fail(QStringLiteral("The number does not fit into 64 bits"), start);
  p_ = stop;
  return static_cast<std::int64_t>(negative ? 0 - magnitude : magnitude);
}

void TextReader::ReadNumber(Value* out) {
  const char* start = p_;
  const char* q = p_;
  if (*q == '-') ++q;
  if (q == end_ || (*q != '$' && !IsDigit(*q)) || (*q == '$' && q != start))
    Fail(QStringLiteral("Digits expected behind \"-\""), q);
  bool real = false;
  if (*q != '$') {
    while (q != end_ && IsDigit(*q)) ++q;
    if (q != end_ && *q == '.') {
      real = true;
      const char* point = q++;
      while (q != end_ && IsDigit(*q)) ++q;
      if (q - point == 19)
        ++fixedFloats_;
      else
        ++shortFloats_;
    }
    if (q != end_ && (*q == 'e' || *q == 'E')) {
      real = true;
      ++q;
      if (q != end_ && (*q == '+' || *q == '-')) ++q;
      if (q == end_ || !IsDigit(*q)) Fail(QStringLiteral("The exponent of the number has no digits"), start);
      while (q != end_ && IsDigit(*q)) ++q;
    }
  }
  const char* digitsEnd = q;
  char suffix = 0;
  if (*p_ != '$' && q != end_ && std::strchr("sScCdD", *q) && (q + 1 == end_ || !IsIdentChar(q[1])))
    suffix = static_cast<char>(*q++ | 0x20);
  if (!real && !suffix) {
    const std::int64_t v = ReadInteger();
    if (p_ != end_ && IsIdentChar(*p_))
      Fail(QStringLiteral("\"%1\" is not a number").arg(QString::fromLatin1(start, p_ - start + 1)), start);
    if (out) {
      out->Reset(IntegerTypeFor(v));
      out->integer = v;
    }
    return;
  }
  if (q != end_ && IsIdentChar(*q))
    Fail(QStringLiteral("Unexpected %1 behind a number").arg(QLatin1Char(*q)), q);
  p_ = q;
  // Only these can be too large; the rest is checked by its form alone.
  if (!out && !suffix && digitsEnd - start < 1000 &&
      !std::memchr(start, 'e', static_cast<size_t>(digitsEnd - start)) &&
      !std::memchr(start, 'E', static_cast<size_t>(digitsEnd - start)))
    return;
  long double v = 0;
  if (std::from_chars(start, digitsEnd, v).ec == std::errc::result_out_of_range) {
    if (!IsTiny(start, digitsEnd)) Fail(QStringLiteral("The number is too large"), start);
    v = 0;
  }
  const long double limit = suffix == 's'   ? static_cast<long double>(std::numeric_limits<float>::max())
                            : suffix == 'd' ? static_cast<long double>(std::numeric_limits<double>::max())
                                            : std::numeric_limits<long double>::max();
  if (std::fabs(v) > limit || (suffix == 'c' && !(v >= -0x1p63L && v < 0x1p63L)))
    Fail(QStringLiteral("The number is too large"), start);
  if (!out) return;
  switch (suffix) {
    case 's':
      *out = Value::Real(static_cast<float>(v), ValueType::Single);
      break;
    case 'd':
      *out = Value::Real(static_cast<double>(v), ValueType::Date);
      break;
    case 'c':
      // The text shows the stored integer, which is the amount x 10000.
      *out = Value{};
      out->type = ValueType::Currency;
      out->integer = static_cast<std::int64_t>(v);
      break;
    default:
      *out = Value::Real(v);
  }
}

void TextReader::ReadString(Value* out) {
  bool wide = false;
  struct Part {
    QByteArrayView text;  // null: a character code
    std::uint32_t code = 0;
  };
  std::vector<Part> parts;
  for (;;) {
    if (p_ == end_ || (*p_ != '\'' && *p_ != '#'))
      Fail(QStringLiteral("A string expected behind \"+\", but %1 found").arg(QString::fromLatin1(Here())));
    while (p_ != end_ && (*p_ == '\'' || *p_ == '#')) {
      Charge(cost::StringPart);
      if (*p_ == '#') {
        ++p_;
        const char* digits = p_;
        std::uint32_t code = 0;
        while (p_ != end_ && IsDigit(*p_)) {
          code = code * 10 + static_cast<std::uint32_t>(*p_++ - '0');
          if (code > 0x10FFFF) Fail(QStringLiteral("The character code is larger than 1114111"), digits);
        }
        if (code == 39) ++coded39_;
        if (code > 127) wide = true;
        if (out) parts.push_back({{}, code});
        continue;
      }
      const char* open = p_++;
      const char* runStart = p_;
      for (;;) {
        const char* q = p_;
        while (q != end_ && *q != '\'' && *q != '\n' && *q != '\r') {
          if (static_cast<unsigned char>(*q) >= 128) ++highBytes_;
          ++q;
        }
        if (q == end_ || *q != '\'') Fail(QStringLiteral("The string is not closed on its line"), open);
        if (q + 1 != end_ && q[1] == '\'') {
          ++doubledQuotes_;
          Charge(cost::StringPart);
          if (out) parts.push_back({{runStart, q + 1}});
          p_ = runStart = q + 2;
          continue;
        }
        if (out) parts.push_back({{runStart, q}});
        p_ = q + 1;
        break;
      }
    }
    const char* back = p_;
    SkipBlanks();
    if (p_ == end_ || *p_ != '+') {
      p_ = back;
      break;
    }
    ++p_;
    SkipBlanks();
  }
  if (!out) return;
  *out = Value{};
  if (wide) {
    out->type = ValueType::WString;
    for (const auto& [text, code] : parts) {
      if (!text.isNull()) {
        out->wide += QString::fromUtf8(text).replace(QChar::ReplacementCharacter, u'?');
      } else if (code > 0xFFFF) {
        out->wide += QChar(QChar::highSurrogate(code));
        out->wide += QChar(QChar::lowSurrogate(code));
      } else {
        out->wide += QChar(static_cast<char16_t>(code));
      }
    }
    return;
  }
  if (parts.size() == 1 && !parts[0].text.isNull()) {
    out->bytes = QByteArray::fromRawData(parts[0].text.data(), parts[0].text.size());
  } else {
    for (const auto& [text, code] : parts) {
      if (text.isNull())
        out->bytes += static_cast<char>(code);
      else
        out->bytes += text;
    }
  }
  out->type = out->bytes.size() <= 255 ? ValueType::String : ValueType::LString;
}

void TextReader::ReadIdent(Value* out) {
  const char* start = p_;
  Word("An identifier");
  while (p_ != end_ && *p_ == '.') {
    ++p_;
    Word("An identifier");
  }
  if (!out) return;
  const QByteArrayView word(start, p_);
  if (Is(word, "true"))
    out->Reset(ValueType::True);
  else if (Is(word, "false"))
    out->Reset(ValueType::False);
  else if (Is(word, "nil"))
    out->Reset(ValueType::Nil);
  else
    out->Reset(ValueType::Ident);
  if (out->type == ValueType::Ident) out->bytes = QByteArray::fromRawData(word.data(), word.size());
}

void TextReader::ReadSet(Value* out) {
  ++p_;
  if (out) out->Reset(ValueType::Set);
  SkipBlanks();
  if (p_ != end_ && *p_ == ']') {
    ++p_;
    return;
  }
  for (;;) {
    SkipBlanks();
    const QByteArrayView word = Word("A set element");
    Charge(cost::SetElement);
    if (out) out->elements.append(QByteArray::fromRawData(word.data(), word.size()));
    SkipBlanks();
    if (p_ != end_ && *p_ == ']') break;
    if (p_ == end_ || *p_ != ',')
      Fail(QStringLiteral("\",\" or \"]\" expected in a set, but %1 found").arg(QString::fromLatin1(Here())));
    ++p_;
  }
  ++p_;
}

void TextReader::ReadList(Value* out, int depth) {
  const char* open = p_++;
  if (out) {
    *out = Value{};
    out->type = ValueType::List;
  }
  for (int count = 0;; ++count) {
    const char* before = p_;
    SkipBlanks();
    if (p_ == end_) Fail(QStringLiteral("The list is not closed: \")\" is missing"), open);
    if (*p_ == ')') {
      if (count) (p_ == before ? glued_ : apart_)++;
      ++p_;
      return;
    }
    Charge(cost::Element);
    Value item;
    ReadValue(out ? &item : nullptr, depth + 1);
    if (out) out->items.push_back(std::move(item));
  }
}

void TextReader::ReadCollection(Value* out, int depth) {
  const char* open = p_++;
  if (out) {
    *out = Value{};
    out->type = ValueType::Collection;
  }
  for (;;) {
    SkipBlanks();
    if (p_ == end_) Fail(QStringLiteral("The collection is not closed: \">\" is missing"), open);
    if (*p_ == '>') {
      ++p_;
      return;
    }
    const char* at = p_;
    if (!Is(Word("\"item\""), "item")) Fail(QStringLiteral("\"item\" or \">\" expected in a collection"), at);
    Charge(cost::Item);
    CollectionItem item;
    SkipBlanks();
    if (p_ != end_ && *p_ == '[') {
      ++p_;
      SkipBlanks();
      item.index = ReadInteger();
      Expect(']', "\"]\" behind the item's index");
    }
    for (;;) {
      SkipBlanks();
      const QByteArrayView word = PeekWord();
      if (Is(word, "end")) {
        p_ += word.size();
        break;
      }
      if (word.isEmpty())
        Fail(QStringLiteral("A property or \"end\" expected in a collection item, but %1 found")
                 .arg(QString::fromLatin1(Here())));
      const QByteArrayView path = PropertyPath(word);
      Expect('=', "\"=\"");
      SkipBlanks();
      Charge(cost::Element);
      NamedValue property;
      ReadValue(out ? &property.value : nullptr, depth + 1);
      if (out) {
        property.path = WithoutBlanks(path);
        item.properties.push_back(std::move(property));
      }
    }
    if (out) out->collection.push_back(std::move(item));
  }
}

void TextReader::ReadBinary(Value* out) {
  const char* open = p_++;
  if (out) *out = Value::Data({});
  for (;;) {
    const char* before = p_;
    SkipBlanks();
    if (p_ == end_) Fail(QStringLiteral("The binary data is not closed: \"}\" is missing"), open);
    if (*p_ == '}') {
      (p_ == before ? glued_ : apart_)++;
      ++p_;
      return;
    }
    const int high = HexDigit(*p_);
    const int low = p_ + 1 != end_ ? HexDigit(p_[1]) : -1;
    if (high < 0 || low < 0)
      Fail(QStringLiteral("Two hexadecimal digits expected, but %1 found").arg(QString::fromLatin1(Here())));
    if (out) out->bytes.append(static_cast<char>(high << 4 | low));
    p_ += 2;
  }
}

void TextReader::ExpectEnd() {
  SkipBlanks();
  if (p_ != end_) Fail(QStringLiteral("Unexpected %1 behind the value").arg(QString::fromLatin1(Here())));
}

}  // namespace forms
