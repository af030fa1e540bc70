// Panels in which controls follow each other like words.
#pragma once
#include "vcl/ControlItems.h"
#include "vcl/Label.h"
#include "vcl/Panel.h"

enum class TFlowStyle : std::uint8_t {
  fsLeftRightTopBottom,
  fsRightLeftTopBottom,
  fsLeftRightBottomTop,
  fsRightLeftBottomTop,
  fsTopBottomLeftRight,
  fsBottomTopLeftRight,
  fsTopBottomRightLeft,
  fsBottomTopRightLeft
};
VRX_ENUM(TFlowStyle,
         {"fsLeftRightTopBottom", "fsRightLeftTopBottom", "fsLeftRightBottomTop", "fsRightLeftBottomTop",
          "fsTopBottomLeftRight", "fsBottomTopLeftRight", "fsTopBottomRightLeft", "fsBottomTopRightLeft"})
enum class TWrapAfter : std::uint8_t { waAuto, waForce, waAvoid, waForbid };
VRX_ENUM(TWrapAfter, {"waAuto", "waForce", "waAvoid", "waForbid"})

class TFlowPanelControl : public TControlItem {
  VRX_CLASS(TFlowPanelControl)
 public:
  using TControlItem::TControlItem;
  static constexpr TKept<TWrapAfter> WrapAfter{"WrapAfter", TWrapAfter::waAuto};
};
class TFlowPanelControlList : public TControlItems {
  VRX_CLASS(TFlowPanelControlList)
 public:
  explicit TFlowPanelControlList(TPersistent* owner)
      : TControlItems(TFlowPanelControl::StaticClass(), owner) {}
};

class TFlowPanel : public TCustomPanel {
  VRX_CLASS(TFlowPanel)
 public:
  using TCustomPanel::TCustomPanel;
  static constexpr TKept<bool> AutoWrap{"AutoWrap", true};
  // In files that have one: after which controls the row ends.
  static constexpr TKept<TFlowPanelControlList*> ControlList{"ControlList"};
  // Where controls stand in a row of higher ones.
  static constexpr TKept<TTextLayout> FlowLayout{"FlowLayout", TTextLayout::tlTop};
  static constexpr TKept<TFlowStyle> FlowStyle{"FlowStyle", TFlowStyle::fsLeftRightTopBottom};

  bool PlacesControls() const override { return true; }
  void ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                       const Placements* before) const override;
  void Notification(TComponent* component, TOperation operation) override;
};
