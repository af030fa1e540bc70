// What the window itself can do, as one table: menus, tool bar, keys and the command palette read it. What is
// done to the selection stands in ide/operations/Actions.
#pragma once
#include <QObject>

#include "designer/CommandPalette.h"
#include "designer/DesignerWindow.h"

class QMenu;
class QToolBar;

enum class WindowMenu : std::uint8_t { File, Commands, Panes, Palette, Go, Zoom, Theme, FormColors, Help };

struct WindowCommand {
  const char* id;
  WindowMenu menu;  // what stands together
  const char* text;
  const char* keys;  // several with "; " between them
  const char* icon;  // of the icon theme; empty for none
  bool inToolBar;
  void (*run)(IDesignerWindow& window);
  // Empty when it can be done now; else why not, and what to do. Null: it always can.
  QString (*whyNot)(const IDesignerWindow& window);
  // Of what is on or off; null for all else.
  bool (*isOn)(const IDesignerWindow& window);

  QString Text() const;
  QString Title() const;  // "Form colors: Dark"
};
const std::vector<WindowCommand>& WindowCommandTable();

class WindowCommands : public QObject {
  Q_OBJECT
 public:
  WindowCommands(IDesignerWindow& window, QWidget& parent);
  void AddTo(QMenu& menu, WindowMenu part) const;
  void AddTo(QToolBar& bar, WindowMenu part) const;
  // What can be done now, and what is on.
  void Update();
  void AddTo(std::vector<CommandEntry>& rows) const;

 private:
  IDesignerWindow& window_;
  std::vector<std::pair<const WindowCommand*, QAction*>> actions_;
};
