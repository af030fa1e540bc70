// Style managers: values by path, their file, what components take over, and controls that look as styles
// say.
#include "library/styles/StyleManager.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <limits>

#include "library/controls/CustomLabel.h"
#include "library/controls/Faced.h"
#include "library/controls/FillControl.h"
#include "library/controls/LEDLabel.h"
#include "library/controls/Light.h"
#include "library/controls/MMButton.h"
#include "library/controls/Switch.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "tests/library/LibraryTest.h"
#include "tests/support/Mutations.h"
#include "vcl/Button.h"
#include "vcl/Edit.h"
#include "vcl/Form.h"

namespace {
QString Q(const char* text) { return QString::fromUtf8(text); }
const QString Integer = QStringLiteral("Integer"), String = QStringLiteral("string"),
              Color = QStringLiteral("TColor"), Double = QStringLiteral("Double");
std::int64_t Code(TColor color) { return static_cast<std::int32_t>(color); }

// A value of each form, and substyles.
void FillAll(TVRXStyleManager& m) {
  m.WritePropValue(Q("TButton"), Q("Caption"), Q("Größe \"x\"\n\\ü\u2028"), String);
  m.WritePropValue(Q("TButton"), Q("Tag"), std::numeric_limits<std::int64_t>::min(), Integer);
  m.WritePropValue(Q("TButton|.Disabled"), Q("Rate"), 0.1L, Double);
  m.WritePropValue(Q("TButton|.Disabled"), Q("Rate2"), -1.5e-300L, Double);
  m.WritePropValue(Q(".Header"), Q("Glyph"),
                   QByteArray("\0\xFF"
                              "abc",
                              5),
                   Q("TBitmap"));
  m.WritePropValue(Q(".Header"), Q("Empty"), QByteArray(), Q("TBitmap"));
  m.WritePropValue(Q("TButton-like"), Q("Font.Color"), Code(clRed), Color);
}
QByteArray TextOf(const TVRXStyleManager& m) { return m.Styles().Text(); }
QString Refusal(const QByteArray& text) {
  try {
    TVRXStyles::FromText(text);
  } catch (const Exception& e) {
    return e.Message();
  }
  return {};
}
QStringList Names(const TVRXStyleManager& m) {
  QStringList names;
  m.GetStyleNames(names);
  return names;
}
QStringList Texts(const std::vector<TVRXStyleMisfit>& misfits) {
  QStringList texts;
  for (const auto& misfit : misfits) texts << misfit.Text();
  return texts;
}
}  // namespace

// --- Values

TEST(StyleManager, KeepsValuesOfFourFormsByPathNameAndType) {
  TVRXStyleManager m(nullptr);
  FillAll(m);
  QString text;
  std::int64_t number = 1;
  long double rate = 0;
  QByteArray bytes;
  EXPECT_TRUE(m.ReadPropValue(Q("TButton"), Q("Caption"), text, String));
  EXPECT_EQ(text, Q("Größe \"x\"\n\\ü\u2028"));
  EXPECT_TRUE(m.ReadPropValue(Q("TButton"), Q("Tag"), number, Integer));
  EXPECT_EQ(number, std::numeric_limits<std::int64_t>::min());
  EXPECT_TRUE(m.ReadPropValue(Q("TButton|.Disabled"), Q("Rate"), rate, Double));
  EXPECT_EQ(rate, 0.1L);
  EXPECT_TRUE(m.ReadPropValue(Q(".Header"), Q("Glyph"), bytes, Q("TBitmap")));
  EXPECT_EQ(bytes, QByteArray("\0\xFF"
                              "abc",
                              5));
  // Nothing of that type, form, name or style.
  EXPECT_FALSE(m.ReadPropValue(Q("TButton"), Q("Caption"), text, Color));
  EXPECT_EQ(text, QString());
  EXPECT_FALSE(m.ReadPropValue(Q("TButton"), Q("Caption"), number, String));
  EXPECT_EQ(number, 0);
  EXPECT_FALSE(m.ReadPropValue(Q("TButton"), Q("Nothing"), text, String));
  EXPECT_FALSE(m.ReadPropValue(Q("TEdit"), Q("Caption"), text, String));
  // Another form replaces the first.
  m.WritePropValue(Q("TButton"), Q("Tag"), Q("twelve"), Integer);
  EXPECT_FALSE(m.ReadPropValue(Q("TButton"), Q("Tag"), number, Integer));
}

