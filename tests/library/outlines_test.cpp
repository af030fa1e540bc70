// The exact places of the points of figures, teeth and strips.
#include "library/values/Outline.h"

#include <gtest/gtest.h>

#include "library/controls/ShapeControl.h"

namespace {
std::string Points(const QPolygonF& polygon) {
  QStringList points;
  for (const QPointF& p : polygon)
    points << QStringLiteral("%1,%2").arg(QString::number(p.x(), 'g', 5), QString::number(p.y(), 'g', 5));
  return points.join(u' ').toStdString();
}
std::string Figure(TVRXShapeType type) { return Points(VRXShapeOutline(type, {10, 20, 80, 40}, 0)); }
std::string Teeth(const TVRXTeeth& teeth) { return Points(teeth.Outline({10, 20, 40, 30})); }
}  // namespace

TEST(FigureOutline, OfStraightSidesHasTheseCorners) {
  using enum TVRXShapeType;
  EXPECT_EQ(Figure(stRectangle), "10,20 90,20 90,60 10,60");
  EXPECT_EQ(Figure(stDiamond), "50,20 90,40 50,60 10,40");
  EXPECT_EQ(Figure(stComb), "30,20 70,20 90,40 70,60 30,60 10,40");
  EXPECT_EQ(Figure(stDirectRight), "10,20 70,20 90,40 70,60 10,60");
  EXPECT_EQ(Figure(stDirectLeft), "90,20 30,20 10,40 30,60 90,60");
  EXPECT_EQ(Figure(stDirectDown), "10,20 10,40 50,60 90,40 90,20");
  EXPECT_EQ(Figure(stDirectUp), "10,60 10,40 50,20 90,40 90,60");
}

TEST(FigureOutline, OfAnOctagonInASquareHasEqualSides) {
  const QPolygonF points = VRXShapeOutline(TVRXShapeType::stOctagon, {0, 0, 50, 50}, 0);
  ASSERT_EQ(points.size(), 8);
  for (int i = 0; i < 8; ++i) EXPECT_NEAR(QLineF(points[i], points[(i + 1) % 8]).length(), 20.7107, 0.001);
}

TEST(FigureOutline, OfAStarTouchesAllSidesWithFivePoints) {
  const QRectF r(10, 20, 80, 40);
  const QPolygonF star = VRXShapeOutline(TVRXShapeType::stStar, r, 0);
  ASSERT_EQ(star.size(), 10);
  EXPECT_EQ(star.boundingRect().toAlignedRect(), r.toRect());
  EXPECT_NEAR(star[0].x(), 50, 0.001);
  EXPECT_NEAR(star[0].y(), 20, 0.001);
  EXPECT_NEAR(star[2].x(), 90, 0.001);
  EXPECT_NEAR(star[2].y(), 20 + 40 * 0.381966, 0.001);
  EXPECT_NEAR(star[4].y(), 60, 0.001);
  // Opposite sides of two points lie on one line.
  EXPECT_NEAR(star[1].y(), star[2].y(), 0.001);
}

TEST(FigureOutline, EveryFigureFillsItsRectangle) {
  const QRectF r(3, 7, 61, 37);
  for (int i = 0; i <= 10; ++i) {
    const QPolygonF outline = VRXShapeOutline(static_cast<TVRXShapeType>(i), r, 30);
    const QRectF is = outline.boundingRect();
    EXPECT_NEAR(is.left(), r.left(), 0.01) << i;
    EXPECT_NEAR(is.top(), r.top(), 0.01) << i;
    EXPECT_NEAR(is.right(), r.right(), 0.01) << i;
    EXPECT_NEAR(is.bottom(), r.bottom(), 0.01) << i;
  }
}

