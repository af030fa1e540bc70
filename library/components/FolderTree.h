// A tree of folders, and a line that has the path of the one that is picked.
#pragma once
#include <QPersistentModelIndex>
#include <QWidget>

class QFileSystemModel;
class QLineEdit;
class QTreeView;

class FolderTree : public QWidget {
 public:
  struct Offer {
    QString root{};  // nothing above it; everything when it is empty
    bool hidden = false;
    bool files = false;  // shown so that one finds one's way; picking one picks its folder
    bool line = true;
  };
  FolderTree(const QString& folder, const Offer& offer);

  QString Folder() const;
  // In the folder that is picked, with a name that nobody has; the person types a better one. Why it cannot
  // be made, or nothing.
  QString MakeFolder();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Show(const QModelIndex& row);
  // The column is as wide as the names, and not narrower than the tree.
  void FitColumn();
  void FitSoon();
  // The row and as much of its name as there is room for.
  void ScrollTo(const QModelIndex& row);
  QTreeView* tree_;
  QLineEdit* line_;
  QFileSystemModel* model_;
  QPersistentModelIndex sought_;  // to be kept in sight until the person does anything in the tree
  bool fits_ = true;
};
