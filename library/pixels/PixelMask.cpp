#include "library/pixels/PixelMask.h"

#include <algorithm>
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

void PixelSet::MatchPortable(const std::uint32_t* row, int width, std::uint64_t* mask) const {
  // Pictures repeat themselves: a pixel like the one before it needs no look-up.
  std::uint32_t last = 0;
  bool found = false;
  const auto test = [&](std::uint32_t p) {
    if (p != last) {
      last = p;
      found = Contains(p);
    }
    return found;
  };
  for (int x = 0; x < width; x += 64) *mask++ = TailBits(row + x, std::min(64, width - x), test);
}

#if defined(__x86_64__)
bool PixelSet::HasWide() {
  static const bool has = __builtin_cpu_supports("avx2");
  return has;
}

__attribute__((target("avx2"))) void PixelSet::MatchWide(const std::uint32_t* row, int width,
                                                         std::uint64_t* mask) const {
  const __m256i factor1 = _mm256_set1_epi32(static_cast<int>(factor1_));
  const __m256i factor2 = _mm256_set1_epi32(static_cast<int>(factor2_));
  const __m256i second = _mm256_set1_epi32(static_cast<int>(Slots()));
  const __m128i shift = _mm_cvtsi32_si128(static_cast<int>(shift_));
  const auto* table = reinterpret_cast<const int*>(table_.data());
  __m256i last = _mm256_setzero_si256();  // the eight pixels looked up last
  unsigned found = 0;                     // and which of them are in the set
  int x = 0;
  for (; x + 64 <= width; x += 64) {
    std::uint64_t bits = 0;
    for (int i = 0; i < 64; i += 8) {
      const __m256i p = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(row + x + i));
      const __m256i same = _mm256_xor_si256(p, last);
      if (!_mm256_testz_si256(same, same)) {
        const __m256i at1 = _mm256_srl_epi32(_mm256_mullo_epi32(p, factor1), shift);
        const __m256i at2 = _mm256_add_epi32(_mm256_srl_epi32(_mm256_mullo_epi32(p, factor2), shift), second);
        const __m256i hit = _mm256_or_si256(_mm256_cmpeq_epi32(_mm256_i32gather_epi32(table, at1, 4), p),
                                            _mm256_cmpeq_epi32(_mm256_i32gather_epi32(table, at2, 4), p));
        found = static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(hit)));
        last = p;
      }
      bits |= std::uint64_t{found} << i;
    }
    *mask++ = bits;
  }
  if (x < width) MatchPortable(row + x, width - x, mask);
}
#else
bool PixelSet::HasWide() { return false; }
void PixelSet::MatchWide(const std::uint32_t* row, int width, std::uint64_t* mask) const {
  MatchPortable(row, width, mask);
}
#endif
