// The selected components of a form. Something is always selected, and the form itself only alone.
#pragma once
#include "rtl/Component.h"

class Selection {
 public:
  const std::vector<TComponent*>& Components() const { return components_; }
  bool Contains(const TComponent& component) const;
  // Nothing: the form.
  void Set(std::vector<TComponent*> components, TComponent& form);
  // The component goes. The form takes its place when it was the only one, unless it is the form.
  void Drop(TComponent& component, TComponent& form);
  // For the time in which there are no components.
  void Clear() { components_.clear(); }

 private:
  std::vector<TComponent*> components_;
};
