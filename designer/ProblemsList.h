// What is odd about the open form.
#pragma once
#include <QListWidget>

#include "forms/FormReader.h"

class ProblemsList : public QListWidget {
  Q_OBJECT
 public:
  explicit ProblemsList(QWidget* parent = nullptr);
  // Notes are left out.
  void Show(const std::vector<forms::Finding>& findings);
};
