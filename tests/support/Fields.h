// What a person does in the fields of a dialog, and what is to be seen there.
#pragma once
#include <QtTest>
#include <QtWidgets>

namespace fields {

inline void ShowActive(QWidget& window) {
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

// Replaces the text of a field and leaves it.
inline void Type(QWidget& field, const QString& text) {
  field.setFocus();
  if (auto* spin = qobject_cast<QAbstractSpinBox*>(&field)) spin->selectAll();
  QTest::keyClicks(&field, text);
  QTest::keyClick(&field, Qt::Key_Tab);
}

// One notch of the wheel over a widget; whether anything took it.
inline bool Wheel(QWidget& widget, int notches = -1) {
  const QPointF place = widget.rect().center();
  QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  event.ignore();
  QCoreApplication::sendEvent(&widget, &event);
  return event.isAccepted();
}

// The focus goes through all controls of the window, and nothing else happens.
inline void TabThrough(QWidget& window) {
  for (int i = 0; i < 60; ++i) {
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus ? focus : &window, Qt::Key_Tab);
  }
}

inline QStringList Texts(const QComboBox& combo) {
  QStringList texts;
  for (int i = 0; i < combo.count(); ++i) texts << combo.itemText(i);
  return texts;
}

}  // namespace fields
