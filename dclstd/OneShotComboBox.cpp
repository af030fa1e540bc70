#include "dclstd/OneShotComboBox.h"

#include <QKeyEvent>

void OneShotComboBox::keyPressEvent(QKeyEvent* event) {
  const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (event->key() == Qt::Key_F4 || event->key() == Qt::Key_Space ||
      (arrow && event->modifiers().testFlag(Qt::AltModifier))) {
    showPopup();
    event->accept();
  } else {
    event->ignore();
  }
}

void OneShotComboBox::wheelEvent(QWheelEvent* event) { event->ignore(); }
