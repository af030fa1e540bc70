// Regions: sets of pixels, kept as banded rectangles.
//
// A band is a row of rectangles of the same top and bottom, from left to right with room between them. Bands
// go from top to bottom; touching bands with the same spans are one. A set of pixels has exactly one such
// form, so equal regions have equal bytes. Left and top belong to a rectangle, right and bottom do not.
#pragma once
#include <QByteArray>
#include <QRect>
#include <span>
#include <vector>

#include "rtl/Exceptions.h"
#include "vcl/LargeMemory.h"

struct TRect {
  std::int32_t Left = 0, Top = 0, Right = 0, Bottom = 0;
  bool operator==(const TRect&) const = default;
  bool Empty() const { return Left >= Right || Top >= Bottom; }
};

// Bytes that are not region data; the text says what is wrong with them.
class EInvalidRegion : public Exception {
 public:
  using Exception::Exception;
};

class TRegion {
 public:
  TRegion() = default;
  explicit TRegion(const TRect& rect);

  bool Empty() const { return rects_.empty(); }
  std::span<const TRect> Rects() const { return rects_; }
  // The smallest rectangle around everything; (0, 0, 0, 0) when empty.
  TRect Bounds() const { return bounds_; }
  bool Contains(std::int32_t x, std::int32_t y) const;
  // Everything that is in one of the two.
  TRegion United(const TRegion& other) const;
  bool operator==(const TRegion& other) const { return rects_ == other.rects_; }

  // The platform's region data: a header of 32 bytes (its size, kind 1, number of rectangles, their size in
  // bytes, bounds), then the rectangles; all numbers little-endian, 32 bits.
  QByteArray ToData() const;
  // EInvalidRegion when it has more rectangles than FromData takes.
  void RequireStorable() const { RequireCount(rects_.size()); }
  // Accepts rectangles in any order; EInvalidRegion for anything that is not region data.
  static TRegion FromData(QByteArrayView data);

 private:
  static void RequireCount(std::size_t rects);
  friend class TBandBuilder;
  std::vector<TRect, LargeAllocator<TRect>> rects_;
  TRect bounds_;
};

// Builds a region from rows of pixels, top to bottom, in time that follows the number of rectangles.
class TBandBuilder {
 public:
  // `rows`: how many rows of pixels are to come, as far as that is known.
  explicit TBandBuilder(std::int32_t rows = 0) : rows_(rows) {}
  // Bit x % 64 of word x / 64 is the pixel in column x. Rows that are left out are empty.
  void AddRow(std::int32_t y, const std::uint64_t* mask, std::size_t words);
  // A band of any height; spans are (left, right) pairs in order, with room between them.
  void AddBand(std::int32_t top, std::int32_t bottom,
               const std::vector<std::pair<std::int32_t, std::int32_t>>& spans);
  TRegion Take();

 private:
  void CloseBand(std::int32_t bottom);
  void Widen(std::int32_t left, std::int32_t right) {
    left_ = std::min(left_, left);
    right_ = std::max(right_, right);
  }
  TRegion region_;
  std::int32_t rows_, rowsDone_ = 0;
  std::int32_t left_ = INT32_MAX, right_ = INT32_MIN;  // of all bands so far
  std::vector<std::int32_t> edges_;                    // where the runs of a row start and end
  std::vector<std::uint64_t> lastMask_;
  std::size_t bandStart_ = 0;  // first rectangle of the open band
  std::int32_t bandEnd_ = 0;   // bottom of the open band so far
};
