// Buttons with a picture beside the text.
#pragma once
#include "vcl/Button.h"
#include "vcl/GlyphShowMode.h"
#include "vcl/Picture.h"

enum class TBitBtnKind : std::uint8_t {
  bkCustom,
  bkOK,
  bkCancel,
  bkHelp,
  bkYes,
  bkNo,
  bkClose,
  bkAbort,
  bkRetry,
  bkIgnore,
  bkAll
};
VRX_ENUM(TBitBtnKind, {"bkCustom", "bkOK", "bkCancel", "bkHelp", "bkYes", "bkNo", "bkClose", "bkAbort",
                       "bkRetry", "bkIgnore", "bkAll"})
enum class TButtonLayout : std::uint8_t { blGlyphLeft, blGlyphRight, blGlyphTop, blGlyphBottom };
VRX_ENUM(TButtonLayout, {"blGlyphLeft", "blGlyphRight", "blGlyphTop", "blGlyphBottom"})
enum class TButtonStyle : std::uint8_t { bsAutoDetect, bsWin31, bsNew };
VRX_ENUM(TButtonStyle, {"bsAutoDetect", "bsWin31", "bsNew"})

// What stands on a button: as many pictures side by side as the button has states, one of them shown.
struct TFace {
  QImage glyph;
  QString text;
  TButtonLayout layout = TButtonLayout::blGlyphLeft;
  int margin = -1;  // from the edge; -1: in the middle
  int spacing = 4;  // between both
};
void PaintFace(TCanvas& canvas, const QRect& rect, const TFace& face, const TFont& font, bool enabled);
// The picture for a state out of `count` side by side: 0 up, 1 disabled, 2 down, 3 stays down.
QImage GlyphOf(const QImage& all, int count, int state);

// A kind gives the button its text, its part in the form and its picture. On forms of one of the two families
// these are the kind's as long as it has one, and are not stored; whoever chooses another value ends the kind
// and keeps the rest. On those of the other one choosing a kind sets them, and that is all.
class TBitBtn : public TButton {
  VRX_CLASS(TBitBtn)
 public:
  using TButton::TButton;
  static constexpr TKept<bool> DefaultCaption{"DefaultCaption", false};
  static constexpr TKept<TGlyph*> Glyph{"Glyph"};
  static constexpr TKept<TBitBtnKind> Kind{"Kind", TBitBtnKind::bkCustom};
  static constexpr TKept<TButtonLayout> Layout{"Layout", TButtonLayout::blGlyphLeft};
  static constexpr TKept<int> Margin{"Margin", -1};
  static constexpr TKept<int> NumGlyphs{"NumGlyphs", 1};
  static constexpr TKept<int> Spacing{"Spacing", 4};
  static constexpr TKept<TButtonStyle> Style{"Style", TButtonStyle::bsAutoDetect};

  TBitBtnKind KindOf() const { return Get(Kind); }
  void SetKind(TBitBtnKind v);
  QString ShownCaption() const;
  bool IsDefault() const;
  void ChooseDefault(bool v);
  bool IsCancel() const;
  void ChooseCancel(bool v);
  int Result() const;
  void ChooseResult(int v);

  void Paint(TCanvas& canvas) override;

 protected:
  void PartChanged(TPersistent& part) override;

 private:
  bool IsOfItsKind() const;
  bool IsCustom() const { return !IsOfItsKind(); }
  bool CaptionStored() const;
  void LeaveKind();
  QImage Face() const;
};

class TSpeedButton : public TGraphicControl {
  VRX_CLASS(TSpeedButton)
 public:
  explicit TSpeedButton(TComponent* owner);
  static constexpr TKept<bool> AllowAllUp{"AllowAllUp", false};
  static constexpr TKept<bool> Down{"Down", false};
  static constexpr TKept<bool> Flat{"Flat", false};
  static constexpr TKept<TGlyph*> Glyph{"Glyph"};
  static constexpr TKept<int> GroupIndex{"GroupIndex", 0};
  static constexpr TKept<TButtonLayout> Layout{"Layout", TButtonLayout::blGlyphLeft};
  static constexpr TKept<int> Margin{"Margin", -1};
  static constexpr TKept<int> NumGlyphs{"NumGlyphs", 1};
  static constexpr TKept<int> Spacing{"Spacing", 4};
  static constexpr TKept<bool> Transparent{"Transparent", true};

  void Paint(TCanvas& canvas) override;
};
