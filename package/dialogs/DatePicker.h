// A date as the person's country writes it, with a calendar to pick from: the arrow opens it, or Alt+Down.
#pragma once
#include <QDateEdit>

class DatePicker : public QDateEdit {
  Q_OBJECT
 public:
  explicit DatePicker(QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};
