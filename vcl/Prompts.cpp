#include "vcl/Prompts.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

namespace {
QStringList EndingsOf(const QString& filter) {
  static const QRegularExpression pattern(QStringLiteral("\\*\\.(\\w+)"));
  QStringList endings;
  for (auto found = pattern.globalMatch(filter); found.hasNext();) endings << found.next().captured(1);
  return endings;
}
// That of the name that a dialog starts with, as the filter spells it; empty when the filter has none of
// that.
QString OwnEnding(const QString& name, const QString& filter) {
  const QString own = QFileInfo(name).suffix();
  for (const QString& ending : EndingsOf(filter))
    if (ending.compare(own, Qt::CaseInsensitive) == 0) return ending;
  return {};
}
// The dialog itself adds the ending to a name that is typed without one: only so it asks before the file of
// that name is replaced.
QString AskForFile(QFileDialog& dialog, const QString& ending) {
  dialog.setDefaultSuffix(ending);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

// Texts hold names out of strangers' files, which must not become markup.
QMessageBox::StandardButton Show(QMessageBox::Icon icon, QWidget* parent, const QString& title,
                                 const QString& text, QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                 QMessageBox::StandardButton preset = QMessageBox::NoButton) {
  QMessageBox box(icon, title, text, buttons, parent);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(preset);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

class WidgetPrompts : public IPrompts {
 public:
  void Inform(QWidget* parent, const QString& title, const QString& text) override {
    Show(QMessageBox::Information, parent, title, text);
  }
  void Warn(QWidget* parent, const QString& title, const QString& text) override {
    Show(QMessageBox::Warning, parent, title, text);
  }
  TAnswer AskToSave(QWidget* parent, const QString& text) override {
    const auto button =
        Show(QMessageBox::Question, parent, QObject::tr("Save changes"), text,
             QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return button == QMessageBox::Save      ? TAnswer::Yes
           : button == QMessageBox::Discard ? TAnswer::No
                                            : TAnswer::Cancel;
  }
  TFileAnswer AskFileChanged(QWidget* parent, const QString& title, const QString& text) override {
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Cancel, parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        QObject::tr("Reload takes the file on disk and gives up the changes made here. Overwrite does the "
                    "reverse. Show both lets you compare them first."));
    const std::pair<QAbstractButton*, TFileAnswer> choices[] = {
        {box.addButton(QObject::tr("&Reload"), QMessageBox::ActionRole), TFileAnswer::Reload},
        {box.addButton(QObject::tr("&Overwrite"), QMessageBox::ActionRole), TFileAnswer::Overwrite},
        {box.addButton(QObject::tr("&Show both..."), QMessageBox::ActionRole), TFileAnswer::ShowBoth}};
    box.setDefaultButton(qobject_cast<QPushButton*>(choices[2].first));
    box.exec();
    for (const auto& [button, answer] : choices)
      if (box.clickedButton() == button) return answer;
    return TFileAnswer::Cancel;
  }
  bool Confirm(QWidget* parent, const QString& title, const QString& text) override {
    return Show(QMessageBox::Question, parent, title, text, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
  }
  bool ConfirmWarning(QWidget* parent, const QString& title, const QString& text) override {
    return Show(QMessageBox::Warning, parent, title, text, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
  }
  QString OpenFileName(QWidget* parent, const QString& title, const QString& folder,
                       const QString& filter) override {
    QFileDialog dialog(parent, title, InPromptFolder(folder), filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return AskForFile(dialog, OwnEnding(folder, filter));
  }
  QStringList OpenFileNames(QWidget* parent, const QString& title, const QString& folder,
                            const QString& filter) override {
    return QFileDialog::getOpenFileNames(parent, title, InPromptFolder(folder), filter);
  }
  QString SaveFileName(QWidget* parent, const QString& title, const QString& file,
                       const QString& filter) override {
    QFileDialog dialog(parent, title, InPromptFolder(file), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    const QString own = OwnEnding(file, filter);
    return AskForFile(dialog, own.isEmpty() ? EndingsOf(filter).value(0) : own);
  }
};
QString& Folder() {
  static QString folder;
  return folder;
}
IPrompts*& Current() {
  static IPrompts* current = nullptr;
  return current;
}
}  // namespace

void SetPromptFolder(const QString& folder) { Folder() = folder; }
QString InPromptFolder(const QString& name) {
  if (Folder().isEmpty()) return name;
  return name.isEmpty() ? Folder() : QDir(Folder()).filePath(name);
}

IPrompts& Prompts() {
  static WidgetPrompts widgets;
  return Current() ? *Current() : widgets;
}

void SetPrompts(IPrompts* prompts) { Current() = prompts; }
