// Two arrows that count the number in a field up and down.
#pragma once
#include "vcl/Ranged.h"

enum class TUDAlignButton : std::uint8_t { udLeft, udRight };
VRX_ENUM(TUDAlignButton, {"udLeft", "udRight"})
enum class TUDOrientation : std::uint8_t { udHorizontal, udVertical };
VRX_ENUM(TUDOrientation, {"udHorizontal", "udVertical"})

class TUpDown : public TRangedControl<100> {
  VRX_CLASS(TUpDown)
 public:
  explicit TUpDown(TComponent* owner);
  static constexpr TKept<TUDAlignButton> AlignButton{"AlignButton", TUDAlignButton::udRight};
  static constexpr TKept<TUDOrientation> Orientation{"Orientation", TUDOrientation::udVertical};

  // The field that the arrows belong to. They move to its side when somebody chooses it.
  TWinControl* Associate() const { return field_; }
  void SetAssociate(TWinControl* v);

  void Paint(TCanvas& canvas) override;

 private:
  TWinControl* field_ = nullptr;
};
