#include "package/dialogs/LinesTable.h"

#include <QHeaderView>
#include <QKeyEvent>

LinesTable::LinesTable(QAbstractItemModel* model, const char* name, QWidget* parent) : QTableView(parent) {
  setObjectName(QString::fromLatin1(name));
  setModel(model);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setShowGrid(false);
  setSelectionMode(SingleSelection);
  setSelectionBehavior(SelectRows);
  setEditTriggers(NoEditTriggers);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
}

int LinesTable::CurrentRow() const { return currentIndex().isValid() ? currentIndex().row() : -1; }

void LinesTable::Select(int row) {
  if (row < 0 || row >= model()->rowCount()) return selectionModel()->clear();
  setCurrentIndex(model()->index(row, std::max(currentIndex().column(), 0)));
}

void LinesTable::keyPressEvent(QKeyEvent* event) {
  const bool last = event->key() == Qt::Key_End;
  if (!last && event->key() != Qt::Key_Home) return QTableView::keyPressEvent(event);
  Select(last ? model()->rowCount() - 1 : 0);
}

void LinesTable::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  if (!selectionModel()->hasSelection()) Select(CurrentRow());
}