TEST(FigureOutline, RoundPercentIsTheShareOfTheShorterHalf) {
  const auto at = [](int percent) {
    return PathOf(VRXShapeOutline(TVRXShapeType::stRoundRect, {0, 0, 80, 40}, percent));
  };
  // The corner of a circle of radius r is cut by 0.293 r.
  for (const int percent : {20, 50, 100}) {
    const double cut = 20.0 * percent / 100 * 0.2929;
    EXPECT_FALSE(at(percent).contains(QPointF(cut - 0.2, cut - 0.2))) << percent;
    EXPECT_TRUE(at(percent).contains(QPointF(cut + 0.2, cut + 0.2))) << percent;
  }
  EXPECT_TRUE(at(0).contains(QPointF(0.1, 0.1)));
}

TEST(TeethOutline, ByCountIsHalfAsHighAsWide) {
  TVRXTeeth teeth;
  teeth.Set(TVRXTeeth::Count, 3);
  EXPECT_EQ(Teeth(teeth), "10,20 50,20 45,25 50,30 45,35 50,40 45,45 50,50 10,50");
  teeth.Set(TVRXTeeth::Offset, false);
  EXPECT_EQ(Teeth(teeth), "10,20 45,20 50,25 45,30 50,35 45,40 50,45 45,50 10,50");
}

TEST(TeethOutline, BySizeIsAsManyAsFitBest) {
  TVRXTeeth teeth;
  teeth.Set(TVRXTeeth::SetPerCount, false);
  teeth.Set(TVRXTeeth::Offset, false);
  teeth.Set(TVRXTeeth::Width, 14);
  teeth.Set(TVRXTeeth::Height, 6);
  EXPECT_EQ(Teeth(teeth), "10,20 44,20 50,27.5 44,35 50,42.5 44,50 10,50");
  teeth.Set(TVRXTeeth::Width, 11);
  EXPECT_EQ(teeth.Outline({10, 20, 40, 30}).size(), 2 * 3 + 1 + 2) << "three of 10 rather than two of 15";
  teeth.Set(TVRXTeeth::Width, 100);
  EXPECT_EQ(Teeth(teeth), "10,20 44,20 50,35 44,50 10,50");
  teeth.Set(TVRXTeeth::Height, 100);
  EXPECT_EQ(Teeth(teeth), "10,20 10,20 50,35 10,50 10,50");
}

TEST(TeethOutline, PointsToEachOfTheFourSides) {
  TVRXTeeth teeth;
  teeth.Set(TVRXTeeth::Count, 1);
  teeth.Set(TVRXTeeth::Offset, false);
  EXPECT_EQ(Teeth(teeth), "10,20 35,20 50,35 35,50 10,50");
  teeth.Set(TVRXTeeth::Direction, TVRXTeethDirection::tdLeft);
  EXPECT_EQ(Teeth(teeth), "50,20 25,20 10,35 25,50 50,50");
  teeth.Set(TVRXTeeth::Direction, TVRXTeethDirection::tdDown);
  EXPECT_EQ(Teeth(teeth), "10,20 10,30 30,50 50,30 50,20");
  teeth.Set(TVRXTeeth::Direction, TVRXTeethDirection::tdUp);
  EXPECT_EQ(Teeth(teeth), "10,50 10,40 30,20 50,40 50,50");
}

TEST(TeethOutline, WithoutTeethIsTheRectangle) {
  const std::string rectangle = "10,20 50,20 50,50 10,50";
  TVRXTeeth teeth;
  for (const int count : {0, -5, -128}) {
    teeth.Set(TVRXTeeth::Count, static_cast<std::int8_t>(count));
    EXPECT_EQ(Teeth(teeth), rectangle);
  }
  teeth.Set(TVRXTeeth::SetPerCount, false);
  teeth.Set(TVRXTeeth::Width, -3);
  EXPECT_EQ(Teeth(teeth), rectangle);
}

