#include "designer/SearchField.h"

#include <QKeyEvent>
#include <QToolButton>

#include "designintf/ComponentIcons.h"

SearchField::SearchField(const QString& placeholder, const QString& accessibleName, QWidget* parent)
    : QLineEdit(parent) {
  setPlaceholderText(placeholder);
  setAccessibleName(accessibleName);
  setClearButtonEnabled(true);
  for (QToolButton* button : findChildren<QToolButton*>()) {
    button->setAccessibleName(tr("Clear"));
    // The style's own is of the theme that the field was made in.
    button->defaultAction()->setIcon(DrawnIcon("pen line 2 path 6 6 18 18 path 18 6 6 18"));
  }
}

bool SearchField::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && text().isEmpty())
    if (const auto* key = static_cast<QKeyEvent*>(event); key->matches(QKeySequence::Undo) ||
                                                          key->matches(QKeySequence::Redo) ||
                                                          key->keyCombination() == (Qt::CTRL | Qt::Key_Y)) {
      event->ignore();
      return true;
    }
  const bool pressed = event->type() == QEvent::KeyPress;
  if ((pressed || event->type() == QEvent::ShortcutOverride) && !text().isEmpty() &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    if (pressed) clear();
    event->accept();
    return true;
  }
  return QLineEdit::event(event);
}
