#include "library/values/CalculatorEngine.h"

#include <algorithm>
#include <cmath>

namespace {
// Binary fractions are not decimal ones: what is beyond the digits is no part of the number.
double Rounded(double value) {
  return QString::number(value, 'g', TVRXCalculatorEngine::MaxDigits).toDouble();
}
}  // namespace

TVRXCalculatorEngine::TVRXCalculatorEngine(double value, double memory) : memory_(memory) { Show(value); }

QString TVRXCalculatorEngine::Format(double value, int digits) {
  if (!std::isfinite(value)) return QStringLiteral("Error");
  const QString text = QString::number(value, 'g', std::clamp(digits, 1, MaxDigits));
  return text == u"-0" ? QStringLiteral("0") : text;
}

double TVRXCalculatorEngine::Value() const { return typed_.isEmpty() ? value_ : typed_.toDouble(); }

QString TVRXCalculatorEngine::Display(int digits) const {
  if (error_) return QStringLiteral("Error");
  return typed_.isEmpty() ? Format(value_, digits) : typed_;
}

void TVRXCalculatorEngine::Show(double value) {
  typed_.clear();
  error_ = error_ || !std::isfinite(value);
  value_ = error_ ? 0 : Rounded(value);
}

bool TVRXCalculatorEngine::Press(QStringView key) {
  static constexpr QStringView keys[] = {u".",   u"+/-",  u"+",  u"-", u"*",  u"/",  u"=",  u"%", u"sqrt",
                                         u"1/x", u"back", u"CE", u"C", u"MC", u"MR", u"MS", u"M+"};
  const bool digit = key.size() == 1 && key[0] >= u'0' && key[0] <= u'9';
  if (!digit && std::find(std::begin(keys), std::end(keys), key) == std::end(keys)) return false;
  // What went wrong is all that there is to clear.
  if (key == u"C" || (error_ && key == u"CE")) {
    *this = TVRXCalculatorEngine(0, memory_);
    return true;
  }
  if (error_) return true;
  const double shown = Value();
  if (digit)
    Type(key[0]);
  else if (key == u".")
    Point();
  else if (key == u"back")
    TakeBack();
  else if (key == u"+/-")
    Negate();
  else if (key == u"=")
    Equal();
  else if (key == u"%")
    Percent();
  else if (key == u"MC")
    memory_ = 0;
  else if (key == u"MS")
    memory_ = shown;
  else if (key == u"M+")
    memory_ = Rounded(memory_ + shown);
  else if (key == u"CE")
    Show(0);
  else if (key == u"MR")
    Show(memory_);
  else if (key == u"sqrt")
    Show(std::sqrt(shown));
  else if (key == u"1/x")
    Show(1 / shown);
  else
    Operate(key[0].unicode());
  if (key == u"MR" || key == u"sqrt" || key == u"1/x") hasRight_ = true;
  // What is stored or shown from the memory is a whole number, not one that is typed on.
  if (key == u"MS" || key == u"M+") Show(shown);
  return true;
}

void TVRXCalculatorEngine::Type(QChar digit) {
  hasRight_ = true;
  if (typed_.isEmpty() || typed_ == u"0") {
    typed_ = digit;
  } else if (typed_ == u"-0") {
    typed_ = QStringLiteral("-") + digit;
  } else if (std::count_if(typed_.begin(), typed_.end(), [](QChar c) { return c.isDigit(); }) < MaxDigits) {
    typed_ += digit;
  }
}

void TVRXCalculatorEngine::Point() {
  hasRight_ = true;
  if (typed_.isEmpty()) typed_ = QStringLiteral("0");
  if (!typed_.contains(u'.')) typed_ += u'.';
}

void TVRXCalculatorEngine::TakeBack() {
  if (typed_.isEmpty()) return;  // a result stays
  typed_.chop(1);
  if (typed_.isEmpty() || typed_ == u"-") typed_ = QStringLiteral("0");
}

void TVRXCalculatorEngine::Negate() {
  if (typed_.isEmpty())
    Show(-value_);
  else if (typed_.startsWith(u'-'))
    typed_.remove(0, 1);
  else
    typed_.prepend(u'-');
  hasRight_ = true;
}

double TVRXCalculatorEngine::Result(double left, char16_t operation, double right) {
  switch (operation) {
    case u'+':
      return left + right;
    case u'-':
      return left - right;
    case u'*':
      return left * right;
    default:
      return left / right;
  }
}

void TVRXCalculatorEngine::Operate(char16_t operation) {
  if (pending_ && hasRight_)
    Show(Result(left_, pending_, Value()));
  else
    Show(Value());
  left_ = value_;
  pending_ = operation;
  hasRight_ = false;
  last_ = 0;
}

void TVRXCalculatorEngine::Equal() {
  const double shown = Value();
  if (pending_) {
    last_ = pending_;
    repeated_ = shown;
    pending_ = 0;
    Show(Result(left_, last_, shown));
  } else if (last_) {  // once more
    Show(Result(shown, last_, repeated_));
  } else {
    Show(shown);
  }
  hasRight_ = true;
}

// Of the number in front of a sum or a difference; else a hundredth.
void TVRXCalculatorEngine::Percent() {
  const bool ofLeft = pending_ == u'+' || pending_ == u'-';
  Show(Value() / 100 * (ofLeft ? left_ : 1));
  hasRight_ = true;
}
