// Random pictures and lists of colours: regions, and all that is built with them, against the slow reference.
#include "OracleRegion.h"
#include "RandomPictures.h"
#include "RecordingProgress.h"

namespace {
int RandomWidth(Random& random) { return random.Percent(15) ? random.Between(60, 140) : random.Below(25); }

// Transparent colours: some of the picture, some not, some that no pixel can be of; often several times.
std::vector<TColor> RandomList(Random& random, int count, const std::vector<TColor>& used) {
  std::vector<TColor> list;
  for (int i = 0; i < count; ++i) {
    const int kind = random.Below(100);
    if (kind < 60)
      list.push_back(random.Of(used));
    else if (kind < 75)
      list.push_back(RandomSpecialColor(random));
    else if (kind < 85 && !list.empty())
      list.push_back(random.Of(list));
    else
      list.push_back(RandomPlainColor(random));
  }
  return list;
}

std::vector<TColor> RandomPalette(Random& random, int count) {
  std::vector<TColor> palette{clWhite};
  while (static_cast<int>(palette.size()) < count) palette.push_back(RandomPlainColor(random));
  return palette;
}

std::string Describe(const TBitmap& picture, const std::vector<TColor>& list) {
  std::string text = "transparent";
  for (const TColor color : list) text += ' ' + ColorToString(color).toStdString();
  return text + "\npicture " + OraclePicture(picture).Text();
}

testing::AssertionResult SameRegions(const std::optional<SlowRegion>& expected,
                                     const std::optional<TRegion>& actual) {
  if (expected.has_value() != actual.has_value())
    return testing::AssertionFailure() << "there is " << (actual ? "a" : "no") << " region";
  return expected ? Same(*expected, *actual) : testing::AssertionSuccess();
}

void CompareRegion(Random& random, const TBitmap& picture, const std::vector<TColor>& list) {
  static const std::vector<int> scales{33, 50, 100};
  const int scale = random.Percent(80) ? random.Of(scales) : random.Between(0, 255);
  RecordingProgress slow, fast;
  const OraclePicture copy(picture);
  const auto expected = OracleCreateRegion(copy, list, scale, &slow);
  const auto actual = CreateRgnFromBitmap2(picture, list, scale, &fast);
  ASSERT_TRUE(SameRegions(expected, actual));
  ASSERT_EQ(slow.Percents(), fast.Percents());
  ASSERT_TRUE(Same(copy, picture));
  const auto silent = CreateRgnFromBitmap2(picture, list, scale, nullptr);
  ASSERT_EQ(silent.has_value(), actual.has_value());
  ASSERT_TRUE(!actual || *silent == *actual);
}
}  // namespace

class RandomRegion : public testing::TestWithParam<int> {};

TEST_P(RandomRegion, FewColorsGiveTheRegionOfTheSlowReference) {
  Random random(static_cast<unsigned>(3000 + GetParam()));
  for (int i = 0; i < 2500; ++i) {
    const std::vector<TColor> palette = RandomPalette(random, random.Between(2, 8));
    const TBitmap picture = RandomPicture(random, RandomWidth(random), random.Below(25), clWhite, palette);
    const std::vector<TColor> list = RandomList(random, random.Below(7), palette);
    ASSERT_NO_FATAL_FAILURE(CompareRegion(random, picture, list))
        << "case " << i << ": " << Describe(picture, list);
  }
}

TEST_P(RandomRegion, LongListsGiveTheRegionOfTheSlowReference) {
  Random random(static_cast<unsigned>(4000 + GetParam()));
  for (int i = 0; i < 250; ++i) {
    const std::vector<TColor> palette = RandomPalette(random, random.Between(2, 600));
    const TBitmap picture = RandomPicture(random, RandomWidth(random), random.Below(25), clWhite, palette);
    const int count = random.Percent(20) ? static_cast<int>(MaxTransparentColors) : random.Between(7, 501);
    const std::vector<TColor> list = RandomList(random, count, palette);
    ASSERT_NO_FATAL_FAILURE(CompareRegion(random, picture, list))
        << "case " << i << ": " << Describe(picture, list);
  }
}

TEST_P(RandomRegion, WindowsAndButtonsAreBuiltAsByTheSlowReference) {
  Random random(static_cast<unsigned>(5000 + GetParam()));
  for (int i = 0; i < 1000; ++i) {
    const std::vector<TColor> palette = RandomPalette(random, random.Between(2, 6));
    const TBitmap picture = RandomPicture(random, RandomWidth(random), random.Below(20), clWhite, palette);
    const std::vector<TColor> list = RandomList(random, random.Between(1, 4), palette);
    const bool button = random.Percent(50);
    const int style = button ? random.Between(-1, 3) : random.Between(-1, 7);
    SCOPED_TRACE((button ? "look " : "border ") + std::to_string(style) + ' ' + Describe(picture, list));
    RecordingProgress slow, fast;
    const OracleBuild expected = OracleBuildRegion(OraclePicture(picture), list, button, style, &slow);
    const TRegionBuild actual =
        button ? BuildButtonRegion(picture, list, static_cast<TRegionButton>(style), &fast)
               : BuildWindowRegion(picture, list, static_cast<TRegionBorder>(style), &fast);
    ASSERT_TRUE(SameRegions(expected.Region, actual.Region));
    ASSERT_TRUE(Same(expected.Border, actual.Border));
    ASSERT_TRUE(Same(expected.First, actual.First));
    ASSERT_TRUE(Same(expected.Second, actual.Second));
    ASSERT_EQ(slow.Percents(), fast.Percents());
  }
}

INSTANTIATE_TEST_SUITE_P(Shard, RandomRegion, testing::Range(0, 4));

TEST(RandomRegion, LargePicturesGiveTheRegionOfTheSlowReference) {
  Random random(79);
  for (int i = 0; i < 5; ++i) {
    const std::vector<TColor> palette = RandomPalette(random, 4);
    const TBitmap picture = RandomPicture(random, 700 - 41 * i, 500 + 13 * i, clWhite, palette);
    const auto region = CreateRgnFromBitmap2(picture, {clWhite, palette[1]}, 100, nullptr);
    ASSERT_TRUE(
        SameRegions(OracleCreateRegion(OraclePicture(picture), {clWhite, palette[1]}, 100, nullptr), region));
    ASSERT_TRUE(!region || TRegion::FromData(region->ToData()) == *region);
  }
}
