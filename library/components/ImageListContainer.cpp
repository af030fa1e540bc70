#include "library/components/ImageListContainer.h"

const TClass& TVRXImageListItem::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXImageListItem>("TVRXImageListItem", TCollectionItem::StaticClass())
          .Published(ImageList)
          .Doc(QStringLiteral("The list that stands at this place.")));
  return cls;
}
const TClass& TVRXImageListItems::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXImageListItems>("TVRXImageListItems", TCollection::StaticClass()));
  return cls;
}
const TClass& TVRXImageListContainer::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXImageListContainer>("TVRXImageListContainer", TCustomImageList::StaticClass())
          .Published(Lists)
          .Doc(QStringLiteral("The image lists, which buttons count from 1 on."))
          .ClassDoc(QStringLiteral("Several image lists as one."),
                    "pen line 1.5 brush fill box 2.5 8.5 11 12 0 box 6.5 5.5 11 12 0 pen accent 1.5 "
                    "box 10.5 2.5 11 12 0"));
  return cls;
}

QString TVRXImageListItem::DisplayName() const {
  const TCustomImageList* list = Get(ImageList);
  return list ? list->Name() : TCollectionItem::DisplayName();
}

namespace {
const TVRXImageListItems* ListsOf(const TCustomImageList* list) {
  const auto* container = As<TVRXImageListContainer>(list);
  return container ? container->Get(TVRXImageListContainer::Lists) : nullptr;
}
}  // namespace

int VRXIMLListCount(const TCustomImageList* list) {
  const TVRXImageListItems* lists = ListsOf(list);
  return lists ? lists->Count() : list ? 1 : 0;
}

const TCustomImageList* VRXIMLList(const TCustomImageList* list, int listIndex) {
  if (listIndex < 1 || listIndex > VRXIMLListCount(list)) return nullptr;
  const TVRXImageListItems* lists = ListsOf(list);
  if (!lists) return list;
  return static_cast<TVRXImageListItem*>(lists->Item(listIndex - 1))->Get(TVRXImageListItem::ImageList);
}

QImage VRXIMLImage(const TCustomImageList* list, int listIndex, int imageIndex) {
  const TCustomImageList* pictures = VRXIMLList(list, listIndex);
  return pictures ? pictures->Image(imageIndex) : QImage();
}

bool VRXIMLIsValidItem(const TCustomImageList* list, int listIndex, int imageIndex) {
  const TCustomImageList* pictures = VRXIMLList(list, listIndex);
  return pictures && imageIndex >= 0 && imageIndex < pictures->Count();
}

int VRXIMLItemHeight(const TCustomImageList* list, int listIndex) {
  const TCustomImageList* pictures = VRXIMLList(list, listIndex);
  return pictures ? pictures->Pictures().size.height() : 0;
}

void VRXIMLDrawExt(const TCustomImageList* list, int listIndex, int imageIndex, QPainter& painter,
                   const QRect& rect, unsigned flags) {
  const QImage image = VRXIMLImage(list, listIndex, imageIndex);
  if (image.isNull() || rect.isEmpty()) return;
  QSize size = image.size();
  if ((flags & idShrink) && !QRect({}, rect.size()).contains(QRect({}, size)))
    size.scale(rect.size(), Qt::KeepAspectRatio);
  painter.save();
  if (flags & idClip) painter.setClipRect(rect, Qt::IntersectClip);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, (flags & idSmooth) != 0);
  painter.drawImage(QRect(rect.topLeft(), size), image);
  painter.restore();
}
