// Mouse and keyboard on the form.
#include "ide/Unknown.h"
#include "tests/designer/DesignerTest.h"
#include "vcl/PageControl.h"

using namespace designer;

TEST_F(DesignerTest, AClickSelects) {
  EXPECT_EQ(Selected(), "Main");
  Click(At("Button1"));
  EXPECT_EQ(Selected(), "Button1");
  Click(At("Inner"));
  EXPECT_EQ(Selected(), "Inner");
  Click(At("Timer1"));
  EXPECT_EQ(Selected(), "Timer1");
  Click(FormPoint(400, 280));
  EXPECT_EQ(Selected(), "Main");
  ExpectUntouched();
}

TEST_F(DesignerTest, AClickWithControlOrShiftAddsAndTakesAway) {
  Click(At("Button1"));
  Click(At("Button2"), Qt::ControlModifier);
  EXPECT_EQ(Selected(), "Button1+Button2");
  Click(At("Led"), Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "Button1+Button2+Led");
  Click(At("Button1"), Qt::ControlModifier);
  EXPECT_EQ(Selected(), "Button2+Led");
}

TEST_F(DesignerTest, ARubberBandSelectsWhatItTouches) {
  Drag(FormPoint(230, 8), FormPoint(350, 30));
  EXPECT_EQ(Selected(), "Button1+Button2");
  Drag(FormPoint(8, 180), FormPoint(100, 260));
  EXPECT_EQ(Selected(), "Timer1");
  ExpectUntouched();
}

TEST_F(DesignerTest, ARubberBandAroundNothingSelectsTheForm) {
  Click(At("Led"));
  Drag(FormPoint(300, 200), FormPoint(400, 300));
  EXPECT_EQ(Selected(), "Main");
}

TEST_F(DesignerTest, ADragMovesAsOneCommand) {
  Drag(At("Button1"), At("Button1") + QPoint(32, 48));
  EXPECT_EQ(Bounds("Button1"), QRect(272, 64, 80, 24));
  EXPECT_EQ(Selected(), "Button1");
  ExpectOneCommand();
}

TEST_F(DesignerTest, ADragSnapsToTheGrid) {
  Drag(At("Button1"), At("Button1") + QPoint(13, 21));
  EXPECT_EQ(Bounds("Button1"), QRect(256, 40, 80, 24));
}

TEST_F(DesignerTest, ADragMovesEverythingSelected) {
  Click(At("Button1"));
  Click(At("Timer1"), Qt::ControlModifier);
  Click(At("Led"), Qt::ControlModifier);
  Drag(At("Led"), At("Led") + QPoint(16, 40));
  EXPECT_EQ(Bounds("Led"), QRect(256, 104, 160, 40));
  EXPECT_EQ(Bounds("Button1"), QRect(256, 56, 80, 24));
  EXPECT_EQ(DesignPointOf(Get("Timer1").DesignInfo()).Left, 56);
  EXPECT_EQ(DesignPointOf(Get("Timer1").DesignInfo()).Top, 240);
  ExpectOneCommand();
}

TEST_F(DesignerTest, EscapeUndoesADrag) {
  const QPoint from = At("Button1");
  Press(from);
  MoveTo(from + QPoint(60, 60));
  EXPECT_NE(Bounds("Button1"), QRect(240, 16, 80, 24));
  Key(Qt::Key_Escape);
  EXPECT_EQ(Bounds("Button1"), QRect(240, 16, 80, 24));
  MoveTo(from + QPoint(90, 90));
  Release(from + QPoint(90, 90));
  EXPECT_EQ(Bounds("Button1"), QRect(240, 16, 80, 24));
  EXPECT_EQ(Selected(), "Button1");
  ExpectUntouched();
}

TEST_F(DesignerTest, ATremblingClickMovesNothing) {
  Drag(At("Button1"), At("Button1") + QPoint(2, 2));
  ExpectUntouched();
}

