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

namespace {
std::optional<qlonglong> NumberIn(const QString& text) {
  bool is = false;
  const qlonglong number = text.toLongLong(&is);
  return is ? std::optional(number) : std::nullopt;
}
}  // namespace

// A spin box of its own refuses the digit with which a number would get too large, and keeps those before it.
QValidator::State SpinEdit::validate(QString& text, int& place) const {
  const QValidator::State state = QSpinBox::validate(text, place);
  const std::optional<qlonglong> number = NumberIn(text);
  const bool outside = number && (*number >= 0 || minimum() < 0);
  return state == QValidator::Invalid && outside ? QValidator::Intermediate : state;
}

void SpinEdit::fixup(QString& text) const {
  if (const std::optional<qlonglong> number = NumberIn(text))
    text = QString::number(std::clamp<qlonglong>(*number, minimum(), maximum()));
  else
    QSpinBox::fixup(text);
}

// From a value outside of the range the first step leads to the limit.
void SpinEdit::stepBy(int steps) {
  EndTyping();
  if (!outside_) return QSpinBox::stepBy(steps);
  Show(value());
  emit valueChanged(value());
}

void SpinEdit::EndTyping() {
  if (!typing_) return;
  const bool limited = replaced_ && NumberIn(text()) && !hasAcceptableInput();
  interpretText();
  typing_ = false;
  // The limit stood in for the value before, too: no change of the spin box's own.
  if (limited && std::exchange(replaced_, std::nullopt)) emit valueChanged(value());
  if (const std::optional<int> shown = pending_ ? pending_ : replaced_) Show(*shown);
  if (hasFocus()) selectAll();
}

void SpinEdit::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QSpinBox::keyPressEvent(event);
  // The spin box's own Return reports a value that nobody changed.
  EndTyping();
  selectAll();
  event->ignore();  // for the default button
}

void SpinEdit::focusInEvent(QFocusEvent* event) {
  QSpinBox::focusInEvent(event);
  selectAll();
}

void SpinEdit::focusOutEvent(QFocusEvent* event) {
  EndTyping();
  QSpinBox::focusOutEvent(event);
}
