// Lists, trees and grids: what they show.
#include "VclTest.h"
#include "vcl/ColorBox.h"
#include "vcl/Form.h"
#include "vcl/Grid.h"
#include "vcl/LinkLabel.h"
#include "vcl/TreeView.h"

namespace {
TListColumn* AddColumn(TListView& list, const char* caption, int width) {
  auto* column = static_cast<TListColumn*>(list.Get(TListView::Columns)->Add());
  column->Set(TListColumn::Caption, QString::fromLatin1(caption));
  column->Set(TListColumn::Width, width);
  return column;
}

QImage Solid(QSize size, QColor color) {
  QImage image(size, QImage::Format_ARGB32);
  image.fill(color);
  return image;
}

int Differences(const QImage& a, const QImage& b, const QRect& where) {
  int n = 0;
  for (int y = where.top(); y <= where.bottom(); ++y)
    for (int x = where.left(); x <= where.right(); ++x) n += a.pixel(x, y) != b.pixel(x, y);
  return n;
}

// Items with a picture each, whose colour tells where it stands.
struct PicturedList {
  TForm form{nullptr};
  TImageList images{&form};
  TListView list{&form};
  PicturedList() {
    list.SetParent(&form);
    images.Set(TImageList::Width, 12);
    images.Set(TImageList::Height, 10);
    images.SetPictures({Solid({12, 10}, Qt::red), Solid({12, 10}, Qt::green)});
    list.Set(TListView::SmallImages, &images);
    list.Set(TListView::LargeImages, &images);
    list.SetBounds(0, 0, 300, 160);
    list.Get(TListView::Items)
        ->SetItems(
            {{.Caption = QStringLiteral("first"), .ImageIndex = 0},
             {.Caption = QStringLiteral("second"), .ImageIndex = 1, .SubItems = {QStringLiteral("detail")}}});
    AddColumn(list, "Name", 120);
    AddColumn(list, "More", 90);
  }
  // Where the picture of that colour begins; null when it is not there.
  QPoint Place(QColor color) {
    const QImage image = Draw(list);
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y) == color) return {x, y};
    return {};
  }
};
}  // namespace

TEST(ListView, EachStylePlacesItemsItsOwnWay) {
  PicturedList p;
  const auto places = [&](TViewStyle style) {
    p.list.Set(TListView::ViewStyle, style);
    const QPoint first = p.Place(Qt::red), second = p.Place(Qt::green);
    EXPECT_FALSE(first.isNull());
    EXPECT_FALSE(second.isNull());
    return std::pair(first, second);
  };
  const auto [icon1, icon2] = places(TViewStyle::vsIcon);
  EXPECT_EQ(icon1.y(), icon2.y());
  EXPECT_GE(icon2.x(), icon1.x() + 75);
  const auto [small1, small2] = places(TViewStyle::vsSmallIcon);
  EXPECT_EQ(small1.y(), small2.y());
  const auto [list1, list2] = places(TViewStyle::vsList);
  EXPECT_EQ(list1.x(), list2.x());
  EXPECT_GT(list2.y(), list1.y());
  const auto [report1, report2] = places(TViewStyle::vsReport);
  EXPECT_EQ(report1.x(), report2.x());
  EXPECT_GT(report1.y(), list1.y()) << "below the titles";
  p.list.Set(TListView::ShowColumnHeaders, false);
  EXPECT_EQ(p.Place(Qt::red).y(), list1.y());
}

