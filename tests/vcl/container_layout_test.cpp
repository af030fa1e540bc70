// What each kind of container does with what stands in it, and that it does it by difference.
#include "VclTest.h"
#include "rtl/PropAccess.h"
#include "vcl/Button.h"
#include "vcl/FlowPanel.h"
#include "vcl/Form.h"
#include "vcl/GridPanel.h"
#include "vcl/GroupBox.h"
#include "vcl/Panel.h"
#include "vcl/ScrollBox.h"
#include "vcl/Splitter.h"
#include "vcl/StatusBar.h"
#include "vcl/ToolBar.h"

namespace {
// A form of 400 by 300 with a container on it.
template <class C>
struct Scene {
  TForm form{nullptr};
  C* box = new C(&form);
  Scene() {
    form.SetSizeIsClient(true);
    form.SetBounds(0, 0, 400, 300);
    form.SetDesigning(true);
    box->SetDesigning(true);
    box->SetParent(&form);
    box->SetBounds(10, 10, 200, 100);
  }
  template <class T = TButton>
  T& Add(QRect r, TAlign align = TAlign::alNone) {
    auto* c = new T(&form);
    c->SetDesigning(true);
    c->SetBounds(r.left(), r.top(), r.width(), r.height());
    c->SetParent(box);
    c->SetAlign(align);
    return *c;
  }
};
QRect R(const TControl& c) { return c.BoundsRect(); }
}  // namespace

TEST(PanelLayout, AlignedControlsStandInsideOfBevelsBorderAndPadding) {
  Scene<TPanel> s;
  s.box->Set(TCustomPanel::BorderWidth, 3);
  s.box->Get(TWinControl::Padding)->SetLeft(5);
  TButton& b = s.Add({0, 0, 20, 20}, TAlign::alClient);
  EXPECT_EQ(R(b), QRect(9, 4, 187, 92)) << "1 of the outer bevel, 3 of the border, 5 of the padding";
  s.box->Set(TCustomPanel::BevelInner, TBevelCut::bvLowered);
  EXPECT_EQ(R(b), QRect(10, 5, 185, 90));
  s.box->Get(TWinControl::Padding)->SetLeft(0);
  EXPECT_EQ(R(b), QRect(5, 5, 190, 90));
  s.box->Set(TCustomPanel::BevelInner, TBevelCut::bvNone);
  s.box->Set(TCustomPanel::BorderWidth, 0);
  EXPECT_EQ(R(b), QRect(1, 1, 198, 98));
}

TEST(PanelLayout, AnEdgeTakesItsRoomFromTheSurface) {
  Scene<TPanel> s;
  s.box->Set(TCustomPanel::BevelOuter, TBevelCut::bvNone);
  TButton& b = s.Add({0, 0, 20, 20}, TAlign::alClient);
  EXPECT_EQ(R(b), QRect(0, 0, 200, 100));
  s.box->Set(TWinControl::BevelEdges, TBevelEdges{TBevelEdge::beTop});
  s.box->Set(TWinControl::BevelKind, TBevelKind::bkTile);
  EXPECT_EQ(s.box->ClientRect(), QRect(0, 2, 200, 98));
  EXPECT_EQ(R(b), QRect(0, 0, 200, 98)) << "counted from the surface";
}

TEST(PanelLayout, WhatTheFileSaysStaysAndMovesByTheDifference) {
  Scene<TPanel> s;
  TButton& b = s.Add({0, 0, 20, 20}, TAlign::alTop);
  s.form.BeginLoading();
  s.box->BeginLoading();
  b.SetBounds(7, 9, 50, 20);  // as no layout has it
  s.box->Loaded();
  s.form.Loaded();
  s.box->Set(TCustomPanel::BorderWidth, 2);
  EXPECT_EQ(R(b), QRect(9, 11, 46, 20));
  s.box->Set(TCustomPanel::BorderWidth, 0);
  EXPECT_EQ(R(b), QRect(7, 9, 50, 20));
}

