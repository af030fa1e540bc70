// Editing values in the inspector.
#include "package/registration/VRX_RegMainEditors.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Clock.h"
#include "tests/designer/InspectingTest.h"

using namespace designer;

TEST_F(Inspecting, EnterAppliesAValueAndStays) {
  Show("Button1", "Caption");
  Type("Start");
  EXPECT_EQ(dynamic_cast<TControl&>(Get("Button1")).Caption(), QStringLiteral("One"));
  QTest::keyClick(&Field(), Qt::Key_Return);
  EXPECT_EQ(dynamic_cast<TControl&>(Get("Button1")).Caption(), QStringLiteral("Start"));
  EXPECT_EQ(Row(), "Caption");
  EXPECT_EQ(Field().text(), QStringLiteral("Start"));
  ExpectOneCommand();
}

TEST_F(Inspecting, EscapeRestoresTheValue) {
  Show("Button1", "Caption");
  Type("Start");
  QTest::keyClick(&Field(), Qt::Key_Escape);
  EXPECT_EQ(Field().text(), QStringLiteral("One"));
  QTest::keyClick(&Field(), Qt::Key_Return);
  ExpectUntouched();
}

TEST_F(Inspecting, ArrowsApplyAndMove) {
  Show("Button1", "Left");
  const QModelIndex below = Inspector().View().indexBelow(Inspector().View().currentIndex());
  const std::string next = below.data(InspectorModel::PathRole).toString().toStdString();
  Type("248");
  QTest::keyClick(&Field(), Qt::Key_Down);
  EXPECT_EQ(Bounds("Button1").left(), 248);
  EXPECT_EQ(Row(), next);
  QTest::keyClick(&Field(), Qt::Key_Up);
  EXPECT_EQ(Row(), "Left");
  ExpectOneCommand();
}

TEST_F(Inspecting, ARefusedValueStaysWithItsReason) {
  Show("Button1", "Left");
  Type("wide");
  QTest::keyClick(&Field(), Qt::Key_Return);
  EXPECT_EQ(Field().text(), QStringLiteral("wide"));
  EXPECT_TRUE(Editor().Problem().contains(QStringLiteral("wide"))) << Editor().Problem().toStdString();
  EXPECT_EQ(Row(), "Left");
  ExpectUntouched();
  QTest::keyClick(&Field(), Qt::Key_Down);
  EXPECT_EQ(Row(), "Left");
  EXPECT_FALSE(Editor().Problem().isEmpty());
  QTest::keyClick(&Field(), Qt::Key_Escape);
  EXPECT_TRUE(Editor().Problem().isEmpty());
  EXPECT_EQ(Field().text(), QStringLiteral("240"));
}

TEST_F(Inspecting, LeavingARowAppliesItsValue) {
  Show("Button1", "Tag");
  Type("12");
  Inspector().View().setCurrentIndex(Inspector().Model().IndexOfPath(QStringLiteral("Top")));
  EXPECT_EQ(Get("Button1").Tag(), 12);
  EXPECT_EQ(Row(), "Top");
}

TEST_F(Inspecting, LeavingARowWithARefusedValueComesBackToIt) {
  Show("Button1", "Left");
  Type("wide");
  Inspector().View().setCurrentIndex(Inspector().Model().IndexOfPath(QStringLiteral("Top")));
  ExpectRefused("Left", "wide");
  ExpectUntouched();
}

TEST_F(Inspecting, ALongTextIsShownWholeAndLeftAlone) {
  const QString text(400, u'x');
  Session().Run(QStringLiteral("long"), {&Get("Button1")},
                [&] { dynamic_cast<TControl&>(Get("Button1")).SetCaption(text); });
  const QByteArray bytes = Session().Bytes();
  Show("Button1", "Caption");
  EXPECT_EQ(Field().text(), text);
  Press(Qt::Key_Down);
  EXPECT_EQ(Session().Bytes(), bytes);
}

