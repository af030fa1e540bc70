// Finding commands by typing.
#include "designer/CommandPalette.h"
#include "designer/CommandSearch.h"
#include "designer/DesignerSettings.h"
#include "designer/SearchField.h"
#include "designer/WindowCommands.h"
#include "ide/operations/Actions.h"
#include "library_design/LookDialogs.h"
#include "tests/designer/DesignerTest.h"

using namespace designer;

namespace {
class Commands : public DesignerTest {
 protected:
  void SetUp() override {
    DesignerTest::SetUp();
    KeepDesignerSetting("RecentCommands", {});
  }
  CommandPalette& Open() {
    Action("commands").trigger();
    return *Shown();
  }
  CommandPalette* Shown() {
    for (auto* palette : window_->findChildren<CommandPalette*>())
      if (palette->isVisible()) return palette;
    return nullptr;
  }
  static void Type(CommandPalette& palette, const char* text) {
    QTest::keyClicks(&palette.Field(), QLatin1StringView(text));
  }
  static void Hit(CommandPalette& palette, Qt::Key key) {
    QTest::keyClick(&palette.Field(), key);
    QCoreApplication::processEvents();  // it runs when the palette is gone
  }
  static QStringList Titles(CommandPalette& palette) {
    QStringList titles;
    for (int row = 0; row < palette.List().model()->rowCount(); ++row)
      titles << palette.List().model()->index(row, 0).data().toString();
    return titles;
  }
  static QString Current(CommandPalette& palette) { return palette.List().currentIndex().data().toString(); }
  static QString NoteOf(CommandPalette& palette, const char* title) {
    const auto rows = palette.List().model()->match(palette.List().model()->index(0, 0), Qt::DisplayRole,
                                                    QLatin1StringView(title), 1, Qt::MatchExactly);
    return rows.isEmpty() ? QStringLiteral("no such row")
                          : rows[0].data(Qt::AccessibleDescriptionRole).toString();
  }
};
}  // namespace

TEST_F(Commands, EveryRowOfBothTablesIsThere) {
  const QStringList titles = Titles(Open());
  for (const ActionRow& row : ActionTable()) EXPECT_TRUE(titles.contains(row.Title())) << row.id;
  for (const WindowCommand& row : WindowCommandTable())
    EXPECT_EQ(titles.contains(row.Title()), row.menu != WindowMenu::Commands) << row.id;
  EXPECT_EQ(QSet<QString>(titles.begin(), titles.end()).size(), titles.size());
}

TEST_F(Commands, EveryRowOfTheWindowsTableIsInAMenuWithItsKeys) {
  QSet<QAction*> shown;
  const std::function<void(const QMenu&)> walk = [&](const QMenu& menu) {
    for (QAction* a : menu.actions()) {
      shown << a;
      if (a->menu()) walk(*a->menu());
    }
  };
  for (QAction* top : window_->menuBar()->actions()) walk(*top->menu());
  QSet<QKeySequence> keys;
  for (const WindowCommand& row : WindowCommandTable()) {
    EXPECT_TRUE(shown.contains(&Action(row.id))) << row.id;
    for (const QKeySequence& key : Action(row.id).shortcuts()) {
      EXPECT_FALSE(keys.contains(key)) << row.id;
      keys << key;
    }
  }
  EXPECT_TRUE(keys.contains(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P)));
}

TEST_F(Commands, ReturnRunsTheBestHitOnTheSelection) {
  Session().Select({&Get("Button1"), &Get("Led")});
  CommandPalette& palette = Open();
  Type(palette, "al to");
  EXPECT_EQ(Current(palette), QStringLiteral("Align: Top edges"));
  Hit(palette, Qt::Key_Return);
  EXPECT_EQ(Shown(), nullptr);
  EXPECT_EQ(Bounds("Led"), QRect(240, 16, 160, 40));
  ExpectOneCommand();
}

TEST_F(Commands, OfEqualHitsThoseThatCanBeDoneComeFirst) {
  Select("Button1");
  CommandPalette& palette = Open();
  Type(palette, "align");
  EXPECT_EQ(Current(palette), QStringLiteral("Align to grid"));
  EXPECT_TRUE(Titles(palette).contains(QStringLiteral("Align: Left edges")));
}

