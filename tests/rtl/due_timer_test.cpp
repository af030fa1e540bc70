// What is to be done at a time.
#include "rtl/DueTimer.h"

#include <gtest/gtest.h>

#include <QString>
#include <memory>

#include "rtl/Clock.h"

namespace {
struct Time {
  std::int64_t now = 1000;
  TClockOverride clock{[this] { return now; }};
};
}  // namespace

TEST(DueTimer, DoesWhatIsDueOnce) {
  Time time;
  std::string done;
  TDueTimer late([&] { done += "late "; }), soon([&] { done += "soon "; });
  late.Wait(500);
  soon.Wait(200);
  EXPECT_TRUE(soon.IsWaiting());
  time.now += 199;
  EXPECT_EQ(TDueTimer::RunDue(), 0);
  time.now += 1;
  EXPECT_EQ(TDueTimer::RunDue(), 1);
  EXPECT_FALSE(soon.IsWaiting());
  EXPECT_EQ(TDueTimer::RunDue(), 0);
  EXPECT_EQ(done, "soon ");
  time.now += 1000;
  EXPECT_EQ(TDueTimer::RunDue(), 1);
  EXPECT_EQ(done, "soon late ");
}

TEST(DueTimer, TheLastWaitCounts) {
  Time time;
  int done = 0;
  TDueTimer timer([&] { ++done; });
  timer.Wait(10);
  timer.Wait(300);
  time.now += 50;
  EXPECT_EQ(TDueTimer::RunDue(), 0);
  timer.Cancel();
  EXPECT_FALSE(timer.IsWaiting());
  time.now += 5000;
  EXPECT_EQ(TDueTimer::RunDue(), 0);
  EXPECT_EQ(done, 0);
}

TEST(DueTimer, MayBeFreedOrSetAgainByWhatIsDone) {
  Time time;
  int done = 0;
  std::unique_ptr<TDueTimer> own, other;
  own = std::make_unique<TDueTimer>([&] {
    ++done;
    own.reset();
    other.reset();
  });
  other = std::make_unique<TDueTimer>([&] { done += 100; });
  TDueTimer again([&] {
    if (++done < 5) again.Wait(10);
  });
  own->Wait(5);
  other->Wait(5);
  again.Wait(5);
  time.now += 5;
  EXPECT_EQ(TDueTimer::RunDue(), 2);
  EXPECT_EQ(done, 2);
  time.now += 10;
  EXPECT_EQ(TDueTimer::RunDue(), 1);
  EXPECT_TRUE(again.IsWaiting());
}

TEST(DueTimer, WhatIsDoneMayAskForWhatIsDue) {
  Time time;
  std::string done;
  TDueTimer second([&] { done += "second "; });
  TDueTimer first([&] {
    TDueTimer::RunDue();
    done += "first ";
  });
  first.Wait(1);
  second.Wait(1);
  time.now += 1;
  TDueTimer::RunDue();
  EXPECT_EQ(done, "second first ");
}
