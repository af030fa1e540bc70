#include "ide/BoundForm.h"

#include "ide/PictureBudget.h"
#include "ide/StandIns.h"
#include "rtl/ClassRegistry.h"
#include "vcl/Nested.h"
#include "vcl/SidePlaces.h"

namespace {
TComponent* MakeRoot(const forms::Object& object, bool sizeIsClient, TComponent* owner) {
  auto* form = new TForm(owner);
  form->SetKind(KindOfRoot(object));
  form->SetSizeIsClient(sizeIsClient);
  form->SetSizeInherited(object.kind == forms::ObjectKind::Inherited && !object.origin);
  form->SetStreamClassName(QByteArray(object.className.constData(), object.className.size()));
  return form;
}

// The object at the same place of a copy of the document, which may have what is implied in another order.
const forms::Object* Twin(const forms::Object& child, std::size_t at, const forms::Object& parent) {
  if (at < parent.children.size() && parent.children[at]->name == child.name)
    return parent.children[at].get();
  const auto it = std::find_if(parent.children.begin(), parent.children.end(),
                               [&](const auto& other) { return other->name == child.name; });
  return it == parent.children.end() ? nullptr : it->get();
}
}  // namespace

BoundForm::BoundForm(forms::Document document, const QString& fileName, DesignRegistry& registry,
                     IFormWatcher& watcher)
    : registry_(registry), watcher_(watcher), ancestors_(fileName), document_(std::move(document)) {}

BoundForm::~BoundForm() = default;

void BoundForm::Make(bool edited) {
  const std::vector<forms::Finding> missing = ancestors_.Complete(document_);
  RequirePictureBudget(document_, edited || ancestors_.Any());
  inherited_.clear();
  if (root_) root_->SetHost(nullptr);
  root_.reset();
  map_.Clear();
  prints_.Clear();
  forms::FormReader reader = MakeReader(document_, map_);
  root_.reset(static_cast<TForm*>(reader.ReadRoot().release()));
  PlaceBySides(*root_);
  findings_ = reader.Findings();
  findings_.insert(findings_.end(), missing.begin(), missing.end());
  NoteDangling(findings_);
  TakeFingerprints(document_.Root());
}

forms::FormReader BoundForm::MakeReader(forms::Document& document, forms::ObjectMap& map) {
  forms::FormReader reader(document, map);
  reader.SetDesigning(true);
  reader.SetRootMaker([lcl = document.Style().lcl](const forms::Object& object, TComponent* owner) {
    return MakeRoot(object, lcl, owner);
  });
  reader.SetCreator([this](const TClass& cls, const forms::Object& object, TComponent* owner) -> TComponent* {
    if (NeedsStandIn(cls, object)) return nullptr;
    silent_ = silent_ || !PromisesTelling(cls);
    TComponent* made =
        PackageCall([&] { return registry_.ConstructorOf(cls); }, [&] { return cls.NewComponent(owner); });
    // How an ancestor that is not there aligns it nobody knows.
    if (auto* control = As<TControl>(made);
        control && object.kind == forms::ObjectKind::Inherited && !object.origin)
      control->SetAlign(TAlign::alNone);
    return made;
  });
  reader.SetUnknownMaker([&document](const forms::Object& object, TComponent* owner) {
    return MakeStandIn(document, object, owner);
  });
  return reader;
}

TComponent* BoundForm::NewComponent(const TClass& cls) {
  const auto guard = Build();
  return PackageCall([&] { return registry_.ConstructorOf(cls); },
                     [&] { return cls.NewComponent(root_.get()); });
}

// --- Who is who

std::vector<TComponent*> BoundForm::AllComponents() const {
  std::vector<TComponent*> all;
  const std::function<void(const forms::Object&)> collect = [&](const forms::Object& object) {
    if (TComponent* c = map_.ComponentOf(object)) all.push_back(c);
    for (const auto& child : object.children) collect(*child);
  };
  collect(document_.Root());
  return all;
}

std::vector<forms::Object*> BoundForm::ObjectsOf(const std::vector<TComponent*>& components) const {
  std::vector<forms::Object*> objects;
  for (const TComponent* c : components)
    if (forms::Object* o = map_.ObjectOf(*c)) objects.push_back(o);
  return objects;
}

