// Borders of random regions, many of them partly outside of the picture, against the slow reference.
#include "OracleRegion.h"
#include "RandomPictures.h"
#include "RecordingProgress.h"

namespace {
const TRect Field{-40, -40, 90, 70};

// The field that holds a case: near the picture, around it, or wholly to one side.
TRect RandomField(Random& random, int width, int height) {
  switch (random.Below(6)) {
    case 0:
      return {-20, -20, width + 20, height + 20};
    case 1:
      return {-30, -30, 0, 0};  // ends at or before the first pixel
    case 2:
      return {-25, 0, 1, std::max(height, 1)};
    case 3:
      return {width, height, width + 12, height + 12};
    default:
      return {-3, -3, width + 3, height + 3};
  }
}

std::string Describe(int painter, int style, const TRegionPhase& phase, const TBitmap& picture,
                     const std::vector<TRect>& rects) {
  return "painter " + std::to_string(painter) + " style " + std::to_string(style) + " scale " +
         std::to_string(phase.Scale) + " offset " + std::to_string(phase.Offset) + " rects " +
         testing::PrintToString(rects) + "\npicture " + OraclePicture(picture).Text();
}

void Compare(Random& random, const TBitmap& source, const std::vector<TRect>& rects) {
  SlowRegion slowRegion(Field);
  TRegion region;
  for (const TRect& r : rects) {
    slowRegion.Add(r);
    region = region.United(TRegion(r));
  }
  const bool null = random.Percent(5);
  const int painter = random.Between(2, 3), style = random.Between(-1, 6);
  static const std::vector<TRegionPhase> phases{{100, 100}, {50, 50}, {33, 33}, {33, 66}, {100, 0}};
  const TRegionPhase phase =
      random.Percent(80) ? random.Of(phases) : TRegionPhase{random.Between(0, 100), random.Between(0, 255)};
  SCOPED_TRACE((null ? "null " : "") + Describe(painter, style, phase, source, rects));

  OraclePicture expected(source);
  RecordingProgress slow, fast;
  OraclePaintBorder(painter, expected, null ? nullptr : &slowRegion, style, phase, &slow);
  const auto paint = painter == 2 ? PaintRGNBorder2 : PaintRGNBorder3;
  TBitmap actual, silent;
  actual.Assign(&source);
  silent.Assign(&source);
  paint(actual, null ? nullptr : &region, static_cast<TRegionBorder>(style), phase, &fast);
  ASSERT_TRUE(Same(expected, actual));
  ASSERT_EQ(slow.Percents(), fast.Percents());
  ASSERT_EQ(slow.Pumps(), fast.Pumps());
  paint(silent, null ? nullptr : &region, static_cast<TRegionBorder>(style), phase, nullptr);
  ASSERT_TRUE(Same(expected, silent));
}
}  // namespace

class RandomBorder : public testing::TestWithParam<int> {};

TEST_P(RandomBorder, IsPaintedAsByTheSlowReference) {
  Random random(static_cast<unsigned>(6000 + GetParam()));
  for (int i = 0; i < 2500; ++i) {
    const int width = random.Percent(10) ? random.Between(60, 68) : random.Below(25),
              height = random.Below(25);
    const TBitmap source = RandomPicture(random, width, height, clAqua, {clRed, clBlack, clWhite, clGray});
    const std::vector<TRect> rects = RandomRects(random, random.Percent(20) ? 40 : random.Between(0, 8),
                                                 RandomField(random, width, height));
    ASSERT_NO_FATAL_FAILURE(Compare(random, source, rects)) << "case " << i << " of shard " << GetParam();
  }
}

// Regions of noise: every point may be an edge on all sides, so the order of the writes decides everywhere.
TEST_P(RandomBorder, OfNoiseIsPaintedAsByTheSlowReference) {
  Random random(static_cast<unsigned>(7000 + GetParam()));
  for (int i = 0; i < 400; ++i) {
    const int width = random.Between(1, 16), height = random.Between(1, 16);
    TBitmap source(width, height);
    source.Fill(clAqua);
    const int density = random.Between(5, 95);
    std::vector<TRect> rects;
    for (int y = -2; y < height + 2; ++y)
      for (int x = -2; x < width + 2; ++x)
        if (random.Percent(density)) rects.push_back({x, y, x + 1, y + 1});
    ASSERT_NO_FATAL_FAILURE(Compare(random, source, rects)) << "case " << i << " of shard " << GetParam();
  }
}

INSTANTIATE_TEST_SUITE_P(Shard, RandomBorder, testing::Range(0, 4));
