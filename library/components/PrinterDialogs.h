// The common dialogs for paper, printers and printing. What was chosen is the program's (PrinterSetup.h).
#pragma once
#include "vcl/Dialogs.h"

class TVRXFormPageSetupDialog : public TPageSetupDialog {
  VRX_CLASS(TVRXFormPageSetupDialog)
 public:
  using TPageSetupDialog::TPageSetupDialog;
  // Whether it was confirmed; the size of the page and its margins are in the component then, too.
  bool Execute();
};

class TVRXFormPrinterSetupDialog : public TPrinterSetupDialog {
  VRX_CLASS(TVRXFormPrinterSetupDialog)
 public:
  using TPrinterSetupDialog::TPrinterSetupDialog;
  bool Execute();
};

class TVRXFormPrintCommDialog : public TPrintDialog {
  VRX_CLASS(TVRXFormPrintCommDialog)
 public:
  using TPrintDialog::TPrintDialog;
  // Whether it was confirmed; what is to be printed, and how often, is in the component then, too.
  bool Execute();
};
