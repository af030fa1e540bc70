// A month whose days can be picked. Days that cannot be picked look like it, and those at the end of the week
// can be read in both themes.
#pragma once
#include <QCalendarWidget>

class DayPicker : public QCalendarWidget {
 public:
  explicit DayPicker(QWidget* parent = nullptr);

 protected:
  void paintCell(QPainter* painter, const QRect& rect, QDate day) const override;
  void changeEvent(QEvent* event) override;

 private:
  void TakeColors();
};
