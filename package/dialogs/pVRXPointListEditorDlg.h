// Edits a list of points on a copy of its own.
#pragma once
#include "dclstd/RowDialog.h"
#include "library/values/PointList.h"
#include "library_design/SpinEdit.h"

class LinesTable;
class PointsModel;

// What is typed beyond a limit becomes the limit.
class PointEdit : public TVRXSpinEdit {
  Q_OBJECT
 public:
  using TVRXSpinEdit::TVRXSpinEdit;

 protected:
  QValidator::State validate(QString& text, int& position) const override;
  void fixup(QString& text) const override;
};

class TfrmTVRXPointListEditor : public RowDialog {
  Q_OBJECT
 public:
  explicit TfrmTVRXPointListEditor(QWidget* owner);
  // Adds the points of the list. Throws EConvertError when it holds anything else.
  void SetPointList(const TVRXPointList& list);
  // The list gets the points in place of its own.
  void GetPointList(TVRXPointList& list) const;

  // The points as the list shows them: "X;Y;".
  QStringList Lines() const;
  int CurrentRow() const;
  void Select(int row);

  void XValExit();
  void YValExit();

  LinesTable* plb;
  PointEdit *XVal, *YVal;
  QPushButton *AddBtn, *DelBtn, *UpBtn, *DownBtn, *OkBtn, *CancelBtn;

 protected:
  void LoadControls() override;

 private:
  void AddBtnClick();
  void DelBtnClick();
  void UpBtnClick() { Exchange(-1); }
  void DownBtnClick() { Exchange(1); }
  void Exchange(int by);
  PointsModel* points_;
};
