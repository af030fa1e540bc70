// Which rows the inspector has: made anew for another selection, loaded when they are opened, chosen by the
// filter, told of when they show something else.
#include "ide/InspectorModel.h"
#include "ide/InspectorNode.h"
#include "ide/StandIns.h"
#include "ide/StoredProperties.h"

using namespace inspector;
using enum TPropertyAttribute;

namespace {
// Deep enough for every value object; an editor that opens into ever new ones ends there.
constexpr int DeepestSearch = 6;
}  // namespace

// Events belong to components; an object that is one of its own has them below it.
bool InspectorModel::Belongs(const TPropertyEditor& editor) const {
  if (editor.GetPropInfo().IsEvent()) return events_;
  if (!events_) return true;
  if (editor.GetPropType().Kind != TTypeKind::tkClass || !Has(editor, paSubProperties)) return false;
  const auto* component = As<TComponent>(editor.GetObjectValue());
  if (!component) return false;
  const auto& properties = component->ClassType().Properties();
  return std::any_of(properties.begin(), properties.end(), [](const TPropInfo* p) { return p->IsEvent(); });
}

QByteArrayList InspectorModel::StoredNow() const {
  const bool parts = inspected_.empty() || inspected_.front() != shown_.front();
  return session_ && !parts ? StoredNames(*session_, *shown_.front()) : QByteArrayList();
}

InspectorNode& InspectorModel::AddGroup(const QString& category) {
  Node& group = root_->Add(nullptr);
  group.category = category;
  group.loaded = true;
  return group;
}

void InspectorModel::Rebuild() {
  beginResetModel();
  if (running_ > 0) retired_.push_back(std::move(root_));
  root_ = std::make_unique<Node>();
  root_->loaded = true;
  shown_ = session_ ? session_->SelectedComponents() : std::vector<TComponent*>();
  inspected_ = session_ ? session_->GetSelections() : TDesignerSelections();
  TakeProblems();
  std::vector<std::unique_ptr<TPropertyEditor>> editors;
  const auto collect = [&](std::unique_ptr<TPropertyEditor> e) {
    const bool root = inspected_.front() == session_->GetRoot();
    if (Belongs(*e) && !(root && !RootHasProperty(session_->Form().Kind(), e->GetPropInfo().Name)))
      editors.push_back(std::move(e));
  };
  if (session_) session_->Registry().GetComponentProperties(inspected_, session_, collect);
  stored_ = StoredNow();
  if (!stored_.isEmpty())
    for (auto& e : StoredPropertyEditors(*session_, shown_))
      if (IsStoredEvent(*e) == events_) editors.push_back(std::move(e));
  std::stable_sort(editors.begin(), editors.end(), [](const auto& a, const auto& b) {
    return NameOf(*a).compare(NameOf(*b), Qt::CaseInsensitive) < 0;
  });
  if (!byCategory_) {
    for (auto& e : editors) root_->Add(std::move(e));
  } else {
    // A property stands under every category it belongs to, each time with an editor of its own.
    std::map<QString, Node*> groups;
    for (auto& e : editors) {
      if (IsStored(*e)) {
        Node*& group = groups[tr("Stored in the file")];
        if (!group) group = &AddGroup(tr("Stored in the file"));
        group->Add(std::move(e));
        continue;
      }
      for (const QString& category :
           session_->Registry().CategoriesOf(inspected_.front()->ClassType(), e->GetPropInfo().Name)) {
        Node*& group = groups[category];
        if (!group) group = &AddGroup(category);
        TInstProps props;
        for (int i = 0; i < e->PropCount(); ++i)
          props.push_back(
              {e->GetComponent(i), e->GetComponent(i)->ClassType().FindProp(e->GetPropInfo().Name)});
        group->Add(session_->Registry().CreatePropertyEditor(session_, std::move(props)));
      }
    }
  }
  Filter(*root_, false);
  endResetModel();
}

std::vector<TPersistent*> InspectorModel::ObjectsOf(const Node& node) {
  std::vector<TPersistent*> objects;
  if (node.editor && node.editor->GetPropType().Kind == TTypeKind::tkClass)
    for (int i = 0; i < node.editor->PropCount(); ++i)
      if (TPersistent* object = node.editor->GetObjectValueAt(i)) objects.push_back(object);
  return objects;
}

// Sub-properties are asked for when a row is opened, or searched.
void InspectorModel::Load(Node& node) const {
  if (node.loaded) return;
  node.loaded = true;
  if (!node.editor || !Has(*node.editor, paSubProperties)) return;
  node.objects = ObjectsOf(node);
  AskEditor(*node.editor, "GetProperties", false, [&] {
    node.editor->GetProperties([&](std::unique_ptr<TPropertyEditor> e) {
      if (Belongs(*e)) node.Add(std::move(e));
    });
    return true;
  });
  node.ShowAll();
}

// --- The filter

bool InspectorModel::Fits(const Node& node) const {
  if (filter_.isEmpty() || !node.editor) return false;
  return (filter_.contains(u'.') ? node.Path() : node.Name()).contains(filter_, Qt::CaseInsensitive);
}