TEST(StyleManager, ListsStylesWithTheirSubstylesBehindThemAndTheirValues) {
  TVRXStyleManager m(nullptr);
  for (const char* path : {"B", "A-x", "A", "A|z", "A|b|c", "A|b", ".a"})
    m.WritePropValue(Q(path), Q("Tag"), std::int64_t{1}, Integer);
  EXPECT_EQ(Names(m).join(u' '), Q(".a A A|b A|b|c A|z A-x B"));
  m.WritePropValue(Q("A"), Q("Font.Color"), std::int64_t{2}, Color);
  QStringList properties{Q("old")};
  m.GetProperties(Q("A"), properties);
  EXPECT_EQ(properties, (QStringList{Q("Font.Color:TColor"), Q("Tag:Integer")}));
  m.GetProperties(Q("nowhere"), properties);
  EXPECT_TRUE(properties.isEmpty());
}

TEST(StyleManager, RefusesWhatIsNoPathNoPropertyAndNoNumber) {
  TVRXStyleManager m(nullptr);
  FillAll(m);
  const QByteArray before = TextOf(m);
  for (const char* path : {"", "|a", "a||b", "a|", "(Default)", "(Default)|a"})
    EXPECT_THROW(m.WritePropValue(Q(path), Q("Tag"), std::int64_t{1}, Integer), Exception) << path;
  for (const char* name : {"", "a b", ".a", "a.", "a:b", "a=b", "a\n"})
    EXPECT_THROW(m.WritePropValue(Q("A"), Q(name), std::int64_t{1}, Integer), Exception) << name;
  EXPECT_THROW(m.WritePropValue(Q("A"), Q("Tag"), std::int64_t{1}, Q("")), Exception);
  EXPECT_THROW(m.WritePropValue(Q("A"), Q("Rate"), std::numeric_limits<long double>::infinity(), Double),
               Exception);
  EXPECT_EQ(TextOf(m), before);
}

TEST(StyleManager, RenamesAndErasesAStyleWithItsSubstylesAndNothingBeside) {
  TVRXStyleManager m(nullptr);
  for (const char* path : {"A", "A|b", "A|b|c", "A-x", "AB", "C|A"})
    m.WritePropValue(Q(path), Q("Tag"), std::int64_t{7}, Integer);
  m.RenameStyle(Q("A"), Q("C|D"));
  EXPECT_EQ(Names(m).join(u' '), Q("A-x AB C|A C|D C|D|b C|D|b|c"));
  std::int64_t tag = 0;
  EXPECT_TRUE(m.ReadPropValue(Q("C|D|b|c"), Q("Tag"), tag, Integer));
  EXPECT_THROW(m.RenameStyle(Q("C|D"), Q("C|A")), Exception);
  EXPECT_THROW(m.RenameStyle(Q("C|D"), Q("C|D|b|x")), Exception);
  EXPECT_THROW(m.RenameStyle(Q("C|D"), Q("")), Exception);
  m.RenameStyle(Q("nothing"), Q("something"));
  EXPECT_EQ(Names(m).join(u' '), Q("A-x AB C|A C|D C|D|b C|D|b|c"));
  m.EraseStyle(Q("C|D"));
  EXPECT_EQ(Names(m).join(u' '), Q("A-x AB C|A"));
  // One that is only a part of paths can be moved and erased, too.
  m.RenameStyle(Q("C"), Q("E"));
  EXPECT_EQ(Names(m).join(u' '), Q("A-x AB E|A"));
  m.EraseProperty(Q("AB"), Q("Tag"), Color);
  m.EraseProperty(Q("AB"), Q("Tag"), Integer);
  QStringList properties;
  m.GetProperties(Q("AB"), properties);
  EXPECT_TRUE(properties.isEmpty());
  EXPECT_TRUE(Names(m).contains(Q("AB")));
}

