// A row of a tree that is dragged with the mouse onto a row of another tree, or of the same; at the edges the
// target is scrolled.
#pragma once
#include "package/dialogs/ItemDrag.h"

class QTreeView;

class StyleDrag : public ItemDrag {
  Q_OBJECT
 public:
  // Not valid below the last row. `copy` while Ctrl is held.
  using DropFunction = std::function<void(const QModelIndex& dragged, const QModelIndex& target, bool copy)>;
  StyleDrag(QTreeView& source, QTreeView& target, DropFunction drop);
  // What cannot be dropped there at all; what is refused with a reason can.
  std::function<bool(const QModelIndex& dragged, const QModelIndex& target)> Takes;

 protected:
  QModelIndex Grip(const QPoint& at) const override;
  QRect Mark(const QMouseEvent& event) const override;
  Qt::CursorShape Cursor(const QMouseEvent& event) const override;
  void Drop(const QModelIndex& row, const QMouseEvent& event) override;
  bool CanDrop(const QModelIndex& row, const QMouseEvent& event) const override {
    return !Takes || Takes(row, TargetAt(event));
  }

 private:
  QModelIndex TargetAt(const QMouseEvent& event) const;

  QTreeView& source_;
  QTreeView& target_;
  DropFunction drop_;
};
