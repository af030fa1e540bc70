// A text on a form.
#pragma once
#include "vcl/Control.h"

enum class TTextLayout : std::uint8_t { tlTop, tlCenter, tlBottom };
VRX_ENUM(TTextLayout, {"tlTop", "tlCenter", "tlBottom"})

enum class TEllipsisPosition : std::uint8_t { epNone, epPathEllipsis, epEndEllipsis, epWordEllipsis };
VRX_ENUM(TEllipsisPosition, {"epNone", "epPathEllipsis", "epEndEllipsis", "epWordEllipsis"})

class TCustomLabel : public TGraphicControl {
  VRX_CLASS(TCustomLabel)
 public:
  explicit TCustomLabel(TComponent* owner);

  TAlignment Alignment() const { return alignment_; }
  void SetAlignment(TAlignment v) { Change(alignment_, v); }
  TWinControl* FocusControl() const { return focusControl_; }
  void SetFocusControl(TWinControl* v) { SetReference(*this, focusControl_, v); }
  TTextLayout Layout() const { return layout_; }
  void SetLayout(TTextLayout v) { Change(layout_, v); }
  bool ShowAccelChar() const { return showAccelChar_; }
  void SetShowAccelChar(bool v) { Change(showAccelChar_, v); }
  bool Transparent() const { return transparent_; }
  void SetTransparent(bool v) { Change(transparent_, v); }
  bool WordWrap() const { return wordWrap_; }
  void SetWordWrap(bool v) { Change(wordWrap_, v); }

  void Paint(TCanvas& canvas) override;
  // A label that sizes itself shows all of its text, also where the text is wider than it was where the form
  // was made.
  QRect PaintExtent() const override;

 protected:
  QSize AutoSizeHint() const override;
  bool GrowsToTheLeft() const override;
  void DoChanged() override;

 private:
  int TextFlags() const;
  // What the text takes, measured when it was painted last in this width.
  struct Measured {
    int width = 0;
    QSize text;
  };
  mutable std::optional<Measured> measured_;
  TWinControl* focusControl_ = nullptr;
  TAlignment alignment_ = TAlignment::taLeftJustify;
  TTextLayout layout_ = TTextLayout::tlTop;
  bool showAccelChar_ = true, transparent_ = true, wordWrap_ = false;
};

class TLabel : public TCustomLabel {
  VRX_CLASS(TLabel)
 public:
  using TCustomLabel::TCustomLabel;
};
