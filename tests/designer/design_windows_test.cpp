// Windows beside the form, as a person meets them: where they open, what the keys do, what the panes show.
#include "DesignerTest.h"
#include "dclstd/ActionListWindow.h"
#include "dclstd/CollectionWindow.h"
#include "dclstd/MenuWindow.h"

using namespace designer;

namespace {
const QByteArray Form = R"(object Main: TMain
  ClientHeight = 300
  ClientWidth = 400
  object ListView1: TListView
    Left = 40
    Top = 20
    Width = 250
    Height = 150
    Columns = <
      item
        Caption = 'Name'
      end
      item
        Caption = 'Size'
        Width = 90
      end>
    TabOrder = 0
    ViewStyle = vsReport
  end
  object ActionList1: TActionList
    Left = 320
    Top = 20
  end
  object MainMenu1: TMainMenu
    Left = 320
    Top = 90
    object File1: TMenuItem
      Caption = 'File'
    end
    object Help1: TMenuItem
      Caption = 'Help'
    end
  end
end
)";

class DesignWindows : public DesignerTest {
 protected:
  DesignWindows() : DesignerTest(Form) {}
  template <class W>
  W& Open(const char* component) {
    Session().Edit(Get(component));
    for (ComponentWindow* window : ComponentWindow::All())
      if (auto* found = qobject_cast<W*>(window)) {
        // A tool window counts as active with the window it belongs to.
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == found; }, WaitLimit));
        return *found;
      }
    throw std::runtime_error("no window");
  }
  CollectionWindow& OpenColumns() { return Open<CollectionWindow>("ListView1"); }
  void PickColumn(CollectionWindow& window, int row) { window.items->setCurrentRow(row); }
  std::string Heading() {
    auto& box = *Inspector().findChild<QComboBox*>(QStringLiteral("componentBox"));
    return (box.currentIndex() < 0 ? box.placeholderText() : box.currentText()).toStdString();
  }
  bool StatusSays(const char* text) {
    const auto labels = window_->statusBar()->findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel* l) { return l->text() == QLatin1StringView(text); });
  }
  bool Inspects(const char* path) {
    return Inspector().Model().IndexOfPath(QLatin1StringView(path)).isValid();
  }
};
}  // namespace

TEST_F(DesignWindows, TheHeadingTellsWhichItemIsShown) {
  CollectionWindow& window = OpenColumns();
  PickColumn(window, 1);
  EXPECT_EQ(Heading(), "ListView1.Columns[1]: TListColumn");
  EXPECT_TRUE(StatusSays("ListView1.Columns[1]: TListColumn"));
  window.items->selectAll();
  EXPECT_EQ(Heading(), "2 items of ListView1");
  EXPECT_TRUE(StatusSays("2 items of ListView1"));
  window.items->clearSelection();
  EXPECT_EQ(Heading(), "ListView1: TListView");
  EXPECT_TRUE(StatusSays("ListView1: TListView"));
}

TEST_F(DesignWindows, AClosedCollectionWindowLeavesTheComponentSelected) {
  CollectionWindow& window = OpenColumns();
  PickColumn(window, 1);
  EXPECT_TRUE(Inspects("Caption"));
  window.close();
  EXPECT_TRUE(Inspects("ViewStyle"));
  EXPECT_EQ(Heading(), "ListView1: TListView");
  EXPECT_EQ(Selected(), "ListView1");
}

TEST_F(DesignWindows, ACollectionWindowThatClosesLaterChangesNoOtherSelection) {
  CollectionWindow& window = OpenColumns();
  PickColumn(window, 1);
  Select("ActionList1");
  window.close();
  EXPECT_EQ(Selected(), "ActionList1");
}

