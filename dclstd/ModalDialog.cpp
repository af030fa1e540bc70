#include "dclstd/ModalDialog.h"

#include <QScopedValueRollback>
#include <QScreen>
#include <QShowEvent>

#include "dclstd/DialogInput.h"
#include "rtl/Exceptions.h"
#include "vcl/Prompts.h"

ModalDialog::ModalDialog(const QString& caption, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint) {
  setWindowTitle(caption);
  setModal(true);
}

int ModalDialog::ShowModal() { return exec() == QDialog::Accepted ? mrOk : mrCancel; }

void ModalDialog::SetLabels() {
  if (loading_) return;
  const QScopedValueRollback loading(loading_, true);
  LoadControls();
}

void ModalDialog::FormActivate() { activated = true; }

void ModalDialog::Tell(const std::exception& error) {
  Prompts().Warn(this, windowTitle(), ExceptionMessage(error));
}

void ModalDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  if (const QScreen* s = screen()) move(s->availableGeometry().center() - rect().center());
  UseDialogInput(*this);
  FormActivate();
}

// What cannot be kept for the next time is told, but is no reason to lose what was confirmed.
void ModalDialog::done(int result) {
  if (isVisible()) Guarded([this] { FormClose(); });
  QDialog::done(result);
}
