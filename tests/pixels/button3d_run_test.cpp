// How runs of the button drawing proceed, end early, and treat the bitmaps they are given.
#include "ButtonCall.h"
#include "Drawn.h"
#include "RandomPictures.h"

namespace {
TBitmap Small() { return Drawn({"..#.", ".##.", "#..K"}).ToBitmap(); }
TBitmap Copy(const TBitmap& bitmap) {
  TBitmap copy;
  copy.Assign(&bitmap);
  return copy;
}
}  // namespace

TEST(Button3DRun, AnAbortedRunLeavesTheThreeResults) {
  for (const std::int64_t abortAt : {1, 2, 5, 40, 100}) {
    const AbortFlag flag;
    RecordingProgress progress(abortAt);
    ButtonPictures results = ButtonPictures::Before();
    CallButton3D(Small(), results, DrawnRun(2), &progress);
    EXPECT_TRUE(Untouched(results)) << abortAt;
    EXPECT_EQ(progress.Pumps(), abortAt);
    EXPECT_TRUE(VRX3DEffectAbort);
  }
}

TEST(Button3DRun, AtAnyPixelItEndsAsTheSlowReferenceDoes) {
  for (int bevel = -1; bevel <= 2; ++bevel) {
    const int pumps = (4 + 2 * bevel) * (3 + 2 * bevel) * (bevel + 2);
    for (int at = 0; at <= pumps + 1; ++at)
      ASSERT_TRUE(SameAsOracle(Small(), DrawnRun(bevel, true), true, at))
          << bevel << " at " << at << " of " << pumps;
  }
}

TEST(Button3DRun, AFlagSetBeforeEndsTheRunAtTheFirstPixel) {
  const AbortFlag flag(true);
  RecordingProgress progress;
  ButtonPictures results = ButtonPictures::Before();
  CallButton3D(Small(), results, DrawnRun(2), &progress);
  EXPECT_TRUE(Untouched(results));
  EXPECT_EQ(progress.Pumps(), 1);
  EXPECT_TRUE(progress.Percents().empty());
}

TEST(Button3DRun, AFlagSetBeforeDoesNotMatterWithoutPixels) {
  EXPECT_TRUE(SameAsOracle(TBitmap(4, 0), DrawnRun(0), true, 0, true));
  EXPECT_TRUE(SameAsOracle(TBitmap(0, 4), DrawnRun(0), true, 0, true));
  EXPECT_TRUE(SameAsOracle(TBitmap(2, 2), DrawnRun(-1), true, 0, true));
}

TEST(Button3DRun, AFlagSetAtTheVeryLastPixelStillEndsIt) {
  const std::int64_t last = 8 * 7 * 4;
  for (const std::int64_t at : {last, last + 1}) {
    const AbortFlag flag;
    RecordingProgress progress(at);
    ButtonPictures results = ButtonPictures::Before();
    CallButton3D(Small(), results, DrawnRun(2), &progress);
    EXPECT_EQ(static_cast<bool>(Untouched(results)), at == last);
    EXPECT_EQ(progress.Pumps(), last);
  }
}

TEST(Button3DRun, WithoutAProgressTheFlagIsNotRead) {
  const AbortFlag flag(true);
  ButtonPictures results = ButtonPictures::Before();
  CallButton3D(Small(), results, DrawnRun(2), nullptr);
  EXPECT_TRUE(VRX3DEffectAbort);
  EXPECT_TRUE(Same(OracleButton3D(OraclePicture(Small()), DrawnRun(2), nullptr).Up, results.Up));
}

TEST(Button3DRun, ThePercentageIsToldWhenItChanges) {
  for (const int height : {1, 7, 100, 101, 300}) {
    const AbortFlag flag;
    RecordingProgress progress;
    ButtonPictures results = ButtonPictures::Before();
    CallButton3D(TBitmap(1, height), results, DrawnRun(1), &progress);
    ASSERT_FALSE(progress.Percents().empty());
    int before = 0;
    for (const PercentRun& run : progress.Percents()) {
      EXPECT_GT(run.Percent, before);
      EXPECT_EQ(run.Times, 1);
      before = run.Percent;
    }
    EXPECT_LE(before, 100);
    EXPECT_EQ(progress.Pumps(), 3 * 3 * (height + 2));
  }
}

TEST(Button3DRun, TheSourceMayBeOneOfTheResults) {
  for (const bool semi : {false, true})
    for (int which = 0; which < 3; ++which)
      for (const bool silent : {false, true}) {
        const AbortFlag flag;
        const OracleButtonResult expected =
            OracleButton3D(OraclePicture(Small()), DrawnRun(1, semi), nullptr);
        ButtonPictures results = ButtonPictures::Before();
        TBitmap* const all[] = {&results.Up, &results.Down, &results.Disabled};
        *all[which] = Small();
        RecordingProgress progress;
        CallButton3D(*all[which], results, DrawnRun(1, semi), silent ? nullptr : &progress);
        EXPECT_TRUE(Same(expected.Up, results.Up)) << which;
        EXPECT_TRUE(Same(expected.Down, results.Down)) << which;
        EXPECT_TRUE(Same(expected.Disabled, results.Disabled)) << which;
      }
}

