// Several image lists as one: pictures of many sizes that buttons refer to by list and picture. Who takes an
// image list takes a plain one as a container of one.
#pragma once
#include <QPainter>

#include "rtl/Collection.h"
#include "vcl/ImageList.h"

class TVRXImageListItem : public TCollectionItem {
  VRX_CLASS(TVRXImageListItem)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};
  QString DisplayName() const override;
};
class TVRXImageListItems : public TCollection {
  VRX_CLASS(TVRXImageListItems)
 public:
  explicit TVRXImageListItems(TPersistent* owner = nullptr)
      : TCollection(TVRXImageListItem::StaticClass(), owner) {}
};

class TVRXImageListContainer : public TCustomImageList {
  VRX_CLASS(TVRXImageListContainer)
 public:
  using TCustomImageList::TCustomImageList;
  static constexpr TKept<TVRXImageListItems*> Lists{"Lists"};
};

// How many lists there are: of a plain image list itself, of none 0.
int VRXIMLListCount(const TCustomImageList* list);
const TCustomImageList* VRXIMLList(const TCustomImageList* list, int listIndex);  // from 1 on, else null
bool VRXIMLIsValidItem(const TCustomImageList* list, int listIndex, int imageIndex);
int VRXIMLItemHeight(const TCustomImageList* list, int listIndex);  // 0 for a list that is not there
QImage VRXIMLImage(const TCustomImageList* list, int listIndex, int imageIndex);

// How a picture is drawn into a rectangle; without any of them in its own size, from the top left corner.
enum TVRXIMLDrawFlag : unsigned {
  idClip = 0x10,     // nothing outside of the rectangle
  idShrink = 0x200,  // a larger one as small as it must be, in its proportions
  idSmooth = 0x400,  // pixels are mixed when its size changes
};
constexpr unsigned VRXIMLFitFlags = idClip | idShrink | idSmooth;
void VRXIMLDrawExt(const TCustomImageList* list, int listIndex, int imageIndex, QPainter& painter,
                   const QRect& rect, unsigned flags);