TEST(PanelLayout, MarginsStandAroundAlignedControls) {
  Scene<TPanel> s;
  s.box->Set(TCustomPanel::BevelOuter, TBevelCut::bvNone);
  TButton& top = s.Add({0, 0, 20, 20}, TAlign::alTop);
  TButton& rest = s.Add({0, 0, 20, 20}, TAlign::alClient);
  top.Set(TControl::AlignWithMargins, true);
  EXPECT_EQ(R(top), QRect(3, 3, 194, 20));
  EXPECT_EQ(R(rest), QRect(0, 26, 200, 74));
  top.Get(TControl::Margins)->SetBottom(10);
  top.Get(TControl::Margins)->SetLeft(1);
  EXPECT_EQ(R(top), QRect(1, 3, 196, 20));
  EXPECT_EQ(R(rest), QRect(0, 33, 200, 67));
  top.Set(TControl::AlignWithMargins, false);
  EXPECT_EQ(R(top), QRect(0, 0, 200, 20));
  EXPECT_EQ(R(rest), QRect(0, 20, 200, 80));
}

TEST(PanelLayout, SizesItselfByWhatStandsInIt) {
  Scene<TPanel> s;
  TButton& b = s.Add({20, 10, 60, 30});
  s.box->SetAutoSize(true);
  EXPECT_EQ(s.box->BoundsRect(), QRect(10, 10, 81, 41)) << "with a pixel for the bevel";
  b.SetWidth(70);
  EXPECT_EQ(s.box->Width(), 91);
  b.SetTop(15);
  EXPECT_EQ(s.box->Height(), 46);
  TButton& other = s.Add({100, 5, 50, 20});
  EXPECT_EQ(s.box->Width(), 151);
  other.SetParent(nullptr);
  EXPECT_EQ(s.box->Width(), 91);
}

TEST(Limits, HoldASizeThatSomebodyGives) {
  Scene<TPanel> s;
  TButton& b = s.Add({0, 0, 50, 20});
  b.Get(TControl::Constraints)->SetMinWidth(40);
  b.SetWidth(10);
  EXPECT_EQ(b.Width(), 40);
  b.Get(TControl::Constraints)->SetMaxWidth(60);
  b.SetWidth(100);
  EXPECT_EQ(b.Width(), 60);
  b.Get(TControl::Constraints)->SetMaxWidth(45);
  EXPECT_EQ(b.Width(), 45) << "a new limit counts at once";
}

TEST(Limits, LeaveASizeFromAFileAlone) {
  Scene<TPanel> s;
  TButton& b = s.Add({0, 0, 50, 20});
  b.BeginLoading();
  b.Get(TControl::Constraints)->SetMinWidth(400);
  b.SetBounds(0, 0, 60, 20);
  b.Loaded();
  EXPECT_EQ(b.Width(), 60);
  b.SetWidth(61);
  EXPECT_EQ(b.Width(), 61) << "one more is one more";
}

TEST(GroupBoxLayout, LeavesTheTitleFree) {
  Scene<TGroupBox> s;
  TButton& b = s.Add({0, 0, 20, 20}, TAlign::alClient);
  const int title = TextExtent(QStringLiteral("0"), *s.box->Font()).height() + 2;
  EXPECT_EQ(R(b), QRect(2, title, 196, 98 - title));
  s.box->Font()->SetHeight(-30);
  const int larger = TextExtent(QStringLiteral("0"), *s.box->Font()).height() + 2;
  EXPECT_GT(larger, title);
  EXPECT_EQ(R(b), QRect(2, larger, 196, 98 - larger));
}

TEST(ScrollBoxLayout, ItsBorderLiesOutsideOfTheSurface) {
  Scene<TScrollBox> s;
  TButton& b = s.Add({0, 0, 20, 20}, TAlign::alClient);
  EXPECT_EQ(s.box->ClientRect(), QRect(2, 2, 196, 96));
  EXPECT_EQ(R(b), QRect(0, 0, 196, 96));
  s.box->Set(TScrollBox::BorderStyle, TBorderStyle::bsNone);
  EXPECT_EQ(R(b), QRect(0, 0, 200, 100));
}

