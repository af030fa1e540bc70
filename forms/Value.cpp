#include "forms/Value.h"

#include <cmath>
#include <limits>

namespace forms {

Value Value::Integer(std::int64_t v) {
  Value r;
  r.type = IntegerTypeFor(v);
  r.integer = v;
  return r;
}
Value Value::Real(long double v, ValueType type) {
  Value r;
  r.type = type;
  r.real = v;
  return r;
}
Value Value::Boolean(bool v) {
  Value r;
  r.type = v ? ValueType::True : ValueType::False;
  return r;
}
Value Value::Identifier(QByteArray name) {
  Value r;
  r.type = ValueType::Ident;
  r.bytes = std::move(name);
  return r;
}
Value Value::Text(const QString& text) {
  Value r;
  const bool ascii = std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; });
  if (ascii) {
    r.bytes = text.toLatin1();
    r.type = r.bytes.size() <= 255 ? ValueType::String : ValueType::LString;
  } else {
    r.type = ValueType::WString;
    r.wide = text;
  }
  return r;
}
Value Value::Data(QByteArray bytes) {
  Value r;
  r.type = ValueType::Binary;
  r.bytes = std::move(bytes);
  return r;
}
Value Value::SetOf(QByteArrayList elements) {
  Value r;
  r.type = ValueType::Set;
  r.elements = std::move(elements);
  return r;
}

void Value::Reset(ValueType newType) {
  type = newType;
  integer = 0;
  real = 0;
  bytes = QByteArray();
  if (!wide.isNull()) wide = QString();
  items.clear();
  if (!elements.isEmpty()) elements.clear();
  collection.clear();
}

bool Value::IsInteger() const {
  return type == ValueType::Int8 || type == ValueType::Int16 || type == ValueType::Int32 ||
         type == ValueType::Int64 || type == ValueType::QWord;
}
bool Value::IsReal() const {
  return type == ValueType::Extended || type == ValueType::Single || type == ValueType::Date ||
         type == ValueType::Double || type == ValueType::Currency;
}
bool Value::IsString() const {
  return type == ValueType::String || type == ValueType::LString || type == ValueType::WString ||
         type == ValueType::UTF8String || type == ValueType::UString;
}

bool Value::operator==(const Value& o) const {
  return type == o.type && integer == o.integer && real == o.real && bytes == o.bytes && wide == o.wide &&
         items == o.items && elements == o.elements && collection == o.collection;
}

void Value::Own() {
  bytes = QByteArray(bytes.constData(), bytes.size());
  for (QByteArray& element : elements) element = QByteArray(element.constData(), element.size());
  for (Value& item : items) item.Own();
  for (CollectionItem& item : collection)
    for (NamedValue& p : item.properties) p.value.Own();
}

ValueType IntegerTypeFor(std::int64_t v) {
  if (v >= INT8_MIN && v <= INT8_MAX) return ValueType::Int8;
  if (v >= INT16_MIN && v <= INT16_MAX) return ValueType::Int16;
  if (v >= INT32_MIN && v <= INT32_MAX) return ValueType::Int32;
  return ValueType::Int64;
}

// Built from the parts of the number, so that it does not matter what a long double is on the machine.
QByteArray EncodeExtended(long double value) {
  const bool negative = std::signbit(value);
  std::uint64_t mantissa = 0;
  unsigned exponent = 0;
  const long double magnitude = std::fabs(value);
  if (std::isnan(value)) {
    exponent = 0x7FFF;
    mantissa = 0xC000000000000000ull;
  } else if (std::isinf(value)) {
    exponent = 0x7FFF;
    mantissa = 0x8000000000000000ull;
  } else if (magnitude > 0) {
    int e = 0;
    const long double m = std::frexp(magnitude, &e);  // [0.5, 1)
    int biased = e + 16382;
    long double scaled = std::ldexp(m, 64);
    if (biased <= 0) {  // denormal
      scaled = std::ldexp(scaled, biased - 1);
      biased = 0;
    }
    mantissa = static_cast<std::uint64_t>(scaled);
    exponent = static_cast<unsigned>(biased);
  }
  QByteArray out(10, '\0');
  for (int i = 0; i < 8; ++i) out[i] = static_cast<char>(mantissa >> (8 * i));
  const unsigned head = exponent | (negative ? 0x8000u : 0u);
  out[8] = static_cast<char>(head & 0xFFu);
  out[9] = static_cast<char>(head >> 8);
  return out;
}

long double DecodeExtended(const char* bytes) {
  std::uint64_t mantissa = 0;
  for (int i = 7; i >= 0; --i) mantissa = mantissa << 8 | static_cast<unsigned char>(bytes[i]);
  const unsigned head = static_cast<unsigned char>(bytes[8]) |
                        (static_cast<unsigned>(static_cast<unsigned char>(bytes[9])) << 8);
  const int exponent = static_cast<int>(head & 0x7FFFu);
  long double value;
  if (exponent == 0x7FFF)
    value = (mantissa << 1) == 0 ? std::numeric_limits<long double>::infinity()
                                 : std::numeric_limits<long double>::quiet_NaN();
  else
    value = std::ldexp(static_cast<long double>(mantissa), (exponent ? exponent : 1) - 16383 - 63);
  return head & 0x8000u ? -value : value;
}

}  // namespace forms
