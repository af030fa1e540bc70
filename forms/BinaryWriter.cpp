#include "forms/BinaryWriter.h"

#include <cstring>

namespace forms {

void BinaryWriter::LittleEndian(std::uint64_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out_.append(static_cast<char>(value >> (8 * i)));
}

void BinaryWriter::ShortString(QByteArrayView text) {
  if (text.size() > 255)
    throw EFormError(QStringLiteral("\"%1...\" is longer than 255 bytes and cannot be written in a stream")
                         .arg(QString::fromLatin1(text.first(40))),
                     {});
  Byte(static_cast<unsigned>(text.size()));
  Raw(text);
}

void BinaryWriter::TaggedInteger(std::int64_t value, ValueType type) {
  Byte(static_cast<unsigned>(type));
  const int size = type == ValueType::Int8    ? 1
                   : type == ValueType::Int16 ? 2
                   : type == ValueType::Int32 ? 4
                                              : 8;
  LittleEndian(static_cast<std::uint64_t>(value), size);
}

void BinaryWriter::ObjectHeader(const Object& object) {
  unsigned flags = object.kind == ObjectKind::Inherited ? 1u : object.kind == ObjectKind::Inline ? 4u : 0u;
  if (object.position) flags |= 2u;
  // Without a prefix, the length of a name this long would be taken for one.
  if (flags || object.className.size() >= 0xF0) Byte(0xF0u | flags);
  if (object.position) TaggedInteger(*object.position, IntegerTypeFor(*object.position));
  ShortString(object.className);
  ShortString(object.name);
}

void BinaryWriter::WriteValue(const Value& v) {
  const auto code = [this](ValueType type) { Byte(static_cast<unsigned>(type)); };
  switch (v.type) {
    case ValueType::Int8:
    case ValueType::Int16:
    case ValueType::Int32:
    case ValueType::Int64:
      return TaggedInteger(v.integer, v.type);
    case ValueType::Extended:
      code(v.type);
      return Raw(EncodeExtended(v.real));
    case ValueType::Single: {
      code(v.type);
      const auto f = static_cast<float>(v.real);
      std::uint32_t bits;
      std::memcpy(&bits, &f, 4);
      return LittleEndian(bits, 4);
    }
    case ValueType::Date:
    case ValueType::Double: {
      code(v.type);
      const auto d = static_cast<double>(v.real);
      std::uint64_t bits;
      std::memcpy(&bits, &d, 8);
      return LittleEndian(bits, 8);
    }
    case ValueType::Currency:
    case ValueType::QWord:
      code(v.type);
      return LittleEndian(static_cast<std::uint64_t>(v.integer), 8);
    case ValueType::String:
    case ValueType::Ident:
      code(v.type);
      return ShortString(v.bytes);
    case ValueType::LString:
    case ValueType::UTF8String:
    case ValueType::Binary:
      code(v.type);
      LittleEndian(static_cast<std::uint64_t>(v.bytes.size()), 4);
      return Raw(v.bytes);
    case ValueType::WString:
    case ValueType::UString:
      code(v.type == ValueType::UString ? (lclStream_ ? ValueType::Double : ValueType::WString) : v.type);
      LittleEndian(static_cast<std::uint64_t>(v.wide.size()), 4);
      for (QChar c : v.wide) LittleEndian(c.unicode(), 2);
      return;
    case ValueType::Set:
      code(v.type);
      for (const QByteArray& element : v.elements) ShortString(element);
      return Byte(0);
    case ValueType::List:
      code(v.type);
      for (const Value& item : v.items) WriteValue(item);
      return Byte(0);
    case ValueType::Collection:
      code(v.type);
      for (const CollectionItem& item : v.collection) {
        if (item.index) TaggedInteger(*item.index, IntegerTypeFor(*item.index));
        Byte(1);
        for (const NamedValue& p : item.properties) {
          ShortString(p.path);
          WriteValue(p.value);
        }
        Byte(0);
      }
      return Byte(0);
    case ValueType::Null:
    case ValueType::False:
    case ValueType::True:
    case ValueType::Nil:
      return code(v.type);
  }
}

QByteArray ResourceHeader(QByteArrayView rootClass, std::size_t streamSize) {
  if (rootClass.contains('\0'))
    throw EFormError(
        QStringLiteral("The class name \"%1\" cannot name a resource").arg(QString::fromLatin1(rootClass)),
        {});
  QByteArray out("\xFF\x0A\x00", 3);
  out += rootClass.toByteArray().toUpper();
  out += '\0';
  out += "\x30\x10";
  for (int i = 0; i < 4; ++i) out += static_cast<char>(streamSize >> (8 * i));
  return out;
}

}  // namespace forms
