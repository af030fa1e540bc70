#include <exception>

#include "rtl/ValueList.h"
#include "vcl/Control.h"
#include "vcl/SideLayout.h"

#include "vcl/Placed.h"

const TClass& TWinControl::StaticClass() {
  static const TTypeInfo keyPress = MethodType("TUTF8KeyPressEvent");
  static const TTypeInfo tabOrder = OrdinalType("TTabOrder", -1, INT16_MAX);
  static const TClass cls(
      DescribeClass<TWinControl>("TWinControl", TControl::StaticClass())
          .Declared("TabOrder", &TWinControl::TabOrder, &TWinControl::SetTabOrder, -1)
          .Type(tabOrder)
          .Doc(QStringLiteral("Place in the order in which Tab visits the controls."))
          .Declared("TabStop", &TWinControl::TabStop, &TWinControl::SetTabStop, false)
          .Doc(QStringLiteral("Whether Tab stops here."))
          .DeclaredAll(BevelEdges, BevelInner, BevelKind, BevelOuter, BevelWidth)
          .DeclaredPassive("Ctl3D", true)
          .DeclaredPassive("DockSite", false)
          .DeclaredPassive("DoubleBuffered", false)
          .DeclaredPassive("ImeMode", TImeMode::imDontCare)
          .DeclaredPassive<QString>("ImeName")
          .Declared(Padding)
          .DeclaredPassive("ParentBackground", true)
          .DeclaredPassive("ParentCtl3D", true)
          .DeclaredPassive("ParentDoubleBuffered", true)
          .DeclaredPassive("UseDockManager", false)
          .DeclaredEvent("OnDockDrop", "TDockDropEvent")
          .DeclaredEvent("OnDockOver", "TDockOverEvent")
          .DeclaredEvent("OnEnter")
          .DeclaredEvent("OnExit")
          .DeclaredEvent("OnGetSiteInfo", "TGetSiteInfoEvent")
          .DeclaredEvent("OnKeyDown", "TKeyEvent")
          .DeclaredEvent("OnKeyPress", "TKeyPressEvent")
          .DeclaredEvent("OnKeyUp", "TKeyEvent")
          .DeclaredEvent("OnUnDock", "TUnDockEvent")
          .Streamed("ClientHeight", &TWinControl::ToldClientHeight, &TWinControl::TellClientHeight)
          .StoredIf(&TWinControl::ClientHeightTold)
          .Streamed("ClientWidth", &TWinControl::ToldClientWidth, &TWinControl::TellClientWidth)
          .StoredIf(&TWinControl::ClientWidthTold)
          .Streamed(ChildSizing)
          .StreamedPassive<TValueList*>("DesignSize")
          .StreamedPassive<THandler>("OnUTF8KeyPress")
          .Type(keyPress));
  return cls;
}

// Some form files tell the client area, too. It follows the size as it stood to it; the size of a control
// that sizes itself has nothing to do with it.
void TWinControl::TellClientWidth(int v) {
  if (v == ToldClientWidth()) return;
  TComponent::DoChanging();
  clientExtra_[0] = v - Width();
  Invalidate();
}
void TWinControl::TellClientHeight(int v) {
  if (v == ToldClientHeight()) return;
  TComponent::DoChanging();
  clientExtra_[1] = v - Height();
  Invalidate();
}

std::optional<QRect> TWinControl::ToldClientRect() const {
  if (!clientExtra_[0] || !clientExtra_[1]) return {};
  const int side = -*clientExtra_[0] / 2, top = -*clientExtra_[1] - side;
  if (side < 0 || top < 0) return {};
  return QRect(side, top, std::max(0, ToldClientWidth()), std::max(0, ToldClientHeight()));
}

namespace {
// The room for what is aligned in a container.
struct Surroundings {
  QMargins insets;
  QRect client;
  QSize outer;
  Placements placed;  // of a container that places its controls
};
// What they were before the change that is going on.
QHash<const TWinControl*, Surroundings>& SurroundingsBefore() {
  static QHash<const TWinControl*, Surroundings> all;
  return all;
}
}  // namespace

TWinControl::~TWinControl() {
  SurroundingsBefore().remove(this);
  // Children that somebody else owns stay alive, without a parent.
  for (TControl* c : std::exchange(controls_, {})) c->parent_ = nullptr;
}

void TWinControl::InsertControl(TControl* control) {
  {
    const LayoutChange among(LaysOut(*control) ? this : nullptr);
    controls_.push_back(control);
    control->parent_ = this;
  }
  control->ParentLookChanged();
  ControlsListed();
  control->Invalidate();
  if (IControlHost* host = FindHost()) host->ControlPlaced(*control);
}

