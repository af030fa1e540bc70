// Finding what a command changed. Components tell of a change before it happens, so their values from before
// can still be taken down; cost follows what changes, not the size of the form.
#include <QScopedValueRollback>

#include "designintf/DesignWindow.h"
#include "ide/PendingCommand.h"

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
}  // namespace

void FormSession::Begin(int kind) {
  pending_ = std::make_unique<Pending>();
  pending_->kind = static_cast<Pending::Kind>(kind);
  pending_->selectionBefore = SelectedObjects();
}

// A change outside of any command, by a design window or a timer: it becomes a command of its own, at the
// latest when the event that made it is over.
void FormSession::NoteStray() {
  if (pending_) return;
  Begin(static_cast<int>(Pending::Kind::Stray));
  QMetaObject::invokeMethod(this, &FormSession::SettleStray, Qt::QueuedConnection);
}

void FormSession::SettleStray() {
  if (pending_ && pending_->kind == Pending::Kind::Stray) Commit(tr("Change"));
}

void FormSession::Capture(TComponent& component) {
  if (pending_->index.contains(&component)) return;
  forms::Object* object = map_.ObjectOf(component);
  if (!object || pending_->created.contains(object)) return;
  pending_->index.insert(&component);
  forms::Snapshot values = forms::TakeSnapshot(component, document_);
  // It may have been moved before it told of another change.
  if (const auto* control = As<TControl>(&component); control && pending_->moved.contains(control))
    PutBounds(values, *control, pending_->bounds[pending_->moved.value(control)].second);
  pending_->captured.push_back({&component, object, component.Name(), std::move(values)});
}

void FormSession::ComponentChanging(TComponent& component) {
  // What it covers now, too: a text may get shorter.
  if (const auto* control = As<TControl>(&component)) emit RepaintNeeded(*control);
  if (applying_ || structuring_ || !map_.ObjectOf(component)) return;
  NoteStray();
  pending_->announced = true;
  Capture(component);
}

void FormSession::BoundsChanging(TControl& control) {
  if (applying_ || !map_.ObjectOf(control)) return;
  NoteStray();
  pending_->announced = true;
  if (const auto hand = pending_->byHand.find(&control); hand != pending_->byHand.end())
    hand->Settle(control.BoundsRect());
  if (!control.IsFollowing()) pending_->byHand[&control].from = control.BoundsRect();
  if (pending_->moved.contains(&control)) return;
  pending_->moved.insert(&control, pending_->bounds.size());
  pending_->bounds.emplace_back(&control, control.BoundsRect());
}

void FormSession::ControlPlaced(TControl& control) {
  if (applying_ || structuring_ || !map_.ObjectOf(control)) return;
  NoteStray();
  pending_->announced = true;
  if (std::find(pending_->placed.begin(), pending_->placed.end(), &control) == pending_->placed.end())
    pending_->placed.push_back(&control);
}

void FormSession::ComponentListed(TComponent& component, TOperation operation) {
  if (applying_ || structuring_) return;
  NoteStray();
  pending_->announced = true;
  if (operation == TOperation::opInsert) {
    pending_->arrived.push_back(&component);
    return;
  }
  std::erase(pending_->arrived, &component);
  std::erase(pending_->orphaned, &component);
  std::erase_if(pending_->placed, [&](const TComponent* c) { return c == &component; });
  forms::Object* object = map_.ObjectOf(component);
  if (!object || object == &document_.Root()) return;
  NotifyDesign([&](IDesignNotification& n) { n.ItemDeleted(this, &component); });
  std::erase(selection_, &component);
  for (const auto& child : object->children)
    if (TComponent* c = map_.ComponentOf(*child)) pending_->orphaned.push_back(c);
  map_.Remove(component);
  if (!IsInside(*object, document_.Root())) return;  // with something that went before
  StructureChange s;
  s.kind = StructureChange::Kind::Remove;
  s.object = object;
  s.parent = object->parent;
  s.index = object->IndexInParent();
  s.held = s.parent->Take(s.index);
  pending_->structure.push_back(std::move(s));
}

// What stood inside something that was freed goes with it; what was given another parent first has moved.
void FormSession::TakeArrivals() {
  const QScopedValueRollback guard(structuring_, true);
  for (TComponent* c : std::exchange(pending_->orphaned, {})) {
    if (forms::Object* object = map_.ObjectOf(*c)) RemoveObject(*object);
  }
  for (TComponent* c : std::exchange(pending_->arrived, {}))
    if (!map_.ObjectOf(*c) && c->Owner()) Adopt(*c);
}

