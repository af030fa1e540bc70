// The common dialogs for paper, printers and printing. What was chosen is the program's (PrinterSetup.h).
#pragma once
#include "vcl/Dialogs.h"
#include "vcl/Previewed.h"

class TVRXFormPageSetupDialog : public TPageSetupDialog, public IPreviewed {
  VRX_CLASS(TVRXFormPageSetupDialog)
 public:
  using TPageSetupDialog::TPageSetupDialog;
  // Whether it was confirmed; the size of the page and its margins are in the component then, too.
  bool Execute();
  void Preview() override;
};

class TVRXFormPrinterSetupDialog : public TPrinterSetupDialog, public IPreviewed {
  VRX_CLASS(TVRXFormPrinterSetupDialog)
 public:
  using TPrinterSetupDialog::TPrinterSetupDialog;
  bool Execute();
  void Preview() override;
};

class TVRXFormPrintCommDialog : public TPrintDialog, public IPreviewed {
  VRX_CLASS(TVRXFormPrintCommDialog)
 public:
  using TPrintDialog::TPrintDialog;
  // Whether it was confirmed; what is to be printed, and how often, is in the component then, too.
  bool Execute();
  void Preview() override;
};
