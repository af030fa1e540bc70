#include "vcl/VirtualImageList.h"

#include "rtl/Class.h"
#include "vcl/Picture.h"

const TClass& TImageCollectionSourceItem::StaticClass() {
  static const TClass cls(
      DescribeClass<TImageCollectionSourceItem>("TImageCollectionSourceItem", TCollectionItem::StaticClass())
          .Passive<TIcon*>("Image"));
  return cls;
}
const TClass& TImageCollectionSources::StaticClass() {
  static const TClass cls(
      DescribeClass<TImageCollectionSources>("TImageCollectionSources", TCollection::StaticClass()));
  return cls;
}
const TClass& TImageCollectionItem::StaticClass() {
  static const TClass cls(
      DescribeClass<TImageCollectionItem>("TImageCollectionItem", TCollectionItem::StaticClass())
          .Published(Name)
          .Passive<TImageCollectionSources*>("SourceImages"));
  return cls;
}
const TClass& TImageCollectionItems::StaticClass() {
  static const TClass cls(
      DescribeClass<TImageCollectionItems>("TImageCollectionItems", TCollection::StaticClass()));
  return cls;
}

const TClass& TImageCollection::StaticClass() {
  static const TClass cls(
      DescribeClass<TImageCollection>("TImageCollection", TComponent::StaticClass())
          .Passive<TImageCollectionItems*>("Images")
          .ClassDoc(QStringLiteral("Pictures in several sizes that image lists take theirs from."),
                    "pen line 1.5 brush fill box 3.5 3.5 17 17 0 pen accent 1.5 box 6.5 6.5 4.5 4.5 0 box 13 "
                    "13 4.5 4.5 0 pen line 1.5 box 13 6.5 4.5 4.5 0 box 6.5 13 4.5 4.5 0"));
  return cls;
}

const TClass& TVirtualImageListItem::StaticClass() {
  static const TClass cls(
      DescribeClass<TVirtualImageListItem>("TVirtualImageListItem", TCollectionItem::StaticClass())
          .Passive("CollectionIndex", -1)
          .Passive<QString>("CollectionName")
          .Passive("Disabled", false)
          .Published(Name));
  return cls;
}
const TClass& TVirtualImageListItems::StaticClass() {
  static const TClass cls(
      DescribeClass<TVirtualImageListItems>("TVirtualImageListItems", TCollection::StaticClass()));
  return cls;
}

const TClass& TVirtualImageList::StaticClass() {
  static const TClass cls(
      DescribeClass<TVirtualImageList>("TVirtualImageList", TCustomImageList::StaticClass())
          .Passive("AutoFill", false)
          .Passive("DisabledGrayscale", false)
          .Passive("DisabledOpacity", std::uint8_t{125})
          .Passive<QString>("DisabledSuffix")
          .Passive<TVirtualImageListItems*>("Images")
          .Passive<TImageCollection*>("ImageCollection")
          .Passive("ImageNameAvailable", true)
          .Passive("PreserveItems", false)
          .Passive("Scaled", true)
          .Published(Height)
          .Published(Width)
          .Event("OnChange")
          .ClassDoc(
              QStringLiteral("Pictures of one size, taken from a collection."),
              "pen line 1.5 brush fill box 3.5 7.5 13 13 0 pen accent 2 brush none path 7.5 4.5 7.5 3.5 20.5 "
              "3.5 20.5 16.5 19.5 16.5 path 7 14 10 17 path 13 11 13 11.2"));
  return cls;
}
