// A date and a time of day.
#pragma once
#include "dclstd/RowDialog.h"
#include "rtl/DateText.h"

class QCalendarWidget;
class QTimeEdit;

// True when the user changed it and confirmed.
bool EditDateTime(TDateTime& value, TMomentPart part = TMomentPart::Both);

class DateTimeDialog : public RowDialog {
  Q_OBJECT
 public:
  explicit DateTimeDialog(QWidget* owner);
  TDateTime DateTime() const;
  // 0 shows the day of today, which is taken once something is chosen.
  void SetDateTime(TDateTime value);
  bool Changed() const { return changed_; }
  // Shows nothing else.
  void ShowPart(TMomentPart part);

  QCalendarWidget* calendar;
  QTimeEdit* time;
  QLabel* timeLabel;
  QPushButton *now, *clear, *ok, *cancel;

 private:
  void nowClick();
  void clearClick();
  void Show(const QDateTime& value);
  bool changed_ = false;
  bool none_ = false;
  bool empty_ = true;  // the value that it began with had no day
};
