// Controls that show a picture, or what the program paints.
#pragma once
#include "vcl/Control.h"
#include "vcl/Picture.h"

enum class TAntialiasingMode : std::uint8_t { amDontCare, amOn, amOff };
VRX_ENUM(TAntialiasingMode, {"amDontCare", "amOn", "amOff"})

class TImage : public TGraphicControl {
  VRX_CLASS(TImage)
 public:
  explicit TImage(TComponent* owner);
  static constexpr TKept<bool> Center{"Center", false};
  static constexpr TKept<bool> IncrementalDisplay{"IncrementalDisplay", false};
  static constexpr TKept<TPicture*> Picture{"Picture"};
  static constexpr TKept<bool> Proportional{"Proportional", false};
  static constexpr TKept<bool> Stretch{"Stretch", false};
  static constexpr TKept<bool> Transparent{"Transparent", false};

  void Paint(TCanvas& canvas) override;
  // Where the picture is shown.
  QRect DestRect() const;

 protected:
  QSize AutoSizeHint() const override;
};

// A place for the program to paint on; at design time it shows where it is.
class TPaintBox : public TGraphicControl {
  VRX_CLASS(TPaintBox)
 public:
  explicit TPaintBox(TComponent* owner);
  void Paint(TCanvas& canvas) override;
};
