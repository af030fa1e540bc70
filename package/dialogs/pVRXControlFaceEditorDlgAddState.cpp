#include "package/dialogs/pVRXControlFaceEditorDlgAddState.h"

#include <QListWidget>
#include <QVBoxLayout>

#include "library/values/FaceStates.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"

using D = TVRXControlFaceEditorDlgAddState;

TVRXControlFaceEditorDlgAddState::TVRXControlFaceEditorDlgAddState(QWidget* owner)
    : RowDialog(QStringLiteral("Add States"), owner) {
  notUsedStates = Named(new QListWidget(this), "notUsedStates", "States that are not used yet");
  notUsedStates->setAccessibleName(QStringLiteral("States"));
  Follows(notUsedStates);
  Button(btnAll, "btnAll", "Select all", &D::allClick);
  Button(btnNone, "btnNone", "Select none", &D::noneClick);
  OkButton(btnOk, "btnOk", "Ok");
  CancelButton(btnCancel, "btnCancel");
  VRXSetThemeMode(*this, 1);
  auto* content = new QVBoxLayout;
  content->addWidget(notUsedStates);
  FinishBeside(content, {btnAll, btnNone}, {btnOk, btnCancel}, {360, 320});
}

void TVRXControlFaceEditorDlgAddState::SetUsedStates(const QStringList& used) {
  notUsedStates->clear();
  for (int i = 0; i < VRXCFCGetAvailableStatesCount(); ++i) {
    const QString description = VRXCFCGetStateDescription(i);
    if (used.contains(description)) continue;
    auto* item = new QListWidgetItem(description, notUsedStates);
    item->setCheckState(Qt::Unchecked);
  }
  notUsedStates->setCurrentRow(0);
}

QStringList TVRXControlFaceEditorDlgAddState::Checked() const {
  QStringList checked;
  for (int i = 0; i < notUsedStates->count(); ++i)
    if (notUsedStates->item(i)->checkState() == Qt::Checked) checked << notUsedStates->item(i)->text();
  return checked;
}

void TVRXControlFaceEditorDlgAddState::CheckAll(Qt::CheckState state) {
  for (int i = 0; i < notUsedStates->count(); ++i) notUsedStates->item(i)->setCheckState(state);
}
