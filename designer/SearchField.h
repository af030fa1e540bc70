// A field to search or filter by, with a button and Escape to empty it.
#pragma once
#include <QLineEdit>

class SearchField : public QLineEdit {
  Q_OBJECT
 public:
  SearchField(const QString& placeholder, const QString& accessibleName, QWidget* parent = nullptr);

 protected:
  // Escape empties the field; only an empty one leaves the key to others, and undo and redo with it.
  bool event(QEvent* event) override;
};
