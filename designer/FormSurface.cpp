#include "designer/FormSurface.h"

#include <QtWidgets>

#include "ide/BoundsCheck.h"
#include "ide/Tiles.h"
#include "ide/Unknown.h"
#include "rtl/Exceptions.h"
#include "vcl/FormFrame.h"
#include "vcl/Theme.h"

namespace {
int Snap(int v, int grid) { return static_cast<int>(std::lround(static_cast<double>(v) / grid)) * grid; }
}  // namespace

FormSurface::FormSurface(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAccessibleName(tr("Form"));
}

void FormSurface::SetSession(FormSession* session) {
  if (session_) {
    CancelDrag();
    disconnect(session_, nullptr, this, nullptr);
  }
  session_ = session;
  action_ = Action::None;
  if (session_) {
    connect(session_, &FormSession::RepaintNeeded, this, &FormSurface::Touch);
    connect(session_, &FormSession::Changed, this, &FormSurface::TakeChange);
    connect(session_, &FormSession::SelectionChanged, this, [this] {
      for (const TComponent* c : session_->SelectedComponents()) RevealPages(*c);
      UpdateFrames();
    });
  }
  TakeChange({.structure = true});
}

void FormSurface::TakeChange(const FormChange& change) {
  if (change.structure) {
    // What was being dragged may be gone.
    action_ = Action::None;
    starts_.clear();
    icons_.clear();
    if (session_) {
      ArrangePages(session_->Form());
      for (TComponent* c : session_->Form().Components())
        if (HasTile(*session_, *c)) icons_.push_back(c);
    }
  }
  const auto icon = [](const TComponent* c) { return HasIcon(*c); };
  if (sizeHint() != minimumSize())
    UpdateSize();
  else if (change.structure || std::any_of(change.values.begin(), change.values.end(), icon))
    update();
  else
    UpdateFrames();
}

// A control paints within what it covers.
void FormSurface::Touch(const TControl& control) {
  if (&control == &session_->Form()) return update();
  QRect r = control.PaintExtent().translated(control.Left(), control.Top());
  for (const TWinControl* p = control.Parent(); p; p = p->Parent())
    r.translate(p->ClientRect().topLeft() + (p->Parent() ? QPoint(p->Left(), p->Top()) : QPoint()));
  update(Shown(r).adjusted(-1, -1, 1, 1));
}

// With its handles and marks.
QRect FormSurface::FrameRect(const TComponent& component) const {
  return WidgetRect(component).adjusted(-4, -4, 4, 4);
}

// The selection where it was and where it is.
void FormSurface::UpdateFrames() {
  update(frames_);
  const auto selected = session_->SelectedComponents();
  if (selected.size() > 64) return update();
  for (const TComponent* c : selected) update(FrameRect(*c));
}

void FormSurface::SetZoom(double factor) {
  zoom_ = std::clamp(factor, 0.25, 4.0);
  UpdateSize();
}

void FormSurface::SetTool(const TClass* cls, bool keep) {
  const bool same = tool_ == cls && keepTool_ == keep;
  tool_ = cls;
  keepTool_ = keep;
  if (!cls && action_ == Action::Place) action_ = Action::None;
  setCursor(cls ? Qt::CrossCursor : Qt::ArrowCursor);
  update();
  if (!same) emit ToolChanged();
}

QSize FormSurface::sizeHint() const {
  if (!session_) return {400, 300};
  const QSize form = session_->Form().OuterSize();
  const QSize size = form.expandedTo(DeskSize(*session_)) + QSize(2 * Desk, 2 * Desk);
  return {qCeil(size.width() * zoom_), qCeil(size.height() * zoom_)};
}

void FormSurface::UpdateSize() {
  setMinimumSize(sizeHint());
  updateGeometry();
  update();
}

QPoint FormSurface::ClientOrigin() const {
  const QMargins m = session_->Form().FrameMargins();
  return {Desk + m.left(), Desk + m.top()};
}

QPoint FormSurface::ToForm(QPoint p) const {
  return QPoint(qFloor(p.x() / zoom_), qFloor(p.y() / zoom_)) - ClientOrigin();
}

QRect FormSurface::RectOf(const TComponent& c) const {
  if (const auto* control = As<TControl>(&c)) return control->BoundsRect();
  return TileRect(c);
}

void FormSurface::SetRect(TComponent& c, const QRect& r) {
  if (auto* control = As<TControl>(&c)) {
    control->SetBounds(r.left(), r.top(), r.width(), r.height());
  } else {
    c.SetDesignInfo(DesignWordOf({static_cast<std::int16_t>(r.left()), static_cast<std::int16_t>(r.top())}));
    update();
  }
}

