// Fields for a text of many lines.
#pragma once
#include "rtl/Strings.h"
#include "vcl/Edit.h"

enum class TScrollStyle : std::uint8_t {
  ssNone,
  ssHorizontal,
  ssVertical,
  ssBoth,
  ssAutoHorizontal,
  ssAutoVertical,
  ssAutoBoth
};
VRX_ENUM(TScrollStyle, {"ssNone", "ssHorizontal", "ssVertical", "ssBoth", "ssAutoHorizontal",
                        "ssAutoVertical", "ssAutoBoth"})

class TCustomMemo : public TCustomEdit {
  VRX_CLASS(TCustomMemo)
 public:
  explicit TCustomMemo(TComponent* owner);
  static constexpr TKept<TStrings*> Lines{"Lines"};
  static constexpr TKept<TScrollStyle> ScrollBars{"ScrollBars", TScrollStyle::ssNone};
  static constexpr TKept<bool> WantReturns{"WantReturns", true};
  static constexpr TKept<bool> WantTabs{"WantTabs", false};
  static constexpr TKept<bool> WordWrap{"WordWrap", true};

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override { return BoundsRect().size(); }
  QString ShownText() const override { return Get(Lines)->Text(); }
};

class TMemo : public TCustomMemo {
  VRX_CLASS(TMemo)
 public:
  using TCustomMemo::TCustomMemo;
};
