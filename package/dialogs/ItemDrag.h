// The row of one list that is dragged with the mouse onto another widget. Escape ends it.
#pragma once
#include <QObject>
#include <QPersistentModelIndex>
#include <QRect>
#include <functional>

class QAbstractItemView;
class QMouseEvent;
class QRubberBand;

class ItemDrag : public QObject {
  Q_OBJECT
 public:
  // The list owns it; `drop` is called with the row that was let go over `target`.
  ItemDrag(QAbstractItemView& list, QWidget& target, std::function<void(const QModelIndex&)> drop);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  // The row that is taken there; none when it is not to be dragged.
  virtual QModelIndex Grip(const QPoint& at) const;
  // What is marked of the target, and how the mouse looks, while it is over it.
  virtual QRect Mark(const QMouseEvent& event) const;
  virtual Qt::CursorShape Cursor(const QMouseEvent& event) const;
  virtual void Drop(const QModelIndex& row, const QMouseEvent& event);
  // Whether the row can be dropped there, over the target.
  virtual bool CanDrop(const QModelIndex&, const QMouseEvent&) const { return true; }

 private:
  bool Moved(const QMouseEvent& event);
  bool Released(const QMouseEvent& event);
  bool IsOver(const QMouseEvent& event) const;
  void End();

  QAbstractItemView& list_;
  QWidget& target_;
  std::function<void(const QModelIndex&)> drop_;
  QRubberBand* mark_;
  QPersistentModelIndex pressed_;
  QPoint from_;
  bool dragging_ = false;
};
