#include "vcl/Layout.h"

#include <algorithm>
#include <exception>

#include "vcl/Control.h"

namespace {
bool TakesPart(const TControl& c) { return c.Visible() || c.IsDesigning(); }

bool IsAligned(const TControl& c) {
  return c.Align() != TAlign::alNone && c.Align() != TAlign::alCustom && TakesPart(c);
}

bool FollowsNothing(const TControl& c) { return !IsAligned(c) && c.Anchors() == DefaultAnchors; }

// How far along its axis a control stands from the edge it is aligned to. What only changed its size keeps
// its place in the row.
int Distance(const TControl& c, const QRect& r) {
  switch (c.Align()) {
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
// Where an anchored control is drawn to when an edge moves: with one edge, stretched between both, or with
// the middle.
Span AnchoredSpan(bool near, bool far, int room) {
  if (near) return {0, far ? room : 0};
  return {far ? room : room / 2, 0};
}

void PlaceAnchored(Placement& p, QSize room) {
  const TAnchors a = p.control->Anchors();
  const Span x =
      AnchoredSpan(a.Contains(TAnchorKind::akLeft), a.Contains(TAnchorKind::akRight), room.width());
  const Span y =
      AnchoredSpan(a.Contains(TAnchorKind::akTop), a.Contains(TAnchorKind::akBottom), room.height());
  p.left = x.from, p.width = x.size, p.top = y.from, p.height = y.size;
  p.anchored = true;
}

// Takes its strip from the room that is left.
void PlaceAligned(Placement& p, int& left, int& top, int& right, int& bottom) {
  const int width = p.control->Width(), height = p.control->Height();
  const TAlign align = p.control->Align();
  p.ownsPlace = false;
  p.ownsWidth = align == TAlign::alLeft || align == TAlign::alRight;
  p.ownsHeight = align == TAlign::alTop || align == TAlign::alBottom;
  if (align == TAlign::alBottom) bottom -= height;
  if (align == TAlign::alRight) right -= width;
  p.left = align == TAlign::alRight ? right : left;
  p.top = align == TAlign::alBottom ? bottom : top;
  p.width = p.ownsWidth ? width : right - left;
  p.height = p.ownsHeight ? height : bottom - top;
  if (align == TAlign::alTop) top += height;
  if (align == TAlign::alLeft) left += width;
}

const Placement* Find(const std::vector<Placement>& all, const TControl* control) {
  const auto it =
      std::find_if(all.begin(), all.end(), [&](const Placement& p) { return p.control == control; });
  return it == all.end() ? nullptr : &*it;
}

// `before`: the placements before the change, which decide the order of what only changed its size.
std::vector<Placement> Arrange(const TWinControl& container, const std::vector<Placement>* before) {
  std::vector<Placement> all;
  const auto& controls = container.Controls();
  if (std::all_of(controls.begin(), controls.end(), [](const TControl* c) { return FollowsNothing(*c); }))
    return all;
  all.reserve(controls.size());
  const QRect room = container.ClientRect();
  std::vector<std::pair<int, std::size_t>> row;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    all.push_back({.control = controls[i], .stands = controls[i]->BoundsRect()});
    if (controls[i]->Align() == TAlign::alNone) PlaceAnchored(all.back(), room.size());
  }
  int left = room.left(), top = room.top(), right = left + room.width(), bottom = top + room.height();
  for (const TAlign pass :
       {TAlign::alTop, TAlign::alBottom, TAlign::alLeft, TAlign::alRight, TAlign::alClient}) {
    row.clear();
    for (std::size_t i = 0; i < all.size(); ++i) {
      const TControl& c = *all[i].control;
      if (c.Align() != pass || !TakesPart(c)) continue;
      // Lists are alike as a rule, so the same place is looked at first.
      const Placement* was = before && i < before->size() && (*before)[i].control == &c ? &(*before)[i]
                             : before                                                   ? Find(*before, &c)
                                                                                        : nullptr;
      const bool resized = was && was->stands.size() != all[i].stands.size();
      row.emplace_back(Distance(c, resized ? was->stands : all[i].stands), i);
    }
    std::stable_sort(row.begin(), row.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& [distance, i] : row) PlaceAligned(all[i], left, top, right, bottom);
  }
  return all;
}

// By how much the file's edges differ from the computed ones, as aligned neighbours show; for what has just
// been aligned.
QMargins Discrepancy(const TWinControl& container, const std::vector<Placement>& before) {
  QMargins d;
  const QRect room = container.ClientRect();
  for (const Placement& p : before) {
    if (p.ownsPlace) continue;
    if (p.width >= 0 && p.left == room.left()) d.setLeft(p.stands.left() - p.left);
    if (p.height >= 0 && p.top == room.top()) d.setTop(p.stands.top() - p.top);
    if (p.width >= 0 && p.left + p.width == room.left() + room.width())
      d.setRight(p.stands.left() + p.stands.width() - p.left - p.width);
    if (p.height >= 0 && p.top + p.height == room.top() + room.height())
      d.setBottom(p.stands.top() + p.stands.height() - p.top - p.height);
  }
  return d;
}

QRect JustAligned(const Placement& now, const QMargins& d) {
  const TAlign align = now.control->Align();
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
  return {MovedByDifference(placed.left(), was->left, now.left, false),
          MovedByDifference(placed.top(), was->top, now.top, false),
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

LayoutChange::LayoutChange(TWinControl* container) {
  if (!container || container->layoutChanging_ || container->IsLoading() || container->IsDestroying() ||
      container->IsLayoutFrozen())
    return;
  container_ = container;
  container_->layoutChanging_ = true;
  exceptions_ = std::uncaught_exceptions();
  before_ = Arrange(*container, nullptr);
}

LayoutChange::~LayoutChange() {
  if (!container_) return;
  if (std::uncaught_exceptions() == exceptions_ && !container_->IsDestroying()) {
    const std::vector<Placement> after = Arrange(*container_, &before_);
    const QMargins discrepancy = Discrepancy(*container_, before_);
    for (std::size_t i = 0; i < after.size(); ++i) {
      const Placement& now = after[i];
      const Placement* was =
          i < before_.size() && before_[i].control == now.control ? &before_[i] : Find(before_, now.control);
      now.control->Follow(NewBounds(was, now, discrepancy));
    }
  }
  container_->layoutChanging_ = false;
}
