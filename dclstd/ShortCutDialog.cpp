#include "dclstd/ShortCutDialog.h"

#include <QGridLayout>
#include <QKeyEvent>

#include "dclstd/EditValue.h"

KeyField::KeyField(QWidget* parent) : QLineEdit(parent) {
  setReadOnly(true);
  setAttribute(Qt::WA_InputMethodEnabled, false);
  setContextMenuPolicy(Qt::NoContextMenu);
}

void KeyField::SetKeys(TShortCut keys) {
  keys_ = keys;
  setText(ShortCutToText(keys));
}

bool KeyField::Take(const QKeyEvent& event) {
  const bool alone = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      if ((event.modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier) return false;
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
      if (alone) return false;
      break;
    case Qt::Key_Backspace:
      if (!alone) break;
      SetKeys({});
      emit Pressed();
      return true;
    default:
      break;
  }
  const TShortCut pressed = ShortCutOf(event.key(), event.modifiers());
  if (pressed == TShortCut{}) return true;  // a modifier on its way
  SetKeys(pressed);
  emit Pressed();
  return true;
}

bool KeyField::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();  // no menu takes the keys away
    return true;
  }
  if (event->type() == QEvent::KeyPress && Take(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  return QLineEdit::event(event);
}

ShortCutDialog::ShortCutDialog(QWidget* owner) : RowDialog(tr("Shortcut"), owner) {
  auto* grid = new QGridLayout;
  RowsInto(*grid);
  Row(keys, "keys", "", "&Press the keys:", "What is pressed here is taken; Backspace takes none");
  Row(usual, "usual", "", "&Usual ones:").Items(ShortCutTexts()).Changes(&ShortCutDialog::usualChange);
  Button(clear, "clear", "&None", &ShortCutDialog::clearClick, "No shortcut");
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  connect(keys, &KeyField::Pressed, this, &ShortCutDialog::SetLabels);
  auto* box = new QVBoxLayout(this);
  box->addLayout(grid);
  box->addStretch(1);
  box->addLayout(ButtonLine({ok, cancel}, {clear}));
  SetTabSequence();
  FormCreate();
  setFixedSize(QSize(340, 130).expandedTo(minimumSizeHint()));
  SetLabels();
}

void ShortCutDialog::SetShortCut(TShortCut shortCut) {
  keys->SetKeys(shortCut);
  SetLabels();
}

void ShortCutDialog::LoadControls() {
  RowDialog::LoadControls();
  usual->setCurrentIndex(keys->text().isEmpty() ? -1 : usual->findText(keys->text()));
  clear->setEnabled(keys->Keys() != TShortCut{});
}

void ShortCutDialog::clearClick() { SetShortCut({}); }
void ShortCutDialog::usualChange() { SetShortCut(TextToShortCut(usual->currentText())); }

bool EditShortCut(TShortCut& shortCut) {
  ShortCutDialog dialog(ApplicationOwner());
  dialog.SetShortCut(shortCut);
  if (dialog.ShowModal() != mrOk) return false;
  shortCut = dialog.ShortCut();
  return true;
}
