// The menu as it looks, and the mouse on it.
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include "dclstd/MenuWindow.h"
#include "vcl/FormColors.h"

namespace {
constexpr int Margin = 12;
}

MenuCanvas::MenuCanvas(MenuWindow& window) : QWidget(&window), window_(window) {
  setObjectName(QStringLiteral("menu"));
  setAccessibleName(tr("Menu"));
  setFocusPolicy(Qt::StrongFocus);
}

TMenuLook MenuCanvas::Look() const {
  TMenuLook look = TMenuLook::Designed(window_.Menu(), std::max(200, width() - 2 * Margin), window_.Gap());
  look.Open(window_.Current());
  return look;
}

// A window that is closing shows nothing.

QRect MenuCanvas::RectOf(const TMenuLook::Place& place) const {
  return window_.Designer() ? Look().RectOf(place).translated(Margin, Margin) : QRect();
}
TMenuLook::Place MenuCanvas::At(QPoint point) const {
  return window_.Designer() ? Look().At(point - QPoint(Margin, Margin)) : TMenuLook::Place();
}

// The bar takes what there is.
QSize MenuCanvas::sizeHint() const {
  if (!window_.Designer()) return {};
  QRect all;
  const TMenuLook look = Look();
  for (const TMenuPane& pane : look.Panes())
    all |= pane.Bar ? QRect(pane.Rect.topLeft(), QSize(1, pane.Rect.height())) : pane.Rect;
  return QSize(all.right() + 1, all.bottom() + 1) + QSize(2 * Margin, 2 * Margin);
}

void MenuCanvas::paintEvent(QPaintEvent*) {
  if (!window_.Designer()) return;
  QPainter p(this);
  p.fillRect(rect(), FormPalette().color(QPalette::Window).darker(108));
  p.translate(Margin, Margin);
  const TMenuLook look = Look();
  look.Paint(p, window_.Current());
  if (!target_.Level) return;
  // Where the dragged item would come to stand.
  const QRect r = look.RectOf(target_);
  const bool along = !look.Panes().front().Bar || target_.Level != &window_.Menu();
  p.setPen(QPen(FormPalette().color(QPalette::Highlight), 2));
  p.drawLine(r.topLeft(), along ? r.topRight() : r.bottomLeft());
}

void MenuCanvas::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->pos();
  const TMenuLook::Place place = At(pressed_);
  setFocus();
  if (!place.Level) return;
  window_.GoTo(place);
  if (event->button() == Qt::LeftButton) dragged_ = place.Item;
}

void MenuCanvas::mouseMoveEvent(QMouseEvent* event) {
  if (!dragged_ || window_.Current().Item != dragged_) return;
  if (!target_.Level && (event->pos() - pressed_).manhattanLength() < QApplication::startDragDistance())
    return;
  target_ = At(event->pos());
  update();
}

void MenuCanvas::mouseReleaseEvent(QMouseEvent*) {
  TMenuItem* item = std::exchange(dragged_, nullptr);
  const TMenuLook::Place target = std::exchange(target_, {});
  // It may have gone meanwhile.
  if (item && target.Level && window_.Current().Item == item) window_.MoveItemTo(*item, target);
  update();
}

void MenuCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
  const TMenuLook::Place place = At(event->pos());
  if (!place.Level) return;
  dragged_ = nullptr;
  window_.GoTo(place);
  window_.BeginCaption(place.Item ? place.Item->Get(TMenuItem::Caption) : QString());
}

void MenuCanvas::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  for (QToolButton* button : {window_.insert, window_.remove, window_.submenu, window_.up, window_.down}) {
    QAction* action = menu.addAction(button->icon(), button->text());
    action->setEnabled(button->isEnabled());
    connect(action, &QAction::triggered, button, &QToolButton::click);
  }
  menu.exec(event->globalPos());
}
