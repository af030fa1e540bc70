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

TEST_F(CheckCli, ControlCharactersOfAFormAreEscapedEverywhere) {
  const QString form = Case("control-chars.dfm");
  for (const QStringList& arguments : {QStringList{L("check"), form},
                                       {L("get"), form, L("Form1")},
                                       {L("get"), form, L("Form1.\x1B[2J")},
                                       {L("check"), Path("no\nsuch\x1B.dfm")},
                                       {L("convert"), form, Path("a.txt"), L("--to"), L("text")}}) {
    const Result r = Vrx(arguments);
    for (const QString& text : {r.out, r.err}) {
      EXPECT_FALSE(text.contains(u'\x1B')) << text.toStdString();
      for (const QString& line : text.split(u'\n'))
        EXPECT_FALSE(line.startsWith(L("/etc/x"))) << line.toStdString();
    }
    EXPECT_TRUE((r.out + r.err).contains(L("\\x1B"))) << (r.out + r.err).toStdString();
  }
}

TEST_F(CheckCli, TextThatTurnsOrEndsTheLineComesOutAsCodes) {
  const QByteArray form =
      "object Form1: TForm1\n  Caption = 'a\xE2\x80\xAE"
      "b\xC2\x9B"
      "2J\x7F"
      "c'\n  Hint = 'gr\xC3\xBC\xC3\x9F'\nend\n";
  const QString file = Write("a.lfm", form);
  const Result r = Vrx({L("get"), file, L("Form1.Caption")});
  EXPECT_EQ(r.out, L("'a'#8238'b'#155'2J'#127'c'\n"));
  EXPECT_EQ(Vrx({L("get"), file, L("Form1.Hint")}).out, L("'gr\u00FC\u00DF'\n"));
}

TEST_F(CheckCli, ValuesOfARelatedFrameworkAreRightInItsFiles) {
  const Result r = Vrx({L("check"), Case("lcl-values.lfm")});
  EXPECT_EQ(r.code, 0);
  EXPECT_EQ(r.out, QString());
  const QString file = Write(
      "a.lfm", "object F: TF\n  ClientWidth = 9\n  Color = clNobodyKnows\n  BorderIcons = [biNew]\nend\n");
  const Result unknown = Vrx({L("check"), file});
  EXPECT_EQ(unknown.code, 0);
  ASSERT_EQ(unknown.Lines().size(), 2) << unknown.out.toStdString();
  EXPECT_TRUE(unknown.Lines()[0].startsWith(file + L(":3:11: note: "))) << unknown.out.toStdString();
  EXPECT_TRUE(unknown.Lines()[0].contains(L("clNobodyKnows")));
  EXPECT_TRUE(unknown.Lines()[1].contains(L("biNew")));
  EXPECT_EQ(Vrx({L("check"), L("--strict"), file}).code, 1);
  EXPECT_EQ(Vrx({L("check"), Write("a.dfm", Read(file))}).code, 1) << "elsewhere it is a mistake";
}

TEST_F(CheckCli, AFindingNamesThePathAndWhyAReferenceDoesNotFit) {
  const Result r = Vrx({L("check"), Case("messages.dfm")});
  ASSERT_EQ(r.Lines().size(), 2) << r.out.toStdString();
  EXPECT_TRUE(r.Lines()[0].contains(L("Font.Color"))) << r.out.toStdString();
  EXPECT_TRUE(r.Lines()[0].contains(L(": note: "))) << "clText is a colour of another framework";
  EXPECT_TRUE(r.Lines()[1].contains(L("Label2, which is a TLabel and no TWinControl")))
      << r.out.toStdString();
  EXPECT_FALSE(r.out.contains(L("not on this form")));
  const Result bad = Vrx({L("check"), Write("b.dfm", "object F: TF\n  Font.Color = clFoo\nend\n")});
  EXPECT_TRUE(bad.out.contains(L("error: F: TF: Font.Color cannot be clFoo"))) << bad.out.toStdString();
}

TEST_F(CheckCli, AWrongNameIsToldWhatThereIs) {
  const Result r = Vrx(
      {L("check"),
       Write("a.dfm",
             "object F: TF\n  object B: TButton\n    Align = alFoo\n    Anchors = [akUp]\n  end\nend\n")});
  EXPECT_EQ(r.code, 1);
  for (const char* name : {"alNone", "alTop", "alClient", "akLeft", "akBottom"})
    EXPECT_TRUE(r.out.contains(L(name))) << r.out.toStdString();
}