namespace {
// The bars on a form of 400 by 300, one after the other.
template <class... B>
struct Bars {
  TForm form{nullptr};
  std::tuple<B*...> bars{new B(&form)...};
  Bars() {
    form.SetSizeIsClient(true);
    form.SetBounds(0, 0, 400, 300);
    (std::get<B*>(bars)->SetParent(&form), ...);
  }
  template <class T>
  T& Get() {
    return *std::get<T*>(bars);
  }
};
}  // namespace

TEST(BarLayout, BarsStandAtTheirEdgeFromTheBeginning) {
  Bars<TStatusBar, TToolBar, TSplitter> s;
  EXPECT_EQ(R(s.Get<TStatusBar>()), QRect(0, 281, 400, 19));
  EXPECT_EQ(R(s.Get<TToolBar>()), QRect(0, 0, 400, 29));
  EXPECT_EQ(R(s.Get<TSplitter>()), QRect(0, 29, 3, 252));
}

TEST(BarLayout, ASplitterTurnsWithItsDirection) {
  Bars<TSplitter> s;
  auto& splitter = s.Get<TSplitter>();
  splitter.SetDirection(TAlign::alBottom);
  EXPECT_EQ(R(splitter), QRect(0, 297, 400, 3));
  EXPECT_EQ(static_cast<int>(splitter.Cursor()), -15);
  splitter.SetCursor(TCursor{-21});
  splitter.SetDirection(TAlign::alRight);
  EXPECT_EQ(R(splitter), QRect(397, 0, 3, 300));
  EXPECT_EQ(static_cast<int>(splitter.Cursor()), -21) << "a pointer of its own stays";
}

TEST(ToolBarLayout, ButtonsStandInRowsInTheOrderOfTheControls) {
  Scene<TToolBar> s;
  s.box->SetAlign(TAlign::alNone);
  s.box->SetBounds(0, 0, 60, 60);
  auto& a = s.Add<TToolButton>({0, 0, 23, 22});
  auto& gap = s.Add<TToolButton>({0, 0, 8, 22});
  gap.Set(TToolButton::Style, TToolButtonStyle::tbsSeparator);
  gap.SetWidth(8);
  auto& b = s.Add<TToolButton>({0, 0, 23, 22});
  auto& c = s.Add<TToolButton>({0, 0, 23, 22});
  EXPECT_EQ(R(a), QRect(0, 0, 23, 22));
  EXPECT_EQ(R(gap), QRect(23, 0, 8, 22));
  EXPECT_EQ(R(b), QRect(31, 0, 23, 22));
  EXPECT_EQ(R(c), QRect(0, 22, 23, 22)) << "there is no room for it in the first row";
  s.box->SetWidth(100);
  EXPECT_EQ(R(c), QRect(54, 0, 23, 22));
  s.box->Set(TToolBar::ButtonWidth, 30);
  EXPECT_EQ(R(b), QRect(38, 0, 30, 22));
  EXPECT_EQ(R(gap), QRect(30, 0, 8, 22)) << "a gap keeps its width";
  c.SendToBack();
  EXPECT_EQ(R(c), QRect(0, 0, 30, 22));
  EXPECT_EQ(R(a), QRect(30, 0, 30, 22));
  c.Set(TToolButton::Wrap, true);
  EXPECT_EQ(R(a), QRect(0, 22, 30, 22));
  a.SetLeft(50);
  EXPECT_EQ(R(a), QRect(0, 22, 30, 22)) << "the bar decides";
}

