// Check boxes and radio buttons.
#pragma once
#include "vcl/Control.h"

enum class TLeftRight : std::uint8_t { taLeftJustify, taRightJustify };
VRX_ENUM(TLeftRight, {"taLeftJustify", "taRightJustify"})

// A mark with a text beside it; on which side, Alignment says (of the text's edge that the mark is not at).
class TMarkControl : public TWinControl {
  VRX_CLASS(TMarkControl)
 public:
  explicit TMarkControl(TComponent* owner);
  static constexpr TKept<TLeftRight> Alignment{"Alignment", TLeftRight::taRightJustify};
  static constexpr TKept<bool> WordWrap{"WordWrap", false};

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;
  virtual void PaintMark(TCanvas& canvas, const QRect& rect) const = 0;
};

class TCustomCheckBox : public TMarkControl {
  VRX_CLASS(TCustomCheckBox)
 public:
  explicit TCustomCheckBox(TComponent* owner);
  static constexpr TKept<bool> AllowGrayed{"AllowGrayed", false};
  static constexpr TKept<TCheckBoxState> State{"State", TCheckBoxState::cbUnchecked};
  // The same value as two states; what is grayed is not checked.
  bool Checked() const { return Get(State) == TCheckBoxState::cbChecked; }
  void SetChecked(bool v);

 protected:
  void PaintMark(TCanvas& canvas, const QRect& rect) const override;
};

class TCheckBox : public TCustomCheckBox {
  VRX_CLASS(TCheckBox)
 public:
  using TCustomCheckBox::TCustomCheckBox;
};

class TRadioButton : public TMarkControl {
  VRX_CLASS(TRadioButton)
 public:
  explicit TRadioButton(TComponent* owner);
  bool Checked() const { return checked_; }
  // Of the radio buttons in one container at most one is checked.
  void SetChecked(bool v);

 protected:
  void PaintMark(TCanvas& canvas, const QRect& rect) const override;

 private:
  bool checked_ = false;
};