TEST_F(CheckCli, TenThousandsOfFindingsHaveTheirPlaces) {
  constexpr int Count = 40000;
  QByteArray form = "object F: TF\n";
  for (int i = 0; i < Count; ++i) form += "object X" + QByteArray::number(i) + ": TNoSuch\nend ";
  form += "end\n";
  const Result r = Vrx({L("check"), Write("a.dfm", form)});
  ASSERT_EQ(r.Lines().size(), Count);
  EXPECT_TRUE(r.Lines()[0].contains(L(":2:1: note: ")));
  EXPECT_TRUE(r.Lines().last().contains(L(":40001:5: note: "))) << r.Lines().last().toStdString();
}

TEST_F(ConvertCli, ASecondRootIsNotDropped) {
  const QByteArray two = "object A: TA\n  Left = 1\nend\n\n  object B: TB\nend\n";
  const QString in = Write("two.dfm", two), out = Write("out.dfm", "precious");
  const Result r = Vrx({L("convert"), in, out, L("--to"), L("binary")});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains(L("second root object"))) << r.err.toStdString();
  EXPECT_TRUE(r.err.contains(L("line 5, column 3"))) << r.err.toStdString();
  EXPECT_EQ(Read(out), "precious");
  EXPECT_EQ(Vrx({L("convert"), in, out, L("--to"), L("text")}).code, 0) << "text can hold both";
  EXPECT_EQ(Read(out), two);
  const QString one = Path("one.bin");
  ASSERT_EQ(Vrx({L("convert"), Write("one.dfm", SmallForm), one, L("--to"), L("binary")}).code, 0);
  const QString both = Write("both.bin", Read(one) + Read(one));
  EXPECT_EQ(Vrx({L("convert"), both, out}).code, 1);
  EXPECT_EQ(Read(out), two);
  EXPECT_EQ(
      Vrx({L("convert"), Write("padded.dfm", SmallForm + "\r\n\x1A"), out, L("--to"), L("binary")}).code, 0);
}

TEST_F(CheckCli, ASecondRootIsToldWithItsPlace) {
  const QString two = Write("two.dfm", "object A: TForm\nend\nobject B: TForm\nend\n");
  const Result r = Vrx({L("check"), two});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.out.contains(two + L(":3:1: warning: A second root object"))) << r.out.toStdString();
  EXPECT_EQ(Vrx({L("check"), Write("one.dfm", "object A: TForm\nend\n\n")}).code, 0);
}

TEST_F(ConvertCli, TheLinesEndAsAskedOrAsUsual) {
  const QString in = Write("form.bin", "");
  ASSERT_EQ(Vrx({L("convert"), Write("a.text", SmallForm), in, L("--to"), L("binary")}).code, 0);
  QByteArray crlf = SmallForm;
  crlf.replace("\n", "\r\n");
  const auto converted = [&](const char* name, const QStringList& more = {}) {
    const QString out = Path(name);
    EXPECT_EQ(Vrx(QStringList{L("convert"), in, out} + more).code, 0);
    const QByteArray bytes = Read(out);
    return bytes.contains("\r\n") ? "crlf" : "lf";
  };
  EXPECT_STREQ(converted("new.dfm"), "crlf") << "nothing says otherwise";
  QFile::remove(Path("new.dfm"));
  EXPECT_STREQ(converted("new.lfm"), "lf");
  EXPECT_STREQ(converted("b.dfm", {L("--eol"), L("lf")}), "lf");
  EXPECT_STREQ(converted("c.dfm"), "lf") << "as the form beside it";
  EXPECT_STREQ(converted("d.lfm", {L("--eol=crlf")}), "crlf");
  EXPECT_STREQ(converted("d.lfm"), "crlf") << "as the file it replaces";
  // Text that is text already changes its line ends only when asked.
  const QString text = Write("e.dfm", crlf), out = Path("f.dfm");
  EXPECT_EQ(Vrx({L("convert"), text, out, L("--to"), L("text")}).code, 0);
  EXPECT_EQ(Read(out), crlf);
  EXPECT_EQ(Vrx({L("convert"), text, out, L("--to"), L("text"), L("--eol"), L("lf")}).code, 0);
  EXPECT_EQ(Read(out), SmallForm);
  EXPECT_EQ(Vrx({L("convert"), text, out, L("--eol"), L("mac")}).code, 2);
  EXPECT_EQ(Vrx({L("convert"), text, out, L("--to"), L("binary"), L("--eol"), L("lf")}).code, 2);
  EXPECT_EQ(Read(out), SmallForm);
}
