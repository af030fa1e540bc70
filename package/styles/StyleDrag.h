// A row of a tree that is dragged with the mouse onto a row of another tree, or of the same. Escape ends it;
// at the edges the target is scrolled.
#pragma once
#include <QModelIndex>
#include <QObject>
#include <QPersistentModelIndex>
#include <functional>

class QMouseEvent;
class QRubberBand;
class QTreeView;

class StyleDrag : public QObject {
  Q_OBJECT
 public:
  // Not valid below the last row. `copy` while Ctrl is held.
  using DropFunction = std::function<void(const QModelIndex& dragged, const QModelIndex& target, bool copy)>;
  StyleDrag(QTreeView& source, QTreeView& target, DropFunction drop);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Moved(const QMouseEvent& event);
  bool Released(const QMouseEvent& event);
  bool IsOver(const QMouseEvent& event) const;
  QModelIndex TargetAt(const QMouseEvent& event) const;
  void End();

  QTreeView& source_;
  QTreeView& target_;
  DropFunction drop_;
  QRubberBand* mark_;
  QPersistentModelIndex pressed_;
  QPoint from_;
  bool dragging_ = false;
};
