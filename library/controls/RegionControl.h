// Controls that have the shape of a region.
#pragma once
#include "library/values/Caption.h"
#include "library/values/RegionMask.h"
#include "vcl/Control.h"
#include "vcl/ImageList.h"

// Shows the pictures of its mask inside the mask's region.
class TVRXRegion : public TWinControl {
  VRX_CLASS(TVRXRegion)
 public:
  explicit TVRXRegion(TComponent* owner);
  ~TVRXRegion() override;

  TVRXRegionMask* RegionMask() const { return mask_.get(); }
  void SetRegionMask(const TVRXRegionMask* v) { mask_->Assign(v); }
  // Shown pressed.
  bool Down() const { return down_; }
  void SetDown(bool v);

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;

 private:
  std::unique_ptr<TVRXRegionMask> mask_;
  bool down_ = false;
};

// A region with a text and, before it has pictures of its own, a picture of an image list.
class TVRXCustomShapeText : public TVRXRegion {
  VRX_CLASS(TVRXCustomShapeText)
 public:
  explicit TVRXCustomShapeText(TComponent* owner);
  ~TVRXCustomShapeText() override;

  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  TVRXFxCaption* FontFX() const { return fontFx_.get(); }
  void SetFontFX(const TVRXFxCaption* v) { fontFx_->Assign(v); }
  bool Transparent() const { return transparent_; }
  void SetTransparent(bool v);

  void Paint(TCanvas& canvas) override;

 private:
  std::unique_ptr<TVRXFxCaption> fontFx_;
  bool transparent_ = true;
};

// A button in the shape of a region.
class TVRXWndButtonShape : public TVRXCustomShapeText {
  VRX_CLASS(TVRXWndButtonShape)
 public:
  using TVRXCustomShapeText::TVRXCustomShapeText;
};

// An area in the shape of a region, for other controls to stand on.
class TVRXPanelShape : public TVRXCustomShapeText {
  VRX_CLASS(TVRXPanelShape)
 public:
  explicit TVRXPanelShape(TComponent* owner);
  bool AcceptsControls() const override { return true; }
};
