#include "package/experts/pVRXOSPropForm.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QShortcut>
#include <QTreeWidget>

#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"
#include "package/experts/ExcludedProperties.h"
#include "package/experts/StorageTree.h"

using D = TVRXOSPropForm;
using Item = TVRXPropertyStorageItem;

namespace {
// Sorted by what all columns say, the first one before the others.
class SortedRow : public QTreeWidgetItem {
 public:
  using QTreeWidgetItem::QTreeWidgetItem;
  bool operator<(const QTreeWidgetItem& other) const override {
    for (int column = 0; column < columnCount(); ++column)
      if (const int order = text(column).compare(other.text(column), Qt::CaseInsensitive)) return order < 0;
    return false;
  }
};
QString KeyOf(const QString& component, const QString& property) {
  return (component + u'\n' + property).toLower();
}
QModelIndex SelectedIn(const QTreeView& tree) {
  const QModelIndexList rows = tree.selectionModel()->selectedRows();
  return rows.isEmpty() ? QModelIndex() : rows.first();
}
QTreeWidgetItem* SelectedRow(const QTreeWidget& list) { return list.selectedItems().value(0); }
}  // namespace

TVRXOSPropForm::TVRXOSPropForm(QWidget* owner) : RowDialog(QStringLiteral("Stored Properties"), owner) {
  setObjectName(QStringLiteral("VRXOSPropForm"));
  ComponentsTree = Named(new QTreeView(this), "ComponentsTree",
                         "The form and its components; a double click on a property stores it");
  Tree = new StorageTree(
      [this](const QString& component, const QString& property) {
        return IsPropertyExist(component, property) || VRXIsExcludedProperty(property);
      },
      this);
  ComponentsTree->setModel(Tree);
  ComponentsTree->setAccessibleName(QStringLiteral("Components"));
  ComponentsTree->setHeaderHidden(true);
  ComponentsTree->setUniformRowHeights(true);
  ComponentsTree->setMouseTracking(true);
  ComponentsTree->setEditTriggers(QAbstractItemView::NoEditTriggers);
  ComponentsTree->setExpandsOnDoubleClick(true);
  Follows(ComponentsTree);
  ToBtn = SpeedButton("ToBtn", ">", "Store the selected property", &D::ToBtnClick);
  FromBtn = SpeedButton("FromBtn", "<", "Do not store the selected property any more", &D::FromBtnClick);
  AllDelBtn = SpeedButton("AllDelBtn", "<<", "Store nothing any more", &D::AllDelBtnClick);
  PropListView = List("PropListView", {QStringLiteral("Component"), QStringLiteral("Property")},
                      "The stored properties; Delete takes one off");
  PropListView->setAccessibleName(QStringLiteral("Stored Properties"));
  ExclAdd =
      SpeedButton("ExclAdd", ">", "Offer the selected property for no component any more", &D::ExclAddClick);
  ExclDel = SpeedButton("ExclDel", "<", "Offer the selected name again", &D::ExclDelClick);
  Label1 = Named(new QLabel(QStringLiteral("Excluded Properties"), this), "Label1", "");
  QFont heading = Label1->font();
  heading.setPixelSize(16);
  Label1->setFont(heading);
  ExcludedPropertiesList = List("ExcludedPropertiesList", {QStringLiteral("Property")},
                                "Names that no component of any form offers; Delete takes one off");
  Label1->setBuddy(ExcludedPropertiesList);
  ExcludedPropertiesList->setAccessibleName(Label1->text());
  OkButton(OkBtn, "OkBtn", "&OK");
  CancelButton(CancelBtn, "CancelBtn");

  connect(ComponentsTree->selectionModel(), &QItemSelectionModel::selectionChanged, this, &D::UpdateBtn);
  connect(ComponentsTree, &QTreeView::doubleClicked, this, [this] { Guarded([this] { ToBtnClick(); }); });
  KeysOf(*PropListView, &D::FromBtnClick);
  KeysOf(*ExcludedPropertiesList, &D::ExclDelClick);

  const auto column = [](const std::vector<QToolButton*>& buttons) {
    auto* box = new QVBoxLayout;
    for (QToolButton* button : buttons) box->addWidget(button);
    box->addStretch(1);
    return box;
  };
  auto* grid = new QGridLayout(this);
  grid->addWidget(ComponentsTree, 0, 0, 3, 1);
  grid->addLayout(column({ToBtn, FromBtn, AllDelBtn}), 0, 1);
  grid->addWidget(PropListView, 0, 2);
  grid->addWidget(Label1, 1, 2);
  grid->addLayout(column({ExclAdd, ExclDel}), 2, 1);
  grid->addWidget(ExcludedPropertiesList, 2, 2);
  grid->addLayout(ButtonLine({OkBtn, CancelBtn}), 3, 0, 1, 3);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(2, 1);
  grid->setRowStretch(0, 3);
  grid->setRowStretch(2, 2);
  VRXSetThemeMode(*this, 1);
  SetTabSequence();
  FormCreate();
  setFixedSize(QSize(632, 417).expandedTo(minimumSizeHint()));
  UpdateBtn();
}

