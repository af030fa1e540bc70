// How keys and the mouse wheel work in dialogs.
#pragma once

class QWidget;

// From now on, in this window:
// - a focused button answers Return itself, whichever button is the default one;
// - the wheel changes only the field that has the focus; over any other it scrolls what is around it.
// To be called when all controls are there; calling it again does no harm.
void UseDialogInput(QWidget& window);
