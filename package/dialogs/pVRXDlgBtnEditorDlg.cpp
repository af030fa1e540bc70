#include "package/dialogs/pVRXDlgBtnEditorDlg.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QListWidget>
#include <QStackedWidget>
#include <QStandardItemModel>

#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"
#include "package/dialogs/LinesTable.h"
#include "rtl/Registry.h"
#include "vcl/TabOrder.h"

using D = TVRXDlgBtnEditorDlg;

namespace {
TRegIniFile Settings() { return TRegIniFile(QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025")); }
const QString Section = QStringLiteral("VRXDlgButtonEditor");

constexpr const char* Items[] = {"mbYes",     "mbNo",  "mbOk ",     "mbCancel",   "mbAbort", "mbRetry",
                                 "mbIgnore,", "mbAll", "mbNoToAll", "mbYesToAll", "mbHelp"};
struct GroupRow {
  const char* text;
  std::uint16_t mask;
  bool withGap;
};
constexpr GroupRow Groups[] = {
    {"Ok, Cancel, Help", 1036, false}, {"Ok, Cancel, Help (with Gap)", 1036, true}, {"Ok, Cancel", 12, false},
    {"Yes, No, Cancel", 11, false},    {"Abort,Retry,Ignore", 112, false},
};
}  // namespace

TVRXDlgBtnEditorDlg::TVRXDlgBtnEditorDlg(QWidget* owner)
    : RowDialog(QStringLiteral("Panel Buttons Editor"), owner) {
  setObjectName(QStringLiteral("VRXDlgBtnEditorDlg"));
  pages = new QStackedWidget(this);
  pages->addWidget(BuildButtonsPage());
  pages->addWidget(BuildOrderPage());
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  VRXSetThemeMode(*this, 1);
  auto* content = new QVBoxLayout;
  content->addWidget(pages);
  FinishBeside(content, {}, {ok, cancel}, {520, 400});
}

QWidget* TVRXDlgBtnEditorDlg::BuildButtonsPage() {
  auto* page = new QWidget(pages);
  rb1 = Named(new QRadioButton(QStringLiteral("Select single buttons"), page), "rb1",
              "New buttons: those that are checked");
  Follows(rb1);
  chk = Named(new QGroupBox(page), "chk", "");
  auto* checks = new QGridLayout(chk);
  constexpr int columns = 3, rows = 4;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const int item = static_cast<int>(i);
    auto* box = new QCheckBox(QString::fromLatin1(Items[i]), chk);
    box->setObjectName(QStringLiteral("chk%1").arg(item + 1));
    box->setToolTip(tr("A double click is OK"));
    box->installEventFilter(this);
    connect(box, &QCheckBox::clicked, this, [this, item] { Guarded([=, this] { chkClick(item); }); });
    static_assert(columns * rows >= std::tuple_size_v<decltype(items)>);
    checks->addWidget(box, item % rows, item / rows);
    items[i] = box;
    Follows(box);
  }
  rb2 = Named(new QRadioButton(QStringLiteral("Select a predefined group of buttons"), page), "rb2",
              "New buttons: those of the group");
  Follows(rb2);
  list2 = Named(new QListWidget(page), "list2", "A double click is OK");
  list2->setAccessibleName(rb2->text());
  for (const GroupRow& row : Groups) list2->addItem(QString::fromLatin1(row.text));
  list2->setMinimumHeight(list2->sizeHintForRow(0) * list2->count() + 2 * list2->frameWidth());
  connect(list2, &QListWidget::itemClicked, this, &D::list2Click);
  connect(list2, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
  // Chosen with the keys.
  connect(list2, &QListWidget::currentRowChanged, this, [this] {
    if (list2->hasFocus()) list2Click();
  });
  Follows(list2);
  auto* fields = new QGridLayout;
  RowsInto(*fields);
  Row(ext1, "ext1", "", "Width:", "Of each new button").Range(0, 500, 3);
  Row(ext2, "ext2", "", "Height:", "Of each new button").Range(0, 500, 3);
  Row(chkr, "chkr", "", "Remove existing buttons", "The panel is emptied first");
  Row(chkr2, "chkr2", "", "RightBottom Alignment", "The row of buttons stands at the panel's end");
  rb1->setChecked(true);
  auto* box = new QVBoxLayout(page);
  box->setContentsMargins(0, 0, 0, 0);
  box->addWidget(rb1);
  box->addWidget(chk);
  box->addWidget(rb2);
  box->addWidget(list2, 1);
  box->addLayout(fields);
  return page;
}

QWidget* TVRXDlgBtnEditorDlg::BuildOrderPage() {
  auto* page = new QWidget(pages);
  lines_ = new QStandardItemModel(this);
  lines_->setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Caption")});
  lb = new LinesTable(lines_, "lb", page);
  lb->setToolTip(QStringLiteral("The buttons of the panel, in their order; dragging changes it"));
  lb->setAccessibleName(QStringLiteral("Buttons"));
  lb->setColumnWidth(0, 160);
  new RowDrag(*lb, [this](const RowDrag::Target& target) {
    if (const int row = lb->CurrentRow(); row >= 0) MoveLine(MovesTo({row}, target.Row(lines_->rowCount())));
  });
  Follows(lb);
  const auto button = [&](const char* name, Qt::ArrowType arrow, const char* hint, void (D::*handler)()) {
    auto* made = Named(new QToolButton(page), name, hint);
    made->setArrowType(arrow);
    made->setAccessibleName(QString::fromLatin1(hint));
    made->setFocusPolicy(Qt::TabFocus);
    connect(made, &QToolButton::clicked, this, handler);
    Follows(made);
    return made;
  };
  up = button("up", Qt::UpArrow, "Move item up", &D::upClick);
  Down = button("Down", Qt::DownArrow, "Move item down", &D::DownClick);
  connect(lb->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &D::lbClick);
  connect(lb, &QTableView::clicked, this, &D::lbClick);
  auto* column = new QVBoxLayout;
  column->addWidget(up);
  column->addWidget(Down);
  column->addStretch(1);
  auto* box = new QHBoxLayout(page);
  box->setContentsMargins(0, 0, 0, 0);
  box->addWidget(lb, 1);
  box->addLayout(column);
  lbClick();
  return page;
}

void TVRXDlgBtnEditorDlg::SetPanel(TVRXDlgButtonPanel& panel, IDesigner& designer) {
  panel_ = &panel;
  designer_ = &designer;
}

void TVRXDlgBtnEditorDlg::ShowOrder() {
  pages->setCurrentIndex(1);
  LBFill();
  lb->setFocus();
}

void TVRXDlgBtnEditorDlg::GetIniSettings() {
  const TRegIniFile settings = Settings();
  const auto read = [&](const char* name, int otherwise) {
    return settings.ReadInteger(Section, QString::fromLatin1(name), otherwise);
  };
  // A size that could not be typed here is none to make buttons with.
  const auto size = [&](SpinEdit& edit, const char* name, int otherwise) {
    edit.Show(std::clamp(read(name, otherwise), edit.minimum(), edit.maximum()));
  };
  size(*ext1, "Width", 75);
  size(*ext2, "Height", 25);
  mask_ = static_cast<std::uint16_t>(read("CheckGroup", 0));
  ShowMask();
  chkr->setChecked(read("RemoveButtons", 0) != 0);
  chkr2->setChecked(read("RightBottom", 0) != 0);
  list2->setCurrentRow(read("RadioGroup", -1));
  (read("Checked", 0) == 1 ? rb2 : rb1)->setChecked(true);
}

void TVRXDlgBtnEditorDlg::SetIniSettings() {
  TRegIniFile settings = Settings();
  const auto write = [&](const char* name, int value) {
    settings.WriteInteger(Section, QString::fromLatin1(name), value);
  };
  write("Width", ext1->Shown());
  write("Height", ext2->Shown());
  write("CheckGroup", mask_);
  write("RemoveButtons", chkr->isChecked());
  write("RightBottom", chkr2->isChecked());
  write("RadioGroup", list2->currentRow());
  write("Checked", rb2->isChecked());
  settings.UpdateFile();
}

void TVRXDlgBtnEditorDlg::ShowMask() {
  for (std::size_t i = 0; i < items.size(); ++i) items[i]->setChecked((mask_ >> i & 1u) != 0);
}

// What the mask has beyond the items stays.
void TVRXDlgBtnEditorDlg::chkClick(int item) {
  const auto bit = static_cast<std::uint16_t>(1u << item);
  mask_ = static_cast<std::uint16_t>(items[static_cast<std::size_t>(item)]->isChecked() ? mask_ | bit
                                                                                        : mask_ & ~bit);
  rb1->setChecked(true);
}
void TVRXDlgBtnEditorDlg::list2Click() { rb2->setChecked(true); }

// The second press of a double click changes nothing any more.
bool TVRXDlgBtnEditorDlg::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick && watched->parent() == chk) {
    accept();
    return true;
  }
  return RowDialog::eventFilter(watched, event);
}

