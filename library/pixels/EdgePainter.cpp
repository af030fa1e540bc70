#include "library/pixels/EdgePainter.h"

#include <algorithm>
#include <bit>

#include "library/pixels/PixelMask.h"

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

// The pixels of a word that get each colour.
struct Strokes {
  std::uint64_t Light = 0, Dark = 0, Black = 0;
};

// The word to the left; a row has one before its first.
std::uint64_t Before(const std::uint64_t* row, std::size_t w) {
  return row[static_cast<std::ptrdiff_t>(w) - 1];
}

// For each way a pixel of a word can be written, by where the writing point is: whether that point is
// painted.
struct Writers {
  std::uint64_t Right2, Right, Below2, Below, Here, Above, Left;
};
// All points are.
struct Everybody {
  static constexpr std::uint64_t Right2 = ~std::uint64_t{0}, Right = Right2, Below2 = Right2, Below = Right2,
                                 Here = Right2, Above = Right2, Left = Right2;
};

// rows[0..4]: the rows from two above to two below, `w` the word. In the order of the writes, the last first.
template <class Who>
Strokes StrokesOf(const std::uint64_t* const rows[5], std::size_t w, TRegionBorder style, const Who& who) {
  const auto left = [w](const std::uint64_t* r) {
    return r[w] << 1 | Before(r, w) >> 63;
  };  // the pixel to the left
  const auto right = [w](const std::uint64_t* r, int by) { return r[w] >> by | r[w + 1] << (64 - by); };
  const std::uint64_t *above2 = rows[0], *above = rows[1], *here = rows[2], *below = rows[3],
                      *below2 = rows[4];
  const std::uint64_t in = here[w];
  const std::uint64_t next = right(here, 1), next2 = right(here, 2);
  const std::uint64_t enters = ((in & ~left(here)) | (in & ~above[w])) & who.Here;
  // Leaving edges belong to the point behind them.
  const std::uint64_t leavesRight = in & ~next & who.Right, leavesBelow = in & ~below[w] & who.Below;
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
  const std::uint64_t leavesRight2 = next & ~next2 & who.Right2,
                      leavesBelow2 = below[w] & ~below2[w] & who.Below2;
  const std::uint64_t entersAbove = above[w] & ~above2[w] & who.Above;
  const std::uint64_t before = left(here), before2 = here[w] << 2 | Before(here, w) >> 62;
  const std::uint64_t entersLeft = before & ~before2 & who.Left;
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

// The bits of word w that stand for the columns [from, to).
std::uint64_t ColumnBits(std::size_t w, std::int64_t from, std::int64_t to) {
  const std::int64_t first = static_cast<std::int64_t>(w) * 64 - Margin;
  const auto upTo = [first](std::int64_t end) {
    const std::int64_t bits = std::clamp<std::int64_t>(end - first, 0, 64);
    return bits == 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << bits) - 1;
  };
  return upTo(to) & ~upTo(from);
}

}  // namespace

EdgePainter::EdgePainter(TBitmap& picture, const TRegion& region, TRegionBorder style)
    : picture_(picture), region_(region), style_(style) {
  const bool sunken = style == TRegionBorder::Lowered || style == TRegionBorder::SingleLowered;
  const std::uint32_t white = PixelOf(clWhite), grey = PixelOf(clGray);
  inks_ = {sunken ? grey : white, sunken ? white : grey, PixelOf(clBlack)};
  const TRect bounds = region.Bounds();
  top_ = static_cast<int>(std::max<std::int64_t>(0, std::int64_t{bounds.Top} - Margin));
  bottom_ = static_cast<int>(std::min<std::int64_t>(picture.Height(), std::int64_t{bounds.Bottom} + Margin));
  if (picture.Width() == 0) bottom_ = top_;
  words_ = WordsFor(picture.Width() + 2 * Margin);
  stride_ = words_ + 2;  // a word of zeros on either side of a row
  for (std::size_t w = 0; w < words_; ++w) inside_.push_back(ColumnBits(w, 0, picture.Width()));
}

