// Hidden icons as a person meets them: on the form, in the tree, with the window that hides them.
#include "DesignerTest.h"
#include "package/experts/pVRXHideNonVC.h"

using namespace designer;

namespace {
const QByteArray Form = R"(object Main: TMain
  Caption = 'Main'
  ClientHeight = 320
  ClientWidth = 480
  object Button1: TButton
    Left = 240
    Top = 16
    Width = 80
    Height = 24
    TabOrder = 0
  end
  object Timer1: TTimer
    Left = 40
    Top = 200
  end
  object Hide1: TVRXHideNonVC
    Left = 120
    Top = 200
  end
end
)";

class HideIconsOnTheForm : public DesignerTest {
 protected:
  HideIconsOnTheForm() : DesignerTest(Form) {}
  ~HideIconsOnTheForm() override { TVRXHideNonVCfrm::Free(); }
  TVRXHideNonVCfrm& Open() {
    Session().Edit(Get("Hide1"));
    return *TVRXHideNonVCfrm::Instance();
  }
  void PressIn(TVRXHideNonVCfrm& window, QPushButton* button, int row) {
    window.cbList->setCurrentRow(row);
    QTest::mouseClick(button, Qt::LeftButton);
  }
  QImage Painted(const QRect& r) { return Surface().grab(r.adjusted(-2, -2, 2, 20)).toImage(); }
  QModelIndex TreeRow(const char* name) {
    auto& tree = dynamic_cast<QTreeView&>(window_->findChild<StructurePane*>()->Tree());
    return tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, QLatin1StringView(name), 1,
                               Qt::MatchStartsWith | Qt::MatchRecursive)[0];
  }
};
}  // namespace

TEST_F(HideIconsOnTheForm, AHiddenIconIsNeitherPaintedNorClickedNorBanded) {
  TVRXHideNonVCfrm& window = Open();
  Select("Main");
  const QRect place = Surface().WidgetRect(Get("Timer1"));
  const QImage shown = Painted(place);
  PressIn(window, window.btHide, 0);
  Select("Main");
  const QImage hidden = Painted(place);
  EXPECT_NE(shown, hidden);
  EXPECT_EQ(Surface().ComponentAt(place.center()), &Get("Main"));
  Drag(FormPoint(4, 160), FormPoint(220, 300));
  EXPECT_EQ(Selected(), "Hide1");
  Session().Undo();
  EXPECT_EQ(Surface().ComponentAt(place.center()), &Get("Timer1"));
  Select("Main");
  EXPECT_EQ(Painted(place), shown);
}

TEST_F(HideIconsOnTheForm, SelectedItHasNoFrameAndKeysDoNotMoveIt) {
  TVRXHideNonVCfrm& window = Open();
  PressIn(window, window.btHide, 0);
  Select("Main");
  const auto handles = Surface().grab().toImage();
  const QByteArray bytes = Session().Bytes();
  Select("Timer1");
  const QRect whole = Surface().WidgetRect(Get("Main"));
  const QColor accent = Surface().palette().color(QPalette::Highlight);
  const QImage picture = Surface().grab().toImage();
  for (int x = whole.left(); x <= whole.right(); ++x) {
    ASSERT_NE(picture.pixelColor(x, whole.top()), accent);
    ASSERT_NE(picture.pixelColor(x, whole.bottom()), accent);
  }
  Surface().setFocus();
  Key(Qt::Key_Right);
  Key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(Session().Bytes(), bytes);
  EXPECT_EQ(Get("Timer1").DesignInfo(), defHideX);
}

TEST_F(HideIconsOnTheForm, TheTabKeyGoesPastIt) {
  TVRXHideNonVCfrm& window = Open();
  PressIn(window, window.btHide, 0);
  Select("Button1");
  Surface().setFocus();
  Key(Qt::Key_Tab);
  EXPECT_EQ(Selected(), "Hide1");
  Key(Qt::Key_Backtab);
  EXPECT_EQ(Selected(), "Button1");
}

TEST_F(HideIconsOnTheForm, TheTreeShowsItGrey) {
  TVRXHideNonVCfrm& window = Open();
  const QBrush grey = QGuiApplication::palette().brush(QPalette::PlaceholderText);
  EXPECT_FALSE(TreeRow("Timer1").data(Qt::ForegroundRole).isValid());
  PressIn(window, window.btHide, 0);
  EXPECT_EQ(TreeRow("Timer1").data(Qt::ForegroundRole).value<QBrush>(), grey);
  EXPECT_EQ(TreeRow("Timer1").data(Qt::ToolTipRole).toString(), QStringLiteral("hidden on the form"));
  EXPECT_FALSE(TreeRow("Hide1").data(Qt::ForegroundRole).isValid());
  Session().Undo();
  EXPECT_FALSE(TreeRow("Timer1").data(Qt::ForegroundRole).isValid());
}

TEST_F(HideIconsOnTheForm, ATreeThatIsShownHearsOfIt) {
  auto& tree = dynamic_cast<QTreeView&>(window_->findChild<StructurePane*>()->Tree());
  QSignalSpy changed(tree.model(), &QAbstractItemModel::dataChanged);
  TVRXHideNonVCfrm& window = Open();
  PressIn(window, window.btHide, 0);
  EXPECT_GT(changed.count(), 0);
}

TEST_F(HideIconsOnTheForm, UndoWorksFromTheWindow) {
  TVRXHideNonVCfrm& window = Open();
  ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }, WaitLimit));
  PressIn(window, window.btHide, 0);
  ASSERT_TRUE(Session().CanUndo());
  QTest::keyClick(window.cbList, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(Session().CanUndo());
  EXPECT_EQ(window.d->text(), QStringLiteral("[Visible]"));
}

TEST_F(HideIconsOnTheForm, AnotherFormInTheWindowTakesItAway) {
  const QPointer<TVRXHideNonVCfrm> window = &Open();
  const QString other = folder_.filePath(QStringLiteral("other.dfm"));
  Write(other, Sample);
  ASSERT_TRUE(window_->OpenForm(other));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(window.isNull());
}

TEST_F(HideIconsOnTheForm, ADuplicateOfAHiddenOneIsHiddenToo) {
  TVRXHideNonVCfrm& window = Open();
  PressIn(window, window.btHide, 0);
  Surface().setFocus();
  Select("Timer1");
  Action("duplicate").trigger();
  EXPECT_EQ(Get("Timer2").DesignInfo(), defHideX);
  EXPECT_EQ(window.cbList->count(), 2);
  EXPECT_TRUE(window.cbList->item(1)->isSelected());
}
