#include "RecordingProgress.h"

PercentRuns Joined(PercentRuns first, const PercentRuns& second) {
  for (const PercentRun& run : second) {
    if (!first.empty() && first.back().Percent == run.Percent)
      first.back().Times += run.Times;
    else
      first.push_back(run);
  }
  return first;
}

void RecordingProgress::Report(int percent, std::int64_t times) {
  EXPECT_GE(times, 0);
  if (times <= 0) return;
  percents_ = Joined(std::move(percents_), {{percent, times}});
  pumpsAtReports_.push_back(pumps_);
}

void RecordingProgress::ProcessMessages(std::int64_t times) {
  EXPECT_GE(times, 0);
  for (std::int64_t i = 0; i < times; ++i) {
    if (++pumps_ == abortAt_) VRX3DEffectAbort = true;
    // Nothing more happens for a run that is to end: it looks at the flag after every single call.
    if (VRX3DEffectAbort) return;
  }
}
