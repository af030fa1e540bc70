// A field to search or filter by, with a button that empties it.
#pragma once
#include <QLineEdit>

class SearchField : public QLineEdit {
  Q_OBJECT
 public:
  SearchField(const QString& placeholder, const QString& accessibleName, QWidget* parent = nullptr);
};
