#include "designer/StructurePane.h"

#include <QtWidgets>

#include "designer/SearchField.h"
#include "rtl/Exceptions.h"
#include "vcl/Prompts.h"

StructurePane::StructurePane(QWidget* parent) : QWidget(parent) {
  filter_ = new SearchField(tr("Filter..."), tr("Filter of the structure"));
  // A container stays in sight with what is found inside.
  filtered_ = new QSortFilterProxyModel(this);
  filtered_->setFilterCaseSensitivity(Qt::CaseInsensitive);
  filtered_->setRecursiveFilteringEnabled(true);
  filtered_->setDynamicSortFilter(false);
  filtered_->setSourceModel(&model_);
  tree_ = new QTreeView;
  tree_->setObjectName(QStringLiteral("structure"));
  tree_->setModel(filtered_);
  tree_->setHeaderHidden(true);
  tree_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tree_->setIndentation(16);
  tree_->setUniformRowHeights(true);
  tree_->setExpandsOnDoubleClick(false);
  tree_->setAccessibleName(tr("Structure"));
  hidden_ = new QLabel;
  hidden_->setObjectName(QStringLiteral("hiddenSelection"));
  hidden_->setWordWrap(true);
  hidden_->setForegroundRole(QPalette::PlaceholderText);
  hidden_->hide();
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(6, 6, 6, 6);
  box->setSpacing(4);
  box->addWidget(tree_, 1);
  box->addWidget(hidden_);
  box->addWidget(filter_);
  connect(filter_, &QLineEdit::textChanged, this, &StructurePane::ApplyFilter);
  connect(tree_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &StructurePane::TakeSelection);
  // A row that is selected already: the component in place of what is selected inside of it.
  connect(tree_, &QTreeView::clicked, this, [this] {
    if (Session() && Session()->HasSelectedParts()) TakeSelection();
  });
  connect(tree_, &QTreeView::doubleClicked, this, [this](const QModelIndex& row) {
    try {
      if (TComponent* c = ComponentAt(row)) Session()->Edit(*c);
    } catch (const std::exception& e) {
      Prompts().Warn(this, QCoreApplication::applicationName(), ExceptionMessage(e));
    }
  });
  // What was closed stays closed, and the tree where it was scrolled to.
  connect(tree_, &QTreeView::collapsed, this, [this](const QModelIndex& row) {
    if (!updating_) closed_.insert(row.data().toString());
  });
  connect(tree_, &QTreeView::expanded, this, [this](const QModelIndex& row) {
    if (!updating_) closed_.remove(row.data().toString());
  });
  connect(filtered_, &QAbstractItemModel::modelAboutToBeReset, this,
          [this] { scroll_ = tree_->verticalScrollBar()->value(); });
  connect(filtered_, &QAbstractItemModel::modelReset, this, &StructurePane::OpenRows);
}

void StructurePane::SetSession(FormSession* session) {
  if (Session()) disconnect(Session(), nullptr, this, nullptr);
  closed_.clear();
  model_.SetSession(session);
  if (session) connect(session, &FormSession::SelectionChanged, this, &StructurePane::ShowSelection);
}

QWidget& StructurePane::Tree() const { return *tree_; }

TComponent* StructurePane::ComponentAt(const QModelIndex& row) const {
  return model_.ComponentAt(filtered_->mapToSource(row));
}

void StructurePane::OpenRows() {
  updating_ = true;
  tree_->expandAll();
  std::function<void(const QModelIndex&)> close = [&](const QModelIndex& parent) {
    for (int row = 0; row < filtered_->rowCount(parent); ++row) {
      const QModelIndex i = filtered_->index(row, 0, parent);
      if (filtered_->rowCount(i) == 0) continue;
      close(i);
      if (closed_.contains(i.data().toString())) tree_->setExpanded(i, false);
    }
  };
  // A hit inside is shown all the same.
  if (!closed_.isEmpty() && filter_->text().isEmpty()) close({});
  tree_->doItemsLayout();
  tree_->verticalScrollBar()->setValue(scroll_);
  updating_ = false;
  ShowSelection();
}

void StructurePane::TakeSelection() {
  if (updating_ || !Session()) return;
  std::vector<TComponent*> selected;
  for (const QModelIndex& row : tree_->selectionModel()->selectedIndexes())
    if (TComponent* c = ComponentAt(row)) selected.push_back(c);
  updating_ = true;
  Session()->Select(selected);
  updating_ = false;
  hidden_->hide();  // what is chosen here is in sight
}

void StructurePane::ShowSelection() {
  if (updating_ || !Session()) return;
  const QScopedValueRollback guard(updating_, true);
  QItemSelection rows;
  QModelIndex first;
  const auto selected = Session()->SelectedComponents();
  std::vector<const TComponent*> hidden;
  for (const TComponent* c : selected) {
    const QModelIndex row = filtered_->mapFromSource(model_.IndexOf(*c));
    if (row.isValid())
      rows.select(row, row);
    else
      hidden.push_back(c);
    if (!first.isValid()) first = row;
  }
  hidden_->setVisible(!hidden.empty());
  if (!hidden.empty())
    hidden_->setText(hidden.size() == 1
                         ? tr("%1 is selected, but the filter hides it.").arg(hidden.front()->Name())
                         : tr("%n selected components are hidden by the filter.", nullptr,
                              static_cast<int>(hidden.size())));
  tree_->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
  if (!first.isValid()) return;
  tree_->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
  tree_->scrollTo(first);
}

void StructurePane::ApplyFilter() {
  updating_ = true;
  filtered_->setFilterFixedString(filter_->text());
  updating_ = false;
  scroll_ = tree_->verticalScrollBar()->value();
  OpenRows();
}
