#include "ide/InspectorModel.h"

#include "designintf/DesignIntf.h"
#include "ide/BoundsCheck.h"
#include "rtl/Exceptions.h"

using enum TPropertyAttribute;

struct InspectorModel::Node {
  Node* parent = nullptr;
  int row = 0;
  std::unique_ptr<TPropertyEditor> editor;
  QString category;
  bool loaded = false;
  std::vector<std::unique_ptr<Node>> children;

  Node& Add(std::unique_ptr<TPropertyEditor> e) {
    auto node = std::make_unique<Node>();
    node->parent = this;
    node->row = static_cast<int>(children.size());
    node->editor = std::move(e);
    children.push_back(std::move(node));
    return *children.back();
  }
  QString Path() const {
    const QString own = editor ? editor->GetName() : category;
    return parent && parent->parent ? parent->Path() + u'.' + own : own;
  }
};

InspectorModel::InspectorModel(QObject* parent)
    : QAbstractItemModel(parent), root_(std::make_unique<Node>()) {}
InspectorModel::~InspectorModel() = default;

void InspectorModel::SetSession(FormSession* session) {
  if (session_) disconnect(session_, nullptr, this, nullptr);
  session_ = session;
  if (session_) {
    connect(session_, &FormSession::SelectionChanged, this, &InspectorModel::Rebuild);
    connect(session_, &FormSession::StructureChanged, this, &InspectorModel::Rebuild);
    connect(session_, &FormSession::FormChanged, this, &InspectorModel::Refresh);
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
  filter_ = text;
  Rebuild();
}

void InspectorModel::Rebuild() {
  beginResetModel();
  root_ = std::make_unique<Node>();
  root_->loaded = true;
  shown_ = session_ ? session_->SelectedComponents() : std::vector<TComponent*>();
  std::vector<std::unique_ptr<TPropertyEditor>> editors;
  GetComponentProperties({shown_.begin(), shown_.end()}, session_, [&](std::unique_ptr<TPropertyEditor> e) {
    if (e->GetPropInfo().IsEvent() == events_ && e->GetName().contains(filter_, Qt::CaseInsensitive))
      editors.push_back(std::move(e));
  });
  std::stable_sort(editors.begin(), editors.end(), [](const auto& a, const auto& b) {
    return a->GetName().compare(b->GetName(), Qt::CaseInsensitive) < 0;
  });
  if (!byCategory_) {
    for (auto& e : editors) root_->Add(std::move(e));
  } else {
    // A property stands under every category it belongs to, each time with an editor of its own.
    std::map<QString, Node*> groups;
    for (const auto& e : editors)
      for (const QString& category : CategoriesOf(shown_.front()->ClassType(), e->GetPropInfo().Name)) {
        Node*& group = groups[category];
        if (!group) {
          group = &root_->Add(nullptr);
          group->category = category;
          group->loaded = true;
        }
        TInstProps props;
        for (int i = 0; i < e->PropCount(); ++i)
          props.push_back(
              {e->GetComponent(i), e->GetComponent(i)->ClassType().FindProp(e->GetPropInfo().Name)});
        group->Add(CreatePropertyEditor(session_, std::move(props)));
      }
  }
  endResetModel();
}

void InspectorModel::Refresh() {
  if (!session_ || shown_ != session_->SelectedComponents()) return Rebuild();
  std::function<void(const QModelIndex&)> touch = [&](const QModelIndex& parent) {
    const Node* node = parent.isValid() ? NodeAt(parent) : root_.get();
    const int rows = node->loaded ? static_cast<int>(node->children.size()) : 0;
    if (rows == 0) return;
    emit dataChanged(index(0, 0, parent), index(rows - 1, 1, parent));
    for (int i = 0; i < rows; ++i) touch(index(i, 0, parent));
  };
  touch({});
}

InspectorModel::Node* InspectorModel::NodeAt(const QModelIndex& index) const {
  return index.isValid() ? static_cast<Node*>(index.internalPointer()) : root_.get();
}

// Sub-properties are asked for when a row is opened.
void InspectorModel::Load(Node& node) const {
  if (node.loaded) return;
  node.loaded = true;
  if (node.editor && node.editor->GetAttributes().Contains(paSubProperties))
    node.editor->GetProperties([&](std::unique_ptr<TPropertyEditor> e) { node.Add(std::move(e)); });
}

TPropertyEditor* InspectorModel::EditorAt(const QModelIndex& index) const {
  return index.isValid() ? NodeAt(index)->editor.get() : nullptr;
}

QModelIndex InspectorModel::IndexOfPath(const QString& path) const {
  QModelIndex at;
  for (const QString& name : path.split(u'.')) {
    QModelIndex next;
    for (int row = 0; row < rowCount(at) && !next.isValid(); ++row) {
      const QModelIndex candidate = index(row, 0, at);
      const Node* node = NodeAt(candidate);
      if ((node->editor ? node->editor->GetName() : node->category).compare(name, Qt::CaseInsensitive) == 0)
        next = candidate;
    }
    if (!next.isValid()) return {};
    at = next;
  }
  return at;
}

QString InspectorModel::ValueText(const QModelIndex& index) const {
  const TPropertyEditor* editor = EditorAt(index);
  if (!editor) return {};
  return editor->PropCount() == 1 || editor->AllEqual() ? editor->GetValue() : QString();
}

QStringList InspectorModel::ValueList(const QModelIndex& index) const {
  QStringList values;
  const TPropertyEditor* editor = EditorAt(index);
  if (!editor || !editor->GetAttributes().Contains(paValueList)) return values;
  editor->GetValues([&](const QString& v) { values << v; });
  if (editor->GetAttributes().Contains(paSortList)) values.sort(Qt::CaseInsensitive);
  return values;
}

QString InspectorModel::Guarded(const QString& text, const std::function<void()>& action) {
  try {
    session_->Run(text, shown_, action);
  } catch (const std::exception& e) {
    return ExceptionMessage(e);
  }
  return {};
}

QString InspectorModel::SetValueText(const QModelIndex& index, const QString& text) {
  TPropertyEditor* editor = EditorAt(index);
  if (!editor) return {};
  return Guarded(tr("Change %1").arg(editor->GetName()), [&] {
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
  return Guarded(tr("Edit %1").arg(editor->GetName()), [&] { editor->Edit(); });
}

QString InspectorModel::Reset(const QModelIndex& index) {
  TPropertyEditor* editor = EditorAt(index);
  if (!editor) return {};
  return Guarded(tr("Reset %1").arg(editor->GetName()), [&] { editor->Revert(); });
}

QModelIndex InspectorModel::index(int row, int column, const QModelIndex& parent) const {
  Node* node = NodeAt(parent);
  Load(*node);
  if (row < 0 || row >= static_cast<int>(node->children.size()) || column < 0 || column > 1) return {};
  return createIndex(row, column, node->children[static_cast<std::size_t>(row)].get());
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
  return static_cast<int>(node->children.size());
}

bool InspectorModel::hasChildren(const QModelIndex& parent) const {
  if (parent.isValid() && parent.column() != 0) return false;
  const Node* node = NodeAt(parent);
  if (node->loaded) return !node->children.empty();
  return node->editor && node->editor->GetAttributes().Contains(paSubProperties);
}

QVariant InspectorModel::data(const QModelIndex& index, int role) const {
  const Node* node = NodeAt(index);
  const TPropertyEditor* editor = node->editor.get();
  if (role == IsCategoryRole) return editor == nullptr;
  if (role == PathRole) return node->Path();
  if (!editor) return role == Qt::DisplayRole && index.column() == 0 ? QVariant(node->category) : QVariant();
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return index.column() == 0 ? editor->GetName() : ValueText(index);
    case Qt::DecorationRole:
      return index.column() == 1 ? QVariant(editor->GetValueIcon(ValueText(index))) : QVariant();
    case Qt::ToolTipRole:
      return index.column() == 1 ? QVariant(ValueText(index)) : QVariant();
    case NotDefaultRole:
      return !editor->IsDefault();
    case IsBooleanRole: {
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
