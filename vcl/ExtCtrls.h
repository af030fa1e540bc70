// Panels and timers.
#pragma once
#include "vcl/Control.h"

enum class TBevelCut : std::uint8_t { bvNone, bvLowered, bvRaised, bvSpace };
VRX_ENUM(TBevelCut, {"bvNone", "bvLowered", "bvRaised", "bvSpace"})

class TPanel : public TWinControl {
  VRX_CLASS(TPanel)
 public:
  explicit TPanel(TComponent* owner);

  TAlignment Alignment() const { return alignment_; }
  void SetAlignment(TAlignment v) {
    alignment_ = v;
    Changed();
  }
  TBevelCut BevelInner() const { return bevelInner_; }
  void SetBevelInner(TBevelCut v) {
    bevelInner_ = v;
    Realign();
    Changed();
  }
  TBevelCut BevelOuter() const { return bevelOuter_; }
  void SetBevelOuter(TBevelCut v) {
    bevelOuter_ = v;
    Realign();
    Changed();
  }
  int BevelWidth() const { return bevelWidth_; }
  void SetBevelWidth(int v) {
    bevelWidth_ = v;
    Realign();
    Changed();
  }
  int BorderWidth() const { return borderWidth_; }
  void SetBorderWidth(int v) {
    borderWidth_ = v;
    Realign();
    Changed();
  }

  bool AcceptsControls() const override { return true; }
  void Paint(TCanvas& canvas) override;

 private:
  TAlignment alignment_ = TAlignment::taCenter;
  TBevelCut bevelInner_ = TBevelCut::bvNone, bevelOuter_ = TBevelCut::bvRaised;
  int bevelWidth_ = 1, borderWidth_ = 0;
};

class TTimer : public TComponent {
  VRX_CLASS(TTimer)
 public:
  using TComponent::TComponent;
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool v) { enabled_ = v; }
  unsigned Interval() const { return interval_; }  // milliseconds
  void SetInterval(unsigned v) { interval_ = v; }

 private:
  unsigned interval_ = 1000;
  bool enabled_ = true;
};
