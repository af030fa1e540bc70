// The filter of a file dialog as a grid of pairs.
#include "package/dialogs/pVRXFilterPropertyEditorDlg.h"

#include <random>

#include "library/components/FileDialogs.h"
#include "package/component_editors/pVRXCEMain.h"
#include "tests/package/ListEditorTest.h"

namespace {
using FilterDialog = ListEditors;

// The rows that a person sees, without those that are empty at the end.
QList<TTextPair> Shown(const TVRXFilterPropsDlg& dialog) {
  QList<TTextPair> rows = dialog.FilterGrid->Rows();
  while (!rows.isEmpty() && rows.last() == TTextPair{}) rows.removeLast();
  return rows;
}
QList<TTextPair> PairsOf(const QJsonArray& array) {
  QList<TTextPair> rows;
  for (const auto& pair : array) rows.append({pair[0].toString(), pair[1].toString()});
  return rows;
}
// What the dialog makes of a filter that nobody touches.
QString Confirmed(const QString& filter) {
  TVRXFilterPropsDlg dialog(nullptr);
  dialog.Filter = filter;
  dialog.SetLabels();
  dialog.accept();
  return dialog.Filter;
}
}  // namespace

TEST_F(FilterDialog, ShowsAndComposesEveryFilterOfTheTable) {
  int typed = 0, opened = 0;
  for (const auto& value : Vectors("filters.json")[u"cases"].toArray()) {
    const QJsonObject c = value.toObject();
    SCOPED_TRACE(QJsonDocument(c).toJson(QJsonDocument::Compact).toStdString());
    TVRXFilterPropsDlg dialog(nullptr);
    const QList<TTextPair> rows = PairsOf(c[u"rows"].toArray());
    if (c[u"filter"].isNull()) {
      dialog.SetLabels();
      PairsModel& grid = dialog.FilterGrid->Pairs();
      for (int row = 0; row < rows.size(); ++row) {
        grid.setData(grid.index(row, 0), rows[row].First);
        grid.setData(grid.index(row, 1), rows[row].Second);
      }
      ++typed;
    } else {
      const QJsonObject counts = c[u"gridRows"].toObject();
      ASSERT_EQ(counts.size(), 3);
      for (auto it = counts.begin(); it != counts.end(); ++it) {
        dialog.FilterGrid->SetRowCount(it.key().toInt());
        dialog.Filter = c[u"filter"].toString();
        dialog.SetLabels();
        EXPECT_EQ(dialog.FilterGrid->RowCount(), it.value().toInt()) << it.key().toStdString();
        EXPECT_EQ(Shown(dialog), rows);
      }
      ++opened;
    }
    dialog.accept();
    EXPECT_EQ(dialog.Filter, c[u"composed"].toString());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
  }
  EXPECT_GE(opened, 200);
  EXPECT_GE(typed, 20);
}

