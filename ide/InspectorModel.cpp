#include "ide/InspectorModel.h"

#include "ide/BoundsCheck.h"
#include "ide/StandIns.h"
#include "ide/StoredProperties.h"
#include "rtl/Exceptions.h"

using enum TPropertyAttribute;

namespace {
QString NameOf(const TPropertyEditor& editor) {
  return AskEditor(editor, "GetName", QString::fromLatin1(editor.GetPropInfo().Name),
                   [&] { return editor.GetName(); });
}
QIcon IconOf(const TPropertyEditor& editor, const QString& value) {
  return AskEditor(editor, "GetValueIcon", QIcon(), [&] { return editor.GetValueIcon(value); });
}
bool Has(const TPropertyEditor& editor, TPropertyAttribute attribute) {
  return AskEditor(editor, "GetAttributes", false,
                   [&] { return editor.GetAttributes().Contains(attribute); });
}

QString TextOf(const TPropertyEditor& editor) {
  if (editor.PropCount() != 1 && !AskEditor(editor, "AllEqual", false, [&] { return editor.AllEqual(); }))
    return {};
  return AskEditor(editor, "GetValue", QString(), [&] { return editor.GetValue(); });
}
bool IsNotDefault(const TPropertyEditor& editor) {
  return !AskEditor(editor, "IsDefault", true, [&] { return editor.IsDefault(); });
}
}  // namespace

struct InspectorModel::Node {
  Node* parent = nullptr;
  int row = 0;  // among those that are shown
  std::unique_ptr<TPropertyEditor> editor;
  QString category;
  bool loaded = false;
  bool above = false;  // the filter finds something below
  // What views were told; nothing when they did not ask since it changed.
  std::optional<QString> toldText;
  std::optional<bool> toldNotDefault;
  std::optional<QString> toldProblem;
  std::vector<TPersistent*> objects;  // whose properties the rows below are
  std::vector<std::unique_ptr<Node>> all;
  std::vector<Node*> shown;  // those that the filter leaves

  Node& Add(std::unique_ptr<TPropertyEditor> e) {
    auto node = std::make_unique<Node>();
    node->parent = this;
    node->editor = std::move(e);
    all.push_back(std::move(node));
    return *all.back();
  }
  void ShowAll() {
    shown.clear();
    for (const auto& node : all) Show(*node);
  }
  void Show(Node& node) {
    node.row = static_cast<int>(shown.size());
    shown.push_back(&node);
  }
  QString Name() const { return editor ? NameOf(*editor) : category; }
  // "LED.ActiveColor", wherever it stands.
  QByteArray Property() const {
    const QByteArray around = parent && parent->editor ? parent->Property() + '.' : QByteArray();
    return editor ? around + editor->GetPropInfo().Name : around;
  }
  QString Path() const { return parent && parent->parent ? parent->Path() + u'.' + Name() : Name(); }
};

namespace {
// Deep enough for every value object; an editor that opens into ever new ones ends there.
constexpr int DeepestSearch = 6;
}  // namespace

InspectorModel::InspectorModel(QObject* parent)
    : QAbstractItemModel(parent), root_(std::make_unique<Node>()) {}
InspectorModel::~InspectorModel() = default;

void InspectorModel::SetSession(FormSession* session) {
  if (session_) disconnect(session_, nullptr, this, nullptr);
  session_ = session;
  if (session_) {
    // A selection that is told again changes no row.
    connect(session_, &FormSession::SelectionChanged, this, [this] {
      if (IsOther()) Rebuild();
    });
    connect(session_, &FormSession::Changed, this, [this](const FormChange& change) {
      if (change.structure) Rebuild();
      Refresh();
    });
    connect(session_, &FormSession::FindingsChanged, this, &InspectorModel::Refresh);
    connect(session_, &QObject::destroyed, this, [this] { SetSession(nullptr); });
  }
  Rebuild();
}

void InspectorModel::ShowEvents(bool events) {
  events_ = events;
  Rebuild();
}
void InspectorModel::GroupByCategory(bool group) {
  byCategory_ = group;
  Rebuild();
}
void InspectorModel::SetFilter(const QString& text) {
  if (filter_ == text) return;
  beginResetModel();
  filter_ = text;
  Filter(*root_, false);
  endResetModel();
}

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

