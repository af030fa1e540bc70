// An area with an outline and a text.
#pragma once
#include "library/values/Caption.h"
#include "vcl/Brush.h"
#include "vcl/Control.h"

class TVRXBaseShape : public TGraphicControl {
  VRX_CLASS(TVRXBaseShape)
 public:
  explicit TVRXBaseShape(TComponent* owner);
  ~TVRXBaseShape() override;

  TBrush* Brush() const { return brush_.get(); }
  void SetBrush(const TBrush* v) { brush_->Assign(v); }
  TVRXCaption* Caption() const { return caption_.get(); }
  void SetCaption(const TVRXCaption* v) { caption_->Assign(v); }
  // The outline; clNone is none.
  TColor BevelColor() const { return bevelColor_; }
  void SetBevelColor(TColor v);
  bool Transparent() const { return transparent_; }
  void SetTransparent(bool v);

  void Paint(TCanvas& canvas) override;

 private:
  std::unique_ptr<TBrush> brush_;
  std::unique_ptr<TVRXCaption> caption_;
  TColor bevelColor_ = clBlack;
  bool transparent_ = false;
};

class TVRXShapeControl : public TVRXBaseShape {
  VRX_CLASS(TVRXShapeControl)
 public:
  using TVRXBaseShape::TVRXBaseShape;
};
