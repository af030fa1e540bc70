// The parser: precedence as in Python, small and big letters alike. Only what stands inside of parentheses
// costs stack, and that is limited; the steps it makes are worked through in a loop.
#include "library/expression/ExprLexer.h"
#include "library/expression/ExprProgram.h"

namespace expression {

namespace {
// From loose to tight. Signs and powers are tighter still.
enum Level { OrLevel, AndLevel, NotLevel, CompareLevel, SumLevel, ProductLevel, SignLevel };

struct Operator {
  const char* sign;
  Level level;
  Step step;
};
constexpr Operator Operators[] = {
    {"or", OrLevel, Step::Or},
    {"and", AndLevel, Step::And},
    {"<", CompareLevel, Step::Less},
    {"<=", CompareLevel, Step::AtMost},
    {">", CompareLevel, Step::Greater},
    {">=", CompareLevel, Step::AtLeast},
    {"=", CompareLevel, Step::Equal},
    {"==", CompareLevel, Step::Equal},
    {"!=", CompareLevel, Step::Unequal},
    {"<>", CompareLevel, Step::Unequal},
    {"in", CompareLevel, Step::In},
    {"not", CompareLevel, Step::NotIn},  // behind a value: "not in"
    {"+", SumLevel, Step::Add},
    {"-", SumLevel, Step::Subtract},
    {"*", ProductLevel, Step::Times},
    {"/", ProductLevel, Step::Divide},
    {"//", ProductLevel, Step::DivideDown},
    {"%", ProductLevel, Step::Modulo},
};
constexpr const char* Keywords[] = {"or", "and", "not", "in", "if", "else"};

class Compiler {
 public:
  explicit Compiler(const QString& text) : text_(text), lexer_(text) { Next(); }

  Program All() {
    if (token_.kind == TokenKind::End) Fail(QStringLiteral("a value"));
    Test();
    if (token_.kind != TokenKind::End) Fail(QStringLiteral("an operator"));
    return std::move(program_);
  }

 private:
  void Next() {
    token_ = lexer_.Next();
    operator_ = nullptr;
    for (const Operator& o : Operators)
      if (token_.Is(o.sign)) operator_ = &o;
  }
  [[noreturn]] void Fail(const QString& expected) const {
    constexpr int shown = 40;
    const QString found =
        token_.kind == TokenKind::End
            ? QStringLiteral("the end")
            : QStringLiteral("\"%1\"").arg(text_.mid(token_.at, std::min(token_.length, shown)));
    throw EExpressionError(token_.at, QStringLiteral("expected %1, found %2").arg(expected, found));
  }
  void Expect(const char* sign, const QString& otherwise = {}) {
    if (!token_.Is(sign))
      Fail(QStringLiteral("\"%1\"").arg(QLatin1String(sign)) +
           (otherwise.isEmpty() ? QString() : QStringLiteral(" or ") + otherwise));
    Next();
  }
  int Here() const { return static_cast<int>(program_.steps.size()); }
  int Emit(Step step, int at, int a = 0) {
    program_.steps.push_back({.step = step, .at = at, .a = a});
    return Here() - 1;
  }
  Instruction& At(int i) { return program_.steps[static_cast<std::size_t>(i)]; }
  void JumpsHere(int i) { At(i).a = Here(); }

  // A condition stands behind the value that it chooses: its jumps bring the steps into order.
  void Test() {
    if (++depth_ > DeepestNesting)
      throw EExpressionError(token_.at, QStringLiteral("nested deeper than %1 levels").arg(DeepestNesting));
    std::vector<int> ends;
    for (;;) {
      const int start = Emit(Step::Nothing, token_.at);
      Binary(OrLevel);
      if (!token_.Is("if")) break;
      ends.push_back(Emit(Step::Jump, token_.at));
      At(start) = {.step = Step::Jump, .at = token_.at, .a = Here()};
      Next();
      Binary(OrLevel);
      const int otherwise = Emit(Step::JumpIfFalse, token_.at);
      Emit(Step::Jump, token_.at, start + 1);
      JumpsHere(otherwise);
      Expect("else");
    }
    for (const int end : ends) JumpsHere(end);
    --depth_;
  }

