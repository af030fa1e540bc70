// What items of collections did not take of a form file. They keep it, and it is written again where it
// stood, unless the item has got another value for it.
#pragma once
#include <exception>

#include "forms/PropertyPath.h"
#include "forms/Value.h"
#include "rtl/Collection.h"
#include "rtl/PropAccess.h"

namespace forms {

struct KeptValue {
  std::size_t index;  // its place among the item's properties
  NamedValue property;
  std::exception_ptr refused;
};
using KeptValues = std::vector<KeptValue>;
const KeptValues& KeptBy(const TCollectionItem& item);
void SetKept(TCollectionItem& item, KeptValues kept);
// Property names are the same in any case of letters.
bool SameName(QByteArrayView a, QByteArrayView b);

// Without what the item keeps of these properties.
template <class F>
KeptValues KeptWithout(const TCollectionItem& item, F gone) {
  KeptValues kept = KeptBy(item);
  std::erase_if(kept, [&](const KeptValue& k) { return gone(k.property.path); });
  return kept;
}

// The items, and those of the collections inside of them, with what their properties are called.
template <class F>
void ForEachItem(const TCollection& collection, const QByteArray& path, F visit) {
  for (int i = 0; i < collection.Count(); ++i) {
    TCollectionItem& item = *collection.Item(i);
    const QByteArray inside = path + '[' + QByteArray::number(i) + "].";
    visit(item, inside);
    for (const TPropInfo* prop : item.ClassType().Properties())
      if (prop->IsPart() && !prop->Access->IsUntouched(item))
        if (const auto* inner = As<TCollection>(GetObjectProp(item, *prop)))
          ForEachItem(*inner, inside + prop->Name, visit);
  }
}
template <class F>
void ForEachItem(const PropertyTarget& target, F visit) {
  const TPersistent* part =
      target.prop && target.prop->IsPart() ? GetObjectProp(*target.instance, *target.prop) : nullptr;
  if (const auto* collection = As<TCollection>(part))
    ForEachItem(*collection, target.path.isEmpty() ? target.prop->Name : target.path.toByteArray(), visit);
}

struct UnreadValue {
  QByteArray path;             // "Columns[1].Foreign"
  std::exception_ptr refused;  // none: the item has no such property
};
// All of a property's collection, and of those inside of its items.
std::vector<UnreadValue> UnreadValues(const PropertyTarget& target);
// What the items of a property's collection kept of values that they have got anew is gone.
void ForgetReplaced(const PropertyTarget& target);

}  // namespace forms
