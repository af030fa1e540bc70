// Running, undoing and redoing commands.
#include <QScopedValueRollback>

#include "designintf/DesignWindow.h"
#include "ide/PendingCommand.h"
#include "ide/PictureBudget.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"

namespace {
QSet<QByteArray> BoundsPaths() { return {"Left", "Top", "Width", "Height", "ClientWidth", "ClientHeight"}; }
}  // namespace

bool FormSession::IsBusy() const { return pending_ && pending_->kind != Pending::Kind::Stray; }

void FormSession::Run(const QString& text, const std::vector<TComponent*>& touched,
                      const std::function<void()>& action) {
  SettleStray();
  EndLive({}, false);
  const bool outer = !pending_;
  if (outer) Begin(static_cast<int>(Pending::Kind::Action));
  for (TComponent* c : touched) Capture(*c);
  if (!outer) return action();
  try {
    action();
  } catch (...) {
    Rollback();
    throw;
  }
  const int before = position_;
  Commit(text);
  if (position_ == before + 1) RequireReadableAfter(*commands_.back());
}

// What an edit makes, the next reading of the file takes: an edit that goes beyond is taken back.
void FormSession::RequireReadableAfter(const Command& command) {
  qsizetype data = 0;
  for (const ComponentChange& c : command.components)
    for (const forms::ValueChange& v : c.values)
      if (v.after.type == forms::ValueType::Binary) data += v.after.bytes.size();
  if (data == 0) return;
  try {
    RequirePictureBudget(document_, true);
    constexpr qsizetype Large = qsizetype{1} << 20;
    if (data > Large) RequireReadable(Bytes().size());
  } catch (const Exception&) {
    Undo();
    commands_.pop_back();
    emit ModifiedChanged();  // there is nothing to redo
    throw;
  }
}

void FormSession::RequireReadable(qsizetype size) {
  if (size > forms::MaxFileSize)
    throw Exception(
        QStringLiteral("The form would become larger than %1 MB and could not be opened again. Use smaller "
                       "pictures, or store them compressed.")
            .arg(forms::MaxFileSize >> 20));
}

bool FormSession::IsLive() const { return pending_ && pending_->kind == Pending::Kind::Live; }

void FormSession::BeginLive() {
  SettleStray();
  if (!pending_) Begin(static_cast<int>(Pending::Kind::Live));
}

void FormSession::RestartLive() {
  if (!IsLive()) return;
  const QScopedValueRollback guard(applying_, true);
  for (const auto& [control, before] : pending_->bounds)
    control->SetBounds(before.left(), before.top(), before.width(), before.height());
}

void FormSession::EndLive(const QString& text, bool keep) {
  if (!IsLive()) return;
  if (keep)
    Commit(text);
  else
    Rollback();
}

void FormSession::Commit(const QString& text) {
  // Somebody says that something changed, and nobody told of it before.
  if (pending_->modified && !pending_->announced) CaptureAll();
  auto command = TakeDifferences();
  if (!command->structure.empty()) Reconnect();
  FormChange shown;
  for (const auto& c : pending_->captured)
    if (map_.ObjectOf(*c.component) == c.object) shown.values.push_back(c.component);
  pending_.reset();
  if (command->Empty()) {
    emit Changed(shown);  // live previews may have been shown on the way
  } else {
    command->text = text;
    Push(std::move(command));
  }
  Ended();
}

// What had to wait for the command.
void FormSession::Ended() {
  if (std::exchange(rebuildWanted_, false)) Rebuild();
}

void FormSession::Push(std::unique_ptr<Command> command) {
  if (clean_ > position_) clean_ = -1;  // the saved state can no longer be reached
  commands_.resize(static_cast<std::size_t>(position_));
  const FormChange change = ChangeOf(*command);
  commands_.push_back(std::move(command));
  ++position_;
  Announce(change);
  emit ModifiedChanged();
}

// Takes back what the pending command did so far.
void FormSession::Rollback() {
  auto command = TakeDifferences();
  pending_.reset();
  Apply(*command, false);
  selection_ = ComponentsOf(command->selectionBefore);
  Announce(ChangeOf(*command));
  Select(selection_);
  Ended();
}

