// What a calculator makes of its keys: each operation is done when the next one is pressed, from left to
// right.
#pragma once
#include <QString>

class TVRXCalculatorEngine {
 public:
  // Digits that are shown and reckoned with.
  static constexpr int MaxDigits = 15;

  explicit TVRXCalculatorEngine(double value = 0, double memory = 0);
  // "0" to "9", ".", "+/-", "+", "-", "*", "/", "=", "%", "sqrt", "1/x", "back" (takes the last digit back),
  // "CE" (the number), "C" (all but the memory), "MC", "MR", "MS", "M+". False for what is no key.
  bool Press(QStringView key);
  // After an error (a division by zero, a number that is too large) only "C" counts.
  bool HasError() const { return error_; }
  // An operation has its second number and waits for "=".
  bool IsPending() const { return pending_ != 0 && hasRight_; }
  double Value() const;
  double Memory() const { return memory_; }
  void SetMemory(double memory) { memory_ = memory; }
  // What the display shows: the number as far as it is typed, with no more than so many digits.
  QString Display(int digits = MaxDigits) const;
  static QString Format(double value, int digits = MaxDigits);

 private:
  void Type(QChar digit);
  void Point();
  void TakeBack();
  void Negate();
  void Operate(char16_t operation);
  void Equal();
  void Percent();
  void Show(double value);
  double Result(double left, char16_t operation, double right);

  QString typed_;  // empty: value_ is shown
  double value_ = 0, left_ = 0, memory_ = 0, repeated_ = 0;
  char16_t pending_ = 0, last_ = 0;
  bool hasRight_ = true;  // a number was given since the operation
  bool error_ = false;
};
