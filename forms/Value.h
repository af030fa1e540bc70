// A decoded property value, and the type codes of the binary form.
#pragma once
#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace forms {

// Codes as they stand in a TPF0 stream. Code 21 is Double in one family of streams and a UTF-16 string in
// the other; the reader tells them apart, and UString is this system's own number for the second.
enum class ValueType : std::uint8_t {
  Null = 0,
  List = 1,
  Int8 = 2,
  Int16 = 3,
  Int32 = 4,
  Extended = 5,
  String = 6,
  Ident = 7,
  False = 8,
  True = 9,
  Binary = 10,
  Set = 11,
  LString = 12,
  Nil = 13,
  Collection = 14,
  Single = 15,
  Currency = 16,
  Date = 17,
  WString = 18,
  Int64 = 19,
  UTF8String = 20,
  Double = 21,
  QWord = 22,
  UString = 121,
};

struct CollectionItem;

struct Value {
  ValueType type = ValueType::Nil;
  std::int64_t integer = 0;  // integers; Currency: the value x 10000; QWord: the bits
  long double real = 0;      // Extended, Single, Double; Date: days since 1899-12-30
  QByteArray bytes;          // String, LString: bytes of the file's code page; UTF8String; Ident; Binary
  QString wide;              // WString, UString
  std::vector<Value> items;  // List
  QByteArrayList elements;   // Set
  std::vector<CollectionItem> collection;

  static Value Integer(std::int64_t v);
  static Value Real(long double v, ValueType type = ValueType::Extended);
  static Value Boolean(bool v);
  static Value Identifier(QByteArray name);
  // A string as the file keeps it: bytes when it is plain ASCII, UTF-16 otherwise.
  static Value Text(const QString& text);
  static Value Data(QByteArray bytes);
  static Value SetOf(QByteArrayList elements);

  // Makes it an empty value of the type; cheaper than assigning one, for values that are used again and
  // again.
  void Reset(ValueType newType);

  bool IsInteger() const;
  bool IsReal() const;
  bool IsString() const;
  bool operator==(const Value& other) const;

  // Values read from a document refer to its source; from now on this one does not.
  void Own();
};

struct NamedValue {
  QByteArray path;  // "LED.ActiveColor"
  Value value;
  bool operator==(const NamedValue&) const = default;
};

struct CollectionItem {
  std::optional<std::int64_t> index;
  std::vector<NamedValue> properties;
  bool operator==(const CollectionItem&) const = default;
};

// The smallest integer type that holds the value.
ValueType IntegerTypeFor(std::int64_t value);

// x87 extended precision, little-endian, as streams hold it.
QByteArray EncodeExtended(long double value);
long double DecodeExtended(const char* tenBytes);

}  // namespace forms
