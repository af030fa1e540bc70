// Styles on the command line: out of forms, into forms, and onto their components.
#include <QDir>
#include <QThread>

#include "CliTest.h"

namespace {
const QByteArray Styles =
    "Styles 1\n"
    "style \".Header\"\n"
    "  Font.Height:Integer = integer -20\n"
    "style \"TButton\"\n"
    "  Caption:TCaption = text \"Styled\"\n"
    "  Font.Style:TFontStyles = text \"[fsBold]\"\n"
    "style \"TButton|.Big\"\n"
    "  Height:Integer = integer 40\n"
    "end\n";

// With two managers, when they are wanted.
QByteArray Form(int managers) {
  QByteArray form = SmallForm;
  form.chop(4);
  for (int i = 1; i <= managers; ++i)
    form += "  object Styles" + QByteArray::number(i) +
            ": TVRXStyleManager\n    Styles.Strings = (\n      'Styles 1'\n      'style \"TLabel\"'\n"
            "      '  Hint:string = text \"from " +
            QByteArray::number(i) + "\"'\n      'end')\n  end\n";
  return form + "end\n";
}

class StyleCli : public Cli {
 protected:
  Result Style(const QStringList& arguments) { return Vrx(QStringList{L("style")} + arguments); }
  // Lines that the new bytes have and the old ones have not, and the other way round.
  static QString Difference(const QByteArray& before, const QByteArray& after) {
    QStringList left = QString::fromUtf8(before).split(u'\n'), added;
    for (const QString& line : QString::fromUtf8(after).split(u'\n'))
      if (!left.removeOne(line)) added << u'+' + line.trimmed();
    for (const QString& line : left) added << u'-' + line.trimmed();
    return added.join(u'|');
  }
};
}  // namespace

TEST_F(StyleCli, ListsTheStylesOfForms) {
  const QString one = Write("one.dfm", Form(2)), none = Write("none.dfm", SmallForm);
  const Result r = Style({L("list"), one, none});
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(r.Lines(), (QStringList{one + L(": Styles1: TLabel"), one + L(": Styles2: TLabel")}));
  EXPECT_EQ(Style({L("list"), one, L("--manager"), L("styles2"), L("--style"), L("TLabel")}).out,
            L("Styles 1\nstyle \"TLabel\"\n  Hint:string = text \"from 2\"\nend\n"));
  EXPECT_EQ(Style({L("list"), one, L("--style"), L("TLable")}).code, 1);
}

TEST_F(StyleCli, TakesStylesOutOfAFormAndPutsThemIntoOthers) {
  const QString one = Write("one.dfm", Form(1)), two = Write("two.dfm", Form(1)), file = Write("s", Styles);
  EXPECT_EQ(Style({L("import"), one, two, L("--from"), file, L("--style"), L("TButton")}).code, 0);
  EXPECT_EQ(
      Difference(Form(1), Read(one)),
      L("+'style \"TButton\"'|+'  Caption:TCaption = text \"Styled\"'|+'  Font.Style:TFontStyles = text "
        "\"[fsBold]\"'|+'style \"TButton|.Big\"'|+'  Height:Integer = integer 40'"));
  EXPECT_EQ(Read(two), Read(one));
  const QString out = Path("out");
  EXPECT_EQ(Style({L("export"), two, L("--style"), L("TButton"), L("-o"), out}).code, 0);
  EXPECT_EQ(Read(out),
            QByteArray(Styles).replace("style \".Header\"\n  Font.Height:Integer = integer -20\n", ""));
  // What is there already changes nothing.
  const QByteArray before = Read(one);
  EXPECT_EQ(Style({L("import"), one, L("--from"), out}).code, 0);
  EXPECT_EQ(Read(one), before);
}

TEST_F(StyleCli, GivesAStyleToTheComponentsOfItsClassAndChangesNothingElse) {
  const QString form = Write("form.dfm", SmallForm), file = Write("s", Styles);
  const Result r = Style({L("apply"), form, L("--from"), file, L("--style"), L("TButton|.Big")});
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(Difference(SmallForm, Read(form)),
            L("+Height = 40|+Caption = 'Styled'|+Font.Charset = DEFAULT_CHARSET|+Font.Color = clWindowText|+"
              "Font.Height = -12|+Font.Name = 'Tahoma'|+Font.Style = [fsBold]|+ParentFont = False|-Height = "
              "25|-Caption = 'Go'"));
  const QByteArray styled = Read(form);
  EXPECT_EQ(Style({L("apply"), form, L("--from"), file, L("--style"), L("TButton|.Big")}).code, 0);
  EXPECT_EQ(Read(form), styled);
}

