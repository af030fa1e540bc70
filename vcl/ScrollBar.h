// Bars to scroll with, as controls of their own.
#pragma once
#include "vcl/Ranged.h"

enum class TScrollBarKind : std::uint8_t { sbHorizontal, sbVertical };
VRX_ENUM(TScrollBarKind, {"sbHorizontal", "sbVertical"})

class TScrollBar : public TRangedControl<100> {
  VRX_CLASS(TScrollBar)
 public:
  explicit TScrollBar(TComponent* owner);
  static constexpr TKept<int> PageSize{"PageSize", 0};

  TScrollBarKind Kind() const { return kind_; }
  // Lies down or stands up: the sides are exchanged.
  void SetKind(TScrollBarKind v);

  void Paint(TCanvas& canvas) override;

 private:
  TScrollBarKind kind_ = TScrollBarKind::sbHorizontal;
};