TEST(ListView, TitlesAreAlignedLikeTheirColumnsAndEndWithAnEllipsis) {
  PicturedList p;
  p.list.Set(TListView::ViewStyle, TViewStyle::vsReport);
  TListColumn* column = p.list.Get(TListView::Columns)->Column(1);
  column->Set(TListColumn::Caption, {});
  const QImage empty = Draw(p.list);
  column->Set(TListColumn::Caption, QStringLiteral("M"));
  const int left = 121, width = column->ShownWidth();
  const QRect head(left, 3, width, 14), left3(left, 3, width / 3, 14),
      right3(left + width - width / 3, 3, width / 3, 14);
  const auto ink = [&](const QRect& r) { return Differences(empty, Draw(p.list), r); };
  EXPECT_GT(ink(left3), 0);
  EXPECT_EQ(ink(right3), 0);
  column->Set(TListColumn::Alignment, TAlignment::taRightJustify);
  EXPECT_EQ(ink(left3), 0);
  EXPECT_GT(ink(right3), 0);
  column->Set(TListColumn::Alignment, TAlignment::taCenter);
  EXPECT_EQ(ink(left3) + ink(right3), 0);
  EXPECT_GT(ink(head), 0);
  column->Set(TListColumn::Alignment, TAlignment::taLeftJustify);
  column->Set(TListColumn::Caption, QString(40, u'M'));
  EXPECT_GT(ink(left3), 0);
  EXPECT_EQ(ink({left + width - 9, 3, 9, 6}), 0) << "at the end are dots, with nothing above them";
  EXPECT_GT(ink({left + width - 18, 3, 15, 14}), 0);
}

TEST(ListView, SubitemsStandInTheColumnsOfAReportOnly) {
  PicturedList p;
  p.list.Set(TListView::ViewStyle, TViewStyle::vsReport);
  const QImage with = Draw(p.list);
  p.list.Get(TListView::Items)
      ->SetItems({{.Caption = QStringLiteral("first"), .ImageIndex = 0},
                  {.Caption = QStringLiteral("second"), .ImageIndex = 1}});
  const QImage without = Draw(p.list);
  EXPECT_EQ(Differences(with, without, QRect(0, 0, 121, 160)), 0);
  EXPECT_GT(Differences(with, without, QRect(122, 0, 90, 160)), 10);
}

TEST(ListView, EachColumnShowsItsOwnSubitem) {
  PicturedList p;
  AddColumn(p.list, "Third", 60);
  p.list.Set(TListView::ViewStyle, TViewStyle::vsReport);
  const auto shown = [&](const char* second) {
    p.list.Get(TListView::Items)
        ->SetItems({{.Caption = QStringLiteral("first"),
                     .SubItems = {QStringLiteral("same"), QString::fromLatin1(second)}}});
    return Draw(p.list);
  };
  const QImage one = shown("one"), other = shown("WWWW");
  EXPECT_EQ(Differences(one, other, QRect(0, 0, 211, 160)), 0);
  EXPECT_GT(Differences(one, other, QRect(212, 0, 60, 160)), 10);
}

TEST(ListView, TheMarkOfAnItemIsItsState) {
  PicturedList p;
  p.list.Set(TListView::ViewStyle, TViewStyle::vsReport);
  p.list.Set(TListView::Checkboxes, true);
  const auto ink = [&](int state) {
    p.list.Get(TListView::Items)->SetItems({{.Caption = QStringLiteral("x"), .StateIndex = state}});
    const QImage image = Draw(p.list).copy(0, 0, 18, 60);
    int dark = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) dark += qGray(image.pixel(x, y)) < 100;
    return dark;
  };
  EXPECT_GT(ink(1), ink(0));
  EXPECT_EQ(ink(-1), ink(0));
}

TEST(ListView, AColumnKeepsToItsLimitsAndAHiddenOneTakesNoRoom) {
  PicturedList p;
  TListColumn* name = p.list.Get(TListView::Columns)->Column(0);
  name->Set(TListColumn::MaxWidth, 80);
  EXPECT_EQ(name->ShownWidth(), 80);
  name->Set(TListColumn::MinWidth, 95);
  EXPECT_EQ(name->ShownWidth(), 95);
  p.list.Set(TListView::ViewStyle, TViewStyle::vsReport);
  const QImage shown = Draw(p.list);
  name->Set(TListColumn::Visible, false);
  EXPECT_TRUE(p.Place(Qt::red).isNull()) << "what is shown of an item belongs to the first column";
  EXPECT_NE(Draw(p.list), shown);
}

