// Components that a command makes, pastes, deletes and renames.
#include "ide/FormSession.h"
#include "ide/StandIns.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "vcl/GridPanel.h"
#include "vcl/Nested.h"
#include "vcl/TabOrder.h"

namespace {
void RequireDepth(const forms::Object& object, const forms::Object& parent) {
  int depth = object.Levels();
  for (const forms::Object* p = &parent; p; p = p->parent) ++depth;
  if (depth > forms::MaxDepth)
    throw EComponentError(FormSession::tr("%1 would be nested more than %2 deep there.")
                              .arg(QString::fromUtf8(object.name))
                              .arg(forms::MaxDepth));
}

qsizetype DataIn(const forms::Document& document, const forms::Object& object) {
  qsizetype size = 0;
  for (const forms::Property& p : object.properties)
    if (const forms::Value v = document.Read(p); v.type == forms::ValueType::Binary) size += v.bytes.size();
  for (const auto& child : object.children) size += DataIn(document, *child);
  return size;
}

void CollectComponents(TComponent& component, std::vector<TComponent*>& out) {
  out.push_back(&component);
  for (TComponent* child : component.GetChildren()) CollectComponents(*child, out);
}

// Controls that their containers stand in a row, taken off it until it is their turn: who is put back does
// not count those that are still to come.
class WaitingOutside {
 public:
  WaitingOutside(const std::vector<TComponent*>& components, BoundForm& form) : form_(form) {
    for (TComponent* c : components) {
      auto* control = As<TControl>(c);
      if (control && control->Parent() && control->Parent()->PlacesControls())
        places_.push_back({control, control->Parent(), control->Parent()->ControlIndex(control)});
    }
    const auto building = form_.Build();
    const auto frozen = form_.Freeze();
    for (const Place& place : places_) place.control->SetParent(nullptr);
  }
  void Next(const TComponent& component) {
    if (places_.empty() || places_.front().control != &component) return;
    const auto building = form_.Build();
    const auto frozen = form_.Freeze();
    const Place place = places_.front();
    places_.erase(places_.begin());
    place.control->SetParent(place.parent);
    place.parent->SetControlIndex(place.control, place.index);
  }

 private:
  struct Place {
    TControl* control;
    TWinControl* parent;
    int index;
  };
  BoundForm& form_;
  std::vector<Place> places_;
};
}  // namespace

// The nearest that takes controls and that the document knows.
TWinControl& FormSession::ContainerFor(TComponent* wanted) const {
  TComponent* at = wanted ? wanted : GetRoot();
  while (at != GetRoot() && !(As<TWinControl>(at) && ObjectOf(*at))) at = at->GetParentComponent();
  return *As<TWinControl>(at);
}

TComponent* FormSession::CreateComponent(const TClass& cls, TComponent* parent, const QRect& bounds) {
  TComponent* component = nullptr;
  if (cls.InheritsFrom(TControl::StaticClass()) && !Form().AcceptsControls())
    throw EComponentError(
        tr("%1 is a data module: only components that are no controls can stand on it.").arg(Form().Name()));
  Run(tr("Add %1").arg(QString::fromLatin1(cls.ClassName())), {}, [&] {
    component = form_.NewComponent(cls);
    component->SetDesigning(true);
    TakeFamilyDefaults(*component);
    auto* control = As<TControl>(component);
    auto* nested = As<TNestedComponent>(component);
    auto* around = nested && parent && ObjectOf(*parent) ? As<TNestedComponent>(parent) : nullptr;
    TComponent* container = around;
    if (!around) container = &ContainerFor(control ? parent : nullptr);
    recorder_->Enter(*component, *ObjectOf(*container));
    if (around) {
      nested->SetAround(around);
    } else if (control) {
      control->SetParent(As<TWinControl>(container));
      control->SetCaption(control->Caption().isEmpty() ? control->Name() : control->Caption());
      const bool sized = bounds.width() > 1 && bounds.height() > 1;
      control->SetBounds(bounds.left(), bounds.top(), sized ? bounds.width() : control->Width(),
                         sized ? bounds.height() : control->Height());
      if (auto* grid = As<TGridPanel>(container)) grid->MoveToCellAt(*control, bounds.topLeft());
      if (auto* windowed = As<TWinControl>(control)) GiveLastTabOrder(*windowed);
    } else {
      component->SetDesignInfo(
          DesignWordOf({static_cast<std::int16_t>(bounds.left()), static_cast<std::int16_t>(bounds.top())}));
    }
    selection_.Set({component}, Form());
    Came(*component);
    if (auto* menu = As<TMainMenu>(component)) ShowFirstMenu(*menu);
  });
  Select(selection_.Components());
  return component;
}

// What menu an ancestor of the form has nobody knows here.
void FormSession::ShowFirstMenu(TMainMenu& menu) {
  TForm& form = Form();
  if (form.Kind() == TFormKind::Form && !form.Get(TForm::Menu) &&
      ObjectOf(form)->kind != forms::ObjectKind::Inherited && !ObjectOf(form)->Find("Menu"))
    form.Set(TForm::Menu, &menu);
}

