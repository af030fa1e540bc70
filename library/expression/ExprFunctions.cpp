#include "library/expression/ExprFunctions.h"

#include <QHash>
#include <cmath>
#include <numbers>

namespace expression {

namespace {
EValueError Refused(int i, const QString& wanted, const Value& value) {
  return EValueError(QStringLiteral("value %1 must be %2, not %3").arg(i + 1).arg(wanted, Described(value)));
}
}  // namespace

double Arguments::Number(int i) const {
  if (std::holds_alternative<QString>(At(i))) throw Refused(i, QStringLiteral("a number"), At(i));
  return ToNumber(At(i));
}

int Arguments::Whole(int i, int least, int most) const {
  const double number = Number(i);
  if (number != std::trunc(number) || number < least || number > most)
    throw Refused(i, QStringLiteral("a whole number from %1 to %2").arg(least).arg(most), At(i));
  return static_cast<int>(number);
}

const QString& Arguments::Text(int i) const {
  const auto* text = std::get_if<QString>(&At(i));
  if (!text) throw Refused(i, QStringLiteral("a text"), At(i));
  return *text;
}

namespace {
bool IsNumeric(const Value& v) { return !std::holds_alternative<QString>(v); }

const Function Choices[] = {
    {"bool", 1, 1, [](const Arguments& v) -> Value { return IsTrue(v.At(0)); }},
    {"choose", 2, Any, [](const Arguments& v) -> Value { return v.At(v.Whole(0, 1, v.Count() - 1)); }},
    {"coalesce", 1, Any,  // the first that is no empty text
     [](const Arguments& v) -> Value {
       for (int i = 0; i + 1 < v.Count(); ++i)
         if (IsNumeric(v.At(i)) || !v.Text(i).isEmpty()) return v.At(i);
       return v.At(v.Count() - 1);
     }},
    {"isbool", 1, 1, [](const Arguments& v) -> Value { return std::holds_alternative<bool>(v.At(0)); }},
    {"isnumber", 1, 1, [](const Arguments& v) -> Value { return std::holds_alternative<double>(v.At(0)); }},
    {"istext", 1, 1, [](const Arguments& v) -> Value { return !IsNumeric(v.At(0)); }},
    {"xor", 2, 2, [](const Arguments& v) -> Value { return IsTrue(v.At(0)) != IsTrue(v.At(1)); }},
};
}  // namespace

std::span<const Function> ChoiceFunctions() { return Choices; }

const Function* FindFunction(const QString& name) {
  static const auto all = [] {
    QHash<QString, const Function*> table;
    for (const auto group : {MathFunctions(), TextFunctions(), DateFunctions(), ChoiceFunctions()})
      for (const Function& f : group) table.insert(QString::fromLatin1(f.name), &f);
    return table;
  }();
  return all.value(name);
}

const Value* FindConstant(const QString& name) {
  static const QHash<QString, Value> all{{QStringLiteral("true"), true},
                                         {QStringLiteral("false"), false},
                                         {QStringLiteral("pi"), std::numbers::pi},
                                         {QStringLiteral("e"), std::numbers::e}};
  const auto found = all.constFind(name);
  return found == all.constEnd() ? nullptr : &*found;
}

QString Wanted(const Function& f) {
  const auto values = [](int n) {
    return n == 1 ? QStringLiteral("1 value") : QStringLiteral("%1 values").arg(n);
  };
  if (f.most == Any) return QStringLiteral("at least %1").arg(values(f.least));
  return f.least == f.most ? values(f.least) : QStringLiteral("%1 to %2").arg(f.least).arg(values(f.most));
}

}  // namespace expression