TEST_F(Commands, EscapeClosesAndRunsNothing) {
  Select("Button1");
  QTest::keyClick(&Surface(), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_NE(Shown(), nullptr);
  CommandPalette& palette = *Shown();
  Type(palette, "delete");
  Hit(palette, Qt::Key_Escape);
  EXPECT_EQ(Shown(), nullptr);
  ExpectUntouched();
  EXPECT_EQ(DesignerSetting("RecentCommands"), QString());
}

TEST_F(Commands, WhatCannotBeDoneStaysThereWithItsReason) {
  Session().Select({});
  CommandPalette& palette = Open();
  EXPECT_EQ(NoteOf(palette, "Copy"),
            QStringLiteral("Select a component: this cannot be done to the form itself."));
  EXPECT_EQ(NoteOf(palette, "Save"), QStringLiteral("There is nothing to save."));
  EXPECT_EQ(NoteOf(palette, "Zoom out"), QStringLiteral("Ctrl+-"));
  Type(palette, "duplicate");
  Hit(palette, Qt::Key_Return);
  EXPECT_EQ(Shown(), &palette);
  ExpectUntouched();
  EXPECT_EQ(DesignerSetting("RecentCommands"), QString());
}

TEST_F(Commands, TheArrowsWalkRoundAndPagesStopAtTheEnds) {
  CommandPalette& palette = Open();
  const QStringList titles = Titles(palette);
  EXPECT_EQ(Current(palette), titles.front());
  Hit(palette, Qt::Key_Up);
  EXPECT_EQ(Current(palette), titles.back());
  Hit(palette, Qt::Key_PageDown);
  EXPECT_EQ(Current(palette), titles.back());
  Hit(palette, Qt::Key_Down);
  Hit(palette, Qt::Key_Down);
  EXPECT_EQ(Current(palette), titles[1]);
  Hit(palette, Qt::Key_PageUp);
  EXPECT_EQ(Current(palette), titles[0]);
  Type(palette, "zzz nothing is called that");
  EXPECT_TRUE(Titles(palette).isEmpty());
  Hit(palette, Qt::Key_Down);
  Hit(palette, Qt::Key_Return);
  EXPECT_EQ(Shown(), &palette);
}

TEST_F(Commands, WhatWasUsedLastComesFirstTheNextTime) {
  for (const char* text : {"zoom in", "form colors designer", "zoom in"}) {
    CommandPalette& palette = Open();
    Type(palette, text);
    Hit(palette, Qt::Key_Return);
  }
  EXPECT_DOUBLE_EQ(window_->Zoom(), 1.25 * 1.25);
  CommandPalette& palette = Open();
  const QStringList titles = Titles(palette);
  EXPECT_EQ(titles[0], QStringLiteral("Zoom in"));
  EXPECT_EQ(titles[1], QStringLiteral("Form colors: As the designer"));
  Hit(palette, Qt::Key_Escape);
  Action("formLight").trigger();
}

TEST_F(Commands, TheVerbsOfTheSelectedComponentAreAmongThem) {
  Select("Led");
  CommandPalette& palette = Open();
  Type(palette, "led bev");
  EXPECT_EQ(Current(palette), QStringLiteral("Led: Bevel"));
  bool came = false;
  modal::NextOf<TVRXBevelEditorDlg>([&](TVRXBevelEditorDlg& dialog) {
    came = true;
    EXPECT_EQ(Shown(), nullptr);
    dialog.reject();
  });
  Hit(palette, Qt::Key_Return);
  EXPECT_TRUE(came);
  ExpectUntouched();
  Select("Button1");
  EXPECT_TRUE(Titles(Open()).filter(QStringLiteral("Led:")).isEmpty());
}

TEST_F(Commands, AClickRunsARow) {
  Select("Timer1");
  CommandPalette& palette = Open();
  Type(palette, "delete");
  QListView& list = palette.List();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(0, 0)).center());
  QCoreApplication::processEvents();
  EXPECT_FALSE(Session().GetComponent(QStringLiteral("Timer1")));
  ExpectOneCommand();
}

TEST_F(Commands, WhatIsTypedInTheInspectorIsTakenFirst) {
  Select("Button1");
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Caption")));
  Inspector().FocusValue();
  Editor().Field()->setText(QStringLiteral("typed"));
  Editor().Field()->setModified(true);
  window_->ShowCommands();
  Type(*Shown(), "duplicate");
  Hit(*Shown(), Qt::Key_Return);
  EXPECT_EQ(dynamic_cast<TControl&>(Get("Button3")).Caption(), QStringLiteral("typed"));
}

TEST_F(Commands, PanesAreShownAndHiddenAndTheirRowsSaySo) {
  EXPECT_TRUE(Action("inspectorPane").isChecked());
  Action("inspectorPane").trigger();
  EXPECT_FALSE(Inspector().isVisible());
  EXPECT_FALSE(Action("inspectorPane").isChecked());
  Action("inspectorPane").trigger();
  EXPECT_TRUE(Inspector().isVisible());
  EXPECT_TRUE(Action("inspectorPane").isChecked());
  EXPECT_TRUE(window_->Structure().isVisible());
}

TEST(CommandSearch, BeginningsOfWordsComeBeforeInsidesAndScatteredLetters) {
  const auto misfit = [](const char* title, const char* typed) {
    return Misfit(QLatin1StringView(title), QLatin1StringView(typed)).value_or(-1);
  };
  EXPECT_EQ(misfit("Align: Left edges", ""), 0);
  EXPECT_EQ(misfit("Align: Left edges", "ALIGN"), 0);
  EXPECT_EQ(misfit("Align: Left edges", "le"), 1);
  EXPECT_EQ(misfit("Align: Left edges", "ed al"), 2);
  EXPECT_GT(misfit("Align: Left edges", "eft"), 2);
  EXPECT_GT(misfit("Align: Left edges", "alft"), misfit("Align: Left edges", "eft"));
  EXPECT_GT(misfit("Align: Left edges", "agge"), misfit("Align: Left edges", "alft"));
  EXPECT_EQ(misfit("Align: Left edges", "left zoom"), -1);
  EXPECT_EQ(misfit("Align: Left edges", "tfel"), -1);
  // Wherever the inside is, and however late the word.
  EXPECT_LT(Misfit(QStringLiteral("a b c d e save"), QStringLiteral("save")),
            Misfit(QStringLiteral("Unsaved"), QStringLiteral("save")));
}
