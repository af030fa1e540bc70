// Values of form files into published properties.
#pragma once
#include "forms/Document.h"
#include "forms/References.h"

namespace forms {

// The property would take a name, but not this one.
class EUnknownName : public EPropertyError {
 public:
  EUnknownName(const QString& text, QByteArray type, QByteArray word)
      : EPropertyError(text), type_(std::move(type)), word_(std::move(word)) {}
  const QByteArray& Type() const { return type_; }
  const QByteArray& Word() const { return word_; }

 private:
  QByteArray type_, word_;
};

// The ordinal that a value stands for. Throws like ApplyValue.
std::int64_t OrdinalOf(const PropertyTarget& target, const Value& value);
// Gives the property the value. References are appended to `pending`. Throws Exception when the value does
// not fit, saying what was expected; the property is then unchanged.
void ApplyValue(const PropertyTarget& target, const Value& value, const Document& document,
                std::vector<PendingReference>& pending);
// One property from its text in a form file, references included. Throws like ApplyValue, except for what
// items of a collection keep.
void ApplyNow(TComponent& root, const PropertyTarget& target, const Value& value, const Document& document);

}  // namespace forms
