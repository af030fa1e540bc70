#include "ide/FormSession.h"

#include "designintf/ComponentEditor.h"
#include "designintf/DesignIntf.h"
#include "designintf/DesignWindow.h"
#include "forms/FormFile.h"
#include "ide/Unknown.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"

namespace {
TComponent* MakeStandIn(const forms::Object& object, TComponent* owner) {
  const QByteArray cls(object.className.constData(), object.className.size());
  if (object.Find("Width") || object.Find("Height") || !object.children.empty()) {
    auto* control = new TUnknownControl(owner);
    control->SetStreamClassName(cls);
    return control;
  }
  auto* component = new TUnknownComponent(owner);
  component->SetStreamClassName(cls);
  return component;
}

TComponent* MakeRoot(const forms::Object& object, TComponent* owner) {
  auto* form = new TForm(owner);
  form->SetStreamClassName(QByteArray(object.className.constData(), object.className.size()));
  return form;
}

QSet<QByteArray> BoundsPaths() { return {"Left", "Top", "Width", "Height", "ClientWidth", "ClientHeight"}; }

void CollectComponents(TComponent& component, std::vector<TComponent*>& out) {
  out.push_back(&component);
  for (TComponent* child : component.GetChildren()) CollectComponents(*child, out);
}
}  // namespace

FormSession::FormSession(forms::Document document) : document_(std::move(document)) {}

FormSession::~FormSession() {
  if (root_) {
    root_->SetHost(nullptr);
    NotifyDesign([this](IDesignNotification& n) { n.DesignerClosed(this); });
  }
}

std::unique_ptr<FormSession> FormSession::FromBytes(QByteArray bytes, const QString& fileName) {
  std::unique_ptr<FormSession> session(
      new FormSession(forms::Document::Parse(std::move(bytes), forms::DialectOfName(fileName))));
  session->fileName_ = fileName;
  session->Build();
  NotifyDesign([&](IDesignNotification& n) { n.DesignerOpened(session.get()); });
  return session;
}

std::unique_ptr<FormSession> FormSession::Open(const QString& fileName) {
  return FromBytes(forms::ReadFile(fileName), fileName);
}

std::unique_ptr<FormSession> FormSession::NewForm(const QString& name) {
  forms::Document document = forms::Document::Create("T" + name.toUtf8(), name.toUtf8());
  TForm form(nullptr);
  form.SetDesigning(true);
  form.SetName(name);
  form.SetCaption(name);
  form.SetStreamClassName("T" + name.toUtf8());
  form.SetClientWidth(480);
  form.SetClientHeight(320);
  forms::DescribeComponent(form, document, document.Root());
  std::unique_ptr<FormSession> session(new FormSession(std::move(document)));
  session->Build();
  NotifyDesign([&](IDesignNotification& n) { n.DesignerOpened(session.get()); });
  return session;
}

forms::FormReader FormSession::MakeReader() {
  forms::FormReader reader(document_, map_);
  reader.SetDesigning(true);
  reader.SetRootMaker(MakeRoot);
  reader.SetUnknownMaker(MakeStandIn);
  return reader;
}

void FormSession::Build() {
  map_.Clear();
  forms::FormReader reader = MakeReader();
  auto root = reader.ReadRoot();
  root_.reset(static_cast<TForm*>(root.release()));
  findings_ = reader.Findings();
  root_->SetHost(this);
  if (selection_.empty()) selection_ = {root_.get()};
}

void FormSession::Rebuild() {
  const std::vector<forms::Object*> selected = SelectedObjects();
  root_->SetHost(nullptr);
  selection_.clear();
  root_.reset();
  Build();
  selection_ = ComponentsOf(selected);
  Announce(true);
  emit SelectionChanged();
}

std::vector<TComponent*> FormSession::AllComponents() const {
  std::vector<TComponent*> all;
  const std::function<void(const forms::Object&)> collect = [&](const forms::Object& object) {
    if (TComponent* c = map_.ComponentOf(object)) all.push_back(c);
    for (const auto& child : object.children) collect(*child);
  };
  collect(document_.Root());
  return all;
}

// --- Files

void FormSession::Save() { SaveAs(fileName_); }

