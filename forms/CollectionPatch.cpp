#include "forms/CollectionPatch.h"

#include <algorithm>

#include "forms/KeptValues.h"

namespace forms {

namespace {
using Items = std::vector<CollectionItem>;

template <class Properties>
auto FindIn(Properties& properties, const QByteArray& path) {
  return std::find_if(properties.begin(), properties.end(),
                      [&](const NamedValue& p) { return SameName(p.path, path); });
}

CollectionItem PatchedItem(const CollectionItem& node, const CollectionItem& before,
                           const CollectionItem& after) {
  CollectionItem item;
  for (const NamedValue& p : node.properties) {
    const auto was = FindIn(before.properties, p.path), is = FindIn(after.properties, p.path);
    const bool wasThere = was != before.properties.end();
    if (is == after.properties.end()) {
      if (!wasThere) item.properties.push_back(p);  // at its default, and says so
    } else if (wasThere && was->value == is->value) {
      item.properties.push_back(p);
    } else {
      const bool lists = wasThere && p.value.type == ValueType::Collection;
      item.properties.push_back(
          {p.path, lists ? PatchedCollection(p.value, was->value, is->value) : is->value});
    }
  }
  // What is new stands behind the nearest that is written before it.
  std::size_t at = 0;
  for (const NamedValue& p : after.properties) {
    if (const auto there = FindIn(item.properties, p.path); there != item.properties.end()) {
      at = static_cast<std::size_t>(there - item.properties.begin()) + 1;
      continue;
    }
    const auto was = FindIn(before.properties, p.path);
    if (was != before.properties.end() && was->value == p.value) continue;  // the file has left it out
    item.properties.insert(item.properties.begin() + static_cast<std::ptrdiff_t>(at++), p);
  }
  return item;
}

// For each item after the edit, which one it was before; -1 for what is new. Those that nobody changed are
// found where they have gone to; as many changed ones as there were are the same, in their order.
std::vector<int> Origins(const Items& before, const Items& after) {
  std::vector<int> origins(after.size(), -1);
  std::vector<bool> taken(before.size());
  std::size_t next = 0;
  for (std::size_t i = 0; i < after.size(); ++i) {
    // Behind the one found last, and round: what has moved together is found at once.
    for (std::size_t step = 0; step < before.size(); ++step) {
      const std::size_t k = (next + step) % before.size();
      if (taken[k] || !(before[k] == after[i])) continue;
      taken[k] = true;
      origins[i] = static_cast<int>(k);
      next = k + 1;
      break;
    }
  }
  if (std::count(taken.begin(), taken.end(), false) != std::count(origins.begin(), origins.end(), -1))
    return origins;
  std::size_t left = 0;
  for (int& origin : origins) {
    if (origin >= 0) continue;
    while (taken[left]) ++left;
    origin = static_cast<int>(left++);
  }
  return origins;
}
}  // namespace

Value PatchedCollection(const Value& node, const Value& before, const Value& after) {
  const bool known = node.type == ValueType::Collection && after.type == ValueType::Collection &&
                     node.collection.size() == before.collection.size();
  if (!known) return after;
  Value patched = after;
  const std::vector<int> origins = Origins(before.collection, after.collection);
  for (std::size_t i = 0; i < origins.size(); ++i) {
    if (origins[i] < 0) continue;
    const auto from = static_cast<std::size_t>(origins[i]);
    CollectionItem& item = patched.collection[i];
    item = PatchedItem(node.collection[from], before.collection[from], after.collection[i]);
    if (from == i) item.index = node.collection[i].index;
  }
  return patched;
}

}  // namespace forms
