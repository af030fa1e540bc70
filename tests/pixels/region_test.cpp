// Regions as sets of points.
#include <algorithm>

#include "OracleRegion.h"
#include "RandomPictures.h"

namespace {
TRegion United(const std::vector<TRect>& rects) {
  TRegion region;
  for (const TRect& r : rects) region = region.United(TRegion(r));
  return region;
}

SlowRegion Slow(const TRect& field, const std::vector<TRect>& rects) {
  SlowRegion slow(field);
  for (const TRect& r : rects) slow.Add(r);
  return slow;
}

// Bands from top to bottom, spans with room between them, and no band that could be part of the one above.
testing::AssertionResult Canonical(const TRegion& region) {
  const std::vector<TRect> rects = RectList(region);
  std::vector<std::vector<TRect>> bands;
  for (const TRect& r : rects) {
    if (r.Empty()) return testing::AssertionFailure() << r << " is empty";
    if (bands.empty() || bands.back()[0].Top != r.Top) bands.emplace_back();
    bands.back().push_back(r);
  }
  for (std::size_t b = 0; b < bands.size(); ++b) {
    for (std::size_t i = 0; i < bands[b].size(); ++i) {
      const TRect& r = bands[b][i];
      if (r.Bottom != bands[b][0].Bottom) return testing::AssertionFailure() << r << " has another height";
      if (i > 0 && r.Left <= bands[b][i - 1].Right)
        return testing::AssertionFailure() << r << " touches " << bands[b][i - 1];
    }
    if (b == 0) continue;
    if (bands[b][0].Top < bands[b - 1][0].Bottom) return testing::AssertionFailure() << "bands overlap";
    const bool same =
        std::equal(bands[b].begin(), bands[b].end(), bands[b - 1].begin(), bands[b - 1].end(),
                   [](const TRect& x, const TRect& y) { return x.Left == y.Left && x.Right == y.Right; });
    if (same && bands[b][0].Top == bands[b - 1][0].Bottom)
      return testing::AssertionFailure() << "the band at " << bands[b][0].Top << " continues the one above";
  }
  return testing::AssertionSuccess();
}
}  // namespace

TEST(Region, AnEmptyOneHasNoPointsAndNoBounds) {
  for (const TRegion& region :
       {TRegion(), TRegion(TRect{}), TRegion(TRect{3, 3, 3, 9}), TRegion(TRect{3, 3, 9, 3}),
        TRegion(TRect{5, 5, 2, 9}), TRegion(TRect{5, 9, 8, 2})}) {
    EXPECT_TRUE(region.Empty());
    EXPECT_EQ(region.Bounds(), TRect());
    EXPECT_TRUE(region.Rects().empty());
    EXPECT_FALSE(region.Contains(0, 0));
    EXPECT_EQ(region, TRegion());
  }
}

TEST(Region, LeftAndTopBelongToARectangle) {
  const TRegion region(TRect{-2, 3, 4, 5});
  EXPECT_FALSE(region.Empty());
  EXPECT_EQ(region.Bounds(), (TRect{-2, 3, 4, 5}));
  for (const auto& [x, y] : {std::pair{-2, 3}, {3, 3}, {-2, 4}, {3, 4}})
    EXPECT_TRUE(region.Contains(x, y)) << x << y;
  for (const auto& [x, y] : {std::pair{-3, 3},
                             {4, 3},
                             {-2, 2},
                             {-2, 5},
                             {4, 5},
                             {INT32_MIN, INT32_MIN},
                             {INT32_MAX, INT32_MAX},
                             {INT32_MAX, 3},
                             {INT32_MIN, 4},
                             {0, INT32_MIN}})
    EXPECT_FALSE(region.Contains(x, y)) << x << ", " << y;
}

TEST(Region, TheWholePlaneOfCoordinatesCanBeHeld) {
  const TRegion left(TRect{INT32_MIN, INT32_MIN, 0, INT32_MAX}),
      right(TRect{0, INT32_MIN, INT32_MAX, INT32_MAX});
  const TRegion all = left.United(right);
  EXPECT_EQ(RectList(all), std::vector<TRect>({{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX}}));
  EXPECT_TRUE(all.Contains(INT32_MIN, INT32_MIN));
  EXPECT_TRUE(all.Contains(INT32_MAX - 1, INT32_MAX - 1));
  EXPECT_FALSE(all.Contains(INT32_MAX, 0));
}

