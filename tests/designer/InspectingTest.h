// The inspector with a value in its editor.
#pragma once
#include "tests/designer/DesignerTest.h"

namespace designer {

class Inspecting : public DesignerTest {
 protected:
  using DesignerTest::DesignerTest;
  void Show(const char* component, const char* property) {
    Select(component);
    ASSERT_TRUE(Inspector().ShowProperty(QLatin1StringView(property)));
    Inspector().FocusValue();
    ASSERT_TRUE(Editor().isVisible());
    ASSERT_TRUE(Field().hasFocus());
  }
  QLineEdit& Field() { return *Editor().Field(); }
  QTreeView& View() { return Inspector().View(); }
  void Type(const char* text) {
    Field().selectAll();
    QTest::keyClicks(&Field(), QString::fromLatin1(text));
  }
  // A key for whatever has the focus.
  void Press(Qt::Key key, Qt::KeyboardModifiers keys = {}) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, keys);
  }
  void PressUndo() { Press(Qt::Key_Z, Qt::ControlModifier); }
  QModelIndex RowOf(const char* path) { return Inspector().Model().IndexOfPath(QLatin1StringView(path)); }
  std::string Row() { return View().currentIndex().data(InspectorModel::PathRole).toString().toStdString(); }
  std::string RowBelow(int rows) {
    QModelIndex i = View().currentIndex();
    for (; rows > 0; --rows) i = View().indexBelow(i);
    for (; rows < 0; ++rows) i = View().indexAbove(i);
    return i.data(InspectorModel::PathRole).toString().toStdString();
  }
  void ClickValue(const char* path) {
    const QModelIndex cell = RowOf(path).siblingAtColumn(1);
    ASSERT_TRUE(cell.isValid());
    View().scrollTo(cell);
    const QRect rect = View().visualRect(cell);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, QPoint(rect.left() + 50, rect.center().y()));
    QCoreApplication::processEvents();
  }
  void ClickName(const char* path) {
    View().scrollTo(RowOf(path));
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, View().visualRect(RowOf(path)).center());
    QCoreApplication::processEvents();
  }
  QString Caption(const char* name) { return dynamic_cast<TControl&>(Get(name)).Caption(); }
  // The editor stands over the value of this row and shows this text and a reason.
  void ExpectRefused(const char* path, const char* text) {
    EXPECT_EQ(Row(), path);
    EXPECT_EQ(Field().text(), QLatin1StringView(text));
    EXPECT_EQ(Field().accessibleName(), QLatin1StringView(path));
    EXPECT_TRUE(Editor().Problem().contains(QLatin1StringView(text))) << Editor().Problem().toStdString();
    EXPECT_TRUE(View().visualRect(RowOf(path).siblingAtColumn(1)).contains(Editor().geometry()));
    EXPECT_EQ(View().selectionModel()->selectedRows().value(0), RowOf(path));
  }
};

}  // namespace designer