// Objects that stand above themselves, and the form's other components, are opened by hand only: searching
// them would never end, or find the properties of somebody else.
bool InspectorModel::MaySearch(const Node& node) const {
  int depth = 0;
  const std::vector<TPersistent*> objects = ObjectsOf(node);
  const auto isOne = [&](TPersistent* p) {
    return std::find(objects.begin(), objects.end(), p) != objects.end();
  };
  for (const Node* above = node.parent; above; above = above->parent)
    if (++depth > DeepestSearch || std::any_of(above->objects.begin(), above->objects.end(), isOne))
      return false;
  return std::none_of(objects.begin(), objects.end(), [&](TPersistent* p) {
    const auto* component = As<TComponent>(p);
    return component && session_->ObjectOf(*component);
  });
}

// Chooses the rows below `node` that are shown; true when one of them is found. Below a row that is found by
// itself `everything` stays.
bool InspectorModel::Filter(Node& node, bool everything) const {
  if (filter_.isEmpty()) {
    node.ShowAll();
    for (const auto& child : node.all) {
      child->above = false;
      if (child->loaded) Filter(*child, true);
    }
    return false;
  }
  bool any = false;
  node.shown.clear();
  for (const auto& child : node.all) {
    const bool fits = Fits(*child);
    if (!child->loaded && MaySearch(*child)) Load(*child);
    child->above = Filter(*child, everything || fits);
    if (everything || fits || child->above) node.Show(*child);
    any = any || fits || child->above;
  }
  return any;
}

// --- Changes

// Rows below an object are the object's own; another one in its place has others.
bool InspectorModel::IsStale(const Node& node) const {
  if (!node.loaded) return false;
  if (node.editor && (Has(*node.editor, paVolatileSubProperties) || ObjectsOf(node) != node.objects))
    return true;
  return std::any_of(node.all.begin(), node.all.end(), [this](const auto& n) { return IsStale(*n); });
}

void InspectorModel::TakeProblems() {
  refused_ = session_ ? RefusedValues(*session_, inspected_) : std::vector<RefusedValue>();
}

QString InspectorModel::ProblemOf(const Node& node) const {
  if (refused_.empty() || !node.editor) return {};
  const QByteArray path = node.Property();
  for (const RefusedValue& r : refused_)
    if (r.path.size() >= path.size() && r.path.first(path.size()).compare(path, Qt::CaseInsensitive) == 0 &&
        (r.path.size() == path.size() || r.path[path.size()] == '.'))
      return tr("The file has another value, which is kept until this one is changed. %1").arg(r.why);
  return {};
}

// Of what is inherited, what this form says itself.
bool InspectorModel::StandsOut(const Node& node) const {
  const bool inherited = !shown_.empty() && inspected_.front() == shown_.front() &&
                         std::all_of(shown_.begin(), shown_.end(), [&](const TComponent* c) {
                           const forms::Object* object = session_->ObjectOf(*c);
                           return object && object->origin;
                         });
  return inherited ? CanRevert(node) : IsNotDefault(*node.editor);
}

bool InspectorModel::CanRevert(const Node& node) const {
  return node.editor && !shown_.empty() && inspected_.front() == shown_.front() &&
         std::any_of(shown_.begin(), shown_.end(),
                     [&](const TComponent* c) { return session_->SaysItself(*c, node.Property()); });
}

// Of the rows that views know, those that show something else now, neighbours at once.
void InspectorModel::TellChanges(const QModelIndex& parent) {
  const Node* node = parent.isValid() ? NodeAt(parent) : root_.get();
  const int rows = node->loaded ? static_cast<int>(node->shown.size()) : 0;
  std::vector<bool> changed(static_cast<std::size_t>(rows));
  for (int row = 0; row < rows; ++row) {
    Node& child = *node->shown[static_cast<std::size_t>(row)];
    const bool sign = child.toldProblem && *child.toldProblem != ProblemOf(child);
    changed[static_cast<std::size_t>(row)] = TakeChange(child);
    if (sign) emit dataChanged(index(row, 0, parent), index(row, 0, parent));
  }
  for (auto from = changed.begin(); (from = std::find(from, changed.end(), true)) != changed.end();) {
    const auto to = std::find(from, changed.end(), false);
    const auto rowOf = [&](auto at) { return static_cast<int>(at - changed.begin()); };
    emit dataChanged(index(rowOf(from), 1, parent), index(rowOf(to) - 1, 1, parent));
    from = to;
  }
  for (int row = 0; row < rows; ++row) TellChanges(index(row, 0, parent));
}

bool InspectorModel::TakeChange(Node& node) const {
  const bool changed = (node.toldText && *node.toldText != TextOf(*node.editor)) ||
                       (node.toldNotDefault && *node.toldNotDefault != StandsOut(node)) ||
                       (node.toldProblem && *node.toldProblem != ProblemOf(node));
  if (changed) {
    node.toldText.reset();
    node.toldNotDefault.reset();
    node.toldProblem.reset();
  }
  return changed;
}
