// What the text form may hold, construct by construct.
#include <cmath>

#include "tests/forms/FormTest.h"

using namespace formtest;

TEST(TextObject, HeaderGivesKindNameAndClass) {
  const Document doc = Document::Parse(
      "inherited Main: TMain\n  inline Frame1: TFrame1\n  end\n  object Label1: TLabel\n  end\nend\n");
  EXPECT_EQ(doc.Root().kind, ObjectKind::Inherited);
  EXPECT_EQ(doc.Root().name, "Main");
  EXPECT_EQ(doc.Root().className, "TMain");
  ASSERT_EQ(doc.Root().children.size(), 2u);
  EXPECT_EQ(doc.Root().children[0]->kind, ObjectKind::Inline);
  EXPECT_EQ(doc.Root().children[1]->kind, ObjectKind::Object);
  EXPECT_EQ(doc.Root().children[1]->parent, &doc.Root());
  EXPECT_EQ(doc.Root().children[1]->IndexInParent(), 1);
}

TEST(TextObject, MayHaveNoName) {
  const Document doc = Document::Parse("object TMain\nend\n");
  EXPECT_EQ(doc.Root().name, "");
  EXPECT_EQ(doc.Root().className, "TMain");
}

TEST(TextObject, ChildPositionIsReadWithAnySignAndSpacing) {
  const std::pair<const char*, std::int64_t> cases[] = {{"object A: T [3]\nend", 3},
                                                        {"object A: T[3]\nend", 3},
                                                        {"object A: T [ -12 ]\nend", -12},
                                                        {"object T [ $10 ]\nend", 16},
                                                        {"object T [4000000000] end", 4000000000}};
  for (const auto& [text, position] : cases) {
    const Document doc = Document::Parse(text);
    EXPECT_EQ(doc.Root().position, position) << text;
    EXPECT_EQ(doc.Root().className, "T") << text;
  }
  EXPECT_FALSE(Document::Parse("object A: T\nend").Root().position.has_value());
}

TEST(TextObject, KeywordsAreReadWithoutRegardToCase) {
  const Document doc = Document::Parse(
      "INHERITED A: TA\n  C = <\n    Item\n      Q = 1\n    END>\n  Object B: TB\n  eNd\n  INLINE D: TD\n  "
      "end\nEnd\n");
  EXPECT_EQ(doc.Root().kind, ObjectKind::Inherited);
  EXPECT_EQ(doc.Root().children.at(1)->kind, ObjectKind::Inline);
  EXPECT_EQ(doc.Read(doc.Root().properties.at(0)).collection.size(), 1u);
}

TEST(TextObject, NamesKeepTheirCaseAndAreFoundWithoutRegardToIt) {
  const Document doc = Document::Parse("object A: T\n  lED.activeColor = 1\nend\n");
  const Property* p = doc.Root().Find("Led.ActiveColor");
  ASSERT_NE(p, nullptr);
  EXPECT_EQ(p->Name(), "lED.activeColor");
  EXPECT_EQ(doc.Root().Find("Led"), nullptr);
}

TEST(TextObject, TemplatesMayHavePlaceholdersInHeaders) {
  const Document doc = Document::Parse("object %Form%: T%Class%\nend\n");
  EXPECT_EQ(doc.Root().name, "%Form%");
  EXPECT_EQ(doc.Root().className, "T%Class%");
}

TEST(TextObject, ItemIsAnOrdinaryPropertyName) {
  const Document doc = Document::Parse("object A: T\n  item = 1\n  Item2 = 2\nend\n");
  EXPECT_EQ(doc.Read(*doc.Root().Find("item")).integer, 1);
}

TEST(TextObject, BlanksBehindThePointOfAPathAreNotPartOfTheName) {
  const Document doc = Document::Parse("object A: T\n  Font. \n Size = 9\nend\n");
  ASSERT_NE(doc.Root().Find("Font.Size"), nullptr);
  EXPECT_EQ(doc.Root().properties.at(0).Name(), "Font.Size");
  const Value v = ValueOf("<item P.\tQ = 1 end>");
  EXPECT_EQ(v.collection.at(0).properties.at(0).path, "P.Q");
}

TEST(TextObject, AWholeFormMayStandOnOneLine) {
  const Document doc = Document::Parse("object A:T P=1 Q='x'R=[a]object B:TB[0]end end");
  EXPECT_EQ(doc.Root().properties.size(), 3u);
  EXPECT_EQ(doc.Root().children.at(0)->name, "B");
}

TEST(TextValue, IntegersTakeTheSmallestType) {
  const std::pair<const char*, ValueType> cases[] = {{"0", ValueType::Int8},
                                                     {"127", ValueType::Int8},
                                                     {"-128", ValueType::Int8},
                                                     {"128", ValueType::Int16},
                                                     {"-129", ValueType::Int16},
                                                     {"32767", ValueType::Int16},
                                                     {"32768", ValueType::Int32},
                                                     {"-32769", ValueType::Int32},
                                                     {"2147483647", ValueType::Int32},
                                                     {"2147483648", ValueType::Int64},
                                                     {"-2147483649", ValueType::Int64},
                                                     {"9223372036854775807", ValueType::Int64}};
  for (const auto& [text, type] : cases) {
    const Value v = ValueOf(text);
    EXPECT_EQ(v.type, type) << text;
    EXPECT_EQ(QByteArray::number(static_cast<qlonglong>(v.integer)), text);
  }
  EXPECT_EQ(ValueOf("-9223372036854775808").integer, INT64_MIN);
  EXPECT_EQ(ValueOf("00012").integer, 12);
}

