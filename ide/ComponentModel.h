// The components of the open form for views, as a tree or as a list, in the order of the file. It is a view
// of the document itself and keeps nothing that a change of a value could make old.
#pragma once
#include <QAbstractItemModel>
#include <QPointer>

#include "ide/FormSession.h"

class ComponentModel : public QAbstractItemModel {
  Q_OBJECT
 public:
  enum class Shape { Tree, List };  // a list leaves out what has no name
  explicit ComponentModel(Shape shape, QObject* parent = nullptr);

  void SetSession(FormSession* session);
  FormSession* Session() const { return session_; }
  // Null where nothing is any more.
  TComponent* ComponentAt(const QModelIndex& index) const;
  QModelIndex IndexOf(const TComponent& component) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return 1; }
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  void Take(const FormChange& change);
  void List();
  forms::Object* ObjectAt(const QModelIndex& index) const {
    return static_cast<forms::Object*>(index.internalPointer());
  }

  Shape shape_;
  QPointer<FormSession> session_;
  std::vector<forms::Object*> list_;  // the rows of a list
};
