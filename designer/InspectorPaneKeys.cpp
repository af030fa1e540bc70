// The inspector under keyboard and mouse.
#include <QtWidgets>

#include "designer/InspectorPane.h"
#include "designer/RowDelegate.h"
#include "designer/ValueEditor.h"
#include "rtl/Clock.h"

// To the next row that has a value, or the one before; at the end the value is applied and stays.
void InspectorPane::Walk(int rows) {
  QModelIndex at = CurrentRow();
  do {
    at = (rows < 0 ? view_->indexAbove(at) : view_->indexBelow(at)).siblingAtColumn(0);
  } while (at.isValid() && !model_.EditorAt(at));
  if (at.isValid())
    view_->setCurrentIndex(at);
  else
    Commit();
  FocusValue();
}

void InspectorPane::OpenRow(bool open) {
  const QModelIndex row = CurrentRow();
  if (!open && !view_->isExpanded(row) && model_.EditorAt(row.parent())) {
    view_->setCurrentIndex(row.parent());
    return FocusValue();
  }
  view_->setExpanded(row, open && model_.hasChildren(row));
}

// The current row does not vanish in a closed one.
void InspectorPane::Closed(const QModelIndex& row) {
  if (filling_) return;
  const QString path = row.data(InspectorModel::PathRole).toString();
  if (row.data(InspectorModel::IsCategoryRole).toBool()) closedCategories_.insert(path);
  if (filter_->text().isEmpty()) expanded_.remove(path);
  for (QModelIndex p = CurrentRow().parent(); p.isValid(); p = p.parent())
    if (p == row) {
      const bool typing = editor_->Field()->hasFocus();
      view_->setCurrentIndex(row);
      if (CurrentRow() != row) view_->setExpanded(row, true);
      if (typing) FocusValue();
      return;
    }
  PlaceEditor();
}

void InspectorPane::GoToFirstHit() {
  std::function<QModelIndex(const QModelIndex&)> first = [&](const QModelIndex& parent) -> QModelIndex {
    for (int row = 0; row < model_.rowCount(parent); ++row) {
      const QModelIndex i = model_.index(row, 0, parent);
      if (filter_->text().isEmpty() || i.data(InspectorModel::FitsRole).toBool()) return i;
      if (!i.data(InspectorModel::IsAboveRole).toBool()) continue;
      if (const QModelIndex below = first(i); below.isValid()) return below;
    }
    return {};
  };
  if (const QModelIndex hit = first({}); hit.isValid()) {
    view_->setCurrentIndex(hit);
    FocusValue();
  }
}

// Typing in the name column goes to the property that starts so.
void InspectorPane::JumpTo(const QString& typed) {
  for (int row = 0; row < model_.rowCount(); ++row) {
    const QModelIndex i = model_.index(row, 0);
    if (i.data().toString().startsWith(typed, Qt::CaseInsensitive)) {
      view_->setCurrentIndex(i);
      view_->scrollTo(CurrentRow());
      return;
    }
  }
}

bool InspectorPane::FilterKey(int key) {
  if (key == Qt::Key_Escape && !filter_->text().isEmpty())
    filter_->clear();
  else if (key == Qt::Key_Escape)
    view_->setFocus();
  else if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter)
    GoToFirstHit();
  else
    return false;
  return true;
}

bool InspectorPane::ListKey(const QKeyEvent& event) {
  const int key = event.key();
  const QString text = event.text();
  if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2) {
    FocusValue();
    // With Ctrl it is for the dialog, wherever the focus was.
    if (event.modifiers() & Qt::ControlModifier && editor_->EllipsisButton()->isVisible()) OpenDialog();
    return true;
  }
  if (text.isEmpty() || !text[0].isLetter()) return false;
  // A pause starts a new name.
  const std::int64_t now = ClockMilliseconds();
  if (now - lastTyped_ > 1000) typed_.clear();
  lastTyped_ = now;
  JumpTo(typed_ += text);
  return true;
}

// One click on a value edits it, one on its box toggles it.
void InspectorPane::CellClicked(const QPoint& pos) {
  const QModelIndex cell = view_->indexAt(pos);
  if (cell.column() != 1) return;
  // A row whose value is refused was not left.
  if (cell.siblingAtColumn(0) == CurrentRow() && cell.data(InspectorModel::IsBooleanRole).toBool() &&
      RowDelegate::BoxRect(view_->visualRect(cell)).adjusted(-3, -3, 3, 3).contains(pos))
    Apply(model_.ValueText(CurrentRow()) == QStringLiteral("True") ? QStringLiteral("False")
                                                                   : QStringLiteral("True"));
  FocusValue();
}

bool InspectorPane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (watched == filter_ && FilterKey(key->key())) return true;
    if (watched == view_ && ListKey(*key)) return true;
  }
  if (watched != view_->viewport()) return QWidget::eventFilter(watched, event);
  if (event->type() == QEvent::Resize) PlaceEditor();
  if (event->type() == QEvent::MouseButtonRelease)
    if (const auto* mouse = static_cast<QMouseEvent*>(event); mouse->button() == Qt::LeftButton)
      CellClicked(mouse->pos());
  if (event->type() == QEvent::MouseButtonDblClick) {
    const QModelIndex row = view_->indexAt(static_cast<QMouseEvent*>(event)->pos()).siblingAtColumn(0);
    if (model_.hasChildren(row)) view_->setExpanded(row, !view_->isExpanded(row));
    return true;
  }
  return QWidget::eventFilter(watched, event);
}
