// The selected components of a form. Something is always selected, and the form itself only alone.
#pragma once
#include "designintf/Designer.h"
#include "designintf/PartPath.h"

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

  // Parts of a component (items of its collections) in place of the component, which is selected with them.
  // They are kept by their places: undo makes them anew.
  void SetParts(const TDesignerSelections& parts, TComponent& form);
  // Those that are there; none when the components themselves are selected.
  std::vector<PartPath> Parts() const;
  // The parts that are there, else the components.
  TDesignerSelections Inspected() const;

 private:
  std::vector<TComponent*> components_;
  std::vector<PartPath> parts_;
};