TEST(StyleManager, KnowsSevenStateStylesAndValidNames) {
  TVRXStyleManager m(nullptr);
  EXPECT_EQ(StateStyleNames.size(), 7u);
  for (const char* name : StateStyleNames) {
    EXPECT_TRUE(m.IsStateStyle(Q(name)));
    EXPECT_TRUE(m.IsValidStyleName(Q(name)));
    EXPECT_TRUE(Q(name).startsWith(u'.'));
  }
  EXPECT_FALSE(m.IsStateStyle(Q("Disabled")));
  EXPECT_FALSE(m.IsStateStyle(Q(".disabled")));
  for (const char* name : {".Header", "TButton", "T", "Plain", "1st", ".Über 2-a", "a b"})
    EXPECT_TRUE(m.IsValidStyleName(Q(name))) << name;
  for (const char* name :
       {"", ".", "..a", "a|b", "|", "TButton x", "T-x", "a ", " a", ". a", "(Default)", "a\n", "a:b", "a\"b"})
    EXPECT_FALSE(m.IsValidStyleName(Q(name))) << name;
  EXPECT_TRUE(m.IsValidStyleName(QString(255, u'a')));
  EXPECT_FALSE(m.IsValidStyleName(QString(256, u'a')));
}

TEST(StyleManager, TakesOverStylesByAssignment) {
  TForm form(nullptr);
  TVRXStyleManager a(&form), b(&form);
  FillAll(a);
  a.SetTag(5);
  b.SetName(Q("B"));
  b.WritePropValue(Q("Gone"), Q("Tag"), std::int64_t{1}, Integer);
  b.Assign(&a);
  EXPECT_EQ(TextOf(b), TextOf(a));
  EXPECT_EQ(b.Tag(), 5);
  EXPECT_EQ(b.Name(), Q("B"));
  const int revision = b.Revision();
  b.Assign(&a);
  b.Assign(&b);
  b.WritePropValue(Q("TButton"), Q("Tag"), std::numeric_limits<std::int64_t>::min(), Integer);
  EXPECT_EQ(b.Revision(), revision);
  b.WritePropValue(Q("TButton"), Q("Tag"), std::int64_t{1}, Integer);
  EXPECT_NE(TextOf(b), TextOf(a));
  TButton button(&form);
  EXPECT_THROW(b.Assign(&button), EConvertError);
}

TEST(StyleManager, KeepsLinesOfAFormThatItCannotReadAndRefusesToChangeThem) {
  TVRXStyleManager m(nullptr), copy(nullptr);
  m.SetName(Q("Mine"));
  auto* lines = As<TStrings>(GetObjectProp(m, m.ClassType().GetProp("Styles")));
  FillAll(m);
  EXPECT_EQ(As<TStrings>(GetObjectProp(m, m.ClassType().GetProp("Styles")))->Lines(), m.Styles().Lines());
  const QStringList damaged{Q("Styles 1"), Q("style A"), Q("end")};
  lines->SetLines(damaged);
  EXPECT_EQ(m.Problem(), Q("line 2: a style needs its path in quotes"));
  EXPECT_TRUE(Names(m).isEmpty());
  try {
    m.WritePropValue(Q("A"), Q("Tag"), std::int64_t{1}, Integer);
    ADD_FAILURE();
  } catch (const Exception& e) {
    EXPECT_TRUE(e.Message().contains(Q("Mine"))) << e.what();
    EXPECT_TRUE(e.Message().contains(Q("line 2"))) << e.what();
  }
  copy.Assign(&m);
  EXPECT_EQ(As<TStrings>(GetObjectProp(copy, m.ClassType().GetProp("Styles")))->Lines(), damaged);
  EXPECT_EQ(As<TStrings>(GetObjectProp(m, m.ClassType().GetProp("Styles")))->Lines(), damaged);
  lines->SetLines({});
  EXPECT_EQ(m.Problem(), QString());
  m.WritePropValue(Q("A"), Q("Tag"), std::int64_t{1}, Integer);
  EXPECT_EQ(Names(m), QStringList{Q("A")});
}

// --- Files

TEST(StyleFile, ReadsBackWhatItWrote) {
  TVRXStyleManager m(nullptr), read(nullptr);
  FillAll(m);
  read.SetStyles(TVRXStyles::FromText(TextOf(m)));
  EXPECT_EQ(TextOf(read), TextOf(m));
  EXPECT_TRUE(read.Styles() == m.Styles());
  EXPECT_EQ(TVRXStyles().Text(), "Styles 1\nend\n");
  EXPECT_TRUE(TVRXStyles::FromText("Styles 1\nend\n").IsEmpty());
}

