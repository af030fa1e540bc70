// A drop-down list of things to do.
#pragma once
#include <QComboBox>

// A list whose entries do something when they are chosen, and that shows none of them afterwards. Closed, it
// does nothing but open: a step through the list is not a choice.
class OneShotComboBox : public QComboBox {
  Q_OBJECT
 public:
  using QComboBox::QComboBox;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
};
