// Drives modal dialogs: what to do with the next one is said before it is opened.
#pragma once
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <functional>

namespace modal {

// Runs `act` as soon as a modal dialog other than the present one is there.
inline void Next(std::function<void(QDialog&)> act) {
  auto* timer = new QTimer(qApp);
  QWidget* now = QApplication::activeModalWidget();
  QObject::connect(timer, &QTimer::timeout, timer, [timer, now, act = std::move(act)] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || dialog == now) return;
    timer->stop();
    timer->deleteLater();
    act(*dialog);
  });
  timer->start(0);
}

// The same for a known class of dialogs. A dialog of another class is closed, and the test fails.
template <class T>
void NextOf(std::function<void(T&)> act) {
  Next([act = std::move(act)](QDialog& dialog) {
    if (auto* wanted = dynamic_cast<T*>(&dialog)) {
      act(*wanted);
    } else {
      ADD_FAILURE() << "another dialog came: " << dialog.metaObject()->className();
      dialog.reject();
    }
  });
}

}  // namespace modal
