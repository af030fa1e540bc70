#include "dclstd/ItemsDialog.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QTreeWidget>
#include <climits>

#include "dclstd/EditValue.h"

// A node of a tree, an item of a list or a subitem.
class ItemEntry : public QTreeWidgetItem {
 public:
  explicit ItemEntry(TTreeNode value) : node(std::move(value)) {
    node.Children.clear();
    setText(0, node.Text);
  }
  TTreeNode node;        // without what is below it
  TListViewItem item{};  // what else a list keeps of it, without its subitems
};

namespace {
ItemEntry* EntryOf(QTreeWidgetItem* item) { return static_cast<ItemEntry*>(item); }

ItemEntry* NewEntry(const TTreeNode& node) {
  auto* entry = new ItemEntry(node);
  for (const TTreeNode& child : node.Children) entry->addChild(NewEntry(child));
  return entry;
}
ItemEntry* NewEntry(const TListViewItem& item) {
  auto* entry =
      new ItemEntry({.Text = item.Caption, .ImageIndex = item.ImageIndex, .StateIndex = item.StateIndex});
  entry->item = item;
  for (qsizetype s = 0; s < item.SubItems.size(); ++s)
    entry->addChild(new ItemEntry({.Text = item.SubItems[s],
                                   .ImageIndex = item.SubItemImages.value(s, -1),
                                   .Data = item.SubItemData.value(s)}));
  return entry;
}

TTreeNode NodeOf(QTreeWidgetItem* item) {
  TTreeNode node = EntryOf(item)->node;
  for (int i = 0; i < item->childCount(); ++i) node.Children.push_back(NodeOf(item->child(i)));
  return node;
}
// As many images and data of subitems as it had, and as are needed.
TListViewItem ItemOf(QTreeWidgetItem* entry) {
  const TTreeNode& node = EntryOf(entry)->node;
  TListViewItem item = EntryOf(entry)->item;
  const qsizetype images = item.SubItemImages.size();
  item.Caption = node.Text;
  item.ImageIndex = node.ImageIndex;
  item.StateIndex = node.StateIndex;
  item.SubItems.clear();
  item.SubItemImages.clear();
  item.SubItemData.clear();
  for (int i = 0; i < entry->childCount(); ++i) {
    const TTreeNode& sub = EntryOf(entry->child(i))->node;
    item.SubItems << sub.Text;
    item.SubItemImages << sub.ImageIndex;
    item.SubItemData << sub.Data;
  }
  while (item.SubItemImages.size() > images && item.SubItemImages.last() < 0) item.SubItemImages.removeLast();
  while (!item.SubItemData.isEmpty() && item.SubItemData.last() == 0) item.SubItemData.removeLast();
  return item;
}

QTreeWidgetItem* ParentOf(QTreeWidget& tree, QTreeWidgetItem* item) {
  return item->parent() ? item->parent() : tree.invisibleRootItem();
}
}  // namespace

ItemsDialog::ItemsDialog(Kind kind, QWidget* owner)
    : RowDialog(kind == Kind::Tree ? tr("Tree View Items Editor") : tr("List View Items Editor"), owner),
      kind_(kind) {
  tree = new QTreeWidget(this);
  tree->setObjectName(QStringLiteral("tree"));
  tree->setAccessibleName(tr("Items"));
  tree->setHeaderHidden(true);
  tree->setUniformRowHeights(true);
  tree->installEventFilter(this);
  tree->viewport()->installEventFilter(this);
  Follows(tree);
  auto* grid = new QGridLayout;
  RowsInto(*grid);
  Row(text, "text", "", "&Text:", "What the item shows").Changes(&ItemsDialog::textChange);
  const auto number = [this](SpinEdit*& edit, const char* name, const char* label, const char* hint) {
    Row(edit, name, "", label, hint).Range(-1, INT_MAX, 10).Changes(&ItemsDialog::indexChange);
  };
  number(image, "image", "&Image index:", "Of the picture in front of the text; -1 for none");
  if (OfTree()) number(selected, "selected", "&Selected index:", "Of the picture while the item is selected");
  number(state, "state", "St&ate index:", "Of the picture that tells a state; -1 for none");
  Button(newItem, "newItem", "&New Item", &ItemsDialog::newItemClick, "Behind the selected one (Ins)");
  Button(newSubItem, "newSubItem", "New S&ubItem", &ItemsDialog::newSubItemClick,
         "Inside of the selected one (Shift+Ins)");
  Button(remove, "remove", "&Delete", &ItemsDialog::removeClick, "The item and what is inside of it (Del)");
  Button(up, "up", "Move U&p", &ItemsDialog::upClick, "Towards the first (Ctrl+Up)");
  Button(down, "down", "Move Do&wn", &ItemsDialog::downClick, "Towards the last (Ctrl+Down)");
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  auto* left = new QVBoxLayout;
  left->addWidget(tree, 1);
  left->addLayout(grid);
  connect(tree, &QTreeWidget::currentItemChanged, this, &ItemsDialog::SetLabels);
  new RowDrag(
      *tree, [this](const RowDrag::Target& target) { Guarded([&] { DropAt(target); }); },
      [this](const QModelIndex& index) {
        return OfTree() || (Current()->parent() && !index.parent().isValid());
      });
  FinishBeside(left, {newItem, newSubItem, remove, up, down}, {ok, cancel}, {440, 400});
}

