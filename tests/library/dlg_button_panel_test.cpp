// Where a panel of dialog buttons puts them, and what is seen of it.
#include "library/controls/DlgButtonPanel.h"

#include "tests/library/LibraryTest.h"
#include "tests/library/VisibleProperties.h"
#include "vcl/Form.h"
#include "vcl/FormColors.h"
#include "vcl/Label.h"

namespace {
using P = TVRXDlgButtonPanel;

class ButtonRow : public testing::Test {
 protected:
  ButtonRow() {
    panel.SetAlign(TAlign::alNone);
    panel.SetBounds(0, 0, 400, 41);
  }
  TVRXButton& Add(int width, int height, int tag = 0) {
    auto* button = new TVRXButton(&panel);
    button->SetBounds(3, 300, width, height);
    button->SetTag(tag);
    button->SetParent(&panel);
    return *button;
  }
  std::string Places() {
    QStringList places;
    for (const TButton* b : panel.Buttons()) places << QStringLiteral("%1,%2").arg(b->Left()).arg(b->Top());
    return places.join(u' ').toStdString();
  }
  P panel{nullptr};
};
}  // namespace

TEST_F(ButtonRow, StandsSideBySideInTheMiddleOfTheHeight) {
  Add(75, 25);
  Add(50, 21);
  Add(75, 25, 10);
  EXPECT_EQ(Places(), "8,8 91,10 165,8");
  panel.Set(P::ButtonSpacing, 5);
  panel.Set(P::ButtonGap, 40);
  panel.Set(P::BorderSpacing, 12);
  EXPECT_EQ(Places(), "12,8 92,10 182,8");
}

TEST_F(ButtonRow, StandsAtTheEndOrInTheMiddle) {
  Add(75, 25);
  Add(75, 25, 10);
  panel.Set(P::ButtonAlignment, TVRXButtonAlignment::baRightBottom);
  EXPECT_EQ(Places(), "218,8 317,8");
  panel.SetBounds(0, 0, 500, 61);
  EXPECT_EQ(Places(), "318,18 417,18") << "and stays there when the panel grows";
  panel.Set(P::ButtonAlignment, TVRXButtonAlignment::baCenter);
  EXPECT_EQ(Places(), "163,18 262,18");
  panel.SetBounds(0, 0, 100, 61);
  EXPECT_EQ(Places(), "8,18 107,18") << "where there is no room, the first are seen";
}

TEST_F(ButtonRow, StandsOneBelowTheOther) {
  panel.SetBounds(0, 0, 100, 300);
  panel.Set(P::Orientation, TVRXPanelOrientation::poVertical);
  Add(75, 25);
  Add(50, 21);
  Add(75, 25, 10);
  EXPECT_EQ(Places(), "12,8 25,41 12,86");
  panel.Set(P::ButtonAlignment, TVRXButtonAlignment::baRightBottom);
  EXPECT_EQ(Places(), "12,189 25,222 12,267");
}

TEST_F(ButtonRow, TheFirstButtonHasNoGapAndHiddenOnesNoPlace) {
  TVRXButton& first = Add(75, 25, 10);
  Add(75, 25);
  EXPECT_EQ(Places(), "8,8 91,8");
  first.SetVisible(false);
  EXPECT_EQ(panel.Buttons()[1]->Left(), 8);
}

TEST_F(ButtonRow, FollowsTheOrderSizesAndWhatGoes) {
  TVRXButton& first = Add(75, 25);
  TVRXButton& second = Add(50, 25);
  second.SetWidth(60);
  EXPECT_EQ(second.BoundsRect(), QRect(91, 8, 60, 25));
  first.SetWidth(100);
  EXPECT_EQ(second.Left(), 116);
  panel.SetControlIndex(&second, 0);
  EXPECT_EQ(Places(), "8,8 76,8");
  delete &second;
  EXPECT_EQ(Places(), "8,8");
}

TEST_F(ButtonRow, LeavesOtherControlsWhereTheyAre) {
  auto* label = new TLabel(&panel);
  label->SetAutoSize(false);
  label->SetBounds(300, 5, 50, 20);
  label->SetParent(&panel);
  Add(75, 25);
  EXPECT_EQ(label->BoundsRect(), QRect(300, 5, 50, 20));
  label->SetLeft(200);
  EXPECT_EQ(label->BoundsRect(), QRect(200, 5, 50, 20));
  label->SetAlign(TAlign::alRight);
  EXPECT_EQ(label->BoundsRect(), QRect(350, 0, 50, 41));
  panel.SetBounds(0, 0, 450, 45);
  EXPECT_EQ(label->BoundsRect(), QRect(400, 0, 50, 45));
  EXPECT_EQ(Places(), "8,10");
}

