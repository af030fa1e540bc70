// What the status bar says all the time: the selection, its place, the grid, the zoom, whether there are
// changes.
#pragma once
#include <QObject>

#include "ide/FormSession.h"

class QLabel;
class QStatusBar;

class StatusLine : public QObject {
  Q_OBJECT
 public:
  StatusLine(QStatusBar& bar, int grid);
  // Null: no form is open.
  void Show(const FormSession* session, double zoom);

 private:
  QLabel* selection_;
  QLabel* bounds_;
  QLabel* modified_;
  QLabel* zoom_;
};
