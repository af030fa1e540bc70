#include "package/dialogs/pVRXDateListEditorDlg.h"

#include <QGridLayout>
#include <QTimeEdit>
#include <climits>

#include "library_design/pVRXCommon.h"
#include "package/dialogs/DatePicker.h"
#include "package/dialogs/LinesTable.h"
#include "rtl/Clock.h"
#include "rtl/Exceptions.h"

using D = TVRXDateListEditorDlg;

TVRXDateListEditorDlg::TVRXDateListEditorDlg(QWidget* owner)
    : RowDialog(QStringLiteral("Date List Property Editor"), owner), lines_(new DateLines(this)) {
  setObjectName(QStringLiteral("VRXDateListEditorDlg"));
  DList = new LinesTable(lines_, "DList", this);
  DList->setAccessibleName(QStringLiteral("Dates"));
  DList->setColumnWidth(0, 110);
  Follows(DList);
  auto* fields = new QGridLayout;
  RowsInto(*fields);
  const auto field = [&](QWidget* widget, const char* name, const QString& text, const char* hint) {
    widget->setObjectName(QString::fromLatin1(name));
    widget->setToolTip(QString::fromLatin1(hint));
    Follows(widget);
    auto* label = new QLabel(text, this);
    label->setBuddy(widget);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int row = fields->rowCount();
    fields->addWidget(label, row, 0);
    fields->addWidget(widget, row, 1);
  };
  field(DateEdit = new DatePicker(this), "DateEdit", QStringLiteral("&Date:"),
        "The day; the arrow or Alt+Down opens a calendar");
  field(TimeEdit = new QTimeEdit(this), "TimeEdit", QStringLiteral("&Time:"), "The time of day");
  TimeEdit->setDisplayFormat(TimeFormatOf());
  Row(Des, "Des", "", "D&escription:", "What there is to say of it; 255 letters are kept")
      .Changes(&D::DesTextChangedAt);
  Des->setMaxLength(INT_MAX);
  Button(AddBtn, "AddBtn", "&Add", &D::AddBtnClick, "The present date and time, behind the others");
  Button(DelBtn, "DelBtn", "De&lete", &D::DelBtnClick, "The selected line");
  Button(UpBtn, "UpBtn", "&Up", &D::UpBtnClick, "Selects the line above");
  Button(DnButn, "DnButn", "Do&wn", &D::DnButnClick, "Selects the line below");
  OkButton(OkBtn, "OkBtn", "Ok");
  CancelButton(CancelBtn, "CancelBtn");
  connect(DList->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &D::DListClick);
  connect(DateEdit, &QDateEdit::dateChanged, this, [this] { Guarded([this] { DateEditChange(); }); });
  connect(TimeEdit, &QTimeEdit::timeChanged, this, [this] { Guarded([this] { TimeEditChange(); }); });
  VRXSetThemeMode(*this, 1);
  auto* left = new QVBoxLayout;
  left->addWidget(DList, 1);
  left->addLayout(fields);
  FinishBeside(left, {AddBtn, DelBtn, UpBtn, DnButn}, {OkBtn, CancelBtn}, {480, 380});
  SetLabels();
}

void TVRXDateListEditorDlg::DListClick() { SetLabels(); }

namespace {
// What cannot be read leaves the field at its start; nothing is written by that.
TDateTime MomentOr0(const QString& text, TDateTime (*read)(const QString&, const QLocale&)) {
  try {
    return read(text, QLocale());
  } catch (const EConvertError&) {
    return {};
  }
}
}  // namespace

void TVRXDateListEditorDlg::LoadControls() {
  const int row = DList->CurrentRow();
  const TVRXDateLine line = row >= 0 ? lines_->Line(row) : TVRXDateLine();
  DateEdit->setDate(SplitDateTime(MomentOr0(line.Date, StrToDate)).date());
  TimeEdit->setTime(SplitDateTime(MomentOr0(line.Time, StrToTime)).time());
  if (Des->text() != line.Description) Des->setText(line.Description);
  for (QWidget* control : {static_cast<QWidget*>(DateEdit), static_cast<QWidget*>(TimeEdit),
                           static_cast<QWidget*>(Des), static_cast<QWidget*>(DelBtn)})
    control->setEnabled(row >= 0);
  UpBtn->setEnabled(row > 0);
  DnButn->setEnabled(row < lines_->rowCount() - 1);
}

void TVRXDateListEditorDlg::AddBtnClick() {
  const TDateTime now = JoinDateTime(ClockDateTime());
  lines_->Append({DateToStr(now), TimeToStr(now), QStringLiteral("-")});
  DList->Select(lines_->rowCount() - 1);
}

void TVRXDateListEditorDlg::DelBtnClick() {
  const int row = DList->CurrentRow();
  if (row < 0) return;
  lines_->Remove(row);
  DList->Select(std::min(row, lines_->rowCount() - 1));
  SetLabels();
}

// These move the selection, not the lines.
void TVRXDateListEditorDlg::UpBtnClick() {
  if (DList->CurrentRow() > 0) DList->Select(DList->CurrentRow() - 1);
}
void TVRXDateListEditorDlg::DnButnClick() {
  if (DList->CurrentRow() < lines_->rowCount() - 1) DList->Select(DList->CurrentRow() + 1);
}

void TVRXDateListEditorDlg::DateEditChange() {
  const int row = DList->CurrentRow();
  if (row >= 0) lines_->SetDate(row, DateToStr(JoinDateTime(DateEdit->date().startOfDay(Qt::UTC))));
}
void TVRXDateListEditorDlg::TimeEditChange() {
  const int row = DList->CurrentRow();
  if (row >= 0)
    lines_->SetTime(row, TimeToStr(JoinDateTime(QDateTime(QDate(1899, 12, 30), TimeEdit->time(), Qt::UTC))));
}
void TVRXDateListEditorDlg::DesTextChangedAt() {
  const int row = DList->CurrentRow();
  if (row >= 0) lines_->SetDescription(row, Des->text());
}
