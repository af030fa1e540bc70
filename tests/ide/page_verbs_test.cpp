// The verbs of page controls and their pages, on an open form.
#include "OperationTest.h"
#include "designintf/ComponentEditor.h"
#include "vcl/PageControl.h"

using namespace ide;

namespace {
const QByteArray Form = R"(object Main: TMain
  ClientHeight = 300
  ClientWidth = 400
  object Book: TPageControl
    Left = 8
    Top = 8
    Width = 200
    Height = 100
    ActivePage = One
    TabOrder = 0
    object One: TTabSheet
      Caption = 'First'
      object Inside: TButton
        Left = 8
        Top = 8
        Width = 75
        Height = 25
        Caption = 'Inside'
        TabOrder = 0
      end
    end
    object Two: TTabSheet
      Caption = 'Second'
    end
    object Three: TTabSheet
      Caption = 'Third'
    end
  end
end
)";

class PageVerbs : public OperationTest {
 protected:
  void SetUp() override { Open(Form); }
  TPageControl& Book() { return As<TPageControl>("Book"); }
  std::unique_ptr<TComponentEditor> Editor(const char* name) {
    return session_->Registry().GetComponentEditor(session_->GetComponent(QLatin1StringView(name)),
                                                   session_.get());
  }
  static int IndexOf(const TComponentEditor& editor, const char* verb) {
    for (int i = 0; i < editor.GetVerbCount(); ++i)
      if (editor.GetVerb(i) == QLatin1StringView(verb)) return i;
    return -1;
  }
  void Run(const char* name, const char* verb) {
    Select({name});
    const auto editor = Editor(name);
    const int index = IndexOf(*editor, verb);
    ASSERT_GE(index, 0) << verb;
    editor->ExecuteVerb(index);
  }
  std::string Problem(const char* name, const char* verb) {
    const auto editor = Editor(name);
    return editor->GetVerbProblem(IndexOf(*editor, verb)).toStdString();
  }
  // The names of the pages, the one in front marked, the active one by a bracket, too.
  std::string Pages() {
    QStringList names;
    for (const TTabSheet* page : Book().Pages()) {
      QString name = page->Name();
      if (page == Book().FrontPage()) name.prepend(u'*');
      names << (page == Book().ActivePage() ? u'[' + name + u']' : name);
    }
    return names.join(u' ').toStdString();
  }
};
}  // namespace

TEST_F(PageVerbs, AreThoseOfTheBookAndOfItsPages) {
  for (const char* name : {"Book", "Two"}) {
    QStringList verbs;
    const auto editor = Editor(name);
    for (int i = 0; i < editor->GetVerbCount(); ++i) verbs << editor->GetVerb(i);
    EXPECT_EQ(verbs.join(u'|'), QStringLiteral("New Page|Next Page|Previous Page|Delete Page"));
    EXPECT_EQ(editor->GetVerb(-1), QString());
    EXPECT_EQ(editor->GetVerb(4), QString());
  }
}

TEST_F(PageVerbs, ANewPageComesLastAndIsActiveAndSelected) {
  Run("Book", "New Page");
  EXPECT_EQ(Pages(), "One Two Three [*TabSheet1]");
  EXPECT_EQ(Book().Pages().back()->Caption(), QStringLiteral("TabSheet1"));
  EXPECT_EQ(Selected(), "TabSheet1");
  EXPECT_EQ(
      ChangedLines(first_, session_->Bytes()).join('|'),
      "-ActivePage = One|+ActivePage = TabSheet1|+object TabSheet1: TTabSheet|+Caption = 'TabSheet1'|+end");
  ExpectOneCommand();
  session_->Undo();
  Run("Two", "New Page");
  EXPECT_EQ(Pages(), "One Two Three [*TabSheet1]") << "also where a page is selected";
  Run("TabSheet1", "New Page");
  EXPECT_EQ(Pages(), "One Two Three TabSheet1 [*TabSheet2]");
}

