#include "dclstd/MenuWindow.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollArea>

#include "rtl/Exceptions.h"

MenuWindow::MenuWindow(IDesigner& designer, TMenu& menu)
    : ComponentWindow(designer, menu), current_{&menu, nullptr} {
  insert = Button("insert", tr("Insert"), tr("Insert an item in front of this one (Ins)"),
                  "pen line 2 path 12 5 12 19 path 5 12 19 12", [this] { InsertItem(); });
  remove = Button("remove", tr("Delete"), tr("Delete the item and what is below it (Del)"),
                  "pen line 2 path 6 6 18 18 path 18 6 6 18", [this] { DeleteItem(); });
  submenu = Button("submenu", tr("Submenu"), tr("Go on below the item (Ctrl+Right)"),
                   "pen line 2 path 5 6 5 15 17 15 path 13 10 18 15 13 20", [this] { OpenSubmenu(); });
  up = Button("up", tr("Move Back"), tr("Move the item towards the first (Ctrl+Up)"),
              "pen line 2 path 12 19 12 6 path 6 11 12 5 18 11", [this] { MoveItem(-1); });
  down = Button("down", tr("Move On"), tr("Move the item towards the last (Ctrl+Down)"),
                "pen line 2 path 12 5 12 18 path 6 13 12 19 18 13", [this] { MoveItem(1); });
  canvas = new MenuCanvas(*this);
  canvas->installEventFilter(this);
  caption = new QLineEdit(canvas);
  caption->setObjectName(QStringLiteral("caption"));
  caption->setAccessibleName(tr("Caption"));
  caption->setFrame(false);
  caption->installEventFilter(this);
  caption->hide();
  auto* scroll = new QScrollArea(this);
  scroll->setWidget(canvas);
  scroll->setWidgetResizable(true);
  scroll->setFocusProxy(canvas);
  auto* help = new QLabel(tr("Type a caption, or - for a separator; Return goes on."), this);
  help->setWordWrap(true);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(2);
  for (QToolButton* button : {insert, remove, submenu, up, down}) {
    button->setFocusPolicy(Qt::TabFocus);  // a click leaves the place where typing goes
    buttons->addWidget(button);
  }
  buttons->addStretch(1);
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(8, 8, 8, 8);
  box->addLayout(buttons);
  box->addWidget(scroll, 1);
  box->addWidget(help);
  resize(480, 320);
  canvas->setFocus();
  GoToStart();
}

// The item that is selected already, else the first.
void MenuWindow::GoToStart() {
  const TDesignerSelections list = Designer()->GetSelections();
  auto* item = list.size() == 1 ? As<TMenuItem>(list.front()) : nullptr;
  if (!item || MenuOf(*item) != &Menu())
    item = Menu().Nested().empty() ? nullptr : As<TMenuItem>(Menu().Nested().front());
  if (item) GoTo({item->Around(), item});
}

TMenu& MenuWindow::Menu() const { return *As<TMenu>(&Component()); }

bool MenuWindow::Rebound() { return As<TMenu>(&Component()) != nullptr; }

void MenuWindow::SetCurrent(const Place& place) {
  current_ = place;
  itemName_ = place.Item ? place.Item->Name() : QString();
  levelName_ = place.Level->Name();
}

void MenuWindow::Load() {
  setWindowTitle(tr("Editing %1").arg(Component().Name()));
  // They may have gone, moved to another level, or been made anew.
  if (current_.Item) current_.Item = As<TMenuItem>(Present(current_.Item, itemName_));
  current_.Level =
      current_.Item ? current_.Item->Around() : As<TNestedComponent>(Present(current_.Level, levelName_));
  if (!current_.Level || MenuOf(*current_.Level) != &Menu()) current_ = {&Menu(), nullptr};
  itemName_ = current_.Item ? current_.Item->Name() : QString();
  levelName_ = current_.Level->Name();
  canvas->setMinimumSize(canvas->sizeHint());
  canvas->update();
  EnableButtons();
}

// The next that stays; the form is asked for nothing before it is in order again.
void MenuWindow::ItemDeleted(IDesigner* designer, TPersistent* item) {
  if (designer == Designer()) {
    for (TNestedComponent* c = current_.Item ? current_.Item : current_.Level; c; c = c->Around()) {
      if (c != item) continue;
      TNestedComponent* around = c->Around();
      SetCurrent({around ? around : &Menu(), nullptr});
      if (typing_) EndCaption(false);
      break;
    }
  }
  ComponentWindow::ItemDeleted(designer, item);
}

