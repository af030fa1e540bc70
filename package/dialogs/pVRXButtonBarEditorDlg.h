// Edits a button bar on a copy that works as the bar will: its sections and items, its look, its pictures.
#pragma once
#include "dclstd/RowDialog.h"
#include "designintf/Designer.h"
#include "package/dialogs/BarView.h"

class QListWidget;
class QTabWidget;

class TVRXButtonBarEditorDlg : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXButtonBarEditorDlg(QWidget* owner);
  ~TVRXButtonBarEditorDlg() override;
  // A copy of the bar; the designer knows its image lists.
  void SetBar(const TVRXButtonBar& bar, IDesigner& designer);
  // The copy, in its place.
  void TakeBar(TVRXButtonBar& bar);

  void FillBoxes();
  void RefreshItem();
  void btnSectionAddClick();
  void btnSectionRenameClick();
  void btnSectionDeleteClick();
  void btnSectionFontClick();
  void btnSectionFont3DClick();
  void edImgChange();
  void chkParentFontClick();
  void btnAddItemClick();
  void lgbtnClick() { LoadGlyph(false); }
  void sgbtnClick() { LoadGlyph(true); }
  void btnFillObjectClick();
  void btnFontClick();
  void btnBevelClick();
  void btnFont3DClick();
  void VRXCheckBox1Click();
  void lihChange();
  void sihChange();
  void smalllbxDblClick();
  void largelbxDblClick();

  std::unique_ptr<TVRXButtonBar> bbar = std::make_unique<TVRXButtonBar>(nullptr);
  std::unique_ptr<TVRXButtonBarPopupMenu> menu = std::make_unique<TVRXButtonBarPopupMenu>(nullptr);
  BarView* view;
  QTabWidget* pages;
  QPushButton *btnSectionAdd, *btnSectionRename, *btnSectionDelete, *btnSectionFont, *btnSectionFont3D;
  SpinEdit *edImg, *lih, *sih;
  QCheckBox *chkParentFont, *VRXCheckBox1;
  QPushButton *btnAddItem, *lgbtn, *sgbtn;
  QPushButton *btnFillObject, *btnFont, *btnBevel, *btnFont3D;
  QLineEdit *small, *large;
  QToolButton *smallbtn, *largebtn;
  QListWidget *smalllbx, *largelbx;
  QPushButton *ok, *cancel;

  int ClickedItem() const { return item_; }

 private:
  QWidget* BuildItemsPage();
  QWidget* BuildBarPage();
  QLayout* BuildPane(bool ofSmall);
  TVRXBarItem* Clicked() const;
  // With the section that is open; nothing without one.
  template <class F>
  void WithSection(F&& action) {
    if (TVRXBarSection* section = bbar->Current()) action(*section);
  }
  void SectionChanged();
  void SectionOrPageChanged();
  void LoadGlyph(bool ofSmall);
  void ChooseList(bool ofSmall);
  void FillBox(bool ofSmall);
  void AssignPicture(const QListWidget& box);
  void SelectBoth(int picture);
  TCustomImageList* ListOf(bool ofSmall) const;
  IDesigner* designer_ = nullptr;
  int item_ = 0;
  bool chosen_ = false;  // the selection is the person's
};