TEST(DlgButtonPanel, KeepsItsEdgeFreeAndLetsThrough) {
  P panel(nullptr);
  panel.SetAlign(TAlign::alNone);
  panel.SetBounds(0, 0, 200, 60);
  auto* button = new TVRXButton(&panel);
  button->SetBounds(0, 0, 75, 25);
  button->SetParent(&panel);
  panel.Bevel()->Set(TVRXBevel::Outer, TBevelCut::bvRaised);
  panel.Bevel()->Set(TVRXBevel::Width, 5);
  EXPECT_EQ(button->BoundsRect(), QRect(13, 17, 75, 25));
}

TEST(DlgButtonPanel, ShowsItsPropertiesAndOnFormsWhatItIsFor) {
  visible::ExpectAll<P>(
      {{"", "Color=clRed"},
       {"Color=clLime", "Transparent=True"},
       {"Bevel.Outer=bvRaised", "Bevel.Width=4"},
       {"", "Bevel.Outer=bvLowered"},
       {"", "Bevel.Inner=bvLowered"},
       {"Bevel.Outer=bvRaised", "Bevel.LightColor=clRed"},
       {"Bevel.Outer=bvRaised", "Bevel.ShadowColor=clRed"},
       {"Bevel.BorderColor=clLime", "Bevel.BorderWidth=3"},
       {"Bevel.BorderWidth=3", "Bevel.BorderColor=clRed"}},
      QSize(90, 37),
      {QStringLiteral("BorderSpacing"), QStringLiteral("Button"), QStringLiteral("Orientation"),
       QStringLiteral("Enabled"), QStringLiteral("Font"), QStringLiteral("ParentFont")});
  P plain(nullptr), designed(nullptr);
  designed.SetDesigning(true);
  for (P* panel : {&plain, &designed}) {
    panel->SetAlign(TAlign::alNone);
    panel->SetBounds(0, 0, 260, 41);
  }
  EXPECT_NE(Draw(designed, Qt::magenta), Draw(plain, Qt::magenta));
}

TEST_F(ButtonRow, ButtonsStandInItWhateverTheirAlignIs) {
  Add(75, 25);
  Add(50, 25).SetAlign(TAlign::alRight);
  EXPECT_EQ(Places(), "8,8 91,8");
}

TEST_F(ButtonRow, TooManyButtonsBeginAtTheBeginning) {
  panel.Set(P::ButtonAlignment, TVRXButtonAlignment::baRightBottom);
  for (int i = 0; i < 6; ++i) Add(75, 25);
  EXPECT_EQ(panel.Buttons()[0]->Left(), 8);
}

TEST_F(ButtonRow, WithoutButtonsTheFormShowsWhereTheyWillStand) {
  using enum TVRXButtonAlignment;
  panel.SetDesigning(true);
  visible::Apply(panel,
                 QStringLiteral("Color=clYellow ButtonSpacing=13 BorderSpacing=17 Bevel.Outer=bvRaised"));
  for (const auto orientation : {TVRXPanelOrientation::poHorizontal, TVRXPanelOrientation::poVertical})
    for (const auto alignment : {baLeftTop, baRightBottom, baCenter}) {
      SCOPED_TRACE(static_cast<int>(alignment));
      panel.Set(P::Orientation, orientation);
      panel.Set(P::ButtonAlignment, alignment);
      panel.SetBounds(0, 0, 311, 207);
      const QImage hint = Draw(panel, Qt::magenta);
      const QColor quiet = FormPalette().color(QPalette::PlaceholderText);
      QRect dashes;
      for (int y = 5; y < 202; ++y)
        for (int x = 5; x < 306; ++x)
          if (hint.pixelColor(x, y) == quiet) dashes |= QRect(x, y, 1, 1);
      TVRXButton *first = &Add(75, 25), *last = &Add(75, 25);
      const QRect all = first->BoundsRect() | last->BoundsRect();
      EXPECT_LE((dashes.topLeft() - all.topLeft()).manhattanLength(), 2);
      EXPECT_LE((dashes.bottomRight() - all.bottomRight()).manhattanLength(), 2);
      delete first;
      delete last;
    }
}
