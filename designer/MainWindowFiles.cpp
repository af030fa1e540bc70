// Opening, saving and closing forms in the window.
#include <QtWidgets>

#include "designer/DiskChanges.h"
#include "designer/FormActions.h"
#include "designer/FormSurface.h"
#include "designer/InspectorPane.h"
#include "designer/MainWindow.h"
#include "designer/ProblemsList.h"
#include "designer/StructurePane.h"
#include "designer/ValueEditor.h"
#include "forms/FormFile.h"
#include "forms/SafeFile.h"
#include "rtl/Exceptions.h"
#include "vcl/Prompts.h"

namespace {
QString FormFilter() { return MainWindow::tr("Forms (*.dfm *.lfm);;All files (*)"); }
}  // namespace

void MainWindow::SetSession(std::unique_ptr<FormSession> session) {
  inspector_->SetSession(nullptr);
  structure_->SetSession(nullptr);
  surface_->SetSession(nullptr);
  session_ = std::move(session);
  disk_->SetSession(session_.get());
  if (!session_->FileName().isEmpty()) SetPromptFolder(QFileInfo(session_->FileName()).absolutePath());
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
  problems_->SetSession(session_.get());
  UpdateActions();
  surface_->setFocus();
}

// Who closed the list sees it again when there is more in it.
void MainWindow::ShowProblems(bool more) {
  QDockWidget& dock = *docks_[static_cast<std::size_t>(WindowPane::Problems)];
  dock.setWindowTitle(tr("Problems (%1)").arg(problems_->count()));
  if (more || problems_->count() == 0) dock.setVisible(more);
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

void MainWindow::AskForNewForm() {
  if (MayClose()) NewForm();
}

void MainWindow::AskForForm() {
  if (!MayClose()) return;
  if (const QString name = Prompts().OpenFileName(this, tr("Open form"), {}, FormFilter()); !name.isEmpty())
    OpenForm(name);
}

void MainWindow::NewForm() {
  SetSession(FormSession::NewForm(QStringLiteral("Form1"), packages_.Registry()));
}

bool MainWindow::SaveTo(const QString& fileName) {
  try {
    if (forms::SameFile(fileName, session_->FileName())) return disk_->Save();
    session_->SaveAs(fileName);
    SetPromptFolder(QFileInfo(fileName).absolutePath());
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
  switch (Prompts().AskToSave(this, tr("%1 has changes that are not saved. Save them?").arg(ShownName()))) {
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
