// The box that tells and chooses the selected component.
#pragma once
#include <QComboBox>

#include "ide/ComponentModel.h"

class ComponentBox : public QComboBox {
  Q_OBJECT
 public:
  explicit ComponentBox(QWidget* parent = nullptr);
  void SetSession(FormSession* session);

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  void ShowSelection();
  ComponentModel components_{ComponentModel::Shape::List};
};
