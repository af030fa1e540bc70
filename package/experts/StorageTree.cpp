#include "package/experts/StorageTree.h"

#include <algorithm>

#include "rtl/Component.h"

namespace {
bool Before(const QString& a, const QString& b) {
  const int order = a.compare(b, Qt::CaseInsensitive);
  return order != 0 ? order < 0 : a < b;
}
}  // namespace

void StorageTree::SetComponents(const std::vector<const TComponent*>& components) {
  beginResetModel();
  branches_.clear();
  for (const TComponent* component : components)
    if (!component->Name().isEmpty()) branches_.push_back({component->Name(), component});
  std::stable_sort(branches_.begin(), branches_.end(),
                   [](const Branch& a, const Branch& b) { return Before(a.name, b.name); });
  endResetModel();
}

void StorageTree::Rebuild() {
  beginResetModel();
  for (Branch& branch : branches_) branch.known = false;
  endResetModel();
}

const QStringList& StorageTree::PropertiesOf(int index) const {
  Branch& branch = branches_[static_cast<std::size_t>(index)];
  if (!std::exchange(branch.known, true)) {
    branch.properties.clear();
    for (const TPropInfo* prop : branch.component->ClassType().Properties()) {
      const QString name = QString::fromLatin1(prop->Name);
      if (prop->Visibility == TPropVisibility::Published && !prop->IsEvent() &&
          !leavesOut_(branch.name, name))
        branch.properties << name;
    }
    std::sort(branch.properties.begin(), branch.properties.end(), Before);
  }
  return branch.properties;
}

QString StorageTree::ComponentOf(const QModelIndex& property) const {
  return property.parent().data(Qt::DisplayRole).toString();
}

QModelIndex StorageTree::FindComponent(const QString& component) const {
  for (int i = 0; i < rowCount(); ++i)
    if (branches_[static_cast<std::size_t>(i)].name.compare(component, Qt::CaseInsensitive) == 0)
      return index(i, 0);
  return {};
}
QModelIndex StorageTree::Find(const QString& component, const QString& property) const {
  const QModelIndex branch = FindComponent(component);
  const auto row = branch.isValid() ? PropertiesOf(branch.row()).indexOf(property) : -1;
  return row < 0 ? QModelIndex() : index(static_cast<int>(row), 0, branch);
}

void StorageTree::Remove(const QModelIndex& property) {
  const int branch = property.parent().row();
  beginRemoveRows(property.parent(), property.row(), property.row());
  branches_[static_cast<std::size_t>(branch)].properties.removeAt(property.row());
  endRemoveRows();
}

void StorageTree::Add(const QString& component, const QString& property) {
  const QModelIndex branch = FindComponent(component);
  if (!branch.isValid()) return;
  PropertiesOf(branch.row());
  QStringList& properties = branches_[static_cast<std::size_t>(branch.row())].properties;
  const auto place = std::lower_bound(properties.begin(), properties.end(), property, Before);
  const int row = static_cast<int>(place - properties.begin());
  beginInsertRows(branch, row, row);
  properties.insert(row, property);
  endInsertRows();
}

QModelIndex StorageTree::After(const QModelIndex& at) const {
  if (!IsProperty(at) && rowCount(at) > 0) return index(0, 0, at);
  if (IsProperty(at) && at.row() + 1 < rowCount(at.parent())) return at.siblingAtRow(at.row() + 1);
  const QModelIndex branch = IsProperty(at) ? at.parent() : at;
  return index(branch.row() + 1, 0);
}

QModelIndex StorageTree::index(int row, int column, const QModelIndex& parent) const {
  if (column != 0 || row < 0 || row >= rowCount(parent)) return {};
  // Where a property stands is kept as the place of its component, counted from 1.
  return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : 0);
}
QModelIndex StorageTree::parent(const QModelIndex& at) const {
  return IsProperty(at) ? createIndex(static_cast<int>(at.internalId()) - 1, 0, quintptr{0}) : QModelIndex();
}
int StorageTree::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(branches_.size());
  return IsProperty(parent) ? 0 : static_cast<int>(PropertiesOf(parent.row()).size());
}
bool StorageTree::hasChildren(const QModelIndex& parent) const { return rowCount(parent) > 0; }

QVariant StorageTree::data(const QModelIndex& at, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (!IsProperty(at)) return branches_[static_cast<std::size_t>(at.row())].name;
  return PropertiesOf(at.parent().row())[at.row()];
}