TEST(Region, NeighborsBecomeOneRectangle) {
  const TRegion square(TRect{0, 0, 4, 4});
  EXPECT_EQ(United({{0, 0, 2, 4}, {2, 0, 4, 4}}), square);
  EXPECT_EQ(United({{0, 2, 4, 4}, {0, 0, 4, 2}}), square);
  EXPECT_EQ(United({{0, 0, 4, 4}, {1, 1, 2, 2}}), square);
  EXPECT_EQ(United({{0, 0, 3, 3}, {1, 1, 4, 4}, {0, 3, 1, 4}, {3, 0, 4, 1}}), square);
  // Corners that meet join nothing.
  EXPECT_EQ(RectList(United({{0, 0, 2, 2}, {2, 2, 4, 4}})), std::vector<TRect>({{0, 0, 2, 2}, {2, 2, 4, 4}}));
}

TEST(Region, ABandIsCutWhereAnotherRectangleBeginsOrEnds) {
  EXPECT_EQ(RectList(United({{0, 0, 2, 6}, {4, 2, 6, 4}})),
            std::vector<TRect>({{0, 0, 2, 2}, {0, 2, 2, 4}, {4, 2, 6, 4}, {0, 4, 2, 6}}));
}

TEST(Region, AUnionWithNothingOrItselfChangesNothing) {
  Random random(5);
  for (int i = 0; i < 200; ++i) {
    const TRegion region = United(RandomRects(random, random.Between(0, 10), {-10, -10, 20, 20}));
    ASSERT_EQ(region.United(TRegion()), region);
    ASSERT_EQ(TRegion().United(region), region);
    ASSERT_EQ(region.United(region), region);
    ASSERT_EQ(region.United(TRegion()).Bounds(), region.Bounds());
  }
}

class RegionUnion : public testing::TestWithParam<int> {};

TEST_P(RegionUnion, HoldsThePointsOfEither) {
  Random random(static_cast<unsigned>(100 + GetParam()));
  const TRect field{-15, -12, 25, 22};
  for (int i = 0; i < 1000; ++i) {
    const std::vector<TRect> a = RandomRects(random, random.Between(0, 12), field);
    const std::vector<TRect> b = RandomRects(random, random.Between(0, 12), field);
    std::vector<TRect> both = a;
    both.insert(both.end(), b.begin(), b.end());
    const TRegion united = United(a).United(United(b));
    ASSERT_TRUE(Canonical(united));
    ASSERT_TRUE(Same(Slow(field, both), united)) << testing::PrintToString(both);
    ASSERT_EQ(United(b).United(United(a)), united);
  }
}

TEST_P(RegionUnion, DoesNotDependOnTheOrder) {
  Random random(static_cast<unsigned>(200 + GetParam()));
  for (int i = 0; i < 300; ++i) {
    std::vector<TRect> rects = RandomRects(random, random.Between(2, 30), {-20, -20, 40, 40});
    const TRegion first = United(rects);
    for (std::size_t k = rects.size(); k > 1; --k)
      std::swap(rects[k - 1], rects[static_cast<std::size_t>(random.Below(static_cast<int>(k)))]);
    const TRegion second = United(rects);
    ASSERT_EQ(first, second);
    ASSERT_EQ(first.Bounds(), second.Bounds());
    ASSERT_EQ(first.ToData(), second.ToData());
  }
}

TEST_P(RegionUnion, OfManyBandsHoldsThePointsOfEither) {
  Random random(static_cast<unsigned>(300 + GetParam()));
  const TRect field{-60, -200, 60, 200};
  for (int i = 0; i < 4; ++i) {
    const std::vector<TRect> rects = RandomRects(random, 400, field);
    const TRegion region = United(rects);
    ASSERT_GT(region.Rects().size(), 300u);
    ASSERT_TRUE(Canonical(region));
    ASSERT_TRUE(Same(Slow(field, rects), region));
  }
}

