// From one form into another and back.
#include <random>

#include "tests/forms/FormTest.h"

using namespace formtest;

namespace {
QByteArray Convert(const QByteArray& bytes, Format to, const Dialect& style = {}) {
  return Document::Parse(bytes, style).WriteAs(to);
}

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

// General floats lose the point of whole numbers, which are integers when read back.
Value WithoutWholeFloats(Value v) {
  if (v.type == ValueType::Extended &&
      v.real == static_cast<long double>(static_cast<std::int64_t>(v.real)) && v.real < 1e15L &&
      v.real > -1e15L)
    return Value::Integer(static_cast<std::int64_t>(v.real));
  for (Value& item : v.items) item = WithoutWholeFloats(item);
  for (auto& item : v.collection)
    for (auto& p : item.properties) p.value = WithoutWholeFloats(p.value);
  return v;
}
}  // namespace

TEST(Convert, RandomValuesAreEncodedAsAPlainEncoderDoes) {
  RandomValues random(1);
  for (int i = 0; i < 1500; ++i) {
    const Value v = random.Make(3);
    PlainEncoder plain;
    plain.Put(v);
    Document doc = Document::Create("T", "A");
    doc.Root().properties.push_back(doc.MakeProperty("P", v));
    const QByteArray stream = doc.WriteAs(Format::Binary);
    ASSERT_EQ(stream.toHex(), StreamWith(plain.out).toHex());
    const Document again = Document::Parse(stream);
    ASSERT_TRUE(again.Read(again.Root().properties.at(0)) == v) << stream.toHex().toStdString();
  }
}

TEST(Convert, RandomValuesComeBackFromTheirTextInBothLayouts) {
  RandomValues random(2);
  for (int i = 0; i < 1500; ++i) {
    const Value v = random.Make(3);
    for (const Dialect& style : {Vcl(), Lcl()}) {
      const QByteArray text = forms::ValueToText(v, style, 1);
      ASSERT_TRUE(forms::TextToValue(text) == (style.lcl ? WithoutWholeFloats(v) : v)) << text.toStdString();
    }
  }
}

TEST(Convert, RandomFormsAreStableThroughTextAndBinary) {
  RandomValues random(3);
  for (int i = 0; i < 200; ++i) {
    Document doc = Document::Create("TRoot", "Root");
    std::vector<Object*> all{&doc.Root()};
    for (auto n = random.Below(8); n > 0; --n) {
      Object& child =
          all[random.Below(all.size())]->AddChild(random.Name(), random.Below(4) ? random.Name() : "");
      child.kind = static_cast<ObjectKind>(random.Below(3));
      if (!random.Below(3)) child.position = static_cast<std::int64_t>(random.Below(100000)) - 50000;
      all.push_back(&child);
    }
    for (Object* object : all)
      for (auto n = random.Below(4); n > 0; --n)
        object->properties.push_back(doc.MakeProperty(random.Name() + ".X", random.Make(2)));
    const QByteArray text = doc.Write();
    const QByteArray binary = Convert(text, Format::Binary);
    ASSERT_EQ(binary.toHex(), doc.WriteAs(Format::Binary).toHex());
    ASSERT_EQ(Convert(binary, Format::Text).toStdString(), text.toStdString());
    ASSERT_EQ(Convert(Convert(binary, Format::Resource), Format::Text).toStdString(), text.toStdString());
    ASSERT_EQ(Convert(Convert(text, Format::Resource), Format::Binary).toHex(), binary.toHex());
    // The other layout is a second way to write the same form.
    const QByteArray lcl = Document::Parse(binary, Lcl()).WriteAs(Format::Text);
    ASSERT_EQ(Convert(lcl, Format::Text).toStdString(), lcl.toStdString());
    const QByteArray viaLcl = Convert(lcl, Format::Binary);
    ASSERT_EQ(Document::Parse(viaLcl, Lcl()).WriteAs(Format::Text).toStdString(), lcl.toStdString());
  }
}

TEST(Convert, ObjectTextIsTheObjectAlone) {
  const Document doc = Document::Parse(
      "object A: T\r\n  object B: U [1]\r\n    P=$0F\r\n    object C: V\r\n    end\r\n  end\r\nend\r\n");
  EXPECT_EQ(doc.ObjectText(*doc.Root().children.at(0)),
            "object B: U [1]\r\n  P = 15\r\n  object C: V\r\n  end\r\nend\r\n");
}

TEST(Convert, ADetachedObjectOutlivesItsDocument) {
  Document target = Document::Create("T", "A");
  {
    const Document source = Document::Parse(
        "object X: T\n  object B: U\n    Caption = '" + QByteArray(300, 'x') +
        "'\n    L = ('a' (b))\n    C = <item Z = 'z' end>\n    object D: V\n    end\n  end\nend\n");
    target.Root().Insert(0, source.Detached(*source.Root().children.at(0), target));
  }
  const Document again = Document::Parse(target.Write());
  const Object& b = *again.Root().children.at(0);
  EXPECT_EQ(again.Read(*b.Find("Caption")).bytes, QByteArray(300, 'x'));
  EXPECT_EQ(again.Read(*b.Find("L")).items.at(1).items.at(0).bytes, "b");
  EXPECT_EQ(again.Read(*b.Find("C")).collection.at(0).properties.at(0).value.bytes, "z");
  EXPECT_EQ(b.children.at(0)->name, "D");
  EXPECT_EQ(b.children.at(0)->parent, &b);
}

TEST(Convert, ADetachedObjectKeepsTheKindsOfItsValues) {
  for (const char* hex : {"00", "0C 03000000 616263", "0700", "0F 0000C03F", "12 00000000",
                          "14 02000000 C3A9", "15 000000000000F83F", "16 0500000000000000", "04 01000000"}) {
    const Document source = Document::Parse(StreamWith(Hex(hex)));
    Document target = Document::Create("T", "A");
    target.Root().Insert(0, source.Detached(source.Root(), target));
    EXPECT_TRUE(target.Read(target.Root().children.at(0)->properties.at(0)) ==
                source.Read(source.Root().properties.at(0)))
        << hex;
  }
}