void MenuWindow::SelectionChanged(IDesigner* designer, const TDesignerSelections& list) {
  if (telling_ || designer != Designer() || list.size() != 1) return;
  auto* item = As<TMenuItem>(list.front());
  if (!item || item == current_.Item || MenuOf(*item) != &Menu()) return;
  SetCurrent({item->Around(), item});
  Load();
}

void MenuWindow::GoTo(const Place& place) {
  if (typing_) EndCaption(true);
  if (!Designer()) return;
  SetCurrent(place);
  Load();
  Tell();
}

// The inspector shows the item; behind the last one, what the next will stand in.
void MenuWindow::Tell() {
  if (!Designer()) return;
  const QScopedValueRollback telling(telling_, true);
  Designer()->SelectComponent(current_.Item ? static_cast<TPersistent*>(current_.Item) : current_.Level);
}

TMenuItem* MenuWindow::Neighbour(const Place& place, int by) {
  const auto& all = place.Level->Nested();
  const int count = static_cast<int>(all.size());
  const int at = (place.Item ? place.Item->NestedIndex() : count) + by;
  return at >= 0 && at < count ? As<TMenuItem>(all[static_cast<std::size_t>(at)]) : nullptr;
}

void MenuWindow::EnableButtons() {
  remove->setEnabled(current_.Item != nullptr);
  submenu->setEnabled(current_.Item && !current_.Item->IsSeparator());
  up->setEnabled(current_.Item && Neighbour(current_, -1));
  down->setEnabled(current_.Item && Neighbour(current_, 1));
}

// --- Captions

void MenuWindow::BeginCaption(const QString& text) {
  typing_ = true;
  canvas->setMinimumSize(canvas->sizeHint());
  canvas->update();
  const Place at = inserting_ ? Place{current_.Level, nullptr} : current_;
  QRect place = canvas->RectOf(at).adjusted(1, 1, -1, -1);
  place.setWidth(std::max(place.width(), TMenuLook::LeastTyped));
  caption->setGeometry(place);
  caption->setText(text);
  caption->show();
  caption->setFocus();
}

void MenuWindow::InsertItem() {
  if (typing_) EndCaption(true);
  inserting_ = current_.Item != nullptr;
  BeginCaption({});
}

// "&File" becomes File1; what leaves no letter, N1.
QString MenuWindow::NameFor(const QString& text) const {
  QString base;
  for (const QChar c : text)
    if (c == u'_' || (c.unicode() < 128 && c.isLetterOrNumber())) base += c;
  if (base.isEmpty() || base[0].isDigit()) base.prepend(u'N');
  for (int i = 1;; ++i)
    if (const QString name = base + QString::number(i); !Designer()->GetComponent(name)) return name;
}

TMenuItem& MenuWindow::AddItem(const QString& text, int index) {
  TComponent* made = Designer()->CreateComponent(TMenuItem::StaticClass(), current_.Level, {});
  auto* item = As<TMenuItem>(made);
  if (!item) throw EComponentError(tr("An item cannot be added here."));
  item->SetName(NameFor(text));
  item->Set(TMenuItem::Caption, text);
  if (item->Around() != current_.Level) item->SetAround(current_.Level);
  item->SetNestedIndex(index);
  return *item;
}

// Return goes on: below a new item of the bar, else behind the item.
void MenuWindow::EndCaption(bool keep) {
  if (!typing_) return;
  typing_ = false;
  const bool inserting = std::exchange(inserting_, false);
  const QString text = caption->text();
  caption->hide();
  canvas->update();
  canvas->setFocus();
  if (!keep || !Designer()) return;
  const QScopedValueRollback telling(telling_, true);
  if (current_.Item && !inserting) {
    TMenuItem& item = *current_.Item;
    if (text != item.Get(TMenuItem::Caption))
      Do(tr("Change %1.Caption").arg(item.Name()), [&] { item.Set(TMenuItem::Caption, text); });
  } else if (!text.isEmpty()) {
    const int index =
        current_.Item ? current_.Item->NestedIndex() : static_cast<int>(current_.Level->Nested().size());
    TMenuItem* made = nullptr;
    Do(tr("Add %1").arg(text), [&] { made = &AddItem(text, index); });
    if (made) SetCurrent({made->Around(), made});
  }
  Load();
}

void MenuWindow::DeleteItem() {
  if (!current_.Item || !Designer()) return;
  const Place after{current_.Level, Neighbour(current_, 1)};
  {
    const QScopedValueRollback telling(telling_, true);
    Designer()->SelectComponent(current_.Item);
    Do(tr("Delete %1").arg(current_.Item->Name()), [&] { Designer()->DeleteSelection(); });
  }
  if (Designer() && !current_.Item) GoTo(after);
}

