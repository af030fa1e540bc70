// Regular expressions, and what they find.
#pragma once
#include <QRegularExpression>

#include "rtl/Component.h"

const TTypeInfo& TVRXRegExString();  // a string that is a regular expression

enum class TVRXRegExOption : std::uint8_t { roIgnoreCase, roMultiLine, roDotAll, roExtended };
VRX_ENUM(TVRXRegExOption, {"roIgnoreCase", "roMultiLine", "roDotAll", "roExtended"})
using TVRXRegExOptions = TSet<TVRXRegExOption>;
VRX_SET(TVRXRegExOptions, TVRXRegExOption)

struct TVRXRegExMatch {
  qsizetype Start = 0, Length = 0;
  bool operator==(const TVRXRegExMatch&) const = default;
};
struct TVRXRegExResult {
  QList<TVRXRegExMatch> Matches;
  // Of a bad expression, and the place in it, from 0 on.
  QString Error;
  qsizetype ErrorAt = -1;
  // Searching was given up: too many ways to match, or too many matches.
  bool GivenUp = false;
};
// Every match in the text, in order. Takes bounded time, whatever the expression is.
TVRXRegExResult VRXFindMatches(const QString& expression, const QString& text, TVRXRegExOptions options = {});

class TVRXRegExpr : public TComponent {
  VRX_CLASS(TVRXRegExpr)
 public:
  using TComponent::TComponent;
  static constexpr TKept<QString> Expression{"Expression"};
  static constexpr TKept<TVRXRegExOptions> Options{"Options", {}};

  TVRXRegExResult Find(const QString& text) const {
    return VRXFindMatches(Get(Expression), text, Get(Options));
  }
  // Whether the whole text is one match, as a field that is checked must be.
  bool Accepts(const QString& text) const;
};
