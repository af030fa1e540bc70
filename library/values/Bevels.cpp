#include "library/values/Bevels.h"

#include "library/values/Outline.h"
#include "rtl/Class.h"

const TClass& TVRXSimpleBevel::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXSimpleBevel>("TVRXSimpleBevel", TPersistent::StaticClass())
          .Published(LightColor)
          .Doc(QStringLiteral("Color of the sides that face the light."))
          .Published(NormalColor)
          .Doc(QStringLiteral("Color of a bevel without light and shadow; clNone is none."))
          .Published(ShadowColor)
          .Doc(QStringLiteral("Color of the sides that lie in the shadow."))
          .Published(Style)
          .Doc(QStringLiteral("Plain, sunken or raised."))
          .Published(Width)
          .Doc(QStringLiteral("Width in pixels; a negative one turns light and shadow round.")));
  return cls;
}

int TVRXSimpleBevel::Room() const {
  const bool none = Get(Style) == TVRXSimpleBevelStyle::sbNormal && Get(NormalColor) == clNone;
  return none ? 0 : std::abs(int{Get(Width)});
}

void TVRXSimpleBevel::Draw(TCanvas& canvas, const QPolygonF& outline) const {
  if (Room() == 0) return;
  TColor lit = Get(LightColor), shaded = Get(ShadowColor);
  if ((Get(Style) == TVRXSimpleBevelStyle::sbInset) != (Get(Width) < 0)) std::swap(lit, shaded);
  if (Get(Style) == TVRXSimpleBevelStyle::sbNormal) lit = shaded = Get(NormalColor);
  const TEdgeStrip strip = StripInside(outline, Room());
  QPainter& p = canvas.Painter();
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  // Clipping leaves edges rough; only a strip that is too wide needs it.
  const QSizeF size = outline.boundingRect().size();
  if (4 * Room() > std::min(size.width(), size.height())) p.setClipPath(PathOf(outline), Qt::IntersectClip);
  p.fillPath(strip.Shaded, ToQColor(shaded));
  p.fillPath(strip.Lit, ToQColor(lit));
  p.restore();
}

const TClass& TVRXBevel::StaticClass() {
  static const TClass cls(DescribeClass<TVRXBevel>("TVRXBevel", TPersistent::StaticClass())
                              .Published(BorderColor)
                              .Doc(QStringLiteral("Color of the border; clNone is none."))
                              .Published(BorderWidth)
                              .Doc(QStringLiteral("Pixels between the outer and the inner bevel."))
                              .Published(Inner)
                              .Doc(QStringLiteral("The bevel inside of the border."))
                              .Published(LightColor)
                              .Doc(QStringLiteral("Color of the edges that face the light."))
                              .Published(Outer)
                              .Doc(QStringLiteral("The bevel around the border."))
                              .Published(ShadowColor)
                              .Doc(QStringLiteral("Color of the edges that lie in the shadow."))
                              .Published(Width)
                              .Doc(QStringLiteral("Width of each bevel, in pixels.")));
  return cls;
}

int TVRXBevel::Room() const {
  const auto at = [this](TBevelCut cut) { return cut == TBevelCut::bvNone ? 0 : std::max(0, Get(Width)); };
  return at(Get(Outer)) + std::max(0, Get(BorderWidth)) + at(Get(Inner));
}

QRect TVRXBevel::Draw(TCanvas& canvas, const QRect& rect) const {
  QRect r = rect;
  // No more than there is room for, whatever a form says.
  const auto limited = [&r](int width) { return std::clamp(width, 0, std::max(r.width(), r.height())); };
  const auto bevel = [&](TBevelCut cut) {
    const int width = limited(Get(Width));
    if (cut == TBevelCut::bvRaised) r = canvas.Frame3D(r, Get(LightColor), Get(ShadowColor), width);
    if (cut == TBevelCut::bvLowered) r = canvas.Frame3D(r, Get(ShadowColor), Get(LightColor), width);
    if (cut == TBevelCut::bvSpace) r.adjust(width, width, -width, -width);
  };
  bevel(Get(Outer));
  r = canvas.Frame3D(r, Get(BorderColor), Get(BorderColor), limited(Get(BorderWidth)));
  bevel(Get(Inner));
  return r;
}
