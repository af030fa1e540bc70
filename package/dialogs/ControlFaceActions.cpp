// What the buttons and menus of the editor of face controllers do.
#include <QDir>
#include <QListWidget>
#include <QScopedValueRollback>
#include <QTreeWidget>

#include "library_design/SettingEditors.h"
#include "package/dialogs/pVRXControlFaceEditorDlg.h"
#include "package/dialogs/pVRXControlFaceEditorDlgAddState.h"
#include "vcl/Prompts.h"

namespace {
// A name and the pattern that belongs to it.
const QString StatesFilter = QStringLiteral("States and Settings ((*.fcstates))|*.fcstates");
const QString LoadSettingsFilter = QStringLiteral("FaceController Settings ((*.fcsettings))|*.fcsettings");
const QString SaveSettingsFilter = QStringLiteral("FaceController Settings (*.fcsettings)|*.fcsettings");
QString PromptFilter(const QString& filter) {
  return QStringLiteral("%1 (%2)").arg(filter.section(u'|', 0, 0), filter.section(u'|', 1));
}
}  // namespace

// --- States

// The file dialogs find the default extension in name and filter.
QString TVRXControlFaceEditorDlg::ChooseFile(bool save, const QString& name, const QString& filter) {
  const QString folder = edFilePath->text();
  const QString start = folder.isEmpty() ? name : QDir(folder).filePath(name);
  const QString file = save ? Prompts().SaveFileName(this, windowTitle(), start, PromptFilter(filter))
                            : Prompts().OpenFileName(this, windowTitle(), start, PromptFilter(filter));
  // The pattern that the field starts with is no name.
  return file.section(u'/', -1).contains(u'*') ? QString() : file;
}

void TVRXControlFaceEditorDlg::ClearStates() {
  used_.clear();
  controller_.States()->Clear();
}

void TVRXControlFaceEditorDlg::LoadStates() {
  const QString file = ChooseFile(false, QStringLiteral("*.fcstates"), StatesFilter);
  if (file.isEmpty()) return;
  controller_.LoadFromFile(file);
  used_.clear();
  RefreshSettings();
  RefreshStates();
  if (SelectedState() < 0) SelectState(0);
  RefreshStateObjects();
}

void TVRXControlFaceEditorDlg::AddStates() {
  const int selected = SelectedState();
  TVRXControlFaceEditorDlgAddState dialog(this);
  dialog.SetUsedStates(used_);
  if (dialog.ShowModal() == mrOk)
    for (const QString& description : dialog.Checked()) {
      TVRXCFCStateKind kind{};
      if (VRXCFCGetStateByDescription(description, kind)) controller_.States()->Add()->setKind(kind);
    }
  RefreshStates();
  SelectState(selected);
  RefreshStateObjects();
}

void TVRXControlFaceEditorDlg::StateHandler(int tag) {
  switch (tag) {
    case tagLoad:
      return LoadStates();
    case tagSave:
      if (const QString file = ChooseFile(true, QStringLiteral("*.fcstates"), StatesFilter); !file.isEmpty())
        controller_.SaveToFile(file);
      return;
    case tagAdd:
      return AddStates();
    case tagRemove:
      if (const int selected = SelectedState(); selected >= 0) {
        controller_.States()->Delete(selected);
        RefreshStates();
        SelectState(selected);
        RefreshStateObjects();
      }
      return;
    case tagClear:
      if (controller_.States()->Count() == 0 ||
          !Prompts().Confirm(this, windowTitle(),
                             QStringLiteral("Do you really want to delete list of states?")))
        return;
      ClearStates();
      RefreshStates();
      return RefreshStateObjects();
    default:
      return;
  }
}

// --- Setting objects

void TVRXControlFaceEditorDlg::LoadSettings() {
  const QString file = ChooseFile(false, QStringLiteral("*.fcSettings"), LoadSettingsFilter);
  if (file.isEmpty()) return;
  controller_.SettingObjects()->LoadFromFile(file);
  ClearStates();
  RefreshSettings();
  RefreshStates();
  RefreshStateObjects();
}

