// Texts with light and shadow, filled letters and filled areas: what every property shows.
#include "library/controls/CustomLabel.h"
#include "library/controls/FillControl.h"
#include "library/controls/LabelFill.h"
#include "tests/library/VisibleProperties.h"
#include "tests/support/PictureBytes.h"

namespace {
const QStringList Parts{QStringLiteral("Bevel."),   QStringLiteral("Font."),
                        QStringLiteral("Caption."), QStringLiteral("FillObject."),
                        QStringLiteral("Font3D."),  QStringLiteral("ParentFont"),
                        QStringLiteral("AutoSize")};

template <class C>
std::unique_ptr<C> Texted(const char* values, const QString& caption = QStringLiteral("Hg")) {
  auto label = std::make_unique<C>(nullptr);
  label->SetAutoSize(false);
  label->SetBounds(0, 0, 97, 43);
  label->Font()->SetHeight(-24);
  label->SetCaption(caption);
  visible::Apply(*label, QString::fromLatin1(values));
  return label;
}
QRect InkOf(TControl& control) { return Inked(Draw(control, Qt::white), Qt::white); }
}  // namespace

TEST(Font3D, EveryValueIsSeen) {
  struct Row {
    const char* look;
    const char* change;
  };
  constexpr Row rows[] = {
      {"", "Font3D.Style=tdRaised"},
      {"Font3D.Style=tdRaised", "Font3D.Style=tdSunken"},
      {"Font3D.Style=tdRaised", "Font3D.LightColor=clRed"},
      {"Font3D.Style=tdRaised", "Font3D.LightDepth=3"},
      {"Font3D.Style=tdShadow", "Font3D.ShadowColor=clRed"},
      {"Font3D.Style=tdShadow", "Font3D.ShadowDepth=4"},
      {"Font3D.Style=tdShadow", "Font3D.OffsetX=5"},
      {"Font3D.Style=tdShadow", "Font3D.OffsetY=-5"},
      {"Font3D.Style=tdRaised Font3D.ShadowDepth=4", "Font3D.Style=tdRaisedShadow"},
      {"Font3D.Style=tdRaised Font3D.ShadowDepth=4", "Font3D.Style=tdPColorRaised"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.look) + " | " + row.change);
    const auto label = Texted<TVRXStaticText>(row.look);
    const QImage before = Draw(*label, Qt::magenta);
    visible::Apply(*label, QString::fromLatin1(row.change));
    EXPECT_NE(Draw(*label, Qt::magenta), before);
  }
}

TEST(Font3D, TheShadowLiesByItsDepthAndOffset) {
  const QRect plain = InkOf(*Texted<TVRXStaticText>(""));
  const QRect right = InkOf(*Texted<TVRXStaticText>("Font3D.Style=tdShadow Font3D.ShadowDepth=3"));
  EXPECT_EQ(right.topLeft(), plain.topLeft());
  EXPECT_EQ(right.size(), plain.size() + QSize(3, 3));
  const QRect left = InkOf(*Texted<TVRXStaticText>(
      "Font3D.Style=tdShadow Font3D.ShadowDepth=0 Font3D.OffsetX=-5 Font3D.OffsetY=2"));
  EXPECT_EQ(left.size(), plain.size() + QSize(5, 2));
  EXPECT_EQ(left.left(), plain.left()) << "the letters give it room";
  const QRect none = InkOf(*Texted<TVRXStaticText>("Font3D.Style=tdShadow Font3D.ShadowDepth=0"));
  EXPECT_EQ(none, plain);
}

TEST(Font3D, ALabelThatSizesItselfHoldsTheEffect) {
  TVRXStaticText label(nullptr);
  label.SetCaption(QStringLiteral("Hg"));
  const QSize plain = label.BoundsRect().size();
  label.Font3D()->Set(TVRXFont3D::Style, TVRX3DTextStyle::tdShadow);
  label.Font3D()->Set(TVRXFont3D::ShadowDepth, 7);
  EXPECT_EQ(label.BoundsRect().size(), plain + QSize(7, 7));
  label.Bevel()->Set(TVRXBevel::Outer, TBevelCut::bvRaised);
  label.Bevel()->Set(TVRXBevel::Width, 2);
  EXPECT_EQ(label.BoundsRect().size(), plain + QSize(11, 11));
}

