#include "ide/Selection.h"

bool Selection::Contains(const TComponent& component) const {
  return std::find(components_.begin(), components_.end(), &component) != components_.end();
}

void Selection::Set(std::vector<TComponent*> components, TComponent& form) {
  if (components.size() > 1) std::erase(components, &form);
  components_ = std::move(components);
  if (components_.empty()) components_ = {&form};
}

void Selection::Drop(TComponent& component, TComponent& form) {
  std::erase(components_, &component);
  if (components_.empty() && &component != &form) components_ = {&form};
}
