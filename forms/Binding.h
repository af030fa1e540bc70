// Between values of a form file and published properties.
#pragma once
#include <functional>

#include "forms/Document.h"
#include "rtl/Component.h"

namespace forms {

// A component reference waits until all components exist.
struct PendingReference {
  TComponent* holder = nullptr;
  TPersistent* instance = nullptr;
  const TPropInfo* prop = nullptr;
  QByteArray target;
  const Property* source = nullptr;
};

// What a property path of a form file leads to.
struct PropertyTarget {
  TPersistent* instance = nullptr;
  const TPropInfo* prop = nullptr;  // null with an instance: the content of a string list ("Lines.Strings")
  bool Found() const { return instance != nullptr; }
};
PropertyTarget FindTarget(TPersistent& root, QByteArrayView path);

// The ordinal that a value stands for. Throws like ApplyValue.
std::int64_t OrdinalOf(const PropertyTarget& target, const Value& value);
// Gives the property the value. References are appended to `pending`. Throws Exception when the value does
// not fit, saying what was expected; the property is then unchanged.
void ApplyValue(const PropertyTarget& target, const Value& value, const Document& document,
                std::vector<PendingReference>& pending);
// Looks the references up among the root's components; those that cannot be found are returned.
std::vector<PendingReference> ResolveReferences(TComponent& root, std::vector<PendingReference> pending);
// One property from its text in a form file, references included. Throws like ApplyValue.
void ApplyNow(TComponent& root, const PropertyTarget& target, const Value& value, const Document& document);

// The value of a property as a form file holds it; nothing for a reference to another form.
std::optional<Value> ValueOf(const TPersistent& instance, const TPropInfo& prop, const Document& document);

struct StoredValue {
  QByteArray path;
  Value value;
  bool stored = true;  // false: at default, a form file leaves it out
};
// Every published and streamed property of the instance in form-file order. `all`: those at default too.
std::vector<StoredValue> PropertyValues(const TPersistent& instance, const Document& document, bool all);

}  // namespace forms
