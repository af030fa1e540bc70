// How often a run lets others have their turn.
#include "rtl/Clock.h"
#include "tests/package/PixelDialogTest.h"

namespace {
// Steps of a run at which a posted event was handled.
std::vector<int> HandledAt(int steps, const std::function<void()>& beforeStep) {
  TVRXProgressBar bar(0);
  RunProgress progress(bar);
  QObject context;
  std::vector<int> handled;
  int step = 0;
  std::function<void()> post = [&] {
    QMetaObject::invokeMethod(
        &context, [&] { handled.push_back(step); }, Qt::QueuedConnection);
  };
  while (++step <= steps) {
    post();
    beforeStep();
    progress.ProcessMessages(1);
    QCoreApplication::removePostedEvents(&context);
  }
  return handled;
}
}  // namespace

TEST(RunProgress, HandlesEventsWhenItsIntervalIsOver) {
  std::int64_t now = 1000;
  const TClockOverride clock([&] { return now; });
  EXPECT_EQ(HandledAt(10, [&] { now += 5; }), (std::vector{3, 6, 9}));
  EXPECT_EQ(HandledAt(5, [&] { now += 14; }), (std::vector{2, 4}));
  EXPECT_EQ(HandledAt(3, [&] { now += 100; }), (std::vector{1, 2, 3}));
  EXPECT_EQ(HandledAt(100, [] {}), std::vector<int>());
}

TEST(RunProgress, AnIntervalOfZeroHandlesThemAfterEveryStep) {
  const pixeltest::RunSteps steps;
  const TClockOverride clock([] { return 0; });
  EXPECT_EQ(HandledAt(3, [] {}), (std::vector{1, 2, 3}));
}

TEST(RunProgress, StepsThatNobodySeesAreTakenTogether) {
  TVRXProgressBar bar(0);
  const RunProgress progress(bar);
  EXPECT_EQ(progress.Unwatched(1), 1);
  EXPECT_EQ(progress.Unwatched(70000), 70000);
  EXPECT_LT(progress.Unwatched(std::int64_t{1} << 40), std::int64_t{1} << 40);
  const pixeltest::RunSteps steps;
  EXPECT_EQ(progress.Unwatched(70000), 1);
}

TEST(RunProgress, TheMachinesClockGoesOn) {
  const std::int64_t before = ClockMilliseconds();
  {
    const TClockOverride clock([] { return -7; });
    EXPECT_EQ(ClockMilliseconds(), -7);
  }
  EXPECT_GE(ClockMilliseconds(), before);
}
