// Choosing an image list of the form, and pictures in it.
#pragma once
#include "dclstd/RowDialog.h"
#include "designintf/Designer.h"
#include "vcl/ImageList.h"

class QListWidget;

// Each writes its result into the arguments only when the user confirms, and is true then. An index of -1 is
// no picture. IMLExt asks for two pictures, as of a control that has one for each of two states.
bool VRXCPGetIML(IDesigner& designer, TCustomImageList*& list, int& index);
bool VRXCPGetIMLExt(IDesigner& designer, TCustomImageList*& list, int& index0, int& index1);
// The list alone.
bool VRXCPGetIMLExt(IDesigner& designer, TCustomImageList*& list);
// Another picture of the lists of a container, which are counted from 1 on. None is 0 and 0.
bool VRXCPGetIML(TCustomImageList& container, int& listIndex, int& imageIndex);
// The same for a component's reference and, where it publishes one, its "ImageIndex".
bool VRXCPGetImageListOf(TComponent& component, const char* property, IDesigner& designer);

class TVRXImageListDlg : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXImageListDlg(QWidget* owner = nullptr);
  // `lists` may hold a null for none; `indexes` says how many pictures are chosen. They stay chosen in
  // another list that has them.
  void SetLists(const std::vector<TCustomImageList*>& lists, const TCustomImageList* current,
                const std::vector<int>& indexes);
  TCustomImageList* List() const;
  std::vector<int> Indexes() const;

  QComboBox* lists;
  QListWidget* images[2];
  QLabel* facts;
  QPushButton *ok, *cancel;

 private:
  void ShowImages();
  int Chosen(std::size_t place) const;

  std::vector<TCustomImageList*> all_;
  std::size_t count_ = 1;
  std::vector<int> wanted_{-1, -1};  // pictures that were chosen last
};
