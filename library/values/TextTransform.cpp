#include "library/values/TextTransform.h"

#include <QtMath>

#include "library/values/TextOutline.h"

namespace {
// Where a line across the text comes to: how far along, where its middle stands and how high it is, as parts
// of the text's width and height.
struct Band {
  double along, middle, height;
};
double Arch(double u) { return std::sin(M_PI * u); }
double Smooth(double t) {
  t = std::clamp(t, 0.0, 1.0);
  return t * t * (3 - 2 * t);
}
// What a plane shows that leads away from the eye.
double Receding(double t, double k) { return t * (1 + k) / (1 + k * t); }
// One end is smaller and lies at the upper (-1) or lower (1) edge.
Band Nose(double u, double s, double toEnd, int edge) {
  const double height = 1 - 0.8 * s * toEnd;
  return {u, edge * (1 - height) / 2, height};
}
Band Speaker(double u, double s, double fromBack) {
  const double cone = std::clamp((fromBack - 0.35) / 0.65, 0.0, 1.0);
  return {u, 0, 1 + s * (0.9 * cone - 0.6)};
}
// Of each transform that moves and sizes such lines; by `s` from 0, not at all, to 1.
Band BandOf(TVRXTransform transform, double u, double s) {
  using enum TVRXTransform;
  switch (transform) {
    case tmWave:
      return {u, -0.6 * s * std::sin(2 * M_PI * u), 1};
    case tmSpeaker:
      return Speaker(u, s, u);
    case tmInvSpeaker:
      return Speaker(u, s, 1 - u);
    case tmFly:
      return {u, -1.2 * s * u * u, 1 - 0.65 * s * u};
    case tmChair:
      return {u, 1.1 * s * (Smooth((u - 0.3) / 0.4) - 0.5), 1};
    case tmStairs:
      return {u, 1.5 * s * (0.5 - u), 1};
    case tmInvStairs:
      return {u, 1.5 * s * (u - 0.5), 1};
    case tmBuckled:
      return {u, 0, 1 - 0.7 * s * Arch(u)};
    case tmEnterprise: {
      const double height = 1 / (1 + 3 * s * u);
      return {Receding(u, 3 * s), -0.35 * (1 - height), height};
    }
    case tmLNoseUp:
      return Nose(u, s, 1 - u, -1);
    case tmLNoseDown:
      return Nose(u, s, 1 - u, 1);
    case tmRNoseUp:
      return Nose(u, s, u, -1);
    case tmRNoseDown:
      return Nose(u, s, u, 1);
    case tmCube: {
      const double fromEdge = std::abs(2 * u - 1), k = 1.2 * s;
      return {0.5 + std::copysign(Receding(fromEdge, k) / 2, u - 0.5), 0, 1 / (1 + k * fromEdge)};
    }
    case tmHalfmoon:
      return {u, -0.9 * s * Arch(u), 1 - 0.75 * s * (1 - Arch(u))};
    default:
      return {u, 0, 1};
  }
}

TPlaneMap Halfcircle(QSizeF box, double s) {
  const double angle = M_PI * s, radius = box.width() / angle;
  return [=](QPointF p) {
    const double at = (p.x() / box.width() - 0.5) * angle;
    const double r = std::max(radius + box.height() - p.y(), 0.02 * box.height());
    return QPointF(r * std::sin(at), radius - r * std::cos(at));
  };
}
TPlaneMap Arrow(QSizeF box, double s) {
  return [=](QPointF p) {
    const double off = std::min(1.0, std::abs(2 * p.y() / box.height() - 1));
    return QPointF(p.x() + 0.6 * s * box.height() * (1 - off), p.y());
  };
}
// What overhangs the box goes with the line at its edge.
TPlaneMap Bands(QSizeF box, TVRXTransform transform, double s) {
  return [=](QPointF p) {
    const double u = std::clamp(p.x() / box.width(), 0.0, 1.0);
    const Band band = BandOf(transform, u, s);
    return QPointF(p.x() + (band.along - u) * box.width(),
                   box.height() * (0.5 + band.middle) + (p.y() - box.height() / 2) * band.height);
  };
}
bool StepsByLetters(TVRXTransform t) {
  return t == TVRXTransform::tmStairs || t == TVRXTransform::tmInvStairs;
}

// One side is the near one, and the other one is smaller and leads away from it.
TPlaneMap Seen(const QRectF& all, TVRXPerspective from, double depth) {
  const double middle = all.center().x(), height = all.height();
  const bool bird = from == TVRXPerspective::tpBird;
  const double near = bird ? all.top() : all.bottom();
  return [=](QPointF p) {
    const double w = 1 + depth * std::abs(near - p.y()) / height;
    return QPointF(middle + (p.x() - middle) / w, near + (p.y() - near) / w);
  };
}

// Closer than anybody sees: on letters of their own size, and where long texts are made smaller to fit.
double CloseTo(QSizeF box) {
  constexpr double finest = 10000, most = 200000;
  return std::max(box.height() / finest, box.width() / most);
}

double LiftOf(const TVRXTextForm& form) {
  using enum TVRXTransAttr;
  constexpr double automatic = 0.25, most = 3;
  if (form.Attributes.Contains(taAutoToggled)) return automatic;
  return form.Attributes.Contains(taToggled) ? std::clamp(form.Toggle / 100.0, -most, most) : 0;
}
}  // namespace

QPainterPath VRXTransformed(const TVRXLetters& letters, const TVRXTextForm& form) {
  const QSizeF box = letters.Box;
  const double s = std::clamp(form.Factor, 0, VRXStrongestFactor) / static_cast<double>(VRXStrongestFactor);
  const bool plain = s == 0 || form.Transform == TVRXTransform::tmNone || box.isEmpty();
  TPlaneMap map;
  if (!plain)
    map = form.Transform == TVRXTransform::tmHalfcircle ? Halfcircle(box, s)
          : form.Transform == TVRXTransform::tmArrow    ? Arrow(box, s)
                                                        : Bands(box, form.Transform, s);
  const double lift = LiftOf(form) * box.height(), close = CloseTo(box);
  QPainterPath all;
  all.setFillRule(Qt::WindingFill);
  int number = 0;
  for (const QPainterPath& letter : letters.Outlines) {
    const QPainterPath lifted = lift == 0 ? letter : letter.translated(0, (number % 2 ? -lift : lift) / 2);
    ++number;
    if (plain) {
      all.addPath(lifted);
    } else if (StepsByLetters(form.Transform)) {
      const QPointF middle(lifted.boundingRect().center().x(), box.height() / 2);
      all.addPath(lifted.translated(map(middle) - middle));
    } else {
      all.addPath(MappedOutline(lifted, map, close));
    }
  }
  for (const QPainterPath& bar : letters.Bars) all.addPath(plain ? bar : MappedOutline(bar, map, close));
  const double depth = std::clamp(form.PerspectiveDepth, 0, VRXDeepestPerspective) / 100.0;
  const QRectF bounds = all.boundingRect();
  if (!form.Attributes.Contains(TVRXTransAttr::taPerspective) || depth == 0 || bounds.isEmpty()) return all;
  return MappedOutline(all, Seen(bounds, form.Perspective, depth), close);
}
