#include "package/dialogs/RadioRows.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyle>

namespace {
QSize MarkSize(const QWidget& list) {
  const QStyle& style = *list.style();
  return {style.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &list),
          style.pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, nullptr, &list)};
}
constexpr int Gap = 4;
}  // namespace

void RadioRows::paint(QPainter* painter, const QStyleOptionViewItem& plain, const QModelIndex& index) const {
  QStyleOptionViewItem option = plain;
  initStyleOption(&option, index);
  const auto* list = qobject_cast<const QAbstractItemView*>(option.widget);
  const QString text = option.text;
  option.text.clear();
  const QStyle& style = *list->style();
  style.drawControl(QStyle::CE_ItemViewItem, &option, painter, list);
  QStyleOptionButton mark;
  mark.palette = option.palette;
  mark.rect = QRect(QPoint(), MarkSize(*list));
  mark.rect.moveCenter(option.rect.center());
  mark.rect.moveLeft(option.rect.left() + Gap);
  mark.state = QStyle::State_Enabled | (list->currentIndex() == index ? QStyle::State_On : QStyle::State_Off);
  style.drawPrimitive(QStyle::PE_IndicatorRadioButton, &mark, painter, list);
  const bool selected = option.state & QStyle::State_Selected;
  const QPalette::ColorGroup group =
      option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
  painter->setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
  const QRect room = option.rect.adjusted(mark.rect.width() + 2 * Gap, 0, -Gap, 0);
  painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                    option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
}

QSize RadioRows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QSize mark = MarkSize(*option.widget);
  return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, mark.height() + 4}) +
         QSize(mark.width() + 2 * Gap, 0);
}
