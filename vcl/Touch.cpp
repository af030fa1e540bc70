#include "vcl/Touch.h"

#include "rtl/Class.h"

const TClass& TTouchManager::StaticClass() {
  static const TClass cls(DescribeClass<TTouchManager>("TTouchManager", TPersistent::StaticClass())
                              .Passive<TComponent*>("GestureManager")
                              .Passive("InteractiveGestureOptions", TInteractiveGestureOptions{})
                              .Passive("InteractiveGestures", TInteractiveGestures{})
                              .Passive("ParentTabletOptions", true)
                              .Passive("TabletOptions", TTabletOptions{TTabletOption::toPressAndHold,
                                                                       TTabletOption::toSmoothScrolling}));
  return cls;
}
