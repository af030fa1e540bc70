// Rows of pixels as rows of bits, 64 pixels a word.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

#include "vcl/Colors.h"

constexpr std::size_t WordsFor(int pixels) { return (static_cast<std::size_t>(pixels) + 63) / 64; }

// Sets bit x % 64 of word x / 64 where pixel x is `pixel`, and clears the others; bits behind the last pixel
// are 0.
void MatchPixel(const std::uint32_t* row, int width, std::uint32_t pixel, std::uint64_t* mask);

// A set of colours that rows of pixels are matched against. Colours with a high byte equal no pixel.
class PixelSet {
 public:
  explicit PixelSet(const std::vector<TColor>& colors);
  // The same for every pixel of the set.
  void Match(const std::uint32_t* row, int width, std::uint64_t* mask) const;

  // The ways behind Match, for sets too large to compare one by one: portable, and with wide registers where
  // the processor has them.
  void MatchPortable(const std::uint32_t* row, int width, std::uint64_t* mask) const;
  static bool HasWide();
  void MatchWide(const std::uint32_t* row, int width, std::uint64_t* mask) const;

 private:
  template <class Filter>
  void MatchBlocks(const std::uint32_t* row, int width, std::uint64_t* mask, Filter&& filter) const;
  bool Insert(std::uint32_t pixel);
  bool Contains(std::uint32_t pixel) const {
    return table_[First(pixel)] == pixel || table_[Second(pixel)] == pixel;
  }

  // Cuckoo hashing: a pixel is at one of two places, so looking it up is two comparisons and never a search.
  std::size_t First(std::uint32_t pixel) const { return pixel * factor1_ >> shift_; }
  std::size_t Second(std::uint32_t pixel) const { return Slots() + (pixel * factor2_ >> shift_); }
  std::size_t Slots() const { return std::size_t{1} << (32 - shift_); }
  unsigned shift_ = 21;
  std::vector<std::uint32_t> pixels_;  // without repetitions
  std::vector<std::uint32_t> table_;   // two tables of Slots(); 0, which is no pixel, where free
  // A byte for a hash of each pixel; few enough to stay near. Plain loads beat gathered ones on many
  // processors.
  static constexpr unsigned FilterShift = 17;
  std::uint32_t FilterPlace(std::uint32_t pixel) const { return pixel * factor1_ >> FilterShift; }
  std::vector<std::uint8_t> filter_;
  std::uint32_t factor1_ = 0x9E3779B1u, factor2_ = 0x85EBCA77u;
};
