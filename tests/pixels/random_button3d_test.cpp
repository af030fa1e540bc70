// Random pictures, colours, widths and ends of runs: the library against the slow reference.
#include "ButtonCall.h"
#include "RandomPictures.h"

namespace {
struct RandomCase {
  TBitmap Source;
  ButtonRun Run;
  bool Progress = false;
  std::int64_t AbortAt = 0;
  bool AbortBefore = false;
};

ButtonColors RandomColors(Random& random) {
  ButtonColors c;
  std::vector<TColor> pool;
  // A small pool makes colours that are to be different the same.
  const int size = random.Percent(40) ? random.Between(2, 4) : 12;
  for (int i = 0; i < size; ++i) pool.push_back(RandomPlainColor(random));
  const bool special = random.Percent(25);
  for (TColor* color : {&c.T, &c.L, &c.S, &c.DC, &c.P, &c.K, &c.BC})
    *color = special && random.Percent(40) ? RandomSpecialColor(random) : random.Of(pool);
  return c;
}

std::vector<TColor> RandomInks(Random& random, const ButtonColors& c, bool semi) {
  std::vector<TColor> inks;
  for (int n = random.Between(1, 3); n > 0; --n) inks.push_back(RandomPlainColor(random));
  for (const TColor color : {c.L, c.S, c.DC, c.P, c.BC})
    if (random.Percent(15)) inks.push_back(color);
  if (semi || random.Percent(10)) inks.push_back(c.K);
  if (random.Percent(10)) inks.push_back(c.T);
  return inks;
}

RandomCase MakeCase(Random& random, bool wide) {
  RandomCase made;
  ButtonRun& run = made.Run;
  run.Colors = RandomColors(random);
  run.Semi = random.Percent(40);
  if (run.Semi && random.Percent(10)) run.Colors.K = run.Colors.T;
  if (run.Semi && random.Percent(10)) run.Colors.P = run.Colors.T;
  run.Width = random.Percent(10) ? random.Between(-3, -1) : random.Between(0, 7);
  if (random.Percent(1)) run.Width = 20;
  int width = random.Below(25), height = random.Below(25);
  if (wide) {
    width = random.Between(50, 140);
    height = random.Between(1, 10);
    run.Width = std::min(run.Width, 4);
  }
  made.Source = RandomPicture(random, width, height, run.Colors.T, RandomInks(random, run.Colors, run.Semi));

  made.Progress = random.Percent(75);
  made.AbortBefore = random.Percent(4);
  const auto side = [&](int n) { return std::max(n + 2 * run.Width, 0); };
  const int pumps = side(width) * side(height) * std::max(run.Width + 2, 0);
  switch (random.Below(8)) {
    case 0:
      made.AbortAt = random.Between(1, 3);
      break;
    case 1:
      made.AbortAt = random.Between(1, pumps + 1);
      break;
    case 2:
      made.AbortAt = pumps - random.Between(-1, 2);
      break;
    default:
      break;
  }
  return made;
}

std::string Describe(const RandomCase& made) {
  const ButtonColors& c = made.Run.Colors;
  std::string text = "width " + std::to_string(made.Run.Width) + (made.Run.Semi ? " semi" : "") +
                     (made.Progress ? " progress" : "") + " abort at " + std::to_string(made.AbortAt) +
                     (made.AbortBefore ? " and before" : "");
  for (const auto& [name, color] : {std::pair{" T ", c.T},
                                    {" L ", c.L},
                                    {" S ", c.S},
                                    {" DC ", c.DC},
                                    {" P ", c.P},
                                    {" K ", c.K},
                                    {" BC ", c.BC}})
    text += name + ColorToString(color).toStdString();
  return text + "\nsource " + OraclePicture(made.Source).Text();
}

void Compare(unsigned seed, int cases, bool wide) {
  Random random(seed);
  for (int i = 0; i < cases; ++i) {
    const RandomCase made = MakeCase(random, wide);
    ASSERT_TRUE(SameAsOracle(made.Source, made.Run, made.Progress, made.AbortAt, made.AbortBefore))
        << "case " << i << " of seed " << seed << ": " << Describe(made);
  }
}
}  // namespace

class RandomButton3D : public testing::TestWithParam<int> {};

TEST_P(RandomButton3D, SmallPicturesAreDrawnAsByTheSlowReference) {
  Compare(static_cast<unsigned>(1000 + GetParam()), 1500, false);
}

TEST_P(RandomButton3D, WidePicturesAreDrawnAsByTheSlowReference) {
  Compare(static_cast<unsigned>(2000 + GetParam()), 200, true);
}

INSTANTIATE_TEST_SUITE_P(Shard, RandomButton3D, testing::Range(0, 8));

TEST(RandomButton3D, TheWidestRingsAreDrawnAsByTheSlowReference) {
  Random random(77);
  for (int i = 0; i < 30; ++i) {
    RandomCase made = MakeCase(random, i % 3 == 0);
    made.Run.Width = random.Between(8, 40);
    ASSERT_TRUE(SameAsOracle(made.Source, made.Run, true, 0)) << "case " << i << ": " << Describe(made);
  }
}