// What can be moved: not the form, and no part of another component.
bool FormSurface::HasPlace(const TComponent& c) const {
  if (&c == session_->GetRoot()) return false;
  if (const auto* stand = dynamic_cast<const TUnknownControl*>(&c)) return stand->StandIn().hasPlace;
  return !HasIcon(c) || HasTile(*session_, c);
}

// In client coordinates of the form; the form itself with its frame.
QRect FormSurface::FormRectOf(const TComponent& c) const {
  const TForm& form = session_->Form();
  const QMargins m = form.FrameMargins();
  if (&c == &form) return QRect({-m.left(), -m.top()}, form.OuterSize());
  const TComponent& shown = ShownFor(*session_, c);
  QRect r = RectOf(shown);
  if (const auto* control = As<TControl>(&shown))
    for (const TControl* p = control->Parent(); p && p != &form; p = p->Parent())
      r.translate(p->Left(), p->Top());
  return r;
}

QRect FormSurface::WidgetRect(const TComponent& c) const {
  const QRect r = FormRectOf(c).translated(ClientOrigin());
  return QRectF(r.left() * zoom_, r.top() * zoom_, r.width() * zoom_, r.height() * zoom_).toRect();
}

// A part of the form's client area in widget coordinates, to its last pixel.
QRect FormSurface::Shown(const QRect& formRect) const {
  const QRectF r = formRect.translated(ClientOrigin());
  return QRectF(r.topLeft() * zoom_, r.size() * zoom_).toAlignedRect();
}

TControl* FormSurface::DeepestAt(QPoint p) const {
  TForm& form = session_->Form();
  TControl* at = &form;
  QPoint inside = p;
  while (auto* container = As<TWinControl>(at)) {
    TControl* next = container->ControlAt(inside);
    if (!next) break;
    inside -= next->BoundsRect().topLeft();
    at = next;
  }
  return at;
}

TComponent* FormSurface::ComponentAt(QPoint widgetPoint) const {
  if (!session_) return nullptr;
  const QPoint p = ToForm(widgetPoint);
  for (auto it = icons_.rbegin(); it != icons_.rend(); ++it)
    if (RectOf(**it).contains(p)) return *it;
  const TForm& form = session_->Form();
  if (!form.ClientRect().contains(p)) return FormRectOf(form).contains(p) ? session_->GetRoot() : nullptr;
  return DeepestAt(p);
}

// Whatever a command throws is told to the person; the session has taken it back already.
void FormSurface::Guarded(const std::function<void()>& action) {
  try {
    action();
  } catch (const std::exception& e) {
    emit Message(ExceptionMessage(e));
  }
}

// --- Mouse

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
    starts_ = {{c, RectOf(*c)}};
    session_->BeginLive();
    action_ = Action::Resize;
    return;
  }
  TComponent* hit = ComponentAt(pressed_);
  if (!hit) return session_->Select({});
  const bool add = event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
  if (hit == session_->GetRoot()) {
    target_ = &session_->Form();
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
  if (!session_->IsSelected(*hit)) session_->Select({hit});
  if (auto* book = dynamic_cast<TUnknownControl*>(hit))
    if (const auto* page = book->PageAt(p - FormRectOf(*book).topLeft())) book->ShowPage(*page);
  action_ = Action::Press;
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
      for (TComponent* c : session_->SelectedComponents())
        if (HasPlace(*c)) starts_.push_back({c, RectOf(*c)});
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

void FormSurface::FinishDrag() {
  const bool resize = action_ == Action::Resize;
  action_ = Action::None;
  const QPoint delta = current_ - pressed_;
  const auto stayed = std::find_if(starts_.begin(), starts_.end(), [&](const Start& s) {
    const auto* control = As<TControl>(s.component);
    return control && control->Align() != TAlign::alNone && control->BoundsRect() == s.rect;
  });
  const bool inVain = stayed != starts_.end() && delta.manhattanLength() >= Grid;
  Guarded([&] { session_->EndLive(resize ? tr("Resize") : tr("Move"), true); });
  if (inVain) emit Notice(WhatDecidesBounds(*As<TControl>(stayed->component)));
}

void FormSurface::CancelDrag() {
  if (session_) session_->EndLive({}, false);
  action_ = Action::None;
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
    if (RectOf(*c).intersects(band) && std::find(found.begin(), found.end(), c) == found.end())
      found.push_back(c);
  session_->Select(found);
}

void FormSurface::PlaceTool(const QRect& drawn, bool keep) {
  const TClass& cls = *tool_;
  if (!keep) {
    SetTool(nullptr);
    emit ToolUsed();
  }
  TControl* at = DeepestAt(drawn.topLeft());
  while (at && !at->AcceptsControls()) at = at->Parent();
  auto* container = at ? As<TWinControl>(at) : &session_->Form();
  const QPoint origin = container == &session_->Form() ? QPoint() : FormRectOf(*container).topLeft();
  QRect r = drawn.translated(-origin);
  r.moveTopLeft({Snap(r.left(), Grid), Snap(r.top(), Grid)});
  const bool sized = drawn.width() > 8 && drawn.height() > 8;
  r.setSize(sized ? QSize(Snap(r.width(), Grid), Snap(r.height(), Grid)) : QSize(0, 0));
  Guarded([&] { session_->CreateComponent(cls, container, r); });
}

void FormSurface::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!session_ || event->button() != Qt::LeftButton) return;
  CancelDrag();
  if (TComponent* c = ComponentAt(event->pos())) Guarded([&] { session_->Edit(*c); });
}

