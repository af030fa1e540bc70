// Placing components, and the structure pane.
#include "tests/designer/DesignerTest.h"

using namespace designer;

namespace {
QTreeWidgetItem* ItemOf(QTreeWidget& tree, const QString& text) {
  const auto items = tree.findItems(text, Qt::MatchStartsWith | Qt::MatchRecursive);
  return items.isEmpty() ? nullptr : items.front();
}
void ClickItem(QTreeWidget& tree, const QString& text, Qt::KeyboardModifiers keys = {}) {
  QTreeWidgetItem* item = ItemOf(tree, text);
  ASSERT_NE(item, nullptr) << text.toStdString();
  tree.scrollToItem(item);
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, keys, tree.visualItemRect(item).center());
}
}  // namespace

TEST_F(DesignerTest, AClickPlacesWithTheClasssOwnSize) {
  QTest::mouseClick(&ButtonOf(*window_, "TButton"), Qt::LeftButton);
  EXPECT_EQ(Surface().Tool(), &TButton::StaticClass());
  Click(FormPoint(243, 205));
  EXPECT_EQ(Bounds("Button3"), QRect(240, 208, 75, 25));
  EXPECT_EQ(Selected(), "Button3");
  EXPECT_EQ(Surface().Tool(), nullptr);
  ExpectOneCommand();
}

TEST_F(DesignerTest, ADrawnRectanglePlacesInThatSize) {
  QTest::mouseClick(&ButtonOf(*window_, "TPanel"), Qt::LeftButton);
  Drag(FormPoint(240, 160), FormPoint(240 + 95, 160 + 63));
  EXPECT_EQ(Bounds("Panel2"), QRect(240, 160, 96, 64));
  ExpectOneCommand();
}

TEST_F(DesignerTest, PlacingOnAPanelPlacesIntoIt) {
  QTest::mouseClick(&ButtonOf(*window_, "TButton"), Qt::LeftButton);
  Click(FormPoint(16 + 104, 16 + 80));
  EXPECT_EQ(Get("Button3").GetParentComponent(), &Get("Panel1"));
  EXPECT_EQ(Bounds("Button3").topLeft(), QPoint(104, 80));
  ExpectOneCommand();
}

TEST_F(DesignerTest, ATimerIsPlacedWhereTheClickWas) {
  QTest::mouseClick(&ButtonOf(*window_, "TTimer"), Qt::LeftButton);
  Click(FormPoint(160, 240));
  EXPECT_EQ(DesignPointOf(Get("Timer2").DesignInfo()).Left, 160);
  EXPECT_EQ(DesignPointOf(Get("Timer2").DesignInfo()).Top, 240);
  ExpectOneCommand();
}

TEST_F(DesignerTest, ThePaletteHasAPageForEveryRegisteredOne) {
  auto* tabs = window_->Palette().findChild<QTabBar*>();
  QStringList pages;
  for (int i = 0; i < tabs->count(); ++i) pages << tabs->tabText(i);
  EXPECT_EQ(pages.join(u'|'), QStringLiteral("Standard|System|VRX Ext|VRX MM"));
}

TEST_F(DesignerTest, ThePaletteSearchFindsOnEveryPage) {
  auto* search = window_->Palette().findChild<QLineEdit*>();
  QTest::keyClicks(search, QStringLiteral("led"));
  EXPECT_NE(window_->Palette().ButtonOf("TVRXLEDLabel"), nullptr);
  EXPECT_EQ(window_->Palette().ButtonOf("TButton"), nullptr);
  search->clear();
  QTest::keyClicks(search, QStringLiteral("ti"));
  EXPECT_NE(window_->Palette().ButtonOf("TTimer"), nullptr);
  search->clear();
  EXPECT_NE(window_->Palette().ButtonOf("TButton"), nullptr);
  EXPECT_EQ(window_->Palette().ButtonOf("TTimer"), nullptr);
}

