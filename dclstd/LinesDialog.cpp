#include "dclstd/LinesDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QVBoxLayout>

#include "dclstd/ModalDialog.h"
#include "designintf/IdeTheme.h"
#include "rtl/Strings.h"

bool EditLines(TStrings& lines) {
  ModalDialog dialog(QObject::tr("String List Editor"), nullptr);
  auto* text = new QPlainTextEdit(lines.Text());
  text->setTabChangesFocus(true);
  auto* count = new QLabel;
  const auto showCount = [=] {
    count->setText(
        QObject::tr("%n line(s)", nullptr, text->toPlainText().isEmpty() ? 0 : text->blockCount()));
  };
  QObject::connect(text, &QPlainTextEdit::textChanged, &dialog, showCount);
  showCount();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* box = new QVBoxLayout(&dialog);
  box->addWidget(count);
  box->addWidget(text);
  box->addWidget(buttons);
  dialog.resize(480, 360);
  ApplyIDETheme(dialog);
  text->document()->setModified(false);
  if (dialog.ShowModal() != mrOk || !text->document()->isModified()) return false;
  // Exactly the lines on the screen, an empty last one included. The plain text would have blanks in place of
  // those that do not break.
  const QString all = text->document()->toRawText();
  lines.SetLines(all.isEmpty() ? QStringList() : all.split(QChar::ParagraphSeparator));
  return true;
}
