// Rows of tabs at an edge of a surface.
#pragma once
#include <array>
#include <optional>

#include "rtl/Strings.h"
#include "vcl/Control.h"
#include "vcl/ImageList.h"

enum class TTabPosition : std::uint8_t { tpTop, tpBottom, tpLeft, tpRight };
VRX_ENUM(TTabPosition, {"tpTop", "tpBottom", "tpLeft", "tpRight"})
enum class TTabStyle : std::uint8_t { tsTabs, tsButtons, tsFlatButtons };
VRX_ENUM(TTabStyle, {"tsTabs", "tsButtons", "tsFlatButtons"})

class TCustomTabControl : public TWinControl {
  VRX_CLASS(TCustomTabControl)
 public:
  explicit TCustomTabControl(TComponent* owner);
  static constexpr TKept<TCustomImageList*> Images{"Images"};
  static constexpr TKept<bool> MultiLine{"MultiLine", false};
  static constexpr TKept<bool> ShowTabs{"ShowTabs", true};
  static constexpr TKept<TTabStyle> Style{"Style", TTabStyle::tsTabs};
  // 0: as the text needs it.
  static constexpr TKept<std::int16_t> TabHeight{"TabHeight", 0};
  static constexpr TKept<TTabPosition> TabPosition{"TabPosition", TTabPosition::tpTop};
  static constexpr TKept<std::int16_t> TabWidth{"TabWidth", 0};

  // Where the tabs stand; empty for what is not shown.
  virtual std::vector<QRect> TabRects() const;
  // -1 where there is none.
  int TabAt(QPoint point) const;
  // Of the arrows beside tabs that do not all fit: -1 for the one that leads back, 1 for the other; 0
  // elsewhere.
  int ArrowAt(QPoint point) const;
  // By a tab, until another one comes to the front; no value changes.
  void ScrollTabs(int by);
  virtual int FrontTab() const = 0;
  // Makes that tab the one in front, as a value of the control.
  virtual void ChooseTab(int index) = 0;
  // What the tabs and the frame leave.
  QRect DisplayRect() const;
  QMargins Insets() const override;
  void Paint(TCanvas& canvas) override;

 protected:
  struct TTab {
    QString text;
    int image = -1;
    bool shown = true;
  };
  virtual std::vector<TTab> TabList() const = 0;
  // Empty where all tabs fit.
  virtual std::array<QRect, 2> ArrowRects() const;

 private:
  struct TStrip;
  TStrip Strip() const;
  bool IsUpright() const;

  // How far they were scrolled, while that tab is in front.
  struct TScrolled {
    int front, by;
  };
  std::optional<TScrolled> scrolled_;
};

class TTabControl : public TCustomTabControl {
  VRX_CLASS(TTabControl)
 public:
  using TCustomTabControl::TCustomTabControl;
  static constexpr TKept<int> TabIndex{"TabIndex", -1};
  static constexpr TKept<TStrings*> Tabs{"Tabs"};

  int FrontTab() const override;
  void ChooseTab(int index) override { Set(TabIndex, index); }
  bool AcceptsControls() const override { return true; }

 protected:
  std::vector<TTab> TabList() const override;
};
