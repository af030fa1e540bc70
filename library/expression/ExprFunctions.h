// The functions and constants that expressions know.
#pragma once
#include <span>

#include "library/expression/ExprValue.h"

namespace expression {

// The values a function is called with, asked for by number from 0. Throws EValueError for another kind.
class Arguments {
 public:
  explicit Arguments(std::span<const Value> values) : values_(values) {}
  int Count() const { return static_cast<int>(values_.size()); }
  const Value& At(int i) const { return values_[static_cast<std::size_t>(i)]; }
  double Number(int i) const;
  // The default where it was left out.
  double Number(int i, double def) const { return i < Count() ? Number(i) : def; }
  // A whole number within the limits.
  int Whole(int i, int least, int most) const;
  int Whole(int i, int least, int most, int def) const { return i < Count() ? Whole(i, least, most) : def; }
  const QString& Text(int i) const;
  QString Text(int i, const QString& def) const { return i < Count() ? Text(i) : def; }

 private:
  std::span<const Value> values_;
};

struct Function {
  const char* name;
  int least, most;  // so many values; -1: any number
  Value (*run)(const Arguments& values);
};
constexpr int Any = -1;

std::span<const Function> MathFunctions();
std::span<const Function> TextFunctions();
std::span<const Function> DateFunctions();
std::span<const Function> ChoiceFunctions();

// By its name in small letters; null when there is none.
const Function* FindFunction(const QString& name);
const Value* FindConstant(const QString& name);
// How many values it takes, in words.
QString Wanted(const Function& function);

}  // namespace expression
