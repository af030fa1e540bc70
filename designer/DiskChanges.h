// Saving the open form without losing what another program wrote into its file meanwhile.
#pragma once
#include <QObject>

#include "ide/FormSession.h"
#include "vcl/Prompts.h"

class MessageBar;

class DiskChanges : public QObject {
  Q_OBJECT
 public:
  DiskChanges(QWidget& window, MessageBar& bar);
  void SetSession(FormSession* session);

  // Writes the form into its file. When another program changed the file, the person decides: false when it
  // was not written. Errors: Exception.
  bool Save();
  // Looks at the file, and at those that the form inherits from, and tells quietly what became of them. Once
  // for every change.
  void Check();
  // As far as was looked: the file is not the one that was read or saved here.
  bool Differs() const { return told_.first != DiskState::Same; }

 signals:
  void DiffersChanged();
  void SaveWanted();
  // The changes made here are given up.
  void ReloadWanted();

 private:
  QString FileName() const;
  // Whether this is news.
  bool Note(DiskState state, const QByteArray& onDisk);
  void TellChanged(const QByteArray& onDisk);
  void TellGone();
  void CheckAncestors();
  void Settle();
  void ReloadOnDemand();
  TFileAnswer ShowBoth(const QByteArray& onDisk);

  QWidget& window_;
  MessageBar& bar_;
  FormSession* session_ = nullptr;
  // What the bar spoke of last, and what the file held then.
  std::pair<DiskState, QByteArray> told_{DiskState::Same, {}};
  QStringList toldAncestors_;
};
