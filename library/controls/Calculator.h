// A calculator with a display, keys and a memory.
#pragma once
#include "library/values/CalculatorEngine.h"
#include "vcl/Edit.h"

class TVRXCalculator : public TWinControl {
  VRX_CLASS(TVRXCalculator)
 public:
  explicit TVRXCalculator(TComponent* owner);
  static constexpr TKept<TBorderStyle> BorderStyle{"BorderStyle", TBorderStyle::bsNone};
  static constexpr TKept<TColor> DigitColor{"DigitColor", clBtnText};
  static constexpr TKept<TColor> DisplayColor{"DisplayColor", clWindow};
  static constexpr TKept<TColor> DisplayTextColor{"DisplayTextColor", clWindowText};
  static constexpr TKept<int> KeySpacing{"KeySpacing", 4};
  static constexpr TKept<double> Memory{"Memory"};
  static constexpr TKept<TColor> MemoryColor{"MemoryColor", clBtnText};
  static constexpr TKept<TColor> OperatorColor{"OperatorColor", SysColor(26)};
  static constexpr TKept<int> Precision{"Precision", TVRXCalculatorEngine::MaxDigits};
  static constexpr TKept<bool> ShowDisplay{"ShowDisplay", true};
  static constexpr TKept<bool> ShowMemory{"ShowMemory", true};
  static constexpr TKept<double> Value{"Value"};

  double MemoryOf() const { return Get(Memory); }
  void SetMemory(double v);
  double ValueOf() const { return Get(Value); }
  // Whatever was being reckoned is given up.
  void SetValue(double v);
  // As TVRXCalculatorEngine has them. False for what is no key.
  bool Press(QStringView key);
  QString DisplayText() const { return engine_.Display(Get(Precision)); }

  // The keys from the top left on, those of the memory among them when they are shown.
  QStringList Keys() const;
  // Empty for a key that is not shown.
  QRect KeyRect(QStringView key) const;
  // The key at the point; empty for none.
  QString KeyAt(QPoint point) const;

  void Paint(TCanvas& canvas) override;

 private:
  QRect Room() const;
  QRect DisplayRect() const;
  void PaintDisplay(TCanvas& canvas) const;
  TVRXCalculatorEngine engine_;
};