// The same with results of the size that they get: room that could be used again.
TEST(Button3DRun, TheSourceMayBeOneOfTheResultsOfItsOwnSize) {
  // Keys above and to the left of content, which the rules ask for in the source.
  const OraclePicture keys = Drawn({"#K#K", ".#K#", "K.#K"});
  for (const bool semi : {false, true})
    for (int which = 0; which < 3; ++which) {
      const OracleButtonResult expected = OracleButton3D(keys, DrawnRun(0, semi), nullptr);
      ButtonPictures results{TBitmap(4, 3), TBitmap(4, 3), TBitmap(4, 3)};
      TBitmap* const all[] = {&results.Up, &results.Down, &results.Disabled};
      *all[which] = keys.ToBitmap();
      CallButton3D(*all[which], results, DrawnRun(0, semi), nullptr);
      EXPECT_TRUE(Same(expected.Up, results.Up)) << which;
      EXPECT_TRUE(Same(expected.Down, results.Down)) << which;
      EXPECT_TRUE(Same(expected.Disabled, results.Disabled)) << which;
    }
}

// They are set one after the other, the disabled one last.
TEST(Button3DRun, OneBitmapForAllResultsEndsAsTheDisabledOne) {
  for (const int side : {2, 4}) {
    TBitmap bitmap(side, side);
    const ButtonColors c = DrawnRun(1).Colors;
    VRXDrawButton3D(Drawn({"##", "##"}).ToBitmap(), bitmap, bitmap, bitmap, c.T, c.L, c.S, c.DC, c.P, c.K,
                    c.BC, false, 1, nullptr);
    EXPECT_TRUE(Same(Drawn({"LLLS", "L#DS", "LD#S", "SSSS"}), bitmap)) << side;
  }
}

TEST(Button3DRun, AWidthForWhichThereIsNoMemoryIsAnErrorAndChangesNothing) {
  for (const int width : {1 << 30, INT32_MAX - 2, INT32_MAX}) {
    ButtonPictures results = ButtonPictures::Before();
    EXPECT_ANY_THROW(CallButton3D(Small(), results, DrawnRun(width), nullptr)) << width;
    EXPECT_TRUE(Untouched(results)) << width;
  }
}

// The results hold pictures of earlier runs, of the same size or another, and others have copies of them.
TEST(Button3DRun, WhatTheResultsHeldBeforeDoesNotMatter) {
  Random random(99);
  ButtonPictures results = ButtonPictures::Before();
  for (int i = 0; i < 600; ++i) {
    SCOPED_TRACE(i);
    const bool sameSize = random.Percent(60);
    const int width = sameSize ? 9 : random.Between(0, 12), height = sameSize ? 7 : random.Between(0, 12);
    const TBitmap source = RandomPicture(random, width, height, clFuchsia, {clRed, clLime, clBlue});
    const ButtonRun run = DrawnRun(sameSize ? 2 : random.Between(-2, 4), random.Percent(30));
    const TBitmap copies[] = {Copy(results.Up), Copy(results.Down), Copy(results.Disabled)};
    const OraclePicture before[] = {OraclePicture(results.Up), OraclePicture(results.Down),
                                    OraclePicture(results.Disabled)};
    const AbortFlag flag;
    RecordingProgress progress(random.Percent(20) ? random.Between(1, 50) : 0);
    const bool silent = random.Percent(50);
    CallButton3D(source, results, run, silent ? nullptr : &progress);
    const bool aborted = VRX3DEffectAbort;
    VRX3DEffectAbort = false;
    const OracleButtonResult expected = OracleButton3D(OraclePicture(source), run, nullptr);
    const bool untouched = aborted || !expected.Done;
    ASSERT_TRUE(Same(untouched ? before[0] : expected.Up, results.Up));
    ASSERT_TRUE(Same(untouched ? before[1] : expected.Down, results.Down));
    ASSERT_TRUE(Same(untouched ? before[2] : expected.Disabled, results.Disabled));
    for (int k = 0; k < 3; ++k) ASSERT_TRUE(Same(before[k], copies[k]));
  }
}

TEST(Button3DRun, TheResultsMayHoldTheSourcesPixels) {
  const TBitmap source = Small();
  ButtonPictures results{Copy(source), Copy(source), Copy(source)};
  CallButton3D(source, results, DrawnRun(0), nullptr);
  const OracleButtonResult expected = OracleButton3D(OraclePicture(Small()), DrawnRun(0), nullptr);
  EXPECT_TRUE(Same(Small(), source));
  EXPECT_TRUE(Same(expected.Up, results.Up));
  EXPECT_TRUE(Same(expected.Down, results.Down));
  EXPECT_TRUE(Same(expected.Disabled, results.Disabled));
}

TEST(Progress, RoundsToTheNearestAndHalvesToTheEvenNumber) {
  const std::tuple<int, int, int> rows[] = {{1, 2, 0},   {3, 2, 2},   {5, 2, 2},   {7, 2, 4},  {-1, 2, 0},
                                            {-3, 2, -2}, {-5, 2, -2}, {3, -2, -2}, {1, 3, 0},  {2, 3, 1},
                                            {-2, 3, -1}, {-1, 3, 0},  {0, 5, 0},   {10, 5, 2}, {575, 10, 58}};
  for (const auto& [numerator, denominator, rounded] : rows) {
    EXPECT_EQ(RoundHalfEven(numerator, denominator), rounded) << numerator << " / " << denominator;
    EXPECT_EQ(OracleRound(numerator, denominator), rounded) << numerator << " / " << denominator;
  }
  for (int denominator = -40; denominator <= 40; ++denominator)
    for (int numerator = -200; denominator != 0 && numerator <= 200; ++numerator)
      ASSERT_EQ(RoundHalfEven(numerator, denominator), OracleRound(numerator, denominator))
          << numerator << " / " << denominator;
}
