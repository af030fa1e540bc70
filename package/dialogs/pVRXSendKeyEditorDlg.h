// Tries keystroke macros out: composes one, picks the window that it is for, and sends it there. What is
// edited stays as it is.
#pragma once
#include "dclstd/RowDialog.h"
#include "library/components/SendKeys.h"

class LinesTable;
class QListWidget;
class QPlainTextEdit;
class QTabWidget;

class TVRXSendKeyEditorDlg : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXSendKeyEditorDlg(QWidget* owner);
  ~TVRXSendKeyEditorDlg() override;
  // What there is to begin with.
  void Compose(const QString& macro, const QString& caption);

  // The first activation starts the last program, where that is wanted, and lists the windows.
  void FormActivate() override;
  void FormClose() override;
  void lb2DblClick();
  void lbDblClick();
  void UpdateClick();
  void Button1Click();
  void Button3Click();
  void mChange();

  std::unique_ptr<TVRXSendKeys> sk;
  QPlainTextEdit* m;
  QLineEdit* wnd;
  QCheckBox* last;
  QTabWidget* pages;
  LinesTable* lb2;
  QListWidget* lb;
  QLabel* state;  // what goes on, or what is wrong with the macro; quiet
  QPushButton *Update, *Button1, *Button3, *Close;

 protected:
  bool ReturnConfirms() const override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* BuildKeysPage();
  QWidget* BuildWindowsPage();
  void StartProgram(const QString& file);
  void Say(const QString& text) { state->setText(text); }
  QString program_;  // that was asked for last
};
