// Expressions: what they come to, how operators bind, and what is told about those that are wrong.
#include <gtest/gtest.h>

#include <random>

#include "library/components/ExpressionEval.h"
#include "rtl/Clock.h"
#include "tests/library/ExpressionTable.h"

using namespace expression;

namespace {
const Variables& Known() {
  static const Variables all{{QStringLiteral("width"), 12.5},
                             {QStringLiteral("name"), QStringLiteral("Bob")},
                             {QStringLiteral("flag"), true},
                             {QStringLiteral("text"), QStringLiteral("12")},
                             {QStringLiteral("plain"), QStringLiteral("left as it is")}};
  return all;
}
// The value as text, or what is told and where.
std::string Outcome(const QString& text) {
  try {
    return ToText(Evaluate(text, Known())).toStdString();
  } catch (const EExpressionError& error) {
    EXPECT_GE(error.Position(), 0);
    EXPECT_LE(error.Position(), text.size());
    return error.Message().toStdString();
  }
}
std::string Outcome(const char* text) { return Outcome(QString::fromUtf8(text)); }
}  // namespace

TEST(Expression, ComesToWhatTheTableSays) {
  const TClockOverride noon([] { return std::int64_t{12 * 60 * 60 * 1000}; });
  EXPECT_GE(std::size(ExpressionTable), 200u);
  for (const ExpressionRow& row : ExpressionTable) EXPECT_EQ(Outcome(row.text), row.value) << row.text;
}

TEST(Expression, ErrorsSayWhereAndWhatWasExpected) {
  struct Row {
    const char* text;
    const char* told;
  };
  constexpr Row rows[] = {
      {"", "Column 1: expected a value, found the end."},
      {"1 +", "Column 4: expected a value, found the end."},
      {"1 + * 2", "Column 5: expected a value, found \"*\"."},
      {"(1 + 2", "Column 7: expected \")\" or an operator, found the end."},
      {"1 + 2)", "Column 6: expected an operator, found \")\"."},
      {"1 2", "Column 3: expected an operator, found \"2\"."},
      {"max(1, )", "Column 8: expected a value, found \")\"."},
      {"max(1 2)", "Column 7: expected \")\" or \",\" or an operator, found \"2\"."},
      {"max()", "Column 1: max takes at least 1 value, not 0."},
      {"abs(1, 2)", "Column 1: abs takes 1 value, not 2."},
      {"1 + log(1, 2, 3)", "Column 5: log takes 1 to 2 values, not 3."},
      {"2 * nosuch(1)", "Column 5: there is no function \"nosuch\"."},
      {"2 * NoSuch", "Column 5: there is no variable \"nosuch\"."},
      {"1 if 2", "Column 7: expected \"else\", found the end."},
      {"if 1", "Column 1: expected a value, found \"if\"."},
      {"1 == not 2", "Column 6: expected a value, found \"not\"."},
      {"1 not 2", "Column 7: expected \"in\", found \"2\"."},
      {"'abc", "Column 1: the text has no closing '."},
      {"1 + 'a\\q'", "Column 7: expected \\n, \\t, \\r, \\\\, \\\", \\', \\xHH or \\uHHHH."},
      {"'\\u12'", "Column 2: expected \\n, \\t, \\r, \\\\, \\\", \\', \\xHH or \\uHHHH."},
      {"1 $ 2", "Column 3: \"$\" belongs to no expression."},
      {"0xG1", "Column 3: expected a digit of base 16, found \"G\"."},
      {"0b2", "Column 3: expected a digit of base 2, found \"2\"."},
      {"0x", "Column 1: this is no number of base 16."},
      {"1e", "Column 2: expected digits behind the \"e\" of a number."},
      {"12abc", "Column 3: expected an operator, found \"a\"."},
      {"1e999", "Column 1: the number is too large."},
      {"1 / 0", "Column 3: division by zero."},
      {"5 // (1 - 1)", "Column 3: division by zero."},
      {"5 % 0", "Column 3: division by zero."},
      {"0 ** -1", "Column 3: division by zero."},
      {"(-8) ** 0.5", "Column 6: a negative number has no such power."},
      {"10 ** 400", "Column 4: the result is too large."},
      {"'a' + 1", "Column 5: a text and the number 1 cannot be added."},
      {"1 + 'a'", "Column 3: expected a number, not the text \"a\"."},
      {"-'a'", "Column 1: expected a number, not the text \"a\"."},
      {"1 < 'a'", "Column 3: the number 1 and the text \"a\" cannot be compared."},
      {"1 in 'a'", "Column 3: expected a text on both sides of \"in\", not the number 1."},
      {"'a' * 1.5", "Column 5: a text is repeated a whole number of times."},
      {"3 + sqrt(-1)", "Column 5: sqrt: a negative number has no square root."},
      {"upper(5)", "Column 1: upper: value 1 must be a text, not the number 5."},
      {"left('a', -1)",
       "Column 1: left: value 2 must be a whole number from 0 to 2147483647, not the number -1."},
      {"max(1, 'a')", "Column 1: max: value 2 must be a number, not the text \"a\"."},
      {"date(2023, 2, 29)", "Column 1: date: there is no such date."},
      {"year(1e9)", "Column 1: year: there is no such date."},
      {"choose(3, 'a', 'b')",
       "Column 1: choose: value 1 must be a whole number from 1 to 2, not the number 3."},
      {"float('x')", "Column 1: float: the text \"x\" is no number."},
      {"ln(0)", "Column 1: ln: there is no such logarithm."},
      {"repeat('ab', 600000)", "Column 1: repeat: the text is longer than 1000000 characters."},
      {"'ab' * 600000", "Column 6: the text is longer than 1000000 characters."},
      {"iif(1, 2)", "Column 9: expected \",\" or an operator, found \")\"."},
  };
  for (const Row& row : rows) EXPECT_EQ(Outcome(row.text), row.told) << row.text;
}

