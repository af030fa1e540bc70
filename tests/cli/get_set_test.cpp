#include <unistd.h>

#include "CliTest.h"
#include "forms/SafeFile.h"

namespace {
// While it lives, another program writes into the file between a command's reading and its writing.
class ForeignChange {
 public:
  ForeignChange(const QString& file, const QByteArray& bytes) {
    forms::Steps().sync = [=](int fd) {
      QFile out(file);
      EXPECT_TRUE(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
      out.write(bytes);
      return ::fdatasync(fd);
    };
  }
  ~ForeignChange() { forms::Steps() = forms::SystemSteps(); }
};

using GetCli = Cli;
class SetCli : public Cli {
 protected:
  // The lines of the form that differ after the assignments; nothing else may.
  QStringList Changed(const QStringList& assignments) {
    const QString file = Write("set.dfm", SmallForm);
    const Result r = Vrx(QStringList{L("set"), file} + assignments);
    EXPECT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_EQ(r.out + r.err, QString());
    QStringList before = QString::fromUtf8(SmallForm).split(u'\n'), changed;
    for (const QString& line : QString::fromUtf8(Read(file)).split(u'\n'))
      if (!before.removeOne(line)) changed << line.trimmed();
    return changed;
  }
  Result Refused(const QStringList& assignments) {
    const QString file = Write("set.dfm", SmallForm);
    const Result r = Vrx(QStringList{L("set"), file} + assignments);
    EXPECT_EQ(r.code, 1) << assignments.join(u' ').toStdString();
    EXPECT_EQ(r.out, QString());
    EXPECT_EQ(Read(file), SmallForm);
    return r;
  }
};
}  // namespace

TEST_F(GetCli, PrintsValuesAsFormText) {
  const QString file = Write("a.dfm", SmallForm);
  const std::pair<const char*, const char*> rows[] = {{"Go.Caption", "'Go'"},
                                                      {"go.left", "8"},
                                                      {"Form1.Color", "clBtnFace"},
                                                      {"Form1.Font.Style", "[]"},
                                                      {"Go.OnClick", "GoClick"},
                                                      {"Note.FocusControl", "Go"},
                                                      {"Go.Visible", "True"},
                                                      {"Go.Anchors", "[akLeft, akTop]"},
                                                      {"Form1.Font.Charset", "DEFAULT_CHARSET"},
                                                      {"Note.Alignment", "taLeftJustify"},
                                                      {"Go.OnEnter", "nil"},
                                                      {"Go.ModalResult", "0"}};
  for (const auto& [path, value] : rows) {
    const Result r = Vrx({L("get"), file, L(path)});
    EXPECT_EQ(r.code, 0) << path << r.err.toStdString();
    EXPECT_EQ(r.out, L(value) + u'\n') << path;
    EXPECT_EQ(r.err, QString());
  }
}

TEST_F(GetCli, PrintsAWholeComponentOrAPart) {
  const QString file = Write("a.dfm", SmallForm);
  EXPECT_EQ(Vrx({L("get"), file, L("Note")}).out,
            L("Left = 8\nTop = 60\nWidth = 30\nHeight = 15\nCaption = 'Note'\nFocusControl = Go\n"));
  const Result font = Vrx({L("get"), file, L("Form1.Font")});
  EXPECT_TRUE(font.Lines().contains(L("Font.Name = 'Tahoma'")));
  EXPECT_TRUE(font.Lines().contains(L("Font.Height = -12")));
  for (const QString& line : font.Lines()) EXPECT_TRUE(line.startsWith(L("Font.")));
}

TEST_F(GetCli, SaysWhatIsNotThere) {
  const QString file = Write("a.dfm", SmallForm);
  for (const char* what : {"Nobody", "Nobody.Left", "Go.Wings", "Go.Left.More", "Go.Font.Wings"}) {
    const Result r = Vrx({L("get"), file, L(what)});
    EXPECT_EQ(r.code, 1) << what;
    EXPECT_EQ(r.out, QString());
    EXPECT_TRUE(r.err.startsWith(L("vrx get: "))) << r.err.toStdString();
  }
  EXPECT_EQ(Vrx({L("get"), file, L("Nobody")}).err,
            L("vrx get: ") + file + L(" has no component named \"Nobody\".\n"));
  EXPECT_EQ(Vrx({L("get"), file, L("not")}).err.toStdString(),
            (L("vrx get: ") + file + L(" has no component named \"not\". Did you mean Note or Go?\n"))
                .toStdString());
  EXPECT_EQ(Vrx({L("get"), file, L("go.lfet")}).err,
            L("vrx get: ") + file + L(": Go (TButton) has no property \"lfet\". Did you mean Left?\n"));
  EXPECT_EQ(Vrx({L("get"), Path("missing.dfm"), L("Go")}).code, 1);
  EXPECT_EQ(Vrx({L("get"), file}).code, 2);
  EXPECT_EQ(Vrx({L("get"), file, L("Go"), L("Note")}).code, 2);
}

TEST_F(SetCli, WritesEveryKindOfValue) {
  EXPECT_EQ(Changed({L("Go.Left=99")}), QStringList{L("Left = 99")});
  EXPECT_EQ(Changed({L("Go.Caption='It''s on'")}), QStringList{L("Caption = 'It'#39's on'")});
  EXPECT_EQ(Changed({L("Form1.Color=clRed")}), QStringList{L("Color = clRed")});
  EXPECT_EQ(Changed({L("Form1.Color=255")}), QStringList{L("Color = clRed")});
  EXPECT_EQ(Changed({L("Go.Enabled=False")}), QStringList{L("Enabled = False")});
  EXPECT_EQ(Changed({L("Form1.BorderIcons=[biSystemMenu, biHelp]")}),
            QStringList{L("BorderIcons = [biSystemMenu, biHelp]")});
  EXPECT_EQ(Changed({L("Form1.Position=poScreenCenter")}), QStringList{L("Position = poScreenCenter")});
  EXPECT_EQ(Changed({L("Go.OnEnter=GoEnter")}), QStringList{L("OnEnter = GoEnter")});
  const QStringList font = Changed({L("Go.Font.Name='Arial'")});
  EXPECT_TRUE(font.contains(L("Font.Name = 'Arial'"))) << font.join(u'|').toStdString();
  EXPECT_TRUE(font.contains(L("ParentFont = False"))) << font.join(u'|').toStdString();
  EXPECT_EQ(Changed({L(" go . left = 12 ")}), QStringList{L("Left = 12")});
  EXPECT_EQ(Changed({L("Go.Caption='a=b.c'")}), QStringList{L("Caption = 'a=b.c'")});
}

TEST_F(SetCli, WhatStandsInAFrameIsNamedThroughTheFrame) {
  const QByteArray form =
      "object F: TF\n  inline Frame1: TFrame1\n    Left = 1\n    Top = 2\n    Width = 90\n    Height = 80\n  "
      "  "
      "inherited Button1: TButton\n      Caption = 'Old'\n    end\n  end\nend\n";
  const QString file = Write("frame.dfm", form);
  EXPECT_EQ(Vrx({L("get"), file, L("Frame1.Button1.Caption")}).out, QStringLiteral("'Old'\n"));
  EXPECT_EQ(Vrx({L("set"), file, L("Frame1.Button1.Caption='New'")}).code, 0);
  EXPECT_EQ(Read(file), QByteArray(form).replace("Old", "New"));
}

TEST_F(SetCli, AnAlignmentThatTakesTheEditBackIsNoSuccess) {
  const QByteArray form =
      "object F: TF\n  ClientHeight = 100\n  ClientWidth = 200\n  object P: TPanel\n    Left = 0\n    Top = "
      "0\n    "
      "Width = 200\n    Height = 30\n    Align = alTop\n  end\nend\n";
  const QString file = Write("aligned.dfm", form);
  const Result r = Vrx({L("set"), file, L("P.Width=300")});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains(QStringLiteral("Width stays 200. P is aligned (Align = alTop)")))
      << r.err.toStdString();
  EXPECT_EQ(Read(file), form);
  EXPECT_EQ(Vrx({L("set"), file, L("P.Align=alNone"), L("P.Width=300")}).code, 0);
}

