// Hints with an outline and a shadow, in place of the application's own.
#pragma once
#include "library/values/Font3D.h"
#include "library/values/Shadow.h"
#include "rtl/Component.h"

class TVRXCustomShapeHint : public TComponent {
  VRX_CLASS(TVRXCustomShapeHint)
 public:
  explicit TVRXCustomShapeHint(TComponent* owner);
  static constexpr TKept<TColor> BorderColor{"BorderColor", clInfoText};
  static constexpr TKept<TColor> Color{"Color", clInfoBk};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<TVRXFont3D*> Font3DPart{"Font3D"};
  static constexpr TKept<TVRXShadow*> ShadowPart{"Shadow"};
  TFont* Font() const { return font_.get(); }
  void SetFont(const TFont* v) { font_->Assign(v); }
  TVRXFont3D* Font3D() const { return Get(Font3DPart); }
  TVRXShadow* Shadow() const { return Get(ShadowPart); }

 private:
  bool FontStored() const;
  std::unique_ptr<TFont> font_;
};

class TVRXShapeHint : public TVRXCustomShapeHint {
  VRX_CLASS(TVRXShapeHint)
 public:
  using TVRXCustomShapeHint::TVRXCustomShapeHint;
};
