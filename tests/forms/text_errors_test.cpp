// What the text form refuses, and the place it names.
#include <random>

#include "tests/forms/FormTest.h"

using namespace formtest;

namespace {
struct Refusal {
  const char* text;
  int line;
  int column;
};

void ExpectRefused(const QByteArray& text, int line, int column) {
  try {
    Document::Parse(text);
    ADD_FAILURE() << "accepted: " << text.toStdString();
  } catch (const EFormError& e) {
    EXPECT_EQ(e.Where().line, line) << text.toStdString() << "\n" << e.what();
    EXPECT_EQ(e.Where().column, column) << text.toStdString() << "\n" << e.what();
    EXPECT_FALSE(e.Text().isEmpty());
    EXPECT_TRUE(e.Message().contains(QStringLiteral("line %1, column %2").arg(line).arg(column)));
  }
}
}  // namespace

// The value begins at line 2, column 7.
TEST(TextErrors, IllegalValuesAreRefusedWhereTheyGoWrong) {
  const Refusal refusals[] = {
      {"- 5", 2, 8},
      {"+5", 2, 7},
      {"-$10", 2, 8},
      {".5", 2, 7},
      {"0x10", 2, 7},
      {"%101", 2, 7},
      {"&17", 2, 7},
      {"$", 2, 8},
      {"$G", 2, 8},
      {"1E", 2, 7},
      {"1E+", 2, 7},
      {"1.5x", 2, 10},
      {"12abc", 2, 7},
      {"1..2", 2, 9},
      {"'a' 'b'", 2, 11},
      {"'a' #13", 2, 11},
      {"#$41", 2, 8},
      {"# 65", 2, 9},
      {"'a' +", 3, 1},
      {"'a", 2, 7},
      {"'a\nb'", 2, 7},
      {"#1114112", 2, 8},
      {"[a.b]", 2, 9},
      {"[1]", 2, 8},
      {"[a,]", 2, 10},
      {"['x']", 2, 8},
      {"[a b]", 2, 10},
      {"[a", 3, 1},
      {"[,a]", 2, 8},
      {"(1, 2)", 2, 9},
      {"{0}", 2, 8},
      {"{0 1}", 2, 8},
      {"{012}", 2, 10},
      {"{0G}", 2, 8},
      {"{xx}", 2, 8},
      {"a . b", 2, 9},
      {"a. b", 2, 9},
      {"a.1", 2, 9},
      {"<1>", 2, 8},
      {"<item>", 2, 12},
      {"<item 5 end>", 2, 13},
      {"<item [] end>", 2, 14},
      {"<item P 5 end>", 2, 15},
      {"// x", 2, 7},
      {"1 // x", 2, 9},
      {"1 (* x *)", 2, 9},
      {"1 {x}", 2, 9},
      {"\xC3\xA9", 2, 7},
      {"a\xC3\xA9", 2, 8},
      {"", 4, 1},
      {"18446744073709551616", 2, 7},
      {"$10000000000000000", 2, 7},
      {"-9223372036854775809", 2, 7},
      {"9223372036854775808c", 2, 7},
      {"1E5000", 2, 7},
      {"-1E99999999999", 2, 7},
      {"1E39s", 2, 7},
      {"1E309d", 2, 7},
  };
  for (const Refusal& r : refusals)
    ExpectRefused("object A: T\n  P = " + QByteArray(r.text) + "\nend\n", r.line, r.column);
}

TEST(TextErrors, BytesThatAreNeitherTextNorBlankAreRefused) {
  for (const char c : {'\0', '\x1A', '\f', '\v', '\x7F'}) {
    ExpectRefused("object A: T\n  " + QByteArray(1, c) + "\nend\n", 2, 3);
    ExpectRefused("object A: T\n  P = " + QByteArray(1, c) + "\nend\n", 2, 7);
  }
}

TEST(TextErrors, IllegalStructureIsRefused) {
  const Refusal refusals[] = {
      {"", 1, 1},
      {"  \n ", 2, 2},
      {"form A: T\nend", 1, 1},
      {"objectA: T\nend", 1, 1},
      {"object", 1, 7},
      {"object : T\nend", 1, 8},
      {"object A:\n", 2, 1},
      {"object A: 5\nend", 1, 11},
      {"object A: Unit.T\nend", 1, 15},
      {"object A: Unit/T\nend", 1, 15},
      {"object A: T [\nend", 2, 1},
      {"object A: T [1.5]\nend", 1, 15},
      {"object A: T [x]\nend", 1, 14},
      {"object A: T [1\nend", 2, 1},
      {"object A: T\n", 2, 1},
      {"object A: T\n  P = 1", 2, 8},
      {"object A: T\n  P 1\nend", 2, 5},
      {"object A: T\n  P. = 1\nend", 2, 6},
      {"object A: T\n  P .Q = 1\nend", 2, 5},
      {"object A: T\n  5 = 1\nend", 2, 3},
      {"object A: T\n  object = 1\nend", 2, 10},
      {"object A: T\n  inline = 1\nend", 2, 10},
      {"object A: T\n  inherited = 1\nend", 2, 13},
      {"object A: T\n  object B: T\n  end\n  P = 1\nend", 4, 3},
      {"object A: T\n  object B: T\n  end\n", 4, 1},
      {"object A%: T\nend", 1, 9},
      {"object A: T\n  // remark\nend", 2, 3},
      {"object A: T\n  { remark }\nend", 2, 3},
      {"object A: T\n  (* remark *)\nend", 2, 3},
      {"object A: T\n  \xC3\xA9 = 1\nend", 2, 3},
  };
  for (const Refusal& r : refusals) ExpectRefused(r.text, r.line, r.column);
}

