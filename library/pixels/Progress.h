// What the long pixel loops tell while they run, and where others get their turn meanwhile.
#pragma once
#include <cstdint>

class IVRXProgress {
 public:
  virtual ~IVRXProgress() = default;
  // The percentage reached, reported `times` times in a row.
  virtual void Report(int percent, std::int64_t times) = 0;
  // Stands for `times` calls in a row, one after each visited pixel, that let pending messages be processed;
  // nothing else happens between them. May return early once the abort flag is set, and may throw to end the
  // run: work that is not finished goes, whatever was there before stays.
  virtual void ProcessMessages(std::int64_t times) = 0;
  // How many of the next `times` pixels can be computed at once because nobody looks at the picture between
  // them; at least 1.
  virtual std::int64_t Unwatched(std::int64_t times) const { return times; }
};

// numerator / denominator to the nearest whole number, halves to the even one.
constexpr std::int64_t RoundHalfEven(std::int64_t numerator, std::int64_t denominator) {
  if (denominator < 0) {
    numerator = -numerator;
    denominator = -denominator;
  }
  std::int64_t floor = numerator / denominator;
  if (numerator % denominator < 0) --floor;
  const std::int64_t twice = 2 * (numerator - floor * denominator);
  return floor + (twice > denominator || (twice == denominator && floor % 2 != 0) ? 1 : 0);
}