TEST(ToolBarLayout, APlaceFromTheFileStaysAndMovesByTheDifference) {
  Scene<TToolBar> s;
  s.box->SetAlign(TAlign::alNone);
  auto& a = s.Add<TToolButton>({0, 0, 23, 22});
  auto& b = s.Add<TToolButton>({0, 0, 23, 22});
  s.box->BeginLoading();
  a.SetBounds(4, 0, 23, 22);
  b.SetBounds(27, 0, 23, 22);
  s.box->Loaded();
  s.box->Set(TToolBar::Indent, 5);
  EXPECT_EQ(a.Left(), 9);
  EXPECT_EQ(b.Left(), 32);
}

TEST(ToolBarLayout, ButtonsWithoutAWidthInTheFileHaveThatOfTheBar) {
  Scene<TToolBar> s;
  auto& given = s.Add<TToolButton>({0, 0, 23, 22});
  auto& usual = s.Add<TToolButton>({0, 0, 23, 22});
  for (TComponent* c :
       {static_cast<TComponent*>(s.box), static_cast<TComponent*>(&given), static_cast<TComponent*>(&usual)})
    c->BeginLoading();
  s.box->Set(TToolBar::ButtonWidth, 60);
  SetOrdProp(given, TToolButton::StaticClass().GetProp("Width"), 40);
  for (TComponent* c :
       {static_cast<TComponent*>(s.box), static_cast<TComponent*>(&given), static_cast<TComponent*>(&usual)})
    c->Loaded();
  EXPECT_EQ(given.Width(), 40);
  EXPECT_EQ(usual.Width(), 60);
  EXPECT_TRUE(IsStoredProp(given, TToolButton::StaticClass().GetProp("Width")));
  EXPECT_FALSE(IsStoredProp(usual, TToolButton::StaticClass().GetProp("Width")));
}

TEST(FlowLayout, ControlsFollowEachOtherAndWrap) {
  Scene<TFlowPanel> s;
  s.box->Set(TCustomPanel::BevelOuter, TBevelCut::bvNone);
  auto &a = s.Add({0, 0, 90, 20}), &b = s.Add({0, 0, 80, 30}), &c = s.Add({0, 0, 50, 10});
  EXPECT_EQ(R(a), QRect(0, 0, 90, 20));
  EXPECT_EQ(R(b), QRect(90, 0, 80, 30));
  EXPECT_EQ(R(c), QRect(0, 30, 50, 10));
  s.box->Set(TFlowPanel::FlowStyle, TFlowStyle::fsRightLeftTopBottom);
  EXPECT_EQ(R(a), QRect(110, 0, 90, 20));
  EXPECT_EQ(R(c), QRect(150, 30, 50, 10));
  s.box->Set(TFlowPanel::FlowStyle, TFlowStyle::fsTopBottomLeftRight);
  EXPECT_EQ(R(b), QRect(0, 20, 80, 30));
  EXPECT_EQ(R(c), QRect(0, 50, 50, 10));
  s.box->Set(TFlowPanel::FlowStyle, TFlowStyle::fsLeftRightBottomTop);
  EXPECT_EQ(R(a), QRect(0, 80, 90, 20));
  s.box->Set(TFlowPanel::FlowStyle, TFlowStyle::fsLeftRightTopBottom);
  s.box->Set(TFlowPanel::FlowLayout, TTextLayout::tlBottom);
  EXPECT_EQ(R(a), QRect(0, 10, 90, 20)) << "at the lower end of the row";
  s.box->Set(TFlowPanel::AutoWrap, false);
  EXPECT_EQ(c.Left(), 170);
  a.SetWidth(100);
  EXPECT_EQ(b.Left(), 100);
}

TEST(FlowLayout, WhatJustFitsStaysInItsRow) {
  Scene<TFlowPanel> s;
  s.box->Set(TCustomPanel::BevelOuter, TBevelCut::bvNone);
  s.Add({0, 0, 90, 20});
  auto& b = s.Add({0, 0, 110, 30});
  EXPECT_EQ(R(b), QRect(90, 0, 110, 30));
  b.SetWidth(111);
  EXPECT_EQ(R(b), QRect(0, 20, 111, 30));
}