TEST_F(DesignerTest, AHintTellsClassAndPage) {
  const QString hint = ButtonOf(*window_, "TVRXLEDLabel").toolTip();
  EXPECT_TRUE(hint.contains(QStringLiteral("TVRXLEDLabel")));
  EXPECT_TRUE(hint.contains(QStringLiteral("VRX Ext")));
}

TEST_F(DesignerTest, TheStructureShowsTheFormAsATree) {
  QTreeWidget& tree = window_->Structure().Tree();
  EXPECT_EQ(tree.topLevelItemCount(), 1);
  EXPECT_EQ(tree.topLevelItem(0)->text(0), QStringLiteral("Main: TMain"));
  EXPECT_EQ(ItemOf(tree, QStringLiteral("Inner"))->parent(), ItemOf(tree, QStringLiteral("Panel1")));
  EXPECT_EQ(ItemOf(tree, QStringLiteral("Timer1"))->text(0), QStringLiteral("Timer1: TTimer"));
}

TEST_F(DesignerTest, AClickInTheStructureSelectsOnTheForm) {
  QTreeWidget& tree = window_->Structure().Tree();
  ClickItem(tree, QStringLiteral("Inner"));
  EXPECT_EQ(Selected(), "Inner");
  ClickItem(tree, QStringLiteral("Led"), Qt::ControlModifier);
  EXPECT_EQ(Selected(), "Inner+Led");
}

TEST_F(DesignerTest, ASelectionOnTheFormShowsInTheStructure) {
  Click(At("Button1"));
  Click(At("Led"), Qt::ControlModifier);
  QStringList texts;
  for (const QTreeWidgetItem* item : window_->Structure().Tree().selectedItems()) texts << item->text(0);
  texts.sort();
  EXPECT_EQ(texts.join(u'|'), QStringLiteral("Button1: TButton|Led: TVRXLEDLabel"));
}

TEST_F(DesignerTest, TheStructureFollowsNamesAndComponents) {
  QTreeWidget& tree = window_->Structure().Tree();
  Session().Rename(Get("Led"), QStringLiteral("Clock"));
  EXPECT_NE(ItemOf(tree, QStringLiteral("Clock: TVRXLEDLabel")), nullptr);
  EXPECT_EQ(ItemOf(tree, QStringLiteral("Led:")), nullptr);
  Select("Panel1");
  Session().DeleteSelection();
  EXPECT_EQ(ItemOf(tree, QStringLiteral("Inner")), nullptr);
  Session().Undo();
  EXPECT_NE(ItemOf(tree, QStringLiteral("Inner")), nullptr);
}

TEST_F(DesignerTest, TheStructureFilterHidesWhatDoesNotFit) {
  QTreeWidget& tree = window_->Structure().Tree();
  QTest::keyClicks(window_->Structure().findChild<QLineEdit*>(), QStringLiteral("inner"));
  EXPECT_FALSE(ItemOf(tree, QStringLiteral("Inner"))->isHidden());
  EXPECT_FALSE(ItemOf(tree, QStringLiteral("Panel1"))->isHidden());
  EXPECT_TRUE(ItemOf(tree, QStringLiteral("Button1"))->isHidden());
  EXPECT_TRUE(ItemOf(tree, QStringLiteral("Timer1"))->isHidden());
}

TEST_F(DesignerTest, TheStructureKeepsClosedWhatWasClosed) {
  QTreeWidget& tree = window_->Structure().Tree();
  ItemOf(tree, QStringLiteral("Panel1"))->setExpanded(false);
  Session().DeleteComponents({&Get("Timer1")});
  EXPECT_FALSE(ItemOf(tree, QStringLiteral("Panel1"))->isExpanded());
  EXPECT_TRUE(tree.topLevelItem(0)->isExpanded());
  // A hit inside is shown all the same.
  QTest::keyClicks(window_->Structure().findChild<QLineEdit*>(), QStringLiteral("inner"));
  EXPECT_TRUE(ItemOf(tree, QStringLiteral("Panel1"))->isExpanded());
}
