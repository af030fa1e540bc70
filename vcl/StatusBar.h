// Bars at the lower edge of a form that tell what is going on.
#pragma once
#include "rtl/Collection.h"
#include "vcl/Control.h"

enum class TStatusPanelBevel : std::uint8_t { pbNone, pbLowered, pbRaised };
VRX_ENUM(TStatusPanelBevel, {"pbNone", "pbLowered", "pbRaised"})
enum class TStatusPanelStyle : std::uint8_t { psText, psOwnerDraw };
VRX_ENUM(TStatusPanelStyle, {"psText", "psOwnerDraw"})

class TStatusPanel : public TCollectionItem {
  VRX_CLASS(TStatusPanel)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};
  static constexpr TKept<TStatusPanelBevel> Bevel{"Bevel", TStatusPanelBevel::pbLowered};
  static constexpr TKept<QString> Text{"Text"};
  static constexpr TKept<int> Width{"Width", 50};

  QString DisplayName() const override;
};

class TStatusPanels : public TCollection {
  VRX_CLASS(TStatusPanels)
 public:
  explicit TStatusPanels(TPersistent* owner) : TCollection(TStatusPanel::StaticClass(), owner) {}
  const TStatusPanel& Panel(int index) const { return static_cast<const TStatusPanel&>(*Item(index)); }
};

class TStatusBar : public TWinControl {
  VRX_CLASS(TStatusBar)
 public:
  explicit TStatusBar(TComponent* owner);
  static constexpr TKept<TStatusPanels*> Panels{"Panels"};
  // One text over the whole bar instead of the panels.
  static constexpr TKept<bool> SimplePanel{"SimplePanel", false};
  static constexpr TKept<QString> SimpleText{"SimpleText"};
  static constexpr TKept<bool> SizeGrip{"SizeGrip", true};

  // Where the panels stand; the last one reaches to the end of the bar.
  std::vector<QRect> PanelRects() const;
  void Paint(TCanvas& canvas) override;
};
