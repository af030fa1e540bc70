// The end of a command: what was noted on the way becomes differences of values and structure.
#include "forms/KeptValues.h"
#include "ide/CommandRecorder.h"
#include "ide/LostAction.h"
#include "ide/StandIns.h"
#include "vcl/Nested.h"

namespace {
const forms::Object* Named(const forms::Object& object, const QByteArray& name) {
  if (object.name.compare(name, Qt::CaseInsensitive) == 0) return &object;
  for (const auto& child : object.children)
    if (const forms::Object* found = Named(*child, name)) return found;
  return nullptr;
}
}  // namespace

std::unique_ptr<Command> CommandRecorder::Take() {
  if (modified_) CaptureSilent();
  KeepLostActions();
  TakeArrivals();
  TakePlaces();
  TakeNestedPlaces();
  TakeBounds();
  auto command = std::make_unique<Command>();
  command->selectionBefore = std::move(selectionBefore_);
  LearnInherited();
  for (Before& before : captured_)
    if (auto change = TakeChange(before)) command->components.push_back(std::move(*change));
  for (const StructureChange& s : structure_)
    if (s.kind == StructureChange::Kind::Insert && !s.held && created_.contains(s.object))
      DescribeNew(*s.object);
  TakePositions(command->positions);
  command->structure = std::move(structure_);
  return command;
}

// Where children came, went or moved beside inherited ones.
void CommandRecorder::TakePositions(std::vector<PositionChange>& positions) {
  QSet<forms::Object*> parents;
  for (const StructureChange& s : structure_)
    for (forms::Object* parent : {s.parent, s.newParent})
      if (parent && parent->origin && form_.ComponentOf(*parent)) parents.insert(parent);
  const auto isControl = [this](const forms::Object& o) {
    const TComponent* c = form_.ComponentOf(o);
    return !c || As<TControl>(c);
  };
  for (forms::Object* parent : parents)
    for (PositionChange& p : GivePositions(*parent, isControl)) positions.push_back(p);
}

// Before anything else is looked at: what a client keeps may move others.
void CommandRecorder::KeepLostActions() {
  std::vector<std::pair<TComponent*, const forms::Object*>> lost;
  for (const Before& b : captured_) {
    if (form_.ObjectOf(*b.component) != b.object) continue;
    const QString name = LostAction(*b.component, b.values);
    if (name.isEmpty()) continue;
    const TComponent* there = form_.FindComponent(name);
    const forms::Object* action = there ? form_.ObjectOf(*there) : nullptr;
    for (const StructureChange& s : structure_)
      if (!action && s.held) action = Named(*s.held, name.toUtf8());
    if (action) lost.emplace_back(b.component, action);
  }
  for (const auto& [client, action] : lost)
    KeepActionValues(*client, *form_.ObjectOf(*client), *action, form_.Document(), form_.Root());
}

// Nobody told of these, but they are not what they were.
void CommandRecorder::CaptureSilent() {
  std::vector<const forms::Object*> silent = form_.SilentlyChanged();
  std::erase_if(silent, [&](const forms::Object* o) {
    return created_.contains(o) || index_.contains(form_.ComponentOf(*o));
  });
  for (auto& d : form_.AsDocumented(silent)) {
    TComponent* component = form_.ComponentOf(*d.object);
    index_.insert(component);
    captured_.push_back({component, form_.ObjectOf(*component), d.name, std::move(d.values)});
  }
}

// What was only looked at is not asked for.
void CommandRecorder::LearnInherited() {
  std::vector<const forms::Object*> inherited;
  for (const Before& b : captured_)
    if (b.object->origin && form_.ObjectOf(*b.component) == b.object &&
        !forms::Difference(b.values, forms::TakeSnapshot(*b.component, form_.Document())).empty())
      inherited.push_back(b.object);
  form_.LearnInherited(inherited);
}

