#include "vcl/ControlItems.h"

#include <algorithm>

const TClass& TControlItem::StaticClass() {
  static const TClass cls(DescribeClass<TControlItem>("TControlItem", TCollectionItem::StaticClass())
                              .Declared(Control)
                              .Type(TControl::StaticTypeInfo()));
  return cls;
}

QString TControlItem::DisplayName() const {
  const TControl* control = Get(Control);
  return control ? control->Name() : TCollectionItem::DisplayName();
}

void TControlItem::ReferenceChanged(TPersistent*, TPersistent* after) {
  TPersistent* holder = Collection();
  while (holder && !As<TComponent>(holder)) holder = holder->GetOwner();
  if (auto* component = As<TComponent>(after); component && holder)
    component->FreeNotification(As<TComponent>(holder));
}

TControlItem* TControlItems::ItemOf(const TControl& control) const {
  for (int i = 0; i < Count(); ++i)
    if (auto* item = static_cast<TControlItem*>(Item(i));
        item->GetWire(TControlItem::Control).Object == &control)
      return item;
  return nullptr;
}

// By address alone: nothing else is left of it.
void TControlItems::Forget(const TComponent* component) {
  for (int i = Count(); i-- > 0;)
    if (static_cast<TControlItem*>(Item(i))->GetWire(TControlItem::Control).Object == component) Delete(i);
}

void TControlItems::Keep(const std::vector<TControl*>& controls) {
  for (int i = Count(); i-- > 0;) {
    TControl* control = static_cast<TControlItem*>(Item(i))->Get(TControlItem::Control);
    // What the file names and is not here may be there when it is built.
    if (!control && Item(i)->Unread()) continue;
    if (std::find(controls.begin(), controls.end(), control) == controls.end()) Delete(i);
  }
}