TEST_F(DesignerTest, EveryHandleResizesItsSide) {
  const struct {
    QPoint handle, by;
    QRect result;
  } cases[] = {{{0, 0}, {-16, -8}, {224, 56, 176, 48}},  {{80, 0}, {0, -8}, {240, 56, 160, 48}},
               {{159, 0}, {16, -8}, {240, 56, 176, 48}}, {{159, 20}, {16, 0}, {240, 64, 176, 40}},
               {{159, 39}, {16, 8}, {240, 64, 176, 48}}, {{80, 39}, {0, 8}, {240, 64, 160, 48}},
               {{0, 39}, {-16, 8}, {224, 64, 176, 48}},  {{0, 20}, {-16, 0}, {224, 64, 176, 40}}};
  for (const auto& c : cases) {
    Select("Led");
    const QPoint from = Surface().WidgetRect(Get("Led")).topLeft() + c.handle;
    Drag(from, from + c.by);
    EXPECT_EQ(Bounds("Led"), c.result) << c.handle.x() << ' ' << c.handle.y();
    Session().Undo();
    ExpectUntouched();
  }
}

TEST_F(DesignerTest, TheFormGrowsAtItsRightAndBottom) {
  Select("Main");
  const QRect form = Surface().WidgetRect(Get("Main"));
  Drag(form.bottomRight(), form.bottomRight() + QPoint(32, 16));
  EXPECT_EQ(Session().Form().ClientWidth(), 512);
  EXPECT_GT(Session().Form().ClientHeight(), 320);
  ExpectOneCommand();
}

TEST_F(DesignerTest, EscapeDuringAResizeBringsTheChildrenBackToo) {
  Select("Panel1");
  const QPoint corner = Surface().WidgetRect(Get("Panel1")).bottomRight();
  Press(corner);
  MoveTo(corner - QPoint(190, 100));  // narrower than what is anchored inside
  Key(Qt::Key_Escape);
  Release(corner);
  EXPECT_EQ(Bounds("Panel1"), QRect(16, 16, 200, 120));
  EXPECT_EQ(Bounds("Inner"), QRect(16, 48, 80, 24));
  ExpectUntouched();
}

TEST_F(DesignerTest, AResizeThatWasSmallOnTheWayKeepsTheChildren) {
  Select("Panel1");
  const QPoint corner = Surface().WidgetRect(Get("Panel1")).bottomRight();
  Press(corner);
  MoveTo(corner - QPoint(190, 100));
  MoveTo(corner + QPoint(16, 0));
  Release(corner + QPoint(16, 0));
  EXPECT_EQ(Bounds("Panel1"), QRect(16, 16, 216, 120));
  EXPECT_EQ(Bounds("Inner"), QRect(16, 48, 96, 24));
  ExpectOneCommand();
  Session().Undo();
  EXPECT_EQ(Bounds("Inner"), QRect(16, 48, 80, 24));
}

TEST_F(DesignerTest, DeleteDoesNothingToWhatIsBeingDragged) {
  const QPoint from = At("Button1");
  Press(from);
  MoveTo(from + QPoint(40, 40));
  Key(Qt::Key_Delete);
  Action("delete").trigger();
  EXPECT_TRUE(Session().IsLive());
  ASSERT_TRUE(Session().GetComponent(QStringLiteral("Button1")));
  MoveTo(from + QPoint(80, 80));
  Release(from + QPoint(80, 80));
  EXPECT_EQ(Bounds("Button1"), QRect(320, 96, 80, 24));
  ExpectOneCommand();
}

// A design window may delete at any time.
TEST_F(DesignerTest, WhatGoesInMidDragTakesTheDragWithIt) {
  const QPoint from = At("Button1");
  Press(from);
  MoveTo(from + QPoint(40, 40));
  Session().DeleteComponents({&Get("Button1")});
  EXPECT_FALSE(Session().IsLive());
  EXPECT_FALSE(Session().GetComponent(QStringLiteral("Button1")));
  const QByteArray without = Session().Bytes();
  MoveTo(from + QPoint(80, 80));
  Release(from + QPoint(80, 80));
  EXPECT_EQ(Session().Bytes(), without);
  EXPECT_FALSE(Surface().IsDragging());
  ExpectOneCommand();
  Session().Undo();
  EXPECT_EQ(Bounds("Button1"), QRect(240, 16, 80, 24));
}

