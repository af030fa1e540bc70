#include "dclstd/EditValue.h"

#include <QApplication>

QWidget* ApplicationOwner() {
  QWidget* window = QApplication::activeWindow();
  // A menu goes before what it opened.
  while (window && window->windowType() == Qt::Popup)
    window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
  return window;
}
