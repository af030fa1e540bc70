// Placing components, and the structure pane.
#include "tests/designer/DesignerTest.h"

using namespace designer;

namespace {
// Not valid when the tree does not show it.
QModelIndex ItemOf(QTreeView& tree, const QString& text) {
  const auto items = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, text, 1,
                                         Qt::MatchStartsWith | Qt::MatchRecursive);
  return items.value(0);
}
void ClickItem(QTreeView& tree, const QString& text, Qt::KeyboardModifiers keys = {}) {
  const QModelIndex item = ItemOf(tree, text);
  ASSERT_TRUE(item.isValid()) << text.toStdString();
  tree.scrollTo(item);
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, keys, tree.visualRect(item).center());
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
  EXPECT_EQ(
      pages.join(u'|'),
      QStringLiteral("Standard|Additional|Common Controls|System|Dialogs|Samples|VRX "
                     "Std|VRX Ext|VRX Cont|VRX Dlg|VRX Edit|VRX List|VRX Form|VRX MM|VRX Sys|VRX HTML"));
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
  QTreeView& tree = window_->Structure().Tree();
  EXPECT_EQ(tree.model()->rowCount(), 1);
  EXPECT_EQ(tree.model()->index(0, 0).data().toString(), QStringLiteral("Main: TMain"));
  EXPECT_EQ(ItemOf(tree, QStringLiteral("Inner")).parent(), ItemOf(tree, QStringLiteral("Panel1")));
  EXPECT_EQ(ItemOf(tree, QStringLiteral("Timer1")).data().toString(), QStringLiteral("Timer1: TTimer"));
}

TEST_F(DesignerTest, AClickInTheStructureSelectsOnTheForm) {
  QTreeView& tree = window_->Structure().Tree();
  ClickItem(tree, QStringLiteral("Inner"));
  EXPECT_EQ(Selected(), "Inner");
  ClickItem(tree, QStringLiteral("Led"), Qt::ControlModifier);
  EXPECT_EQ(Selected(), "Inner+Led");
}

TEST_F(DesignerTest, ASelectionOnTheFormShowsInTheStructure) {
  Click(At("Button1"));
  Click(At("Led"), Qt::ControlModifier);
  QStringList texts;
  for (const QModelIndex& item : window_->Structure().Tree().selectionModel()->selectedIndexes())
    texts << item.data().toString();
  texts.sort();
  EXPECT_EQ(texts.join(u'|'), QStringLiteral("Button1: TButton|Led: TVRXLEDLabel"));
}

TEST_F(DesignerTest, TheStructureFollowsNamesAndComponents) {
  QTreeView& tree = window_->Structure().Tree();
  Session().Rename(Get("Led"), QStringLiteral("Clock"));
  EXPECT_TRUE(ItemOf(tree, QStringLiteral("Clock: TVRXLEDLabel")).isValid());
  EXPECT_FALSE(ItemOf(tree, QStringLiteral("Led:")).isValid());
  Select("Panel1");
  Session().DeleteSelection();
  EXPECT_FALSE(ItemOf(tree, QStringLiteral("Inner")).isValid());
  Session().Undo();
  EXPECT_TRUE(ItemOf(tree, QStringLiteral("Inner")).isValid());
}

TEST_F(DesignerTest, TheStructureFilterHidesWhatDoesNotFit) {
  QTreeView& tree = window_->Structure().Tree();
  QTest::keyClicks(window_->Structure().findChild<QLineEdit*>(), QStringLiteral("inner"));
  EXPECT_TRUE(ItemOf(tree, QStringLiteral("Inner")).isValid());
  EXPECT_TRUE(ItemOf(tree, QStringLiteral("Panel1")).isValid());
  EXPECT_FALSE(ItemOf(tree, QStringLiteral("Button1")).isValid());
  EXPECT_FALSE(ItemOf(tree, QStringLiteral("Timer1")).isValid());
}

TEST_F(DesignerTest, EscapeEmptiesTheFilterOfTheStructure) {
  auto& filter = *window_->Structure().findChild<QLineEdit*>();
  QTest::keyClicks(&filter, QStringLiteral("inner"));
  QTest::keyClick(&filter, Qt::Key_Escape);
  EXPECT_EQ(filter.text(), QString());
}

TEST_F(DesignerTest, TheStructureTellsThatItsFilterHidesTheSelection) {
  const auto& hint = *window_->Structure().findChild<QLabel*>(QStringLiteral("hiddenSelection"));
  auto& filter = *window_->Structure().findChild<QLineEdit*>();
  Select("Button1");
  EXPECT_FALSE(hint.isVisible());
  QTest::keyClicks(&filter, QStringLiteral("inner"));
  EXPECT_TRUE(hint.isVisible());
  EXPECT_EQ(hint.text(), QStringLiteral("Button1 is selected, but the filter hides it."));
  Session().Select({&Get("Inner"), &Get("Led"), &Get("Button2")});
  EXPECT_TRUE(hint.text().startsWith(u'2')) << hint.text().toStdString();
  Select("Inner");
  EXPECT_FALSE(hint.isVisible());
  Select("Led");
  EXPECT_TRUE(hint.isVisible());
  QTreeView& tree = window_->Structure().Tree();
  tree.setCurrentIndex(ItemOf(tree, QStringLiteral("Inner")));
  EXPECT_EQ(Selected(), "Inner");
  EXPECT_FALSE(hint.isVisible());
  Select("Led");
  EXPECT_TRUE(hint.isVisible());
  filter.clear();
  EXPECT_FALSE(hint.isVisible());
  EXPECT_EQ(Selected(), "Led");
}

TEST_F(DesignerTest, TheStructureHasTheMenuOfTheSelectedComponent) {
  QTreeView& tree = window_->Structure().Tree();
  tree.setCurrentIndex(ItemOf(tree, QStringLiteral("Led")));
  QStringList entries;
  QTimer::singleShot(0, [&] {
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
      for (const QAction* action : menu->actions()) entries << action->text();
      menu->close();
    }
  });
  emit tree.customContextMenuRequested(tree.visualRect(tree.currentIndex()).center());
  EXPECT_TRUE(entries.contains(QStringLiteral("LED"))) << entries.join(u'|').toStdString();
}

TEST_F(DesignerTest, TheStructureKeepsClosedWhatWasClosed) {
  QTreeView& tree = window_->Structure().Tree();
  tree.setExpanded(ItemOf(tree, QStringLiteral("Panel1")), false);
  Session().DeleteComponents({&Get("Timer1")});
  EXPECT_FALSE(tree.isExpanded(ItemOf(tree, QStringLiteral("Panel1"))));
  EXPECT_TRUE(tree.isExpanded(tree.model()->index(0, 0)));
  // A hit inside is shown all the same.
  QTest::keyClicks(window_->Structure().findChild<QLineEdit*>(), QStringLiteral("inner"));
  EXPECT_TRUE(tree.isExpanded(ItemOf(tree, QStringLiteral("Panel1"))));
}
