// The file dialogs of the library: the framework's, known to its editors by classes of their own.
#pragma once
#include "vcl/Dialogs.h"

VRX_DIALOG(TVRXFormOpenDialog, TOpenDialog)
VRX_DIALOG(TVRXFormSaveDialog, TSaveDialog)
