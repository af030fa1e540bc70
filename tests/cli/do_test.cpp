// Actions on the command line.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "CliTest.h"
#include "ide/operations/Actions.h"

namespace {
class DoCli : public Cli {
 protected:
  void SetUp() override { file_ = Write("do.dfm", SmallForm); }
  Result Do(const QStringList& arguments) { return Vrx(QStringList{L("do"), file_} + arguments); }
  // Lines that only the new file has.
  QString Added() {
    QStringList before = QString::fromUtf8(SmallForm).split(u'\n'), added;
    for (const QString& line : QString::fromUtf8(Read(file_)).split(u'\n'))
      if (!before.removeOne(line)) added << line.trimmed();
    return added.join(u'|');
  }
  QString file_;
};
}  // namespace

TEST_F(DoCli, AnActionIsWrittenIntoTheForm) {
  const Result r = Do({L("alignRight"), L("--select"), L("Go,note")});
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(r.out + r.err, QString());
  EXPECT_EQ(Added(), L("Left = 53"));
}

TEST_F(DoCli, SeveralActionsFollowEachOtherAndAnotherFileTakesThem) {
  const QString out = Path("out.dfm");
  EXPECT_EQ(Do({L("sameWidth"), L("alignTop"), L("--select=Go,Note"), L("-o"), out}).code, 0);
  EXPECT_EQ(Read(file_), SmallForm);
  EXPECT_EQ(Vrx({L("get"), out, L("Note.Width")}).out, L("75\n"));
  EXPECT_EQ(Vrx({L("get"), out, L("Note.Top")}).out, L("16\n"));
}

TEST_F(DoCli, CopyPrintsFormTextAndPasteTakesIt) {
  const ProcessResult copied = RealVrx({L("do"), file_, L("copy"), L("--select"), L("Note,Go")});
  EXPECT_EQ(copied.code, 0) << copied.err.toStdString();
  EXPECT_TRUE(copied.out.startsWith("object Go: TButton\n  Left = 8\n")) << copied.out.toStdString();
  EXPECT_EQ(Read(file_), SmallForm);
  const ProcessResult pasted = RealVrx({L("do"), file_, L("paste")}, copied.out);
  EXPECT_EQ(pasted.code, 0) << pasted.err.toStdString();
  EXPECT_EQ(Vrx({L("get"), file_, L("Note1.FocusControl")}).out, L("Go1\n"));
}

TEST_F(DoCli, TheClipboardMayBeAFile) {
  const QString board = Path("board.txt");
  EXPECT_EQ(Do({L("cut"), L("paste"), L("--select"), L("Go"), L("--clipboard"), board}).code, 0);
  EXPECT_TRUE(Read(board).startsWith("object Go: TButton"));
  EXPECT_EQ(Vrx({L("get"), file_, L("Go.Caption")}).out, L("'Go'\n"));
}

TEST_F(DoCli, ARefusalSaysWhyAndWritesNothing) {
  const std::pair<QStringList, QString> rows[] = {
      {{L("alignLeft"), L("--select"), L("Go")}, L("alignLeft: Select at least 2 components.")},
      {{L("delete")}, L("the form itself")},
      {{L("alignTop"), L("undo"), L("undo"), L("--select"), L("Go,Note")},
       L("undo: There is nothing to undo.")},
      {{L("delete"), L("--select"), L("Nobody")}, L("has no component named \"Nobody\"")},
      {{L("delete"), L("--select"), L("Go.Caption")}, L("has no component named \"Go.Caption\"")}};
  for (const auto& [arguments, reason] : rows) {
    const Result r = Do(arguments);
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.out, QString());
    EXPECT_TRUE(r.err.contains(reason)) << r.err.toStdString();
    EXPECT_EQ(Read(file_), SmallForm);
  }
  const QString board = Path("foreign.txt");
  Write("foreign.txt", "object A: TButton\n  Left == 3\nend\n");
  const Result r = Do({L("paste"), L("--clipboard"), board});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains(L("line 2, column 9"), Qt::CaseInsensitive)) << r.err.toStdString();
  EXPECT_EQ(Read(file_), SmallForm);
}

TEST_F(DoCli, WrongUseIsToldAsSuch) {
  for (const QStringList& arguments :
       {QStringList{}, QStringList{L("fly")}, QStringList{L("--select"), L("Go")}})
    EXPECT_EQ(Do(arguments).code, 2);
  EXPECT_TRUE(Do({L("fly")}).err.contains(L("vrx actions")));
}

TEST_F(DoCli, TheActionsAreListedAsTheMenusNameThem) {
  const Result text = Vrx({L("actions")});
  EXPECT_EQ(text.code, 0);
  EXPECT_EQ(static_cast<std::size_t>(text.Lines().size()), ActionTable().size());
  EXPECT_TRUE(text.Lines().contains(L("alignLeft          Align: Left edges"))) << text.out.toStdString();
  const QJsonArray json = QJsonDocument::fromJson(Vrx({L("actions"), L("--json")}).out.toUtf8()).array();
  ASSERT_EQ(static_cast<std::size_t>(json.size()), ActionTable().size());
  EXPECT_EQ(json[2][L("id")].toString(), L("cut"));
  EXPECT_EQ(json[2][L("shortcut")].toString(), L("Ctrl+X"));
  EXPECT_EQ(json[2][L("text")].toString(), L("Cut"));
}
