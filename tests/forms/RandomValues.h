// Random values, and the layout of a stream once more in the plainest way.
#pragma once
#include <random>

#include "tests/forms/FormTest.h"

namespace formtest {

// Makes random values and, beside them, their binary form and the value that is read back from their text.
class RandomValues {
 public:
  explicit RandomValues(unsigned seed) : random_(seed) {}
  std::size_t Below(std::size_t n) { return random_() % n; }

  Value Make(int depth) {
    Value v;
    switch (Below(depth > 0 ? 14 : 11)) {
      case 0:
        return Value::Boolean(Below(2) != 0);
      case 1:
        return v;
      case 2:
        return Value::Identifier(Name() + (Below(3) ? "" : "." + Name()));
      case 3:
        return Value::Integer(static_cast<std::int64_t>(random_()) >> Below(64));
      case 4:
        return Value::Real(static_cast<long double>(static_cast<std::int64_t>(random_())) / 1024 + 0.5L);
      case 5:
        return Value::Real(static_cast<float>(Below(100000)) / 64, ValueType::Single);
      case 6:
        return Value::Real(static_cast<double>(Below(100000)) + 0.25, ValueType::Date);
      case 7:
        v.type = ValueType::Currency;
        v.integer = static_cast<std::int64_t>(random_());
        return v;
      case 8:
        return Value::Text(Text());
      case 9:
        return Value::Data(Bytes(Below(100)));
      case 10:
        return Value::SetOf(Names());
      case 11:
        v.type = ValueType::List;
        for (auto n = Below(4); n > 0; --n) v.items.push_back(Make(depth - 1));
        return v;
      default:
        v.type = ValueType::Collection;
        for (auto n = Below(4); n > 0; --n) {
          forms::CollectionItem item;
          if (!Below(3)) item.index = static_cast<std::int64_t>(random_()) >> (33 + Below(31));
          for (auto m = Below(3); m > 0; --m) item.properties.push_back({Name() + ".P", Make(depth - 1)});
          v.collection.push_back(item);
        }
        return v;
    }
  }
  QByteArray Name() {
    QByteArray name(1, static_cast<char>('A' + Below(26)));
    while (Below(4)) name += static_cast<char>('a' + Below(26));
    return name;
  }

 private:
  QByteArrayList Names() {
    QByteArrayList names;
    for (auto n = Below(5); n > 0; --n) names << Name();
    return names;
  }
  QByteArray Bytes(std::size_t n) {
    QByteArray bytes;
    for (; n > 0; --n) bytes += static_cast<char>(random_());
    return bytes;
  }
  QString Text() {
    static constexpr char16_t units[] = {'a', 'b',  '\'', '\r',   '\n',   '\t',   ' ',   '#',
                                         '+', 0x7F, 0x01, 0x00E9, 0x20AC, 0xD83D, 0xFFFF};
    QString text;
    const std::size_t known = Below(2) ? 11 : 15;  // half of the strings are ASCII
    for (auto n = Below(Below(3) ? 20 : 400); n > 0; --n) text += QChar(units[Below(known)]);
    return text;
  }
  std::mt19937_64 random_;
};

// The layout of a stream once more, in the plainest way.
class PlainEncoder {
 public:
  QByteArray out;
  void Number(std::uint64_t v, int bytes) {
    for (; bytes > 0; --bytes, v >>= 8) out += static_cast<char>(v & 0xFFu);
  }
  void Short(const QByteArray& text) {
    Number(static_cast<std::uint64_t>(text.size()), 1);
    out += text;
  }
  void Integer(std::int64_t v) {
    const auto bits = static_cast<std::uint64_t>(v);
    if (v == static_cast<std::int8_t>(bits))
      Number(2, 1), Number(bits, 1);
    else if (v == static_cast<std::int16_t>(bits))
      Number(3, 1), Number(bits, 2);
    else if (v == static_cast<std::int32_t>(bits))
      Number(4, 1), Number(bits, 4);
    else
      Number(19, 1), Number(bits, 8);
  }
  void Put(const Value& v) {
    if (v.IsInteger()) return Integer(v.integer);
    Number(static_cast<std::uint64_t>(v.type), 1);
    const auto real = static_cast<double>(v.real);
    const auto single = static_cast<float>(v.real);
    switch (v.type) {
      case ValueType::Extended:
        out += forms::EncodeExtended(v.real);
        break;
      case ValueType::Single:
        out.append(reinterpret_cast<const char*>(&single), 4);
        break;
      case ValueType::Date:
        out.append(reinterpret_cast<const char*>(&real), 8);
        break;
      case ValueType::Currency:
        Number(static_cast<std::uint64_t>(v.integer), 8);
        break;
      case ValueType::String:
      case ValueType::Ident:
        Short(v.bytes);
        break;
      case ValueType::LString:
      case ValueType::Binary:
        Number(static_cast<std::uint64_t>(v.bytes.size()), 4);
        out += v.bytes;
        break;
      case ValueType::WString:
        Number(static_cast<std::uint64_t>(v.wide.size()), 4);
        for (const QChar c : v.wide) Number(c.unicode(), 2);
        break;
      case ValueType::Set:
        for (const QByteArray& e : v.elements) Short(e);
        Number(0, 1);
        break;
      case ValueType::List:
        for (const Value& item : v.items) Put(item);
        Number(0, 1);
        break;
      case ValueType::Collection:
        for (const auto& item : v.collection) {
          if (item.index) Integer(*item.index);
          Number(1, 1);
          for (const auto& p : item.properties) Short(p.path), Put(p.value);
          Number(0, 1);
        }
        Number(0, 1);
        break;
      default:
        break;
    }
  }
};

}  // namespace formtest
