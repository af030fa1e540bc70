#include "dclstd/LinesDialog.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTextDocument>

#include "dclstd/EditValue.h"
#include "rtl/Strings.h"
#include "vcl/Prompts.h"
#include "vcl/UserFile.h"

namespace {
const QString& Filter() {
  static const QString filter = QObject::tr("Text files (*.txt);;All files (*)");
  return filter;
}
}  // namespace

LinesDialog::LinesDialog(QWidget* owner) : RowDialog(tr("String List Editor"), owner) {
  find = new QLineEdit(this);
  find->setObjectName(QStringLiteral("find"));
  find->setPlaceholderText(tr("Find"));
  find->setAccessibleName(tr("Find"));
  find->setClearButtonEnabled(true);
  text = new QPlainTextEdit(this);
  text->setObjectName(QStringLiteral("text"));
  text->setAccessibleName(tr("Lines"));
  text->setTabChangesFocus(true);
  text->setLineWrapMode(QPlainTextEdit::NoWrap);
  count = new QLabel(this);
  count->setObjectName(QStringLiteral("count"));
  monospaced = new QCheckBox(tr("&Monospaced"), this);
  monospaced->setObjectName(QStringLiteral("monospaced"));

  auto* top = new QHBoxLayout;
  auto* middle = new QHBoxLayout;
  auto* bottom = new QHBoxLayout;
  top->addWidget(find, 1);
  Follows(find);
  Button(next, "next", "Find &Next", &LinesDialog::nextClick, "The next place of the text (Return, F3)");
  top->addWidget(next);
  Follows(text);
  middle->addWidget(count, 1);
  middle->addWidget(monospaced);
  Follows(monospaced);
  Button(load, "load", "&Load...", &LinesDialog::loadClick, "Takes the lines of a file in place of these");
  Button(save, "save", "&Save...", &LinesDialog::saveClick, "Writes the lines to a file");
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  ok->setToolTip(tr("Ctrl+Return"));
  for (QPushButton* button : {load, save}) bottom->addWidget(button);
  bottom->addStretch(1);
  for (QPushButton* button : {ok, cancel}) bottom->addWidget(button);
  auto* box = new QVBoxLayout(this);
  box->addLayout(top);
  box->addWidget(text, 1);
  box->addLayout(middle);
  box->addLayout(bottom);

  connect(text, &QPlainTextEdit::blockCountChanged, this, &LinesDialog::ShowCount);
  connect(text, &QPlainTextEdit::textChanged, this, &LinesDialog::ShowCount);
  connect(monospaced, &QCheckBox::toggled, this, &LinesDialog::UseFont);
  SetTabSequence();
  FormCreate();
  ShowCount();
  text->setFocus();
  setSizeGripEnabled(true);
  resize(QSize(480, 380).expandedTo(minimumSizeHint()));
}

void LinesDialog::SetLines(const TStrings& lines) {
  text->setPlainText(lines.Text());
  text->document()->setModified(false);
  ShowCount();
}

bool LinesDialog::Changed() const { return text->document()->isModified(); }

// The plain text would have blanks in place of those that do not break.
QStringList LinesDialog::Lines() const {
  const QString all = text->document()->toRawText();
  return all.isEmpty() ? QStringList() : all.split(QChar::ParagraphSeparator);
}

void LinesDialog::ShowCount() {
  const int lines = text->document()->isEmpty() ? 0 : text->blockCount();
  count->setText(lines == 1 ? tr("1 line") : tr("%1 lines").arg(lines));
}

void LinesDialog::UseFont() {
  text->setFont(monospaced->isChecked() ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : font());
}

// From the cursor on, and then from the start.
void LinesDialog::nextClick() {
  if (find->text().isEmpty()) return;
  const QTextCursor before = text->textCursor();
  if (text->find(find->text())) return ShowCount();
  text->moveCursor(QTextCursor::Start);
  if (text->find(find->text())) return ShowCount();
  text->setTextCursor(before);
  count->setText(tr("Not found: %1").arg(find->text()));
}

void LinesDialog::loadClick() {
  const QString file = Prompts().OpenFileName(this, tr("Load lines"), {}, Filter());
  if (file.isEmpty()) return;
  QString loaded = ReadUserText(file);
  if (loaded.endsWith(u'\n')) loaded.chop(1);
  // As if it were typed, so that it can be undone.
  text->selectAll();
  text->insertPlainText(loaded);
  text->moveCursor(QTextCursor::Start);
}

void LinesDialog::saveClick() {
  const QString file = Prompts().SaveFileName(this, tr("Save lines"), QStringLiteral("lines.txt"), Filter());
  if (file.isEmpty()) return;
  const QStringList lines = Lines();
  WriteUserFile(file, lines.isEmpty() ? QByteArray() : (lines.join(u'\n') + u'\n').toUtf8());
}

bool LinesDialog::ReturnConfirms() const { return focusWidget() != find; }

void LinesDialog::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && event->modifiers() == Qt::ControlModifier) return accept();
  if (event->key() == Qt::Key_F3 || (enter && focusWidget() == find)) return nextClick();
  if (event->matches(QKeySequence::Find)) {
    find->setFocus();
    return find->selectAll();
  }
  RowDialog::keyPressEvent(event);
}

bool EditLines(TStrings& lines) {
  LinesDialog dialog(ApplicationOwner());
  dialog.SetLines(lines);
  if (dialog.ShowModal() != mrOk || !dialog.Changed()) return false;
  lines.SetLines(dialog.Lines());
  return true;
}
