// A tree of folders, and a line that has the path of the one that is picked.
#pragma once
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

 private:
  void Show(const QModelIndex& row);
  QTreeView* tree_;
  QLineEdit* line_;
  QFileSystemModel* model_;
};
