#include "designer/MainWindow.h"

#include <QtWidgets>

#include "designer/CommandPalette.h"
#include "designer/Desk.h"
#include "designer/DiskChanges.h"
#include "designer/FormActions.h"
#include "designer/FormSurface.h"
#include "designer/InspectorPane.h"
#include "designer/LookSettings.h"
#include "designer/MessageBar.h"
#include "designer/PackageSettings.h"
#include "designer/PalettePane.h"
#include "designer/ProblemsList.h"
#include "designer/ReportException.h"
#include "designer/StatusLine.h"
#include "designer/StructurePane.h"
#include "designer/ValueEditor.h"
#include "designer/Verbs.h"
#include "designer/WindowCommands.h"
#include "designintf/ComponentIcons.h"
#include "ide/Placing.h"
#include "rtl/Exceptions.h"
#include "vcl/Prompts.h"

MainWindow::MainWindow(PackageManager& packages) : packages_(packages) {
  setWindowIcon(QIcon::fromTheme(QStringLiteral("document-edit")));
  RestoreFormColors();
  BuildPanes();
  ConnectPanes();
  BuildMenus();
  // Told later: it may be a question of the middle of painting.
  SetPackageProblemListener([this](const QString& message) {
    QMetaObject::invokeMethod(
        this, [this, message] { findChild<MessageBar*>()->Tell(message); }, Qt::QueuedConnection);
  });
  connect(&packages_, &PackageManager::ClassesChanged, this, [this] {
    palette_->Reload();
    if (session_) {
      inspector_->SetSession(nullptr);  // its rows belong to editors that may be gone
      session_->Rebuild();
      inspector_->SetSession(session_.get());
      problems_->Show();
    }
  });
  // What opens the rest of a bar that is too narrow.
  for (QToolButton* button : findChildren<QToolButton*>())
    if (button->objectName().endsWith(QStringLiteral("_ext_button"))) button->setAccessibleName(tr("More"));
  resize(1280, 820);
  UpdateActions();
}

MainWindow::~MainWindow() {
  SetPackageProblemListener(nullptr);
  inspector_->SetSession(nullptr);
  structure_->SetSession(nullptr);
  surface_->SetSession(nullptr);
  problems_->SetSession(nullptr);
}

void MainWindow::BuildPanes() {
  setDockOptions(AnimatedDocks | AllowTabbedDocks);
  palette_ = new PalettePane(packages_.Registry());
  auto* paletteBar = new QToolBar(tr("Palette"));
  paletteBar->setObjectName(QStringLiteral("paletteBar"));
  paletteBar->setMovable(false);
  paletteBar->addWidget(palette_);
  palette_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  addToolBar(Qt::TopToolBarArea, paletteBar);
  insertToolBarBreak(paletteBar);

  surface_ = new FormSurface;
  desk_ = new Desk(*surface_);
  auto* bar = new MessageBar;
  auto* middle = new QWidget;
  auto* column = new QVBoxLayout(middle);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(bar);
  column->addWidget(desk_, 1);
  setCentralWidget(middle);
  disk_ = new DiskChanges(*this, *bar);
  connect(disk_, &DiskChanges::DiffersChanged, this, &MainWindow::UpdateActions);
  connect(disk_, &DiskChanges::ReloadWanted, this, &MainWindow::Reload);
  connect(disk_, &DiskChanges::SaveWanted, this, &MainWindow::Save);

  structure_ = new StructurePane;
  inspector_ = new InspectorPane;
  problems_ = new ProblemsList;
  connect(problems_, &ProblemsList::Told, this, &MainWindow::ShowProblems);
  const auto dock = [this](WindowPane pane, const QString& title, QWidget* widget, Qt::DockWidgetArea area) {
    auto* d = docks_[static_cast<std::size_t>(pane)] = new QDockWidget(title, this);
    d->setObjectName(title);
    d->setWidget(widget);
    d->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
    addDockWidget(area, d);
    return d;
  };
  auto* structure = dock(WindowPane::Structure, tr("Structure"), structure_, Qt::LeftDockWidgetArea);
  auto* inspector = dock(WindowPane::Inspector, tr("Inspector"), inspector_, Qt::LeftDockWidgetArea);
  dock(WindowPane::Problems, tr("Problems"), problems_, Qt::BottomDockWidgetArea)->hide();
  setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
  resizeDocks({structure, inspector}, {220, 440}, Qt::Vertical);
  resizeDocks({inspector}, {340}, Qt::Horizontal);

  status_ = new StatusLine(*statusBar(), FormSurface::Grid);
}

