// From one form into another and back.
#include "tests/forms/RandomValues.h"

using namespace formtest;

namespace {
QByteArray Convert(const QByteArray& bytes, Format to, const Dialect& style = {}) {
  return Document::Parse(bytes, style).WriteAs(to);
}

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
