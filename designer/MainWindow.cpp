#include "designer/MainWindow.h"

#include <QtWidgets>

#include "designer/DiskChanges.h"
#include "designer/FormActions.h"
#include "designer/FormColorsMenu.h"
#include "designer/FormSurface.h"
#include "designer/InspectorPane.h"
#include "designer/MessageBar.h"
#include "designer/PalettePane.h"
#include "designer/StructurePane.h"
#include "designer/ValueEditor.h"
#include "designintf/ComponentEditor.h"
#include "forms/FormFile.h"
#include "forms/SafeFile.h"
#include "ide/Placing.h"
#include "rtl/Exceptions.h"
#include "vcl/Prompts.h"
#include "vcl/Theme.h"

namespace {
QString FormFilter() { return MainWindow::tr("Forms (*.dfm *.lfm);;All files (*)"); }
}  // namespace

void ReportException(QWidget* parent, const std::exception& error) {
  Prompts().Warn(parent, QCoreApplication::applicationName(), ExceptionMessage(error));
}

MainWindow::MainWindow(PackageManager& packages) : packages_(packages) {
  setWindowIcon(QIcon::fromTheme(QStringLiteral("document-edit")));
  RestoreFormColors();
  BuildPanes();
  BuildActions();
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
      UpdateProblems();
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
  auto* scroll = new QScrollArea;
  scroll->setWidget(surface_);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);  // the surface has it
  auto* bar = new MessageBar;
  auto* middle = new QWidget;
  auto* column = new QVBoxLayout(middle);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(bar);
  column->addWidget(scroll, 1);
  setCentralWidget(middle);
  disk_ = new DiskChanges(*this, *bar);
  connect(disk_, &DiskChanges::DiffersChanged, this, &MainWindow::UpdateActions);
  connect(disk_, &DiskChanges::ReloadWanted, this, &MainWindow::Reload);
  connect(disk_, &DiskChanges::SaveWanted, this, &MainWindow::Save);

  const auto dock = [this](const QString& title, QWidget* widget, Qt::DockWidgetArea area) {
    auto* d = new QDockWidget(title, this);
    d->setObjectName(title);
    d->setWidget(widget);
    d->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
    addDockWidget(area, d);
    return d;
  };
  structure_ = new StructurePane;
  inspector_ = new InspectorPane;
  problems_ = new QListWidget;
  problems_->setFrameShape(QFrame::NoFrame);
  problems_->setWordWrap(true);
  problems_->setAccessibleName(tr("Problems"));
  auto* structureDock = dock(tr("Structure"), structure_, Qt::LeftDockWidgetArea);
  auto* inspectorDock = dock(tr("Inspector"), inspector_, Qt::LeftDockWidgetArea);
  problemsDock_ = dock(tr("Problems"), problems_, Qt::BottomDockWidgetArea);
  problemsDock_->hide();
  setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
  resizeDocks({structureDock, inspectorDock}, {220, 440}, Qt::Vertical);
  resizeDocks({inspectorDock}, {340}, Qt::Horizontal);

  for (QLabel** label : {&selectionLabel_, &boundsLabel_, &modifiedLabel_, &zoomLabel_}) *label = new QLabel;
  statusBar()->addWidget(selectionLabel_);
  statusBar()->addWidget(boundsLabel_);
  statusBar()->addPermanentWidget(new QLabel(tr("Grid %1").arg(FormSurface::Grid)));
  statusBar()->addPermanentWidget(zoomLabel_);
  statusBar()->addPermanentWidget(modifiedLabel_);

  connect(palette_, &PalettePane::ToolChosen, surface_, &FormSurface::SetTool);
  connect(palette_, &PalettePane::AddWanted, this, &MainWindow::PlaceOne);
  connect(palette_, &PalettePane::Left, surface_, qOverload<>(&QWidget::setFocus));
  connect(surface_, &FormSurface::ToolUsed, palette_, &PalettePane::SelectArrow);
  connect(surface_, &FormSurface::ToolChanged, this, &MainWindow::ShowTool);
  // Wherever the focus is, Escape puts the tool down first.
  putDown_ = new QShortcut(Qt::Key_Escape, this);
  putDown_->setEnabled(false);
  connect(putDown_, &QShortcut::activated, palette_, &PalettePane::PutDown);
  connect(inspector_, &InspectorPane::Message, this,
          [this](const QString& text) { statusBar()->showMessage(text, 8000); });
  connect(inspector_, &InspectorPane::Typing, this, &MainWindow::UpdateActions);
  connect(surface_, &FormSurface::ContextMenuWanted, this, &MainWindow::ShowContextMenu);
  connect(surface_, &FormSurface::Message, this,
          [this](const QString& text) { Prompts().Warn(this, QCoreApplication::applicationName(), text); });
  connect(surface_, &FormSurface::Notice, this,
          [this](const QString& text) { statusBar()->showMessage(text, 8000); });
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

