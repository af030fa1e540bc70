// Functions of numbers.
#include <cmath>
#include <numbers>
#include <numeric>

#include "library/expression/ExprFunctions.h"

namespace expression {

namespace {
template <double (*F)(double)>
Value Of(const Arguments& v) {
  return Checked(F(v.Number(0)));
}
double Degrees(double x) { return x * 180 / std::numbers::pi; }
double Radians(double x) { return x * std::numbers::pi / 180; }
double Sign(double x) { return x > 0 ? 1 : x < 0 ? -1 : 0; }
double Fraction(double x) { return x - std::trunc(x); }

// The arguments or, of one text-free list, what is left when `better` compares them.
template <class Better>
Value Best(const Arguments& v, Better better) {
  int best = 0;
  for (int i = 1; i < v.Count(); ++i) {
    const bool texts = std::holds_alternative<QString>(v.At(0));
    if (texts ? better(v.Text(i).compare(v.Text(best)), 0) : better(v.Number(i), v.Number(best))) best = i;
  }
  return v.At(best);
}

// Halves go to the even neighbour; the digits of the decimal text decide, as a person sees them.
Value Round(const Arguments& v) {
  const double x = v.Number(0);
  const int digits = v.Whole(1, -300, 300, 0);
  if (digits == 0) return std::nearbyint(x);
  const double scale = std::pow(10, std::abs(digits));
  const double scaled = digits > 0 ? x * scale : x / scale;
  if (!std::isfinite(scaled) || std::abs(scaled) > 1e15) return x;  // no digits there
  const double near = QString::number(scaled, 'g', 15).toDouble();
  return Checked(digits > 0 ? std::nearbyint(near) / scale : std::nearbyint(near) * scale);
}

Value Log(const Arguments& v) {
  const double base = v.Number(1, std::numbers::e);
  if (v.Number(0) <= 0 || base <= 0 || base == 1)
    throw EValueError(QStringLiteral("there is no such logarithm"));
  return Checked(v.Count() > 1 ? std::log(v.Number(0)) / std::log(base) : std::log(v.Number(0)));
}
template <double (*F)(double)>
Value LogOf(const Arguments& v) {
  if (v.Number(0) <= 0) throw EValueError(QStringLiteral("there is no such logarithm"));
  return Checked(F(v.Number(0)));
}

Value Sum(const Arguments& v) {
  double sum = 0;
  for (int i = 0; i < v.Count(); ++i) sum += v.Number(i);
  return Checked(sum);
}

Value Factorial(const Arguments& v) {
  double product = 1;
  for (int i = v.Whole(0, 0, 170); i > 1; --i) product *= i;
  return product;
}

const Function All[] = {
    {"abs", 1, 1, Of<std::fabs>},
    {"acos", 1, 1, Of<std::acos>},
    {"asin", 1, 1, Of<std::asin>},
    {"atan", 1, 1, Of<std::atan>},
    {"atan2", 2, 2, [](const Arguments& v) { return Checked(std::atan2(v.Number(0), v.Number(1))); }},
    {"avg", 1, Any, [](const Arguments& v) { return Checked(std::get<double>(Sum(v)) / v.Count()); }},
    {"ceil", 1, 1, Of<std::ceil>},
    {"clamp", 3, 3,
     [](const Arguments& v) -> Value { return std::max(v.Number(1), std::min(v.Number(0), v.Number(2))); }},
    {"cos", 1, 1, Of<std::cos>},
    {"cosh", 1, 1, Of<std::cosh>},
    {"degrees", 1, 1, Of<Degrees>},
    {"exp", 1, 1, Of<std::exp>},
    {"factorial", 1, 1, Factorial},
    {"float", 1, 1,
     [](const Arguments& v) -> Value {
       const auto* text = std::get_if<QString>(&v.At(0));
       if (!text) return v.Number(0);
       bool ok = false;
       const double number = text->trimmed().toDouble(&ok);
       if (!ok) throw EValueError(QStringLiteral("%1 is no number").arg(Described(*text)));
       return Checked(number);
     }},
    {"floor", 1, 1, Of<std::floor>},
    {"frac", 1, 1, Of<Fraction>},
    {"gcd", 2, 2,
     [](const Arguments& v) -> Value {
       return double(std::gcd(std::int64_t{v.Whole(0, -INT_MAX, INT_MAX)}, v.Whole(1, -INT_MAX, INT_MAX)));
     }},
    {"hypot", 2, 2, [](const Arguments& v) { return Checked(std::hypot(v.Number(0), v.Number(1))); }},
    {"lcm", 2, 2,
     [](const Arguments& v) -> Value {
       return double(std::lcm(std::int64_t{v.Whole(0, -INT_MAX, INT_MAX)}, v.Whole(1, -INT_MAX, INT_MAX)));
     }},
    {"ln", 1, 1, LogOf<std::log>},
    {"log", 1, 2, Log},
    {"log10", 1, 1, LogOf<std::log10>},
    {"log2", 1, 1, LogOf<std::log2>},
    {"max", 1, Any, [](const Arguments& v) { return Best(v, [](auto a, auto b) { return a > b; }); }},
    {"min", 1, Any, [](const Arguments& v) { return Best(v, [](auto a, auto b) { return a < b; }); }},
    {"radians", 1, 1, Of<Radians>},
    {"round", 1, 2, Round},
    {"sign", 1, 1, Of<Sign>},
    {"sin", 1, 1, Of<std::sin>},
    {"sinh", 1, 1, Of<std::sinh>},
    {"sqrt", 1, 1,
     [](const Arguments& v) {
       if (v.Number(0) < 0) throw EValueError(QStringLiteral("a negative number has no square root"));
       return Checked(std::sqrt(v.Number(0)));
     }},
    {"sum", 1, Any, Sum},
    {"tan", 1, 1, Of<std::tan>},
    {"tanh", 1, 1, Of<std::tanh>},
    {"trunc", 1, 1, Of<std::trunc>},
};
}  // namespace

std::span<const Function> MathFunctions() { return All; }

}  // namespace expression
