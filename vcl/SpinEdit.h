// Fields for a number with arrows that count it up and down.
#pragma once
#include "vcl/Edit.h"

class TCustomSpinEdit : public TCustomEdit {
  VRX_CLASS(TCustomSpinEdit)
 public:
  explicit TCustomSpinEdit(TComponent* owner);
  void Paint(TCanvas& canvas) override;
};

class TSpinEdit : public TCustomSpinEdit {
  VRX_CLASS(TSpinEdit)
 public:
  using TCustomSpinEdit::TCustomSpinEdit;
  static constexpr TKept<int> Increment{"Increment", 1};
  // With both limits alike there are none.
  static constexpr TKept<int> MaxValue{"MaxValue", 0};
  static constexpr TKept<int> MinValue{"MinValue", 0};
  static constexpr TKept<int> Value{"Value", 0};

 protected:
  QString ShownText() const override { return QString::number(Get(Value)); }
};

class TFloatSpinEdit : public TCustomSpinEdit {
  VRX_CLASS(TFloatSpinEdit)
 public:
  using TCustomSpinEdit::TCustomSpinEdit;
  static constexpr TKept<int> DecimalPlaces{"DecimalPlaces", 2};
  static constexpr TKept<double> Value{"Value"};

  // How far a step of the arrows goes. There is no step of 0: it counts as 1.
  double Increment() const { return increment_; }
  void SetIncrement(double v) { Change(increment_, v == 0 ? 1 : v); }

 protected:
  QString ShownText() const override;

 private:
  bool HasOwnIncrement() const { return increment_ != 1; }
  double increment_ = 1;
};
