// Two arrows that count the number in a field up and down.
#pragma once
#include "vcl/Control.h"
#include "vcl/Ranged.h"

enum class TUDAlignButton : std::uint8_t { udLeft, udRight };
VRX_ENUM(TUDAlignButton, {"udLeft", "udRight"})
enum class TUDOrientation : std::uint8_t { udHorizontal, udVertical };
VRX_ENUM(TUDOrientation, {"udHorizontal", "udVertical"})

class TUpDown : public TWinControl {
  VRX_CLASS(TUpDown)
 public:
  explicit TUpDown(TComponent* owner);
  static constexpr TKept<TUDAlignButton> AlignButton{"AlignButton", TUDAlignButton::udRight};
  static constexpr TKept<int> Max{"Max", 100};
  static constexpr TKept<int> Min{"Min", 0};
  static constexpr TKept<TUDOrientation> Orientation{"Orientation", TUDOrientation::udVertical};
  static constexpr TKept<int> Position{"Position", 0};

  // The field that the arrows belong to. They move to its side when somebody chooses it.
  TWinControl* Associate() const { return field_; }
  void SetAssociate(TWinControl* v);

  // The position stays within its ends; ends that would change places are refused.
  int MaxOf() const { return Get(Max); }
  void SetMax(int v) { ChangeRange(*this, Get(Min), v); }
  int MinOf() const { return Get(Min); }
  void SetMin(int v) { ChangeRange(*this, v, Get(Max)); }
  int PositionOf() const { return Get(Position); }
  void SetPosition(int v) { ChangePosition(*this, v); }

  void Paint(TCanvas& canvas) override;

 private:
  TWinControl* field_ = nullptr;
};
