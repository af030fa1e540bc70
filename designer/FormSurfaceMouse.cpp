// Mouse on the form: selecting, placing, moving, sizing, dropping into another container.
#include <QtWidgets>

#include "designer/FormSurface.h"
#include "ide/BoundsCheck.h"
#include "ide/operations/Containers.h"
#include "vcl/Book.h"
#include "vcl/TabControl.h"

namespace {
int Snap(int v, int grid) { return static_cast<int>(std::lround(static_cast<double>(v) / grid)) * grid; }
}  // namespace

void FormSurface::mousePressEvent(QMouseEvent* event) {
  if (!session_ || event->button() != Qt::LeftButton) return;
  setFocus();
  pressed_ = current_ = event->pos();
  handle_ = tool_ ? -1 : HandleAt(pressed_);
  const QPoint p = ToForm(pressed_);
  if (tool_) {
    // Nobody would see what stands beside the form.
    if (FormRectOf(session_->Form()).united(QRect({}, DeskSize(*session_))).contains(p))
      action_ = Action::Place;
    else
      emit Notice(tr("Click on the form to place a component, or press Escape."));
    return;
  }
  if (handle_ >= 0) {
    TComponent* c = session_->SelectedComponents().front();
    starts_ = {{c, PlaceOf(*c)}};
    session_->BeginLive();
    action_ = Action::Resize;
    return;
  }
  TComponent* hit = ComponentAt(pressed_);
  if (!hit) return session_->Select({});
  const bool add = event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
  if (hit == session_->GetRoot()) {
    action_ = session_->Form().ClientRect().contains(p) ? Action::Band : Action::None;
    if (!add) session_->Select({});
    return;
  }
  auto selected = session_->SelectedComponents();
  if (add) {
    if (session_->IsSelected(*hit))
      std::erase(selected, hit);
    else
      selected.push_back(hit);
    return session_->Select(selected);
  }
  if (!session_->IsSelected(*hit))
    session_->Select({hit});
  else if (session_->HasSelectedParts())
    session_->Select(selected);
  TakeTab(*hit, p);
  grabbed_ = hit;
  action_ = Action::Press;
}

// A click on a tab brings its page to the front: where the class is known, that is a value of the form.
void FormSurface::TakeTab(TComponent& hit, QPoint p) {
  const QPoint at = p - FormRectOf(hit).topLeft();
  if (auto* tabs = As<TCustomTabControl>(&hit)) {
    if (const int by = tabs->ArrowAt(at)) return tabs->ScrollTabs(by);
    if (const int tab = tabs->TabAt(at); tab >= 0 && tab != tabs->FrontTab())
      Guarded([&] { session_->Run(tr("Show page"), {tabs}, [&] { tabs->ChooseTab(tab); }); });
  } else if (auto* book = dynamic_cast<IBook*>(&hit)) {
    if (const TControl* page = book->PageAt(at)) book->ShowPage(*page);
  }
}

// What stands in another one that moves goes along.
std::vector<TComponent*> FormSurface::Movable() const {
  auto selected = session_->SelectedComponents();
  const auto outermost = Outermost(*session_, selected);
  const QSet<const TComponent*> moves(outermost.begin(), outermost.end());
  std::erase_if(selected,
                [&](const TComponent* c) { return !moves.contains(c) || !HasPlace(*session_, *c); });
  return selected;
}

void FormSurface::mouseMoveEvent(QMouseEvent* event) {
  if (!session_) return;
  current_ = event->pos();
  switch (action_) {
    case Action::None:
      return UpdateCursor(current_);
    case Action::Press:
      // A trembling click is not a drag.
      if ((current_ - pressed_).manhattanLength() < QApplication::startDragDistance()) return;
      starts_.clear();
      for (TComponent* c : Movable()) starts_.push_back({c, PlaceOf(*c)});
      if (starts_.empty()) return;
      session_->BeginLive();
      action_ = Action::Move;
      [[fallthrough]];
    case Action::Move:
    case Action::Resize:
      return Drag(current_, event->modifiers() & Qt::AltModifier);
    case Action::Band:
    case Action::Place:
      return update();
  }
}

