// A key that reaches the program whatever window is in front.
#pragma once
#include "rtl/Component.h"
#include "vcl/ShortCut.h"

class TVRXGlobalHotKey : public TComponent {
  VRX_CLASS(TVRXGlobalHotKey)
 public:
  using TComponent::TComponent;
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<TShortCut> HotKey{"HotKey"};

  // Why the key would not do: none, or one that everybody types. Empty when it would.
  QString Problem() const;
};
