#include "package/dialogs/pVRXButtonBarEditorDlg.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QListWidget>
#include <QScrollBar>
#include <QTabWidget>

#include "library_design/FillDialog.h"
#include "library_design/Font3DDialog.h"
#include "library_design/FontDialogs.h"
#include "library_design/ImageListDialogs.h"
#include "library_design/LookDialogs.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"
#include "vcl/PictureFile.h"
#include "vcl/Prompts.h"
#include "vcl/UserFile.h"

using D = TVRXButtonBarEditorDlg;
using B = TVRXButtonBar;

namespace {
const QString None = QStringLiteral("(none)");

// Whatever can be read is kept as it is, else as a picture that forms keep.
void LoadGlyphFile(TGlyph& glyph, const QString& file) {
  const TBitmap decoded = LoadPicture(file);
  try {
    glyph.SetFileBytes(ReadUserFile(file));
  } catch (const EInvalidPicture&) {
    glyph.SetFileBytes(PictureToBytes(decoded.Image(), "png"));
  }
}
QLabel* Remark(QWidget* parent, const char* name, const char* text) {
  auto* label = Named(new QLabel(QString::fromLatin1(text), parent), name, "");
  label->setWordWrap(true);
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}
void ScrollWith(QListWidget& box, const QListWidget& other) {
  box.verticalScrollBar()->setValue(other.verticalScrollBar()->value());
}
}  // namespace

TVRXButtonBarEditorDlg::TVRXButtonBarEditorDlg(QWidget* owner)
    : RowDialog(QStringLiteral("Button Bar Editor"), owner) {
  setObjectName(QStringLiteral("VRXButtonBarEditorDlg"));
  view = Named(new BarView(*bbar, *menu, this), "bbar",
               "The bar: a click selects, dragging changes the order, the context menu renames and deletes");
  view->setAccessibleName(QStringLiteral("Button bar"));
  view->setMinimumSize(180, 300);
  OwnColors({view});
  Follows(view);
  pages = Named(new QTabWidget(this), "pages", "");
  Follows(pages);
  pages->addTab(BuildItemsPage(), QStringLiteral("Items"));
  pages->addTab(BuildBarPage(), QStringLiteral("Bar"));
  auto* panes = new QHBoxLayout;
  panes->setSpacing(12);
  for (const bool ofSmall : {true, false}) panes->addLayout(BuildPane(ofSmall));
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  connect(view, &BarView::SectionChanged, this, &D::SectionChanged);
  connect(view, &BarView::ItemClicked, this, [this](int item) {
    item_ = item;
    chosen_ = true;
    RefreshItem();
  });
  connect(pages, &QTabWidget::currentChanged, this, &D::SectionOrPageChanged);
  VRXSetThemeMode(*this, 1);
  auto* right = new QVBoxLayout;
  right->addWidget(pages);
  right->addLayout(panes, 1);
  right->addWidget(Remark(this, "hint1", "Use ButtonBar context menu to rename or delete items."));
  right->addWidget(Remark(this, "hint2",
                          "Double click on desired image in image list or click buttons above to browse for "
                          "bitmap files."));
  auto* content = new QHBoxLayout;
  content->setSpacing(16);
  content->addWidget(view);
  content->addLayout(right, 1);
  FinishBeside(content, {}, {ok, cancel}, {760, 560});
  // Remarks that wrap need more height the narrower they are.
  resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
  FillBoxes();
  RefreshItem();
}

// The view is gone before what it shows.
TVRXButtonBarEditorDlg::~TVRXButtonBarEditorDlg() {
  Retire();
  delete view;
}

