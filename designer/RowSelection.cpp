#include "designer/RowSelection.h"

#include "ide/InspectorModel.h"

RowSelection::RowSelection(QAbstractItemModel* model, std::function<bool()> mayLeave, QObject* parent)
    : QItemSelectionModel(model, parent), mayLeave_(std::move(mayLeave)) {}

bool RowSelection::IsCurrent(const QModelIndex& index) const {
  return index.siblingAtColumn(0) == currentIndex().siblingAtColumn(0);
}

void RowSelection::setCurrentIndex(const QModelIndex& index, SelectionFlags command) {
  QModelIndex to = index;
  if (!moving_ && !IsCurrent(index)) {
    // Applying may make the rows anew.
    const QPersistentModelIndex row = index;
    const QString path = index.data(InspectorModel::PathRole).toString();
    if (!mayLeave_()) return;
    to = row;
    if (!to.isValid()) to = static_cast<const InspectorModel*>(model())->IndexOfPath(path);
  }
  const QScopedValueRollback<bool> moving(moving_, true);
  QItemSelectionModel::setCurrentIndex(to, command);
}

void RowSelection::select(const QModelIndex& index, SelectionFlags command) {
  if (moving_ || !index.isValid() || IsCurrent(index)) QItemSelectionModel::select(index, command);
}

void RowSelection::select(const QItemSelection& selection, SelectionFlags command) {
  if (moving_ || selection.isEmpty() || IsCurrent(selection.first().topLeft()))
    QItemSelectionModel::select(selection, command);
}
