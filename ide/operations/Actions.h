// What can be done to an open form, as one table. Menus, tool bar, keyboard and vrx read it.
#pragma once
#include "ide/operations/Clipboard.h"

struct ActionContext {
  FormSession& session;
  IClipboard& clipboard;
  int grid = 8;
};

// What stands together in menus; those with a title have a menu of their own.
enum class ActionGroup : std::uint8_t { Undo, Clipboard, Select, Align, Size, Spacing, Order, Grid };
struct ActionGroupRow {
  ActionGroup group;
  const char* title;
  const char* icon;
  QString Text() const;
};
const std::vector<ActionGroupRow>& ActionGroups();

struct ActionRow {
  const char* id;
  ActionGroup group;
  const char* text;       // with the key of the menu
  const char* shortcuts;  // "Ctrl+X", several with "; " between them
  const char* icon;       // of the icon theme; empty for none
  bool inToolBar;
  // Empty when it can be done with the selection; else why not, and what to do.
  QString (*whyNot)(const FormSession& session);
  // What the undo step would be; null: the text is always the same.
  QString (*object)(const FormSession& session);
  // One command, or none when nothing changed. Throws when it cannot be done; nothing is changed then.
  void (*run)(ActionContext& context, const ActionRow& row);

  // "Align: Left edges", without the key.
  QString Title() const;
  QString Text() const;
  // With what it would work on now: "&Undo Move".
  QString TextFor(const FormSession& session) const;
};
const std::vector<ActionRow>& ActionTable();
// Null when there is none of that id.
const ActionRow* FindAction(const QString& id);
// Exception with the reason when it cannot be done.
void RunAction(const ActionRow& row, ActionContext& context);
