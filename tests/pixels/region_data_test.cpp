// Region data: what is written, what is read, and what is refused.
#include <QtEndian>

#include "OracleRegion.h"
#include "RandomPictures.h"

namespace {
TRegion United(const std::vector<TRect>& rects) {
  TRegion region;
  for (const TRect& r : rects) region = region.United(TRegion(r));
  return region;
}

QByteArray Numbers(const std::vector<std::int32_t>& numbers) {
  QByteArray data;
  for (const std::int32_t n : numbers) {
    char bytes[4];
    qToLittleEndian(n, bytes);
    data.append(bytes, 4);
  }
  return data;
}

// Data of the rectangles as they are, in their order.
QByteArray DataOf(const std::vector<TRect>& rects) {
  const auto count = static_cast<std::int32_t>(rects.size());
  std::vector<std::int32_t> numbers{32, 1, count, count * 16, 0, 0, 0, 0};
  for (const TRect& r : rects) numbers.insert(numbers.end(), {r.Left, r.Top, r.Right, r.Bottom});
  return Numbers(numbers);
}

QByteArray With(QByteArray data, qsizetype number, std::int32_t value) {
  qToLittleEndian(value, data.data() + number * 4);
  return data;
}

void ExpectRefused(const QByteArray& data, const char* why) {
  try {
    const TRegion region = TRegion::FromData(data);
    ADD_FAILURE() << why << " was accepted as " << testing::PrintToString(RectList(region));
  } catch (const EInvalidRegion& e) {
    EXPECT_TRUE(e.Message().endsWith(u'.')) << why << ": " << e.what();
  }
}

const std::vector<TRect> Comb{{0, 0, 9, 2}, {0, 2, 2, 5}, {4, 2, 6, 5}, {8, 2, 9, 5}, {-3, 7, 1, 8}};
}  // namespace

TEST(RegionData, AHeaderAndTheRectangles) {
  EXPECT_EQ(TRegion(TRect{-1, 2, 300, 70000}).ToData(),
            Numbers({32, 1, 1, 16, -1, 2, 300, 70000, -1, 2, 300, 70000}));
  EXPECT_EQ(United(Comb).ToData().left(32), Numbers({32, 1, 5, 80, -3, 0, 9, 8}));
  EXPECT_EQ(United(Comb).ToData().mid(32), DataOf(Comb).mid(32));
}

TEST(RegionData, AnEmptyRegionIsTheHeaderAlone) {
  EXPECT_EQ(TRegion().ToData(), Numbers({32, 1, 0, 0, 0, 0, 0, 0}));
  EXPECT_TRUE(TRegion::FromData(TRegion().ToData()).Empty());
}

TEST(RegionData, WhatIsWrittenIsReadBack) {
  Random random(11);
  for (int i = 0; i < 1500; ++i) {
    const TRegion region = United(RandomRects(random, random.Between(0, 25), {-30, -30, 50, 50}));
    const QByteArray data = region.ToData();
    ASSERT_EQ(data.size(), static_cast<qsizetype>(32 + 16 * region.Rects().size()));
    const TRegion read = TRegion::FromData(data);
    ASSERT_EQ(read, region);
    ASSERT_EQ(read.Bounds(), region.Bounds());
    ASSERT_EQ(read.ToData(), data);
  }
}

TEST(RegionData, RectanglesInAnyOrderAreUnited) {
  Random random(12);
  const TRect field{-20, -20, 40, 40};
  for (int i = 0; i < 1500; ++i) {
    const std::vector<TRect> rects = RandomRects(random, random.Between(0, 30), field);
    SlowRegion slow(field);
    for (const TRect& r : rects) slow.Add(r);
    ASSERT_TRUE(Same(slow, TRegion::FromData(DataOf(rects)))) << testing::PrintToString(rects);
  }
}

// Bands in order, but cut more often than needed, touching, or overlapping the next one.
TEST(RegionData, BandsThatAreNotInTheirOneFormAreUnited) {
  const std::vector<TRect> square{{0, 0, 4, 4}};
  for (const std::vector<TRect>& rects : {std::vector<TRect>{{0, 0, 4, 2}, {0, 2, 4, 4}},
                                          {{0, 0, 2, 4}, {2, 0, 4, 4}},
                                          {{0, 0, 4, 3}, {0, 2, 4, 4}},
                                          {{0, 0, 4, 1}, {0, 1, 4, 2}, {0, 2, 4, 3}, {0, 3, 4, 4}},
                                          {{0, 2, 4, 4}, {0, 0, 4, 2}},
                                          {{2, 0, 4, 4}, {0, 0, 2, 4}},
                                          {{0, 0, 2, 4}, {1, 0, 4, 4}},
                                          {{0, 0, 4, 4}, {0, 0, 4, 4}},
                                          {{0, 0, 2, 4}, {2, 0, 4, 3}, {2, 3, 4, 4}},
                                          {{0, 0, 2, 3}, {2, 0, 4, 4}, {0, 3, 2, 4}}})
    EXPECT_EQ(RectList(TRegion::FromData(DataOf(rects))), square) << testing::PrintToString(rects);
  const std::vector<TRect> two{{0, 0, 2, 4}, {3, 0, 4, 4}};
  EXPECT_EQ(RectList(TRegion::FromData(DataOf({{0, 0, 2, 2}, {3, 0, 4, 2}, {0, 2, 2, 4}, {3, 2, 4, 4}}))),
            two);
}

