#include "dclstd/EditValue.h"

#include <QApplication>

QWidget* ApplicationOwner() { return QApplication::activeWindow(); }
