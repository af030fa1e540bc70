// Button bars: what they show, where it stands, and what can be done to sections and items.
#include "library/controls/ButtonBar.h"

#include <QBuffer>

#include "library/components/ButtonBarPopupMenu.h"
#include "rtl/Clock.h"
#include "tests/library/LibraryTest.h"
#include "tests/library/VisibleProperties.h"
#include "vcl/PictureFile.h"

namespace {
using B = TVRXButtonBar;

// A flag of two colours, not square.
QImage Flag(QSize size, QColor left, QColor right) {
  QImage image(size, QImage::Format_ARGB32);
  image.fill(right);
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width() / 2; ++x) image.setPixelColor(x, y, left);
  return image;
}

// Three sections: of four items, of none, and of two.
void Fill(B& bar) {
  bar.SetBounds(0, 0, 110, 250);
  for (const auto& [caption, items] : {std::pair("Mail", 4), {"Empty", 0}, {"Notes", 2}}) {
    bar.AddNamedSection(QString::fromLatin1(caption));
    for (int i = 0; i < items; ++i) bar.AddNamedItem(QStringLiteral("Thing %1").arg(i));
  }
  bar.Open(0);
  bar.Set(B::ItemIndex, -1);
}
class Bar : public testing::Test {
 protected:
  Bar() { Fill(bar); }
  static std::string Text(const QRect& r) {
    return QStringLiteral("%1,%2 %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height()).toStdString();
  }
  B bar{nullptr};
};
}  // namespace

TEST_F(Bar, HeadingsStandAroundTheItemsOfTheOpenSection) {
  EXPECT_EQ(Text(bar.SectionRect(0)), "0,0 110x24");
  EXPECT_EQ(Text(bar.SectionRect(1)), "0,202 110x24");
  EXPECT_EQ(Text(bar.SectionRect(2)), "0,226 110x24");
  EXPECT_EQ(Text(bar.ItemRect(0)), "0,24 110x64");
  EXPECT_EQ(Text(bar.ItemRect(2)), "0,152 110x50") << "cut by the next heading";
  EXPECT_TRUE(bar.ItemRect(3).isEmpty());
  bar.Open(2);
  EXPECT_EQ(Text(bar.SectionRect(0)), "0,0 110x24");
  EXPECT_EQ(Text(bar.SectionRect(2)), "0,48 110x24");
  EXPECT_EQ(Text(bar.ItemRect(1)), "0,136 110x64");
  bar.Set(B::SingleSectionMode, true);
  EXPECT_EQ(Text(bar.SectionRect(2)), "0,0 110x24");
  EXPECT_TRUE(bar.SectionRect(0).isEmpty());
  bar.Set(B::Orientation, TVRXBarOrientation::boHorizontal);
  EXPECT_EQ(Text(bar.SectionRect(2)), "0,0 24x250");
  EXPECT_EQ(Text(bar.ItemRect(0)), "24,0 64x250");
  bar.Bevel()->Set(TVRXBevel::Outer, TBevelCut::bvRaised);
  bar.Bevel()->Set(TVRXBevel::Width, 3);
  EXPECT_EQ(Text(bar.SectionRect(2)), "3,3 24x244");
  bar.Set(B::SectionIndex, -1);
  EXPECT_EQ(bar.Current(), nullptr);
}

TEST_F(Bar, KnowsWhatStandsWhere) {
  using P = TVRXBarPlace;
  EXPECT_EQ(bar.PlaceAt({50, 10}), (P{P::Section, 0}));
  EXPECT_EQ(bar.PlaceAt({50, 230}), (P{P::Section, 2}));
  EXPECT_EQ(bar.PlaceAt({50, 24}), (P{P::Item, 0}));
  EXPECT_EQ(bar.PlaceAt({50, 160}), (P{P::Item, 2}));
  EXPECT_EQ(bar.PlaceAt({98, 190}), (P{P::ScrollDown}));
  EXPECT_EQ(bar.PlaceAt({98, 35}), (P{P::Item, 0})) << "nothing is above";
  bar.ScrollTo(2);
  EXPECT_EQ(bar.TopItem(), 2);
  EXPECT_EQ(bar.PlaceAt({98, 35}), (P{P::ScrollUp}));
  EXPECT_EQ(bar.PlaceAt({50, 35}), (P{P::Item, 2}));
  EXPECT_EQ(bar.PlaceAt({50, 180}), (P{})) << "behind the last item";
  EXPECT_EQ(bar.PlaceAt({500, 35}), (P{}));
  bar.ScrollTo(99);
  EXPECT_EQ(bar.TopItem(), 2) << "two of four items fit";
  bar.ScrollTo(-5);
  EXPECT_EQ(bar.TopItem(), 0);
  bar.ScrollIntoView(2);
  EXPECT_EQ(bar.TopItem(), 1);
  bar.ScrollIntoView(3);
  EXPECT_EQ(bar.TopItem(), 2);
  bar.ScrollIntoView(1);
  EXPECT_EQ(bar.TopItem(), 1);
  bar.Open(1);
  EXPECT_EQ(bar.PlaceAt({50, 100}), (P{}));
}

