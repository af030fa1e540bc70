#include "package/dialogs/ItemDrag.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
#include <QRubberBand>

ItemDrag::ItemDrag(QAbstractItemView& list, QWidget& target, std::function<void(const QModelIndex&)> drop)
    : QObject(&list),
      list_(list),
      target_(target),
      drop_(std::move(drop)),
      mark_(new QRubberBand(QRubberBand::Rectangle, &target)) {
  list.viewport()->installEventFilter(this);
  list.installEventFilter(this);
}

QModelIndex ItemDrag::Grip(const QPoint& at) const { return list_.indexAt(at); }
QRect ItemDrag::Mark(const QMouseEvent&) const { return target_.rect(); }
Qt::CursorShape ItemDrag::Cursor(const QMouseEvent&) const { return Qt::DragCopyCursor; }
void ItemDrag::Drop(const QModelIndex& row, const QMouseEvent&) { drop_(row); }

bool ItemDrag::IsOver(const QMouseEvent& event) const {
  return target_.rect().contains(target_.mapFromGlobal(event.globalPosition().toPoint()));
}

void ItemDrag::End() {
  pressed_ = QModelIndex();
  dragging_ = false;
  mark_->hide();
  list_.viewport()->unsetCursor();
}

bool ItemDrag::Moved(const QMouseEvent& event) {
  if (!pressed_.isValid() || (event.buttons() & Qt::LeftButton) == 0) return false;
  dragging_ |= (event.pos() - from_).manhattanLength() >= QApplication::startDragDistance();
  if (!dragging_) return true;
  const bool over = IsOver(event) && CanDrop(pressed_, event);
  list_.viewport()->setCursor(over ? Cursor(event) : Qt::ForbiddenCursor);
  if (over) mark_->setGeometry(Mark(event));
  mark_->setVisible(over);
  return true;
}

bool ItemDrag::Released(const QMouseEvent& event) {
  if (!dragging_) {
    pressed_ = QModelIndex();
    return false;
  }
  const QModelIndex row = pressed_;
  End();
  if (row.isValid() && IsOver(event) && CanDrop(row, event)) Drop(row, event);
  return true;
}

bool ItemDrag::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &list_) {
    const bool escape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (!escape || !dragging_) return false;
    End();
    return true;
  }
  switch (event->type()) {
    case QEvent::MouseButtonPress: {
      const auto& mouse = static_cast<const QMouseEvent&>(*event);
      from_ = mouse.pos();
      pressed_ = mouse.button() == Qt::LeftButton ? Grip(from_) : QModelIndex();
      return false;
    }
    case QEvent::MouseMove:
      return Moved(static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
      return Released(static_cast<const QMouseEvent&>(*event));
    default:
      return false;
  }
}