TEST_F(StyleCli, TakesTheStyleOfTheFormsOwnManagerForAClassThatIsNamed) {
  const QString form = Write("form.dfm", Form(2));
  EXPECT_EQ(Style({L("apply"), form, L("--manager"), L("Styles2"), L("--style"), L("TLabel"), L("--class"),
                   L("TControl")})
                .code,
            0);
  EXPECT_EQ(Difference(Form(2), Read(form)), L("+Hint = 'from 2'|+Hint = 'from 2'|+Hint = 'from 2'"));
}

TEST_F(StyleCli, PrintsWhatWouldChangeAndLeavesTheFormAlone) {
  const QString form = Write("form.dfm", Form(1));
  const Result r = Style({L("apply"), form, L("--style"), L("TLabel"), L("--dry-run")});
  EXPECT_EQ(r.code, 0);
  EXPECT_EQ(Read(form), Form(1));
  EXPECT_EQ(r.out, form + L(":28: + Hint = 'from 1'\n"));
}

TEST_F(StyleCli, TellsWhatDoesNotFitAndSetsTheRest) {
  const QString form = Write("form.dfm", SmallForm);
  const QString file = Write("s",
                             "Styles 1\nstyle \"TLabel\"\n  Gone:Integer = integer 1\n"
                             "  Hint:string = text \"h\"\nend\n");
  const Result r = Style({L("apply"), form, L("--from"), file, L("--style"), L("TLabel")});
  EXPECT_EQ(r.code, 1);
  EXPECT_EQ(r.err, form + L(": Note: Style TLabel, Gone: TLabel has no property Gone\n"));
  EXPECT_EQ(Difference(SmallForm, Read(form)), L("+Hint = 'h'"));
}

TEST_F(StyleCli, StylesThatCannotBeReadAreToldByACheckOfTheForm) {
  const QString whole = Write("whole.dfm", Form(1)),
                damaged = Write("damaged.dfm", Form(1).replace("text \"from", "text from"));
  EXPECT_EQ(Vrx({L("check"), whole}).code, 0);
  const Result r = Vrx({L("check"), damaged});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(
      r.out.contains(L("error: Styles1: TVRXStyleManager: the styles cannot be read and are kept as "
                       "they are: line 3: a text stands in quotes")))
      << r.out.toStdString();
  EXPECT_EQ(r.out.count(u'\n'), 1);
}

TEST_F(StyleCli, SaysWhatIsWrongAndGoesOnWithTheOtherForms) {
  const QString file = Write("s", Styles), good = Write("good.dfm", Form(1)), two = Write("two.dfm", Form(2)),
                none = Write("none.dfm", SmallForm), bad = Write("bad.dfm", "object"),
                damaged = Write("damaged.dfm", Form(1).replace("'Styles 1'", "'Style 1'"));
  const Result r = Style({L("import"), two, none, bad, damaged, Path("gone.dfm"), good, L("--from"), file});
  EXPECT_EQ(r.code, 1);
  for (const QString& part :
       {two + L(" has several style managers: Styles1, Styles2."), none + L(" has no style"), bad,
        damaged + L(": the styles of Styles1 cannot be read: line 1"), Path("gone.dfm")})
    EXPECT_TRUE(r.err.contains(part)) << part.toStdString() << "\n" << r.err.toStdString();
  EXPECT_NE(Read(good), Form(1));
  EXPECT_EQ(Read(two), Form(2));
  EXPECT_EQ(Style({L("import"), good, L("--from"), Write("d", "Styles 1\n")}).code, 1);
  EXPECT_EQ(Style({L("apply"), good, L("--style"), L("TNothing")}).code, 1);
  EXPECT_EQ(Style({L("apply"), good, L("--style"), L("TLabel"), L("--class"), L("TNothing")}).code, 1);
  EXPECT_EQ(Style({L("apply"), good, L("--from"), file, L("--style"), L(".Header")}).code, 2);
  for (const QStringList& wrong :
       std::initializer_list<QStringList>{{},
                                          {L("what"), good},
                                          {L("list")},
                                          {L("apply"), good},
                                          {L("import"), good},
                                          {L("export"), good},
                                          {L("list"), good, L("--from"), file},
                                          {L("list"), good, L("--dry-run")},
                                          {L("export"), good, L("-o"), Path("x"), L("--dry-run")},
                                          {L("import"), good, L("--from"), file, L("-o"), Path("x")},
                                          {L("import"), good, L("--from"), file, L("--class"), L("TLabel")},
                                          {L("apply"), good, L("--style"), L("TLabel"), L("-o"), Path("x")},
                                          {L("export"), good, two, L("-o"), L("x")}})
    EXPECT_EQ(Style(wrong).code, 2) << wrong.join(u' ').toStdString();
  EXPECT_FALSE(QFile::exists(Path("x")));
}