void TVRXDlgBtnEditorDlg::InsertButtons(std::uint16_t mask, bool withGap) {
  VRXInsertDialogButtons(
      *panel_, *designer_,
      {mask, withGap, chkr->isChecked(), chkr2->isChecked(), QSize(ext1->Shown(), ext2->Shown())});
}

void TVRXDlgBtnEditorDlg::LBFill() {
  lines_->removeRows(0, lines_->rowCount());
  order_ = panel_ ? panel_->Buttons() : std::vector<TButton*>();
  for (const TButton* button : order_)
    lines_->appendRow({new QStandardItem(button->Name()), new QStandardItem(button->Caption())});
  if (!order_.empty()) lb->Select(0);
  lbClick();
}

void TVRXDlgBtnEditorDlg::lbClick() {
  const int row = lb->CurrentRow();
  Down->setEnabled(row >= 0 && row < lines_->rowCount() - 1);
  up->setEnabled(row > 0);
}

void TVRXDlgBtnEditorDlg::MoveLine(const RowMoves& moves) {
  for (const auto& [from, to] : moves) {
    TButton* const button = order_[static_cast<std::size_t>(from)];
    order_.erase(order_.begin() + from);
    order_.insert(order_.begin() + to, button);
    lines_->insertRow(to, lines_->takeRow(from));
    lb->Select(to);
  }
  lbClick();
}
void TVRXDlgBtnEditorDlg::MoveLineBy(int by) {
  if (const int row = lb->CurrentRow(); row >= 0) MoveLine(MovesBy({row}, by, lines_->rowCount()));
}
void TVRXDlgBtnEditorDlg::upClick() { MoveLineBy(-1); }
void TVRXDlgBtnEditorDlg::DownClick() { MoveLineBy(1); }

void TVRXDlgBtnEditorDlg::Execute() {
  if (pages->currentIndex() == 1) {
    if (order_ == panel_->Buttons()) return;
    const TUpdateLock lock(*panel_);
    const LayoutChange once(panel_);
    for (TButton* button : order_) button->SetParent(nullptr);
    for (TButton* button : order_) {
      button->SetParent(panel_);
      if (button->TabOrder() >= 0) GiveLastTabOrder(*button);
    }
  } else if (rb1->isChecked()) {
    InsertButtons(mask_, false);
  } else if (list2->currentRow() >= 0) {
    const GroupRow& group = Groups[list2->currentRow()];
    InsertButtons(group.mask, group.withGap);
  }
}