// What stood inside something that was freed goes with it; what was given another parent first has moved.
void CommandRecorder::TakeArrivals() {
  const auto building = form_.Build();
  for (TComponent* c : std::exchange(orphaned_, {}))
    if (forms::Object* object = form_.ObjectOf(*c)) form_.RemoveObject(*object);
  for (TComponent* c : std::exchange(arrived_, {}))
    if (!form_.ObjectOf(*c) && c->Owner()) Adopt(*c);
}

void CommandRecorder::TakePlaces() {
  std::vector<TControl*> placed = std::exchange(placed_, {});
  if (placed.empty()) return;
  const QSet<const TComponent*> moving(placed.begin(), placed.end());
  std::erase_if(placed, [&](const TControl* c) {
    const forms::Object* object = form_.ObjectOf(*c);
    return !object || created_.contains(object) || !c->Parent() || !form_.ObjectOf(*c->Parent());
  });
  // From back to front, so that each finds its predecessor in place.
  QHash<const TControl*, int> ranks;
  for (const TControl* c : placed) ranks.insert(c, c->Parent()->ControlIndex(c));
  std::stable_sort(placed.begin(), placed.end(),
                   [&](const TControl* a, const TControl* b) { return ranks.value(a) < ranks.value(b); });
  for (TControl* c : placed) {
    const auto& siblings = c->Parent()->Controls();
    TakePlace(*c, *c->Parent(), {siblings.begin(), siblings.end()}, moving);
  }
}

// Parts of menus and lists of actions tell of their moves like of any other change.
void CommandRecorder::TakeNestedPlaces() {
  std::vector<TNestedComponent*> candidates;
  QSet<const TComponent*> moving;
  const auto add = [&](TComponent* c) {
    auto* nested = As<TNestedComponent>(c);
    if (!nested || moving.contains(nested)) return;
    candidates.push_back(nested);
    moving.insert(nested);
  };
  for (const Before& b : captured_)
    if (form_.ObjectOf(*b.component) == b.object) add(b.component);
  for (const forms::Object* o : created_)
    if (TComponent* c = form_.ComponentOf(*o)) add(c);
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const auto* a, const auto* b) { return a->NestedIndex() < b->NestedIndex(); });
  for (TNestedComponent* c : candidates) {
    TComponent* parent = c->GetParentComponent();
    if (!parent || !form_.ObjectOf(*parent)) continue;
    if (const TNestedComponent* around = c->Around())
      TakePlace(*c, *parent, {around->Nested().begin(), around->Nested().end()}, moving);
    else if (const auto* was = form_.ObjectOf(*c)->parent;
             was && As<TNestedComponent>(form_.ComponentOf(*was)))
      TakePlace(*c, *parent, {}, moving);
  }
}

// Behind the sibling it now follows, before the next that stands still.
void CommandRecorder::TakePlace(TComponent& component, TComponent& container,
                                const std::vector<TComponent*>& siblings,
                                const QSet<const TComponent*>& moving) {
  forms::Object* object = form_.ObjectOf(component);
  forms::Object* parent = form_.ObjectOf(container);
  const auto here = std::find(siblings.begin(), siblings.end(), &component);
  const forms::Object* previous =
      here == siblings.begin() || here == siblings.end() ? nullptr : form_.ObjectOf(**(here - 1));
  const auto still =
      here == siblings.end() ? here : std::find_if(here + 1, siblings.end(), [&](const TComponent* c) {
        return !moving.contains(c) && form_.ObjectOf(*c);
      });
  const forms::Object* next = still == siblings.end() ? nullptr : form_.ObjectOf(**still);
  const int at = object->IndexInParent();
  if (parent == object->parent && (!previous || previous->IndexInParent() < at) &&
      (!next || next->IndexInParent() > at))
    return;
  StructureChange s;
  s.kind = StructureChange::Kind::Move;
  s.object = object;
  s.parent = object->parent;
  s.index = at;
  std::unique_ptr<forms::Object> node = s.parent->Take(at);
  s.newParent = parent;
  s.newIndex = previous ? previous->IndexInParent() + 1
               : next   ? next->IndexInParent()
                        : form_.NewChildIndex(*parent, As<TControl>(&component) != nullptr);
  parent->Insert(s.newIndex, std::move(node));
  structure_.push_back(std::move(s));
}

