#include "forms/TextWriter.h"

#include <charconv>
#include <cmath>

#include "forms/Encoding.h"
#include "forms/TextReader.h"
#include "rtl/LargePages.h"

namespace forms {

namespace {
constexpr int BreakAfter = 64;    // units of a string on one line, in the style that breaks strings
constexpr int BytesPerLine = 32;  // of binary data

template <class F>
QByteArray Chars(F&& convert) {
  char buffer[6000];
  const auto end = convert(buffer, buffer + sizeof buffer);
  return {buffer, end - buffer};
}

// At 1E15 and above always with an exponent: a longer run of digits alone would be read as an integer.
QByteArray General(long double v, int digits) {
  const auto shape = std::fabs(v) >= 1e15L ? std::chars_format::scientific : std::chars_format::general;
  const int precision = shape == std::chars_format::general ? digits : digits - 1;
  QByteArray text = Chars([&](char* b, char* e) { return std::to_chars(b, e, v, shape, precision).ptr; });
  if (shape == std::chars_format::scientific) {
    qsizetype end = text.indexOf('e');
    while (text[end - 1] == '0') text.remove(--end, 1);
    if (text[end - 1] == '.') text.remove(end - 1, 1);
  }
  const qsizetype exponent = text.indexOf('e');
  if (exponent < 0) return text;
  QByteArray power = text.mid(exponent + 1);  // "+05" -> "5", "-05" -> "-5"
  const bool negative = power.startsWith('-');
  power.remove(0, 1);
  while (power.size() > 1 && power.startsWith('0')) power.remove(0, 1);
  return text.first(exponent) + 'E' + (negative ? "-" : "") + power;
}

// `digits` significant digits, then zeros up to 18 decimals.
QByteArray Fixed18(long double v, int digits) {
  const QByteArray sci = Chars([&](char* b, char* e) {
    return std::to_chars(b, e, v, std::chars_format::scientific, digits - 1).ptr;
  });
  const int power = sci.mid(sci.indexOf('e') + 1).toInt();
  const int decimals = std::clamp(digits - 1 - power, 0, 18);
  QByteArray text =
      Chars([&](char* b, char* e) { return std::to_chars(b, e, v, std::chars_format::fixed, decimals).ptr; });
  if (decimals == 0) text += '.';
  return text + QByteArray(18 - decimals, '0');
}

long double ParseReal(const QByteArray& text) {
  long double v = 0;
  std::from_chars(text.constData(), text.constData() + text.size(), v);
  return v;
}

// The style's own form when it keeps the value, else as many digits as it takes.
QByteArray RealText(long double v, const Dialect& style, int usefulDigits) {
  if (style.fixedFloats && std::fabs(v) < 1e60L) {
    QByteArray text = Fixed18(v, 16);
    if (ParseReal(text) == v || usefulDigits <= 16) return text;
    for (int digits = 17; digits <= usefulDigits; ++digits)
      if (ParseReal(text = Fixed18(v, digits)) == v) return text;
  }
  for (int digits = 15; digits < usefulDigits; ++digits)
    if (const QByteArray text = General(v, digits); ParseReal(text) == v) return text;
  return General(v, usefulDigits);
}

std::vector<char32_t> UnitsOf(const QString& text) {
  std::vector<char32_t> units;
  units.reserve(static_cast<std::size_t>(text.size()));
  for (QChar c : text) units.push_back(c.unicode());
  return units;
}
std::vector<char32_t> UnitsOf(const QByteArray& bytes) {
  std::vector<char32_t> units;
  units.reserve(static_cast<std::size_t>(bytes.size()));
  for (char c : bytes) units.push_back(static_cast<unsigned char>(c));
  return units;
}
}  // namespace

void TextWriter::Reserve(qsizetype size) {
  out_.reserve(size);
  PreferLargePages(out_.data(), static_cast<std::size_t>(size));
}

// No text runs over the end of a line, so that blanks at the start of one mean nothing.
void TextWriter::RawIndented(QByteArrayView text, int more) {
  const auto isEnd = [](char c) { return c == '\n' || c == '\r'; };
  bool fresh = out_.isEmpty() || isEnd(out_.back());
  for (qsizetype i = 0; i < text.size();) {
    if (fresh && !isEnd(text[i])) {
      qsizetype blanks = 0;
      while (i + blanks < text.size() && text[i + blanks] == ' ') ++blanks;
      const bool empty = i + blanks < text.size() && isEnd(text[i + blanks]);
      out_.append(empty ? blanks : std::max<qsizetype>(blanks + more, 0), ' ');
      i += blanks;
      fresh = false;
      continue;
    }
    fresh = isEnd(text[i]);
    out_.append(text[i++]);
  }
}

void TextWriter::Copy(QByteArrayView piece, int moreLevels) {
  if (piece.isEmpty()) return;
  const bool neighbours = piece.data() == copiedEnd_ && out_.size() == sizeThen_;
  if (!neighbours && IsIdentStart(piece[0])) FreshLine();
  moreLevels == 0 ? Raw(piece) : RawIndented(piece, 2 * moreLevels);
  copiedEnd_ = piece.end();
  sizeThen_ = out_.size();
}

void TextWriter::FreshLine() {
  if (out_ == "\xEF\xBB\xBF") return;  // a byte-order mark is no part of the line
  if (!out_.isEmpty() && !out_.endsWith('\n') && !out_.endsWith('\r')) NewLine();
}

void TextWriter::ObjectHeader(const Object& object, int level) {
  static constexpr const char* words[] = {"object ", "inherited ", "inline "};
  Indent(level);
  Raw(words[static_cast<int>(object.kind)]);
  if (!object.name.isEmpty()) {
    Raw(object.name);
    Raw(": ");
  }
  Raw(object.className);
  if (object.position) {
    if (!style_.lcl) Raw(" ");
    Raw("[" + QByteArray::number(static_cast<qlonglong>(*object.position)) + "]");
  }
  NewLine();
}

void TextWriter::ObjectFooter(int level) {
  Indent(level);
  Raw("end");
  NewLine();
}

void TextWriter::PropertyLine(QByteArrayView path, const Value& value, int level) {
  Indent(level);
  Raw(path);
  Raw(" = ");
  WriteValue(value, level);
  NewLine();
}

void TextWriter::WriteValue(const Value& v, int level) {
  switch (v.type) {
    case ValueType::Int8:
    case ValueType::Int16:
    case ValueType::Int32:
    case ValueType::Int64:
      return Raw(QByteArray::number(static_cast<qlonglong>(v.integer)));
    case ValueType::QWord:
      return Raw(QByteArray::number(static_cast<qulonglong>(v.integer)));
    case ValueType::Extended:
    case ValueType::Double:
    case ValueType::Single:
    case ValueType::Date:
    case ValueType::Currency:
      return WriteReal(v);
    case ValueType::True:
      return Raw("True");
    case ValueType::False:
      return Raw("False");
    case ValueType::Nil:
      return Raw("nil");
    case ValueType::Null:
      return Raw("Null");
    case ValueType::Ident:
      return Raw(v.bytes);
    case ValueType::Set:
      return Raw("[" + v.elements.join(", ") + "]");
    case ValueType::Binary:
      return WriteBinary(v.bytes, level);
    case ValueType::Collection:
      return WriteCollection(v.collection, level);
    case ValueType::List:
      Raw("(");
      for (const Value& item : v.items) {
        NewLine();
        Indent(level + 1);
        WriteValue(item, level + 1);
      }
      if (style_.lcl) {
        if (!v.items.empty()) NewLine();
        Indent(level);
      }
      return Raw(")");
    case ValueType::String:
    case ValueType::LString:
    case ValueType::WString:
    case ValueType::UTF8String:
    case ValueType::UString:
      return WriteString(v, level);
  }
}

void TextWriter::WriteReal(const Value& v) {
  const long double real = std::isfinite(v.real) ? v.real : 0;  // the text form has no word for the others
  switch (v.type) {
    case ValueType::Single:
      return Raw(General(static_cast<float>(real), 9) + "s");
    case ValueType::Date:
      return Raw(General(real, 17) + "d");
    case ValueType::Currency:
      return Raw(QByteArray::number(static_cast<qlonglong>(v.integer)) + "c");
    case ValueType::Double:
      return Raw(RealText(real, style_, 17));
    default:
      return Raw(RealText(real, style_, 21));
  }
}

void TextWriter::WriteString(const Value& v, int level) {
  std::vector<char32_t> units;
  bool highLiteral = false;
  if (v.type == ValueType::WString || v.type == ValueType::UString) {
    units = UnitsOf(v.wide);
  } else if (v.type == ValueType::UTF8String) {
    units = UnitsOf(QString::fromUtf8(v.bytes));
  } else {
    // Byte strings keep their bytes: a code would turn them into UTF-16 when read again.
    units = UnitsOf(v.bytes);
    highLiteral = true;
  }
  if (units.empty()) return Raw("''");
  if (!style_.lcl && units.size() > BreakAfter) {
    NewLine();
    Indent(level + 1);
    return WriteUnits(units, highLiteral, level + 1);
  }
  WriteUnits(units, highLiteral, level);
}

void TextWriter::WriteUnits(const std::vector<char32_t>& units, bool highLiteral, int level) {
  bool open = false;
  int onLine = 0;
  for (std::size_t i = 0; i < units.size(); ++i) {
    if (!style_.lcl && onLine == BreakAfter) {
      if (open) Raw("'");
      open = false;
      Raw(" +");
      NewLine();
      Indent(level);
      onLine = 0;
    }
    const char32_t u = units[i];
    const bool quote = u == U'\'';
    const bool literal = (u >= 32 && u < 128 && !(quote && !style_.lcl)) || (u >= 128 && highLiteral);
    if (literal != open) {
      Raw("'");
      open = literal;
    }
    if (!literal)
      Raw("#" + QByteArray::number(static_cast<uint>(u)));
    else if (quote)
      Raw("''");
    else
      out_.append(static_cast<char>(u));
    ++onLine;
  }
  if (open) Raw("'");
}

void TextWriter::WriteBinary(const QByteArray& bytes, int level) {
  const QByteArray hex = bytes.toHex().toUpper();
  Raw("{");
  if (style_.lcl || bytes.size() >= BytesPerLine) {
    for (qsizetype i = 0; i < hex.size(); i += 2 * BytesPerLine) {
      NewLine();
      Indent(level + 1);
      Raw(QByteArrayView(hex).sliced(i, std::min<qsizetype>(2 * BytesPerLine, hex.size() - i)));
    }
    if (style_.lcl) {
      NewLine();
      Indent(level);
    }
  } else {
    Raw(hex);
  }
  Raw("}");
}

void TextWriter::WriteCollection(const std::vector<CollectionItem>& items, int level) {
  Raw("<");
  for (const CollectionItem& item : items) {
    if (style_.lcl) Indent(level);  // this style leaves the indent behind every item but the last
    NewLine();
    Indent(level + 1);
    Raw("item");
    if (item.index) Raw(" [" + QByteArray::number(static_cast<qlonglong>(*item.index)) + "]");
    NewLine();
    for (const NamedValue& p : item.properties) PropertyLine(p.path, p.value, level + 2);
    Indent(level + 1);
    Raw("end");
  }
  Raw(">");
}

QByteArray ValueToText(const Value& value, const Dialect& style, int level) {
  TextWriter writer(style);
  writer.WriteValue(value, level);
  return std::move(writer).Result();
}

Value TextToValue(QByteArrayView text) {
  TextReader reader(text);
  reader.SkipBlanks();  // a string of several lines starts on a line of its own
  Value v;
  reader.ReadValue(&v);
  reader.ExpectEnd();
  v.Own();
  return v;
}

}  // namespace forms
