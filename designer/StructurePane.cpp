#include "designer/StructurePane.h"

#include <QtWidgets>

#include "designer/SearchField.h"
#include "designintf/ComponentIcons.h"
#include "rtl/Exceptions.h"
#include "vcl/Prompts.h"

namespace {
TComponent* ComponentOf(const QTreeWidgetItem* item) {
  return static_cast<TComponent*>(item->data(0, Qt::UserRole).value<void*>());
}
QString TitleOf(const TComponent& c) {
  const QString cls = QString::fromUtf8(c.StreamClassName());
  return c.Name().isEmpty() ? cls : QStringLiteral("%1: %2").arg(c.Name(), cls);
}
}  // namespace

StructurePane::StructurePane(QWidget* parent) : QWidget(parent) {
  filter_ = new SearchField(tr("Filter..."), tr("Filter of the structure"));
  tree_ = new QTreeWidget;
  tree_->setObjectName(QStringLiteral("structure"));
  tree_->setHeaderHidden(true);
  tree_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  tree_->setIndentation(16);
  tree_->setUniformRowHeights(true);
  tree_->setAccessibleName(tr("Structure"));
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(6, 6, 6, 6);
  box->setSpacing(4);
  box->addWidget(tree_, 1);
  box->addWidget(filter_);
  connect(filter_, &QLineEdit::textChanged, this, &StructurePane::ApplyFilter);
  connect(tree_, &QTreeWidget::itemSelectionChanged, this, [this] {
    if (updating_ || !session_) return;
    std::vector<TComponent*> selected;
    for (const QTreeWidgetItem* item : tree_->selectedItems()) selected.push_back(ComponentOf(item));
    updating_ = true;
    session_->Select(selected);
    updating_ = false;
  });
  connect(tree_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
    try {
      session_->Edit(*ComponentOf(item));
    } catch (const std::exception& e) {
      Prompts().Warn(this, QCoreApplication::applicationName(), ExceptionMessage(e));
    }
  });
  tree_->setExpandsOnDoubleClick(false);
}

void StructurePane::SetSession(FormSession* session) {
  if (session_) disconnect(session_, nullptr, this, nullptr);
  session_ = session;
  if (session_) {
    connect(session_, &FormSession::StructureChanged, this, &StructurePane::Fill);
    connect(session_, &FormSession::SelectionChanged, this, &StructurePane::ShowSelection);
    connect(session_, &FormSession::FormChanged, this, &StructurePane::Refresh);
  }
  Fill();
}

void StructurePane::AddItem(TComponent& component, QTreeWidgetItem* parent) {
  auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(tree_);
  item->setText(0, TitleOf(component));
  item->setIcon(0, ComponentIcon(component.ClassType()));
  item->setData(0, Qt::UserRole, QVariant::fromValue(static_cast<void*>(&component)));
  items_.insert(&component, item);
  for (TComponent* child : component.GetChildren()) AddItem(*child, item);
}

// What was closed stays closed, and the tree where it was scrolled to.
void StructurePane::Fill() {
  updating_ = true;
  const int scroll = tree_->verticalScrollBar()->value();
  QSet<QString> closed;
  for (const QTreeWidgetItem* item : std::as_const(items_))
    if (item->childCount() > 0 && !item->isExpanded()) closed.insert(item->text(0));
  tree_->clear();
  items_.clear();
  if (session_) AddItem(session_->Form(), nullptr);
  tree_->expandAll();
  for (QTreeWidgetItem* item : std::as_const(items_))
    if (closed.contains(item->text(0))) item->setExpanded(false);
  tree_->doItemsLayout();
  tree_->verticalScrollBar()->setValue(scroll);
  updating_ = false;
  ApplyFilter();
  ShowSelection();
}

// Names may have changed.
void StructurePane::Refresh() {
  for (auto it = items_.cbegin(); it != items_.cend(); ++it)
    if (const QString title = TitleOf(*it.key()); it.value()->text(0) != title) it.value()->setText(0, title);
}

void StructurePane::ShowSelection() {
  if (updating_ || !session_) return;
  updating_ = true;
  tree_->clearSelection();
  for (const TComponent* c : session_->SelectedComponents())
    if (QTreeWidgetItem* item = items_.value(c)) {
      item->setSelected(true);
      tree_->scrollToItem(item);
    }
  updating_ = false;
}

void StructurePane::ApplyFilter() {
  const QString text = filter_->text();
  std::function<bool(QTreeWidgetItem*)> walk = [&](QTreeWidgetItem* item) {
    bool any = item->text(0).contains(text, Qt::CaseInsensitive);
    bool below = false;
    for (int i = 0; i < item->childCount(); ++i) below = walk(item->child(i)) || below;
    if (below && !text.isEmpty()) item->setExpanded(true);
    any = any || below;
    item->setHidden(!any);
    return any;
  };
  for (int i = 0; i < tree_->topLevelItemCount(); ++i) walk(tree_->topLevelItem(i));
}
