#include "package/dialogs/PairsDialog.h"

#include <QVBoxLayout>

#include "library_design/pVRXCommon.h"

void PairsDialog::Build(PairsGrid* grid, Named ok, Named cancel, QSize size) {
  grid_ = grid;
  grid->setToolTip(
      QStringLiteral("Ins: a new row, Ctrl+Del: removes the row, Ctrl+Up and Ctrl+Down: move it"));
  grid->setAccessibleName(windowTitle());
  Follows(grid);
  Button(AddRow, "AddRow", "&Add", &PairsDialog::addClick, "A new row below the current one (Ins)");
  Button(DeleteRow, "DeleteRow", "&Delete", &PairsDialog::deleteClick, "The current row (Ctrl+Del)");
  Button(MoveUp, "MoveUp", "Move &Up", &PairsDialog::upClick, "The current row (Ctrl+Up)");
  Button(MoveDown, "MoveDown", "Move Do&wn", &PairsDialog::downClick, "The current row (Ctrl+Down)");
  OkButton(ok.button, ok.name, ok.text);
  CancelButton(cancel.button, cancel.name, cancel.text);
  PairsModel& pairs = grid->Pairs();
  connect(grid->selectionModel(), &QItemSelectionModel::currentChanged, this, &PairsDialog::EnableButtons);
  for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
    connect(&pairs, signal, this, &PairsDialog::EnableButtons);
  connect(&pairs, &QAbstractItemModel::modelReset, this, &PairsDialog::EnableButtons);
  connect(&pairs, &QAbstractItemModel::dataChanged, this, [this] { Guarded([this] { GridChanged(); }); });
  VRXSetThemeMode(*this, 1);
  auto* left = new QVBoxLayout;
  left->addWidget(grid);
  FinishBeside(left, {AddRow, DeleteRow, MoveUp, MoveDown}, {ok.button, cancel.button}, size);
  EnableButtons();
}

void PairsDialog::EnableButtons() {
  const int row = grid_->CurrentRow(), last = grid_->Pairs().rowCount() - 1;
  DeleteRow->setEnabled(row >= 0);
  MoveUp->setEnabled(row > 0);
  MoveDown->setEnabled(row >= 0 && row < last);
}

// A field that is still open is taken, too.
void PairsDialog::accept() {
  grid_->setFocus();
  Guarded([this] {
    Take();
    RowDialog::accept();
  });
}
