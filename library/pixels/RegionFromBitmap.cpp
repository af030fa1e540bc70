#include "library/pixels/RegionFromBitmap.h"

#include "library/pixels/PixelMask.h"

std::optional<TRegion> CreateRgnFromBitmap2(const TBitmap& picture, const std::vector<TColor>& transparent,
                                            int scale, IVRXProgress* progress) {
  const int width = picture.Width();
  const std::size_t words = WordsFor(width);
  const PixelSet set(transparent);
  std::vector<std::uint64_t> opaque(words);
  TBandBuilder builder(picture.Height());
  for (int y = 0; y < picture.Height(); ++y) {
    if (width > 0) {
      set.Match(picture.Row(y), width, opaque.data());
      for (std::uint64_t& word : opaque) word = ~word;
      // Behind the row there is nothing, and the last column does not count.
      const auto last = static_cast<unsigned>(width - 1) % 64;
      opaque.back() &= (std::uint64_t{1} << last) - 1;
      builder.AddRow(y, opaque.data(), words);
    }
    if (progress) {
      progress->Report(
          static_cast<std::uint8_t>(RoundHalfEven(std::int64_t{scale} * (y + 1), picture.Height())), 1);
      progress->ProcessMessages(1);
    }
  }
  TRegion region = builder.Take();
  if (region.Empty()) return std::nullopt;
  return region;
}

TRegionBuild BuildWindowRegion(const TBitmap& picture, const std::vector<TColor>& transparent,
                               TRegionBorder border, IVRXProgress* progress) {
  TRegionPhase phase{.Scale = border < TRegionBorder::Single ? 100 : 50};
  TRegionBuild build;
  build.Region = CreateRgnFromBitmap2(picture, transparent, phase.Scale, progress);
  phase.Offset += phase.Scale;
  build.Border.Assign(&picture);
  PaintRGNBorder2(build.Border, build.Region ? &*build.Region : nullptr, border, phase, progress);
  return build;
}

TRegionBuild BuildButtonRegion(const TBitmap& picture, const std::vector<TColor>& transparent,
                               TRegionButton look, IVRXProgress* progress) {
  struct States {
    TRegionBorder First, Second;
  };
  const auto states = [look]() -> std::optional<States> {
    if (look == TRegionButton::Win31)
      return States{TRegionBorder::SingleRaised, TRegionBorder::SingleLowered};
    if (look == TRegionButton::Win40) return States{TRegionBorder::Raised, TRegionBorder::Lowered};
    return std::nullopt;
  }();
  TRegionPhase phase{.Scale = 33};
  TRegionBuild build;
  build.Region = CreateRgnFromBitmap2(picture, transparent, phase.Scale, progress);
  const TRegion* region = build.Region ? &*build.Region : nullptr;
  phase.Offset += phase.Scale;
  build.Border.Assign(&picture);
  build.First.Assign(&picture);
  if (states) PaintRGNBorder3(build.First, region, states->First, phase, progress);
  phase.Offset += phase.Scale;
  build.Second.SetSize(picture.Width(), picture.Height());
  build.Second.Draw(1, 1, picture);
  if (states) PaintRGNBorder3(build.Second, region, states->Second, phase, progress);
  return build;
}
