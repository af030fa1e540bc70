// Draws a command of the command palette: icon, title and keys; grey, with the reason, what cannot be done.
#pragma once
#include <QStyledItemDelegate>

class CommandRowDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  static constexpr int KeysRole = Qt::UserRole, ReasonRole = Qt::UserRole + 1;
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
