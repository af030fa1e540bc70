// The common dialogs for files: the framework's, known to the library's editors by classes of their own.
#pragma once
#include "vcl/Dialogs.h"
#include "vcl/Previewed.h"

class TVRXFormOpenDialog : public TOpenDialog, public IPreviewed {
  VRX_CLASS(TVRXFormOpenDialog)
 public:
  using TOpenDialog::TOpenDialog;
  // Whether a file was chosen: it is in FileName then, and nothing has changed otherwise.
  bool Execute();
  void Preview() override { PreviewCopyOf(*this); }
  // All that were chosen.
  const QStringList& Files() const { return files_; }

 private:
  QStringList files_;
};

class TVRXFormSaveDialog : public TSaveDialog, public IPreviewed {
  VRX_CLASS(TVRXFormSaveDialog)
 public:
  using TSaveDialog::TSaveDialog;
  bool Execute();
  void Preview() override { PreviewCopyOf(*this); }
};

// "Texts|*.txt;*.md|All (*)|*" as the toolkit has it: "Texts (*.txt *.md)", "All (*)".
QStringList VRXNameFilters(const QString& filter);
