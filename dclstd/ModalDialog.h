// What every modal dialog does: a result, a first activation, controls that are loaded from a value, and
// handlers that may throw. The code that shows a dialog owns it.
#pragma once
#include <QDialog>

constexpr int mrOk = 1;
constexpr int mrCancel = 2;

class ModalDialog : public QDialog {
  Q_OBJECT
 public:
  ModalDialog(const QString& caption, QWidget* parent);

  // Shows the dialog and waits. 1 when it was confirmed; closing it in any other way is 2.
  int ShowModal();
  // Shows the edited value in the controls. What they report meanwhile is not a change by anybody, so that a
  // value which a control cannot show stays as it is until somebody changes that control.
  void SetLabels();

  bool activated = false;  // from the first activation on
  virtual void FormActivate();
  virtual void FormClose() {}

 protected:
  virtual void LoadControls() {}
  // Runs a handler; nothing happens while controls are loaded. What it throws is told, and the dialog stays
  // open with all that was set.
  template <class F>
  void Guarded(F&& handler) {
    if (loading_) return;
    try {
      handler();
    } catch (const std::exception& error) {
      Tell(error);
    }
  }
  // From now on no handler runs and nothing is loaded: the dialog is being destroyed.
  void Retire() { loading_ = true; }
  void showEvent(QShowEvent* event) override;
  void done(int result) override;

 private:
  void Tell(const std::exception& error);
  bool loading_ = false;
};
