// What the library's design-time packages share.
#pragma once
#include "designintf/EditorOptions.h"

class QWidget;

// The options that the person has set (designintf/EditorOptions.h), under the library's own name.
extern unsigned char& ORLENVOKITEDITOROPTIONS;

// Mode 1: the dialog and what is on it take part in theming. The mode is kept with the window.
void VRXSetThemeMode(QWidget& dialog, int mode);
int VRXThemeMode(const QWidget& dialog);
