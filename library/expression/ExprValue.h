// What expressions work with: numbers, texts and truths.
#pragma once
#include <QString>
#include <variant>

#include "rtl/Exceptions.h"

namespace expression {

using Value = std::variant<double, QString, bool>;

// A value cannot be what is asked of it. Whoever runs the expression adds the place.
class EValueError : public Exception {
 public:
  using Exception::Exception;
};

// An expression that cannot be read, or cannot be worked out.
class EExpressionError : public Exception {
 public:
  EExpressionError(int position, const QString& reason)
      : Exception(QStringLiteral("Column %1: %2.").arg(position + 1).arg(reason)), position_(position) {}
  // In characters, from 0.
  int Position() const { return position_; }

 private:
  int position_;
};

// What a text may become by repeating and joining.
constexpr qsizetype LongestText = 1'000'000;

// No number but 0, no text but the empty one and no truth but False counts as false.
bool IsTrue(const Value& value);
// As it is shown: 0.5, 12, the text itself, True.
QString ToText(const Value& value);
// For messages: "the text "x"", "the number 5".
QString Described(const Value& value);
// A truth counts as 1 or 0. Throws EValueError for a text.
double ToNumber(const Value& value);
// A finite number as a value; EValueError for what is none.
Value Checked(double number);
Value Checked(QString text);
// What a person wrote beside a variable's name: a number, True or False, a text in quotes; all else is a text
// as it stands.
Value FromLiteral(const QString& text);

}  // namespace expression