InspectorModel::Node& InspectorModel::AddGroup(const QString& category) {
  Node& group = root_->Add(nullptr);
  group.category = category;
  group.loaded = true;
  return group;
}

// Whether something else is selected than what the rows are of.
bool InspectorModel::IsOther() const {
  return shown_ != session_->SelectedComponents() || inspected_ != session_->GetSelections();
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

// --- Rows

// Rows below an object are the object's own; another one in its place has others.
bool InspectorModel::IsStale(const Node& node) const {
  if (!node.loaded) return false;
  if (node.editor && (Has(*node.editor, paVolatileSubProperties) || ObjectsOf(node) != node.objects))
    return true;
  return std::any_of(node.all.begin(), node.all.end(), [this](const auto& n) { return IsStale(*n); });
}

void InspectorModel::Refresh() {
  if (!session_ || IsOther() || IsStale(*root_) || StoredNow() != stored_) return Rebuild();
  TakeProblems();
  TellChanges({});
}

// --- Values of the file

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

QString InspectorModel::RevertToInherited(const QModelIndex& index) {
  if (!index.isValid() || !CanRevert(*NodeAt(index))) return {};
  try {
    session_->RevertToInherited(shown_, NodeAt(index)->Property());
  } catch (const std::exception& e) {
    return ExceptionMessage(e);
  }
  return {};
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

InspectorModel::Node* InspectorModel::NodeAt(const QModelIndex& index) const {
  return index.isValid() ? static_cast<Node*>(index.internalPointer()) : root_.get();
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

TPropertyEditor* InspectorModel::EditorAt(const QModelIndex& index) const {
  return index.isValid() ? NodeAt(index)->editor.get() : nullptr;
}

QModelIndex InspectorModel::IndexOfPath(const QString& path) const {
  const auto find = [&](const QModelIndex& parent, const QString& name) {
    for (int row = 0; row < rowCount(parent); ++row)
      if (const QModelIndex i = index(row, 0, parent);
          NodeAt(i)->Name().compare(name, Qt::CaseInsensitive) == 0)
        return i;
    return QModelIndex();
  };
  // What a file stores may have a name with dots.
  if (const QModelIndex whole = find({}, path); whole.isValid()) return whole;
  QModelIndex at;
  for (const QString& name : path.split(u'.')) {
    at = find(at, name);
    if (!at.isValid()) return {};
  }
  return at;
}

QString InspectorModel::ValueText(const QModelIndex& index) const {
  const TPropertyEditor* editor = EditorAt(index);
  if (!editor) return {};
  return *(NodeAt(index)->toldText = TextOf(*editor));
}

QStringList InspectorModel::ValueList(const QModelIndex& index) const {
  QStringList values;
  const TPropertyEditor* editor = EditorAt(index);
  if (!editor || !Has(*editor, paValueList)) return values;
  AskEditor(*editor, "GetValues", false, [&] {
    editor->GetValues([&](const QString& v) { values << v; });
    return true;
  });
  if (Has(*editor, paSortList)) values.sort(Qt::CaseInsensitive);
  return values;
}

QString InspectorModel::Guarded(TPropertyEditor& editor, const char* member, const QString& text,
                                const std::function<void()>& action) {
  // What the editor does may make the rows anew, and with them the editor itself.
  ++running_;
  const auto done = qScopeGuard([this] {
    if (--running_ == 0) retired_.clear();
  });
  try {
    // Asked before: what the editor does may take its component away.
    session_->Run(text, shown_,
                  [&, call = CallOf(editor, member)] { PackageCall([&] { return call; }, action); });
  } catch (const std::exception& e) {
    return ExceptionMessage(e);
  }
  return {};
}

QString InspectorModel::SetValueText(const QModelIndex& index, const QString& text) {
  TPropertyEditor* editor = EditorAt(index);
  if (!editor) return {};
  return Guarded(*editor, "SetValue", tr("Change %1").arg(NameOf(*editor)), [&] {
    editor->SetValue(text);
    bool number = false;
    const std::int64_t wanted = text.toLongLong(&number);
    for (int i = 0; number && i < editor->PropCount(); ++i)
      RequireBoundsTaken(*editor->GetComponent(i), editor->GetPropInfo(), wanted);
  });
}

QString InspectorModel::RunDialog(const QModelIndex& index) {
  TPropertyEditor* editor = EditorAt(index);
  if (!editor) return {};
  return Guarded(*editor, "Edit", tr("Edit %1").arg(NameOf(*editor)), [&] { editor->Edit(); });
}

QString InspectorModel::Reset(const QModelIndex& index) {
  TPropertyEditor* editor = EditorAt(index);
  if (!editor) return {};
  return Guarded(*editor, "Revert", tr("Reset %1").arg(NameOf(*editor)), [&] { editor->Revert(); });
}

QString InspectorModel::Shortened(const QString& value) {
  constexpr qsizetype Most = 1000;
  return value.size() <= Most ? value : value.left(Most) + u'\u2026';
}

QModelIndex InspectorModel::index(int row, int column, const QModelIndex& parent) const {
  Node* node = NodeAt(parent);
  Load(*node);
  if (row < 0 || row >= static_cast<int>(node->shown.size()) || column < 0 || column > 1) return {};
  return createIndex(row, column, node->shown[static_cast<std::size_t>(row)]);
}

QModelIndex InspectorModel::parent(const QModelIndex& child) const {
  if (!child.isValid()) return {};
  Node* parent = NodeAt(child)->parent;
  return !parent || parent == root_.get() ? QModelIndex() : createIndex(parent->row, 0, parent);
}

int InspectorModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid() && parent.column() != 0) return 0;
  Node* node = NodeAt(parent);
  Load(*node);
  return static_cast<int>(node->shown.size());
}

bool InspectorModel::hasChildren(const QModelIndex& parent) const {
  if (parent.isValid() && parent.column() != 0) return false;
  const Node* node = NodeAt(parent);
  if (node->loaded) return !node->shown.empty();
  return node->editor && Has(*node->editor, paSubProperties);
}

QVariant InspectorModel::data(const QModelIndex& index, int role) const {
  const Node* node = NodeAt(index);
  const TPropertyEditor* editor = node->editor.get();
  if (role == IsCategoryRole) return editor == nullptr;
  if (role == PathRole) return node->Path();
  if (role == FitsRole) return Fits(*node);
  if (role == IsAboveRole) return node->above;
  if (!editor) return role == Qt::DisplayRole && index.column() == 0 ? QVariant(node->category) : QVariant();
  switch (role) {
    case Qt::EditRole:
      return index.column() == 0 ? NameOf(*editor) : ValueText(index);
    case Qt::DisplayRole:
      return index.column() == 0 ? NameOf(*editor) : Shortened(ValueText(index));
    case Qt::DecorationRole:
      return index.column() == 1 ? QVariant(IconOf(*editor, ValueText(index))) : QVariant();
    case Qt::ToolTipRole:
      if (const QString problem = ProblemOf(*node); !problem.isEmpty()) return problem;
      return index.column() == 1 ? QVariant(Shortened(ValueText(index))) : QVariant();
    case ProblemRole:
    case Qt::AccessibleDescriptionRole:
      return *(NodeAt(index)->toldProblem = ProblemOf(*node));
    case CanRevertRole:
      return CanRevert(*node);
    case NotDefaultRole:
      return *(NodeAt(index)->toldNotDefault = StandsOut(*node));
    case IsBooleanRole: {
      // Lists of components and handlers are long, and nothing of the kind.
      const TTypeKind kind = editor->GetPropType().Kind;
      if (kind != TTypeKind::tkEnumeration && kind != TTypeKind::tkSet) return false;
      const QStringList values = ValueList(index);
      return values.size() == 2 && values[0] == QStringLiteral("False") &&
             values[1] == QStringLiteral("True");
    }
    case DescriptionRole:
      return editor->GetPropInfo().Description;
    default:
      return {};
  }
}

Qt::ItemFlags InspectorModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}
