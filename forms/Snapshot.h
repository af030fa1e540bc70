// What a component looked like before and after an edit, and how its document follows.
#pragma once
#include "forms/PropertyValues.h"

namespace forms {

// Every property value of a component, defaults included.
using Snapshot = std::vector<StoredValue>;
Snapshot TakeSnapshot(const TComponent& component, const Document& document);

// One property that an edit changed.
struct ValueChange {
  QByteArray path;
  Value before;
  Value after;
  bool storedAfter = true;
  // The layout's doing: written only where the file says something about it already, or the ancestor is known
  // and says something else. A file that leaves out a coordinate leaves it to an ancestor, whose layout nobody
  // knows here.
  bool follows = false;
  bool takenOut = false;  // on purpose: it is not written again
  // The document's own node on either side of the edit; none when the property was not written.
  std::optional<Property> nodeBefore;
  std::optional<Property> nodeAfter;
  int index = -1;  // where the node stands or stood
};

std::vector<ValueChange> Difference(const Snapshot& before, const Snapshot& after);

// Puts the new values into the object: changed lines are replaced, those at default removed, new ones
// inserted in class order. Leaving out means "as the ancestor has it" in an inherited object: `inherited` are
// the values that it has from there; where nobody knows them every change is kept.
void PatchObject(Object& object, Document& document, const Snapshot& after, std::vector<ValueChange>& changes,
                 const Snapshot* inherited = nullptr);
// Puts a property, or none, in the place of the one of that name. Nothing when there is neither.
std::optional<ValueChange> ExchangeNode(Object& object, QByteArrayView name, std::optional<Property> node);
// Exchanges the nodes of a patched object with those from before, or back again.
void UnpatchObject(Object& object, std::vector<ValueChange>& changes);
void RepatchObject(Object& object, std::vector<ValueChange>& changes);

// A new object for a component and everything inside it.
void DescribeComponent(const TComponent& component, Document& document, Object& object);

}  // namespace forms
