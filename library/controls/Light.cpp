#include "library/controls/Light.h"

#include "library/controls/Faced.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXCustomLight::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCustomLight>("TVRXCustomLight", TGraphicControl::StaticClass())
          .Icon("pen line 1.5 brush fill oval 3.5 3.5 17 17 pen none brush accent oval 6.5 6.5 11 11 brush "
                "accent+60 oval 8.5 8 4 3.5")
          .Declared(Active)
          .Doc(QStringLiteral("Whether the light is on."))
          .Declared(BevelPart)
          .Doc(QStringLiteral("The frame around the light."))
          .Declared(LightColor)
          .Doc(QStringLiteral("The colors that the light is on and off with."))
          .Declared(Style)
          .Doc(QStringLiteral("Round or rectangular."))
          .Declared(Transparent)
          .Doc(QStringLiteral("Lets what is behind the light show through around it.")));
  return cls;
}

const TClass& TVRXLight::StaticClass() {
  static const TClass cls(VRXWithStyles(DescribeClass<TVRXLight>("TVRXLight", TVRXCustomLight::StaticClass())
                                            .PublishAll("Active", Placing, "Bevel", "Color", "Enabled",
                                                        "LightColor", "ParentColor", Hints, "Style"))
                              .PublishAll("Transparent", "Visible", MouseEvents)
                              .ClassDoc(QStringLiteral("A light that is on or off.")));
  return cls;
}

TVRXCustomLight::TVRXCustomLight(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 32, 32); }

namespace {
QColor Mixed(const QColor& a, const QColor& b, double share) {
  const auto mix = [=](int x, int y) { return static_cast<int>(x + (y - x) * share); };
  return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
}
// A lens, lit from the top left.
QBrush Lens(const QRectF& r, const QColor& color, bool on) {
  QRadialGradient glow(r.center(), std::max(r.width(), r.height()) * 0.7,
                       r.topLeft() + QPointF(r.width() * 0.35, r.height() * 0.3));
  glow.setColorAt(0, Mixed(color, Qt::white, on ? 0.65 : 0.25));
  glow.setColorAt(0.5, color);
  glow.setColorAt(1, Mixed(color, Qt::black, 0.35));
  return glow;
}
QBrush Rim(const QRectF& r) {
  QLinearGradient rim(r.topLeft(), r.bottomRight());
  rim.setColorAt(0, ToQColor(cl3DDkShadow));
  rim.setColorAt(1, ToQColor(clBtnHighlight));
  return rim;
}
}  // namespace

void TVRXCustomLight::Paint(TCanvas& canvas) {
  if (!Get(Transparent)) canvas.FillRect(ClientRect(), Color());
  const TVRXFaceLook look = VRXFaceOf(*this);
  look.PaintGround(canvas, ClientRect());
  QRectF r = look.Bevel(*Bevel()).Draw(canvas, ClientRect()).adjusted(1, 1, -1, -1);
  const bool round = Get(Style) == TVRXLightStyle::ltRound;
  if (round) {
    const double side = std::min(r.width(), r.height());
    r = QRectF(r.center() - QPointF(side, side) / 2, QSizeF(side, side));
  }
  if (r.width() < 2 || r.height() < 2) return;
  const TVRXLightColors colors = VRXGetLightColors(Get(LightColor));
  const bool on = Get(Active) && Enabled();
  QColor color = ToQColor(Get(Active) ? colors.Active : colors.Inactive);
  // Out of use it is pale, on or off.
  if (!Enabled()) color = Mixed(color, ToQColor(clBtnFace), 0.6);
  const double rim = std::clamp(std::min(r.width(), r.height()) / 12, 1.0, 4.0);
  const QRectF lens = r.adjusted(rim, rim, -rim, -rim);
  QPainter& p = canvas.Painter();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  const auto part = [&](const QRectF& rect, const QBrush& brush) {
    p.setBrush(brush);
    round ? p.drawEllipse(rect) : p.drawRoundedRect(rect, 2, 2);
  };
  part(r, Rim(r));
  part(lens, Lens(lens, color, on));
}
