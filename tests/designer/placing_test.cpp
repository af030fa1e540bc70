// Taking tools up and putting them down, and placing without pointing at a spot.
#include "tests/designer/DesignerTest.h"
#include "vcl/Button.h"
#include "vcl/Label.h"
#include "vcl/Panel.h"
#include "vcl/Timer.h"

using namespace designer;

namespace {
class Placing : public DesignerTest {
 protected:
  PalettePane& Palette() { return window_->Palette(); }
  QLineEdit& Search() { return Palette().Search(); }
  QToolButton& Button(const char* cls) { return ButtonOf(*window_, cls); }
  // As a mouse does it: the first click takes the tool up.
  void DoubleClick(const char* cls) {
    QToolButton& button = Button(cls);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::mouseDClick(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton);
  }
  void ExpectPutDown() {
    EXPECT_EQ(Surface().Tool(), nullptr);
    for (const QToolButton* b : Palette().findChildren<QToolButton*>())
      EXPECT_EQ(b->isChecked(), b->accessibleName() == QStringLiteral("Select"))
          << b->accessibleName().toStdString();
    EXPECT_EQ(window_->statusBar()->currentMessage(), QString());
  }
  QPoint TopLeft(const char* name) { return Bounds(name).topLeft(); }
  QPoint MiddleOf(const TWinControl& container, const QRect& r) {
    const QPoint off = r.center() - container.ClientRect().center();
    return {std::abs(off.x()), std::abs(off.y())};
  }
  void ExpectNearMiddle(const TWinControl& container, const char* name) {
    const QPoint off = MiddleOf(container, Bounds(name));
    EXPECT_LE(off.x(), FormSurface::Grid) << name;
    EXPECT_LE(off.y(), FormSurface::Grid) << name;
  }
};
}  // namespace

TEST_F(Placing, ADoubleClickPlacesOneInTheMiddleAndPutsTheToolDown) {
  DoubleClick("TVRXLEDLabel");
  EXPECT_EQ(Get("VRXLEDLabel1").GetParentComponent(), &Session().Form());
  ExpectNearMiddle(Session().Form(), "VRXLEDLabel1");
  EXPECT_EQ(TopLeft("VRXLEDLabel1").x() % FormSurface::Grid, 0);
  EXPECT_EQ(TopLeft("VRXLEDLabel1").y() % FormSurface::Grid, 0);
  EXPECT_EQ(Selected(), "VRXLEDLabel1");
  ExpectPutDown();
  EXPECT_TRUE(Surface().hasFocus());
  ExpectOneCommand();
}

TEST_F(Placing, ADoubleClickPlacesInTheMiddleOfTheSelectedContainer) {
  Select("Panel1");
  DoubleClick("TButton");
  EXPECT_EQ(Get("Button3").GetParentComponent(), &Get("Panel1"));
  ExpectNearMiddle(dynamic_cast<TWinControl&>(Get("Panel1")), "Button3");
  // The next one goes beside it, into the same container.
  DoubleClick("TButton");
  EXPECT_EQ(Get("Button4").GetParentComponent(), &Get("Panel1"));
  EXPECT_EQ(TopLeft("Button4") - TopLeft("Button3"), QPoint(8, 8));
}

TEST_F(Placing, CopiesDoNotStandOnOneSpot) {
  std::set<std::pair<int, int>> spots;
  for (int i = 3; i < 63; ++i) {
    Session().Select({});
    DoubleClick("TButton");
    const QRect r = Bounds(QStringLiteral("Button%1").arg(i).toLatin1().constData());
    EXPECT_TRUE(spots.emplace(r.left(), r.top()).second) << i << ": " << r.left() << ", " << r.top();
    EXPECT_TRUE(Session().Form().ClientRect().contains(r)) << i;
  }
}

TEST_F(Placing, IconsDoNotCoverEachOther) {
  for (int i = 0; i < 5; ++i) DoubleClick("TTimer");
  std::vector<QRect> icons;
  for (const TComponent* c : Session().AllComponents()) {
    if (As<TControl>(c)) continue;
    const TDesignPoint at = DesignPointOf(c->DesignInfo());
    const QRect icon(at.Left, at.Top, FormSurface::IconSize, FormSurface::IconSize);
    for (const QRect& other : icons) EXPECT_FALSE(icon.intersects(other)) << c->Name().toStdString();
    icons.push_back(icon);
  }
  EXPECT_EQ(icons.size(), 6u);
}

