#include "vcl/Region.h"

#include <QtEndian>
#include <algorithm>
#include <bit>
#include <cstring>

TRegion::TRegion(const TRect& rect) {
  if (rect.Empty()) return;
  rects_.push_back(rect);
  bounds_ = rect;
}

bool TRegion::Contains(std::int32_t x, std::int32_t y) const {
  // The first rectangle that ends below y; when its band holds y, the rest of the band is searched.
  const auto band =
      std::partition_point(rects_.begin(), rects_.end(), [y](const TRect& r) { return r.Bottom <= y; });
  if (band == rects_.end() || band->Top > y) return false;
  const auto hit = std::partition_point(
      band, rects_.end(), [top = band->Top, x](const TRect& r) { return r.Top == top && r.Right <= x; });
  return hit != rects_.end() && hit->Top == band->Top && hit->Left <= x;
}

namespace {
using Spans = std::vector<std::pair<std::int32_t, std::int32_t>>;

// The bands of a region one after another.
class BandReader {
 public:
  explicit BandReader(std::span<const TRect> rects) : at_(rects.data()), end_(at_ + rects.size()) { Find(); }
  bool Done() const { return at_ == end_; }
  std::int32_t Top() const { return std::max(at_->Top, from_); }
  std::int32_t Bottom() const { return at_->Bottom; }
  // Everything above y has been dealt with.
  void Skip(std::int32_t y) {
    if (Done()) return;
    from_ = y;
    if (y < at_->Bottom) return;
    at_ = next_;
    Find();
  }
  void AppendTo(Spans& spans) const {
    for (const TRect* r = at_; r != next_; ++r) spans.emplace_back(r->Left, r->Right);
  }

 private:
  void Find() {
    next_ = at_;
    while (next_ != end_ && next_->Top == at_->Top) ++next_;
  }
  const TRect* at_;
  const TRect* end_;
  const TRect* next_ = nullptr;
  std::int32_t from_ = INT32_MIN;
};

void MergeSpans(Spans& spans) {
  std::sort(spans.begin(), spans.end());
  std::size_t kept = 0;
  for (std::size_t i = 1; i < spans.size(); ++i) {
    if (spans[i].first <= spans[kept].second)
      spans[kept].second = std::max(spans[kept].second, spans[i].second);
    else
      spans[++kept] = spans[i];
  }
  if (!spans.empty()) spans.resize(kept + 1);
}
}  // namespace

TRegion TRegion::United(const TRegion& other) const {
  if (Empty()) return other;
  if (other.Empty()) return *this;
  TBandBuilder builder;
  BandReader a(rects_), b(other.rects_);
  Spans spans;
  while (!a.Done() || !b.Done()) {
    const std::int32_t top = a.Done() ? b.Top() : b.Done() ? a.Top() : std::min(a.Top(), b.Top());
    std::int32_t bottom = INT32_MAX;
    spans.clear();
    for (const BandReader* r : {&a, &b}) {
      if (r->Done()) continue;
      if (r->Top() > top) {
        bottom = std::min(bottom, r->Top());
      } else {
        bottom = std::min(bottom, r->Bottom());
        r->AppendTo(spans);
      }
    }
    MergeSpans(spans);
    builder.AddBand(top, bottom, spans);
    a.Skip(bottom);
    b.Skip(bottom);
  }
  return builder.Take();
}

namespace {
constexpr std::size_t HeaderSize = 32;
constexpr std::size_t RectSize = 16;
// What the platform can draw; sums of two such numbers do not overflow.
constexpr std::int32_t MaxCoordinate = 1 << 27;

// Rectangles of a region that a form keeps: as text, its bytes take a quarter of the largest form file.
constexpr std::size_t MaxRects = std::size_t{1} << 22;

void Put(char*& to, std::int32_t v) {
  qToLittleEndian(v, to);
  to += 4;
}
std::int32_t Get(const char*& from) {
  const auto v = qFromLittleEndian<std::int32_t>(from);
  from += 4;
  return v;
}
[[noreturn]] void Refuse(const QString& what) {
  throw EInvalidRegion(QStringLiteral("The bytes are not region data: %1.").arg(what));
}
// Any rectangles; halves are united first, so that the work stays near n log n.
TRegion UniteAll(const TRect* rects, std::size_t count) {
  if (count == 0) return {};
  if (count == 1) return TRegion(rects[0]);
  return UniteAll(rects, count / 2).United(UniteAll(rects + count / 2, count - count / 2));
}
bool IsBanded(const std::vector<TRect>& rects) {
  std::size_t band = 0, previous = 0, previousEnd = 0;
  for (std::size_t i = 1; i <= rects.size(); ++i) {
    if (i < rects.size() && rects[i].Top == rects[band].Top) {
      if (rects[i].Bottom != rects[band].Bottom || rects[i].Left <= rects[i - 1].Right) return false;
      continue;
    }
    // A band is complete: it must not continue the one above with the same spans.
    if (previousEnd - previous == i - band && previousEnd != 0 && rects[previous].Bottom == rects[band].Top &&
        std::equal(rects.begin() + static_cast<std::ptrdiff_t>(band),
                   rects.begin() + static_cast<std::ptrdiff_t>(i),
                   rects.begin() + static_cast<std::ptrdiff_t>(previous),
                   [](const TRect& a, const TRect& b) { return a.Left == b.Left && a.Right == b.Right; }))
      return false;
    if (i < rects.size() && rects[i].Top < rects[band].Bottom) return false;
    previous = band;
    previousEnd = i;
    band = i;
  }
  return true;
}
}  // namespace

