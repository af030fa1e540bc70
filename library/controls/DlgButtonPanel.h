// A panel that puts the buttons of a dialog in a row.
#pragma once
#include "library/controls/SimplePanel.h"
#include "vcl/Button.h"

// The library's push button, which panels and their editors make.
class TVRXButton : public TButton {
  VRX_CLASS(TVRXButton)
 public:
  using TButton::TButton;
};

enum class TVRXButtonAlignment : std::uint8_t { baLeftTop, baRightBottom, baCenter };
VRX_ENUM(TVRXButtonAlignment, {"baLeftTop", "baRightBottom", "baCenter"})
enum class TVRXPanelOrientation : std::uint8_t { poHorizontal, poVertical };
VRX_ENUM(TVRXPanelOrientation, {"poHorizontal", "poVertical"})

class TVRXDlgButtonPanel : public TVRXSimplePanel {
  VRX_CLASS(TVRXDlgButtonPanel)
 public:
  explicit TVRXDlgButtonPanel(TComponent* owner);
  static constexpr TKept<int> BorderSpacing{"BorderSpacing", 8};
  static constexpr TKept<TVRXButtonAlignment> ButtonAlignment{"ButtonAlignment",
                                                              TVRXButtonAlignment::baLeftTop};
  static constexpr TKept<int> ButtonGap{"ButtonGap", 24};
  static constexpr TKept<int> ButtonSpacing{"ButtonSpacing", 8};
  static constexpr TKept<TVRXPanelOrientation> Orientation{"Orientation", TVRXPanelOrientation::poHorizontal};
  // A button with this tag stands apart from those before it.
  static constexpr int GapTag = 10;

  // Back to front, which is how they follow each other.
  std::vector<TButton*> Buttons() const;

  // Buttons keep their size and stand one after the other, in the middle of the other direction. What is no
  // button stands where it is put or aligned.
  bool PlacesControls() const override { return true; }
  void ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                       const Placements* before) const override;
  void Paint(TCanvas& canvas) override;

 protected:
  void ControlsListed() override;

 private:
  // A button that is just being freed is none any more, but stood there as one.
  std::vector<const TControl*> known_;
};
