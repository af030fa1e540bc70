#include "dclstd/ActionListWindow.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QScopedValueRollback>

#include "designintf/DesignRegistry.h"
#include "rtl/Exceptions.h"

ActionListWindow::ActionListWindow(IDesigner& designer, TActionList& list) : ComponentWindow(designer, list) {
  add = Button("add", tr("Add"), tr("Add an action (Ins); the arrow lists the standard ones"),
               "pen line 2 path 12 5 12 19 path 5 12 19 12", [this] { AddAction(TAction::StaticClass()); });
  remove = Button("remove", tr("Delete"), tr("Delete the selected actions (Del)"),
                  "pen line 2 path 6 6 18 18 path 18 6 6 18", [this] { DeleteActions(); });
  up = Button("up", tr("Move Up"), tr("Move the selected actions up (Ctrl+Up)"),
              "pen line 2 path 12 19 12 6 path 6 11 12 5 18 11", [this] { MoveActions(-1); });
  down = Button("down", tr("Move Down"), tr("Move the selected actions down (Ctrl+Down)"),
                "pen line 2 path 12 5 12 18 path 6 13 12 19 18 13", [this] { MoveActions(1); });
  FillNewMenu();
  const auto listOf = [this](const char* name, const QString& text) {
    auto* made = new QListWidget(this);
    made->setObjectName(QLatin1StringView(name));
    made->setAccessibleName(text);
    made->installEventFilter(this);
    return made;
  };
  categories = listOf("categories", tr("Categories"));
  actions = listOf("actions", tr("Actions"));
  actions->setSelectionMode(QAbstractItemView::ExtendedSelection);
  actions->setUniformItemSizes(true);
  connect(categories, &QListWidget::currentRowChanged, this, [this] {
    if (!loading_ && Designer()) Load();
  });
  connect(actions, &QListWidget::itemSelectionChanged, this, &ActionListWindow::TellSelection);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(2);
  for (QToolButton* button : {add, remove, up, down}) buttons->addWidget(button);
  buttons->addStretch(1);
  auto* grid = new QGridLayout;
  const auto column = [&](int at, QListWidget* widget) {
    auto* label = new QLabel(widget->accessibleName() + u':', this);
    label->setBuddy(widget);
    grid->addWidget(label, 0, at);
    grid->addWidget(widget, 1, at);
  };
  column(0, categories);
  column(1, actions);
  grid->setColumnStretch(0, 2);
  grid->setColumnStretch(1, 3);
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(8, 8, 8, 8);
  box->addLayout(buttons);
  box->addLayout(grid, 1);
  resize(380, 320);
  actions->setFocus();
}

// The classes of actions that packages have registered.
void ActionListWindow::FillNewMenu() {
  auto* menu = new QMenu(this);
  for (const TPalettePage& page : DesignRegistry::Current().ActionCategories()) {
    QMenu* below = menu->addMenu(page.Name.isEmpty() ? tr("(No Category)") : page.Name);
    for (const TClass* cls : page.Classes)
      below->addAction(QString::fromLatin1(cls->ClassName()), this,
                       [this, cls, category = page.Name] { AddAction(*cls, category); });
  }
  if (menu->isEmpty()) return delete menu;
  add->setMenu(menu);
  add->setPopupMode(QToolButton::MenuButtonPopup);
}

TActionList& ActionListWindow::List() const { return *As<TActionList>(&Component()); }

bool ActionListWindow::Rebound() {
  shown_.clear();
  return As<TActionList>(&Component()) != nullptr;
}

std::vector<TContainedAction*> ActionListWindow::All() const {
  std::vector<TContainedAction*> all;
  for (TNestedComponent* c : List().Nested())
    if (auto* action = As<TContainedAction>(c)) all.push_back(action);
  return all;
}

bool ActionListWindow::IsShown(const TContainedAction& action) const {
  const int row = categories->currentRow();
  const QString category = action.Get(TContainedAction::Category);
  if (row < FirstCategory) return row != NoCategory || category.isEmpty();
  return category == categories->item(row)->text();
}

void ActionListWindow::Load() {
  const QScopedValueRollback loading(loading_, true);
  setWindowTitle(tr("Editing %1").arg(Component().Name()));
  QStringList names{tr("(All Actions)"), tr("(No Category)")};
  for (const TContainedAction* action : All())
    if (const QString name = action->Get(TContainedAction::Category);
        !name.isEmpty() && !names.mid(FirstCategory).contains(name))
      names << name;
  const QString current = categories->currentItem() ? categories->currentItem()->text() : QString();
  QStringList now;
  for (int i = 0; i < categories->count(); ++i) now << categories->item(i)->text();
  if (now != names) {
    categories->clear();
    categories->addItems(names);
  }
  categories->setCurrentRow(std::max<int>(AllActions, static_cast<int>(names.indexOf(current))));

  const auto list = Designer() ? Designer()->GetSelections() : TDesignerSelections();
  actions->clear();
  shown_.clear();
  // Without a picture a row keeps the room for one.
  const TCustomImageList* images = List().Get(TActionList::Images);
  QPixmap none;
  if (images) {
    none = QPixmap(images->Get(TCustomImageList::Width), images->Get(TCustomImageList::Height));
    none.fill(Qt::transparent);
    actions->setIconSize(none.size());
  }
  for (TContainedAction* action : All()) {
    if (!IsShown(*action)) continue;
    shown_.push_back(action);
    auto* item = new QListWidgetItem(action->Name(), actions);
    const auto* custom = As<TCustomAction>(action);
    const QImage image = custom && images ? images->Image(custom->Get(TCustomAction::ImageIndex)) : QImage();
    if (images) item->setIcon(image.isNull() ? none : QPixmap::fromImage(image));
    item->setSelected(std::find(list.begin(), list.end(), action) != list.end());
  }
  EnableButtons();
}

