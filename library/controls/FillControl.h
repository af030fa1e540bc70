// An area filled with a gradient, a hatch or a bitmap, with an edge and a text.
#pragma once
#include "library/values/Bevels.h"
#include "library/values/Caption.h"
#include "library/values/Fill.h"
#include "vcl/Control.h"

class TVRXFill : public TGraphicControl {
  VRX_CLASS(TVRXFill)
 public:
  explicit TVRXFill(TComponent* owner);
  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  static constexpr TKept<TVRXCaption*> CaptionPart{"Caption"};
  static constexpr TKept<TVRXFillObject*> FillPart{"FillObject"};
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};
  // Leaves the colour alone.
  static constexpr TKept<bool> Filled{"Filled", true};

  TVRXBevel* Bevel() const { return Get(BevelPart); }
  TVRXCaption* Caption() const { return Get(CaptionPart); }
  TVRXFillObject* FillObject() const { return Get(FillPart); }

  void Paint(TCanvas& canvas) override;
};