void MenuWindow::OpenSubmenu() {
  if (!current_.Item || current_.Item->IsSeparator()) return;
  const Place below{current_.Item, nullptr};
  GoTo({below.Level, Neighbour({below.Level, nullptr}, -static_cast<int>(below.Level->Nested().size()))});
}

void MenuWindow::MoveItem(int by) {
  TMenuItem* item = current_.Item;
  if (!item || !Neighbour(current_, by)) return;
  Do(tr("Move %1").arg(item->Name()), [&] { item->SetNestedIndex(item->NestedIndex() + by); });
}

void MenuWindow::MoveItemTo(TMenuItem& item, const Place& place) {
  for (const TNestedComponent* c = place.Item ? place.Item : place.Level; c; c = c->Around())
    if (c == &item) return;  // where it is, or inside of itself
  Do(tr("Move %1").arg(item.Name()), [&] {
    item.SetAround(place.Level);
    const int last = static_cast<int>(place.Level->Nested().size()) - 1;
    const int before = place.Item ? place.Item->NestedIndex() : last + 1;
    // Coming from the front, the others close up first.
    item.SetNestedIndex(item.NestedIndex() < before ? before - 1 : before);
  });
  GoTo({item.Around(), &item});
}

// --- Keys

bool MenuWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == caption && event->type() == QEvent::FocusOut &&
      static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
    EndCaption(true);
  if (event->type() != QEvent::KeyPress) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  if (watched == canvas) return CanvasKey(key->key(), key->modifiers() == Qt::ControlModifier, key->text());
  switch (key->key()) {
    case Qt::Key_Escape:
      EndCaption(false);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: {
      EndCaption(true);
      const bool bar = current_.Level == &Menu() && As<TMainMenu>(&Menu());
      if (bar && current_.Item && current_.Item->Nested().empty() && !current_.Item->IsSeparator())
        GoTo({current_.Item, nullptr});
      else
        GoTo({current_.Level, current_.Item ? Neighbour(current_, 1) : nullptr});
      return true;
    }
    case Qt::Key_Up:
    case Qt::Key_Down:
      EndCaption(true);
      Walk(key->key());
      return true;
    default:
      return false;
  }
}

bool MenuWindow::CanvasKey(int key, bool control, const QString& text) {
  switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (!control)
        Walk(key);
      else if (key == Qt::Key_Right)
        OpenSubmenu();
      else if (key == Qt::Key_Up || key == Qt::Key_Down)
        MoveItem(key == Qt::Key_Up ? -1 : 1);
      return true;
    case Qt::Key_Insert:
      InsertItem();
      return true;
    case Qt::Key_Delete:
      DeleteItem();
      return true;
    case Qt::Key_Escape:
      if (auto* around = As<TMenuItem>(current_.Level)) GoTo({around->Around(), around});
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
      BeginCaption(current_.Item ? current_.Item->Get(TMenuItem::Caption) : QString());
      return true;
    default:
      if (control || text.isEmpty() || !text[0].isPrint()) return false;
      BeginCaption(text);
      return true;
  }
}

// Back and on along the level; past its ends to nowhere.
void MenuWindow::WalkAlong(int by) {
  if (TMenuItem* next = Neighbour(current_, by))
    GoTo({current_.Level, next});
  else if (by > 0 && current_.Item)
    GoTo({current_.Level, nullptr});
}

void MenuWindow::Walk(int key) {
  const bool bar = current_.Level == &Menu() && As<TMainMenu>(&Menu());
  const bool back = key == Qt::Key_Left || key == Qt::Key_Up;
  const bool along = bar == (key == Qt::Key_Left || key == Qt::Key_Right);
  auto* around = As<TMenuItem>(current_.Level);
  if (along && back && !bar && around && around->Around() == &Menu() && As<TMainMenu>(&Menu()) &&
      current_ == Place{around, Neighbour({around, nullptr}, -static_cast<int>(around->Nested().size()))})
    return GoTo({&Menu(), around});  // from the first row up to the bar
  if (along) return WalkAlong(back ? -1 : 1);
  if (!back && current_.Item && (bar || !current_.Item->Nested().empty())) return OpenSubmenu();
  if (bar || !around) return;
  // Beside a drop-down of the bar stands the next one, beside any other what it belongs to.
  const Place above{around->Around(), around};
  if (above.Level != &Menu() || !As<TMainMenu>(&Menu())) {
    if (back) GoTo(above);
    return;
  }
  TMenuItem* next = Neighbour(above, back ? -1 : 1);
  if (next || !back) GoTo({above.Level, next});
  if (next) OpenSubmenu();
}
