// Questions to the person, answered by a test.
#pragma once
#include <QStringList>

#include "vcl/Prompts.h"

// Answers file dialogs with a name that the test gives, and keeps what is told.
class ScriptedPrompts : public IPrompts {
 public:
  ScriptedPrompts() { SetPrompts(this); }
  ~ScriptedPrompts() override { SetPrompts(nullptr); }
  void Inform(QWidget*, const QString&, const QString& text) override { informed << text; }
  void Warn(QWidget*, const QString&, const QString& text) override { warned << text; }
  TAnswer AskToSave(QWidget*, const QString&) override { return TAnswer::Cancel; }
  bool Confirm(QWidget*, const QString&, const QString&) override { return false; }
  QString OpenFileName(QWidget*, const QString&, const QString&, const QString&) override { return file; }
  QString SaveFileName(QWidget*, const QString&, const QString&, const QString&) override { return {}; }
  QStringList informed, warned;
  QString file;  // empty: the file dialog is cancelled
};