TEST(ListView, MarksAndGridLinesAreShownWhenAskedFor) {
  PicturedList p;
  p.list.Set(TListView::ViewStyle, TViewStyle::vsReport);
  const int at = p.Place(Qt::red).x();
  p.list.Set(TListView::Checkboxes, true);
  EXPECT_GT(p.Place(Qt::red).x(), at);
  const QImage plain = Draw(p.list);
  p.list.Set(TListView::GridLines, true);
  EXPECT_GT(Differences(plain, Draw(p.list), QRect(10, 120, 180, 20)), 100);
}

TEST(ListView, AListOfManyThousandsCostsWhatIsInSight) {
  TListView list(nullptr);
  QList<TListViewItem> items(20000, {.Caption = QStringLiteral("item & more")});
  list.Get(TListView::Items)->SetItems(items);
  for (const auto style :
       {TViewStyle::vsIcon, TViewStyle::vsSmallIcon, TViewStyle::vsList, TViewStyle::vsReport}) {
    list.Set(TListView::ViewStyle, style);
    EXPECT_FALSE(Draw(list).isNull());
  }
}

namespace {
struct Tree {
  TForm form{nullptr};
  TImageList images{&form};
  TTreeView tree{&form};
  Tree() {
    tree.SetParent(&form);
    images.Set(TImageList::Width, 12);
    images.Set(TImageList::Height, 10);
    images.SetPictures({Solid({12, 10}, Qt::red), Solid({12, 10}, Qt::green), Solid({12, 10}, Qt::blue)});
    tree.Set(TTreeView::Images, &images);
    tree.SetBounds(0, 0, 180, 120);
    Open(true);
  }
  void Open(bool open) {
    TTreeNode root{.Text = QStringLiteral("root"), .ImageIndex = 0, .Expanded = open};
    root.Children = {{.Text = QStringLiteral("child"), .ImageIndex = 1}};
    tree.Get(TTreeView::Items)->SetNodes({});
    form.Set(TForm::LCLVersion, QStringLiteral("2"));  // nodes of that family tell whether they are open
    tree.Get(TTreeView::Items)->SetNodes({root, {.Text = QStringLiteral("last"), .ImageIndex = 2}});
  }
  QPoint Place(QColor color) {
    const QImage image = Draw(tree);
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y) == color) return {x, y};
    return {};
  }
};
}  // namespace

TEST(TreeView, ChildrenStandBelowAndToTheRightOfTheirParent) {
  Tree t;
  const QPoint root = t.Place(Qt::red), child = t.Place(Qt::green), last = t.Place(Qt::blue);
  EXPECT_EQ(child.x(), root.x() + 19);
  EXPECT_GT(child.y(), root.y());
  EXPECT_GT(last.y(), child.y());
  EXPECT_EQ(last.x(), root.x());
  t.tree.Set(TTreeView::Indent, 31);
  EXPECT_EQ(t.Place(Qt::green).x(), t.Place(Qt::red).x() + 31);
}

TEST(TreeView, AClosedNodeHidesItsChildren) {
  Tree t;
  const int lastAt = t.Place(Qt::blue).y();
  t.Open(false);
  EXPECT_TRUE(t.Place(Qt::green).isNull());
  EXPECT_LT(t.Place(Qt::blue).y(), lastAt);
}

TEST(TreeView, LinesButtonsAndRootLinesAreShownWhenAskedFor) {
  Tree t;
  QImage before = Draw(t.tree);
  t.tree.Set(TTreeView::ShowButtons, false);
  EXPECT_NE(Draw(t.tree), before);
  before = Draw(t.tree);
  t.tree.Set(TTreeView::ShowLines, false);
  EXPECT_NE(Draw(t.tree), before);
  const int at = t.Place(Qt::red).x();
  t.tree.Set(TTreeView::ShowRoot, false);
  EXPECT_LT(t.Place(Qt::red).x(), at);
}

