#include "vcl/Layout.h"

#include <algorithm>
#include <cstdint>

namespace {
// How far along its axis a control stands from the edge it is aligned to. What only changed its size keeps
// its place in the row.
int Distance(TAlign align, const QRect& r) {
  switch (align) {
    case TAlign::alTop:
      return r.top();
    case TAlign::alBottom:
      return -(r.top() + r.height());
    case TAlign::alLeft:
      return r.left();
    case TAlign::alRight:
      return -(r.left() + r.width());
    default:
      return 0;
  }
}

struct Span {
  int from, size;
};
// Where an anchored control is drawn to when an edge moves: with one edge, or stretched between both. What no
// edge holds keeps the ratio in which its middle stands, for which the room counts.
Span AnchoredSpan(bool near, bool far, int room) {
  if (near) return {0, far ? room : 0};
  return {room, 0};
}

// The near edge of what no edge holds. It never moves by more than the room has changed: what stands beside a
// room that does not hold it would be flung about.
int Floated(int from, int size, int before, int after) {
  if (before <= 0 || before == after) return from;
  const std::int64_t middle = from + size / 2, half = middle < 0 ? -before / 2 : before / 2;
  const int to = static_cast<int>((middle * after + half) / before) - size / 2;
  const int change = std::abs(after - before);
  return std::clamp(to, from - change, from + change);
}

bool Floats(const Placement& was, const Placement& now, TAnchorKind near, TAnchorKind far) {
  const auto held = [&](const Placement& p) { return p.anchors.Contains(near) || p.anchors.Contains(far); };
  return now.anchored && was.anchored && !held(was) && !held(now);
}

void PlaceAnchored(Placement& p, QSize room) {
  const TAnchors a = p.anchors;
  const Span x =
      AnchoredSpan(a.Contains(TAnchorKind::akLeft), a.Contains(TAnchorKind::akRight), room.width());
  const Span y =
      AnchoredSpan(a.Contains(TAnchorKind::akTop), a.Contains(TAnchorKind::akBottom), room.height());
  p.left = x.from, p.width = x.size, p.top = y.from, p.height = y.size;
  p.anchored = true;
}

// Takes its strip from the room that is left.
void PlaceAligned(Placement& p, int& left, int& top, int& right, int& bottom) {
  const int width = p.stands.width(), height = p.stands.height();
  const QMargins& m = p.margins;
  const int across = m.left() + m.right(), down = m.top() + m.bottom();
  const TAlign align = p.align;
  p.ownsPlace = false;
  p.ownsWidth = align == TAlign::alLeft || align == TAlign::alRight;
  p.ownsHeight = align == TAlign::alTop || align == TAlign::alBottom;
  if (align == TAlign::alBottom) bottom -= height + down;
  if (align == TAlign::alRight) right -= width + across;
  p.left = (align == TAlign::alRight ? right : left) + m.left();
  p.top = (align == TAlign::alBottom ? bottom : top) + m.top();
  p.width = p.ownsWidth ? width : right - left - across;
  p.height = p.ownsHeight ? height : bottom - top - down;
  if (align == TAlign::alTop) top += height + down;
  if (align == TAlign::alLeft) left += width + across;
}

// Lists are alike as a rule, so the same place is looked at first.
const Placement* Find(const Placements& all, const TControl* control, std::size_t likely) {
  if (likely < all.size() && all[likely].control == control) return &all[likely];
  const auto it =
      std::find_if(all.begin(), all.end(), [&](const Placement& p) { return p.control == control; });
  return it == all.end() ? nullptr : &*it;
}

// By how much the file's edges differ from the computed ones, as aligned neighbours show; for what has just
// been aligned.
QMargins Discrepancy(const QRect& room, const Placements& before) {
  QMargins d;
  for (const Placement& p : before) {
    if (p.ownsPlace) continue;
    const QMargins& m = p.margins;
    if (p.width >= 0 && p.left - m.left() == room.left()) d.setLeft(p.stands.left() - p.left);
    if (p.height >= 0 && p.top - m.top() == room.top()) d.setTop(p.stands.top() - p.top);
    if (p.width >= 0 && p.left + p.width + m.right() == room.left() + room.width())
      d.setRight(p.stands.left() + p.stands.width() - p.left - p.width);
    if (p.height >= 0 && p.top + p.height + m.bottom() == room.top() + room.height())
      d.setBottom(p.stands.top() + p.stands.height() - p.top - p.height);
  }
  return d;
}

QRect JustAligned(const Placement& now, const QMargins& d) {
  const TAlign align = now.align;
  int left = now.left + (align == TAlign::alRight ? d.right() : d.left());
  int top = now.top + (align == TAlign::alBottom ? d.bottom() : d.top());
  const int width = now.ownsWidth ? now.width : now.left + now.width + d.right() - left;
  const int height = now.ownsHeight ? now.height : now.top + now.height + d.bottom() - top;
  return {left, top, std::max(width, 0), std::max(height, 0)};
}

QRect NewBounds(const Placement* was, const Placement& now, const QMargins& discrepancy) {
  if (!now.ownsPlace && (!was || was->ownsPlace)) return JustAligned(now, discrepancy);
  if (!was || (now.ownsPlace && (!was->ownsPlace || was->anchored != now.anchored))) return now.stands;
  // A value that the edges decide starts from where it was, so that an edit of it is taken back.
  const QRect own = now.stands;
  const QRect placed = now.ownsPlace ? own : was->stands;
  const bool keepsWidth = now.ownsWidth && !now.ownsPlace, keepsHeight = now.ownsHeight && !now.ownsPlace;
  const auto size = [](bool owned, bool wasOwned, int stands, int before, int after) {
    return owned ? stands : wasOwned ? std::max(after, 0) : MovedByDifference(stands, before, after, true);
  };
  const int left = Floats(*was, now, TAnchorKind::akLeft, TAnchorKind::akRight)
                       ? Floated(own.left(), own.width(), was->left, now.left)
                       : MovedByDifference(placed.left(), was->left, now.left, false);
  const int top = Floats(*was, now, TAnchorKind::akTop, TAnchorKind::akBottom)
                      ? Floated(own.top(), own.height(), was->top, now.top)
                      : MovedByDifference(placed.top(), was->top, now.top, false);
  return {left, top,
          now.ownsPlace ? MovedByDifference(own.width(), was->width, now.width, true)
                        : size(keepsWidth, was->ownsWidth, keepsWidth ? own.width() : placed.width(),
                               was->width, now.width),
          now.ownsPlace ? MovedByDifference(own.height(), was->height, now.height, true)
                        : size(keepsHeight, was->ownsHeight, keepsHeight ? own.height() : placed.height(),
                               was->height, now.height)};
}
}  // namespace

