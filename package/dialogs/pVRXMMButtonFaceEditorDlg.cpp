#include "package/dialogs/pVRXMMButtonFaceEditorDlg.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTreeWidget>

#include "library_design/ImageListDialogs.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"

using D = TVRXButtonFaceDlg;

namespace {
constexpr int Count = static_cast<int>(VRXButtonStateCount);
constexpr int FirstColumn = 112, HeaderHeight = 21, HighestRow = 40, Gap = 2;
const QString NoPicture = QStringLiteral("No or no valid picture assigned for this state");
QString StateName(int row) { return QString::fromLatin1(TypeInfoOf<TVRXButtonState>::Get().Elements[row]); }
}  // namespace

// Draws rows from the face: the state's name, and its picture.
class FaceRows : public QStyledItemDelegate {
 public:
  explicit FaceRows(D& dialog) : QStyledItemDelegate(&dialog), dialog_(dialog) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const int text = option.fontMetrics.height() + 4;
    return {QStyledItemDelegate::sizeHint(option, index).width(), std::max(text, dialog_.rowHeight_)};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& plain, const QModelIndex& index) const override {
    QStyleOptionViewItem option = plain;
    initStyleOption(&option, index);
    option.text.clear();
    const QWidget* widget = option.widget;
    widget->style()->drawControl(QStyle::CE_ItemViewItem, &option, painter, widget);
    const int row = index.row();
    const QRect room =
        index.column() == 0 ? option.rect.adjusted(0, 0, -Gap, 0) : option.rect.adjusted(Gap, 0, 0, 0);
    if (index.column() == 1 && dialog_.IsValidRow(row)) {
      const TVRXButtonFaceIndex& face = dialog_.At(row);
      return VRXIMLDrawExt(dialog_.images_, face.ListIndex, face.ImageIndex, *painter, room,
                           dialog_.DrawFlags(row));
    }
    const bool selected = option.state & QStyle::State_Selected;
    const QPalette::ColorGroup group =
        option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    painter->setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    const QString text = index.column() == 0 ? StateName(row) : NoPicture;
    painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                      option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
  }

 private:
  D& dialog_;
};

TVRXButtonFaceDlg::TVRXButtonFaceDlg(QWidget* owner)
    : RowDialog(QStringLiteral("Button Face Editor"), owner) {
  lb = Named(new QTreeWidget(this), "lb", "A double click chooses the picture of a state");
  lb->setAccessibleName(QStringLiteral("Pictures of the states"));
  lb->setHeaderLabels({QStringLiteral("State"), QStringLiteral("Picture")});
  lb->setRootIsDecorated(false);
  lb->setUniformRowHeights(true);
  lb->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lb->setItemDelegate(new FaceRows(*this));
  lb->header()->setFixedHeight(HeaderHeight);
  lb->header()->setStretchLastSection(false);
  lb->header()->setMinimumSectionSize(1);
  int widest = FirstColumn;
  for (int row = 0; row < Count; ++row)
    widest = std::max(widest, lb->fontMetrics().horizontalAdvance(StateName(row)) + 2 * Gap);
  lb->header()->resizeSection(0, widest);
  lb->installEventFilter(this);
  Follows(lb);
  connect(lb, &QTreeWidget::itemDoubleClicked, this, [this] { Guarded([this] { SelectBtnClick(); }); });
  Button(SelectBtn, "SelectBtn", "Select Picture", &D::SelectBtnClick);
  Button(nopicture, "nopicture", "Clear Picture", &D::nopictureClick);
  Button(ClearAll, "ClearAll", "Clear All", &D::ClearAllClick);
  Button(sync, "sync", "Sync Normal", &D::syncClick,
         "Synch bsUp/bsDown ListIndex with other button states.\r\n"
         "Use this feature if only bsUp/bsDown Images are available.");
  Button(synchot, "synchot", "Sync Hot", &D::synchotClick,
         "Synch bsUp/bsDown/bsMouseOver ListIndex with other button states.\r\n"
         "Use this feature if only bsUp/bsDown/bsMouseOver Images are available.");
  Button(VRXButton1, "VRXButton1", "Reset", &D::VRXButton1Click);
  OkButton(OKButton, "OKButton");
  RowDialog::CancelButton(CancelButton, "CancelButton");
  VRXSetThemeMode(*this, 1);
  auto* content = new QVBoxLayout;
  content->addWidget(lb);
  FinishBeside(content, {SelectBtn, nopicture, ClearAll, sync, synchot, VRXButton1}, {OKButton, CancelButton},
               {600, 440});
  for (int i = 0; i < Count; ++i) lb->addTopLevelItem(new QTreeWidgetItem);
  lb->setCurrentItem(lb->topLevelItem(0));
  ShowFace();
}

