// A dialog that is a grid of pairs which may be edited, with buttons that add, remove and move rows.
#pragma once
#include "dclstd/RowDialog.h"
#include "package/dialogs/PairsGrid.h"

class PairsDialog : public RowDialog {
  Q_OBJECT
 public:
  QPushButton *AddRow, *DeleteRow, *MoveUp, *MoveDown;
  // What is shown is taken before the dialog closes; when that fails it stays open.
  void accept() override;

 protected:
  PairsDialog(const QString& caption, QWidget* owner) : RowDialog(caption, owner) {}
  struct Named {
    QPushButton*& button;
    const char *name, *text;
  };
  // Puts everything together.
  void Build(PairsGrid* grid, Named ok, Named cancel, QSize size);
  virtual void Take() = 0;
  virtual void GridChanged() {}

 private:
  void addClick() { grid_->AddRow(); }
  void deleteClick() { grid_->RemoveRow(); }
  void upClick() { grid_->MoveRow(-1); }
  void downClick() { grid_->MoveRow(1); }
  void EnableButtons();
  PairsGrid* grid_ = nullptr;
};