int MovedByDifference(int stands, int before, int after, bool size) {
  if (!size) return stands == before ? after : stands + after - before;
  return std::max(stands == std::max(before, 0) ? after : stands + after - before, 0);
}

void PlaceAt(Placement& p, QPoint place) {
  p.ownsPlace = false;
  p.ownsWidth = p.ownsHeight = true;
  p.left = place.x(), p.top = place.y(), p.width = p.stands.width(), p.height = p.stands.height();
}

void Arrange(Placements& all, const QRect& client, const QMargins& insets, const Placements* before) {
  std::vector<std::pair<int, std::size_t>> row;
  for (Placement& p : all)
    if (p.align == TAlign::alNone) PlaceAnchored(p, client.size());
  int left = client.left() + insets.left(), top = client.top() + insets.top();
  int right = client.left() + client.width() - insets.right();
  int bottom = client.top() + client.height() - insets.bottom();
  for (const TAlign pass :
       {TAlign::alTop, TAlign::alBottom, TAlign::alLeft, TAlign::alRight, TAlign::alClient}) {
    row.clear();
    for (std::size_t i = 0; i < all.size(); ++i) {
      const Placement& p = all[i];
      if (p.align != pass || !p.takesPart) continue;
      const Placement* was = before ? Find(*before, p.control, i) : nullptr;
      const bool resized = was && was->stands.size() != p.stands.size();
      row.emplace_back(Distance(p.align, resized ? was->stands : p.stands), i);
    }
    std::stable_sort(row.begin(), row.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& [distance, i] : row) PlaceAligned(all[i], left, top, right, bottom);
  }
}

std::vector<QRect> BoundsAfter(const Placements& before, const Placements& after, const QRect& room) {
  const QMargins discrepancy = Discrepancy(room, before);
  std::vector<QRect> bounds;
  for (std::size_t i = 0; i < after.size(); ++i)
    bounds.push_back(NewBounds(Find(before, after[i].control, i), after[i], discrepancy));
  return bounds;
}
