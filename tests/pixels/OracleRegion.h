// Regions point by point: which points, built and painted as it is described, with no thought of speed.
#pragma once
#include <optional>
#include <vector>

#include "OraclePicture.h"
#include "library/pixels/RegionFromBitmap.h"

// A set of points in the simplest form there is: one yes or no for every point of a field.
class SlowRegion {
 public:
  explicit SlowRegion(const TRect& field);
  // The rectangle must lie in the field.
  void Add(const TRect& rect);
  bool In(int x, int y) const;
  const TRect& Field() const { return field_; }
  TRect Bounds() const;
  // Row by row; rows below one another with the same runs are one band.
  std::vector<TRect> Rects() const;

 private:
  bool InField(int x, int y) const;
  std::size_t Index(int x, int y) const;
  TRect field_;
  std::vector<bool> points_;
};

// The rectangles in a form that can be compared and printed.
inline std::vector<TRect> RectList(const TRegion& region) {
  return {region.Rects().begin(), region.Rects().end()};
}

// The same set as banded rectangles, the same bounds, and the same answer for every point of the field and
// around it.
testing::AssertionResult Same(const SlowRegion& expected, const TRegion& actual);

std::optional<SlowRegion> OracleCreateRegion(const OraclePicture& picture, const std::vector<TColor>& colors,
                                             int scale, IVRXProgress* progress);
// A null region has no points and empty bounds. `painter` is 2 or 3.
void OraclePaintBorder(int painter, OraclePicture& picture, const SlowRegion* region, int style,
                       TRegionPhase phase, IVRXProgress* progress);

struct OracleBuild {
  std::optional<SlowRegion> Region;
  OraclePicture Border, First, Second;
};
// `style` is an index of the list of border styles, or of the looks of a button.
OracleBuild OracleBuildRegion(const OraclePicture& picture, const std::vector<TColor>& colors, bool button,
                              int style, IVRXProgress* progress);

std::ostream& operator<<(std::ostream& out, const TRect& rect);
