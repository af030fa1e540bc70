// The binary form: every value code, objects, resources.
#include <cfloat>
#include <cmath>
#include <cstring>

#include "tests/forms/FormTest.h"

using namespace formtest;

namespace {
Value Decoded(const QByteArray& value, bool lclStream = false) {
  QByteArray stream = StreamWith(value);
  // A second property that only fits one reading of code 21.
  if (lclStream) stream.insert(stream.size() - 2, QByteArray("\x01Z\x15\x01\x00\x00\x00z\x00", 9));
  const Document doc = Document::Parse(stream);
  Value v = doc.Read(doc.Root().properties.at(0));
  v.Own();
  EXPECT_EQ(doc.Write().toHex(), stream.toHex());
  return v;
}
}  // namespace

TEST(BinaryValue, EveryCodeIsRead) {
  EXPECT_EQ(Decoded(Hex("00")).type, ValueType::Null);
  EXPECT_EQ(Decoded(Hex("01 0201 0202 00")).items.at(1).integer, 2);
  EXPECT_EQ(Decoded(Hex("02 FF")).integer, -1);
  EXPECT_EQ(Decoded(Hex("03 00FF")).integer, -256);
  EXPECT_EQ(Decoded(Hex("04 000000FF")).integer, -16777216);
  EXPECT_EQ(static_cast<double>(Decoded(Hex("05 00000000000000C0FF3F")).real), 1.5);
  EXPECT_EQ(Decoded(Hex("06 03616263")).bytes, "abc");
  EXPECT_EQ(Decoded(Hex("07 03616263")).bytes, "abc");
  EXPECT_EQ(Decoded(Hex("08")).type, ValueType::False);
  EXPECT_EQ(Decoded(Hex("09")).type, ValueType::True);
  EXPECT_EQ(Decoded(Hex("0A 02000000 00FF")).bytes, Hex("00FF"));
  EXPECT_EQ(Decoded(Hex("0B 0161 026263 00")).elements, (QByteArrayList{"a", "bc"}));
  EXPECT_EQ(Decoded(Hex("0C 03000000 616263")).bytes, "abc");
  EXPECT_EQ(Decoded(Hex("0D")).type, ValueType::Nil);
  EXPECT_EQ(static_cast<double>(Decoded(Hex("0F 0000C03F")).real), 1.5);
  EXPECT_EQ(Decoded(Hex("10 3930000000000000")).integer, 12345);
  EXPECT_EQ(static_cast<double>(Decoded(Hex("11 00000000A0F9E540")).real), 45005);
  EXPECT_EQ(Decoded(Hex("12 02000000 4100AC20")).wide, QString::fromUtf16(u"A\u20AC"));
  EXPECT_EQ(Decoded(Hex("13 0000000000000080")).integer, INT64_MIN);
  EXPECT_EQ(Decoded(Hex("14 02000000 C3A9")).bytes, "\xC3\xA9");
  EXPECT_EQ(static_cast<double>(Decoded(Hex("15 000000000000F83F")).real), 1.5);
  EXPECT_EQ(Decoded(Hex("16 FFFFFFFFFFFFFFFF")).integer, -1);
}

TEST(BinaryValue, CollectionsHaveItemsWithOrWithoutIndex) {
  const Value v = Decoded(Hex("0E 01 0158 0205 00 0205 01 00 030001 01 00 04 00000100 01 00 00"));
  ASSERT_EQ(v.collection.size(), 4u);
  EXPECT_FALSE(v.collection[0].index);
  EXPECT_EQ(v.collection[0].properties.at(0).path, "X");
  EXPECT_EQ(v.collection[1].index, 5);
  EXPECT_EQ(v.collection[2].index, 256);
  EXPECT_EQ(v.collection[3].index, 65536);
}

TEST(BinaryValue, Code21IsADoubleUnlessOnlyAStringFits) {
  EXPECT_EQ(Decoded(Hex("15 000000000000F83F")).type, ValueType::Double);
  const Value v = Decoded(Hex("15 01000000 4100"), true);
  EXPECT_EQ(v.type, ValueType::UString);
  EXPECT_EQ(v.wide, QStringLiteral("A"));
}

TEST(BinaryValue, AStreamWithUnicodeStringsKeepsThemInEveryForm) {
  const QByteArray stream = StreamWith(Hex("15 02000000 4100AC20"));
  Document doc = Document::Parse(stream);
  EXPECT_EQ(doc.WriteAs(Format::Text), "object A: T\n  P = 'A'#8364\nend\n");
  EXPECT_TRUE(doc.WriteAs(Format::Resource).endsWith(stream));
  doc.Root().properties[0] = doc.MakeProperty("P", doc.Read(doc.Root().properties[0]));
  EXPECT_EQ(doc.Write().toHex(), stream.toHex());
}

