#include "package/styles/StyleDrag.h"

#include <QApplication>
#include <QMouseEvent>
#include <QRubberBand>
#include <QTreeView>

StyleDrag::StyleDrag(QTreeView& source, QTreeView& target, DropFunction drop)
    : QObject(&source),
      source_(source),
      target_(target),
      drop_(std::move(drop)),
      mark_(new QRubberBand(QRubberBand::Rectangle, target.viewport())) {
  source.viewport()->installEventFilter(this);
  source.installEventFilter(this);
}

namespace {
QPoint In(const QTreeView& view, const QMouseEvent& event) {
  return view.viewport()->mapFromGlobal(event.globalPosition().toPoint());
}
}  // namespace

bool StyleDrag::IsOver(const QMouseEvent& event) const {
  return target_.viewport()->rect().contains(In(target_, event));
}
QModelIndex StyleDrag::TargetAt(const QMouseEvent& event) const {
  return target_.indexAt(In(target_, event)).siblingAtColumn(0);
}

void StyleDrag::End() {
  pressed_ = QModelIndex();
  dragging_ = false;
  mark_->hide();
  source_.viewport()->unsetCursor();
}

bool StyleDrag::Moved(const QMouseEvent& event) {
  if (!pressed_.isValid() || (event.buttons() & Qt::LeftButton) == 0) return false;
  dragging_ |= (event.pos() - from_).manhattanLength() >= QApplication::startDragDistance();
  if (!dragging_) return true;
  const bool over = IsOver(event);
  const bool copy = &source_ != &target_ || (event.modifiers() & Qt::ControlModifier) != 0;
  source_.viewport()->setCursor(!over ? Qt::ForbiddenCursor : copy ? Qt::DragCopyCursor : Qt::DragMoveCursor);
  if (over) {
    const QModelIndex target = TargetAt(event);
    // The rows beside it come into sight.
    for (const QModelIndex& near : {target_.indexAbove(target), target_.indexBelow(target)})
      if (near.isValid()) target_.scrollTo(near);
    QRect row = target_.visualRect(target);
    row.setLeft(0);
    row.setRight(target_.viewport()->width() - 1);
    mark_->setGeometry(target.isValid() ? row : target_.viewport()->rect());
  }
  mark_->setVisible(over);
  return true;
}

bool StyleDrag::Released(const QMouseEvent& event) {
  if (!dragging_) {
    pressed_ = QModelIndex();
    return false;
  }
  const QModelIndex dragged = pressed_, target = TargetAt(event);
  const bool over = IsOver(event);
  End();
  if (dragged.isValid() && over) drop_(dragged, target, (event.modifiers() & Qt::ControlModifier) != 0);
  return true;
}

bool StyleDrag::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &source_) {
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
      pressed_ = mouse.button() == Qt::LeftButton ? source_.indexAt(from_).siblingAtColumn(0) : QModelIndex();
      // The mark of an open branch is no part of its row.
      if (pressed_.isValid() && !source_.visualRect(source_.indexAt(from_)).contains(from_))
        pressed_ = QModelIndex();
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
