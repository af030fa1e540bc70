// Actions on the text of an edit, the session that they work on, and printing what stands in an edit.
#include "library/components/EditActions.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include "library/components/EditControlPrintTask.h"
#include "library/controls/TextBoxes.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "vcl/Form.h"
#include "vcl/Memo.h"

namespace {
QString Clip() { return QGuiApplication::clipboard()->text(); }
void SetClip(const char* text) { QGuiApplication::clipboard()->setText(QString::fromLatin1(text)); }

template <class E>
struct Editing {
  explicit Editing(const char* text = "one two one") {
    if (auto* memo = As<TCustomMemo>(&edit))
      memo->Get(TCustomMemo::Lines)->SetText(QString::fromLatin1(text));
    else
      edit.SetText(QString::fromLatin1(text));
  }
  template <class A>
  bool Can() {
    return A(nullptr).CanExecute(session);
  }
  template <class A>
  void Do() {
    A(nullptr).Execute(session);
  }
  std::string Text() const { return session.Text().toStdString(); }
  E edit{nullptr};
  TVRXTextSession session{edit};
};
}  // namespace

TEST(EditAction, CutsCopiesAndDeletesWhatIsSelected) {
  Editing<TEdit> e;
  SetClip("before");
  EXPECT_FALSE(e.Can<TVRXEditCut>() || e.Can<TVRXEditCopy>() || e.Can<TVRXEditDelete>());
  e.Do<TVRXEditCut>();
  EXPECT_EQ(Clip(), QStringLiteral("before")) << "nothing is selected";
  e.session.Select(4, 3);
  EXPECT_TRUE(e.Can<TVRXEditCut>() && e.Can<TVRXEditCopy>() && e.Can<TVRXEditDelete>());
  e.Do<TVRXEditCopy>();
  EXPECT_EQ(Clip(), QStringLiteral("two"));
  EXPECT_EQ(e.Text(), "one two one");
  e.Do<TVRXEditDelete>();
  EXPECT_EQ(e.Text(), "one  one");
  EXPECT_EQ(e.session.SelStart(), 4);
  e.session.Select(0, 4);
  e.Do<TVRXEditCut>();
  EXPECT_EQ(Clip(), QStringLiteral("one "));
  EXPECT_EQ(e.Text(), " one");
}

TEST(EditAction, PastesAsMuchAsTheEditTakes) {
  Editing<TVRXEditAutoComplete> e("abc");
  SetClip("12\n34");
  e.session.Select(1, 1);
  e.Do<TVRXEditPaste>();
  EXPECT_EQ(e.Text(), "a12c") << "one line";
  e.edit.Set(TCustomEdit::MaxLength, 5);
  SetClip("xyz");
  e.session.Select(4, 0);
  e.Do<TVRXEditPaste>();
  EXPECT_EQ(e.Text(), "a12cx");
  e.edit.Set(TCustomEdit::NumbersOnly, true);
  SetClip("q7");
  e.session.Select(0, 5);
  e.Do<TVRXEditPaste>();
  EXPECT_EQ(e.Text(), "7");
  SetClip("");
  EXPECT_FALSE(e.Can<TVRXEditPaste>());
  Editing<TMemo> memo("first\nsecond");
  SetClip("1\r\n2");
  memo.session.Select(5, 1);
  memo.Do<TVRXEditPaste>();
  EXPECT_EQ(memo.Text(), "first1\n2second");
  EXPECT_EQ(memo.edit.Get(TCustomMemo::Lines)->Count(), 2);
}

