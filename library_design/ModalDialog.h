// What every modal dialog of the library does: a result, a first activation, and handlers that may throw. The
// code that shows a dialog owns it.
#pragma once
#include <QDialog>
#include <exception>

constexpr int mrOk = 1;
constexpr int mrCancel = 2;

class ModalDialog : public QDialog {
  Q_OBJECT
 public:
  ModalDialog(const QString& caption, QWidget* parent);

  // Shows the dialog and waits. 1 when it was confirmed; closing it in any other way is 2. An exception
  // thrown by one of the dialog's handlers closes it and comes out here.
  int ShowModal();

  bool activated = false;  // from the first activation on
  virtual void FormActivate();
  virtual void FormClose() {}

 protected:
  // Runs a handler; what it throws is kept for ShowModal.
  template <class F>
  void Guarded(F&& handler) {
    try {
      handler();
    } catch (...) {
      error_ = std::current_exception();
      reject();
    }
  }
  void showEvent(QShowEvent* event) override;
  void done(int result) override;

 private:
  std::exception_ptr error_;
};
