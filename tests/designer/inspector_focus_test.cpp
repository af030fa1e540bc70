// Where the focus and the current row of the inspector are, whatever happens to a value.
#include "tests/designer/InspectingTest.h"
#include "vcl/Theme.h"

using namespace designer;

// --- Refused values

TEST_F(Inspecting, ARefusedValueAndEnterKeepTheFocusInTheField) {
  Show("Button1", "Left");
  Type("wide");
  Press(Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_TRUE(Field().hasFocus());
  ExpectRefused("Left", "wide");
  EXPECT_TRUE(window_->Palette().Search().text().isEmpty());
  // The same keyboard goes on in the same place.
  Press(Qt::Key_End);
  for (int i = 0; i < 4; ++i) Press(Qt::Key_Backspace);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("248"));
  Press(Qt::Key_Return);
  EXPECT_EQ(Bounds("Button1").left(), 248);
  EXPECT_TRUE(Editor().Problem().isEmpty());
  ExpectOneCommand();
}

TEST_F(Inspecting, AClickOnAnotherValueComesBackToTheRefusedOne) {
  Show("Button1", "Left");
  Type("wide");
  Press(Qt::Key_Return);
  ClickValue("Top");
  ExpectRefused("Left", "wide");
  EXPECT_TRUE(Field().hasFocus());
  ExpectUntouched();
}

TEST_F(Inspecting, AClickOnAnotherNameComesBackToTheRefusedOne) {
  Show("Button1", "Left");
  Type("wide");
  ClickName("Caption");
  ExpectRefused("Left", "wide");
  Inspector().FocusValue();
  Press(Qt::Key_Escape);
  EXPECT_EQ(Field().text(), QStringLiteral("240"));
  ExpectUntouched();
}

TEST_F(Inspecting, AClickOnAnotherBoxTogglesNothingWhileAValueIsRefused) {
  Show("Button1", "Default");
  Type("perhaps");
  const QRect cell = View().visualRect(RowOf("Cancel").siblingAtColumn(1));
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, QPoint(cell.left() + 10, cell.center().y()));
  ExpectRefused("Default", "perhaps");
  ExpectUntouched();
}

TEST_F(Inspecting, TheListsKeysComeBackToTheRefusedRowToo) {
  Show("Button1", "Left");
  Type("wide");
  Press(Qt::Key_Return);
  View().setFocus();
  Press(Qt::Key_Down);
  ExpectRefused("Left", "wide");
  QTest::keyClicks(&View(), QStringLiteral("tag"));
  ExpectRefused("Left", "wide");
  ExpectUntouched();
}

TEST_F(Inspecting, AnotherPageWaitsForARefusedValue) {
  Show("Button1", "Left");
  Type("wide");
  auto* tabs = Inspector().findChild<QTabBar*>();
  tabs->setCurrentIndex(1);
  EXPECT_EQ(tabs->currentIndex(), 0);
  ExpectRefused("Left", "wide");
  ExpectUntouched();
}

TEST_F(Inspecting, SelectingAnotherComponentGivesARefusedValueUpAndSaysSo) {
  Show("Button1", "Left");
  Type("wide");
  Click(At("Button2"));
  EXPECT_EQ(Selected(), "Button2");
  EXPECT_EQ(Row(), "Left");
  EXPECT_EQ(Field().text(), QStringLiteral("336"));
  EXPECT_TRUE(Editor().Problem().isEmpty());
  EXPECT_TRUE(window_->statusBar()->currentMessage().contains(QStringLiteral("wide")))
      << window_->statusBar()->currentMessage().toStdString();
  ExpectUntouched();
}

TEST_F(Inspecting, ARefusedValueIsNotSavedOver) {
  Show("Button1", "Left");
  Type("wide");
  Action("save").trigger();
  ExpectRefused("Left", "wide");
  EXPECT_EQ(Read(file_), Sample);
}

// --- Leaving with something typed

TEST_F(Inspecting, AClickOnTheFormAppliesWhatWasTyped) {
  Show("Button1", "Caption");
  Type("Start");
  Click(At("Button2"));
  EXPECT_EQ(Caption("Button1"), QStringLiteral("Start"));
  EXPECT_EQ(Selected(), "Button2");
  EXPECT_EQ(Field().text(), QStringLiteral("Two"));
}