template <class Who>
void EdgePainter::PaintRow(int y, const std::uint64_t* const rows[5], std::size_t from, std::size_t to,
                           const Who& who) {
  std::uint32_t* row = nullptr;
  for (std::size_t w = from; w < to; ++w) {
    const Strokes s = StrokesOf(rows, w, style_, who(w));
    const std::uint64_t inside = inside_[w];
    if (((s.Light | s.Dark | s.Black) & inside) == 0) continue;
    if (!row) row = picture_.WritableRow(y);
    const std::int64_t base = static_cast<std::int64_t>(w) * 64 - Margin;
    Put(row, base, s.Light & inside, inks_.Light);
    Put(row, base, s.Dark & inside, inks_.Dark);
    Put(row, base, s.Black & inside, inks_.Black);
  }
}

void EdgePainter::PaintAll() {
  if (top_ >= bottom_) return;
  std::vector<std::uint64_t> buffer(stride_ * 5);
  std::uint64_t* rows[5];
  for (std::size_t i = 0; i < 5; ++i) rows[i] = buffer.data() + i * stride_ + 1;
  RegionRows source(region_.Rects(), picture_.Width());
  for (int i = 0; i < 4; ++i) source.Fill(top_ - 2 + i, rows[i + 1], words_);
  for (int y = top_; y < bottom_; ++y) {
    std::rotate(rows, rows + 1, rows + 5);
    source.Fill(y + 2, rows[4], words_);
    PaintRow(y, rows, 0, words_, [](std::size_t) { return Everybody(); });
  }
}

void EdgePainter::FillPlane() {
  plane_.resize(static_cast<std::size_t>(bottom_ - top_ + 4) * stride_);
  RegionRows source(region_.Rects(), picture_.Width());
  for (int y = top_ - 2; y < bottom_ + 2; ++y) source.Fill(y, PlaneRow(y), words_);
}

void EdgePainter::PaintBlock(std::int64_t left, std::int64_t right, std::int64_t top, std::int64_t bottom) {
  const auto firstRow = static_cast<int>(std::clamp<std::int64_t>(top - 2, top_, std::max(top_, bottom_))),
             endRow = static_cast<int>(std::min<std::int64_t>(bottom_, bottom + 1));
  const std::int64_t firstColumn = std::max<std::int64_t>(0, left - 2),
                     endColumn = std::min<std::int64_t>(picture_.Width(), right + 1);
  if (firstRow >= endRow || firstColumn >= endColumn) return;
  if (plane_.empty()) FillPlane();
  const auto word = [](std::int64_t column) { return static_cast<std::size_t>(column + Margin) / 64; };
  const std::size_t from = word(firstColumn), to = word(endColumn - 1) + 1;
  std::vector<Writers> columns;
  for (std::size_t w = from; w < to; ++w) {
    const std::uint64_t own = ColumnBits(w, left, right);
    columns.push_back({ColumnBits(w, left - 2, right - 2), ColumnBits(w, left - 1, right - 1), own, own, own,
                       own, ColumnBits(w, left + 1, right + 1)});
  }
  const auto paints = [&](std::int64_t y) { return y >= top && y < bottom ? ~std::uint64_t{0} : 0; };
  for (int y = firstRow; y < endRow; ++y) {
    const std::uint64_t* rows[5];
    for (int i = 0; i < 5; ++i) rows[i] = PlaneRow(y - 2 + i);
    const std::uint64_t here = paints(y), below = paints(y + 1), below2 = paints(y + 2),
                        above = paints(y - 1);
    PaintRow(y, rows, from, to, [&](std::size_t w) {
      const Writers& c = columns[w - from];
      return Writers{c.Right2 & here, c.Right & here,  c.Below2 & below2, c.Below & below,
                     c.Here & here,   c.Above & above, c.Left & here};
    });
  }
}
