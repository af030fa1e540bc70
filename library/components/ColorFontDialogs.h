// The common dialogs for colours and fonts, through those of the toolkit.
#pragma once
#include "vcl/Dialogs.h"
#include "vcl/Previewed.h"

class TVRXFormColorDialog : public TColorDialog, public IPreviewed {
  VRX_CLASS(TVRXFormColorDialog)
 public:
  using TColorDialog::TColorDialog;
  // Whether a colour was chosen: it is in Color then, and nothing has changed otherwise.
  bool Execute();
  void Preview() override { PreviewCopyOf(*this); }
};

class TVRXFormFontDialog : public TFontDialog, public IPreviewed {
  VRX_CLASS(TVRXFormFontDialog)
 public:
  using TFontDialog::TFontDialog;
  // Whether a font was chosen: it is in Font then. What the person did not change stays as it is.
  bool Execute();
  void Preview() override { PreviewCopyOf(*this); }
};
