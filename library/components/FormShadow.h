// The shadow that a form throws on what is behind it.
#pragma once
#include "library/values/Shadow.h"
#include "vcl/FormDecor.h"

class TVRXFormShadow : public TFormDecor {
  VRX_CLASS(TVRXFormShadow)
 public:
  explicit TVRXFormShadow(TComponent* owner);
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<TVRXShadow*> ShadowPart{"Shadow"};
  // Also while another form is active.
  static constexpr TKept<bool> ShowInActive{"ShowInActive", false};
  TVRXShadow* Shadow() const { return Get(ShadowPart); }

  QMargins Around(bool active) const override;
  void PaintAround(TCanvas& canvas, const QPainterPath& outline, bool active) const override;

 protected:
  void NameChanged(const QString& oldName) override;

 private:
  bool Shows(bool active) const { return Get(Enabled) && (active || Get(ShowInActive)); }
};
