// Edits dated entries as lines: date, time, description.
#pragma once
#include "dclstd/RowDialog.h"
#include "package/dialogs/DateLines.h"

class LinesTable;
class QDateEdit;
class QTimeEdit;

class TVRXDateListEditorDlg : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXDateListEditorDlg(QWidget* owner);
  // What the list shows; whoever opens the dialog fills it and takes it from here.
  DateLines& Lines() const { return *lines_; }

  void DListClick();
  void DateEditChange();
  void TimeEditChange();
  void DesTextChangedAt();

  LinesTable* DList;
  QDateEdit* DateEdit;
  QTimeEdit* TimeEdit;
  QLineEdit* Des;
  QPushButton *AddBtn, *DelBtn, *UpBtn, *DnButn, *OkBtn, *CancelBtn;

 protected:
  void LoadControls() override;

 private:
  void AddBtnClick();
  void DelBtnClick();
  void UpBtnClick();
  void DnButnClick();
  DateLines* lines_;
};
