// Assigns a picture of an image list to each state of a button.
#pragma once
#include "dclstd/RowDialog.h"
#include "library/components/ImageListContainer.h"
#include "library/values/MMButtonFace.h"

class QTreeWidget;

class TVRXButtonFaceDlg : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXButtonFaceDlg(QWidget* owner);
  // What is edited, and what Reset brings back.
  void SetFace(TCustomImageList& images, const TVRXButtonFaceIndices& face);
  const TVRXButtonFaceIndices& Face() const { return working_; }
  void FormActivate() override;

  void SelectBtnClick();
  void nopictureClick();
  void ClearAllClick();
  void syncClick();
  void synchotClick();
  void VRXButton1Click();

  // The picture of a row, if there is one.
  bool IsValidRow(int row) const;
  // How the picture of a row is drawn: one that is higher than the rows is made to fit.
  unsigned DrawFlags(int row) const;
  int RowHeight() const { return rowHeight_; }

  QTreeWidget* lb;
  QPushButton *SelectBtn, *nopicture, *ClearAll, *sync, *synchot, *VRXButton1, *OKButton, *CancelButton;

 protected:
  void LoadControls() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  friend class FaceRows;
  int Selected() const;
  void UpdateRowHeight();
  void ShowFace();
  const TVRXButtonFaceIndex& At(int row) const { return working_[static_cast<std::size_t>(row)]; }

  TCustomImageList* images_ = nullptr;
  TVRXButtonFaceIndices working_{}, initial_{};
  int rowHeight_ = 0;
};