void TWinControl::RemoveControl(TControl* control) {
  const auto it = std::find(controls_.rbegin(), controls_.rend(), control);
  if (it == controls_.rend()) return;
  {
    const LayoutChange among(LaysOut(*control) ? this : nullptr);
    control->Invalidate();
    controls_.erase(std::next(it).base());
    control->parent_ = nullptr;
  }
  ControlsListed();
}

int TWinControl::ControlIndex(const TControl* control) const {
  const auto it = std::find(controls_.begin(), controls_.end(), control);
  return it == controls_.end() ? -1 : static_cast<int>(it - controls_.begin());
}

void TWinControl::SetControlIndex(TControl* control, int index) {
  const int from = ControlIndex(control);
  if (from < 0 || index < 0 || index >= static_cast<int>(controls_.size()) || from == index) return;
  {
    const LayoutChange among(LaysOut(*control) ? this : nullptr);
    controls_.erase(controls_.begin() + from);
    controls_.insert(controls_.begin() + index, control);
  }
  ControlsListed();
  Invalidate();
  if (IControlHost* host = FindHost()) host->ControlPlaced(*control);
}

std::vector<TComponent*> TWinControl::GetChildren() const {
  std::vector<TComponent*> result(controls_.begin(), controls_.end());
  const std::vector<TComponent*> others = TControl::GetChildren();
  result.insert(result.end(), others.begin(), others.end());
  return result;
}

void TWinControl::LookChanged() {
  for (TControl* c : controls_) c->ParentLookChanged();
}

void TWinControl::SetBounds(int left, int top, int width, int height) {
  const LayoutChange inside(QSize(width, height) == BoundsRect().size() ? nullptr : this, true);
  TControl::SetBounds(left, top, width, height);
}

TControl* TWinControl::ControlAt(QPoint point) const {
  const auto hit = [&](bool windowed) -> TControl* {
    for (auto it = controls_.rbegin(); it != controls_.rend(); ++it)
      if ((dynamic_cast<TWinControl*>(*it) != nullptr) == windowed &&
          ((*it)->Visible() || (*it)->IsDesigning()) && (*it)->BoundsRect().contains(point))
        return *it;
    return nullptr;
  };
  TControl* found = hit(true);
  return found ? found : hit(false);
}

namespace {
void PaintChild(TControl& control, QPainter& painter) {
  painter.save();
  painter.translate(control.Left(), control.Top());
  painter.setClipRect(control.PaintExtent(), Qt::IntersectClip);
  if (!painter.clipBoundingRect().isEmpty()) PaintControl(control, painter);
  painter.restore();
}

// What is out of sight costs next to nothing: a form may be much larger than its view.
void PaintChildren(TWinControl& container, QPainter& painter) {
  const bool clipped = painter.hasClipping();
  const QRect sight = painter.clipBoundingRect().toAlignedRect();
  std::vector<TControl*> windowed;
  for (TControl* c : container.Controls()) {
    if (clipped && !sight.intersects(c->PaintExtent().translated(c->Left(), c->Top()))) continue;
    if (!c->Visible() && !c->IsDesigning()) continue;
    if (As<TWinControl>(c))
      windowed.push_back(c);
    else
      PaintChild(*c, painter);
  }
  for (TControl* c : windowed) PaintChild(*c, painter);
}
}  // namespace

// Graphic controls lie on their parent's surface, so windowed ones always cover them.
void PaintControl(TControl& control, QPainter& painter) {
  painter.save();
  TCanvas canvas(painter);
  control.Paint(canvas);
  painter.restore();
  if (auto* container = dynamic_cast<TWinControl*>(&control)) {
    painter.save();
    const QRect client = container->ClientRect();
    painter.translate(client.topLeft());
    PaintChildren(*container, painter);
    painter.restore();
  }
}

namespace {
bool TakesPart(const TControl& c) { return c.Visible() || c.IsDesigning(); }

bool FollowsNothing(const TControl* c) {
  const bool aligned = c->Align() != TAlign::alNone && c->Align() != TAlign::alCustom && TakesPart(*c);
  return !aligned && c->Anchors() == DefaultAnchors;
}
Placements Placed(const TWinControl& container, const QRect& client, const QMargins& insets,
                  const Placements* before) {
  Placements all;
  const auto& controls = container.Controls();
  if (!container.PlacesControls() && std::all_of(controls.begin(), controls.end(), FollowsNothing))
    return all;
  all.reserve(controls.size());
  for (TControl* c : controls)
    all.push_back({.control = c,
                   .stands = c->BoundsRect(),
                   .align = c->Align(),
                   .anchors = c->Anchors(),
                   .takesPart = TakesPart(*c),
                   .margins = c->OwnMargins()});
  // Places are counted from the corner of the client area.
  container.ArrangeControls(all, {QPoint(0, 0), client.size()}, insets, before);
  return all;
}
}  // namespace

Placements Placed(const TWinControl& container, const Placements* before) {
  if (container.Controls().empty()) return {};
  return Placed(container, container.ClientRect(), container.Insets(), before);
}

