// An expression made ready to be worked out: steps for a stack of values.
#pragma once
#include <QHash>
#include <vector>

#include "library/expression/ExprFunctions.h"

namespace expression {

enum class Step : std::uint8_t {
  Nothing,
  Push,      // constant `a`
  Variable,  // name `a`
  Call,      // function, with `a` values
  Minus,
  Plus,
  Not,
  Power,
  Times,
  Divide,
  DivideDown,
  Modulo,
  Add,
  Subtract,
  Less,
  AtMost,
  Greater,
  AtLeast,
  Equal,
  Unequal,
  In,
  NotIn,
  Jump,         // to step `a`
  JumpIfFalse,  // takes the value off
  And,          // jumps with the value when it is false, else takes it off
  Or,
  Chain,  // one of several comparisons, `compare`: jumps with False, or leaves what is on the right
};

struct Instruction {
  Step step = Step::Nothing;
  Step compare = Step::Nothing;
  int at = 0;  // in the text
  int a = 0;
  const Function* function = nullptr;
};

struct Program {
  std::vector<Instruction> steps;
  std::vector<Value> constants;
  std::vector<QString> names;  // of variables, in small letters
};

// Values of variables by their names in small letters.
using Variables = QHash<QString, Value>;

// What may stand inside of each other: parentheses, values of functions.
constexpr int DeepestNesting = 200;

// Both throw EExpressionError.
Program Compile(const QString& text);
Value Run(const Program& program, const Variables& variables);
inline Value Evaluate(const QString& text, const Variables& variables = {}) {
  return Run(Compile(text), variables);
}

}  // namespace expression
