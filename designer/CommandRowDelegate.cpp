#include "designer/CommandRowDelegate.h"

#include <QtWidgets>

namespace {
constexpr int Margin = 8, IconSize = 16;

// Gives back how much room it took.
int PaintKeys(QPainter& painter, const QStyleOptionViewItem& o, const QString& keys, const QColor& color) {
  if (keys.isEmpty()) return 0;
  const QFontMetrics metrics(o.font);
  const QSize size(metrics.horizontalAdvance(keys) + 12, metrics.height() + 2);
  const QRect cap(QPoint(o.rect.right() - Margin - size.width(), o.rect.center().y() - size.height() / 2),
                  size);
  QColor line = color;
  line.setAlphaF(0.4f);
  painter.setPen(line);
  painter.drawRoundedRect(QRectF(cap).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  painter.setPen(color);
  painter.drawText(cap, Qt::AlignCenter, keys);
  return size.width() + Margin;
}
}  // namespace

void CommandRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
  QStyleOptionViewItem o = option;
  initStyleOption(&o, index);
  const QString title = std::exchange(o.text, {}), reason = index.data(ReasonRole).toString();
  const QIcon icon = std::exchange(o.icon, {});
  o.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
  o.state |= QStyle::State_Active;  // the field has the focus, the list shows where it leads
  o.widget->style()->drawControl(QStyle::CE_ItemViewItem, &o, painter, o.widget);

  const bool selected = o.state & QStyle::State_Selected, possible = reason.isEmpty();
  const QColor plain =
      o.palette.color(QPalette::Active, selected ? QPalette::HighlightedText : QPalette::Text);
  QColor quiet = plain;
  quiet.setAlphaF(selected ? 0.85f : 0.65f);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setFont(o.font);
  const QRect iconAt(o.rect.left() + Margin, o.rect.center().y() - IconSize / 2, IconSize, IconSize);
  icon.paint(painter, iconAt, Qt::AlignCenter,
             selected   ? QIcon::Selected
             : possible ? QIcon::Normal
                        : QIcon::Disabled);
  QRect room = o.rect.adjusted(2 * Margin + IconSize, 0, -Margin, 0);
  room.setRight(room.right() - PaintKeys(*painter, o, index.data(KeysRole).toString(), quiet));
  const QFontMetrics metrics(o.font);
  painter->setPen(possible ? plain : quiet);
  painter->drawText(room, Qt::AlignVCenter, metrics.elidedText(title, Qt::ElideRight, room.width()));
  room.setLeft(room.left() + metrics.horizontalAdvance(title) + 2 * Margin);
  if (!possible && room.width() > metrics.averageCharWidth() * 8) {
    QFont small = o.font;
    small.setItalic(true);
    painter->setFont(small);
    painter->setPen(quiet);
    painter->drawText(room, Qt::AlignVCenter | Qt::AlignRight,
                      QFontMetrics(small).elidedText(reason, Qt::ElideRight, room.width()));
  }
  painter->restore();
}

QSize CommandRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {100, std::max(IconSize, QFontMetrics(option.font).height()) + 12};
}
