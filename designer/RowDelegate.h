// Draws the rows of the inspector: names in plain, with a sign when the file's value is refused, values that
// differ from the default in bold, booleans with a box.
#pragma once
#include <QStyledItemDelegate>

class RowDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  static QRect BoxRect(const QRect& cell) { return {cell.left() + 4, cell.center().y() - 6, 13, 13}; }
  static QRect SignRect(const QRect& cell) { return {cell.right() - 17, cell.center().y() - 7, 14, 14}; }
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
