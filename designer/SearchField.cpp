#include "designer/SearchField.h"

#include <QToolButton>

SearchField::SearchField(const QString& placeholder, const QString& accessibleName, QWidget* parent)
    : QLineEdit(parent) {
  setPlaceholderText(placeholder);
  setAccessibleName(accessibleName);
  setClearButtonEnabled(true);
  for (QToolButton* button : findChildren<QToolButton*>()) button->setAccessibleName(tr("Clear"));
}
