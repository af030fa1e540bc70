#include "designer/RowDelegate.h"

#include <QtWidgets>

#include "ide/InspectorModel.h"

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  QStyleOptionViewItem o = option;
  initStyleOption(&o, index);
  const bool category = index.data(InspectorModel::IsCategoryRole).toBool();
  if (category) {
    o.font.setBold(true);
    o.backgroundBrush = o.palette.brush(QPalette::AlternateBase);
  } else if (index.column() == 1 && index.data(InspectorModel::NotDefaultRole).toBool()) {
    o.font.setBold(true);
  }
  if (index.column() == 1 && index.data(InspectorModel::IsBooleanRole).toBool() && !o.text.isEmpty()) {
    const QString text = std::exchange(o.text, QString());
    o.widget->style()->drawControl(QStyle::CE_ItemViewItem, &o, painter, o.widget);
    QStyleOptionButton box;
    box.rect = BoxRect(o.rect);
    box.palette = o.palette;
    box.state =
        QStyle::State_Enabled | (text == QStringLiteral("True") ? QStyle::State_On : QStyle::State_Off);
    o.widget->style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, o.widget);
    painter->save();
    painter->setFont(o.font);
    painter->setPen(
        o.palette.color(o.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive,
                        o.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(o.rect.adjusted(22, 0, 0, 0), Qt::AlignVCenter, text);
    painter->restore();
  } else {
    o.widget->style()->drawControl(QStyle::CE_ItemViewItem, &o, painter, o.widget);
  }
  if (const QString problem = index.data(InspectorModel::ProblemRole).toString();
      index.column() == 0 && !problem.isEmpty())
    o.widget->style()->standardIcon(QStyle::SP_MessageBoxWarning).paint(painter, SignRect(o.rect));
  painter->save();
  painter->setPen(o.palette.color(QPalette::Midlight)
                      .lighter(o.palette.color(QPalette::Base).lightness() > 128 ? 118 : 80));
  painter->drawLine(o.rect.bottomLeft(), o.rect.bottomRight());
  if (index.column() == 0 && !category) painter->drawLine(o.rect.topRight(), o.rect.bottomRight());
  painter->restore();
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return {QStyledItemDelegate::sizeHint(option, index).width(),
          std::max(22, option.fontMetrics.height() + 6)};
}
