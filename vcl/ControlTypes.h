// Enumerations that properties of many controls have.
#pragma once
#include "rtl/TypeInfo.h"

enum class TAlignment : std::uint8_t { taLeftJustify, taRightJustify, taCenter };
enum class TCursor : std::int16_t {};
enum class TBiDiMode : std::uint8_t {
  bdLeftToRight,
  bdRightToLeft,
  bdRightToLeftNoAlign,
  bdRightToLeftReadingOnly
};
enum class TDragKind : std::uint8_t { dkDrag, dkDock };
enum class TDragMode : std::uint8_t { dmManual, dmAutomatic };
enum class THelpType : std::uint8_t { htKeyword, htContext };
enum class TImeMode : std::uint8_t {
  imDisable,
  imClose,
  imOpen,
  imDontCare,
  imSAlpha,
  imAlpha,
  imHira,
  imSKata,
  imKata,
  imChinese,
  imSHanguel,
  imHanguel
};
enum class TBevelCut : std::uint8_t { bvNone, bvLowered, bvRaised, bvSpace };
enum class TBevelKind : std::uint8_t { bkNone, bkTile, bkSoft, bkFlat };
enum class TBevelEdge : std::uint8_t { beLeft, beTop, beRight, beBottom };
using TBevelEdges = TSet<TBevelEdge>;
enum class TStyleElement : std::uint8_t { seFont, seClient, seBorder };
using TStyleElements = TSet<TStyleElement>;

VRX_ENUM(TAlignment, {"taLeftJustify", "taRightJustify", "taCenter"})
VRX_ENUM(TBiDiMode, {"bdLeftToRight", "bdRightToLeft", "bdRightToLeftNoAlign", "bdRightToLeftReadingOnly"})
VRX_ENUM(TDragKind, {"dkDrag", "dkDock"})
VRX_ENUM(TDragMode, {"dmManual", "dmAutomatic"})
VRX_ENUM(THelpType, {"htKeyword", "htContext"})
VRX_ENUM(TImeMode, {"imDisable", "imClose", "imOpen", "imDontCare", "imSAlpha", "imAlpha", "imHira",
                    "imSKata", "imKata", "imChinese", "imSHanguel", "imHanguel"})
VRX_ENUM(TBevelCut, {"bvNone", "bvLowered", "bvRaised", "bvSpace"})
VRX_ENUM(TBevelKind, {"bkNone", "bkTile", "bkSoft", "bkFlat"})
VRX_ENUM(TBevelEdge, {"beLeft", "beTop", "beRight", "beBottom"})
VRX_SET(TBevelEdges, TBevelEdge)
VRX_ENUM(TStyleElement, {"seFont", "seClient", "seBorder"})
VRX_SET(TStyleElements, TStyleElement)
template <>
struct TypeInfoOf<TCursor> {
  static const TTypeInfo& Get();
};
