// Texts that are bent into a form: what holds for every form, at any strength and size.
#include "library/controls/GraphicLabel.h"

#include "rtl/Exceptions.h"
#include "tests/library/GraphicLabelTest.h"

using enum TVRXTransform;
using enum TVRXTransAttr;

namespace {
constexpr int Forms = static_cast<int>(tmHalfmoon) + 1;
constexpr int Factors[] = {0, 1, 37, 1000, 5000, 9999, 10000};

TVRXTextForm FormOf(int transform, int factor, TVRXTransAttrs attributes = {}) {
  return {static_cast<TVRXTransform>(transform), factor, attributes, 40, TVRXPerspective::tpBird, 80};
}
// Curves are taken apart so finely.
constexpr double Fine = 64;
struct Contour {
  QRectF box;
  double area;  // signed
};
std::vector<Contour> ContoursOf(const QPainterPath& path) {
  std::vector<Contour> contours;
  for (const QPolygonF& p : path.toSubpathPolygons(QTransform::fromScale(Fine, Fine))) {
    double area = 0;
    for (qsizetype i = 0; i < p.size(); ++i) {
      const QPointF a = p[i], b = p[(i + 1) % p.size()];
      area += (a.x() * b.y() - b.x() * a.y()) / (2 * Fine * Fine);
    }
    const QRectF box = p.boundingRect();
    contours.push_back({QRectF(box.topLeft() / Fine, box.size() / Fine), area});
  }
  return contours;
}
std::vector<QPointF> PointsOf(const QPainterPath& path) {
  std::vector<QPointF> points;
  for (int i = 0; i < path.elementCount(); ++i) points.emplace_back(path.elementAt(i));
  return points;
}
double Farthest(const std::vector<QPointF>& a, const std::vector<QPointF>& b) {
  if (a.size() != b.size()) return HUGE_VAL;
  double far = 0;
  for (std::size_t i = 0; i < a.size(); ++i)
    far = std::max(far, std::hypot(a[i].x() - b[i].x(), a[i].y() - b[i].y()));
  return far;
}
}  // namespace

TEST(TextForm, TheNormalOneIsThePlainTextWithItsKerning) {
  for (const char* text : {"Agiv", "AVATAR Type", "%&@ fi 0815"}) {
    for (const int pixels : {9, 40, 200}) {
      SCOPED_TRACE(std::string(text) + ' ' + std::to_string(pixels));
      const TVRXLetterStyle style = StyleOf(pixels);
      QFont font = style.Font;
      font.setHintingPreference(QFont::PreferNoHinting);
      // At a size at which the grid of the font's points shows nowhere.
      font.setPixelSize(2000);
      QPainterPath plain;
      plain.addText(0, 0, font, QString::fromLatin1(text));
      plain = QTransform::fromScale(pixels / 2000.0, pixels / 2000.0).map(plain);
      for (const int factor : {0, 5000, 10000}) {
        const QPainterPath path = VRXTransformed(VRXLettersOf(QString::fromLatin1(text), style),
                                                 FormOf(static_cast<int>(tmNone), factor));
        EXPECT_EQ(ContoursOf(path).size(), ContoursOf(plain).size());
        const QRectF a = path.boundingRect(), b = plain.boundingRect();
        EXPECT_NEAR(a.left(), b.left(), 0.01 * pixels);
        EXPECT_NEAR(a.right(), b.right(), 0.01 * pixels);
        EXPECT_NEAR(a.height(), b.height(), 0.01 * pixels);
        // Contour by contour, in whatever order.
        auto mine = ContoursOf(path), theirs = ContoursOf(plain);
        const auto byPlace = [](const Contour& x, const Contour& y) {
          return std::pair(x.box.left() + x.box.right(), x.area) <
                 std::pair(y.box.left() + y.box.right(), y.area);
        };
        std::sort(mine.begin(), mine.end(), byPlace);
        std::sort(theirs.begin(), theirs.end(), byPlace);
        for (std::size_t i = 0; i < mine.size() && i < theirs.size(); ++i)
          EXPECT_NEAR(mine[i].area, theirs[i].area, 0.002 * pixels * pixels) << i;
      }
    }
  }
}