// Only the place of these can have changed: the old values are the present ones with the old bounds.
void CommandRecorder::TakeBounds() {
  for (auto& [control, before] : bounds_) {
    const forms::Object* object = form_.ObjectOf(*control);
    if (object && !created_.contains(object) && control->BoundsRect() != before) Capture(*control);
  }
}

void CommandRecorder::MarkFollowing(std::vector<forms::ValueChange>& values, const TControl& control) {
  ByHand hand = byHand_.value(&control);
  hand.Settle(control.BoundsRect());
  for (forms::ValueChange& v : values)
    v.follows = (v.path == "Left" && !hand.left) || (v.path == "Top" && !hand.top) ||
                (v.path == "Width" && !hand.width) || (v.path == "Height" && !hand.height);
}

namespace {
// An inherited object that has lost its last difference is no longer written, nor are those that were there
// for its sake.
void LeaveOutEmpty(forms::Object& object, const std::vector<forms::ValueChange>& values) {
  const bool lost = std::any_of(values.begin(), values.end(),
                                [](const forms::ValueChange& v) { return v.nodeBefore && !v.nodeAfter; });
  for (forms::Object* o = &object; lost && o->origin && o->parent && o->properties.empty(); o = o->parent)
    if (o->kind == forms::ObjectKind::Inherited) o->implied = true;
}
}  // namespace

std::optional<ComponentChange> CommandRecorder::TakeChange(Before& before) {
  // A new component may stand at the address of a deleted one; the object tells them apart.
  if (form_.ObjectOf(*before.component) != before.object) return {};
  forms::Object& object = *before.object;
  const TComponent& component = *before.component;
  ComponentChange change;
  change.object = &object;
  const forms::Snapshot after = forms::TakeSnapshot(component, form_.Document());
  change.values = forms::Difference(before.values, after);
  for (const forms::ValueChange& v : change.values)
    if (v.after.type == forms::ValueType::Collection)
      forms::ForgetReplaced(forms::FindTarget(*before.component, v.path));
  if (const auto* control = As<TControl>(&component)) MarkFollowing(change.values, *control);
  for (const forms::ValueChange& out : stored_[&object])
    for (forms::ValueChange& v : change.values)
      v.takenOut = v.takenOut || (!out.nodeAfter && v.path.compare(out.path, Qt::CaseInsensitive) == 0);
  change.nameBefore = before.name;
  change.nameAfter = component.Name();
  change.classBefore = change.classAfter = object.className;
  change.headerChangedBefore = object.headerChanged;
  const bool renamed = change.nameBefore != change.nameAfter;
  if (renamed) {
    // A form's class follows its name: TMain for Main.
    if (&component == &form_.Root() && change.classBefore == "T" + change.nameBefore.toUtf8())
      change.classAfter = "T" + change.nameAfter.toUtf8();
    form_.SetName(change, true);
  }
  forms::PatchObject(object, form_.Document(), after, change.values, form_.InheritedValues(object));
  // These came first.
  std::vector<forms::ValueChange> stored = std::exchange(stored_[&object], {});
  if (!stored.empty()) LookAgain(*before.component, form_.Document(), object);
  std::move(change.values.begin(), change.values.end(), std::back_inserter(stored));
  change.values = std::move(stored);
  LeaveOutEmpty(object, change.values);
  form_.TakeFingerprint(component, object);
  // It comes and goes with its object.
  if (inserted_.contains(&object) || (change.values.empty() && !renamed)) return {};
  return change;
}

void CommandRecorder::DescribeNew(forms::Object& object) {
  const TComponent* c = form_.ComponentOf(object);
  if (!c) return;
  object.properties.clear();
  object.name = c->Name().toUtf8();
  for (forms::StoredValue& v : forms::PropertyValues(*c, form_.Document(), false))
    object.properties.push_back(form_.Document().MakeProperty(v.path, std::move(v.value)));
  form_.TakeFingerprint(*c, object);
}