void MainWindow::ConnectPanes() {
  const auto tell = [this](const QString& text) { statusBar()->showMessage(text, 8000); };
  connect(palette_, &PalettePane::ToolChosen, surface_, &FormSurface::SetTool);
  connect(palette_, &PalettePane::AddWanted, this, &MainWindow::PlaceOne);
  connect(palette_, &PalettePane::Left, surface_, qOverload<>(&QWidget::setFocus));
  connect(surface_, &FormSurface::ToolUsed, palette_, &PalettePane::SelectArrow);
  connect(surface_, &FormSurface::ToolChanged, this, &MainWindow::ShowTool);
  // Wherever the focus is, Escape puts the tool down first.
  putDown_ = new QShortcut(Qt::Key_Escape, this);
  putDown_->setEnabled(false);
  connect(putDown_, &QShortcut::activated, palette_, &PalettePane::PutDown);
  connect(inspector_, &InspectorPane::Message, this, tell);
  connect(inspector_, &InspectorPane::Typing, this, &MainWindow::UpdateActions);
  connect(surface_, &FormSurface::ContextMenuWanted, this, &MainWindow::ShowContextMenu);
  QTreeView& tree = structure_->Tree();
  tree.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&tree, &QWidget::customContextMenuRequested, this,
          [this, &tree](const QPoint& at) { ShowContextMenu(tree.viewport()->mapToGlobal(at)); });
  connect(surface_, &FormSurface::Message, this,
          [this](const QString& text) { Prompts().Warn(this, QCoreApplication::applicationName(), text); });
  connect(surface_, &FormSurface::Notice, this, tell);
  connect(desk_, &Desk::Zoomed, this, &MainWindow::UpdateStatus);
  connect(surface_, &FormSurface::InspectorWanted, inspector_, &InspectorPane::FocusValue);
}

// What is typed in the inspector belongs to the form; a refused value is corrected or given up first.
bool MainWindow::CommitTyping() {
  if (inspector_->Commit()) return true;
  inspector_->FocusValue();
  return false;
}

void MainWindow::PlaceOne(const TClass& cls) {
  if (!session_ || !CommitTyping()) return;
  try {
    PlaceInMiddle(*session_, cls, FormSurface::Grid);
  } catch (const std::exception& e) {
    ReportException(this, e);
  }
  surface_->setFocus();
}

// While something is dragged or a dialog is open, what it works on stays as it is.
void MainWindow::Run(const ActionRow& row) {
  if (!session_ || session_->IsBusy()) return;
  if (row.group != ActionGroup::Undo && !CommitTyping()) return;
  try {
    DesktopClipboard clipboard;
    ActionContext context{*session_, clipboard, FormSurface::Grid};
    RunAction(row, context);
  } catch (const std::exception& e) {
    ReportException(this, e);
  }
}

void MainWindow::ShowTool() {
  const TClass* tool = surface_->Tool();
  putDown_->setEnabled(tool);
  if (!tool) return statusBar()->clearMessage();
  const QString name = QString::fromLatin1(tool->ClassName());
  statusBar()->showMessage(
      surface_->KeepsTool()
          ? tr("%1: click or draw as many as you need, Escape puts it down").arg(name)
          : tr("%1: click or draw on the form, with Shift for several; Escape puts it down").arg(name));
}

void MainWindow::BuildMenus() {
  auto* palette = findChild<QToolBar*>(QStringLiteral("paletteBar"));
  auto* tools = new QToolBar(tr("Tools"));
  tools->setObjectName(QStringLiteral("tools"));
  tools->setMovable(false);
  tools->setIconSize(QSize(22, 22));
  insertToolBar(palette, tools);
  insertToolBarBreak(palette);

  commands_ = new WindowCommands(*this, *this);
  form_ = new FormActions(*this);
  connect(form_, &FormActions::Wanted, this, &MainWindow::Run);
  form_->WorkIn(*surface_);
  form_->WorkIn(structure_->Tree());

  QMenu& file = *menuBar()->addMenu(tr("&File"));
  commands_->AddTo(file, WindowMenu::File);
  QMenu& edit = *menuBar()->addMenu(tr("&Edit"));
  form_->AddTo(edit, {ActionGroup::Undo, ActionGroup::Clipboard, ActionGroup::Select});
  commands_->AddTo(edit, WindowMenu::Commands);
  QMenu& view = *menuBar()->addMenu(tr("&View"));
  for (const WindowMenu part :
       {WindowMenu::Panes, WindowMenu::Palette, WindowMenu::Go, WindowMenu::Zoom, WindowMenu::Theme})
    commands_->AddTo(view, part);
  commands_->AddTo(*view.addMenu(tr("Form &colors")), WindowMenu::FormColors);
  form_->AddTo(*menuBar()->addMenu(tr("F&orm")), {ActionGroup::Align, ActionGroup::Size, ActionGroup::Spacing,
                                                  ActionGroup::Order, ActionGroup::Grid});
  commands_->AddTo(*menuBar()->addMenu(tr("&Help")), WindowMenu::Help);

  commands_->AddTo(*tools, WindowMenu::File);
  form_->AddTo(*tools);
  tools->addSeparator();
  commands_->AddTo(*tools, WindowMenu::Zoom);
}