TEST(FlowLayout, ARowEndsWhereTheListSaysSo) {
  Scene<TFlowPanel> s;
  s.box->Set(TCustomPanel::BevelOuter, TBevelCut::bvNone);
  auto& a = s.Add({0, 0, 40, 20});
  auto& b = s.Add({0, 0, 40, 20});
  TCollectionItem* item = s.box->Get(TFlowPanel::ControlList)->Add();
  item->Set(TControlItem::Control, &a);
  item->Set(TFlowPanelControl::WrapAfter, TWrapAfter::waForce);
  EXPECT_EQ(R(b), QRect(0, 20, 40, 20));
  delete &a;
  EXPECT_EQ(s.box->Get(TFlowPanel::ControlList)->Count(), 0) << "who is gone is no more in the list";
  EXPECT_EQ(R(b), QRect(0, 0, 40, 20));
}

TEST(GridLayout, EveryControlHasACell) {
  Scene<TGridPanel> s;
  s.box->Set(TCustomPanel::BevelOuter, TBevelCut::bvNone);
  auto &a = s.Add({0, 0, 10, 10}, TAlign::alClient), &b = s.Add({0, 0, 30, 10}), &c = s.Add({0, 0, 10, 10});
  const TControlCollection& cells = *s.box->Get(TGridPanel::ControlCollection);
  ASSERT_EQ(cells.Count(), 3);
  EXPECT_EQ(cells.Item(2)->Get(TGridControlItem::Column), 0);
  EXPECT_EQ(cells.Item(2)->Get(TGridControlItem::Row), 1);
  EXPECT_EQ(R(a), QRect(0, 0, 100, 50));
  EXPECT_EQ(R(b), QRect(100, 0, 30, 10));
  EXPECT_EQ(R(c), QRect(0, 50, 10, 10));
  b.SetAnchors({});
  EXPECT_EQ(R(b), QRect(135, 20, 30, 10)) << "in the middle of its cell";
  b.SetAnchors({TAnchorKind::akRight, TAnchorKind::akTop, TAnchorKind::akBottom});
  EXPECT_EQ(R(b), QRect(170, 0, 30, 50));
  s.box->SetWidth(300);
  EXPECT_EQ(R(a), QRect(0, 0, 150, 50));
  EXPECT_EQ(b.Left(), 270);
  delete &a;
  EXPECT_EQ(cells.Count(), 2);
}

TEST(GridLayout, ColumnsHavePixelsContentOrAShare) {
  Scene<TGridPanel> s;
  s.box->Set(TCustomPanel::BevelOuter, TBevelCut::bvNone);
  auto& columns = *s.box->Get(TGridPanel::ColumnCollection);
  const auto column = [&](TSizeStyle style, double value) {
    TCollectionItem* c = columns.Add();
    c->Set(TCellItem::SizeStyle, style);
    c->Set(TCellItem::Value, value);
  };
  column(TSizeStyle::ssAbsolute, 40);
  column(TSizeStyle::ssAuto, 0);
  column(TSizeStyle::ssPercent, 75);
  column(TSizeStyle::ssPercent, 25);
  s.Add({0, 0, 10, 10});
  auto& second = s.Add({0, 0, 60, 10});
  auto& third = s.Add({0, 0, 10, 10}, TAlign::alClient);
  EXPECT_EQ(s.box->ColumnEdges(200), (std::vector<int>{0, 40, 100, 175, 200}));
  EXPECT_EQ(R(third), QRect(100, 0, 75, 50));
  second.SetWidth(20);
  EXPECT_EQ(R(third), QRect(60, 0, 105, 50));
  s.box->Get(TGridPanel::ControlCollection)->Item(2)->Set(TGridControlItem::ColumnSpan, 2);
  EXPECT_EQ(R(third), QRect(60, 0, 140, 50));
}
