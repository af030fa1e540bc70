#include "package/styles/StyleModel.h"

#include <QApplication>
#include <QPalette>
#include <QPixmap>
#include <QScopeGuard>

#include "designintf/ComponentIcons.h"
#include "vcl/ColorSwatch.h"

using Node = TVRXStyleNode;

namespace {
// By the code of the kind.
constexpr const char* Icons[] = {
    "pen line 1.5 brush fill box 3 4 18 16 2 pen accent 2 path 7 12 17 12",
    "pen line 1.5 brush fill box 3.5 5 17 14 2 pen none brush accent box 6.5 10 11 4 1",
    "pen line 1.5 brush fill shape 3 9 9 3 21 3 21 15 15 21 3 21 pen none brush accent oval 15 6 3 3",
    "pen line 1.5 brush fill oval 3.5 3.5 17 17 pen accent 2 path 12 7 12 12 15.5 14",
    "pen accent 2 path 5 7 9 7 path 5 12 9 12 pen line 1.8 path 12 7 19.5 7 path 12 12 19.5 12",
};
QIcon IconOf(const Node& node) {
  return DrawnIcon(Icons[node.IsRoot() ? 0 : static_cast<std::size_t>(node.Kind)]);
}
}  // namespace

StyleModel::StyleModel(TVRXStyleTree& tree, QObject* parent) : QAbstractItemModel(parent), tree_(tree) {
  tree_.ChildrenChanged = [this](Node&) { rows_.clear(); };
  tree_.NodeChanged = [this](Node& node) { emit dataChanged(IndexOf(&node), IndexOf(&node, 1)); };
  tree_.Removing = [this](Node& node) { Gone(node); };
}

void StyleModel::Gone(const Node& node) {
  gone_.insert(&node);
  for (const auto& child : node.Children) Gone(*child);
}

void StyleModel::Begin() {
  changing_ = true;
  emit layoutAboutToBeChanged();
}
void StyleModel::End() {
  rows_.clear();
  const QModelIndexList kept = persistentIndexList();
  for (const QModelIndex& index : kept)
    changePersistentIndex(index, gone_.contains(index.internalPointer())
                                     ? QModelIndex()
                                     : IndexOf(NodeAt(index), index.column()));
  changing_ = false;
  emit layoutChanged();
}

void StyleModel::Do(const std::function<void()>& change) {
  gone_.clear();
  Begin();
  const auto end = qScopeGuard([this] { End(); });
  change();
}

bool StyleModel::Aside(const std::function<bool()>& ask) {
  if (!changing_) return ask();
  End();
  const auto again = qScopeGuard([this] { Begin(); });
  return ask();
}

// Neighbours are asked for, too, as a rule.
int StyleModel::RowOf(const Node& node) const {
  if (node.IsRoot()) return 0;
  const auto known = rows_.constFind(&node);
  if (known != rows_.cend()) return *known;
  int row = 0;
  for (const auto& child : node.Parent->Children) rows_.insert(child.get(), row++);
  return rows_.value(&node);
}

QModelIndex StyleModel::IndexOf(const Node* node, int column) const {
  return node ? createIndex(RowOf(*node), column, node) : QModelIndex();
}

QModelIndex StyleModel::index(int row, int column, const QModelIndex& parent) const {
  if (row < 0 || column < 0 || column > 1 || row >= rowCount(parent)) return {};
  if (!parent.isValid()) return createIndex(0, column, &tree_.Root());
  return createIndex(row, column, NodeAt(parent)->Children[static_cast<std::size_t>(row)].get());
}
QModelIndex StyleModel::parent(const QModelIndex& index) const {
  const Node* node = NodeAt(index);
  return node ? IndexOf(node->Parent) : QModelIndex();
}
int StyleModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return 1;
  return parent.column() == 0 ? static_cast<int>(NodeAt(parent)->Children.size()) : 0;
}

QVariant StyleModel::data(const QModelIndex& index, int role) const {
  const Node& node = *NodeAt(index);
  const bool value = index.column() == 1;
  if (value && !node.IsProperty()) return {};
  const bool without = value && !tree_.Value(node);
  switch (role) {
    case Qt::DisplayRole:
      if (!value) return node.Name;
      if (const QString text = tree_.DisplayValue(node); !without || !text.isEmpty()) return text;
      return QStringLiteral("no value yet");
    case Qt::ForegroundRole:
      return without ? QVariant(qApp->palette().brush(QPalette::PlaceholderText)) : QVariant();
    case Qt::ToolTipRole:
      return without ? QStringLiteral("A property is kept with its style once it has a value") : QVariant();
    case Qt::EditRole:
      return value ? QVariant() : node.Name;
    case Qt::DecorationRole: {
      if (!value) return IconOf(node);
      const TVRXStyleValue* stored = tree_.Value(node);
      const auto* color = stored ? std::get_if<std::int64_t>(stored) : nullptr;
      if (!color || node.TypeName != QStringLiteral("TColor")) return {};
      return ColorSwatch(TColor(static_cast<std::uint32_t>(*color)));
    }
    default:
      return {};
  }
}

QVariant StyleModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == 0 ? QStringLiteral("Style/Property") : QStringLiteral("Value");
}

Qt::ItemFlags StyleModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = QAbstractItemModel::flags(index);
  if (!index.isValid()) return flags;
  const Node& node = *NodeAt(index);
  using enum TVRXStyleEditor;
  const TVRXStyleEditor editor = node.IsProperty() ? tree_.EditorOf(node) : None;
  const bool editable =
      index.column() == 0 ? !node.IsProperty() && !node.IsRoot() : editor != None && editor != PictureChooser;
  return editable ? flags | Qt::ItemIsEditable : flags;
}
