// Input that nobody wrote on purpose, or that somebody wrote on evil purpose: an error, never a crash or a
// hang.
#include <random>

#include "tests/forms/FormTest.h"

using namespace formtest;

namespace {
// Reads, and when that works, writes and converts.
bool Survives(const QByteArray& bytes) {
  try {
    const Document doc = Document::Parse(bytes);
    EXPECT_EQ(doc.Write(), bytes) << bytes.toHex().toStdString();
    for (const Format format : {Format::Text, Format::Binary, Format::Resource}) {
      try {
        Document::Parse(doc.WriteAs(format));
      } catch (const EFormError&) {
        // Only what came from a stream may have no text.
        EXPECT_NE(doc.SourceFormat(), Format::Text) << bytes.toHex().toStdString();
      }
    }
    return true;
  } catch (const EFormError& e) {
    EXPECT_LE(e.Where().offset, static_cast<std::size_t>(bytes.size())) << bytes.toHex().toStdString();
    return false;
  }
}

QByteArray Sample() {
  return "inherited Main: TMain [2]\n  Left = -10\n  Font.Height = $FF\n  Caption = 'Tom'#39's ' +\n    "
         "'caf'#233\n"
         "  F = 1.500000000000000000\n  S = 2.5s\n  C = 12345c\n  D = 45000d\n  On = True\n  Off = nil\n  Id "
         "= A.B\n"
         "  Anchors = [akLeft, akTop]\n  Lines.Strings = (\n    'a'\n    (1 2))\n  Items = <\n    item [1]\n "
         "     X = 'x'\n"
         "    end\n    item\n      Sub = <>\n    end>\n  Data = {\n    00010203}\n  object B: TB\n  end\n  "
         "inline C: TC\n  end\nend\n";
}

QByteArray Repeated(const QByteArray& piece, int times) { return piece.repeated(times); }
}  // namespace

TEST(Hostile, ATextCutAnywhereBeforeItsEndIsRefused) {
  const QByteArray text = Sample();
  const qsizetype end = text.lastIndexOf("end") + 3;
  ASSERT_TRUE(Survives(text));
  for (qsizetype size = 0; size < end; ++size) EXPECT_FALSE(Survives(text.first(size))) << size;
  EXPECT_TRUE(Survives(text.first(end)));
}

TEST(Hostile, AStreamCutAnywhereIsRefused) {
  const Document doc = Document::Parse(Sample());
  for (const Format format : {Format::Binary, Format::Resource}) {
    const QByteArray stream = doc.WriteAs(format);
    ASSERT_TRUE(Survives(stream));
    for (qsizetype size = 0; size < stream.size(); ++size) EXPECT_FALSE(Survives(stream.first(size))) << size;
  }
}

// The bytes end where the array ends: reading one more is found by the sanitizer.
TEST(Hostile, NoByteBehindTheEndIsRead) {
  for (const QByteArray& sample : {Sample(), Document::Parse(Sample()).WriteAs(Format::Binary)}) {
    for (qsizetype size = 0; size < sample.size() - 1; ++size) {  // the last newline may be missing
      const std::unique_ptr<char[]> exact(new char[static_cast<std::size_t>(size)]);
      std::copy_n(sample.constData(), size, exact.get());
      EXPECT_THROW(Document::Parse(QByteArray::fromRawData(exact.get(), size)), EFormError);
    }
  }
  for (const QByteArray& text : {QByteArray("<item ["), QByteArray("-"), QByteArray("$"), QByteArray("'"),
                                 QByteArray("1E"), QByteArray("{0")}) {
    const std::unique_ptr<char[]> exact(new char[static_cast<std::size_t>(text.size())]);
    std::copy_n(text.constData(), text.size(), exact.get());
    EXPECT_THROW(forms::TextToValue(QByteArrayView(exact.get(), text.size())), EFormError)
        << text.toStdString();
  }
}

TEST(Hostile, EveryByteOfASampleMayBeAnyOther) {
  const QByteArray samples[] = {Sample(), Document::Parse(Sample()).WriteAs(Format::Binary)};
  std::mt19937 random(5);
  for (const QByteArray& sample : samples) {
    for (qsizetype i = 0; i < sample.size(); ++i) {
      for (int n = 0; n < 12; ++n) {
        QByteArray changed = sample;
        changed[i] = static_cast<char>(random());
        Survives(changed);
      }
    }
  }
}