TEST_F(Inspecting, SavingTakesWhatWasTypedAlong) {
  Show("Button1", "Caption");
  Type("Start");
  Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(Read(file_).contains("Caption = 'Start'"));
  EXPECT_FALSE(window_->isWindowModified());
}

TEST_F(Inspecting, ChangesFromElsewhereLeaveTheTypingAlone) {
  Show("Button1", "Caption");
  Type("Sta");
  Session().Run(QStringLiteral("other"), {&Get("Button1")},
                [&] { dynamic_cast<TControl&>(Get("Button1")).SetCaption(QStringLiteral("Else")); });
  QTest::keyClicks(&Field(), QStringLiteral("rt"));
  EXPECT_EQ(Field().text(), QStringLiteral("Start"));
  Press(Qt::Key_Escape);
  EXPECT_EQ(Field().text(), QStringLiteral("Else"));
}

TEST_F(Inspecting, TypingSurvivesRowsThatAreMadeAnew) {
  Show("Button1", "Left");
  Type("wide");
  Press(Qt::Key_Return);
  Session().DeleteComponents({&Get("Timer1")});
  ExpectRefused("Left", "wide");
  EXPECT_TRUE(Field().hasFocus());
  PressUndo();
  EXPECT_EQ(Field().text(), QStringLiteral("240"));
}

// --- Tab

TEST_F(Inspecting, TabGoesToTheNextValueAndBack) {
  Show("Button1", "Left");
  const std::string next = RowBelow(1), second = RowBelow(2);
  Type("248");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Bounds("Button1").left(), 248);
  EXPECT_EQ(Row(), next);
  EXPECT_TRUE(Field().hasFocus());
  EXPECT_EQ(Field().selectedText(), Field().text());
  Press(Qt::Key_Tab);
  EXPECT_EQ(Row(), second);
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Row(), "Left");
  EXPECT_TRUE(Field().hasFocus());
  ExpectOneCommand();
}

TEST_F(Inspecting, TabNeverLeavesTheValues) {
  Show("Timer1", "Enabled");
  for (int i = 0; i < 30; ++i) {
    Press(Qt::Key_Tab);
    ASSERT_TRUE(Field().hasFocus()) << i;
  }
  EXPECT_EQ(RowBelow(1), "");
  for (int i = 0; i < 30; ++i) {
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_TRUE(Field().hasFocus()) << i;
  }
  EXPECT_EQ(RowBelow(-1), "");
  ExpectUntouched();
}

TEST_F(Inspecting, TabStepsOverCategories) {
  Inspector().Model().GroupByCategory(true);
  Select("Timer1");
  View().setCurrentIndex(Inspector().Model().index(0, 0));
  ASSERT_TRUE(View().currentIndex().data(InspectorModel::IsCategoryRole).toBool());
  View().setCurrentIndex(View().indexBelow(View().currentIndex()));
  Inspector().FocusValue();
  for (int i = 0; i < 10; ++i) {
    Press(Qt::Key_Tab);
    ASSERT_TRUE(Field().hasFocus()) << i;
    ASSERT_FALSE(View().currentIndex().data(InspectorModel::IsCategoryRole).toBool()) << i;
  }
}

TEST_F(Inspecting, TabWithARefusedValueStays) {
  Show("Button1", "Left");
  Type("wide");
  Press(Qt::Key_Tab);
  ExpectRefused("Left", "wide");
  EXPECT_TRUE(Field().hasFocus());
}

TEST_F(Inspecting, EscapeGoesToTheListAndTabFromThereOn) {
  Show("Button1", "Left");
  Type("1");
  Press(Qt::Key_Escape);
  EXPECT_TRUE(Field().hasFocus());  // the first one restores
  Press(Qt::Key_Escape);
  EXPECT_TRUE(View().hasFocus());
  EXPECT_EQ(Row(), "Left");
  Press(Qt::Key_Return);
  EXPECT_TRUE(Field().hasFocus());
  Press(Qt::Key_Escape);
  Press(Qt::Key_Tab);
  EXPECT_FALSE(Inspector().isAncestorOf(QApplication::focusWidget()));
  ExpectUntouched();
}

