// Bars between two controls that share a place; dragging one sizes both.
#pragma once
#include "vcl/Control.h"

enum class TResizeStyle : std::uint8_t { rsNone, rsLine, rsUpdate, rsPattern };
VRX_ENUM(TResizeStyle, {"rsNone", "rsLine", "rsUpdate", "rsPattern"})

class TSplitter : public TGraphicControl {
  VRX_CLASS(TSplitter)
 public:
  explicit TSplitter(TComponent* owner);
  static constexpr TKept<bool> Beveled{"Beveled", false};

  TAlign Direction() const { return Align(); }
  // Another direction exchanges the sides and turns the usual pointer.
  void SetDirection(TAlign v);

  void Paint(TCanvas& canvas) override;

 private:
  bool Stands() const { return Align() != TAlign::alTop && Align() != TAlign::alBottom; }
};