TEST(Grid, CellsStandWhereTheFormKeepsThem) {
  TStringGrid grid(nullptr);
  grid.SetCell(2, 1, QStringLiteral("two one"));
  grid.SetCell(0, 3, QStringLiteral("zero three"));
  EXPECT_EQ(grid.Cell(2, 1), QStringLiteral("two one"));
  EXPECT_EQ(grid.Cell(1, 2), QString());
  const auto& kept = grid.Get(TStringGrid::Cells)->Items();
  EXPECT_EQ(kept, (std::vector<TValueList::TItem>{std::int64_t{2}, std::int64_t{2}, std::int64_t{1},
                                                  QStringLiteral("two one"), std::int64_t{0}, std::int64_t{3},
                                                  QStringLiteral("zero three")}));
  grid.SetCell(2, 1, {});
  EXPECT_EQ(grid.Get(TStringGrid::Cells)->Items().size(), 4u);
  grid.SetCell(0, 3, {});
  EXPECT_TRUE(grid.Get(TStringGrid::Cells)->Items().empty());
}

TEST(Grid, WidthsAndHeightsAreThoseOfTheFormOrTheDefault) {
  TDrawGrid grid(nullptr);
  EXPECT_EQ(grid.ColWidth(1), 64);
  EXPECT_EQ(grid.RowHeight(1), 24);
  grid.Get(TDrawGrid::ColWidths)->SetItems({std::int64_t{30}, std::int64_t{41}});
  grid.Get(TDrawGrid::RowHeights)->SetItems({std::int64_t{17}});
  EXPECT_EQ(grid.ColWidth(0), 30);
  EXPECT_EQ(grid.ColWidth(1), 41);
  EXPECT_EQ(grid.ColWidth(2), 64);
  EXPECT_EQ(grid.RowHeight(0), 17);
  EXPECT_EQ(grid.RowHeight(1), 24);
  grid.SetColor(clYellow);
  grid.Set(TDrawGrid::FixedColor, clAqua);
  const QImage image = Draw(grid);
  EXPECT_EQ(image.pixelColor(2 + 10, 2 + 50), QColor(Qt::cyan)) << "a fixed column";
  EXPECT_EQ(image.pixelColor(2 + 35, 2 + 8), QColor(Qt::cyan)) << "a fixed row";
  EXPECT_EQ(image.pixelColor(2 + 35, 2 + 25), QColor(Qt::yellow));
}

TEST(Grid, FixedCellsAndOthersHaveTheLinesThatTheOptionsAskFor) {
  using enum TGridOption;
  TDrawGrid grid(nullptr);
  grid.SetColor(clYellow);
  grid.Set(TDrawGrid::FixedColor, clAqua);
  const auto lines = [&](TGridOptions options) {
    grid.Set(TDrawGrid::Options, options);
    const QImage image = Draw(grid);
    const auto line = [&](int x, int y) {
      const QColor at = image.pixelColor(x, y);
      return at != QColor(Qt::yellow) && at != QColor(Qt::cyan);
    };
    // Right of and below a fixed cell, right of and below another one.
    const int in = 2, wide = 65, high = 25;
    return std::array{line(in + wide - 1, in + 10), line(in + 10, in + high - 1),
                      line(in + 2 * wide - 1, in + high + 10), line(in + wide + 10, in + 2 * high - 1)};
  };
  EXPECT_EQ(lines({goFixedVertLine}), (std::array{true, false, false, false}));
  EXPECT_EQ(lines({goFixedHorzLine}), (std::array{false, true, false, false}));
  EXPECT_EQ(lines({goVertLine}), (std::array{false, false, true, false}));
  EXPECT_EQ(lines({goHorzLine}), (std::array{false, false, false, true}));
}

