// What fills the ground of a form.
#pragma once
#include "library/values/Fill.h"
#include "vcl/FormDecor.h"
#include "vcl/ImageList.h"

class TVRXCustomFormFill : public TFormDecor {
  VRX_CLASS(TVRXCustomFormFill)
 public:
  using TFormDecor::TFormDecor;
  // Off: the ground is left to a handler of OnFill.
  static constexpr TKept<bool> DefaultFill{"DefaultFill", true};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};

  bool PaintGround(TCanvas& canvas, const QRect& client) const override;

 protected:
  virtual const TVRXFillObject& Fill() const = 0;
};

// A colour, a gradient, a hatch or a bitmap.
class TVRXFormFill : public TVRXCustomFormFill {
  VRX_CLASS(TVRXFormFill)
 public:
  using TVRXCustomFormFill::TVRXCustomFormFill;
  static constexpr TKept<TVRXFillObject*> FillPart{"FillObject"};
  TVRXFillObject* FillObject() const { return Get(FillPart); }

 protected:
  const TVRXFillObject& Fill() const override { return *FillObject(); }
};

// A picture, as it is or many times.
class TVRXBack : public TVRXCustomFormFill {
  VRX_CLASS(TVRXBack)
 public:
  explicit TVRXBack(TComponent* owner);
  TPicture* Bitmap() const { return fill_.Bitmap(); }
  void SetBitmap(const TPicture* v) { fill_.Bitmap()->Assign(v); }
  TVRXBitmapPlace BitmapPlace() const { return fill_.Get(TVRXFillObject::BitmapPlace); }
  void SetBitmapPlace(TVRXBitmapPlace v) { fill_.Set(TVRXFillObject::BitmapPlace, v); }
  TColor Color() const { return fill_.Get(TVRXFillObject::Color); }
  void SetColor(TColor v) { fill_.Set(TVRXFillObject::Color, v); }
  int ImageIndex() const { return fill_.Get(TVRXFillObject::ImageIndex); }
  void SetImageIndex(int v) { fill_.Set(TVRXFillObject::ImageIndex, v); }

 protected:
  const TVRXFillObject& Fill() const override { return fill_; }

 private:
  TVRXFillObject fill_{this};
};
