#include "library/components/ExpressionEval.h"

const TClass& TVRXExpressionEval::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXExpressionEval>("TVRXExpressionEval", TComponent::StaticClass())
          .Published("Error", &TVRXExpressionEval::Error, nullptr)
          .NeverStored()
          .Doc(QStringLiteral("Why the expression has no value, and at which column."))
          .Published(Expression)
          .Doc(QStringLiteral("What is to be worked out: 2 * width if wide else width."))
          .Published("Value", &TVRXExpressionEval::Value, nullptr)
          .NeverStored()
          .Doc(QStringLiteral("What the expression makes of the variables."))
          .Published(VariablesPart)
          .Doc(QStringLiteral(
              "Lines of name=value. Numbers, True and False are what they look like, all else is "
              "text; quotes make a text of anything."))
          .Event("OnGetVariable", "TVRXGetVariableEvent")
          .ClassDoc(
              QStringLiteral("Works an expression out: numbers, texts, dates, conditions and variables."),
              "pen line 1.5 brush fill box 3 4.5 18 15 2 pen line 1.8 path 6 9.5 10 9.5 path 8 7.5 8 11.5 "
              "path 6 15.5 10 15.5 pen accent 2 path 13.5 10 18 10 path 13.5 14 18 14"));
  return cls;
}

// Of several with one name the first counts.
expression::Variables TVRXExpressionEval::Variables() const {
  expression::Variables variables;
  if (!IsKept(&VariablesPart)) return variables;
  for (const QString& line : Get(VariablesPart)->Lines()) {
    const qsizetype sign = line.indexOf(u'=');
    const QString name = line.left(sign).trimmed().toLower();
    if (sign > 0 && !name.isEmpty() && !variables.contains(name))
      variables[name] = expression::FromLiteral(line.mid(sign + 1));
  }
  return variables;
}

expression::Value TVRXExpressionEval::Evaluate() const {
  return expression::Evaluate(Get(Expression), Variables());
}

std::pair<QString, QString> TVRXExpressionEval::Worked() const {
  if (Get(Expression).trimmed().isEmpty()) return {};
  try {
    return {expression::ToText(Evaluate()), {}};
  } catch (const expression::EExpressionError& error) {
    return {{}, error.Message()};
  }
}