void ItemsDialog::Show(const QList<QTreeWidgetItem*>& entries) {
  {
    const QSignalBlocker quiet(tree);
    tree->clear();
    tree->addTopLevelItems(entries);
    tree->expandAll();
    if (!entries.isEmpty()) tree->setCurrentItem(entries.first());
  }
  SetLabels();
}

ItemEntry* ItemsDialog::Current() const { return EntryOf(tree->currentItem()); }

void ItemsDialog::LoadControls() {
  RowDialog::LoadControls();
  ItemEntry* entry = Current();
  const TTreeNode node = entry ? entry->node : TTreeNode{.ImageIndex = -1, .SelectedIndex = -1};
  constexpr qsizetype Most = 255;  // as long as most forms can keep it
  text->setMaxLength(static_cast<int>(std::max(Most, node.Text.size())));
  if (text->text() != node.Text) text->setText(node.Text);
  image->Show(node.ImageIndex);
  if (selected) selected->Show(node.SelectedIndex);
  state->Show(node.StateIndex);
  for (QWidget* control : {static_cast<QWidget*>(text), static_cast<QWidget*>(image),
                           static_cast<QWidget*>(selected), static_cast<QWidget*>(remove)})
    if (control) control->setEnabled(entry);
  state->setEnabled(entry && (OfTree() || !entry->parent()));
  newSubItem->setEnabled(entry);
  QTreeWidgetItem* parent = entry ? ParentOf(*tree, entry) : nullptr;
  up->setEnabled(entry && parent->indexOfChild(entry) > 0);
  down->setEnabled(entry && parent->indexOfChild(entry) < parent->childCount() - 1);
}

void ItemsDialog::textChange() {
  ItemEntry* entry = Current();
  if (!entry) return;
  entry->node.Text = text->text();
  entry->setText(0, entry->node.Text);
}

// One that shows what is outside of its range was not touched.
void ItemsDialog::indexChange() {
  ItemEntry* entry = Current();
  if (!entry) return;
  entry->node.ImageIndex = image->Shown();
  if (selected) entry->node.SelectedIndex = selected->Shown();
  entry->node.StateIndex = state->Shown();
}

void ItemsDialog::Insert(QTreeWidgetItem* parent, int index) {
  const int picture = OfTree() ? 0 : -1;
  auto* entry = new ItemEntry({.ImageIndex = picture, .SelectedIndex = picture});
  tree->setFocus();  // what is being typed belongs to the one before
  parent->insertChild(index, entry);
  parent->setExpanded(true);
  tree->setCurrentItem(entry);
  text->setFocus();
}

// Of a list it is an item, also where a subitem is selected.
void ItemsDialog::newItemClick() {
  QTreeWidgetItem* before = Current();
  if (before && before->parent() && !OfTree()) before = before->parent();
  QTreeWidgetItem* parent = before ? ParentOf(*tree, before) : tree->invisibleRootItem();
  Insert(parent, before ? parent->indexOfChild(before) + 1 : parent->childCount());
}

void ItemsDialog::newSubItemClick() {
  QTreeWidgetItem* around = Current();
  if (!around) return;
  if (around->parent() && !OfTree())
    Insert(around->parent(), around->parent()->indexOfChild(around) + 1);
  else
    Insert(around, around->childCount());
}

void ItemsDialog::removeClick() {
  QTreeWidgetItem* doomed = Current();
  if (!doomed) return;
  QTreeWidgetItem* parent = ParentOf(*tree, doomed);
  const int index = parent->indexOfChild(doomed);
  tree->setFocus();
  QTreeWidgetItem* next = index + 1 < parent->childCount() ? parent->child(index + 1)
                          : index > 0                      ? parent->child(index - 1)
                                                           : doomed->parent();
  tree->setCurrentItem(next);
  delete doomed;
  SetLabels();
}

// --- Other places

void ItemsDialog::MoveTo(QTreeWidgetItem* parent, int index) {
  QTreeWidgetItem* entry = Current();
  QTreeWidgetItem* from = ParentOf(*tree, entry);
  const int before = from->indexOfChild(entry);
  if (from == parent && before < index) --index;  // the others close up first
  if (from == parent && before == index) return;
  {
    const QSignalBlocker quiet(tree);
    parent->insertChild(index, from->takeChild(before));
    parent->setExpanded(true);
    tree->expandRecursively(tree->indexFromItem(entry));
    tree->setCurrentItem(entry);
  }
  SetLabels();
}

