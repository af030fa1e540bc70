// Headers: a strip with a title, and a panel that has one with buttons in it.
#pragma once
#include "library/controls/CaptionStrip.h"
#include "library/values/Bevels.h"

// What headers have in common.
class TVRXCustomHeader : public TWinControl {
  VRX_CLASS(TVRXCustomHeader)
 public:
  using TWinControl::TWinControl;
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};
  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  static constexpr TKept<bool> Bold{"Bold", true};
  static constexpr TKept<TVRXFillObject*> FillPart{"FillObject"};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};
  // Else it has its colour.
  static constexpr TKept<bool> Filled{"Filled", true};

  TVRXBevel* Bevel() const { return Get(BevelPart); }
  TVRXFillObject* FillObject() const { return Get(FillPart); }

 protected:
  void PaintHeader(TCanvas& canvas, const QRect& rect, int atEnd);
  int NeededThickness() const;
};

class TVRXHeader : public TVRXCustomHeader {
  VRX_CLASS(TVRXHeader)
 public:
  explicit TVRXHeader(TComponent* owner);
  // A second line below the title.
  static constexpr TKept<QString> Description{"Description"};
  void Paint(TCanvas& canvas) override;
};

class TVRXHeaderPanel : public TVRXCustomHeader {
  VRX_CLASS(TVRXHeaderPanel)
 public:
  explicit TVRXHeaderPanel(TComponent* owner);
  // Pixels; 0 is what the text needs.
  static constexpr TKept<int> HeaderHeight{"HeaderHeight", 0};

  bool AcceptsControls() const override { return true; }
  QMargins Insets() const override;
  void ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                       const Placements* before) const override;
  void Paint(TCanvas& canvas) override;

 protected:
  void ControlsListed() override;

 private:
  QRect HeaderRect() const;
};

enum class TVRXHeaderButtonKind : std::uint8_t { hbCustom, hbClose, hbHelp, hbMenu, hbExpand, hbPin };
VRX_ENUM(TVRXHeaderButtonKind, {"hbCustom", "hbClose", "hbHelp", "hbMenu", "hbExpand", "hbPin"})

// Stands in the header of the panel that it is put on, at the end that it is aligned to: the right one,
// unless somebody says otherwise.
class TVRXHeaderPanelButton : public TGraphicControl {
  VRX_CLASS(TVRXHeaderPanelButton)
 public:
  explicit TVRXHeaderPanelButton(TComponent* owner);
  static constexpr TKept<bool> Down{"Down", false};
  static constexpr TKept<bool> Flat{"Flat", true};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<TVRXHeaderButtonKind> Kind{"Kind", TVRXHeaderButtonKind::hbMenu};

  void Paint(TCanvas& canvas) override;
};
