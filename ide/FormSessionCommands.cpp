// Running, undoing and redoing commands, and hearing what components tell meanwhile.
#include "designintf/DesignWindow.h"
#include "ide/FormSession.h"
#include "ide/PictureBudget.h"
#include "rtl/Exceptions.h"

namespace {
qsizetype DataIn(const Command& command) {
  qsizetype data = 0;
  for (const ComponentChange& c : command.components)
    for (const forms::ValueChange& v : c.values)
      if (v.after.type == forms::ValueType::Binary) data += v.after.bytes.size();
  return data;
}

void RequireSize(qsizetype size) {
  if (size > forms::MaxFileSize)
    throw Exception(
        QStringLiteral("The form would become larger than %1 MB and could not be opened again. Use smaller "
                       "pictures, or store them compressed.")
            .arg(forms::MaxFileSize >> 20));
}
}  // namespace

// --- What components tell

// A change outside of any command, by a design window or a timer, becomes a command of its own, at the latest
// when the event that made it is over.
CommandRecorder& FormSession::Recorder() {
  if (!recorder_) {
    Begin(Kind::Stray);
    QMetaObject::invokeMethod(this, &FormSession::SettleStray, Qt::QueuedConnection);
  }
  return *recorder_;
}

void FormSession::ControlChanged(TControl& control) { emit RepaintNeeded(control); }

void FormSession::ComponentChanging(TComponent& component) {
  // What it covers now, too: a text may get shorter.
  if (const auto* control = As<TControl>(&component)) emit RepaintNeeded(*control);
  if (!form_.IsFrozen() && !form_.IsBuilding() && ObjectOf(component)) Recorder().Capture(component);
}

void FormSession::BoundsChanging(TControl& control) {
  if (!form_.IsFrozen() && ObjectOf(control)) Recorder().CaptureBounds(control);
}

void FormSession::ControlPlaced(TControl& control) {
  if (!form_.IsFrozen() && !form_.IsBuilding() && ObjectOf(control)) Recorder().NotePlaced(control);
}

void FormSession::ComponentListed(TComponent& component, TOperation operation) {
  if (form_.IsFrozen() || form_.IsBuilding()) return;
  if (operation == TOperation::opInsert)
    Recorder().NoteCame(component);
  else
    Recorder().NoteGoing(component);
}

// Inside a command the running command takes it along. Outside, a design window changed something.
void FormSession::Modified() {
  if (form_.IsFrozen()) return;
  if (!recorder_) Begin(Kind::Stray);
  recorder_->NoteModified();
  SettleStray();
}

// --- Commands

bool FormSession::IsBusy() const { return recorder_ && !Is(Kind::Stray); }

void FormSession::Begin(Kind kind) {
  recorder_ = std::make_unique<CommandRecorder>(form_, kind, form_.ObjectsOf(selection_.Components()));
}

void FormSession::SettleStray() {
  if (Is(Kind::Stray)) Commit(tr("Change"));
}

void FormSession::Run(const QString& text, const std::vector<TComponent*>& touched,
                      const std::function<void()>& action) {
  SettleStray();
  EndLive({}, false);
  const bool outer = !recorder_;
  if (outer) Begin(Kind::Action);
  for (TComponent* c : touched) recorder_->Capture(*c);
  if (!outer) return action();
  try {
    action();
    recorder_->RequireOwnNames();
  } catch (...) {
    Rollback();
    throw;
  }
  const qsizetype data = Commit(text);
  if (data == 0) return;
  // What an edit makes, the next reading of the file takes: an edit that goes beyond is taken back.
  try {
    RequireReadable(data);
  } catch (const Exception&) {
    Undo();
    undo_.ForgetUndone();
    emit ModifiedChanged();  // there is nothing to redo
    throw;
  }
}

void FormSession::RequireReadable(qsizetype newData) const {
  RequirePictureBudget(Document(), true);
  constexpr qsizetype Large = qsizetype{1} << 20;
  if (newData > Large) RequireSize(Bytes().size());
}

QByteArray FormSession::BytesToSave() {
  SettleStray();
  QByteArray bytes = Bytes();
  RequireSize(bytes.size());
  return bytes;
}

bool FormSession::IsLive() const { return Is(Kind::Live); }

void FormSession::BeginLive() {
  SettleStray();
  if (!recorder_) Begin(Kind::Live);
}

void FormSession::RestartLive() {
  if (IsLive()) recorder_->RestoreBounds();
}

void FormSession::EndLive(const QString& text, bool keep) {
  if (!IsLive()) return;
  if (keep)
    Commit(text);
  else
    Rollback();
}

std::unique_ptr<Command> FormSession::Take() {
  auto command = recorder_->Take();
  command->selectionAfter = form_.ObjectsOf(selection_.Components());
  return command;
}

// How much binary data the command put into the form.
qsizetype FormSession::Commit(const QString& text) {
  auto command = Take();
  if (!command->structure.empty()) form_.Reconnect();
  const FormChange shown{.values = recorder_->Captured()};
  recorder_.reset();
  const qsizetype data = command->Empty() ? 0 : DataIn(*command);
  if (command->Empty()) {
    emit Changed(shown);  // live previews may have been shown on the way
  } else {
    command->text = text;
    form_.DropFindings(*command);
    Announce(ChangeOf(undo_.Push(std::move(command))));
    emit ModifiedChanged();
  }
  Ended();
  return data;
}

// Takes back what the command did so far, even if it did not come to saying so.
void FormSession::Rollback() {
  recorder_->NoteModified();
  const auto command = Take();
  recorder_.reset();
  Step(*command, false);
  Ended();
}

// What had to wait for the command.
void FormSession::Ended() {
  if (std::exchange(rebuildWanted_, false)) Rebuild();
}

void FormSession::Step(Command& command, bool redo) {
  form_.Apply(command, redo);
  form_.DropFindings(command);
  std::vector<TComponent*> selected =
      form_.ComponentsOf(redo ? command.selectionAfter : command.selectionBefore);
  if (selected != selection_.Components()) selection_.Set(std::move(selected), Form());
  Announce(ChangeOf(command));
  TellSelection();
}

void FormSession::Undo() {
  SettleStray();
  if (!CanUndo() || recorder_) return;
  Step(undo_.StepBack(), false);
  emit ModifiedChanged();
}

void FormSession::Redo() {
  SettleStray();
  if (!CanRedo() || recorder_) return;
  Step(undo_.StepForward(), true);
  emit ModifiedChanged();
}

FormChange FormSession::ChangeOf(const Command& command) const {
  FormChange change;
  change.structure = !command.structure.empty();
  for (const ComponentChange& c : command.components) {
    TComponent* component = ComponentOf(*c.object);
    if (!component) continue;
    change.values.push_back(component);
    if (c.nameBefore != c.nameAfter) change.renamed.push_back(component);
  }
  return change;
}

void FormSession::Announce(const FormChange& change) {
  emit Changed(change);
  NotifyDesign([this](IDesignNotification& n) { n.ItemsModified(this); });
}
