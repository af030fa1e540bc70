// Dialogs that stand inside of an action: what one keeps, without being a component.
#pragma once
#include "rtl/Kept.h"

#define VRX_DIALOG_PART(Type)     \
  class Type : public TKeptPart { \
    VRX_CLASS(Type)               \
   public:                        \
    using TKeptPart::TKeptPart;   \
  };

VRX_DIALOG_PART(TOpenDialogPart)  // for saving, too
VRX_DIALOG_PART(TColorDialogPart)
VRX_DIALOG_PART(TFontDialogPart)
VRX_DIALOG_PART(TPrinterSetupDialogPart)
VRX_DIALOG_PART(TPrintDialogPart)
VRX_DIALOG_PART(TPageSetupDialogPart)
VRX_DIALOG_PART(TFindDialogPart)
VRX_DIALOG_PART(TReplaceDialogPart)
