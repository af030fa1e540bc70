// Borders along the edge of a region.
//
// By definition every point of the bounds is looked at, column by column, and may write up to two pixels
// along each axis; of several writes into one pixel the last one stays. Here it is turned round: for a pixel,
// the points that write into it are few and their order is fixed, so 64 pixels are decided at once from the
// rows of the region around them.
#include <bit>

#include "library/pixels/PixelMask.h"
#include "library/pixels/RegionFromBitmap.h"

namespace {
// The rows of a region as bits. Column -Margin of the picture is bit 0, so that what lies just outside of
// the picture can still write into it.
constexpr int Margin = 2;

class RegionRows {
 public:
  RegionRows(std::span<const TRect> rects, int width)
      : at_(rects.begin()), end_(rects.end()), limit_(width + 2 * Margin) {}
  // Rows must be asked for from top to bottom.
  void Fill(int y, std::uint64_t* bits, std::size_t words) {
    std::fill_n(bits, words, 0);
    while (at_ != end_ && at_->Bottom <= y) ++at_;
    for (auto r = at_; r != end_ && r->Top <= y; ++r) {
      const std::int64_t left = std::max<std::int64_t>(std::int64_t{r->Left} + Margin, 0);
      const std::int64_t right = std::min<std::int64_t>(std::int64_t{r->Right} + Margin, limit_);
      if (left < right) SetBits(bits, static_cast<std::size_t>(left), static_cast<std::size_t>(right));
    }
  }

