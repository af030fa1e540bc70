// The filter of a file dialog as a table: "Text files|*.txt|All files|*".
#pragma once
#include "dclstd/RowDialog.h"

class QTableWidget;

// Writes into the text only when the user changed it and confirms, and is true then.
bool EditFilter(QString& filter);

class FilterDialog : public RowDialog {
  Q_OBJECT
 public:
  explicit FilterDialog(QWidget* owner);
  void SetFilter(const QString& filter);
  QString Filter() const;
  bool Changed() const { return changed_; }

  QTableWidget* table = nullptr;
  QPushButton *remove = nullptr, *up = nullptr, *down = nullptr, *ok = nullptr, *cancel = nullptr;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QString TextAt(int row, int column) const;
  void SetRow(int row, const QString& name, const QString& pattern);
  void KeepEmptyRow();
  void removeClick();
  void upClick() { Move(-1); }
  void downClick() { Move(1); }
  void Move(int by);
  void EnableButtons();
  bool changed_ = false;
};