TEST(EveryProperty, OfAStaticTextIsSeen) {
  const auto label = Texted<TVRXStaticText>("");
  for (const char* change :
       {"Alignment=taCenter", "Alignment=taRightJustify", "Layout=tlCenter", "Layout=tlBottom",
        "Transparent=False", "Enabled=False", "Font.Color=clRed", "Bevel.Outer=bvRaised", "Caption=Hx"}) {
    SCOPED_TRACE(change);
    const auto changed = Texted<TVRXStaticText>(change);
    EXPECT_NE(Draw(*changed, Qt::magenta), Draw(*label, Qt::magenta));
  }
  const auto accelerator = Texted<TVRXStaticText>("", QStringLiteral("H&g"));
  const auto literal = Texted<TVRXStaticText>("ShowAccelChar=False", QStringLiteral("H&g"));
  EXPECT_NE(Draw(*accelerator, Qt::white), Draw(*literal, Qt::white));
  const auto line = Texted<TVRXStaticText>("", QStringLiteral("Hg Hg Hg"));
  const auto lines = Texted<TVRXStaticText>("WordWrap=True", QStringLiteral("Hg Hg Hg"));
  EXPECT_GT(InkOf(*lines).height(), InkOf(*line).height());
  const auto ground = Texted<TVRXStaticText>("Transparent=False Color=clYellow");
  EXPECT_EQ(Draw(*ground, Qt::white).pixelColor(96, 42), QColor(Qt::yellow));
}

TEST(LabelFill, TheLettersHaveTheColoursOfTheFill) {
  const auto solid = Texted<TVRXLabelFill>("FillObject.Kind=fkSolid FillObject.Color=clRed Font.Color=clRed");
  const QImage red = Draw(*solid, Qt::white);
  EXPECT_GT(CountPixels(red, Qt::red), 60);
  const auto inFont =
      Texted<TVRXLabelFill>("FillObject.Kind=fkSolid FillObject.Color=clRed Font.Color=clBlue");
  EXPECT_EQ(Draw(*inFont, Qt::white), red) << "nothing of the font's colour shows at their edges";
  const auto hatch = Texted<TVRXLabelFill>(
      "FillObject.Kind=fkHatch FillObject.Color=clRed FillObject.EndColor=clBlue Font.Height=-40");
  EXPECT_GT(CountPixels(Draw(*hatch, Qt::white), Qt::blue), 40);
  visible::Apply(*hatch, QStringLiteral("BrushBackColor=clLime"));
  EXPECT_EQ(CountPixels(Draw(*hatch, Qt::white), Qt::blue), 0);
  EXPECT_GT(CountPixels(Draw(*hatch, Qt::white), Qt::green), 40);
}

TEST(LabelFill, TheFilledLettersStandWhereDrawnOnesDo) {
  for (const char* place :
       {"", "Alignment=taCenter Layout=tlCenter", "Alignment=taRightJustify Layout=tlBottom"}) {
    SCOPED_TRACE(place);
    const auto drawn = Texted<TVRXStaticText>(place), other = Texted<TVRXStaticText>(place);
    const auto filled = Texted<TVRXLabelFill>(place);
    const QRect a = InkOf(*drawn), b = InkOf(*filled);
    EXPECT_LE((a.topLeft() - b.topLeft()).manhattanLength(), 2);
    EXPECT_LE((a.bottomRight() - b.bottomRight()).manhattanLength(), 2);
  }
}

TEST(LabelFill, ADisabledOneIsGrey) {
  const auto on = Texted<TVRXLabelFill>("FillObject.Kind=fkSolid FillObject.Color=clRed");
  const auto off = Texted<TVRXLabelFill>("FillObject.Kind=fkSolid FillObject.Color=clRed Enabled=False");
  EXPECT_EQ(CountPixels(Draw(*off, Qt::white), Qt::red), 0);
  EXPECT_GT(CountPixels(Draw(*on, Qt::white), Qt::red), 0);
}

TEST(EveryProperty, OfAFillIsSeen) {
  visible::ExpectAll<TVRXFill>({{"", "Filled=False"},
                                {"Filled=False", "Color=clYellow"},
                                {"", "FillObject.Kind=fkHatch"},
                                {"", "FillObject.Color=clRed"},
                                {"", "FillObject.EndColor=clRed"},
                                {"", "FillObject.Direction=gdHorizontal"},
                                {"FillObject.Kind=fkHatch", "FillObject.Hatch=bsVertical"},
                                {"Filled=False", "Bevel.Outer=bvRaised"},
                                {"", "Bevel.Outer=bvLowered"},
                                {"Caption.Caption=Hg", "Enabled=False"}},
                               {61, 37},
                               {QStringLiteral("Bevel."), QStringLiteral("Caption."),
                                QStringLiteral("FillObject.Bitmap"), QStringLiteral("FillObject.Image")});
  TVRXFill fill(nullptr);
  fill.SetBounds(0, 0, 61, 37);
  const QImage plain = Draw(fill, Qt::white);
  fill.Caption()->SetCaption(QStringLiteral("Hg"));
  EXPECT_NE(Draw(fill, Qt::white), plain);
}
