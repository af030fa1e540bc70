#include "ButtonCall.h"
#include "Drawn.h"

namespace {
ButtonPictures Draw(const TBitmap& source, const ButtonRun& run) {
  ButtonPictures results = ButtonPictures::Before();
  CallButton3D(source, results, run, nullptr);
  return results;
}

TBitmap Glyph() {
  return Drawn({"..........",  //
                "..###..#..",  //
                ".#...#.##.",  //
                ".####..#..",  //
                ".#...#....",  //
                ".###.#.#.#",  //
                "..........",  //
                "#........."})
      .ToBitmap();
}
}  // namespace

TEST(Button3D, TheRingIsLightAboveAndDarkBelow) {
  const ButtonPictures drawn = Draw(Drawn({"##", "##"}).ToBitmap(), DrawnRun(1));
  EXPECT_TRUE(Same(Drawn({"LLLS", "L##S", "L##S", "SSSS"}), drawn.Up));
  EXPECT_TRUE(Same(Drawn({"....", ".SSS", ".S##", ".S##"}), drawn.Down));
  EXPECT_TRUE(Same(Drawn({"LLLS", "L#DS", "LD#S", "SSSS"}), drawn.Disabled));
}

TEST(Button3D, AWidthOfZeroLeavesOneRingOfTheBevelColor) {
  const ButtonPictures drawn = Draw(Drawn({"....", ".##.", ".##.", "...."}).ToBitmap(), DrawnRun(0));
  EXPECT_TRUE(Same(Drawn({"BBBB", "B##B", "B##B", "BBBB"}), drawn.Up));
  EXPECT_TRUE(Same(Drawn({"....", ".BBB", ".B##", ".B##"}), drawn.Down));
  EXPECT_TRUE(Same(Drawn({"BBBB", "B#DB", "BD#B", "BBBB"}), drawn.Disabled));
}

TEST(Button3D, APictureWithoutAnythingStaysTransparent) {
  for (int width = -1; width <= 4; ++width) {
    const ButtonPictures drawn = Draw(Drawn({"....", "....", "...."}).ToBitmap(), DrawnRun(width));
    const OraclePicture nothing(4 + 2 * width, 3 + 2 * width, clFuchsia);
    EXPECT_TRUE(Same(nothing, drawn.Up)) << width;
    EXPECT_TRUE(Same(nothing, drawn.Down)) << width;
    EXPECT_TRUE(Same(nothing, drawn.Disabled)) << width;
  }
}

TEST(Button3D, ASourceWithoutPixelsGivesTransparentResultsOfTheRingsAlone) {
  for (const auto& [width, height] : {std::pair{0, 0}, {0, 5}, {4, 0}, {0, 70}, {70, 0}}) {
    const ButtonPictures drawn = Draw(TBitmap(width, height), DrawnRun(2));
    const OraclePicture nothing(width + 4, height + 4, clFuchsia);
    EXPECT_TRUE(Same(nothing, drawn.Up));
    EXPECT_TRUE(Same(nothing, drawn.Down));
    EXPECT_TRUE(Same(nothing, drawn.Disabled));
    for (int bevel = -3; bevel < 4; ++bevel)
      EXPECT_TRUE(SameAsOracle(TBitmap(width, height), DrawnRun(bevel), true, 0)) << bevel;
  }
}

TEST(Button3D, NothingIsDrawnForNeighborsOutsideOfThePicture) {
  const ButtonPictures drawn = Draw(Drawn({"####", "####", "####"}).ToBitmap(), DrawnRun(0));
  EXPECT_TRUE(Same(Drawn({"####", "####", "####"}), drawn.Up));
  EXPECT_TRUE(Same(Drawn({"....", ".###", ".###"}), drawn.Down));
  EXPECT_TRUE(Same(Drawn({"#D#D", "D#D#", "#D#D"}), drawn.Disabled));
}

// Every place of a single pixel in a small picture, with the neighbours it has and lacks there.
TEST(Button3D, APixelAtAnyEdgeIsDrawnAsByTheSlowReference) {
  for (int bevel = -1; bevel <= 3; ++bevel)
    for (int y = 0; y < 4; ++y)
      for (int x = 0; x < 4; ++x) {
        TBitmap source(4, 4);
        source.Fill(clFuchsia);
        source.SetPixel(x, y, clRed);
        for (const bool semi : {false, true})
          ASSERT_TRUE(SameAsOracle(source, DrawnRun(bevel, semi), true, 0))
              << bevel << " at " << x << ", " << y;
      }
}