void TVRXControlFaceEditorDlg::SettingHandler(int tag) {
  const int selected = SelectedSetting();
  TVRXCFCSettingObjects& settings = *controller_.SettingObjects();
  switch (tag) {
    case tagLoadSettings:
      return LoadSettings();
    case tagSaveSettings:
      if (const QString file = ChooseFile(true, QStringLiteral("*.fcSettings"), SaveSettingsFilter);
          !file.isEmpty())
        settings.SaveToFile(file);
      return;
    case tagClearSettings:
      if (settings.Count() == 0 ||
          !Prompts().Confirm(this, windowTitle(),
                             QStringLiteral("Do you really want to delete list of object settings?\r"
                                            "Note: All state settings will be cleared as well!")))
        return;
      settings.Clear();
      ClearStates();
      RefreshSettings();
      RefreshStates();
      return RefreshStateObjects();
    case tagRemoveSetting:
      if (selected < 0) return;
      controller_.RemoveSettingObject(selected);
      RefreshSettings();
      return RefreshStateObjects();
    case tagProperties:
      if (selected >= 0 && settings.Items(selected) && VRXCPGetSettingEditor(*settings.Items(selected)))
        RefreshSettings();
      return;
    case tagRemoveFromState:
      if (State() && stateObjectList->currentRow() >= 0) {
        State()->Delete(stateObjectList->currentRow());
        RefreshStateObjects();
      }
      return;
    default:
      return;
  }
}

void TVRXControlFaceEditorDlg::AddSettings(TVRXCFCSettingObjectKind kind) {
  const auto add = [&] {
    const int index = controller_.AddSettingObject(kind);
    RefreshSettings();
    controllerObjectsList->setCurrentItem(controllerObjectsList->topLevelItem(index));
    return controller_.SettingObjects()->Items(index);
  };
  if (kind != TVRXCFCSettingObjectKind::okStyle) {
    add();
    return;
  }
  for (const char* name : StateStyleNames) {
    As<TVRXStateStyle>(add())->SetStyleName(QString::fromLatin1(name));
    RefreshSettings();
  }
}

void TVRXControlFaceEditorDlg::AddToState() {
  const int selected = SelectedSetting();
  if (!State() || selected < 0) return;
  State()->Add(controller_.SettingObjects()->Items(selected), true);
  RefreshStateObjects();
}

void TVRXControlFaceEditorDlg::EditStateObject() {
  const TVRXCFCStateObject* state = State();
  const int row = stateObjectList->currentRow();
  if (!state || row < 0 || row >= state->Count()) return;
  const int setting = controller_.SettingObjects()->IndexOfObject(state->Items(row));
  if (setting < 0) return;
  QTreeWidgetItem* item = controllerObjectsList->topLevelItem(setting);
  controllerObjectsList->setCurrentItem(item);
  controllerObjectsList->scrollToItem(item);
  SettingHandler(tagProperties);
}

void TVRXControlFaceEditorDlg::Renamed(QTreeWidgetItem* item) {
  TVRXCFCSettingObjects& settings = *controller_.SettingObjects();
  const int index = controllerObjectsList->indexOfTopLevelItem(item);
  if (index < 0) return;
  const QString before = settings.Setting(index)->Get(TVRXCFCSettingObject::ObjName), name = item->text(0);
  const int other = settings.IndexOf(name);
  const bool taken = other >= 0 && other != index && name != before;
  if (taken || name.isEmpty()) {
    const QScopedValueRollback quiet(refreshing_, true);
    item->setText(0, before);
    // Not before the field is closed, which would hear of the message's window: whoever clicked a button has
    // not confirmed then, and goes on with the row.
    if (taken)
      QMetaObject::invokeMethod(
          this,
          [this, index] {
            Prompts().Inform(this, windowTitle(), QStringLiteral("This name exists in object list already!"));
            controllerObjectsList->setCurrentItem(controllerObjectsList->topLevelItem(index));
            controllerObjectsList->setFocus();
          },
          Qt::QueuedConnection);
    return;
  }
  settings.SetObjName(index, name);
  controller_.States()->SynchronizeNames();
  RefreshStateObjects();
}
