#include "ide/operations/Actions.h"

#include <QCoreApplication>

#include "ide/operations/Arrange.h"
#include "ide/operations/HiddenIcons.h"
#include "rtl/Exceptions.h"

namespace {
using Context = ActionContext;
using Row = ActionRow;
using Group = ActionGroup;

QString Always(const FormSession&) { return {}; }
QString Undoable(const FormSession& session) {
  return session.CanUndo() ? QString() : OperationText("There is nothing to undo.");
}
QString Redoable(const FormSession& session) {
  return session.CanRedo() ? QString() : OperationText("There is nothing to redo.");
}
QString UndoText(const FormSession& session) { return session.UndoText(); }
QString RedoText(const FormSession& session) { return session.RedoText(); }
template <std::size_t N>
QString Components(const FormSession& session) {
  const auto selected = session.SelectedComponents();
  if (selected.size() >= N && selected.front() != session.GetRoot()) return {};
  if (N > 1) return OperationText("Select at least %1 components.").arg(N);
  return OperationText("Select a component: this cannot be done to the form itself.");
}
// Nothing on a data module has a size or covers another.
template <std::size_t N>
QString Controls(const FormSession& session) {
  if (session.Form().AcceptsControls()) return Components<N>(session);
  return OperationText("%1 is a data module: what stands on it are no controls.").arg(session.Form().Name());
}

QString HiddenIcons(const FormSession& session) {
  if (!SelectedHiddenIcons(session).empty()) return {};
  return OperationText("No icon of what is selected is hidden.");
}

template <TEdge edge>
void RunAlign(Context& c, const Row& row) {
  AlignEdges(c.session, row.Title(), edge);
}
template <bool width, bool height>
void RunSize(Context& c, const Row& row) {
  MakeSameSize(c.session, row.Title(), width, height);
}
template <Qt::Orientation direction>
void RunSpace(Context& c, const Row& row) {
  SpaceEqually(c.session, row.Title(), direction);
}
template <bool toFront>
void RunOrder(Context& c, const Row& row) {
  ChangeOrder(c.session, row.Title(), toFront);
}

void RunUndo(Context& c, const Row&) { c.session.Undo(); }
void RunRedo(Context& c, const Row&) { c.session.Redo(); }
void RunCut(Context& c, const Row&) { CutSelection(c.session, c.clipboard); }
void RunCopy(Context& c, const Row&) { CopySelection(c.session, c.clipboard); }
void RunPaste(Context& c, const Row&) { PasteInto(c.session, c.clipboard, c.grid); }
void RunDuplicate(Context& c, const Row&) { DuplicateSelection(c.session, c.grid); }
void RunDelete(Context& c, const Row&) { c.session.DeleteSelection(); }
void RunSelectAll(Context& c, const Row&) {
  auto all = c.session.AllComponents();
  all.erase(all.begin());
  c.session.Select(all);
}
void RunToGrid(Context& c, const Row& row) { AlignToGrid(c.session, row.Title(), c.grid); }
void RunShowIcons(Context& c, const Row& row) { ShowHiddenIcons(c.session, row.Title()); }
}  // namespace

// clang-format off
const std::vector<ActionGroupRow>& ActionGroups() {
  static const std::vector<ActionGroupRow> groups{
      {Group::Undo, "",          ""},
      {Group::Clipboard,         "",          ""},
      {Group::Select,            "",          ""},
      {Group::Align, "&Align",   "align-horizontal-left"},
      {Group::Size, "&Size",     "transform-scale"},
      {Group::Spacing,           "S&pacing",  "distribute-horizontal-equal"},
      {Group::Order, "&Order",   "object-order-front"},
      {Group::Grid,              "",          ""},
  };
  return groups;
}