void FormSurface::UpdateCursor(QPoint p) {
  if (tool_) return;
  static constexpr Qt::CursorShape shapes[] = {Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor,
                                               Qt::SizeHorCursor};
  const int handle = HandleAt(p);
  setCursor(handle < 0 ? Qt::ArrowCursor : shapes[handle % 4]);
}

// Live: the components follow the pointer; the command is made when the button is let go.
void FormSurface::Drag(QPoint p, bool fine) {
  // A command that came in between has ended the drag.
  if (!session_->IsLive()) {
    action_ = Action::None;
    return;
  }
  const int grid = fine ? 1 : Grid;
  const QPoint delta((p - pressed_) / zoom_);
  session_->RestartLive();
  if (action_ == Action::Move) {
    const QPoint first = starts_.front().rect.topLeft();
    const QPoint step = QPoint(Snap(first.x() + delta.x(), grid), Snap(first.y() + delta.y(), grid)) - first;
    for (const Start& s : starts_) SetRect(*s.component, s.rect.translated(step));
    FindTarget(p);
  } else {
    static constexpr int sides[8][4] = {{1, 1, 0, 0}, {0, 1, 0, 0}, {0, 1, 1, 0}, {0, 0, 1, 0},
                                        {0, 0, 1, 1}, {0, 0, 0, 1}, {1, 0, 0, 1}, {1, 0, 0, 0}};
    const QRect r = starts_.front().rect;
    int left = r.left(), top = r.top(), right = r.left() + r.width(), bottom = r.top() + r.height();
    const int* side = sides[handle_];
    if (side[0]) left = std::min(Snap(left + delta.x(), grid), right - 1);
    if (side[1]) top = std::min(Snap(top + delta.y(), grid), bottom - 1);
    if (side[2]) right = std::max(Snap(right + delta.x(), grid), left + 1);
    if (side[3]) bottom = std::max(Snap(bottom + delta.y(), grid), top + 1);
    SetRect(*starts_.front().component, QRect(left, top, right - left, bottom - top));
  }
  update();
}

std::vector<TComponent*> FormSurface::DraggedControls() const {
  std::vector<TComponent*> controls;
  for (const Start& s : starts_)
    if (!HasIcon(*s.component)) controls.push_back(s.component);
  return controls;
}

// Another container under the pointer takes what is dropped there. On its own one the control only moves.
void FormSurface::FindTarget(QPoint p) {
  target_ = nullptr;
  refusal_.clear();
  auto* grabbed = As<TControl>(grabbed_);
  const QPoint at = ToForm(p);
  if (grabbed && grabbed->Parent() && session_->Form().ClientRect().contains(at)) {
    const auto controls = DraggedControls();
    TWinControl& container = ContainerAt(*session_, at, controls);
    TWinControl* own = grabbed->Parent();
    bool above = false;
    for (const TWinControl* c = own; c; c = c->Parent()) above = above || c == &container;
    const bool onOwn = above && own->ClientRect().translated(FormOriginOf(*own)).contains(at);
    if (&container != own && !onOwn) {
      target_ = &container;
      refusal_ = WhyNotInto(*session_, controls, container);
    }
  }
  setCursor(refusal_.isEmpty() ? Qt::ArrowCursor : Qt::ForbiddenCursor);
}

// False when the drag ended where it began.
bool FormSurface::FinishOverContainer() {
  TWinControl* container = std::exchange(target_, nullptr);
  if (!container || !session_->IsLive()) return false;
  setCursor(Qt::ArrowCursor);
  if (const QString reason = std::exchange(refusal_, {}); !reason.isEmpty()) {
    session_->EndLive({}, false);
    emit Notice(reason);
    return true;
  }
  Guarded([&] {
    try {
      const QString name = container->Name();
      MoveInto(*session_, DraggedControls(), *container);
      session_->EndLive(tr("Move to %1").arg(name), true);
    } catch (...) {
      session_->EndLive({}, false);
      throw;
    }
  });
  return true;
}

