#include "ide/BoundForm.h"

#include "ide/PictureBudget.h"
#include "ide/StandIns.h"
#include "rtl/ClassRegistry.h"
#include "vcl/Nested.h"

namespace {
TComponent* MakeRoot(const forms::Object& object, bool sizeIsClient, TComponent* owner) {
  auto* form = new TForm(owner);
  form->SetKind(KindOfRoot(object));
  form->SetSizeIsClient(sizeIsClient);
  form->SetSizeInherited(object.kind == forms::ObjectKind::Inherited);
  form->SetStreamClassName(QByteArray(object.className.constData(), object.className.size()));
  return form;
}
}  // namespace

BoundForm::BoundForm(forms::Document document, DesignRegistry& registry, IFormWatcher& watcher)
    : registry_(registry), watcher_(watcher), document_(std::move(document)) {}

BoundForm::~BoundForm() = default;

void BoundForm::Make(bool edited) {
  RequirePictureBudget(document_, edited);
  if (root_) root_->SetHost(nullptr);
  root_.reset();
  map_.Clear();
  prints_.Clear();
  forms::FormReader reader = MakeReader(document_, map_);
  root_.reset(static_cast<TForm*>(reader.ReadRoot().release()));
  findings_ = reader.Findings();
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
    // How the ancestor aligns it nobody knows.
    if (auto* control = As<TControl>(made); control && object.kind == forms::ObjectKind::Inherited)
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

// The whole form is read once more: what an object's values mean depends on what it stands in and refers to.
std::vector<BoundForm::Described> BoundForm::AsDocumented(const std::vector<const forms::Object*>& objects) {
  std::vector<Described> described;
  if (objects.empty()) return described;
  const QSet<const forms::Object*> wanted(objects.begin(), objects.end());
  forms::Document copy = forms::Document::Parse(document_.Write(), document_.Style());
  forms::ObjectMap copies;
  forms::FormReader reader = MakeReader(copy, copies);
  const auto root = reader.ReadRoot();
  const std::function<void(const forms::Object&, const forms::Object&)> walk = [&](const forms::Object& was,
                                                                                   const forms::Object& is) {
    if (const TComponent* old = copies.ComponentOf(was); old && wanted.contains(&is))
      described.push_back({&is, old->Name(), forms::TakeSnapshot(*old, copy)});
    for (std::size_t i = 0; i < is.children.size(); ++i) walk(*was.children[i], *is.children[i]);
  };
  walk(copy.Root(), document_.Root());
  return described;
}
