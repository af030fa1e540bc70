// How the window that hides icons is made, and what keys do in it.
#include <QtWidgets>

#include "designintf/IdeTheme.h"
#include "package/experts/pVRXHideNonVC.h"

TVRXHideNonVCfrm::TVRXHideNonVCfrm(QWidget* owner) : TDesignWindow(owner) {
  setObjectName(QStringLiteral("TVRXHideNonVCfrm"));
  setWindowFlags(owner ? Qt::Tool : Qt::Window);
  setAttribute(Qt::WA_QuitOnClose, false);
  BuildControls();
  connect(cbList, &QListWidget::itemSelectionChanged, this, [this] {
    if (!loading_) UpdateSelection();
  });
  connect(cbList, &QListWidget::currentItemChanged, this, [this] {
    if (!loading_) CheckInfo();
  });
  connect(cbList, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
    // An empty menu would never show, and be in the way of the next one.
    BuildMenu();
    if (!popMenu->isEmpty()) popMenu->popup(cbList->viewport()->mapToGlobal(at));
  });
  const auto clicked = [this](QPushButton* button, auto action) {
    connect(button, &QPushButton::clicked, this, action);
  };
  const auto hides = [this](bool all, bool hide) {
    return [this, all, hide] {
      if (all) DoSelectAll();
      hide ? HideSelection() : ShowSelection();
      CheckInfo();
    };
  };
  clicked(btHide, hides(false, true));
  clicked(btShow, hides(false, false));
  clicked(btHideAll, hides(true, true));
  clicked(btshowall, hides(true, false));
  clicked(btDelete, [this] {
    DeleteSelection();
    UpdateSelection();
  });
  clicked(CloseButton, [this] { close(); });
  CheckButtonStates();
  resize(368, 310);
  ApplyIDETheme(*this);
}

void TVRXHideNonVCfrm::BuildControls() {
  lbl = new QLabel(QStringLiteral("&Nonvisual Components:"));
  d = new QLabel(QStringLiteral("0"));
  cbList = new QListWidget;
  cbList->setFrameShape(QFrame::NoFrame);
  cbList->setSelectionMode(QAbstractItemView::ExtendedSelection);
  cbList->setSortingEnabled(true);
  cbList->setUniformItemSizes(true);
  cbList->setContextMenuPolicy(Qt::CustomContextMenu);
  cbList->installEventFilter(this);
  lbl->setBuddy(cbList);
  popMenu = new QMenu(this);
  popMenu->setToolTipsVisible(true);
  const auto named = [](QObject* object, const char* name) {
    object->setObjectName(QLatin1StringView(name));
  };
  named(lbl, "lbl");
  named(d, "d");
  named(cbList, "cbList");
  named(popMenu, "popMenu");
  auto* column = new QVBoxLayout;
  column->setSpacing(8);
  const auto button = [&](const char* name, const char* text) {
    auto* made = new QPushButton(QLatin1StringView(text));
    named(made, name);
    column->addWidget(made);
    return made;
  };
  btHide = button("btHide", "&Hide");
  btShow = button("btShow", "&Show");
  column->addSpacing(8);
  btHideAll = button("btHideAll", "Hide All");
  btshowall = button("btshowall", "Show All");
  column->addSpacing(8);
  btDelete = button("btDelete", "&Delete");
  column->addStretch(1);
  CloseButton = button("CloseButton", "&Close");
  constexpr int ColumnWidth = 107, Edge = 8;
  for (int i = 0; i < column->count(); ++i)
    if (QWidget* made = column->itemAt(i)->widget()) made->setMinimumWidth(ColumnWidth - 2 * Edge);

  auto* head = new QHBoxLayout;
  head->addWidget(lbl);
  head->addStretch(1);
  head->addWidget(d);
  auto* left = new QVBoxLayout;
  left->setSpacing(4);
  left->addLayout(head);
  left->addWidget(cbList, 1);
  auto* box = new QHBoxLayout(this);
  box->setContentsMargins(Edge, Edge, Edge, Edge);
  box->setSpacing(Edge);
  box->addLayout(left, 1);
  box->addLayout(column);
  // The widgets have this window for a parent only now.
  QWidget* before = cbList;
  for (QPushButton* next : {btHide, btShow, btHideAll, btshowall, btDelete, CloseButton}) {
    setTabOrder(before, next);
    before = next;
  }
}

void TVRXHideNonVCfrm::showEvent(QShowEvent* event) {
  TDesignWindow::showEvent(event);
  if (event->spontaneous()) return;
  ApplyIDETheme(*this);
  CheckInfo();
  // Where the person puts it is where it stays.
  if (const QScreen* s = screen(); s && !std::exchange(placed_, true))
    move(s->availableGeometry().center() - rect().center());
}

void TVRXHideNonVCfrm::changeEvent(QEvent* event) {
  TDesignWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && d) CheckInfo();
}

QPushButton* TVRXHideNonVCfrm::Lettered(const QKeyEvent& event) const {
  for (QPushButton* button : {btHide, btShow, btDelete, CloseButton})
    if (QKeySequence::mnemonic(button->text()) == QKeySequence(event.keyCombination())) return button;
  return nullptr;
}

// Menus of the main window have some of these letters, too, and would come first.
bool TVRXHideNonVCfrm::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && Lettered(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  return TDesignWindow::event(event);
}

bool TVRXHideNonVCfrm::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  if (QPushButton* button = Lettered(key)) {
    button->click();
    return true;
  }
  if (!key.matches(QKeySequence::Delete)) return false;
  EditAction(TEditAction::eaDelete);
  return true;
}

void TVRXHideNonVCfrm::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && !event->modifiers()) {
    close();
  } else if (QPushButton* lettered = Lettered(*event)) {
    lettered->click();
  } else if (auto* button = qobject_cast<QPushButton*>(focusWidget());
             button && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
    button->click();
  } else {
    TDesignWindow::keyPressEvent(event);
  }
}
