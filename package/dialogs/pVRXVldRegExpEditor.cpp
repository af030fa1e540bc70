#include "package/dialogs/pVRXVldRegExpEditor.h"

#include <QFile>
#include <QGridLayout>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <climits>

#include "library/components/RegExpr.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"
#include "rtl/Registry.h"
#include "vcl/Prompts.h"
#include "vcl/UserFile.h"

using D = TVRXRegExprForm;

namespace {
TRegIniFile Settings() { return TRegIniFile(QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025")); }
const QString Section = QStringLiteral("Validators"), FileKey = QStringLiteral("RegExFile");
const QString FileFilter = QStringLiteral("Text files (*.txt);;All files (*.*)");

QString RememberedFile() { return Settings().ReadString(Section, FileKey, {}); }
void Remember(const QString& file) {
  TRegIniFile settings = Settings();
  settings.WriteString(Section, FileKey, file);
  settings.UpdateFile();
}
}  // namespace

TVRXRegExprForm::TVRXRegExprForm(QWidget* owner) : RowDialog(QStringLiteral("Regular Expression"), owner) {
  setObjectName(QStringLiteral("VRXRegExprForm"));
  auto* fields = new QGridLayout;
  RowsInto(*fields);
  Row(edRegExpr, "edRegExpr", "", "&Regular expression", "What is edited").Changes(&D::Try);
  edRegExpr->setMaxLength(INT_MAX);
  edSample = Named(new QPlainTextEdit(this), "edSample", "What the expression finds here is marked");
  edSample->setTabChangesFocus(true);
  edSample->setFixedHeight(4 * fontMetrics().lineSpacing() + 12);
  auto* sampleLabel = new QLabel(QStringLiteral("&Try it on"), this);
  sampleLabel->setBuddy(edSample);
  sampleLabel->setAlignment(Qt::AlignRight | Qt::AlignTop);
  fields->addWidget(sampleLabel, fields->rowCount(), 0);
  fields->addWidget(edSample, fields->rowCount() - 1, 1);
  Follows(edSample);
  state = QuietLine(this, "state");
  state->setWordWrap(true);
  Wide({state});
  Row(edExprName, "edExprName", "", "Expression &name", "Of the expression in the library");
  edExprName->setMaxLength(INT_MAX);
  sgExpressions = new PairsGrid(PairsGrid::Use::Choose, "sgExpressions", this);
  sgExpressions->setAccessibleName(QStringLiteral("Library"));
  sgExpressions->setToolTip(QStringLiteral("The library; a double click takes an expression and closes"));
  sgExpressions->Pairs().SetTitles(QStringLiteral("Name"), QStringLiteral("Expression"));
  Follows(sgExpressions);
  Button(btAddExpr, "btAddExpr", "&Append", &D::btAddExprClick, "Name and expression behind the others");
  Button(btUpdateExpr, "btUpdateExpr", "&Update", &D::btUpdateExprClick,
         "Name and expression in place of the selected ones");
  Button(btRemove, "btRemove", "Re&move", &D::btRemoveClick, "The selected expression, from the library");
  Button(btLoad, "btLoad", "&Load file...", &D::btLoadClick, "Another library, which is remembered");
  Button(btSave, "btSave", "&Save file...", &D::btSaveClick,
         "The library to another file, which is remembered");
  OkButton(btOK, "btOK");
  CancelButton(btCancel, "btCancel");
  connect(edSample, &QPlainTextEdit::textChanged, this, &D::Try);
  // Chosen with the keys.
  connect(sgExpressions->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { removing_ ? EnableButtons() : sgExpressionsClick(); });
  connect(sgExpressions, &QTableView::clicked, this, [this] { Guarded([this] { sgExpressionsClick(); }); });
  connect(sgExpressions, &QTableView::doubleClicked, this, &D::sgExpressionsDblClick);
  VRXSetThemeMode(*this, 1);
  auto* left = new QVBoxLayout;
  left->addLayout(fields);
  left->addWidget(sgExpressions, 1);
  FinishBeside(left, {btAddExpr, btUpdateExpr, btRemove, btLoad, btSave}, {btOK, btCancel}, {560, 440});
  library_.Append({});
  ShowRows();
  Try();
}

QString TVRXRegExprForm::EditExpression(const QString& expression) {
  edRegExpr->setText(expression);
  const QString file = RememberedFile();
  Guarded([&] { LoadRegExprFile(file); });
  int row = 0;
  while (row < sgExpressions->Rows().size() && sgExpressions->Rows()[row].Second != expression) ++row;
  sgExpressions->Select(row < sgExpressions->Rows().size() ? row : -1);
  edRegExpr->setFocus();
  if (ShowModal() != mrOk) return expression;
  // What cannot be kept is told, but is no reason to lose what was confirmed.
  Guarded([this] {
    if (changed_) SaveRegExprFile(RememberedFile());
  });
  return edRegExpr->text();
}

void TVRXRegExprForm::LoadRegExprFile(const QString& file) {
  if (file.isEmpty() || !QFile::exists(file)) return;
  library_ = RegExprLibrary(ReadUserFile(file));
  changed_ = false;
  ShowRows();
}

void TVRXRegExprForm::SaveRegExprFile(const QString& file) {
  if (file.isEmpty()) return;
  const QByteArray bytes = library_.Bytes();
  const bool there = QFile::exists(file);
  const QByteArray before = there ? ReadUserFile(file) : QByteArray();
  if (there && before != bytes) WriteUserFile(file + QStringLiteral(".bak"), before);
  if (!there || before != bytes) WriteUserFile(file, bytes);
  changed_ = false;
}

void TVRXRegExprForm::ShowRows() {
  sgExpressions->Pairs().SetRows(library_.Rows());
  EnableButtons();
}

TTextPair TVRXRegExprForm::Typed() const { return {edExprName->text(), edRegExpr->text()}; }

void TVRXRegExprForm::btAddExprClick() {
  library_.Append(Typed());
  changed_ = true;
  sgExpressions->Pairs().InsertRow(static_cast<int>(library_.Count()) - 1, Typed());
  sgExpressions->Select(static_cast<int>(library_.Count()) - 1);
}

void TVRXRegExprForm::btUpdateExprClick() {
  const int row = sgExpressions->SelectedRow();
  if (row < 0) return;
  library_.Update(row, Typed());
  changed_ = true;
  sgExpressions->Pairs().SetRow(row, Typed());
}

void TVRXRegExprForm::btRemoveClick() {
  const int row = sgExpressions->SelectedRow();
  if (row < 0) return;
  // What is selected then was not asked for.
  const QScopedValueRollback removing(removing_, true);
  library_.Remove(row);
  changed_ = true;
  sgExpressions->Pairs().RemoveRow(row);
  sgExpressions->Select(std::min(row, sgExpressions->Pairs().rowCount() - 1));
}

void TVRXRegExprForm::btLoadClick() {
  if (changed_ && !Prompts().Confirm(this, windowTitle(),
                                     tr("The changes of the library are not saved. Load another one?")))
    return;
  const QString file =
      Prompts().OpenFileName(this, btLoad->text().remove(u'&'), RememberedFile(), FileFilter);
  if (file.isEmpty()) return;
  LoadRegExprFile(file);
  Remember(file);
}

void TVRXRegExprForm::btSaveClick() {
  const QString file =
      Prompts().SaveFileName(this, btSave->text().remove(u'&'), RememberedFile(), FileFilter);
  if (file.isEmpty()) return;
  SaveRegExprFile(file);
  Remember(file);
}

void TVRXRegExprForm::EnableButtons() {
  const bool selected = sgExpressions->SelectedRow() >= 0;
  btUpdateExpr->setEnabled(selected);
  btRemove->setEnabled(selected);
}

void TVRXRegExprForm::sgExpressionsClick() {
  EnableButtons();
  const int row = sgExpressions->SelectedRow();
  if (row < 0) return;
  edRegExpr->setText(sgExpressions->Rows()[row].Second);
  edExprName->setText(sgExpressions->Rows()[row].First);
}

void TVRXRegExprForm::sgExpressionsDblClick() {
  sgExpressionsClick();
  accept();
}

void TVRXRegExprForm::Try() {
  const QString sample = edSample->toPlainText();
  const TVRXRegExResult found = VRXFindMatches(edRegExpr->text(), sample);
  QList<QTextEdit::ExtraSelection> marks;
  for (const TVRXRegExMatch& match : found.Matches) {
    if (match.Length == 0) continue;
    QTextEdit::ExtraSelection mark;
    mark.format.setBackground(palette().highlight());
    mark.format.setForeground(palette().highlightedText());
    mark.cursor = QTextCursor(edSample->document());
    mark.cursor.setPosition(static_cast<int>(match.Start));
    mark.cursor.setPosition(static_cast<int>(match.Start + match.Length), QTextCursor::KeepAnchor);
    marks.append(mark);
  }
  edSample->setExtraSelections(marks);
  const auto count = found.Matches.size();
  QString text = count == 1 ? tr("1 match") : tr("%1 matches").arg(count);
  if (found.GivenUp) text = tr("More than %1; searching was given up").arg(text);
  if (!found.Error.isEmpty()) text = tr("Place %1: %2").arg(found.ErrorAt + 1).arg(found.Error);
  state->setText(edRegExpr->text().isEmpty() || (sample.isEmpty() && found.Error.isEmpty()) ? QString()
                                                                                            : text);
}
