#include "library/values/Shadow.h"

#include "rtl/Class.h"

const TClass& TVRXShadow::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXShadow>("TVRXShadow", TPersistent::StaticClass())
          .Published(Color)
          .Doc(QStringLiteral("Color of the shadow."))
          .Published(Depth)
          .Doc(QStringLiteral("How far the shadow falls to the right and down, in pixels; "
                              "negative to the left and up."))
          .Published(Style)
          .Doc(QStringLiteral("None, a solid one, or one that what it falls on shines "
                              "through.")));
  return cls;
}

QMargins TVRXShadow::Room() const {
  if (Get(Style) == TVRXShadowStyle::hssNone) return {};
  const int depth = Get(Depth), before = std::max(0, -depth), behind = std::max(0, depth);
  return {before, before, behind, behind};
}

void TVRXShadow::Draw(TCanvas& canvas, const QPainterPath& figure) const {
  const TVRXShadowStyle style = Get(Style);
  if (style == TVRXShadowStyle::hssNone || Get(Depth) == 0) return;
  QPainter& p = canvas.Painter();
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  if (style == TVRXShadowStyle::hssTracing) p.setCompositionMode(QPainter::CompositionMode_Multiply);
  p.translate(Get(Depth), Get(Depth));
  p.fillPath(figure, ToQColor(Get(Color)));
  p.restore();
}

QString TVRXShadow::Description() const {
  const TVRXShadowStyle style = Get(Style);
  if (style == TVRXShadowStyle::hssNone) return QStringLiteral("None");
  return QStringLiteral("%1, %2, depth %3")
      .arg(style == TVRXShadowStyle::hssSolid ? QStringLiteral("Solid") : QStringLiteral("Tracing"),
           ColorToString(Get(Color)), QString::number(Get(Depth)));
}
