// Surfaces that scroll over what does not fit.
#pragma once
#include "vcl/Edit.h"

enum class TScrollBarStyle : std::uint8_t { ssRegular, ssFlat, ssHotTrack };
VRX_ENUM(TScrollBarStyle, {"ssRegular", "ssFlat", "ssHotTrack"})

// A scroll bar that belongs to a control.
class TControlScrollBar : public TOwnedPersistent {
  VRX_CLASS(TControlScrollBar)
 public:
  explicit TControlScrollBar(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}
  int ButtonSize() const { return buttonSize_; }
  void SetButtonSize(int v) { Change(buttonSize_, v); }
  TColor Color() const { return color_; }
  void SetColor(TColor v) { Change(color_, v); }
  std::uint16_t Increment() const { return increment_; }
  void SetIncrement(std::uint16_t v) { Change(increment_, v); }
  std::uint16_t Margin() const { return margin_; }
  void SetMargin(std::uint16_t v) { Change(margin_, v); }
  int Page() const { return page_; }
  void SetPage(int v) { Change(page_, v); }
  bool ParentColor() const { return parentColor_; }
  void SetParentColor(bool v) { Change(parentColor_, v); }
  int Position() const { return position_; }
  void SetPosition(int v) { Change(position_, v); }
  int Range() const { return range_; }
  void SetRange(int v) { Change(range_, v); }
  int Size() const { return size_; }
  void SetSize(int v) { Change(size_, v); }
  bool Smooth() const { return smooth_; }
  void SetSmooth(bool v) { Change(smooth_, v); }
  TScrollBarStyle Style() const { return style_; }
  void SetStyle(TScrollBarStyle v) { Change(style_, v); }
  int ThumbSize() const { return thumbSize_; }
  void SetThumbSize(int v) { Change(thumbSize_, v); }
  bool Tracking() const { return tracking_; }
  void SetTracking(bool v) { Change(tracking_, v); }
  bool Visible() const { return visible_; }
  void SetVisible(bool v) { Change(visible_, v); }

 private:
  int buttonSize_ = 0, page_ = 0, position_ = 0, range_ = 0, size_ = 0, thumbSize_ = 0;
  TColor color_ = clBtnHighlight;
  std::uint16_t increment_ = 8, margin_ = 0;
  TScrollBarStyle style_ = TScrollBarStyle::ssRegular;
  bool parentColor_ = true, smooth_ = false, tracking_ = false, visible_ = true;
};

class TScrollBox : public TWinControl {
  VRX_CLASS(TScrollBox)
 public:
  explicit TScrollBox(TComponent* owner);
  static constexpr TKept<bool> AutoScroll{"AutoScroll", true};
  static constexpr TKept<TBorderStyle> BorderStyle{"BorderStyle", TBorderStyle::bsSingle};
  static constexpr TKept<TControlScrollBar*> HorzScrollBar{"HorzScrollBar"};
  static constexpr TKept<TControlScrollBar*> VertScrollBar{"VertScrollBar"};

  bool AcceptsControls() const override { return true; }
  QRect ClientRect() const override;
  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override { return ContentExtent(); }

 private:
  // What stands inside reaches so far.
  QSize Reach() const;
};