QAction* MainWindow::AddAction(QWidget* menu, const QString& text, const QString& icon,
                               const QKeySequence& keys, const std::function<void()>& run, const char* name) {
  auto* action = new QAction(icon.isEmpty() ? QIcon() : QIcon::fromTheme(icon), text, this);
  action->setShortcut(keys);
  action->setObjectName(QString::fromLatin1(name));
  connect(action, &QAction::triggered, this, [this, run] {
    try {
      run();
    } catch (const std::exception& e) {
      ReportException(this, e);
    }
  });
  menu->addAction(action);
  return action;
}

void MainWindow::BuildActions() {
  auto* tools = new QToolBar(tr("Tools"));
  tools->setObjectName(QStringLiteral("tools"));
  tools->setMovable(false);
  tools->setIconSize(QSize(22, 22));
  insertToolBar(findChild<QToolBar*>(QStringLiteral("paletteBar")), tools);
  insertToolBarBreak(findChild<QToolBar*>(QStringLiteral("paletteBar")));

  QMenu* file = menuBar()->addMenu(tr("&File"));
  auto* fresh = AddAction(
      file, tr("&New form"), QStringLiteral("document-new"), QKeySequence::New,
      [this] {
        if (MayClose()) NewForm();
      },
      "new");
  auto* open = AddAction(
      file, tr("&Open..."), QStringLiteral("document-open"), QKeySequence::Open,
      [this] {
        if (!MayClose()) return;
        const QString folder = session_ ? QFileInfo(session_->FileName()).path() : QString();
        if (const QString name = Prompts().OpenFileName(this, tr("Open form"), folder, FormFilter());
            !name.isEmpty())
          OpenForm(name);
      },
      "open");
  save_ = AddAction(
      file, tr("&Save"), QStringLiteral("document-save"), QKeySequence::Save, [this] { Save(); }, "save");
  AddAction(
      file, tr("Save &as..."), QStringLiteral("document-save-as"), QKeySequence::SaveAs, [this] { SaveAs(); },
      "saveAs");
  file->addSeparator();
  AddAction(
      file, tr("&Quit"), QStringLiteral("application-exit"), QKeySequence::Quit, [this] { close(); }, "quit");

  QMenu* edit = menuBar()->addMenu(tr("&Edit"));
  form_ = new FormActions(*this);
  connect(form_, &FormActions::Wanted, this, &MainWindow::Run);
  form_->WorkIn(*surface_);
  form_->WorkIn(structure_->Tree());
  form_->AddTo(*edit, {ActionGroup::Undo, ActionGroup::Clipboard, ActionGroup::Select});

  QMenu* view = menuBar()->addMenu(tr("&View"));
  for (QDockWidget* d : findChildren<QDockWidget*>()) view->addAction(d->toggleViewAction());
  view->addSeparator();
  AddAction(
      view, tr("&Form or inspector"), {}, Qt::Key_F11,
      [this] {
        if (!inspector_->isAncestorOf(QApplication::focusWidget()))
          inspector_->FocusValue();
        else if (CommitTyping())
          surface_->setFocus();
      },
      "formOrInspector");
  AddAction(
      view, tr("&Palette"), {}, Qt::CTRL | Qt::Key_F,
      [this] {
        palette_->Search().setFocus();
        palette_->Search().selectAll();
      },
      "findComponent");
  view->addSeparator();
  auto* zoomIn = AddAction(
      view, tr("Zoom &in"), QStringLiteral("zoom-in"), QKeySequence::ZoomIn,
      [this] { SetZoom(surface_->Zoom() * 1.25); }, "zoomIn");
  auto* zoomOut = AddAction(
      view, tr("Zoom &out"), QStringLiteral("zoom-out"), QKeySequence::ZoomOut,
      [this] { SetZoom(surface_->Zoom() / 1.25); }, "zoomOut");
  AddAction(
      view, tr("&100 %"), {}, QKeySequence(Qt::CTRL | Qt::Key_0), [this] { SetZoom(1); }, "zoom100");
  view->addSeparator();
  AddAction(
      view, tr("&Light theme"), {}, {}, [] { ChooseTheme(TTheme::Light); }, "light");
  AddAction(
      view, tr("&Dark theme"), {}, {}, [] { ChooseTheme(TTheme::Dark); }, "dark");
  AddFormColorsMenu(*view);

  form_->AddTo(*menuBar()->addMenu(tr("F&orm")), {ActionGroup::Align, ActionGroup::Size, ActionGroup::Spacing,
                                                  ActionGroup::Order, ActionGroup::Grid});

  QMenu* help = menuBar()->addMenu(tr("&Help"));
  AddAction(
      help, tr("&About"), QStringLiteral("help-about"), {},
      [this] {
        Prompts().Inform(this, tr("About"),
                         tr("Orlenvo-Kit form designer %1").arg(QStringLiteral(VRX_VERSION)));
      },
      "about");

  for (QAction* a : {fresh, open, save_}) tools->addAction(a);
  form_->AddTo(*tools);
  tools->addSeparator();
  for (QAction* a : {zoomOut, zoomIn}) tools->addAction(a);
}