void FormSession::DeleteComponents(const std::vector<TComponent*>& components) {
  std::vector<TComponent*> doomed;
  const auto insideAnother = [&](const TComponent* c) {
    for (const TComponent* p = c->GetParentComponent(); p && p != GetRoot(); p = p->GetParentComponent())
      if (std::find(components.begin(), components.end(), p) != components.end()) return true;
    return false;
  };
  for (TComponent* c : components) {
    if (c == GetRoot() || insideAnother(c)) continue;
    if (ObjectOf(*c)->kind == forms::ObjectKind::Inherited)
      throw EComponentError(tr("%1 comes from the ancestor form and cannot be deleted here.").arg(c->Name()));
    doomed.push_back(c);
  }
  if (doomed.empty()) return;
  // What is pasted next comes to where this stood.
  TComponent* around = doomed[0]->GetParentComponent();
  for (const TComponent* c : doomed)
    if (c->GetParentComponent() != around) around = GetRoot();
  const bool selected =
      std::any_of(doomed.begin(), doomed.end(), [&](TComponent* c) { return IsSelected(*c); });
  Run(doomed.size() == 1 ? tr("Delete %1").arg(doomed[0]->Name())
                         : tr("Delete %n components", nullptr, static_cast<int>(doomed.size())),
      {}, [&] {
        for (TComponent* c : doomed) {
          std::vector<TComponent*> all;
          CollectComponents(*c, all);
          for (TComponent* inner : all)
            for (TComponent* holder : inner->FreeNotifies())
              if (std::find(all.begin(), all.end(), holder) == all.end()) recorder_->Capture(*holder);
        }
        for (TComponent* c : doomed) recorder_->Delete(*c);
      });
  if (selected && around) Select({around});
  Select(selection_.Components());
}

void FormSession::DeleteSelection() { DeleteComponents(selection_.Components()); }

void FormSession::Rename(TComponent& component, const QString& name) {
  if (name.isEmpty()) throw EComponentError(tr("%1 needs a name.").arg(component.Name()));
  Run(tr("Rename %1").arg(component.Name()), {&component}, [&] { component.SetName(name); });
}

// --- Objects that come with their text: pasted, duplicated

std::vector<TComponent*> FormSession::Insert(const forms::Document& from,
                                             const std::vector<Insertion>& insertions) {
  std::vector<TComponent*> made;
  Run(tr("Insert"), {}, [&] {
    std::vector<std::unique_ptr<forms::Object>> objects;
    qsizetype data = 0;
    for (const Insertion& i : insertions) {
      RequireDepth(*i.object, *i.parent);
      data += DataIn(from, *i.object);
      objects.push_back(from.Detached(*i.object, form_.Document()));
    }
    if (data > 0) RequireRoomFor(insertions, objects, data);
    for (std::size_t i = 0; i < insertions.size(); ++i) {
      forms::Object& parent = *insertions[i].parent;
      const int index = form_.NewChildIndex(parent, IsVisual(*objects[i]));
      made.push_back(recorder_->Insert(std::move(objects[i]), parent, index));
    }
    recorder_->SettleInserted(insertions.size());
    WaitingOutside waiting(made, form_);
    for (TComponent* c : made) {
      waiting.Next(*c);
      TakeIntoLayout(*c);
    }
  });
  return made;
}

// Before anything is decoded, as when a file is read.
void FormSession::RequireRoomFor(const std::vector<Insertion>& insertions,
                                 std::vector<std::unique_ptr<forms::Object>>& objects, qsizetype data) {
  const auto putIn = [&] {
    for (std::size_t i = 0; i < objects.size(); ++i)
      insertions[i].parent->Insert(INT_MAX, std::move(objects[i]));
  };
  const auto takeOut = [&] {
    for (std::size_t i = objects.size(); i-- > 0;)
      objects[i] = insertions[i].parent->Take(static_cast<int>(insertions[i].parent->children.size()) - 1);
  };
  putIn();
  try {
    RequireReadable(data);
  } catch (...) {
    takeOut();
    throw;
  }
  takeOut();
}

// An aligned control takes its strip now, and the others make room.
void FormSession::TakeIntoLayout(TComponent& component) {
  auto* control = As<TControl>(&component);
  TWinControl* parent = control ? control->Parent() : nullptr;
  if (!parent || (control->Align() == TAlign::alNone && !parent->PlacesControls())) return;
  recorder_->Capture(*parent);  // it may keep whom it places
  const auto building = form_.Build();
  const int index = parent->ControlIndex(control);
  {
    const auto frozen = form_.Freeze();
    control->SetParent(nullptr);
  }
  control->SetParent(parent);
  const auto frozen = form_.Freeze();
  parent->SetControlIndex(control, index);
}
