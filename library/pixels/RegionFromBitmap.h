// Builds a window region from a picture and paints borders along its edge.
#pragma once
#include <optional>
#include <vector>

#include "library/pixels/Progress.h"
#include "vcl/Bitmap.h"
#include "vcl/Region.h"

// The styles of a region's border, by the index of the list that offers them. Any other number is none.
enum class TRegionBorder : int { None, Single, Raised, Lowered, SingleRaised, SingleLowered };
// The looks of a shaped button.
enum class TRegionButton : int { Win31, Win40, Simple };

// Where a phase of the building stands in the whole, in percent.
struct TRegionPhase {
  int Scale = 100;
  int Offset = 0;
};

// Capacity of a list of transparent colours.
constexpr std::size_t MaxTransparentColors = 501;

// The pixels of none of the colours, rows cut one pixel short: the last column never belongs to a region,
// and stored regions depend on that. No region at all when nothing is left. Reports after every row.
std::optional<TRegion> CreateRgnFromBitmap2(const TBitmap& picture, const std::vector<TColor>& transparent,
                                            int scale, IVRXProgress* progress);
// Paints a border along the region's edge. 2 is for windows, 3 for the state pictures of buttons; both count
// the points of the bounds, columns first, in their reports. `region` may be null.
void PaintRGNBorder2(TBitmap& picture, const TRegion* region, TRegionBorder style, TRegionPhase phase,
                     IVRXProgress* progress);
void PaintRGNBorder3(TBitmap& picture, const TRegion* region, TRegionBorder style, TRegionPhase phase,
                     IVRXProgress* progress);

struct TRegionBuild {
  std::optional<TRegion> Region;
  TBitmap Border;         // a plain copy of the picture in a button's build
  TBitmap First, Second;  // the state pictures; empty for a window
  // No bytes when there is no region.
  QByteArray RegionData() const { return Region ? Region->ToData() : QByteArray(); }
};
// The whole sequence: region, border picture and, for a button, its two states, the second one moved by one
// pixel right and down.
TRegionBuild BuildWindowRegion(const TBitmap& picture, const std::vector<TColor>& transparent,
                               TRegionBorder border, IVRXProgress* progress);
TRegionBuild BuildButtonRegion(const TBitmap& picture, const std::vector<TColor>& transparent,
                               TRegionButton look, IVRXProgress* progress);
