// What the library's dialogs have in common: a component keeps what its dialog shows, and what was entered.
#pragma once
#include <functional>

#include "vcl/ImageList.h"

class QDialog;
class QWidget;

// Shows a dialog and waits for its result; 1 is OK. Tests answer in the person's place.
int VRXRunDialog(QDialog& dialog);
class TVRXDialogAnswers {
 public:
  using Answer = std::function<int(QDialog& dialog)>;
  // While it lives; inside of each other the inner one counts.
  explicit TVRXDialogAnswers(Answer answer);
  ~TVRXDialogAnswers();
  TVRXDialogAnswers(const TVRXDialogAnswers&) = delete;
  TVRXDialogAnswers& operator=(const TVRXDialogAnswers&) = delete;

 private:
  Answer before_;
};

class TVRXBaseDialog : public TComponent {
  VRX_CLASS(TVRXBaseDialog)
 public:
  using TComponent::TComponent;
  static constexpr TKept<QString> Caption{"Caption"};
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<QString> Prompt{"Prompt"};

  // Whether it was confirmed; what was entered is in the component then, and nothing has changed otherwise.
  bool Execute() { return Run(true); }
  // The same, and nothing is kept.
  void Preview() { Run(false); }

 protected:
  struct Content {
    QWidget* widget = nullptr;   // becomes the dialog's
    std::function<void()> take;  // keeps what was entered
    bool answers = true;         // there is something to confirm: OK and Cancel
    QString caption{};           // unless the component has one
  };
  virtual Content MakeContent() { return {}; }

 private:
  bool Run(bool keep);
};
