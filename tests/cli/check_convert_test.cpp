#include <QRegularExpression>

#include "CliTest.h"

namespace {
using CheckCli = Cli;
using ConvertCli = Cli;
}  // namespace

TEST_F(CheckCli, AGoodFormSaysNothing) {
  const Result r = Vrx({L("check"), Write("a.dfm", SmallForm)});
  EXPECT_EQ(r.code, 0);
  EXPECT_EQ(r.out, QString());
  EXPECT_EQ(r.err, QString());
  EXPECT_EQ(Vrx({L("check"), Example()}).code, 0);
  EXPECT_EQ(Vrx({L("check"), L("--strict"), Example()}).code, 0);
}

TEST_F(CheckCli, UnknownNamesAreNotesAndStrictlyErrors) {
  const QString file = Write(
      "a.dfm", "object Form1: TForm1\n  Wings = 2\n  object X: TNoSuchThing\n    Legs = 4\n  end\nend\n");
  const Result r = Vrx({L("check"), file});
  EXPECT_EQ(r.code, 0);
  ASSERT_EQ(r.Lines().size(), 2) << r.out.toStdString();
  EXPECT_TRUE(r.Lines()[0].startsWith(file + L(":2:11: note: "))) << r.out.toStdString();
  EXPECT_TRUE(r.Lines()[0].contains(L("Wings")));
  EXPECT_TRUE(r.Lines()[1].startsWith(file + L(":3:3: note: "))) << r.out.toStdString();
  EXPECT_TRUE(r.Lines()[1].contains(L("TNoSuchThing")));
  const Result strict = Vrx({L("check"), L("--strict"), file});
  EXPECT_EQ(strict.code, 1);
  EXPECT_EQ(strict.out, QString(r.out).replace(L(": note: "), L(": error: ")));
  EXPECT_EQ(strict.err, QString());
}

TEST_F(CheckCli, WrongValuesAndReferencesAreFound) {
  const QString file = Write("a.dfm",
                             "object Form1: TForm1\n  Position = poNowhere\n  Color = 'red'\n  object L: "
                             "TLabel\n    FocusControl = Gone\n  end\nend\n");
  const Result r = Vrx({L("check"), file});
  EXPECT_EQ(r.code, 1);
  ASSERT_EQ(r.Lines().size(), 3) << r.out.toStdString();
  EXPECT_TRUE(r.Lines()[0].startsWith(file + L(":2:14: error: ")));
  EXPECT_TRUE(r.Lines()[1].startsWith(file + L(":3:11: error: ")));
  EXPECT_TRUE(r.Lines()[2].startsWith(file + L(":5:20: warning: ")));
  EXPECT_TRUE(r.Lines()[2].contains(L("Gone")));
}

TEST_F(CheckCli, EveryFileIsLookedAt) {
  const QString good = Write("good.dfm", SmallForm),
                broken = Write("broken.dfm", "object Form1: TForm1\n  Left = ]\nend\n");
  const QString missing = Path("missing.dfm"),
                noted = Write("noted.dfm", "object Form1: TForm1\n  Wings = 2\nend\n");
  const Result r = Vrx({L("check"), good, broken, missing, noted});
  EXPECT_EQ(r.code, 1);
  ASSERT_EQ(r.Lines().size(), 3) << r.out.toStdString();
  static const QRegularExpression line(L("^(.+):(\\d+):(\\d+): (error|warning|note): .+$"));
  for (const QString& l : r.Lines()) EXPECT_TRUE(line.match(l).hasMatch()) << l.toStdString();
  EXPECT_TRUE(r.Lines()[0].startsWith(broken + L(":2:10: error: "))) << r.out.toStdString();
  EXPECT_TRUE(r.Lines()[1].startsWith(missing + L(":1:1: error: ")));
  EXPECT_TRUE(r.Lines()[2].startsWith(noted));
}

TEST_F(CheckCli, BinaryFormsAreCountedInBytes) {
  const QString text = Write("a.dfm", SmallForm), binary = Path("b.dfm");
  ASSERT_EQ(Vrx({L("convert"), text, binary, L("--to"), L("binary")}).code, 0);
  EXPECT_EQ(Vrx({L("check"), binary}).code, 0);
  const QByteArray bytes = Read(binary);
  const QString cut = Write("cut.dfm", bytes.left(bytes.size() / 2));
  const Result r = Vrx({L("check"), cut});
  EXPECT_EQ(r.code, 1);
  static const QRegularExpression line(L(":1:(\\d+): error: "));
  const auto match = line.match(r.out);
  ASSERT_TRUE(match.hasMatch()) << r.out.toStdString();
  EXPECT_GT(match.captured(1).toInt(), 4);
  EXPECT_LE(match.captured(1).toInt(), bytes.size() / 2 + 1);
  EXPECT_EQ(Vrx({L("check"), Write("junk.dfm", QByteArray("\x89PNG\r\n\x1A\n\0\0", 10))}).code, 1);
  EXPECT_EQ(Vrx({L("check"), Write("empty.dfm", "")}).code, 1);
}