double MainWindow::Zoom() const { return surface_->Zoom(); }
void MainWindow::SetZoom(double factor) { desk_->SetZoom(factor); }

bool MainWindow::ShowsPane(WindowPane pane) const {
  return !docks_[static_cast<std::size_t>(pane)]->isHidden();
}
void MainWindow::ShowPane(WindowPane pane, bool shown) {
  docks_[static_cast<std::size_t>(pane)]->setVisible(shown);
}

void MainWindow::ChoosePackageOption(TEditorOption option, bool on) {
  if (session_ && (session_->IsBusy() || !CommitTyping())) return;
  ChooseEditorOption(option, on);
  packages_.LoadAgain();
}

void MainWindow::GoToFormOrInspector() {
  activateWindow();  // the key may come from a window beside the form
  if (!inspector_->isAncestorOf(QApplication::focusWidget()))
    inspector_->FocusValue();
  else if (CommitTyping())
    surface_->setFocus();
}

void MainWindow::GoToPalette() {
  activateWindow();
  palette_->Search().setFocus();
  palette_->Search().selectAll();
}

void MainWindow::TellAbout() {
  Prompts().Inform(this, tr("About"), tr("Orlenvo-Kit form designer %1").arg(QStringLiteral(VRX_VERSION)));
}

void MainWindow::ShowCommands() {
  UpdateActions();
  std::vector<CommandEntry> rows;
  if (session_)
    for (const Verb& verb : VerbsOfSelection(*session_))
      if (verb.run) {
        const TComponent& c = *session_->SelectedComponents().front();
        const QString text = QString(verb.text).remove(u'&');
        rows.push_back(
            {QStringLiteral("verb %1 %2").arg(QString::fromLatin1(c.ClassType().ClassName()), text),
             QStringLiteral("%1: %2").arg(c.Name(), text),
             {},
             ComponentIcon(c.ClassType()),
             verb.problem,
             [this, run = verb.run] { RunVerb(run); }});
      }
  form_->AddTo(rows);
  commands_->AddTo(rows);
  new CommandPalette(*this, std::move(rows));
}

// --- State

bool MainWindow::HasUnsaved() const {
  return session_ && (session_->IsModified() || session_->FileName().isEmpty() || disk_->Differs() ||
                      inspector_->Editor().IsChanged());
}

QString MainWindow::ShownName() const {
  if (!session_) return {};
  return session_->FileName().isEmpty() ? session_->Form().Name()
                                        : QFileInfo(session_->FileName()).fileName();
}

void MainWindow::UpdateActions() {
  setWindowTitle(session_ ? tr("%1[*] - Orlenvo-Kit designer").arg(ShownName()) : tr("Orlenvo-Kit designer"));
  setWindowModified(session_ && session_->IsModified());
  form_->Update(session_.get());
  commands_->Update();
  UpdateStatus();
}

void MainWindow::UpdateStatus() { status_->Show(session_.get(), Zoom()); }

void MainWindow::RunVerb(const std::function<void()>& run) {
  if (session_->IsBusy() || !CommitTyping()) return;
  try {
    run();
  } catch (const std::exception& e) {
    ReportException(this, e);
  }
}

// The component's verbs first, then the designer's own.
void MainWindow::ShowContextMenu(const QPoint& pos) {
  QMenu menu(this);
  menu.setObjectName(QStringLiteral("surfaceMenu"));
  for (const Verb& verb : VerbsOfSelection(*session_))
    if (verb.run) {
      QAction* action = menu.addAction(verb.text, this, [this, run = verb.run] { RunVerb(run); });
      action->setEnabled(verb.problem.isEmpty());
      action->setStatusTip(verb.problem);
    } else {
      menu.addSeparator();
    }
  if (!menu.isEmpty()) menu.addSeparator();
  form_->AddTo(menu, {ActionGroup::Undo, ActionGroup::Clipboard, ActionGroup::Align, ActionGroup::Size,
                      ActionGroup::Spacing, ActionGroup::Order, ActionGroup::Grid});
  menu.exec(pos);
}
