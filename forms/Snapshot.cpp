#include "forms/Snapshot.h"

#include <algorithm>

#include "forms/CollectionPatch.h"

namespace forms {

Snapshot TakeSnapshot(const TComponent& component, const Document& document) {
  return PropertyValues(component, document, true);
}

std::vector<ValueChange> Difference(const Snapshot& before, const Snapshot& after) {
  std::vector<ValueChange> changes;
  QHash<QByteArray, const StoredValue*> old;
  for (const StoredValue& v : before) old.insert(v.path, &v);
  for (const StoredValue& v : after) {
    const StoredValue* was = old.take(v.path);
    if (was && was->value == v.value && (was->stored == v.stored || !v.stored)) continue;
    // What is stored neither before nor after follows from something else.
    if (was && !was->stored && !v.stored) continue;
    ValueChange change;
    change.path = v.path;
    if (was) change.before = was->value;
    change.after = v.value;
    change.storedAfter = v.stored;
    changes.push_back(std::move(change));
  }
  return changes;
}

namespace {
int IndexOf(const Object& object, QByteArrayView path) {
  for (std::size_t i = 0; i < object.properties.size(); ++i) {
    const QByteArrayView name = object.properties[i].Name();
    if (name.size() == path.size() && name.compare(path, Qt::CaseInsensitive) == 0)
      return static_cast<int>(i);
  }
  return -1;
}

// Behind the nearest predecessor in class order that the object has.
int InsertionIndex(const Object& object, const Snapshot& order, const QByteArray& path) {
  int last = -1;
  for (const StoredValue& v : order) {
    if (v.path == path) break;
    if (const int i = IndexOf(object, v.path); i >= 0) last = i;
  }
  return last + 1;
}

void Place(Object& object, std::optional<Property>& node, int index) {
  object.properties.insert(object.properties.begin() + index, std::move(*node));
  node.reset();
}
std::optional<Property> Remove(Object& object, int index) {
  std::optional<Property> node(std::move(object.properties[static_cast<std::size_t>(index)]));
  object.properties.erase(object.properties.begin() + index);
  return node;
}
}  // namespace

namespace {
// Whether leaving the value out would mean another one.
bool Differs(const Object& object, const ValueChange& change, const Snapshot* inherited) {
  if (!inherited)
    return change.storedAfter || (object.kind == ObjectKind::Inherited && !(change.before == change.after));
  const auto was = std::find_if(inherited->begin(), inherited->end(),
                                [&](const StoredValue& v) { return v.path == change.path; });
  if (was == inherited->end()) return change.storedAfter;
  if (change.storedAfter && !was->stored) return true;
  return was->stored && !(change.after == was->value);
}

Property NewNode(Document& document, const ValueChange& change, const Property* replaced) {
  if (!replaced || change.after.type != ValueType::Collection)
    return document.MakeProperty(change.path, change.after, replaced);
  Value value = PatchedCollection(document.Read(*replaced), change.before, change.after);
  value.Own();
  return document.MakeProperty(change.path, std::move(value), replaced);
}
}  // namespace

void PatchObject(Object& object, Document& document, const Snapshot& after, std::vector<ValueChange>& changes,
                 const Snapshot* inherited) {
  for (ValueChange& change : changes) {
    const int at = IndexOf(object, change.path);
    const bool leftOut = at < 0 && (change.takenOut || (change.follows && !inherited));
    const bool written = Differs(object, change, inherited) && !leftOut;
    change.index = at;
    if (at >= 0) change.nodeBefore = Remove(object, at);
    if (!written) continue;
    if (at < 0) change.index = InsertionIndex(object, after, change.path);
    object.properties.insert(object.properties.begin() + change.index,
                             NewNode(document, change, change.nodeBefore ? &*change.nodeBefore : nullptr));
    change.nodeAfter.emplace();  // stands in the object now
  }
}

std::optional<ValueChange> ExchangeNode(Object& object, QByteArrayView name, std::optional<Property> node) {
  ValueChange change;
  change.path = name.toByteArray();
  change.index = IndexOf(object, name);
  if (change.index < 0 && !node) return {};
  if (change.index >= 0)
    change.nodeBefore = Remove(object, change.index);
  else
    change.index = static_cast<int>(object.properties.size());
  if (!node) return change;
  Place(object, node, change.index);
  change.nodeAfter.emplace();  // stands in the object now
  return change;
}

void UnpatchObject(Object& object, std::vector<ValueChange>& changes) {
  for (auto it = changes.rbegin(); it != changes.rend(); ++it) {
    if (it->nodeAfter) it->nodeAfter = Remove(object, it->index);
    if (it->nodeBefore) {
      Place(object, it->nodeBefore, it->index);
      it->nodeBefore.emplace();
    }
  }
}

void RepatchObject(Object& object, std::vector<ValueChange>& changes) {
  for (ValueChange& change : changes) {
    if (change.nodeBefore) change.nodeBefore = Remove(object, change.index);
    if (change.nodeAfter) {
      Place(object, change.nodeAfter, change.index);
      change.nodeAfter.emplace();
    }
  }
}

void DescribeComponent(const TComponent& component, Document& document, Object& object) {
  object.className = component.StreamClassName();
  object.name = component.Name().toUtf8();
  for (StoredValue& v : PropertyValues(component, document, false))
    object.properties.push_back(document.MakeProperty(v.path, std::move(v.value)));
  for (const TComponent* child : component.GetChildren())
    DescribeComponent(*child, document, object.AddChild({}, {}));
}

}  // namespace forms