void ItemsDialog::MoveBy(int by) {
  QTreeWidgetItem* entry = Current();
  if (!entry) return;
  QTreeWidgetItem* parent = ParentOf(*tree, entry);
  const int index = parent->indexOfChild(entry) + by;
  if (index >= 0 && index < parent->childCount()) MoveTo(parent, by > 0 ? index + 1 : index);
}

void ItemsDialog::MoveOut() {
  QTreeWidgetItem* around = Current() && OfTree() ? Current()->parent() : nullptr;
  if (!around) return;
  QTreeWidgetItem* parent = ParentOf(*tree, around);
  MoveTo(parent, parent->indexOfChild(around) + 1);
}

void ItemsDialog::MoveIn() {
  QTreeWidgetItem* entry = Current();
  QTreeWidgetItem* parent = entry && OfTree() ? ParentOf(*tree, entry) : nullptr;
  if (QTreeWidgetItem* around = parent ? parent->child(parent->indexOfChild(entry) - 1) : nullptr)
    MoveTo(around, around->childCount());
}

void ItemsDialog::DropAt(const RowDrag::Target& target) {
  QTreeWidgetItem* entry = Current();
  QTreeWidgetItem* at = tree->itemFromIndex(target.index);
  for (const QTreeWidgetItem* inside = at; inside; inside = inside->parent())
    if (inside == entry) return;  // where it is, or inside of itself
  bool into = target.spot == RowDrag::Spot::Into;
  if (!OfTree() && entry->parent()) {
    if (!at) return;
    into |= !at->parent();
  } else if (!OfTree() && at && at->parent()) {
    at = at->parent();
    if (at == entry) return;
  }
  if (into) return MoveTo(at, at->childCount());
  QTreeWidgetItem* parent = at ? ParentOf(*tree, at) : tree->invisibleRootItem();
  MoveTo(parent,
         at ? parent->indexOfChild(at) + (target.spot == RowDrag::Spot::Behind) : parent->childCount());
}

bool ItemsDialog::eventFilter(QObject* watched, QEvent* event) {
  // Below the items nothing is selected: a new one comes to the end of all.
  if (watched == tree->viewport() && event->type() == QEvent::MouseButtonPress &&
      !tree->itemAt(static_cast<QMouseEvent*>(event)->position().toPoint()))
    tree->setCurrentItem(nullptr);
  if (watched != tree) return RowDialog::eventFilter(watched, event);
  if (event->type() != QEvent::KeyPress) return RowDialog::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool control = key->modifiers() == Qt::ControlModifier;
  if (key->key() == Qt::Key_Insert)
    (key->modifiers() == Qt::ShiftModifier ? newSubItem : newItem)->click();
  else if (key->key() == Qt::Key_Delete)
    remove->click();
  else if (control && key->key() == Qt::Key_Up)
    up->click();
  else if (control && key->key() == Qt::Key_Down)
    down->click();
  else if (control && key->key() == Qt::Key_Left)
    MoveOut();
  else if (control && key->key() == Qt::Key_Right)
    MoveIn();
  else
    return false;
  return true;
}

// --- Trees and lists

void TreeItemsDialog::SetNodes(const TTreeNodeList& nodes) {
  QList<QTreeWidgetItem*> entries;
  for (const TTreeNode& node : nodes) entries << NewEntry(node);
  Show(entries);
}

TTreeNodeList TreeItemsDialog::Nodes() const {
  TTreeNodeList nodes;
  for (int i = 0; i < tree->topLevelItemCount(); ++i) nodes.push_back(NodeOf(tree->topLevelItem(i)));
  return nodes;
}

void ListItemsDialog::SetItems(const QList<TListViewItem>& items) {
  QList<QTreeWidgetItem*> entries;
  for (const TListViewItem& item : items) entries << NewEntry(item);
  Show(entries);
}

QList<TListViewItem> ListItemsDialog::Items() const {
  QList<TListViewItem> items;
  for (int i = 0; i < tree->topLevelItemCount(); ++i) items << ItemOf(tree->topLevelItem(i));
  return items;
}

bool EditTreeNodes(TTreeNodeList& nodes) {
  TreeItemsDialog dialog(ApplicationOwner());
  dialog.SetNodes(nodes);
  if (dialog.ShowModal() != mrOk) return false;
  return std::exchange(nodes, dialog.Nodes()) != nodes;
}

bool EditListItems(QList<TListViewItem>& items) {
  ListItemsDialog dialog(ApplicationOwner());
  dialog.SetItems(items);
  if (dialog.ShowModal() != mrOk) return false;
  return std::exchange(items, dialog.Items()) != items;
}
