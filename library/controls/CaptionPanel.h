// Panels with a title that fold, and the group that keeps them in a column or a row.
#pragma once
#include "library/controls/CaptionStrip.h"
#include "library/values/Bevels.h"

class TVRXCaptionPanelGroup;

enum class TVRXCaptionPosition : std::uint8_t { cpTop, cpBottom, cpLeft, cpRight };
VRX_ENUM(TVRXCaptionPosition, {"cpTop", "cpBottom", "cpLeft", "cpRight"})
enum class TVRXPanelButton : std::uint8_t { pbExpand, pbMenu, pbHelp, pbClose };
VRX_ENUM(TVRXPanelButton, {"pbExpand", "pbMenu", "pbHelp", "pbClose"})
using TVRXPanelButtons = TSet<TVRXPanelButton>;
VRX_SET(TVRXPanelButtons, TVRXPanelButton)
enum class TVRXGroupOrientation : std::uint8_t { goHorizontal, goVertical };
VRX_ENUM(TVRXGroupOrientation, {"goHorizontal", "goVertical"})

// How the title of a panel looks and what stands in it.
class TVRXPanelCaptionObject : public TKeptPart {
  VRX_CLASS(TVRXPanelCaptionObject)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};
  static constexpr TKept<bool> Bold{"Bold", true};
  static constexpr TKept<TVRXPanelButtons> Buttons{"Buttons", {TVRXPanelButton::pbExpand}};
  static constexpr TKept<TVRXFillObject*> FillPart{"FillObject"};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<TVRXCaptionPosition> Position{"Position", TVRXCaptionPosition::cpTop};
  // Pixels; 0 is what the text needs.
  static constexpr TKept<int> Size{"Size", 0};

  TVRXFillObject* FillObject() const { return Get(FillPart); }
};

class TVRXCaptionPanel : public TWinControl {
  VRX_CLASS(TVRXCaptionPanel)
 public:
  explicit TVRXCaptionPanel(TComponent* owner);
  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  static constexpr TKept<TVRXPanelCaptionObject*> CaptionPart{"CaptionObject"};
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};
  static constexpr TKept<bool> Transparent{"Transparent", false};

  TVRXBevel* Bevel() const { return Get(BevelPart); }
  TVRXPanelCaptionObject* CaptionObject() const { return Get(CaptionPart); }

  // Folded, only the title is left of it.
  bool Expanded() const { return expanded_; }
  void SetExpanded(bool v);
  // Of a folded panel: how high it is when it is not, or how wide with the title at a side. 0 otherwise.
  int ExpandedSize() const { return expandedSize_; }
  void SetExpandedSize(int v) { Change(expandedSize_, v); }
  // Whether it folds to the side.
  bool FoldsAcross() const;

  // Null outside of a group.
  TVRXCaptionPanelGroup* Group() const;
  // Its place among the panels of the group; -1 outside.
  int Index() const;
  void SetIndex(int v);
  // The same before the group lays it out.
  void SetSilentIndex(int v);

  bool AcceptsControls() const override { return true; }
  QRect ClientRect() const override;
  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override { return expanded_ ? ContentExtent() : QSize(Width(), Height()); }

 private:
  int StripSize() const;
  QRect StripRect(const QRect& inside) const;
  QRect WithoutStrip(const QRect& inside) const;
  void PaintButtons(TCanvas& canvas, const QRect& strip);

  bool expanded_ = true;
  int expandedSize_ = 0;
};

class TVRXCaptionPanelGroup : public TWinControl {
  VRX_CLASS(TVRXCaptionPanelGroup)
 public:
  explicit TVRXCaptionPanelGroup(TComponent* owner);
  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  // Between two panels.
  static constexpr TKept<int> Distance{"Distance", 4};
  static constexpr TKept<TVRXGroupOrientation> Orientation{"Orientation", TVRXGroupOrientation::goVertical};
  // By how much what stands in it is scrolled.
  static constexpr TKept<int> ScrollPos{"ScrollPos", 0};
  static constexpr TKept<bool> Transparent{"Transparent", false};

  TVRXBevel* Bevel() const { return Get(BevelPart); }
  void SetOrientation(TVRXGroupOrientation v) { Set(Orientation, v); }
  std::vector<TVRXCaptionPanel*> PanelList() const;
  void ExpandAll() { ExpandAll(true); }
  void CollapseAll() { ExpandAll(false); }
  // Lays its panels out again.
  void Change();
  // Scrolls as far as it takes to see the panel.
  void ScrollInView(const TVRXCaptionPanel& panel);

  bool AcceptsControls() const override { return true; }
  bool PlacesControls() const override { return true; }
  void ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                       const Placements* before) const override;
  QMargins Insets() const override;
  void Paint(TCanvas& canvas) override;

 private:
  bool IsUpright() const { return Get(Orientation) == TVRXGroupOrientation::goVertical; }
  void ExpandAll(bool expanded);
  // From the beginning of the first one to the end of the last one.
  int Extent() const;
};
