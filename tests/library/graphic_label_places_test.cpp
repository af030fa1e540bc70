// Where letters, the lines under and through them and all that is around them stand.
#include "tests/library/GraphicLabelTest.h"

using enum TVRXTransform;
using enum TVRXTransAttr;
using G = TVRXGraphicLabel;

namespace {
QRectF BoxOf(const G& label) { return label.Outline().boundingRect(); }
}  // namespace

TEST(TextLetters, AreUnderlinedBelowTheirFeetAndStruckOutThroughTheirMiddle) {
  TVRXLetterStyle style = StyleOf(40);
  style.Font.setUnderline(true);
  style.Font.setStrikeOut(true);
  for (const int alignment : {int{Qt::AlignLeft}, int{Qt::AlignRight}}) {
    SCOPED_TRACE(alignment);
    style.Alignment = alignment;
    const TVRXLetters letters = VRXLettersOf(QStringLiteral("HHHH\nHH"), style);
    ASSERT_EQ(letters.Outlines.size(), 6u);
    ASSERT_EQ(letters.Bars.size(), 4u);
    for (const std::size_t line : {0, 1}) {
      const QRectF first = letters.Outlines[line * 4].boundingRect(),
                   last = letters.Outlines[line == 0 ? 3 : 5].boundingRect();
      const QRectF under = letters.Bars[line * 2].boundingRect(),
                   through = letters.Bars[line * 2 + 1].boundingRect();
      EXPECT_GE(under.top(), first.bottom() - 0.5);
      EXPECT_LE(under.bottom(), first.bottom() + 12);
      EXPECT_GT(through.top(), first.top() + 5);
      EXPECT_LT(through.bottom(), first.bottom() - 5);
      for (const QRectF& bar : {under, through}) {
        EXPECT_NEAR(bar.left(), first.left(), 6);
        EXPECT_NEAR(bar.right(), last.right(), 6);
      }
    }
  }
}

TEST(TextLetters, ShortLinesStandInTheMiddleOfTheLongest) {
  TVRXLetterStyle style = StyleOf(40);
  style.Alignment = Qt::AlignHCenter;
  const TVRXLetters letters = VRXLettersOf(QStringLiteral("HHHHH\nH"), style);
  ASSERT_EQ(letters.Outlines.size(), 6u);
  EXPECT_NEAR(letters.Outlines[5].boundingRect().center().x(),
              letters.Outlines[2].boundingRect().center().x(), 0.1);
}

TEST(TextLetters, EqualOnesHaveTheirTracingToo) {
  TVRXLetterStyle style = StyleOf(40);
  style.Equal = true;
  const double width = VRXLettersOf(QStringLiteral("Agiv"), style).Box.width();
  style.Tracing = 6;
  EXPECT_NEAR(VRXLettersOf(QStringLiteral("Agiv"), style).Box.width(), width + 4 * 6, 0.5);
}

TEST(TextForm, TheLineUnderATextIsBentWithIt) {
  TVRXLetterStyle style = StyleOf(40);
  style.Font.setUnderline(true);
  TVRXLetters letters = VRXLettersOf(QStringLiteral("IIIIII"), style);
  letters.Outlines.clear();
  const double plain = VRXTransformed(letters, {}).boundingRect().height();
  EXPECT_LT(plain, 6);
  for (const auto form : {tmWave, tmStairs, tmHalfmoon, tmHalfcircle})
    EXPECT_GT(VRXTransformed(letters, {form, 8000, {}, 0, {}, 0}).boundingRect().height(), plain + 10)
        << static_cast<int>(form);
}

TEST(TextForm, LettersOnStairsStandUpright) {
  const TVRXLetters letters = VRXLettersOf(QStringLiteral("HHHH"), StyleOf(40));
  const QSizeF plain = letters.Outlines[0].boundingRect().size();
  for (const auto form : {tmStairs, tmInvStairs}) {
    TVRXLetters one = letters;
    one.Outlines.resize(1);
    const QSizeF size = VRXTransformed(one, {form, 9000, {}, 0, {}, 0}).boundingRect().size();
    EXPECT_NEAR(size.width(), plain.width(), 0.01);
    EXPECT_NEAR(size.height(), plain.height(), 0.01);
  }
}

