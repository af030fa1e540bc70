#include "dclstd/FontNameCombo.h"

#include <QCompleter>
#include <QLineEdit>
#include <QSignalBlocker>

// A name that begins like that of an installed font is a name of its own. Only what a person does is listened
// to: a combo of fonts changes its text also when fonts are installed.
FontNameCombo::FontNameCombo(QWidget* parent) : QFontComboBox(parent) {
  completer()->setCompletionMode(QCompleter::PopupCompletion);
  connect(lineEdit(), &QLineEdit::textEdited, this, &FontNameCombo::Choose);
  // Leaving the field, the combo takes a family that differs from the text only in case; that is no choice.
  connect(this, &QComboBox::textActivated, this, [this](const QString& text) {
    if (text.compare(name_, Qt::CaseInsensitive) != 0) return Choose(text);
    const QSignalBlocker quiet(this);
    setEditText(name_);
  });
  connect(lineEdit(), &QLineEdit::editingFinished, this, &FontNameCombo::Left);
}

void FontNameCombo::ShowName(const QString& name) {
  name_ = name;
  if (currentText() != name) setEditText(name);
}

void FontNameCombo::SetSample(const QString& text) {
  for (const auto system : QFontDatabase::writingSystems()) setSampleTextForSystem(system, text);
}

void FontNameCombo::Choose(const QString& name) {
  if (name.trimmed().isEmpty()) return;
  name_ = name;
  emit Chosen(name);
}