TEST_F(CheckCli, WrongUseIsTwo) {
  for (const QStringList& arguments : {QStringList{L("check")},
                                       {L("check"), L("--loose"), Example()},
                                       {L("check"), L("--strict=yes"), Example()}}) {
    const Result r = Vrx(arguments);
    EXPECT_EQ(r.code, 2) << arguments.join(u' ').toStdString();
    EXPECT_EQ(r.out, QString());
    EXPECT_TRUE(r.err.startsWith(L("vrx check: "))) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains(L("Usage: vrx check ")));
  }
}

TEST_F(ConvertCli, TextToResourceAndBackIsTheSameText) {
  const QString text = Write("a.dfm", SmallForm), resource = Path("a.res"), again = Path("b.dfm");
  Result r = Vrx({L("convert"), text, resource});
  EXPECT_EQ(r.code, 0);
  EXPECT_EQ(r.out + r.err, QString());
  EXPECT_EQ(static_cast<unsigned char>(Read(resource)[0]), 0xFF);
  EXPECT_TRUE(Read(resource).contains("TFORM1"));
  EXPECT_TRUE(Read(resource).contains("TPF0"));
  EXPECT_EQ(Vrx({L("convert"), resource, again}).code, 0);
  EXPECT_EQ(Read(again), SmallForm);
}

TEST_F(ConvertCli, EveryFormBecomesEveryOther) {
  const QString text = Write("a.dfm", SmallForm);
  const QStringList forms{L("text"), L("binary"), L("resource")};
  QHash<QString, QByteArray> bytes;
  for (const QString& to : forms) {
    const QString out = Path("out.") + to;
    EXPECT_EQ(Vrx({L("convert"), text, out, L("--to"), to}).code, 0);
    bytes[to] = Read(out);
  }
  EXPECT_TRUE(bytes[L("binary")].startsWith("TPF0"));
  EXPECT_TRUE(bytes[L("resource")].endsWith(bytes[L("binary")]));
  for (const QString& from : forms)
    for (const QString& to : forms) {
      const QString out = Path("result");
      EXPECT_EQ(Vrx({L("convert"), Path("out.") + from, out, L("--to=") + to}).code, 0);
      EXPECT_EQ(Read(out), bytes[to]) << from.toStdString() << " to " << to.toStdString();
    }
}

TEST_F(ConvertCli, TheWantedFormComesOutByteForByte) {
  const QByteArray odd = "OBJECT  Form1 :TForm1\r\n Left=  $10\r\n\r\n   Caption = 'a'+\r\n  'b'\r\nEND\r\n";
  const QString out = Path("out.dfm");
  EXPECT_EQ(Vrx({L("convert"), Write("odd.dfm", odd), out, L("--to"), L("text")}).code, 0);
  EXPECT_EQ(Read(out), odd);
  EXPECT_EQ(Vrx({L("convert"), Example(), out, L("--to"), L("text")}).code, 0);
  EXPECT_EQ(Read(out), Read(Example()));
}

TEST_F(ConvertCli, BadInputIsToldAndOutputIsLeftAlone) {
  const QString bad = Write("bad.dfm", "object Form1: TForm1\n  Left = ]\nend\n"),
                out = Write("out.dfm", "precious");
  const Result r = Vrx({L("convert"), bad, out});
  EXPECT_EQ(r.code, 1);
  EXPECT_EQ(r.out, QString());
  EXPECT_TRUE(r.err.startsWith(L("vrx convert: ") + bad + L(": "))) << r.err.toStdString();
  EXPECT_TRUE(r.err.contains(L("line 2, column 10"))) << r.err.toStdString();
  EXPECT_EQ(Read(out), "precious");
  EXPECT_EQ(Vrx({L("convert"), Path("missing.dfm"), out}).code, 1);
  EXPECT_EQ(Read(out), "precious");
  const Result nowhere = Vrx({L("convert"), Write("a.dfm", SmallForm), Path("no/such/folder.dfm")});
  EXPECT_EQ(nowhere.code, 1);
  EXPECT_TRUE(nowhere.err.contains(Path("no/such/folder.dfm")));
}

TEST_F(ConvertCli, WrongUseIsTwo) {
  const QString in = Write("a.dfm", SmallForm), out = Path("out");
  for (const QStringList& arguments : {QStringList{in},
                                       {in, out, out},
                                       {in, out, L("--to")},
                                       {in, out, L("--to"), L("xml")},
                                       {in, out, L("--fast")}}) {
    const Result r = Vrx(QStringList{L("convert")} + arguments);
    EXPECT_EQ(r.code, 2) << arguments.join(u' ').toStdString();
    EXPECT_FALSE(r.err.isEmpty());
    EXPECT_FALSE(QFile::exists(out));
  }
}
