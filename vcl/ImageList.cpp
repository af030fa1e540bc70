#include "vcl/ImageList.h"

#include "rtl/Class.h"
#include "vcl/PictureHead.h"

const TClass& TCustomImageList::StaticClass() {
  static const TClass cls(DescribeClass<TCustomImageList>("TCustomImageList", TComponent::StaticClass())
                              .Streamed("Bitmap", &TCustomImageList::Data, &TCustomImageList::SetData));
  return cls;
}

const TClass& TImageList::StaticClass() {
  static const TClass cls(
      DescribeClass<TImageList>("TImageList", TCustomImageList::StaticClass())
          .Passive("AllocBy", 4)
          .Passive("BlendColor", clNone)
          .Passive("BkColor", clNone)
          .Passive("ColorDepth", TColorDepth::cdDeviceDependent)
          .Passive("DrawingStyle", TDrawingStyle::dsNormal)
          .Published(Height)
          .Passive("ImageType", TImageType::itImage)
          .Passive("Masked", true)
          .Passive("Scaled", false)
          .Passive("ShareImages", false)
          .Published(Width)
          .Event("OnChange")
          .ClassDoc(QStringLiteral("Pictures that buttons, menus and lists show by index."),
                    "pen line 1.5 brush fill box 3.5 7.5 13 13 0 pen accent 1.5 box 7.5 3.5 13 13 0"));
  return cls;
}

const TImageListData& TCustomImageList::Pictures() const {
  if (decoded_) return pictures_;
  decoded_ = true;
  pictures_ = {};
  problem_.clear();
  try {
    pictures_ = ReadImageList(data_);
  } catch (const EInvalidPicture& e) {
    problem_ = e.Message();
  }
  if (pictures_.images.isEmpty()) pictures_.size = QSize(Get(Width), Get(Height));
  return pictures_;
}

const QString& TCustomImageList::Problem() const {
  Pictures();
  return problem_;
}

QImage TCustomImageList::Image(int index) const {
  const auto& images = Pictures().images;
  return index < 0 || index >= images.size() ? QImage() : images[index];
}

void TCustomImageList::SetData(const QByteArray& bytes) {
  if (bytes == data_) return;
  Changing();
  data_ = bytes;
  decoded_ = false;
  Changed();
}

void TCustomImageList::SetPictures(const QList<QImage>& images) {
  TImageListData list = Pictures();
  list.size = QSize(Get(Width), Get(Height));
  RequirePictureSize(QStringLiteral("The image list"), std::int64_t{list.size.width()} * list.size.height(),
                     images.size());
  list.images = images;
  SetData(WriteImageList(list));
}