TEST_F(Inspecting, TabReachesTheListAndNotTheHiddenValue) {
  Select("Button1");
  Inspector().FilterField().setFocus();
  Press(Qt::Key_Tab);
  EXPECT_TRUE(View().hasFocus());
}

TEST_F(Inspecting, F11GoesToTheInspectorAndBack) {
  Select("Button1");
  Surface().setFocus();
  Press(Qt::Key_F11);
  EXPECT_TRUE(Field().hasFocus());
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Caption")));
  Type("Start");
  Press(Qt::Key_F11);
  EXPECT_TRUE(Surface().hasFocus());
  EXPECT_EQ(Caption("Button1"), QStringLiteral("Start"));
  ExpectOneCommand();
}

// --- Undo and redo from a value

TEST_F(Inspecting, UndoWithAnUnchangedTextUndoesTheFormsLastStep) {
  Select("Button1");
  Surface().setFocus();
  Key(Qt::Key_Right);
  Show("Button1", "Left");
  EXPECT_EQ(Field().text(), QStringLiteral("248"));
  PressUndo();
  EXPECT_EQ(Bounds("Button1").left(), 240);
  EXPECT_EQ(Field().text(), QStringLiteral("240"));
  EXPECT_TRUE(Field().hasFocus());
  EXPECT_EQ(Row(), "Left");
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Field().text(), QStringLiteral("248"));
  PressUndo();
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Field().text(), QStringLiteral("248"));
  EXPECT_TRUE(Field().hasFocus());
}

TEST_F(Inspecting, UndoRightAfterEnterTakesTheValueBack) {
  Show("Button1", "Caption");
  Type("Start");
  Press(Qt::Key_Return);
  ASSERT_EQ(Caption("Button1"), QStringLiteral("Start"));
  PressUndo();
  EXPECT_EQ(Caption("Button1"), QStringLiteral("One"));
  EXPECT_EQ(Field().text(), QStringLiteral("One"));
  EXPECT_EQ(Row(), "Caption");
  EXPECT_TRUE(Field().hasFocus());
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Field().text(), QStringLiteral("Start"));
  ExpectOneCommand();
}

TEST_F(Inspecting, UndoWithAChangedTextUndoesTheTyping) {
  Show("Button1", "Tag");
  Type("7");
  Press(Qt::Key_Return);
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Caption")));
  Type("Start");
  for (int i = 0; i < 10 && Editor().IsChanged(); ++i) PressUndo();
  EXPECT_EQ(Field().text(), QStringLiteral("One"));
  EXPECT_EQ(Get("Button1").Tag(), 7);
  // The typing comes back as well, and is not on the form yet.
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_NE(Field().text(), QStringLiteral("One"));
  EXPECT_EQ(Caption("Button1"), QStringLiteral("One"));
  Press(Qt::Key_Escape);
  PressUndo();
  EXPECT_EQ(Get("Button1").Tag(), 0);
  ExpectUntouched();
}

TEST_F(Inspecting, UndoOfARefusedTextRestoresTheValue) {
  Show("Button1", "Left");
  Type("wide");
  Press(Qt::Key_Return);
  for (int i = 0; i < 10 && Editor().IsChanged(); ++i) PressUndo();
  EXPECT_EQ(Field().text(), QStringLiteral("240"));
  EXPECT_TRUE(Editor().Problem().isEmpty());
  EXPECT_TRUE(Field().hasFocus());
  ExpectUntouched();
}

// --- Calm

TEST_F(Inspecting, AnEditKeepsRowScrollingAndOpenObjects) {
  Show("Led", "LED.VertSize");
  QScrollBar& bar = *View().verticalScrollBar();
  View().setFixedHeight(120);
  QCoreApplication::processEvents();
  View().scrollTo(View().currentIndex(), QAbstractItemView::PositionAtTop);
  const int at = bar.value();
  ASSERT_GT(at, 0);
  Type("15");
  Press(Qt::Key_Return);
  EXPECT_EQ(bar.value(), at);
  EXPECT_EQ(Row(), "LED.VertSize");
  Session().CreateComponent(TButton::StaticClass(), nullptr, QRect(8, 200, 40, 24));
  Session().Undo();
  Select("Led");
  EXPECT_EQ(bar.value(), at);
  EXPECT_EQ(Row(), "LED.VertSize");
  EXPECT_TRUE(View().isExpanded(RowOf("LED")));
  auto* tabs = Inspector().findChild<QTabBar*>();
  tabs->setCurrentIndex(1);
  tabs->setCurrentIndex(0);
  EXPECT_EQ(bar.value(), at);
}

