#include "library/components/RegExpr.h"

#include "rtl/Class.h"

const TTypeInfo& TVRXRegExString() {
  static const TTypeInfo info = StringType("TVRXRegExString");
  return info;
}

const TClass& TVRXRegExpr::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXRegExpr>("TVRXRegExpr", TComponent::StaticClass())
          .Published(Expression)
          .Type(TVRXRegExString())
          .Doc(QStringLiteral("The regular expression."))
          .Published(Options)
          .Doc(QStringLiteral("How letters, lines and blanks are taken."))
          .ClassDoc(QStringLiteral("Finds what a regular expression describes, and checks texts by it."),
                    "pen line 1.5 brush fill box 2.5 5 19 14 2 pen none brush line oval 6 13.5 2.6 2.6 pen "
                    "accent 2 "
                    "path 14 7.5 14 14.5 path 10.9 9.2 17.1 12.8 path 17.1 9.2 10.9 12.8"));
  return cls;
}

namespace {
// So many steps for one match, and so many matches, are enough for any use that is meant.
constexpr char StepLimit[] = "(*LIMIT_MATCH=200000)";
constexpr qsizetype StepLimitLength = sizeof StepLimit - 1, MostMatches = 10'000;

QRegularExpression::PatternOptions OptionsOf(TVRXRegExOptions options) {
  using enum TVRXRegExOption;
  using R = QRegularExpression;
  R::PatternOptions result;
  result.setFlag(R::CaseInsensitiveOption, options.Contains(roIgnoreCase));
  result.setFlag(R::MultilineOption, options.Contains(roMultiLine));
  result.setFlag(R::DotMatchesEverythingOption, options.Contains(roDotAll));
  result.setFlag(R::ExtendedPatternSyntaxOption, options.Contains(roExtended));
  return result;
}
QRegularExpression Limited(const QString& expression, TVRXRegExOptions options) {
  return QRegularExpression(QLatin1StringView(StepLimit) + expression, OptionsOf(options));
}
}  // namespace

TVRXRegExResult VRXFindMatches(const QString& expression, const QString& text, TVRXRegExOptions options) {
  TVRXRegExResult result;
  const QRegularExpression compiled = Limited(expression, options);
  if (!compiled.isValid()) {
    result.Error = compiled.errorString();
    result.ErrorAt = std::max<qsizetype>(compiled.patternErrorOffset() - StepLimitLength, 0);
    return result;
  }
  auto matches = compiled.globalMatch(text);
  while (matches.hasNext() && result.Matches.size() < MostMatches) {
    const QRegularExpressionMatch match = matches.next();
    result.Matches.append({match.capturedStart(), match.capturedLength()});
  }
  // Behind the end of the text nothing is looked for; that is no match either.
  const bool toTheEnd =
      !result.Matches.isEmpty() && result.Matches.last().Start + result.Matches.last().Length == text.size();
  result.GivenUp = matches.hasNext() || (!matches.isValid() && !toTheEnd);
  return result;
}

bool TVRXRegExpr::Accepts(const QString& text) const {
  // A remark at the end of an extended expression lasts until the end of its line.
  const bool extended = Get(Options).Contains(TVRXRegExOption::roExtended);
  const QString end = extended ? QStringLiteral("\n)\\z") : QStringLiteral(")\\z");
  const QRegularExpression whole = Limited(QStringLiteral("\\A(?:") + Get(Expression) + end, Get(Options));
  return whole.match(text).hasMatch();
}