void FormSurface::contextMenuEvent(QContextMenuEvent* event) {
  if (!session_) return;
  if (event->reason() == QContextMenuEvent::Mouse)
    if (TComponent* c = ComponentAt(event->pos()); c && !session_->IsSelected(*c)) session_->Select({c});
  emit ContextMenuWanted(event->globalPos());
}

// --- Keyboard

// Tab walks the components here instead of leaving the surface. The hint says what stands under the pointer.
bool FormSurface::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && session_) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const TComponent* c = ComponentAt(help->pos());
    if (c && c != session_->GetRoot())
      QToolTip::showText(help->globalPos(),
                         QStringLiteral("%1: %2").arg(c->Name(), QString::fromUtf8(c->StreamClassName())),
                         this, WidgetRect(*c));
    else
      QToolTip::hideText();
    return true;
  }
  if (event->type() == QEvent::KeyPress && session_) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
      WalkSelection(key->key() == Qt::Key_Tab ? 1 : -1);
      return true;
    }
  }
  return QWidget::event(event);
}

void FormSurface::WalkSelection(int step) {
  const auto all = session_->AllComponents();
  const auto selected = session_->SelectedComponents();
  const auto at = std::find(all.begin(), all.end(), selected.front());
  const auto count = static_cast<std::ptrdiff_t>(all.size());
  session_->Select({all[static_cast<std::size_t>(((at - all.begin()) + step + count) % count)]});
}

void FormSurface::Nudge(int dx, int dy, bool resize) {
  auto touched = session_->SelectedComponents();
  std::erase_if(touched, [&](const TComponent* c) { return !HasPlace(*c); });
  if (touched.empty()) return;
  const TControl* stayed = nullptr;
  session_->Run(resize ? tr("Resize") : tr("Move"), touched, [&] {
    for (TComponent* c : touched) {
      const QRect was = RectOf(*c);
      QRect r = was;
      if (!resize)
        r.translate(dx, dy);
      else if (!HasIcon(*c))
        r.setSize(QSize(std::max(1, r.width() + dx), std::max(1, r.height() + dy)));
      SetRect(*c, r);
      const auto* control = As<TControl>(c);
      if (control && control->Align() != TAlign::alNone && RectOf(*c) == was) stayed = control;
    }
  });
  if (stayed) emit Notice(WhatDecidesBounds(*stayed));
}

void FormSurface::keyPressEvent(QKeyEvent* event) {
  if (!session_) return QWidget::keyPressEvent(event);
  // While something is dragged only Escape counts.
  if ((action_ == Action::Move || action_ == Action::Resize) && event->key() != Qt::Key_Escape) return;
  const int step = event->modifiers() & Qt::ControlModifier ? 1 : Grid;
  const bool resize = event->modifiers() & Qt::ShiftModifier;
  switch (event->key()) {
    case Qt::Key_Left:
      return Nudge(-step, 0, resize);
    case Qt::Key_Right:
      return Nudge(step, 0, resize);
    case Qt::Key_Up:
      return Nudge(0, -step, resize);
    case Qt::Key_Down:
      return Nudge(0, step, resize);
    case Qt::Key_Delete:
      return Guarded([&] { session_->DeleteSelection(); });
    case Qt::Key_Return:
    case Qt::Key_F11:
      emit InspectorWanted();
      return;
    case Qt::Key_Escape:
      if (tool_) {
        SetTool(nullptr);
        action_ = Action::None;
        emit ToolUsed();
      } else if (action_ != Action::None) {
        CancelDrag();
      } else if (TComponent* c = session_->SelectedComponents().front(); c != session_->GetRoot()) {
        session_->Select({c->GetParentComponent()});
      }
      return update();
    default:
      QWidget::keyPressEvent(event);
  }
}