TEST_F(DesignerTest, ASurfaceHearsNothingOfAFormItNoLongerShows) {
  const auto other = FormSession::FromBytes(Sample, {}, registry_);
  FormSurface surface;
  surface.SetSession(&Session());
  surface.SetSession(other.get());
  surface.resize(surface.sizeHint());
  const QImage before = surface.grab().toImage();
  const QSize size = surface.sizeHint();
  Select("Led");
  Session().Run(QStringLiteral("larger"), {}, [&] {
    Session().Form().SetClientWidth(900);
    Get("Button1").SetTag(7);
  });
  Session().DeleteSelection();
  EXPECT_EQ(surface.sizeHint(), size);
  EXPECT_EQ(surface.grab().toImage(), before);
}

TEST_F(DesignerTest, ASurfaceWhoseFormIsClosedIsEmpty) {
  auto other = FormSession::FromBytes(Sample, {}, registry_);
  FormSurface surface;
  surface.SetSession(other.get());
  surface.resize(surface.sizeHint());
  surface.grab();
  other.reset();
  surface.grab();
  QTest::mouseClick(&surface, Qt::LeftButton, {}, QPoint(60, 60));
  QTest::keyClick(&surface, Qt::Key_Right);
  EXPECT_EQ(surface.ComponentAt(QPoint(60, 60)), nullptr);
  surface.SetSession(&Session());
  EXPECT_EQ(surface.ComponentAt(surface.WidgetRect(Get("Button1")).center()), &Get("Button1"));
}

TEST_F(DesignerTest, ArrowsMoveByTheGridAndWithControlByAPixel) {
  Select("Button1");
  Key(Qt::Key_Right);
  Key(Qt::Key_Down);
  EXPECT_EQ(Bounds("Button1"), QRect(248, 24, 80, 24));
  Key(Qt::Key_Left, Qt::ControlModifier);
  Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(Bounds("Button1"), QRect(247, 23, 80, 24));
  for (int i = 0; i < 4; ++i) Session().Undo();
  ExpectUntouched();
}

TEST_F(DesignerTest, KeysThatAnAlignmentTakesBackSayWhyQuietly) {
  Select("Panel1");
  auto& panel = *As<TControl>(&Get("Panel1"));
  Session().Run(QStringLiteral("x"), {}, [&] { panel.SetAlign(TAlign::alTop); });
  QStringList notices;
  QObject listener;
  QObject::connect(&Surface(), &FormSurface::Notice, &listener,
                   [&](const QString& text) { notices << text; });
  Key(Qt::Key_Right);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  ASSERT_EQ(notices.size(), 2);
  EXPECT_TRUE(notices[0].contains(QStringLiteral("Align = alTop")));
  Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(notices.size(), 2) << "its height is its own";
}

TEST_F(DesignerTest, AToolPlacesNothingBesideTheForm) {
  Surface().resize(2000, 1500);
  Surface().SetTool(&TButton::StaticClass());
  Click(Surface().WidgetRect(Session().Form()).bottomRight() + QPoint(15, 15));
  ExpectUntouched();
  EXPECT_EQ(Surface().Tool(), &TButton::StaticClass());
  Click(At("Main"));
  EXPECT_EQ(Surface().Tool(), nullptr);
  EXPECT_TRUE(Session().CanUndo());
}

TEST_F(DesignerTest, ShiftArrowsResize) {
  Select("Button1");
  Key(Qt::Key_Right, Qt::ShiftModifier);
  Key(Qt::Key_Up, Qt::ShiftModifier | Qt::ControlModifier);
  EXPECT_EQ(Bounds("Button1"), QRect(240, 16, 88, 23));
}

TEST_F(DesignerTest, ArrowsOnTheFormItselfDoNothing) {
  Select("Main");
  Key(Qt::Key_Right);
  ExpectUntouched();
}

TEST_F(DesignerTest, DeleteDeletesTheSelection) {
  Click(At("Panel1"));
  Click(At("Timer1"), Qt::ControlModifier);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Session().GetComponent(QStringLiteral("Inner")), nullptr);
  EXPECT_EQ(Session().GetComponent(QStringLiteral("Timer1")), nullptr);
  EXPECT_EQ(Selected(), "Main");
  ExpectOneCommand();
}

