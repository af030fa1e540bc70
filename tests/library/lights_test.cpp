// Lights, switches and technical lines: what every property of theirs shows.
#include "library/controls/Light.h"
#include "library/controls/Switch.h"
#include "library/controls/TechnicalLine.h"
#include "rtl/Exceptions.h"
#include "tests/library/VisibleProperties.h"

namespace {
QColor MiddleOf(TControl& control) {
  return Draw(control, Qt::white).pixelColor(control.Width() / 2, control.Height() / 2);
}
int Distance(QColor a, QColor b) {
  return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
}
QRect InkOf(TControl& control) { return Inked(Draw(control, Qt::white), Qt::white); }
}  // namespace

TEST(EveryProperty, OfALightIsSeen) {
  visible::ExpectAll<TVRXLight>({{"", "Active=False"},
                                 {"", "LightColor=lcRed"},
                                 {"", "Style=ltRectangle"},
                                 {"", "Enabled=False"},
                                 {"Active=False", "Enabled=False"},
                                 {"", "Transparent=False"},
                                 {"Transparent=False", "Color=clYellow"},
                                 {"", "Bevel.Outer=bvLowered"},
                                 {"", "Bevel.Inner=bvRaised"},
                                 {"Bevel.Outer=bvLowered", "Bevel.Outer=bvRaised"},
                                 {"Bevel.Outer=bvSpace", "Bevel.Outer=bvNone"},
                                 {"Bevel.Outer=bvLowered", "Bevel.Width=3"},
                                 {"Bevel.Outer=bvLowered", "Bevel.LightColor=clRed"},
                                 {"Bevel.Outer=bvLowered", "Bevel.ShadowColor=clRed"},
                                 {"", "Bevel.BorderWidth=4"},
                                 {"Bevel.BorderWidth=4", "Bevel.BorderColor=clRed"}},
                                {41, 29}, {});
}

TEST(EveryProperty, OfSwitchesIsSeen) {
  const std::initializer_list<visible::Row> rows = {{"", "Checked=True"},
                                                    {"Checked=True", "ColorChecked=clRed"},
                                                    {"", "ColorUnChecked=clRed"},
                                                    {"", "Enabled=False"},
                                                    {"", "Transparent=False"},
                                                    {"Transparent=False", "Color=clYellow"},
                                                    {"", "Bevel.Outer=bvLowered"},
                                                    {"", "CaptionUnChecked.Caption=Hg"},
                                                    {"Checked=True", "CaptionChecked.Caption=Hg"}};
  const QStringList others{QStringLiteral("Bevel."), QStringLiteral("CaptionChecked."),
                           QStringLiteral("CaptionUnChecked.")};
  visible::ExpectAll<TVRXSwitch>(rows, {101, 31}, others);
  visible::ExpectAll<TVRXWSwitch>(rows, {101, 41}, others);
}

TEST(EveryProperty, OfATechnicalLineIsSeen) {
  visible::ExpectAll<TVRXTechnicalLine>({{"", "Arrowed=False"},
                                         {"", "LineEnding=lsCircle"},
                                         {"SignPlaces=spStart", "LineStart=lsDiamond"},
                                         {"", "LineType=ltDiagonalUp"},
                                         {"", "LineColor=clRed"},
                                         {"", "LineWidth=3"},
                                         {"", "LineStyle=psDot"},
                                         {"", "ShadowVisible=True"},
                                         {"ShadowVisible=True", "ShadowColor=clRed"},
                                         {"ShadowVisible=True", "ShadowDepth=-3"},
                                         {"", "SignPlaces=spBoth"},
                                         {"", "SignSize=14"},
                                         {"", "Enabled=False"}},
                                        {101, 31}, {});
}

TEST(Light, OfEverySchemeIsBrightWhenItIsOnAndDarkWhenItIsOff) {
  for (const bool round : {true, false})
    for (int i = 0; i < 7; ++i) {
      TVRXLight light(nullptr);
      light.Set(TVRXCustomLight::Style, round ? TVRXLightStyle::ltRound : TVRXLightStyle::ltRectangle);
      light.Set(TVRXCustomLight::LightColor, static_cast<TVRXLightColor>(i));
      const TVRXLightColors colors = VRXGetLightColors(static_cast<TVRXLightColor>(i));
      const QColor on = MiddleOf(light);
      light.Set(TVRXCustomLight::Active, false);
      const QColor off = MiddleOf(light);
      EXPECT_GT(qGray(on.rgb()), qGray(off.rgb()) + 30) << i;
      EXPECT_LT(Distance(on, ToQColor(colors.Active)), Distance(on, ToQColor(colors.Inactive))) << i;
      EXPECT_LT(Distance(off, ToQColor(colors.Inactive)), Distance(off, ToQColor(colors.Active))) << i;
    }
}