TEST(StyleFile, HasOneLineForAValueInAnOrderThatStays) {
  TVRXStyleManager m(nullptr);
  FillAll(m);
  EXPECT_EQ(QString::fromUtf8(TextOf(m)), Q("Styles 1\n"
                                            "style \".Header\"\n"
                                            "  Empty:TBitmap = stream\n"
                                            "  Glyph:TBitmap = stream AP9hYmM=\n"
                                            "style \"TButton\"\n"
                                            "  Caption:string = text \"Größe \\\"x\\\"\\u000a\\\\ü\\u2028\"\n"
                                            "  Tag:Integer = integer -9223372036854775808\n"
                                            "style \"TButton|.Disabled\"\n"
                                            "  Rate:Double = float 0.1\n"
                                            "  Rate2:Double = float -1.5e-300\n"
                                            "style \"TButton-like\"\n"
                                            "  Font.Color:TColor = integer 255\n"
                                            "end\n"));
  // The same styles, made in another order.
  TVRXStyleManager other(nullptr);
  const auto& all = m.Styles().All();
  for (auto style = all.rbegin(); style != all.rend(); ++style)
    for (auto value = style->second.rbegin(); value != style->second.rend(); ++value)
      other.WritePropValue(style->first, value->first.Name, value->second, value->first.TypeName);
  EXPECT_EQ(TextOf(other), TextOf(m));
  // One value more is one line more.
  other.WritePropValue(Q("TButton"), Q("Hint"), Q("h"), String);
  QStringList lines = QString::fromUtf8(TextOf(other)).split(u'\n');
  EXPECT_EQ(lines.removeAll(Q("  Hint:string = text \"h\"")), 1);
  EXPECT_EQ(lines.join(u'\n').toUtf8(), TextOf(m));
}

TEST(StyleFile, KeepsStylesWithoutValues) {
  const QByteArray text =
      "Styles 1\nstyle \"A\"\nstyle \"A|b\"\n  Tag:Integer = integer 1\nstyle \"B\"\nend\n";
  EXPECT_EQ(TVRXStyles::FromText(text).Text(), text);
}

TEST(StyleFile, ThatIsDamagedIsRefusedWithLineAndReason) {
  const std::pair<const char*, const char*> rows[] = {
      {"", "line 1: a file that begins with \"Styles 1\" is needed"},
      {"Style 1\nend\n", "line 1: a file that begins with \"Styles 1\" is needed"},
      {"Styles 2\nend\n", "line 1: the file is of version 2, and only version 1 is known"},
      {"Styles 1\n", "line 2: it ends before its last line, \"end\""},
      {"Styles 1\nend\nstyle \"A\"\n", "line 3: there is something behind the end"},
      {"Styles 1\n  Tag:Integer = integer 1\nend\n", "line 2: a line of a block stands in none"},
      {"Styles 1\n!\nend\n", "line 2: \"!\" begins no block"},
      {"Styles 1\nstyle A\nend\n", "line 2: a style needs its path in quotes"},
      {"Styles 1\nstyle \"\"\nend\n", "line 2: \"\" is no path of a style"},
      {"Styles 1\nstyle \"A||B\"\nend\n", "line 2: \"A||B\" is no path of a style"},
      {"Styles 1\nstyle \"(Default)\"\nend\n", "line 2: \"(Default)\" is no path of a style"},
      {"Styles 1\nstyle \"A\"\nstyle \"A\"\nend\n", "line 3: the style A is there already"},
      {"Styles 1\nstyle \"A\"\n  Tag = integer 1\nend\n",
       "line 3: \"Tag = integer 1\" is no value: NAME:TYPE = WAY VALUE is"},
      {"Styles 1\nstyle \"A\"\n  T:I = integer 1\n  T:I = integer 1\nend\n", "line 4: T is there already"},
      {"Styles 1\nstyle \"A\"\n  T:I = integer 1.5\nend\n", "line 3: \"1.5\" is no whole number"},
      {"Styles 1\nstyle \"A\"\n  T:I = integer 9223372036854775808\nend\n",
       "line 3: \"9223372036854775808\" is no whole number"},
      {"Styles 1\nstyle \"A\"\n  T:I = float x\nend\n", "line 3: \"x\" is no number"},
      {"Styles 1\nstyle \"A\"\n  T:I = float inf\nend\n", "line 3: \"inf\" is no number"},
      {"Styles 1\nstyle \"A\"\n  T:I = text x\nend\n", "line 3: a text stands in quotes"},
      {"Styles 1\nstyle \"A\"\n  T:I = stream %%%\nend\n", "line 3: the data of a stream is damaged"},
      {"Styles 1\nstlye \"A\"\nend\n", "line 2: \"stlye\" begins no style"},
      {"Styles 1\nstyle \"A\"\n  T:I = integr 5\nend\n",
       "line 3: \"integr\" is no way to keep a value: text, integer, float and stream are"},
      {"Styles 1\n\xFF\nend\n", "line 2: it is no text"},
  };
  for (const auto& [text, reason] : rows) EXPECT_EQ(Refusal(text).toStdString(), reason);
}

