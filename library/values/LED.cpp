#include "library/values/LED.h"

#include "rtl/Class.h"
#include "rtl/Exceptions.h"

const TClass& TVRXLED::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXLED>("TVRXLED", TPersistent::StaticClass())
          .Published("ActiveColor", &TVRXLED::ActiveColor, &TVRXLED::SetActiveColor, DefaultActive)
          .Doc(QStringLiteral("Color of the lit segments."))
          .Published("DisabledDigits", &TVRXLED::DisabledDigits, &TVRXLED::SetDisabledDigits, false)
          .Doc(QStringLiteral("Shows the letters of a disabled control in the inactive color."))
          .Published("HorzSize", &TVRXLED::HorzSize, &TVRXLED::SetHorzSize, DefaultHorz)
          .Doc(QStringLiteral("Length of the horizontal segments, in pixels."))
          .Published("InActiveColor", &TVRXLED::InActiveColor, &TVRXLED::SetInActiveColor, DefaultInActive)
          .Doc(QStringLiteral("Color of the dark segments; clNone hides them."))
          .Published("Thickness", &TVRXLED::Thickness, &TVRXLED::SetThickness, DefaultThickness)
          .Doc(QStringLiteral("Thickness of the segments, in pixels."))
          .Published("VertSize", &TVRXLED::VertSize, &TVRXLED::SetVertSize, DefaultVert)
          .Doc(QStringLiteral("Length of the vertical segments, in pixels.")));
  return cls;
}

void TVRXLED::SetColor(int index, TColor color) {
  if (index != 0 && index != 1) throw EPropertyError(QStringLiteral("TVRXLED has no color %1.").arg(index));
  Change(index == 0 ? activeColor_ : inActiveColor_, color);
}

void TVRXLED::SetSize(int index, std::uint8_t value) {
  switch (index) {
    case 1:
      return Change(horzSize_, value);
    case 2:
      return Change(thickness_, std::clamp<std::uint8_t>(value, 1, MaxThickness));
    case 3:
      return Change(vertSize_, value);
    default:
      throw EPropertyError(QStringLiteral("TVRXLED has no size %1.").arg(index));
  }
}