std::vector<TComponent*> BoundForm::ComponentsOf(const std::vector<forms::Object*>& objects) const {
  std::vector<TComponent*> components;
  for (const forms::Object* o : objects)
    if (TComponent* c = map_.ComponentOf(*o)) components.push_back(c);
  return components;
}

TComponent* BoundForm::FindComponent(const QString& name) const {
  return root_->Name().compare(name, Qt::CaseInsensitive) == 0 ? root_.get() : root_->FindComponent(name);
}

QString BoundForm::UniqueName(const QString& baseName) const {
  QString base = baseName;
  if (base.size() > 1 && base.startsWith(u'T') && base[1].isUpper()) base.remove(0, 1);
  for (int i = 1;; ++i)
    if (const QString name = base + QString::number(i); !FindComponent(name)) return name;
}

// Controls stand before the components that are none, as in every form file.
int BoundForm::NewChildIndex(const forms::Object& parent, bool control) const {
  int index = static_cast<int>(parent.children.size());
  if (!control) return index;
  while (index > 0) {
    const TComponent* c = map_.ComponentOf(*parent.children[static_cast<std::size_t>(index - 1)]);
    if (!c || As<TControl>(c)) break;
    --index;
  }
  return index;
}

// How many of the family stand before the child.
int BoundForm::PlaceAmong(const forms::Object& parent, int index, const TClass& family) const {
  int place = 0;
  for (int i = 0; i < index; ++i) {
    const TComponent* c = map_.ComponentOf(*parent.children[static_cast<std::size_t>(i)]);
    if (c && c->InheritsFrom(family)) ++place;
  }
  return place;
}

void BoundForm::PutInPlace(TComponent& component, const forms::Object& parent, int index) const {
  if (auto* control = As<TControl>(&component); control && control->Parent())
    control->Parent()->SetControlIndex(control, PlaceAmong(parent, index, TControl::StaticClass()));
  if (auto* nested = As<TNestedComponent>(&component))
    nested->SetNestedIndex(PlaceAmong(parent, index, TNestedComponent::StaticClass()));
}

// --- Coming and going

TComponent* BoundForm::MakeComponents(const StructureChange& s) {
  forms::FormReader reader = MakeReader(document_, map_);
  TComponent* c = reader.ReadChild(*s.object, *root_, *map_.ComponentOf(*s.parent));
  NoteDangling(reader.Findings());
  if (!c) return nullptr;
  PutInPlace(*c, *s.parent, s.index);
  if (const auto* control = As<TControl>(c); control && control->Parent()) PlaceBySides(*control->Parent());
  TakeFingerprints(*s.object);
  watcher_.Came(*c);
  return c;
}

void BoundForm::InsertObject(StructureChange& s) {
  s.parent->Insert(s.index, std::move(s.held));
  MakeComponents(s);
}

void BoundForm::MoveObject(StructureChange& s, bool redo) {
  forms::Object* to = redo ? s.newParent : s.parent;
  std::unique_ptr<forms::Object> node = s.object->parent->Take(s.object->IndexInParent());
  const int index = redo ? s.newIndex : s.index;
  to->Insert(index, std::move(node));
  TComponent* component = map_.ComponentOf(*s.object);
  if (!component) return;
  component->SetParentComponent(map_.ComponentOf(*to));
  PutInPlace(*component, *to, index);
}

void BoundForm::TakeObject(StructureChange& s) {
  const auto guard = Build();
  RemoveObject(*s.object);
  s.index = s.object->IndexInParent();
  s.held = s.parent->Take(s.index);
}

// By objects, because components of unknown classes do not know what stands inside them.
void BoundForm::RemoveObject(forms::Object& object) {
  for (auto it = object.children.rbegin(); it != object.children.rend(); ++it) RemoveObject(**it);
  if (TComponent* c = map_.ComponentOf(object)) RemoveWithChildren(*c);
}

void BoundForm::RemoveWithChildren(TComponent& component) {
  for (TComponent* child : component.GetChildren()) RemoveWithChildren(*child);
  watcher_.Going(component);
  map_.Remove(component);
  delete &component;
}

// --- Changes that nobody tells of