TEST(StyleFile, ThatEndsTooEarlyAnywhereIsRefused) {
  TVRXStyleManager m(nullptr);
  FillAll(m);
  const QByteArray text = TextOf(m);
  for (qsizetype length = 0; length < text.size() - 1; ++length)
    EXPECT_NE(Refusal(text.left(length)), QString()) << length;
  EXPECT_EQ(TVRXStyles::FromText(text.chopped(1)).Text(), text);
  EXPECT_EQ(TVRXStyles::FromText("\xEF\xBB\xBF" + QByteArray(text).replace("\n", "\r\n")).Text(), text);
}

TEST(StyleFile, ThatIsMutatedIsReadOrRefusedAndNeverHalfRead) {
  TVRXStyleManager whole(nullptr), m(nullptr);
  FillAll(whole);
  const QByteArray text = TextOf(whole);
  m.WritePropValue(Q("Mine"), Q("Tag"), std::int64_t{4}, Integer);
  QTemporaryDir folder;
  const QString path = folder.filePath(Q("styles"));
  const QByteArray before = TextOf(m);
  Mutations mutations(text, 91);
  int read = 0, refused = 0;
  for (int i = 0; i < 4000; ++i) {
    const QByteArray bytes = mutations.Next();
    try {
      const TVRXStyles styles = TVRXStyles::FromText(bytes);
      ++read;
      ASSERT_EQ(TVRXStyles::FromText(styles.Text()).Text(), styles.Text()) << bytes.toStdString();
    } catch (const Exception& e) {
      ++refused;
      ASSERT_TRUE(e.Message().startsWith(Q("line "))) << e.what();
      if (refused % 50 != 0) continue;
      QFile file(path);
      ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
      file.close();
      EXPECT_THROW(m.LoadFromFile(path), Exception);
      ASSERT_EQ(TextOf(m), before);
    }
  }
  EXPECT_GT(read, 100);
  EXPECT_GT(refused, 200);
}

TEST(StyleFile, IsReplacedAsAWholeOrStays) {
  QTemporaryDir folder;
  const QString path = folder.filePath(Q("my styles.txt"));
  TVRXStyleManager m(nullptr), read(nullptr);
  FillAll(m);
  m.SaveToFile(path);
  read.LoadFromFile(path);
  EXPECT_EQ(TextOf(read), TextOf(m));
  EXPECT_THROW(m.SaveToFile(folder.filePath(Q("no/such/folder"))), Exception);
  EXPECT_THROW(m.SaveToFile(folder.path()), Exception);
  EXPECT_THROW(m.LoadFromFile(folder.path()), Exception);
  EXPECT_THROW(m.LoadFromFile(folder.filePath(Q("none"))), Exception);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{Q("my styles.txt")});
}

// --- Applying

