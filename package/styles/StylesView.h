// The view of the style tree: names and values are edited where they stand.
#pragma once
#include <QPointer>
#include <QStyledItemDelegate>
#include <QTreeView>

#include "package/styles/StyleModel.h"

class StyleDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  StyleDelegate(StyleModel& model, TVRXStyleTree& tree, QObject* parent)
      : QStyledItemDelegate(parent), model_(model), tree_(tree) {}
  // What is done with what was typed or chosen.
  std::function<void(TVRXStyleNode& style, const QString& name)> Named;
  std::function<void(TVRXStyleNode& property, const TVRXStyleValue& value)> Valued;
  // The open editor; null when there is none.
  QWidget* Editor() const { return editor_; }
  // Saves what is in the open editor and closes it.
  void Finish();
  void Closed(const QWidget* editor) {
    if (editor_ == editor) editor_ = nullptr;
  }

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  StyleModel& model_;
  TVRXStyleTree& tree_;
  mutable QPointer<QWidget> editor_;
};

class StylesView : public QTreeView {
  Q_OBJECT
 public:
  StylesView(StyleModel* model, TVRXStyleTree& tree, QWidget* parent);
  StyleDelegate& Delegate() const { return *delegate_; }
  TVRXStyleNode* Selected() const;
  void Select(const TVRXStyleNode* node);
  void EditSelected() { edit(currentIndex(), EditKeyPressed, nullptr); }
  // What is open, by path, and the same again after everything was made anew.
  QStringList Open() const;
  void Reopen(const QStringList& paths);

 signals:
  void ChoosePicture(const QModelIndex& index);

 protected:
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

 private:
  StyleModel& model_;
  TVRXStyleTree& tree_;
  StyleDelegate* delegate_;
};
