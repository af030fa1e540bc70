// What a file holds beside what would be saved over it, and the choice between them.
#pragma once
#include <QDialog>

#include "vcl/Prompts.h"

class QPlainTextEdit;

class DifferenceDialog : public QDialog {
  Q_OBJECT
 public:
  DifferenceDialog(const QString& fileName, const QByteArray& onDisk, const QByteArray& here,
                   QWidget* parent);
  // Reload, Overwrite or Cancel.
  TFileAnswer Ask();

 private:
  QPlainTextEdit* MakeSide(const char* name, const QString& accessibleName);

  QPlainTextEdit* left_;
  QPlainTextEdit* right_;
  TFileAnswer answer_ = TFileAnswer::Cancel;
};