// --- operators against an oracle that puts everything in parentheses ---

namespace {
class RandomExpression {
 public:
  explicit RandomExpression(unsigned seed) : random_(seed) {}
  QStringList Words() {
    words_.clear();
    Test(3);
    return words_;
  }

 private:
  unsigned Below(unsigned n) { return static_cast<unsigned>(random_()) % n; }
  void Test(int depth) {
    Or(depth);
    if (depth == 0 || Below(5)) return;
    words_ << QStringLiteral("if");
    Or(depth - 1);
    words_ << QStringLiteral("else");
    Test(depth - 1);
  }
  template <class Part>
  void Chain(unsigned oneIn, std::initializer_list<const char*> operators, Part part) {
    part();
    while (Below(oneIn) == 0) {
      words_ << QString::fromLatin1(operators.begin()[Below(static_cast<unsigned>(operators.size()))])
                    .split(u' ');
      part();
    }
  }
  void Or(int depth) {
    Chain(5, {"or"}, [&] { And(depth); });
  }
  void And(int depth) {
    Chain(5, {"and"}, [&] {
      while (Below(6) == 0) words_ << QStringLiteral("not");
      Comparison(depth);
    });
  }
  void Comparison(int depth) {
    Chain(4, {"<", "<=", ">", ">=", "==", "!=", "in", "not in"}, [&] {
      Chain(3, {"+", "-"}, [&] {
        Chain(3, {"*", "/", "//", "%"}, [&] { Chain(5, {"**"}, [&] { Signed(depth); }); });
      });
    });
  }
  void Signed(int) {
    while (Below(5) == 0) words_ << (Below(2) ? QStringLiteral("-") : QStringLiteral("+"));
    constexpr const char* values[] = {"0",    "1",     "2",     "3",   "0.5", "7",
                                      "True", "False", "width", "'a'", "'ab'"};
    words_ << QString::fromLatin1(values[Below(Below(4) ? 9 : 11)]);
  }
  std::mt19937 random_;
  QStringList words_;
};

// The loosest operator first, found by looking at all words again and again.
QString InParentheses(const QStringList& w);
QString Joined(const QStringList& w, qsizetype at, qsizetype words = 1) {
  return u'(' + InParentheses(w.mid(0, at)) + u' ' + w.mid(at, words).join(u' ') + u' ' +
         InParentheses(w.mid(at + words)) + u')';
}
bool IsValue(const QString& word) {
  return word[0].isDigit() || word[0] == u'\'' || (word.size() > 3 && word != u"else");
}

QString InParentheses(const QStringList& w) {
  if (const qsizetype at = w.indexOf(QStringLiteral("if")); at >= 0) {
    const qsizetype other = w.indexOf(QStringLiteral("else"), at);
    return QStringLiteral("(%1 if %2 else %3)")
        .arg(InParentheses(w.mid(0, at)), InParentheses(w.mid(at + 1, other - at - 1)),
             InParentheses(w.mid(other + 1)));
  }
  for (const char* word : {"or", "and"})
    if (const qsizetype at = w.lastIndexOf(QString::fromLatin1(word)); at >= 0) return Joined(w, at);
  if (w[0] == u"not") return QStringLiteral("(not %1)").arg(InParentheses(w.mid(1)));
  static const QStringList comparisons = QStringLiteral("< <= > >= == != in not").split(u' ');
  QStringList operators;
  QList<QStringList> sides{{}};
  for (qsizetype i = 0; i < w.size(); ++i) {
    if (!comparisons.contains(w[i])) {
      sides.last() << w[i];
      continue;
    }
    operators << (w[i] == u"not" ? w[i] + u' ' + w[i + 1] : w[i]);
    if (w[i] == u"not") ++i;
    sides << QStringList();
  }
  if (!operators.isEmpty()) {
    QStringList pairs;
    for (qsizetype i = 0; i < operators.size(); ++i)
      pairs << QStringLiteral("(%1 %2 %3)")
                   .arg(InParentheses(sides[i]), operators[i], InParentheses(sides[i + 1]));
    QString all = pairs[0];
    for (qsizetype i = 1; i < pairs.size(); ++i) all = QStringLiteral("(%1 and %2)").arg(all, pairs[i]);
    return all;
  }
  for (const char* level : {"+ -", "* / // %"})
    for (qsizetype i = w.size() - 1; i > 0; --i)
      if (QString::fromLatin1(level).split(u' ').contains(w[i]) && IsValue(w[i - 1])) return Joined(w, i);
  if (w[0] == u"-" || w[0] == u"+") return u'(' + w[0] + u' ' + InParentheses(w.mid(1)) + u')';
  if (const qsizetype at = w.indexOf(QStringLiteral("**")); at >= 0) return Joined(w, at);
  return w[0];
}

// Wrong places aside.
std::string Reason(const std::string& outcome) {
  return outcome.starts_with("Column ") ? outcome.substr(outcome.find(':')) : outcome;
}
}  // namespace