void TVRXButtonFaceDlg::SetFace(TCustomImageList& images, const TVRXButtonFaceIndices& face) {
  images_ = &images;
  VRXMMCopyFace(face, initial_);
  VRXMMCopyFace(face, working_);
  ShowFace();
}

void TVRXButtonFaceDlg::FormActivate() {
  UpdateRowHeight();
  RowDialog::FormActivate();
}

void TVRXButtonFaceDlg::LoadControls() { ShowFace(); }

bool TVRXButtonFaceDlg::eventFilter(QObject* watched, QEvent* event) {
  if (watched == lb && event->type() == QEvent::Resize)
    lb->header()->resizeSection(1, lb->width() - FirstColumn);
  return RowDialog::eventFilter(watched, event);
}

int TVRXButtonFaceDlg::Selected() const {
  return lb->selectedItems().isEmpty() ? -1 : lb->indexOfTopLevelItem(lb->currentItem());
}

bool TVRXButtonFaceDlg::IsValidRow(int row) const {
  return VRXIMLIsValidItem(images_, At(row).ListIndex, At(row).ImageIndex);
}

unsigned TVRXButtonFaceDlg::DrawFlags(int row) const {
  return VRXIMLItemHeight(images_, At(row).ListIndex) > rowHeight_ ? VRXIMLFitFlags : 0;
}

void TVRXButtonFaceDlg::UpdateRowHeight() {
  rowHeight_ = 0;
  for (int row = 0; row < Count; ++row)
    if (IsValidRow(row)) rowHeight_ = std::max(rowHeight_, VRXIMLItemHeight(images_, At(row).ListIndex));
  rowHeight_ = std::min(rowHeight_, HighestRow);
  lb->doItemsLayout();
}

// The rows are painted; what they say is for those who cannot see them.
void TVRXButtonFaceDlg::ShowFace() {
  for (int row = 0; row < Count; ++row) {
    QTreeWidgetItem* item = lb->topLevelItem(row);
    item->setData(0, Qt::AccessibleTextRole, StateName(row));
    item->setData(1, Qt::AccessibleTextRole,
                  IsValidRow(row) ? QStringLiteral("%1: %2").arg(At(row).ListIndex).arg(At(row).ImageIndex)
                                  : NoPicture);
  }
  lb->viewport()->update();
}

void TVRXButtonFaceDlg::SelectBtnClick() {
  const int row = Selected();
  if (row < 0 || !images_) return;
  TVRXButtonFaceIndex& face = working_[static_cast<std::size_t>(row)];
  int list = face.ListIndex, image = face.ImageIndex;
  if (!VRXCPGetIML(*images_, list, image)) return;
  face = {static_cast<std::uint16_t>(list), static_cast<std::uint16_t>(image)};
  UpdateRowHeight();
  ShowFace();
  lb->setCurrentItem(lb->topLevelItem(row));
}

void TVRXButtonFaceDlg::nopictureClick() {
  const int row = Selected();
  if (row < 0) return;
  working_[static_cast<std::size_t>(row)] = {};
  UpdateRowHeight();
  ShowFace();
}

void TVRXButtonFaceDlg::ClearAllClick() {
  VRXMMInitFace(working_);
  ShowFace();
}
void TVRXButtonFaceDlg::syncClick() {
  VRXMMSynchronize(working_, false);
  ShowFace();
}
void TVRXButtonFaceDlg::synchotClick() {
  VRXMMSynchronize(working_, true);
  ShowFace();
}

void TVRXButtonFaceDlg::VRXButton1Click() {
  VRXMMCopyFace(initial_, working_);
  UpdateRowHeight();
  ShowFace();
}
