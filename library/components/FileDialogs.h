// The common dialogs for files: the framework's, known to the library's editors by classes of their own.
#pragma once
#include "vcl/Dialogs.h"

class TVRXFormOpenDialog : public TOpenDialog {
  VRX_CLASS(TVRXFormOpenDialog)
 public:
  using TOpenDialog::TOpenDialog;
  // Whether a file was chosen: it is in FileName then, and nothing has changed otherwise.
  bool Execute();
  // All that were chosen.
  const QStringList& Files() const { return files_; }

 private:
  QStringList files_;
};

class TVRXFormSaveDialog : public TSaveDialog {
  VRX_CLASS(TVRXFormSaveDialog)
 public:
  using TSaveDialog::TSaveDialog;
  bool Execute();
};

// "Texts|*.txt;*.md|All (*)|*" as the toolkit has it: "Texts (*.txt *.md)", "All (*)".
QStringList VRXNameFilters(const QString& filter);
