// Collections whose items tell something about the controls of a container.
#pragma once
#include "rtl/Collection.h"
#include "vcl/Control.h"

class TControlItem : public TCollectionItem {
  VRX_CLASS(TControlItem)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<TControl*> Control{"Control"};

  QString DisplayName() const override;

 protected:
  // The component around hears when the control is freed.
  void ReferenceChanged(TPersistent* before, TPersistent* after) override;
};

class TControlItems : public TCollection {
 public:
  using TCollection::TCollection;
  TControlItem* ItemOf(const TControl& control) const;
  // Takes out those of a component that is going.
  void Forget(const TComponent* component);
  // Takes out the items of what is not among these, and those of nothing.
  void Keep(const std::vector<TControl*>& controls);
};