// All pictures of 3 x 3 pixels of background and ink, and the four corners of larger ones.
TEST(Button3D, EveryTinyPictureIsDrawnAsByTheSlowReference) {
  for (int bits = 0; bits < 512; ++bits) {
    TBitmap source(3, 3);
    source.Fill(clFuchsia);
    for (int i = 0; i < 9; ++i)
      if (bits >> i & 1) source.SetPixel(i % 3, i / 3, clRed);
    for (int bevel = -1; bevel <= 3; ++bevel)
      ASSERT_TRUE(SameAsOracle(source, DrawnRun(bevel), false, 0))
          << "picture " << bits << " width " << bevel;
  }
}

TEST(Button3D, EveryTinyPictureWithKeysIsDrawnAsByTheSlowReference) {
  const TColor colors[] = {ColorOf('.'), ColorOf('#'), ColorOf('K')};
  for (int number = 0; number < 729; ++number) {
    TBitmap source(3, 2);
    for (int i = 0, rest = number; i < 6; ++i, rest /= 3) source.SetPixel(i % 3, i / 3, colors[rest % 3]);
    for (int bevel = -1; bevel <= 2; ++bevel)
      ASSERT_TRUE(SameAsOracle(source, DrawnRun(bevel, true), false, 0))
          << "picture " << number << " width " << bevel;
  }
}

TEST(Button3D, WithoutHalfTransparencyItsColorsHaveNoEffect) {
  ButtonRun run = DrawnRun(2);
  run.Colors.P = run.Colors.K = clNone;
  TBitmap source = Glyph();
  source.SetPixel(4, 4, ColorOf('K'));
  source.SetPixel(5, 6, ColorOf('K'));
  const ButtonPictures expected = Draw(source, run);
  for (const TColor key : {ColorOf('K'), ColorOf('.'), ColorOf('#')}) {
    run.Colors.K = key;
    run.Colors.P = ColorOf('P');
    const ButtonPictures drawn = Draw(source, run);
    EXPECT_TRUE(Same(expected.Up, drawn.Up));
    EXPECT_TRUE(Same(expected.Down, drawn.Down));
    EXPECT_TRUE(Same(expected.Disabled, drawn.Disabled));
  }
}

TEST(Button3D, TheKeyBecomesACheckerOfBackgroundAndSecondColor) {
  const ButtonPictures drawn = Draw(Drawn({"KKK", "KKK", "KKK"}).ToBitmap(), DrawnRun(-1, true));
  // One pixel is cut off on every side; what is left is the middle of the checker.
  EXPECT_TRUE(Same(Drawn({"P"}), drawn.Up));
  EXPECT_TRUE(Same(Drawn({"P"}), drawn.Down));
  TBitmap checker = Drawn({"KKK", "#KK"}).ToBitmap();
  EXPECT_TRUE(VRXMakeBmpSemiTransparent(checker, ColorOf('.'), ColorOf('K'), ColorOf('P')));
  EXPECT_TRUE(Same(Drawn({"P.P", "#P."}), checker));
}

TEST(Button3D, ANegativeWidthBelowOneChangesNothing) {
  for (int width : {-2, -3, -1000000000}) {
    RecordingProgress progress;
    ButtonPictures results = ButtonPictures::Before();
    CallButton3D(Glyph(), results, DrawnRun(width), &progress);
    EXPECT_TRUE(Untouched(results)) << width;
    EXPECT_EQ(progress.Pumps(), 0);
    EXPECT_TRUE(progress.Percents().empty());
  }
}

TEST(Button3D, ColorsWithAHighByteAreNeverFoundInAPicture) {
  ButtonRun run = DrawnRun(2);
  // Written it is the background's colour, but no pixel equals it: everything is inside.
  run.Colors.T = TColor(0x02FF00FF);
  const ButtonPictures drawn = Draw(Drawn({".#", ".."}).ToBitmap(), run);
  OraclePicture expected(6, 6, clFuchsia);
  expected.Set(3, 2, ColorOf('#'));
  EXPECT_TRUE(Same(expected, drawn.Up));
  EXPECT_TRUE(SameAsOracle(Glyph(), run, true, 0));
}

// The corner is closed only by the ring of the pass before, two rows below the pixels that it writes; nothing
// else changes anywhere near.
TEST(Button3D, ACornerWhoseEdgesAreKeysGrowsWhenARingClosesItFromBelow) {
  OraclePicture source(8, 120, ColorOf('.'));
  source.Draw(2, 60, Drawn({".KK", "K##", "..#"}));
  ButtonRun run = DrawnRun(3, true);
  run.Colors.P = run.Colors.S = run.Colors.T;
  const OraclePicture expected = OracleButton3D(source, run, nullptr).Up;
  // Column 3 of the source is column 6 of the result, row 60 is row 63.
  EXPECT_TRUE(expected.Is(6, 63, run.Colors.L));
  EXPECT_TRUE(SameAsOracle(source.ToBitmap(), run, false, 0));
}
