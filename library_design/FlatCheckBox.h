// A check box with a flat box: a thin line, no bevel and no shade.
#pragma once
#include <QCheckBox>

class FlatCheckBox : public QCheckBox {
  Q_OBJECT
 public:
  using QCheckBox::QCheckBox;

 protected:
  void paintEvent(QPaintEvent* event) override;
};
