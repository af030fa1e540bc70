// Writes down what a pixel routine tells while it runs, and ends runs at a chosen moment.
#pragma once
#include <gtest/gtest.h>

#include <ostream>
#include <vector>

#include "library/pixels/Button3D.h"

struct PercentRun {
  int Percent = 0;
  std::int64_t Times = 0;
  bool operator==(const PercentRun&) const = default;
};
inline std::ostream& operator<<(std::ostream& out, const PercentRun& run) {
  return out << run.Percent << "x" << run.Times;
}
using PercentRuns = std::vector<PercentRun>;
// One list after the other; equal neighbours become one run.
PercentRuns Joined(PercentRuns first, const PercentRuns& second);

class RecordingProgress : public IVRXProgress {
 public:
  // The abort flag is set while messages are processed for the `abortAt`-th time; 0 never sets it.
  explicit RecordingProgress(std::int64_t abortAt = 0) : abortAt_(abortAt) {}

  void Report(int percent, std::int64_t times) override;
  void ProcessMessages(std::int64_t times) override;

  const PercentRuns& Percents() const { return percents_; }
  std::int64_t Pumps() const { return pumps_; }
  // For every report, how often messages had been processed before it.
  const std::vector<std::int64_t>& PumpsAtReports() const { return pumpsAtReports_; }

 private:
  std::int64_t abortAt_;
  std::int64_t pumps_ = 0;
  PercentRuns percents_;
  std::vector<std::int64_t> pumpsAtReports_;
};

// The abort flag has a value for the length of a test and is cleared afterwards.
class AbortFlag {
 public:
  explicit AbortFlag(bool value = false) { VRX3DEffectAbort = value; }
  ~AbortFlag() { VRX3DEffectAbort = false; }
  AbortFlag(const AbortFlag&) = delete;
  AbortFlag& operator=(const AbortFlag&) = delete;
};