TEST(StyleApply, GivesFurtherStylesFirstAndTheNearestLast) {
  TForm form(nullptr);
  TButton button(&form);
  TVRXStyleManager m(&form);
  m.WritePropValue(Q("TControl"), Q("Hint"), Q("far"), String);
  m.WritePropValue(Q("TControl"), Q("Font.Size"), std::int64_t{20}, Integer);
  m.WritePropValue(Q("TControl|TButton"), Q("Hint"), Q("near"), String);
  m.WritePropValue(Q("TControl|TButton"), Q("Font.Style"), Q("[fsBold,fsItalic]"), Q("TFontStyles"));
  m.WritePropValue(Q("TControl|TButton"), Q("_StyleKind"), std::int64_t{1}, Integer);
  m.WritePropValue(Q("TControl|TButton"), Q("Visible"), std::int64_t{0}, Q("Boolean"));
  EXPECT_TRUE(m.ApplyStyle(button, Q("TControl|TButton"), true).empty());
  EXPECT_EQ(button.Hint(), Q("near"));
  EXPECT_EQ(button.Font()->Size(), 20);
  EXPECT_TRUE(button.Font()->Style() == (TFontStyles{TFontStyle::fsBold, TFontStyle::fsItalic}));
  EXPECT_FALSE(button.Visible());
  TButton other(&form);
  const int size = other.Font()->Size();
  EXPECT_TRUE(m.ApplyStyle(other, Q("TControl|TButton"), false).empty());
  EXPECT_EQ(other.Font()->Size(), size);
  EXPECT_EQ(other.Hint(), Q("near"));
}

TEST(StyleApply, TellsWhatDoesNotFitAndSetsTheRest) {
  TForm form(nullptr);
  TEdit edit(&form);
  edit.SetName(Q("Edit1"));
  TVRXStyleManager m(&form);
  const QString path = Q("TEdit");
  m.WritePropValue(path, Q("Gone"), std::int64_t{1}, Integer);
  m.WritePropValue(path, Q("Font.Gone"), std::int64_t{1}, Integer);
  m.WritePropValue(path, Q("Hint.Gone"), std::int64_t{1}, Integer);
  m.WritePropValue(path, Q("Align"), std::int64_t{99}, Q("TAlign"));
  m.WritePropValue(path, Q("Cursor"), Q("crWhat"), Q("TCursor"));
  m.WritePropValue(path, Q("Color"), Code(clRed), Integer);
  m.WritePropValue(path, Q("Name"), Q("Other"), Q("TComponentName"));
  m.WritePropValue(path, Q("OnClick"), Q("Click"), Q("TNotifyEvent"));
  m.WritePropValue(path, Q("PopupMenu"), Q("Menu9"), Q("TPopupMenu"));
  m.WritePropValue(path, Q("Font"), QByteArray("x"), Q("TFont"));
  m.WritePropValue(path, Q("ShowHint"), QByteArray("x"), Q("Boolean"));
  m.WritePropValue(path, Q("MaxLength"), std::int64_t{12}, Integer);
  const QStringList texts = Texts(m.ApplyStyle(edit, path));
  EXPECT_EQ(texts.size(), 11) << texts.join(u'\n').toStdString();
  for (const char* wanted :
       {"Style TEdit, Gone: TEdit has no property Gone", "Style TEdit, Font.Gone: TFont has no property Gone",
        "Style TEdit, Hint.Gone: Hint has no parts of its own",
        "Style TEdit, Color: its type is TColor here, not Integer",
        "Style TEdit, Name: names are a component's own"})
    EXPECT_TRUE(texts.contains(Q(wanted))) << wanted << "\n" << texts.join(u'\n').toStdString();
  EXPECT_EQ(edit.Name(), Q("Edit1"));
  EXPECT_EQ(edit.Get(TEdit::MaxLength), 12);
  EXPECT_EQ(edit.Color(), clWindow);
}

TEST(StyleApply, TakesTheFurtherValueWhereTheNearerOneIsRefused) {
  TForm form(nullptr);
  TButton button(&form);
  TVRXStyleManager m(&form);
  m.WritePropValue(Q("A"), Q("Align"), std::int64_t{1}, Q("TAlign"));
  m.WritePropValue(Q("A|B"), Q("Align"), std::int64_t{99}, Q("TAlign"));
  EXPECT_EQ(m.ApplyStyle(button, Q("A|B")).size(), 1u);
  EXPECT_EQ(static_cast<int>(button.Align()), 1);
}

namespace {
class Counting : public TButton {
 public:
  using TButton::TButton;
  int changing = 0, changed = 0;

 protected:
  void DoChanging() override { ++changing; }
  void DoChanged() override { ++changed; }
};
}  // namespace

