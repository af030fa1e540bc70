#include "dclstd/DateTimeDialog.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QTableView>
#include <QTimeEdit>
#include <cmath>

#include "dclstd/EditValue.h"

namespace {
constexpr double DayMilliseconds = 86'400'000;
const QDate& FirstDay() {
  static const QDate day(1899, 12, 30);
  return day;
}
// The fraction counts away from midnight, before the first day, too.
QDateTime Split(TDateTime value) {
  const double day = std::trunc(value.Days);
  const auto ms = static_cast<qint64>(std::llround(std::abs(value.Days - day) * DayMilliseconds));
  return QDateTime(FirstDay().addDays(static_cast<qint64>(day)), QTime(0, 0), Qt::UTC).addMSecs(ms);
}
TDateTime Joined(const QDateTime& value) {
  const auto days = static_cast<double>(FirstDay().daysTo(value.date()));
  const double part = value.time().msecsSinceStartOfDay() / DayMilliseconds;
  return {days < 0 ? days - part : days + part};
}
}  // namespace

TDateTime WithPart(TDateTime value, TDateTime from, TMomentPart part) {
  if (part == TMomentPart::Both) return from;
  const TDateTime& day = part == TMomentPart::Date ? from : value;
  const TDateTime& clock = part == TMomentPart::Time ? from : value;
  const double days = std::trunc(day.Days), rest = std::abs(clock.Days - std::trunc(clock.Days));
  return {days < 0 ? days - rest : days + rest};
}

QString DateTimeToText(TDateTime value, TMomentPart part) {
  const QString text = DateTimeToText(part == TMomentPart::Both ? value : WithPart({}, value, part));
  return text.isEmpty() && part == TMomentPart::Time ? QStringLiteral("00:00:00") : text;
}

QString DateTimeToText(TDateTime value) {
  if (value.Days == 0) return {};
  // Beyond the calendar the number says it.
  if (!std::isfinite(value.Days) || std::abs(value.Days) > 3'000'000)
    return QString::number(value.Days, 'g', 17);
  const QDateTime split = Split(value);
  const QTime time = split.time();
  const QString clock = time.toString(time.msec() != 0 ? u"HH:mm:ss.zzz" : u"HH:mm:ss");
  if (split.date() == FirstDay()) return clock;
  const QString day = split.date().toString(Qt::ISODate);
  return time == QTime(0, 0) ? day : day + u' ' + clock;
}

std::optional<TDateTime> TextToDateTime(const QString& text) {
  const QString trimmed = text.trimmed();
  if (trimmed.isEmpty()) return TDateTime{};
  bool number = false;
  const double days = trimmed.toDouble(&number);
  if (number && std::isfinite(days)) return TDateTime{days};
  const QStringList parts = trimmed.split(u' ', Qt::SkipEmptyParts);
  QDate date = FirstDay();
  QTime time(0, 0);
  if (parts.size() > 2) return {};
  const bool clockOnly = parts.size() == 1 && parts[0].contains(u':');
  if (!clockOnly) date = QDate::fromString(parts[0], Qt::ISODate);
  if (clockOnly || parts.size() == 2) time = QTime::fromString(parts.last(), Qt::ISODateWithMs);
  if (!date.isValid() || !time.isValid()) return {};
  return Joined(QDateTime(date, time, Qt::UTC));
}

DateTimeDialog::DateTimeDialog(QWidget* owner) : RowDialog(tr("Date and Time"), owner) {
  calendar = new QCalendarWidget(this);
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
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* box = new QVBoxLayout(this);
  box->addWidget(calendar, 1);
  box->addLayout(line);
  box->addLayout(buttons);
  const auto chosen = [this] {
    changed_ = true;
    none_ = false;
  };
  connect(calendar, &QCalendarWidget::selectionChanged, this, chosen);
  connect(calendar, &QCalendarWidget::clicked, this, chosen);
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
  Show(value.Days == 0 ? QDateTime(QDate::currentDate(), QTime(0, 0), Qt::UTC) : Split(value));
  changed_ = none_ = false;
}

TDateTime DateTimeDialog::DateTime() const {
  return none_ ? TDateTime{} : Joined(QDateTime(calendar->selectedDate(), time->time(), Qt::UTC));
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
