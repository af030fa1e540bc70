// The common dialogs for colours and fonts, through those of the toolkit.
#pragma once
#include "vcl/Dialogs.h"

class TVRXFormColorDialog : public TColorDialog {
  VRX_CLASS(TVRXFormColorDialog)
 public:
  using TColorDialog::TColorDialog;
  // Whether a colour was chosen: it is in Color then, and nothing has changed otherwise.
  bool Execute();
};

class TVRXFormFontDialog : public TFontDialog {
  VRX_CLASS(TVRXFormFontDialog)
 public:
  using TFontDialog::TFontDialog;
  // Whether a font was chosen: it is in Font then. What the person did not change stays as it is.
  bool Execute();
};
