// Lines of text in a dialog.
#pragma once
#include "dclstd/RowDialog.h"

class QPlainTextEdit;
class TStrings;

// Writes into the lines only when the user changed them and confirms, and is true then.
bool EditLines(TStrings& lines);

class LinesDialog : public RowDialog {
  Q_OBJECT
 public:
  explicit LinesDialog(QWidget* owner);
  void SetLines(const TStrings& lines);
  bool Changed() const;
  // Exactly the lines on the screen, an empty last one included.
  QStringList Lines() const;

  QLabel* count;
  QLineEdit* find;
  QPushButton *next, *load, *save, *ok, *cancel;
  QCheckBox* monospaced;
  QPlainTextEdit* text;

 protected:
  bool ReturnConfirms() const override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void nextClick();
  void loadClick();
  void saveClick();
  void ShowCount();
  void UseFont();
};
