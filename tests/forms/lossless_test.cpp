// An untouched document is written as it stood, whatever its source looks like.
#include "tests/forms/FormTest.h"

using namespace formtest;

namespace {
void ExpectLossless(const QByteArray& text) {
  const Document doc = Document::Parse(text);
  EXPECT_EQ(doc.Write().toStdString(), text.toStdString());
  EXPECT_EQ(doc.WriteAs(Format::Text).toStdString(), text.toStdString());
}

const char* const Canonical =
    "object Main: TMain\n  Left = 10\n  Caption = 'Main'\n  Lines.Strings = (\n    'a'\n    'b')\n"
    "  object B: TB\n    Tag = 1\n  end\nend\n";
}  // namespace

TEST(Lossless, CanonicalForms) {
  ExpectLossless(Canonical);
  ExpectLossless(
      "object Main: TMain[2]\n  L = (\n    1\n  )\n  C = <  \n    item\n    end  \n    item\n    "
      "end>\nend\n");
}

TEST(Lossless, LineEndsOfEveryKind) {
  ExpectLossless(QByteArray(Canonical).replace("\n", "\r\n"));
  ExpectLossless(QByteArray(Canonical).replace("\n", "\r"));
  ExpectLossless("object A: T\r\n  P = 1\n  Q = 2\r  R = (\r\n 1\n 2)\nend\r\n");
}

TEST(Lossless, ByteOrderMark) { ExpectLossless("\xEF\xBB\xBF" + QByteArray(Canonical)); }

TEST(Lossless, MissingFinalNewline) {
  ExpectLossless(QByteArray(Canonical).chopped(1));
  ExpectLossless("object T end");
}

TEST(Lossless, TextBehindTheLastEnd) {
  ExpectLossless(QByteArray(Canonical) + "\n\n");
  ExpectLossless(QByteArray(Canonical) + "whatever { follows");
  ExpectLossless("object T end; more\nend");
  ExpectLossless(QByteArray(Canonical) + Canonical);
}

TEST(Lossless, ForeignSpacing) {
  ExpectLossless(
      "\n\n  object   A :  T   [ 3 ]   \n\n\tP=1  \n  Q  =\n  'x'  \n\n  R = [ a,b ]\n\n  end  \n");
  ExpectLossless("object A:T P=1 Q='x'R=[a]object B:TB[0]end end");
  ExpectLossless("object A: T P='x'end");
  ExpectLossless("object A: T P=()Q={}R=<>S=[]end");
  ExpectLossless("object A: T object B: T[1]end end");
  ExpectLossless("object A: T[1]P=1 end");
  ExpectLossless("object A: T\n  P. \n  Q = 1\nend");
}

TEST(Lossless, ForeignSpellings) {
  ExpectLossless(
      "OBJECT A: T\n  P = true\n  Q = $0f\n  R = 007\n  S = 1.50E+03\n  T = NIL\n  U = {0a 0B}\nEND\n");
  ExpectLossless("object A: T\n  P = 'a' + 'b' +\n 'c'\n  Q = #65'x'''#\nend\n");
}

TEST(Lossless, BytesOfACodePage) {
  ExpectLossless("object A: T\n  P = '\xCF\xF0\xE8\xE2\xE5\xF2'\nend\n");
  ExpectLossless("object A: T\n  P = '\xC3\xA9 \xE2\x82\xAC'\nend\n");
}

TEST(Lossless, BinaryStreamsWithUnusualButReadableParts) {
  const QByteArray streams[] = {
      StreamWith(Hex("02 05")),
      StreamWith(Hex("04 05000000")),         // an integer wider than need be
      StreamWith(Hex("0C 03000000 616263")),  // a long string that is short
      StreamWith(Hex("07 00")),               // an identifier of no length
      StreamWith(Hex("12 00000000")),         // an empty wide string
      StreamWith(Hex("0E 02 07 01 00 00")),   // an item with an index
      StreamWith(Hex("02 05")) + "bytes behind the root",
      Hex("54504630 FF 03 0700 01 54 01 41 00 00"),  // every flag, position in 16 bits
      Hex("54504630 F0 01 54 00 00 00"),             // a prefix without flags
  };
  for (const QByteArray& stream : streams) {
    const Document doc = Document::Parse(stream);
    EXPECT_EQ(doc.SourceFormat(), Format::Binary);
    EXPECT_EQ(doc.Write().toHex(), stream.toHex());
    EXPECT_EQ(doc.WriteAs(Format::Binary).toHex(), stream.toHex());
  }
}

