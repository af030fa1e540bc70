#include "package/styles/StylesView.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

#include "package/styles/StyleEditors.h"

QWidget* StyleDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                     const QModelIndex& index) const {
  const TVRXStyleNode& node = *model_.NodeAt(index);
  QWidget* editor = nullptr;
  if (node.IsProperty()) {
    editor = VRXNewValueEditor(tree_.EditorOf(node), tree_.TypeOf(node), tree_.Value(node), parent);
    if (editor)
      VRXWhenChosen(*editor, [this, editor] { emit const_cast<StyleDelegate*>(this)->commitData(editor); });
  } else {
    auto* name = new QLineEdit(parent);
    name->setFrame(false);
    name->setText(node.Name);
    editor = name;
  }
  if (editor) editor->setObjectName(QStringLiteral("EditorControl"));
  return editor_ = editor;
}

// It was filled when it was made; the model does not take away what is being typed.
void StyleDelegate::setEditorData(QWidget*, const QModelIndex&) const {}

void StyleDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
  TVRXStyleNode& node = *model_.NodeAt(index);
  if (node.IsProperty()) {
    if (const auto value = VRXEditedValue(*editor)) Valued(node, *value);
  } else if (const auto* name = qobject_cast<QLineEdit*>(editor); name && name->text() != node.Name) {
    Named(node, name->text());
  }
}

void StyleDelegate::Finish() {
  QWidget* const editor = editor_;
  if (!editor) return;
  emit commitData(editor);
  emit closeEditor(editor);
}

// Room for the editors.
QSize StyleDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  constexpr int air = 6;
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  size.setHeight(std::max(size.height(), option.fontMetrics.height() + air));
  return size;
}

bool StyleDelegate::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    static constexpr int passing[] = {Qt::Key_Tab,     Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Shift,
                                      Qt::Key_Control, Qt::Key_Alt,     Qt::Key_Meta};
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (std::find(std::begin(passing), std::end(passing), key) == std::end(passing))
      VRXTouch(*static_cast<QWidget*>(watched));
  }
  // An editor that opens a dialog of its own loses the focus and goes on afterwards.
  if (event->type() == QEvent::FocusOut) {
    const QWidget* modal = QApplication::activeModalWidget();
    const auto* editor = qobject_cast<QWidget*>(watched);
    if (modal && editor && modal != editor->window()) return false;
  }
  return QStyledItemDelegate::eventFilter(watched, event);
}

StylesView::StylesView(StyleModel* model, TVRXStyleTree& tree, QWidget* parent)
    : QTreeView(parent), model_(*model), tree_(tree), delegate_(new StyleDelegate(*model, tree, this)) {
  setModel(model);
  setItemDelegate(delegate_);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionBehavior(SelectRows);
  setEditTriggers(EditKeyPressed | DoubleClicked | SelectedClicked);
  header()->setStretchLastSection(true);
  header()->resizeSection(0, 240);
  header()->setSectionsMovable(false);
  expand(model->index(0, 0));
}

TVRXStyleNode* StylesView::Selected() const {
  return selectionModel()->hasSelection() ? model_.NodeAt(currentIndex()) : nullptr;
}
void StylesView::Select(const TVRXStyleNode* node) {
  if (!node) return;
  setCurrentIndex(model_.IndexOf(node));
  scrollTo(currentIndex());
}

// A property is edited in the column of the values, a style in that of the names.
bool StylesView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  const TVRXStyleNode* node = model_.NodeAt(index);
  if (!node || trigger == NoEditTriggers || (trigger != AllEditTriggers && !(editTriggers() & trigger)))
    return QTreeView::edit(index, trigger, event);
  // A click on a value edits it at once, not after a while.
  if (node->IsProperty() && trigger == SelectedClicked) return false;
  if (node->IsProperty() && tree_.EditorOf(*node) == TVRXStyleEditor::PictureChooser) {
    emit ChoosePicture(index.siblingAtColumn(0));
    return true;
  }
  // A double click opens a style.
  if (!node->IsProperty() && (trigger == DoubleClicked || index.column() == 1) && trigger != EditKeyPressed)
    return false;
  return QTreeView::edit(index.siblingAtColumn(node->IsProperty() ? 1 : 0), trigger, event);
}

void StylesView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  // A message about what was typed took the focus; the keys go on here.
  const QWidget* focus = window()->focusWidget();
  const bool hadFocus = focus == editor || editor->isAncestorOf(focus);
  delegate_->Closed(editor);
  QTreeView::closeEditor(editor, hint);
  if (hadFocus) setFocus();
}

QStringList StylesView::Open() const {
  QStringList paths;
  const std::function<void(const QModelIndex&)> walk = [&](const QModelIndex& at) {
    if (!isExpanded(at)) return;
    paths << model_.NodeAt(at)->StylePath();
    for (int i = 0; i < model_.rowCount(at); ++i)
      if (const QModelIndex child = model_.index(i, 0, at); model_.rowCount(child) > 0) walk(child);
  };
  walk(model_.index(0, 0));
  return paths;
}
void StylesView::Reopen(const QStringList& paths) {
  expand(model_.index(0, 0));
  for (const QString& path : paths)
    if (const TVRXStyleNode* node = tree_.Find(path)) expand(model_.IndexOf(node));
}
