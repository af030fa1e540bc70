// What the results of a build still tell of what they were made from.
#pragma once
#include "library/pixels/RegionFromBitmap.h"

// The colours that lead from the picture to the region, in the order in which they occur; none when no list
// of colours does.
std::vector<TColor> TransparentColorsOf(const TBitmap& picture, const TRegion& region);
// The style of the border that the picture carries along the region's edge; None without one.
TRegionBorder BorderStyleOf(const TBitmap& picture, const TRegion& region);
// The look of a button whose first state was made from the picture; none when it was not.
std::optional<TRegionButton> ButtonLookOf(const TBitmap& picture, const TBitmap& first,
                                          const TRegion& region);
