// Lets the user check the states that a face controller does not have yet.
#pragma once
#include "dclstd/RowDialog.h"

class QListWidget;

class TVRXControlFaceEditorDlgAddState : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXControlFaceEditorDlgAddState(QWidget* owner);
  // Shows all that are available but these.
  void SetUsedStates(const QStringList& used);
  // Descriptions, in order.
  QStringList Checked() const;

  QListWidget* notUsedStates;
  QPushButton *btnAll, *btnNone, *btnOk, *btnCancel;

 private:
  void CheckAll(Qt::CheckState state);
  void allClick() { CheckAll(Qt::Checked); }
  void noneClick() { CheckAll(Qt::Unchecked); }
};