  void Binary(Level level) {
    if (level == SignLevel) return Signed();
    if (level == NotLevel && token_.Is("not")) {
      std::vector<int> places;
      while (token_.Is("not")) places.push_back(token_.at), Next();
      Binary(CompareLevel);
      for (auto at = places.rbegin(); at != places.rend(); ++at) Emit(Step::Not, *at);
      return;
    }
    const auto tighter = static_cast<Level>(level + 1);
    Binary(tighter);
    if (level == CompareLevel) return Comparisons();
    for (const Operator* o = operator_; o && o->level == level; o = operator_) {
      const int at = token_.at;
      Next();
      if (level == OrLevel || level == AndLevel) {
        const int jump = Emit(o->step, at);
        Binary(tighter);
        JumpsHere(jump);
      } else {
        Binary(tighter);
        Emit(o->step, at);
      }
    }
  }

  // a < b < c is a < b and b < c, with b worked out once.
  void Comparisons() {
    std::vector<int> chain;
    const Operator* o = operator_;
    while (o && o->level == CompareLevel) {
      const int at = token_.at;
      Next();
      if (o->step == Step::NotIn) Expect("in");
      Binary(SumLevel);
      const Operator* next = operator_;
      if (next && next->level == CompareLevel) {
        chain.push_back(Emit(Step::Chain, at));
        At(chain.back()).compare = o->step;
      } else {
        Emit(o->step, at);
      }
      o = next;
    }
    for (const int i : chain) JumpsHere(i);
  }

  // Signs and powers are right-associative: -2 ** -3 ** 2 is -(2 ** (-(3 ** 2))).
  void Signed() {
    std::vector<std::pair<Step, int>> pending;
    for (;;) {
      for (; token_.Is("-") || token_.Is("+"); Next())
        pending.emplace_back(token_.Is("-") ? Step::Minus : Step::Plus, token_.at);
      Primary();
      if (!token_.Is("**")) break;
      pending.emplace_back(Step::Power, token_.at);
      Next();
    }
    for (auto p = pending.rbegin(); p != pending.rend(); ++p) Emit(p->first, p->second);
  }

  void Primary() {
    const Token token = token_;
    switch (token.kind) {
      case TokenKind::Number:
      case TokenKind::Text:
        Next();
        return Constant(token.at, token.value);
      case TokenKind::Name:
        if (std::any_of(std::begin(Keywords), std::end(Keywords), [&](const char* k) { return token.Is(k); }))
          break;
        Next();
        if (token_.Is("(")) return Call(token);
        if (const Value* constant = FindConstant(token.word)) return Constant(token.at, *constant);
        Emit(Step::Variable, token.at, NameIndex(token.word));
        return;
      case TokenKind::Sign:
        if (!token.Is("(")) break;
        Next();
        Test();
        return Expect(")", QStringLiteral("an operator"));
      case TokenKind::End:
        break;
    }
    Fail(QStringLiteral("a value"));
  }

  void Constant(int at, const Value& value) {
    program_.constants.push_back(value);
    Emit(Step::Push, at, static_cast<int>(program_.constants.size()) - 1);
  }

  int NameIndex(const QString& name) {
    const auto index = static_cast<int>(program_.names.size());
    const auto known = names_.constFind(name);
    if (known != names_.constEnd()) return *known;
    names_.insert(name, index);
    program_.names.push_back(name);
    return index;
  }

  void Call(const Token& name) {
    const Function* function = FindFunction(name.word);
    const bool choice = name.Is("iif");
    if (!function && !choice)
      throw EExpressionError(
          name.at,
          QStringLiteral("there is no function \"%1\"").arg(text_.mid(name.at, std::min(name.length, 40))));
    Next();
    if (choice) return Choice();
    int count = 0;
    if (!token_.Is(")"))
      for (;; Next()) {
        Test();
        ++count;
        if (!token_.Is(",")) break;
      }
    Expect(")", QStringLiteral("\",\" or an operator"));
    if (count < function->least || (function->most != Any && count > function->most))
      throw EExpressionError(
          name.at, QStringLiteral("%1 takes %2, not %3").arg(name.word, Wanted(*function)).arg(count));
    const int i = Emit(Step::Call, name.at, count);
    At(i).function = function;
  }

  // iif(condition, value, other value): only one of both is worked out.
  void Choice() {
    const QString otherwise = QStringLiteral("an operator");
    Test();
    const int toOther = Emit(Step::JumpIfFalse, token_.at);
    Expect(",", otherwise);
    Test();
    const int toEnd = Emit(Step::Jump, token_.at);
    Expect(",", otherwise);
    JumpsHere(toOther);
    Test();
    Expect(")", otherwise);
    JumpsHere(toEnd);
  }

  const QString& text_;
  Lexer lexer_;
  Token token_;
  const Operator* operator_ = nullptr;  // that the token is
  Program program_;
  QHash<QString, int> names_;
  int depth_ = 0;
};
}  // namespace

Program Compile(const QString& text) { return Compiler(text).All(); }

}  // namespace expression