TEST_F(Inspecting, EnterOnDifferingValuesWithoutTypingChangesNothing) {
  Session().Select({&Get("Button1"), &Get("Button2")});
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Caption")));
  Inspector().FocusValue();
  Press(Qt::Key_Return);
  Press(Qt::Key_Down);
  ExpectUntouched();
}

TEST_F(Inspecting, EmptyingDifferingValuesReachesAll) {
  Session().Select({&Get("Button1"), &Get("Button2")});
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Caption")));
  Inspector().FocusValue();
  Type("x");
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Return);
  EXPECT_EQ(Caption("Button1"), QString());
  EXPECT_EQ(Caption("Button2"), QString());
  ExpectOneCommand();
}

TEST_F(Inspecting, ANameThatIsTakenIsRefused) {
  Show("Button1", "Name");
  Type("Button2");
  QTest::keyClick(&Field(), Qt::Key_Return);
  EXPECT_TRUE(Editor().Problem().contains(QStringLiteral("Button2")));
  ExpectUntouched();
}

TEST_F(Inspecting, ANewNameShowsEverywhere) {
  Show("Button1", "Name");
  Type("Starter");
  QTest::keyClick(&Field(), Qt::Key_Return);
  EXPECT_NE(Session().GetComponent(QStringLiteral("Starter")), nullptr);
  EXPECT_TRUE(Inspector()
                  .findChild<QComboBox*>(QStringLiteral("componentBox"))
                  ->currentText()
                  .startsWith(QStringLiteral("Starter")));
  ExpectOneCommand();
}

TEST_F(Inspecting, ADropDownChoiceIsApplied) {
  Show("Panel1", "BevelOuter");
  QTimer::singleShot(0, [] {
    auto* list = QApplication::activePopupWidget()->findChild<QListWidget*>();
    ASSERT_NE(list, nullptr);
    const auto items = list->findItems(QStringLiteral("bvLowered"), Qt::MatchExactly);
    ASSERT_EQ(items.size(), 1);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(items[0]).center());
  });
  QTest::mouseClick(Editor().DropButton(), Qt::LeftButton);
  EXPECT_EQ(dynamic_cast<TPanel&>(Get("Panel1")).Get(TPanel::BevelOuter), TBevelCut::bvLowered);
  ExpectOneCommand();
}

TEST_F(Inspecting, TheBoxOfABooleanTogglesIt) {
  Select("Button1");
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Default")));
  QTreeView& view = Inspector().View();
  const QRect cell = view.visualRect(view.currentIndex().siblingAtColumn(1));
  const QPoint box(cell.left() + 10, cell.center().y());
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, box);
  EXPECT_TRUE(dynamic_cast<TButton&>(Get("Button1")).Default());
  ExpectOneCommand();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, box);
  EXPECT_FALSE(dynamic_cast<TButton&>(Get("Button1")).Default());
}

TEST_F(Inspecting, TheEllipsisOpensTheLedDialogAndOkChangesTheForm) {
  Show("Led", "LED");
  EXPECT_TRUE(Editor().EllipsisButton()->isVisible());
  modal::NextOf<TVRXLEDEditorDlg>([](auto& dlg) {
    EXPECT_EQ(dlg.edhs->value(), 12);
    dlg.edhs->setValue(18);
    QTest::mouseClick(dlg.ok, Qt::LeftButton);
  });
  QTest::mouseClick(Editor().EllipsisButton(), Qt::LeftButton);
  EXPECT_TRUE(Session().Bytes().contains("LED.HorzSize = 18"));
  EXPECT_TRUE(window_->isWindowModified());
  ExpectOneCommand();
}

TEST_F(Inspecting, CancellingTheLedDialogChangesNothing) {
  Show("Led", "LED");
  modal::NextOf<TVRXLEDEditorDlg>([](auto& dlg) {
    dlg.edhs->setValue(18);
    QTest::mouseClick(dlg.Button1, Qt::LeftButton);
  });
  QTest::mouseClick(Editor().EllipsisButton(), Qt::LeftButton);
  ExpectUntouched();
  EXPECT_FALSE(window_->isWindowModified());
}

