// Component references of form files: they wait until all components exist.
#pragma once
#include "forms/PropertyPath.h"

class TCollectionItem;

namespace forms {
class Property;

// A component reference waits until all components exist.
struct PendingReference {
  TComponent* holder = nullptr;
  TPersistent* instance = nullptr;
  const TPropInfo* prop = nullptr;
  QByteArray target;
  const Property* source = nullptr;
  // Why it could not be resolved: there is a component of that name, but of another class.
  const TComponent* unfit = nullptr;
  // Inside of a collection: the item, which property of it this is, and at which place.
  TCollectionItem* item = nullptr;
  std::size_t index = 0;
  QByteArray path{};
};
// "Label2, which is a TLabel and no TWinControl"; "Gone, which is not on this form".
QString WhyUnresolved(const PendingReference& reference);
// Equal names in a row share their memory.
void AddReference(std::vector<PendingReference>& pending, const PropertyTarget& target, QByteArrayView name);
// Looks the references up among the root's components; those that cannot be found are returned. Items of
// collections keep theirs.
std::vector<PendingReference> ResolveReferences(TComponent& root, std::vector<PendingReference> pending);
// Looks once more for what the items of a property's collection could not refer to.
void ResolveKept(TComponent& root, const PropertyTarget& target);
// How form files call the root that a component stands on, whatever its name is.
inline constexpr char RootWord[] = "Owner";

}  // namespace forms
