// The dialogs of a package as a row of its registration table, so that they can be described and tested:
//
//   Dialogs<TDialDlg, TNeedleDlg>(),
#pragma once
#include <QDialog>
#include <QLayout>

#include "designintf/DesignRegistry.h"
#include "designintf/RegistrationTable.h"

namespace registration {
// A dialog on a default value, laid out but not shown.
template <class D>
std::unique_ptr<QDialog> OpenUnseen() {
  auto dialog = std::make_unique<D>(nullptr);
  dialog->SetLabels();
  dialog->ensurePolished();
  dialog->layout()->activate();
  return dialog;
}
template <class... D>
Row Dialogs() {
  return Row([] {
    (DesignRegistry::Current().Add(TDialogRegistration{D::staticMetaObject.className(), &OpenUnseen<D>}),
     ...);
  });
}
}  // namespace registration