TEST_F(Inspecting, ASubPropertyIsEditedInItsOwnRow) {
  Show("Led", "LED.VertSize");
  Type("15");
  QTest::keyClick(&Field(), Qt::Key_Return);
  EXPECT_TRUE(Session().Bytes().contains("LED.VertSize = 15"));
  EXPECT_EQ(Row(), "LED.VertSize");
  ExpectOneCommand();
}

TEST_F(Inspecting, ADifferingValueIsEmptyAndWritingItReachesAll) {
  Session().Select({&Get("Button1"), &Get("Button2")});
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Caption")));
  Inspector().FocusValue();
  EXPECT_EQ(Field().text(), QString());
  Type("Both");
  QTest::keyClick(&Field(), Qt::Key_Return);
  for (const char* name : {"Button1", "Button2"})
    EXPECT_EQ(dynamic_cast<TControl&>(Get(name)).Caption(), QStringLiteral("Both"));
  ExpectOneCommand();
}

TEST_F(Inspecting, TheEventsPageOffersExistingHandlers) {
  Select("Button2");
  Inspector().findChild<QTabBar*>()->setCurrentIndex(1);
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("OnClick")));
  const QModelIndex row = Inspector().View().currentIndex().siblingAtColumn(0);
  EXPECT_EQ(Inspector().Model().ValueList(row).join(u' '), QStringLiteral("Button1Click"));
  Inspector().FocusValue();
  Type("Button1Click");
  QTest::keyClick(&Field(), Qt::Key_Return);
  EXPECT_EQ(Session().Bytes().count("OnClick = Button1Click"), 2);
  ExpectOneCommand();
}

TEST_F(Inspecting, TheFilterShowsMatchingRowsOnly) {
  Select("Button1");
  QTest::keyClicks(&Inspector().FilterField(), QStringLiteral("cap"));
  EXPECT_EQ(Inspector().Model().rowCount(), 1);
  EXPECT_EQ(Inspector().Model().index(0, 0).data().toString(), QStringLiteral("Caption"));
}

TEST_F(Inspecting, AFilterThatFitsNothingSaysSoAndCanBeCleared) {
  Select("Button1");
  auto& told = *Inspector().findChild<QLabel*>(QStringLiteral("nothingFits"));
  EXPECT_TRUE(told.isHidden());
  QTest::keyClicks(&Inspector().FilterField(), QStringLiteral("<zz>"));
  ASSERT_TRUE(told.isVisible());
  EXPECT_TRUE(told.text().startsWith(QStringLiteral("No property matches \"&lt;zz&gt;\".")))
      << told.text().toStdString();
  told.setFocus();
  QTest::keyClick(&told, Qt::Key_Tab);  // to the link
  Inspector().findChild<QTabBar*>()->setCurrentIndex(1);
  EXPECT_TRUE(told.text().startsWith(QStringLiteral("No event matches")));
  emit told.linkActivated(QStringLiteral("clear"));
  EXPECT_TRUE(told.isHidden());
  EXPECT_EQ(Inspector().FilterField().text(), QString());
  EXPECT_TRUE(Inspector().FilterField().hasFocus());
  EXPECT_GT(Inspector().Model().rowCount(), 0);
}

TEST_F(Inspecting, AnEmptyFilterLeavesUndoAndRedoToTheForm) {
  dynamic_cast<TControl&>(Get("Button1")).SetCaption(QStringLiteral("Other"));
  QCoreApplication::processEvents();
  ASSERT_TRUE(Session().CanUndo());
  Inspector().FilterField().setFocus();
  PressUndo();
  EXPECT_EQ(Caption("Button1"), QStringLiteral("One"));
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Caption("Button1"), QStringLiteral("Other"));
  QTest::keyClicks(&Inspector().FilterField(), QStringLiteral("cap"));
  PressUndo();
  EXPECT_EQ(Caption("Button1"), QStringLiteral("Other")) << "what is typed is undone first";
  EXPECT_EQ(Inspector().FilterField().text(), QString());
}

