// Opens the dialog of a value: what most launchers are made of.
#pragma once
#include <functional>

#include "dclstd/RowDialog.h"

// The window that the user is in; the dialogs of the application belong to it.
QWidget* ApplicationOwner();

// Shows the value in a dialog of class D and takes the result only when the user confirms; true then.
// `prepare` sets the dialog up before it shows anything.
template <class D, class V>
bool EditValue(V& value, QWidget* owner = ApplicationOwner(), const std::function<void(D&)>& prepare = {}) {
  D dialog(owner);
  dialog.Value().Assign(&value);
  if (prepare) prepare(dialog);
  dialog.SetLabels();
  if (dialog.ShowModal() != mrOk || !dialog.Confirmed()) return false;
  value.Assign(&dialog.Value());
  return true;
}