TEST(Expression, OperatorsBindAsTheFullyParenthesisedTextSays) {
  int values = 0;
  for (unsigned seed = 0; seed < 6000; ++seed) {
    const QStringList words = RandomExpression(seed).Words();
    const QString flat = words.join(u' '), full = InParentheses(words);
    const std::string outcome = Outcome(flat);
    ASSERT_EQ(Reason(outcome), Reason(Outcome(full))) << flat.toStdString() << "\n" << full.toStdString();
    values += !outcome.starts_with("Column ");
  }
  EXPECT_GT(values, 3000) << "most of them have a value";
}

TEST(Expression, BlanksAndCaseOfNamesMakeNoDifference) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    const QStringList words = RandomExpression(seed).Words();
    const QString loose = words.join(QStringLiteral(" \t\n "));
    QString big;
    for (const QString& word : words) big += (word[0] == u'\'' ? word : word.toUpper()) + u' ';
    const std::string reason = Reason(Outcome(words.join(u' ')));
    EXPECT_EQ(Reason(Outcome(loose)), reason) << loose.toStdString();
    EXPECT_EQ(Reason(Outcome(big)), reason) << big.toStdString();
  }
}

TEST(Expression, WhatStandsBetweenIsWorkedOutOnceAndOnlyWhenNeeded) {
  EXPECT_EQ(Outcome("1 < 0 < 1 / 0"), "False");
  EXPECT_EQ(Outcome("0 < 1 < 1 / 0"), "Column 11: division by zero.");
  EXPECT_EQ(Outcome("False and nosuch"), "False");
  EXPECT_EQ(Outcome("True or nosuch"), "True");
}

// --- hostile ones ---

TEST(Expression, LongOnesTakeTimeByTheirLength) {
  constexpr int many = 200'000;
  EXPECT_EQ(Outcome(QStringLiteral("1+").repeated(many) + u'1'), std::to_string(many + 1));
  EXPECT_EQ(Outcome(QStringLiteral("-").repeated(many) + u'1'), "1");
  EXPECT_EQ(Outcome(QStringLiteral("not ").repeated(many) + u'1'), "True");
  EXPECT_EQ(Outcome(QStringLiteral("1 ** ").repeated(many) + u'1'), "1");
  EXPECT_EQ(Outcome(QStringLiteral("1 <= ").repeated(many) + u'1'), "True");
  EXPECT_EQ(Outcome(QStringLiteral("0 or ").repeated(many) + u'7'), "7");
  EXPECT_EQ(Outcome(QStringLiteral("1 and ").repeated(many) + u'7'), "7");
  EXPECT_EQ(Outcome(QStringLiteral("1 if 0 else ").repeated(many) + u'2'), "2");
  EXPECT_EQ(Outcome(QStringLiteral("max(") + QStringLiteral("1,").repeated(many) + QStringLiteral("5)")),
            "5");
  EXPECT_EQ(Outcome(QStringLiteral("len('a'") + QStringLiteral("+'a'").repeated(many) + u')'),
            std::to_string(many + 1));
  EXPECT_EQ(Outcome(u'\'' + QString(many, u'x')), "Column 1: the text has no closing '.");
}

