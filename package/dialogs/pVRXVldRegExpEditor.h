// Edits a regular expression, with a library of named ones in a file beside it and a text to try it on.
#pragma once
#include "dclstd/RowDialog.h"
#include "package/dialogs/RegExprLibrary.h"

class QPlainTextEdit;

class TVRXRegExprForm : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXRegExprForm(QWidget* owner);
  // Shows the form; the new expression when the user confirms, else the one that was given. The library is
  // that of the file that was used last, and is written back.
  QString EditExpression(const QString& expression);
  // Nothing happens without a name; what is not there is not read. Errors are thrown.
  void LoadRegExprFile(const QString& file);
  // The file that was there is kept beside it, as NAME.bak.
  void SaveRegExprFile(const QString& file);

  void btAddExprClick();
  void btUpdateExprClick();
  void btRemoveClick();
  void btLoadClick();
  void btSaveClick();
  void sgExpressionsClick();
  void sgExpressionsDblClick();

  PairsGrid* sgExpressions;
  QLineEdit *edExprName, *edRegExpr;
  QPlainTextEdit* edSample;
  QLabel* state;
  QPushButton *btAddExpr, *btUpdateExpr, *btRemove, *btLoad, *btSave, *btOK, *btCancel;

 private:
  void Try();
  void ShowRows();
  void EnableButtons();
  TTextPair Typed() const;
  RegExprLibrary library_;
  bool changed_ = false;
  bool removing_ = false;
};
