// Running, undoing and redoing commands.
#include "designintf/DesignWindow.h"
#include "ide/PendingCommand.h"
#include "rtl/PropAccess.h"

namespace {
QSet<QByteArray> BoundsPaths() { return {"Left", "Top", "Width", "Height", "ClientWidth", "ClientHeight"}; }
}  // namespace

void FormSession::Capture(TComponent& component) {
  if (pending_->index.contains(&component)) return;
  forms::Object* object = map_.ObjectOf(component);
  if (!object || pending_->created.contains(object)) return;
  pending_->index.insert(&component, static_cast<int>(pending_->captured.size()));
  pending_->captured.push_back(
      {&component, object, component.Name(), forms::TakeSnapshot(component, document_)});
  // Whoever refers to it writes its name.
  for (TComponent* holder : component.FreeNotifies())
    if (holder->Owner() == root_.get() || holder == root_.get()) Capture(*holder);
}

void FormSession::BoundsChanging(TControl& control) {
  if (!pending_ || applying_ || pending_->moved.contains(&control)) return;
  pending_->moved.insert(&control);
  pending_->bounds.emplace_back(&control, control.BoundsRect());
}

void FormSession::Run(const QString& text, const std::vector<TComponent*>& touched,
                      const std::function<void()>& action) {
  const bool outer = !pending_;
  if (outer) {
    pending_ = std::make_unique<Pending>();
    pending_->selectionBefore = SelectedObjects();
  }
  for (TComponent* c : touched) Capture(*c);
  if (!outer) return action();
  try {
    action();
  } catch (...) {
    Rollback();
    throw;
  }
  Commit(text);
}

// What the pending command changed, with the document patched accordingly.
std::unique_ptr<Command> FormSession::TakeDifferences() {
  auto command = std::make_unique<Command>();
  command->structure = std::move(pending_->structure);
  command->selectionBefore = pending_->selectionBefore;
  const auto alive = [this](TComponent* c) { return map_.ObjectOf(*c) != nullptr; };
  // A new component may stand at the address of a deleted one; the object tells them apart.
  const auto stillThere = [this](const Pending::Captured& c) {
    return map_.ObjectOf(*c.component) == c.object;
  };

  for (auto& [control, before] : pending_->bounds) {
    if (pending_->index.contains(control) || !alive(control) ||
        pending_->created.contains(map_.ObjectOf(*control)))
      continue;
    // Only its place can have changed: the old values are the present ones with the old bounds.
    const QRect now = control->BoundsRect();
    forms::Snapshot values;
    for (forms::StoredValue& v : forms::TakeSnapshot(*control, document_)) {
      if (!BoundsPaths().contains(v.path)) {
        values.push_back(std::move(v));
        continue;
      }
      if (v.path == "Left") v.value = forms::Value::Integer(before.left());
      if (v.path == "Top") v.value = forms::Value::Integer(before.top());
      if (v.path == "Width") v.value = forms::Value::Integer(before.width());
      if (v.path == "Height") v.value = forms::Value::Integer(before.height());
      values.push_back(std::move(v));
    }
    if (now != before)
      pending_->captured.push_back({control, map_.ObjectOf(*control), control->Name(), std::move(values)});
  }

  for (auto& c : pending_->captured) {
    if (!stillThere(c)) continue;
    ComponentChange change;
    change.object = c.object;
    const forms::Snapshot after = forms::TakeSnapshot(*c.component, document_);
    change.values = forms::Difference(c.values, after);
    change.nameBefore = c.name;
    change.nameAfter = c.component->Name();
    change.classBefore = change.classAfter = c.object->className;
    change.headerChangedBefore = c.object->headerChanged;
    if (change.nameBefore != change.nameAfter) {
      SetObjectName(*c.object, change.nameAfter);
      // A form's class follows its name: TMain for Main.
      if (c.component == root_.get() && change.classBefore == "T" + change.nameBefore.toUtf8()) {
        change.classAfter = "T" + change.nameAfter.toUtf8();
        c.object->className = change.classAfter;
        root_->SetStreamClassName(change.classAfter);
      }
    }
    forms::PatchObject(*c.object, document_, after, change.values);
    if (!change.values.empty() || change.nameBefore != change.nameAfter)
      command->components.push_back(std::move(change));
  }

  for (const StructureChange& s : command->structure)
    if (s.kind == StructureChange::Kind::Insert && !s.held)
      if (TComponent* c = map_.ComponentOf(*s.object); c && pending_->created.contains(s.object)) {
        s.object->properties.clear();
        s.object->name = c->Name().toUtf8();
        for (forms::StoredValue& v : forms::PropertyValues(*c, document_, false))
          s.object->properties.push_back(document_.MakeProperty(v.path, std::move(v.value)));
      }
  command->selectionAfter = SelectedObjects();
  return command;
}