TEST(EditAction, TakesBackAndMakesAgain) {
  Editing<TMemo> e("one");
  EXPECT_FALSE(e.Can<TVRXEditUndo>() || e.Can<TVRXEditRedo>());
  SetClip("X");
  e.session.Select(1, 1);
  e.Do<TVRXEditPaste>();
  e.Do<TVRXEditPaste>();
  EXPECT_EQ(e.Text(), "oXXe");
  e.Do<TVRXEditUndo>();
  EXPECT_EQ(e.Text(), "oXe");
  e.Do<TVRXEditUndo>();
  EXPECT_EQ(e.Text(), "one");
  EXPECT_EQ(e.session.SelText(), QStringLiteral("n"));
  EXPECT_FALSE(e.Can<TVRXEditUndo>());
  e.Do<TVRXEditRedo>();
  EXPECT_EQ(e.Text(), "oXe");
  e.session.Select(0, 1);
  e.Do<TVRXEditDelete>();
  EXPECT_FALSE(e.Can<TVRXEditRedo>()) << "another way was taken";
}

TEST(EditAction, LeavesReadOnlyTextAndPasswordsAlone) {
  Editing<TEdit> e;
  e.session.Select(0, 3);
  SetClip("x");
  e.edit.Set(TCustomEdit::ReadOnly, true);
  EXPECT_FALSE(e.Can<TVRXEditCut>() || e.Can<TVRXEditPaste>() || e.Can<TVRXEditDelete>());
  EXPECT_TRUE(e.Can<TVRXEditCopy>());
  e.Do<TVRXEditPaste>();
  EXPECT_EQ(e.Text(), "one two one");
  e.edit.Set(TCustomEdit::ReadOnly, false);
  for (int i = 0; i < 2; ++i) {
    e.edit.Set(TCustomEdit::PasswordChar, i == 0 ? TPasswordChar{u'*'} : TPasswordChar{});
    e.edit.Set(TCustomEdit::EchoMode, i == 0 ? TEchoMode::emNormal : TEchoMode::emPassword);
    EXPECT_FALSE(e.Can<TVRXEditCut>() || e.Can<TVRXEditCopy>());
    EXPECT_TRUE(e.Can<TVRXEditPaste>() && e.Can<TVRXEditDelete>());
  }
}

TEST(EditAction, SelectsAllUnlessAllIsSelected) {
  Editing<TMemo> e("a\nb");
  EXPECT_TRUE(e.Can<TVRXEditSelectAll>());
  e.Do<TVRXEditSelectAll>();
  EXPECT_EQ(e.session.SelText(), QStringLiteral("a\nb"));
  EXPECT_FALSE(e.Can<TVRXEditSelectAll>());
  EXPECT_FALSE(Editing<TEdit>("").Can<TVRXEditSelectAll>());
}

TEST(EditAction, FindsTheNextPlaceAndBeginsAgain) {
  Editing<TEdit> e("one Two one");
  TVRXEditFind find(nullptr);
  EXPECT_FALSE(find.CanExecute(e.session)) << "nothing to look for";
  find.Set(TVRXCustomEditAction::FindText, QStringLiteral("ONE"));
  for (const int place : {0, 8, 0}) {
    find.Execute(e.session);
    EXPECT_EQ(e.session.SelStart(), place);
    EXPECT_EQ(e.session.SelLength(), 3);
  }
  find.Set(TVRXCustomEditAction::CaseSensitive, true);
  EXPECT_FALSE(find.CanExecute(e.session));
}

TEST(EditAction, ReplacesWhatIsFoundOneByOneOrAllAtOnce) {
  Editing<TEdit> e;
  TVRXEditReplace replace(nullptr);
  replace.Set(TVRXCustomEditAction::FindText, QStringLiteral("one"));
  replace.Set(TVRXCustomEditAction::ReplaceText, QStringLiteral("1"));
  replace.Execute(e.session);
  EXPECT_EQ(e.Text(), "one two one") << "first it is shown";
  replace.Execute(e.session);
  EXPECT_EQ(e.Text(), "1 two one");
  EXPECT_EQ(e.session.SelStart(), 6);
  e.session.Undo();
  replace.Set(TVRXCustomEditAction::ReplaceAll, true);
  replace.Execute(e.session);
  EXPECT_EQ(e.Text(), "1 two 1");
  e.session.Undo();
  EXPECT_EQ(e.Text(), "one two one") << "one step";
}

