#include "library/pixels/RegionOrigin.h"

#include <algorithm>
#include <unordered_set>

namespace {
// The colours of what lies outside of the region, the last column apart; nothing when there are too many.
class OutsideColors {
 public:
  bool Add(const std::uint32_t* row, std::int64_t from, std::int64_t to) {
    for (std::int64_t x = from; x < to; ++x) {
      if (any_ && row[x] == last_) continue;
      any_ = true;
      last_ = row[x];
      if (!seen_.insert(last_).second) continue;
      if (colors.size() == MaxTransparentColors) return false;
      colors.push_back(ColorOfPixel(last_));
    }
    return true;
  }
  std::vector<TColor> colors;

 private:
  std::unordered_set<std::uint32_t> seen_;
  std::uint32_t last_ = 0;
  bool any_ = false;
};
}  // namespace

std::vector<TColor> TransparentColorsOf(const TBitmap& picture, const TRegion& region) {
  if (picture.Empty() || region.Empty()) return {};
  const std::int64_t width = picture.Width() - 1;
  OutsideColors outside;
  auto band = region.Rects().begin();
  const auto end = region.Rects().end();
  for (int y = 0; y < picture.Height(); ++y) {
    while (band != end && band->Bottom <= y) ++band;
    std::int64_t x = 0;
    for (auto r = band; r != end && r->Top <= y; ++r) {
      if (!outside.Add(picture.Row(y), x, std::min<std::int64_t>(r->Left, width))) return {};
      x = std::max<std::int64_t>(x, r->Right);
    }
    if (!outside.Add(picture.Row(y), x, width)) return {};
  }
  // Enough colours for the region may be too many for what is in it.
  if (CreateRgnFromBitmap2(picture, outside.colors, 100, nullptr) != region) return {};
  return outside.colors;
}

TRegionBorder BorderStyleOf(const TBitmap& picture, const TRegion& region) {
  using enum TRegionBorder;
  if (region.Empty()) return None;
  // Every border has one of its colours in the first pixel of the region; most pictures do not.
  const TRect& first = region.Rects().front();
  const TColor corner = picture.Pixel(first.Left, first.Top);
  if (corner != clBlack && corner != clWhite && corner != clGray) return None;
  for (const TRegionBorder style : {SingleRaised, SingleLowered, Raised, Lowered, Single}) {
    TBitmap painted;
    painted.Assign(&picture);
    PaintRGNBorder2(painted, &region, style, {}, nullptr);
    if (painted == picture) return style;
  }
  return None;
}

std::optional<TRegionButton> ButtonLookOf(const TBitmap& picture, const TBitmap& first,
                                          const TRegion& region) {
  using enum TRegionButton;
  if (first == picture) return Simple;
  const std::pair<TRegionButton, TRegionBorder> looks[] = {{Win31, TRegionBorder::SingleRaised},
                                                           {Win40, TRegionBorder::Raised}};
  for (const auto& [look, border] : looks) {
    TBitmap painted;
    painted.Assign(&picture);
    PaintRGNBorder3(painted, &region, border, {}, nullptr);
    if (painted == first) return look;
  }
  return std::nullopt;
}
