#include "vcl/Control.h"

const TClass& TWinControl::StaticClass() {
  static const TTypeInfo tabOrder = OrdinalType("TTabOrder", -1, INT16_MAX);
  static const TClass cls(DescribeClass<TWinControl>("TWinControl", TControl::StaticClass())
                              .Declared("TabOrder", &TWinControl::TabOrder, &TWinControl::SetTabOrder, -1)
                              .Type(tabOrder)
                              .Doc(QStringLiteral("Place in the order in which Tab visits the controls."))
                              .Declared("TabStop", &TWinControl::TabStop, &TWinControl::SetTabStop, false)
                              .Doc(QStringLiteral("Whether Tab stops here."))
                              .DeclaredEvent("OnEnter")
                              .DeclaredEvent("OnExit")
                              .DeclaredEvent("OnKeyDown", "TKeyEvent")
                              .DeclaredEvent("OnKeyPress", "TKeyPressEvent")
                              .DeclaredEvent("OnKeyUp", "TKeyEvent"));
  return cls;
}

TWinControl::~TWinControl() {
  // Children that somebody else owns stay alive, without a parent.
  for (TControl* c : std::exchange(controls_, {})) c->parent_ = nullptr;
}

void TWinControl::InsertControl(TControl* control) {
  controls_.push_back(control);
  control->parent_ = this;
  control->ParentLookChanged();
  Realign();
  control->Invalidate();
}

void TWinControl::RemoveControl(TControl* control) {
  const auto it = std::find(controls_.rbegin(), controls_.rend(), control);
  if (it == controls_.rend()) return;
  control->Invalidate();
  controls_.erase(std::next(it).base());
  control->parent_ = nullptr;
  if (control->Align() != TAlign::alNone) Realign();
}

int TWinControl::ControlIndex(const TControl* control) const {
  const auto it = std::find(controls_.begin(), controls_.end(), control);
  return it == controls_.end() ? -1 : static_cast<int>(it - controls_.begin());
}

void TWinControl::SetControlIndex(TControl* control, int index) {
  const int from = ControlIndex(control);
  if (from < 0 || index < 0 || index >= static_cast<int>(controls_.size()) || from == index) return;
  controls_.erase(controls_.begin() + from);
  controls_.insert(controls_.begin() + index, control);
  Realign();
  Invalidate();
}

std::vector<TComponent*> TWinControl::GetChildren() const {
  std::vector<TComponent*> result(controls_.begin(), controls_.end());
  const std::vector<TComponent*> others = TControl::GetChildren();
  result.insert(result.end(), others.begin(), others.end());
  return result;
}

void TWinControl::DoChanged() {
  for (TControl* c : controls_) c->ParentLookChanged();
  TControl::DoChanged();
}

void TWinControl::SetBounds(int left, int top, int width, int height) {
  const QSize before = ClientRect().size();
  TControl::SetBounds(left, top, width, height);
  const QSize after = ClientRect().size();
  if (before == after || IsLoading() || IsLayoutFrozen()) return;
  const int dx = after.width() - before.width();
  const int dy = after.height() - before.height();
  for (TControl* c : controls_) {
    if (c->Align() != TAlign::alNone) continue;
    QRect r = c->BoundsRect();
    const TAnchors a = c->Anchors();
    if (a.Contains(TAnchorKind::akRight)) {
      if (!a.Contains(TAnchorKind::akLeft))
        r.translate(dx, 0);
      else
        r.setWidth(r.width() + dx);
    }
    if (a.Contains(TAnchorKind::akBottom)) {
      if (!a.Contains(TAnchorKind::akTop))
        r.translate(0, dy);
      else
        r.setHeight(r.height() + dy);
    }
    c->SetBounds(r.left(), r.top(), r.width(), r.height());
  }
  Realign();
}

void TWinControl::Realign() {
  if (realigning_ || IsLoading() || IsDestroying() || IsLayoutFrozen()) return;
  realigning_ = true;
  QRect left = ClientRect();
  for (const TAlign pass :
       {TAlign::alTop, TAlign::alBottom, TAlign::alLeft, TAlign::alRight, TAlign::alClient}) {
    std::vector<TControl*> row;
    for (TControl* c : controls_)
      if (c->Align() == pass && (c->Visible() || IsDesigning())) row.push_back(c);
    // Who is nearer to the edge stays nearer.
    std::stable_sort(row.begin(), row.end(), [pass](const TControl* a, const TControl* b) {
      switch (pass) {
        case TAlign::alTop:
          return a->Top() < b->Top();
        case TAlign::alBottom:
          return a->Top() + a->Height() > b->Top() + b->Height();
        case TAlign::alLeft:
          return a->Left() < b->Left();
        case TAlign::alRight:
          return a->Left() + a->Width() > b->Left() + b->Width();
        default:
          return false;
      }
    });
    for (TControl* c : row) {
      QRect r = left;
      switch (pass) {
        case TAlign::alTop:
          r.setHeight(c->Height());
          left.setTop(r.top() + r.height());
          break;
        case TAlign::alBottom:
          r.setTop(left.top() + left.height() - c->Height());
          r.setHeight(c->Height());
          left.setHeight(left.height() - c->Height());
          break;
        case TAlign::alLeft:
          r.setWidth(c->Width());
          left.setLeft(r.left() + r.width());
          break;
        case TAlign::alRight:
          r.setLeft(left.left() + left.width() - c->Width());
          r.setWidth(c->Width());
          left.setWidth(left.width() - c->Width());
          break;
        default:
          break;
      }
      c->SetBounds(r.left(), r.top(), std::max(r.width(), 0), std::max(r.height(), 0));
    }
  }
  realigning_ = false;
}

void TWinControl::Loaded() {
  TControl::Loaded();
  Realign();
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
void PaintChildren(TWinControl& container, QPainter& painter, bool windowed) {
  for (TControl* c : container.Controls()) {
    if ((dynamic_cast<TWinControl*>(c) != nullptr) != windowed) continue;
    if (!c->Visible() && !c->IsDesigning()) continue;
    painter.save();
    painter.translate(c->Left(), c->Top());
    painter.setClipRect(QRect(0, 0, c->Width(), c->Height()), Qt::IntersectClip);
    if (!painter.clipBoundingRect().isEmpty()) PaintControl(*c, painter);
    painter.restore();
  }
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
    PaintChildren(*container, painter, false);
    PaintChildren(*container, painter, true);
    painter.restore();
  }
}
