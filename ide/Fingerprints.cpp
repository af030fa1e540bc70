#include "ide/Fingerprints.h"

#include "forms/PropertyValues.h"
#include "ide/BoundsCheck.h"
#include "rtl/ClassRegistry.h"

namespace {
std::size_t HashOf(const forms::Value& value, std::size_t seed) {
  seed = qHashMulti(seed, static_cast<int>(value.type), value.integer, static_cast<double>(value.real),
                    value.bytes, value.wide, value.elements.size());
  for (const QByteArray& element : value.elements) seed = qHash(element, seed);
  for (const forms::Value& item : value.items) seed = HashOf(item, seed);
  for (const forms::CollectionItem& item : value.collection) {
    seed = qHashMulti(seed, item.index.has_value(), item.index.value_or(0), item.properties.size());
    for (const forms::NamedValue& p : item.properties) seed = HashOf(p.value, qHash(p.path, seed));
  }
  return seed;
}

std::size_t PrintOf(const TComponent& component, const forms::Document& document) {
  // A control's place is told of by TControl, and changes with every drag.
  const bool control = As<TControl>(&component);
  std::size_t print = 0;
  for (const forms::StoredValue& v : forms::PropertyValues(component, document, false))
    if (!control || !IsBoundsProperty(v.path)) print = HashOf(v.value, qHash(v.path, print));
  return print;
}
}  // namespace

bool Fingerprints::Needs(const TComponent& component) { return !PromisesTelling(component.ClassType()); }

void Fingerprints::Take(const TComponent& component, const forms::Object& object,
                        const forms::Document& document) {
  if (Needs(component)) prints_.insert(&object, PrintOf(component, document));
}

bool Fingerprints::Differs(const TComponent& component, const forms::Object& object,
                           const forms::Document& document) const {
  const auto print = prints_.find(&object);
  return print != prints_.end() && *print != PrintOf(component, document);
}

std::vector<const forms::Object*> Fingerprints::Differing(const forms::ObjectMap& map,
                                                          const forms::Document& document) {
  std::vector<const forms::Object*> differing;
  prints_.removeIf([&](const auto& print) {
    const TComponent* c = map.ComponentOf(*print.key());
    if (c && *print != PrintOf(*c, document)) differing.push_back(print.key());
    return !c;
  });
  return differing;
}