TEST(BinaryValue, EveryCodeHasItsText) {
  const std::pair<const char*, const char*> cases[] = {
      {"00", "Null"},
      {"01 0201 00", "(\n  1)"},
      {"04 05000000", "5"},
      {"05 00000000000000C0FF3F", "1.500000000000000000"},
      {"06 03616263", "'abc'"},
      {"07 03616263", "abc"},
      {"08", "False"},
      {"09", "True"},
      {"0A 0100000001", "{01}"},
      {"0B 0161 00", "[a]"},
      {"0C 03000000 616263", "'abc'"},
      {"0D", "nil"},
      {"0E 0205 01 00 00", "<\n  item [5]\n  end>"},
      {"0F 0000C03F", "1.5s"},
      {"10 3930000000000000", "12345c"},
      {"11 00000000A0F9E540", "45005d"},
      {"12 01000000 AC20", "#8364"},
      {"13 0000000001000000", "4294967296"},
      {"14 02000000 C3A9", "#233"},
      {"15 000000000000F83F", "1.500000000000000000"},
      {"16 FFFFFFFFFFFFFFFF", "18446744073709551615"},
  };
  for (const auto& [bytes, text] : cases) EXPECT_EQ(Shown(Hex(bytes)), text) << bytes;
}

TEST(BinaryValue, TextIsEncodedInTheSmallestForm) {
  const std::pair<const char*, const char*> cases[] = {
      {"5", "0205"},
      {"255", "03FF00"},
      {"$FFFF", "04FFFF0000"},
      {"-2147483649", "13FFFFFF7FFFFFFFFF"},
      {"1.5", "0500000000000000C0FF3F"},
      {"-0.1", "05CDCCCCCCCCCCCCCCFBBF"},
      {"0.0", "0500000000000000000000"},
      {"1.5s", "0F0000C03F"},
      {"12345c", "103930000000000000"},
      {"45005d", "1100000000A0F9E540"},
      {"'abc'", "0603616263"},
      {"''", "0600"},
      {"'a'#13", "0602610D"},
      {"'\xC3\xA9'", "0602C3A9"},
      {"#8364", "1201000000AC20"},
      {"clRed", "0705636C526564"},
      {"A.B", "0703412E42"},
      {"true", "09"},
      {"FALSE", "08"},
      {"nil", "0D"},
      {"Null", "07044E756C6C"},
      {"[]", "0B00"},
      {"[a, bc]", "0B016102626300"},
      {"()", "0100"},
      {"(1 (2) 'x')",
       "010201010202000601"
       "7800"},
      {"{}", "0A00000000"},
      {"{0aFF}", "0A020000000AFF"},
      {"<>", "0E00"},
      {"<item X = 5 end item [7] end>",
       "0E0101580205"
       "00"
       "0207010000"},
  };
  for (const auto& [text, bytes] : cases)
    EXPECT_EQ(Encoded(text).toHex().toUpper(), QByteArray(bytes)) << text;
  EXPECT_EQ(Encoded("'" + QByteArray(255, 'x') + "'"), Hex("06FF") + QByteArray(255, 'x'));
  EXPECT_EQ(Encoded("'" + QByteArray(256, 'x') + "'"), Hex("0C00010000") + QByteArray(256, 'x'));
}

#if LDBL_MANT_DIG == 64  // only such a processor has the format to agree with
TEST(BinaryValue, ExtendedFloatsAgreeWithTheProcessorsOwnFormat) {
  std::uint64_t state = 99;
  const auto next = [&state] { return state = state * 6364136223846793005u + 1442695040888963407u; };
  for (int i = 0; i < 3000; ++i) {
    unsigned char raw[sizeof(long double)] = {};
    const std::uint64_t mantissa = next() | 0x8000000000000000u;
    const auto exponent = static_cast<unsigned>(next() >> 48) & 0xFFFFu;
    if ((exponent & 0x7FFFu) == 0x7FFF || (exponent & 0x7FFFu) == 0) continue;
    std::memcpy(raw, &mantissa, 8);
    raw[8] = static_cast<unsigned char>(exponent & 0xFFu);
    raw[9] = static_cast<unsigned char>(exponent >> 8);
    long double number;
    std::memcpy(&number, raw, sizeof number);
    EXPECT_EQ(forms::DecodeExtended(reinterpret_cast<const char*>(raw)), number);
    EXPECT_EQ(forms::EncodeExtended(number), QByteArray(reinterpret_cast<const char*>(raw), 10));
  }
}
#endif

TEST(BinaryValue, ExtendedFloatsKeepTheirExtremes) {
  for (const char* hex :
       {"0000000000000080FF7F", "0000000000000080FFFF", "00000000000000000080", "01000000000000000000",
        "FFFFFFFFFFFFFFFFFE7F", "00000000000000800100", "FFFFFFFFFFFFFF7F0000"})
    EXPECT_EQ(forms::EncodeExtended(forms::DecodeExtended(Hex(hex).constData())).toHex().toUpper(), hex);
  EXPECT_TRUE(std::isnan(forms::DecodeExtended(Hex("00000000000000C0FF7F").constData())));
  EXPECT_TRUE(std::isnan(forms::DecodeExtended(forms::EncodeExtended(std::nanl("")).constData())));
}

