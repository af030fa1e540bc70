// Chooses the properties that a storage component saves. Works on rows of its own; the storage has them after
// OK. Exclusions are the user's own and hold at once, however the dialog ends.
#pragma once
#include <QHash>

#include "dclstd/RowDialog.h"
#include "library/storage/ObjectStorage.h"

class QTreeView;
class QTreeWidget;
class StorageTree;

class TVRXOSPropForm : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXOSPropForm(QWidget* owner);
  // What is edited when the person confirms.
  void Edit(TVRXObjectStorage& storage);

  void FormActivate() override;
  void FormShow();
  void UpdatePropertiesTree();
  void UpdateBtn();
  bool IsPropertyExist(const QString& componentName, const QString& propName) const;
  // A collection that has the same properties already stays as it is, in its order.
  void Apply();

  void ToBtnClick();
  void FromBtnClick();
  void AllDelBtnClick();
  void ExclAddClick();
  void ExclDelClick();

  QTreeView* ComponentsTree;
  StorageTree* Tree;
  QToolButton *ToBtn, *FromBtn, *ExclAdd, *ExclDel, *AllDelBtn;
  QLabel* Label1;
  QTreeWidget *PropListView, *ExcludedPropertiesList;
  QPushButton *OkBtn, *CancelBtn;

 protected:
  void done(int result) override;

 private:
  QTreeWidget* List(const char* name, const QStringList& titles, const char* hint);
  QToolButton* SpeedButton(const char* name, const char* text, const char* hint,
                           void (TVRXOSPropForm::*handler)());
  void AddRow(const QString& component, const QString& property);
  void KeysOf(QWidget& list, void (TVRXOSPropForm::*remove)());
  void Count(const QString& component, const QString& property, int by);

  TVRXObjectStorage* storage_ = nullptr;
  QHash<QString, int> stored_;  // rows by what they say
};
