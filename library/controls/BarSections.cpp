#include "library/controls/BarSections.h"

#include "rtl/Class.h"

const TClass& TVRXBarItem::StaticClass() {
  static const TClass cls(DescribeClass<TVRXBarItem>("TVRXBarItem", TCollectionItem::StaticClass())
                              .Published(Caption)
                              .Doc(QStringLiteral("The text of the item."))
                              .Published(Enabled)
                              .Passive<QString>("Hint")
                              .Published(ImageIndex)
                              .Doc(QStringLiteral("The item's picture in the bar's image lists."))
                              .Published(LargePart)
                              .Doc(QStringLiteral("A large picture of its own."))
                              .Published(SmallPart)
                              .Doc(QStringLiteral("A small picture of its own."))
                              .Passive("Tag", 0));
  return cls;
}
const TClass& TVRXBarItems::StaticClass() {
  static const TClass cls(DescribeClass<TVRXBarItems>("TVRXBarItems", TCollection::StaticClass()));
  return cls;
}
const TClass& TVRXBarSection::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXBarSection>("TVRXBarSection", TCollectionItem::StaticClass())
          .Published(Caption)
          .Doc(QStringLiteral("The text of the heading."))
          .Published(FontPart)
          .Doc(QStringLiteral("The letters of the items, without ParentFont."))
          .Published(Font3DPart)
          .Doc(QStringLiteral("Light and shadow of the items' letters, without ParentFont."))
          .Published(ItemsPart)
          .Published(ListIndex)
          .Doc(QStringLiteral("The heading's picture in the list of small pictures."))
          .Published(ParentFont)
          .Doc(QStringLiteral("Whether the items have the bar's letters."))
          .Published(SmallImages)
          .Doc(QStringLiteral("Whether the items have small pictures beside their texts."))
          .Passive("Tag", 0));
  return cls;
}
const TClass& TVRXBarSections::StaticClass() {
  static const TClass cls(DescribeClass<TVRXBarSections>("TVRXBarSections", TCollection::StaticClass()));
  return cls;
}

const TGlyph* TVRXBarItem::Glyph(bool small) const {
  const auto& part = small ? SmallPart : LargePart;
  const TGlyph* glyph = IsKept(&part) ? Get(part) : nullptr;
  return glyph && !glyph->Empty() ? glyph : nullptr;
}

QString TVRXBarItem::DisplayName() const {
  const QString caption = Get(Caption);
  return caption.isEmpty() ? TCollectionItem::DisplayName() : caption;
}
QString TVRXBarSection::DisplayName() const {
  const QString caption = Get(Caption);
  return caption.isEmpty() ? TCollectionItem::DisplayName() : caption;
}
