// The look of segment letters.
#pragma once
#include "rtl/Persistent.h"
#include "vcl/Colors.h"

class TVRXLED : public TOwnedPersistent {
  VRX_CLASS(TVRXLED)
 public:
  explicit TVRXLED(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}

  // Indexed setters, as editors use them. Colours: 0 active, 1 inactive. Sizes: 1 horizontal, 2 thickness,
  // 3 vertical. Size 0 is drawn as the smallest letters. A thickness is put right to 1 to 32.
  void SetColor(int index, TColor color);
  void SetSize(int index, std::uint8_t value);

  TColor ActiveColor() const { return activeColor_; }
  TColor InActiveColor() const { return inActiveColor_; }
  // Length of a horizontal segment, of a vertical segment and thickness of both, in pixels.
  std::uint8_t HorzSize() const { return horzSize_; }
  std::uint8_t VertSize() const { return vertSize_; }
  std::uint8_t Thickness() const { return thickness_; }
  // Letters of a disabled control are drawn in the inactive colour.
  bool DisabledDigits() const { return disabledDigits_; }
  void SetDisabledDigits(bool v) { Change(disabledDigits_, v); }

  static constexpr int MaxThickness = 32;

 private:
  void SetActiveColor(TColor v) { SetColor(0, v); }
  void SetInActiveColor(TColor v) { SetColor(1, v); }
  void SetHorzSize(std::uint8_t v) { SetSize(1, v); }
  void SetThickness(std::uint8_t v) { SetSize(2, v); }
  void SetVertSize(std::uint8_t v) { SetSize(3, v); }

  static constexpr TColor DefaultActive = clLime;
  static constexpr TColor DefaultInActive = TColor(0x004000);
  static constexpr std::uint8_t DefaultHorz = 8, DefaultVert = 8, DefaultThickness = 2;
  TColor activeColor_ = DefaultActive;
  TColor inActiveColor_ = DefaultInActive;
  std::uint8_t horzSize_ = DefaultHorz;
  std::uint8_t vertSize_ = DefaultVert;
  std::uint8_t thickness_ = DefaultThickness;
  bool disabledDigits_ = false;
};