QWidget* TVRXButtonBarEditorDlg::BuildItemsPage() {
  auto* page = new QWidget(pages);
  auto* sections = new QHBoxLayout;
  Button(btnSectionAdd, "btnSectionAdd", "&Add", &D::btnSectionAddClick, "A section behind the others");
  Button(btnSectionRename, "btnSectionRename", "&Rename", &D::btnSectionRenameClick,
         "The open section, where it stands (F2)");
  Button(btnSectionDelete, "btnSectionDelete", "&Delete", &D::btnSectionDeleteClick, "The open section");
  Button(btnSectionFont, "btnSectionFont", "&Font", &D::btnSectionFontClick,
         "The letters of the open section's items");
  Button(btnSectionFont3D, "btnSectionFont3D", "Font3D", &D::btnSectionFont3DClick,
         "Light and shadow of the open section's letters");
  for (QPushButton* button :
       {btnSectionAdd, btnSectionRename, btnSectionDelete, btnSectionFont, btnSectionFont3D})
    sections->addWidget(button);
  auto* fields = new QGridLayout;
  RowsInto(*fields);
  Row(edImg, "edImg", "", "Current section list index:", "The picture of the open section's heading")
      .Range(0, 5000, 4)
      .Changes(&D::edImgChange);
  fields->addWidget(new QLabel(QStringLiteral("(small/large)"), page), fields->rowCount() - 1, 2);
  Row(chkParentFont, "chkParentFont", "", "ParentFont", "The open section's items have the bar's letters")
      .Changes(&D::chkParentFontClick);
  auto* items = new QHBoxLayout;
  Button(btnAddItem, "btnAddItem", "Add Item", &D::btnAddItemClick, "Behind the others of the open section");
  Button(lgbtn, "lgbtn", "Large glyph", &D::lgbtnClick, "A large picture for the selected item, from a file");
  Button(sgbtn, "sgbtn", "Small glyph", &D::sgbtnClick, "A small picture for the selected item, from a file");
  for (QPushButton* button : {btnAddItem, lgbtn, sgbtn}) items->addWidget(button);
  items->addStretch(1);
  auto* box = new QVBoxLayout(page);
  box->addLayout(sections);
  box->addLayout(fields);
  box->addLayout(items);
  return page;
}

QWidget* TVRXButtonBarEditorDlg::BuildBarPage() {
  auto* page = new QWidget(pages);
  auto* looks = new QHBoxLayout;
  Button(btnFillObject, "btnFillObject", "FillObject", &D::btnFillObjectClick, "What the bar is filled with");
  Button(btnFont, "btnFont", "Font", &D::btnFontClick, "The bar's letters");
  Button(btnBevel, "btnBevel", "Bevel", &D::btnBevelClick, "The bar's edge");
  Button(btnFont3D, "btnFont3D", "Font3D", &D::btnFont3DClick, "Light and shadow of the bar's letters");
  for (QPushButton* button : {btnFillObject, btnFont, btnBevel, btnFont3D}) looks->addWidget(button);
  auto* fields = new QGridLayout;
  RowsInto(*fields);
  Row(VRXCheckBox1, "VRXCheckBox1", "", "Transparent", "Lets what is behind the bar show through")
      .Changes(&D::VRXCheckBox1Click);
  Row(lih, "lih", "", "Large item height:", "Of items with large pictures")
      .Range(0, 5000, 4)
      .Changes(&D::lihChange);
  Row(sih, "sih", "", "Smal item height:", "Of items with small pictures")
      .Range(0, 5000, 4)
      .Changes(&D::sihChange);
  auto* box = new QVBoxLayout(page);
  box->addWidget(new QLabel(QStringLiteral("Bar properties"), page));
  box->addLayout(looks);
  box->addLayout(fields);
  return page;
}

QLayout* TVRXButtonBarEditorDlg::BuildPane(bool ofSmall) {
  QLineEdit*& edit = ofSmall ? small : large;
  QToolButton*& button = ofSmall ? smallbtn : largebtn;
  QListWidget*& box = ofSmall ? smalllbx : largelbx;
  edit = Named(new QLineEdit(None, this), ofSmall ? "small" : "large", "The image list of the form");
  edit->setReadOnly(true);
  Follows(edit);
  button =
      Named(new QToolButton(this), ofSmall ? "smallbtn" : "largebtn", "Chooses an image list of the form");
  button->setText(QStringLiteral("..."));
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QToolButton::clicked, this, [=, this] { Guarded([=, this] { ChooseList(ofSmall); }); });
  Follows(button);
  box = Named(new QListWidget(this), ofSmall ? "smalllbx" : "largelbx",
              "A double click gives the picture to the selected item");
  box->setAccessibleName(ofSmall ? QStringLiteral("Small pictures") : QStringLiteral("Large pictures"));
  box->setMinimumHeight(100);
  Follows(box);
  connect(box, &QListWidget::itemDoubleClicked, this,
          [=, this] { ofSmall ? smalllbxDblClick() : largelbxDblClick(); });
  auto* label =
      new QLabel(ofSmall ? QStringLiteral("Small image list") : QStringLiteral("Large image list"), this);
  label->setBuddy(edit);
  auto* line = new QHBoxLayout;
  line->addWidget(edit, 1);
  line->addWidget(button);
  auto* pane = new QVBoxLayout;
  pane->addWidget(label);
  pane->addLayout(line);
  pane->addWidget(box, 1);
  return pane;
}

