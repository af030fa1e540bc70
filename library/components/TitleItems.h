// What stands in a form's title bar beside the caption: a system menu, and buttons.
#pragma once
#include "rtl/Collection.h"
#include "rtl/Strings.h"
#include "vcl/FormDecor.h"
#include "vcl/ImageList.h"
#include "vcl/Picture.h"

class TVRXSysMenu : public TFormDecor {
  VRX_CLASS(TVRXSysMenu)
 public:
  explicit TVRXSysMenu(TComponent* owner);
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<TIcon*> GlyphPart{"Glyph"};
  static constexpr TKept<TStrings*> ItemsPart{"Items"};
  static constexpr TKept<bool> ShowIcon{"ShowIcon", true};
  TIcon* Glyph() const { return Get(GlyphPart); }
  TStrings* Items() const { return Get(ItemsPart); }

  QRect PaintTitleItems(TCanvas& canvas, const QRect& room, const QColor& ink) const override;
};

class TVRXCaptionButton : public TCollectionItem {
  VRX_CLASS(TVRXCaptionButton)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<QString> Caption{"Caption"};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<bool> Visible{"Visible", true};
  static constexpr TKept<int> Width{"Width", 24};
  QString DisplayName() const override {
    return Get(Caption).isEmpty() ? QStringLiteral("Button") : Get(Caption);
  }
};
class TVRXCaptionButtonList : public TCollection {
  VRX_CLASS(TVRXCaptionButtonList)
 public:
  explicit TVRXCaptionButtonList(TPersistent* owner = nullptr)
      : TCollection(TVRXCaptionButton::StaticClass(), owner) {}
};

class TVRXCaptionButtons : public TFormDecor {
  VRX_CLASS(TVRXCaptionButtons)
 public:
  explicit TVRXCaptionButtons(TComponent* owner);
  static constexpr TKept<TVRXCaptionButtonList*> ButtonsPart{"Buttons"};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};
  TVRXCaptionButtonList* Buttons() const { return Get(ButtonsPart); }

  QRect PaintTitleItems(TCanvas& canvas, const QRect& room, const QColor& ink) const override;
};
