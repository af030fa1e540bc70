// A number with up and down buttons.
#pragma once
#include <QSpinBox>
#include <optional>

class SpinEdit : public QSpinBox {
  Q_OBJECT
 public:
  // From 0 to the maximum, in at most `maxLength` characters; the whole text is selected when the focus
  // comes.
  SpinEdit(int maximum, int maxLength, QWidget* parent = nullptr);
  explicit SpinEdit(QWidget* parent) : SpinEdit(99, 2, parent) {}
  void SetLimits(int minimum, int maximum, int maxLength);

  // Shows a value that comes from elsewhere. One outside of the range is shown as it is, and stays until
  // somebody changes it. A text that is being typed is left alone until that is done.
  void Show(int value);
  // What is shown.
  int Shown() const { return outside_.value_or(value()); }

  // A text that is being typed is taken, and what waits to be shown is. A number outside of the range can be
  // typed and becomes the limit then.
  void EndTyping();
  void stepBy(int steps) override;

 protected:
  QString textFromValue(int value) const override;
  QValidator::State validate(QString& text, int& place) const override;
  void fixup(QString& text) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Edited();
  void FitLength();
  int maxLength_ = 0;
  bool typing_ = false;
  std::optional<int> outside_;   // shown instead of the value
  std::optional<int> replaced_;  // what the text that is being typed may take the place of
  std::optional<int> pending_;   // to be shown when the typing is done
};
