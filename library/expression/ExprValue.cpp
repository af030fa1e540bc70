#include "library/expression/ExprValue.h"

#include <cmath>

namespace expression {

bool IsTrue(const Value& value) {
  if (const auto* number = std::get_if<double>(&value)) return *number != 0;
  if (const auto* text = std::get_if<QString>(&value)) return !text->isEmpty();
  return std::get<bool>(value);
}

QString ToText(const Value& value) {
  if (const auto* text = std::get_if<QString>(&value)) return *text;
  if (const auto* truth = std::get_if<bool>(&value))
    return *truth ? QStringLiteral("True") : QStringLiteral("False");
  const double number = std::get<double>(value);
  if (number == 0) return QStringLiteral("0");  // whatever its sign
  return std::abs(number) < 1e15 && number == std::trunc(number) ? QString::number(number, 'f', 0)
                                                                 : QString::number(number, 'g', 15);
}

QString Described(const Value& value) {
  constexpr int shown = 40;
  if (const auto* text = std::get_if<QString>(&value))
    return QStringLiteral("the text \"%1\"").arg(text->size() > shown ? text->left(shown) + u'…' : *text);
  return std::holds_alternative<bool>(value) ? ToText(value)
                                             : QStringLiteral("the number %1").arg(ToText(value));
}

double ToNumber(const Value& value) {
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? 1 : 0;
  throw EValueError(QStringLiteral("expected a number, not %1").arg(Described(value)));
}

Value Checked(double number) {
  if (std::isnan(number)) throw EValueError(QStringLiteral("there is no such number"));
  if (std::isinf(number)) throw EValueError(QStringLiteral("the result is too large"));
  return number;
}

Value Checked(QString text) {
  if (text.size() > LongestText)
    throw EValueError(QStringLiteral("the text is longer than %1 characters").arg(LongestText));
  return text;
}

Value FromLiteral(const QString& written) {
  const QString text = written.trimmed();
  if (text.size() >= 2 && (text.front() == u'"' || text.front() == u'\'') && text.back() == text.front())
    return text.mid(1, text.size() - 2);
  for (const bool truth : {true, false})
    if (text.compare(ToText(truth), Qt::CaseInsensitive) == 0) return truth;
  bool isNumber = false;
  const double number = text.toDouble(&isNumber);
  if (isNumber && std::isfinite(number)) return number;
  return written;
}

}  // namespace expression
