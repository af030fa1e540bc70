// Surfaces that scroll over what does not fit.
#pragma once
#include "vcl/ControlScrollBar.h"
#include "vcl/Edit.h"

class TScrollBox : public TWinControl {
  VRX_CLASS(TScrollBox)
 public:
  explicit TScrollBox(TComponent* owner);
  static constexpr TKept<bool> AutoScroll{"AutoScroll", true};
  static constexpr TKept<TBorderStyle> BorderStyle{"BorderStyle", TBorderStyle::bsSingle};
  static constexpr TKept<TControlScrollBar*> HorzScrollBar{"HorzScrollBar"};
  static constexpr TKept<TControlScrollBar*> VertScrollBar{"VertScrollBar"};

  bool AcceptsControls() const override { return true; }
  QRect ClientRect() const override;
  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override { return ContentExtent(); }

 private:
  // What stands inside reaches so far.
  QSize Reach() const;
};
