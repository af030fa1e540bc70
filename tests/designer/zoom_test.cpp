// Zooming the desk.
#include "designer/Desk.h"
#include "tests/designer/DesignerTest.h"

using namespace designer;

namespace {
class Zooming : public DesignerTest {
 protected:
  Desk& TheDesk() { return *window_->findChild<Desk*>(); }
  // Where the component is in the part that is in sight.
  QPoint InSight(const char* name) { return Surface().mapTo(TheDesk().viewport(), At(name)); }
  void Wheel(QPoint at, int notches, Qt::KeyboardModifiers keys) {
    QWidget& sight = *TheDesk().viewport();
    QWheelEvent wheel(QPointF(at), QPointF(sight.mapToGlobal(at)), {}, QPoint(0, 120 * notches), Qt::NoButton,
                      keys, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&sight, &wheel);
  }
};
}  // namespace

// Where there is more on every side, so that the bars can follow.
TEST_F(Zooming, TheWheelWithControlKeepsWhatIsUnderThePointer) {
  window_->SetZoom(3);
  const QPoint led = At("Led");
  TheDesk().ensureVisible(led.x(), led.y(), TheDesk().viewport()->width() / 2,
                          TheDesk().viewport()->height() / 2);
  for (const QPoint aside : {QPoint(0, 0), QPoint(-60, 40), QPoint(50, -30)}) {
    const QPoint at = InSight("Led") + aside;
    const QPointF before = QPointF(Surface().mapFrom(TheDesk().viewport(), at)) / window_->Zoom();
    Wheel(at, aside.x() < 0 ? -1 : 1, Qt::ControlModifier);
    const QPointF after = QPointF(Surface().mapFrom(TheDesk().viewport(), at)) / window_->Zoom();
    EXPECT_NEAR(after.x(), before.x(), 1) << aside.x();
    EXPECT_NEAR(after.y(), before.y(), 1) << aside.x();
  }
  EXPECT_NEAR(window_->Zoom(), 3 * 1.25, 1e-9);
  ExpectUntouched();
}

TEST_F(Zooming, TheWheelAloneZoomsNothing) {
  Wheel(InSight("Led"), 2, {});
  EXPECT_DOUBLE_EQ(window_->Zoom(), 1);
}

TEST_F(Zooming, WhileSomethingIsDraggedTheZoomStays) {
  Press(At("Button1"));
  MoveTo(At("Button1") + QPoint(24, 24));
  Wheel(InSight("Button1"), 2, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(window_->Zoom(), 1);
  Key(Qt::Key_Escape);
  Release(At("Button1"));
  ExpectUntouched();
}

TEST_F(Zooming, MenusKeepTheMiddleAndTheStatusBarFollows) {
  window_->SetZoom(2);
  const auto middle = [&] {
    return QPointF(Surface().mapFrom(TheDesk().viewport(), TheDesk().viewport()->rect().center())) /
           window_->Zoom();
  };
  const QPointF before = middle();
  Action("zoomIn").trigger();
  EXPECT_LE((middle() - before).manhattanLength(), 3);
  EXPECT_DOUBLE_EQ(window_->Zoom(), 2.5);
  QStringList texts;
  for (const QLabel* label : window_->statusBar()->findChildren<QLabel*>()) texts << label->text();
  EXPECT_TRUE(texts.contains(QStringLiteral("250 %"))) << texts.join(u'|').toStdString();
  Action("zoom100").trigger();
  EXPECT_DOUBLE_EQ(window_->Zoom(), 1);
}
