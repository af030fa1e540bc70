// Pictures that several image lists take from one collection.
#pragma once
#include "rtl/Collection.h"
#include "vcl/ImageList.h"

// Where the pictures are. They are kept as the form file has them.
class TImageCollection : public TComponent {
  VRX_CLASS(TImageCollection)
 public:
  using TComponent::TComponent;
};

class TImageCollectionSourceItem : public TCollectionItem {
  VRX_CLASS(TImageCollectionSourceItem)
 public:
  using TCollectionItem::TCollectionItem;
};
class TImageCollectionSources : public TCollection {
  VRX_CLASS(TImageCollectionSources)
 public:
  explicit TImageCollectionSources(TPersistent* owner = nullptr)
      : TCollection(TImageCollectionSourceItem::StaticClass(), owner) {}
};
class TImageCollectionItem : public TCollectionItem {
  VRX_CLASS(TImageCollectionItem)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<QString> Name{"Name"};
  QString DisplayName() const override { return Get(Name); }
};
class TImageCollectionItems : public TCollection {
  VRX_CLASS(TImageCollectionItems)
 public:
  explicit TImageCollectionItems(TPersistent* owner = nullptr)
      : TCollection(TImageCollectionItem::StaticClass(), owner) {}
};

class TVirtualImageListItem : public TCollectionItem {
  VRX_CLASS(TVirtualImageListItem)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<QString> Name{"Name"};
  QString DisplayName() const override { return Get(Name); }
};
class TVirtualImageListItems : public TCollection {
  VRX_CLASS(TVirtualImageListItems)
 public:
  explicit TVirtualImageListItems(TPersistent* owner = nullptr)
      : TCollection(TVirtualImageListItem::StaticClass(), owner) {}
};

class TVirtualImageList : public TCustomImageList {
  VRX_CLASS(TVirtualImageList)
 public:
  using TCustomImageList::TCustomImageList;
};
