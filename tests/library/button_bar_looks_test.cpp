// What button bars look like in either direction, and which letters and pictures their items have.
#include "library/controls/ButtonBar.h"
#include "tests/library/VisibleProperties.h"

namespace {
using B = TVRXButtonBar;
using P = TVRXBarPlace;

struct RedPictures : TImageList {
  RedPictures() : TImageList(nullptr) {
    Set(TCustomImageList::Width, 14);
    Set(TCustomImageList::Height, 10);
    QImage image(14, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    SetPictures({image});
  }
};

class BarLook : public testing::Test {
 protected:
  void Make(TVRXBarOrientation orientation, int sections = 1, int items = 6) {
    bar.Set(B::Orientation, orientation);
    bar.SetBounds(0, 0, Down() ? 113 : 251, Down() ? 251 : 113);
    for (int s = 0; s < sections; ++s) {
      bar.AddNamedSection(QStringLiteral("Section"));
      for (int i = 0; i < items; ++i) bar.AddNamedItem(QStringLiteral("HHH"));
    }
    bar.Open(0);
    bar.Set(B::ItemIndex, -1);
    bar.ScrollTo(0);
  }
  bool Down() const { return bar.Get(B::Orientation) == TVRXBarOrientation::boVertical; }
  QImage ItemPicture(int index) { return Draw(bar, Qt::magenta).copy(bar.ItemRect(index)); }
  B bar{nullptr};
};
}  // namespace

TEST_F(BarLook, HeadingsKeepTheirEndsFreeInBothDirections) {
  visible::Apply(bar, QStringLiteral("FixedSectionLeftBorder=9 FixedSectionRightBorder=4"));
  Make(TVRXBarOrientation::boVertical);
  EXPECT_EQ(bar.SectionRect(0), QRect(9, 0, 113 - 13, 24));
  bar.SetBounds(0, 0, 251, 113);
  bar.Set(B::Orientation, TVRXBarOrientation::boHorizontal);
  EXPECT_EQ(bar.SectionRect(0), QRect(0, 9, 24, 113 - 13));
}

TEST_F(BarLook, TheHeadingsAroundTheOpenSectionAreShown) {
  Make(TVRXBarOrientation::boVertical, 20, 0);
  for (const auto& [open, first] : {std::pair(0, 0), {1, 0}, {10, 8}, {19, 15}}) {
    SCOPED_TRACE(open);
    bar.Open(open);
    for (int s = 0; s < 20; ++s) EXPECT_EQ(bar.SectionRect(s).isEmpty(), s < first || s >= first + 5) << s;
  }
}

TEST_F(BarLook, ArrowsStandWhereThereIsMoreAndPointThere) {
  Make(TVRXBarOrientation::boVertical);
  EXPECT_EQ(bar.PlaceAt({100, 240}), (P{P::ScrollDown}));
  // The middle of each, where the arrow alone is.
  const QImage down = Draw(bar, Qt::magenta).copy(97, 235, 8, 8);
  bar.ScrollTo(99);
  EXPECT_NE(bar.PlaceAt({100, 240}), (P{P::ScrollDown})) << "there is no more";
  EXPECT_EQ(bar.PlaceAt({100, 35}), (P{P::ScrollUp}));
  const QImage up = Draw(bar, Qt::magenta).copy(97, 32, 8, 8);
  bar.SetBounds(0, 0, 251, 113);
  bar.Set(B::Orientation, TVRXBarOrientation::boHorizontal);
  bar.ScrollTo(0);
  EXPECT_EQ(bar.PlaceAt({240, 100}), (P{P::ScrollDown}));
  const QImage right = Draw(bar, Qt::magenta).copy(235, 97, 8, 8);
  bar.ScrollTo(99);
  EXPECT_NE(bar.PlaceAt({240, 100}), (P{P::ScrollDown}));
  EXPECT_EQ(bar.PlaceAt({35, 100}), (P{P::ScrollUp}));
  const QImage left = Draw(bar, Qt::magenta).copy(32, 97, 8, 8);
  const QImage all[] = {down, up, right, left};
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < i; ++j) EXPECT_NE(all[i], all[j]) << i << j;
}

TEST_F(BarLook, AHeadingThatStandsUprightRunsUpwards) {
  RedPictures pictures;
  Make(TVRXBarOrientation::boHorizontal);
  bar.Set(B::SmallImageList, &pictures);
  bar.Current()->Set(TVRXBarSection::ListIndex, 0);
  const QImage heading = Draw(bar, Qt::magenta).copy(bar.SectionRect(0));
  EXPECT_EQ(CountPixels(heading, Qt::red), 14 * 10);
  EXPECT_EQ(CountPixels(heading.copy(0, heading.height() - 24, 24, 24), Qt::red), 14 * 10) << "at its foot";
}

TEST_F(BarLook, TheSelectedItemHasTheColoursOfSelections) {
  visible::Apply(bar,
                 QStringLiteral("FillSelectedItem=True FocusStyle=fsNone Font.Color=clRed Font.Height=-15"));
  Make(TVRXBarOrientation::boVertical);
  const QColor ground = ToQColor(clHighlight), letters = ToQColor(clHighlightText);
  const auto count = [&](int item, QColor color) { return CountPixels(ItemPicture(item), color); };
  EXPECT_EQ(count(1, ground), 0);
  EXPECT_GT(count(1, Qt::red), 10);
  bar.Set(B::ItemIndex, 1);
  EXPECT_GT(count(1, ground), 500);
  EXPECT_GT(count(1, letters), 10);
  EXPECT_EQ(count(1, Qt::red), 0);
  for (const int other : {0, 2}) EXPECT_EQ(count(other, ground), 0);
}

TEST_F(BarLook, ItemsHaveTheLettersOfTheBarOrOfTheirSection) {
  Make(TVRXBarOrientation::boVertical);
  visible::Apply(bar, QStringLiteral("Font.Color=clRed Font.Height=-15"));
  visible::Apply(*bar.Current(), QStringLiteral("Font.Color=clBlue Font.Height=-15"));
  for (const bool parent : {true, false}) {
    bar.Current()->Set(TVRXBarSection::ParentFont, parent);
    EXPECT_EQ(CountPixels(ItemPicture(0), Qt::red) > 10, parent);
    EXPECT_EQ(CountPixels(ItemPicture(0), Qt::blue) > 10, !parent);
  }
}

TEST_F(BarLook, ThePictureOfADisabledItemIsFaint) {
  RedPictures pictures;
  Make(TVRXBarOrientation::boVertical);
  bar.Set(B::LargeImageList, &pictures);
  TVRXBarItem& item = bar.Current()->Items()->At(0);
  item.Set(TVRXBarItem::ImageIndex, 0);
  EXPECT_EQ(CountPixels(ItemPicture(0), Qt::red), 14 * 10);
  item.Set(TVRXBarItem::Enabled, false);
  EXPECT_EQ(CountPixels(ItemPicture(0), Qt::red), 0);
}