// The rows are those of before until everything is in order again.
void ActionListWindow::ItemDeleted(IDesigner* designer, TPersistent* item) {
  std::erase_if(shown_, [&](const TContainedAction* action) { return action == item; });
  if (designer == Designer() && item != &Component() && As<TContainedAction>(item)) {
    const QScopedValueRollback loading(loading_, true);
    actions->clear();
    shown_.clear();
  }
  ComponentWindow::ItemDeleted(designer, item);
}

std::vector<TContainedAction*> ActionListWindow::Selected() const {
  std::vector<TContainedAction*> selected;
  for (int i = 0; i < actions->count(); ++i)
    if (actions->item(i)->isSelected() && static_cast<std::size_t>(i) < shown_.size())
      selected.push_back(shown_[static_cast<std::size_t>(i)]);
  return selected;
}

void ActionListWindow::Select(const std::vector<TContainedAction*>& selected) {
  {
    const QScopedValueRollback loading(loading_, true);
    for (std::size_t i = 0; i < shown_.size(); ++i)
      actions->item(static_cast<int>(i))
          ->setSelected(std::find(selected.begin(), selected.end(), shown_[i]) != selected.end());
  }
  TellSelection();
}

void ActionListWindow::TellSelection() {
  if (loading_ || !Designer()) return;
  EnableButtons();
  const auto selected = Selected();
  TDesignerSelections list(selected.begin(), selected.end());
  if (list.empty()) list.push_back(&Component());
  const QScopedValueRollback loading(loading_, true);
  Designer()->SetSelections(list);
}

void ActionListWindow::SelectionChanged(IDesigner* designer, const TDesignerSelections& list) {
  if (loading_ || designer != Designer()) return;
  const QScopedValueRollback loading(loading_, true);
  for (std::size_t i = 0; i < shown_.size(); ++i)
    actions->item(static_cast<int>(i))
        ->setSelected(std::find(list.begin(), list.end(), shown_[i]) != list.end());
  EnableButtons();
}

void ActionListWindow::EnableButtons() {
  const auto selected = Selected();
  const std::size_t count = selected.size();
  remove->setEnabled(count > 0);
  const auto isAt = [&](std::size_t from) {
    return std::equal(selected.begin(), selected.end(), shown_.begin() + static_cast<std::ptrdiff_t>(from));
  };
  up->setEnabled(count > 0 && !isAt(0));
  down->setEnabled(count > 0 && !isAt(shown_.size() - count));
}

void ActionListWindow::AddAction(const TClass& cls, const QString& usual) {
  const int row = categories->currentRow();
  const QString category = row < FirstCategory ? usual : categories->item(row)->text();
  TContainedAction* made = nullptr;
  {
    const QScopedValueRollback loading(loading_, true);
    Do(tr("Add %1").arg(QString::fromLatin1(cls.ClassName())), [&] {
      made = As<TContainedAction>(Designer()->CreateComponent(cls, &List(), {}));
      if (!made) throw EComponentError(tr("An action cannot be added here."));
      if (!category.isEmpty()) made->Set(TContainedAction::Category, category);
    });
  }
  if (made) Select({made});
}

void ActionListWindow::DeleteActions() {
  const auto selected = Selected();
  if (selected.empty() || !Designer()) return;
  const auto first = std::find(shown_.begin(), shown_.end(), selected.front()) - shown_.begin();
  {
    const QScopedValueRollback loading(loading_, true);
    Do(selected.size() == 1 ? tr("Delete %1").arg(selected.front()->Name()) : tr("Delete actions"), [&] {
      Designer()->SetSelections({selected.begin(), selected.end()});
      Designer()->DeleteSelection();
    });
    if (Designer()) Load();
  }
  if (shown_.empty()) return TellSelection();
  Select({shown_[std::min(static_cast<std::size_t>(first), shown_.size() - 1)]});
}

// Past the neighbours that are shown; those at the end already stay there.
void ActionListWindow::MoveActions(int by) {
  auto selected = Selected();
  if (selected.empty() || !Designer()) return;
  const auto isSelected = [&](const TContainedAction* action) {
    return std::find(selected.begin(), selected.end(), action) != selected.end();
  };
  if (by > 0) std::reverse(selected.begin(), selected.end());
  std::vector<TContainedAction*> order = shown_;
  std::vector<std::pair<TContainedAction*, const TContainedAction*>> moves;  // past whom
  for (TContainedAction* action : selected) {
    const auto at = std::find(order.begin(), order.end(), action);
    if (by < 0 ? at == order.begin() : at + 1 == order.end()) continue;
    if (isSelected(*(at + by))) continue;
    moves.emplace_back(action, *(at + by));
    std::iter_swap(at, at + by);
  }
  if (moves.empty()) return;
  Do(tr("Move actions"), [&] {
    for (const auto& [action, neighbour] : moves) action->SetNestedIndex(neighbour->NestedIndex());
  });
  Select(selected);
}

bool ActionListWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool control = key->modifiers() == Qt::ControlModifier;
  if (key->key() == Qt::Key_Insert)
    AddAction(TAction::StaticClass());
  else if (watched == actions && key->key() == Qt::Key_Delete)
    DeleteActions();
  else if (watched == actions && control && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down))
    MoveActions(key->key() == Qt::Key_Up ? -1 : 1);
  else
    return false;
  return true;
}