void TRegion::RequireCount(std::size_t rects) {
  if (rects > MaxRects)
    throw EInvalidRegion(
        QStringLiteral("The region has %1 rectangles; at most %2 are kept. Make the picture smaller or "
                       "take its noise out first.")
            .arg(rects)
            .arg(MaxRects));
}

QByteArray TRegion::ToData() const {
  QByteArray data(static_cast<qsizetype>(HeaderSize + rects_.size() * RectSize), Qt::Uninitialized);
  char* to = data.data();
  Put(to, HeaderSize);
  Put(to, 1);
  Put(to, static_cast<std::int32_t>(rects_.size()));
  Put(to, static_cast<std::int32_t>(rects_.size() * RectSize));
  const auto put = [&to](const TRect& r) {
    Put(to, r.Left);
    Put(to, r.Top);
    Put(to, r.Right);
    Put(to, r.Bottom);
  };
  put(bounds_);
  for (const TRect& r : rects_) put(r);
  return data;
}

TRegion TRegion::FromData(QByteArrayView data) {
  const auto size = static_cast<std::size_t>(data.size());
  if (size < HeaderSize) Refuse(QStringLiteral("%1 bytes are too few for the header of 32").arg(data.size()));
  const char* from = data.data();
  if (const std::int32_t header = Get(from); header != HeaderSize)
    Refuse(QStringLiteral("the header gives its own size as %1 instead of 32").arg(header));
  if (const std::int32_t kind = Get(from); kind != 1)
    Refuse(QStringLiteral("its kind is %1 instead of 1, rectangles").arg(kind));
  const std::int32_t count = Get(from);
  const std::int32_t bytes = Get(from);
  const std::size_t room = (size - HeaderSize) / RectSize;
  if (count < 0 || static_cast<std::size_t>(count) != room || size != HeaderSize + room * RectSize)
    Refuse(QStringLiteral("%1 rectangles are announced and %2 bytes follow the header")
               .arg(count)
               .arg(size - HeaderSize));
  RequireCount(room);
  if (bytes != 0 && bytes != count * static_cast<std::int32_t>(RectSize))
    Refuse(QStringLiteral("the header announces %1 bytes for %2 rectangles").arg(bytes).arg(count));
  from += RectSize;  // the bounds are computed anew
  std::vector<TRect> rects;
  rects.reserve(room);
  for (std::size_t i = 0; i < room; ++i) {
    TRect r;
    r.Left = Get(from);
    r.Top = Get(from);
    r.Right = Get(from);
    r.Bottom = Get(from);
    const auto text = [&] {
      return QStringLiteral("rectangle %1 (%2, %3, %4, %5)")
          .arg(i)
          .arg(r.Left)
          .arg(r.Top)
          .arg(r.Right)
          .arg(r.Bottom);
    };
    if (r.Empty()) Refuse(text() + QStringLiteral(" is empty or turned round"));
    if (std::min({r.Left, r.Top}) < -MaxCoordinate || std::max({r.Right, r.Bottom}) > MaxCoordinate)
      Refuse(text() + QStringLiteral(" is out of range"));
    rects.push_back(r);
  }
  if (!IsBanded(rects)) return UniteAll(rects.data(), rects.size());
  TBandBuilder builder;
  Spans spans;
  for (std::size_t i = 0; i < rects.size();) {
    spans.clear();
    const std::size_t band = i;
    for (; i < rects.size() && rects[i].Top == rects[band].Top; ++i)
      spans.emplace_back(rects[i].Left, rects[i].Right);
    builder.AddBand(rects[band].Top, rects[band].Bottom, spans);
  }
  return builder.Take();
}

