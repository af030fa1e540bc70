#include "library/values/Font3D.h"

#include "library/values/TextLayers.h"
#include "rtl/Class.h"
#include "vcl/ShownText.h"

const TClass& TVRXFont3D::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFont3D>("TVRXFont3D", TPersistent::StaticClass())
          .Published(LightColor)
          .Doc(QStringLiteral("Color of the lit side of the letters."))
          .Published(LightDepth)
          .Doc(QStringLiteral("How far the lit side stands out, in pixels."))
          .Published(OffsetX)
          .Doc(QStringLiteral("How far the shadow lies to the right beyond its depth, in pixels."))
          .Published(OffsetY)
          .Doc(QStringLiteral("How far the shadow lies below beyond its depth, in pixels."))
          .Published(ShadowColor)
          .Doc(QStringLiteral("Color of the shaded side of the letters."))
          .Published(ShadowDepth)
          .Doc(QStringLiteral("How far the shaded side stands out, in pixels."))
          .Published(Style)
          .Doc(QStringLiteral("Whether the letters are sunken, raised or throw a shadow.")));
  return cls;
}

namespace {
std::vector<TVRXTextLayer> LayersOf(const TVRXFont3D& f, QColor letters, QColor behind) {
  using F = TVRXFont3D;
  return VRXTextLayers({f.Get(F::Style), f.Get(F::LightColor), f.Get(F::ShadowColor), f.Get(F::LightDepth),
                        f.Get(F::ShadowDepth), QPoint(f.Get(F::OffsetX), f.Get(F::OffsetY))},
                       letters, behind);
}
}  // namespace

QMargins TVRXFont3D::Room() const {
  QMargins room;
  for (const TVRXTextLayer& layer : LayersOf(*this, {}, {})) {
    const QPoint at = layer.Offset;
    room = QMargins(std::max(room.left(), -at.x()), std::max(room.top(), -at.y()),
                    std::max(room.right(), at.x()), std::max(room.bottom(), at.y()));
  }
  return room;
}

void TVRXFont3D::DrawLayers(TCanvas& canvas, const QRect& rect, int flags, const QString& text,
                            const TFont& font, bool enabled, TColor behind, bool withLetters) const {
  const QRect room = rect.marginsRemoved(Room());
  const TColor own = font.Color() == clDefault ? clWindowText : font.Color();
  auto layers = LayersOf(*this, ToQColor(enabled ? own : clGrayText), ToQColor(behind));
  if (!withLetters) layers.pop_back();
  QPainter& p = canvas.Painter();
  p.save();
  p.setFont(ToQFont(font));
  const QString shown = ShownText(text);
  for (const TVRXTextLayer& layer : layers) {
    if (layer.Color.alpha() == 0) continue;
    p.setPen(layer.Color);
    p.drawText(room.translated(layer.Offset), flags | Qt::TextDontClip, shown);
  }
  p.restore();
}