void TVRXButtonBarEditorDlg::SetBar(const TVRXButtonBar& bar, IDesigner& designer) {
  designer_ = &designer;
  bbar->Assign(&bar);
  // It stands in the dialog, not where the bar does.
  bbar->SetAlign(TAlign::alNone);
  bbar->SetBounds(0, 0, view->width(), view->height());
  FillBoxes();
  SectionOrPageChanged();
  chosen_ = false;
}

void TVRXButtonBarEditorDlg::TakeBar(TVRXButtonBar& bar) {
  const TUpdateLock lock(bar);
  const QRect bounds = bar.BoundsRect();
  bbar->SetAlign(bar.Align());
  bbar->SetBounds(bounds.left(), bounds.top(), bounds.width(), bounds.height());
  // What the dialog selected by itself is nobody's choice.
  if (!chosen_) bbar->Set(B::ItemIndex, bar.Get(B::ItemIndex));
  bar.Assign(bbar.get());
}

TCustomImageList* TVRXButtonBarEditorDlg::ListOf(bool ofSmall) const {
  return bbar->Get(ofSmall ? B::SmallImageList : B::LargeImageList);
}

void TVRXButtonBarEditorDlg::FillBox(bool ofSmall) {
  const TCustomImageList* list = ListOf(ofSmall);
  QListWidget& box = *(ofSmall ? smalllbx : largelbx);
  box.clear();
  (ofSmall ? small : large)->setText(list ? list->Name() : None);
  if (!list) return;
  constexpr QSize most(64, 64);
  box.setIconSize(
      QSize(list->Get(TCustomImageList::Width), list->Get(TCustomImageList::Height)).boundedTo(most));
  for (int i = 0; i < list->Count(); ++i)
    box.addItem(new QListWidgetItem(QIcon(QPixmap::fromImage(list->Image(i))), QString::number(i)));
}

void TVRXButtonBarEditorDlg::FillBoxes() {
  Guarded([this] {
    FillBox(true);
    FillBox(false);
  });
  const QSignalBlocker quietLarge(lih), quietSmall(sih), quietBox(VRXCheckBox1), quietImage(edImg);
  sih->Show(bbar->Get(B::SmallItemHeight));
  lih->Show(bbar->Get(B::LargeItemHeight));
  VRXCheckBox1->setChecked(bbar->Get(B::Transparent));
  WithSection([this](const TVRXBarSection& s) { edImg->Show(s.Get(TVRXBarSection::ListIndex)); });
}

TVRXBarItem* TVRXButtonBarEditorDlg::Clicked() const {
  const TVRXBarSection* section = bbar->Current();
  return section && item_ >= 0 && item_ < section->ItemCount() ? &section->Items()->At(item_) : nullptr;
}

void TVRXButtonBarEditorDlg::SectionChanged() {
  chosen_ = true;
  SectionOrPageChanged();
}
void TVRXButtonBarEditorDlg::SectionOrPageChanged() {
  item_ = 0;
  bbar->Set(B::ItemIndex, Clicked() ? 0 : -1);
  RefreshItem();
}

void TVRXButtonBarEditorDlg::SelectBoth(int picture) {
  for (QListWidget* box : {smalllbx, largelbx}) box->setCurrentRow(picture < box->count() ? picture : -1);
}

void TVRXButtonBarEditorDlg::RefreshItem() {
  const QSignalBlocker quietBox(chkParentFont), quietImage(edImg);
  chkParentFont->setEnabled(false);
  chkParentFont->setChecked(false);
  const TVRXBarSection* section = bbar->Current();
  for (QPushButton* button :
       {btnSectionRename, btnSectionDelete, btnSectionFont, btnSectionFont3D, btnAddItem})
    button->setEnabled(section);
  edImg->setEnabled(section);
  const TVRXBarItem* item = Clicked();
  lgbtn->setEnabled(item);
  sgbtn->setEnabled(item);
  const int index = section ? section->Get(TVRXBarSection::ListIndex) : -1;
  if (section) edImg->Show(index);
  SelectBoth(index);
  if (!item) return;
  chkParentFont->setEnabled(true);
  chkParentFont->setChecked(section->Get(TVRXBarSection::ParentFont));
  const int picture = item->Get(TVRXBarItem::ImageIndex);
  for (const bool ofSmall : {true, false}) {
    QListWidget& box = *(ofSmall ? smalllbx : largelbx);
    const bool fromList = !item->Glyph(ofSmall) && ListOf(ofSmall);
    box.setCurrentRow(fromList && picture < box.count() ? picture : -1);
  }
}

