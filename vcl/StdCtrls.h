// Labels and buttons.
#pragma once
#include "vcl/Control.h"

enum class TTextLayout : std::uint8_t { tlTop, tlCenter, tlBottom };
VRX_ENUM(TTextLayout, {"tlTop", "tlCenter", "tlBottom"})

class TLabel : public TGraphicControl {
  VRX_CLASS(TLabel)
 public:
  explicit TLabel(TComponent* owner);

  TAlignment Alignment() const { return alignment_; }
  void SetAlignment(TAlignment v) {
    alignment_ = v;
    Changed();
  }
  TWinControl* FocusControl() const { return focusControl_; }
  void SetFocusControl(TWinControl* v) { SetReference(*this, focusControl_, v); }
  TTextLayout Layout() const { return layout_; }
  void SetLayout(TTextLayout v) {
    layout_ = v;
    Changed();
  }
  bool ShowAccelChar() const { return showAccelChar_; }
  void SetShowAccelChar(bool v) {
    showAccelChar_ = v;
    AdjustSize();
    Changed();
  }
  bool Transparent() const { return transparent_; }
  void SetTransparent(bool v) {
    transparent_ = v;
    Changed();
  }
  bool WordWrap() const { return wordWrap_; }
  void SetWordWrap(bool v) {
    wordWrap_ = v;
    AdjustSize();
    Changed();
  }

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;

 private:
  int TextFlags() const;
  TWinControl* focusControl_ = nullptr;
  TAlignment alignment_ = TAlignment::taLeftJustify;
  TTextLayout layout_ = TTextLayout::tlTop;
  bool showAccelChar_ = true, transparent_ = true, wordWrap_ = false;
};

class TButton : public TWinControl {
  VRX_CLASS(TButton)
 public:
  explicit TButton(TComponent* owner);

  bool Cancel() const { return cancel_; }
  void SetCancel(bool v) { cancel_ = v; }
  bool Default() const { return default_; }
  void SetDefault(bool v) {
    default_ = v;
    Changed();
  }
  int ModalResult() const { return modalResult_; }
  void SetModalResult(int v) { modalResult_ = v; }

  void Paint(TCanvas& canvas) override;

 private:
  int modalResult_ = 0;
  bool cancel_ = false, default_ = false;
};
