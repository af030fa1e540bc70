// What somebody sees who looks at the picture while its border is painted: after every point what the slow
// reference has painted by then.
#include "OracleRegion.h"
#include "RandomPictures.h"

namespace {
const TRect Field{-12, -12, 90, 40};

// What there is when messages are processed.
struct Moment {
  int Percent = 0;
  OraclePicture Picture;
};

class OracleMoments : public IVRXProgress {
 public:
  explicit OracleMoments(const OraclePicture& picture) : picture_(picture) {}
  void Report(int percent, std::int64_t) override { percent_ = percent; }
  void ProcessMessages(std::int64_t) override { moments.push_back({percent_, picture_}); }
  std::vector<Moment> moments;

 private:
  const OraclePicture& picture_;
  int percent_ = 0;
};

struct Ended {};

// Looks after every `step` points, after random numbers of them when that is 0, and ends the run at a look at
// or behind the point `endAt`.
class Watcher : public IVRXProgress {
 public:
  Watcher(Random& random, const TBitmap& picture, const std::vector<Moment>& moments, int step, int endAt)
      : random_(random), picture_(picture), moments_(moments), step_(step), endAt_(endAt) {}
  std::int64_t Unwatched(std::int64_t times) const override {
    return std::min<std::int64_t>(times, step_ > 0 ? step_ : random_.Between(1, 70));
  }
  void Report(int percent, std::int64_t) override { percent_ = percent; }
  void ProcessMessages(std::int64_t times) override {
    ASSERT_GE(times, 1);
    looks.push_back(times);
    points += static_cast<std::size_t>(times);
    ASSERT_LE(points, moments_.size());
    EXPECT_EQ(percent_, moments_[points - 1].Percent) << "after point " << points;
    EXPECT_TRUE(Same(moments_[points - 1].Picture, picture_)) << "after point " << points;
    if (testing::Test::HasFailure() || points >= endAt_) throw Ended();
  }
  std::size_t points = 0;
  std::vector<std::int64_t> looks;

 private:
  Random& random_;
  const TBitmap& picture_;
  const std::vector<Moment>& moments_;
  int step_, percent_ = -1;
  std::size_t endAt_;
};

void Compare(Random& random, int step) {
  const int width = random.Percent(15) ? random.Between(60, 68) : random.Below(15), height = random.Below(12);
  const TBitmap source = RandomPicture(random, width, height, clAqua, {clRed, clBlack, clWhite, clGray});
  SlowRegion slow(Field);
  TRegion region;
  const auto add = [&](const TRect& r) {
    slow.Add(r);
    region = region.United(TRegion(r));
  };
  if (random.Percent(50)) {
    const int density = random.Between(5, 95);
    for (int y = -2; y < height + 2; ++y)
      for (int x = -2; x < width + 2; ++x)
        if (random.Percent(density)) add({x, y, x + 1, y + 1});
  } else {
    for (const TRect& r : RandomRects(random, random.Between(0, 8), {-3, -3, width + 3, height + 3})) add(r);
  }
  const int painter = random.Between(2, 3), style = random.Between(0, 5);
  const TRegionPhase phase{random.Between(0, 100), random.Between(0, 100)};
  SCOPED_TRACE("painter " + std::to_string(painter) + " style " + std::to_string(style) + " picture " +
               OraclePicture(source).Text() + " rects " + testing::PrintToString(RectList(region)));

  OraclePicture expected(source);
  OracleMoments oracle(expected);
  OraclePaintBorder(painter, expected, &slow, style, phase, &oracle);
  const auto points = static_cast<int>(oracle.moments.size());
  const int endAt = random.Percent(30) ? random.Between(1, points) : points + 1;
  TBitmap picture;
  picture.Assign(&source);
  Watcher watcher(random, picture, oracle.moments, step, endAt);
  const auto paint = painter == 2 ? PaintRGNBorder2 : PaintRGNBorder3;
  try {
    paint(picture, &region, static_cast<TRegionBorder>(style), phase, &watcher);
    EXPECT_EQ(watcher.points, oracle.moments.size());
  } catch (const Ended&) {
    EXPECT_GE(watcher.points, static_cast<std::size_t>(endAt));
  }
  if (step == 1) {
    EXPECT_EQ(watcher.looks, std::vector<std::int64_t>(watcher.points, 1));
  }
}
}  // namespace

class WatchedBorder : public testing::TestWithParam<int> {};

TEST_P(WatchedBorder, IsAfterEveryPointThatOfTheSlowReference) {
  Random random(static_cast<unsigned>(8000 + GetParam()));
  for (int i = 0; i < 250; ++i) {
    Compare(random, 1);
    ASSERT_FALSE(HasFailure()) << "case " << i;
  }
}

TEST_P(WatchedBorder, OfBlocksIsThatOfTheSlowReferenceAtTheirEnds) {
  Random random(static_cast<unsigned>(9000 + GetParam()));
  for (int i = 0; i < 750; ++i) {
    Compare(random, 0);
    ASSERT_FALSE(HasFailure()) << "case " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Shard, WatchedBorder, testing::Range(0, 4));
