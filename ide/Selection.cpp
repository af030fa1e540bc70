#include "ide/Selection.h"

#include <algorithm>

bool Selection::Contains(const TComponent& component) const {
  return std::find(components_.begin(), components_.end(), &component) != components_.end();
}

void Selection::Set(std::vector<TComponent*> components, TComponent& form) {
  if (components.size() > 1) std::erase(components, &form);
  components_ = std::move(components);
  if (components_.empty()) components_ = {&form};
  parts_.clear();
}

void Selection::Drop(TComponent& component, TComponent& form) {
  std::erase(components_, &component);
  if (components_.empty() && &component != &form) components_ = {&form};
  std::erase_if(parts_, [&](const PartPath& part) { return part.Component() == &component; });
}

void Selection::SetParts(const TDesignerSelections& list, TComponent& form) {
  std::vector<TComponent*> components;
  std::vector<PartPath> parts;
  const auto add = [&](TComponent* c) {
    if (std::find(components.begin(), components.end(), c) == components.end()) components.push_back(c);
  };
  for (TPersistent* object : list) {
    if (auto* component = As<TComponent>(object)) {
      add(component);
    } else if (object) {
      if (PartPath part(*object); part.Component()) {
        add(part.Component());
        parts.push_back(std::move(part));
      }
    }
  }
  Set(std::move(components), form);
  if (parts.size() == list.size()) parts_ = std::move(parts);
}

std::vector<PartPath> Selection::Parts() const {
  std::vector<PartPath> found;
  std::copy_if(parts_.begin(), parts_.end(), std::back_inserter(found),
               [](const PartPath& part) { return part.Find(); });
  return found;
}

TDesignerSelections Selection::Inspected() const {
  TDesignerSelections found;
  for (const PartPath& part : Parts()) found.push_back(part.Find());
  if (found.empty()) found.assign(components_.begin(), components_.end());
  return found;
}
