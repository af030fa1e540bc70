// How an area is filled, as a property value.
#pragma once
#include <QBrush>

#include "rtl/Persistent.h"
#include "vcl/Colors.h"

enum class TBrushStyle : std::uint8_t {
  bsSolid,
  bsClear,
  bsHorizontal,
  bsVertical,
  bsFDiagonal,
  bsBDiagonal,
  bsCross,
  bsDiagCross
};
VRX_ENUM(TBrushStyle, {"bsSolid", "bsClear", "bsHorizontal", "bsVertical", "bsFDiagonal", "bsBDiagonal",
                       "bsCross", "bsDiagCross"})

class TBrush : public TOwnedPersistent {
  VRX_CLASS(TBrush)
 public:
  explicit TBrush(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}
  TColor Color() const { return color_; }
  void SetColor(TColor v) { Change(color_, v); }
  TBrushStyle Style() const { return style_; }
  void SetStyle(TBrushStyle v) { Change(style_, v); }

 private:
  TColor color_ = clWhite;
  TBrushStyle style_ = TBrushStyle::bsSolid;
};

QBrush ToQBrush(const TBrush& brush);
