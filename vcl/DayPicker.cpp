#include "vcl/DayPicker.h"

#include <QEvent>
#include <QPainter>
#include <QTextCharFormat>

#include "vcl/Theme.h"

DayPicker::DayPicker(QWidget* parent) : QCalendarWidget(parent) {
  // What is typed would count in the month of today.
  setDateEditEnabled(false);
  TakeColors();
}

void DayPicker::TakeColors() {
  const QColor red(IsDark(palette()) ? 0xff8a80 : 0xc62828);
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) {
    QTextCharFormat format = weekdayTextFormat(day);
    format.setForeground(red);
    setWeekdayTextFormat(day, format);
  }
}

void DayPicker::changeEvent(QEvent* event) {
  QCalendarWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) TakeColors();
}

void DayPicker::paintCell(QPainter* painter, const QRect& rect, QDate day) const {
  if (day >= minimumDate() && day <= maximumDate()) return QCalendarWidget::paintCell(painter, rect, day);
  painter->fillRect(rect, palette().color(QPalette::Window));
  painter->setFont(font());
  painter->setPen(palette().color(QPalette::Disabled, QPalette::Text));
  painter->drawText(rect, Qt::AlignCenter, locale().toString(day.day()));
}
