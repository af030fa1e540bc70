// The tree of styles as views see it: "(Default)" at the top; name, and what a property is set to.
#pragma once
#include <QAbstractItemModel>
#include <QHash>
#include <QSet>

#include "package/styles/StyleTree.h"

class StyleModel : public QAbstractItemModel {
  Q_OBJECT
 public:
  // Hears what happens to the tree from now on.
  StyleModel(TVRXStyleTree& tree, QObject* parent);

  TVRXStyleNode* NodeAt(const QModelIndex& index) const {
    return index.isValid() ? static_cast<TVRXStyleNode*>(index.internalPointer()) : nullptr;
  }
  QModelIndex IndexOf(const TVRXStyleNode* node, int column = 0) const;
  // All changes of the tree are made in here: what is selected and open stays so, wherever it moves.
  void Do(const std::function<void()>& change);
  // What is asked or told during a change: the views are whole meanwhile.
  bool Aside(const std::function<bool()>& ask);
  // Whether the last change took the node away.
  bool IsGone(const TVRXStyleNode* node) const { return gone_.contains(node); }

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return 2; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  int RowOf(const TVRXStyleNode& node) const;
  void Gone(const TVRXStyleNode& node);
  void Begin();
  void End();
  TVRXStyleTree& tree_;
  mutable QHash<const TVRXStyleNode*, int> rows_;  // of those that were asked for, and their neighbours
  QSet<const void*> gone_;
  bool changing_ = false;
};
