// Fuzz target: an expression that somebody typed, with the variables of a form.
#include "library/components/ExpressionEval.h"
#include "tests/fuzz/Target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QString all = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const qsizetype line = all.indexOf(u'\n');
  TVRXExpressionEval eval(nullptr);
  const QString text = all.left(line);
  eval.Set(TVRXExpressionEval::Expression, text);
  if (line >= 0) eval.Get(TVRXExpressionEval::VariablesPart)->SetText(all.mid(line + 1));
  try {
    const expression::Value value = eval.Evaluate();
    Require(eval.Value() == expression::ToText(value) || text.contains(u"now", Qt::CaseInsensitive) ||
                text.trimmed().isEmpty(),
            "the same expression has the same value");
    Require(eval.Error().isEmpty(), "what has a value has no error");
  } catch (const expression::EExpressionError& error) {
    Require(error.Position() >= 0 && error.Position() <= text.size(), "an error stands inside of the text");
    Require(eval.Value().isEmpty(), "what is wrong has no value");
  }
  return 0;
}