void FormSession::TakePlaces() {
  std::vector<TControl*> placed = std::exchange(pending_->placed, {});
  if (placed.empty()) return;
  const QSet<const TControl*> moving(placed.begin(), placed.end());
  std::erase_if(placed, [&](const TControl* c) {
    const forms::Object* object = map_.ObjectOf(*c);
    return !object || pending_->created.contains(object) || !c->Parent() || !map_.ObjectOf(*c->Parent());
  });
  // From back to front, so that each finds its predecessor in place.
  QHash<const TControl*, int> ranks;
  for (const TControl* c : placed) ranks.insert(c, c->Parent()->ControlIndex(c));
  std::stable_sort(placed.begin(), placed.end(),
                   [&](const TControl* a, const TControl* b) { return ranks.value(a) < ranks.value(b); });
  for (TControl* control : placed) {
    forms::Object* object = map_.ObjectOf(*control);
    forms::Object* parent = map_.ObjectOf(*control->Parent());
    // Behind the sibling it now follows, before the next that stands still.
    const auto& siblings = control->Parent()->Controls();
    const int rank = ranks.value(control);
    const forms::Object* previous =
        rank > 0 ? map_.ObjectOf(*siblings[static_cast<std::size_t>(rank - 1)]) : nullptr;
    const auto still = std::find_if(siblings.begin() + rank + 1, siblings.end(), [&](const TControl* c) {
      return !moving.contains(c) && map_.ObjectOf(*c);
    });
    const forms::Object* next = still == siblings.end() ? nullptr : map_.ObjectOf(**still);
    const int at = object->IndexInParent();
    if (parent == object->parent && (!previous || previous->IndexInParent() < at) &&
        (!next || next->IndexInParent() > at))
      continue;
    StructureChange s;
    s.kind = StructureChange::Kind::Move;
    s.object = object;
    s.parent = object->parent;
    s.index = at;
    std::unique_ptr<forms::Object> node = s.parent->Take(at);
    s.newParent = parent;
    s.newIndex = previous ? previous->IndexInParent() + 1
                 : next   ? next->IndexInParent()
                          : NewChildIndex(*parent, true);
    parent->Insert(s.newIndex, std::move(node));
    pending_->structure.push_back(std::move(s));
  }
}

// Only the place of these can have changed: the old values are the present ones with the old bounds.
void FormSession::TakeBounds() {
  for (auto& [control, before] : pending_->bounds) {
    forms::Object* object = map_.ObjectOf(*control);
    if (pending_->index.contains(control) || !object || pending_->created.contains(object) ||
        control->BoundsRect() == before)
      continue;
    forms::Snapshot values = forms::TakeSnapshot(*control, document_);
    PutBounds(values, *control, before);
    pending_->captured.push_back({control, object, control->Name(), std::move(values)});
  }
}

// Values of every component as the document has them: for changes that nobody told of.
void FormSession::CaptureAll() {
  forms::Document copy = forms::Document::Parse(document_.Write(), document_.Style());
  forms::ObjectMap copyMap;
  forms::FormReader reader = MakeReader(copy, copyMap);
  const auto before = reader.ReadRoot();
  std::function<void(const forms::Object&, forms::Object&)> walk = [&](const forms::Object& was,
                                                                       forms::Object& is) {
    TComponent* old = copyMap.ComponentOf(was);
    TComponent* now = map_.ComponentOf(is);
    if (old && now && !pending_->index.contains(now))
      pending_->captured.push_back({now, &is, old->Name(), forms::TakeSnapshot(*old, copy)});
    for (std::size_t i = 0; i < is.children.size(); ++i) walk(*was.children[i], *is.children[i]);
  };
  walk(copy.Root(), document_.Root());
}

void FormSession::MarkFollowing(std::vector<forms::ValueChange>& values, const TControl& control) const {
  Pending::ByHand hand = pending_->byHand.value(&control);
  hand.Settle(control.BoundsRect());
  for (forms::ValueChange& v : values)
    v.follows = (v.path == "Left" && !hand.left) || (v.path == "Top" && !hand.top) ||
                (v.path == "Width" && !hand.width) || (v.path == "Height" && !hand.height);
}

// What the pending command changed, with the document patched accordingly.
std::unique_ptr<Command> FormSession::TakeDifferences() {
  TakeArrivals();
  TakePlaces();
  TakeBounds();
  auto command = std::make_unique<Command>();
  command->structure = std::move(pending_->structure);
  command->selectionBefore = pending_->selectionBefore;
  for (auto& c : pending_->captured) {
    // A new component may stand at the address of a deleted one; the object tells them apart.
    if (map_.ObjectOf(*c.component) != c.object) continue;
    ComponentChange change;
    change.object = c.object;
    const forms::Snapshot after = forms::TakeSnapshot(*c.component, document_);
    change.values = forms::Difference(c.values, after);
    if (const auto* control = As<TControl>(c.component)) MarkFollowing(change.values, *control);
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
    // It comes and goes with its object.
    if (pending_->inserted.contains(c.object)) continue;
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