FormChange FormSession::ChangeOf(const Command& command) const {
  FormChange change;
  change.structure = !command.structure.empty();
  for (const ComponentChange& c : command.components) {
    TComponent* component = map_.ComponentOf(*c.object);
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

QString FormSession::UndoText() const {
  return CanUndo() ? commands_[static_cast<std::size_t>(position_ - 1)]->text : QString();
}
QString FormSession::RedoText() const {
  return CanRedo() ? commands_[static_cast<std::size_t>(position_)]->text : QString();
}

void FormSession::Undo() {
  SettleStray();
  if (!CanUndo() || pending_) return;
  Command& command = *commands_[static_cast<std::size_t>(--position_)];
  Apply(command, false);
  selection_ = ComponentsOf(command.selectionBefore);
  Announce(ChangeOf(command));
  Select(selection_);
  emit ModifiedChanged();
}

void FormSession::Redo() {
  SettleStray();
  if (!CanRedo() || pending_) return;
  Command& command = *commands_[static_cast<std::size_t>(position_++)];
  Apply(command, true);
  selection_ = ComponentsOf(command.selectionAfter);
  Announce(ChangeOf(command));
  Select(selection_);
  emit ModifiedChanged();
}

void FormSession::SetObjectName(forms::Object& object, const QString& name) {
  object.name = name.toUtf8();
  object.headerChanged = true;
}

void FormSession::Apply(Command& command, bool redo) {
  const QScopedValueRollback guard(applying_, true);
  if (redo)
    for (StructureChange& s : command.structure) ApplyStructure(s, true);
  else
    for (auto it = command.structure.rbegin(); it != command.structure.rend(); ++it)
      ApplyStructure(*it, false);
  // Names first: values may refer to them.
  for (ComponentChange& c : command.components) {
    if (c.nameBefore == c.nameAfter) continue;
    TComponent* component = map_.ComponentOf(*c.object);
    component->SetName(redo ? c.nameAfter : c.nameBefore);
    c.object->name = component->Name().toUtf8();
    c.object->className = redo ? c.classAfter : c.classBefore;
    c.object->headerChanged = redo || c.headerChangedBefore;
    if (component == root_.get()) root_->SetStreamClassName(c.object->className);
  }
  for (ComponentChange& c : command.components) ApplyValues(c, redo);
  for (StructureChange& s : command.structure)
    if (!s.held) Settle(*s.object);
  if (!command.structure.empty()) Reconnect();
}

// What came back before everything else was in place: components it refers to may have come later, and its
// surroundings may have changed its bounds since.
void FormSession::Settle(forms::Object& object) {
  if (TComponent* c = map_.ComponentOf(object))
    for (const forms::Property& p : object.properties) {
      const forms::PropertyTarget target = forms::FindTarget(*c, p.Name());
      if (!target.Found() || !target.prop) continue;
      if (!IsComponentRef(*target.prop) && !BoundsPaths().contains(p.Name().toByteArray())) continue;
      try {
        forms::ApplyNow(*root_, target, document_.Read(p), document_);
      } catch (const Exception&) {
        // A reference to something that is not on this form; the reader has reported it.
      }
    }
  for (const auto& child : object.children) Settle(*child);
}

void FormSession::ApplyValues(ComponentChange& change, bool redo) {
  TComponent* component = map_.ComponentOf(*change.object);
  const auto set = [&](const forms::ValueChange& v) {
    const forms::PropertyTarget target = forms::FindTarget(*component, v.path);
    if (!target.Found()) return;
    try {
      forms::ApplyNow(*root_, target, redo ? v.after : v.before, document_);
    } catch (const Exception&) {
      // The document has the value all the same; one setter that refuses does not keep the others back.
    }
  };
  for (const forms::ValueChange& v : change.values) set(v);
  // Whatever sized itself on the way gets its place back.
  for (const forms::ValueChange& v : change.values)
    if (BoundsPaths().contains(v.path)) set(v);
  if (redo)
    forms::RepatchObject(*change.object, change.values);
  else
    forms::UnpatchObject(*change.object, change.values);
}

void FormSession::ApplyStructure(StructureChange& s, bool redo) {
  if (s.kind == StructureChange::Kind::Move)
    MoveObject(s, redo);
  else if ((s.kind == StructureChange::Kind::Insert) == redo)
    InsertObject(s);
  else
    TakeObject(s);
}

void FormSession::InsertObject(StructureChange& s) {
  s.parent->Insert(s.index, std::move(s.held));
  MakeComponents(s);
}

// Of an object that stands in the document already.
TComponent* FormSession::MakeComponents(const StructureChange& s) {
  forms::FormReader reader = MakeReader(document_, map_);
  TComponent* c = reader.ReadChild(*s.object, *root_, *map_.ComponentOf(*s.parent));
  NoteDangling(reader.Findings());
  if (!c) return nullptr;
  // Back to its place among the siblings.
  if (auto* control = As<TControl>(c); control && control->Parent())
    control->Parent()->SetControlIndex(control, PlaceAmong(*s.parent, s.index));
  NotifyDesign([&](IDesignNotification& n) { n.ItemInserted(this, c); });
  return c;
}

// How many controls stand before the child.
int FormSession::PlaceAmong(const forms::Object& parent, int index) const {
  int place = 0;
  for (int i = 0; i < index; ++i)
    if (As<TControl>(map_.ComponentOf(*parent.children[static_cast<std::size_t>(i)]))) ++place;
  return place;
}

void FormSession::MoveObject(StructureChange& s, bool redo) {
  forms::Object* to = redo ? s.newParent : s.parent;
  std::unique_ptr<forms::Object> node = s.object->parent->Take(s.object->IndexInParent());
  const int index = redo ? s.newIndex : s.index;
  to->Insert(index, std::move(node));
  auto* control = As<TControl>(map_.ComponentOf(*s.object));
  if (!control) return;
  control->SetParentComponent(map_.ComponentOf(*to));
  if (control->Parent()) control->Parent()->SetControlIndex(control, PlaceAmong(*to, index));
}

void FormSession::TakeObject(StructureChange& s) {
  const QScopedValueRollback guard(structuring_, true);
  RemoveObject(*s.object);
  if (selection_.empty()) selection_ = {root_.get()};
  s.index = s.object->IndexInParent();
  s.held = s.parent->Take(s.index);
}

// By objects, because components of unknown classes do not know what stands inside them.
void FormSession::RemoveObject(forms::Object& object) {
  for (auto it = object.children.rbegin(); it != object.children.rend(); ++it) RemoveObject(**it);
  if (TComponent* c = map_.ComponentOf(object)) RemoveWithChildren(*c);
}

void FormSession::RemoveWithChildren(TComponent& component) {
  for (TComponent* child : component.GetChildren()) RemoveWithChildren(*child);
  NotifyDesign([&](IDesignNotification& n) { n.ItemDeleted(this, &component); });
  std::erase(selection_, &component);
  map_.Remove(component);
  delete &component;
}
