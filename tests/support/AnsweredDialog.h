// Dialogs of the library's components, answered by a test.
#pragma once
#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QPushButton>
#include <stdexcept>

#include "library/components/BaseDialog.h"

template <class W>
W& In(const QWidget& dialog, const char* name) {
  auto* found = dialog.findChild<W*>(QLatin1StringView(name));
  if (!found) throw std::runtime_error(name);
  return *found;
}

// Shows it, does that to it, and gives the answer without asking the buttons.
inline bool Answered(TVRXBaseDialog& component, int result, const std::function<void(QDialog&)>& act = {}) {
  int shown = 0;
  const TVRXDialogAnswers answers([&](QDialog& dialog) {
    ++shown;
    if (act) act(dialog);
    return result;
  });
  const bool confirmed = component.Execute();
  EXPECT_EQ(shown, 1);
  return confirmed;
}

// Shows it on the screen, does that to it, and presses OK or Cancel as a person does. Where OK is refused,
// Cancel follows.
inline int Press(QDialog& dialog, QDialogButtonBox::StandardButton button) {
  // Some dialogs begin again whenever they are shown.
  if (!dialog.isVisible()) dialog.show();
  auto* buttons = dialog.findChild<QDialogButtonBox*>();
  buttons->button(button)->click();
  if (dialog.isVisible()) buttons->button(QDialogButtonBox::Cancel)->click();
  return dialog.result();
}
