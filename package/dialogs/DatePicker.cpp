#include "package/dialogs/DatePicker.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionComboBox>

#include "rtl/DateText.h"

DatePicker::DatePicker(QWidget* parent) : QDateEdit(parent) {
  setCalendarPopup(true);
  setDisplayFormat(DateFormatOf());
  setMinimumDate(QDate(100, 1, 1));
}

// The platform opens its calendar for the mouse alone.
void DatePicker::keyPressEvent(QKeyEvent* event) {
  const bool opens =
      event->key() == Qt::Key_F4 || (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier);
  if (!opens) return QDateEdit::keyPressEvent(event);
  QStyleOptionComboBox option;
  option.initFrom(this);
  option.editable = true;
  option.frame = hasFrame();
  option.subControls = QStyle::SC_All;
  const QPointF at =
      style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this).center();
  QMouseEvent press(QEvent::MouseButtonPress, at, mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QCoreApplication::sendEvent(this, &press);
}
