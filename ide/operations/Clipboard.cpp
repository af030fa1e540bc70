#include "ide/operations/Clipboard.h"

#include "ide/StandIns.h"
#include "ide/operations/Containers.h"
#include "ide/operations/FormText.h"
#include "rtl/Exceptions.h"

namespace {
std::vector<TComponent*> Copied(const FormSession& session, const char* what) {
  auto components = Outermost(session, Chosen(session));
  for (const TComponent* c : components) RequireWhole(session, *c, OperationText(what));
  return components;
}

QString Title(const char* one, const char* several, const std::vector<TComponent*>& components) {
  return components.size() == 1 ? OperationText(one).arg(components[0]->Name())
                                : OperationText(several, static_cast<int>(components.size()));
}

using Corners = QSet<std::pair<int, int>>;
std::pair<int, int> CornerOf(const QRect& r) { return {r.left(), r.top()}; }

// What stands where something new may come to stand.
Corners CornersIn(const FormSession& session, const TComponent& parent, const std::vector<TComponent*>& made,
                  bool controls) {
  const QSet<const TComponent*> fresh(made.begin(), made.end());
  Corners corners;
  const auto add = [&](const TComponent* c) {
    if (!fresh.contains(c) && HasPlace(session, *c)) corners.insert(CornerOf(PlaceOf(*c)));
  };
  const auto* container = As<TWinControl>(&parent);
  if (controls && container)
    for (const TControl* c : container->Controls()) add(c);
  if (!controls)
    for (const TComponent* c : session.Form().Components())
      if (!As<TControl>(c)) add(c);
  return corners;
}

bool MayMove(const FormSession& session, const TComponent& c) {
  const auto* control = As<TControl>(&c);
  return HasPlace(session, c) && (!control || control->Align() == TAlign::alNone);
}

// All of them together, so that their arrangement stays: until none covers another one, and into sight.
void StepAside(const FormSession& session, const std::vector<TComponent*>& made, int grid) {
  struct Group {
    const TComponent* parent;
    bool controls;
    Corners taken{};
    std::vector<TComponent*> members{};
  };
  std::vector<Group> groups;
  for (TComponent* c : made) {
    if (!c || !MayMove(session, *c)) continue;
    const TComponent* parent = c->GetParentComponent();
    const bool control = As<TControl>(c);
    auto it = std::find_if(groups.begin(), groups.end(),
                           [&](const Group& g) { return g.parent == parent && g.controls == control; });
    if (it == groups.end()) {
      groups.push_back({parent, control, CornersIn(session, *parent, made, control)});
      it = std::prev(groups.end());
    }
    it->members.push_back(c);
  }
  const auto covers = [&](QPoint step) {
    return std::any_of(groups.begin(), groups.end(), [&](const Group& g) {
      return std::any_of(g.members.begin(), g.members.end(), [&](const TComponent* c) {
        return g.taken.contains(CornerOf(PlaceOf(*c).translated(step)));
      });
    });
  };
  QPoint step;
  while (covers(step)) step += QPoint(grid, grid);
  for (const Group& g : groups) {
    QRect all;
    for (const TComponent* c : g.members) all |= PlaceOf(*c).translated(step);
    QPoint into = step;
    if (const auto* container = As<TControl>(g.parent);
        container && !all.isEmpty() && !container->ClientRect().intersects(all))
      into += QPoint(grid, grid) - all.topLeft();
    for (TComponent* c : g.members)
      if (!into.isNull()) SetPlace(*c, PlaceOf(*c).translated(into));
  }
}

// New controls come last where the Tab key goes, in the order they had.
void TakeTabOrders(const std::vector<TComponent*>& made) {
  std::vector<TWinControl*> visited;
  for (TComponent* c : made)
    if (auto* control = c ? As<TWinControl>(c) : nullptr;
        control && control->Parent() && control->TabOrder() >= 0)
      visited.push_back(control);
  std::stable_sort(visited.begin(), visited.end(),
                   [](const TWinControl* a, const TWinControl* b) { return a->TabOrder() < b->TabOrder(); });
  const QSet<const TControl*> fresh(visited.begin(), visited.end());
  QHash<const TWinControl*, int> next;
  for (TWinControl* control : visited) {
    auto it = next.find(control->Parent());
    if (it == next.end()) {
      it = next.insert(control->Parent(), 0);
      for (const TControl* c : control->Parent()->Controls())
        if (const auto* other = As<TWinControl>(c); other && !fresh.contains(c))
          *it = std::max(*it, other->TabOrder() + 1);
    }
    control->SetTabOrder(std::min<int>((*it)++, INT16_MAX));
  }
}

void InsertCopies(FormSession& session, const forms::Document& objects,
                  const std::vector<forms::Object*>& parents, int grid, const char* one,
                  const char* several) {
  std::vector<FormSession::Insertion> insertions;
  for (std::size_t i = 0; i < parents.size(); ++i)
    insertions.push_back({objects.Root().children[i].get(), parents[i]});
  const QString title = insertions.size() == 1
                            ? OperationText(one).arg(QString::fromUtf8(insertions[0].object->name))
                            : OperationText(several, static_cast<int>(insertions.size()));
  session.Run(title, {}, [&] {
    auto made = session.Insert(objects, insertions);
    std::erase(made, nullptr);
    StepAside(session, made, grid);
    TakeTabOrders(made);
    session.Select(made);
  });
}
}  // namespace

