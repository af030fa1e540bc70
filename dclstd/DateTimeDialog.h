// A date and a time of day.
#pragma once
#include <QDateTime>

#include "dclstd/RowDialog.h"

class QCalendarWidget;
class QTimeEdit;

// What there is to say of a value.
enum class TMomentPart : std::uint8_t { Both, Date, Time };
// The value with that part of the other one.
TDateTime WithPart(TDateTime value, TDateTime from, TMomentPart part);

// As texts that are the same everywhere: "2024-03-09", "13:05:00", "2024-03-09 13:05:00"; nothing for 0.
QString DateTimeToText(TDateTime value);
// The part alone; a time is told at midnight, too.
QString DateTimeToText(TDateTime value, TMomentPart part);
// The reverse, or a number of days; nothing when the text is neither.
std::optional<TDateTime> TextToDateTime(const QString& text);

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
};
