#include <exception>

#include "rtl/ValueList.h"
#include "vcl/Control.h"
#include "vcl/SideLayout.h"

const TClass& TWinControl::StaticClass() {
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
          .DeclaredEvent("OnUTF8KeyPress", "TUTF8KeyPressEvent")
          .Streamed("ClientHeight", &TWinControl::ToldClientHeight, &TWinControl::TellClientHeight)
          .StoredIf(&TWinControl::ClientHeightTold)
          .Streamed("ClientWidth", &TWinControl::ToldClientWidth, &TWinControl::TellClientWidth)
          .StoredIf(&TWinControl::ClientWidthTold)
          .StreamedPassive<TControlChildSizing*>("ChildSizing")
          .StreamedPassive<TValueList*>("DesignSize"));
  return cls;
}

// Some form files tell the client area, too. It follows the size as it stood to it; what the control shows,
// and the size of one that sizes itself, have nothing to do with it.
void TWinControl::TellClientWidth(int v) {
  if (v == ToldClientWidth()) return;
  TComponent::DoChanging();
  clientExtra_[0] = v - Width();
}
void TWinControl::TellClientHeight(int v) {
  if (v == ToldClientHeight()) return;
  TComponent::DoChanging();
  clientExtra_[1] = v - Height();
}

TWinControl::~TWinControl() {
  // Children that somebody else owns stay alive, without a parent.
  for (TControl* c : std::exchange(controls_, {})) c->parent_ = nullptr;
}

void TWinControl::InsertControl(TControl* control) {
  {
    const LayoutChange among(control->Align() != TAlign::alNone ? this : nullptr);
    controls_.push_back(control);
    control->parent_ = this;
  }
  control->ParentLookChanged();
  control->Invalidate();
  if (IControlHost* host = FindHost()) host->ControlPlaced(*control);
}

void TWinControl::RemoveControl(TControl* control) {
  const auto it = std::find(controls_.rbegin(), controls_.rend(), control);
  if (it == controls_.rend()) return;
  const LayoutChange among(control->Align() != TAlign::alNone ? this : nullptr);
  control->Invalidate();
  controls_.erase(std::next(it).base());
  control->parent_ = nullptr;
}

int TWinControl::ControlIndex(const TControl* control) const {
  const auto it = std::find(controls_.begin(), controls_.end(), control);
  return it == controls_.end() ? -1 : static_cast<int>(it - controls_.begin());
}

void TWinControl::SetControlIndex(TControl* control, int index) {
  const int from = ControlIndex(control);
  if (from < 0 || index < 0 || index >= static_cast<int>(controls_.size()) || from == index) return;
  const LayoutChange among(control->Align() != TAlign::alNone ? this : nullptr);
  controls_.erase(controls_.begin() + from);
  controls_.insert(controls_.begin() + index, control);
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
  const LayoutChange inside(QSize(width, height) == BoundsRect().size() ? nullptr : this);
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
}  // namespace

LayoutChange::LayoutChange(TWinControl* container) {
  if (!container || container->layoutChanging_ || container->IsLoading() || container->IsDestroying() ||
      container->IsLayoutFrozen())
    return;
  container_ = container;
  container_->layoutChanging_ = true;
  exceptions_ = std::uncaught_exceptions();
  before_ = Arranged(nullptr);
}

LayoutChange::~LayoutChange() {
  if (!container_) return;
  if (std::uncaught_exceptions() == exceptions_ && !container_->IsDestroying()) {
    const Placements after = Arranged(&before_);
    const std::vector<QRect> bounds = BoundsAfter(before_, after, container_->ClientRect());
    for (std::size_t i = 0; i < after.size(); ++i) after[i].control->Follow(bounds[i]);
  }
  container_->layoutChanging_ = false;
}

Placements LayoutChange::Arranged(const Placements* before) const {
  Placements all;
  const auto& controls = container_->Controls();
  if (std::all_of(controls.begin(), controls.end(), FollowsNothing)) return all;
  all.reserve(controls.size());
  for (TControl* c : controls)
    all.push_back({.control = c,
                   .stands = c->BoundsRect(),
                   .align = c->Align(),
                   .anchors = c->Anchors(),
                   .takesPart = TakesPart(*c)});
  Arrange(all, container_->ClientRect(), before);
  return all;
}
