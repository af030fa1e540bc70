// What the surface looks like: desk, form, grid, icons, handles.
#include <QtWidgets>

#include "designer/FormSurface.h"
#include "designintf/ComponentTile.h"
#include "ide/operations/Containers.h"
#include "vcl/Canvas.h"
#include "vcl/DropDown.h"
#include "vcl/FormColors.h"
#include "vcl/FormFrame.h"
#include "vcl/Theme.h"

void FormSurface::paintEvent(QPaintEvent* event) {
  QPainter p(this);
  p.setClipRegion(event->region());
  p.fillRect(rect(), palette().color(QPalette::Window).darker(IsDarkTheme() ? 125 : 107));
  if (!session_) return;
  p.scale(zoom_, zoom_);
  p.save();
  p.translate(Desk, Desk);
  PaintFormWindow(session_->Form(), p, true);
  p.restore();
  p.save();
  p.translate(ClientOrigin());
  const QRect sight = p.clipBoundingRect().toAlignedRect();
  PaintGrid(p, sight & session_->Form().ClientRect());
  PaintIcons(p, sight);  // an icon beyond the edge is still to be found
  PaintDropDown(p);
  PaintMenu(p);
  p.restore();
  p.resetTransform();
  menuOpen_ = SelectedInMenu().Level != nullptr;
  PaintSelection(p);
}

// --- The menu bar of the form

QPoint FormSurface::MenuOrigin() const { return {0, -session_->Form().MenuBarHeight()}; }

TMenuLook::Place FormSurface::SelectedInMenu() const {
  if (!session_ || !session_->Form().ShownMenu() || session_->SelectedComponents().size() != 1) return {};
  auto* item = As<TMenuItem>(session_->SelectedComponents().front());
  if (!item || MenuOf(*item) != session_->Form().ShownMenu()) return {};
  return {item->Around(), item};
}

std::optional<TMenuLook> FormSurface::OpenMenu() const {
  const TForm& form = session_->Form();
  if (form.MenuBarHeight() == 0) return {};
  TMenuLook look(*form.ShownMenu(), form.ClientWidth());
  if (const auto place = SelectedInMenu(); place.Level) look.Open(place);
  return look;
}

void FormSurface::PaintMenu(QPainter& p) const {
  const auto place = SelectedInMenu();
  const auto look = place.Level ? OpenMenu() : std::nullopt;
  if (!look) return;
  p.save();
  p.translate(MenuOrigin());
  look->Paint(p, place);
  p.restore();
}

// --- What drops down from a field

QRect FormSurface::DropDownRect() const {
  if (!session_ || action_ == Action::Move || action_ == Action::Resize) return {};
  const auto selected = session_->SelectedComponents();
  const auto* field = selected.size() == 1 ? dynamic_cast<const IDropDown*>(selected.front()) : nullptr;
  const QSize size = field ? field->DropDownSize() : QSize();
  if (size.isEmpty()) return {};
  // Above where there is no room below.
  const QRect place = FormRectOf(*selected.front());
  const QRect desk = session_->Form().ClientRect().adjusted(-Desk, -Desk, Desk, Desk);
  const bool above =
      place.bottom() + size.height() > desk.bottom() && place.top() - size.height() >= desk.top();
  QRect open(QPoint(place.left(), above ? place.top() - size.height() : place.bottom() + 1), size);
  open.moveLeft(std::max(std::min(open.left(), desk.right() - size.width()), desk.left()));
  const auto* control = As<TControl>(selected.front());
  return control && HidesOthers(open, *control) ? QRect() : open;
}

// What is being designed stays in sight: a field opens only over its containers and over the desk.
bool FormSurface::HidesOthers(const QRect& formRect, const TControl& field) const {
  if (std::any_of(icons_.begin(), icons_.end(),
                  [&](const TComponent* icon) { return PlaceOf(*icon).intersects(formRect); }))
    return true;
  const TControl* own = &field;
  for (const TWinControl* around = field.Parent(); around; own = around, around = around->Parent()) {
    const QRect place = FormPlaceOf(*own);
    for (const TControl* other : around->Controls()) {
      if (other == own) continue;
      // Pages of a book lie in one place, and one of them is seen.
      const QRect covered = FormPlaceOf(*other);
      if (covered.intersects(formRect) && covered != place) return true;
    }
  }
  return false;
}

void FormSurface::PaintDropDown(QPainter& p) const {
  const QRect open = DropDownRect();
  if (open.isEmpty()) return;
  p.save();
  p.setClipRect(open, Qt::IntersectClip);
  TCanvas canvas(p);
  dynamic_cast<const IDropDown&>(*session_->SelectedComponents().front()).PaintDropDown(canvas, open);
  p.restore();
}

void FormSurface::PaintGrid(QPainter& p, const QRect& sight) const {
  if (zoom_ < 0.75 || sight.isEmpty()) return;
  // Only where nothing else stands: the dots belong to the empty form.
  QRegion empty(sight);
  for (const TControl* c : session_->Form().Controls())
    if (c->BoundsRect().intersects(sight)) empty -= c->BoundsRect();
  p.save();
  p.setClipRegion(empty, Qt::IntersectClip);
  QColor ink = FormPalette().color(QPalette::WindowText);
  ink.setAlpha(48);
  p.setPen(QPen(ink, 1 / zoom_));
  QList<QPoint> dots;
  const auto first = [](int v) { return (v + Grid - 1) / Grid * Grid; };
  for (int y = first(sight.top()); y <= sight.bottom(); y += Grid)
    for (int x = first(sight.left()); x <= sight.right(); x += Grid) dots << QPoint(x, y);
  p.drawPoints(dots.data(), static_cast<int>(dots.size()));
  p.restore();
}