const std::vector<ActionRow>& ActionTable() {
  static const std::vector<ActionRow> table{
      {"undo",         Group::Undo, "&Undo", "Ctrl+Z",               "edit-undo",       true,  Undoable,      UndoText, RunUndo},
      {"redo",         Group::Undo, "&Redo", "Ctrl+Shift+Z; Ctrl+Y", "edit-redo",       true,  Redoable,      RedoText, RunRedo},
      {"cut",          Group::Clipboard, "Cu&t",          "Ctrl+X",               "edit-cut",        true,  Components<1>, nullptr, RunCut},
      {"copy",         Group::Clipboard, "&Copy",         "Ctrl+C",               "edit-copy",       true,  Components<1>, nullptr, RunCopy},
      {"paste",        Group::Clipboard, "&Paste",        "Ctrl+V",               "edit-paste",      true,  Always,        nullptr, RunPaste},
      {"duplicate",    Group::Clipboard, "D&uplicate",    "Ctrl+D",               "window-duplicate", false, Components<1>, nullptr, RunDuplicate},
      {"delete",       Group::Clipboard, "&Delete",       "Del",                  "edit-delete",     true,  Components<1>, nullptr, RunDelete},
      {"selectAll",    Group::Select,    "Select &all",   "Ctrl+A",               "edit-select-all", false, Always,        nullptr, RunSelectAll},
      {"alignLeft",    Group::Align, "&Left edges",   "", "align-horizontal-left",   true, Components<2>, nullptr, RunAlign<TEdge::Left>},
      {"alignCenter",  Group::Align, "&Centers",      "", "align-horizontal-center", true, Components<2>, nullptr, RunAlign<TEdge::Center>},
      {"alignRight",   Group::Align, "&Right edges",  "", "align-horizontal-right",  true, Components<2>, nullptr, RunAlign<TEdge::Right>},
      {"alignTop",     Group::Align, "&Top edges",    "", "align-vertical-top",      true, Components<2>, nullptr, RunAlign<TEdge::Top>},
      {"alignMiddle",  Group::Align, "&Middles",      "", "align-vertical-center",   true, Components<2>, nullptr, RunAlign<TEdge::Middle>},
      {"alignBottom",  Group::Align, "&Bottom edges", "", "align-vertical-bottom",   true, Components<2>, nullptr, RunAlign<TEdge::Bottom>},
      {"sameWidth",    Group::Size, "Same &width",   "", "transform-scale-horizontal", true, Controls<2>, nullptr, RunSize<true, false>},
      {"sameHeight",   Group::Size, "Same &height",  "", "transform-scale-vertical",   true, Controls<2>, nullptr, RunSize<false, true>},
      {"sameSize",     Group::Size, "Same &size",    "", "transform-scale",            true, Controls<2>, nullptr, RunSize<true, true>},
      {"spaceHorizontally", Group::Spacing, "Equal &horizontally", "", "distribute-horizontal-equal", true, Components<3>, nullptr, RunSpace<Qt::Horizontal>},
      {"spaceVertically",   Group::Spacing, "Equal &vertically",   "", "distribute-vertical-equal",   true, Components<3>, nullptr, RunSpace<Qt::Vertical>},
      {"bringToFront", Group::Order, "Bring to &front", "", "object-order-front", true, Controls<1>, nullptr, RunOrder<true>},
      {"sendToBack",   Group::Order, "Send to &back",   "", "object-order-back",  true, Controls<1>, nullptr, RunOrder<false>},
      {"alignToGrid",  Group::Grid, "Align to &grid", "", "grid-rectangular", true, Components<1>, nullptr, RunToGrid},
      {"showIcons",    Group::Grid, "Show hidden &icons", "", "view-visible", false, HiddenIcons, nullptr, RunShowIcons},
  };
  return table;
}
// clang-format on

namespace {
QString WithoutKey(const char* text) { return OperationText(text).remove(u'&'); }
}  // namespace

QString ActionGroupRow::Text() const { return OperationText(title); }

QString ActionRow::Text() const { return OperationText(text); }

QString ActionRow::TextFor(const FormSession& session) const {
  const QString what = object ? object(session) : QString();
  return what.isEmpty() ? Text() : Text() + u' ' + what;
}

QString ActionRow::Title() const {
  for (const ActionGroupRow& g : ActionGroups())
    if (g.group == group && *g.title) return WithoutKey(g.title) + QStringLiteral(": ") + WithoutKey(text);
  return WithoutKey(text);
}

const ActionRow* FindAction(const QString& id) {
  for (const ActionRow& row : ActionTable())
    if (id == QLatin1StringView(row.id)) return &row;
  return nullptr;
}

void RunAction(const ActionRow& row, ActionContext& context) {
  if (const QString reason = row.whyNot(context.session); !reason.isEmpty()) throw Exception(reason);
  row.run(context, row);
}
