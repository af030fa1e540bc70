// Works an expression out that is known at run time only.
#pragma once
#include "library/expression/ExprProgram.h"
#include "rtl/Component.h"
#include "rtl/Strings.h"

class TVRXExpressionEval : public TComponent {
  VRX_CLASS(TVRXExpressionEval)
 public:
  using TComponent::TComponent;
  static constexpr TKept<QString> Expression{"Expression"};
  // Lines of name=value.
  static constexpr TKept<TStrings*> VariablesPart{"Variables"};

  expression::Variables Variables() const;
  // Throws EExpressionError.
  expression::Value Evaluate() const;
  // The result as it is shown; empty when there is none. Without an expression there is neither.
  QString Value() const { return Worked().first; }
  // Why there is no result.
  QString Error() const { return Worked().second; }

 private:
  std::pair<QString, QString> Worked() const;
};
