#include "dclstd/CollectionWindow.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QScopedValueRollback>

#include "rtl/Collection.h"

CollectionWindow::CollectionWindow(IDesigner& designer, TComponent& component, const PartPath& place)
    : ComponentWindow(designer, component), place_(place) {
  add = Button("add", tr("Add"), tr("Add an item at the end (Ins)"),
               "pen line 2 path 12 5 12 19 path 5 12 19 12", [this] { AddItem(); });
  remove = Button("remove", tr("Delete"), tr("Delete the selected items (Del)"),
                  "pen line 2 path 6 6 18 18 path 18 6 6 18", [this] { DeleteItems(); });
  up = Button("up", tr("Move Up"), tr("Move the selected items up (Ctrl+Up)"),
              "pen line 2 path 12 19 12 6 path 6 11 12 5 18 11", [this] { MoveItems(-1); });
  down = Button("down", tr("Move Down"), tr("Move the selected items down (Ctrl+Down)"),
                "pen line 2 path 12 5 12 18 path 6 13 12 19 18 13", [this] { MoveItems(1); });
  items = new QListWidget(this);
  items->setObjectName(QStringLiteral("items"));
  items->setAccessibleName(tr("Items"));
  items->setSelectionMode(QAbstractItemView::ExtendedSelection);
  items->setUniformItemSizes(true);
  items->installEventFilter(this);
  connect(items, &QListWidget::itemSelectionChanged, this, &CollectionWindow::TellSelection);
  new RowDrag(*items, [this](const RowDrag::Target& target) { MoveItemsTo(target.Row(items->count())); });
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(2);
  for (QToolButton* button : {add, remove, up, down}) buttons->addWidget(button);
  buttons->addStretch(1);
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(8, 8, 8, 8);
  box->addLayout(buttons);
  box->addWidget(items);
  resize(280, 320);
  items->setFocus();
}

TCollection* CollectionWindow::Collection() const {
  return Designer() ? As<TCollection>(place_.Find()) : nullptr;
}

bool CollectionWindow::Rebound() {
  place_.SetComponent(&Component());
  return Collection() != nullptr;
}

void CollectionWindow::Load() {
  const TCollection* collection = Collection();
  if (!collection) return Leave();
  const QScopedValueRollback loading(loading_, true);
  setWindowTitle(tr("Editing %1").arg(place_.Text()));
  const std::vector<int> selected = Selected();
  while (items->count() > collection->Count()) delete items->takeItem(items->count() - 1);
  for (int i = 0; i < collection->Count(); ++i) {
    const QString text = QStringLiteral("%1 - %2").arg(i).arg(collection->Item(i)->DisplayName());
    if (i == items->count())
      items->addItem(text);
    else if (items->item(i)->text() != text)
      items->item(i)->setText(text);
  }
  EnableButtons();
}

std::vector<int> CollectionWindow::Selected() const {
  std::vector<int> rows;
  for (const QModelIndex& index : items->selectionModel()->selectedIndexes()) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  return rows;
}

// The list and, with it, the inspector.
void CollectionWindow::Select(const std::vector<int>& rows) {
  {
    const QScopedValueRollback loading(loading_, true);
    items->clearSelection();
    if (!rows.empty()) items->setCurrentRow(rows.back(), QItemSelectionModel::NoUpdate);
    for (const int row : rows)
      if (QListWidgetItem* item = items->item(row)) item->setSelected(true);
  }
  TellSelection();
}

void CollectionWindow::TellSelection() {
  if (loading_) return;
  EnableButtons();
  TCollection* collection = Collection();
  if (!Designer() || !collection) return;
  TDesignerSelections list;
  for (const int row : Selected())
    if (row < collection->Count()) list.push_back(collection->Item(row));
  if (list.empty()) list.push_back(&Component());
  const QScopedValueRollback loading(loading_, true);
  Designer()->SetSelections(list);
}

void CollectionWindow::SelectionChanged(IDesigner* designer, const TDesignerSelections& list) {
  if (loading_ || designer != Designer()) return;
  const TCollection* collection = Collection();
  if (!collection) return;
  const QScopedValueRollback loading(loading_, true);
  for (int i = 0; i < items->count() && i < collection->Count(); ++i)
    items->item(i)->setSelected(std::find(list.begin(), list.end(), collection->Item(i)) != list.end());
  EnableButtons();
}

void CollectionWindow::EnableButtons() {
  const std::vector<int> rows = Selected();
  const int count = static_cast<int>(rows.size());
  remove->setEnabled(count > 0);
  // Those at the end already stay there; the others close up.
  up->setEnabled(count > 0 && rows.back() >= count);
  down->setEnabled(count > 0 && rows.front() < items->count() - count);
}

void CollectionWindow::AddItem() {
  TCollection* collection = Collection();
  if (!collection) return;
  const int before = collection->Count();
  Do(tr("Add an item to %1").arg(place_.Text()), [&] { MakeItem(*collection); });
  if (collection->Count() > before) Select({collection->Count() - 1});
}

void CollectionWindow::MakeItem(TCollection& collection) { collection.Add(); }

void CollectionWindow::DeleteItems() {
  TCollection* collection = Collection();
  const std::vector<int> rows = Selected();
  if (!collection || rows.empty()) return;
  Do(tr("Delete items of %1").arg(place_.Text()), [&] {
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) collection->Delete(*row);
  });
  const int next = std::min(rows.front(), collection->Count() - 1);
  Select(next < 0 ? std::vector<int>() : std::vector<int>{next});
}

void CollectionWindow::MoveItems(int by) { Move(MovesBy(Selected(), by, items->count())); }
void CollectionWindow::MoveItemsTo(int row) { Move(MovesTo(Selected(), row)); }

void CollectionWindow::Move(const RowMoves& moves) {
  TCollection* collection = Collection();
  if (!collection || !MovesAny(moves)) return;
  Do(tr("Move items of %1").arg(place_.Text()), [&] {
    for (const RowMove& move : moves) collection->Move(move.from, move.to);
  });
  Select(Landed(moves));
}

// Items that nobody sees do not stay selected.
void CollectionWindow::closeEvent(QCloseEvent* event) {
  if (Designer() && !Selected().empty()) Designer()->SelectComponent(&Component());
  ComponentWindow::closeEvent(event);
}

bool CollectionWindow::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool control = key->modifiers() == Qt::ControlModifier;
  if (key->key() == Qt::Key_Insert)
    AddItem();
  else if (key->key() == Qt::Key_Delete)
    DeleteItems();
  else if (control && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down))
    MoveItems(key->key() == Qt::Key_Up ? -1 : 1);
  else
    return false;
  return true;
}

TEditStates CollectionWindow::GetEditState() const {
  TEditStates states{TEditState::esCanSelectAll};
  if (!Selected().empty()) states.Include(TEditState::esCanDelete);
  return states;
}

void CollectionWindow::EditAction(TEditAction action) {
  if (action == TEditAction::eaDelete) DeleteItems();
  if (action == TEditAction::eaSelectAll) items->selectAll();
}

void EditCollection(IDesigner& designer, TCollection& collection) {
  const PartPath place(collection);
  if (place.Component()) ComponentWindow::Show<CollectionWindow>(designer, *place.Component(), place);
}
