// Components that stand inside of others of their kind and are no controls: menu items, actions, fields.
//
// The one they stand in keeps their order; their owner is the form.
#pragma once
#include "rtl/Component.h"

class TNestedComponent : public TComponent {
  VRX_CLASS(TNestedComponent)
 public:
  using TComponent::TComponent;
  ~TNestedComponent() override;

  // What stands in this one, in order.
  const std::vector<TNestedComponent*>& Nested() const { return nested_; }
  TNestedComponent* Around() const { return around_; }
  // Moves it to the end of another one; null takes it out. Refuses what lies inside of it, and what does not
  // take such components (TakesNested).
  void SetAround(TNestedComponent* around);
  // Its place among those that stand beside it.
  int NestedIndex() const;
  void SetNestedIndex(int index);

  TComponent* GetParentComponent() const override;
  bool HasParent() const override { return around_ != nullptr; }
  void SetParentComponent(TComponent* parent) override;
  std::vector<TComponent*> GetChildren() const override;

 protected:
  virtual bool TakesNested(const TNestedComponent&) const { return false; }

 private:
  std::vector<TNestedComponent*> nested_;
  TNestedComponent* around_ = nullptr;
};
