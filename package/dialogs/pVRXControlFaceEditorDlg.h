// Edits a face controller: its setting objects, its states, and which objects apply in which state. Works on
// a copy; both lists can be kept in files.
#pragma once
#include <QMenu>

#include "dclstd/RowDialog.h"
#include "library/components/FaceController.h"

class QListWidget;
class QTreeWidget;
class QTreeWidgetItem;

class TVRXControlFaceEditorDlg : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXControlFaceEditorDlg(QWidget* owner);
  ~TVRXControlFaceEditorDlg() override;

  // What is edited: a copy of it.
  void Edit(const TVRXFaceController& controller);
  void Edit(const TVRXCFCStateObjects& states);
  const TVRXFaceController& EditFaceController() const { return controller_; }
  // Descriptions of the states that were shown since the list was emptied; these are not offered again.
  const QStringList& UsedStates() const { return used_; }
  void FormActivate() override;

  // What buttons and menu entries stand for.
  enum Tag {
    tagLoad = 100,
    tagSave = 110,
    tagAdd = 120,
    tagRemove = 130,
    tagClear = 140,
    tagLoadSettings = 200,
    tagSaveSettings = 210,
    tagClearSettings = 220,
    tagRemoveSetting = 230,
    tagProperties = 240,
    tagRemoveFromState = 250
  };
  // By these.
  void StateHandler(int tag);
  void SettingHandler(int tag);
  void AddSettings(TVRXCFCSettingObjectKind kind);
  void AddToState();
  void EditStateObject();

  QListWidget *controllerStateList, *stateObjectList;
  QTreeWidget* controllerObjectsList;
  QToolButton *btnLoad, *btnSave, *btnAddState, *remove, *clear;
  QToolButton *VRXSpeedButton1, *VRXSpeedButton2, *VRXSpeedButton4, *VRXSpeedButton3, *btnProp;
  std::vector<QToolButton*> addButtons;
  QLineEdit* edFilePath;
  QToolButton* btnBrowse;
  QPushButton *btnOk, *btnCancel;
  QMenu *PopupMenu1, *popMnuStateObjects;
  QAction *mnuProperties, *mnuAddToState, *mnuEdit, *mnuRemove;

 protected:
  bool ReturnConfirms() const override;

 private:
  QToolButton* SpeedButton(const char* name, const char* hint, const char* drawing,
                           std::function<void()> click);
  QAction* MenuAction(QMenu& menu, const char* name, const char* text, std::function<void()> act);
  QMenu* MenuOf(QWidget& list, const char* name);
  QLayout* StatePart();
  QLayout* SettingPart();
  QLayout* LastLine();

  void RefreshSettings();
  void RefreshStates();
  void RefreshStateObjects();
  void SelectState(int index);
  int SelectedState() const;
  int SelectedSetting() const;
  TVRXCFCStateObject* State() const;
  void ClearStates();
  void Renamed(QTreeWidgetItem* item);
  void LoadStates();
  void AddStates();
  void LoadSettings();
  // Empty when it was cancelled.
  QString ChooseFile(bool save, const QString& name, const QString& filter);
  void browseClick();

  TVRXFaceController controller_{nullptr};
  QStringList used_;
  QString rememberedPath_;
  bool refreshing_ = false;
};
