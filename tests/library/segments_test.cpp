#include <gtest/gtest.h>

#include <set>

#include "LibraryTest.h"

namespace {
// Segments by the letters a to g that a digit lights, as every display has them.
constexpr const char* Digits[] = {"abcdef", "bc",     "abdeg", "abcdg",   "bcfg",
                                  "acdfg",  "acdefg", "abc",   "abcdefg", "abcdfg"};

std::unique_ptr<TVRXLED> Led(int horz, int vert, int thickness) {
  auto led = std::make_unique<TVRXLED>();
  led->SetSize(1, static_cast<std::uint8_t>(horz));
  led->SetSize(2, static_cast<std::uint8_t>(thickness));
  led->SetSize(3, static_cast<std::uint8_t>(vert));
  return led;
}

// Where segments a to g have their middles, in halves of the letter's width and quarters of its height.
struct Place {
  int x, y;
};
constexpr Place Places[] = {{1, 0}, {2, 1}, {2, 3}, {1, 4}, {0, 3}, {0, 1}, {1, 2}};
}  // namespace

TEST(Glyphs, EveryDigitLightsItsSegments) {
  for (int digit = 0; digit < 10; ++digit) {
    const TLEDGlyph glyph = LEDGlyphOf(QChar(u'0' + digit));
    EXPECT_EQ(glyph.Cell, TLEDCell::Seven);
    unsigned lit = 0;
    for (const char* c = Digits[digit]; *c; ++c) lit |= 1u << (*c - 'a');
    EXPECT_EQ(glyph.Lit, lit) << digit;
  }
}

TEST(Glyphs, SegmentsAreWhereTheirBitsSay) {
  for (const int t : {1, 2, 7, 32}) {
    const auto led = Led(40, 50, t);
    const QSizeF size = LEDCellSize(TLEDCell::Seven, *led);
    const auto shapes = LEDSegmentShapes(TLEDCell::Seven, *led);
    ASSERT_EQ(shapes.size(), 7u);
    for (std::size_t i = 0; i < 7; ++i) {
      const QPointF c = shapes[i].boundingRect().center();
      const qreal x = t / 2.0 + Places[i].x * (size.width() - t) / 2,
                  y = t / 2.0 + Places[i].y * (size.height() - t) / 4;
      EXPECT_NEAR(c.x(), x, 1e-6) << i;
      EXPECT_NEAR(c.y(), y, 1e-6) << i;
      EXPECT_EQ(shapes[i].boundingRect().width() > shapes[i].boundingRect().height(), Places[i].x == 1) << i;
    }
  }
}

TEST(Glyphs, EveryPrintableCharacterHasACellThatNeverChanges) {
  std::size_t dark = 0;
  for (char16_t c = 0x20; c < 0x7F; ++c) {
    const TLEDGlyph glyph = LEDGlyphOf(QChar(c));
    const int bits = glyph.Cell == TLEDCell::Seven ? 7 : glyph.Cell == TLEDCell::Fourteen ? 14 : 4;
    EXPECT_EQ(glyph.Lit >> bits, 0) << static_cast<char>(c) << " lights what its cell does not have";
    const TLEDGlyph again = LEDGlyphOf(QChar(c));
    EXPECT_EQ(glyph.Cell, again.Cell);
    EXPECT_EQ(glyph.Lit, again.Lit);
    dark += glyph.Lit == 0;
    EXPECT_TRUE(glyph.Lit != 0 || QStringLiteral(" `{}~").contains(QChar(c))) << static_cast<char>(c);
  }
  EXPECT_EQ(dark, 5u);
}

TEST(Glyphs, SmallLettersLookLikeCapitals) {
  for (char16_t c = u'A'; c <= u'Z'; ++c) {
    const TLEDGlyph capital = LEDGlyphOf(QChar(c)), small = LEDGlyphOf(QChar(static_cast<char16_t>(c + 32)));
    EXPECT_EQ(capital.Cell, TLEDCell::Fourteen);
    EXPECT_EQ(small.Cell, capital.Cell);
    EXPECT_EQ(small.Lit, capital.Lit);
  }
}