void TBandBuilder::CloseBand(std::int32_t bottom) {
  auto& rects = region_.rects_;
  // A band of one row has its bottom already.
  if (bandStart_ < rects.size() && rects[bandStart_].Bottom != bottom)
    for (std::size_t i = bandStart_; i < rects.size(); ++i) rects[i].Bottom = bottom;
  bandStart_ = rects.size();
}

void TBandBuilder::AddRow(std::int32_t y, const std::uint64_t* mask, std::size_t words) {
  auto& rects = region_.rects_;
  ++rowsDone_;
  if (words == 0) return;
  const bool open = bandStart_ < rects.size();
  // A band that came in another form, or in rows of another length, is compared by its rectangles.
  const bool compare = open && bandEnd_ == y && lastMask_.size() != words;
  const std::size_t above = bandStart_;
  if (open) {
    if (bandEnd_ == y && lastMask_.size() == words && std::memcmp(lastMask_.data(), mask, words * 8) == 0) {
      bandEnd_ = y + 1;
      return;
    }
    CloseBand(bandEnd_);
  }
  // Every change of a bit is the start or the end of a run, in turns.
  edges_.resize(words * 64 + 1);
  std::int32_t* edge = edges_.data();
  std::uint64_t carry = 0;
  for (std::size_t w = 0; w < words; ++w) {
    const auto base = static_cast<std::int32_t>(w * 64);
    for (std::uint64_t bits = mask[w] ^ (mask[w] << 1 | carry); bits; bits &= bits - 1)
      *edge++ = base + std::countr_zero(bits);
    carry = mask[w] >> 63;
  }
  if (carry) *edge++ = static_cast<std::int32_t>(words * 64);
  const auto runs = static_cast<std::size_t>(edge - edges_.data()) / 2;
  if (runs == 0) return;
  lastMask_.assign(mask, mask + words);
  if (const std::size_t needed = rects.size() + runs; rects.capacity() < needed) {
    // As many as there will be when the rest is like the rows so far.
    const auto rest = static_cast<std::size_t>(std::max(rows_ - rowsDone_, 0));
    const std::size_t likely = needed + needed * rest / static_cast<std::size_t>(rowsDone_);
    rects.reserve(std::max(rects.capacity() * 2, likely + likely / 16));
  }
  rects.resize(rects.size() + runs);
  TRect* to = rects.data() + bandStart_;
  for (std::size_t i = 0; i < runs; ++i) to[i] = {edges_[2 * i], y, edges_[2 * i + 1], y + 1};
  Widen(edges_.front(), edge[-1]);
  bandEnd_ = y + 1;
  if (compare && bandStart_ - above == runs) {
    const auto first = rects.begin() + static_cast<std::ptrdiff_t>(above);
    const auto last = rects.begin() + static_cast<std::ptrdiff_t>(bandStart_);
    if (std::equal(first, last, last,
                   [](const TRect& a, const TRect& b) { return a.Left == b.Left && a.Right == b.Right; })) {
      rects.resize(bandStart_);
      bandStart_ = above;
    }
  }
}

void TBandBuilder::AddBand(std::int32_t top, std::int32_t bottom,
                           const std::vector<std::pair<std::int32_t, std::int32_t>>& spans) {
  auto& rects = region_.rects_;
  lastMask_.clear();
  if (bandStart_ < rects.size()) {
    if (bandEnd_ == top && rects.size() - bandStart_ == spans.size() &&
        std::equal(spans.begin(), spans.end(), rects.begin() + static_cast<std::ptrdiff_t>(bandStart_),
                   [](const auto& s, const TRect& r) { return s.first == r.Left && s.second == r.Right; })) {
      bandEnd_ = bottom;
      return;
    }
    CloseBand(bandEnd_);
  }
  for (const auto& [left, right] : spans) rects.push_back({left, top, right, bottom});
  if (!spans.empty()) Widen(spans.front().first, spans.back().second);
  bandEnd_ = bottom;
}

TRegion TBandBuilder::Take() {
  CloseBand(bandEnd_);
  auto& rects = region_.rects_;
  if (!rects.empty()) region_.bounds_ = {left_, rects.front().Top, right_, rects.back().Bottom};
  left_ = INT32_MAX;
  right_ = INT32_MIN;
  bandStart_ = 0;
  bandEnd_ = 0;
  return std::exchange(region_, TRegion());
}