TEST(BinaryObject, PrefixGivesKindAndPosition) {
  const struct {
    const char* bytes;
    ObjectKind kind;
    std::optional<std::int64_t> position;
  } cases[] = {
      {"0154 0141 0000", ObjectKind::Object, {}},
      {"F0 0154 0141 0000", ObjectKind::Object, {}},
      {"F1 0154 0141 0000", ObjectKind::Inherited, {}},
      {"F4 0154 0141 0000", ObjectKind::Inline, {}},
      {"F5 0154 0141 0000", ObjectKind::Inherited, {}},
      {"F2 0203 0154 0141 0000", ObjectKind::Object, 3},
      {"F3 03FFFF 0154 0141 0000", ObjectKind::Inherited, -1},
      {"F6 0400000100 0154 0141 0000", ObjectKind::Inline, 65536},
  };
  for (const auto& c : cases) {
    const QByteArray stream = "TPF0" + Hex(c.bytes);
    const Document doc = Document::Parse(stream);
    EXPECT_EQ(doc.Root().kind, c.kind) << c.bytes;
    EXPECT_EQ(doc.Root().position, c.position) << c.bytes;
    EXPECT_EQ(doc.Root().className, "T") << c.bytes;
    EXPECT_EQ(doc.Write(), stream);
  }
}

TEST(BinaryObject, TextHeadersAreEncodedWithThePrefixTheyNeed) {
  const std::pair<const char*, const char*> cases[] = {{"object A: T end",
                                                        "0154014100"
                                                        "00"},
                                                       {"object T end", "0154000000"},
                                                       {"inherited A: T end", "F1015401410000"},
                                                       {"inline A: T end", "F4015401410000"},
                                                       {"object A: T[3] end", "F20203015401410000"},
                                                       {"inherited A: T[-1] end", "F302FF015401410000"},
                                                       {"inline A: T[300] end", "F6032C01015401410000"}};
  for (const auto& [text, bytes] : cases)
    EXPECT_EQ(Document::Parse(text).WriteAs(Format::Binary).mid(4).toHex().toUpper(), bytes) << text;
}

TEST(BinaryObject, ChildrenFollowTheProperties) {
  const Document doc = Document::Parse(
      "TPF0" + Hex("0154 0141 0150 0201 00  0155 0142 00 0156 00 00 00 00  0157 00 00 00  00"));
  ASSERT_EQ(doc.Root().children.size(), 2u);
  EXPECT_EQ(doc.Root().children[0]->children.at(0)->className, "V");
  EXPECT_EQ(doc.Root().children[1]->className, "W");
  EXPECT_EQ(doc.WriteAs(Format::Text),
            "object A: T\n  P = 1\n  object B: U\n    object V\n    end\n  end\n  object W\n  end\nend\n");
}

TEST(BinaryObject, LongClassNamesAreNotTakenForAPrefix) {
  for (const int length : {239, 240, 250, 255}) {
    const QByteArray text = "object A: " + QByteArray(length, 'T') + "\nend\n";
    const QByteArray stream = Document::Parse(text).WriteAs(Format::Binary);
    const Document doc = Document::Parse(stream);
    EXPECT_EQ(doc.Root().className.size(), length);
    EXPECT_EQ(doc.WriteAs(Format::Text).toStdString(), text.toStdString());
  }
}

TEST(Resource, HeaderHasTheUpperCaseClassAndTheSizeOfTheRest) {
  const Document doc = Document::Parse("object Main: TMainForm\n  Left = 1\nend\n");
  const QByteArray stream = doc.WriteAs(Format::Binary);
  const QByteArray file = doc.WriteAs(Format::Resource);
  EXPECT_EQ(file.first(file.size() - stream.size()).toHex(),
            (Hex("FF0A00") + "TMAINFORM" + Hex("00 3010") + static_cast<char>(stream.size()) + Hex("000000"))
                .toHex());
  EXPECT_TRUE(file.endsWith(stream));
  const Document again = Document::Parse(file);
  EXPECT_EQ(again.SourceFormat(), Format::Resource);
  EXPECT_EQ(again.WriteAs(Format::Binary), stream);
  EXPECT_EQ(again.WriteAs(Format::Text), doc.Write());
}

TEST(Resource, FormatsAreDetectedByTheFirstBytes) {
  EXPECT_EQ(Document::Detect("TPF0"), Format::Binary);
  EXPECT_EQ(Document::Detect("\xFF\x0A"), Format::Resource);
  EXPECT_EQ(Document::Detect("object"), Format::Text);
  EXPECT_EQ(Document::Detect("TPF1"), Format::Text);
  EXPECT_EQ(Document::Detect(""), Format::Text);
}
