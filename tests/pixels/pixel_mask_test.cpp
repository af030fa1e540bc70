// Rows of pixels as bits: every way to match them gives what comparing one by one gives.
#include "library/pixels/PixelMask.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "RandomPictures.h"

namespace {
using Mask = std::vector<std::uint64_t>;

Mask MatchOneByOne(const std::vector<std::uint32_t>& row, const std::vector<TColor>& colors) {
  Mask mask(WordsFor(static_cast<int>(row.size())));
  for (std::size_t x = 0; x < row.size(); ++x)
    for (const TColor color : colors)
      if (color == ColorOfPixel(row[x])) mask[x / 64] |= std::uint64_t{1} << x % 64;
  return mask;
}

// Masks are filled before, so that bits that are left as they were show.
template <class Matcher>
Mask Matched(const std::vector<std::uint32_t>& row, const Matcher& match) {
  Mask mask(WordsFor(static_cast<int>(row.size())), 0xA5A5A5A5A5A5A5A5u);
  match(row.data(), static_cast<int>(row.size()), mask.data());
  return mask;
}

std::vector<std::uint32_t> RandomRow(Random& random, int width, const std::vector<TColor>& colors) {
  std::vector<std::uint32_t> row;
  for (int x = 0; x < width; ++x)
    row.push_back(
        PixelOf(!colors.empty() && random.Percent(60) ? random.Of(colors) : RandomPlainColor(random)));
  return row;
}

void Compare(const std::vector<std::uint32_t>& row, const std::vector<TColor>& colors) {
  const PixelSet set(colors);
  const Mask expected = MatchOneByOne(row, colors);
  using Row = const std::uint32_t*;
  ASSERT_EQ(Matched(row, [&](Row r, int w, std::uint64_t* m) { set.Match(r, w, m); }), expected);
  ASSERT_EQ(Matched(row, [&](Row r, int w, std::uint64_t* m) { set.MatchPortable(r, w, m); }), expected);
  if (!PixelSet::HasWide()) return;
  ASSERT_EQ(Matched(row, [&](Row r, int w, std::uint64_t* m) { set.MatchWide(r, w, m); }), expected);
}
}  // namespace

TEST(PixelMask, WordsHoldAllPixels) {
  const std::array<std::pair<int, std::size_t>, 7> rows{
      {{0, 0}, {1, 1}, {63, 1}, {64, 1}, {65, 2}, {128, 2}, {129, 3}}};
  for (const auto& [pixels, words] : rows) EXPECT_EQ(WordsFor(pixels), words) << pixels;
}

TEST(PixelMask, OnePixelIsFoundInRowsOfEveryLength) {
  Random random(1);
  for (int width = 0; width <= 200; ++width) {
    const TColor color = RandomPlainColor(random);
    const std::vector<std::uint32_t> row = RandomRow(random, width, {color});
    const Mask found = Matched(
        row, [&](const std::uint32_t* r, int w, std::uint64_t* m) { MatchPixel(r, w, PixelOf(color), m); });
    ASSERT_EQ(found, MatchOneByOne(row, {color})) << width;
  }
}

TEST(PixelSet, IsFoundInRowsOfEveryLength) {
  Random random(2);
  for (int width = 0; width <= 200; ++width)
    for (const int count : {0, 1, 2, 3, 5, 8, 40}) {
      std::vector<TColor> colors;
      while (static_cast<int>(colors.size()) < count) colors.push_back(RandomPlainColor(random));
      ASSERT_NO_FATAL_FAILURE(Compare(RandomRow(random, width, colors), colors)) << width << ", " << count;
    }
}

TEST(PixelSet, LargeAndRepeatedListsAreMatched) {
  Random random(3);
  for (int i = 0; i < 300; ++i) {
    std::vector<TColor> colors;
    for (int n = random.Between(0, 501); n > 0; --n) {
      const bool again = !colors.empty() && random.Percent(20);
      colors.push_back(again                ? random.Of(colors)
                       : random.Percent(10) ? RandomSpecialColor(random)
                                            : RandomPlainColor(random));
    }
    ASSERT_NO_FATAL_FAILURE(Compare(RandomRow(random, random.Between(1, 300), colors), colors)) << i;
  }
}

// Lists as people and programs make them: ramps of one channel, of grey, steps of powers of two.
TEST(PixelSet, RegularListsAreMatched) {
  Random random(4);
  for (const unsigned step :
       {1u, 2u, 0x100u, 0x101u, 0x10000u, 0x10101u, 0x800u, 0x8000u, 0x1001u, 0xFFFFu, 0x7FFFFu})
    for (const unsigned start : {0u, 1u, 0x800000u, 0xFFFFFFu}) {
      std::vector<TColor> colors;
      for (unsigned n = 0; n < 501; ++n) colors.push_back(TColor((start + n * step) & 0xFFFFFFu));
      ASSERT_NO_FATAL_FAILURE(Compare(RandomRow(random, 640, colors), colors)) << step << " from " << start;
      std::reverse(colors.begin(), colors.end());
      ASSERT_NO_FATAL_FAILURE(Compare(RandomRow(random, 65, colors), colors)) << step << " from " << start;
    }
}

TEST(PixelSet, NeighborsOfItsColorsAreNotInIt) {
  Random random(5);
  for (const int count : {1, 3, 20, 500}) {
    std::vector<TColor> colors;
    while (static_cast<int>(colors.size()) < count) colors.push_back(RandomPlainColor(random));
    std::vector<std::uint32_t> row;
    for (const TColor color : colors)
      for (int bit = 0; bit < 24; ++bit)
        row.push_back(PixelOf(TColor(static_cast<unsigned>(color) ^ 1u << bit)));
    ASSERT_NO_FATAL_FAILURE(Compare(row, colors)) << count;
  }
}

TEST(PixelSet, ColorsWithAHighByteMatchNothing) {
  const std::vector<std::uint32_t> row(70, PixelOf(clBlack));
  const PixelSet set({clNone, clDefault, clInvalid, TColor(0x01000000), TColor(0xFF000000)});
  EXPECT_EQ(Matched(row, [&](const std::uint32_t* r, int w, std::uint64_t* m) { set.Match(r, w, m); }),
            Mask(2));
}