TEST(TextForm, OfNoStrengthIsThePlainText) {
  const TVRXLetters letters = VRXLettersOf(QStringLiteral("Agiv%"), StyleOf(33));
  const auto plain = PointsOf(VRXTransformed(letters, {}));
  for (int t = 0; t < Forms; ++t)
    EXPECT_EQ(Farthest(PointsOf(VRXTransformed(letters, FormOf(t, 0))), plain), 0) << t;
  // And hardly any strength hardly bends it.
  for (int t = 0; t < Forms; ++t) {
    const QRectF a = VRXTransformed(letters, FormOf(t, 1)).boundingRect(),
                 b = VRXTransformed(letters, {}).boundingRect();
    EXPECT_NEAR(a.width(), b.width(), 0.2) << t;
    EXPECT_NEAR(a.height(), b.height(), 0.2) << t;
  }
}

TEST(TextForm, KeepsTheOrderOfTheLettersTheirContoursAndTheWayTheyRun) {
  const TVRXTransAttrs attributes[] = {{}, {taPerspective}, {taToggled}, {taAutoToggled, taPerspective}};
  for (const bool equal : {false, true}) {
    TVRXLetterStyle style = StyleOf(30);
    style.Equal = equal;
    const TVRXLetters letters = VRXLettersOf(QStringLiteral("Rag%i\u00e4 BoQ8"), style);
    ASSERT_GE(letters.Outlines.size(), 9u);
    for (int t = 0; t < Forms; ++t)
      for (const int factor : Factors)
        for (const TVRXTransAttrs& attribute : attributes) {
          SCOPED_TRACE("form " + std::to_string(t) + " factor " + std::to_string(factor));
          const auto bent = ContoursOf(VRXTransformed(letters, FormOf(t, factor, attribute)));
          QRectF whole;
          for (const Contour& c : bent) whole |= c.box;
          // Along the arc, whose ends stand upright; elsewhere from the left to the right.
          const auto along = [&](QPointF p) {
            return t == static_cast<int>(tmHalfcircle) && factor > 9000
                       ? std::atan2(p.x() - whole.center().x(), whole.bottom() - p.y())
                       : p.x();
          };
          std::size_t next = 0;
          double before = -HUGE_VAL;
          for (const QPainterPath& letter : letters.Outlines) {
            const auto contours = ContoursOf(letter);
            ASSERT_LE(next + contours.size(), bent.size());
            QRectF box;
            for (const Contour& c : contours) {
              EXPECT_EQ(bent[next].area > 0, c.area > 0) << "contour " << next << " is turned over";
              EXPECT_GT(std::abs(bent[next].area), 0.001 * std::abs(c.area));
              box |= bent[next++].box;
            }
            EXPECT_GT(along(box.center()), before) << "a letter overtakes another one";
            before = along(box.center());
          }
          EXPECT_EQ(next, bent.size());
        }
  }
}

TEST(TextForm, IsTheSameAtAnySize) {
  for (int t = 0; t < Forms; ++t) {
    SCOPED_TRACE(t);
    const TVRXTextForm form = FormOf(t, 7000, {taPerspective, taToggled});
    const auto small = ContoursOf(VRXTransformed(VRXLettersOf(QStringLiteral("Agiv"), StyleOf(20)), form));
    const auto large = ContoursOf(VRXTransformed(VRXLettersOf(QStringLiteral("Agiv"), StyleOf(400)), form));
    ASSERT_EQ(small.size(), large.size());
    for (std::size_t i = 0; i < small.size(); ++i) {
      EXPECT_NEAR(small[i].box.left() * 20, large[i].box.left(), 2);
      EXPECT_NEAR(small[i].box.bottom() * 20, large[i].box.bottom(), 2);
      EXPECT_NEAR(small[i].area * 400 / large[i].area, 1, 0.01);
    }
  }
}

