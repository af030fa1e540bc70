// The components of a form with those of their properties that may still be chosen: two levels, both sorted.
// What a component has is asked for only when somebody looks below it.
#pragma once
#include <QAbstractItemModel>
#include <functional>
#include <vector>

class TComponent;

class StorageTree : public QAbstractItemModel {
  Q_OBJECT
 public:
  // Which of a component's properties are left out.
  using LeavesOut = std::function<bool(const QString& component, const QString& property)>;
  StorageTree(LeavesOut leavesOut, QObject* parent)
      : QAbstractItemModel(parent), leavesOut_(std::move(leavesOut)) {}

  // From now on these, the form first; whoever has no name is left out.
  void SetComponents(const std::vector<const TComponent*>& components);
  // Everything anew.
  void Rebuild();

  // Second-level nodes; none for others.
  bool IsProperty(const QModelIndex& index) const { return index.isValid() && index.internalId() != 0; }
  QString ComponentOf(const QModelIndex& property) const;
  // Invalid when it is not there.
  QModelIndex Find(const QString& component, const QString& property) const;
  QModelIndex FindComponent(const QString& component) const;
  void Remove(const QModelIndex& property);
  // Below the component of that name; nothing happens when there is none.
  void Add(const QString& component, const QString& property);
  // The one behind it, levels and closed branches disregarded.
  QModelIndex After(const QModelIndex& index) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return 1; }
  bool hasChildren(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct Branch {
    QString name;
    const TComponent* component;
    bool known = false;
    QStringList properties{};
  };
  const QStringList& PropertiesOf(int branch) const;
  LeavesOut leavesOut_;
  mutable std::vector<Branch> branches_;
};