void BoundForm::TakeFingerprint(const TComponent& component, const forms::Object& object) {
  prints_.Take(component, object, document_);
}

void BoundForm::TakeFingerprints(const forms::Object& object) {
  if (!silent_) return;
  if (const TComponent* c = map_.ComponentOf(object)) TakeFingerprint(*c, object);
  for (const auto& child : object.children) TakeFingerprints(*child);
}

bool BoundForm::ChangedSilently(const TComponent& component, const forms::Object& object) const {
  return prints_.Differs(component, object, document_);
}

std::vector<BoundForm::Described> BoundForm::AsDocumented(const std::vector<const forms::Object*>& objects) {
  return ReadAgain(objects, true);
}

void BoundForm::LearnInherited(const std::vector<const forms::Object*>& objects) {
  std::vector<const forms::Object*> unknown;
  for (const forms::Object* o : objects)
    if (o->origin && !inherited_.contains(o->origin->object)) unknown.push_back(o);
  for (auto& d : ReadAgain(unknown, false)) inherited_.insert(d.object->origin->object, std::move(d.values));
}

const forms::Snapshot* BoundForm::InheritedValues(const forms::Object& object) const {
  const auto found = object.origin ? inherited_.constFind(object.origin->object) : inherited_.cend();
  return found == inherited_.cend() ? nullptr : &*found;
}

forms::Document BoundForm::Copied(std::vector<forms::Finding>& missing) const {
  forms::Document copy = forms::Document::Parse(document_.Write(), document_.Style());
  missing = ancestors_.Complete(copy);
  return copy;
}

void BoundForm::Pair(forms::Object& copy, const forms::Object& object, Pairs& pairs) {
  pairs.emplace_back(&copy, &object);
  for (std::size_t i = 0; i < object.children.size(); ++i)
    if (const forms::Object* twin = Twin(*object.children[i], i, copy))
      Pair(const_cast<forms::Object&>(*twin), *object.children[i], pairs);
}

void BoundForm::FindAgain() {
  std::vector<forms::Finding> missing;
  forms::Document copy = Copied(missing);
  forms::ObjectMap map;
  forms::FormReader reader = MakeReader(copy, map);
  const auto root = reader.ReadRoot();
  Pairs pairs;
  Pair(copy.Root(), document_.Root(), pairs);
  QHash<const forms::Object*, const forms::Object*> here;
  for (const auto& [twin, object] : pairs) here.insert(twin, object);
  findings_ = reader.Findings();
  for (forms::Finding& f : findings_) f.object = here.value(f.object);
  findings_.insert(findings_.end(), missing.begin(), missing.end());
}

void BoundForm::DropFindings(const Command& command) {
  const auto says = [](const forms::ValueChange& v) { return v.nodeBefore || v.nodeAfter; };
  for (const ComponentChange& c : command.components)
    for (const forms::ValueChange& v : c.values)
      if (says(v))
        std::erase_if(findings_, [&](const forms::Finding& f) {
          return f.object == c.object && f.property.compare(v.path, Qt::CaseInsensitive) == 0;
        });
}

// The whole form is read once more: what an object's values mean depends on what it stands in and refers to.
std::vector<BoundForm::Described> BoundForm::ReadAgain(const std::vector<const forms::Object*>& objects,
                                                       bool own) {
  std::vector<Described> described;
  if (objects.empty()) return described;
  const QSet<const forms::Object*> wanted(objects.begin(), objects.end());
  std::vector<forms::Finding> missing;
  forms::Document copy = Copied(missing);
  Pairs twins;
  Pair(copy.Root(), document_.Root(), twins);
  std::erase_if(twins, [&](const auto& twin) { return !wanted.contains(twin.second); });
  if (!own)
    for (const auto& [was, is] : twins) was->properties.clear();
  forms::ObjectMap copies;
  forms::FormReader reader = MakeReader(copy, copies);
  const auto root = reader.ReadRoot();
  PlaceBySides(*As<TWinControl>(root.get()));
  for (const auto& [was, is] : twins)
    if (const TComponent* old = copies.ComponentOf(*was))
      described.push_back({is, old->Name(), forms::TakeSnapshot(*old, copy)});
  return described;
}
