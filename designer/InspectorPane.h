// The object inspector: which component, its properties and events, and what the current one is for.
//
// The current row's value stands in an editor over its cell. Whatever leaves the row applies what was typed;
// a refused value keeps row, text and reason until it is corrected or Escape restores the old one. Tab and
// the arrows walk the values; Escape goes from the value to the list of rows, and Tab from there on.
#pragma once
#include <QWidget>

#include "ide/InspectorModel.h"

class ComponentBox;
class QAction;
class QLabel;
class QLineEdit;
class QTabBar;
class QToolButton;
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
  QLineEdit& FilterField() { return *filter_; }
  // Makes the row of a property current ("LED.ActiveColor"), opening what is above it. False when there is
  // none, or the present row cannot be left.
  bool ShowProperty(const QString& path);
  void FocusValue();
  // Applies what was typed. False when it is refused; the reason stands under the value then.
  bool Commit();

 signals:
  void Message(const QString& text);  // something to know that needs no answer
  void Typing();                      // there may be something to apply, or nothing any more

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Where the person was on a page.
  struct Place {
    QString path;
    int scroll = 0;
  };
  // What was typed when the rows were made anew.
  struct Unfinished {
    std::vector<TComponent*> components;
    QString path, text, problem;
  };
  void BuildLayout(QToolButton* grouped);
  void ConnectRows();
  void ShowPage(int page);
  void Group(QToolButton& grouped, bool on);
  void CurrentChanged();
  bool Apply(const QString& text);
  void OpenDialog();
  void PlaceEditor();
  void HideEditor();
  void ShowValue(bool keepTyping = false);
  void ValuesChanged(const QModelIndex& first, const QModelIndex& last);
  void RememberRows();
  void RestoreRows();
  void RestoreUnfinished();
  void OpenHits(const QModelIndex& parent);
  void TellWhenNothingFits();
  void Closed(const QModelIndex& row);
  void Walk(int rows);
  void OpenRow(bool open);
  void GoToFirstHit();
  void ShowMenu(const QPoint& pos);
  void RevertToInherited();
  void TellDescription();
  void JumpTo(const QString& typed);
  bool FilterKey(int key);
  bool ListKey(const QKeyEvent& event);
  void CellClicked(const QPoint& pos);
  QModelIndex CurrentRow() const;

  InspectorModel model_;
  ComponentBox* components_;
  QTabBar* tabs_;
  QLineEdit* filter_;
  QLabel* nothing_;  // that the filter leaves no row
  QTreeView* view_;
  ValueEditor* editor_;
  QLabel* description_;
  QAction* revert_;
  QSet<QString> expanded_;
  QSet<QString> closedCategories_;
  std::array<Place, 2> places_;
  std::optional<Unfinished> unfinished_;
  QString typed_;
  std::int64_t lastTyped_ = 0;
  int page_ = 0;
  bool inSight_ = true;    // whether the current row could be seen
  bool filling_ = false;   // the rows are made anew
  bool applying_ = false;  // a value is on its way
  bool hiding_ = false;    // the editor goes
};