TEST_F(FilterDialog, IsTitledAsAFilterIsMade) {
  TVRXFilterPropsDlg dialog(nullptr);
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Filter Editor"));
  const auto* model = dialog.FilterGrid->model();
  EXPECT_EQ(model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Filter Name"));
  EXPECT_EQ(model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Filter"));
}

// Whole pairs come back, whatever their texts; nothing else is made up.
TEST_F(FilterDialog, LosesNoPairOfARandomFilter) {
  const QStringList pieces{QStringLiteral("a"),      QStringLiteral(" "),  QStringLiteral("|"),
                           QStringLiteral("*.txt"),  QStringLiteral("\t"), QStringLiteral("||"),
                           QStringLiteral("\u00DC"), QStringLiteral("\n"), QString(QChar(0xD83D)),
                           QString(QChar(u'\0')),    QStringLiteral(";")};
  std::mt19937 random(41);
  for (int round = 0; round < 1000; ++round) {
    QString filter;
    for (auto i = random() % 24; i > 0; --i)
      filter += pieces[static_cast<qsizetype>(random() % static_cast<unsigned>(pieces.size()))];
    const QStringList parts = filter.split(u'|');
    QStringList whole;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
      if (parts[i].isEmpty() || parts[i + 1].isEmpty()) continue;
      for (QString part : {parts[i], parts[i + 1]}) {
        while (part.startsWith(u' ')) part.remove(0, 1);
        while (part.endsWith(u' ')) part.chop(1);
        whole << part;
      }
    }
    ASSERT_EQ(Confirmed(filter), whole.join(u'|')) << filter.toStdString();
    ASSERT_EQ(Confirmed(Confirmed(filter)).count(u'|'), Confirmed(Confirmed(Confirmed(filter))).count(u'|'));
  }
}

TEST_F(FilterDialog, OkWritesTheFilterAndCancelNothing) {
  TVRXFormOpenDialog open(nullptr);
  TVRXFormSaveDialog save(nullptr);
  for (TComponent* component : {static_cast<TComponent*>(&open), static_cast<TComponent*>(&save)}) {
    const TPropInfo& filter = component->ClassType().GetProp("Filter");
    SetStrProp(*component, filter, QStringLiteral("Text|*.txt"));
    const auto editor = Of({component}, "Filter");
    EXPECT_EQ(editor->GetAttributes(), TPropertyAttributes{TPropertyAttribute::paDialog});
    EXPECT_EQ(editor->GetValue(), QStringLiteral("(string)")) << "shown as the object that its base edits";
    for (const bool ok : {false, true}) {
      designer.modified = 0;
      modal::NextOf<TVRXFilterPropsDlg>([&](auto& d) {
        fields::ShowActive(d);
        EXPECT_EQ(Shown(d), (QList<TTextPair>{{QStringLiteral("Text"), QStringLiteral("*.txt")}}));
        // By the keyboard alone.
        QTest::keyClick(d.FilterGrid, Qt::Key_Down);
        QTest::keyClick(d.FilterGrid, 'A');
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("ll"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QTest::keyClick(d.FilterGrid, Qt::Key_Right);
        QTest::keyClicks(d.FilterGrid, QStringLiteral("*"));
        QTest::mouseClick(ok ? d.OKBtn : d.CancelBtn, Qt::LeftButton);
      });
      editor->Edit();
      EXPECT_EQ(GetStrProp(*component, filter),
                ok ? QStringLiteral("Text|*.txt|All|*") : QStringLiteral("Text|*.txt"));
      EXPECT_EQ(designer.modified, ok ? 1 : 0);
    }
  }
}

TEST_F(FilterDialog, RowsAreAddedRemovedAndMoved) {
  TVRXFilterPropsDlg dialog(nullptr);
  dialog.Filter = QStringLiteral("A|a|B|b|C|c");
  dialog.SetLabels();
  fields::ShowActive(dialog);
  dialog.FilterGrid->Select(1);
  dialog.MoveUp->click();
  EXPECT_EQ(dialog.FilterGrid->CurrentRow(), 0);
  EXPECT_FALSE(dialog.MoveUp->isEnabled());
  QTest::keyClick(dialog.FilterGrid, Qt::Key_Down, Qt::ControlModifier);
  QTest::keyClick(dialog.FilterGrid, Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(dialog.FilterGrid->CurrentRow(), 2);
  dialog.FilterGrid->Select(0);
  dialog.DeleteRow->click();
  QTest::keyClick(dialog.FilterGrid, Qt::Key_Insert);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("N"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(Shown(dialog), (QList<TTextPair>{{QStringLiteral("C"), QStringLiteral("c")},
                                             {QStringLiteral("N"), QString()},
                                             {QStringLiteral("B"), QStringLiteral("b")}}));
  dialog.accept();
  EXPECT_EQ(dialog.Filter, QStringLiteral("C|c|B|b"));
}

TEST_F(FilterDialog, AFieldThatIsStillOpenIsTakenByOk) {
  TVRXFilterPropsDlg dialog(nullptr);
  dialog.Filter = QStringLiteral("A|a");
  fields::ShowActive(dialog);
  dialog.FilterGrid->setFocus();
  QTest::keyClicks(dialog.FilterGrid, QStringLiteral("Z"));
  dialog.accept();
  EXPECT_EQ(dialog.Filter, QStringLiteral("Z|a"));
}

// It would come back as two pairs, and the second would be lost the next time.
TEST_F(FilterDialog, ASeparatorInAFieldIsRefusedAndTheDialogStays) {
  for (const bool second : {false, true}) {
    TVRXFilterPropsDlg dialog(nullptr);
    dialog.Filter = QStringLiteral("A|a");
    fields::ShowActive(dialog);
    PairsModel& grid = dialog.FilterGrid->Pairs();
    grid.setData(grid.index(0, second), QStringLiteral("x|y"));
    prompts.warned.clear();
    dialog.accept();
    EXPECT_EQ(prompts.warned.size(), 1);
    EXPECT_TRUE(prompts.warned.join(QString()).contains(QStringLiteral("\"x|y\" cannot be kept")));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.Filter, QStringLiteral("A|a"));
    grid.setData(grid.index(0, second), QStringLiteral("x"));
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
  }
}

TEST_F(FilterDialog, ThereIsAlwaysARowToTypeIn) {
  TVRXFilterPropsDlg dialog(nullptr);
  dialog.SetLabels();
  const int before = dialog.FilterGrid->RowCount();
  PairsModel& grid = dialog.FilterGrid->Pairs();
  grid.setData(grid.index(before - 2, 0), QStringLiteral("last"));
  EXPECT_EQ(dialog.FilterGrid->RowCount(), before + 10);
}

TEST_F(FilterDialog, OfAFormIsOneCommandThatUndoTakesBack) {
  const auto session = FormWith(
      "  object Open: TVRXFormOpenDialog\n    Filter = 'Text|*.txt'\n    Left = 8\n    Top = 8\n  end\n",
      registry);
  const QByteArray before = session->Bytes();
  TComponent& open = *session->GetComponent(QStringLiteral("Open"));
  Edit<TVRXFilterPropsDlg>(*session, open, "Filter", [](auto& d) { d.accept(); });
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_FALSE(session->CanUndo());
  Edit<TVRXFilterPropsDlg>(*session, open, "Filter", [](auto& d) {
    d.FilterGrid->Pairs().SetRow(1, {QStringLiteral("Logs"), QStringLiteral("*.log")});
    d.accept();
  });
  EXPECT_EQ(QByteArray(before).replace("*.txt'", "*.txt|Logs|*.log'"), session->Bytes());
  session->Undo();
  EXPECT_EQ(session->Bytes(), before);
}

TEST_F(FilterDialog, TheComponentEditorOpensItByVerbAndDoubleClick) {
  TVRXFormOpenDialog open(nullptr);
  for (const bool byVerb : {true, false}) {
    TVRXFilterComponentEditor editor(&open, &designer);
    editor.SetSource(&registry);
    EXPECT_EQ(editor.GetVerbCount(), 1);
    EXPECT_EQ(editor.GetVerb(0), QStringLiteral("Edit Filters"));
    EXPECT_EQ(editor.GetVerb(1), QString());
    EXPECT_EQ(editor.GetVerb(-1), QString());
    bool came = false;
    modal::NextOf<TVRXFilterPropsDlg>([&](auto& d) {
      came = true;
      d.FilterGrid->Pairs().SetRow(0, {QStringLiteral("A"), QStringLiteral("a")});
      d.accept();
    });
    byVerb ? editor.ExecuteVerb(0) : editor.Edit();
    EXPECT_TRUE(came);
    EXPECT_EQ(GetStrProp(open, open.ClassType().GetProp("Filter")), QStringLiteral("A|a"));
  }
}