TEST_F(Bar, SectionsAndItemsComeAndGo) {
  bar.AddSection();
  EXPECT_EQ(bar.CurrentIndex(), 3);
  EXPECT_EQ(bar.Current()->Get(TVRXBarSection::Caption), QStringLiteral("Section 3"));
  bar.AddItem();
  bar.AddItem();
  EXPECT_EQ(bar.Get(B::ItemIndex), 1);
  EXPECT_EQ(bar.Current()->Items()->At(1).Get(TVRXBarItem::Caption), QStringLiteral("Item 1"));
  bar.DelItem();
  EXPECT_EQ(bar.Current()->ItemCount(), 1);
  EXPECT_EQ(bar.Get(B::ItemIndex), 0);
  bar.NextSection();
  EXPECT_EQ(bar.CurrentIndex(), 3) << "the last one";
  bar.PrevSection();
  EXPECT_EQ(bar.CurrentIndex(), 2);
  EXPECT_EQ(bar.Get(B::ItemIndex), -1);
  bar.DelSection(0);
  EXPECT_EQ(bar.Current()->Get(TVRXBarSection::Caption), QStringLiteral("Notes"))
      << "the open one stays open";
  bar.RenSection(-1, QStringLiteral("New name"));
  bar.RenItem(1, QStringLiteral("Other"));
  bar.RenItem(7, QStringLiteral("Nobody"));
  EXPECT_EQ(bar.Current()->Get(TVRXBarSection::Caption), QStringLiteral("New name"));
  EXPECT_EQ(bar.Current()->Items()->At(1).Get(TVRXBarItem::Caption), QStringLiteral("Other"));
  while (bar.SectionCount() > 0) bar.DelSection();
  EXPECT_EQ(bar.Current(), nullptr);
  bar.DelSection();
  bar.DelItem();
  bar.AddItem();
  bar.NextSection();
  bar.RenSection(-1, QStringLiteral("x"));
  EXPECT_EQ(bar.SectionCount(), 0);
  bar.AddSection();
  EXPECT_EQ(bar.Current()->Get(TVRXBarSection::Caption), QStringLiteral("Section 0"));
}

TEST_F(Bar, WhatIsOpenAndSelectedIsThereAfterADeletion) {
  bar.Set(B::ItemIndex, 2);
  bar.DelSection(1);
  EXPECT_EQ(bar.Get(B::ItemIndex), 2) << "it stands in the section that stays open";
  bar.DelSection(0);
  EXPECT_EQ(bar.Current()->Get(TVRXBarSection::Caption), QStringLiteral("Notes"));
  EXPECT_EQ(bar.Get(B::ItemIndex), -1) << "it went with its section";
  bar.AddSection();
  bar.DelSection();
  EXPECT_EQ(bar.Get(B::SectionIndex), 0) << "one that is there";
  bar.Set(B::ItemIndex, 0);
  bar.DelItem(1);
  EXPECT_EQ(bar.Get(B::ItemIndex), 0);
  // As a form may tell it: beyond the end the last one is open.
  bar.AddSection();
  bar.AddItem();
  bar.Set(B::SectionIndex, 99);
  bar.DelSection();
  EXPECT_EQ(bar.Get(B::SectionIndex), 0);
  EXPECT_EQ(bar.Get(B::ItemIndex), -1);
}

