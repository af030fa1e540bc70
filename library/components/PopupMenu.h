// A context menu whose pictures come from an image list of the library, too.
#pragma once
#include "vcl/Menu.h"

class TVRXPopupMenu : public TPopupMenu {
  VRX_CLASS(TVRXPopupMenu)
 public:
  using TPopupMenu::TPopupMenu;
  // For items that have no picture of their own, when there is no plain list.
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};
};