void MainWindow::SetZoom(double factor) {
  if (std::abs(factor - 1) < 0.05) factor = 1;
  surface_->SetZoom(factor);
  UpdateStatus();
}

// --- Files

void MainWindow::SetSession(std::unique_ptr<FormSession> session) {
  inspector_->SetSession(nullptr);
  structure_->SetSession(nullptr);
  surface_->SetSession(nullptr);
  session_ = std::move(session);
  disk_->SetSession(session_.get());
  surface_->SetSession(session_.get());
  structure_->SetSession(session_.get());
  inspector_->SetSession(session_.get());
  connect(session_.get(), &FormSession::ModifiedChanged, this, &MainWindow::UpdateActions);
  connect(session_.get(), &FormSession::Changed, this, &MainWindow::UpdateActions);
  connect(session_.get(), &FormSession::SelectionChanged, this, [this] {
    form_->Update(session_.get());
    UpdateStatus();
  });
  connect(session_.get(), &FormSession::HandlerShown, this,
          [this](const QString& name) { statusBar()->showMessage(tr("Event handler %1").arg(name), 5000); });
  UpdateProblems();
  UpdateActions();
  surface_->setFocus();
}

void MainWindow::UpdateProblems() {
  problems_->clear();
  int count = 0;
  if (session_)
    for (const forms::Finding& f : session_->Findings()) {
      if (f.severity == forms::Severity::Note) continue;
      ++count;
      auto* item = new QListWidgetItem(
          f.where.line > 0 ? tr("Line %1: %2").arg(f.where.line).arg(f.text) : f.text, problems_);
      item->setIcon(style()->standardIcon(f.severity == forms::Severity::Error
                                              ? QStyle::SP_MessageBoxCritical
                                              : QStyle::SP_MessageBoxWarning));
    }
  problemsDock_->setWindowTitle(tr("Problems (%1)").arg(count));
  problemsDock_->setVisible(count > 0);
}

bool MainWindow::OpenForm(const QString& fileName) {
  try {
    // An editor's dialog works on components of the form that is open.
    if (session_ && session_->IsBusy()) throw Exception(tr("Finish what is open first."));
    SetSession(FormSession::Open(fileName, packages_.Registry()));
    forms::RemoveLeftovers(fileName);
    return true;
  } catch (const std::exception& e) {
    Prompts().Warn(this, tr("Open form"),
                   tr("%1 cannot be opened.\n%2").arg(QFileInfo(fileName).fileName(), ExceptionMessage(e)));
    return false;
  }
}

bool MainWindow::Reload() {
  QStringList names;
  for (const TComponent* c : session_->SelectedComponents()) names << c->Name();
  const QString file = session_->FileName();  // the session that knows it goes
  if (!OpenForm(file)) return false;
  std::vector<TComponent*> selected;
  for (const QString& name : names)
    if (TComponent* c = session_->GetComponent(name)) selected.push_back(c);
  session_->Select(selected);
  return true;
}

void MainWindow::NewForm() {
  SetSession(FormSession::NewForm(QStringLiteral("Form1"), packages_.Registry()));
}

bool MainWindow::SaveTo(const QString& fileName) {
  try {
    if (forms::SameFile(fileName, session_->FileName())) return disk_->Save();
    session_->SaveAs(fileName);
    disk_->SetSession(session_.get());
    return true;
  } catch (const std::exception& e) {
    Prompts().Warn(this, tr("Save form"), ExceptionMessage(e));
    return false;
  }
}

bool MainWindow::Save() {
  if (!session_) return true;
  if (!CommitTyping()) return false;
  return session_->FileName().isEmpty() ? SaveAs() : SaveTo(session_->FileName());
}

