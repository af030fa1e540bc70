// How one of the two families of forms lays out controls besides Align and Anchors: sides tied to other
// controls, distances, and rows of children. The coordinates in a form file are what this led to; they are
// shown, and what it is made of is kept. It is worked out only for coordinates that a file leaves out
// (vcl/SidePlaces.h).
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
  static constexpr TKept<TComponent*> Control{"Control"};
  static constexpr TKept<TAnchorSideReference> Side{"Side", TAnchorSideReference::asrTop};
};

class TControlBorderSpacing : public TKeptPart {
  VRX_CLASS(TControlBorderSpacing)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<int> Left{"Left", 0};
  static constexpr TKept<int> Top{"Top", 0};
  static constexpr TKept<int> Right{"Right", 0};
  static constexpr TKept<int> Bottom{"Bottom", 0};
  static constexpr TKept<int> Around{"Around", 0};
};

class TControlChildSizing : public TKeptPart {
  VRX_CLASS(TControlChildSizing)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<int> LeftRightSpacing{"LeftRightSpacing", 0};
  static constexpr TKept<int> TopBottomSpacing{"TopBottomSpacing", 0};
  static constexpr TKept<int> HorizontalSpacing{"HorizontalSpacing", 0};
  static constexpr TKept<int> VerticalSpacing{"VerticalSpacing", 0};
};