void FormSession::SaveAs(const QString& fileName) {
  forms::WriteFile(fileName, Bytes());
  fileName_ = fileName;
  clean_ = position_;
  emit ModifiedChanged();
}

// --- Commands

struct FormSession::Pending {
  struct Captured {
    TComponent* component;
    forms::Object* object;
    QString name;
    forms::Snapshot values;
  };
  std::vector<Captured> captured;
  QHash<const TComponent*, int> index;
  std::vector<std::pair<TControl*, QRect>> bounds;  // of controls that were moved on the way
  QSet<const TControl*> moved;
  std::vector<StructureChange> structure;
  QSet<const forms::Object*> created;
  std::vector<forms::Object*> selectionBefore;
  int depth = 0;
};

void FormSession::Capture(TComponent& component) {
  if (pending_->index.contains(&component)) return;
  forms::Object* object = map_.ObjectOf(component);
  if (!object || pending_->created.contains(object)) return;
  pending_->index.insert(&component, static_cast<int>(pending_->captured.size()));
  pending_->captured.push_back({&component, object, component.Name(), forms::TakeSnapshot(component, document_)});
  // Whoever refers to it writes its name.
  for (TComponent* holder : component.FreeNotifies())
    if (holder->Owner() == root_.get() || holder == root_.get()) Capture(*holder);
}

void FormSession::BoundsChanging(TControl& control) {
  if (!pending_ || applying_ || pending_->moved.contains(&control)) return;
  pending_->moved.insert(&control);
  pending_->bounds.emplace_back(&control, control.BoundsRect());
}

