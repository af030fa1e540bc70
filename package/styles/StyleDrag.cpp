#include "package/styles/StyleDrag.h"

#include <QMouseEvent>
#include <QTreeView>

StyleDrag::StyleDrag(QTreeView& source, QTreeView& target, DropFunction drop)
    : ItemDrag(source, *target.viewport(), {}), source_(source), target_(target), drop_(std::move(drop)) {}

QModelIndex StyleDrag::TargetAt(const QMouseEvent& event) const {
  return target_.indexAt(target_.viewport()->mapFromGlobal(event.globalPosition().toPoint()))
      .siblingAtColumn(0);
}

QModelIndex StyleDrag::Grip(const QPoint& at) const {
  const QModelIndex cell = source_.indexAt(at);
  // The mark of an open branch is no part of its row.
  return source_.visualRect(cell).contains(at) ? cell.siblingAtColumn(0) : QModelIndex();
}

QRect StyleDrag::Mark(const QMouseEvent& event) const {
  const QModelIndex target = TargetAt(event);
  // The rows beside it come into sight.
  for (const QModelIndex& near : {target_.indexAbove(target), target_.indexBelow(target)})
    if (near.isValid()) target_.scrollTo(near);
  QRect row = target_.visualRect(target);
  row.setLeft(0);
  row.setRight(target_.viewport()->width() - 1);
  return target.isValid() ? row : target_.viewport()->rect();
}

Qt::CursorShape StyleDrag::Cursor(const QMouseEvent& event) const {
  const bool copy = &source_ != &target_ || (event.modifiers() & Qt::ControlModifier) != 0;
  return copy ? Qt::DragCopyCursor : Qt::DragMoveCursor;
}

void StyleDrag::Drop(const QModelIndex& row, const QMouseEvent& event) {
  drop_(row, TargetAt(event), (event.modifiers() & Qt::ControlModifier) != 0);
}
