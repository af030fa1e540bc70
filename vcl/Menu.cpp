#include "vcl/Menu.h"

#include "rtl/Class.h"
#include "vcl/Action.h"
#include "vcl/GlyphShowMode.h"

enum class TMenuAnimations : std::uint8_t {
  maLeftToRight,
  maRightToLeft,
  maTopToBottom,
  maBottomToTop,
  maNone
};
VRX_ENUM(TMenuAnimations, {"maLeftToRight", "maRightToLeft", "maTopToBottom", "maBottomToTop", "maNone"})
using TMenuAnimation = TSet<TMenuAnimations>;
VRX_SET(TMenuAnimation, TMenuAnimations)

const TClass& TMenuItem::StaticClass() {
  static const TClass cls(
      DescribeClass<TMenuItem>("TMenuItem", TNestedComponent::StaticClass())
          .PublishedAll(Action, AutoCheck, AutoHotkeys, AutoLineReduction, Bitmap, Break, Caption, Checked,
                        Default, Enabled, GroupIndex, HelpContext, Hint, ImageIndex, ImageName, RadioItem,
                        ShortCut, SubMenuImages, Visible)
          .Passive("GlyphShowMode", TGlyphShowMode::gsmApplication)
          .Passive("RightJustify", false)
          .Passive("ShowAlwaysCheckable", false)
          .Passive("SubMenuImagesWidth", 0)
          .Event("OnAdvancedDrawItem", "TAdvancedMenuDrawItemEvent")
          .Event("OnClick")
          .Event("OnDrawItem", "TMenuDrawItemEvent")
          .Event("OnMeasureItem", "TMenuMeasureItemEvent")
          .ClassDoc(QStringLiteral("An entry of a menu."),
                    "pen line 1.5 brush fill box 3.5 8.5 17 7 0 pen accent 2 path 6.5 12 14 12 "
                    "pen line 1.5 path 16.5 10.5 18 12 16.5 13.5"));
  return cls;
}

QString TMenuItem::ShownCaption() const {
  if (const QString own = Get(Caption); !own.isEmpty()) return own;
  const auto* action = As<TAction>(Get(Action));
  return action ? action->Get(TAction::Caption) : QString();
}

bool TMenuItem::TakesNested(const TNestedComponent& other) const { return As<TMenuItem>(&other) != nullptr; }
bool TMenu::TakesNested(const TNestedComponent& other) const { return As<TMenuItem>(&other) != nullptr; }

const TClass& TMenu::StaticClass() {
  static const TClass cls(DescribeClass<TMenu>("TMenu", TNestedComponent::StaticClass())
                              .PublishedAll(AutoHotkeys, AutoLineReduction, Images, OwnerDraw)
                              .Passive("ImagesWidth", 0));
  return cls;
}

const TClass& TMainMenu::StaticClass() {
  static const TClass cls(
      DescribeClass<TMainMenu>("TMainMenu", TMenu::StaticClass())
          .Passive("AutoMerge", false)
          .Passive("BiDiMode", TBiDiMode::bdLeftToRight)
          .Passive("ParentBiDiMode", true)
          .Event("OnChange", "TMenuChangeEvent")
          .ClassDoc(QStringLiteral("The menu bar of a form."),
                    "pen line 1.5 brush fill box 2.5 4.5 19 15 0 pen accent 2 path 5 8 10 8 path 13 8 18 8"));
  return cls;
}

const TClass& TPopupMenu::StaticClass() {
  static const TClass cls(DescribeClass<TPopupMenu>("TPopupMenu", TMenu::StaticClass())
                              .Passive("Alignment", TPopupAlignment::paLeft)
                              .Passive("AutoPopup", true)
                              .Passive("BiDiMode", TBiDiMode::bdLeftToRight)
                              .Passive("HelpContext", 0)
                              .Passive("MenuAnimation", TMenuAnimation{})
                              .Passive("ParentBiDiMode", true)
                              .Passive("TrackButton", TTrackButton::tbRightButton)
                              .Event("OnChange", "TMenuChangeEvent")
                              .Event("OnClose")
                              .Event("OnPopup")
                              .ClassDoc(QStringLiteral("A menu that appears where it is called."),
                                        "pen line 1.5 brush fill box 5.5 3.5 13 17 0 pen accent 2 path 8 8 "
                                        "15 8 path 8 12 15 12 path 8 16 13 16"));
  return cls;
}
