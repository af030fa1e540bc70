// What the object inspector shows: the properties or events of the selected components, as a tree. Column 0
// is the name, column 1 the value. Every change goes through the session as one command.
#pragma once
#include <QAbstractItemModel>
#include <QPointer>

#include "designintf/PropertyEditor.h"
#include "ide/RefusedData.h"

struct InspectorNode;

class InspectorModel : public QAbstractItemModel {
  Q_OBJECT
 public:
  enum Roles {
    NotDefaultRole = Qt::UserRole,
    PathRole,
    IsBooleanRole,
    IsCategoryRole,
    DescriptionRole,
    ProblemRole,    // why the file's value of the row, or of one below, is refused
    CanRevertRole,  // the form itself says something that its ancestor does, too
    FitsRole,       // the filter finds the row itself
    IsAboveRole     // the filter finds a row below
  };

  explicit InspectorModel(QObject* parent = nullptr);
  ~InspectorModel() override;

  void SetSession(FormSession* session);
  void ShowEvents(bool events);
  void GroupByCategory(bool group);
  // Leaves the rows whose names hold the text, sub-properties too, and the rows above them; a text with a
  // dot is looked for in paths ("LED.Act"). A row that is found keeps all it opens into.
  void SetFilter(const QString& text);
  // Whose rows these are.
  const std::vector<TComponent*>& Components() const { return shown_; }

  // The editor of a row; null for a category.
  TPropertyEditor* EditorAt(const QModelIndex& index) const;
  QModelIndex IndexOfPath(const QString& path) const;
  // The value as text; empty when the selected components differ.
  QString ValueText(const QModelIndex& index) const;
  // As a row can show it.
  static QString Shortened(const QString& value);
  QStringList ValueList(const QModelIndex& index) const;
  // Applies a text. Empty on success, else why it was refused; nothing is changed then.
  QString SetValueText(const QModelIndex& index, const QString& text);
  // Runs the editor's dialog as one command. Empty on success, else the message of what it threw.
  QString RunDialog(const QModelIndex& index);
  QString Reset(const QModelIndex& index);
  QString RevertToInherited(const QModelIndex& index);

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return 2; }
  bool hasChildren(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  using Node = InspectorNode;
  Node* NodeAt(const QModelIndex& index) const;
  bool Belongs(const TPropertyEditor& editor) const;
  static std::vector<TPersistent*> ObjectsOf(const Node& node);
  void Load(Node& node) const;
  bool MaySearch(const Node& node) const;
  bool Filter(Node& node, bool everything) const;
  bool Fits(const Node& node) const;
  bool IsStale(const Node& node) const;
  QByteArrayList StoredNow() const;
  Node& AddGroup(const QString& category);
  bool IsOther() const;
  void Rebuild();
  void Refresh();
  void TellChanges(const QModelIndex& parent);
  bool TakeChange(Node& node) const;
  QString ProblemOf(const Node& node) const;
  bool CanRevert(const Node& node) const;
  bool StandsOut(const Node& node) const;
  void TakeProblems();
  QString Guarded(TPropertyEditor& editor, const char* member, const QString& text,
                  const std::function<void()>& action);

  QPointer<FormSession> session_;
  std::unique_ptr<Node> root_;
  std::vector<TComponent*> shown_;
  QByteArrayList stored_;              // what the file says of the first of them beyond its class
  TDesignerSelections inspected_;      // the same, or parts of them in their place
  std::vector<RefusedValue> refused_;  // of these
  bool events_ = false;
  bool byCategory_ = false;
  QString filter_;
  int running_ = 0;                             // editors at work
  std::vector<std::unique_ptr<Node>> retired_;  // rows that went while one of them was at work
};
