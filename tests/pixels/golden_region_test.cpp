// Known regions and borders.
#include "GoldenCases.h"
#include "OracleRegion.h"

namespace {
// A list without colours is refused before anything is built; there is nothing to compare.
std::vector<GoldenCase> Builds() {
  std::vector<GoldenCase> cases = GoldenCases("region", "build");
  std::erase_if(cases, [](const GoldenCase& c) { return c.Bool("refused"); });
  return cases;
}

// The phases that are run, one after the other.
PercentRuns PercentsOf(const GoldenCase& c) {
  PercentRuns all;
  for (const char* phase : {"build", "border", "first", "second"})
    all = Joined(std::move(all), RunsOf(c["percents"].toObject()[QLatin1String(phase)]));
  return all;
}

void CheckRegion(const GoldenCase& c, const TRegion* region) {
  const QJsonObject expected = c["region"].toObject();
  ASSERT_EQ(region == nullptr, c["region"].isNull());
  if (!region) return;
  EXPECT_EQ(RectList(*region), RectsOf(expected[QStringLiteral("rects")]));
  EXPECT_EQ(region->Bounds(), RectsOf(QJsonArray{expected[QStringLiteral("box")]}).front());
  // The platform calls a region of one rectangle simple (2) and all others complex (3).
  EXPECT_EQ(RectList(*region).size() == 1 ? 2 : 3, expected[QStringLiteral("kind")].toInt());
}

void CheckPicture(const GoldenCase& c, const char* key, const TBitmap& actual) {
  if (c[key].isNull())
    EXPECT_TRUE(actual.Empty()) << key;
  else
    EXPECT_TRUE(Same(c.Picture(key), actual)) << key;
}
}  // namespace

class GoldenBuild : public testing::TestWithParam<GoldenCase> {};

TEST_P(GoldenBuild, GivesTheKnownRegionAndPictures) {
  const GoldenCase& c = GetParam();
  const TBitmap picture = c.Picture("pic");
  RecordingProgress progress;
  const int style = c.Int("style");
  const TRegionBuild build =
      c.Bool("button")
          ? BuildButtonRegion(picture, c.Colors("colours"), static_cast<TRegionButton>(style), &progress)
          : BuildWindowRegion(picture, c.Colors("colours"), static_cast<TRegionBorder>(style), &progress);
  CheckRegion(c, build.Region ? &*build.Region : nullptr);
  EXPECT_EQ(build.RegionData().toHex(), c["dataHex"].toString().toLatin1());
  EXPECT_EQ(build.RegionData().size(), c.Int("dataSize"));
  CheckPicture(c, "border", build.Border);
  CheckPicture(c, "first", build.First);
  CheckPicture(c, "second", build.Second);
  EXPECT_EQ(progress.Percents(), PercentsOf(c));
  EXPECT_TRUE(Same(c.Picture("pic"), picture));
}

INSTANTIATE_TEST_SUITE_P(Known, GoldenBuild, testing::ValuesIn(Builds()), GoldenName);

class GoldenPaint : public testing::TestWithParam<GoldenCase> {};

TEST_P(GoldenPaint, GivesTheKnownPicture) {
  const GoldenCase& c = GetParam();
  TRegion region;
  const TRegion* given = c["region"].isNull() ? nullptr : &region;
  for (const TRect& r : RectsOf(c["region"].toObject()[QStringLiteral("rects")]))
    region = region.United(TRegion(r));
  if (given) CheckRegion(c, given);
  TBitmap picture = c.Picture("pic");
  RecordingProgress progress;
  const auto paint = c.Int("painter") == 2 ? PaintRGNBorder2 : PaintRGNBorder3;
  paint(picture, given, static_cast<TRegionBorder>(c.Int("style")),
        TRegionPhase{.Scale = c.Int("scale"), .Offset = c.Int("offset")}, &progress);
  EXPECT_TRUE(Same(c.Picture("out"), picture));
  EXPECT_EQ(progress.Percents(), RunsOf(c["percents"]));
}

INSTANTIATE_TEST_SUITE_P(Known, GoldenPaint, testing::ValuesIn(GoldenCases("region", "paint")), GoldenName);

TEST(GoldenRegions, TheDataLeadBackToTheRegion) {
  for (const GoldenCase& c : Builds()) {
    SCOPED_TRACE(qPrintable(c.Id()));
    const QByteArray data = QByteArray::fromHex(c["dataHex"].toString().toLatin1());
    ASSERT_EQ(data.isEmpty(), c["region"].isNull());
    if (data.isEmpty()) continue;
    const TRegion region = TRegion::FromData(data);
    CheckRegion(c, &region);
    EXPECT_EQ(region.ToData(), data);
  }
}

TEST(GoldenRegions, TheRegionAloneIsTheSame) {
  for (const GoldenCase& c : Builds()) {
    SCOPED_TRACE(qPrintable(c.Id()));
    RecordingProgress progress;
    const auto region =
        CreateRgnFromBitmap2(c.Picture("pic"), c.Colors("colours"), c.Int("scale"), &progress);
    CheckRegion(c, region ? &*region : nullptr);
    EXPECT_EQ(progress.Percents(), RunsOf(c["percents"].toObject()[QStringLiteral("build")]));
  }
}

// The slow reference stands beside the library in the random tests; what it is worth shows here.
TEST(GoldenRegions, TheSlowReferenceBuildsThemToo) {
  for (const GoldenCase& c : Builds()) {
    SCOPED_TRACE(qPrintable(c.Id()));
    RecordingProgress progress;
    const OracleBuild build = OracleBuildRegion(OraclePicture(c.Picture("pic")), c.Colors("colours"),
                                                c.Bool("button"), c.Int("style"), &progress);
    ASSERT_EQ(build.Region.has_value(), !c["region"].isNull());
    if (build.Region) {
      EXPECT_EQ(build.Region->Rects(), RectsOf(c["region"].toObject()[QStringLiteral("rects")]));
    }
    EXPECT_TRUE(Same(build.Border, c.Picture("border")));
    if (c.Bool("button")) {
      EXPECT_TRUE(Same(build.First, c.Picture("first")));
      EXPECT_TRUE(Same(build.Second, c.Picture("second")));
    }
    EXPECT_EQ(progress.Percents(), PercentsOf(c));
  }
}

TEST(GoldenRegions, TheSlowReferencePaintsThemToo) {
  for (const GoldenCase& c : GoldenCases("region", "paint")) {
    SCOPED_TRACE(qPrintable(c.Id()));
    SlowRegion region({-40, -40, 60, 60});
    for (const TRect& r : RectsOf(c["region"].toObject()[QStringLiteral("rects")])) region.Add(r);
    OraclePicture picture(c.Picture("pic"));
    RecordingProgress progress;
    OraclePaintBorder(c.Int("painter"), picture, c["region"].isNull() ? nullptr : &region, c.Int("style"),
                      TRegionPhase{.Scale = c.Int("scale"), .Offset = c.Int("offset")}, &progress);
    EXPECT_TRUE(Same(picture, c.Picture("out")));
    EXPECT_EQ(progress.Percents(), RunsOf(c["percents"]));
  }
}
