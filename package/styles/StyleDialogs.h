// Small dialogs of the style editor: a name, and components to choose from.
#pragma once
#include "dclstd/RowDialog.h"

class QListWidget;

class StyleInputDialog : public RowDialog {
  Q_OBJECT
 public:
  static constexpr const char* StylePrompt = "Please enter style name:";
  static constexpr const char* ClassPrompt = "Please enter component class name:";
  // Stays open, with what was typed, while `take` is false for it.
  using TakeFunction = std::function<bool(const QString& text)>;
  explicit StyleInputDialog(QWidget* owner, const char* prompt = StylePrompt, TakeFunction take = {});
  QLineEdit* input;
  QPushButton *OkBtn, *CancelBtn;

 protected:
  void done(int result) override;

 private:
  TakeFunction take_;
};

class StyleComponentsDialog : public RowDialog {
  Q_OBJECT
 public:
  StyleComponentsDialog(QWidget* owner, const QStringList& names);
  // The places of what is checked.
  std::vector<int> Checked() const;
  QListWidget* list;
  QPushButton *OkBtn, *CancelBtn;
};
