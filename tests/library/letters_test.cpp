// The segments of every character, one row each.
#include <gtest/gtest.h>

#include "library/values/LEDSegments.h"

namespace {
// Seven segments a to g clockwise from the top, g in the middle; of fourteen, g and G are the halves of the
// middle, and h i j above and k l m below it from left to right. Points: base line, colon up, tail, colon
// down.
constexpr std::pair<char16_t, const char*> Letters[] = {
    {u'A', "abcefgG"}, {u'B', "abcdGil"}, {u'C', "adef"},     {u'D', "abcdil"}, {u'E', "adefgG"},
    {u'F', "aefgG"},   {u'G', "acdefG"},  {u'H', "bcefgG"},   {u'I', "adil"},   {u'J', "bcde"},
    {u'K', "efgjm"},   {u'L', "def"},     {u'M', "bcefhj"},   {u'N', "bcefhm"}, {u'O', "abcdef"},
    {u'P', "abefgG"},  {u'Q', "abcdefm"}, {u'R', "abefgGm"},  {u'S', "acdfgG"}, {u'T', "ail"},
    {u'U', "bcdef"},   {u'V', "efjk"},    {u'W', "bcefkm"},   {u'X', "hjkm"},   {u'Y', "hjl"},
    {u'Z', "adjk"},    {u'+', "gGil"},    {u'*', "gGhijklm"}, {u'/', "jk"},     {u'\\', "hm"},
    {u'|', "il"},      {u'<', "jm"},      {u'>', "hk"},       {u'(', "jm"},     {u')', "hk"},
    {u'?', "abGl"},    {u'\'', "i"},      {u'$', "acdfgGil"}, {u'%', "cfjk"},   {u'&', "adeghjm"},
    {u'@', "abdefGi"}, {u'#', "bcdgGil"}, {u'^', "km"}};
constexpr std::pair<char16_t, const char*> Signs[] = {
    {u' ', ""},      {u'0', "abcdef"}, {u'1', "bc"},   {u'2', "abdeg"},   {u'3', "abcdg"},     {u'4', "bcfg"},
    {u'5', "acdfg"}, {u'6', "acdefg"}, {u'7', "abc"},  {u'8', "abcdefg"}, {u'9', "abcdfg"},    {u'-', "g"},
    {u'_', "d"},     {u'=', "dg"},     {u'[', "adef"}, {u']', "abcd"},    {u'\u00B0', "abfg"}, {u'"', "bf"}};
constexpr std::pair<char16_t, const char*> Points[] = {
    {u'!', "01"}, {u'.', "0"}, {u',', "02"}, {u':', "13"}, {u';', "012"}};

template <std::size_t N>
void ExpectLit(const std::pair<char16_t, const char*> (&rows)[N], TLEDCell cell, std::string_view order) {
  for (const auto& [character, segments] : rows) {
    const TLEDGlyph glyph = LEDGlyphOf(QChar(character));
    std::string lit;
    for (std::size_t bit = 0; bit < order.size(); ++bit)
      if (glyph.Lit >> bit & 1) lit += order[bit];
    EXPECT_EQ(glyph.Cell, cell) << static_cast<char>(character);
    EXPECT_EQ(lit, segments) << static_cast<char>(character);
  }
}
// Where the middle of a segment is, in thirds of the cell.
std::pair<int, int> ThirdOf(TLEDCell cell, std::size_t segment, const TVRXLED& led) {
  const QPointF middle = LEDSegmentShapes(cell, led)[segment].boundingRect().center();
  const QSizeF size = LEDCellSize(cell, led);
  return {static_cast<int>(middle.x() * 3 / size.width()), static_cast<int>(middle.y() * 3 / size.height())};
}
}  // namespace

TEST(Letters, LightTheirSegments) {
  ExpectLit(Letters, TLEDCell::Fourteen, "abcdefgGhijklm");
  ExpectLit(Signs, TLEDCell::Seven, "abcdefg");
  ExpectLit(Points, TLEDCell::Point, "0123");
}

TEST(Letters, TheInnerSegmentsStandWhereTheyAreDrawn) {
  TVRXLED led;
  led.SetSize(1, 60);
  led.SetSize(3, 60);
  led.SetSize(2, 2);
  // Column and row of g G h i j k l m.
  const std::pair<int, int> places[] = {{0, 1}, {2, 1}, {0, 0}, {1, 0}, {2, 0}, {0, 2}, {1, 2}, {2, 2}};
  for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(ThirdOf(TLEDCell::Fourteen, i + 6, led), places[i]) << i;
}