TEST_F(StyleCli, SizesAreTheStylesAlsoOfLabelsThatFitTheirText) {
  const QString form = Write("one.dfm", SmallForm),
                file = Write("s",
                             "Styles 1\nstyle \"TLabel\"\n  Caption:TCaption = text \"A longer text\"\n"
                             "  Font.Size:Integer = integer 20\n  Width:Integer = integer 200\nend\n");
  const QStringList apply{L("apply"), form, L("--from"), file, L("--style"), L("TLabel")};
  EXPECT_EQ(Style(apply).code, 0);
  const QByteArray once = Read(form);
  EXPECT_TRUE(once.contains("Width = 200")) << once.toStdString();
  EXPECT_EQ(Style(apply).code, 0);
  EXPECT_EQ(Read(form), once);
}

TEST_F(StyleCli, WhatIsImportedTakesThePlaceOfWhatIsThere) {
  const QString form = Write("one.dfm", Form(1)),
                file = Write("s", "Styles 1\nstyle \"TLabel\"\n  Hint:string = text \"new\"\nend\n");
  EXPECT_EQ(Style({L("import"), form, L("--from"), file}).code, 0);
  EXPECT_EQ(Difference(Form(1), Read(form)),
            L("+'  Hint:string = text \"new\"'|-'  Hint:string = text \"from 1\"'"));
}

TEST_F(StyleCli, StylesWithoutValuesAreImportedToo) {
  const QString form = Write("one.dfm", Form(1)),
                file = Write("s", "Styles 1\nstyle \"Empty\"\nstyle \"Empty|.Y\"\nend\n");
  for (const char* style : {"Empty", ""}) {
    EXPECT_EQ(Style({L("import"), form, L("--from"), file, L("--style"), L(style)}).code, 0);
    EXPECT_EQ(Difference(Form(1), Read(form)), L("+'style \"Empty\"'|+'style \"Empty|.Y\"'"));
  }
}

namespace {
class ManyForms : public StyleCli {
 protected:
  static constexpr int Count = 500;
  void SetUp() override {
    old_ = Read(Example());
    file_ = Write("s", "Styles 1\nstyle \"TLabel\"\n  Hint:string = text \"many\"\nend\n");
    for (int i = 0; i < Count; ++i)
      forms_ << Write(QByteArray("f" + QByteArray::number(i) + ".dfm").constData(), old_);
    const QString one = Write("one.dfm", old_);
    ASSERT_EQ(Style({L("apply"), one, L("--from"), file_, L("--style"), L("TLabel")}).code, 0);
    new_ = Read(one);
    ASSERT_NE(new_, old_);
  }
  QStringList Command() const {
    return QStringList{L("style"), L("apply"), L("--from"), file_, L("--style"), L("TLabel")} + forms_;
  }
  // Whether a process has one of the forms among its words.
  bool AnybodyWorks() const {
    for (const QString& entry : QDir(L("/proc")).entryList(QDir::Dirs))
      if (Read(L("/proc/") + entry + L("/cmdline")).contains(forms_.back().section(u'/', 0, -2).toUtf8()))
        return true;
    return false;
  }
  QByteArray old_, new_;
  QString file_;
  QStringList forms_;
};
}  // namespace

TEST_F(ManyForms, AreStyledOnAllCores) {
  const ProcessResult r = RealVrx(Command());
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(r.err, "");
  for (const QString& form : forms_) ASSERT_EQ(Read(form), new_) << form.toStdString();
}

TEST_F(ManyForms, AreEachOldOrNewWhenItIsKilledAmongThem) {
  QProcess process;
  process.start(QStringLiteral(VRX_BINARY_DIR "/bin/vrx"), Command());
  ASSERT_TRUE(process.waitForStarted(-1));
  while (process.state() == QProcess::Running && Read(forms_[20]) == old_) process.waitForFinished(1);
  process.kill();
  process.waitForFinished(-1);
  EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
  // Its helpers end with it.
  while (AnybodyWorks()) QThread::yieldCurrentThread();
  int changed = 0;
  for (const QString& form : forms_) {
    const QByteArray bytes = Read(form);
    ASSERT_TRUE(bytes == old_ || bytes == new_) << form.toStdString();
    changed += bytes == new_;
  }
  EXPECT_GT(changed, 20);
  EXPECT_LT(changed, Count);
  // The rest is done by doing it again.
  EXPECT_EQ(RealVrx(Command()).code, 0);
  for (const QString& form : forms_) ASSERT_EQ(Read(form), new_);
}
