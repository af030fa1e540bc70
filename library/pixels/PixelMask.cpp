#include "library/pixels/PixelMask.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "vcl/Bitmap.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace {
// The bits of up to 64 pixels.
template <class Test>
std::uint64_t TailBits(const std::uint32_t* row, int count, Test&& test) {
  std::uint64_t bits = 0;
  for (int i = 0; i < count; ++i) bits |= std::uint64_t{test(row[i])} << i;
  return bits;
}

#if defined(__x86_64__)
std::uint64_t EqualBits(const std::uint32_t* row, __m128i pixel) {
  std::uint64_t bits = 0;
  for (int i = 0; i < 64; i += 16) {
    const auto equal = [&](int at) {
      return _mm_cmpeq_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(row + i + at)), pixel);
    };
    const __m128i packed =
        _mm_packs_epi16(_mm_packs_epi32(equal(0), equal(4)), _mm_packs_epi32(equal(8), equal(12)));
    bits |= static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm_movemask_epi8(packed))) << i;
  }
  return bits;
}
#else
std::uint64_t EqualBits(const std::uint32_t* row, std::uint32_t pixel) {
  return TailBits(row, 64, [pixel](std::uint32_t p) { return p == pixel; });
}
#endif
}  // namespace

namespace {
std::uint64_t MatchBlock(const std::uint32_t* row, std::uint32_t pixel) {
#if defined(__x86_64__)
  return EqualBits(row, _mm_set1_epi32(static_cast<int>(pixel)));
#else
  return EqualBits(row, pixel);
#endif
}
}  // namespace

void MatchPixel(const std::uint32_t* row, int width, std::uint32_t pixel, std::uint64_t* mask) {
#if defined(__x86_64__)
  const __m128i wanted = _mm_set1_epi32(static_cast<int>(pixel));
#else
  const std::uint32_t wanted = pixel;
#endif
  int x = 0;
  for (; x + 64 <= width; x += 64) *mask++ = EqualBits(row + x, wanted);
  if (x < width) *mask = TailBits(row + x, width - x, [pixel](std::uint32_t p) { return p == pixel; });
}

PixelSet::PixelSet(const std::vector<TColor>& colors) {
  for (const TColor color : colors)
    if (const auto pixel = ExactPixelOf(color)) pixels_.push_back(*pixel);
  std::sort(pixels_.begin(), pixels_.end());
  pixels_.erase(std::unique(pixels_.begin(), pixels_.end()), pixels_.end());
  while (Slots() < 2 * pixels_.size()) --shift_;
  // A cycle of displacements is rare at this load; other factors then.
  for (bool placed = false; !placed;) {
    table_.assign(2 * Slots(), 0);
    placed = std::all_of(pixels_.begin(), pixels_.end(), [this](std::uint32_t p) { return Insert(p); });
    if (!placed) {
      factor1_ = factor1_ * 0x2C1B3C6Du | 1u;
      factor2_ = factor2_ * 0x297A2D39u | 1u;
    }
  }
  filter_.assign(std::size_t{1} << (32 - FilterShift), 0);
  for (const std::uint32_t p : pixels_) filter_[FilterPlace(p)] = 1;
}

bool PixelSet::Insert(std::uint32_t pixel) {
  for (int moves = 0; moves < 500; ++moves) {
    for (const std::size_t at : {First(pixel), Second(pixel)}) {
      if (table_[at] == 0) {
        table_[at] = pixel;
        return true;
      }
    }
    std::swap(pixel, table_[moves % 2 == 0 ? First(pixel) : Second(pixel)]);
  }
  return false;
}

void PixelSet::Match(const std::uint32_t* row, int width, std::uint64_t* mask) const {
  constexpr std::size_t FewPixels = 4;
  if (pixels_.empty()) {
    std::fill_n(mask, WordsFor(width), 0);
  } else if (pixels_.size() == 1) {
    MatchPixel(row, width, pixels_[0], mask);
  } else if (pixels_.size() <= FewPixels) {
    // Blocks that stay in the nearest cache, so that the row is fetched once.
    constexpr int Block = 4096;
    std::uint64_t more[Block / 64];
    for (int x = 0; x < width; x += Block, mask += Block / 64) {
      const int count = std::min(Block, width - x);
      MatchPixel(row + x, count, pixels_[0], mask);
      for (std::size_t i = 1; i < pixels_.size(); ++i) {
        MatchPixel(row + x, count, pixels_[i], more);
        for (std::size_t w = 0; w < WordsFor(count); ++w) mask[w] |= more[w];
      }
    }
  } else if (HasWide()) {
    MatchWide(row, width, mask);
  } else {
    MatchPortable(row, width, mask);
  }
}

