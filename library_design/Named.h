// Controls with the name that they are known by.
#pragma once
#include <QString>

class QLabel;
class QWidget;

// A control with the name it is known by and its hint.
template <class W>
W* Named(W* widget, const char* name, const char* hint) {
  widget->setObjectName(QString::fromLatin1(name));
  widget->setToolTip(QString::fromLatin1(hint));
  return widget;
}

// A line that says something about what is shown. Its room stays when it says nothing, so that nothing jumps.
QLabel* QuietLine(QWidget* parent, const char* name);
