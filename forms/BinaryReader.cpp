#include "forms/BinaryReader.h"

#include <cstring>

namespace forms {

namespace {
constexpr char Signature[] = "TPF0";
QString FromUnits(QByteArrayView bytes) {
  QString text(bytes.size() / 2, Qt::Uninitialized);
  for (qsizetype i = 0; i < text.size(); ++i)
    text[i] = QChar(static_cast<char16_t>(static_cast<unsigned char>(bytes[2 * i]) |
                                          (static_cast<unsigned char>(bytes[2 * i + 1]) << 8)));
  return text;
}
}  // namespace

std::size_t StreamOffset(QByteArrayView bytes) {
  if (bytes.startsWith(Signature)) return 0;
  const auto fail = [](const char* text, std::size_t at) -> std::size_t {
    throw EFormError(QString::fromLatin1(text), Location{at, 0, 0});
  };
  const auto byteAt = [&](qsizetype i) { return static_cast<unsigned char>(bytes[i]); };
  if (bytes.size() < 6 || byteAt(0) != 0xFF) return fail("This is neither a form text nor a form stream", 0);
  qsizetype at = 3;
  if (byteAt(1) == 0x0A && byteAt(2) == 0x00) {
    while (at < bytes.size() && bytes[at] != 0) ++at;
    ++at;  // the name's end
  } else {
    return fail("The resource header is damaged", 1);
  }
  at += 6;  // flags, size
  at = std::min(at, bytes.size());
  if (!bytes.sliced(at).startsWith(Signature))
    return fail("The resource holds no form stream (\"TPF0\" expected)", static_cast<std::size_t>(at));
  return static_cast<std::size_t>(at);
}

BinaryReader::BinaryReader(QByteArrayView bytes, std::size_t at, bool lclStream)
    : begin_(bytes.data()), p_(bytes.data() + at), end_(bytes.data() + bytes.size()), lclStream_(lclStream) {}

void BinaryReader::Fail(const QString& text) const { throw EFormError(text, Location{Offset(), 0, 0}); }

void BinaryReader::Charge(std::int64_t pieceCost) {
  if (!budget_.Take(pieceCost))
    Fail(QStringLiteral("The form has too many parts: in memory it would take more than %1 MB")
             .arg(MaxFormMemory >> 20));
}

unsigned char BinaryReader::Byte() {
  if (p_ == end_) Fail(QStringLiteral("The stream ends too early"));
  return static_cast<unsigned char>(*p_++);
}

QByteArrayView BinaryReader::Take(std::size_t count, const char* what) {
  if (count > Left())
    Fail(QStringLiteral("The stream ends inside %1: %2 bytes announced, %3 left")
             .arg(QLatin1StringView(what))
             .arg(count)
             .arg(Left()));
  const QByteArrayView bytes(p_, static_cast<qsizetype>(count));
  p_ += count;
  return bytes;
}

QByteArrayView BinaryReader::ShortString(const char* what) { return Take(Byte(), what); }

std::uint64_t BinaryReader::LittleEndian(int bytes) {
  std::uint64_t v = 0;
  const QByteArrayView data = Take(static_cast<std::size_t>(bytes), "a number");
  for (int i = bytes - 1; i >= 0; --i) v = v << 8 | static_cast<unsigned char>(data[i]);
  return v;
}

std::int64_t BinaryReader::TaggedInteger(ValueType type) {
  switch (type) {
    case ValueType::Int8:
      return static_cast<std::int8_t>(LittleEndian(1));
    case ValueType::Int16:
      return static_cast<std::int16_t>(LittleEndian(2));
    case ValueType::Int32:
      return static_cast<std::int32_t>(LittleEndian(4));
    case ValueType::Int64:
      return static_cast<std::int64_t>(LittleEndian(8));
    default:
      Fail(QStringLiteral("An integer expected, but value code %1 found").arg(static_cast<int>(type)));
  }
}

void BinaryReader::ReadDocument(FormTree& tree) {
  p_ += 4;  // the signature, checked by StreamOffset
  tree.before = {0, static_cast<std::uint32_t>(Offset())};
  tree.lclStream = lclStream_;
  tree.root = ReadObject(tree, 0);
  tree.trailer = {static_cast<std::uint32_t>(Offset()), static_cast<std::uint32_t>(end_ - begin_)};
}

std::unique_ptr<Object> BinaryReader::ReadObject(FormTree& tree, int depth) {
  if (depth > MaxDepth) Fail(QStringLiteral("Objects are nested more than %1 deep").arg(MaxDepth));
  Charge(cost::Object);
  auto object = std::make_unique<Object>();
  object->header.begin = static_cast<std::uint32_t>(Offset());
  if (p_ != end_ && (static_cast<unsigned char>(*p_) & 0xF0u) == 0xF0u) {
    const unsigned flags = Byte() & 0x0Fu;
    if (flags & 1u)
      object->kind = ObjectKind::Inherited;
    else if (flags & 4u)
      object->kind = ObjectKind::Inline;
    if (flags & 2u) object->position = TaggedInteger(static_cast<ValueType>(Byte()));
  }
  const QByteArrayView cls = ShortString("a class name");
  const QByteArrayView name = ShortString("a component name");
  object->className = QByteArray::fromRawData(cls.data(), cls.size());
  object->name = QByteArray::fromRawData(name.data(), name.size());
  object->header.end = static_cast<std::uint32_t>(Offset());

  std::vector<Property> properties;
  for (;;) {
    const char* begin = p_;
    const QByteArrayView path = ShortString("a property name");
    if (path.isEmpty()) {
      // The list's end stands between properties and children; it is written with the structure.
      break;
    }
    const char* value = p_;
    ReadValue(nullptr);
    Charge(cost::Property);
    properties.emplace_back(path, QByteArrayView(begin, p_), value);
  }
  properties.shrink_to_fit();
  object->properties = std::move(properties);
  while (p_ != end_ && *p_ != 0) {
    auto child = ReadObject(tree, depth + 1);
    child->parent = object.get();
    object->children.push_back(std::move(child));
  }
  object->footer.begin = static_cast<std::uint32_t>(Offset());
  if (Byte() != 0) Fail(QStringLiteral("The end of the object is missing"));
  object->footer.end = static_cast<std::uint32_t>(Offset());
  return object;
}

QByteArrayView BinaryReader::LongData(std::size_t unit, const char* what) {
  const std::uint64_t count = LittleEndian(4);
  return Take(count * unit, what);
}

void BinaryReader::ReadList(Value* out, int depth) {
  for (;;) {
    if (p_ == end_) Fail(QStringLiteral("The stream ends inside a list"));
    if (*p_ == 0) {
      ++p_;
      return;
    }
    Charge(cost::Element);
    Value item;
    ReadValue(out ? &item : nullptr, depth + 1);
    if (out) out->items.push_back(std::move(item));
  }
}

void BinaryReader::ReadCollection(Value* out, int depth) {
  for (;;) {
    unsigned char code = Byte();
    if (code == 0) return;
    Charge(cost::Item);
    CollectionItem item;
    if (code != 1) {
      item.index = TaggedInteger(static_cast<ValueType>(code));
      code = Byte();
    }
    if (code != 1) Fail(QStringLiteral("A collection item expected, but code %1 found").arg(code));
    for (;;) {
      const QByteArrayView path = ShortString("a property name");
      if (path.isEmpty()) break;
      Charge(cost::Element);
      NamedValue property;
      ReadValue(out ? &property.value : nullptr, depth + 1);
      if (out) {
        property.path = path.toByteArray();
        item.properties.push_back(std::move(property));
      }
    }
    if (out) out->collection.push_back(std::move(item));
  }
}

void BinaryReader::ReadValue(Value* out, int depth) {
  if (depth > MaxDepth) Fail(QStringLiteral("Values are nested more than %1 deep").arg(MaxDepth));
  const auto code = Byte();
  auto type = static_cast<ValueType>(code);
  if (type == ValueType::Double && lclStream_) type = ValueType::UString;
  if (out) {
    *out = Value{};
    out->type = type;
  }
  const auto raw = [](QByteArrayView v) { return QByteArray::fromRawData(v.data(), v.size()); };
  switch (type) {
    case ValueType::Null:
    case ValueType::False:
    case ValueType::True:
    case ValueType::Nil:
      return;
    case ValueType::Int8:
    case ValueType::Int16:
    case ValueType::Int32:
    case ValueType::Int64: {
      const std::int64_t v = TaggedInteger(type);
      if (out) out->integer = v;
      return;
    }
    case ValueType::Extended: {
      const QByteArrayView data = Take(10, "a floating-point number");
      if (out) out->real = DecodeExtended(data.data());
      return;
    }
    case ValueType::Single: {
      const auto bits = static_cast<std::uint32_t>(LittleEndian(4));
      float v;
      std::memcpy(&v, &bits, 4);
      if (out) out->real = v;
      return;
    }
    case ValueType::Date:
    case ValueType::Double: {
      sawDouble_ = sawDouble_ || type == ValueType::Double;
      const std::uint64_t bits = LittleEndian(8);
      double v;
      std::memcpy(&v, &bits, 8);
      if (out) out->real = v;
      return;
    }
    case ValueType::Currency:
    case ValueType::QWord: {
      const auto v = static_cast<std::int64_t>(LittleEndian(8));
      if (out) out->integer = v;
      return;
    }
    case ValueType::String:
    case ValueType::Ident: {
      const QByteArrayView v = ShortString("a string");
      if (out) out->bytes = raw(v);
      return;
    }
    case ValueType::LString:
    case ValueType::UTF8String:
    case ValueType::Binary: {
      const QByteArrayView v = LongData(1, "a long string");
      if (out) out->bytes = raw(v);
      return;
    }
    case ValueType::WString:
    case ValueType::UString: {
      const QByteArrayView v = LongData(2, "a wide string");
      if (out) out->wide = FromUnits(v);
      return;
    }
    case ValueType::Set:
      for (;;) {
        const QByteArrayView element = ShortString("a set element");
        if (element.isEmpty()) return;
        Charge(cost::SetElement);
        if (out) out->elements.append(element.toByteArray());
      }
    case ValueType::List:
      return ReadList(out, depth);
    case ValueType::Collection:
      return ReadCollection(out, depth);
    default:
      --p_;
      Fail(QStringLiteral("Unknown value code %1").arg(code));
  }
}

}  // namespace forms