// Pictures repeat themselves, so the pixel found last is compared with all the others first. Of the rest, a
// small table tells nearly all that are not in the set.
template <class Filter>
void PixelSet::MatchBlocks(const std::uint32_t* row, int width, std::uint64_t* mask, Filter&& filter) const {
  std::uint32_t last = pixels_.empty() ? 0 : pixels_[0];
  int x = 0;
  for (; x + 64 <= width; x += 64) {
    const std::uint32_t* block = row + x;
    std::uint64_t bits = MatchBlock(block, last);
    if (bits != ~std::uint64_t{0}) {
      for (std::uint64_t maybe = filter(block, ~bits); maybe; maybe &= maybe - 1) {
        const int at = std::countr_zero(maybe);
        if (!Contains(block[at])) continue;
        last = block[at];
        bits |= std::uint64_t{1} << at;
      }
    }
    *mask++ = bits;
  }
  if (x < width) *mask = TailBits(row + x, width - x, [this](std::uint32_t p) { return Contains(p); });
}

void PixelSet::MatchPortable(const std::uint32_t* row, int width, std::uint64_t* mask) const {
  MatchBlocks(row, width, mask, [this](const std::uint32_t* block, std::uint64_t wanted) {
    std::uint64_t bits = 0;
    for (int i = 0; i < 64; ++i) bits |= std::uint64_t{filter_[FilterPlace(block[i])]} << i;
    return bits & wanted;
  });
}

#if defined(__x86_64__)
bool PixelSet::HasWide() {
  static const bool has = __builtin_cpu_supports("avx2");
  return has;
}

namespace {
__attribute__((target("avx2"))) std::uint64_t FilterWide(const std::uint32_t* block, std::uint64_t wanted,
                                                         const std::uint8_t* filter, std::uint32_t factor,
                                                         int shift) {
  const __m256i factors = _mm256_set1_epi32(static_cast<int>(factor));
  const __m128i shiftBy = _mm_cvtsi32_si128(shift);
  std::uint64_t bits = 0;
  for (int i = 0; i < 64; i += 8) {
    if ((wanted >> i & 0xFFu) == 0) continue;
    const __m256i p = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(block + i));
    const __m256i hash = _mm256_srl_epi32(_mm256_mullo_epi32(p, factors), shiftBy);
    const __m128i low = _mm256_castsi256_si128(hash), high = _mm256_extracti128_si256(hash, 1);
    const auto half = [](long long v) { return static_cast<std::uint64_t>(v); };
    const std::uint64_t pairs[] = {half(_mm_cvtsi128_si64(low)), half(_mm_extract_epi64(low, 1)),
                                   half(_mm_cvtsi128_si64(high)), half(_mm_extract_epi64(high, 1))};
    const auto hit = [&](int k) { return filter[pairs[k / 2] >> 32 * (k % 2) & 0xFFFFFFFFu]; };
    if ((hit(0) | hit(1) | hit(2) | hit(3) | hit(4) | hit(5) | hit(6) | hit(7)) == 0) continue;
    for (int k = 0; k < 8; ++k) bits |= std::uint64_t{hit(k)} << (i + k);
  }
  return bits & wanted;
}
}  // namespace

void PixelSet::MatchWide(const std::uint32_t* row, int width, std::uint64_t* mask) const {
  MatchBlocks(row, width, mask, [this](const std::uint32_t* block, std::uint64_t wanted) {
    return FilterWide(block, wanted, filter_.data(), factor1_, static_cast<int>(FilterShift));
  });
}
#else
bool PixelSet::HasWide() { return false; }
void PixelSet::MatchWide(const std::uint32_t* row, int width, std::uint64_t* mask) const {
  MatchPortable(row, width, mask);
}
#endif