bool MainWindow::SaveAs() {
  if (!session_) return true;
  if (!CommitTyping()) return false;
  const QString start = session_->FileName().isEmpty()
                            ? session_->Form().Name().toLower() + QStringLiteral(".dfm")
                            : session_->FileName();
  const QString name = Prompts().SaveFileName(this, tr("Save form as"), start, FormFilter());
  return !name.isEmpty() && SaveTo(name);
}

bool MainWindow::MayClose() {
  if (!CommitTyping()) return false;
  if (!session_ || !session_->IsModified()) return true;
  const QString what =
      session_->FileName().isEmpty() ? session_->Form().Name() : QFileInfo(session_->FileName()).fileName();
  switch (Prompts().AskToSave(this, tr("%1 has changes that are not saved. Save them?").arg(what))) {
    case TAnswer::Yes:
      return Save();
    case TAnswer::No:
      return true;
    case TAnswer::Cancel:
      return false;
  }
  return false;
}

bool MainWindow::event(QEvent* event) {
  const bool handled = QMainWindow::event(event);
  if (event->type() == QEvent::WindowActivate) disk_->Check();
  return handled;
}

void MainWindow::closeEvent(QCloseEvent* event) { event->setAccepted(MayClose()); }

// --- State

void MainWindow::UpdateActions() {
  const bool open = session_ != nullptr;
  const QString file = !open                            ? QString()
                       : session_->FileName().isEmpty() ? session_->Form().Name()
                                                        : QFileInfo(session_->FileName()).fileName();
  setWindowTitle(open ? tr("%1[*] - Orlenvo-Kit designer").arg(file) : tr("Orlenvo-Kit designer"));
  setWindowModified(open && session_->IsModified());
  save_->setEnabled(open && (session_->IsModified() || session_->FileName().isEmpty() || disk_->Differs() ||
                             inspector_->Editor().IsChanged()));
  form_->Update(session_.get());
  UpdateStatus();
}

void MainWindow::UpdateStatus() {
  zoomLabel_->setText(tr("%1 %").arg(qRound(surface_->Zoom() * 100)));
  if (!session_) return;
  modifiedLabel_->setText(session_->IsModified() ? tr("Modified") : QString());
  const auto selected = session_->SelectedComponents();
  if (selected.size() > 1) {
    selectionLabel_->setText(tr("%n selected", nullptr, static_cast<int>(selected.size())));
    boundsLabel_->clear();
  } else {
    const TComponent& c = *selected.front();
    selectionLabel_->setText(QStringLiteral("%1: %2").arg(c.Name(), QString::fromUtf8(c.StreamClassName())));
    const auto* control = As<TControl>(&c);
    boundsLabel_->setText(control ? QStringLiteral("%1, %2   %3 x %4")
                                        .arg(control->Left())
                                        .arg(control->Top())
                                        .arg(control->Width())
                                        .arg(control->Height())
                                  : QString());
  }
}

// The component's verbs first, then the designer's own.
void MainWindow::ShowContextMenu(const QPoint& pos) {
  QMenu menu(this);
  menu.setObjectName(QStringLiteral("surfaceMenu"));
  const auto selected = session_->SelectedComponents();
  std::unique_ptr<TComponentEditor> editor;
  if (selected.size() == 1) {
    editor = session_->Registry().GetComponentEditor(selected[0], session_.get());
    const auto call = [this, component = selected[0]](const char* member) {
      return [this, component, member] { return session_->Registry().CallOf(*component, member); };
    };
    const int verbs = AskPackage(call("GetVerbCount"), 0, [&] { return editor->GetVerbCount(); });
    for (int i = 0; i < verbs; ++i) {
      const QString verb =
          AskPackage(call("GetVerb"), QStringLiteral("-"), [&] { return editor->GetVerb(i); });
      if (verb == QStringLiteral("-")) {
        menu.addSeparator();
        continue;
      }
      menu.addAction(verb, this, [&, i, verb] {
        try {
          session_->Run(QString(verb).remove(u'&'), selected,
                        [&, run = session_->Registry().CallOf(*selected[0], "ExecuteVerb")] {
                          PackageCall([&] { return run; }, [&] { editor->ExecuteVerb(i); });
                        });
        } catch (const std::exception& e) {
          ReportException(this, e);
        }
      });
    }
    menu.addSeparator();
  }
  form_->AddTo(menu, {ActionGroup::Undo, ActionGroup::Clipboard, ActionGroup::Align, ActionGroup::Size,
                      ActionGroup::Spacing, ActionGroup::Order});
  menu.exec(pos);
}