QTreeWidget* TVRXOSPropForm::List(const char* name, const QStringList& titles, const char* hint) {
  auto* list = Named(new QTreeWidget(this), name, hint);
  list->setHeaderLabels(titles);
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setSortingEnabled(true);
  list->sortByColumn(0, Qt::AscendingOrder);
  list->header()->setSortIndicatorShown(false);
  list->header()->setSectionsClickable(false);
  list->header()->setDefaultSectionSize(130);
  Follows(list);
  connect(list, &QTreeWidget::itemSelectionChanged, this, &D::UpdateBtn);
  return list;
}

QToolButton* TVRXOSPropForm::SpeedButton(const char* name, const char* text, const char* hint,
                                         void (D::*handler)()) {
  auto* button = Named(new QToolButton(this), name, hint);
  button->setText(QString::fromLatin1(text));
  button->setAccessibleName(QString::fromLatin1(hint));
  button->setAutoRaise(true);
  button->setMinimumSize(32, 26);
  button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  Follows(button);
  connect(button, &QToolButton::clicked, this, [this, handler] { Guarded([&] { (this->*handler)(); }); });
  return button;
}

void TVRXOSPropForm::KeysOf(QWidget& list, void (D::*remove)()) {
  auto* key = new QShortcut(QKeySequence(Qt::Key_Delete), &list, nullptr, nullptr, Qt::WidgetShortcut);
  connect(key, &QShortcut::activated, this, [this, remove] { Guarded([&] { (this->*remove)(); }); });
}

void TVRXOSPropForm::Edit(TVRXObjectStorage& storage) {
  storage_ = &storage;
  std::vector<const TComponent*> components;
  if (const TComponent* form = storage.Owner()) {
    components.push_back(form);
    for (const TComponent* component : form->Components())
      if (component != &storage) components.push_back(component);
  }
  Tree->SetComponents(components);
}

void TVRXOSPropForm::FormActivate() {
  if (!activated) FormShow();
  RowDialog::FormActivate();
}

void TVRXOSPropForm::FormShow() {
  PropListView->clear();
  ExcludedPropertiesList->clear();
  stored_.clear();
  for (int i = 0; storage_ && i < storage_->StoredProps()->Count(); ++i) {
    const Item* item = storage_->StoredProps()->Items(i);
    AddRow(item->Get(Item::ComponentName), item->Get(Item::Name));
  }
  for (const QString& name : VRXExcludedProperties()) new SortedRow(ExcludedPropertiesList, {name});
  UpdatePropertiesTree();
  UpdateBtn();
  ComponentsTree->setFocus();
}

void TVRXOSPropForm::AddRow(const QString& component, const QString& property) {
  new SortedRow(PropListView, {component, property});
  Count(component, property, 1);
}
void TVRXOSPropForm::Count(const QString& component, const QString& property, int by) {
  stored_[KeyOf(component, property)] += by;
}
bool TVRXOSPropForm::IsPropertyExist(const QString& componentName, const QString& propName) const {
  return stored_.value(KeyOf(componentName, propName)) > 0;
}

