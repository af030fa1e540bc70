// Lines of text that run through the control. They run on the form that is being designed, too.
#pragma once
#include "library/values/Bevels.h"
#include "library/values/Font3D.h"
#include "rtl/Strings.h"
#include "vcl/Control.h"
#include "vcl/RepaintTimer.h"

enum class TVRXScrollDirection : std::uint8_t { sdUp, sdDown, sdLeft, sdRight };
VRX_ENUM(TVRXScrollDirection, {"sdUp", "sdDown", "sdLeft", "sdRight"})

class TVRXScrollText : public TGraphicControl {
  VRX_CLASS(TVRXScrollText)
 public:
  explicit TVRXScrollText(TComponent* owner);
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taCenter};
  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  static constexpr TKept<TVRXScrollDirection> Direction{"Direction", TVRXScrollDirection::sdUp};
  static constexpr TKept<TVRXFont3D*> Font3DPart{"Font3D"};
  // Milliseconds that a step takes, and its pixels.
  static constexpr TKept<int> Interval{"Interval", 40};
  static constexpr TKept<TStrings*> LinesPart{"Lines"};
  static constexpr TKept<bool> Scroll{"Scroll", false};
  static constexpr TKept<int> Step{"Step", 1};
  static constexpr TKept<bool> Transparent{"Transparent", false};

  TVRXBevel* Bevel() const { return Get(BevelPart); }
  TVRXFont3D* Font3D() const { return Get(Font3DPart); }
  TStrings* Lines() const { return Get(LinesPart); }
  // How many pixels the text has run by now, of the way that it takes.
  int Offset(int way) const;

  void Paint(TCanvas& canvas) override;

 private:
  TRepaintTimer timer_{*this};
};
