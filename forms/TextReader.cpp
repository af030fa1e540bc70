#include "forms/TextReader.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <string_view>

#include "forms/Encoding.h"

namespace forms {

namespace {
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
int HexDigit(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}
// No regard to case; the keyword is in lower case.
bool Is(QByteArrayView word, std::string_view keyword) {
  return word.size() == static_cast<qsizetype>(keyword.size()) &&
         std::equal(word.begin(), word.end(), keyword.begin(), [](char c, char k) { return (c | 0x20) == k; });
}
// A path may have blanks and directives behind its points.
QByteArray WithoutBlanks(QByteArrayView path) {
  QByteArray name;
  bool directive = false;
  for (const char c : path) {
    directive = directive || c == '{';
    if (!directive && !IsBlank(c)) name += c;
    directive = directive && c != '}';
  }
  return name;
}
// Whether a number that fits no type is too small, not too large.
bool IsTiny(const char* digits, const char* end) {
  const char* exponent = std::find_if(digits, end, [](char c) { return c == 'e' || c == 'E'; });
  if (exponent != end) return exponent[1] == '-';
  const char* significant =
      std::find_if(digits, end, [](char c) { return (c >= '1' && c <= '9') || c == '.'; });
  return significant != end && *significant == '.';
}
std::optional<ObjectKind> KindOf(QByteArrayView word) {
  if (Is(word, "object")) return ObjectKind::Object;
  if (Is(word, "inherited")) return ObjectKind::Inherited;
  if (Is(word, "inline")) return ObjectKind::Inline;
  return {};
}
}  // namespace

bool IsPath(QByteArrayView text) {
  bool start = true;
  for (const char c : text) {
    if (start ? !IsIdentStart(c) : c != '.' && !IsIdentChar(c)) return false;
    start = c == '.';
  }
  return !start;
}

bool IsPropertyPath(QByteArrayView text) {
  const qsizetype point = text.indexOf('.');
  const QByteArrayView word = point < 0 ? text : text.first(point);
  return IsPath(text) && !Is(word, "end") && !KindOf(word);
}

bool IsHeaderName(QByteArrayView text) {
  const auto plain = [](char c) { return IsIdentChar(c) || c == '%'; };
  if (text.isEmpty() || !std::all_of(text.begin(), text.end(), plain)) return false;
  const auto marks = std::count(text.begin(), text.end(), '%');
  return marks ? marks % 2 == 0 : IsIdentStart(text[0]);
}

TextReader::TextReader(QByteArrayView text, std::size_t at)
    : begin_(text.data()), p_(text.data() + at), end_(text.data() + text.size()) {}

void TextReader::Fail(const QString& text, const char* at) const {
  const auto offset = static_cast<std::size_t>((at ? at : p_) - begin_);
  throw EFormError(text, LocationOf(QByteArrayView(begin_, end_), offset));
}

// What stands here, for messages: the rest of the word or the single character.
QByteArray TextReader::Here() const {
  if (p_ == end_) return "the end of the file";
  const char* q = p_;
  while (q != end_ && q - p_ < 30 && !IsBlank(*q)) ++q;
  if (q == p_) return "a line end";
  QByteArray word(p_, q - p_);
  for (char& c : word)
    if (static_cast<unsigned char>(c) < 32 || static_cast<unsigned char>(c) > 126) c = '?';
  return "\"" + word + "\"";
}

// Form templates have conditional lines ({$IFDEF ...}); binary data never starts with "$", so they can be told apart.
void TextReader::SkipBlanks() {
  for (;;) {
    while (p_ != end_ && IsBlank(*p_)) ++p_;
    if (end_ - p_ < 2 || p_[0] != '{' || p_[1] != '$') return;
    const char* open = p_;
    while (p_ != end_ && *p_ != '}' && *p_ != '\n') ++p_;
    if (p_ == end_ || *p_ != '}') Fail(QStringLiteral("The directive is not closed: \"}\" is missing"), open);
    ++p_;
    directives_ = true;
  }
}

QByteArrayView TextReader::PeekWord() const {
  const char* q = p_;
  if (q == end_ || !IsIdentStart(*q)) return {};
  while (q != end_ && IsIdentChar(*q)) ++q;
  return {p_, q};
}

QByteArrayView TextReader::Word(const char* what) {
  const QByteArrayView word = PeekWord();
  if (word.isEmpty())
    Fail(QStringLiteral("%1 expected, but %2 found").arg(QLatin1StringView(what), QString::fromLatin1(Here())));
  if (word.size() > 255) Fail(QStringLiteral("%1 is longer than 255 characters").arg(QLatin1StringView(what)));
  p_ += word.size();
  return word;
}

// Names in an object's header. Form templates carry %PLACEHOLDERS% there, to be filled in later.
QByteArrayView TextReader::HeaderWord(const char* what) {
  const char* start = p_;
  bool inside = false;
  for (; p_ != end_ && (IsIdentChar(*p_) || *p_ == '%'); ++p_)
    if (*p_ == '%') inside = !inside;
  const QByteArrayView word(start, p_);
  if (inside || !word.contains('%')) {
    p_ = start;
    return Word(what);
  }
  if (word.size() > 255) Fail(QStringLiteral("%1 is longer than 255 characters").arg(QLatin1StringView(what)), start);
  return word;
}

void TextReader::Expect(char c, const char* what) {
  SkipBlanks();
  if (p_ == end_ || *p_ != c)
    Fail(QStringLiteral("%1 expected, but %2 found").arg(QLatin1StringView(what), QString::fromLatin1(Here())));
  ++p_;
}

// A node takes the rest of its line with it when nothing else stands there.
std::size_t TextReader::NodeEnd() {
  const char* q = p_;
  while (q != end_ && (*q == ' ' || *q == '\t')) ++q;
  if (q != end_ && *q == '\r') ++q;
  if (q != end_ && *q == '\n') ++q;
  if (q != p_ && (q[-1] == '\n' || q[-1] == '\r')) p_ = q;
  return Offset();
}

QByteArrayView TextReader::PropertyPath() {
  const char* start = p_;
  Word("A property name");
  while (p_ != end_ && *p_ == '.') {
    ++p_;
    SkipBlanks();
    Word("A property name");
  }
  return {start, p_};
}

void TextReader::ReadDocument(Document& doc) {
  if (end_ - begin_ >= 3 && std::memcmp(begin_, "\xEF\xBB\xBF", 3) == 0) {
    p_ += 3;
    doc.before_ = {0, 3};
  }
  const std::size_t rootBegin = Offset();
  SkipBlanks();
  doc.root_ = ReadObject(doc, rootBegin, 0);
  doc.trailer_ = {static_cast<std::uint32_t>(Offset()), static_cast<std::uint32_t>(end_ - begin_)};

  doc.template_ = directives_;
  Dialect& d = doc.dialect_;
  const char* firstEnd = static_cast<const char*>(std::memchr(begin_, '\n', static_cast<size_t>(end_ - begin_)));
  if (firstEnd)
    d.eol = firstEnd != begin_ && firstEnd[-1] == '\r' ? "\r\n" : "\n";
  else if (std::memchr(begin_, '\r', static_cast<size_t>(end_ - begin_)))
    d.eol = "\r";
  const int vcl = glued_ * 4 + coded39_ + blankIndex_;
  const int lcl = apart_ * 4 + doubledQuotes_ + tightIndex_;
  if (vcl != lcl) d.lcl = lcl > vcl;
  d.fixedFloats = fixedFloats_ != shortFloats_ ? fixedFloats_ > shortFloats_ : !d.lcl;
  doc.utf8_ = IsUtf8(QByteArrayView(begin_, end_));
  d.literalHighBytes = doc.utf8_ && (highBytes_ > 0 || d.lcl);
}

std::unique_ptr<Object> TextReader::ReadObject(Document& doc, std::size_t nodeBegin, int depth) {
  if (depth > MaxDepth) Fail(QStringLiteral("Objects are nested more than %1 deep").arg(MaxDepth));
  auto object = std::make_unique<Object>();
  const char* at = p_;
  const auto kind = KindOf(Word("\"object\", \"inherited\" or \"inline\""));
  if (!kind) {
    p_ = at;
    Fail(QStringLiteral("\"object\", \"inherited\" or \"inline\" expected, but %1 found")
             .arg(QString::fromLatin1(Here())));
  }
  object->kind = *kind;
  SkipBlanks();
  QByteArrayView first = HeaderWord("A component name or class");
  const char* afterWord = p_;
  SkipBlanks();
  if (p_ != end_ && *p_ == ':') {
    ++p_;
    SkipBlanks();
    object->name = QByteArray::fromRawData(first.data(), first.size());
    first = HeaderWord("A class name");
    afterWord = p_;
    SkipBlanks();
  }
  object->className = QByteArray::fromRawData(first.data(), first.size());
  if (p_ != end_ && *p_ == '[') {
    (p_ == afterWord ? tightIndex_ : blankIndex_)++;
    ++p_;
    SkipBlanks();
    object->position = ReadInteger();
    Expect(']', "\"]\" behind the child position");
    afterWord = p_;
  }
  p_ = afterWord;
  object->header = {static_cast<std::uint32_t>(nodeBegin), static_cast<std::uint32_t>(NodeEnd())};

  ReadProperties(doc, *object);

  for (;;) {
    const std::size_t childBegin = Offset();
    SkipBlanks();
    const QByteArrayView word = PeekWord();
    if (Is(word, "end")) {
      p_ += word.size();
      object->footer = {static_cast<std::uint32_t>(childBegin), static_cast<std::uint32_t>(NodeEnd())};
      return object;
    }
    if (!KindOf(word)) {
      if (p_ == end_)
        Fail(QStringLiteral("The file ends inside %1: \"end\" is missing")
                 .arg(QString::fromLatin1(object->name.isEmpty() ? object->className : object->name)));
      Fail(word.isEmpty()
               ? QStringLiteral("A property, an object or \"end\" expected, but %1 found").arg(QString::fromLatin1(Here()))
               : QStringLiteral("Property %1 stands behind a child object; properties come first")
                     .arg(QString::fromLatin1(word)));
    }
    auto child = ReadObject(doc, childBegin, depth + 1);
    child->parent = object.get();
    object->children.push_back(std::move(child));
  }
}

// Properties are gathered in one scratch list and copied out at their exact number.
void TextReader::ReadProperties(Document& doc, Object& object) {
  scratch_.clear();
  for (;;) {
    const char* nodeStart = p_;
    const auto nodeBegin = static_cast<std::uint32_t>(Offset());
    SkipBlanks();
    const QByteArrayView word = PeekWord();
    if (word.isEmpty() || Is(word, "end") || KindOf(word)) {
      p_ = nodeStart;
      break;
    }
    QByteArrayView name = PropertyPath();
    const auto foreign = [](char c) { return IsBlank(c) || c == '{'; };
    if (std::any_of(name.begin(), name.end(), foreign)) name = doc.Intern(WithoutBlanks(name));
    Expect('=', "\"=\"");
    SkipBlanks();
    Span value;
    value.begin = static_cast<std::uint32_t>(Offset());
    ReadValue(nullptr);
    value.end = static_cast<std::uint32_t>(Offset());
    scratch_.emplace_back(name, Span{nodeBegin, static_cast<std::uint32_t>(NodeEnd())}, value);
  }
  object.properties.reserve(scratch_.size());
  for (Property& p : scratch_) object.properties.push_back(std::move(p));
}

void TextReader::ReadValue(Value* out, int depth) {
  if (depth > MaxDepth) Fail(QStringLiteral("Values are nested more than %1 deep").arg(MaxDepth));
  if (p_ == end_) Fail(QStringLiteral("A value expected, but the file ends"));
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
  if (q != end_ && IsIdentChar(*q)) Fail(QStringLiteral("Unexpected %1 behind a number").arg(QLatin1Char(*q)), q);
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

// Nearly all strings are one run without apostrophes on one line; others are left to the general way.
bool TextReader::ReadPlainString(Value* out) {
  if (*p_ != '\'') return false;
  const char* q = p_ + 1;
  while (q != end_ && *q >= ' ' && *q != '\'' && static_cast<unsigned char>(*q) < 128) ++q;
  if (q == end_ || *q != '\'') return false;
  const char* next = q + 1;
  while (next != end_ && IsBlank(*next)) ++next;
  if (next != end_ && std::strchr("'#+{", *next)) return false;
  if (out) {
    out->Reset(q - p_ - 1 <= 255 ? ValueType::String : ValueType::LString);
    out->bytes = QByteArray::fromRawData(p_ + 1, q - p_ - 1);
  }
  p_ = q + 1;
  return true;
}

void TextReader::ReadString(Value* out) {
  if (ReadPlainString(out)) return;
  bool wide = false;
  std::vector<std::pair<bool, QByteArray>> parts;  // (is a character code, text or code)
  for (;;) {
    if (p_ == end_ || (*p_ != '\'' && *p_ != '#'))
      Fail(QStringLiteral("A string expected behind \"+\", but %1 found").arg(QString::fromLatin1(Here())));
    while (p_ != end_ && (*p_ == '\'' || *p_ == '#')) {
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
        if (out) parts.emplace_back(true, QByteArray::number(code));
        continue;
      }
      const char* open = p_++;
      const char* runStart = p_;
      QByteArray run;
      for (;;) {
        const char* q = p_;
        while (q != end_ && *q != '\'' && *q != '\n' && *q != '\r') {
          if (static_cast<unsigned char>(*q) >= 128) ++highBytes_;
          ++q;
        }
        if (q == end_ || *q != '\'') Fail(QStringLiteral("The string is not closed on its line"), open);
        if (q + 1 != end_ && q[1] == '\'') {
          ++doubledQuotes_;
          if (out) run.append(runStart, q + 1 - runStart);
          p_ = runStart = q + 2;
          continue;
        }
        if (out) {
          if (run.isEmpty())
            run = QByteArray::fromRawData(runStart, q - runStart);
          else
            run.append(runStart, q - runStart);
          parts.emplace_back(false, run);
        }
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
    for (const auto& [isCode, text] : parts) {
      if (!isCode) {
        out->wide += QString::fromUtf8(text).replace(QChar::ReplacementCharacter, u'?');
      } else if (const std::uint32_t code = text.toUInt(); code > 0xFFFF) {
        out->wide += QChar(QChar::highSurrogate(code));
        out->wide += QChar(QChar::lowSurrogate(code));
      } else {
        out->wide += QChar(static_cast<char16_t>(code));
      }
    }
    return;
  }
  if (parts.size() == 1 && !parts[0].first) {
    out->bytes = parts[0].second;
  } else {
    for (const auto& [isCode, text] : parts) {
      if (isCode)
        out->bytes += static_cast<char>(text.toUInt());
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
    if (out) out->elements.append(word.toByteArray());
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
      const QByteArrayView path = PropertyPath();
      Expect('=', "\"=\"");
      SkipBlanks();
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
    if (high < 0 || low < 0) Fail(QStringLiteral("Two hexadecimal digits expected, but %1 found").arg(QString::fromLatin1(Here())));
    if (out) out->bytes.append(static_cast<char>(high << 4 | low));
    p_ += 2;
  }
}

void TextReader::ExpectEnd() {
  SkipBlanks();
  if (p_ != end_) Fail(QStringLiteral("Unexpected %1 behind the value").arg(QString::fromLatin1(Here())));
}

}  // namespace forms