void FormSurface::FinishDrag() {
  const bool resize = action_ == Action::Resize;
  action_ = Action::None;
  if (!resize && FinishOverContainer()) return;
  const QPoint delta = current_ - pressed_;
  const auto stayed = std::find_if(starts_.begin(), starts_.end(), [&](const Start& s) {
    const auto* control = As<TControl>(s.component);
    return control && DecidesBounds(*control) && control->BoundsRect() == s.rect;
  });
  const bool inVain = stayed != starts_.end() && delta.manhattanLength() >= Grid;
  Guarded([&] { session_->EndLive(resize ? tr("Resize") : tr("Move"), true); });
  if (inVain) emit Notice(WhatDecidesBounds(*As<TControl>(stayed->component)));
}

void FormSurface::CancelDrag() {
  if (session_) session_->EndLive({}, false);
  action_ = Action::None;
  target_ = nullptr;
  if (!std::exchange(refusal_, {}).isEmpty()) setCursor(Qt::ArrowCursor);
  update();
}

void FormSurface::mouseReleaseEvent(QMouseEvent* event) {
  if (!session_ || event->button() != Qt::LeftButton) return;
  current_ = event->pos();
  const QRect rect = QRect(ToForm(pressed_), ToForm(current_)).normalized();
  switch (action_) {
    case Action::Move:
    case Action::Resize:
      FinishDrag();
      break;
    case Action::Band:
      action_ = Action::None;
      if (rect.width() > 3 || rect.height() > 3)
        SelectBand(rect, event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier));
      break;
    case Action::Place:
      action_ = Action::None;
      PlaceTool(rect, keepTool_ || event->modifiers() & Qt::ShiftModifier);
      break;
    default:
      action_ = Action::None;
  }
  update();
}

void FormSurface::SelectBand(const QRect& band, bool add) {
  std::vector<TComponent*> found;
  if (add) found = session_->SelectedComponents();
  for (TControl* c : session_->Form().Controls())
    if (FormRectOf(*c).intersects(band) && std::find(found.begin(), found.end(), c) == found.end())
      found.push_back(c);
  for (TComponent* c : icons_)
    if (PlaceOf(*c).intersects(band) && std::find(found.begin(), found.end(), c) == found.end())
      found.push_back(c);
  session_->Select(found);
}

void FormSurface::PlaceTool(const QRect& drawn, bool keep) {
  const TClass& cls = *tool_;
  if (!keep) {
    SetTool(nullptr);
    emit ToolUsed();
  }
  TWinControl* container = &ContainerAround(*session_, *DeepestAt(drawn.topLeft()));
  const QPoint origin = FormOriginOf(*container);
  QRect r = drawn.translated(-origin);
  r.moveTopLeft({Snap(r.left(), Grid), Snap(r.top(), Grid)});
  const bool sized = drawn.width() > 8 && drawn.height() > 8;
  r.setSize(sized ? QSize(Snap(r.width(), Grid), Snap(r.height(), Grid)) : QSize(0, 0));
  Guarded([&] { session_->CreateComponent(cls, container, r); });
}

void FormSurface::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!session_ || event->button() != Qt::LeftButton) return;
  CancelDrag();
  TComponent* c = ComponentAt(event->pos());
  if (!c) return;
  // Two fast clicks on an arrow are two clicks.
  const QPoint p = ToForm(event->pos());
  if (const auto* tabs = As<TCustomTabControl>(c); tabs && tabs->ArrowAt(p - FormRectOf(*c).topLeft()) != 0)
    return TakeTab(*c, p);
  Guarded([&] { session_->Edit(*c); });
}

void FormSurface::contextMenuEvent(QContextMenuEvent* event) {
  if (!session_) return;
  if (event->reason() == QContextMenuEvent::Mouse)
    if (TComponent* c = ComponentAt(event->pos()); c && !session_->IsSelected(*c)) session_->Select({c});
  // With the keys it opens on what is selected.
  const bool keys = event->reason() == QContextMenuEvent::Keyboard;
  const QRect place = WidgetRect(*session_->SelectedComponents().front()) & visibleRegion().boundingRect();
  emit ContextMenuWanted(keys && !place.isEmpty() ? mapToGlobal(place.center()) : event->globalPos());
}
