// The object inspector: which component, its properties and events, and what the current one is for.
#pragma once
#include <QWidget>

#include "ide/InspectorModel.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QTabBar;
class QTreeView;
class ValueEditor;

class InspectorPane : public QWidget {
  Q_OBJECT
 public:
  explicit InspectorPane(QWidget* parent = nullptr);
  void SetSession(FormSession* session);

  InspectorModel& Model() { return model_; }
  QTreeView& View() { return *view_; }
  ValueEditor& Editor() { return *editor_; }
  // Makes the row of a property current ("LED.ActiveColor"), opening what is above it. False when there is
  // none.
  bool ShowProperty(const QString& path);
  void FocusValue();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void CurrentChanged(const QModelIndex& now, const QModelIndex& before);
  bool Apply(const QString& text);
  void OpenDialog();
  void PlaceEditor();
  void RefreshEditor();
  void RememberExpanded();
  void RestoreExpanded();
  void FillComponents();
  void ShowMenu(const QPoint& pos);
  void JumpTo(const QString& typed);

  InspectorModel model_;
  FormSession* session_ = nullptr;
  QComboBox* components_;
  QTabBar* tabs_;
  QLineEdit* filter_;
  QTreeView* view_;
  ValueEditor* editor_;
  QLabel* description_;
  QSet<QString> expanded_;
  QString currentPath_;
  QString typed_;
  std::int64_t lastTyped_ = 0;
  bool returning_ = false;
  bool filling_ = false;
};