void FormSession::Commit(const QString& text) {
  auto command = TakeDifferences();
  pending_.reset();
  if (command->Empty()) {
    emit FormChanged();  // live previews may have been shown on the way
    return;
  }
  command->text = text;
  Push(std::move(command));
}

void FormSession::Push(std::unique_ptr<Command> command) {
  if (clean_ > position_) clean_ = -1;  // the saved state can no longer be reached
  commands_.resize(static_cast<std::size_t>(position_));
  const bool structure = !command->structure.empty();
  commands_.push_back(std::move(command));
  ++position_;
  Announce(structure);
  emit ModifiedChanged();
}

// Takes back what the pending command did so far.
void FormSession::Rollback() {
  auto command = TakeDifferences();
  pending_.reset();
  Apply(*command, false);
  selection_ = ComponentsOf(command->selectionBefore);
  Announce(!command->structure.empty());
  Select(selection_);
}

void FormSession::Announce(bool structure) {
  if (structure) emit StructureChanged();
  emit FormChanged();
  NotifyDesign([this](IDesignNotification& n) { n.ItemsModified(this); });
}

QString FormSession::UndoText() const {
  return CanUndo() ? commands_[static_cast<std::size_t>(position_ - 1)]->text : QString();
}
QString FormSession::RedoText() const {
  return CanRedo() ? commands_[static_cast<std::size_t>(position_)]->text : QString();
}

void FormSession::Undo() {
  if (!CanUndo() || pending_) return;
  Command& command = *commands_[static_cast<std::size_t>(--position_)];
  Apply(command, false);
  selection_ = ComponentsOf(command.selectionBefore);
  Announce(!command.structure.empty());
  Select(selection_);
  emit ModifiedChanged();
}

void FormSession::Redo() {
  if (!CanRedo() || pending_) return;
  Command& command = *commands_[static_cast<std::size_t>(position_++)];
  Apply(command, true);
  selection_ = ComponentsOf(command.selectionAfter);
  Announce(!command.structure.empty());
  Select(selection_);
  emit ModifiedChanged();
}

void FormSession::SetObjectName(forms::Object& object, const QString& name) {
  object.name = name.toUtf8();
  object.headerChanged = true;
}

void FormSession::Apply(Command& command, bool redo) {
  applying_ = true;
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
  applying_ = false;
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
    if (target.Found()) forms::ApplyNow(*root_, target, redo ? v.after : v.before, document_);
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
  if ((s.kind == StructureChange::Kind::Insert) == redo)
    InsertObject(s);
  else
    TakeObject(s);
}

void FormSession::InsertObject(StructureChange& s) {
  forms::Object& object = *s.held;
  s.parent->Insert(s.index, std::move(s.held));
  forms::FormReader reader = MakeReader(document_, map_);
  TComponent* parent = map_.ComponentOf(*s.parent);
  if (TComponent* c = reader.ReadChild(object, *root_, *parent)) {
    // Back to its place among the siblings.
    if (auto* control = As<TControl>(c); control && control->Parent()) {
      int place = 0;
      for (int i = 0; i < s.index; ++i)
        if (As<TControl>(map_.ComponentOf(*s.parent->children[static_cast<std::size_t>(i)]))) ++place;
      control->Parent()->SetControlIndex(control, place);
    }
    NotifyDesign([&](IDesignNotification& n) { n.ItemInserted(this, c); });
  }
}

void FormSession::TakeObject(StructureChange& s) {
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