TEST(TextErrors, UnclosedBracketsAreReportedWhereTheyOpen) {
  ExpectRefused("object A: T\n  P = (\n    1\n", 2, 7);
  ExpectRefused("object A: T\n  P = {\n    01\n", 2, 7);
  ExpectRefused("object A: T\n  P = <\n    item\n    end\n", 2, 7);
}

TEST(TextErrors, NamesOver255CharactersAreRefused) {
  const QByteArray longest(255, 'n');
  EXPECT_EQ(Document::Parse("object " + longest + ": T\nend").Root().name, longest);
  ExpectRefused("object " + longest + "n: T\nend", 1, 8);
  ExpectRefused("object A: T\n  P = n" + longest + "\nend", 2, 7);
}

TEST(TextErrors, LinesAreCountedAtEveryKindOfLineEnd) {
  ExpectRefused("object A: T\r\n  P = 1\r\n  Q = ?\r\nend\r\n", 3, 7);
  ExpectRefused("object A: T\r  P = 1\r  Q = ?\rend\r", 3, 7);
  ExpectRefused("object A: T\r\n  P = 1\n  Q = ?\rend\r", 3, 7);
}

TEST(TextErrors, ColumnsCountCharactersNotBytes) {
  ExpectRefused("object A: T\n  P = '\xC3\xA9\xE2\x82\xAC' ?\nend\n", 2, 12);
}

TEST(TextErrors, AByteOrderMarkIsNotAColumn) { ExpectRefused("\xEF\xBB\xBFobject A: 5\nend\n", 1, 11); }

TEST(TextErrors, LocationOfAgreesWithCountingLineByLine) {
  std::uint32_t state = 12345;
  const auto next = [&state](std::uint32_t below) {
    return (state = state * 1664525u + 1013904223u) / 65536u % below;
  };
  static const char* const pieces[] = {"a", "\r", "\n", "\r\n", "\xC3\xA9", " ", "\t", "\xE2\x82\xAC"};
  for (int round = 0; round < 300; ++round) {
    // Line and column are counted while the text grows, piece by piece.
    QByteArray text;
    std::vector<forms::Location> expected;
    int line = 1, column = 1;
    for (std::uint32_t n = next(30); n > 0; --n) {
      QByteArray piece = pieces[next(8)];
      if (piece == "\n" && text.endsWith('\r')) piece = "a";  // would make another line end of the two
      expected.push_back({static_cast<std::size_t>(text.size()), line, column});
      text += piece;
      if (piece.endsWith('\n') || piece.endsWith('\r')) {
        ++line;
        column = 1;
      } else {
        ++column;
      }
    }
    expected.push_back({static_cast<std::size_t>(text.size()), line, column});
    for (const forms::Location& e : expected) {
      const forms::Location where = forms::LocationOf(text, e.offset);
      EXPECT_EQ(where.line, e.line) << text.toHex().toStdString() << " at " << e.offset;
      EXPECT_EQ(where.column, e.column) << text.toHex().toStdString() << " at " << e.offset;
    }
  }
}

// Places that are asked for in any order are those that counting from the start gives.
TEST(TextErrors, ManyPlacesAreThoseOfCountingFromTheStart) {
  std::mt19937 random(7);
  const QByteArray pieces[] = {"\n", "\r\n", "\r", "x", "word = ", "\xC3\xA4", "\xE2\x82\xAC"};
  for (const QByteArray& begin : {QByteArray(), QByteArray("\xEF\xBB\xBF")}) {
    QByteArray text = begin;
    while (text.size() < 40000) text += pieces[random() % (random() % 8 ? 7 : 3)];
    forms::Locator locator;
    for (int i = 0; i < 300; ++i) {
      const std::size_t at = random() % static_cast<std::size_t>(text.size() + 3);
      const forms::Location quick = locator.At(text, at), slow = forms::LocationOf(text, at);
      EXPECT_EQ(quick.line, slow.line) << at;
      EXPECT_EQ(quick.column, slow.column) << at;
      EXPECT_EQ(quick.offset, slow.offset) << at;
    }
  }
}
