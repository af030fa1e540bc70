// What a button bar holds: sections with items in them.
#pragma once
#include "library/values/Font3D.h"
#include "rtl/Collection.h"
#include "vcl/Picture.h"

class TVRXBarItem : public TCollectionItem {
  VRX_CLASS(TVRXBarItem)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<QString> Caption{"Caption"};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  // Shown in place of the picture of the image list.
  static constexpr TKept<TGlyph*> LargePart{"LargeGlyph"};
  static constexpr TKept<TGlyph*> SmallPart{"SmallGlyph"};

  const TGlyph* Glyph(bool small) const;  // null for none
  TGlyph* LargeGlyph() const { return Get(LargePart); }
  TGlyph* SmallGlyph() const { return Get(SmallPart); }
  QString DisplayName() const override;
};

class TVRXBarItems : public TCollection {
  VRX_CLASS(TVRXBarItems)
 public:
  explicit TVRXBarItems(TPersistent* owner) : TCollection(TVRXBarItem::StaticClass(), owner) {}
  TVRXBarItem& At(int index) const { return static_cast<TVRXBarItem&>(*Item(index)); }
};

class TVRXBarSection : public TCollectionItem {
  VRX_CLASS(TVRXBarSection)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<QString> Caption{"Caption"};
  static constexpr TKept<TFont*> FontPart{"Font"};
  static constexpr TKept<TVRXFont3D*> Font3DPart{"Font3D"};
  static constexpr TKept<TVRXBarItems*> ItemsPart{"Items"};
  // The picture of its heading, in the list of small pictures.
  static constexpr TKept<int> ListIndex{"ListIndex", -1};
  static constexpr TKept<bool> ParentFont{"ParentFont", true};
  static constexpr TKept<bool> SmallImages{"SmallImages", false};

  TFont* Font() const { return Get(FontPart); }
  TVRXFont3D* Font3D() const { return Get(Font3DPart); }
  TVRXBarItems* Items() const { return Get(ItemsPart); }
  int ItemCount() const { return IsKept(&ItemsPart) ? Items()->Count() : 0; }
  QString DisplayName() const override;
};

class TVRXBarSections : public TCollection {
  VRX_CLASS(TVRXBarSections)
 public:
  explicit TVRXBarSections(TPersistent* owner) : TCollection(TVRXBarSection::StaticClass(), owner) {}
  TVRXBarSection& At(int index) const { return static_cast<TVRXBarSection&>(*Item(index)); }
};