INSTANTIATE_TEST_SUITE_P(Shard, RegionUnion, testing::Range(0, 3));

TEST(BandBuilder, RowsOfBitsBecomeTheRegionOfTheirPoints) {
  Random random(17);
  for (int i = 0; i < 1500; ++i) {
    const int words = random.Between(1, 3), rows = random.Between(0, 12), density = random.Between(0, 100);
    SlowRegion slow({0, -5, words * 64, 40});
    TBandBuilder builder;
    std::vector<std::uint64_t> mask(static_cast<std::size_t>(words));
    int y = random.Between(-5, 5);
    for (int row = 0; row < rows; ++row, ++y) {
      if (random.Percent(10)) ++y;  // a row left out
      const bool again = random.Percent(40) && row > 0;
      for (int x = 0; x < words * 64; ++x) {
        std::uint64_t& word = mask[static_cast<std::size_t>(x / 64)];
        const std::uint64_t bit = std::uint64_t{1} << x % 64;
        // Long runs, so that whole words are inside, too.
        const bool before = x > 0 && (mask[static_cast<std::size_t>((x - 1) / 64)] >> (x - 1) % 64 & 1);
        if (!again) word = (random.Percent(80) ? before : random.Percent(density)) ? word | bit : word & ~bit;
        if (word & bit) slow.Add({x, y, x + 1, y + 1});
      }
      builder.AddRow(y, mask.data(), mask.size());
    }
    const TRegion region = builder.Take();
    ASSERT_TRUE(Canonical(region)) << i;
    ASSERT_TRUE(Same(slow, region)) << i;
  }
}

TEST(BandBuilder, FullAndEmptyWordsAreCounted) {
  const std::uint64_t all = ~std::uint64_t{0};
  const std::uint64_t full[] = {all, all, all}, gap[] = {all, 0, all},
                      edges[] = {std::uint64_t{1} << 63, 1, 0};
  TBandBuilder builder;
  builder.AddRow(0, full, 3);
  builder.AddRow(1, gap, 3);
  builder.AddRow(2, edges, 3);
  EXPECT_EQ(RectList(builder.Take()),
            std::vector<TRect>({{0, 0, 192, 1}, {0, 1, 64, 2}, {128, 1, 192, 2}, {63, 2, 65, 3}}));
}

// The same points are the same region, however their rows were given.
TEST(BandBuilder, RowsAndBandsAndRowsOfOtherLengthsContinueOneAnother) {
  const std::uint64_t one[] = {6}, longer[] = {6, 0}, none[] = {0};
  const std::vector<TRect> expected{{1, 0, 3, 4}};
  TBandBuilder builder;
  builder.AddRow(0, one, 1);
  builder.AddBand(1, 2, {{1, 3}});
  builder.AddRow(2, one, 1);
  builder.AddRow(3, longer, 2);
  const TRegion region = builder.Take();
  EXPECT_EQ(RectList(region), expected);
  EXPECT_TRUE(Canonical(region));
  builder.AddBand(0, 4, {{1, 3}});
  builder.AddRow(4, none, 1);
  builder.AddRow(5, none, 0);
  EXPECT_EQ(RectList(builder.Take()), expected);
}

TEST(BandBuilder, ARowWithoutWordsIsEmpty) {
  TBandBuilder builder;
  builder.AddBand(0, 1, {{1, 3}});
  builder.AddRow(1, nullptr, 0);
  EXPECT_EQ(RectList(builder.Take()), std::vector<TRect>({{1, 0, 3, 1}}));
}

TEST(BandBuilder, StartsAnewAfterItsRegionIsTaken) {
  const std::uint64_t row[] = {6};
  TBandBuilder builder;
  builder.AddRow(7, row, 1);
  EXPECT_EQ(RectList(builder.Take()), std::vector<TRect>({{1, 7, 3, 8}}));
  EXPECT_TRUE(builder.Take().Empty());
  builder.AddRow(8, row, 1);
  EXPECT_EQ(RectList(builder.Take()), std::vector<TRect>({{1, 8, 3, 9}}));
}
