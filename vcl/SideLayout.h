// How one of the two families of forms lays out controls besides Align and Anchors: sides tied to other
// controls, distances, and rows of children. The coordinates in a form file are what this led to; they are
// shown, and what it is made of is kept.
#pragma once
#include "rtl/Component.h"

enum class TAnchorSideReference : std::uint8_t { asrTop, asrBottom, asrCenter };
VRX_ENUM(TAnchorSideReference, {"asrTop", "asrBottom", "asrCenter"})
enum class TControlCellAlign : std::uint8_t { ccaFill, ccaLeftTop, ccaRightBottom, ccaCenter };
VRX_ENUM(TControlCellAlign, {"ccaFill", "ccaLeftTop", "ccaRightBottom", "ccaCenter"})
enum class TChildControlResizeStyle : std::uint8_t {
  crsAnchorAligning,
  crsScaleChilds,
  crsHomogenousChildResize,
  crsHomogenousSpaceResize
};
VRX_ENUM(TChildControlResizeStyle,
         {"crsAnchorAligning", "crsScaleChilds", "crsHomogenousChildResize", "crsHomogenousSpaceResize"})
enum class TControlChildrenLayout : std::uint8_t {
  cclNone,
  cclLeftToRightThenTopToBottom,
  cclTopToBottomThenLeftToRight
};
VRX_ENUM(TControlChildrenLayout,
         {"cclNone", "cclLeftToRightThenTopToBottom", "cclTopToBottomThenLeftToRight"})

// Handlers that only one of the two families knows.
template <>
struct TypeInfoOf<THandler> {
  static const TTypeInfo& Get();
};

// What an edge of a control is tied to.
class TAnchorSide : public TKeptPart {
  VRX_CLASS(TAnchorSide)
 public:
  using TKeptPart::TKeptPart;
};

class TControlBorderSpacing : public TKeptPart {
  VRX_CLASS(TControlBorderSpacing)
 public:
  using TKeptPart::TKeptPart;
};

class TControlChildSizing : public TKeptPart {
  VRX_CLASS(TControlChildSizing)
 public:
  using TKeptPart::TKeptPart;
};
