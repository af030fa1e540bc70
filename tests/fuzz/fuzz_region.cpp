// Fuzz target: region data.
#include "tests/fuzz/Target.h"
#include "vcl/Region.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  try {
    const TRegion region = TRegion::FromData(bytes);
    const QByteArray written = region.ToData();
    const TRegion again = TRegion::FromData(written);
    Require(again == region && again.ToData() == written, "a region has one form");
    const TRect bounds = region.Bounds();
    for (const TRect& r : region.Rects()) {
      Require(!r.Empty() && region.Contains(r.Left, r.Top) && region.Contains(r.Right - 1, r.Bottom - 1),
              "a region contains its rectangles");
      Require(r.Left >= bounds.Left && r.Top >= bounds.Top && r.Right <= bounds.Right &&
                  r.Bottom <= bounds.Bottom,
              "the bounds are around everything");
    }
    Require(region.United(again) == region, "a region united with itself is itself");
  } catch (const EInvalidRegion&) {
  }
  return 0;
}