TEST(TextValue, HexadecimalGoesByValueAndWrapsAt64Bits) {
  EXPECT_EQ(ValueOf("$7f").type, ValueType::Int8);
  EXPECT_EQ(ValueOf("$FF").integer, 255);
  EXPECT_EQ(ValueOf("$FF").type, ValueType::Int16);
  EXPECT_EQ(ValueOf("$FFFFFFFF").integer, 4294967295);
  EXPECT_EQ(ValueOf("$FFFFFFFF").type, ValueType::Int64);
  EXPECT_EQ(ValueOf("$FFFFFFFFFFFFFFFF").integer, -1);
  EXPECT_EQ(ValueOf("18446744073709551615").integer, -1);
}

TEST(TextValue, AFloatNeedsAPointOrAnExponent) {
  const std::pair<const char*, double> cases[] = {{"1.5", 1.5},   {"1.", 1.0},     {"-0.25", -0.25},
                                                  {"1E3", 1000},  {"25e-2", 0.25}, {"-1.5E+2", -150},
                                                  {"007.50", 7.5}};
  for (const auto& [text, number] : cases) {
    const Value v = ValueOf(text);
    EXPECT_EQ(v.type, ValueType::Extended) << text;
    EXPECT_EQ(static_cast<double>(v.real), number) << text;
  }
  EXPECT_EQ(static_cast<double>(ValueOf("1E308").real), 1e308);
  EXPECT_GT(ValueOf("1E4000").real, 1e300L);
}

TEST(TextValue, SuffixesNameSingleCurrencyAndDate) {
  for (const char* text : {"1.5s", "1.5S"}) {
    EXPECT_EQ(ValueOf(text).type, ValueType::Single);
    EXPECT_EQ(static_cast<double>(ValueOf(text).real), 1.5);
  }
  for (const char* text : {"12345c", "12345C"}) {
    EXPECT_EQ(ValueOf(text).type, ValueType::Currency);
    EXPECT_EQ(ValueOf(text).integer, 12345);
  }
  for (const char* text : {"45000.5d", "45000.5D"}) {
    EXPECT_EQ(ValueOf(text).type, ValueType::Date);
    EXPECT_EQ(static_cast<double>(ValueOf(text).real), 45000.5);
  }
  EXPECT_EQ(ValueOf("45000d").type, ValueType::Date);
  EXPECT_EQ(ValueOf("-3c").integer, -3);
  EXPECT_EQ(ValueOf("9223372036854775807c").integer, INT64_MAX);
  EXPECT_EQ(ValueOf("-9223372036854775808c").integer, INT64_MIN);
}

TEST(TextValue, StringsJoinQuotedPartsCodesAndSegments) {
  EXPECT_EQ(ValueOf("''").bytes, "");
  EXPECT_EQ(ValueOf("'it''s'").bytes, "it's");
  EXPECT_EQ(ValueOf("''''").bytes, "'");
  EXPECT_EQ(ValueOf("'a'#13#10'b'").bytes, "a\r\nb");
  EXPECT_EQ(ValueOf("#39'x'#39").bytes, "'x'");
  EXPECT_EQ(ValueOf("'a' +\n    'b'\n + #99").bytes, "abc");
  EXPECT_EQ(ValueOf("'a\tb'").bytes, "a\tb");
  EXPECT_EQ(ValueOf("#").bytes, QByteArray(1, '\0'));
  EXPECT_EQ(ValueOf("'a'#'b'").bytes, QByteArray("a\0b", 3));
}

TEST(TextValue, StringsOver255BytesAreLong) {
  EXPECT_EQ(ValueOf("'" + QByteArray(255, 'x') + "'").type, ValueType::String);
  EXPECT_EQ(ValueOf("'" + QByteArray(256, 'x') + "'").type, ValueType::LString);
  EXPECT_EQ(ValueOf("'" + QByteArray(5000, 'x') + "'#10").bytes.size(), 5001);
}

TEST(TextValue, ACodeOver127MakesTheWholeStringWide) {
  EXPECT_EQ(ValueOf("'a' + #127").type, ValueType::String);
  const Value v = ValueOf("'a'#128 + 'b'#8364");
  EXPECT_EQ(v.type, ValueType::WString);
  EXPECT_EQ(v.wide, QString::fromUtf16(u"a\u0080b\u20AC"));
  EXPECT_EQ(ValueOf("#55357#56832").wide, QString::fromUtf8("\xF0\x9F\x98\x80"));
  EXPECT_EQ(ValueOf("#128512").wide, QString::fromUtf8("\xF0\x9F\x98\x80"));
  EXPECT_EQ(ValueOf("'\xC3\xA9'#300").wide, QString::fromUtf8("\xC3\xA9\xC4\xAC"));
  EXPECT_EQ(ValueOf("'\xE9'#300").wide, QString::fromUtf8("?\xC4\xAC"));
}

