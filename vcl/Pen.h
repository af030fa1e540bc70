// How a line is drawn, as a property value.
#pragma once
#include <QPen>

#include "rtl/Persistent.h"
#include "vcl/Colors.h"

enum class TPenStyle : std::uint8_t {
  psSolid,
  psDash,
  psDot,
  psDashDot,
  psDashDotDot,
  psClear,
  psInsideFrame
};
VRX_ENUM(TPenStyle, {"psSolid", "psDash", "psDot", "psDashDot", "psDashDotDot", "psClear", "psInsideFrame"})
enum class TPenMode : std::uint8_t {
  pmBlack,
  pmWhite,
  pmNop,
  pmNot,
  pmCopy,
  pmNotCopy,
  pmMergePenNot,
  pmMaskPenNot,
  pmMergeNotPen,
  pmMaskNotPen,
  pmMerge,
  pmNotMerge,
  pmMask,
  pmNotMask,
  pmXor,
  pmNotXor
};
VRX_ENUM(TPenMode, {"pmBlack", "pmWhite", "pmNop", "pmNot", "pmCopy", "pmNotCopy", "pmMergePenNot",
                    "pmMaskPenNot", "pmMergeNotPen", "pmMaskNotPen", "pmMerge", "pmNotMerge", "pmMask",
                    "pmNotMask", "pmXor", "pmNotXor"})

class TPen : public TOwnedPersistent {
  VRX_CLASS(TPen)
 public:
  explicit TPen(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}
  TColor Color() const { return color_; }
  void SetColor(TColor v) { Change(color_, v); }
  TPenMode Mode() const { return mode_; }
  void SetMode(TPenMode v) { Change(mode_, v); }
  TPenStyle Style() const { return style_; }
  void SetStyle(TPenStyle v) { Change(style_, v); }
  int Width() const { return width_; }
  void SetWidth(int v) { Change(width_, v); }

 private:
  TColor color_ = clBlack;
  int width_ = 1;
  TPenMode mode_ = TPenMode::pmCopy;
  TPenStyle style_ = TPenStyle::psSolid;
};

QPen ToQPen(const TPen& pen);