TEST(TextForm, APerspectiveIsAsDeepAsItIsToldTo) {
  TVRXLetterStyle style = StyleOf(40);
  const TVRXLetters letters = VRXLettersOf(QStringLiteral("HHHHHH"), style);
  const double height = VRXTransformed(letters, {}).boundingRect().height();
  // The far side comes nearer by as much as it is smaller.
  for (const int depth : {100, 300, VRXDeepestPerspective}) {
    const QRectF seen =
        VRXTransformed(letters, {tmNone, 0, {taPerspective}, 0, TVRXPerspective::tpBird, depth})
            .boundingRect();
    EXPECT_NEAR(seen.height(), height / (1 + depth / 100.0), 0.5) << depth;
  }
}

TEST(GraphicLabel, TheOrientationOfItsFontTurnsItAsItsAngleDoes) {
  const auto angle = Label("Transform=tmNone FontFX.Angle=20", {211, 149}, QStringLiteral("MMMM"));
  const auto font = Label("Transform=tmNone Font.Orientation=200", {211, 149}, QStringLiteral("MMMM"));
  EXPECT_EQ(font->Outline(), angle->Outline());
  visible::Apply(*font, QStringLiteral("FontFX.Angle=15 Font.Orientation=50"));
  EXPECT_EQ(font->Outline(), angle->Outline()) << "both together";
}

TEST(GraphicLabel, StandsAtTheSideThatItIsAlignedTo) {
  const auto label = Label("Transform=tmNone Font.Height=-20 OutlineWidth=0", {211, 149});
  struct Row {
    const char* values;
    double x, y;  // parts of what is free
  };
  for (const Row& row : {Row{"Alignment=taLeftJustify Layout=tlTop", 0, 0},
                         {"Alignment=taCenter Layout=tlCenter", 0.5, 0.5},
                         {"Alignment=taRightJustify Layout=tlBottom", 1, 1}}) {
    SCOPED_TRACE(row.values);
    visible::Apply(*label, QString::fromLatin1(row.values));
    const QRectF box = BoxOf(*label);
    EXPECT_NEAR(box.left(), 1 + row.x * (209 - box.width()), 0.01);
    EXPECT_NEAR(box.top(), 1 + row.y * (147 - box.height()), 0.01);
  }
}

TEST(GraphicLabel, OnlyStretchedLettersAreLargerThanTheirFont) {
  const auto small = Label("Font.Height=-20", {211, 149}), large = Label("Font.Height=-20", {833, 611});
  EXPECT_EQ(BoxOf(*small).size(), BoxOf(*large).size());
  visible::Apply(*large, QStringLiteral("Stretch=True"));
  EXPECT_NEAR(BoxOf(*large).width(), 833 - 2 * 1.5, 0.01);
  EXPECT_NEAR(BoxOf(*large).height(), 611 - 2 * 1.5, 0.01);
}

TEST(GraphicLabel, LightAndShadowHaveRoomAroundTheLetters) {
  const auto label =
      Label("Stretch=True FontFX.Style=tdRaised FontFX.LightDepth=9 FontFX.ShadowDepth=6 OutlineWidth=0",
            {151, 73});
  const QRectF room = label->ClientRect();
  EXPECT_TRUE(room.contains(BoxOf(*label).translated(-9, -9)));
  EXPECT_TRUE(room.contains(BoxOf(*label).translated(6, 6)));
  visible::Apply(*label, QStringLiteral("FontFX.Style=tdSunken"));
  EXPECT_TRUE(room.contains(BoxOf(*label).translated(9, 9)));
  EXPECT_TRUE(room.contains(BoxOf(*label).translated(-6, -6)));
}

TEST(GraphicLabel, ADisabledOneHasNoLineAroundItsLetters) {
  const auto thin = Label("Enabled=False OutlineWidth=0"), thick = Label("Enabled=False OutlineWidth=4");
  EXPECT_EQ(Draw(*thick, Qt::white), Draw(*thin, Qt::white));
}

TEST(GraphicLabel, NumbersAreKeptWithinTheirLimits) {
  G label(nullptr);
  for (const auto& [given, factor, depth] :
       {std::tuple(-3, 0, 0), {77'777, VRXStrongestFactor, VRXDeepestPerspective}}) {
    label.SetInteger(2, given);
    label.SetInteger(4, given);
    EXPECT_EQ(label.Get(G::Factor), factor);
    EXPECT_EQ(label.Get(G::PerspectiveDepth), depth);
  }
}

TEST(GraphicLabel, ATabIsABlank) {
  EXPECT_EQ(Label("", {157, 61}, QStringLiteral("a\tb"))->Outline(),
            Label("", {157, 61}, QStringLiteral("a b"))->Outline());
  EXPECT_EQ(Label("", {157, 61}, QStringLiteral("a\r\nb"))->Outline(),
            Label("", {157, 61}, QStringLiteral("a\nb"))->Outline());
}
