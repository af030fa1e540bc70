// Components that come and go, and changes that nobody announced.
#include <QScopedValueRollback>

#include "designintf/DesignWindow.h"
#include "ide/PendingCommand.h"
#include "rtl/Exceptions.h"

namespace {
void CollectComponents(TComponent& component, std::vector<TComponent*>& out) {
  out.push_back(&component);
  for (TComponent* child : component.GetChildren()) CollectComponents(*child, out);
}
}  // namespace

// Controls stand before the components that are none, as in every form file.
int FormSession::NewChildIndex(const forms::Object& parent, bool control) const {
  int index = static_cast<int>(parent.children.size());
  if (!control) return index;
  while (index > 0) {
    const TComponent* c = map_.ComponentOf(*parent.children[static_cast<std::size_t>(index - 1)]);
    if (!c || As<TControl>(c)) break;
    --index;
  }
  return index;
}

// A new component's object in the document; its values are taken down when the command ends.
void FormSession::Enter(TComponent& component, forms::Object& parent) {
  auto object = std::make_unique<forms::Object>();
  object->className = component.StreamClassName();
  StructureChange s;
  s.object = object.get();
  s.parent = &parent;
  s.index = NewChildIndex(parent, As<TControl>(&component));
  parent.Insert(s.index, std::move(object));
  pending_->created.insert(s.object);
  map_.Add(component, *s.object);
  pending_->structure.push_back(std::move(s));
  if (component.Name().isEmpty())
    component.SetName(UniqueName(QString::fromLatin1(component.ClassType().ClassName())));
}

// A component that an editor made on its own, with everything inside it.
void FormSession::Adopt(TComponent& component) {
  component.SetDesigning(true);
  TComponent* parent = component.GetParentComponent();
  if (parent && parent != root_.get() && !map_.ObjectOf(*parent)) Adopt(*parent);
  forms::Object* at = parent ? map_.ObjectOf(*parent) : nullptr;
  if (map_.ObjectOf(component)) return;
  Enter(component, at ? *at : document_.Root());
  NotifyDesign([&](IDesignNotification& n) { n.ItemInserted(this, &component); });
}

TComponent* FormSession::CreateComponent(const TClass& cls, TComponent* parent, const QRect& bounds) {
  TComponent* result = nullptr;
  if (!parent) parent = root_.get();
  if (cls.InheritsFrom(TControl::StaticClass()) && !root_->AcceptsControls())
    throw EComponentError(
        tr("%1 is a data module: only components that are no controls can stand on it.").arg(root_->Name()));
  Run(tr("Add %1").arg(QString::fromLatin1(cls.ClassName())), {}, [&] {
    TComponent* component = nullptr;
    {
      const QScopedValueRollback guard(structuring_, true);
      component = PackageCall([&] { return registry_.ConstructorOf(cls); },
                              [&] { return cls.NewComponent(root_.get()); });
    }
    component->SetDesigning(true);
    auto* control = As<TControl>(component);
    TComponent* container = control ? parent : root_.get();
    while (container != root_.get() && !(As<TWinControl>(container) && map_.ObjectOf(*container)))
      container = container->GetParentComponent();
    Enter(*component, *map_.ObjectOf(*container));
    if (control) {
      control->SetParent(As<TWinControl>(container));
      control->SetCaption(control->Caption().isEmpty() ? control->Name() : control->Caption());
      const bool sized = bounds.width() > 1 && bounds.height() > 1;
      control->SetBounds(bounds.left(), bounds.top(), sized ? bounds.width() : control->Width(),
                         sized ? bounds.height() : control->Height());
      if (auto* windowed = As<TWinControl>(control))
        windowed->SetTabOrder(static_cast<int>(
            std::count_if(windowed->Parent()->Controls().begin(), windowed->Parent()->Controls().end(),
                          [&](TControl* c) { return c != control && As<TWinControl>(c); })));
    } else {
      component->SetDesignInfo(
          DesignWordOf({static_cast<std::int16_t>(bounds.left()), static_cast<std::int16_t>(bounds.top())}));
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
  Run(doomed.size() == 1 ? tr("Delete %1").arg(doomed[0]->Name())
                         : tr("Delete %n components", nullptr, static_cast<int>(doomed.size())),
      {}, [&] {
        for (TComponent* c : doomed) {
          std::vector<TComponent*> all;
          CollectComponents(*c, all);
          for (TComponent* inner : all)
            for (TComponent* holder : inner->FreeNotifies())
              if (std::find(all.begin(), all.end(), holder) == all.end() && map_.ObjectOf(*holder))
                Capture(*holder);
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

// Inside a command the running command takes it along. Outside, a design window changed something: the
// components told of it, or every one is looked at.
void FormSession::Modified() {
  if (applying_) return;
  if (!pending_) Begin(static_cast<int>(Pending::Kind::Stray));
  pending_->modified = true;
  SettleStray();
}
