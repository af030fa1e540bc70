// How a dialog of a component is shown: a content with its title, a line and a picture above it, and buttons.
#pragma once
#include <QImage>
#include <QString>
#include <functional>

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

struct TVRXDialogContent {
  QWidget* widget = nullptr;   // becomes the dialog's
  std::function<void()> take;  // keeps what was entered
  bool answers = true;         // there is something to confirm: OK and Cancel
  QString caption{};           // unless the component has one
  // Why what was entered will not do: the person is told, and the dialog stays. Empty when it will.
  std::function<QString()> refuse{};
  // Where the dialog shows by itself why it will not do, and leads the person to it: whether it does now.
  // Nothing is told then.
  std::function<bool()> shows{};
};
struct TVRXDialogHead {
  QString name, caption, prompt{};
  QImage picture{};
};

// Whether it was confirmed. What was entered is taken then, if it is to be kept.
bool VRXShowContent(const TVRXDialogHead& head, const TVRXDialogContent& content, bool keep = true);
// As if OK were pressed, for what is picked by a double-click inside of the dialog.
void VRXConfirmDialog(const QWidget& inside);