TEST(TextValue, LiteralBytesStayAsTheyStand) {
  EXPECT_EQ(ValueOf("'\xC3\xA9'").type, ValueType::String);
  EXPECT_EQ(ValueOf("'\xC3\xA9'#13").bytes, "\xC3\xA9\r");
  EXPECT_EQ(ValueOf("'\xCF\xF0'").bytes, "\xCF\xF0");
}

TEST(TextValue, IdentifiersMayHavePoints) {
  EXPECT_EQ(ValueOf("clBtnFace").type, ValueType::Ident);
  EXPECT_EQ(ValueOf("DataModule1.Source_2").bytes, "DataModule1.Source_2");
  EXPECT_EQ(ValueOf("Null").type, ValueType::Ident);
}

TEST(TextValue, TrueFalseAndNilAreReadWithoutRegardToCase) {
  for (const char* text : {"True", "true", "TRUE"})
    EXPECT_TRUE(ValueOf(text) == Value::Boolean(true)) << text;
  for (const char* text : {"False", "false", "FALSE"})
    EXPECT_TRUE(ValueOf(text) == Value::Boolean(false)) << text;
  for (const char* text : {"nil", "Nil", "NIL"}) EXPECT_TRUE(ValueOf(text) == Value{}) << text;
}

TEST(TextValue, SetsHoldIdentifiers) {
  EXPECT_EQ(ValueOf("[]").elements, QByteArrayList());
  EXPECT_EQ(ValueOf("[ ]").elements, QByteArrayList());
  EXPECT_EQ(ValueOf("[akLeft]").elements, QByteArrayList{"akLeft"});
  EXPECT_EQ(ValueOf("[akLeft,akTop\n  ,\takRight ]").elements,
            (QByteArrayList{"akLeft", "akTop", "akRight"}));
}

TEST(TextValue, ListsHoldAnyValuesAndNest) {
  EXPECT_TRUE(ValueOf("()").items.empty());
  const Value v = ValueOf("(1 'a' 'b'#13 2.5 clRed True nil [x, y] {01} (2 (3)) <item end>)");
  ASSERT_EQ(v.items.size(), 11u);
  EXPECT_EQ(v.items[1].bytes, "a");
  EXPECT_EQ(v.items[2].bytes, "b\r");
  EXPECT_EQ(v.items[3].type, ValueType::Extended);
  EXPECT_EQ(v.items[4].bytes, "clRed");
  EXPECT_EQ(v.items[7].elements.size(), 2);
  EXPECT_EQ(v.items[8].bytes, "\x01");
  EXPECT_EQ(v.items[9].items.at(1).items.at(0).integer, 3);
  EXPECT_EQ(v.items[10].collection.size(), 1u);
}

TEST(TextValue, ABlankBetweenStringPartsMakesTwoListElements) {
  EXPECT_EQ(ValueOf("('a' 'b')").items.size(), 2u);
  EXPECT_EQ(ValueOf("('a' #13)").items.size(), 2u);
  EXPECT_EQ(ValueOf("('a' + 'b')").items.size(), 1u);
  EXPECT_EQ(ValueOf("('a'#13)").items.size(), 1u);
}

TEST(TextValue, CollectionsHoldItemsWithPropertiesAndNest) {
  EXPECT_TRUE(ValueOf("<>").collection.empty());
  EXPECT_TRUE(ValueOf("< >").collection.empty());
  const Value v = ValueOf(
      "<\n item\n  Caption = 'a'\n  Sub.Items = <\n item\n X = 1\n end\n item\n end>\n end\n item [7]\n "
      "end\n item[ -1 ]\n end>");
  ASSERT_EQ(v.collection.size(), 3u);
  EXPECT_FALSE(v.collection[0].index);
  EXPECT_EQ(v.collection[0].properties.at(1).path, "Sub.Items");
  EXPECT_EQ(v.collection[0].properties.at(1).value.collection.at(0).properties.at(0).value.integer, 1);
  EXPECT_EQ(v.collection[0].properties.at(1).value.collection.size(), 2u);
  EXPECT_EQ(v.collection[1].index, 7);
  EXPECT_EQ(v.collection[2].index, -1);
}

TEST(TextValue, BinaryIsPairsOfHexDigits) {
  EXPECT_EQ(ValueOf("{}").bytes, "");
  EXPECT_EQ(ValueOf("{ }").bytes, "");
  EXPECT_EQ(ValueOf("{0aFF}").bytes, "\x0A\xFF");
  EXPECT_EQ(ValueOf("{\r\n  0A fF\r\n  01}").bytes, "\x0A\xFF\x01");
  EXPECT_EQ(ValueOf("{00}").type, ValueType::Binary);
}
