// Pages behind tabs: which is in front, where they stand, and what follows from choosing one.
#include "VclTest.h"
#include "rtl/PropAccess.h"
#include "vcl/Button.h"
#include "vcl/Form.h"
#include "vcl/PageControl.h"

namespace {
struct Book {
  TForm form{nullptr};
  TPageControl* book = new TPageControl(&form);
  std::vector<TTabSheet*> pages;
  Book() {
    form.SetSizeIsClient(true);
    form.SetBounds(0, 0, 400, 300);
    book->SetParent(&form);
    for (int i = 0; i < 3; ++i) {
      auto* page = new TTabSheet(&form);
      page->SetCaption(QStringLiteral("Page %1").arg(i + 1));
      page->SetParent(book);
      pages.push_back(page);
    }
  }
  static bool InSight(const TControl& c) { return c.Left() >= 0; }
};
}  // namespace

TEST(PageControl, ThePageInFrontFillsTheRoomAndTheOthersAreOutOfSightInTheSameSize) {
  Book b;
  EXPECT_EQ(b.book->FrontPage(), b.pages[0]);
  EXPECT_EQ(b.pages[0]->BoundsRect(), b.book->DisplayRect());
  EXPECT_EQ(b.pages[1]->BoundsRect().size(), b.book->DisplayRect().size());
  EXPECT_FALSE(Book::InSight(*b.pages[1]));
  b.book->SetActivePage(b.pages[2]);
  EXPECT_TRUE(Book::InSight(*b.pages[2]));
  EXPECT_FALSE(Book::InSight(*b.pages[0]));
  b.book->SetBounds(0, 0, 200, 90);
  EXPECT_EQ(b.pages[2]->BoundsRect(), b.book->DisplayRect());
  EXPECT_EQ(b.pages[0]->Width(), b.book->DisplayRect().width());
}

TEST(PageControl, ThePlaceOfAPageIsNoValueOfIt) {
  Book b;
  for (const char* name : {"Left", "Top", "Width", "Height", "PageIndex"})
    EXPECT_FALSE(IsStoredProp(*b.pages[1], TTabSheet::StaticClass().GetProp(name))) << name;
  EXPECT_EQ(GetOrdProp(*b.pages[1], TTabSheet::StaticClass().GetProp("Left")), b.book->DisplayRect().left());
  b.pages[1]->SetBounds(50, 50, 20, 20);
  EXPECT_EQ(b.pages[1]->Width(), b.book->DisplayRect().width());
  b.pages[1]->SetParent(&b.form);
  b.pages[1]->SetBounds(50, 50, 20, 20);
  EXPECT_EQ(b.pages[1]->BoundsRect(), QRect(50, 50, 20, 20)) << "anywhere else it is a control like others";
}

TEST(PageControl, WhatIsNoPageIsRevealedByNoPage) {
  Book b;
  auto* button = new TButton(&b.form);
  button->SetParent(b.book);
  b.book->ShowPage(*b.pages[1]);
  RevealPages(*button);
  EXPECT_EQ(b.book->FrontPage(), b.pages[1]);
  auto* inside = new TButton(&b.form);
  inside->SetParent(b.pages[2]);
  RevealPages(*inside);
  EXPECT_EQ(b.book->FrontPage(), b.pages[2]);
}

TEST(PageControl, ShowingAPageChangesNoValueAndChoosingOneDoes) {
  Book b;
  b.book->SetActivePage(b.pages[0]);
  b.book->ShowPage(*b.pages[1]);
  EXPECT_EQ(b.book->FrontPage(), b.pages[1]);
  EXPECT_EQ(b.book->ActivePage(), b.pages[0]);
  b.book->ChooseTab(0);
  EXPECT_EQ(b.book->FrontPage(), b.pages[0]);
  EXPECT_TRUE(Book::InSight(*b.pages[0]));
  b.book->ChooseTab(2);
  EXPECT_EQ(b.book->ActivePage(), b.pages[2]);
}

