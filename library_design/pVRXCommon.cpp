#include "library_design/pVRXCommon.h"

#include <QVariant>
#include <QWidget>

unsigned char& ORLENVOKITEDITOROPTIONS = EditorOptions();

void VRXSetThemeMode(QWidget& dialog, int mode) { dialog.setProperty("vrxThemeMode", mode); }
int VRXThemeMode(const QWidget& dialog) { return dialog.property("vrxThemeMode").toInt(); }
