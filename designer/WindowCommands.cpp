#include "designer/WindowCommands.h"

#include <QtWidgets>

#include "designer/Desk.h"
#include "designer/LookSettings.h"
#include "designer/ReportException.h"
#include "rtl/Exceptions.h"

namespace {
using Window = IDesignerWindow;
using Menu = WindowMenu;

QString NeedsForm(const Window& w) {
  return w.Session() ? QString() : WindowCommands::tr("Open a form first.");
}
QString NeedsChanges(const Window& w) {
  if (!w.Session()) return NeedsForm(w);
  return w.HasUnsaved() ? QString() : WindowCommands::tr("There is nothing to save.");
}

template <TTheme theme>
void RunTheme(Window&) {
  ChooseTheme(theme);
}
template <TTheme theme>
bool IsTheme(const Window&) {
  return IsDarkTheme() == (theme == TTheme::Dark);
}
template <TFormColors colors>
void RunFormColors(Window&) {
  ChooseFormColors(colors);
}
template <TFormColors colors>
bool AreFormColors(const Window&) {
  return FormColors() == colors;
}
template <WindowPane pane>
void RunPane(Window& w) {
  w.ShowPane(pane, !w.ShowsPane(pane));
}
template <WindowPane pane>
bool ShowsPane(const Window& w) {
  return w.ShowsPane(pane);
}

template <TEditorOption option>
bool IsOption(const Window&) {
  return EditorOption(option);
}
template <TEditorOption option>
void RunOption(Window& w) {
  w.ChoosePackageOption(option, !EditorOption(option));
}

void RunNew(Window& w) { w.AskForNewForm(); }
void RunOpen(Window& w) { w.AskForForm(); }
void RunSave(Window& w) { w.Save(); }
void RunSaveAs(Window& w) { w.SaveAs(); }
void RunQuit(Window& w) { w.Quit(); }
void RunCommands(Window& w) { w.ShowCommands(); }
void RunFormOrInspector(Window& w) { w.GoToFormOrInspector(); }
void RunFindComponent(Window& w) { w.GoToPalette(); }
void RunZoomIn(Window& w) { w.SetZoom(w.Zoom() * Desk::ZoomStep); }
void RunZoomOut(Window& w) { w.SetZoom(w.Zoom() / Desk::ZoomStep); }
void RunZoom100(Window& w) { w.SetZoom(1); }
void RunAbout(Window& w) { w.TellAbout(); }

// What the entries of a part have in front where they stand alone.
QString TitleOf(Menu menu) {
  switch (menu) {
    case Menu::Panes:
      return WindowCommands::tr("Pane");
    case Menu::Theme:
      return WindowCommands::tr("Designer");
    case Menu::FormColors:
      return WindowCommands::tr("Form colors");
    default:
      return {};
  }
}
}  // namespace

