// Pictures shown one after the other, of an image list or of a bitmap in which they stand side by side. They
// run on the form that is being designed, too.
#pragma once
#include "vcl/Control.h"
#include "vcl/ImageList.h"
#include "vcl/Picture.h"
#include "vcl/RepaintTimer.h"

class TVRXCustomLImage : public TGraphicControl {
  VRX_CLASS(TVRXCustomLImage)
 public:
  explicit TVRXCustomLImage(TComponent* owner);
  static constexpr TKept<TPicture*> BitmapPart{"Bitmap"};
  // How many pictures the bitmap holds.
  static constexpr TKept<int> FrameCount{"FrameCount", 1};
  // The one that is shown at rest.
  static constexpr TKept<int> ImageIndex{"ImageIndex", 0};
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};
  static constexpr TKept<bool> Stretch{"Stretch", false};
  static constexpr TKept<bool> Transparent{"Transparent", true};

  TPicture* Bitmap() const { return Get(BitmapPart); }
  int Frames() const;

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;
  // The picture to be shown now.
  virtual int Current() const { return Get(ImageIndex); }

 private:
  QSize FrameSize() const;
};

class TVRXAniCtrl : public TVRXCustomLImage {
  VRX_CLASS(TVRXAniCtrl)
 public:
  using TVRXCustomLImage::TVRXCustomLImage;
  static constexpr TKept<bool> Animate{"Animate", false};
  static constexpr TKept<int> Interval{"Interval", 100};

  void Paint(TCanvas& canvas) override;

 protected:
  int Current() const override;

 private:
  bool Runs() const { return Get(Animate) && Frames() > 1; }
  TRepaintTimer timer_{*this};
};
