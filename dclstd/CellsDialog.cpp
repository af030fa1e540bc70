#include "dclstd/CellsDialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>
#include <QVBoxLayout>

#include "dclstd/CellsModel.h"
#include "dclstd/EditValue.h"
#include "dclstd/SeparatedText.h"
#include "vcl/Prompts.h"
#include "vcl/UserFile.h"

namespace {
const QString& Filter() {
  static const QString filter = QObject::tr("Tables (*.csv *.tsv *.txt);;All files (*)");
  return filter;
}
}  // namespace

CellsDialog::CellsDialog(QWidget* owner)
    : RowDialog(tr("Cells Editor"), owner), cells_(new CellsModel(this)) {
  table = new QTableView(this);
  table->setObjectName(QStringLiteral("table"));
  table->setAccessibleName(tr("Cells"));
  table->setModel(cells_);
  table->setTabKeyNavigation(false);
  table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                         QAbstractItemView::AnyKeyPressed);
  table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table->installEventFilter(this);
  facts = new QLabel(this);
  facts->setObjectName(QStringLiteral("facts"));
  Follows(table);
  Button(load, "load", "&Load...", &CellsDialog::loadClick,
         "Takes the texts of a table file, from the first cell on");
  Button(save, "save", "&Save...", &CellsDialog::saveClick, "Writes all cells to a table file");
  Button(copy, "copy", "&Copy", &CellsDialog::copyClick, "The selected cells to the clipboard (Ctrl+C)");
  Button(paste, "paste", "&Paste", &CellsDialog::pasteClick,
         "The table of the clipboard, from the current cell on (Ctrl+V)");
  Button(clear, "clear", "Cl&ear", &CellsDialog::clearClick, "The selected cells (Del)");
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  auto* left = new QVBoxLayout;
  left->addWidget(table, 1);
  left->addWidget(facts);
  FinishBeside(left, {load, save, copy, paste, clear}, {ok, cancel}, {560, 360});
}

void CellsDialog::SetCells(const TStringGrid& grid) {
  cells_->Load(grid, palette().brush(QPalette::Button));
  table->setCurrentIndex(cells_->index(0, 0));
  ShowFacts(0);
}

void CellsDialog::ShowFacts(int left) {
  QString text = tr("%1 columns, %2 rows").arg(cells_->columnCount()).arg(cells_->rowCount());
  if (cells_->IsCut()) text += tr("; the grid has more, whose texts stay as they are");
  if (left > 0) text += tr("; no cell for %1 of the texts").arg(left);
  facts->setText(text);
}

void CellsDialog::Put(const QModelIndex& from, const QList<QStringList>& rows) {
  if (from.isValid()) ShowFacts(cells_->Put(from, rows));
}

void CellsDialog::loadClick() {
  const QString file = Prompts().OpenFileName(this, tr("Load cells"), {}, Filter());
  if (file.isEmpty()) return;
  const QString text = ReadUserText(file);
  Put(cells_->index(0, 0), ReadSeparated(text, SeparatorOf(text)));
}

void CellsDialog::saveClick() {
  const QString file = Prompts().SaveFileName(this, tr("Save cells"), QStringLiteral("cells.csv"), Filter());
  if (file.isEmpty()) return;
  QList<QStringList> rows;
  for (int row = 0; row < cells_->rowCount(); ++row) {
    rows.emplace_back();
    for (int column = 0; column < cells_->columnCount(); ++column)
      rows.last() << cells_->index(row, column).data().toString();
  }
  WriteUserFile(file, WriteSeparated(rows, u',').toUtf8());
}

// The smallest rectangle around what is selected.
void CellsDialog::copyClick() {
  const QItemSelection selection = table->selectionModel()->selection();
  if (selection.isEmpty()) return;
  QRect area;
  for (const QItemSelectionRange& range : selection)
    area |= QRect(QPoint(range.left(), range.top()), QPoint(range.right(), range.bottom()));
  QList<QStringList> rows;
  for (int row = area.top(); row <= area.bottom(); ++row) {
    rows.emplace_back();
    for (int column = area.left(); column <= area.right(); ++column) {
      const QModelIndex cell = cells_->index(row, column);
      rows.last() << (selection.contains(cell) ? cell.data().toString() : QString());
    }
  }
  QGuiApplication::clipboard()->setText(WriteSeparated(rows, u'\t'));
}

void CellsDialog::pasteClick() {
  QString text = QGuiApplication::clipboard()->text();
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  Put(table->currentIndex(), ReadSeparated(text, u'\t'));
}

void CellsDialog::clearClick() {
  for (const QModelIndex& cell : table->selectionModel()->selectedIndexes()) cells_->setData(cell, QString());
}

bool CellsDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return RowDialog::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  QPushButton* button = key->matches(QKeySequence::Copy)     ? copy
                        : key->matches(QKeySequence::Paste)  ? paste
                        : key->matches(QKeySequence::Delete) ? clear
                                                             : nullptr;
  if (!button) return false;
  button->click();
  return true;
}

bool EditCells(TStringGrid& grid) {
  CellsDialog dialog(ApplicationOwner());
  dialog.SetCells(grid);
  if (dialog.ShowModal() != mrOk || dialog.Cells().Texts() == grid.Texts()) return false;
  grid.SetTexts(dialog.Cells().Texts());
  return true;
}
