// Works the steps of an expression out.
#include <cmath>

#include "library/expression/ExprProgram.h"
#include "library/expression/ExprSearch.h"

namespace expression {

namespace {
bool IsText(const Value& v) { return std::holds_alternative<QString>(v); }

// Numbers with numbers, texts with texts by their characters.
int Compared(const Value& a, const Value& b) {
  if (IsText(a) != IsText(b))
    throw EValueError(QStringLiteral("%1 and %2 cannot be compared").arg(Described(a), Described(b)));
  if (IsText(a)) return std::get<QString>(a).compare(std::get<QString>(b));
  const double x = ToNumber(a), y = ToNumber(b);
  return x < y ? -1 : x > y;
}
bool Same(const Value& a, const Value& b) { return IsText(a) == IsText(b) && Compared(a, b) == 0; }

bool Holds(Step comparison, const Value& a, const Value& b) {
  switch (comparison) {
    case Step::Less:
      return Compared(a, b) < 0;
    case Step::AtMost:
      return Compared(a, b) <= 0;
    case Step::Greater:
      return Compared(a, b) > 0;
    case Step::AtLeast:
      return Compared(a, b) >= 0;
    case Step::Equal:
      return Same(a, b);
    case Step::Unequal:
      return !Same(a, b);
    default:
      if (!IsText(a) || !IsText(b))
        throw EValueError(QStringLiteral("expected a text on both sides of \"in\", not %1")
                              .arg(Described(IsText(a) ? b : a)));
      return (FirstPlace(std::get<QString>(b), std::get<QString>(a)) >= 0) == (comparison == Step::In);
  }
}

// The quotient rounded down, and a remainder with the sign of the divisor.
std::pair<double, double> Divided(double a, double b) {
  if (b == 0) throw EValueError(QStringLiteral("division by zero"));
  double rest = std::fmod(a, b), quotient = (a - rest) / b;
  if (rest != 0 && (rest < 0) != (b < 0)) rest += b, quotient -= 1;
  double down = std::floor(quotient);
  if (quotient - down > 0.5) down += 1;  // the division was off by a hair
  return {down, rest};
}

double Power(double a, double b) {
  if (a == 0 && b < 0) throw EValueError(QStringLiteral("division by zero"));
  if (a < 0 && b != std::trunc(b)) throw EValueError(QStringLiteral("a negative number has no such power"));
  return std::pow(a, b);
}

Value Joined(Value& a, const Value& b) {
  if (!IsText(b)) throw EValueError(QStringLiteral("a text and %1 cannot be added").arg(Described(b)));
  QString text = std::move(std::get<QString>(a));
  if (text.size() + std::get<QString>(b).size() > LongestText)
    text.resize(LongestText + 1);
  else
    text += std::get<QString>(b);
  return Checked(std::move(text));
}

Value Repeated(const QString& text, const Value& times) {
  const double n = ToNumber(times);
  if (n != std::trunc(n)) throw EValueError(QStringLiteral("a text is repeated a whole number of times"));
  if (n <= 0 || text.isEmpty()) return QString();
  if (n * static_cast<double>(text.size()) > static_cast<double>(LongestText))
    throw EValueError(QStringLiteral("the text is longer than %1 characters").arg(LongestText));
  return text.repeated(static_cast<qsizetype>(n));
}

Value Computed(Step step, Value& a, const Value& b) {
  if (step == Step::Add && IsText(a)) return Joined(a, b);
  if (step == Step::Times && IsText(a)) return Repeated(std::get<QString>(a), b);
  if (step == Step::Times && IsText(b)) return Repeated(std::get<QString>(b), a);
  const double x = ToNumber(a), y = ToNumber(b);
  switch (step) {
    case Step::Add:
      return Checked(x + y);
    case Step::Subtract:
      return Checked(x - y);
    case Step::Times:
      return Checked(x * y);
    case Step::Divide:
      if (y == 0) throw EValueError(QStringLiteral("division by zero"));
      return Checked(x / y);
    case Step::DivideDown:
      return Checked(Divided(x, y).first);
    case Step::Modulo:
      return Checked(Divided(x, y).second);
    default:
      return Checked(Power(x, y));
  }
}

// Texts of a million letters may be worked on, but not a million times.
class Budget {
 public:
  void Take(const Value& value) {
    if (const auto* text = std::get_if<QString>(&value)) left_ -= text->size();
    if (left_ < 0) throw EValueError(QStringLiteral("this takes too much work"));
  }