TEST_F(Inspecting, EveryPageKeepsItsRow) {
  Show("Button1", "Caption");
  auto* tabs = Inspector().findChild<QTabBar*>();
  tabs->setCurrentIndex(1);
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("OnClick")));
  tabs->setCurrentIndex(0);
  EXPECT_EQ(Row(), "Caption");
  Select("Timer1");  // has no caption
  EXPECT_EQ(Row(), "");
  Select("Button2");
  EXPECT_EQ(Row(), "Caption");
  tabs->setCurrentIndex(1);
  EXPECT_EQ(Row(), "OnClick");
}

TEST_F(Inspecting, TheRowStaysWhenTheRowsAreGrouped) {
  Show("Led", "LED.HorzSize");
  QToolButton* grouped = nullptr;
  for (QToolButton* b : Inspector().findChildren<QToolButton*>())
    if (b->text() == QStringLiteral("Categories")) grouped = b;
  ASSERT_NE(grouped, nullptr);
  grouped->click();
  EXPECT_TRUE(QString::fromStdString(Row()).endsWith(QStringLiteral(".LED.HorzSize"))) << Row();
  grouped->click();
  EXPECT_EQ(Row(), "LED.HorzSize");
}

TEST_F(Inspecting, ClosingAnObjectMovesTheRowToIt) {
  Show("Led", "LED.HorzSize");
  View().setExpanded(RowOf("LED"), false);
  EXPECT_EQ(Row(), "LED");
  EXPECT_TRUE(Field().hasFocus());
  // The arrows open and close where nothing can be typed.
  Press(Qt::Key_Right);
  EXPECT_TRUE(View().isExpanded(RowOf("LED")));
  Press(Qt::Key_Left);
  EXPECT_FALSE(View().isExpanded(RowOf("LED")));
}

TEST_F(Inspecting, TheBoxOfComponentsFollowsSelectionAndNames) {
  auto& box = *Inspector().findChild<QComboBox*>(QStringLiteral("componentBox"));
  Select("Button2");
  EXPECT_EQ(box.currentText(), QStringLiteral("Button2: TButton"));
  const int count = box.count();
  Session().Select({&Get("Button1"), &Get("Led")});
  EXPECT_EQ(box.currentIndex(), -1);
  EXPECT_EQ(box.placeholderText(), QStringLiteral("2 components"));
  Select("Led");
  EXPECT_EQ(box.currentText(), QStringLiteral("Led: TVRXLEDLabel"));
  EXPECT_EQ(box.count(), count);
  Session().Rename(Get("Led"), QStringLiteral("Clock"));
  EXPECT_EQ(box.currentText(), QStringLiteral("Clock: TVRXLEDLabel"));
  Session().DeleteSelection();
  EXPECT_EQ(box.count(), count - 1);
  EXPECT_LT(box.findText(QStringLiteral("Clock"), Qt::MatchStartsWith), 0);
}

// The row has the keys while its value is typed.
TEST_F(Inspecting, TheRowThatIsEditedHasTheAccent) {
  ApplyTheme(TTheme::Light);
  QCoreApplication::processEvents();
  const QPalette palette = ThemePalette(TTheme::Light);
  const auto ground = [&] {
    const QRect name = View().visualRect(RowOf("Caption").siblingAtColumn(0));
    return QColor(View().viewport()->grab().toImage().pixel(name.right() - 4, name.center().y()));
  };
  Show("Button1", "Caption");
  EXPECT_EQ(ground(), palette.color(QPalette::Active, QPalette::Highlight));
  Surface().setFocus();
  EXPECT_EQ(ground(), palette.color(QPalette::Inactive, QPalette::Highlight));
}
