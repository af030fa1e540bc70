// An event at regular intervals, counted by the machine's fine clock.
#pragma once
#include "rtl/Component.h"

class TVRXHiTimer : public TComponent {
  VRX_CLASS(TVRXHiTimer)
 public:
  using TComponent::TComponent;
};