TEST(TextForm, EachOneIsAnother) {
  const TVRXLetters letters = VRXLettersOf(QStringLiteral("Agiv Agiv"), StyleOf(30));
  std::vector<QPainterPath> all;
  for (int t = 0; t < Forms; ++t) all.push_back(VRXTransformed(letters, FormOf(t, 6000)));
  for (std::size_t i = 0; i < all.size(); ++i)
    for (std::size_t j = 0; j < i; ++j) {
      const auto a = ContoursOf(all[i]), b = ContoursOf(all[j]);
      double far = 0;
      for (std::size_t k = 0; k < a.size(); ++k)
        far = std::max(far, (a[k].box.center() - b[k].box.center()).manhattanLength() +
                                std::abs(a[k].box.height() - b[k].box.height()));
      EXPECT_GT(far, 2) << i << ' ' << j;
    }
}

namespace {
// The boxes of letters of the same shape.
std::vector<QRectF> Bars(TVRXTransform transform, int factor = 8000, TVRXTransAttrs attributes = {},
                         const TVRXTextForm& more = {}) {
  TVRXTextForm form = more;
  form.Transform = transform;
  form.Factor = factor;
  form.Attributes = attributes;
  const TVRXLetters letters = VRXLettersOf(QStringLiteral("IIIIIIIIIII"), StyleOf(40));
  std::vector<QRectF> boxes;
  for (const Contour& c : ContoursOf(VRXTransformed(letters, form))) boxes.push_back(c.box);
  return boxes;
}
}  // namespace

