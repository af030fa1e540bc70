// Paints borders along the edge of a region.
//
// By definition every point of the bounds is looked at, column by column, and may write up to two pixels
// along each axis; of several writes into one pixel the last one stays. Here it is turned round: for a pixel,
// the points that write into it are few and their order is fixed, so 64 pixels are decided at once from the
// rows of the region around them.
//
// A block of points that follow one another leaves in each pixel what the last of its own points writes
// there. Blocks in the order of their points therefore leave the picture as the points would, after each
// block.
#pragma once
#include "library/pixels/RegionFromBitmap.h"

class EdgePainter {
 public:
  // For the styles from Single to SingleLowered. Picture and region must outlive it.
  EdgePainter(TBitmap& picture, const TRegion& region, TRegionBorder style);
  // All points at once.
  void PaintAll();
  // The points of the columns [left, right) and the rows [top, bottom). A block of less than whole columns is
  // of a single one.
  void PaintBlock(std::int64_t left, std::int64_t right, std::int64_t top, std::int64_t bottom);

 private:
  struct Inks {
    std::uint32_t Light, Dark, Black;
  };
  template <class Who>
  void PaintRow(int y, const std::uint64_t* const rows[5], std::size_t from, std::size_t to, const Who& who);
  std::uint64_t* PlaneRow(int y) {
    return plane_.data() + static_cast<std::size_t>(y - top_ + 2) * stride_ + 1;
  }
  void FillPlane();

  TBitmap& picture_;
  const TRegion& region_;
  TRegionBorder style_;
  Inks inks_;
  int top_, bottom_;  // the rows of the picture that the border can reach
  std::size_t words_, stride_;
  std::vector<std::uint64_t> inside_;  // the bits of the picture's own columns
  std::vector<std::uint64_t> plane_;   // the region's rows from two above top_ on, for blocks
};
