// Known results of the button drawing.
#include "ButtonCall.h"
#include "GoldenCases.h"

namespace {
ButtonRun RunOf(const GoldenCase& c) {
  return {.Colors = {.T = c.Color("T"),
                     .L = c.Color("L"),
                     .S = c.Color("S"),
                     .DC = c.Color("DC"),
                     .P = c.Color("P"),
                     .K = c.Color("K"),
                     .BC = c.Color("BC")},
          .Semi = c.Bool("semiTransparent"),
          .Width = c.Int("BW")};
}

// Runs the case with a progress and an abort at `abortAt`; -1 sets the flag before.
void CheckRun(const GoldenCase& golden, const ButtonRun& run, bool withProgress,
              const PercentRuns& percents) {
  const TBitmap source = golden.Picture("src");
  const int abortAt = golden.Int("abortAt");
  const AbortFlag flag(abortAt < 0);
  RecordingProgress progress(std::max(abortAt, 0));
  ButtonPictures results = ButtonPictures::Before();
  CallButton3D(source, results, run, withProgress ? &progress : nullptr);
  const QString status = golden["status"].toString();
  if (status == QStringLiteral("done")) {
    EXPECT_TRUE(Same(golden.Picture("up"), results.Up));
    EXPECT_TRUE(Same(golden.Picture("down"), results.Down));
    EXPECT_TRUE(Same(golden.Picture("disabled"), results.Disabled));
  } else {
    ASSERT_TRUE(status == QStringLiteral("aborted") || status == QStringLiteral("untouched"));
    EXPECT_TRUE(Untouched(results));
  }
  EXPECT_TRUE(Same(golden.Picture("src"), source));
  EXPECT_EQ(progress.Percents(), percents);
  EXPECT_EQ(progress.Pumps(), golden.Int("pumps"));
}
}  // namespace

class GoldenDraw : public testing::TestWithParam<GoldenCase> {};

TEST_P(GoldenDraw, GivesTheKnownPictures) {
  const GoldenCase& c = GetParam();
  CheckRun(c, RunOf(c), c.Bool("progress"), RunsOf(c["percents"]));
}

INSTANTIATE_TEST_SUITE_P(Known, GoldenDraw, testing::ValuesIn(GoldenCases("draw3d", "draw")), GoldenName);

class GoldenExecute : public testing::TestWithParam<GoldenCase> {};

TEST_P(GoldenExecute, TheLowerLeftPixelIsTheBackground) {
  const GoldenCase& c = GetParam();
  const TBitmap source = c.Picture("src");
  const TColor background = source.Pixel(0, source.Height() - 1);
  EXPECT_EQ(background, c.Color("T"));
  const std::vector<TColor> colors = c.Colors("colours");
  ASSERT_EQ(colors.size(), 4u);
  const ButtonRun run{
      .Colors = {.T = background, .L = colors[2], .S = colors[3], .DC = colors[1], .BC = colors[0]},
      .Width = c.Int("BW")};
  // The 0 that ends the list is sent by whoever runs the drawing.
  QJsonArray percents = c["percents"].toArray();
  ASSERT_EQ(percents.last().toInt(-1), 0);
  percents.removeLast();
  CheckRun(c, run, true, RunsOf(percents));
}

INSTANTIATE_TEST_SUITE_P(Known, GoldenExecute, testing::ValuesIn(GoldenCases("draw3d", "execute")),
                         GoldenName);

class GoldenSemi : public testing::TestWithParam<GoldenCase> {};

TEST_P(GoldenSemi, TheKeyColorBecomesAChecker) {
  TBitmap bitmap = GetParam().Picture("src");
  EXPECT_TRUE(VRXMakeBmpSemiTransparent(bitmap, GetParam().Color("colourOdd"), GetParam().Color("keyColour"),
                                        GetParam().Color("colourEven")));
  EXPECT_TRUE(Same(GetParam().Picture("out"), bitmap));
}

INSTANTIATE_TEST_SUITE_P(Known, GoldenSemi, testing::ValuesIn(GoldenCases("draw3d", "semi")), GoldenName);

TEST(GoldenIndexes, AreComplete) {
  EXPECT_EQ(GoldenCases("draw3d", "draw").size(), 51u);
  EXPECT_EQ(GoldenCases("draw3d", "execute").size(), 3u);
  EXPECT_EQ(GoldenCases("draw3d", "semi").size(), 2u);
  EXPECT_EQ(GoldenCases("draw3d").size(), 56u);
  EXPECT_EQ(GoldenCases("region", "build").size(), 47u);
  EXPECT_EQ(GoldenCases("region", "paint").size(), 15u);
  EXPECT_EQ(GoldenCases("region").size(), 62u);
}

// The slow reference stands beside the library in the random tests; what it is worth shows here.
TEST(GoldenIndexes, TheSlowReferenceDrawsThemToo) {
  for (const GoldenCase& c : GoldenCases("draw3d", "draw")) {
    SCOPED_TRACE(qPrintable(c.Id()));
    const AbortFlag flag(c.Int("abortAt") < 0);
    RecordingProgress progress(std::max(c.Int("abortAt"), 0));
    const OracleButtonResult result =
        OracleButton3D(OraclePicture(c.Picture("src")), RunOf(c), c.Bool("progress") ? &progress : nullptr);
    EXPECT_EQ(result.Done, c["status"].toString() == QStringLiteral("done"));
    EXPECT_EQ(progress.Percents(), RunsOf(c["percents"]));
    EXPECT_EQ(progress.Pumps(), c.Int("pumps"));
    if (!result.Done) continue;
    EXPECT_TRUE(Same(result.Up, c.Picture("up")));
    EXPECT_TRUE(Same(result.Down, c.Picture("down")));
    EXPECT_TRUE(Same(result.Disabled, c.Picture("disabled")));
  }
}
