// Pictures of one size that other components refer to by index.
#pragma once
#include "rtl/Component.h"
#include "rtl/Kept.h"
#include "vcl/Colors.h"
#include "vcl/ImageListData.h"

enum class TDrawingStyle : std::uint8_t { dsFocus, dsSelected, dsNormal, dsTransparent };
VRX_ENUM(TDrawingStyle, {"dsFocus", "dsSelected", "dsNormal", "dsTransparent"})
enum class TImageType : std::uint8_t { itImage, itMask };
VRX_ENUM(TImageType, {"itImage", "itMask"})
enum class TColorDepth : std::uint8_t {
  cdDefault,
  cdDeviceDependent,
  cd4Bit,
  cd8Bit,
  cd16Bit,
  cd24Bit,
  cd32Bit
};
VRX_ENUM(TColorDepth, {"cdDefault", "cdDeviceDependent", "cd4Bit", "cd8Bit", "cd16Bit", "cd24Bit", "cd32Bit"})

class TCustomImageList : public TComponent {
  VRX_CLASS(TCustomImageList)
 public:
  using TComponent::TComponent;

  int Count() const { return static_cast<int>(Pictures().images.size()); }
  // Null for an index that is not there.
  QImage Image(int index) const;
  // Decoded on first use. What cannot be is empty here, and Problem says why; the bytes stay as they are.
  const TImageListData& Pictures() const;
  const QString& Problem() const;
  // All of them at once, in the layout that the list has. Every picture must have the list's size. Throws
  // EInvalidPicture when there are more than can be read again.
  void SetPictures(const QList<QImage>& images);

  // As the form file has them.
  const QByteArray& Data() const { return data_; }
  void SetData(const QByteArray& bytes);

  static constexpr TKept<int> Width{"Width", 16};
  static constexpr TKept<int> Height{"Height", 16};

 private:
  QByteArray data_;
  mutable TImageListData pictures_;
  mutable QString problem_;
  mutable bool decoded_ = false;
};

class TImageList : public TCustomImageList {
  VRX_CLASS(TImageList)
 public:
  using TCustomImageList::TCustomImageList;
};