TEST(EditAction, WorksOnItsOwnEditOnlyAndNotWhileItIsOff) {
  Editing<TEdit> e;
  TEdit other(nullptr);
  TVRXEditSelectAll all(nullptr);
  all.Set(TVRXCustomEditAction::EditControl, &other);
  EXPECT_FALSE(all.CanExecute(e.session));
  all.Set(TVRXCustomEditAction::EditControl, &e.edit);
  EXPECT_TRUE(all.CanExecute(e.session));
  all.Set(TCustomAction::Enabled, false);
  EXPECT_FALSE(all.CanExecute(e.session));
}

TEST(EditAction, ComesWithTextKeysAndHintThatNoFileHolds) {
  struct Row {
    const TClass* cls;
    const char *caption, *keys;
  };
  for (const Row& row : {Row{&TVRXEditCut::StaticClass(), "Cu&t", "Ctrl+X"},
                         Row{&TVRXEditCopy::StaticClass(), "&Copy", "Ctrl+C"},
                         Row{&TVRXEditPaste::StaticClass(), "&Paste", "Ctrl+V"},
                         Row{&TVRXEditSelectAll::StaticClass(), "Select &All", "Ctrl+A"},
                         Row{&TVRXEditUndo::StaticClass(), "&Undo", "Ctrl+Z"},
                         Row{&TVRXEditRedo::StaticClass(), "&Redo", "Shift+Ctrl+Z"},
                         Row{&TVRXEditDelete::StaticClass(), "&Delete", "Del"},
                         Row{&TVRXEditFind::StaticClass(), "&Find...", "Ctrl+F"},
                         Row{&TVRXEditReplace::StaticClass(), "R&eplace...", "Ctrl+H"}}) {
    SCOPED_TRACE(row.caption);
    const std::unique_ptr<TComponent> action(row.cls->NewComponent(nullptr));
    const auto& made = dynamic_cast<TVRXCustomEditAction&>(*action);
    EXPECT_EQ(made.Get(TCustomAction::Caption).toStdString(), row.caption);
    EXPECT_EQ(made.Get(TCustomAction::ShortCut), TextToShortCut(QString::fromLatin1(row.keys)));
    EXPECT_NE(made.Get(TCustomAction::ShortCut), TShortCut{});
    EXPECT_FALSE(made.Get(TCustomAction::Hint).isEmpty());
    for (const char* name : {"Caption", "Hint", "ShortCut"})
      EXPECT_FALSE(IsStoredProp(made, row.cls->GetProp(name))) << name;
    SetStrProp(*action, row.cls->GetProp("Caption"), QStringLiteral("Mine"));
    EXPECT_TRUE(IsStoredProp(made, row.cls->GetProp("Caption")));
    SetStrProp(*action, row.cls->GetProp("Caption"), QString());
    EXPECT_EQ(made.Get(TCustomAction::Caption).toStdString(), row.caption);
  }
}

// --- Printing

namespace {
struct Printing {
  Printing() {
    task.Set(TVRXEditControlPrintTask::EditControl, &memo);
    memo.Get(TCustomMemo::Lines)
        ->SetLines({QStringLiteral("First line of some words that go on"), QString(), QStringLiteral("a\tb"),
                    QStringLiteral("last")});
  }
  std::vector<TVRXTextPages::Page> Pages(QSizeF room) const {
    return task.Pages().Break(QFont(), &paper, room);
  }
  QByteArray Pdf() const {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    pages = task.PrintToPdf(buffer);
    return buffer.data();
  }
  TMemo memo{nullptr};
  TVRXEditControlPrintTask task{nullptr};
  mutable QImage paper{1, 1, QImage::Format_RGB32};
  mutable int pages = 0;
};
QStringList All(const std::vector<TVRXTextPages::Page>& pages) {
  QStringList all;
  for (const auto& page : pages)
    for (const auto& line : page) all << line.text;
  return all;
}
}  // namespace