TEST_F(Placing, WhatDoesNotFitStandsAtTheEdge) {
  Session().Run(QStringLiteral("small"), {&Get("Panel1")},
                [&] { dynamic_cast<TControl&>(Get("Panel1")).SetBounds(16, 16, 20, 10); });
  Select("Panel1");
  DoubleClick("TButton");
  EXPECT_EQ(TopLeft("Button3"), QPoint(0, 0));
}

TEST_F(Placing, ADoubleClickWithARefusedValuePlacesNothing) {
  Select("Button1");
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Left")));
  Inspector().FocusValue();
  Editor().Field()->selectAll();
  QTest::keyClicks(Editor().Field(), QStringLiteral("wide"));
  DoubleClick("TButton");
  EXPECT_FALSE(Editor().Problem().isEmpty());
  EXPECT_TRUE(Editor().Field()->hasFocus());
  ExpectUntouched();
}

// --- Tools

TEST_F(Placing, EscapePutsTheToolDownFromEverywhere) {
  QToolButton& button = Button("TButton");
  Select("Button1");
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Caption")));
  QWidget* places[] = {&Surface(),
                       &button,
                       &Search(),
                       Palette().findChild<QTabBar*>(),
                       &Inspector().View(),
                       &Inspector().FilterField(),
                       Editor().Field(),
                       Inspector().findChild<QComboBox*>(),
                       &window_->Structure().Tree(),
                       window_->Structure().findChild<QLineEdit*>()};
  for (QWidget* place : places) {
    QTest::mouseClick(&button, Qt::LeftButton);
    ASSERT_EQ(Surface().Tool(), &TButton::StaticClass());
    EXPECT_TRUE(window_->statusBar()->currentMessage().contains(QStringLiteral("TButton")));
    place->setFocus();
    ASSERT_TRUE(place->hasFocus()) << place->metaObject()->className();
    QTest::keyClick(place, Qt::Key_Escape);
    ExpectPutDown();
    EXPECT_TRUE(place->hasFocus()) << place->metaObject()->className();
  }
  EXPECT_EQ(Selected(), "Button1");
  ExpectUntouched();
}

TEST_F(Placing, EscapeWhileDrawingPlacesNothing) {
  QTest::mouseClick(&Button("TPanel"), Qt::LeftButton);
  Press(FormPoint(240, 160));
  MoveTo(FormPoint(300, 200));
  Key(Qt::Key_Escape);
  MoveTo(FormPoint(320, 220));
  Release(FormPoint(320, 220));
  ExpectPutDown();
  ExpectUntouched();
}

TEST_F(Placing, AShiftClickKeepsTheToolForSeveral) {
  QTest::mouseClick(&Button("TButton"), Qt::LeftButton, Qt::ShiftModifier);
  Click(FormPoint(240, 160));
  EXPECT_EQ(Surface().Tool(), &TButton::StaticClass());
  EXPECT_TRUE(Button("TButton").isChecked());
  Click(FormPoint(240, 200));
  EXPECT_EQ(Bounds("Button3").topLeft(), QPoint(240, 160));
  EXPECT_EQ(Bounds("Button4").topLeft(), QPoint(240, 200));
  Key(Qt::Key_Escape);
  ExpectPutDown();
  Click(FormPoint(240, 240));
  EXPECT_EQ(Session().GetComponent(QStringLiteral("Button5")), nullptr);
  EXPECT_TRUE(Button("TButton").toolTip().contains(QStringLiteral("Shift")));
}

TEST_F(Placing, PlacingWithShiftKeepsTheToolOnceMore) {
  QTest::mouseClick(&Button("TButton"), Qt::LeftButton);
  Click(FormPoint(240, 160), Qt::ShiftModifier);
  EXPECT_EQ(Surface().Tool(), &TButton::StaticClass());
  Click(FormPoint(240, 200));
  ExpectPutDown();
  EXPECT_NE(Session().GetComponent(QStringLiteral("Button4")), nullptr);
}

TEST_F(Placing, TheArrowPutsTheToolDown) {
  QTest::mouseClick(&Button("TButton"), Qt::LeftButton);
  for (QToolButton* b : Palette().findChildren<QToolButton*>())
    if (b->accessibleName() == QStringLiteral("Select")) QTest::mouseClick(b, Qt::LeftButton);
  ExpectPutDown();
}