TEST(RegionData, TheBoundsOfTheHeaderDoNotMatter) {
  QByteArray data = DataOf(Comb);
  for (int number = 4; number < 8; ++number) data = With(data, number, 123456789 * (number - 5));
  EXPECT_EQ(TRegion::FromData(data).ToData(), United(Comb).ToData());
}

// Some writers leave the byte size out.
TEST(RegionData, AByteSizeOfZeroIsAccepted) {
  EXPECT_EQ(TRegion::FromData(With(DataOf(Comb), 3, 0)), United(Comb));
}

TEST(RegionData, EveryOtherLengthIsRefused) {
  const QByteArray data = DataOf(Comb);
  for (qsizetype length = 0; length < data.size(); ++length) ExpectRefused(data.left(length), "a cut");
  for (int more = 1; more <= 40; ++more) ExpectRefused(data + QByteArray(more, '\0'), "more");
  ExpectRefused(QByteArray(), "nothing");
}

TEST(RegionData, AnotherHeaderIsRefused) {
  const QByteArray data = DataOf(Comb);
  for (const std::int32_t n : {0, 31, 33, -32, 0x20000000}) ExpectRefused(With(data, 0, n), "a header size");
  for (const std::int32_t n : {0, 2, -1, 0x01000000}) ExpectRefused(With(data, 1, n), "a kind");
  for (const std::int32_t n : {0, 4, 6, -5, -1, INT32_MAX, INT32_MIN, 0x10000005})
    ExpectRefused(With(data, 2, n), "a count");
  for (const std::int32_t n : {1, 79, 81, 96, -80, INT32_MAX, INT32_MIN})
    ExpectRefused(With(data, 3, n), "a byte size");
}

TEST(RegionData, EmptyAndInvertedRectanglesAreRefused) {
  for (const TRect& r : {TRect{1, 1, 1, 5}, TRect{1, 1, 5, 1}, TRect{5, 1, 1, 5}, TRect{1, 5, 5, 1}, TRect{},
                         TRect{INT32_MAX, 0, INT32_MIN, 5}}) {
    ExpectRefused(DataOf({r}), "an empty rectangle");
    ExpectRefused(DataOf({{0, 0, 9, 1}, r, {0, 9, 9, 10}}), "an empty rectangle among others");
  }
}

TEST(RegionData, CoordinatesBeyondAllScreensAreRefused) {
  const std::int32_t far = 1 << 27;
  EXPECT_EQ(TRegion::FromData(DataOf({{-far, -far, far, far}})).Bounds(), (TRect{-far, -far, far, far}));
  for (const TRect& r : {TRect{-far - 1, 0, 1, 1}, TRect{0, -far - 1, 1, 1}, TRect{0, 0, far + 1, 1},
                         TRect{0, 0, 1, far + 1}, TRect{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX}}) {
    ExpectRefused(DataOf({r}), "a far rectangle");
    ExpectRefused(DataOf({{0, 0, 1, 1}, r}), "a far rectangle beside another");
  }
}

TEST(RegionData, AnyBytesAreReadOrRefused) {
  Random random(13);
  int read = 0, refused = 0;
  for (int i = 0; i < 20000; ++i) {
    QByteArray data = DataOf(RandomRects(random, random.Between(0, 8), {-20, -20, 30, 30}));
    for (int n = random.Between(1, 4); n > 0; --n) {
      // The header decides most; the rest is mostly rectangles.
      const int at = random.Percent(25) ? random.Below(32) : random.Below(static_cast<int>(data.size()));
      data[at] =
          static_cast<char>(random.Percent(50) ? random.Below(256) : data[at] ^ (1 << random.Below(8)));
    }
    if (random.Percent(10)) data.resize(random.Below(static_cast<int>(data.size()) + 1));
    try {
      const TRegion region = TRegion::FromData(data);
      ++read;
      ASSERT_EQ(TRegion::FromData(region.ToData()), region);
      for (const TRect& r : region.Rects()) ASSERT_TRUE(!r.Empty() && region.Contains(r.Left, r.Top));
    } catch (const EInvalidRegion&) {
      ++refused;
    }
  }
  EXPECT_GT(read, 1000);
  EXPECT_GT(refused, 1000);
}

TEST(RegionData, NoiseIsRefused) {
  Random random(14);
  for (int i = 0; i < 5000; ++i) {
    QByteArray data(random.Below(200), '\0');
    for (char& c : data) c = static_cast<char>(random.Below(256));
    ExpectRefused(data, "noise");
  }
}
