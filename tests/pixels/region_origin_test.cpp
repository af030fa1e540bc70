// What results still tell of what they were made from.
#include "library/pixels/RegionOrigin.h"

#include "Drawn.h"
#include "OracleRegion.h"
#include "RandomPictures.h"

TEST(RegionOrigin, TheColoursLeadToTheRegion) {
  Random random(1);
  int found = 0;
  for (int i = 0; i < 2000; ++i) {
    const std::vector<TColor> inks{clRed, clBlack, clWhite, clGray, clLime};
    const TBitmap picture = RandomPicture(random, random.Between(1, 70), random.Between(1, 20), clAqua, inks);
    std::vector<TColor> transparent{clAqua};
    for (const TColor ink : inks)
      if (random.Percent(30)) transparent.push_back(ink);
    const TRegionBuild build = BuildWindowRegion(picture, transparent, TRegionBorder::None, nullptr);
    if (!build.Region) continue;
    const std::vector<TColor> colors = TransparentColorsOf(picture, *build.Region);
    for (const TColor color : colors)
      EXPECT_NE(std::ranges::find(transparent, color), transparent.end()) << "case " << i;
    EXPECT_EQ(CreateRgnFromBitmap2(picture, colors, 100, nullptr), build.Region) << "case " << i;
    found += !colors.empty();
  }
  EXPECT_GT(found, 1000);
}

TEST(RegionOrigin, NoColoursAreNamedThatLeadElsewhere) {
  const TBitmap picture = Drawn({"##..", "#.#.", "...."}).ToBitmap();
  EXPECT_TRUE(TransparentColorsOf(picture, TRegion(TRect{0, 0, 1, 1})).empty());
  EXPECT_TRUE(TransparentColorsOf(picture, TRegion(TRect{-5, -5, 30, 30})).empty());
  EXPECT_TRUE(TransparentColorsOf(picture, TRegion()).empty());
  EXPECT_TRUE(TransparentColorsOf(TBitmap(), TRegion(TRect{0, 0, 1, 1})).empty());
}

TEST(RegionOrigin, MoreColoursThanAListHoldsAreNone) {
  TBitmap picture(520, 2);
  picture.Fill(clRed);
  for (int x = 0; x < 502; ++x) picture.SetPixel(x, 0, RGBColor(static_cast<unsigned>(x % 256), 1, x / 256));
  const auto colors = [&](int outside) {
    const TRegion region = TRegion(TRect{outside, 0, 519, 1}).United(TRegion(TRect{0, 1, 519, 2}));
    return TransparentColorsOf(picture, region).size();
  };
  EXPECT_EQ(colors(502), 0u);
  EXPECT_EQ(colors(501), 501u);
}

TEST(RegionOrigin, TheStyleThatIsFoundPaintsThePictureAsItIs) {
  Random random(2);
  for (int i = 0; i < 500; ++i) {
    const TBitmap picture = RandomPicture(random, 40, 15, clAqua, {clRed, clGreen});
    const auto style = static_cast<TRegionBorder>(random.Between(0, 5));
    const TRegionBuild build = BuildWindowRegion(picture, {clAqua}, style, nullptr);
    if (!build.Region) continue;
    const TRegionBorder found = BorderStyleOf(build.Border, *build.Region);
    EXPECT_EQ(found == TRegionBorder::None, style == TRegionBorder::None) << "case " << i;
    TBitmap again;
    again.Assign(&build.Border);
    PaintRGNBorder2(again, &*build.Region, found, {}, nullptr);
    EXPECT_TRUE(again == build.Border) << "case " << i;
  }
}

TEST(RegionOrigin, TheLookOfAButtonIsFound) {
  const TBitmap picture = Drawn({".####.", "######", "######", "######", ".####."}).ToBitmap();
  for (const TRegionButton look : {TRegionButton::Win31, TRegionButton::Win40, TRegionButton::Simple}) {
    const TRegionBuild build = BuildButtonRegion(picture, {clFuchsia}, look, nullptr);
    EXPECT_EQ(ButtonLookOf(build.Border, build.First, *build.Region), look);
  }
  EXPECT_EQ(ButtonLookOf(picture, TBitmap(6, 5), TRegion(TRect{0, 0, 4, 4})), std::nullopt);
}
