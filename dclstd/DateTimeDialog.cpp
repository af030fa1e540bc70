#include "dclstd/DateTimeDialog.h"

#include <QHBoxLayout>
#include <QTableView>
#include <QTimeEdit>

#include "dclstd/EditValue.h"
#include "vcl/DayPicker.h"

DateTimeDialog::DateTimeDialog(QWidget* owner) : RowDialog(tr("Date and Time"), owner) {
  calendar = new DayPicker(this);
  calendar->setObjectName(QStringLiteral("calendar"));
  calendar->setAccessibleName(tr("Date"));
  calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar->setGridVisible(true);
  time = new QTimeEdit(this);
  time->setObjectName(QStringLiteral("time"));
  time->setDisplayFormat(QStringLiteral("HH:mm:ss"));
  timeLabel = new QLabel(tr("&Time:"), this);
  timeLabel->setBuddy(time);
  Follows(calendar);
  Follows(time);
  Button(now, "now", "&Now", &DateTimeDialog::nowClick, "The present date and time");
  Button(clear, "clear", "N&one", &DateTimeDialog::clearClick, "Neither date nor time");
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  auto* line = new QHBoxLayout;
  line->addWidget(timeLabel);
  line->addWidget(time);
  line->addStretch(1);
  line->addWidget(now);
  line->addWidget(clear);
  auto* box = new QVBoxLayout(this);
  box->addWidget(calendar, 1);
  box->addLayout(line);
  box->addLayout(ButtonLine({ok, cancel}));
  const auto chosen = [this] {
    changed_ = true;
    none_ = false;
  };
  connect(calendar, &QCalendarWidget::selectionChanged, this, chosen);
  connect(calendar, &QCalendarWidget::clicked, this, chosen);
  // Return, or a double-click. A value that has this day already stays as it is, to the last fraction.
  connect(calendar, &QCalendarWidget::activated, this, [this, chosen] {
    if (none_ || empty_) chosen();
    ok->click();
  });
  connect(time, &QTimeEdit::timeChanged, this, chosen);
  SetTabSequence();
  FormCreate();
  setFixedSize(QSize(340, 300).expandedTo(minimumSizeHint()));
}

void DateTimeDialog::ShowPart(TMomentPart part) {
  calendar->setVisible(part != TMomentPart::Time);
  for (QWidget* widget : {static_cast<QWidget*>(timeLabel), static_cast<QWidget*>(time)})
    widget->setVisible(part != TMomentPart::Date);
  if (part == TMomentPart::Time) setFixedSize(QSize(340, 0).expandedTo(minimumSizeHint()));
}

void DateTimeDialog::Show(const QDateTime& value) {
  const QSignalBlocker quietDay(calendar), quietTime(time);
  calendar->setSelectedDate(value.date());
  time->setTime(value.time());
}

void DateTimeDialog::SetDateTime(TDateTime value) {
  Show(value.Days == 0 ? QDateTime(QDate::currentDate(), QTime(0, 0), Qt::UTC) : SplitDateTime(value));
  changed_ = none_ = false;
  empty_ = value.Days == 0;
}

TDateTime DateTimeDialog::DateTime() const {
  return none_ ? TDateTime{} : JoinDateTime(QDateTime(calendar->selectedDate(), time->time(), Qt::UTC));
}

void DateTimeDialog::nowClick() {
  const QDateTime present = QDateTime::currentDateTime();
  Show(QDateTime(present.date(),
                 QTime(present.time().hour(), present.time().minute(), present.time().second()), Qt::UTC));
  changed_ = true;
  none_ = false;
}

void DateTimeDialog::clearClick() {
  Show(QDateTime(QDate::currentDate(), QTime(0, 0), Qt::UTC));
  changed_ = none_ = true;
}

bool EditDateTime(TDateTime& value, TMomentPart part) {
  DateTimeDialog dialog(ApplicationOwner());
  dialog.ShowPart(part);
  dialog.SetDateTime(value);
  if (dialog.ShowModal() != mrOk || !dialog.Changed()) return false;
  value = WithPart(value, dialog.DateTime(), part);
  return true;
}