TEST_F(Placing, AnotherPageKeepsTheTool) {
  QToolButton& button = Button("TButton");
  QTest::mouseClick(&button, Qt::LeftButton);
  auto* tabs = Palette().findChild<QTabBar*>();
  tabs->setCurrentIndex(tabs->count() - 1);
  EXPECT_EQ(Palette().ButtonOf("TButton"), nullptr);
  EXPECT_EQ(Surface().Tool(), &TButton::StaticClass());
  EXPECT_TRUE(button.isChecked());
  Click(FormPoint(240, 160));
  ExpectPutDown();
  EXPECT_NE(Session().GetComponent(QStringLiteral("Button3")), nullptr);
}

TEST_F(Placing, AToolWhoseClassGoesIsPutDown) {
  packages_.Load(QStringLiteral("testsample"));
  QTest::mouseClick(&Button("TSampleGauge"), Qt::LeftButton);
  ASSERT_NE(Surface().Tool(), nullptr);
  packages_.Unload(QStringLiteral("testsample"));
  ExpectPutDown();
}

// --- The search

TEST_F(Placing, EnterInTheSearchPlacesTheFirstHit) {
  Search().setFocus();
  QTest::keyClicks(&Search(), QStringLiteral("ledl"));
  QTest::keyClick(&Search(), Qt::Key_Return);
  ASSERT_NE(Session().GetComponent(QStringLiteral("VRXLEDLabel1")), nullptr);
  ExpectNearMiddle(Session().Form(), "VRXLEDLabel1");
  ExpectPutDown();
  EXPECT_TRUE(Surface().hasFocus());
  ExpectOneCommand();
}

TEST_F(Placing, ASearchPutsTheBestHitFirst) {
  Search().setFocus();
  QTest::keyClicks(&Search(), QStringLiteral("Label"));
  QTest::keyClick(&Search(), Qt::Key_Return);
  EXPECT_STREQ(Session().SelectedComponents().front()->ClassType().ClassName().constData(), "TLabel");
}

TEST_F(Placing, ASearchThatFindsNothingSaysSoAndPlacesNothing) {
  EXPECT_EQ(Palette().Notice(), QString());
  Search().setFocus();
  QTest::keyClicks(&Search(), QStringLiteral("zebra"));
  EXPECT_EQ(Palette().Notice(), QStringLiteral("Nothing found for \u201czebra\u201d"));
  QTest::keyClick(&Search(), Qt::Key_Return);
  QTest::keyClick(&Search(), Qt::Key_Down);
  EXPECT_TRUE(Search().hasFocus());
  ExpectUntouched();
  QTest::keyClick(&Search(), Qt::Key_Escape);
  EXPECT_TRUE(Search().text().isEmpty());
  EXPECT_EQ(Palette().Notice(), QString());
  QTest::keyClick(&Search(), Qt::Key_Return);  // nothing was searched
  ExpectUntouched();
  QTest::keyClick(&Search(), Qt::Key_Escape);
  EXPECT_TRUE(Surface().hasFocus());
}

TEST_F(Placing, DownGoesFromTheSearchIntoTheHits) {
  Search().setFocus();
  QTest::keyClicks(&Search(), QStringLiteral("T"));
  QTest::keyClick(&Search(), Qt::Key_Down);
  const QString first = QApplication::focusWidget()->objectName();
  EXPECT_NE(Palette().ButtonOf(first.toLatin1()), nullptr);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  const QString second = QApplication::focusWidget()->objectName();
  EXPECT_NE(second, first);
  ASSERT_NE(Palette().ButtonOf(second.toLatin1()), nullptr);
  EXPECT_EQ(Surface().Tool(), nullptr);  // looking takes nothing up
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), first);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
  EXPECT_TRUE(Search().hasFocus());
  QTest::keyClick(&Search(), Qt::Key_Down);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_STREQ(Surface().Tool()->ClassName().constData(), first.toLatin1().constData());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Session().SelectedComponents().front()->ClassType().ClassName(), first.toLatin1());
  ExpectPutDown();
}

TEST_F(Placing, AClickOnAPageEndsTheSearch) {
  QTest::keyClicks(&Search(), QStringLiteral("led"));
  auto* tabs = Palette().findChild<QTabBar*>();
  QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
  EXPECT_TRUE(Search().text().isEmpty());
  EXPECT_NE(Palette().ButtonOf("TButton"), nullptr);
}

TEST_F(Placing, AWideRowOfHitsDoesNotWidenTheWindow) {
  const int width = Palette().minimumSizeHint().width();
  QTest::keyClicks(&Search(), QStringLiteral("t"));
  QCoreApplication::processEvents();
  EXPECT_EQ(Palette().minimumSizeHint().width(), width);
}