// clang-format off
const std::vector<WindowCommand>& WindowCommandTable() {
  static const std::vector<WindowCommand> table{
      {"new",    Menu::File, QT_TRANSLATE_NOOP("WindowCommands", "&New form"),   "Ctrl+N",       "document-new",     true,  RunNew,    nullptr,      nullptr},
      {"open",   Menu::File, QT_TRANSLATE_NOOP("WindowCommands", "&Open..."),    "Ctrl+O",       "document-open",    true,  RunOpen,   nullptr,      nullptr},
      {"save",   Menu::File, QT_TRANSLATE_NOOP("WindowCommands", "&Save"),       "Ctrl+S",       "document-save",    true,  RunSave,   NeedsChanges, nullptr},
      {"saveAs", Menu::File, QT_TRANSLATE_NOOP("WindowCommands", "Save &as..."), "Ctrl+Shift+S", "document-save-as", false, RunSaveAs, NeedsForm,    nullptr},
      {"quit",   Menu::File, QT_TRANSLATE_NOOP("WindowCommands", "&Quit"),       "Ctrl+Q",       "application-exit", false, RunQuit,   nullptr,      nullptr},

      {"commands", Menu::Commands, QT_TRANSLATE_NOOP("WindowCommands", "Find a co&mmand..."), "Ctrl+Shift+P", "search", false, RunCommands, nullptr, nullptr},

      {"structurePane", Menu::Panes, QT_TRANSLATE_NOOP("WindowCommands", "&Structure"), "", "", false, RunPane<WindowPane::Structure>, nullptr, ShowsPane<WindowPane::Structure>},
      {"inspectorPane", Menu::Panes, QT_TRANSLATE_NOOP("WindowCommands", "&Inspector"), "", "", false, RunPane<WindowPane::Inspector>, nullptr, ShowsPane<WindowPane::Inspector>},
      {"problemsPane",  Menu::Panes, QT_TRANSLATE_NOOP("WindowCommands", "P&roblems"),  "", "", false, RunPane<WindowPane::Problems>,  nullptr, ShowsPane<WindowPane::Problems>},

      {"labeledVariants", Menu::Palette, QT_TRANSLATE_NOOP("WindowCommands", "Palette with labeled &variants"), "", "", false, RunOption<TEditorOption::LabeledVariants>, nullptr, IsOption<TEditorOption::LabeledVariants>},

      {"formOrInspector", Menu::Go, QT_TRANSLATE_NOOP("WindowCommands", "&Form or inspector"), "F11",    "", false, RunFormOrInspector, nullptr, nullptr},
      {"findComponent",   Menu::Go, QT_TRANSLATE_NOOP("WindowCommands", "&Palette"),           "Ctrl+F", "", false, RunFindComponent,   nullptr, nullptr},

      {"zoomOut", Menu::Zoom, QT_TRANSLATE_NOOP("WindowCommands", "Zoom &out"), "Ctrl+-",         "zoom-out",      true,  RunZoomOut, nullptr, nullptr},
      {"zoomIn",  Menu::Zoom, QT_TRANSLATE_NOOP("WindowCommands", "Zoom i&n"),  "Ctrl++; Ctrl+=", "zoom-in",       true,  RunZoomIn,  nullptr, nullptr},
      {"zoom100", Menu::Zoom, QT_TRANSLATE_NOOP("WindowCommands", "&100 %"),    "Ctrl+0",         "zoom-original", false, RunZoom100, nullptr, nullptr},

      {"light", Menu::Theme, QT_TRANSLATE_NOOP("WindowCommands", "&Light theme"), "", "", false, RunTheme<TTheme::Light>, nullptr, IsTheme<TTheme::Light>},
      {"dark",  Menu::Theme, QT_TRANSLATE_NOOP("WindowCommands", "&Dark theme"),  "", "", false, RunTheme<TTheme::Dark>,  nullptr, IsTheme<TTheme::Dark>},

      {"formLight",    Menu::FormColors, QT_TRANSLATE_NOOP("WindowCommands", "&Light"),           "", "", false, RunFormColors<TFormColors::Light>,    nullptr, AreFormColors<TFormColors::Light>},
      {"formDark",     Menu::FormColors, QT_TRANSLATE_NOOP("WindowCommands", "&Dark"),            "", "", false, RunFormColors<TFormColors::Dark>,     nullptr, AreFormColors<TFormColors::Dark>},
      {"formDesigner", Menu::FormColors, QT_TRANSLATE_NOOP("WindowCommands", "&As the designer"), "", "", false, RunFormColors<TFormColors::Designer>, nullptr, AreFormColors<TFormColors::Designer>},

      {"about", Menu::Help, QT_TRANSLATE_NOOP("WindowCommands", "&About"), "", "help-about", false, RunAbout, nullptr, nullptr},
  };
  return table;
}
// clang-format on

QString WindowCommand::Text() const { return WindowCommands::tr(text); }

QString WindowCommand::Title() const {
  const QString own = Text().remove(u'&'), part = TitleOf(menu);
  return part.isEmpty() ? own : part + QStringLiteral(": ") + own;
}

WindowCommands::WindowCommands(IDesignerWindow& window, QWidget& parent) : QObject(&parent), window_(window) {
  for (const WindowCommand& row : WindowCommandTable()) {
    auto* action =
        new QAction(*row.icon ? QIcon::fromTheme(QLatin1StringView(row.icon)) : QIcon(), row.Text(), &parent);
    action->setObjectName(QLatin1StringView(row.id));
    if (*row.keys) action->setShortcuts(QKeySequence::listFromString(QLatin1StringView(row.keys)));
    action->setCheckable(row.isOn != nullptr);
    connect(action, &QAction::triggered, this, [this, &row] {
      try {
        row.run(window_);
      } catch (const std::exception& e) {
        ReportException(qobject_cast<QWidget*>(this->parent()), e);
      }
      Update();
    });
    actions_.emplace_back(&row, action);
  }
}

void WindowCommands::AddTo(QMenu& menu, WindowMenu part) const {
  connect(&menu, &QMenu::aboutToShow, this, &WindowCommands::Update, Qt::UniqueConnection);
  if (!menu.isEmpty()) menu.addSeparator();
  for (const auto& [row, action] : actions_)
    if (row->menu == part) menu.addAction(action);
}

void WindowCommands::AddTo(QToolBar& bar, WindowMenu part) const {
  for (const auto& [row, action] : actions_)
    if (row->menu == part && row->inToolBar) bar.addAction(action);
}

void WindowCommands::Update() {
  for (const auto& [row, action] : actions_) {
    const QString reason = row->whyNot ? row->whyNot(window_) : QString();
    action->setEnabled(reason.isEmpty());
    action->setStatusTip(reason);
    if (row->isOn) action->setChecked(row->isOn(window_));
  }
}

void WindowCommands::AddTo(std::vector<CommandEntry>& rows) const {
  for (const auto& [row, action] : actions_)
    if (row->menu != Menu::Commands) rows.push_back(EntryOf(*action, row->Title()));
}
