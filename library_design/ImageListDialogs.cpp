#include "library_design/ImageListDialogs.h"

#include <QtWidgets>

#include "dclstd/EditValue.h"
#include "library/components/ImageListContainer.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"
#include "rtl/PropAccess.h"

TVRXImageListDlg::TVRXImageListDlg(QWidget* owner) : RowDialog(QStringLiteral("Select ImageList"), owner) {
  auto* grid = new QGridLayout;
  RowsInto(*grid);
  Row(lists, "lists", "", "&ImageList:", "The image lists of the form.")
      .Changes(&TVRXImageListDlg::ShowImages);
  static constexpr const char* names[] = {"images", "images2"};
  for (int i = 0; i < 2; ++i) {
    images[i] = Named(new QListWidget(this), names[i], "A click chooses the picture, another one none.");
    images[i]->setAccessibleName(i == 0 ? QStringLiteral("Picture") : QStringLiteral("Second picture"));
    images[i]->setViewMode(QListView::IconMode);
    images[i]->setMovement(QListView::Static);
    images[i]->setResizeMode(QListView::Adjust);
    images[i]->setMinimumSize(320, 110);
    Wide({images[i]});
    Follows(images[i]);
    connect(images[i], &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(images[i], &QListWidget::itemSelectionChanged, this,
            [this, i] { wanted_[static_cast<std::size_t>(i)] = Chosen(static_cast<std::size_t>(i)); });
  }
  facts = QuietLine(this, "facts");
  Wide({facts});
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  auto* box = new QVBoxLayout(this);
  box->addLayout(grid, 1);
  box->addLayout(ButtonLine({ok, cancel}));
  VRXSetThemeMode(*this, 1);
  SetTabSequence();
  FormCreate();
  images[1]->hide();
  ShowImages();
}

void TVRXImageListDlg::SetLists(const std::vector<TCustomImageList*>& all, const TCustomImageList* current,
                                const std::vector<int>& indexes) {
  const QSignalBlocker quiet(lists);
  all_ = all;
  count_ = indexes.size();
  for (std::size_t i = 0; i < 2; ++i) images[i]->setVisible(i < count_);
  lists->clear();
  for (const TCustomImageList* list : all_)
    lists->addItem(list ? QStringLiteral("%1 (%2)").arg(list->Name()).arg(list->Count()) : tr("(none)"));
  const auto at = std::find(all_.begin(), all_.end(), current);
  lists->setCurrentIndex(at == all_.end() ? 0 : static_cast<int>(at - all_.begin()));
  wanted_ = indexes;
  wanted_.resize(2, -1);
  ShowImages();
}

TCustomImageList* TVRXImageListDlg::List() const {
  const auto row = static_cast<std::size_t>(lists->currentIndex());
  return row < all_.size() ? all_[row] : nullptr;
}

// The focus alone chooses none.
int TVRXImageListDlg::Chosen(std::size_t place) const {
  return images[place]->selectedItems().isEmpty() ? -1 : images[place]->currentRow();
}

std::vector<int> TVRXImageListDlg::Indexes() const {
  std::vector<int> indexes;
  for (std::size_t i = 0; i < count_; ++i) indexes.push_back(Chosen(i));
  return indexes;
}

void TVRXImageListDlg::ShowImages() {
  const TCustomImageList* list = List();
  const int count = list ? list->Count() : 0;
  for (std::size_t i = 0; i < 2; ++i) {
    const QSignalBlocker quiet(images[i]);
    images[i]->clear();
    if (list)
      images[i]->setIconSize(QSize(list->Get(TCustomImageList::Width), list->Get(TCustomImageList::Height))
                                 .boundedTo(QSize(64, 64)));
    for (int n = 0; n < count; ++n)
      images[i]->addItem(new QListWidgetItem(QIcon(QPixmap::fromImage(list->Image(n))), QString::number(n)));
    images[i]->setCurrentRow(wanted_[i] < count ? wanted_[i] : -1);
  }
  facts->setText(
      all_.empty() || (all_.size() == 1 && !all_[0]) ? tr("The form has no image list.")
      : !list                                        ? QString()
      : count == 0                                   ? tr("The image list is empty.")
                   : tr("%n pictures", nullptr, count).replace(QStringLiteral("%n"), QString::number(count)));
}

namespace {
bool Choose(IDesigner& designer, TCustomImageList*& list, std::vector<int>& indexes) {
  std::vector<TCustomImageList*> lists{nullptr};
  designer.GetComponentNames(TCustomImageList::StaticClass(), [&](const QString& name) {
    if (auto* found = As<TCustomImageList>(designer.GetComponent(name))) lists.push_back(found);
  });
  TVRXImageListDlg dialog(ApplicationOwner());
  dialog.SetLists(lists, list, indexes);
  dialog.SetLabels();
  if (dialog.ShowModal() != mrOk) return false;
  const bool sameList = dialog.List() == list;
  list = dialog.List();
  const int count = list ? list->Count() : 0;
  const std::vector<int> chosen = dialog.Indexes();
  for (std::size_t i = 0; i < indexes.size(); ++i)
    // What could not be shown was not taken away by anybody.
    if (!sameList || chosen[i] >= 0 || indexes[i] < count) indexes[i] = chosen[i];
  return true;
}
}  // namespace

bool VRXCPGetIML(IDesigner& designer, TCustomImageList*& list, int& index) {
  std::vector<int> indexes{index};
  if (!Choose(designer, list, indexes)) return false;
  index = indexes[0];
  return true;
}

bool VRXCPGetIMLExt(IDesigner& designer, TCustomImageList*& list, int& index0, int& index1) {
  std::vector<int> indexes{index0, index1};
  if (!Choose(designer, list, indexes)) return false;
  index0 = indexes[0];
  index1 = indexes[1];
  return true;
}

bool VRXCPGetIMLExt(IDesigner& designer, TCustomImageList*& list) {
  std::vector<int> none;
  return Choose(designer, list, none);
}

bool VRXCPGetIML(TCustomImageList& container, int& listIndex, int& imageIndex) {
  std::vector<TCustomImageList*> lists;
  std::vector<int> places;
  for (int i = 1; i <= VRXIMLListCount(&container); ++i)
    if (const TCustomImageList* list = VRXIMLList(&container, i)) {
      lists.push_back(const_cast<TCustomImageList*>(list));
      places.push_back(i);
    }
  const bool valid = VRXIMLIsValidItem(&container, listIndex, imageIndex);
  const auto place = std::find(places.begin(), places.end(), listIndex);
  TVRXImageListDlg dialog(ApplicationOwner());
  dialog.setWindowTitle(QStringLiteral("Select Picture"));
  // Where there was none the first one is offered.
  const bool none = listIndex == 0 && imageIndex == 0;
  dialog.SetLists(lists,
                  place == places.end() ? nullptr : lists[static_cast<std::size_t>(place - places.begin())],
                  {valid  ? imageIndex
                   : none ? 0
                          : -1});
  dialog.SetLabels();
  dialog.images[0]->setFocus();
  if (dialog.ShowModal() != mrOk) return false;
  const int chosen = dialog.Indexes()[0];
  const int list = chosen < 0 ? 0 : places[static_cast<std::size_t>(dialog.lists->currentIndex())];
  // What could not be shown was not taken away by anybody.
  if (chosen < 0 && !valid) return false;
  if (list == listIndex && std::max(chosen, 0) == imageIndex) return false;
  listIndex = list;
  imageIndex = std::max(chosen, 0);
  return true;
}

bool VRXCPGetImageListOf(TComponent& component, const char* property, IDesigner& designer) {
  const TClass& cls = component.ClassType();
  const TPropInfo& reference = cls.GetProp(property);
  const TPropInfo* const image = cls.FindProp("ImageIndex");
  auto* list = static_cast<TCustomImageList*>(GetObjectProp(component, reference));
  int index = image ? static_cast<int>(GetOrdProp(component, *image)) : -1;
  const auto before = std::pair(list, index);
  // No picture is offered where none could be kept.
  const bool confirmed = image ? VRXCPGetIML(designer, list, index) : VRXCPGetIMLExt(designer, list);
  if (!confirmed || before == std::pair(list, index)) return false;
  SetObjectProp(component, reference, list);
  if (image) SetOrdProp(component, *image, index);
  return true;
}
