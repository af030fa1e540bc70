// Rows of buttons at an edge of a form.
#pragma once
#include "vcl/Control.h"
#include "vcl/ImageList.h"
#include "vcl/Menu.h"

enum class TToolButtonStyle : std::uint8_t {
  tbsButton,
  tbsCheck,
  tbsDropDown,
  tbsSeparator,
  tbsDivider,
  tbsTextButton,
  tbsButtonDrop
};
VRX_ENUM(TToolButtonStyle, {"tbsButton", "tbsCheck", "tbsDropDown", "tbsSeparator", "tbsDivider",
                            "tbsTextButton", "tbsButtonDrop"})
enum class TEdgeBorder : std::uint8_t { ebLeft, ebTop, ebRight, ebBottom };
using TEdgeBorders = TSet<TEdgeBorder>;
VRX_ENUM(TEdgeBorder, {"ebLeft", "ebTop", "ebRight", "ebBottom"})
VRX_SET(TEdgeBorders, TEdgeBorder)
enum class TEdgeStyle : std::uint8_t { esNone, esRaised, esLowered };
VRX_ENUM(TEdgeStyle, {"esNone", "esRaised", "esLowered"})
enum class TTBDrawingStyle : std::uint8_t { dsNormal, dsGradient };
VRX_ENUM(TTBDrawingStyle, {"dsNormal", "dsGradient"})
enum class TGradientDirection : std::uint8_t { gdHorizontal, gdVertical };
VRX_ENUM(TGradientDirection, {"gdHorizontal", "gdVertical"})

class TToolBar;

class TToolButton : public TGraphicControl {
  VRX_CLASS(TToolButton)
 public:
  explicit TToolButton(TComponent* owner);
  static constexpr TKept<bool> Down{"Down", false};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  static constexpr TKept<bool> Indeterminate{"Indeterminate", false};
  static constexpr TKept<bool> Marked{"Marked", false};
  static constexpr TKept<TMenuItem*> MenuItem{"MenuItem"};
  static constexpr TKept<bool> ShowCaption{"ShowCaption", true};
  static constexpr TKept<TToolButtonStyle> Style{"Style", TToolButtonStyle::tbsButton};
  // The next button begins another row.
  static constexpr TKept<bool> Wrap{"Wrap", false};

  bool IsSeparator() const;
  // Its own text, else that of what it stands for.
  QString ShownCaption() const;
  TToolBar* Bar() const;
  void Paint(TCanvas& canvas) override;
  void BeginLoading() override;

 protected:
  void DoChanging() override;
  void DoChanged() override;

 private:
  friend class TToolBar;
  bool ShowsCaption() const;
  // What the picture and the text take, with the room around them.
  QSize NeededSize() const;
  // The sides that the bar gives its buttons are not in the file.
  bool WidthStored() const;
  bool HeightStored() const;
  int OwnWidth() const { return Width(); }
  int OwnHeight() const { return Height(); }
  void SetOwnWidth(int v);
  void SetOwnHeight(int v);
  int ImageOf() const;

  bool widthRead_ = false, heightRead_ = false;
};

class TToolBar : public TWinControl {
  VRX_CLASS(TToolBar)
 public:
  explicit TToolBar(TComponent* owner);
  static constexpr TKept<int> ButtonHeight{"ButtonHeight", 22};
  static constexpr TKept<int> ButtonWidth{"ButtonWidth", 23};
  static constexpr TKept<TCustomImageList*> DisabledImages{"DisabledImages"};
  static constexpr TKept<TEdgeBorders> EdgeBorders{"EdgeBorders", {}};
  static constexpr TKept<bool> Flat{"Flat", true};
  static constexpr TKept<TCustomImageList*> Images{"Images"};
  static constexpr TKept<int> Indent{"Indent", 0};
  static constexpr TKept<bool> List{"List", false};
  static constexpr TKept<bool> ShowCaptions{"ShowCaptions", false};
  static constexpr TKept<bool> Wrapable{"Wrapable", true};

  bool AcceptsControls() const override { return true; }
  QMargins Insets() const override;
  // Everything stands in rows, in the order of the controls.
  bool PlacesControls() const override { return true; }
  void ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                       const Placements* before) const override;
  void Paint(TCanvas& canvas) override;
  void Loaded() override;

 protected:
  QSize AutoSizeHint() const override;
  void DoChanging() override;
  void DoChanged() override;

 private:
  friend class TToolButton;
  // Where texts are shown the buttons are as large as the largest of them: what a change makes them need more
  // or less, they get.
  std::optional<QSize> NeededSize() const;
  void BeginNeed();
  void EndNeed();
  std::optional<QSize> needed_;
};