TEST_F(SetCli, ADataModuleHasNoCaption) {
  const QByteArray form = "object M: TM\n  OldCreateOrder = False\n  Height = 200\n  Width = 300\nend\n";
  const QString file = Write("module.dfm", form);
  EXPECT_EQ(Vrx({L("set"), file, L("M.Caption='x'")}).code, 1);
  EXPECT_EQ(Read(file), form);
}

TEST_F(SetCli, TheSameValueChangesNoByte) {
  EXPECT_EQ(Changed({L("Go.Left=8"), L("Form1.Color=clBtnFace")}), QStringList());
}

TEST_F(SetCli, ADefaultLeavesTheFile) {
  const QString file = Write("a.dfm", SmallForm);
  EXPECT_EQ(Vrx({L("set"), file, L("Note.FocusControl=nil")}).code, 0);
  EXPECT_EQ(Read(file), QByteArray(SmallForm).replace("    FocusControl = Go\n", ""));
}

TEST_F(SetCli, SeveralAssignmentsAreMadeTogetherOrNotAtAll) {
  EXPECT_EQ(Changed({L("Go.Left=10"), L("Note.Top=70"), L("Go.Width=80")}),
            (QStringList{L("Left = 10"), L("Width = 80"), L("Top = 70")}));
  Refused({L("Go.Left=10"), L("Go.Enabled=perhaps")});
  Refused({L("Go.Left=10"), L("Nobody.Left=1")});
  Refused({L("Go.Left=10"), L("Go.Wings=1")});
}