TEST(Hostile, RandomBytesAreRefusedOrKept) {
  std::mt19937 random(6);
  const QByteArray starts[] = {"",
                               "TPF0",
                               Hex("FF0A0041003010FFFFFFFF") + "TPF0",
                               "TPF0" + Hex("01540141"),
                               "object A: T ",
                               "object A: T P = "};
  for (int round = 0; round < 6000; ++round) {
    QByteArray bytes = starts[random() % 6];
    for (auto n = random() % 60; n > 0; --n)
      bytes += static_cast<char>(random() % 3 ? random() % 32 : random());
    Survives(bytes);
  }
  static const char* const words[] = {"object", "end", "item", "A",  "B", ":", "=", ".",   "[",  "]",
                                      "(",      ")",   "<",    ">",  "{", "}", "'", "'x'", "#",  "13",
                                      "-",      "$F",  "1.5",  "e5", "s", "+", ",", " ",   "\n", "\r"};
  for (int round = 0; round < 20000; ++round) {
    QByteArray text = "object A: T ";
    for (auto n = random() % 25; n > 0; --n)
      text += words[random() % 30] + QByteArray(random() % 2 ? " " : "");
    Survives(text + (random() % 2 ? " end" : ""));
  }
}

TEST(Hostile, NestingHasALimitAndNoStackOverflow) {
  for (const int depth : {forms::MaxDepth, forms::MaxDepth + 1, 200000}) {
    const bool legal = depth <= forms::MaxDepth;
    // The root and the outermost value are at depth 0.
    EXPECT_EQ(Survives(Repeated("object T ", depth + 1) + Repeated("end ", depth + 1)), legal) << depth;
    EXPECT_EQ(Survives(FormWith(Repeated("(", depth + 1) + Repeated(")", depth + 1))), legal) << depth;
    EXPECT_EQ(Survives(FormWith(Repeated("<item P=", depth) + "1 " + Repeated("end>", depth))), legal)
        << depth;
    EXPECT_EQ(Survives("TPF0" + Repeated(Hex("01540000"), depth + 1) + Repeated(Hex("00"), depth + 1)), legal)
        << depth;
    EXPECT_EQ(Survives(StreamWith(Repeated(Hex("01"), depth + 1) + Repeated(Hex("00"), depth + 1))), legal)
        << depth;
    EXPECT_EQ(
        Survives(StreamWith(Repeated(Hex("0E010150"), depth) + Hex("0201") + Repeated(Hex("0000"), depth))),
        legal)
        << depth;
  }
}

TEST(Hostile, UnclosedNestingIsRefused) {
  for (const char* piece : {"object T ", "object T[1] ", "P=1 object T "})
    EXPECT_FALSE(Survives("object T " + Repeated(piece, 100000)));
  for (const char* piece : {"(", "<item P=", "[", "{", "'", "#", "-", "(1 ", "<item end "})
    EXPECT_FALSE(Survives("object A: T P=" + Repeated(piece, 100000))) << piece;
  EXPECT_FALSE(Survives("TPF0" + Repeated(Hex("01540000"), 100000)));
  EXPECT_FALSE(Survives("TPF0" + Hex("01540141 0150") + Repeated(Hex("01"), 100000)));
}

TEST(Hostile, AnnouncedLengthsAreComparedWithWhatIsThere) {
  for (const char* value : {"0AFFFFFFFF", "0CFFFFFF7F", "12FFFFFFFF", "12FFFFFF7F", "1201000080 4100",
                            "14FEFFFFFF", "15FFFFFFFF00", "06FF", "0BFF"})
    EXPECT_FALSE(Survives(StreamWith(Hex(value)))) << value;
}

TEST(Hostile, LongRunsOfEveryPieceAreReadInOnePass) {
  const int n = 100000;
  EXPECT_TRUE(Survives(FormWith("'" + QByteArray(n, '\'') + "'")));
  EXPECT_TRUE(Survives(FormWith("'a'" + Repeated("#1", n))));
  EXPECT_TRUE(Survives(FormWith(Repeated("'a'+", n) + "''")));
  EXPECT_TRUE(Survives(FormWith("(" + Repeated("1 ", n) + ")")));
  EXPECT_TRUE(Survives(FormWith("[" + Repeated("a,", n) + "a]")));
  EXPECT_TRUE(Survives(FormWith("<" + Repeated("item end ", n) + ">")));
  EXPECT_TRUE(Survives(FormWith("{" + Repeated("00 ", n) + "}")));
  EXPECT_TRUE(Survives("object A: T" + Repeated(" P=1", n) + Repeated(" object T end", n) + " end"));
  EXPECT_TRUE(Survives(FormWith("1." + QByteArray(n, '0'))));
  EXPECT_TRUE(Survives(FormWith(QByteArray(n, '0') + "1")));
  EXPECT_FALSE(Survives(FormWith(QByteArray(n, '9') + ".5")));
  EXPECT_TRUE(Survives(FormWith("0." + QByteArray(n, '0') + "1")));
  EXPECT_FALSE(Survives(FormWith(QByteArray(n, 'a'))));
  EXPECT_TRUE(Survives(FormWith("1" + QByteArray(n, ' '))));
}