void TVRXButtonBarEditorDlg::btnSectionAddClick() {
  bbar->AddSection();
  SectionChanged();
}
void TVRXButtonBarEditorDlg::btnSectionRenameClick() { view->RenSection(-1); }
void TVRXButtonBarEditorDlg::btnSectionDeleteClick() {
  bbar->DelSection();
  SectionChanged();
}
// Letters of its own are seen without those of the bar.
void TVRXButtonBarEditorDlg::btnSectionFontClick() {
  WithSection([this](TVRXBarSection& s) {
    if (VRXCPGetFont(*s.Font())) s.Set(TVRXBarSection::ParentFont, false);
    RefreshItem();
  });
}
void TVRXButtonBarEditorDlg::btnSectionFont3DClick() {
  WithSection([this](TVRXBarSection& s) {
    if (VRXCPGetFont3D(*s.Font3D())) s.Set(TVRXBarSection::ParentFont, false);
    RefreshItem();
  });
}
void TVRXButtonBarEditorDlg::edImgChange() {
  WithSection([this](TVRXBarSection& s) {
    s.Set(TVRXBarSection::ListIndex, edImg->value());
    SelectBoth(edImg->value());
  });
}
void TVRXButtonBarEditorDlg::chkParentFontClick() {
  WithSection([this](TVRXBarSection& s) { s.Set(TVRXBarSection::ParentFont, chkParentFont->isChecked()); });
}
void TVRXButtonBarEditorDlg::btnAddItemClick() {
  bbar->AddItem();
  if (bbar->Current()) {
    item_ = bbar->Get(B::ItemIndex);
    chosen_ = true;
  }
  RefreshItem();
}

void TVRXButtonBarEditorDlg::LoadGlyph(bool ofSmall) {
  TVRXBarItem* const item = Clicked();
  if (!item) return;
  static QString folder;  // where the last one was found
  const QString file =
      Prompts().OpenFileName(this, (ofSmall ? sgbtn : lgbtn)->text(), folder, PictureFilter());
  if (file.isEmpty()) return;
  folder = QFileInfo(file).path();
  LoadGlyphFile(ofSmall ? *item->SmallGlyph() : *item->LargeGlyph(), file);
  RefreshItem();
}

void TVRXButtonBarEditorDlg::btnFillObjectClick() { VRXCPGetFillObject(*bbar->FillObject(), ListOf(false)); }
void TVRXButtonBarEditorDlg::btnFontClick() { VRXCPGetFont(*bbar->Font()); }
void TVRXButtonBarEditorDlg::btnBevelClick() { VRXCPGetBevel(*bbar->Bevel()); }
void TVRXButtonBarEditorDlg::btnFont3DClick() { VRXCPGetFont3D(*bbar->Font3D()); }
void TVRXButtonBarEditorDlg::VRXCheckBox1Click() { bbar->Set(B::Transparent, VRXCheckBox1->isChecked()); }
void TVRXButtonBarEditorDlg::lihChange() { bbar->Set(B::LargeItemHeight, lih->value()); }
void TVRXButtonBarEditorDlg::sihChange() { bbar->Set(B::SmallItemHeight, sih->value()); }

void TVRXButtonBarEditorDlg::ChooseList(bool ofSmall) {
  if (!designer_) return;
  TVRXBarSection* const section = bbar->Current();
  TCustomImageList* list = ListOf(ofSmall);
  int index = section ? section->Get(TVRXBarSection::ListIndex) : -1;
  if (!VRXCPGetIML(*designer_, list, index)) return;
  bbar->Set(ofSmall ? B::SmallImageList : B::LargeImageList, list);
  FillBox(ofSmall);
  if (section) section->Set(TVRXBarSection::ListIndex, index);
  QListWidget& box = *(ofSmall ? smalllbx : largelbx);
  box.setCurrentRow(index < box.count() ? index : -1);
  const QSignalBlocker quiet(edImg);
  edImg->Show(index);
}

void TVRXButtonBarEditorDlg::AssignPicture(const QListWidget& box) {
  TVRXBarItem* const item = Clicked();
  if (item && box.currentRow() >= 0) item->Set(TVRXBarItem::ImageIndex, box.currentRow());
}
void TVRXButtonBarEditorDlg::smalllbxDblClick() {
  AssignPicture(*smalllbx);
  if (!Clicked()) return;
  const int row = smalllbx->currentRow();
  largelbx->setCurrentRow(row < largelbx->count() ? row : -1);
  ScrollWith(*largelbx, *smalllbx);
}
// The small list keeps its selection.
void TVRXButtonBarEditorDlg::largelbxDblClick() {
  AssignPicture(*largelbx);
  if (Clicked()) ScrollWith(*smalllbx, *largelbx);
}