TEST_F(Inspecting, WhatOnlyADialogEditsCannotBeTyped) {
  VRX_RegMainEditors::Register();
  const TClass* const cls = FindClass("TVRXFormOpenDialog");
  ASSERT_NE(cls, nullptr);
  TComponent* const made = Session().CreateComponent(*cls, nullptr, {10, 10, 0, 0});
  Show(made->Name().toUtf8().constData(), "Filter");
  EXPECT_TRUE(Field().isReadOnly());
  EXPECT_TRUE(Editor().EllipsisButton()->isVisible());
  Show(made->Name().toUtf8().constData(), "Title");
  EXPECT_FALSE(Field().isReadOnly());
}

TEST_F(Inspecting, CtrlReturnOpensTheDialogFromTheNameToo) {
  Select("Led");
  for (const bool onName : {true, false}) {
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get(), WaitLimit));
    View().setCurrentIndex(RowOf("LED"));
    if (onName)
      View().setFocus();
    else
      Inspector().FocusValue();
    int opened = 0;
    modal::Next([&](QDialog& dialog) {
      ++opened;
      dialog.reject();
    });
    if (onName) {
      Press(Qt::Key_Return);
      ASSERT_EQ(opened, 0) << "alone it goes to the value";
      View().setFocus();
    }
    Press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(opened, 1);
  }
  window_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get(), WaitLimit));
  View().setCurrentIndex(RowOf("Left"));
  View().setFocus();
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_FALSE(Session().CanUndo());
}

TEST_F(Inspecting, TheFilterOpensTheObjectOfAHitAndClosesItWithTheText) {
  Select("Led");
  QLineEdit& filter = Inspector().FilterField();
  QTest::keyClicks(&filter, QStringLiteral("ActiveColor"));
  ASSERT_TRUE(RowOf("LED").isValid());
  EXPECT_TRUE(View().isExpanded(RowOf("LED")));
  EXPECT_FALSE(View().visualRect(RowOf("LED.ActiveColor")).isEmpty());
  filter.clear();
  ASSERT_TRUE(RowOf("Caption").isValid());
  EXPECT_FALSE(View().isExpanded(RowOf("LED")));
}

TEST_F(Inspecting, EnterInTheFilterEditsTheFirstHit) {
  Select("Led");
  Inspector().FilterField().setFocus();
  QTest::keyClicks(&Inspector().FilterField(), QStringLiteral("VertS"));
  Press(Qt::Key_Return);
  EXPECT_EQ(Row(), "LED.VertSize");
  EXPECT_TRUE(Field().hasFocus());
  Type("15");
  Press(Qt::Key_Return);
  EXPECT_TRUE(Session().Bytes().contains("LED.VertSize = 15"));
  EXPECT_EQ(Row(), "LED.VertSize");
  ExpectOneCommand();
}

TEST_F(Inspecting, TheRowComesBackWhenTheFilterGoes) {
  Show("Led", "Caption");
  QTest::keyClicks(&Inspector().FilterField(), QStringLiteral("HorzSize"));
  EXPECT_EQ(Row(), "");
  EXPECT_FALSE(Editor().isVisible());
  EXPECT_TRUE(View().hasFocus());  // not somewhere else in the window
  Inspector().FilterField().clear();
  EXPECT_EQ(Row(), "Caption");
  EXPECT_TRUE(Editor().isVisible());
}

TEST_F(Inspecting, TypingInTheNameColumnGoesToAProperty) {
  std::int64_t now = 5000;
  const TClockOverride clock([&] { return now; });
  Select("Button1");
  Inspector().View().setFocus();
  QTest::keyClicks(&Inspector().View(), QStringLiteral("t"));
  now += 1000;
  QTest::keyClicks(&Inspector().View(), QStringLiteral("ab"));
  EXPECT_EQ(Row(), "TabOrder");
  now += 1001;  // after a pause another name begins
  QTest::keyClicks(&Inspector().View(), QStringLiteral("cap"));
  EXPECT_EQ(Row(), "Caption");
}

TEST_F(Inspecting, ReturnOnTheFormGoesToTheInspector) {
  Select("Button1");
  Surface().setFocus();
  Key(Qt::Key_F11);
  EXPECT_TRUE(Field().hasFocus());
}