 private:
  qsizetype left_ = 20 * LongestText;
};

class Machine {
 public:
  Machine(const Program& program, const Variables& variables) : program_(program), variables_(variables) {}

  Value Run() {
    for (std::size_t i = 0; i < program_.steps.size();) {
      const Instruction& step = program_.steps[i];
      try {
        i = Do(step) ? static_cast<std::size_t>(step.a) : i + 1;
      } catch (const EValueError& error) {
        throw EExpressionError(step.at, error.Message());
      }
    }
    return Pop();
  }

 private:
  Value Pop() {
    Value value = std::move(stack_.back());
    stack_.pop_back();
    return value;
  }

  // Whether to jump.
  bool Do(const Instruction& s) {
    switch (s.step) {
      case Step::Nothing:
        return false;
      case Step::Push:
        stack_.push_back(program_.constants[static_cast<std::size_t>(s.a)]);
        return false;
      case Step::Variable:
        stack_.push_back(ValueOf(program_.names[static_cast<std::size_t>(s.a)]));
        return false;
      case Step::Call:
        Call(s);
        return false;
      case Step::Minus:
      case Step::Plus: {
        const double x = ToNumber(stack_.back());
        stack_.back() = s.step == Step::Minus ? -x : x;
        return false;
      }
      case Step::Not:
        stack_.back() = !IsTrue(stack_.back());
        return false;
      case Step::Jump:
        return true;
      case Step::JumpIfFalse:
        return !IsTrue(Pop());
      case Step::And:
      case Step::Or:
        if (IsTrue(stack_.back()) == (s.step == Step::Or)) return true;
        stack_.pop_back();
        return false;
      default:
        return Binary(s);
    }
  }

  bool Binary(const Instruction& s) {
    Value right = Pop();
    Value& left = stack_.back();
    // Adding to a text costs what is added.
    if (s.step != Step::Add) budget_.Take(left);
    budget_.Take(right);
    if (s.step == Step::Chain) {
      const bool holds = Holds(s.compare, left, right);
      left = holds ? std::move(right) : Value(false);
      return !holds;
    }
    left = s.step >= Step::Less ? Value(Holds(s.step, left, right)) : Computed(s.step, left, right);
    return false;
  }

  const Value& ValueOf(const QString& name) const {
    const auto found = variables_.constFind(name);
    if (found == variables_.constEnd())
      throw EValueError(QStringLiteral("there is no variable \"%1\"").arg(name.left(40)));
    return *found;
  }

  void Call(const Instruction& s) {
    const auto count = static_cast<std::size_t>(s.a);
    const std::span<const Value> values(stack_.data() + stack_.size() - count, count);
    for (const Value& v : values) budget_.Take(v);
    Value result;
    try {
      result = s.function->run(Arguments(values));
    } catch (const EValueError& error) {
      throw EValueError(QString::fromLatin1(s.function->name) + QStringLiteral(": ") + error.Message());
    }
    budget_.Take(result);
    stack_.resize(stack_.size() - count);
    stack_.push_back(std::move(result));
  }

  const Program& program_;
  const Variables& variables_;
  std::vector<Value> stack_;
  Budget budget_;
};
}  // namespace

Value Run(const Program& program, const Variables& variables) { return Machine(program, variables).Run(); }

}  // namespace expression