TEST(StyleApply, IsOneChangeOfTheComponentAndNoneWhereNothingDiffers) {
  TForm form(nullptr);
  Counting button(&form);
  TVRXStyleManager m(&form);
  m.WritePropValue(Q("A"), Q("Hint"), Q("h"), String);
  m.WritePropValue(Q("A"), Q("Font.Size"), std::int64_t{33}, Integer);
  m.WritePropValue(Q("A"), Q("ShowHint"), std::int64_t{1}, Q("Boolean"));
  button.changing = button.changed = 0;
  m.ApplyStyle(button, Q("A"));
  EXPECT_EQ(button.changing, 1);
  EXPECT_EQ(button.changed, 1);
  m.ApplyStyle(button, Q("A"));
  EXPECT_EQ(button.changing, 1);
  EXPECT_EQ(button.changed, 1);
}

TEST(StyleApply, GivesBackWhatWasTakenFromAComponent) {
  TForm form(nullptr);
  TEdit from(&form), to(&form);
  from.Set(TEdit::MaxLength, 31);
  from.SetColor(clLime);
  from.Set(TEdit::PasswordChar, static_cast<TPasswordChar>(u'*'));
  from.Font()->SetStyle({TFontStyle::fsUnderline});
  TVRXStyleManager m(&form);
  const std::pair<const char*, const char*> rows[] = {
      {"MaxLength", "Integer"}, {"Color", "TColor"}, {"PasswordChar", "Char"}, {"Font.Style", "TFontStyles"}};
  for (const auto& [name, type] : rows) {
    const auto value = VRXStyleValueOf(from, Q(name));
    ASSERT_TRUE(value) << name;
    m.WritePropValue(Q("S"), Q(name), *value, Q(type));
  }
  QString text;
  EXPECT_TRUE(m.ReadPropValue(Q("S"), Q("PasswordChar"), text, Q("Char")));
  EXPECT_EQ(text, Q("*"));
  EXPECT_TRUE(Texts(m.ApplyStyle(to, Q("S"))).isEmpty());
  for (const auto& [name, type] : rows)
    EXPECT_TRUE(VRXStyleValueOf(to, Q(name)) == VRXStyleValueOf(from, Q(name)));
  EXPECT_EQ(to.Color(), clLime);
  EXPECT_FALSE(VRXStyleValueOf(from, Q("Nothing")));
  EXPECT_FALSE(VRXStyleValueOf(from, Q("OnClick")));
  EXPECT_FALSE(VRXStyleValueOf(from, Q("Hint.x")));
}

// --- Looks

namespace {
struct Stage {
  Stage() {
    text = new TVRXStaticText(&form);
    text->SetParent(&form);
    text->SetBounds(0, 0, 90, 30);
    text->SetCaption(Q("MMM"));
    manager = new TVRXStyleManager(&form);
    text->Set(VRXStyleManagerRef, manager);
  }
  int Pixels(QColor color) { return CountPixels(Draw(*text, Qt::white), color); }
  void Paint(const char* path, TColor color) {
    manager->WritePropValue(Q(path), Q("Color"), Code(color), Color);
  }
  TForm form{nullptr};
  TVRXStaticText* text;
  TVRXStyleManager* manager;
};
}  // namespace

TEST(StyledControl, HasTheStyleOfItsClassOrOfItsNearestAncestor) {
  Stage s;
  const QImage plain = Draw(*s.text, Qt::white);
  s.Paint("TVRXCustomLabel", clRed);
  EXPECT_GT(s.Pixels(Qt::red), 200);
  s.Paint("TVRXCustomLabel|TVRXStaticText", clBlue);
  EXPECT_GT(s.Pixels(Qt::blue), 200);
  EXPECT_EQ(s.Pixels(Qt::red), 0);
  s.text->Set(VRXStyleRef, Q(".Header"));
  EXPECT_GT(s.Pixels(Qt::blue), 200);  // there is no such style
  s.Paint(".Header", clLime);
  EXPECT_GT(s.Pixels(QColor(0, 255, 0)), 200);
  EXPECT_EQ(s.text->Color(), clBtnFace);
  s.text->Set(VRXStyleManagerRef, nullptr);
  EXPECT_EQ(Draw(*s.text, Qt::white), plain);
}

TEST(StyledControl, HasTheStylesOfItsStatesOverItsOwn) {
  Stage s;
  s.Paint("TVRXStaticText", clRed);
  s.Paint("TVRXStaticText|.Disabled", clBlue);
  s.Paint(".Disabled", clLime);  // of no style of this control
  EXPECT_GT(s.Pixels(Qt::red), 200);
  s.text->SetEnabled(false);
  EXPECT_GT(s.Pixels(Qt::blue), 200);
  EXPECT_EQ(s.Pixels(Qt::red), 0);
}

