#include "designer/FormSurface.h"

#include <QtWidgets>

#include "ide/BoundsCheck.h"
#include "ide/Tiles.h"
#include "ide/operations/Places.h"
#include "rtl/Exceptions.h"
#include "rtl/HiddenIcon.h"
#include "vcl/Book.h"
#include "vcl/DropDown.h"
#include "vcl/FormFrame.h"
#include "vcl/Theme.h"

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
      if (menuOpen_ || SelectedInMenu().Level) update();
      UpdateFrames();
    });
    connect(session_, &QObject::destroyed, this, [this] { SetSession(nullptr); });
  }
  TakeChange({.structure = true});
}

void FormSurface::TakeChange(const FormChange& change) {
  if (change.structure) {
    // What was being dragged may be gone.
    action_ = Action::None;
    grabbed_ = target_ = nullptr;
    starts_.clear();
    if (session_) ArrangePages(session_->Form());
  }
  // Controls show values of their actions, and pictures of the lists that what they refer to refers to.
  QSet<const TComponent*> asked;
  const std::function<void(const TComponent&)> touchHolders = [&](const TComponent& c) {
    if (As<TControl>(&c) || asked.contains(&c)) return;
    asked.insert(&c);
    for (const TComponent* holder : c.FreeNotifies()) {
      if (const auto* client = As<TControl>(holder)) Touch(*client);
      touchHolders(*holder);
    }
  };
  for (const TComponent* c : change.values) touchHolders(*c);
  const auto icon = [](const TComponent* c) { return HasIcon(*c); };
  const bool icons = change.structure || std::any_of(change.values.begin(), change.values.end(), icon);
  if (icons) ListIcons();
  if (sizeHint() != minimumSize())
    UpdateSize();
  else if (icons)
    update();
  else
    UpdateFrames();
}

// An icon may be hidden, or come back.
void FormSurface::ListIcons() {
  icons_.clear();
  if (!session_) return;
  for (TComponent* c : session_->Form().Components())
    if (HasTile(*session_, *c)) icons_.push_back(c);
}

// A control paints within what it covers.
void FormSurface::Touch(const TControl& control) {
  if (&control == &session_->Form()) return update();
  QRect r = control.PaintExtent().translated(control.Left(), control.Top());
  for (const TWinControl* p = control.Parent(); p; p = p->Parent())
    r.translate(p->ClientRect().topLeft() + (p->Parent() ? QPoint(p->Left(), p->Top()) : QPoint()));
  update(Shown(r).adjusted(-1, -1, 1, 1));
  // What drops down may show any value of the field, and has been painted where frames_ says.
  if (dynamic_cast<const IDropDown*>(&control)) update(Shown(DropDownRect()).adjusted(-1, -1, 1, 1));
}

// With its handles and marks, and what drops down from it.
QRect FormSurface::FrameRect(const TComponent& component) const {
  const QRect frame = WidgetRect(component).adjusted(-4, -4, 4, 4);
  const QRect open = DropDownRect();
  return open.isEmpty() ? frame : frame.united(Shown(open).adjusted(-1, -1, 1, 1));
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

void FormSurface::SetRect(TComponent& c, const QRect& r) {
  SetPlace(c, r);
  if (HasIcon(c)) update();
}

// In client coordinates of the form; the form itself with its frame.
QRect FormSurface::FormRectOf(const TComponent& c) const {
  const TForm& form = session_->Form();
  const QMargins m = form.FrameMargins();
  const QRect whole({-m.left(), -m.top()}, form.OuterSize());
  if (&c == &form) return whole;
  if (auto* item = As<TMenuItem>(const_cast<TComponent*>(&c)))
    if (const auto menu = OpenMenu())
      if (const QRect cell = menu->RectOf({item->Around(), item}); !cell.isNull())
        return cell.translated(MenuOrigin());
  const TComponent& shown = ShownFor(*session_, c);
  return &shown == &form ? whole : FormPlaceOf(shown);
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
    if (const auto* inner = As<TWinControl>(next)) inside -= inner->ClientRect().topLeft();
    at = next;
  }
  return at;
}

TComponent* FormSurface::ComponentAt(QPoint widgetPoint) const {
  if (!session_) return nullptr;
  const QPoint p = ToForm(widgetPoint);
  if (const auto menu = OpenMenu())
    if (TMenuItem* item = menu->At(p - MenuOrigin()).Item) return item;
  for (auto it = icons_.rbegin(); it != icons_.rend(); ++it)
    if (PlaceOf(**it).contains(p)) return *it;
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
  const auto from = std::find(all.begin(), all.end(), selected.front()) - all.begin();
  const auto count = static_cast<std::ptrdiff_t>(all.size());
  const auto after = [&](std::ptrdiff_t i) { return (i + step + count) % count; };
  // The form is always in sight.
  auto to = after(from);
  while (HasHiddenIcon(*all[static_cast<std::size_t>(to)])) to = after(to);
  session_->Select({all[static_cast<std::size_t>(to)]});
}

void FormSurface::Nudge(int dx, int dy, bool resize) {
  const auto touched = Movable();
  if (touched.empty()) return;
  const TControl* stayed = nullptr;
  session_->Run(resize ? tr("Resize") : tr("Move"), touched, [&] {
    for (TComponent* c : touched) {
      const QRect was = PlaceOf(*c);
      QRect r = was;
      if (!resize)
        r.translate(dx, dy);
      else if (!HasIcon(*c))
        r.setSize(QSize(std::max(1, r.width() + dx), std::max(1, r.height() + dy)));
      SetRect(*c, r);
      const auto* control = As<TControl>(c);
      if (control && control->Align() != TAlign::alNone && PlaceOf(*c) == was) stayed = control;
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
