// A list box of several columns for a model of any length: whole rows are chosen, one at a time, by mouse or
// keys.
#pragma once
#include <QTableView>

class LinesTable : public QTableView {
  Q_OBJECT
 public:
  LinesTable(QAbstractItemModel* model, const char* name, QWidget* parent);
  // -1 for none.
  int CurrentRow() const;
  void Select(int row);

 protected:
  // Keys need a row to start from.
  void focusInEvent(QFocusEvent* event) override;
  // Home and End lead to the first and to the last line: its columns are no places of their own.
  void keyPressEvent(QKeyEvent* event) override;
};
