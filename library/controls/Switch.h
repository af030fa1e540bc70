// Switches: a control with two states, each with a text and a colour of its own.
#pragma once
#include "library/values/Bevels.h"
#include "library/values/Caption.h"
#include "vcl/Control.h"

class TVRXCustomSwitch : public TWinControl {
  VRX_CLASS(TVRXCustomSwitch)
 public:
  explicit TVRXCustomSwitch(TComponent* owner);
  static constexpr TKept<bool> Checked{"Checked", false};
  static constexpr TKept<TColor> ColorChecked{"ColorChecked", clGreen};
  static constexpr TKept<TColor> ColorUnChecked{"ColorUnChecked", clBtnShadow};
  static constexpr TKept<bool> Transparent{"Transparent", true};
  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  static constexpr TKept<TVRXCaption*> CaptionCheckedPart{"CaptionChecked"};
  static constexpr TKept<TVRXCaption*> CaptionUnCheckedPart{"CaptionUnChecked"};

  TVRXBevel* Bevel() const { return Get(BevelPart); }
  TVRXCaption* CaptionChecked() const { return Get(CaptionCheckedPart); }
  TVRXCaption* CaptionUnChecked() const { return Get(CaptionUnCheckedPart); }
  // By state, as editors use them: 0 checked, 1 not.
  TColor StateColor(int index) const { return Get(ColorOf(index)); }
  void SetStateColor(int index, TColor color) { Set(ColorOf(index), color); }

  void Paint(TCanvas& canvas) final;

 protected:
  virtual void PaintSwitch(TCanvas& canvas, const QRect& room) = 0;
  TColor PresentColor() const;

 private:
  static const TKept<TColor>& ColorOf(int index);
};

// A knob that slides in a groove, with the text of the present state beside it.
class TVRXSwitch : public TVRXCustomSwitch {
  VRX_CLASS(TVRXSwitch)
 public:
  explicit TVRXSwitch(TComponent* owner);

 protected:
  void PaintSwitch(TCanvas& canvas, const QRect& room) override;
};

// A lever between the texts of both states, of which it leans to the present one.
class TVRXWSwitch : public TVRXCustomSwitch {
  VRX_CLASS(TVRXWSwitch)
 public:
  explicit TVRXWSwitch(TComponent* owner);

 protected:
  void PaintSwitch(TCanvas& canvas, const QRect& room) override;
};