TEST_F(SetCli, ARefusedValueSaysWhy) {
  const std::pair<const char*, const char*> rows[] = {{"Go.Left=many", "Left"},
                                                      {"Go.Left='8'", "Left"},
                                                      {"Go.Left=99999999999", "99999999999"},
                                                      {"Go.Enabled=2", "Enabled"},
                                                      {"Form1.Position=poNowhere", "TPosition"},
                                                      {"Form1.Font.Style=[fsLoud]", "fsLoud"},
                                                      {"Go.Caption=Go on", "'...'"},
                                                      {"Note.FocusControl=Note", "FocusControl"},
                                                      {"Note.FocusControl=Gone", "Gone"},
                                                      {"Form1.Font=1", "Font"},
                                                      {"Go.Wings=1", "Wings"},
                                                      {"Nobody.Left=1", "Nobody"},
                                                      {"Go.Caption=12", "string"}};
  for (const auto& [assignment, word] : rows) {
    const Result r = Refused({L(assignment)});
    EXPECT_TRUE(r.err.startsWith(L("vrx set: "))) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains(L(word))) << assignment << ": " << r.err.toStdString();
  }
}

TEST_F(SetCli, AnotherFileTakesTheResult) {
  const QString file = Write("a.dfm", SmallForm), out = Path("out.dfm");
  EXPECT_EQ(Vrx({L("set"), file, L("-o"), out, L("Go.Left=9")}).code, 0);
  EXPECT_EQ(Read(file), SmallForm);
  EXPECT_EQ(Read(out),
            QByteArray(SmallForm).replace("    Left = 8\n    Top = 16", "    Left = 9\n    Top = 16"));
  EXPECT_EQ(Vrx({L("set"), file, L("-o"), out, L("Go.Left=x y")}).code, 1);
  EXPECT_TRUE(Read(out).contains("Left = 9"));
}

TEST_F(SetCli, AFileThatChangesMeanwhileIsLeftAlone) {
  const QString file = Write("a.dfm", SmallForm);
  const QByteArray other = QByteArray(SmallForm).replace("'Small'", "'Other'");
  const ForeignChange change(file, other);
  for (const QStringList& to : {QStringList(), {L("-o"), file}, {L("-o"), Path("./a.dfm")}}) {
    Write("a.dfm", SmallForm);
    const Result r = Vrx(QStringList{L("set"), file, L("Go.Left=9")} + to);
    EXPECT_EQ(r.code, 1);
    EXPECT_TRUE(r.err.startsWith(L("vrx set: ")) && r.err.contains(file) &&
                r.err.contains(L("another program")))
        << r.err.toStdString();
    EXPECT_EQ(Read(file), other);
  }
  const QString out = Path("out.dfm");
  EXPECT_EQ(Vrx({L("set"), file, L("-o"), out, L("Go.Left=9")}).code, 0);
}

TEST_F(SetCli, ABinaryFormStaysBinary) {
  const QString text = Write("a.dfm", SmallForm), binary = Path("b.dfm");
  ASSERT_EQ(Vrx({L("convert"), text, binary, L("--to"), L("binary")}).code, 0);
  EXPECT_EQ(Vrx({L("set"), binary, L("Go.Left=9")}).code, 0);
  EXPECT_TRUE(Read(binary).startsWith("TPF0"));
  EXPECT_EQ(Vrx({L("get"), binary, L("Go.Left")}).out, L("9\n"));
}

TEST_F(SetCli, WrongUseIsTwo) {
  const QString file = Write("a.dfm", SmallForm);
  for (const QStringList& arguments : {QStringList{file},
                                       {file, L("Go.Left")},
                                       {file, L("Left=1")},
                                       {file, L("=1")},
                                       {file, L("Go.Left=1"), L("-o")}}) {
    EXPECT_EQ(Vrx(QStringList{L("set")} + arguments).code, 2) << arguments.join(u' ').toStdString();
    EXPECT_EQ(Read(file), SmallForm);
  }
}