void FormSession::Run(const QString& text, const std::vector<TComponent*>& touched, const std::function<void()>& action) {
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
  const auto stillThere = [this](const Pending::Captured& c) { return map_.ObjectOf(*c.component) == c.object; };

  for (auto& [control, before] : pending_->bounds) {
    if (pending_->index.contains(control) || !alive(control) || pending_->created.contains(map_.ObjectOf(*control))) continue;
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
    if (now != before) pending_->captured.push_back({control, map_.ObjectOf(*control), control->Name(), std::move(values)});
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
    if (!change.values.empty() || change.nameBefore != change.nameAfter) command->components.push_back(std::move(change));
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

QString FormSession::UndoText() const { return CanUndo() ? commands_[static_cast<std::size_t>(position_ - 1)]->text : QString(); }
QString FormSession::RedoText() const { return CanRedo() ? commands_[static_cast<std::size_t>(position_)]->text : QString(); }

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
    for (auto it = command.structure.rbegin(); it != command.structure.rend(); ++it) ApplyStructure(*it, false);
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
  forms::FormReader reader = MakeReader();
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

// --- Creating and deleting

// Controls stand before the components that are none, as in every form file.
int FormSession::NewChildIndex(const forms::Object& parent, const TComponent& component) const {
  int index = static_cast<int>(parent.children.size());
  if (!As<TControl>(&component)) return index;
  while (index > 0) {
    const TComponent* c = map_.ComponentOf(*parent.children[static_cast<std::size_t>(index - 1)]);
    if (!c || As<TControl>(c)) break;
    --index;
  }
  return index;
}

TComponent* FormSession::CreateComponent(const TClass& cls, TComponent* parent, const QRect& bounds) {
  TComponent* result = nullptr;
  if (!parent) parent = root_.get();
  Run(tr("Add %1").arg(QString::fromLatin1(cls.ClassName())), {}, [&] {
    TComponent* component = cls.NewComponent(root_.get());
    component->SetDesigning(true);
    auto* control = As<TControl>(component);
    TComponent* container = root_.get();
    if (control) {
      auto* holder = As<TWinControl>(parent);
      container = holder ? static_cast<TComponent*>(holder) : root_.get();
      while (container != root_.get() && !map_.ObjectOf(*container)) container = container->GetParentComponent();
    }
    forms::Object* parentObject = map_.ObjectOf(*container);
    auto object = std::make_unique<forms::Object>();
    object->className = component->StreamClassName();
    StructureChange s;
    s.object = object.get();
    s.parent = parentObject;
    s.index = NewChildIndex(*parentObject, *component);
    parentObject->Insert(s.index, std::move(object));
    pending_->created.insert(s.object);
    map_.Add(*component, *s.object);
    pending_->structure.push_back(std::move(s));
    component->SetName(UniqueName(QString::fromLatin1(cls.ClassName())));
    if (control) {
      control->SetParent(As<TWinControl>(container));
      control->SetCaption(control->Caption().isEmpty() ? control->Name() : control->Caption());
      const bool sized = bounds.width() > 1 && bounds.height() > 1;
      control->SetBounds(bounds.left(), bounds.top(), sized ? bounds.width() : control->Width(),
                         sized ? bounds.height() : control->Height());
      if (auto* windowed = As<TWinControl>(control))
        windowed->SetTabOrder(static_cast<int>(std::count_if(
            windowed->Parent()->Controls().begin(), windowed->Parent()->Controls().end(),
            [&](TControl* c) { return c != control && As<TWinControl>(c); })));
    } else {
      component->SetDesignInfo(DesignWordOf({static_cast<std::int16_t>(bounds.left()), static_cast<std::int16_t>(bounds.top())}));
    }
    result = component;
    selection_ = {component};
    NotifyDesign([&](IDesignNotification& n) { n.ItemInserted(this, component); });
  });
  Select(selection_);
  return result;
}

void FormSession::DeleteComponents(const std::vector<TComponent*>& components) {
  std::vector<TComponent*> doomed;
  const auto insideAnother = [&](const TComponent* c) {
    for (const TComponent* p = c->GetParentComponent(); p && p != root_.get(); p = p->GetParentComponent())
      if (std::find(components.begin(), components.end(), p) != components.end()) return true;
    return false;
  };
  for (TComponent* c : components) {
    if (c == root_.get() || insideAnother(c)) continue;
    if (map_.ObjectOf(*c)->kind == forms::ObjectKind::Inherited)
      throw EComponentError(tr("%1 comes from the ancestor form and cannot be deleted here.").arg(c->Name()));
    doomed.push_back(c);
  }
  if (doomed.empty()) return;
  Run(doomed.size() == 1 ? tr("Delete %1").arg(doomed[0]->Name()) : tr("Delete %n components", nullptr, static_cast<int>(doomed.size())),
      {}, [&] {
        for (TComponent* c : doomed) {
          std::vector<TComponent*> all;
          CollectComponents(*c, all);
          for (TComponent* inner : all)
            for (TComponent* holder : inner->FreeNotifies())
              if (std::find(all.begin(), all.end(), holder) == all.end() && map_.ObjectOf(*holder)) Capture(*holder);
        }
        for (TComponent* c : doomed) {
          StructureChange s;
          s.kind = StructureChange::Kind::Remove;
          s.object = map_.ObjectOf(*c);
          s.parent = s.object->parent;
          TakeObject(s);
          pending_->structure.push_back(std::move(s));
        }
      });
  Select(selection_);
}

void FormSession::DeleteSelection() { DeleteComponents(selection_); }

void FormSession::Rename(TComponent& component, const QString& name) {
  if (name.isEmpty()) throw EComponentError(tr("%1 needs a name.").arg(component.Name()));
  Run(tr("Rename %1").arg(component.Name()), {&component}, [&] { component.SetName(name); });
}

// A change that nobody announced beforehand, made by a design window: found by comparing every component with what
// the document makes of it.
void FormSession::Reconcile() {
  forms::Document copy = forms::Document::Parse(document_.Write(), document_.Style());
  forms::ObjectMap copyMap;
  forms::FormReader reader(copy, copyMap);
  reader.SetDesigning(true);
  reader.SetRootMaker(MakeRoot);
  reader.SetUnknownMaker(MakeStandIn);
  const auto before = reader.ReadRoot();
  pending_ = std::make_unique<Pending>();
  pending_->selectionBefore = SelectedObjects();
  std::function<void(const forms::Object&, forms::Object&)> walk = [&](const forms::Object& was, forms::Object& is) {
    TComponent* old = copyMap.ComponentOf(was);
    TComponent* now = map_.ComponentOf(is);
    if (old && now) pending_->captured.push_back({now, &is, old->Name(), forms::TakeSnapshot(*old, copy)});
    for (std::size_t i = 0; i < is.children.size(); ++i) walk(*was.children[i], *is.children[i]);
  };
  walk(copy.Root(), document_.Root());
  Commit(tr("Change"));
}

void FormSession::Modified() {
  if (pending_ || applying_) return;  // the running command takes it along
  Reconcile();
}

// --- Selection

std::vector<forms::Object*> FormSession::SelectedObjects() const {
  std::vector<forms::Object*> objects;
  for (const TComponent* c : selection_)
    if (forms::Object* o = map_.ObjectOf(*c)) objects.push_back(o);
  return objects;
}

std::vector<TComponent*> FormSession::ComponentsOf(const std::vector<forms::Object*>& objects) const {
  std::vector<TComponent*> components;
  for (const forms::Object* o : objects)
    if (TComponent* c = map_.ComponentOf(*o)) components.push_back(c);
  if (components.empty()) components.push_back(root_.get());
  return components;
}

void FormSession::Select(const std::vector<TComponent*>& components) {
  std::vector<TComponent*> wanted = components;
  if (wanted.empty()) wanted = {root_.get()};
  // The form is selected alone.
  if (wanted.size() > 1) std::erase(wanted, static_cast<TComponent*>(root_.get()));
  selection_ = wanted;
  emit SelectionChanged();
  const TDesignerSelections list = GetSelections();
  NotifyDesign([&](IDesignNotification& n) { n.SelectionChanged(this, list); });
}

bool FormSession::IsSelected(const TComponent& component) const {
  return std::find(selection_.begin(), selection_.end(), &component) != selection_.end();
}

void FormSession::SelectComponent(TPersistent* instance) { SetSelections({instance}); }

void FormSession::SetSelections(const TDesignerSelections& list) {
  std::vector<TComponent*> components;
  for (TPersistent* p : list)
    if (auto* c = As<TComponent>(p)) components.push_back(c);
  Select(components);
}

TDesignerSelections FormSession::GetSelections() const { return {selection_.begin(), selection_.end()}; }

// --- Names and methods

QString FormSession::GetRootClassName() const { return QString::fromUtf8(root_->StreamClassName()); }

QString FormSession::UniqueName(const QString& baseName) const {
  QString base = baseName;
  if (base.size() > 1 && base.startsWith(u'T') && base[1].isUpper()) base.remove(0, 1);
  for (int i = 1;; ++i) {
    const QString name = base + QString::number(i);
    if (!root_->FindComponent(name) && root_->Name().compare(name, Qt::CaseInsensitive) != 0) return name;
  }
}

TComponent* FormSession::GetComponent(const QString& name) const {
  return root_->Name().compare(name, Qt::CaseInsensitive) == 0 ? root_.get() : root_->FindComponent(name);
}

void FormSession::GetComponentNames(const TClass& cls, const TGetStrProc& proc) const {
  for (const TComponent* c : AllComponents())
    if (c->InheritsFrom(cls) && !c->Name().isEmpty()) proc(c->Name());
}

void FormSession::GetMethods(const TTypeInfo& eventType, const TGetStrProc& proc) const {
  QStringList handlers;
  for (const TComponent* c : AllComponents())
    for (const TPropInfo* p : c->ClassType().Properties())
      if (p->IsEvent() && p->PropType->Name == eventType.Name)
        if (const QString handler = c->MethodName(*p); !handler.isEmpty() && !handlers.contains(handler)) handlers << handler;
  for (const QString& handler : handlers) proc(handler);
}

bool FormSession::MethodExists(const QString& name) const {
  for (const TComponent* c : AllComponents())
    for (const TPropInfo* p : c->ClassType().Properties())
      if (p->IsEvent() && c->MethodName(*p).compare(name, Qt::CaseInsensitive) == 0) return true;
  return false;
}

void FormSession::ShowMethod(const QString& name) { emit HandlerShown(name); }

void FormSession::Edit(TComponent& component) {
  const auto editor = GetComponentEditor(&component, this);
  Run(tr("Edit %1").arg(component.Name()), {&component}, [&] { editor->Edit(); });
}

void FormSession::ControlChanged(TControl&) { emit RepaintNeeded(); }
