#include "ide/InspectorModel.h"

#include "designintf/Purposes.h"
#include "ide/BoundsCheck.h"
#include "ide/InspectorNode.h"
#include "rtl/Exceptions.h"

using namespace inspector;
using enum TPropertyAttribute;

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

// Whether something else is selected than what the rows are of.
bool InspectorModel::IsOther() const {
  return shown_ != session_->SelectedComponents() || inspected_ != session_->GetSelections();
}

void InspectorModel::Refresh() {
  if (!session_ || IsOther() || IsStale(*root_) || StoredNow() != stored_) return Rebuild();
  TakeProblems();
  TellChanges({});
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

InspectorNode* InspectorModel::NodeAt(const QModelIndex& index) const {
  return index.isValid() ? static_cast<Node*>(index.internalPointer()) : root_.get();
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
      return PurposeOf(editor->GetComponent(0)->ClassType(), editor->GetPropInfo());
    default:
      return {};
  }
}

Qt::ItemFlags InspectorModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}