TEST(PageControl, TheNumberOfThePageFollowsWhereAFileHasOne) {
  Book b;
  b.book->SetActivePage(b.pages[1]);
  EXPECT_EQ(b.book->TabIndex(), -1);
  b.book->SetTabIndex(2);
  EXPECT_EQ(b.book->ActivePage(), b.pages[2]);
  b.book->SetActivePage(b.pages[0]);
  EXPECT_EQ(b.book->TabIndex(), 0);
}

TEST(PageControl, APageThatGoesLeavesTheFrontToAnother) {
  Book b;
  b.book->SetActivePage(b.pages[2]);
  delete b.pages[2];
  EXPECT_EQ(b.book->ActivePage(), nullptr);
  EXPECT_EQ(b.book->FrontPage(), b.pages[0]);
  EXPECT_TRUE(Book::InSight(*b.pages[0]));
}

TEST(PageControl, PagesHaveAnOrder) {
  Book b;
  b.pages[2]->SetPageIndex(0);
  EXPECT_EQ(b.book->Pages(), (std::vector<TTabSheet*>{b.pages[2], b.pages[0], b.pages[1]}));
  EXPECT_EQ(b.pages[1]->PageIndex(), 2);
}

TEST(PageControl, TheTabsStandAtTheirEdgeInTheirOrder) {
  Book b;
  b.pages[1]->Set(TTabSheet::TabVisible, false);
  for (const TTabPosition position :
       {TTabPosition::tpTop, TTabPosition::tpBottom, TTabPosition::tpLeft, TTabPosition::tpRight}) {
    b.book->Set(TCustomTabControl::TabPosition, position);
    const auto rects = b.book->TabRects();
    ASSERT_EQ(rects.size(), 3u);
    EXPECT_TRUE(rects[1].isEmpty()) << "a page without a tab";
    const QRect room = b.book->DisplayRect();
    EXPECT_FALSE(rects[0].intersects(room));
    EXPECT_FALSE(rects[0].intersects(rects[2]));
    EXPECT_EQ(b.book->PageAt(rects[2].center()), b.pages[2]);
    EXPECT_EQ(b.book->PageAt(room.center()), nullptr);
    EXPECT_EQ(b.pages[0]->BoundsRect(), room);
  }
  b.book->Set(TCustomTabControl::ShowTabs, false);
  EXPECT_EQ(b.book->DisplayRect(), QRect(4, 4, 281, 185));
}

TEST(PageControl, TabsThatDoNotFitMakeRowsOrAreCut) {
  Book b;
  const QRect one = b.book->DisplayRect();
  b.book->SetBounds(0, 0, 100, 193);
  EXPECT_EQ(b.book->DisplayRect().top(), one.top());
  b.book->SetActivePage(b.pages[2]);
  EXPECT_LE(b.book->TabRects()[2].right(), 100) << "the tab of the page in front can be seen";
  b.book->Set(TCustomTabControl::MultiLine, true);
  EXPECT_GT(b.book->DisplayRect().top(), one.top());
  const auto rects = b.book->TabRects();
  EXPECT_NE(rects[0].top(), rects[2].top());
  EXPECT_GT(rects[2].top(), rects[0].top()) << "the row in front is the one beside the page";
  EXPECT_EQ(b.pages[2]->Top(), b.book->DisplayRect().top());
}

TEST(TabControl, ShowsItsTabsAndLeavesTheRestToAligned) {
  TForm form(nullptr);
  TTabControl tabs(&form);
  tabs.SetParent(&form);
  EXPECT_EQ(tabs.FrontTab(), -1);
  tabs.Get(TTabControl::Tabs)->SetLines({QStringLiteral("One"), QStringLiteral("Two")});
  const int second = tabs.TabAt(tabs.TabRects()[1].center());
  EXPECT_EQ(second, 1);
  const QImage before = Draw(tabs);
  tabs.ChooseTab(second);
  EXPECT_EQ(tabs.Get(TTabControl::TabIndex), 1);
  EXPECT_NE(Draw(tabs), before);
  TButton inside(&form);
  inside.SetParent(&tabs);
  inside.SetAlign(TAlign::alClient);
  EXPECT_EQ(inside.BoundsRect(), tabs.DisplayRect());
}
