#include "Drawn.h"
#include "OracleRegion.h"
#include "RecordingProgress.h"

namespace {
using Painter = decltype(&PaintRGNBorder2);
const Painter Painters[] = {PaintRGNBorder2, PaintRGNBorder3};

TBitmap Paint(Painter painter, int size, const TRegion* region, TRegionBorder style,
              IVRXProgress* progress = nullptr) {
  TBitmap picture(size, size);
  picture.Fill(clFuchsia);
  painter(picture, region, style, {}, progress);
  return picture;
}
}  // namespace

TEST(RegionBorder, SingleIsBlackAllAround) {
  const TRegion region(TRect{1, 1, 4, 4});
  for (const Painter painter : Painters)
    EXPECT_TRUE(Same(Drawn({".....", ".BBB.", ".B.B.", ".BBB.", "....."}),
                     Paint(painter, 5, &region, TRegionBorder::Single)));
}

// Columns come one after the other, so the edge that is left on the right has the last word.
TEST(RegionBorder, RaisedIsLightBeforeAndDarkBehind) {
  const TRegion region(TRect{1, 1, 4, 4});
  for (const Painter painter : Painters) {
    EXPECT_TRUE(Same(Drawn({".....", ".WWG.", ".W.G.", ".GGG.", "....."}),
                     Paint(painter, 5, &region, TRegionBorder::Raised)));
    EXPECT_TRUE(Same(Drawn({".....", ".GGW.", ".G.W.", ".WWW.", "....."}),
                     Paint(painter, 5, &region, TRegionBorder::Lowered)));
  }
}

TEST(RegionBorder, SingleRaisedHasALightAndADarkLineWithinTheBlackOne) {
  const TRegion region(TRect{1, 1, 6, 6});
  for (const Painter painter : Painters) {
    EXPECT_TRUE(Same(Drawn({".......", ".BBBGB.", ".BWWGB.", ".BW.GB.", ".GGGGB.", ".BBBGB.", "......."}),
                     Paint(painter, 7, &region, TRegionBorder::SingleRaised)));
    EXPECT_TRUE(Same(Drawn({".......", ".BBBWB.", ".BGGWB.", ".BG.WB.", ".WWWWB.", ".BBBWB.", "......."}),
                     Paint(painter, 7, &region, TRegionBorder::SingleLowered)));
  }
}

TEST(RegionBorder, NoneAndUnknownStylesPaintNothing) {
  const TRegion region(TRect{1, 1, 4, 4});
  for (const Painter painter : Painters)
    for (const int style : {-1, 0, 6, 7, 100, -2147483647}) {
      RecordingProgress progress;
      EXPECT_TRUE(Same(OraclePicture(5, 5, clFuchsia),
                       Paint(painter, 5, &region, static_cast<TRegionBorder>(style), &progress)));
      EXPECT_EQ(progress.Pumps(), 4 * 4);
    }
}

TEST(RegionBorder, NoRegionAndAnEmptyOneAreFourPointsWithoutPaint) {
  const TRegion empty;
  for (const Painter painter : Painters)
    for (const TRegion* region : {static_cast<const TRegion*>(nullptr), &empty}) {
      RecordingProgress progress;
      EXPECT_TRUE(Same(OraclePicture(3, 3, clFuchsia),
                       Paint(painter, 3, region, TRegionBorder::SingleRaised, &progress)));
      EXPECT_EQ(progress.Percents(), PercentRuns({{100, 2}, {200, 2}}));
      EXPECT_EQ(progress.Pumps(), 4);
    }
}

TEST(RegionBorder, ARightEdgeOfZeroCountsAsOne) {
  const TRegion region(TRect{-3, -2, 0, 0});
  for (const Painter painter : Painters) {
    TBitmap picture(2, 2);
    RecordingProgress progress;
    painter(picture, &region, TRegionBorder::Single, {.Scale = 10, .Offset = 50}, &progress);
    EXPECT_EQ(progress.Percents(), PercentRuns({{30, 4}, {40, 4}, {50, 4}, {60, 4}, {70, 4}}));
    EXPECT_TRUE(Same(OraclePicture(2, 2, clWhite), picture));
  }
}

TEST(RegionBorder, PercentagesAreCutToEightBits) {
  const TRegion region(TRect{0, 0, 1, 3});
  for (const Painter painter : Painters) {
    TBitmap picture(2, 3);
    RecordingProgress progress;
    painter(picture, &region, TRegionBorder::None, {.Scale = 100, .Offset = 100}, &progress);
    EXPECT_EQ(progress.Percents(), PercentRuns({{200, 4}, {300 - 256, 4}}));
  }
}

