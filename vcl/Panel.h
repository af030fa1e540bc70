// A surface that groups other controls.
#pragma once
#include "vcl/Control.h"

class TPanel : public TWinControl {
  VRX_CLASS(TPanel)
 public:
  explicit TPanel(TComponent* owner);

  TAlignment Alignment() const { return alignment_; }
  void SetAlignment(TAlignment v) { Change(alignment_, v); }
  TBevelCut BevelInner() const { return bevelInner_; }
  void SetBevelInner(TBevelCut v) { Change(bevelInner_, v); }
  TBevelCut BevelOuter() const { return bevelOuter_; }
  void SetBevelOuter(TBevelCut v) { Change(bevelOuter_, v); }
  int BevelWidth() const { return bevelWidth_; }
  void SetBevelWidth(int v) { Change(bevelWidth_, v); }
  int BorderWidth() const { return borderWidth_; }
  void SetBorderWidth(int v) { Change(borderWidth_, v); }

  bool AcceptsControls() const override { return true; }
  void Paint(TCanvas& canvas) override;

 private:
  TAlignment alignment_ = TAlignment::taCenter;
  TBevelCut bevelInner_ = TBevelCut::bvNone, bevelOuter_ = TBevelCut::bvRaised;
  int bevelWidth_ = 1, borderWidth_ = 0;
};