// What is open stays open.
void TVRXOSPropForm::UpdatePropertiesTree() {
  const QModelIndex selected = SelectedIn(*ComponentsTree);
  QString component, property;
  if (Tree->IsProperty(selected)) {
    component = Tree->ComponentOf(selected);
    property = selected.data().toString();
  }
  std::vector<int> open;
  for (int i = 0; i < Tree->rowCount(); ++i)
    if (ComponentsTree->isExpanded(Tree->index(i, 0))) open.push_back(i);
  const int place = ComponentsTree->verticalScrollBar()->value();
  Tree->Rebuild();
  for (const int row : open) ComponentsTree->expand(Tree->index(row, 0));
  ComponentsTree->verticalScrollBar()->setValue(place);
  if (const QModelIndex again = Tree->Find(component, property); again.isValid()) {
    ComponentsTree->setCurrentIndex(again);
    ComponentsTree->scrollTo(again);
  }
  UpdateBtn();
}

void TVRXOSPropForm::UpdateBtn() {
  const bool property = Tree->IsProperty(SelectedIn(*ComponentsTree));
  ToBtn->setEnabled(property);
  ExclAdd->setEnabled(property);
  FromBtn->setEnabled(SelectedRow(*PropListView) != nullptr);
  AllDelBtn->setEnabled(PropListView->topLevelItemCount() > 0);
  ExclDel->setEnabled(SelectedRow(*ExcludedPropertiesList) != nullptr);
}

void TVRXOSPropForm::ToBtnClick() {
  const QModelIndex node = SelectedIn(*ComponentsTree);
  if (!Tree->IsProperty(node)) return;
  AddRow(Tree->ComponentOf(node), node.data().toString());
  Tree->Remove(node);
  UpdateBtn();
}

void TVRXOSPropForm::FromBtnClick() {
  QTreeWidgetItem* row = SelectedRow(*PropListView);
  if (!row) return;
  const QString component = row->text(0), property = row->text(1);
  delete row;
  Count(component, property, -1);
  if (!Tree->Find(component, property).isValid()) Tree->Add(component, property);
  UpdateBtn();
}

void TVRXOSPropForm::AllDelBtnClick() {
  PropListView->clear();
  stored_.clear();
  UpdatePropertiesTree();
  UpdateBtn();
}

void TVRXOSPropForm::ExclAddClick() {
  const QModelIndex node = SelectedIn(*ComponentsTree);
  if (!Tree->IsProperty(node)) return;
  const QString name = node.data().toString();
  new SortedRow(ExcludedPropertiesList, {name});
  VRXExcludeProperty(name);
  if (const QModelIndex next = Tree->After(node); next.isValid()) ComponentsTree->setCurrentIndex(next);
  UpdatePropertiesTree();
  SaveExcludedProperties();
}

void TVRXOSPropForm::ExclDelClick() {
  QTreeWidgetItem* row = SelectedRow(*ExcludedPropertiesList);
  if (!row) return;
  VRXIncludeProperty(row->text(0));
  delete row;
  UpdatePropertiesTree();
  SaveExcludedProperties();
}

void TVRXOSPropForm::Apply() {
  if (!storage_) return;
  TVRXPropertyStorage& items = *storage_->StoredProps();
  using Pair = std::pair<QString, QString>;
  std::vector<Pair> rows, before;
  std::multimap<Pair, std::shared_ptr<const void>> unread;  // what a file says of them besides
  for (int i = 0; i < PropListView->topLevelItemCount(); ++i)
    rows.emplace_back(PropListView->topLevelItem(i)->text(0), PropListView->topLevelItem(i)->text(1));
  for (int i = 0; i < items.Count(); ++i) {
    before.emplace_back(items.Items(i)->Get(Item::ComponentName), items.Items(i)->Get(Item::Name));
    unread.emplace(before.back(), items.Items(i)->Unread());
  }
  std::vector<Pair> wanted = rows;
  std::sort(wanted.begin(), wanted.end());
  std::sort(before.begin(), before.end());
  if (wanted == before) return;
  const TUpdateLock lock(items);
  items.Clear();
  for (const auto& [component, property] : rows) {
    Item* item = items.Add(component, property);
    if (auto kept = unread.extract(Pair(component, property))) item->SetUnread(std::move(kept.mapped()));
  }
}

void TVRXOSPropForm::done(int result) {
  if (result == QDialog::Accepted) Apply();
  RowDialog::done(result);
}