TEST(Light, RoundIsACircleInTheMiddleAndRectangularFillsItsRoom) {
  TVRXLight light(nullptr);
  light.SetBounds(0, 0, 60, 30);
  EXPECT_EQ(InkOf(light), QRect(16, 1, 28, 28));
  light.Set(TVRXCustomLight::Style, TVRXLightStyle::ltRectangle);
  EXPECT_EQ(InkOf(light), QRect(1, 1, 58, 28));
  visible::Apply(light, QStringLiteral("Bevel.Outer=bvSpace Bevel.Width=5"));
  EXPECT_EQ(InkOf(light), QRect(6, 6, 48, 18));
}

TEST(Bevel, HasOuterBevelBorderAndInnerBevelFromTheOutside) {
  TVRXLight light(nullptr);
  light.SetBounds(0, 0, 60, 40);
  visible::Apply(light, QStringLiteral("Bevel.Outer=bvRaised Bevel.Inner=bvLowered Bevel.Width=2 "
                                       "Bevel.BorderWidth=3 Bevel.LightColor=clRed "
                                       "Bevel.ShadowColor=clBlue Bevel.BorderColor=clLime"));
  const QImage image = Draw(light, Qt::white);
  const QColor red(Qt::red), blue(Qt::blue), lime(Qt::green);
  const QColor left[] = {red, red, lime, lime, lime, blue, blue};
  const QColor right[] = {blue, blue, lime, lime, lime, red, red};
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(image.pixelColor(i, 20), left[i]) << i;
    EXPECT_EQ(image.pixelColor(30, i), left[i]) << i;
    EXPECT_EQ(image.pixelColor(59 - i, 20), right[i]) << i;
    EXPECT_EQ(image.pixelColor(30, 39 - i), right[i]) << i;
  }
  EXPECT_EQ(light.Bevel()->Room(), 7);
}

TEST(Bevel, WiderThanTheControlLeavesNoRoomAndDoesNoHarm) {
  TVRXLight light(nullptr);
  visible::Apply(light, QStringLiteral("Bevel.Outer=bvRaised Bevel.Inner=bvSpace Bevel.Width=2147483647 "
                                       "Bevel.BorderWidth=2147483647"));
  EXPECT_FALSE(Draw(light, Qt::white).isNull());
  visible::Apply(light, QStringLiteral("Bevel.Width=-7 Bevel.BorderWidth=-9"));
  EXPECT_EQ(light.Bevel()->Room(), 0);
}

TEST(Switch, ShowsTheColourAndTheKnobOfItsState) {
  TVRXSwitch control(nullptr);
  control.SetBounds(0, 0, 90, 30);
  visible::Apply(control, QStringLiteral("ColorChecked=clRed ColorUnChecked=clBlue"));
  const QImage off = Draw(control, Qt::white);
  // The groove is 56 wide, the knob at its left.
  EXPECT_EQ(off.pixelColor(44, 15), QColor(Qt::blue));
  EXPECT_NE(off.pixelColor(15, 15), QColor(Qt::blue));
  control.Set(TVRXCustomSwitch::Checked, true);
  const QImage on = Draw(control, Qt::white);
  EXPECT_EQ(on.pixelColor(15, 15), QColor(Qt::red));
  EXPECT_NE(on.pixelColor(44, 15), QColor(Qt::red));
}

TEST(Switch, ColoursByStateAreTheProperties) {
  TVRXWSwitch control(nullptr);
  control.SetStateColor(0, clRed);
  control.SetStateColor(1, clAqua);
  EXPECT_EQ(control.Get(TVRXCustomSwitch::ColorChecked), clRed);
  EXPECT_EQ(control.Get(TVRXCustomSwitch::ColorUnChecked), clAqua);
  EXPECT_EQ(control.StateColor(0), clRed);
  EXPECT_EQ(control.StateColor(1), clAqua);
  EXPECT_THROW(control.SetStateColor(2, clRed), EPropertyError);
  EXPECT_THROW(control.StateColor(-1), EPropertyError);
}

TEST(TechnicalLine, WithoutSignsIsOneSharpLine) {
  TVRXTechnicalLine line(nullptr);
  line.SetBounds(0, 0, 70, 21);
  visible::Apply(line, QStringLiteral("Arrowed=False LineColor=clRed"));
  EXPECT_EQ(InkOf(line), QRect(0, 10, 70, 1));
  EXPECT_EQ(CountPixels(Draw(line, Qt::white), Qt::red), 70);
  visible::Apply(line, QStringLiteral("LineWidth=4"));
  EXPECT_EQ(InkOf(line), QRect(0, 8, 70, 4));
  visible::Apply(line, QStringLiteral("LineType=ltVertical LineWidth=1"));
  EXPECT_EQ(InkOf(line), QRect(35, 0, 1, 21));
}

TEST(TechnicalLine, OfAnyThicknessHasSignsThatShow) {
  TVRXTechnicalLine line(nullptr);
  line.SetBounds(0, 0, 90, 41);
  line.Set(TVRXTechnicalLine::LineWidth, 14);
  line.Set(TVRXTechnicalLine::Arrowed, false);
  const QImage plain = Draw(line, Qt::white);
  line.Set(TVRXTechnicalLine::Arrowed, true);
  line.Set(TVRXTechnicalLine::LineEnding, TVRXLineSign::lsSquare);
  const QRect before = Inked(plain, Qt::white), box = Inked(Draw(line, Qt::white), Qt::white);
  EXPECT_EQ(before.height(), 14);
  EXPECT_EQ(box.height(), 28);
}

