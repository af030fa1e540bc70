// What no stream, resource or text of a stream may hold.
#include "tests/forms/FormTest.h"

using namespace formtest;

TEST(BinaryErrors, AreReportedByOffset) {
  const struct {
    QByteArray bytes;
    std::size_t offset;
  } cases[] = {
      {Hex("FF"), 0},
      {Hex("FFFE6F006200"), 1},
      {Hex("FF0A00410030100400000041424344"), 11},
      {Hex("FF0A0041424344"), 7},
      {"TPF0", 4},
      {StreamWith(Hex("17")), 10},
      {StreamWith(Hex("FF")), 10},
      {StreamWith(Hex("0E 07")), 12},
      {StreamWith(Hex("0E 0205 02")), 14},
      {StreamWith(Hex("06 FF")), 12},
      {StreamWith(Hex("0C FFFFFFFF")), 15},
      {StreamWith(Hex("0A FFFFFF7F")), 15},
      {StreamWith(Hex("12 FFFFFFFF")), 15},
      {"TPF0" + Hex("F2 06 0154 0141 0000"), 6},
  };
  for (const auto& c : cases) {
    try {
      Document::Parse(c.bytes);
      ADD_FAILURE() << "accepted: " << c.bytes.toHex().toStdString();
    } catch (const EFormError& e) {
      EXPECT_EQ(e.Where().offset, c.offset) << c.bytes.toHex().toStdString() << "\n" << e.what();
      EXPECT_EQ(e.Where().line, 0);
      EXPECT_TRUE(e.Message().contains(QStringLiteral("byte %1").arg(c.offset)));
    }
  }
}

// What a stream holds but no text can express must not turn into a file that cannot be read again.
TEST(BinaryErrors, NamesThatTextCannotHoldAreRefusedWhenTextIsWritten) {
  const QByteArray streams[] = {
      "TPF0" + Hex("02 5420 0141 0000"),                   // class "T "
      "TPF0" + Hex("0154 03 413B42 0000"),                 // name "A;B"
      "TPF0" + Hex("F0 00 0141 0000"),                     // no class
      "TPF0" + Hex("0154 0141 03 412E2E 0205 0000"),       // property "A.."
      "TPF0" + Hex("0154 0141 03 656E64 0205 0000"),       // property "end"
      "TPF0" + Hex("0154 0141 06 4F626A656374 02050000"),  // property "Object"
      StreamWith(Hex("07 00")),                            // an identifier of no length
      StreamWith(Hex("07 0131")),                          // identifier "1"
      StreamWith(Hex("01 07 00 00")),
      StreamWith(Hex("0B 03 612E62 00")),           // set element "a.b"
      StreamWith(Hex("0E 01 02 5020 0205 00 00")),  // item property "P "
  };
  for (const QByteArray& stream : streams) {
    const Document doc = Document::Parse(stream);
    EXPECT_THROW(doc.WriteAs(Format::Text), EFormError) << stream.toHex().toStdString();
    EXPECT_EQ(doc.Write(), stream);
  }
}

TEST(BinaryErrors, PathsThatAStreamCannotHoldAreNotCut) {
  const QByteArray half(200, 'p');
  for (const QByteArray& text :
       {"object A: T\n  " + half + "." + half + " = 1\nend\n", FormWith(half + "." + half)}) {
    const Document doc = Document::Parse(text);
    EXPECT_THROW(doc.WriteAs(Format::Binary), EFormError);
    EXPECT_EQ(doc.Write(), text);
  }
}

TEST(BinaryErrors, AClassNameWithAZeroByteNamesNoResource) {
  const Document doc = Document::Parse("TPF0" + Hex("02 5400 0141 0000"));
  EXPECT_THROW(doc.WriteAs(Format::Resource), EFormError);
}
