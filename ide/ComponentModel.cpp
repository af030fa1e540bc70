#include "ide/ComponentModel.h"

#include <QGuiApplication>
#include <QPalette>

#include "designintf/ComponentIcons.h"
#include "rtl/HiddenIcon.h"

ComponentModel::ComponentModel(Shape shape, QObject* parent) : QAbstractItemModel(parent), shape_(shape) {}

void ComponentModel::SetSession(FormSession* session) {
  if (session_) disconnect(session_, nullptr, this, nullptr);
  beginResetModel();
  session_ = session;
  List();
  endResetModel();
  if (!session_) return;
  connect(session_, &FormSession::Changed, this, &ComponentModel::Take);
  connect(session_, &QObject::destroyed, this, [this] { SetSession(nullptr); });
}

void ComponentModel::Take(const FormChange& change) {
  const bool names = !change.renamed.empty();
  if (change.structure || (names && shape_ == Shape::List)) {
    beginResetModel();
    List();
    endResetModel();
    return;
  }
  const auto tell = [this](const TComponent* c) {
    if (const QModelIndex i = IndexOf(*c); i.isValid()) emit dataChanged(i, i);
  };
  for (const TComponent* c : change.renamed) tell(c);
  // Icons are hidden and come back.
  for (const TComponent* c : change.values)
    if (!As<TControl>(c)) tell(c);
}

void ComponentModel::List() {
  list_.clear();
  if (!session_ || shape_ == Shape::Tree) return;
  for (const TComponent* c : session_->AllComponents())
    if (!c->Name().isEmpty()) list_.push_back(session_->ObjectOf(*c));
}

TComponent* ComponentModel::ComponentAt(const QModelIndex& index) const {
  return session_ && index.isValid() ? session_->ComponentOf(*ObjectAt(index)) : nullptr;
}

QModelIndex ComponentModel::IndexOf(const TComponent& component) const {
  forms::Object* object = session_ ? session_->ObjectOf(component) : nullptr;
  if (!object) return {};
  if (shape_ == Shape::Tree) return createIndex(object->parent ? object->IndexInParent() : 0, 0, object);
  const auto at = std::find(list_.begin(), list_.end(), object);
  return at == list_.end() ? QModelIndex() : createIndex(static_cast<int>(at - list_.begin()), 0, object);
}

QModelIndex ComponentModel::index(int row, int column, const QModelIndex& parent) const {
  if (column != 0 || row < 0 || row >= rowCount(parent)) return {};
  const auto at = static_cast<std::size_t>(row);
  if (shape_ == Shape::List) return createIndex(row, 0, list_[at]);
  return createIndex(row, 0,
                     parent.isValid() ? ObjectAt(parent)->children[at].get()
                                      : const_cast<forms::Object*>(&session_->Document().Root()));
}

QModelIndex ComponentModel::parent(const QModelIndex& child) const {
  forms::Object* object = child.isValid() && shape_ == Shape::Tree ? ObjectAt(child)->parent : nullptr;
  return object ? createIndex(object->parent ? object->IndexInParent() : 0, 0, object) : QModelIndex();
}

int ComponentModel::rowCount(const QModelIndex& parent) const {
  if (!session_) return 0;
  if (shape_ == Shape::List) return parent.isValid() ? 0 : static_cast<int>(list_.size());
  return parent.isValid() ? static_cast<int>(ObjectAt(parent)->children.size()) : 1;
}

QVariant ComponentModel::data(const QModelIndex& index, int role) const {
  const TComponent* c = ComponentAt(index);
  if (!c) return {};
  if (role == Qt::DecorationRole) return ComponentIcon(c->ClassType());
  if (const forms::Object* o = ObjectAt(index); o->parent && o->kind == forms::ObjectKind::Inherited) {
    if (role == Qt::ForegroundRole) return QGuiApplication::palette().brush(QPalette::PlaceholderText);
    if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole) return tr("inherited");
  }
  if (HasHiddenIcon(*c)) {
    if (role == Qt::ForegroundRole) return QGuiApplication::palette().brush(QPalette::PlaceholderText);
    if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole) return tr("hidden on the form");
  }
  if (role != Qt::DisplayRole) return {};
  const QString cls = QString::fromUtf8(c->StreamClassName());
  return c->Name().isEmpty() ? cls : QStringLiteral("%1: %2").arg(c->Name(), cls);
}
