#include "Drawn.h"
#include "OracleRegion.h"
#include "RandomPictures.h"
#include "RecordingProgress.h"

namespace {
TBitmap Filled(int width, int height, TColor color) {
  TBitmap bitmap(width, height);
  bitmap.Fill(color);
  return bitmap;
}
std::optional<TRegion> Opaque(const TBitmap& picture, const std::vector<TColor>& transparent = {clFuchsia}) {
  return CreateRgnFromBitmap2(picture, transparent, 100, nullptr);
}
}  // namespace

TEST(RegionFromBitmap, TheLastColumnNeverBelongsToIt) {
  const auto region = Opaque(Filled(10, 10, clRed));
  ASSERT_TRUE(region);
  EXPECT_EQ(RectList(*region), std::vector<TRect>({{0, 0, 9, 10}}));
  for (const int width : {2, 3, 63, 64, 65, 66, 127, 128, 129, 130, 192, 193}) {
    const auto wide = Opaque(Filled(width, 3, clRed));
    ASSERT_TRUE(wide) << width;
    EXPECT_EQ(RectList(*wide), std::vector<TRect>({{0, 0, width - 1, 3}}));
  }
}

TEST(RegionFromBitmap, AOnePixelWidePictureHasNone) {
  EXPECT_FALSE(Opaque(Filled(1, 1, clRed)));
  EXPECT_FALSE(Opaque(Filled(1, 20, clRed)));
  EXPECT_FALSE(Opaque(Drawn({"...#", "...#", "...#"}).ToBitmap()));
}

TEST(RegionFromBitmap, PicturesOfFewPixelsHaveTheirRegions) {
  for (const int height : {0, 1, 20})
    for (const int width : {0, 1, 20}) {
      RecordingProgress progress;
      const auto region = CreateRgnFromBitmap2(Filled(width, height, clRed), {clFuchsia}, 100, &progress);
      EXPECT_EQ(region.has_value(), width == 20 && height > 0) << width << " x " << height;
      if (region) {
        EXPECT_EQ(RectList(*region), std::vector<TRect>({{0, 0, 19, height}}));
      }
      std::int64_t reports = 0;
      for (const PercentRun& run : progress.Percents()) reports += run.Times;
      EXPECT_EQ(reports, height);
    }
}

TEST(RegionFromBitmap, NothingOpaqueIsNoRegionAndNoData) {
  EXPECT_FALSE(Opaque(Filled(7, 5, clFuchsia)));
  EXPECT_FALSE(Opaque(TBitmap()));
  const TRegionBuild build =
      BuildWindowRegion(Filled(7, 5, clFuchsia), {clFuchsia}, TRegionBorder::Raised, nullptr);
  EXPECT_FALSE(build.Region);
  EXPECT_TRUE(build.RegionData().isEmpty());
  EXPECT_TRUE(Same(OraclePicture(7, 5, clFuchsia), build.Border));
}

TEST(RegionFromBitmap, AnEmptyListMakesEverythingOpaque) {
  const auto region = Opaque(Drawn({".#.K", "K..#"}).ToBitmap(), {});
  ASSERT_TRUE(region);
  EXPECT_EQ(RectList(*region), std::vector<TRect>({{0, 0, 3, 2}}));
}

TEST(RegionFromBitmap, AnyColorOfTheListIsTransparent) {
  const TBitmap picture = Drawn({"#.K#D##", "KK##..#"}).ToBitmap();
  const auto region = Opaque(picture, {ColorOf('K'), ColorOf('.'), ColorOf('K'), ColorOf('D'), clAqua});
  ASSERT_TRUE(region);
  EXPECT_EQ(RectList(*region), std::vector<TRect>({{0, 0, 1, 1}, {3, 0, 4, 1}, {5, 0, 6, 1}, {2, 1, 4, 2}}));
}

TEST(RegionFromBitmap, ColorsThatNoPixelCanBeOfDoNothing) {
  const auto region =
      Opaque(Filled(4, 1, clBlack), {clNone, clDefault, clInvalid, TColor(0x02000000), clBtnText});
  ASSERT_TRUE(region);
  EXPECT_EQ(RectList(*region), std::vector<TRect>({{0, 0, 3, 1}}));
  EXPECT_FALSE(Opaque(Filled(4, 1, clBlack), {clNone, clBlack}));
}

TEST(RegionFromBitmap, TheLastEntryOfAFullListCounts) {
  std::vector<TColor> list(MaxTransparentColors, clNone);
  list.back() = clRed;
  EXPECT_FALSE(Opaque(Filled(4, 4, clRed), list));
  for (std::size_t i = 0; i < list.size(); ++i) list[i] = TColor(0x010000u * (i % 250) + i);
  for (const std::size_t i : {0u, 1u, 63u, 64u, 250u, 499u, 500u}) {
    TBitmap picture = Filled(5, 1, TColor(0xFFFFFF));
    picture.SetPixel(2, 0, list[i]);
    const auto region = Opaque(picture, list);
    ASSERT_TRUE(region);
    EXPECT_EQ(RectList(*region), std::vector<TRect>({{0, 0, 2, 1}, {3, 0, 4, 1}})) << i;
  }
}

// Colours that differ in one bit only are different colours.
TEST(RegionFromBitmap, EveryBitOfAColorCounts) {
  for (int bit = 0; bit < 24; ++bit) {
    const TColor near = TColor(0x5A3CC3u ^ 1u << bit);
    const auto region = Opaque(Filled(3, 1, near), {TColor(0x5A3CC3)});
    EXPECT_TRUE(region) << bit;
    EXPECT_FALSE(Opaque(Filled(3, 1, near), {near})) << bit;
  }
}

TEST(RegionFromBitmap, APictureAndItsInverseCoverAllButTheLastColumn) {
  Random random(31);
  for (int i = 0; i < 300; ++i) {
    const int width = random.Between(2, i % 4 == 0 ? 140 : 20), height = random.Between(1, 20);
    const TBitmap picture = RandomPicture(random, width, height, clWhite, {clBlack});
    const TRegion black = Opaque(picture, {clWhite}).value_or(TRegion());
    const TRegion white = Opaque(picture, {clBlack}).value_or(TRegion());
    ASSERT_EQ(RectList(black.United(white)), std::vector<TRect>({{0, 0, width - 1, height}})) << i;
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x) ASSERT_FALSE(black.Contains(x, y) && white.Contains(x, y));
  }
}

TEST(RegionFromBitmap, EveryRowIsReported) {
  RecordingProgress progress;
  CreateRgnFromBitmap2(Filled(3, 40, clRed), {clFuchsia}, 100, &progress);
  PercentRuns expected;
  for (int y = 1; y <= 40; ++y) expected = Joined(expected, {{OracleRound(100 * y, 40), 1}});
  EXPECT_EQ(progress.Percents(), expected);
  EXPECT_EQ(progress.Percents()[0].Percent, 2);
  EXPECT_EQ(progress.Percents()[2].Percent, 8);
}

// Messages are for the painters, which take long; nothing may come between the rows of a region.
TEST(RegionFromBitmap, MessagesAreProcessedAfterEveryRow) {
  RecordingProgress progress;
  CreateRgnFromBitmap2(Filled(3, 40, clRed), {clFuchsia}, 100, &progress);
  EXPECT_EQ(progress.Pumps(), 40);
}