TEST_F(Bar, ShowsLargeAndSmallPicturesOfListsAndOfItemsThemselves) {
  TImageList large(nullptr), little(nullptr);
  large.Set(TCustomImageList::Width, 24);
  large.Set(TCustomImageList::Height, 20);
  large.SetPictures({Flag({24, 20}, Qt::red, Qt::green)});
  little.Set(TCustomImageList::Width, 12);
  little.Set(TCustomImageList::Height, 10);
  little.SetPictures({Flag({12, 10}, Qt::blue, Qt::yellow)});
  bar.Set(B::LargeImageList, &large);
  bar.Set(B::SmallImageList, &little);
  TVRXBarItem& item = bar.Current()->Items()->At(0);
  item.Set(TVRXBarItem::ImageIndex, 0);
  QImage picture = Draw(bar, Qt::magenta);
  EXPECT_EQ(CountPixels(picture, Qt::red), 12 * 20);
  EXPECT_EQ(CountPixels(picture, Qt::blue), 0);
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      EXPECT_TRUE(picture.pixelColor(x, y) != Qt::red || bar.ItemRect(0).contains(x, y)) << x << ' ' << y;
  bar.Current()->Set(TVRXBarSection::SmallImages, true);
  picture = Draw(bar, Qt::magenta);
  EXPECT_EQ(CountPixels(picture, Qt::red), 0);
  EXPECT_EQ(CountPixels(picture, Qt::blue), 6 * 10);
  EXPECT_EQ(Text(bar.ItemRect(1)), "0,48 110x24");
  // The heading's picture is of the small list, too.
  bar.Current()->Set(TVRXBarSection::ListIndex, 0);
  EXPECT_EQ(CountPixels(Draw(bar, Qt::magenta), Qt::blue), 2 * 6 * 10);
  bar.Current()->Set(TVRXBarSection::ListIndex, -1);
  // A picture of its own goes before that of the list.
  const QImage own = Flag({8, 6}, Qt::cyan, Qt::gray);
  item.SmallGlyph()->SetFileBytes(PictureToBytes(own, "png"));
  picture = Draw(bar, Qt::magenta);
  EXPECT_EQ(CountPixels(picture, Qt::blue), 0);
  EXPECT_GT(CountPixels(picture, Qt::gray), 0);
  bar.Current()->Set(TVRXBarSection::SmallImages, false);
  EXPECT_EQ(CountPixels(Draw(bar, Qt::magenta), Qt::red), 12 * 20) << "large ones are not concerned";
}

TEST(ButtonBar, ShowsEveryProperty) {
  // From a bar with something in it, which the rows cannot make.
  struct Row {
    const char *look, *change;
  };
  const Row rows[] = {{"Transparent=True", "Transparent=False"},
                      {"Transparent=False", "Color=clRed"},
                      {"", "FillObject.Color=clRed"},
                      {"", "FillSelectedItem=True"},
                      {"", "FixedSectionLeftBorder=9"},
                      {"", "FixedSectionRightBorder=9"},
                      {"", "FocusStyle=fsRaised"},
                      {"FocusStyle=fsRaised", "FocusStyle=fsLowered"},
                      {"", "FocusStyle=fsNone"},
                      {"", "Font.Color=clRed"},
                      {"", "Font3D.Style=tdShadow"},
                      {"", "ItemIndex=1"},
                      {"", "LargeItemHeight=40"},
                      {"", "Orientation=boHorizontal"},
                      {"", "SectionBtnSize=31"},
                      {"", "SectionIndex=2"},
                      {"", "SingleSectionMode=True"},
                      {"", "TransparentButtons=True"},
                      {"", "Bevel.Outer=bvRaised"},
                      {"", "Enabled=False"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.change);
    B bar(nullptr);
    Fill(bar);
    bar.Set(B::ItemIndex, 0);
    if (row.change == std::string_view("Color=clRed"))
      bar.FillObject()->Set(TVRXFillObject::Kind, TVRXFillKind::fkHatch);
    visible::Apply(bar, QString::fromLatin1(row.look));
    if (row.change == std::string_view("Color=clRed"))
      visible::Apply(bar, QStringLiteral("FillObject.Kind=fkBitmap FillObject.Color=clNone"));
    const QImage before = Draw(bar, Qt::magenta);
    visible::Apply(bar, QString::fromLatin1(row.change));
    EXPECT_NE(Draw(bar, Qt::magenta), before);
  }
}

TEST_F(Bar, ShowsEveryPropertyOfSectionsAndItems) {
  bar.Set(B::ItemIndex, 0);
  TVRXBarSection& section = *bar.Current();
  const auto differs = [&](TPersistent& what, const char* look, const char* change) {
    SCOPED_TRACE(change);
    visible::Apply(what, QString::fromLatin1(look));
    const QImage before = Draw(bar, Qt::magenta);
    visible::Apply(what, QString::fromLatin1(change));
    EXPECT_NE(Draw(bar, Qt::magenta), before);
  };
  differs(section, "", "Caption=Other");
  differs(section, "Font.Color=clRed", "ParentFont=False");
  differs(section, "", "Font.Color=clLime");
  differs(section, "", "Font3D.Style=tdShadow");
  differs(section, "", "SmallImages=True");
  differs(bar, "", "SmallItemHeight=41");
  differs(section.Items()->At(0), "", "Caption=Other");
  differs(section.Items()->At(0), "", "Enabled=False");
}