void CopySelection(const FormSession& session, IClipboard& clipboard) {
  clipboard.SetText(TextOfComponents(session, Copied(session, "copied")));
}

void CutSelection(FormSession& session, IClipboard& clipboard) {
  const auto components = Outermost(session, Chosen(session));
  for (const TComponent* c : components) RequireOwn(session, *c, OperationText("cut"));
  const QString text = TextOfComponents(session, components);
  session.Run(Title("Cut %1", "Cut %n components", components), {},
              [&] { session.DeleteComponents(components); });
  clipboard.SetText(text);
}

void PasteInto(FormSession& session, const IClipboard& clipboard, int grid) {
  const QString text = clipboard.Text();
  if (text.trimmed().isEmpty())
    throw Exception(OperationText("There is no text on the clipboard. Copy a component or form text first."));
  forms::Document objects = ObjectsOfText(text);
  const TComponent& selected = *session.SelectedComponents().front();
  const bool one = session.SelectedComponents().size() == 1;
  const TComponent* parent = one ? &selected : selected.GetParentComponent();
  const TComponent& around = parent ? *parent : *session.GetRoot();
  forms::Object* const root = session.ObjectOf(session.Form());
  forms::Object* const at = session.ObjectOf(selected);
  std::vector<forms::Object*> parents;
  for (const auto& object : objects.Root().children) {
    if (IsVisual(*object)) {
      if (!session.Form().AcceptsControls())
        throw EComponentError(
            OperationText(
                "%1 is a control, and %2 is a data module: only components that are no controls can "
                "stand on it.")
                .arg(QString::fromUtf8(object->name), session.Form().Name()));
      parents.push_back(session.ObjectOf(ContainerAround(session, around, *object)));
    } else {
      // The part of another component goes to its like.
      const bool part = at && at->parent && at->parent != root && at->className == object->className;
      parents.push_back(part ? at->parent : root);
    }
  }
  MakeNamesFree(objects, session);
  InsertCopies(session, objects, parents, grid, "Paste %1", "Paste %n components");
}

void DuplicateSelection(FormSession& session, int grid) {
  const auto components = Copied(session, "duplicated");
  forms::Document objects = ObjectsOfComponents(session, components);
  MakeNamesFree(objects, session);
  std::vector<forms::Object*> parents;
  for (const TComponent* c : components) parents.push_back(session.ObjectOf(*c)->parent);
  InsertCopies(session, objects, parents, grid, "Duplicate %1", "Duplicate %n components");
}
