#include "library_design/SpinEdit.h"

#include <QLineEdit>

TVRXSpinEdit::TVRXSpinEdit(int maximum, int maxLength, QWidget* parent) : QSpinBox(parent) {
  setRange(0, maximum);
  lineEdit()->setMaxLength(maxLength);
}

void TVRXSpinEdit::focusInEvent(QFocusEvent* event) {
  QSpinBox::focusInEvent(event);
  selectAll();
}
