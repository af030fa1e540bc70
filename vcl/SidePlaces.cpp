#include "vcl/SidePlaces.h"

#include <algorithm>

#include "vcl/Control.h"
#include "vcl/SideLayout.h"

namespace {
using enum TAnchorKind;

// One end of a control along an axis.
struct End {
  TAnchorKind anchor;
  const TKept<TAnchorSide*>& side;
  const TKept<int>& space;
};
struct Axis {
  End near, far;
  const TKept<int>& parentSpace;   // to the edge of the parent
  const TKept<int>& siblingSpace;  // between siblings
};
const Axis Across{{akLeft, TControl::AnchorSideLeft, TControlBorderSpacing::Left},
                  {akRight, TControl::AnchorSideRight, TControlBorderSpacing::Right},
                  TControlChildSizing::LeftRightSpacing,
                  TControlChildSizing::HorizontalSpacing};
const Axis Down{{akTop, TControl::AnchorSideTop, TControlBorderSpacing::Top},
                {akBottom, TControl::AnchorSideBottom, TControlBorderSpacing::Bottom},
                TControlChildSizing::TopBottomSpacing,
                TControlChildSizing::VerticalSpacing};

struct Extent {
  int from = 0, size = 0;
};
Extent Along(const Axis& axis, const QRect& r) {
  return &axis == &Across ? Extent{r.left(), r.width()} : Extent{r.top(), r.height()};
}

int SpaceOf(const TControl& control, const End& end) {
  if (!control.IsKept(&TControl::BorderSpacing)) return 0;
  const auto& spacing = *control.Get(TControl::BorderSpacing);
  return spacing.Get(end.space) + spacing.Get(TControlBorderSpacing::Around);
}
int SpaceOf(const TWinControl& parent, const TKept<int>& space) {
  return parent.IsKept(&TWinControl::ChildSizing) ? parent.Get(TWinControl::ChildSizing)->Get(space) : 0;
}

// Where the end is tied to; with `centred`, the middle of the control.
struct Tie {
  int at = 0;
  bool centred = false;
};
std::optional<Tie> TieOf(const TControl& control, const Axis& axis, const End& end) {
  if (!control.Anchors().Contains(end.anchor) || !control.IsKept(&end.side)) return {};
  const TAnchorSide& side = *control.Get(end.side);
  const auto* other = As<TControl>(side.Get(TAnchorSide::Control));
  const TWinControl& parent = *control.Parent();
  if (!other || (other != &parent && other->Parent() != &parent)) return {};
  const bool inside = other == &parent;
  const bool far = &end == &axis.far;
  const bool otherFar = side.Get(TAnchorSide::Side) == TAnchorSideReference::asrBottom;
  const Extent extent =
      Along(axis, inside ? QRect(QPoint(0, 0), parent.ClientRect().size()) : other->BoundsRect());
  if (side.Get(TAnchorSide::Side) == TAnchorSideReference::asrCenter)
    return Tie{extent.from + extent.size / 2, true};
  // The largest distance that somebody wants counts.
  int distance = SpaceOf(control, end);
  if (inside)
    distance = std::max(distance, SpaceOf(parent, axis.parentSpace));
  else if (far != otherFar)
    distance =
        std::max({distance, SpaceOf(*other, far ? axis.near : axis.far), SpaceOf(parent, axis.siblingSpace)});
  const int edge = extent.from + (otherFar ? extent.size : 0);
  return Tie{far ? edge - distance : edge + distance};
}

Extent PlaceAlong(const TControl& control, const Axis& axis, bool placeGiven, bool sizeGiven) {
  Extent e = Along(axis, control.BoundsRect());
  const auto near = TieOf(control, axis, axis.near), far = TieOf(control, axis, axis.far);
  const auto middle = near && near->centred ? near : far && far->centred ? far : std::nullopt;
  if (middle) {
    if (!placeGiven) e.from = middle->at - e.size / 2;
    return e;
  }
  if (near && !placeGiven) e.from = near->at;
  if (far && !sizeGiven && (near || placeGiven)) e.size = std::max(0, far->at - e.from);
  if (far && !near && !placeGiven) e.from = far->at - e.size;
  return e;
}

// Nobody lays out meanwhile.
class StillHost : public IControlHost {
 public:
  void ControlChanged(TControl&) override {}
  bool LayoutFrozen() const override { return true; }
};
}  // namespace

// Knows what of a control's bounds is given.
class SidePlaces {
 public:
  static void Collect(const TWinControl& container, std::vector<TControl*>& out) {
    for (TControl* c : container.Controls()) {
      const TControl::Given& g = c->given_;
      const bool all = g.left && g.top && g.width && g.height;
      if (!all && c->Align() == TAlign::alNone &&
          std::any_of(std::begin(Sides), std::end(Sides), [&](const auto* s) { return c->IsKept(s); }))
        out.push_back(c);
      if (const auto* inner = As<TWinControl>(c)) Collect(*inner, out);
    }
  }
  static bool Place(TControl& c) {
    const TControl::Given& g = c.given_;
    const Extent x = PlaceAlong(c, Across, g.left, g.width), y = PlaceAlong(c, Down, g.top, g.height);
    const QRect bounds(x.from, y.from, x.size, y.size);
    if (bounds == c.BoundsRect()) return false;
    c.Follow(bounds);
    return true;
  }

 private:
  static constexpr const TKept<TAnchorSide*>* Sides[] = {&TControl::AnchorSideLeft, &TControl::AnchorSideTop,
                                                         &TControl::AnchorSideRight,
                                                         &TControl::AnchorSideBottom};
};

void PlaceBySides(TWinControl& container) {
  std::vector<TControl*> tied;
  SidePlaces::Collect(container, tied);
  if (tied.empty()) return;
  StillHost still;
  const bool alone = !container.FindHost();
  if (alone) container.SetHost(&still);
  // What one is tied to may be found only after it; ties in a circle come to nothing.
  constexpr int Rounds = 32;
  bool moved = true;
  for (int round = 0; moved && round < Rounds; ++round) {
    moved = false;
    for (TControl* c : tied) moved = SidePlaces::Place(*c) || moved;
  }
  if (alone) container.SetHost(nullptr);
}