TEST(TeethOutline, NeverHasMoreThanOneForAPixel) {
  TVRXTeeth teeth;
  teeth.Set(TVRXTeeth::Count, 127);
  EXPECT_EQ(teeth.Outline({0, 0, 40, 30}).size(), 2 * 30 + 1 + 2);
  EXPECT_EQ(Points(teeth.Outline({0, 0, 0, 0})), "0,0 0,0 0,0 0,0");
}

TEST(Strip, OfARectangleIsCutAtTheCorners) {
  const QPolygonF r({{0, 0}, {40, 0}, {40, 20}, {0, 20}});
  EXPECT_EQ(Points(InsetOutline(r, 4)), "4,4 36,4 36,16 4,16");
  const QPolygonF against({{0, 0}, {0, 20}, {40, 20}, {40, 0}});
  EXPECT_EQ(Points(InsetOutline(against, 4)), "4,4 4,16 36,16 36,4");
  for (const QPolygonF& outline : {r, against}) {
    const TEdgeStrip strip = StripInside(outline, 4);
    for (const QPointF p : {QPointF(20, 2), QPointF(2, 10), QPointF(36, 1)}) {
      EXPECT_TRUE(strip.Lit.contains(p)) << p.x() << ' ' << p.y();
      EXPECT_FALSE(strip.Shaded.contains(p)) << p.x() << ' ' << p.y();
    }
    for (const QPointF p : {QPointF(20, 18), QPointF(38, 10), QPointF(3, 19)}) {
      EXPECT_TRUE(strip.Shaded.contains(p)) << p.x() << ' ' << p.y();
      EXPECT_FALSE(strip.Lit.contains(p)) << p.x() << ' ' << p.y();
    }
    EXPECT_FALSE(strip.Lit.contains(QPointF(20, 10)) || strip.Shaded.contains(QPointF(20, 10)));
  }
}

TEST(Strip, OfATurnedSquareIsLitAboveAndShadedBelow) {
  const TEdgeStrip strip = StripInside(QPolygonF({{20, 0}, {40, 20}, {20, 40}, {0, 20}}), 3);
  EXPECT_TRUE(strip.Lit.contains(QPointF(10, 11.5)));
  EXPECT_TRUE(strip.Lit.contains(QPointF(30, 11.5)));
  EXPECT_TRUE(strip.Shaded.contains(QPointF(10, 28.5)));
  EXPECT_TRUE(strip.Shaded.contains(QPointF(30, 28.5)));
}

TEST(Strip, WiderThanTheFigureEndsInItsMiddle) {
  const TEdgeStrip strip = StripInside(QPolygonF({{0, 0}, {40, 0}, {40, 20}, {0, 20}}), 35);
  EXPECT_TRUE(strip.Lit.contains(QPointF(20, 9)));
  EXPECT_FALSE(strip.Lit.contains(QPointF(20, 11)));
  EXPECT_TRUE(strip.Shaded.contains(QPointF(20, 11)));
  EXPECT_EQ((strip.Lit.boundingRect() | strip.Shaded.boundingRect()), QRectF(0, 0, 40, 20));
  const QRectF place(0, 0, 64, 40);
  for (int type = 0; type <= static_cast<int>(TVRXShapeType::stStar); ++type) {
    const QPolygonF figure = VRXShapeOutline(static_cast<TVRXShapeType>(type), place, 40);
    const TEdgeStrip wide = StripInside(figure, 127);
    EXPECT_TRUE(place.adjusted(-0.01, -0.01, 0.01, 0.01)
                    .contains(wide.Lit.boundingRect() | wide.Shaded.boundingRect()))
        << type;
  }
}

TEST(Strip, OfNothingIsNothing) {
  EXPECT_TRUE(StripInside({}, 3).Lit.isEmpty());
  EXPECT_TRUE(StripInside(QPolygonF({{1, 1}, {1, 1}, {5, 5}, {1, 1}}), 3).Shaded.isEmpty());
  EXPECT_TRUE(StripInside(QPolygonF({{0, 0}, {9, 0}, {9, 9}}), 0).Lit.isEmpty());
}
