#include "library/controls/TechnicalLine.h"

#include "vcl/PropertyGroups.h"

const TClass& TVRXTechnicalLine::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXTechnicalLine>("TVRXTechnicalLine", TGraphicControl::StaticClass())
          .PublishAll(Placing)
          .Published(Arrowed)
          .Doc(QStringLiteral("Whether the line has signs at its ends."))
          .Publish("Enabled")
          .Published(LineEnding)
          .Doc(QStringLiteral("The sign at the right or lower end."))
          .Published(LineColor)
          .Doc(QStringLiteral("Color of the line and its signs."))
          .Published(LineStart)
          .Doc(QStringLiteral("The sign at the left or upper end."))
          .Published(LineStyle)
          .Doc(QStringLiteral("Whether the line is solid, or how it is broken."))
          .Published(LineType)
          .Doc(QStringLiteral("Where the line runs."))
          .Published(LineWidth)
          .Doc(QStringLiteral("Width of the line, in pixels."))
          .PublishAll(Hints)
          .Published(ShadowColor)
          .Doc(QStringLiteral("Color of the shadow."))
          .Published(ShadowDepth)
          .Doc(QStringLiteral("How far the shadow falls to the right and down, in pixels."))
          .Published(ShadowVisible)
          .Doc(QStringLiteral("Whether the line casts a shadow."))
          .Published(SignPlaces)
          .Doc(QStringLiteral("Which ends have their signs."))
          .Published(SignSize)
          .Doc(QStringLiteral("Size of the signs, in pixels."))
          .PublishAll("Visible", MouseEvents)
          .ClassDoc(QStringLiteral("A line with arrows or other signs at its ends."),
                    "pen line 1.6 path 3 12 16 12 path 3 8.5 3 15.5 pen none brush accent shape 21.5 12 14.5 "
                    "8 14.5 16"));
  return cls;
}

TVRXTechnicalLine::TVRXTechnicalLine(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 96, 16); }

// Signs and thick lines stay inside; whole pixels keep straight lines sharp.
QLineF TVRXTechnicalLine::Line() const {
  const int thick = std::clamp(Get(LineWidth), 1, 1000), sign = Get(Arrowed) ? Get(SignSize) : 0;
  const double margin = std::min<double>(std::max(thick, sign) / 2.0, std::min(Width(), Height()) / 2.0);
  const double sharp = thick % 2 == 0 ? 0 : 0.5;
  const QRectF r = QRectF(ClientRect()).adjusted(margin, margin, -margin, -margin);
  const double x = Width() / 2 + sharp, y = Height() / 2 + sharp;
  switch (Get(LineType)) {
    case TVRXLineType::ltVertical:
      return {x, 0, x, static_cast<double>(Height())};
    case TVRXLineType::ltDiagonalDown:
      return {r.topLeft(), r.bottomRight()};
    case TVRXLineType::ltDiagonalUp:
      return {r.bottomLeft(), r.topRight()};
    default:
      return {0, y, static_cast<double>(Width()), y};
  }
}

TVRXLineSign TVRXTechnicalLine::SignAt(TVRXSignPlaces end) const {
  const TVRXSignPlaces places = Get(SignPlaces);
  if (!Get(Arrowed) || (places != TVRXSignPlaces::spBoth && places != end)) return TVRXLineSign::lsNone;
  return end == TVRXSignPlaces::spStart ? Get(LineStart) : Get(LineEnding);
}

namespace {
// With the end of the line at the origin, which it reaches from the left; arrows point to the right there.
QPolygonF SignOutline(TVRXLineSign sign, double size) {
  const double half = size / 2;
  switch (sign) {
    case TVRXLineSign::lsSquare:
      return QPolygonF({{-size, -half}, {0, -half}, {0, half}, {-size, half}});
    case TVRXLineSign::lsDiamond:
      return QPolygonF({{-size, 0}, {-half, -half}, {0, 0}, {-half, half}});
    case TVRXLineSign::lsBar:
      return QPolygonF({{-2, -half}, {0, -half}, {0, half}, {-2, half}});
    case TVRXLineSign::lsCircle: {
      QPainterPath circle;
      circle.addEllipse(QRectF(-size, -half, size, size));
      return circle.toFillPolygon();
    }
    default:
      return QPolygonF({{-size, -half}, {0, 0}, {-size, half}});
  }
}
// Degrees clockwise that an arrow is turned by, whatever the line does; none for what follows the line.
std::optional<double> OwnDirection(TVRXLineSign sign) {
  switch (sign) {
    case TVRXLineSign::lsArrowUp:
      return -90;
    case TVRXLineSign::lsArrowDown:
      return 90;
    case TVRXLineSign::lsArrowRight:
      return 0;
    case TVRXLineSign::lsArrowLeft:
      return 180;
    default:
      return std::nullopt;
  }
}
}  // namespace

void TVRXTechnicalLine::PaintLine(QPainter& p, const QColor& color) const {
  QLineF line = Line();
  // A sign that is no wider than the line would not show.
  const double size = std::max<int>(Get(SignSize), 2 * Get(LineWidth));
  std::vector<QPolygonF> signs;
  QPointF ends[] = {line.p1(), line.p2()};
  for (const bool atStart : {true, false}) {
    const TVRXLineSign sign = SignAt(atStart ? TVRXSignPlaces::spStart : TVRXSignPlaces::spEnd);
    if (sign == TVRXLineSign::lsNone) continue;
    const double outward = atStart ? 180 - line.angle() : -line.angle();
    const double turned = OwnDirection(sign).value_or(outward);
    QPointF& end = ends[atStart ? 0 : 1];
    // An arrow across or against the line stands on its end, not beyond.
    const double across = std::remainder(turned - outward, 360);
    const double sideways = std::abs(std::sin(qDegreesToRadians(across))) * size / 2;
    const QPointF at =
        end - sideways * QPointF(std::cos(qDegreesToRadians(outward)), std::sin(qDegreesToRadians(outward)));
    QTransform place;
    place.translate(at.x(), at.y());
    place.rotate(turned);
    if (across != 0) place.translate(std::abs(across) > 135 ? size : size / 2, 0);
    signs.push_back(place.map(SignOutline(sign, size)));
    // A line under a point would show beside it.
    if (across == 0 && line.length() > size)
      end += (atStart ? 1 : -1) * QPointF(line.dx(), line.dy()) * (size / 2 / line.length());
  }
  TPen kind;
  kind.SetStyle(Get(LineStyle));
  kind.SetWidth(Get(LineWidth));
  QPen pen = ToQPen(kind);
  pen.setColor(color);
  pen.setCapStyle(Qt::FlatCap);
  p.setPen(pen);
  p.drawLine(QLineF(ends[0], ends[1]));
  p.setPen(Qt::NoPen);
  p.setBrush(color);
  for (const QPolygonF& sign : signs) p.drawPolygon(sign);
}

void TVRXTechnicalLine::Paint(TCanvas& canvas) {
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(ClientRect(), Qt::IntersectClip);
  p.setRenderHint(QPainter::Antialiasing);
  if (Get(ShadowVisible)) {
    p.translate(Get(ShadowDepth), Get(ShadowDepth));
    PaintLine(p, ToQColor(Get(ShadowColor)));
    p.translate(-Get(ShadowDepth), -Get(ShadowDepth));
  }
  PaintLine(p, ToQColor(Enabled() ? Get(LineColor) : clGrayText));
  p.restore();
}