TEST(TechnicalLine, HasItsSignsAtTheEndsThatAreChosen) {
  TVRXTechnicalLine line(nullptr);
  line.SetBounds(0, 0, 70, 21);
  // How high the ink stands at both ends.
  const auto heights = [&](const char* places) {
    visible::Apply(line, QString::fromLatin1(places));
    const QImage image = Draw(line, Qt::white);
    return std::pair(Inked(image.copy(0, 0, 10, 21), Qt::white).height(),
                     Inked(image.copy(60, 0, 10, 21), Qt::white).height());
  };
  visible::Apply(line, QStringLiteral("LineStart=lsSquare LineEnding=lsSquare SignSize=9"));
  EXPECT_EQ(heights("SignPlaces=spEnd"), std::pair(1, 9));
  EXPECT_EQ(heights("SignPlaces=spStart"), std::pair(9, 1));
  EXPECT_EQ(heights("SignPlaces=spBoth"), std::pair(9, 9));
  EXPECT_EQ(heights("Arrowed=False"), std::pair(1, 1));
}

TEST(TechnicalLine, AnArrowPointsToWhereItsNameSays) {
  // By the ink in the halves of the sign: the point has less.
  const auto inkIn = [](const QImage& image, const QRect& r) {
    int ink = 0;
    for (int y = r.top(); y <= r.bottom(); ++y)
      for (int x = r.left(); x <= r.right(); ++x) ink += 255 - qGray(image.pixel(x, y));
    return ink;
  };
  TVRXTechnicalLine line(nullptr);
  line.SetBounds(0, 0, 60, 60);
  visible::Apply(line, QStringLiteral("SignSize=20 LineType=ltHorizontal"));
  const auto halves = [&](const char* sign) {
    visible::Apply(line, QStringLiteral("LineEnding=") + QString::fromLatin1(sign));
    const QImage image = Draw(line, Qt::white);
    return std::tuple(inkIn(image, {40, 20, 9, 22}) - inkIn(image, {51, 20, 9, 22}),
                      inkIn(image, {40, 20, 20, 10}) - inkIn(image, {40, 31, 20, 10}));
  };
  EXPECT_GT(std::get<0>(halves("lsArrowRight")), 5000);
  EXPECT_LT(std::get<0>(halves("lsArrowLeft")), -5000);
  EXPECT_GT(std::get<1>(halves("lsArrowDown")), 5000);
  EXPECT_LT(std::get<1>(halves("lsArrowUp")), -5000);
}

TEST(TechnicalLine, AnArrowAcrossTheLineIsWholeAtItsEnd) {
  TVRXTechnicalLine line(nullptr);
  line.SetBounds(0, 0, 80, 40);
  visible::Apply(line, QStringLiteral("SignSize=20 LineType=ltHorizontal"));
  const auto width = [&](const char* sign) {
    visible::Apply(line, QStringLiteral("LineEnding=") + QString::fromLatin1(sign));
    const QImage image = Draw(line, Qt::white);
    int columns = 0;  // that have more than the line
    for (int x = 0; x < image.width(); ++x) {
      int ink = 0;
      for (int y = 0; y < image.height(); ++y) ink += qGray(image.pixel(x, y)) < 200;
      columns += ink > 2;
    }
    return columns;
  };
  EXPECT_NEAR(width("lsArrowDown"), 18, 2);
  EXPECT_NEAR(width("lsArrowUp"), 18, 2);
}

TEST(TechnicalLine, AnOutwardArrowFollowsTheLine) {
  for (const char* type : {"ltHorizontal", "ltVertical", "ltDiagonalDown", "ltDiagonalUp"}) {
    TVRXTechnicalLine line(nullptr);
    line.SetBounds(0, 0, 60, 50);
    visible::Apply(
        line, QStringLiteral("LineEnding=lsArrowOutward SignSize=12 LineType=") + QString::fromLatin1(type));
    const QLineF along = line.Line();
    const QImage image = Draw(line, Qt::white);
    // Beside the line, four pixels from it: ink near the base of the arrow, none near its tip.
    const auto beside = [&](double back) {
      const QLineF unit = along.unitVector();
      const QPointF d = unit.p2() - unit.p1(), p = along.p2() - d * back + QPointF(-d.y(), d.x()) * 3.5;
      return qGray(image.pixel(p.toPoint()));
    };
    EXPECT_LT(beside(10), 128) << type;
    EXPECT_GT(beside(3), 128) << type;
  }
}

TEST(TechnicalLine, CastsItsShadowBehindIt) {
  TVRXTechnicalLine line(nullptr);
  line.SetBounds(0, 0, 70, 21);
  visible::Apply(line, QStringLiteral("Arrowed=False LineColor=clRed ShadowVisible=True ShadowColor=clBlue "
                                      "ShadowDepth=3"));
  const QImage image = Draw(line, Qt::white);
  EXPECT_EQ(image.pixelColor(30, 10), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(30, 13), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(1, 13), QColor(Qt::white));
}
