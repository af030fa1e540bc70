// Bars to scroll with, as controls of their own.
#pragma once
#include "vcl/Control.h"
#include "vcl/Ranged.h"

enum class TScrollBarKind : std::uint8_t { sbHorizontal, sbVertical };
VRX_ENUM(TScrollBarKind, {"sbHorizontal", "sbVertical"})

class TScrollBar : public TWinControl {
  VRX_CLASS(TScrollBar)
 public:
  explicit TScrollBar(TComponent* owner);
  static constexpr TKept<int> Max{"Max", 100};
  static constexpr TKept<int> Min{"Min", 0};
  static constexpr TKept<int> PageSize{"PageSize", 0};
  static constexpr TKept<int> Position{"Position", 0};

  TScrollBarKind Kind() const { return kind_; }
  // Lies down or stands up: the sides are exchanged.
  void SetKind(TScrollBarKind v);

  // The position stays within its ends; ends that would change places are refused.
  int MaxOf() const { return Get(Max); }
  void SetMax(int v) { ChangeRange(*this, Get(Min), v); }
  int MinOf() const { return Get(Min); }
  void SetMin(int v) { ChangeRange(*this, v, Get(Max)); }
  int PositionOf() const { return Get(Position); }
  void SetPosition(int v) { ChangePosition(*this, v); }

  void Paint(TCanvas& canvas) override;

 private:
  TScrollBarKind kind_ = TScrollBarKind::sbHorizontal;
};
