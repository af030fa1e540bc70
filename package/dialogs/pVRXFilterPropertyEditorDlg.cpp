#include "package/dialogs/pVRXFilterPropertyEditorDlg.h"
#include "rtl/Exceptions.h"

namespace {
constexpr int FirstRows = 11, MoreRows = 10;

// Blanks only: a tab may be meant.
QString WithoutBlanks(const QString& text) {
  qsizetype from = 0, to = text.size();
  while (from < to && text[from] == u' ') ++from;
  while (to > from && text[to - 1] == u' ') --to;
  return text.sliced(from, to - from);
}
}  // namespace

TVRXFilterPropsDlg::TVRXFilterPropsDlg(QWidget* owner) : PairsDialog(QStringLiteral("Filter Editor"), owner) {
  setObjectName(QStringLiteral("VRXFilterPropsDlg"));
  FilterGrid = new PairsGrid(PairsGrid::Use::Edit, "FilterGrid", this);
  FilterGrid->SetRowCount(FirstRows);
  Build(FilterGrid, {OKBtn, "OKBtn", "OK"}, {CancelBtn, "CancelBtn", "Cancel"}, {520, 320});
}

void TVRXFilterPropsDlg::FormCreate() {
  PairsDialog::FormCreate();
  FilterGrid->Pairs().SetTitles(QStringLiteral("Filter Name"), QStringLiteral("Filter"));
}

void TVRXFilterPropsDlg::FormActivate() {
  if (!activated) SetLabels();
  PairsDialog::FormActivate();
}

void TVRXFilterPropsDlg::FormShow() {
  QList<TTextPair> rows(FilterGrid->RowCount() - 1);
  const QStringList parts = Filter.isEmpty() ? QStringList() : Filter.split(u'|');
  qsizetype row = 0;
  for (qsizetype i = 0; i < parts.size(); i += 2) {
    rows[row++] = {parts[i], parts.value(i + 1)};
    // There is always a row below.
    if (row == rows.size()) rows.resize(rows.size() + MoreRows);
  }
  FilterGrid->Pairs().SetRows(rows);
  FilterGrid->Select(0);
}

void TVRXFilterPropsDlg::OKBtnClick() {
  QString result;
  for (const TTextPair& pair : FilterGrid->Rows()) {
    for (const QString& text : {pair.First, pair.Second})
      if (text.contains(u'|'))
        throw Exception(
            QStringLiteral("\"%1\" cannot be kept: \"|\" ends a name or a filter. Write it without.")
                .arg(text));
    if (!pair.First.isEmpty() && !pair.Second.isEmpty())
      result += WithoutBlanks(pair.First) + u'|' + WithoutBlanks(pair.Second) + u'|';
  }
  result.chop(1);
  Filter = result;
}

void TVRXFilterPropsDlg::GridChanged() {
  if (FilterGrid->Rows().last() != TTextPair{}) FilterGrid->SetRowCount(FilterGrid->RowCount() + MoreRows);
}