TEST_F(SetCli, ANegativeSizeIsRefusedAndSaysWhy) {
  const Result r = Refused({L("Go.Width=-5")});
  EXPECT_TRUE(r.err.contains(L("Width of Go cannot be -5"))) << r.err.toStdString();
  Refused({L("Go.Left=3"), L("Go.Height=-1")});
  Refused({L("Form1.ClientWidth=-20")});
  EXPECT_EQ(Changed({L("Go.Left=-5")}), QStringList{L("Left = -5")});
}

TEST_F(SetCli, ARefusalNamesThePathTheValuesAndTheMisfit) {
  EXPECT_TRUE(Refused({L("Go.Font.Color=clFoo")}).err.contains(L("Font.Color cannot be clFoo")));
  const Result align = Refused({L("Go.Align=alFoo")});
  for (const char* name : {"alNone", "alTop", "alClient"}) EXPECT_TRUE(align.err.contains(L(name)));
  EXPECT_TRUE(
      Refused({L("Note.FocusControl=Note")}).err.contains(L("Note, which is a TLabel and no TWinControl")));
  EXPECT_TRUE(Refused({L("Note.FocusControl=Gone")}).err.contains(L("Gone, which is not on this form")));
}

TEST_F(SetCli, WhatNoClassKnowsIsSetWhereTheFormSaysIt) {
  const QByteArray form = QByteArray(SmallForm).replace(
      "    TabOrder = 0\n", "    Wings.Span = 4\n    Feathers = 'few'\n    TabOrder = 0\n");
  const QString file = Write("wings.dfm", form);
  EXPECT_EQ(Vrx({L("set"), file, L("Go.Wings.Span=12"), L("Go.Feathers='a lot'"), L("Go.Left=9")}).code, 0);
  EXPECT_EQ(Vrx({L("get"), file, L("Go.Wings.Span")}).out, L("12\n"));
  EXPECT_EQ(Read(file), QByteArray(form)
                            .replace("Span = 4", "Span = 12")
                            .replace("'few'", "'a lot'")
                            .replace("    Left = 8\n    Top = 16", "    Left = 9\n    Top = 16"));
  EXPECT_EQ(Vrx({L("set"), file, L("Go.Tail=1")}).code, 1);
  EXPECT_EQ(Vrx({L("set"), file, L("Note.Feathers='none'")}).code, 1);
}

// Names of files may look like options.
TEST_F(Cli, WhatStandsBehindTwoDashesIsNoOption) {
  const QString before = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(Path("")));
  const auto back = qScopeGuard([&] { QDir::setCurrent(before); });
  for (const char* name : {"-o", "--help", "--"}) {
    Write(name, "object F: TF\n  Caption = 'odd'\n  Tag = 3\nend\n");
    const QString file = QString::fromLatin1(name);
    Result r = Vrx({QStringLiteral("get"), QStringLiteral("--"), file, QStringLiteral("F.Caption")});
    EXPECT_EQ(r.code, 0) << name << r.err.toStdString();
    EXPECT_EQ(r.out, QStringLiteral("'odd'\n")) << name;
    r = Vrx({QStringLiteral("set"), QStringLiteral("-o"), QStringLiteral("out"), QStringLiteral("--"), file,
             QStringLiteral("F.Tag=4")});
    EXPECT_EQ(r.code, 0) << name << r.err.toStdString();
    EXPECT_TRUE(Read(Path("out")).contains("Tag = 4")) << name;
    EXPECT_TRUE(Read(Path(name)).contains("Tag = 3")) << name;
  }
  const Result r = Vrx({QStringLiteral("set"), QStringLiteral("--"), QStringLiteral("none"),
                        QStringLiteral("-o"), QStringLiteral("out")});
  EXPECT_TRUE(r.err.contains(QStringLiteral("none")) || r.code == 2) << r.err.toStdString();
  EXPECT_NE(r.code, 0);
}

TEST_F(Cli, SetRefusesWhatAnItemDoesNotHaveAndWritesNothing) {
  const QByteArray form = "object Form1: TForm1\n  object Bar: TStatusBar\n    Panels = <>\n  end\nend\n";
  const QString file = Write("items.dfm", form);
  const Result r = Vrx({L("set"), file, L("Bar.Panels=<item Foreign = 1 end>")});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains(L("Panels[0].Foreign"))) << r.err.toStdString();
  EXPECT_EQ(Vrx({L("set"), file, L("Bar.Panels=<item Width = 'x' end>")}).code, 1);
  EXPECT_EQ(Read(file), form);
  EXPECT_EQ(Vrx({L("set"), file, L("Bar.Panels=<item Width = 31 end>")}).code, 0);
  EXPECT_TRUE(Read(file).contains("Width = 31"));
}