TEST(TextForm, LooksAsItsNameSays) {
  // Where the letters stand and how high they are: at the beginning, in the middle, at the end.
  struct Row {
    TVRXTransform form;
    const char* heights;  // first against middle, last against middle: < = >
    const char* places;   // of the middles: above or below that of the middle letter
  };
  constexpr Row rows[] = {
      {tmHalfcircle, "==", "vv"}, {tmSpeaker, "<>", "=="},   {tmInvSpeaker, "><", "=="},
      {tmFly, "><", "v^"},        {tmChair, "<<", "^v"},     {tmStairs, "==", "v^"},
      {tmInvStairs, "==", "^v"},  {tmBuckled, ">>", "=="},   {tmEnterprise, "><", "v^"},
      {tmLNoseUp, "<>", "^v"},    {tmLNoseDown, "<>", "v^"}, {tmRNoseUp, "><", "v^"},
      {tmRNoseDown, "><", "^v"},  {tmCube, "<<", "=="},      {tmHalfmoon, "<<", "vv"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(static_cast<int>(row.form));
    const auto bars = Bars(row.form);
    ASSERT_EQ(bars.size(), 11u);
    const QRectF first = bars.front(), middle = bars[5], last = bars.back();
    const auto sign = [](double a, double b, char less, char more) {
      return a < b - 0.8 ? less : a > b + 0.8 ? more : '=';
    };
    const auto height = [&](const QRectF& r) { return sign(r.height(), middle.height(), '<', '>'); };
    const auto place = [&](const QRectF& r) { return sign(r.center().y(), middle.center().y(), '^', 'v'); };
    // At the ends of a half circle letters lie on their side; on the slope of the chair they are slanted.
    if (row.form != tmHalfcircle) {
      EXPECT_EQ((std::string{height(first), height(last)}), row.heights);
    }
    EXPECT_EQ((std::string{place(first), place(last)}), row.places);
  }
  const auto wave = Bars(tmWave);
  EXPECT_LT(wave[2].center().y(), wave[5].center().y() - 5) << "up first";
  EXPECT_GT(wave[8].center().y(), wave[5].center().y() + 5);
  // The tip of the arrow lies in the middle of the height, at the right.
  const TVRXLetters one = VRXLettersOf(QStringLiteral("I"), StyleOf(40));
  const QPainterPath arrow = VRXTransformed(one, FormOf(static_cast<int>(tmArrow), 8000));
  const QPainterPath plain = VRXTransformed(one, {});
  EXPECT_GT(arrow.boundingRect().right(), plain.boundingRect().right() + 15);
  EXPECT_NEAR(arrow.boundingRect().height(), plain.boundingRect().height(), 0.1);
}

TEST(TextForm, TheFartherSideIsSmallerByTheDepth) {
  for (const bool bird : {true, false}) {
    TVRXTextForm form;
    form.Perspective = bird ? TVRXPerspective::tpBird : TVRXPerspective::tpFrog;
    form.PerspectiveDepth = 100;
    const TVRXLetters letters = VRXLettersOf(QStringLiteral("HIIIIIIH"), StyleOf(40));
    form.Attributes = {taPerspective};
    const QPainterPath seen = VRXTransformed(letters, form);
    const QRectF box = seen.boundingRect();
    const auto widthAt = [&](double y) {
      QPainterPath strip;
      strip.addRect(box.left() - 1, y - 0.25, box.width() + 2, 0.5);
      return seen.intersected(strip).boundingRect().width();
    };
    const double upper = widthAt(box.top() + 0.5), lower = widthAt(box.bottom() - 0.5);
    EXPECT_NEAR((bird ? upper : lower) / (bird ? lower : upper), 2, 0.15);
    // The flag alone switches it on.
    form.Attributes = {};
    EXPECT_EQ(VRXTransformed(letters, form).boundingRect(), VRXTransformed(letters, {}).boundingRect());
  }
}

TEST(TextForm, LettersStandUpAndDownInTurn) {
  TVRXTextForm form;
  form.Toggle = 50;
  const auto plain = Bars(tmNone), toggled = Bars(tmNone, 0, {taToggled}, form);
  const auto automatic = Bars(tmNone, 0, {taAutoToggled}, form), off = Bars(tmNone, 0, {}, form);
  const double height = VRXLettersOf(QStringLiteral("I"), StyleOf(40)).Box.height();
  for (std::size_t i = 0; i < plain.size(); ++i) {
    const double by = i % 2 ? -1 : 1;
    EXPECT_NEAR(toggled[i].top() - plain[i].top(), by * height / 4, 0.2);
    EXPECT_NEAR(automatic[i].top() - plain[i].top(), by * height / 8, 0.2);
    EXPECT_EQ(off[i], plain[i]);
  }
}

TEST(TextLetters, EqualOnesAreAsHighAsTheHighestAndAsFarFromEachOther) {
  TVRXLetterStyle style = StyleOf(40);
  style.Equal = true;
  const TVRXLetters letters = VRXLettersOf(QStringLiteral("Maigx-"), style);
  ASSERT_EQ(letters.Outlines.size(), 6u);
  const QRectF first = letters.Outlines[0].boundingRect();
  for (std::size_t i = 1; i < 5; ++i) {
    const QRectF box = letters.Outlines[i].boundingRect();
    EXPECT_NEAR(box.top(), first.top(), 0.01) << i;
    EXPECT_NEAR(box.bottom(), first.bottom(), 0.01) << i;
    EXPECT_NEAR(box.center().x() - first.center().x(), letters.Box.width() / 6 * static_cast<double>(i), 4)
        << i;
  }
  EXPECT_LT(letters.Outlines[5].boundingRect().height(), first.height() / 2) << "a dash stays a dash";
}

TEST(TextLetters, HaveTheirTracingTheirLinesAndTheirAccents) {
  TVRXLetterStyle style = StyleOf(40);
  const double width = VRXLettersOf(QStringLiteral("Agiv"), style).Box.width();
  style.Tracing = 6;
  EXPECT_NEAR(VRXLettersOf(QStringLiteral("Agiv"), style).Box.width(), width + 4 * 6, 0.5);
  style.Tracing = 0;
  EXPECT_EQ(VRXLettersOf(QStringLiteral("e\u0301i"), style).Outlines.size(), 2u);
  const TVRXLetters two = VRXLettersOf(QStringLiteral("MMMM\nI"), style);
  EXPECT_EQ(two.Outlines.size(), 5u);
  EXPECT_LT(two.Outlines[4].boundingRect().left(), two.Outlines[1].boundingRect().left());
  style.Alignment = Qt::AlignRight;
  const TVRXLetters right = VRXLettersOf(QStringLiteral("MMMM\nI"), style);
  EXPECT_GT(right.Outlines[4].boundingRect().left(), right.Outlines[2].boundingRect().right());
  EXPECT_GT(right.Outlines[4].boundingRect().top(), right.Outlines[0].boundingRect().bottom());
  EXPECT_TRUE(two.Bars.empty());
  style.Font.setUnderline(true);
  style.Font.setStrikeOut(true);
  EXPECT_EQ(VRXLettersOf(QStringLiteral("MMMM\nI"), style).Bars.size(), 4u);
}

TEST(GraphicLabel, ShowsAllOfTheTextAtAnyStrength) {
  const char* const looks[] = {"", "Stretch=True", "TransAttr=[taPerspective,taToggled] Perspective=tpBird",
                               "FontFX.Style=tdRaisedShadow FontFX.ShadowDepth=7 FontFX.Angle=30"};
  for (const char* look : looks)
    for (const QSize size : {QSize(157, 61), QSize(31, 90)})
      for (int t = 0; t < Forms; ++t)
        for (const int factor : Factors) {
          SCOPED_TRACE(std::string(look) + " form " + std::to_string(t) + " factor " +
                       std::to_string(factor));
          const auto label = Label(look, size);
          label->SetTransform(static_cast<TVRXTransform>(t));
          label->SetInteger(2, factor);
          const QRectF box = label->Outline().boundingRect();
          EXPECT_TRUE(QRectF(label->ClientRect()).contains(box));
          EXPECT_EQ(ContoursOf(label->Outline()).size(),
                    ContoursOf(VRXTransformed(VRXLettersOf(QStringLiteral("Agiv"), StyleOf(30)), {})).size());
          // What the clip would cut off beyond the edges is nothing.
          const QRect ink = Inked(Draw(*label, Qt::magenta), Qt::magenta);
          EXPECT_GE(ink.width(), 10);
          EXPECT_GE(ink.height(), 8);
          EXPECT_TRUE(label->ClientRect().contains(ink));
        }
}

TEST(GraphicLabel, ThatSizesItselfIsAsLargeAsItsLetters) {
  for (int t = 0; t < Forms; ++t) {
    SCOPED_TRACE(t);
    TVRXGraphicLabel label(nullptr);
    label.SetCaption(QStringLiteral("Agiv"));
    label.SetTransform(static_cast<TVRXTransform>(t));
    label.FontFX()->SetStyle(TVRX3DTextStyle::tdShadow);
    label.FontFX()->SetDepth(1, 5);
    const QRectF box = label.Outline().boundingRect();
    const QSizeF wanted = VRXTransformed(VRXLettersOf(QStringLiteral("Agiv"),
                                                      {ToQFont(*label.Font()), 0, Qt::AlignHCenter, false}),
                                         {static_cast<TVRXTransform>(t), 5000, {}, 0, {}, 0})
                              .boundingRect()
                              .size();
    EXPECT_NEAR(box.width(), wanted.width(), 0.01) << "nothing is made smaller";
    EXPECT_NEAR(box.height(), wanted.height(), 0.01);
    EXPECT_LE(label.Width(), box.width() + 5 + 5);
    EXPECT_LE(label.Height(), box.height() + 5 + 5);
    const QRect ink = Inked(Draw(label, Qt::magenta), Qt::magenta);
    EXPECT_TRUE(label.ClientRect().contains(ink));
  }
}

TEST(GraphicLabel, TheFillIsInTheLettersAndTheFontsColourAroundThem) {
  const auto solid = Label(
      "Font.Height=-44 FillObject.Kind=fkSolid FillObject.Color=clRed Font.Color=clBlue OutlineWidth=3");
  const QImage both = Draw(*solid, Qt::white);
  EXPECT_GT(CountPixels(both, Qt::red), 60);
  EXPECT_GT(CountPixels(both, Qt::blue), 100);
  visible::Apply(*solid, QStringLiteral("OutlineWidth=0"));
  EXPECT_EQ(CountPixels(Draw(*solid, Qt::white), Qt::blue), 0);
  EXPECT_GT(CountPixels(Draw(*solid, Qt::white), Qt::red), 150);
  visible::Apply(*solid, QStringLiteral("FontFX.Style=tdPColorRaised Color=clLime"));
  EXPECT_EQ(CountPixels(Draw(*solid, Qt::white), Qt::red), 0) << "the colour they stand on";
  EXPECT_GT(CountPixels(Draw(*solid, Qt::white), QColor(0, 255, 0)), 150);
  visible::Apply(*solid, QStringLiteral("FontFX.Style=tdNone Enabled=False"));
  EXPECT_EQ(CountPixels(Draw(*solid, Qt::white), Qt::red), 0);
  EXPECT_GT(CountPixels(Draw(*solid, Qt::white), ToQColor(clGrayText)), 100);
}

TEST(GraphicLabel, HasAPictureForEachOfTheStylesOfItsFont) {
  std::vector<QImage> pictures;
  for (int style = 0; style < 8; ++style) {
    const auto label = Label("FontFX.LightDepth=2 FontFX.ShadowDepth=3 FontFX.LightColor=clYellow");
    label->FontFX()->SetStyle(static_cast<TVRX3DTextStyle>(style));
    pictures.push_back(Draw(*label, Qt::magenta));
    for (int other = 0; other < style; ++other)
      EXPECT_NE(pictures.back(), pictures[static_cast<std::size_t>(other)]) << style << other;
  }
}

TEST(GraphicLabel, TurnsAgainstTheClockByItsAngle) {
  const auto plain = Label("Transform=tmNone OutlineWidth=0", {150, 150}, QStringLiteral("MMMM"));
  const auto turned =
      Label("Transform=tmNone OutlineWidth=0 FontFX.Angle=90", {150, 150}, QStringLiteral("MMMM"));
  const QRectF a = plain->Outline().boundingRect(), b = turned->Outline().boundingRect();
  EXPECT_NEAR(a.width(), b.height(), 0.1);
  EXPECT_NEAR(a.height(), b.width(), 0.1);
  const auto little = Label("Transform=tmNone FontFX.Angle=20", {150, 150}, QStringLiteral("MMMM"));
  const auto contours = ContoursOf(little->Outline());
  EXPECT_LT(contours.back().box.center().y(), contours.front().box.center().y()) << "the end is higher";
}

TEST(GraphicLabel, TextsOfAnyKindAndLengthArePainted) {
  for (const QString& text : {QString(), QStringLiteral(" "), QStringLiteral("\n\n"),
                              QStringLiteral("a\tb\r\nc"), QStringLiteral("&"), QString(3000, u'x'),
                              QStringLiteral("\u05e9\u05dc\u05d5\u05dd \u0645\u0631\u062d\u0628\u0627"),
                              QStringLiteral("\U0001F600"), QString(QChar(0xD800))})
    for (const auto transform : {tmNone, tmHalfcircle, tmCube}) {
      const auto label = Label("", {97, 33}, text);
      label->SetTransform(transform);
      EXPECT_FALSE(Draw(*label, Qt::white).isNull());
      label->SetAutoSize(true);
      EXPECT_TRUE(label->Outline().isEmpty() || label->Width() > 0);
    }
  const auto ampersand = Label("", {97, 33}, QStringLiteral("A&B")),
             without = Label("", {97, 33}, QStringLiteral("AB"));
  EXPECT_GT(ContoursOf(ampersand->Outline()).size(), ContoursOf(without->Outline()).size())
      << "it is a letter";
  for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(3, 200), QSize(200, 2)})
    EXPECT_FALSE(Draw(*Label("", size), Qt::white).isNull());
}

