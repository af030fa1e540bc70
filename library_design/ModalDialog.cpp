#include "library_design/ModalDialog.h"

#include <QScreen>
#include <QShowEvent>
#include <utility>

ModalDialog::ModalDialog(const QString& caption, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint) {
  setWindowTitle(caption);
  setModal(true);
}

int ModalDialog::ShowModal() {
  const int result = exec();
  if (error_) std::rethrow_exception(std::exchange(error_, nullptr));
  return result == QDialog::Accepted ? mrOk : mrCancel;
}

void ModalDialog::FormActivate() { activated = true; }

void ModalDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  if (const QScreen* s = screen()) move(s->availableGeometry().center() - rect().center());
  FormActivate();
}

void ModalDialog::done(int result) {
  if (isVisible()) {
    try {
      FormClose();
    } catch (...) {
      error_ = std::current_exception();
      result = QDialog::Rejected;
    }
  }
  QDialog::done(result);
}