TEST(ButtonBar, WhatIsNotShownCostsNothing) {
  // Counted, not timed: the picture asks for no more of a large bar than of a small one.
  const auto shown = [](int sections, int items) {
    B bar(nullptr);
    bar.SetBounds(0, 0, 110, 250);
    for (int s = 0; s < sections; ++s) {
      auto* section = static_cast<TVRXBarSection*>(bar.Sections()->Add());
      for (int i = 0; i < items; ++i) section->Items()->Add();
    }
    bar.Open(sections / 2);
    Draw(bar, Qt::magenta);
    int headings = 0, seen = 0;
    for (int s = 0; s < sections; ++s) headings += !bar.SectionRect(s).isEmpty();
    for (int i = 0; i < items; ++i) seen += !bar.ItemRect(i).isEmpty();
    return std::pair(headings, seen);
  };
  EXPECT_EQ(shown(10, 10), shown(200, 200));
  EXPECT_LE(shown(200, 200).first, 6) << "items keep half of the bar";
}

TEST_F(Bar, TheMenuOffersWhatCanBeDone) {
  TVRXButtonBarPopupMenu menu(nullptr);
  const auto words = [&] {
    QStringList all;
    for (const auto& entry : menu.Entries(bar)) {
      QString text = entry.Text;
      text.remove(u'&');
      if (entry.BeginsGroup) text.prepend(u"| ");
      if (!entry.Enabled) text += QStringLiteral(" (off)");
      if (entry.Checked) text += QStringLiteral(" (x)");
      all << text;
    }
    return all.join(QStringLiteral(", ")).toStdString();
  };
  EXPECT_EQ(words(),
            "Large images (x), Small images, | Add section, Rename section, Delete section, | Add item, "
            "Rename item (off), Delete item (off)");
  bar.Set(B::ItemIndex, bar.Current()->ItemCount());
  EXPECT_TRUE(words().ends_with("Rename item (off), Delete item (off)")) << "no such item";
  bar.Set(B::ItemIndex, 0);
  TVRXButtonBarPopupMenu::Execute(bar, TVRXBarCommand::bcSmallImages);
  menu.Set(TVRXButtonBarPopupMenu::Commands,
           {TVRXBarCommand::bcLargeImages, TVRXBarCommand::bcSmallImages, TVRXBarCommand::bcDeleteItem});
  EXPECT_EQ(words(), "Large images, Small images (x), | Delete item");
  TVRXButtonBarPopupMenu::Execute(bar, TVRXBarCommand::bcDeleteItem);
  EXPECT_EQ(bar.Current()->ItemCount(), 3);
  TVRXButtonBarPopupMenu::Execute(bar, TVRXBarCommand::bcAddItem);
  EXPECT_EQ(bar.Current()->ItemCount(), 4);
  TVRXButtonBarPopupMenu::Execute(bar, TVRXBarCommand::bcDeleteSection);
  EXPECT_EQ(bar.SectionCount(), 2);
  TVRXButtonBarPopupMenu::Execute(bar, TVRXBarCommand::bcAddSection);
  EXPECT_EQ(bar.SectionCount(), 3);
  while (bar.SectionCount() > 0) bar.DelSection();
  menu.Set(TVRXButtonBarPopupMenu::Commands,
           {TVRXBarCommand::bcAddSection, TVRXBarCommand::bcDeleteSection, TVRXBarCommand::bcAddItem});
  EXPECT_EQ(words(), "Add section, Delete section (off), | Add item (off)");
  TVRXButtonBarPopupMenu::Execute(bar, TVRXBarCommand::bcAddItem);
}

TEST(ButtonBar, WithoutSectionsItSaysOnFormsWhatItIsFor) {
  B plain(nullptr), designed(nullptr);
  designed.SetDesigning(true);
  EXPECT_NE(Draw(designed, Qt::magenta), Draw(plain, Qt::magenta));
}

TEST_F(Bar, IsCopiedWithAllThatItHolds) {
  bar.Current()->Items()->At(1).Set(TVRXBarItem::ImageIndex, 7);
  B copy(nullptr);
  copy.Assign(&bar);
  EXPECT_EQ(copy.SectionCount(), 3);
  EXPECT_EQ(copy.Sections()->At(0).Items()->At(1).Get(TVRXBarItem::ImageIndex), 7);
  EXPECT_EQ(Draw(copy, Qt::magenta), Draw(bar, Qt::magenta));
}
