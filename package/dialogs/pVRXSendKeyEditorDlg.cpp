#include "package/dialogs/pVRXSendKeyEditorDlg.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QStandardItemModel>
#include <QTabWidget>
#include <climits>

#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"
#include "package/dialogs/LinesTable.h"
#include "rtl/Registry.h"
#include "vcl/Prompts.h"

using D = TVRXSendKeyEditorDlg;

namespace {
TRegIniFile Settings() { return TRegIniFile(QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025")); }
const QString Section = QStringLiteral("TVRXSendKey"), LoadLast = QStringLiteral("LoadLast");
// What the platform's programs are named like, and on this one anything.
const QString ProgramFilter = QStringLiteral("EXE-Files (*.exe);;All files (*)");

QString KeysText(int keys) { return keys == 1 ? QObject::tr("1 key") : QObject::tr("%1 keys").arg(keys); }
QLabel* LabelOf(QWidget* widget, const char* text) {
  auto* label = new QLabel(QString::fromLatin1(text), widget->parentWidget());
  label->setBuddy(widget);
  return label;
}
}  // namespace

TVRXSendKeyEditorDlg::TVRXSendKeyEditorDlg(QWidget* owner)
    : RowDialog(QStringLiteral("Send Keys Test Editor"), owner), sk(std::make_unique<TVRXSendKeys>(nullptr)) {
  setObjectName(QStringLiteral("VRXSendKeyEditorDlg"));
  sk->Set(TVRXSendKeys::RaiseException, true);
  constexpr int patience = 20'000;  // programs may start slowly, and nobody has to wait
  sk->Set(TVRXSendKeys::Timeout, patience);
  auto* fields = new QGridLayout;
  RowsInto(*fields);
  m = Named(new QPlainTextEdit(this), "m", "The keys; a double click on a supported key inserts it here");
  m->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  m->setTabChangesFocus(true);
  Follows(m);
  Row(wnd, "wnd", "", "Send To...", "The caption of the window that the keys are for, or how it begins");
  wnd->setMaxLength(INT_MAX);
  Row(last, "last", "", "Load Last App", "Starts the program again whenever this dialog opens");
  pages = Named(new QTabWidget(this), "pages", "");
  Follows(pages);
  pages->addTab(BuildKeysPage(), QStringLiteral("Supported Keys"));
  pages->addTab(BuildWindowsPage(), QStringLiteral("Available Windows"));
  Button(Button1, "Button1", "Start App", &D::Button1Click, "Starts a program and takes its window");
  Button(Button3, "Button3", "Send", &D::Button3Click, "Goes to the window and sends the keys there");
  Button3->setDefault(true);
  CancelButton(Close, "Close", "Close");
  state = QuietLine(this, "state");
  state->setWordWrap(true);
  state->setMinimumHeight(2 * fontMetrics().lineSpacing());
  state->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  connect(m, &QPlainTextEdit::textChanged, this, &D::mChange);
  VRXSetThemeMode(*this, 1);
  auto* left = new QVBoxLayout;
  left->addWidget(LabelOf(m, "Macro"));
  left->addWidget(m, 1);
  left->addLayout(fields);
  auto* right = new QVBoxLayout;
  right->addWidget(LabelOf(pages, "KeyStrokes"));
  right->addWidget(pages, 1);
  auto* both = new QHBoxLayout;
  both->setSpacing(16);
  both->addLayout(left, 1);
  both->addLayout(right, 1);
  auto* content = new QVBoxLayout;
  content->addLayout(both, 1);
  content->addWidget(state);
  FinishBeside(content, {Button1}, {Button3, Close}, {720, 440});
}

// Nobody hears of what is under way any more.
TVRXSendKeyEditorDlg::~TVRXSendKeyEditorDlg() { sk.reset(); }

QWidget* TVRXSendKeyEditorDlg::BuildKeysPage() {
  auto* page = new QWidget(pages);
  page->setObjectName(QStringLiteral("keys"));
  auto* model = new QStandardItemModel(this);
  model->setHorizontalHeaderLabels({QStringLiteral("Key"), QStringLiteral("Description")});
  for (const TVRXSupportedKey& key : VRXSupportedKeys())
    model->appendRow({new QStandardItem(key.Key), new QStandardItem(key.Description)});
  lb2 = new LinesTable(model, "lb2", page);
  lb2->setToolTip(QStringLiteral("A double click inserts the key into the macro"));
  lb2->setAccessibleName(QStringLiteral("Supported Keys"));
  lb2->setColumnWidth(0, 130);
  Follows(lb2);
  connect(lb2, &QTableView::doubleClicked, this, &D::lb2DblClick);
  auto* box = new QVBoxLayout(page);
  box->addWidget(lb2);
  return page;
}

QWidget* TVRXSendKeyEditorDlg::BuildWindowsPage() {
  auto* page = new QWidget(pages);
  page->setObjectName(QStringLiteral("Windows"));
  lb = Named(new QListWidget(page), "lb", "A double click takes the window");
  lb->setAccessibleName(QStringLiteral("Available Windows"));
  Follows(lb);
  Button(Update, "Update", "Update List", &D::UpdateClick, "Lists the windows that are open now");
  connect(lb, &QListWidget::itemDoubleClicked, this, &D::lbDblClick);
  auto* box = new QVBoxLayout(page);
  box->addWidget(lb, 1);
  box->addWidget(Update, 0, Qt::AlignLeft);
  return page;
}

void TVRXSendKeyEditorDlg::Compose(const QString& macro, const QString& caption) {
  m->setPlainText(macro);
  m->moveCursor(QTextCursor::End);
  wnd->setText(caption);
}

void TVRXSendKeyEditorDlg::FormActivate() {
  const bool first = !activated;
  RowDialog::FormActivate();
  if (!first) return;
  last->setChecked(Settings().ReadBool(Section, LoadLast, false));
  if (last->isChecked()) StartProgram(Settings().ReadString(Section, QStringLiteral("Filename"), {}));
  UpdateClick();
}

// The name is read in another case: settings do not mind.
void TVRXSendKeyEditorDlg::FormClose() {
  RowDialog::FormClose();
  TRegIniFile settings = Settings();
  settings.WriteBool(Section, LoadLast, last->isChecked());
  settings.WriteString(Section, QStringLiteral("FileName"), last->isChecked() ? program_ : QString());
  settings.UpdateFile();
}

void TVRXSendKeyEditorDlg::lb2DblClick() {
  const int row = lb2->CurrentRow();
  if (row < 0) return;
  m->insertPlainText(lb2->model()->index(row, 0).data().toString());
  m->setFocus();
}

void TVRXSendKeyEditorDlg::lbDblClick() {
  if (!lb->currentItem() || !lb->currentItem()->isSelected()) return;
  wnd->setText(lb->currentItem()->text());
  m->setFocus();
}

void TVRXSendKeyEditorDlg::UpdateClick() {
  sk->BeginWindows([this](const QStringList& captions, const QString& error) {
    lb->clear();
    lb->addItems(captions);
    // Not everybody who opens the dialog wants to send something.
    if (!error.isEmpty()) Say(error);
  });
}

void TVRXSendKeyEditorDlg::Button1Click() {
  const QString file =
      Prompts().OpenFileName(this, Button1->text(), QFileInfo(program_).absolutePath(), ProgramFilter);
  if (!file.isEmpty()) StartProgram(file);
}

void TVRXSendKeyEditorDlg::StartProgram(const QString& file) {
  if (file.isEmpty()) return;
  program_ = file;
  Button1->setEnabled(false);
  Say(tr("Starting %1...").arg(file));
  sk->BeginShell(file, [this](const QString& error) {
    Button1->setEnabled(true);
    wnd->setText(error.isEmpty() ? sk->AppCaption() : QString());
    Say(error);
    if (error.isEmpty()) UpdateClick();
  });
}

void TVRXSendKeyEditorDlg::Button3Click() {
  const int keys = VRXKeyCount(VRXReadKeyMacro(m->toPlainText()));
  Button3->setEnabled(false);
  Say(tr("Sending %1...").arg(KeysText(keys)));
  sk->BeginSend(wnd->text(), m->toPlainText(), [this, keys](const QString& error) {
    Button3->setEnabled(true);
    Say(error.isEmpty() ? tr("Sent: %1").arg(KeysText(keys)) : QString());
    Guarded([&] {
      if (!error.isEmpty()) throw ESendKeysError(error);
    });
  });
}

void TVRXSendKeyEditorDlg::mChange() {
  try {
    VRXReadKeyMacro(m->toPlainText());
    Say({});
  } catch (const EKeyMacroError& error) {
    Say(error.Message());
  }
}

// Return in a list takes what is selected there.
bool TVRXSendKeyEditorDlg::ReturnConfirms() const { return !lb->hasFocus() && !lb2->hasFocus(); }
void TVRXSendKeyEditorDlg::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (lb->hasFocus()) lbDblClick();
    if (lb2->hasFocus()) lb2DblClick();
  }
  RowDialog::keyPressEvent(event);
}
