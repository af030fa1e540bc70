// Everything that can be done, to be found by typing. What cannot be done now stands there with its reason.
#pragma once
#include <QFrame>
#include <QIcon>
#include <functional>

class QAction;
class QListView;
class SearchField;

struct CommandEntry {
  QString id;  // what is remembered when it was used
  QString title;
  QString keys;
  QIcon icon;
  QString reason;  // why it cannot be done; empty: it can
  std::function<void()> run;
};
// The action must outlive the row. Its status tip is the reason.
CommandEntry EntryOf(QAction& action, const QString& title);

class CommandPalette : public QFrame {
  Q_OBJECT
 public:
  // Opens at the top of the window, and is gone when something was chosen, or nothing.
  CommandPalette(QWidget& window, std::vector<CommandEntry> rows);

  SearchField& Field() { return *field_; }
  QListView& List() { return *list_; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Filter();
  void Move(int step);
  void RunCurrent();

  std::vector<CommandEntry> rows_;  // those used last first
  SearchField* field_;
  QListView* list_;
  class CommandListModel* model_;
};
