// Published properties as the values that a form file holds.
#pragma once
#include "forms/Document.h"
#include "rtl/Component.h"

namespace forms {

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