TEST(Expression, DepthIsLimited) {
  const auto nested = [](int depth) {
    return QStringLiteral("(").repeated(depth) + u'1' + QStringLiteral(")").repeated(depth);
  };
  EXPECT_EQ(Outcome(nested(DeepestNesting - 1)), "1");
  EXPECT_EQ(Outcome(nested(DeepestNesting)), "Column 201: nested deeper than 200 levels.");
  EXPECT_EQ(Outcome(nested(500'000)), "Column 201: nested deeper than 200 levels.");
  EXPECT_EQ(Outcome(QStringLiteral("abs(").repeated(300'000)), "Column 801: nested deeper than 200 levels.");
  EXPECT_EQ(Outcome(QStringLiteral("iif(1,").repeated(300'000)),
            "Column 1199: nested deeper than 200 levels.");
}

TEST(Expression, TextsCannotGrowWithoutEnd) {
  EXPECT_EQ(Outcome("len('a' * 1000000)"), "1000000");
  EXPECT_EQ(Outcome("'a' * 1000000 + 'b'"), "Column 15: the text is longer than 1000000 characters.");
  EXPECT_EQ(Outcome("replace(repeat('a', 1000), 'a', repeat('b', 1001))"),
            "Column 1: replace: the text is longer than 1000000 characters.");
  QString much = QStringLiteral("0");
  for (int i = 0; i < 100; ++i) much += QStringLiteral(" + len(upper('a' * 1000000))");
  EXPECT_NE(Outcome(much).find("this takes too much work"), std::string::npos);
  // What a search of every place would take hours for.
  EXPECT_EQ(Outcome("find('a' * 1000000, 'a' * 500000 + 'b')"), "0");
}

TEST(Expression, AnyBytesAreAValueOrAnErrorInsideOfTheText) {
  std::mt19937 random(5);
  const auto below = [&](std::size_t n) { return static_cast<std::size_t>(random()) % n; };
  for (int i = 0; i < 20'000; ++i) {
    QString text = QString::fromUtf8(ExpressionTable[below(std::size(ExpressionTable))].text);
    for (std::size_t n = 1 + below(4); n > 0; --n) {
      const auto at = static_cast<qsizetype>(below(static_cast<std::size_t>(text.size()) + 1));
      const QString other = QString::fromUtf8(ExpressionTable[below(std::size(ExpressionTable))].text);
      const auto from = static_cast<qsizetype>(below(static_cast<std::size_t>(other.size())));
      if (below(2))
        text.insert(at, below(2) ? QString(QChar(static_cast<char16_t>(below(below(2) ? 128 : 0x10000))))
                                 : other.mid(from, 1 + static_cast<qsizetype>(below(6))));
      else
        text.remove(at, 1 + static_cast<qsizetype>(below(4)));
    }
    EXPECT_FALSE(Outcome(text).starts_with("Column 0"));
  }
}

// --- the component ---

TEST(ExpressionEval, ShowsTheValueOrWhyThereIsNone) {
  TVRXExpressionEval eval(nullptr);
  EXPECT_EQ(eval.Value() + eval.Error(), QString());
  eval.Get(TVRXExpressionEval::VariablesPart)
      ->SetLines({QStringLiteral("Width = 12.5"), QStringLiteral("name=Bob"), QStringLiteral("quoted='7'"),
                  QStringLiteral("seven=7"), QStringLiteral("on=true"), QStringLiteral("no sign"),
                  QStringLiteral("=nothing"), QStringLiteral("WIDTH=99"), QStringLiteral("blanks= x ")});
  const auto shows = [&](const char* text) {
    eval.Set(TVRXExpressionEval::Expression, QString::fromLatin1(text));
    return (eval.Value() + u'|' + eval.Error()).toStdString();
  };
  EXPECT_EQ(shows("width * 2"), "25|");
  EXPECT_EQ(shows("name + '!'"), "Bob!|");
  EXPECT_EQ(shows("quoted + '1'"), "71|");
  EXPECT_EQ(shows("seven + 1"), "8|");
  EXPECT_EQ(shows("1 if on else 2"), "1|");
  EXPECT_EQ(shows("'[' + blanks + ']'"), "[ x ]|");
  EXPECT_EQ(shows("width +"), "|Column 8: expected a value, found the end.");
  EXPECT_EQ(shows("height"), "|Column 1: there is no variable \"height\".");
  EXPECT_EQ(shows("  "), "|");
  EXPECT_THROW(eval.Evaluate(), EExpressionError);
}