TEST_F(PageVerbs, NextAndPreviousShowThePagesRoundAndRound) {
  Run("Book", "Next Page");
  EXPECT_EQ(Pages(), "One [*Two] Three");
  EXPECT_EQ(Selected(), "Book");
  EXPECT_EQ(ChangedLines(first_, session_->Bytes()).join('|'), "-ActivePage = One|+ActivePage = Two");
  ExpectOneCommand();
  Run("Book", "Next Page");
  Run("Book", "Next Page");
  EXPECT_EQ(Pages(), "[*One] Two Three");
  Run("Book", "Previous Page");
  EXPECT_EQ(Pages(), "One Two [*Three]");
  Run("Book", "Previous Page");
  EXPECT_EQ(Pages(), "One [*Two] Three");
}

TEST_F(PageVerbs, FromASelectedPageTheNextOneIsSelected) {
  Run("Two", "Next Page");
  EXPECT_EQ(Pages(), "One Two [*Three]");
  EXPECT_EQ(Selected(), "Three");
  ExpectOneCommand();
}

TEST_F(PageVerbs, DeleteTakesTheActivePageWithWhatStandsOnIt) {
  Run("Book", "Delete Page");
  EXPECT_EQ(Pages(), "[*Two] Three");
  EXPECT_EQ(session_->GetComponent(QStringLiteral("Inside")), nullptr);
  EXPECT_EQ(Selected(), "Book");
  ExpectOneCommand();
  session_->Undo();
  EXPECT_EQ(Pages(), "[*One] Two Three");
  EXPECT_NE(session_->GetComponent(QStringLiteral("Inside")), nullptr);
}

TEST_F(PageVerbs, OfTheLastPageTheOneBeforeItComesToTheFront) {
  Run("Book", "Previous Page");
  Run("Three", "Delete Page");
  EXPECT_EQ(Pages(), "One [*Two]");
  EXPECT_EQ(Selected(), "Two");
  Run("One", "Delete Page");
  EXPECT_EQ(Pages(), "[*Two]") << "a page that is not active goes alone";
  Run("Book", "Delete Page");
  EXPECT_EQ(Pages(), "");
  EXPECT_EQ(Selected(), "Book");
  while (session_->CanUndo()) session_->Undo();
  EXPECT_EQ(session_->Bytes(), first_);
}

TEST_F(PageVerbs, TheNumberOfThePageIsKeptInStepWhereAFileHasIt) {
  Open(QByteArray(Form).replace("    ActivePage = One\n", "    ActivePage = Two\n    TabIndex = 1\n"));
  Run("Book", "Next Page");
  EXPECT_EQ(Book().TabIndex(), 2);
  Run("Book", "Delete Page");
  EXPECT_EQ(Pages(), "One [*Two]");
  EXPECT_EQ(Book().TabIndex(), 1);
  EXPECT_EQ(StateOf(*session_), StateOf(session_->Bytes()));
}

TEST_F(PageVerbs, SayWhatCannotBeDone) {
  EXPECT_EQ(Problem("Book", "Next Page"), "");
  EXPECT_EQ(Problem("Book", "Delete Page"), "");
  for (const char* page : {"Three", "Two"}) Run(page, "Delete Page");
  EXPECT_EQ(Problem("Book", "Next Page"), "Book has no other page");
  EXPECT_EQ(Problem("One", "Previous Page"), "Book has no other page");
  EXPECT_EQ(Problem("Book", "Delete Page"), "");
  const QByteArray one = session_->Bytes();
  Run("Book", "Next Page");
  EXPECT_EQ(session_->Bytes(), one);
  Run("Book", "Delete Page");
  for (const char* verb : {"Next Page", "Previous Page", "Delete Page"})
    EXPECT_EQ(Problem("Book", verb), "Book has no pages") << verb;
  EXPECT_EQ(Problem("Book", "New Page"), "");
  const QByteArray none = session_->Bytes();
  Run("Book", "Delete Page");
  EXPECT_EQ(session_->Bytes(), none);
}

TEST_F(PageVerbs, APageOfTheAncestorStays) {
  Open(QByteArray(Form)
           .replace("object Main", "inherited Main")
           .replace("object One", "inherited One")
           .replace("object Book", "inherited Book"));
  EXPECT_THROW(Run("Book", "Delete Page"), EComponentError);
  EXPECT_EQ(session_->Bytes(), first_);
  EXPECT_EQ(Pages(), "[*One] Two Three");
  EXPECT_FALSE(session_->CanUndo());
}