// Large pictures in which few pixels change from ring to ring: little noise, some letters, far from one
// another. Rings that cannot be seen, and keys, make rules hold where nothing changed just before.
class RandomSparseButton3D : public testing::TestWithParam<int> {};

TEST_P(RandomSparseButton3D, IsDrawnAsByTheSlowReference) {
  Random random(static_cast<unsigned>(2500 + GetParam()));
  for (int i = 0; i < 40; ++i) {
    RandomCase made;
    ButtonRun& run = made.Run;
    run.Colors = {clFuchsia, clRed, clBlue, clAqua, clYellow, clLime, clBlack};
    switch (random.Below(6)) {
      case 0:
        run.Colors.L = run.Colors.T;
        break;
      case 1:
        run.Colors.S = run.Colors.T;
        break;
      case 2:
        run.Colors.BC = run.Colors.T;
        break;
      default:
        break;
    }
    run.Semi = random.Percent(50);
    run.Width = random.Between(2, 9);
    const int width = random.Between(70, 330), height = random.Between(100, 220);
    made.Source = TBitmap(width, height);
    made.Source.Fill(run.Colors.T);
    for (int n = random.Between(1, 3); n > 0; --n) {
      // Often at the border of two words of 64 columns.
      const int x =
          random.Percent(50) ? random.Below(width) : 64 * random.Below(6) - run.Width + random.Between(-3, 3);
      const TBitmap part = RandomPicture(random, random.Between(1, 10), random.Between(1, 10), run.Colors.T,
                                         {clGreen, clTeal, run.Semi ? run.Colors.K : clNavy});
      made.Source.Draw(x, random.Between(-4, height), part);
    }
    made.Progress = i % 8 == 0;
    ASSERT_TRUE(SameAsOracle(made.Source, run, made.Progress, 0)) << "case " << i << ": " << Describe(made);
  }
}

// A patch of a few pixels on a tall picture: one pixel that changes may be all that changes far around.
TEST_P(RandomSparseButton3D, SmallPatchesAreDrawnAsByTheSlowReference) {
  Random random(static_cast<unsigned>(2600 + GetParam()));
  for (int i = 0; i < 600; ++i) {
    RandomCase made;
    ButtonRun& run = made.Run;
    run.Colors = {clFuchsia, clRed, clBlue, clAqua, clYellow, clLime, clBlack};
    if (random.Percent(60)) run.Colors.S = run.Colors.T;
    if (random.Percent(25)) run.Colors.L = run.Colors.T;
    if (random.Percent(50)) run.Colors.P = run.Colors.T;
    run.Semi = random.Percent(75);
    run.Width = random.Between(2, 5);
    made.Source = TBitmap(16, 180);
    made.Source.Fill(run.Colors.T);
    const int width = random.Between(1, 6), height = random.Between(1, 6), left = random.Below(12);
    const int keys = random.Between(0, 70), content = random.Between(5, 70);
    for (int y = 60; y < 60 + height; ++y)
      for (int x = left; x < left + width; ++x)
        if (random.Percent(keys))
          made.Source.SetPixel(x, y, run.Colors.K);
        else if (random.Percent(content))
          made.Source.SetPixel(x, y, clGreen);
    ASSERT_TRUE(SameAsOracle(made.Source, run, false, 0)) << "case " << i << ": " << Describe(made);
  }
}

INSTANTIATE_TEST_SUITE_P(Shard, RandomSparseButton3D, testing::Range(0, 8));

TEST(RandomButton3D, LargePicturesAreDrawnAsByTheSlowReference) {
  Random random(78);
  for (int i = 0; i < 4; ++i) {
    RandomCase made = MakeCase(random, false);
    made.Run.Width = i;
    made.Source =
        RandomPicture(random, 450 + 37 * i, 330 - 29 * i, made.Run.Colors.T, {clRed, made.Run.Colors.K});
    ASSERT_TRUE(SameAsOracle(made.Source, made.Run, i % 2 == 0, 0)) << "case " << i;
  }
}

TEST(RandomButton3D, CheckersAreMadeAsByTheSlowReference) {
  Random random(4711);
  for (int i = 0; i < 2000; ++i) {
    const ButtonColors c = RandomColors(random);
    const int width = random.Percent(10) ? random.Between(60, 140) : random.Below(25);
    TBitmap bitmap = RandomPicture(random, width, random.Below(16), c.T, {c.K, c.P, c.L});
    const OraclePicture before(bitmap);
    ASSERT_TRUE(VRXMakeBmpSemiTransparent(bitmap, c.S, c.K, c.DC));
    ASSERT_TRUE(Same(OracleSemiTransparent(before, c.S, c.K, c.DC), bitmap)) << "case " << i << before.Text();
  }
}
