// The texts of a string grid, edited in a table of its size.
#pragma once
#include "dclstd/RowDialog.h"

class CellsModel;
class QTableView;
class TStringGrid;

// Writes into the grid only when the user changed a text and confirms, and is true then.
bool EditCells(TStringGrid& grid);

class CellsDialog : public RowDialog {
  Q_OBJECT
 public:
  explicit CellsDialog(QWidget* owner);
  // Throws EComponentError when what the grid keeps is no list of texts.
  void SetCells(const TStringGrid& grid);
  const CellsModel& Cells() const { return *cells_; }

  QTableView* table = nullptr;
  QLabel* facts = nullptr;
  QPushButton *load = nullptr, *save = nullptr, *copy = nullptr, *paste = nullptr, *clear = nullptr,
              *ok = nullptr, *cancel = nullptr;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void loadClick();
  void saveClick();
  void copyClick();
  void pasteClick();
  void clearClick();
  void Put(const QModelIndex& from, const QList<QStringList>& rows);
  void ShowFacts(int left);
  CellsModel* cells_;
};
