// What is odd about the open form, as it is now: whatever an edit mends goes, lines follow.
#pragma once
#include <QListWidget>
#include <QPointer>
#include <QTimer>

#include "ide/FormSession.h"

class ProblemsList : public QListWidget {
  Q_OBJECT
 public:
  explicit ProblemsList(QWidget* parent = nullptr);
  void SetSession(FormSession* session);
  // Made anew from what the session has found. Notes are left out.
  void Show();

 signals:
  // `more`: than were told before.
  void Told(bool more);

 private:
  void FormChanged(const FormChange& change);

  QPointer<FormSession> session_;
  bool mayHave_ = false;  // a form without problems gets none by changes of its values
  QTimer settled_;
};