TEST(GraphicLabel, SettersByNumberAreThoseOfTheirProperties) {
  TVRXGraphicLabel label(nullptr);
  label.SetInteger(2, 777);
  label.SetInteger(4, 55);
  label.SetBoolean(1, false);
  EXPECT_EQ(label.Get(TVRXGraphicLabel::Factor), 777);
  EXPECT_EQ(label.Get(TVRXGraphicLabel::PerspectiveDepth), 55);
  EXPECT_FALSE(label.AutoSize());
  EXPECT_THROW(label.SetInteger(3, 1), EPropertyError);
  EXPECT_THROW(label.SetBoolean(2, true), EPropertyError);
}

TEST(EveryProperty, OfAGraphicLabelIsSeen) {
  visible::ExpectAll<TVRXGraphicLabel>(
      {{"AutoSize=False Caption=Ag Transform=tmNone", "Alignment=taLeftJustify"},
       {"AutoSize=False Caption=Ag Transform=tmNone", "Layout=tlTop"},
       {"AutoSize=False Caption=Agiv", "Transform=tmCube"},
       {"AutoSize=False Caption=Agiv", "Factor=100"},
       {"AutoSize=False Caption=Agiv", "Stretch=True"},
       {"AutoSize=False Caption=Agiv", "OutlineWidth=3"},
       {"AutoSize=False Caption=Agiv", "Transparent=False"},
       {"AutoSize=False Caption=Agiv Transparent=False", "Color=clYellow"},
       {"AutoSize=False Caption=Agiv", "Enabled=False"},
       {"AutoSize=False Caption=Agiv", "TransAttr=[taEqualLetters]"},
       {"AutoSize=False Caption=Agiv TransAttr=[taToggled]", "Toggle=90"},
       {"AutoSize=False Caption=Agiv TransAttr=[taPerspective]", "Perspective=tpBird"},
       {"AutoSize=False Caption=Agiv TransAttr=[taPerspective]", "PerspectiveDepth=10"},
       {"AutoSize=False Caption=Agiv", "Font.Color=clRed"},
       {"AutoSize=False Caption=Agiv", "Font.Height=-20"},
       {"AutoSize=False Caption=Agiv", "Font.Style=[fsUnderline]"},
       {"AutoSize=False Caption=Agiv", "Font.Orientation=300"},
       {"AutoSize=False Caption=Agiv", "FontFX.Angle=20"},
       {"AutoSize=False Caption=Agiv", "FontFX.Tracing=4"},
       {"AutoSize=False Caption=Agiv", "FontFX.Style=tdShadow"},
       {"AutoSize=False Caption=Agiv FontFX.Style=tdRaised", "FontFX.LightDepth=3"},
       {"AutoSize=False Caption=Agiv FontFX.Style=tdRaised", "FontFX.LightColor=clRed"},
       {"AutoSize=False Caption=Agiv FontFX.Style=tdRaised", "FontFX.ShadowDepth=3"},
       {"AutoSize=False Caption=Agiv FontFX.Style=tdRaised", "FontFX.ShadowColor=clRed"}},
      {121, 61},
      {QStringLiteral("AutoSize"), QStringLiteral("ParentFont"), QStringLiteral("FillObject."),
       QStringLiteral("Font.Charset"), QStringLiteral("Font.Pitch"), QStringLiteral("Font.Quality"),
       QStringLiteral("Font.Size"), QStringLiteral("Font.Name")});
}
