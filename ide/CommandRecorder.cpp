#include "ide/CommandRecorder.h"

#include <QCoreApplication>

#include "rtl/Exceptions.h"

namespace {
// Puts other bounds into the values of a control that was only moved.
void PutBounds(forms::Snapshot& values, const TControl& control, const QRect& bounds) {
  const QRect now = control.BoundsRect();
  const std::pair<QByteArrayView, int> moved[] = {
      {"Left", bounds.left() - now.left()},          {"Top", bounds.top() - now.top()},
      {"Width", bounds.width() - now.width()},       {"Height", bounds.height() - now.height()},
      {"ClientWidth", bounds.width() - now.width()}, {"ClientHeight", bounds.height() - now.height()}};
  for (forms::StoredValue& v : values)
    for (const auto& [path, by] : moved)
      if (v.path == path) v.value = forms::Value::Integer(v.value.integer + by);
}

bool IsInside(const forms::Object& object, const forms::Object& root) {
  const forms::Object* o = &object;
  while (o->parent) o = o->parent;
  return o == &root;
}

void CollectObjects(const forms::Object& object, QSet<const forms::Object*>& out) {
  out.insert(&object);
  for (const auto& child : object.children) CollectObjects(*child, out);
}
}  // namespace

CommandRecorder::CommandRecorder(BoundForm& form, Kind kind, std::vector<forms::Object*> selection)
    : form_(form), kind_(kind), selectionBefore_(std::move(selection)) {}

void CommandRecorder::ByHand::Settle(const QRect& now) {
  if (!from) return;
  left |= now.left() != from->left();
  top |= now.top() != from->top();
  width |= now.width() != from->width();
  height |= now.height() != from->height();
  from.reset();
}

void CommandRecorder::RequireOwnNames() const {
  for (const Before& b : captured_)
    if (form_.ObjectOf(*b.component) == b.object && b.object->parent &&
        b.object->kind == forms::ObjectKind::Inherited && b.component->Name() != b.name)
      throw EComponentError(QCoreApplication::translate(
                                "FormSession", "%1 comes from the ancestor form and cannot be renamed here.")
                                .arg(b.name));
}

std::vector<TComponent*> CommandRecorder::Captured() const {
  std::vector<TComponent*> components;
  for (const Before& b : captured_)
    if (form_.ObjectOf(*b.component) == b.object) components.push_back(b.component);
  return components;
}

// --- While the action runs

void CommandRecorder::Capture(TComponent& component) {
  if (index_.contains(&component)) return;
  forms::Object* object = form_.ObjectOf(component);
  if (!object || created_.contains(object)) return;
  index_.insert(&component);
  // It may have changed before it told of another change.
  if (form_.ChangedSilently(component, *object)) {
    for (auto& d : form_.AsDocumented({object}))
      captured_.push_back({&component, object, d.name, std::move(d.values)});
    return;
  }
  forms::Snapshot values = forms::TakeSnapshot(component, form_.Document());
  if (const auto* control = As<TControl>(&component); control && moved_.contains(control))
    PutBounds(values, *control, bounds_[moved_.value(control)].second);
  captured_.push_back({&component, object, component.Name(), std::move(values)});
}

void CommandRecorder::CaptureBounds(TControl& control) {
  if (const auto hand = byHand_.find(&control); hand != byHand_.end()) hand->Settle(control.BoundsRect());
  if (!control.IsFollowing()) byHand_[&control].from = control.BoundsRect();
  if (moved_.contains(&control)) return;
  moved_.insert(&control, bounds_.size());
  bounds_.emplace_back(&control, control.BoundsRect());
}

void CommandRecorder::RestoreBounds() {
  const auto frozen = form_.Freeze();
  for (const auto& [control, before] : bounds_)
    control->SetBounds(before.left(), before.top(), before.width(), before.height());
}

void CommandRecorder::NotePlaced(TControl& control) {
  if (std::find(placed_.begin(), placed_.end(), &control) == placed_.end()) placed_.push_back(&control);
}

void CommandRecorder::NoteCame(TComponent& component) { arrived_.push_back(&component); }

void CommandRecorder::NoteGoing(TComponent& component) {
  std::erase(arrived_, &component);
  std::erase(orphaned_, &component);
  std::erase_if(placed_, [&](const TComponent* c) { return c == &component; });
  forms::Object* object = form_.ObjectOf(component);
  if (!object || object == &form_.Document().Root()) return;
  form_.Watcher().Going(component);
  for (const auto& child : object->children)
    if (TComponent* c = form_.ComponentOf(*child)) orphaned_.push_back(c);
  form_.Unbind(component);
  if (!IsInside(*object, form_.Document().Root())) return;  // with something that went before
  StructureChange s;
  s.kind = StructureChange::Kind::Remove;
  s.object = object;
  s.parent = object->parent;
  s.index = object->IndexInParent();
  s.held = s.parent->Take(s.index);
  structure_.push_back(std::move(s));
}

void CommandRecorder::Enter(TComponent& component, forms::Object& parent) {
  auto object = std::make_unique<forms::Object>();
  object->className = component.StreamClassName();
  StructureChange s;
  s.object = object.get();
  s.parent = &parent;
  s.index = form_.NewChildIndex(parent, As<TControl>(&component));
  parent.Insert(s.index, std::move(object));
  created_.insert(s.object);
  form_.Bind(component, *s.object);
  structure_.push_back(std::move(s));
  if (component.Name().isEmpty())
    component.SetName(form_.UniqueName(QString::fromLatin1(component.ClassType().ClassName())));
}

// As the text says; nothing around it moves yet.
TComponent* CommandRecorder::Insert(std::unique_ptr<forms::Object> object, forms::Object& parent, int index) {
  StructureChange s;
  s.object = object.get();
  s.parent = &parent;
  s.index = index;
  parent.Insert(index, std::move(object));
  form_.Complete(*s.object);
  CollectObjects(*s.object, inserted_);
  structure_.push_back(std::move(s));
  const auto building = form_.Build();
  const auto frozen = form_.Freeze();
  return form_.MakeComponents(structure_.back());
}

void CommandRecorder::SettleInserted(std::size_t count) {
  const auto frozen = form_.Freeze();
  for (std::size_t i = structure_.size() - count; i < structure_.size(); ++i)
    form_.Settle(*structure_[i].object);
}

void CommandRecorder::Delete(TComponent& component) {
  StructureChange s;
  s.kind = StructureChange::Kind::Remove;
  s.object = form_.ObjectOf(component);
  s.parent = s.object->parent;
  form_.TakeObject(s);
  structure_.push_back(std::move(s));
}

void CommandRecorder::PutStored(TComponent& component, QByteArrayView name,
                                std::optional<forms::Property> property) {
  Capture(component);
  forms::Object& object = *form_.ObjectOf(component);
  if (auto change = forms::ExchangeNode(object, name, std::move(property)))
    stored_[&object].push_back(std::move(*change));
}

// A component that an editor made on its own, with everything inside it.
void CommandRecorder::Adopt(TComponent& component) {
  component.SetDesigning(true);
  TComponent* parent = component.GetParentComponent();
  if (parent && parent != &form_.Root() && !form_.ObjectOf(*parent)) Adopt(*parent);
  forms::Object* at = parent ? form_.ObjectOf(*parent) : nullptr;
  if (form_.ObjectOf(component)) return;
  Enter(component, at ? *at : form_.Document().Root());
  form_.Watcher().Came(component);
}
