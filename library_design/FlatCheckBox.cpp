#include "library_design/FlatCheckBox.h"

#include <QStyleOptionButton>
#include <QStylePainter>

void FlatCheckBox::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  QStylePainter p(this);
  const QRect box = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this);
  const bool active = option.state.testFlag(QStyle::State_MouseOver) || isDown();
  p.setPen(palette().color(active ? QPalette::Highlight : QPalette::PlaceholderText));
  p.setBrush(palette().color(QPalette::Base));
  p.drawRect(box.adjusted(0, 0, -1, -1));
  if (isChecked()) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text), 1.6,
                  Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QRectF r = QRectF(box).adjusted(3, 3, -3, -3);
    p.drawPolyline(QPolygonF(
        {{r.left(), r.center().y()}, {r.left() + r.width() * 0.38, r.bottom()}, {r.right(), r.top()}}));
    p.setRenderHint(QPainter::Antialiasing, false);
  }
  QStyleOptionButton label = option;
  label.rect = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
  p.drawControl(QStyle::CE_CheckBoxLabel, label);
  if (!option.state.testFlag(QStyle::State_HasFocus)) return;
  QStyleOptionFocusRect focus;
  focus.QStyleOption::operator=(option);
  focus.rect = style()->subElementRect(QStyle::SE_CheckBoxFocusRect, &option, this);
  p.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}
