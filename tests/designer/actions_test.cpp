// The actions of the table in the window: menus, keys, the clipboard, dropping on another container.
#include "ide/operations/Actions.h"
#include "tests/designer/DesignerTest.h"

using namespace designer;

namespace {
class Actions : public DesignerTest {
 protected:
  void SetUp() override {
    DesignerTest::SetUp();
    QGuiApplication::clipboard()->clear();
  }
  void SelectAll(std::initializer_list<const char*> names) {
    std::vector<TComponent*> all;
    for (const char* n : names) all.push_back(&Get(n));
    Session().Select(all);
  }
  static QString Board() { return QGuiApplication::clipboard()->text(); }
};
}  // namespace

TEST_F(Actions, EveryRowIsInAMenu) {
  QSet<QAction*> shown;
  const std::function<void(const QMenu&)> walk = [&](const QMenu& menu) {
    for (QAction* a : menu.actions()) {
      shown << a;
      if (a->menu()) walk(*a->menu());
    }
  };
  for (QAction* top : window_->menuBar()->actions()) walk(*top->menu());
  for (const ActionRow& row : ActionTable()) {
    EXPECT_TRUE(shown.contains(&Action(row.id))) << row.id;
    EXPECT_FALSE(Action(row.id).icon().isNull()) << row.id;
  }
}

TEST_F(Actions, WhatCannotBeDoneIsGreyAndSaysWhy) {
  Session().Select({});
  EXPECT_FALSE(Action("copy").isEnabled());
  EXPECT_EQ(Action("copy").statusTip(),
            QStringLiteral("Select a component: this cannot be done to the form itself."));
  EXPECT_TRUE(Action("paste").isEnabled());
  Select("Button1");
  EXPECT_TRUE(Action("copy").isEnabled());
  EXPECT_EQ(Action("copy").statusTip(), QString());
  EXPECT_FALSE(Action("alignLeft").isEnabled());
  SelectAll({"Button1", "Button2"});
  EXPECT_TRUE(Action("alignLeft").isEnabled());
  EXPECT_FALSE(Action("spaceVertically").isEnabled());
}

TEST_F(Actions, TheKeysWorkOnTheForm) {
  Select("Button1");
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(Board().startsWith(QStringLiteral("object Button1: TButton")));
  ExpectUntouched();
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Selected(), "Button3");
  EXPECT_EQ(Bounds("Button3"), QRect(248, 24, 80, 24));
  ExpectOneCommand();
  Key(Qt::Key_Z, Qt::ControlModifier);
  Select("Button2");
  Key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Bounds("Button3"), QRect(344, 24, 80, 24));
  ExpectOneCommand();
  Key(Qt::Key_Z, Qt::ControlModifier);
  Select("Led");
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_FALSE(Session().GetComponent(QStringLiteral("Led")));
  EXPECT_TRUE(Board().contains(QStringLiteral("LED.HorzSize = 12")));
  ExpectOneCommand();
  Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Selected(), "Panel1+Inner+Button1+Button2+Led+Timer1");
}

