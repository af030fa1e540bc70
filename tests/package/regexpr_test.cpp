// Regular expressions: what they find, their form, and the file of named ones.
#include "library/components/RegExpr.h"

#include <random>

#include "package/dialogs/pVRXVldRegExpEditor.h"
#include "package/property_editors/pVRXPeMain.h"
#include "rtl/Registry.h"
#include "tests/package/ListEditorTest.h"
#include "vcl/Theme.h"

namespace {
using F = TVRXRegExprForm;

class Answers : public ScriptedPrompts {
 public:
  QString SaveFileName(QWidget*, const QString&, const QString&, const QString& filter) override {
    filters << filter;
    return saveAs;
  }
  QString OpenFileName(QWidget*, const QString&, const QString&, const QString& filter) override {
    filters << filter;
    return file;
  }
  bool Confirm(QWidget*, const QString&, const QString& text) override {
    questions << text;
    return confirm;
  }
  QStringList filters, questions;
  QString saveAs;
  bool confirm = true;
};

class RegExprForm : public ListEditors {
 protected:
  void SetUp() override {
    ListEditors::SetUp();
    TRegistry::SetStorageFile(folder.filePath(QStringLiteral("settings.ini")));
    SaveIDECustomColors({});
  }
  void TearDown() override {
    TRegistry::SetStorageFile({});
    ApplyTheme(TTheme::Light);
  }
  QString FileWith(const QByteArray& bytes, const char* name = "library.txt") {
    const QString path = folder.filePath(QString::fromLatin1(name));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return path;
  }
  static QByteArray Read(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }
  static QString Remembered() {
    return TRegIniFile(QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025"))
        .ReadString(QStringLiteral("Validators"), QStringLiteral("RegExFile"), {});
  }
  static void Remember(const QString& file) {
    TRegIniFile ini(QStringLiteral("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025"));
    ini.WriteString(QStringLiteral("Validators"), QStringLiteral("RegExFile"), file);
    ini.UpdateFile();
  }
  static QString Rows(const F& form) {
    QStringList rows;
    for (const TTextPair& row : form.sgExpressions->Rows()) rows << row.First + u'\u2192' + row.Second;
    return rows.join(u'|');
  }
  // Runs the form on an expression.
  QString Edited(const QString& expression, const std::function<void(F&)>& act) {
    modal::NextOf<F>([&](F& form) { act(form); });
    F form(nullptr);
    return form.EditExpression(expression);
  }
  QTemporaryDir folder;
  Answers answers;
};
QString S(const char* text) { return QString::fromUtf8(text); }
}  // namespace

TEST_F(RegExprForm, WithoutAFileThereIsOneEmptyRow) {
  EXPECT_EQ(Edited(S("a+"),
                   [](F& form) {
                     EXPECT_EQ(form.windowTitle(), S("Regular Expression"));
                     EXPECT_EQ(form.sgExpressions->RowCount(), 2);
                     EXPECT_EQ(Rows(form), S("→"));
                     EXPECT_EQ(form.sgExpressions->SelectedRow(), -1);
                     EXPECT_EQ(form.edRegExpr->text(), S("a+"));
                     form.edRegExpr->setText(S("b+"));
                     form.accept();
                   }),
            S("b+"));
  EXPECT_EQ(Edited(S("a+"),
                   [](F& form) {
                     form.edRegExpr->setText(S("b+"));
                     form.reject();
                   }),
            S("a+"));
}

TEST_F(RegExprForm, OpensTheRememberedLibraryAtTheExpression) {
  Remember(FileWith("digits=[0-9]+\nmail=.+@.+=x\nempty=\nno separator\n"));
  Edited(S(".+@.+=x"), [](F& form) {
    EXPECT_EQ(Rows(form), S("digits→[0-9]+|mail→.+@.+=x|empty→|no separator→"));
    EXPECT_EQ(form.sgExpressions->SelectedRow(), 1);
    form.reject();
  });
  for (const char* other : {"[0-9]", ".+@.+=X", "[0-9]+ "})
    Edited(S(other), [&](F& form) {
      EXPECT_EQ(form.sgExpressions->SelectedRow(), -1);
      EXPECT_EQ(form.edRegExpr->text(), S(other));
      form.reject();
    });
}

TEST_F(RegExprForm, ANameThatComesTwiceShowsItsFirstExpression) {
  const QByteArray bytes = "a=1\nb=2\na=3\n";
  Remember(FileWith(bytes));
  Edited(S("x"), [](F& form) {
    EXPECT_EQ(Rows(form), S("a→1|b→2|a→1"));
    form.sgExpressions->Select(1);
    form.edExprName->setText(S("c"));
    form.btUpdateExpr->click();
    form.accept();
  });
  EXPECT_EQ(Read(Remembered()), QByteArray("a=1\nc=2\na=1\n")) << "as the grid shows them";
  EXPECT_EQ(Read(Remembered() + S(".bak")), bytes) << "what the grid did not show is kept beside";
}

TEST_F(RegExprForm, AppendsUpdatesAndRemovesEntries) {
  Remember(FileWith("a=1\nb=2\nc=3\n"));
  Edited(S("2"), [](F& form) {
    fields::ShowActive(form);
    EXPECT_EQ(form.edExprName->text(), S("b"));
    form.edExprName->setText(S("new"));
    form.edRegExpr->setText(S("n="));
    form.btAddExpr->click();
    EXPECT_EQ(form.sgExpressions->SelectedRow(), 3);
    form.sgExpressions->Select(0);
    EXPECT_EQ(form.edRegExpr->text(), S("1"));
    EXPECT_EQ(form.edExprName->text(), S("a"));
    form.edExprName->setText(S("A"));
    form.btUpdateExpr->click();
    form.sgExpressions->Select(1);
    form.edRegExpr->setText(S("typed"));
    form.btRemove->click();
    EXPECT_EQ(form.edRegExpr->text(), S("typed")) << "removing takes nothing over";
    EXPECT_EQ(Rows(form), S("A→1|c→3|new→n="));
    form.accept();
  });
  EXPECT_EQ(Read(Remembered()), QByteArray("A=1\nc=3\nnew=n=\n"));
  EXPECT_EQ(Read(Remembered() + S(".bak")), QByteArray("a=1\nb=2\nc=3\n"));
}

TEST_F(RegExprForm, RemovingTheOnlyEntryLeavesTheTitles) {
  F form(nullptr);
  form.sgExpressions->Select(0);
  form.btRemove->click();
  EXPECT_EQ(form.sgExpressions->RowCount(), 1);
  EXPECT_FALSE(form.btRemove->isEnabled());
  form.btRemoveClick();
  form.sgExpressionsClick();
  EXPECT_EQ(form.sgExpressions->RowCount(), 1);
}

TEST_F(RegExprForm, ADoubleClickTakesTheExpressionAndCloses) {
  Remember(FileWith("a=1\nb=2\n"));
  EXPECT_EQ(Edited(S("x"),
                   [](F& form) {
                     fields::ShowActive(form);
                     const QPoint at =
                         form.sgExpressions->visualRect(form.sgExpressions->model()->index(1, 1)).center();
                     QWidget* rows = form.sgExpressions->viewport();
                     QTest::mouseClick(rows, Qt::LeftButton, {}, at);
                     QTest::mouseDClick(rows, Qt::LeftButton, {}, at);
                   }),
            S("2"));
}

TEST_F(RegExprForm, IsLeftByTabWithoutAChange) {
  Remember(FileWith("a=1\nb=2\n"));
  EXPECT_EQ(Edited(S("x"),
                   [](F& form) {
                     fields::TabThrough(form);
                     EXPECT_EQ(form.edRegExpr->text(), S("x"));
                     QTest::keyClick(form.sgExpressions, Qt::Key_Down);
                     EXPECT_EQ(form.sgExpressions->SelectedRow(), 0);
                     EXPECT_EQ(form.edRegExpr->text(), S("1")) << "chosen with the keys";
                     form.reject();
                   }),
            S("x"));
  EXPECT_FALSE(QFile::exists(Remembered() + S(".bak")));
}

TEST_F(RegExprForm, FilesAreLoadedSavedAndRemembered) {
  const QString other = FileWith("o=ther\n", "other.txt");
  Edited(S("x"), [&](F& form) {
    answers.file = other;
    form.btLoad->click();
    EXPECT_EQ(Rows(form), S("o→ther"));
    EXPECT_EQ(Remembered(), other);
    EXPECT_TRUE(answers.questions.isEmpty());
    answers.saveAs = folder.filePath(S("copy.txt"));
    form.btSave->click();
    EXPECT_EQ(Remembered(), folder.filePath(S("copy.txt")));
    EXPECT_EQ(Read(Remembered()), QByteArray("o=ther\n"));
    EXPECT_EQ(answers.filters, (QStringList{S("Text files (*.txt);;All files (*.*)"),
                                            S("Text files (*.txt);;All files (*.*)")}));
    form.btAddExpr->click();
    answers.confirm = false;
    form.btLoad->click();
    EXPECT_EQ(answers.questions.size(), 1);
    EXPECT_EQ(form.sgExpressions->RowCount(), 3) << "the changes are not thrown away unasked";
    form.reject();
  });
  EXPECT_EQ(Read(Remembered()), QByteArray("o=ther\n")) << "Cancel writes nothing";
}

TEST_F(RegExprForm, WhatCannotBeALineIsRefused) {
  F form(nullptr);
  fields::ShowActive(form);
  for (const auto& [name, expression] :
       {std::pair{"a=b", "1"}, std::pair{"a", "1\n2"}, std::pair{"a\r", "1"}}) {
    answers.warned.clear();
    form.edExprName->setText(S(name));
    form.edRegExpr->setText(S(expression));
    form.btAddExpr->click();
    EXPECT_EQ(answers.warned.size(), 1) << name;
    form.sgExpressions->Select(0);
    form.edExprName->setText(S(name));
    form.edRegExpr->setText(S(expression));
    form.btUpdateExpr->click();
    EXPECT_EQ(answers.warned.size(), 2) << name;
    EXPECT_EQ(Rows(form), S("→"));
  }
}

TEST_F(RegExprForm, AFileThatCannotBeWrittenIsToldAndTheExpressionKept) {
  const QString place = folder.filePath(S("gone/library.txt"));
  Remember(place);
  EXPECT_EQ(Edited(S("x"),
                   [](F& form) {
                     form.edRegExpr->setText(S("y"));
                     form.btAddExpr->click();
                     form.accept();
                   }),
            S("y"));
  EXPECT_EQ(answers.warned.size(), 1);
  EXPECT_TRUE(answers.warned.value(0).contains(S("library.txt")));
}

TEST_F(RegExprForm, AnUntouchedLibraryIsNotWritten) {
  const QString place = folder.filePath(S("not-there.txt"));
  Remember(place);
  Edited(S("x"), [](F& form) { form.accept(); });
  EXPECT_FALSE(QFile::exists(place));
}

TEST_F(RegExprForm, TriesTheExpressionOnAText) {
  for (const TTheme theme : {TTheme::Light, TTheme::Dark}) {
    ApplyTheme(theme);
    F form(nullptr);
    fields::ShowActive(form);
    form.edRegExpr->setText(S("\\d+"));
    EXPECT_EQ(form.state->text(), QString());
    form.edSample->setPlainText(S("a12b\n345 c"));
    EXPECT_EQ(form.state->text(), S("2 matches"));
    const auto marks = form.edSample->extraSelections();
    ASSERT_EQ(marks.size(), 2);
    EXPECT_EQ(marks[0].cursor.selectedText(), S("12"));
    EXPECT_EQ(marks[1].cursor.selectedText(), S("345"));
    form.edRegExpr->setText(S("b"));
    EXPECT_EQ(form.state->text(), S("1 match"));
    form.edRegExpr->setText(S("x(y"));
    EXPECT_EQ(form.state->text(), S("Place 4: missing closing parenthesis"));
    EXPECT_TRUE(form.edSample->extraSelections().isEmpty());
    form.edRegExpr->setText(S("(a+)+$"));
    form.edSample->setPlainText(QString(200, u'a') + u'!');
    EXPECT_TRUE(form.state->text().contains(S("given up")));
  }
}

TEST_F(RegExprForm, OfAFormWritesTheExpressionOnOk) {
  const auto session = FormWith(
      "  object R: TVRXRegExpr\n    Expression = 'a+'\n    Left = 8\n    Top = 8\n  end\n", registry);
  const QByteArray before = session->Bytes();
  TComponent& component = *session->GetComponent(S("R"));
  const auto editor = Of({&component}, "Expression");
  EXPECT_EQ(editor->GetAttributes(), TPropertyAttributes{TPropertyAttribute::paDialog});
  EXPECT_EQ(editor->GetValue(), S("a+"));
  for (const bool ok : {false, true}) {
    Edit<F>(*session, component, "Expression", [&](F& form) {
      form.edRegExpr->setText(S("b*"));
      ok ? form.accept() : form.reject();
    });
    EXPECT_EQ(session->Bytes(), ok ? QByteArray(before).replace("'a+'", "'b*'") : before);
  }
  session->Undo();
  EXPECT_FALSE(session->CanUndo());
  EXPECT_EQ(session->Bytes(), before);
}

TEST_F(RegExprForm, OneEditorShowsOneFormAgainAndAgain) {
  TVRXRegExpr component(nullptr);
  const auto editor = Of({&component}, "Expression");
  F* first = nullptr;
  for (const char* text : {"1", "2"}) {
    modal::NextOf<F>([&](F& form) {
      if (!first) first = &form;
      EXPECT_EQ(&form, first);
      EXPECT_EQ(form.edRegExpr->text(), component.Get(TVRXRegExpr::Expression));
      form.edRegExpr->setText(S(text));
      form.accept();
    });
    editor->Edit();
    EXPECT_EQ(component.Get(TVRXRegExpr::Expression), S(text));
  }
}

bool IsUtf8(const QByteArray& bytes) { return QString::fromUtf8(".:" + bytes).toUtf8() == ".:" + bytes; }

// Whatever stands in the file: what is written shows the same rows again, and an entry more is one line more.
TEST(RegExprLibrary, WritesEveryRowOfARandomFileAsItIsShown) {
  const QByteArrayList pieces{"a=1", "b", "=", "\n",   "\r\n",     "\r", "\xEF\xBB\xBF", "a=2",
                              "",    " ", "#", "\xC3", "\xC3\xA4", "\t", "name=ex=pr",   QByteArray(1, '\0')};
  std::mt19937 random(97);
  for (int round = 0; round < 5000; ++round) {
    QByteArray bytes;
    for (auto i = random() % 20; i > 0; --i) bytes += pieces[random() % static_cast<unsigned>(pieces.size())];
    RegExprLibrary library(bytes);
    const QList<TTextPair> rows = library.Rows();
    const QByteArray written = library.Bytes();
    // A byte for a letter, and yet read as more: the only line that told them apart was not shown.
    if (IsUtf8(written) && !IsUtf8(bytes)) continue;
    ASSERT_EQ(RegExprLibrary(written).Rows(), rows) << bytes.toHex().constData();
    ASSERT_EQ(RegExprLibrary(written).Bytes(), written);
    ASSERT_EQ(written.startsWith("\xEF\xBB\xBF"), bytes.startsWith("\xEF\xBB\xBF"));
    library.Append({QStringLiteral("new"), QStringLiteral("x")});
    ASSERT_TRUE(library.Bytes().startsWith(written + "new=x"));
    ASSERT_EQ(RegExprLibrary(library.Bytes()).Count(), rows.size() + 1);
    if (rows.isEmpty()) continue;
    const auto row = static_cast<qsizetype>(random() % static_cast<unsigned>(rows.size()));
    library.Remove(row);
    ASSERT_EQ(RegExprLibrary(library.Bytes()).Count(), rows.size());
  }
}

TEST(RegExprLibrary, KeepsTheEndsOfLinesAndTheEncoding) {
  RegExprLibrary windows("a=1\r\nb=2\r\n");
  windows.Update(0, {QStringLiteral("a"), QStringLiteral("9")});
  windows.Append({QStringLiteral("c"), QStringLiteral("3")});
  EXPECT_EQ(windows.Bytes(), QByteArray("a=9\r\nb=2\r\nc=3\r\n"));
  RegExprLibrary latin("\xE4=1\n");
  EXPECT_EQ(latin.Rows().first().First, QStringLiteral("\u00E4"));
  latin.Append({QStringLiteral("\u00F6"), {}});
  EXPECT_EQ(latin.Bytes(), QByteArray("\xE4=1\n\xF6=\n"));
  EXPECT_THROW(latin.Append({QStringLiteral("\u20AC"), {}}), Exception);
}

TEST(RegExpr, FindsEveryMatch) {
  using M = QList<TVRXRegExMatch>;
  EXPECT_EQ(VRXFindMatches(S("a"), S("banana")).Matches, (M{{1, 1}, {3, 1}, {5, 1}}));
  EXPECT_EQ(VRXFindMatches(S("x*"), S("axa")).Matches, (M{{0, 0}, {1, 1}, {2, 0}, {3, 0}}));
  EXPECT_EQ(VRXFindMatches(S("\u00E4."), S("b\u00E4\U0001F384")).Matches, (M{{1, 3}}));
  EXPECT_EQ(VRXFindMatches(S("q"), S("banana")).Matches, M());
  for (const char* text : {"a", "x*", "q"}) EXPECT_FALSE(VRXFindMatches(S(text), S("axa")).GivenUp);
}

TEST(RegExpr, TellsWhereABadExpressionIsBad) {
  const TVRXRegExResult bad = VRXFindMatches(S("ab[c"), S("abc"));
  EXPECT_EQ(bad.Error, S("missing terminating ] for character class"));
  EXPECT_EQ(bad.ErrorAt, 4);
  EXPECT_TRUE(bad.Matches.isEmpty());
  EXPECT_EQ(VRXFindMatches(S("a"), {}).ErrorAt, -1);
}

TEST(RegExpr, GivesUpInTime) {
  EXPECT_TRUE(VRXFindMatches(S("(a+)+$"), QString(5000, u'a') + u'!').GivenUp);
  const TVRXRegExResult many = VRXFindMatches(S(""), QString(50'000, u'a'));
  EXPECT_TRUE(many.GivenUp);
  EXPECT_EQ(many.Matches.size(), 10'000);
}

TEST(RegExpr, ItsOptionsCount) {
  using enum TVRXRegExOption;
  TVRXRegExpr component(nullptr);
  const auto count = [&](const char* expression, const char* text, TVRXRegExOptions options) {
    component.Set(TVRXRegExpr::Expression, S(expression));
    component.Set(TVRXRegExpr::Options, options);
    return component.Find(S(text)).Matches.size();
  };
  EXPECT_EQ(count("A", "aA", {}), 1);
  EXPECT_EQ(count("A", "aA", {roIgnoreCase}), 2);
  EXPECT_EQ(count("^b", "a\nb", {}), 0);
  EXPECT_EQ(count("^b", "a\nb", {roMultiLine}), 1);
  EXPECT_EQ(count("a.b", "a\nb", {}), 0);
  EXPECT_EQ(count("a.b", "a\nb", {roDotAll}), 1);
  EXPECT_EQ(count("a b", "ab", {}), 0);
  EXPECT_EQ(count("a b # both", "ab", {roExtended}), 1);
}

TEST(RegExpr, AcceptsWholeTextsOnly) {
  TVRXRegExpr component(nullptr);
  component.Set(TVRXRegExpr::Expression, S("a|ab"));
  EXPECT_TRUE(component.Accepts(S("ab")));
  EXPECT_TRUE(component.Accepts(S("a")));
  EXPECT_FALSE(component.Accepts(S("abc")));
  EXPECT_FALSE(component.Accepts(S("ab\n")));
  component.Set(TVRXRegExpr::Options, {TVRXRegExOption::roExtended});
  component.Set(TVRXRegExpr::Expression, S("a # that is all"));
  EXPECT_TRUE(component.Accepts(S("a")));
  component.Set(TVRXRegExpr::Expression, S("a("));
  EXPECT_FALSE(component.Accepts(S("a(")));
}
