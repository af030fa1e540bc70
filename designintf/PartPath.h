// Where an object stands in its component: through published properties and collections. Undo makes such
// objects anew; their places stay.
#pragma once
#include <vector>

#include "rtl/Component.h"

class PartPath {
 public:
  PartPath() = default;
  // Without a component when one of those that the object stands in does not publish it.
  explicit PartPath(TPersistent& object);

  TComponent* Component() const { return component_; }
  // The same place in another component.
  void SetComponent(TComponent* component) { component_ = component; }
  // What stands there now; null for nothing.
  TPersistent* Find() const;
  // "ListView1.Columns".
  QString Text() const;
  bool operator==(const PartPath&) const = default;

 private:
  struct Step {
    const TPropInfo* property = nullptr;  // null: an item of a collection
    int index = 0;
    bool operator==(const Step&) const = default;
  };
  TComponent* component_ = nullptr;
  std::vector<Step> steps_;
};