void FormSurface::PaintIcons(QPainter& p, const QRect& sight) const {
  constexpr int Name = 20;  // it stands below and may be far wider than the tile
  for (const TComponent* c : icons_)
    if (const QRect r = PlaceOf(*c); r.top() <= sight.bottom() && r.bottom() + Name >= sight.top())
      PaintComponentTile(p, *c, PlaceOf(*c).topLeft(), devicePixelRatioF() * zoom_);
}

std::vector<QRect> FormSurface::Handles() const {
  const auto selected = session_->SelectedComponents();
  if (selected.size() != 1 || HasIcon(*selected[0])) return {};
  const QRect r = WidgetRect(*selected[0]);
  const int x[] = {r.left(), r.center().x(), r.right()};
  const int y[] = {r.top(), r.center().y(), r.bottom()};
  std::vector<QRect> handles;  // clockwise from the top left corner
  static constexpr int places[8][2] = {{0, 0}, {1, 0}, {2, 0}, {2, 1}, {2, 2}, {1, 2}, {0, 2}, {0, 1}};
  const bool form = selected[0] == session_->GetRoot();
  for (int i = 0; i < 8; ++i) {
    const bool usable = !form || (i >= 3 && i <= 5);  // a form grows to the right and down
    handles.push_back(usable ? QRect(x[places[i][0]] - 3, y[places[i][1]] - 3, 7, 7) : QRect());
  }
  return handles;
}

int FormSurface::HandleAt(QPoint p) const {
  const auto handles = Handles();
  for (std::size_t i = 0; i < handles.size(); ++i)
    if (handles[i].isValid() && handles[i].adjusted(-2, -2, 2, 2).contains(p)) return static_cast<int>(i);
  return -1;
}

void FormSurface::PaintSelection(QPainter& p) {
  const QColor accent = palette().color(QPalette::Highlight);
  const auto selected = session_->SelectedComponents();
  frames_ = {};
  if (selected.size() <= 64)
    for (const TComponent* c : selected) frames_ += FrameRect(*c);
  else
    frames_ = rect();
  p.setRenderHint(QPainter::Antialiasing, false);
  const QRect form = WidgetRect(session_->Form());
  for (const TComponent* c : selected) {
    // The form, and what is hidden, stand for nothing in it.
    if (WidgetRect(*c) == form) continue;
    p.setPen(QPen(accent, 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(WidgetRect(*c).adjusted(0, 0, -1, -1));
    if (selected.size() == 1) continue;
    // Several: small marks at the corners.
    const QRect r = WidgetRect(*c);
    for (const QPoint corner : {r.topLeft(), r.topRight(), r.bottomLeft(), r.bottomRight()})
      p.fillRect(QRect(corner - QPoint(2, 2), QSize(5, 5)), accent);
  }
  for (const QRect& h : Handles()) {
    if (!h.isValid()) continue;
    p.setPen(accent);
    p.setBrush(palette().color(QPalette::Base));
    p.drawRect(h.adjusted(0, 0, -1, -1));
  }
  if (action_ == Action::Band || action_ == Action::Place) {
    QColor fill = accent;
    fill.setAlpha(40);
    p.setPen(QPen(accent, 1, action_ == Action::Band ? Qt::DashLine : Qt::SolidLine));
    p.setBrush(fill);
    p.drawRect(QRect(pressed_, current_).normalized());
  }
  if (action_ == Action::Move || action_ == Action::Resize) PaintDrag(p);
}

// Where it would come to stand, its place or size, and which container would take it or why none does.
void FormSurface::PaintDrag(QPainter& p) const {
  if (target_) {
    // What leaves its container is cut off at its edge.
    for (const TComponent* c : DraggedControls()) {
      p.save();
      p.setOpacity(refusal_.isEmpty() ? 0.8 : 0.4);
      p.translate(WidgetRect(*c).topLeft());
      p.scale(zoom_, zoom_);
      PaintControl(*As<TControl>(const_cast<TComponent*>(c)), p);
      p.restore();
    }
    if (refusal_.isEmpty()) {
      p.setPen(QPen(palette().color(QPalette::Highlight), 2));
      p.setBrush(Qt::NoBrush);
      p.drawRect(Shown(target_->ClientRect().translated(FormOriginOf(*target_))).adjusted(1, 1, -1, -1));
    }
  }
  const TComponent& first = *starts_.front().component;
  const QRect own =
      target_ && !HasIcon(first) ? FormPlaceOf(first).translated(-FormOriginOf(*target_)) : PlaceOf(first);
  const QString place = action_ == Action::Move
                            ? QStringLiteral("%1, %2").arg(own.left()).arg(own.top())
                            : QStringLiteral("%1 x %2").arg(own.width()).arg(own.height());
  const QString text = !refusal_.isEmpty() ? refusal_
                       : target_           ? tr("%1 \u2192 %2").arg(place, target_->Name())
                                           : place;
  const int width = std::min(p.fontMetrics().horizontalAdvance(text) + 14, this->width());
  QRect label(current_ + QPoint(14, 16), QSize(width, p.fontMetrics().height() + 6));
  label.moveLeft(std::min(label.left(), this->width() - width));
  p.setPen(palette().color(QPalette::Mid));
  p.setBrush(palette().color(QPalette::ToolTipBase));
  p.drawRect(label);
  p.setPen(palette().color(QPalette::ToolTipText));
  p.drawText(label.adjusted(6, 0, -6, 0), Qt::AlignCenter,
             p.fontMetrics().elidedText(text, Qt::ElideRight, label.width() - 12));
}
