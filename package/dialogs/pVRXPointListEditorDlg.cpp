#include "package/dialogs/pVRXPointListEditorDlg.h"

#include <QGridLayout>

#include "library_design/pVRXCommon.h"
#include "package/dialogs/LinesTable.h"
#include "package/dialogs/PointsModel.h"

using D = TfrmTVRXPointListEditor;

QValidator::State PointEdit::validate(QString& text, int& position) const {
  const QValidator::State state = TVRXSpinEdit::validate(text, position);
  bool number = false;
  locale().toInt(text, &number);
  return state == QValidator::Invalid && number ? QValidator::Intermediate : state;
}
void PointEdit::fixup(QString& text) const {
  bool number = false;
  const int value = locale().toInt(text, &number);
  if (number) text = textFromValue(std::clamp(value, minimum(), maximum()));
}

TfrmTVRXPointListEditor::TfrmTVRXPointListEditor(QWidget* owner)
    : RowDialog(QStringLiteral("Point List Editor"), owner), points_(new PointsModel(this)) {
  constexpr int Most = 1000, Digits = 5;
  setObjectName(QStringLiteral("frmTVRXPointListEditor"));
  plb = new LinesTable(points_, "plb", this);
  plb->setAccessibleName(QStringLiteral("Points"));
  Follows(plb);
  auto* fields = new QGridLayout;
  RowsInto(*fields);
  Row(XVal, "XVal", "", "&X:", "From the left").Range(-Most, Most, Digits).Changes(&D::XValExit);
  Row(YVal, "YVal", "", "&Y:", "From the top").Range(-Most, Most, Digits).Changes(&D::YValExit);
  Button(AddBtn, "AddBtn", "&Add", &D::AddBtnClick, "A point behind the others");
  Button(DelBtn, "DelBtn", "De&lete", &D::DelBtnClick, "The selected point");
  Button(UpBtn, "UpBtn", "&Up", &D::UpBtnClick, "Exchanges the selected point with the one above");
  Button(DownBtn, "DownBtn", "&Down", &D::DownBtnClick, "Exchanges the selected point with the one below");
  OkButton(OkBtn, "OkBtn", "Ok");
  CancelButton(CancelBtn, "CancelBtn");
  connect(plb->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &D::SetLabels);
  VRXSetThemeMode(*this, 1);
  auto* left = new QVBoxLayout;
  left->addWidget(plb, 1);
  left->addLayout(fields);
  FinishBeside(left, {AddBtn, DelBtn, UpBtn, DownBtn}, {OkBtn, CancelBtn}, {360, 320});
  SetLabels();
}

void TfrmTVRXPointListEditor::SetPointList(const TVRXPointList& list) { points_->Append(list.Points()); }

void TfrmTVRXPointListEditor::GetPointList(TVRXPointList& list) const {
  const TUpdateLock lock(list);
  list.Clear();
  for (const QPoint point : points_->Points()) list.AddPoint(point);
}

QStringList TfrmTVRXPointListEditor::Lines() const {
  QStringList lines;
  for (const QPoint point : points_->Points())
    lines << QStringLiteral("%1;%2;").arg(point.x()).arg(point.y());
  return lines;
}

int TfrmTVRXPointListEditor::CurrentRow() const { return plb->CurrentRow(); }
void TfrmTVRXPointListEditor::Select(int row) { plb->Select(row); }

// Without a selected point the fields say nothing.
void TfrmTVRXPointListEditor::LoadControls() {
  const int row = CurrentRow();
  const QPoint point = row >= 0 ? points_->Points()[row] : QPoint();
  XVal->Show(point.x());
  YVal->Show(point.y());
  for (QWidget* control :
       {static_cast<QWidget*>(XVal), static_cast<QWidget*>(YVal), static_cast<QWidget*>(DelBtn)})
    control->setEnabled(row >= 0);
  UpBtn->setEnabled(row > 0);
  DownBtn->setEnabled(row >= 0 && row < points_->rowCount() - 1);
}

void TfrmTVRXPointListEditor::XValExit() {
  if (const int row = CurrentRow(); row >= 0) points_->Set(row, {XVal->value(), points_->Points()[row].y()});
}
void TfrmTVRXPointListEditor::YValExit() {
  if (const int row = CurrentRow(); row >= 0) points_->Set(row, {points_->Points()[row].x(), YVal->value()});
}

void TfrmTVRXPointListEditor::AddBtnClick() {
  points_->Append({QPoint()});
  Select(points_->rowCount() - 1);
}

void TfrmTVRXPointListEditor::DelBtnClick() {
  const int row = CurrentRow();
  if (row < 0) return;
  points_->Remove(row);
  Select(std::min(row, points_->rowCount() - 1));
  SetLabels();
}

// The selection stays where it is: it meets the other point.
void TfrmTVRXPointListEditor::Exchange(int by) {
  const int row = CurrentRow(), other = row + by;
  if (row < 0 || other < 0 || other >= points_->rowCount()) return;
  points_->Swap(row, other);
  SetLabels();
}
