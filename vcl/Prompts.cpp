#include "vcl/Prompts.h"

#include <QFileDialog>
#include <QMessageBox>

namespace {
class WidgetPrompts : public IPrompts {
 public:
  void Inform(QWidget* parent, const QString& title, const QString& text) override {
    QMessageBox::information(parent, title, text);
  }
  void Warn(QWidget* parent, const QString& title, const QString& text) override {
    QMessageBox::warning(parent, title, text);
  }
  TAnswer AskToSave(QWidget* parent, const QString& text) override {
    const auto button = QMessageBox::question(parent, QObject::tr("Save changes"), text,
                                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                                              QMessageBox::Save);
    return button == QMessageBox::Save      ? TAnswer::Yes
           : button == QMessageBox::Discard ? TAnswer::No
                                            : TAnswer::Cancel;
  }
  bool Confirm(QWidget* parent, const QString& title, const QString& text) override {
    return QMessageBox::question(parent, title, text) == QMessageBox::Yes;
  }
  QString OpenFileName(QWidget* parent, const QString& title, const QString& folder,
                       const QString& filter) override {
    return QFileDialog::getOpenFileName(parent, title, folder, filter);
  }
  QString SaveFileName(QWidget* parent, const QString& title, const QString& file,
                       const QString& filter) override {
    return QFileDialog::getSaveFileName(parent, title, file, filter);
  }
};
IPrompts*& Current() {
  static IPrompts* current = nullptr;
  return current;
}
}  // namespace

IPrompts& Prompts() {
  static WidgetPrompts widgets;
  return Current() ? *Current() : widgets;
}

void SetPrompts(IPrompts* prompts) { Current() = prompts; }