TEST(StyledControl, HasLettersAsStylesSayOverItsOwn) {
  Stage s;
  s.text->Font()->SetSize(20);
  s.manager->WritePropValue(Q("TVRXStaticText"), Q("Font.Color"), Code(clRed), Color);
  const int red = s.Pixels(Qt::red);
  EXPECT_GT(red, 20);
  EXPECT_NE(s.text->Font()->Color(), clRed);
  s.manager->WritePropValue(Q("TVRXStaticText|.Disabled"), Q("Font.Color"), Code(clBlue), Color);
  s.text->SetEnabled(false);
  EXPECT_GT(s.Pixels(Qt::blue), 20);
}

TEST(StyledControl, TakesTheStyleThatItsFaceControllerNamesForAState) {
  Stage s;
  auto* face = new TVRXFaceController(&s.form);
  s.text->Set(VRXFaceControllerRef, face);
  const int style = face->AddSettingObject(TVRXCFCSettingObjectKind::okStyle);
  auto* named = As<TVRXStateStyle>(face->SettingObjects()->Items(style));
  TVRXCFCStateObject* state = face->States()->Add();
  state->Set(TVRXCFCStateObject::Kind, {TVRXStateKind::skDisabled});
  state->Add(named, true);
  s.Paint("TVRXStaticText", clRed);
  s.Paint(".Warning", clBlue);
  s.Paint("TVRXStaticText|.Pressed", clLime);
  named->SetStyleName(Q(".Warning"));
  EXPECT_GT(s.Pixels(Qt::red), 200);
  s.text->SetEnabled(false);
  EXPECT_GT(s.Pixels(Qt::blue), 200);
  named->SetStyleName(Q(".Pressed"));  // below the control's own style
  EXPECT_GT(s.Pixels(QColor(0, 255, 0)), 200);
  named->SetStyleName(Q(".Nothing"));
  EXPECT_GT(s.Pixels(Qt::red), 200);
}

TEST(StyledControl, LooksAsBeforeWithAManagerThatSaysNothingOfIt) {
  Stage s;
  const QImage plain = Draw(*s.text, Qt::white);
  s.Paint("TVRXFill", clRed);
  EXPECT_EQ(Draw(*s.text, Qt::white), plain);
  delete s.manager;
  EXPECT_EQ(s.text->Get(VRXStyleManagerRef), nullptr);
  EXPECT_EQ(Draw(*s.text, Qt::white), plain);
}

TEST(StyledControl, TakesItsGroundWhereItsStyleIsAShape) {
  TForm form(nullptr);
  TVRXLight light(&form);
  light.SetParent(&form);
  light.SetBounds(0, 0, 40, 40);
  TVRXStyleManager manager(&form);
  manager.WritePropValue(Q("TVRXLight"), Q("Color"), Code(clRed), Color);
  EXPECT_EQ(CountPixels(Draw(light, Qt::white), Qt::red), 0);
  light.Set(VRXStyleManagerRef, &manager);
  EXPECT_GT(CountPixels(Draw(light, Qt::white), Qt::red), 100);
}

TEST(StyledControl, ChangesWhatItsFaceControllerHasAndLeavesTheRestOfIt) {
  Stage s;
  auto* face = new TVRXFaceController(&s.form);
  s.text->Set(VRXFaceControllerRef, face);
  const int index = face->AddSettingObject(TVRXCFCSettingObjectKind::okFont);
  auto* font = As<TFont>(face->SettingObjects()->Items(index));
  font->SetColor(clRed);
  font->SetSize(20);
  face->States()->Add()->Add(font, true);
  const QImage plain = Draw(*s.text, Qt::white);
  EXPECT_GT(s.Pixels(Qt::red), 20);
  s.manager->WritePropValue(Q("TVRXStaticText"), Q("Font.Style"), Q("[fsBold]"), Q("TFontStyles"));
  EXPECT_GT(s.Pixels(Qt::red), 20);
  EXPECT_NE(Draw(*s.text, Qt::white), plain);
  EXPECT_TRUE(font->Style() == TFontStyles());
}
