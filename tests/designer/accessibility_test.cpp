// Every control of the window tells who cannot see it what it is.
#include <QAccessible>

#include "tests/designer/DesignerTest.h"

using namespace designer;

namespace {
bool IsControl(const QWidget& w) {
  // These belong to the list they stand beside, and the headers are hidden.
  if (qobject_cast<const QScrollBar*>(&w) || qobject_cast<const QHeaderView*>(&w)) return false;
  return w.focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton*>(&w) ||
         qobject_cast<const QAbstractItemView*>(&w) || qobject_cast<const QTabBar*>(&w) ||
         qobject_cast<const QLineEdit*>(&w) || qobject_cast<const QComboBox*>(&w);
}

// What has no name, among the widget and everything in it.
QStringList Nameless(const QWidget& window) {
  QStringList found;
  int controls = 0;
  for (QWidget* w : window.findChildren<QWidget*>()) {
    // A list that belongs to a box opens with it.
    if (!IsControl(*w) || w->window() != &window) continue;
    ++controls;
    const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w);
    if (!face || face->text(QAccessible::Name).trimmed().isEmpty())
      found << QStringLiteral("%1 %2 in %3")
                   .arg(QLatin1StringView(w->metaObject()->className()), w->objectName(),
                        QLatin1StringView(w->parentWidget()->metaObject()->className()));
    if (const auto* tabs = qobject_cast<const QTabBar*>(w))
      for (int i = 0; i < tabs->count(); ++i)
        if (!face || face->child(i)->text(QAccessible::Name).isEmpty())
          found << QStringLiteral("tab %1").arg(i);
  }
  EXPECT_GT(controls, 25);
  return found;
}
}  // namespace

TEST_F(DesignerTest, EveryControlOfTheWindowHasAnAccessibleName) {
  EXPECT_EQ(Nameless(*window_).join(u'\n').toStdString(), "");
}

TEST_F(DesignerTest, EveryControlHasANameOnEveryPageAndInEveryState) {
  auto* pages = window_->Palette().findChild<QTabBar*>();
  Select("Led");
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("LED.ActiveColor")));
  Inspector().FocusValue();
  for (int i = 0; i < pages->count(); ++i) {
    pages->setCurrentIndex(i);
    EXPECT_EQ(Nameless(*window_).join(u'\n').toStdString(), "") << pages->tabText(i).toStdString();
  }
  QTest::keyClicks(&window_->Palette().Search(), QStringLiteral("t"));
  window_->resize(600, 500);
  QCoreApplication::processEvents();
  EXPECT_EQ(Nameless(*window_).join(u'\n').toStdString(), "");
}

TEST_F(DesignerTest, AValueIsCalledAfterItsProperty) {
  Select("Led");
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("LED.HorzSize")));
  const auto* face = QAccessible::queryAccessibleInterface(Editor().Field());
  EXPECT_EQ(face->text(QAccessible::Name), QStringLiteral("LED.HorzSize"));
  Inspector().FocusValue();
  Editor().Field()->selectAll();
  QTest::keyClicks(Editor().Field(), QStringLiteral("x"));
  QTest::keyClick(Editor().Field(), Qt::Key_Return);
  EXPECT_EQ(face->text(QAccessible::Description), Editor().Problem());
  EXPECT_FALSE(Editor().Problem().isEmpty());
}
