#include "package/dialogs/pVRXValueListDlg.h"

#include "dclstd/EditValue.h"
#include "library/values/ValueListControl.h"

TVRXValueListDlg::TVRXValueListDlg(QWidget* owner) : PairsDialog(QStringLiteral("Value List Editor"), owner) {
  setObjectName(QStringLiteral("VRXValueListDlg"));
  ValueListEditor = new PairsGrid(PairsGrid::Use::Edit, "ValueListEditor", this);
  ValueListEditor->Pairs().SetTitles(QStringLiteral("Item"), QStringLiteral("Value"));
  Build(ValueListEditor, {OkBtn, "OkButton", "Ok"}, {CancelBtn, "CancelButton", "Cancel"}, {460, 320});
}

bool TVRXValueListDlg::Execute(IVRXValueListControl& control) {
  TVRXValueListDlg dialog(ApplicationOwner());
  dialog.control_ = &control;
  dialog.UpdateView();
  return dialog.ShowModal() == mrOk;
}

void TVRXValueListDlg::UpdateView() {
  const QStringList& names = control_->ItemNames().Lines();
  const IVRXValueHolder& values = control_->ItemValues();
  QList<TTextPair> rows;
  for (int i = 0; i < names.size(); ++i) rows.append({names[i], values.Value(i)});
  shown_ = static_cast<int>(rows.size());
  ValueListEditor->Pairs().SetRows(rows);
  ValueListEditor->Select(rows.isEmpty() ? -1 : 0);
}

void TVRXValueListDlg::UpdateData() {
  TStrings& names = control_->ItemNames();
  IVRXValueHolder& values = control_->ItemValues();
  const TUpdateLock lock(names);
  names.Clear();
  int index = 0;
  for (const TTextPair& row : ValueListEditor->Rows()) {
    names.Add(row.First);
    // A row that has none and had none writes none, which would make room for it.
    if (index >= shown_ || !row.Second.isEmpty() || !values.Value(index).isEmpty())
      values.SetValue(index, row.Second);
    ++index;
  }
  // Those of rows that were removed. What no row ever showed stays.
  if (index < shown_) values.Remove(index, shown_ - index);
}