TEST_F(Actions, TextFieldsKeepTheirKeys) {
  Select("Button1");
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Caption")));
  Inspector().FocusValue();
  QLineEdit& field = *Editor().Field();
  ASSERT_TRUE(field.hasFocus());
  field.selectAll();
  QTest::keyClick(&field, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Board(), QStringLiteral("One"));
  QTest::keyClick(&field, Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(field.text(), QString());
  QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(field.text(), QStringLiteral("One"));
  QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(field.selectedText(), QStringLiteral("One"));
  QTest::keyClick(&field, Qt::Key_D, Qt::ControlModifier);
  QTest::keyClick(&field, Qt::Key_Delete);
  EXPECT_EQ(field.text(), QString());
  EXPECT_EQ(Selected(), "Button1");
  QTest::keyClick(&field, Qt::Key_Escape);
  ExpectUntouched();
  window_->Palette().Search().setFocus();
  QTest::keyClick(&window_->Palette().Search(), Qt::Key_Delete);
  QTest::keyClick(&Inspector().View(), Qt::Key_Delete);
  ExpectUntouched();
}

TEST_F(Actions, WhatIsTypedIsTakenFirst) {
  Select("Button1");
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Caption")));
  Inspector().FocusValue();
  Editor().Field()->selectAll();
  QTest::keyClicks(Editor().Field(), QStringLiteral("Typed"));
  Action("copy").trigger();
  EXPECT_TRUE(Board().contains(QStringLiteral("Caption = 'Typed'"))) << Board().toStdString();
}

TEST_F(Actions, NothingIsDoneWhileSomethingIsDragged) {
  const QPoint from = At("Button1");
  Press(from);
  MoveTo(from + QPoint(40, 40));
  for (const ActionRow& row : ActionTable()) Action(row.id).trigger();
  Key(Qt::Key_Delete);
  EXPECT_TRUE(Session().IsLive());
  Release(from + QPoint(40, 40));
  EXPECT_EQ(Bounds("Button1"), QRect(280, 56, 80, 24));
  ExpectOneCommand();
}

TEST_F(Actions, TheClipboardsForeignTextIsToldWithItsLine) {
  QGuiApplication::clipboard()->setText(QStringLiteral("object A: TButton\n  Oops\nend\n"));
  Action("paste").trigger();
  ASSERT_EQ(prompts_.warnings.size(), 1);
  EXPECT_TRUE(prompts_.warnings[0].contains(QStringLiteral("line 3"), Qt::CaseInsensitive))
      << prompts_.warnings[0].toStdString();
  expectedWarnings_ = prompts_.warnings;
  ExpectUntouched();
}

// --- Containers

TEST_F(Actions, WhatIsDroppedOnAContainerMovesThereAndStaysWhereItIsSeen) {
  const QPoint to = FormPoint(100, 100);
  Drag(At("Button1"), to);
  auto& button = dynamic_cast<TControl&>(Get("Button1"));
  EXPECT_EQ(button.Parent(), &Get("Panel1"));
  EXPECT_EQ(Bounds("Button1"), QRect(64 - 16, 88 - 16, 80, 24));
  EXPECT_EQ(Session().UndoText(), QStringLiteral("Move to Panel1"));
  ExpectOneCommand();
}

TEST_F(Actions, WhatIsDroppedOutsideComesOut) {
  Drag(At("Inner"), FormPoint(300, 200));
  EXPECT_EQ(dynamic_cast<TControl&>(Get("Inner")).Parent(), &Session().Form());
  ExpectOneCommand();
}

TEST_F(Actions, OnItsOwnContainerAControlOnlyMoves) {
  Drag(At("Inner"), At("Inner") + QPoint(24, 16));
  EXPECT_EQ(dynamic_cast<TControl&>(Get("Inner")).Parent(), &Get("Panel1"));
  EXPECT_EQ(Bounds("Inner"), QRect(40, 64, 80, 24));
  EXPECT_EQ(Session().UndoText(), QStringLiteral("Move"));
  ExpectOneCommand();
}

TEST_F(Actions, EscapeTakesADragOverAContainerBack) {
  const QPoint near = FormPoint(150, 100), to = FormPoint(100, 100);
  Press(At("Button1"));
  MoveTo(near);
  MoveTo(to);
  EXPECT_TRUE(Session().IsLive());
  Key(Qt::Key_Escape);
  Release(to);
  EXPECT_EQ(dynamic_cast<TControl&>(Get("Button1")).Parent(), &Session().Form());
  ExpectUntouched();
}

TEST_F(Actions, AContainerDraggedOverItselfOnlyMoves) {
  Drag(FormPoint(30, 30), FormPoint(62, 46));
  EXPECT_EQ(Bounds("Panel1"), QRect(48, 32, 200, 120));
  EXPECT_EQ(Bounds("Inner"), QRect(16, 48, 80, 24));
  ExpectOneCommand();
}

TEST_F(Actions, WhatStandsInASelectedContainerGoesAlongOnce) {
  SelectAll({"Panel1", "Inner"});
  Drag(FormPoint(30, 30), FormPoint(62, 46));
  EXPECT_EQ(Bounds("Panel1"), QRect(48, 32, 200, 120));
  EXPECT_EQ(Bounds("Inner"), QRect(16, 48, 80, 24));
  Key(Qt::Key_Right);
  EXPECT_EQ(Bounds("Inner"), QRect(16, 48, 80, 24));
}

TEST_F(Actions, TheContainerThatWouldTakeItIsMarked) {
  const QPoint beside = FormPoint(230, 60), inside = FormPoint(100, 100);  // before the button moves
  const QPoint edge = FormPoint(100, 16) + QPoint(0, 1);                   // the top edge of the panel
  Press(At("Button1"));
  MoveTo(beside);
  const auto grab = [&] { return Surface().grab().toImage().convertToFormat(QImage::Format_RGB32); };
  const QRgb accent = Surface().palette().color(QPalette::Highlight).rgb();
  EXPECT_NE(grab().pixel(edge), accent);
  MoveTo(inside);
  EXPECT_EQ(grab().pixel(edge), accent);
  MoveTo(beside);
  EXPECT_NE(grab().pixel(edge), accent);
  Key(Qt::Key_Escape);
}

TEST_F(Actions, ARefusedContainerChangesNothingAndIsExplained) {
  QByteArray bytes = Sample;
  bytes.replace("object Button1", "inherited Button1").replace("object Main", "inherited Main");
  Write(file_, bytes);
  ASSERT_TRUE(window_->OpenForm(file_));
  QSignalSpy notices(&Surface(), &FormSurface::Notice);
  Drag(At("Button1"), FormPoint(100, 100));
  ASSERT_EQ(notices.size(), 1);
  EXPECT_TRUE(notices[0][0].toString().contains(QStringLiteral("Button1 comes from the ancestor form")));
  EXPECT_FALSE(Session().CanUndo());
  EXPECT_EQ(Session().Bytes(), bytes);
  EXPECT_EQ(Surface().cursor().shape(), Qt::ArrowCursor);
}