TEST(Lossless, ResourcesKeepTheirHeaderEvenWhenItsSizeIsWrong) {
  const QByteArray stream = StreamWith(Hex("02 05"));
  const QByteArray file = Hex("FF0A00 4F44445F6E616D6500 3010 EFBEADDE") + stream + "tail";
  const Document doc = Document::Parse(file);
  EXPECT_EQ(doc.SourceFormat(), Format::Resource);
  EXPECT_EQ(doc.Write().toHex(), file.toHex());
}

TEST(Lossless, ReadingValuesChangesNothing) {
  Document doc = Document::Parse(Canonical);
  for (const Property& p : doc.Root().properties) EXPECT_NE(doc.Read(p).type, ValueType::Nil);
  EXPECT_EQ(doc.Write(), Canonical);
}

TEST(Lossless, AMovedDocumentStillKnowsItsSource) {
  Document first = Document::Parse(Canonical);
  Document second = std::move(first);
  Document third;
  third = std::move(second);
  EXPECT_EQ(third.Write(), Canonical);
  EXPECT_EQ(third.Read(*third.Root().Find("Caption")).bytes, "Main");
}

TEST(Lossless, PlacesOfPropertiesAndObjectsAreThoseInTheFile) {
  const Document doc =
      Document::Parse("object A: T\r\n  P =\r\n    5\r\n\r\n  object B: T\r\n  end\r\nend\r\n");
  EXPECT_EQ(doc.Where(doc.Root()).line, 1);
  EXPECT_EQ(doc.Where(doc.Root().properties.at(0)).line, 3);
  EXPECT_EQ(doc.Where(doc.Root().properties.at(0)).column, 5);
  EXPECT_EQ(doc.Where(*doc.Root().children.at(0)).line, 5);
  EXPECT_EQ(doc.Where(*doc.Root().children.at(0)).column, 3);
  const Document binary = Document::Parse(StreamWith(Hex("02 05")));
  EXPECT_EQ(binary.Where(binary.Root().properties.at(0)).line, 0);
  EXPECT_EQ(binary.Where(binary.Root().properties.at(0)).offset, 10u);
}

TEST(Template, ConditionalLinesAreKept) {
  const QByteArray text =
      "object %Name%: T%Name%\n  Left = 1\n{$IFDEF X}  Border = bs{$ELSE}{$ENDIF}\n  P.{$A}Q = 1\n"
      "  C = <{$B}item X = {$C}1 end>\n{$IFDEF Y}\n  object B: TB\n  end\n{$ENDIF}\nend\n";
  ExpectLossless(text);
  Document doc = Document::Parse(text);
  EXPECT_NE(doc.Root().Find("P.Q"), nullptr);
  EXPECT_EQ(doc.Read(*doc.Root().Find("Border")).bytes, "bs");
  Replace(doc, doc.Root(), "Left", Value::Integer(2));
  EXPECT_EQ(doc.Write().toStdString(), QByteArray(text).replace("Left = 1", "Left = 2").toStdString());
}

TEST(Template, HasNoBinaryForm) {
  const Document doc = Document::Parse("object A: T\n{$IFDEF X}\n  P = 1\n{$ENDIF}\nend\n");
  for (const Format format : {Format::Binary, Format::Resource}) EXPECT_THROW(doc.WriteAs(format), Exception);
}

TEST(Template, AnUnclosedDirectiveIsRefusedWhereItOpens) {
  try {
    Document::Parse("object A: T\n  {$IFDEF X\n  P = 1\nend}\n");
    FAIL();
  } catch (const EFormError& e) {
    EXPECT_EQ(e.Where().line, 2);
    EXPECT_EQ(e.Where().column, 3);
  }
}
