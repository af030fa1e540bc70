#include "library/values/FontFx.h"

#include "rtl/Class.h"
#include "rtl/Exceptions.h"

const TClass& TVRXFxCaption::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFxCaption>("TVRXFxCaption", TPersistent::StaticClass())
          .Published("Angle", &TVRXFxCaption::Angle, &TVRXFxCaption::SetAngle, 0)
          .Doc(QStringLiteral("Direction of the text, in degrees against the clock."))
          .Published("LightColor", &TVRXFxCaption::LightColor, &TVRXFxCaption::SetLightColor, clWhite)
          .Doc(QStringLiteral("Color of the lit side of the letters."))
          .Published("LightDepth", &TVRXFxCaption::LightDepth, &TVRXFxCaption::SetLightDepth, 1)
          .Doc(QStringLiteral("How far the lit side stands out, in pixels."))
          .Published("ShadowColor", &TVRXFxCaption::ShadowColor, &TVRXFxCaption::SetShadowColor, clGray)
          .Doc(QStringLiteral("Color of the shaded side of the letters."))
          .Published("ShadowDepth", &TVRXFxCaption::ShadowDepth, &TVRXFxCaption::SetShadowDepth, 1)
          .Doc(QStringLiteral("How far the shaded side stands out, in pixels."))
          .Published("Style", &TVRXFxCaption::Style, &TVRXFxCaption::SetStyle, TVRX3DTextStyle::tdNone)
          .Doc(QStringLiteral("Whether the letters are sunken, raised or throw a shadow."))
          .Published("Tracing", &TVRXFxCaption::Tracing, &TVRXFxCaption::SetTracing, 0)
          .Doc(QStringLiteral("Pixels between the letters beyond their own distance.")));
  return cls;
}

void TVRXFxCaption::SetDepth(int index, std::uint8_t pixels) {
  if (index != 0 && index != 1)
    throw EPropertyError(QStringLiteral("TVRXFxCaption has no depth %1.").arg(index));
  Change(index == 0 ? lightDepth_ : shadowDepth_, pixels);
}

void TVRXFxCaption::SetColor(int index, TColor color) {
  if (index != 0 && index != 1)
    throw EPropertyError(QStringLiteral("TVRXFxCaption has no color %1.").arg(index));
  Change(index == 0 ? lightColor_ : shadowColor_, color);
}