TEST(PrintTask, PrintsAllLinesOnAsManyPagesAsItTakes) {
  Printing p;
  EXPECT_EQ(All(p.Pages({5000, 5000})).join(u'|'),
            QStringLiteral("First line of some words that go on||a\tb|last"));
  const double line = QFontMetricsF(QFont(), &p.paper).lineSpacing();
  const auto pages = p.Pages({5000, 3.5 * line});
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_EQ(pages[0].size(), 3u);
  EXPECT_EQ(All({pages[1]}), QStringList{QStringLiteral("last")});
  EXPECT_EQ(p.Pages({5000, 0}).size(), 4u) << "one line at least";
}

TEST(PrintTask, WrapsBetweenWordsOrCutsOff) {
  Printing p;
  const double width = QFontMetricsF(QFont(), &p.paper).horizontalAdvance(QStringLiteral("First line of "));
  const QStringList wrapped = All(p.Pages({width, 5000}));
  EXPECT_GT(wrapped.size(), 5);
  EXPECT_EQ(wrapped[0].trimmed(), QStringLiteral("First line of"));
  EXPECT_EQ(QString(wrapped.join(QString())).remove(u' '),
            QStringLiteral("Firstlineofsomewordsthatgoona\tblast"));
  p.task.Set(TVRXEditControlPrintTask::WordWrap, false);
  EXPECT_EQ(All(p.Pages({width, 5000})).size(), 4);
}

TEST(PrintTask, NumbersLinesAndHidesPasswords) {
  Printing p;
  p.task.Set(TVRXEditControlPrintTask::LineNumbers, true);
  const auto pages = p.Pages({5000, 5000});
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(pages[0].at(i).number, QString::number(i + 1));
  EXPECT_EQ(pages[0].at(3).text, QStringLiteral("last"));
  TEdit edit(nullptr);
  edit.SetText(QStringLiteral("secret"));
  edit.Set(TCustomEdit::PasswordChar, TPasswordChar{u'#'});
  p.task.Set(TVRXEditControlPrintTask::EditControl, &edit);
  EXPECT_EQ(p.task.Lines().join(u'|'), QStringLiteral("******"));
  edit.Set(TCustomEdit::EchoMode, TEchoMode::emNone);
  EXPECT_EQ(p.task.Lines().join(u'|'), QString());
}

TEST(PrintTask, WritesAPdfWithAllItsPages) {
  Printing p;
  const QByteArray one = p.Pdf();
  EXPECT_TRUE(one.startsWith("%PDF-"));
  EXPECT_EQ(p.pages, 1);
  QStringList many;
  for (int i = 0; i < 150; ++i) many << QStringLiteral("Line %1").arg(i);
  p.memo.Get(TCustomMemo::Lines)->SetLines(many);
  p.task.Set(TVRXEditControlPrintTask::Title, QStringLiteral("A report"));
  const QByteArray more = p.Pdf();
  EXPECT_GT(p.pages, 1);
  EXPECT_TRUE(more.contains("/Count " + QByteArray::number(p.pages))) << p.pages;
  const int upright = p.pages;
  p.task.Set(TVRXEditControlPrintTask::Orientation, TVRXPrintOrientation::poLandscape);
  p.Pdf();
  EXPECT_GT(p.pages, upright);
  p.task.Set(TVRXEditControlPrintTask::Orientation, TVRXPrintOrientation::poPortrait);
  p.task.Set(TVRXEditControlPrintTask::MarginTop, 140);
  p.Pdf();
  EXPECT_GT(p.pages, upright);
  p.task.Set(TVRXEditControlPrintTask::MarginTop, 20);
  p.task.Set(TVRXEditControlPrintTask::UseControlFont, false);
  p.task.Font()->SetHeight(-60);
  p.Pdf();
  EXPECT_GT(p.pages, upright);
}

TEST(PrintTask, SaysWhatIsMissing) {
  TVRXEditControlPrintTask task(nullptr);
  task.SetName(QStringLiteral("Printing"));
  QBuffer closed;
  try {
    task.PrintToPdf(closed);
    FAIL();
  } catch (const EComponentError& e) {
    EXPECT_TRUE(e.Message().contains(QStringLiteral("Printing"))) << e.Message().toStdString();
  }
}
