// Menus and what is in them.
#pragma once
#include "rtl/Strings.h"
#include "vcl/ControlTypes.h"
#include "vcl/ImageList.h"
#include "vcl/Nested.h"
#include "vcl/Picture.h"
#include "vcl/ShortCut.h"

class TBasicAction;

enum class TMenuAutoFlag : std::uint8_t { maAutomatic, maManual, maParent };
VRX_ENUM(TMenuAutoFlag, {"maAutomatic", "maManual", "maParent"})
enum class TMenuBreak : std::uint8_t { mbNone, mbBreak, mbBarBreak };
VRX_ENUM(TMenuBreak, {"mbNone", "mbBreak", "mbBarBreak"})
enum class TPopupAlignment : std::uint8_t { paLeft, paRight, paCenter };
VRX_ENUM(TPopupAlignment, {"paLeft", "paRight", "paCenter"})
enum class TTrackButton : std::uint8_t { tbRightButton, tbLeftButton };
VRX_ENUM(TTrackButton, {"tbRightButton", "tbLeftButton"})

class TMenuItem : public TNestedComponent {
  VRX_CLASS(TMenuItem)
 public:
  using TNestedComponent::TNestedComponent;

  static constexpr TKept<TBasicAction*> Action{"Action"};
  static constexpr TKept<bool> AutoCheck{"AutoCheck", false};
  static constexpr TKept<TMenuAutoFlag> AutoHotkeys{"AutoHotkeys", TMenuAutoFlag::maParent};
  static constexpr TKept<TMenuAutoFlag> AutoLineReduction{"AutoLineReduction", TMenuAutoFlag::maParent};
  static constexpr TKept<TGlyph*> Bitmap{"Bitmap"};
  static constexpr TKept<TMenuBreak> Break{"Break", TMenuBreak::mbNone};
  static constexpr TKept<QString> Caption{"Caption"};
  static constexpr TKept<bool> Checked{"Checked", false};
  static constexpr TKept<bool> Default{"Default", false};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<std::uint8_t> GroupIndex{"GroupIndex", 0};
  static constexpr TKept<int> HelpContext{"HelpContext", 0};
  static constexpr TKept<QString> Hint{"Hint"};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<QString> ImageName{"ImageName"};
  static constexpr TKept<bool> RadioItem{"RadioItem", false};
  static constexpr TKept<TShortCut> ShortCut{"ShortCut"};
  static constexpr TKept<TCustomImageList*> SubMenuImages{"SubMenuImages"};
  static constexpr TKept<bool> Visible{"Visible", true};

  bool IsSeparator() const { return Get(Caption) == u"-"; }
  // What the item shows: its own caption, or that of its action.
  QString ShownCaption() const;

 protected:
  bool TakesNested(const TNestedComponent& other) const override;
};

class TMenu : public TNestedComponent {
  VRX_CLASS(TMenu)
 public:
  using TNestedComponent::TNestedComponent;
  static constexpr TKept<TMenuAutoFlag> AutoHotkeys{"AutoHotkeys", TMenuAutoFlag::maAutomatic};
  static constexpr TKept<TMenuAutoFlag> AutoLineReduction{"AutoLineReduction", TMenuAutoFlag::maAutomatic};
  static constexpr TKept<TCustomImageList*> Images{"Images"};
  static constexpr TKept<bool> OwnerDraw{"OwnerDraw", false};

 protected:
  bool TakesNested(const TNestedComponent& other) const override;
};

class TMainMenu : public TMenu {
  VRX_CLASS(TMainMenu)
 public:
  using TMenu::TMenu;
};

class TPopupMenu : public TMenu {
  VRX_CLASS(TPopupMenu)
 public:
  using TMenu::TMenu;
};
