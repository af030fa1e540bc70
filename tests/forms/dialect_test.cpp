// The style of regenerated text comes from the file's own content, then from its name.
#include "tests/forms/FormTest.h"

using namespace formtest;

namespace {
Dialect StyleOf(const QByteArray& text, const Dialect& hint = {}) {
  return Document::Parse(text, hint).Style();
}
bool IsLcl(const QByteArray& value, const Dialect& hint) { return StyleOf(FormWith(value), hint).lcl; }
}  // namespace

TEST(DialectEvidence, GluedBracketsAreOneLayoutAndBracketsApartTheOther) {
  for (const Dialect& hint : {Vcl(), Lcl()}) {
    EXPECT_FALSE(IsLcl("(\n    1)", hint));
    EXPECT_TRUE(IsLcl("(\n    1\n  )", hint));
    EXPECT_FALSE(IsLcl("{\n    01}", hint));
    EXPECT_TRUE(IsLcl("{\n    01\n  }", hint));
    EXPECT_FALSE(IsLcl("{01}", hint));
  }
}

TEST(DialectEvidence, ApostrophesAndChildPositionsCount) {
  for (const Dialect& hint : {Vcl(), Lcl()}) {
    EXPECT_FALSE(IsLcl("#39", hint));
    EXPECT_TRUE(IsLcl("''''", hint));
    EXPECT_FALSE(StyleOf("object A: T [1]\nend", hint).lcl);
    EXPECT_TRUE(StyleOf("object A: T[1]\nend", hint).lcl);
  }
}

TEST(DialectEvidence, BracketsOutweighAHandWrittenApostrophe) {
  EXPECT_FALSE(StyleOf("object A: T\n  P = (\n    'it''s')\nend\n", Lcl()).lcl);
  EXPECT_TRUE(StyleOf("object A: T\n  P = (\n    #39\n  )\nend\n", Vcl()).lcl);
}

TEST(DialectEvidence, WithoutAnyTheHintDecides) {
  for (const char* value : {"1", "'x'", "[a]", "()", "<>", "True"}) {
    EXPECT_FALSE(IsLcl(value, Vcl())) << value;
    EXPECT_TRUE(IsLcl(value, Lcl())) << value;
  }
}

TEST(DialectEvidence, TheEndingOfTheFileNameIsTheHint) {
  EXPECT_TRUE(forms::DialectOfName(QStringLiteral("a/unit1.lfm")).lcl);
  EXPECT_TRUE(forms::DialectOfName(QStringLiteral("UNIT1.LFM")).lcl);
  EXPECT_FALSE(forms::DialectOfName(QStringLiteral("unit1.dfm")).lcl);
  EXPECT_FALSE(forms::DialectOfName(QStringLiteral("lfm")).lcl);
  EXPECT_FALSE(forms::DialectOfName(QStringLiteral("x.lfm")).fixedFloats);
  EXPECT_TRUE(forms::DialectOfName(QStringLiteral("x.dfm")).fixedFloats);
}

TEST(DialectEvidence, FloatsOfTheFileDecideHowFloatsAreWritten) {
  EXPECT_TRUE(StyleOf(FormWith("1.500000000000000000"), Lcl()).fixedFloats);
  EXPECT_FALSE(StyleOf(FormWith("1.5"), Vcl()).fixedFloats);
  EXPECT_TRUE(StyleOf(FormWith("(\n    1.500000000000000000\n  )")).fixedFloats);
  EXPECT_TRUE(StyleOf(FormWith("1"), Vcl()).fixedFloats);
  EXPECT_FALSE(StyleOf(FormWith("1"), Lcl()).fixedFloats);
}

TEST(DialectEvidence, TheFirstLineEndIsUsedForNewLines) {
  EXPECT_EQ(StyleOf("object A: T\r\nend\n").eol, "\r\n");
  EXPECT_EQ(StyleOf("object A: T\nend\r\n").eol, "\n");
  EXPECT_EQ(StyleOf("object A: T\rend\r").eol, "\r");
  Dialect hint;
  hint.eol = "\r\n";
  EXPECT_EQ(StyleOf("object T end", hint).eol, "\r\n");
}

TEST(DialectEvidence, LiteralHighBytesAreWrittenWhereTheFileHasThemAsUtf8) {
  EXPECT_TRUE(StyleOf(FormWith("'\xC3\xA9'"), Vcl()).literalHighBytes);
  EXPECT_FALSE(StyleOf(FormWith("'\xE9'"), Vcl()).literalHighBytes);
  EXPECT_FALSE(StyleOf(FormWith("'\xE9'"), Lcl()).literalHighBytes);
  EXPECT_FALSE(StyleOf(FormWith("'e'"), Vcl()).literalHighBytes);
  EXPECT_TRUE(StyleOf(FormWith("'e'"), Lcl()).literalHighBytes);
}

TEST(Encoding, NewTextIsWrittenAsTheFileWritesText) {
  const QString text = QString::fromUtf8("\xC3\xA9\xE2\x82\xAC");
  const std::pair<const char*, const char*> cases[] = {
      {"'e'", "#233#8364"}, {"'\xC3\xA9'", "'\xC3\xA9\xE2\x82\xAC'"}, {"'\xE9'", "#233#8364"}};
  for (const auto& [existing, expected] : cases) {
    Document doc = Document::Parse(FormWith(existing));
    InsertAt(doc, doc.Root(), 1, "Q", doc.MakeText(text));
    const QByteArray written = doc.Write();
    EXPECT_EQ(DifferenceOf(FormWith(existing), written).after.toStdString(),
              QByteArray("  Q = " + QByteArray(expected) + "\n").toStdString());
    const Document again = Document::Parse(written);
    EXPECT_EQ(again.Decode(again.Read(*again.Root().Find("Q"))), text) << existing;
    EXPECT_EQ(again.Decode(again.Read(*again.Root().Find("P"))), doc.Decode(doc.Read(*doc.Root().Find("P"))));
  }
}

TEST(Encoding, TheFontCharsetNamesTheCodePage) {
  const Document doc = Document::Parse(
      "object A: T\n  Caption = '\xCF\xF0\xE8\xE2\xE5\xF2'\n  Font.Charset = RUSSIAN_CHARSET\nend\n");
  EXPECT_FALSE(doc.Utf8());
  EXPECT_EQ(doc.Decode(doc.Read(*doc.Root().Find("Caption"))),
            QString::fromUtf16(u"\u041F\u0440\u0438\u0432\u0435\u0442"));
}

TEST(Encoding, WithoutACharsetBytesAreWesternEuropean) {
  const Document doc = Document::Parse(FormWith("'caf\xE9 \x80'"));
  EXPECT_EQ(doc.Decode(doc.Read(doc.Root().properties.at(0))), QString::fromUtf16(u"caf\u00E9 \u20AC"));
}

TEST(Encoding, Utf8IsRecognisedWhateverTheCharsetSays) {
  const Document doc =
      Document::Parse("object A: T\n  Caption = '\xC3\xA9'\n  Font.Charset = RUSSIAN_CHARSET\nend\n");
  EXPECT_TRUE(doc.Utf8());
  EXPECT_EQ(doc.Decode(doc.Read(*doc.Root().Find("Caption"))), QString::fromUtf8("\xC3\xA9"));
}