TEST(RegionBorder, TheAbortFlagOfTheButtonsIsNotTheirs) {
  const TRegion region(TRect{1, 1, 4, 4});
  for (const Painter painter : Painters) {
    const AbortFlag flag(true);
    RecordingProgress progress;
    EXPECT_TRUE(Same(Drawn({".....", ".BBB.", ".B.B.", ".BBB.", "....."}),
                     Paint(painter, 5, &region, TRegionBorder::Single, &progress)));
    // 100 over a right edge of 4: 50, 75, 100, 125.
    EXPECT_EQ(progress.Percents(), PercentRuns({{50, 4}, {75, 4}, {100, 4}, {125, 4}}));
  }
}

TEST(RegionBorder, ARegionWithoutEndIsPaintedWhereItIsSeen) {
  for (const Painter painter : Painters) {
    const TRegion down(TRect{1, 1, 4, INT32_MAX}), up(TRect{1, INT32_MIN, 4, 3});
    EXPECT_TRUE(Same(Drawn({".....", ".BBB.", ".B.B.", ".B.B.", ".B.B."}),
                     Paint(painter, 5, &down, TRegionBorder::Single)));
    EXPECT_TRUE(Same(Drawn({".B.B.", ".B.B.", ".BBB.", ".....", "....."}),
                     Paint(painter, 5, &up, TRegionBorder::Single)));
    const TRegion right(TRect{1, 1, INT32_MAX, 4}), left(TRect{INT32_MIN, 1, 3, 4});
    EXPECT_TRUE(Same(Drawn({".....", ".BBBB", ".B...", ".BBBB", "....."}),
                     Paint(painter, 5, &right, TRegionBorder::Single)));
    EXPECT_TRUE(Same(Drawn({".....", "BBB..", "..B..", "BBB..", "....."}),
                     Paint(painter, 5, &left, TRegionBorder::Single)));
  }
}

TEST(RegionBorder, OnlyThePaintedPictureChanges) {
  const TRegion region(TRect{0, 0, 3, 3});
  for (const Painter painter : Painters) {
    TBitmap picture(4, 4), copy;
    copy.Assign(&picture);
    painter(picture, &region, TRegionBorder::Single, {}, nullptr);
    EXPECT_TRUE(Same(OraclePicture(4, 4, clWhite), copy));
    EXPECT_EQ(picture.Pixel(0, 0), clBlack);
  }
}

TEST(RegionBuild, ASimpleButtonIsTwoPlainCopies) {
  const OraclePicture picture = Drawn({"##.#", "#..#", ".#.."});
  RecordingProgress progress;
  const TRegionBuild build =
      BuildButtonRegion(picture.ToBitmap(), {clFuchsia}, TRegionButton::Simple, &progress);
  EXPECT_TRUE(Same(picture, build.Border));
  EXPECT_TRUE(Same(picture, build.First));
  EXPECT_TRUE(Same(Drawn({"WWWW", "W##.", "W#.."}), build.Second));
  EXPECT_EQ(progress.Percents(), PercentRuns({{11, 1}, {22, 1}, {33, 1}}));
}

TEST(RegionBuild, TheBorderPictureOfAButtonStaysPlain) {
  const OraclePicture picture = Drawn({".####.", "######", "######", ".####."});
  for (const TRegionButton look : {TRegionButton::Win31, TRegionButton::Win40}) {
    const TRegionBuild build = BuildButtonRegion(picture.ToBitmap(), {clFuchsia}, look, nullptr);
    EXPECT_TRUE(Same(picture, build.Border));
    EXPECT_FALSE(Same(picture, build.First));
    EXPECT_FALSE(build.First == build.Second);
  }
}

TEST(RegionBuild, AWindowHasNoStatePictures) {
  const OraclePicture picture = Drawn({"####", "####", "####"});
  const TRegionBuild build =
      BuildWindowRegion(picture.ToBitmap(), {clFuchsia}, TRegionBorder::Single, nullptr);
  EXPECT_TRUE(build.First.Empty());
  EXPECT_TRUE(build.Second.Empty());
  EXPECT_TRUE(Same(Drawn({"BBB#", "B#B#", "BBB#"}), build.Border));
  ASSERT_TRUE(build.Region);
  EXPECT_EQ(build.RegionData(), build.Region->ToData());
}
