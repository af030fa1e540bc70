#include "dclstd/SpinEdit.h"

#include <QKeyEvent>
#include <QLineEdit>

SpinEdit::SpinEdit(int maximum, int maxLength, QWidget* parent) : QSpinBox(parent) {
  SetLimits(0, maximum, maxLength);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
    typing_ = true;
    if (outside_) replaced_ = std::exchange(outside_, std::nullopt);
  });
  connect(lineEdit(), &QLineEdit::textChanged, this, &SpinEdit::Edited);
  connect(this, &QSpinBox::valueChanged, this, [this] { replaced_.reset(); });
}

void SpinEdit::SetLimits(int minimum, int maximum, int maxLength) {
  maxLength_ = maxLength;
  setRange(minimum, maximum);
  FitLength();
}

// The limit that stood in for a value outside of the range may be typed: no change of the spin box's own.
void SpinEdit::Edited() {
  if (!replaced_ || !hasAcceptableInput()) return;
  replaced_.reset();
  emit valueChanged(value());
}

void SpinEdit::Show(int value) {
  if (typing_ && hasFocus()) {
    pending_ = value;
    return;
  }
  typing_ = false;
  replaced_.reset();
  pending_.reset();
  outside_ = value < minimum() || value > maximum() ? std::optional(value) : std::nullopt;
  FitLength();
  const QSignalBlocker quiet(this);
  setValue(value);
}

void SpinEdit::FitLength() {
  lineEdit()->setMaxLength(
      std::max<int>(maxLength_, outside_ ? static_cast<int>(textFromValue(value()).size()) : 0));
}

QString SpinEdit::textFromValue(int value) const {
  return outside_ && value == this->value() ? QString::number(*outside_) : QSpinBox::textFromValue(value);
}

// From a value outside of the range the first step leads to the limit.
void SpinEdit::stepBy(int steps) {
  if (typing_) interpretText();
  EndTyping();
  if (!outside_) return QSpinBox::stepBy(steps);
  Show(value());
  emit valueChanged(value());
}

void SpinEdit::EndTyping() {
  if (!std::exchange(typing_, false)) return;
  if (const std::optional<int> shown = pending_ ? pending_ : replaced_) Show(*shown);
  if (hasFocus()) selectAll();
}

void SpinEdit::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QSpinBox::keyPressEvent(event);
  // The spin box's own Return reports a value that nobody changed.
  if (typing_) interpretText();
  EndTyping();
  selectAll();
  event->ignore();  // for the default button
}

void SpinEdit::focusInEvent(QFocusEvent* event) {
  QSpinBox::focusInEvent(event);
  selectAll();
}

void SpinEdit::focusOutEvent(QFocusEvent* event) {
  QSpinBox::focusOutEvent(event);
  EndTyping();
}
