#include "library_design/pVRXCommon.h"

#include <QVariant>
#include <QWidget>

// The environment sets the options for a process that cannot reach the variable before the packages are
// loaded.
unsigned char ORLENVOKITEDITOROPTIONS =
    static_cast<unsigned char>(qEnvironmentVariableIntValue("ORLENVOKITEDITOROPTIONS"));

bool VRXEditorOption(TVRXEditorOption option) {
  return (ORLENVOKITEDITOROPTIONS >> static_cast<unsigned>(option) & 1u) != 0;
}

void VRXSetThemeMode(QWidget& dialog, int mode) { dialog.setProperty("vrxThemeMode", mode); }
int VRXThemeMode(const QWidget& dialog) { return dialog.property("vrxThemeMode").toInt(); }