namespace {
Surroundings SurroundingsOf(const TWinControl& container) {
  return {container.Insets(), container.ClientRect(), container.BoundsRect().size(),
          container.PlacesControls() ? Placed(container, nullptr) : Placements()};
}
}  // namespace

bool TWinControl::LaysOut(const TControl& control) const {
  return control.Align() != TAlign::alNone || PlacesControls() || AutoSize();
}

QMargins TWinControl::Insets() const { return IsKept(&Padding) ? Get(Padding)->ToQMargins() : QMargins(); }

void TWinControl::ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                                  const Placements* before) const {
  Arrange(all, client, insets, before);
}

void TWinControl::MarginsChanged(const TControl& control, const QMargins& before) {
  Placements was = Placed(*this, nullptr);
  for (Placement& p : was)
    if (p.control == &control) p.margins = before;
  ArrangeControls(was, {QPoint(0, 0), ClientRect().size()}, Insets(), nullptr);
  const LayoutChange change(this, std::move(was));
}

QSize TWinControl::ContentExtent() const {
  const QRect client = ClientRect();
  const QMargins insets = Insets();
  int right = -1, bottom = -1;
  for (const TControl* c : controls_) {
    if (!TakesPart(*c)) continue;
    const TAlign align = c->Align();
    const QMargins m = c->OwnMargins();
    const bool across = align == TAlign::alNone || align == TAlign::alLeft || align == TAlign::alCustom;
    const bool down = align == TAlign::alNone || align == TAlign::alTop || align == TAlign::alCustom;
    // What follows an edge says nothing of where the edge should be.
    if (across && !c->Anchors().Contains(TAnchorKind::akRight))
      right = std::max(right, c->Left() + c->Width() + m.right());
    if (down && !c->Anchors().Contains(TAnchorKind::akBottom))
      bottom = std::max(bottom, c->Top() + c->Height() + m.bottom());
  }
  return {right < 0 ? Width() : Width() - client.width() + right + insets.right(),
          bottom < 0 ? Height() : Height() - client.height() + bottom + insets.bottom()};
}

void TWinControl::DoChanging() {
  if (!controls_.empty() && !IsLoading() && !IsDestroying() && !layoutChanging_ && !IsLayoutFrozen() &&
      !SurroundingsBefore().contains(this))
    SurroundingsBefore().insert(this, SurroundingsOf(*this));
  TControl::DoChanging();
}

void TWinControl::DoChanged() {
  if (const auto found = SurroundingsBefore().constFind(this); found != SurroundingsBefore().cend()) {
    const Surroundings before = *found;
    SurroundingsBefore().erase(found);
    // Another size has been the matter of SetBounds.
    const QRect client = before.outer == BoundsRect().size() ? before.client : ClientRect();
    if (PlacesControls())
      const LayoutChange change(this, before.placed);
    else if (client.size() != ClientRect().size() || before.insets != Insets())
      const LayoutChange change(this, Placed(*this, client, before.insets, nullptr));
  }
  TControl::DoChanged();
}

void LayoutChange::Begin(TWinControl* container, bool resizes) {
  if (!container || container->layoutChanging_ || container->IsLoading() || container->IsDestroying() ||
      container->IsLayoutFrozen())
    return;
  container_ = container;
  container_->layoutChanging_ = true;
  exceptions_ = std::uncaught_exceptions();
  fits_ = !resizes && container_->AutoSize();
  if (fits_) hint_ = container_->AutoSizeHint();
}

LayoutChange::LayoutChange(TWinControl* container, bool resizes) {
  Begin(container, resizes);
  if (container_) before_ = Placed(*container_, nullptr);
}

LayoutChange::LayoutChange(TWinControl* container, Placements before) : before_(std::move(before)) {
  Begin(container, false);
}

LayoutChange::~LayoutChange() {
  if (!container_) return;
  const bool done = std::uncaught_exceptions() == exceptions_ && !container_->IsDestroying();
  if (done) {
    const Placements after = Placed(*container_, &before_);
    if (!after.empty()) {
      const QRect room(QPoint(0, 0), container_->ClientRect().size());
      const std::vector<QRect> bounds =
          BoundsAfter(before_, after, room.marginsRemoved(container_->Insets()));
      for (std::size_t i = 0; i < after.size(); ++i) after[i].control->Follow(bounds[i]);
    }
  }
  container_->layoutChanging_ = false;
  if (done && fits_) FitContainer();
}

// A container that sizes itself grows with what stands in it.
void LayoutChange::FitContainer() {
  const QSize after = container_->AutoSizeHint();
  if (after == hint_) return;
  const QRect stands = container_->BoundsRect();
  container_->Follow({stands.left(), stands.top(),
                      MovedByDifference(stands.width(), hint_.width(), after.width(), true),
                      MovedByDifference(stands.height(), hint_.height(), after.height(), true)});
}