TEST_F(DesignerTest, TabWalksTheComponentsAndStaysOnTheForm) {
  std::string walk;
  for (int i = 0; i < 7; ++i) {
    Key(Qt::Key_Tab);
    walk += Selected() + ' ';
  }
  EXPECT_EQ(walk, "Panel1 Inner Button1 Button2 Led Timer1 Main ");
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "Timer1");
  EXPECT_TRUE(Surface().hasFocus());
}

TEST_F(DesignerTest, EscapeSelectsTheParent) {
  Select("Inner");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Selected(), "Panel1");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Selected(), "Main");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Selected(), "Main");
}

TEST_F(DesignerTest, ADoubleClickRunsTheDefaultAction) {
  QTest::mouseDClick(&Surface(), Qt::LeftButton, {}, At("Button2"));
  EXPECT_TRUE(Session().Bytes().contains("OnClick = Button2Click"));
  ExpectOneCommand();
}

TEST_F(DesignerTest, ADoubleClickOnALedLabelOpensItsLook) {
  modal::NextOf<TVRXLEDEditorDlg>([](auto& dlg) {
    dlg.edhs->setValue(25);
    QTest::mouseClick(dlg.ok, Qt::LeftButton);
  });
  QTest::mouseDClick(&Surface(), Qt::LeftButton, {}, At("Led"));
  EXPECT_TRUE(Session().Bytes().contains("LED.HorzSize = 25"));
  ExpectOneCommand();
}

TEST_F(DesignerTest, ZoomNeverChangesTheForm) {
  const QRect before = Surface().WidgetRect(Get("Led"));
  for (int i = 0; i < 3; ++i) Action("zoomIn").trigger();
  EXPECT_GT(Surface().WidgetRect(Get("Led")).width(), before.width());
  for (int i = 0; i < 9; ++i) Action("zoomOut").trigger();
  EXPECT_LT(Surface().WidgetRect(Get("Led")).width(), before.width());
  Surface().SetZoom(100);
  EXPECT_EQ(Surface().Zoom(), 4.0);
  Surface().SetZoom(0);
  EXPECT_EQ(Surface().Zoom(), 0.25);
  ExpectUntouched();
  EXPECT_FALSE(Session().IsModified());
  Action("zoom100").trigger();
  EXPECT_EQ(Surface().WidgetRect(Get("Led")), before);
}

TEST_F(DesignerTest, ADragAtTwiceTheSizeMovesHalfAsFar) {
  Surface().SetZoom(2);
  Drag(At("Button1"), At("Button1") + QPoint(32, 64));
  EXPECT_EQ(Bounds("Button1"), QRect(256, 48, 80, 24));
}

// --- Foreign forms

TEST_F(DesignerTest, AClickOnTheTabOfAForeignBookShowsItsPage) {
  const QString name = folder_.filePath(QStringLiteral("book.dfm"));
  const QByteArray text = R"(object Main: TMain
  Caption = 'Main'
  ClientHeight = 300
  ClientWidth = 400
  object Book: TStrangePageControl
    Left = 8
    Top = 8
    Width = 300
    Height = 200
    object First: TStrangeTabSheet
      Caption = 'One'
      object InFirst: TButton
        Left = 8
        Top = 8
        Width = 80
        Height = 24
        TabOrder = 0
      end
    end
    object Second: TStrangeTabSheet
      Caption = 'Two'
      object InSecond: TButton
        Left = 8
        Top = 8
        Width = 80
        Height = 24
        TabOrder = 0
      end
    end
  end
  object Menu1: TMainMenu
    Left = 350
    Top = 200
    object Item1: TMenuItem
      Caption = 'Item'
    end
  end
end
)";
  Write(name, text);
  ASSERT_TRUE(window_->OpenForm(name));
  const QPoint inside = At("InFirst");
  Click(inside);
  EXPECT_EQ(Selected(), "InFirst");
  const auto& book = dynamic_cast<TUnknownControl&>(Get("Book"));
  QPoint tab;
  for (int x = 0; x < 300 && tab.isNull(); ++x)
    if (book.PageAt({x, 10}) == &Get("Second")) tab = {x + 2, 10};
  ASSERT_FALSE(tab.isNull());
  Click(Surface().WidgetRect(Get("Book")).topLeft() + tab);
  EXPECT_EQ(Selected(), "Book");
  Click(inside);
  EXPECT_EQ(Selected(), "InSecond");
  // Whoever selects something on a page sees it.
  Select("InFirst");
  Click(At("InFirst"));
  EXPECT_EQ(Selected(), "InFirst");
  // The items of a menu are shown by the menu's tile and cannot be moved.
  Select("Item1");
  EXPECT_EQ(Surface().WidgetRect(Get("Item1")), Surface().WidgetRect(Get("Menu1")));
  Key(Qt::Key_Right);
  Select("First");
  Key(Qt::Key_Right);
  EXPECT_FALSE(Session().CanUndo());
  EXPECT_EQ(Session().Bytes().toStdString(), text.toStdString());
}

