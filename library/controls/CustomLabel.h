// Texts with light and shadow, in a bevel.
#pragma once
#include "library/values/Bevels.h"
#include "library/values/Font3D.h"
#include "vcl/Control.h"
#include "vcl/Label.h"

class TVRXCustomLabel : public TGraphicControl {
  VRX_CLASS(TVRXCustomLabel)
 public:
  explicit TVRXCustomLabel(TComponent* owner);
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};
  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  static constexpr TKept<TVRXFont3D*> Font3DPart{"Font3D"};
  static constexpr TKept<TTextLayout> Layout{"Layout", TTextLayout::tlTop};
  static constexpr TKept<bool> ShowAccelChar{"ShowAccelChar", true};
  static constexpr TKept<bool> Transparent{"Transparent", true};
  static constexpr TKept<bool> WordWrap{"WordWrap", false};

  TVRXBevel* Bevel() const { return Get(BevelPart); }
  TVRXFont3D* Font3D() const { return Get(Font3DPart); }

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;
  // Where the text stands, by Qt's flags.
  int TextFlags() const;
  virtual void PaintText(TCanvas& canvas, const QRect& rect);
};

class TVRXStaticText : public TVRXCustomLabel {
  VRX_CLASS(TVRXStaticText)
 public:
  using TVRXCustomLabel::TVRXCustomLabel;
};
