// Borders along the edge of a region, point by point as far as anybody can see.
#include "library/pixels/EdgePainter.h"

namespace {
// Paints and reports every point of the bounds, edges included, columns first. The points up to the next one
// after which somebody looks, or the percentage changes, are one block.
void PaintPoints(EdgePainter* painter, TRect box, TRegionPhase phase, IVRXProgress& progress) {
  if (box.Right == 0) box.Right = 1;
  if (box.Bottom == 0) box.Bottom = 1;
  const std::int64_t rows = std::int64_t{box.Bottom} - box.Top + 1;
  const auto percentAt = [&](std::int64_t x) {
    return static_cast<std::uint8_t>(phase.Offset + RoundHalfEven(phase.Scale * (x + 1), box.Right));
  };
  const auto paint = [&](std::int64_t left, std::int64_t right, std::int64_t top, std::int64_t bottom) {
    if (painter && left < right && top < bottom)
      painter->PaintBlock(left, right, box.Top + top, box.Top + bottom);
  };
  for (std::int64_t first = box.Left; first <= box.Right;) {
    const std::uint8_t percent = percentAt(first);
    std::int64_t columns = 1;
    while (first + columns <= box.Right && percentAt(first + columns) == percent) ++columns;
    const std::int64_t points = columns * rows;
    for (std::int64_t at = 0; at < points;) {
      const std::int64_t next =
          at + std::clamp<std::int64_t>(progress.Unwatched(points - at), 1, points - at);
      // The rest of a column, whole ones, the start of one.
      std::int64_t column = at / rows;
      const std::int64_t row = at % rows, lastColumn = next / rows, lastRow = next % rows;
      if (column == lastColumn) {
        paint(first + column, first + column + 1, row, lastRow);
      } else {
        if (row > 0) {
          paint(first + column, first + column + 1, row, rows);
          ++column;
        }
        paint(first + column, first + lastColumn, 0, rows);
        paint(first + lastColumn, first + lastColumn + 1, 0, lastRow);
      }
      progress.Report(percent, next - at);
      progress.ProcessMessages(next - at);
      at = next;
    }
    first += columns;
  }
}

void PaintBorder(TBitmap& picture, const TRegion* region, TRegionBorder style, TRegionPhase phase,
                 IVRXProgress* progress) {
  std::optional<EdgePainter> painter;
  if (region && style >= TRegionBorder::Single && style <= TRegionBorder::SingleLowered)
    painter.emplace(picture, *region, style);
  if (progress)
    PaintPoints(painter ? &*painter : nullptr, region ? region->Bounds() : TRect{}, phase, *progress);
  else if (painter)
    painter->PaintAll();
}
}  // namespace

void PaintRGNBorder2(TBitmap& picture, const TRegion* region, TRegionBorder style, TRegionPhase phase,
                     IVRXProgress* progress) {
  PaintBorder(picture, region, style, phase, progress);
}

void PaintRGNBorder3(TBitmap& picture, const TRegion* region, TRegionBorder style, TRegionPhase phase,
                     IVRXProgress* progress) {
  PaintBorder(picture, region, style, phase, progress);
}