TEST_F(DesignerTest, AClickOnATabMakesItsPageTheActiveOneAsOneCommand) {
  const QString name = folder_.filePath(QStringLiteral("pages.dfm"));
  const QByteArray text =
      "object Main: TMain\n  ClientHeight = 300\n  ClientWidth = 400\n  object Book: TPageControl\n    Left "
      "= "
      "8\n    Top = 8\n    Width = 300\n    Height = 200\n    ActivePage = First\n    TabOrder = 0\n    "
      "object "
      "First: TTabSheet\n      Caption = 'One'\n    end\n    object Second: TTabSheet\n      Caption = "
      "'Two'\n  "
      "    object InSecond: TButton\n        Left = 8\n        Top = 8\n        Width = 80\n        Height = "
      "24\n      end\n    end\n  end\nend\n";
  Write(name, text);
  ASSERT_TRUE(window_->OpenForm(name));
  const auto& book = dynamic_cast<TPageControl&>(Get("Book"));
  const QPoint tab = Surface().WidgetRect(book).topLeft() + book.TabRects()[1].center();
  Click(tab);
  EXPECT_EQ(Selected(), "Book");
  EXPECT_EQ(book.FrontPage(), &Get("Second"));
  EXPECT_EQ(Session().Bytes().toStdString(),
            QByteArray(text).replace("ActivePage = First", "ActivePage = Second").toStdString());
  Click(tab);
  Session().Undo();
  EXPECT_EQ(Session().Bytes().toStdString(), text.toStdString());
  EXPECT_FALSE(Session().CanUndo()) << "a click on the tab in front is no command";
  // Whoever selects something on a page sees it, and no value changes.
  Select("InSecond");
  EXPECT_EQ(book.FrontPage(), &Get("Second"));
  EXPECT_FALSE(Session().CanUndo());
  Select("Second");
  Key(Qt::Key_Right);
  EXPECT_FALSE(Session().CanUndo()) << "a page has no place of its own";
}

TEST_F(DesignerTest, TilesBeyondTheEdgeOfADataModuleCanBeReached) {
  const QString name = folder_.filePath(QStringLiteral("data.dfm"));
  Write(name,
        "object Data: TData\n  OldCreateOrder = False\n  Height = 80\n  Width = 90\n"
        "  object Far: TSomeSource\n    Left = 300\n    Top = 200\n  end\nend\n");
  ASSERT_TRUE(window_->OpenForm(name));
  EXPECT_TRUE(QRect(QPoint(), Surface().sizeHint()).contains(Surface().WidgetRect(Get("Far"))));
  Click(At("Far"));
  EXPECT_EQ(Selected(), "Far");
  // A desk holds no controls; nothing is left of the attempt.
  Surface().SetTool(&TButton::StaticClass());
  expectedWarnings_ << QStringLiteral(
      "Data is a data module: only components that are no controls can stand on it.");
  Click(Surface().WidgetRect(Get("Data")).center());
  EXPECT_FALSE(Session().CanUndo());
  EXPECT_EQ(Session().AllComponents().size(), 2u);
}
