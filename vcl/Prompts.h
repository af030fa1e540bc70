// Questions to the person at the screen, behind one interface that tests and batch tools answer themselves.
#pragma once
#include <QStringList>

class QWidget;

enum class TAnswer { Yes, No, Cancel };
enum class TFileAnswer { Reload, Overwrite, ShowBoth, Cancel };

class IPrompts {
 public:
  virtual ~IPrompts() = default;
  virtual void Inform(QWidget* parent, const QString& title, const QString& text) = 0;
  virtual void Warn(QWidget* parent, const QString& title, const QString& text) = 0;
  // Save, do not save, or stay. `text` names what would be lost.
  virtual TAnswer AskToSave(QWidget* parent, const QString& text) = 0;
  // Another program changed the file that is to be saved; `text` names it. Who has no answer writes nothing.
  virtual TFileAnswer AskFileChanged(QWidget*, const QString& /*title*/, const QString& /*text*/) {
    return TFileAnswer::Cancel;
  }
  virtual bool Confirm(QWidget* parent, const QString& title, const QString& text) = 0;
  // The same with the sign of a warning.
  virtual bool ConfirmWarning(QWidget* parent, const QString& title, const QString& text) {
    return Confirm(parent, title, text);
  }
  // Empty when cancelled.
  virtual QString OpenFileName(QWidget* parent, const QString& title, const QString& folder,
                               const QString& filter) = 0;
  virtual QStringList OpenFileNames(QWidget* parent, const QString& title, const QString& folder,
                                    const QString& filter) {
    const QString name = OpenFileName(parent, title, folder, filter);
    return name.isEmpty() ? QStringList() : QStringList{name};
  }
  virtual QString SaveFileName(QWidget* parent, const QString& title, const QString& file,
                               const QString& filter) = 0;
};

// Where file dialogs start that are given no folder: beside the file that is worked on.
void SetPromptFolder(const QString& folder);
// A name without a folder is in that one; none is the folder itself.
QString InPromptFolder(const QString& name);

// The current one; message boxes and the platform's file dialogs unless replaced.
IPrompts& Prompts();
// Null restores the default. The caller keeps ownership.
void SetPrompts(IPrompts* prompts);
