#include "ide/ChildOrder.h"

#include <algorithm>

using forms::Object;

namespace {
// What the ancestor has here, in its order.
std::vector<Object*> InheritedIn(const Object& parent) {
  QHash<QByteArray, Object*> byName;
  for (const auto& child : parent.children)
    if (child->origin || child->kind == forms::ObjectKind::Inherited)
      byName.insert(child->name.toLower(), child.get());
  std::vector<Object*> inherited;
  if (parent.origin)
    for (const auto& theirs : parent.origin->object->children)
      if (Object* own = byName.take(theirs->name.toLower())) inherited.push_back(own);
  return inherited;
}

std::vector<Object*> Children(const Object& parent) {
  std::vector<Object*> all;
  for (const auto& child : parent.children) all.push_back(child.get());
  return all;
}
}  // namespace

std::vector<Object*> LoadedOrder(const Object& parent) {
  if (!parent.origin) return Children(parent);
  std::vector<Object*> order = InheritedIn(parent);
  const QSet<const Object*> inherited(order.begin(), order.end());
  for (const auto& child : parent.children) {
    if (!inherited.contains(child.get())) order.push_back(child.get());
    if (!child->position) continue;
    const auto at = std::find(order.begin(), order.end(), child.get());
    const auto to =
        std::clamp<std::int64_t>(*child->position, 0, static_cast<std::int64_t>(order.size()) - 1);
    order.erase(at);
    order.insert(order.begin() + static_cast<std::ptrdiff_t>(to), child.get());
  }
  return order;
}

void PlaceImplied(Object& parent) {
  const std::vector<Object*> order = LoadedOrder(parent);
  const auto written = [](std::vector<Object*> all) {
    std::erase_if(all, [](const Object* o) { return o->implied; });
    return all;
  };
  if (written(order) != written(Children(parent))) return;
  for (int i = 0; i < static_cast<int>(order.size()); ++i)
    if (const int at = order[static_cast<std::size_t>(i)]->IndexInParent(); at != i)
      parent.Insert(i, parent.Take(at));
}

void PositionChange::Apply(bool redo) const {
  object->position = redo ? after : before;
  object->headerChanged = redo || headerChangedBefore;
}

std::vector<PositionChange> GivePositions(Object& parent,
                                          const std::function<bool(const Object&)>& isControl) {
  std::vector<PositionChange> changes;
  if (!parent.origin) return changes;
  const auto family = [&](std::vector<Object*> all, bool controls) {
    std::erase_if(all, [&](const Object* o) { return isControl(*o) != controls; });
    return all;
  };
  const std::vector<Object*> loaded = LoadedOrder(parent), wanted = Children(parent);
  if (family(loaded, true) == family(wanted, true) && family(loaded, false) == family(wanted, false))
    return changes;
  // A child that is next in the ancestor's order is in its place already, and so is what comes behind all of
  // those.
  std::int64_t place = 0;  // controls come first, wherever the file has the others
  for (const bool controls : {true, false}) {
    std::vector<Object*> left = family(InheritedIn(parent), controls);
    for (Object* child : family(wanted, controls)) {
      std::optional<std::int64_t> position;
      if (!left.empty() && left.front() != child) position = place;
      ++place;
      std::erase(left, child);
      if (child->position == position) continue;
      changes.push_back({child, child->position, position, child->headerChanged});
      changes.back().Apply(true);
    }
  }
  return changes;
}