TEST(Grid, DescribedColumnsStandBehindTheFixedOnesWithTheirTitles) {
  TStringGrid grid(nullptr);
  auto* column = static_cast<TGridColumn*>(grid.Get(TStringGrid::Columns)->Add());
  column->Set(TGridColumn::Width, 77);
  column->Get(TGridColumn::Title)->Set(TGridColumnTitle::Caption, QStringLiteral("Title"));
  EXPECT_EQ(grid.ShownCols(), 2);
  EXPECT_EQ(grid.ColWidth(1), 77);
  EXPECT_EQ(grid.CellText(1, 0), QStringLiteral("Title"));
  EXPECT_EQ(grid.CellText(1, 1), QString());
  column->Set(TGridColumn::Visible, false);
  EXPECT_EQ(grid.ShownCols(), 5);
}

TEST(Grid, AValueListShowsNamesAndValues) {
  TValueListEditor editor(nullptr);
  EXPECT_EQ(editor.CellText(0, 0), QStringLiteral("Key"));
  editor.Get(TValueListEditor::TitleCaptions)->SetLines({QStringLiteral("N"), QStringLiteral("V")});
  editor.Get(TValueListEditor::Strings)->SetLines({QStringLiteral("a=b=c"), QStringLiteral("alone")});
  EXPECT_EQ(editor.CellText(1, 0), QStringLiteral("V"));
  EXPECT_EQ(editor.CellText(0, 1), QStringLiteral("a"));
  EXPECT_EQ(editor.CellText(1, 1), QStringLiteral("b=c"));
  EXPECT_EQ(editor.CellText(0, 2), QStringLiteral("alone"));
  EXPECT_EQ(editor.ShownRows(), 3);
  EXPECT_EQ(editor.ColWidth(0), 150);
  EXPECT_EQ(editor.ColWidth(1), 306 - 150 - 6);
}

TEST(ColorBox, ShowsTheChosenColor) {
  TColorBox box(nullptr);
  box.Set(TColorBox::Selected, TColor(0x00CC6633));
  EXPECT_GT(CountPixels(Draw(box), QColor(0x33, 0x66, 0xCC)), 50);
  box.Set(TColorBox::Selected, clNone);
  box.Set(TColorBox::NoneColorColor, TColor(0x00224466));
  EXPECT_GT(CountPixels(Draw(box), QColor(0x66, 0x44, 0x22)), 50);
}

TEST(ColorBox, OffersWhatItsStyleSays) {
  using enum TColorBoxStyles;
  const auto offered = OfferedColors({cbStandardColors, cbPrettyNames});
  EXPECT_EQ(offered.size(), 16u);
  EXPECT_EQ(offered.front().text, QStringLiteral("Black"));
  EXPECT_EQ(OfferedColors({cbExtendedColors}).size(), 4u);
  const auto rest = OfferedColors({cbCustomColor, cbIncludeNone, cbIncludeDefault});
  ASSERT_EQ(rest.size(), 3u);
  EXPECT_EQ(rest[0].text, QStringLiteral("Custom..."));
  EXPECT_EQ(rest[1].color, clNone);
}

TEST(LinkLabel, TellsLinksFromText) {
  TLinkLabel label(nullptr);
  label.SetCaption(QStringLiteral("see <a href=\"x\">here</a> & <b>there"));
  std::vector<std::pair<QString, bool>> pieces;
  for (const auto& p : label.Pieces()) pieces.emplace_back(p.text, p.link);
  EXPECT_EQ(pieces, (std::vector<std::pair<QString, bool>>{{QStringLiteral("see "), false},
                                                           {QStringLiteral("here"), true},
                                                           {QStringLiteral(" & "), false},
                                                           {QStringLiteral("<b>"), false},
                                                           {QStringLiteral("there"), false}}));
}
