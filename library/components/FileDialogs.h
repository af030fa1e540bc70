// The common dialogs of the library: the framework's, known to its editors by classes of their own.
#pragma once
#include "vcl/Dialogs.h"

VRX_DIALOG(TVRXFormOpenDialog, TOpenDialog)
VRX_DIALOG(TVRXFormSaveDialog, TSaveDialog)
VRX_DIALOG(TVRXFormColorDialog, TColorDialog)
VRX_DIALOG(TVRXFormFontDialog, TFontDialog)
VRX_DIALOG(TVRXFormPageSetupDialog, TPageSetupDialog)
VRX_DIALOG(TVRXFormPrinterSetupDialog, TPrinterSetupDialog)
VRX_DIALOG(TVRXFormPrintCommDialog, TPrintDialog)