TEST_F(DesignWindows, AClickOnTheComponentShowsItInsteadOfItsItems) {
  CollectionWindow& window = OpenColumns();
  PickColumn(window, 0);
  Click(At("ListView1"));
  EXPECT_TRUE(Inspects("ViewStyle"));
  EXPECT_TRUE(window.items->selectedItems().isEmpty());
  PickColumn(window, 1);
  ASSERT_FALSE(Inspects("ViewStyle"));
  auto& tree = dynamic_cast<QTreeView&>(window_->findChild<StructurePane*>()->Tree());
  const QModelIndex row = tree.selectionModel()->selectedIndexes().value(0);
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(row).center());
  EXPECT_TRUE(Inspects("ViewStyle"));
  EXPECT_EQ(Heading(), "ListView1: TListView");
}

TEST_F(DesignWindows, KeysReachTheListAtOnce) {
  const CollectionWindow& columns = OpenColumns();
  EXPECT_EQ(QApplication::focusWidget(), columns.items);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Insert);
  EXPECT_EQ(columns.items->count(), 3);
  const ActionListWindow& actions = Open<ActionListWindow>("ActionList1");
  EXPECT_EQ(QApplication::focusWidget(), actions.actions);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Insert);
  EXPECT_EQ(actions.actions->count(), 1);
}

TEST_F(DesignWindows, F11GoesFromThereToTheInspectorsValue) {
  const auto comesTo = [](const QWidget* widget) {
    return QTest::qWaitFor([&] { return QApplication::focusWidget() == widget; }, WaitLimit);
  };
  ActionListWindow& window = Open<ActionListWindow>("ActionList1");
  QTest::keyClick(window.actions, Qt::Key_F11);
  EXPECT_TRUE(comesTo(Editor().Field()));
  EXPECT_EQ(QApplication::activeWindow(), window_.get());
  QTest::keyClick(Editor().Field(), Qt::Key_F11);
  EXPECT_TRUE(comesTo(&Surface()));
}

TEST_F(DesignWindows, TheyStandOnTheScreenAndClearOfTheInspector) {
  QList<QRect> places;
  const auto expectClear = [&](const ComponentWindow& window) {
    const QRect place = window.frameGeometry();
    EXPECT_TRUE(window.screen()->availableGeometry().contains(place));
    for (const QWidget* pane :
         std::initializer_list<QWidget*>{&Inspector(), window_->findChild<StructurePane*>()})
      EXPECT_FALSE(QRect(pane->mapToGlobal(QPoint()), pane->size()).intersects(place))
          << window.windowTitle().toStdString();
    places << place;
  };
  expectClear(OpenColumns());
  expectClear(Open<ActionListWindow>("ActionList1"));
  EXPECT_NE(places[0].topLeft(), places[1].topLeft());
  ComponentWindow& moved = OpenColumns();
  moved.move(moved.pos() + QPoint(7, 5));
  const QPoint left = moved.pos();
  EXPECT_EQ(OpenColumns().pos(), left) << "a window that is open already stays where it is";
}

TEST_F(DesignWindows, AMenuOpensOnItsFirstItemOrOnTheSelectedOne) {
  MenuWindow& window = Open<MenuWindow>("MainMenu1");
  EXPECT_EQ(window.Current().Item, &Get("File1"));
  EXPECT_EQ(Selected(), "File1");
  EXPECT_FALSE(Session().CanUndo());
  window.close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Select("Help1");
  EXPECT_EQ(Open<MenuWindow>("MainMenu1").Current().Item, &Get("Help1"));
}

TEST_F(DesignWindows, EscapeClosesThem) {
  const QPointer<CollectionWindow> columns = &OpenColumns();
  PickColumn(*columns, 1);
  const QPointer<ActionListWindow> actions = &Open<ActionListWindow>("ActionList1");
  QTest::keyClick(actions->actions, Qt::Key_Escape, Qt::ShiftModifier);
  EXPECT_TRUE(actions->isVisible());
  QTest::keyClick(actions->actions, Qt::Key_Escape);
  QTest::keyClick(columns->items, Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(actions.isNull());
  EXPECT_TRUE(columns.isNull());
  ExpectUntouched();
}