 private:
  static void SetBits(std::uint64_t* bits, std::size_t from, std::size_t to) {
    const std::size_t first = from / 64, last = (to - 1) / 64;
    const std::uint64_t head = ~std::uint64_t{0} << from % 64,
                        tail = ~std::uint64_t{0} >> (63 - (to - 1) % 64);
    if (first == last) {
      bits[first] |= head & tail;
      return;
    }
    bits[first] |= head;
    for (std::size_t w = first + 1; w < last; ++w) bits[w] = ~std::uint64_t{0};
    bits[last] |= tail;
  }
  std::span<const TRect>::iterator at_, end_;
  std::int64_t limit_;
};

struct Inks {
  std::uint32_t Light, Dark, Black;
};

// The pixels of a word that get each colour.
struct Strokes {
  std::uint64_t Light = 0, Dark = 0, Black = 0;
};

// The word to the left; a row has one before its first.
std::uint64_t Before(const std::uint64_t* row, std::size_t w) {
  return row[static_cast<std::ptrdiff_t>(w) - 1];
}

// rows[0..4]: the rows from two above to two below, `w` the word. In the order of the writes, the last first.
Strokes StrokesOf(const std::uint64_t* const rows[5], std::size_t w, TRegionBorder style) {
  const auto left = [w](const std::uint64_t* r) {
    return r[w] << 1 | Before(r, w) >> 63;
  };  // the pixel to the left
  const auto right = [w](const std::uint64_t* r, int by) { return r[w] >> by | r[w + 1] << (64 - by); };
  const std::uint64_t *above2 = rows[0], *above = rows[1], *here = rows[2], *below = rows[3],
                      *below2 = rows[4];
  const std::uint64_t in = here[w];
  const std::uint64_t next = right(here, 1), next2 = right(here, 2);
  const std::uint64_t enters = (in & ~left(here)) | (in & ~above[w]);
  // Leaving edges belong to the point behind them.
  const std::uint64_t leavesRight = in & ~next, leavesBelow = in & ~below[w];
  Strokes s;
  if (style == TRegionBorder::Single) {
    s.Black = leavesRight | leavesBelow | enters;
    return s;
  }
  if (style == TRegionBorder::Raised || style == TRegionBorder::Lowered) {
    s.Dark = leavesRight | leavesBelow;
    s.Light = enters & ~s.Dark;
    return s;
  }
  const std::uint64_t leavesRight2 = next & ~next2, leavesBelow2 = below[w] & ~below2[w];
  const std::uint64_t entersAbove = above[w] & ~above2[w];
  const std::uint64_t before = left(here), before2 = here[w] << 2 | Before(here, w) >> 62;
  const std::uint64_t entersLeft = before & ~before2;
  std::uint64_t open = ~std::uint64_t{0};
  const auto take = [&open](std::uint64_t& to, std::uint64_t bits) {
    to |= bits & open;
    open &= ~bits;
  };
  take(s.Dark, leavesRight2);
  take(s.Black, leavesRight);
  take(s.Dark, leavesBelow2);
  take(s.Black, leavesBelow | enters);
  take(s.Light, entersAbove);
  take(s.Light, entersLeft);
  return s;
}

void Put(std::uint32_t* row, std::int64_t base, std::uint64_t bits, std::uint32_t pixel) {
  for (; bits; bits &= bits - 1) row[base + std::countr_zero(bits)] = pixel;
}

void PaintEdge(TBitmap& picture, const TRegion& region, TRegionBorder style) {
  const bool sunken = style == TRegionBorder::Lowered || style == TRegionBorder::SingleLowered;
  const std::uint32_t white = PixelOf(clWhite), grey = PixelOf(clGray);
  const Inks inks{sunken ? grey : white, sunken ? white : grey, PixelOf(clBlack)};
  const int width = picture.Width();
  const auto top = static_cast<int>(std::max<std::int64_t>(0, std::int64_t{region.Bounds().Top} - Margin));
  const auto bottom = static_cast<int>(
      std::min<std::int64_t>(picture.Height(), std::int64_t{region.Bounds().Bottom} + Margin));
  if (width == 0 || top >= bottom) return;
  // A word of zeros on either side of a row.
  const std::size_t words = WordsFor(width + 2 * Margin), stride = words + 2;
  std::vector<std::uint64_t> buffer(stride * 5);
  std::uint64_t* rows[5];
  for (std::size_t i = 0; i < 5; ++i) rows[i] = buffer.data() + i * stride + 1;
  RegionRows source(region.Rects(), width);
  for (int i = 0; i < 4; ++i) source.Fill(top - 2 + i, rows[i + 1], words);
  std::vector<std::uint64_t> inside(words, 0);  // the bits of the picture's own columns
  for (int x = 0; x < width; ++x)
    inside[static_cast<std::size_t>(x + Margin) / 64] |= std::uint64_t{1} << (x + Margin) % 64;
  for (int y = top; y < bottom; ++y) {
    std::rotate(rows, rows + 1, rows + 5);
    source.Fill(y + 2, rows[4], words);
    std::uint32_t* to = nullptr;
    for (std::size_t w = 0; w < words; ++w) {
      const Strokes s = StrokesOf(rows, w, style);
      if (((s.Light | s.Dark | s.Black) & inside[w]) == 0) continue;
      if (!to) to = picture.WritableRow(y);
      const std::int64_t base = static_cast<std::int64_t>(w) * 64 - Margin;
      Put(to, base, s.Light & inside[w], inks.Light);
      Put(to, base, s.Dark & inside[w], inks.Dark);
      Put(to, base, s.Black & inside[w], inks.Black);
    }
  }
}

// One report for every point of the bounds, edges included, columns first.
void ReportPoints(TRect box, TRegionPhase phase, IVRXProgress& progress) {
  if (box.Right == 0) box.Right = 1;
  if (box.Bottom == 0) box.Bottom = 1;
  const std::int64_t rows = std::int64_t{box.Bottom} - box.Top + 1;
  for (std::int64_t x = box.Left; x <= box.Right; ++x) {
    progress.Report(static_cast<std::uint8_t>(phase.Offset + RoundHalfEven(phase.Scale * (x + 1), box.Right)),
                    rows);
    progress.ProcessMessages(rows);
  }
}

void PaintBorder(TBitmap& picture, const TRegion* region, TRegionBorder style, TRegionPhase phase,
                 IVRXProgress* progress) {
  if (region && style >= TRegionBorder::Single && style <= TRegionBorder::SingleLowered)
    PaintEdge(picture, *region, style);
  if (progress) ReportPoints(region ? region->Bounds() : TRect{}, phase, *progress);
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