TEST(Glyphs, NoTwoLettersOrDigitsLookAlike) {
  std::set<std::pair<TLEDCell, std::uint16_t>> seen;
  for (const QChar c : QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"))
    EXPECT_TRUE(seen.insert({LEDGlyphOf(c).Cell, LEDGlyphOf(c).Lit}).second) << QString(c).toStdString();
}

TEST(Glyphs, PointsAndColonsAreNarrow) {
  for (const QChar c : QStringLiteral(".,:;!"))
    EXPECT_EQ(LEDGlyphOf(c).Cell, TLEDCell::Point) << QString(c).toStdString();
  const auto led = Led(8, 8, 2);
  EXPECT_LT(LEDCellSize(TLEDCell::Point, *led).width(), LEDCellSize(TLEDCell::Seven, *led).width());
  EXPECT_EQ(LEDCellSize(TLEDCell::Point, *led).height(), LEDCellSize(TLEDCell::Seven, *led).height());
  EXPECT_EQ(LEDCellSize(TLEDCell::Fourteen, *led), LEDCellSize(TLEDCell::Seven, *led));
}

TEST(Glyphs, UnknownCharactersAreDarkLetters) {
  for (const char16_t c : {u'~', u'\u4E2D', u'\u20AC', u'\x01'}) {
    EXPECT_EQ(LEDGlyphOf(QChar(c)).Cell, TLEDCell::Fourteen);
    EXPECT_EQ(LEDGlyphOf(QChar(c)).Lit, 0);
  }
}

TEST(Shapes, LieInsideTheirCellAtEverySize) {
  for (int t = 1; t <= 32; ++t)
    for (const int horz : {0, 1, 2, 3, 5, 8, 13, 40, 99, 255})
      for (const int vert : {0, 1, 2, 3, 5, 8, 13, 40, 99, 255}) {
        const auto led = Led(horz, vert, t);
        for (const auto cell : {TLEDCell::Seven, TLEDCell::Fourteen, TLEDCell::Point}) {
          // The tail of a comma hangs below the cell, inside the height of a text.
          QSizeF room = LEDCellSize(cell, *led);
          const auto shapes = LEDSegmentShapes(cell, *led);
          for (std::size_t i = 0; i < shapes.size(); ++i) {
            if (shapes[i].isEmpty()) continue;
            const bool tail = cell == TLEDCell::Point && i == 2;
            const QRectF allowed(0, 0, room.width(),
                                 tail ? LEDTextSize(QStringLiteral(","), *led).height() : room.height());
            const QRectF box = shapes[i].boundingRect();
            ASSERT_TRUE(allowed.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(box))
                << "t " << t << " h " << horz << " v " << vert << " cell " << static_cast<int>(cell)
                << " segment " << i;
            ASSERT_GT(box.width(), 0);
            ASSERT_GT(box.height(), 0);
          }
        }
      }
}

TEST(Shapes, StraightSegmentsAreThereAtEverySize) {
  for (const int t : {1, 2, 5, 32})
    for (const int size : {0, 1, 8, 255}) {
      const auto led = Led(size, size, t);
      const auto shapes = LEDSegmentShapes(TLEDCell::Fourteen, *led);
      ASSERT_EQ(shapes.size(), 14u);
      for (const std::size_t i : {0u, 1u, 2u, 3u, 4u, 5u, 6u, 7u, 9u, 12u})
        EXPECT_FALSE(shapes[i].isEmpty()) << i;
    }
}

TEST(Shapes, SizeNothingIsTheSmallestLetters) {
  for (const int t : {1, 2, 32})
    for (const auto cell : {TLEDCell::Seven, TLEDCell::Fourteen, TLEDCell::Point}) {
      EXPECT_EQ(LEDSegmentShapes(cell, *Led(0, 0, t)), LEDSegmentShapes(cell, *Led(1, 1, t)));
      EXPECT_EQ(LEDCellSize(cell, *Led(0, 0, t)), LEDCellSize(cell, *Led(1, 1, t)));
    }
}

TEST(Shapes, SegmentsOfALetterDoNotOverlap) {
  for (const int t : {1, 2, 4}) {
    const auto led = Led(30, 30, t);
    const auto shapes = LEDSegmentShapes(TLEDCell::Seven, *led);
    for (std::size_t i = 0; i < shapes.size(); ++i)
      for (std::size_t k = 0; k < i; ++k)
        EXPECT_TRUE(shapes[i].intersected(shapes[k]).isEmpty()) << i << " and " << k;
  }
}

TEST(TextSize, AddsCellsAndSpaces) {
  const auto led = Led(8, 8, 2);
  const auto width = [&](const char* text) { return LEDTextSize(QString::fromLatin1(text), *led).width(); };
  EXPECT_EQ(width(""), 0);
  EXPECT_EQ(width("8"), LEDCellSize(TLEDCell::Seven, *led).width());
  const int space = width("88") - 2 * width("8");
  EXPECT_GT(space, 0);
  EXPECT_EQ(width("888"), 3 * width("8") + 2 * space);
  EXPECT_EQ(width("8.8"), 2 * width("8") + LEDCellSize(TLEDCell::Point, *led).width() + 2 * space);
  EXPECT_EQ(LEDTextSize(QStringLiteral("8"), *led).height(),
            LEDTextSize(QStringLiteral("8,"), *led).height());
  EXPECT_EQ(width("abc"), width("ABC"));
}
