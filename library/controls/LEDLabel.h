// A text in segment letters.
#pragma once
#include "library/values/Bevels.h"
#include "library/values/LED.h"
#include "vcl/Control.h"

class TVRXLEDCustomLabel : public TGraphicControl {
  VRX_CLASS(TVRXLEDCustomLabel)
 public:
  explicit TVRXLEDCustomLabel(TComponent* owner);
  ~TVRXLEDCustomLabel() override;

  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  TVRXBevel* Bevel() const { return Get(BevelPart); }
  TVRXLED* LED() const { return led_.get(); }
  void SetLED(const TVRXLED* v) { led_->Assign(v); }
  bool Transparent() const { return transparent_; }
  void SetTransparent(bool v);
  TAlignment Alignment() const { return alignment_; }
  void SetAlignment(TAlignment v);

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;

 private:
  int Margin() const;
  std::unique_ptr<TVRXLED> led_;
  TAlignment alignment_ = TAlignment::taLeftJustify;
  bool transparent_ = false;
};

class TVRXLEDLabel : public TVRXLEDCustomLabel {
  VRX_CLASS(TVRXLEDLabel)
 public:
  using TVRXLEDCustomLabel::TVRXLEDCustomLabel;
};
