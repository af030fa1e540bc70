// Where the property paths of form files lead to ("Font.Color", "Lines.Strings").
#pragma once
#include "rtl/Component.h"

namespace forms {

// What a property path of a form file leads to.
struct PropertyTarget {
  TPersistent* instance = nullptr;
  const TPropInfo* prop = nullptr;  // null with an instance: the content of a string list ("Lines.Strings")
  QByteArrayView path{};            // as messages name it; empty: the property's own name
  bool Found() const { return instance != nullptr; }
};
// The path must live as long as what it leads to is used.
PropertyTarget FindTarget(TPersistent& root, QByteArrayView path);
// What messages call it.
QString NameOf(const PropertyTarget& target);

}  // namespace forms
