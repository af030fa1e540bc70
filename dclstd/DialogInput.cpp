#include "dclstd/DialogInput.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QToolButton>

namespace {
bool IsButton(const QObject* object) {
  return qobject_cast<const QPushButton*>(object) || qobject_cast<const QToolButton*>(object);
}
bool IsField(const QObject* object) {
  const auto* slider = qobject_cast<const QAbstractSlider*>(object);
  // Scroll bars never have the focus and are there for the wheel.
  return qobject_cast<const QAbstractSpinBox*>(object) || qobject_cast<const QComboBox*>(object) ||
         (slider && slider->focusPolicy() != Qt::NoFocus);
}

class DialogInput : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* widget = static_cast<QWidget*>(watched);
    if (event->type() == QEvent::Wheel && !widget->hasFocus()) {
      event->ignore();
      return true;
    }
    if (event->type() != QEvent::KeyPress || !IsButton(watched)) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    static_cast<QAbstractButton*>(widget)->click();
    return true;
  }
};
DialogInput& Input() {
  static auto* input = [] {
    auto* made = new DialogInput;
    made->setParent(qApp);
    return made;
  }();
  return *input;
}
}  // namespace

void UseDialogInput(QWidget& window) {
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool field = IsField(widget);
    if (!field && !IsButton(widget)) continue;
    // The wheel is not a way to get the focus either.
    if (field && widget->focusPolicy() == Qt::WheelFocus) widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(&Input());
  }
}
