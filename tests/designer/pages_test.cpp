// Wizards, notebooks and panels that fold in the designer's window: what a click on a tab does, where what is
// dropped comes to, and what the verbs are as commands.
#include "DesignerTest.h"
#include "library/controls/Assist.h"
#include "library/controls/CaptionPanel.h"
#include "library/controls/HeaderPanel.h"
#include "library/controls/NoteBook.h"

using namespace designer;

namespace {
const QByteArray Form =
    "object Main: TMain\n  ClientHeight = 340\n  ClientWidth = 520\n"
    "  object Button1: TButton\n    Left = 440\n    Top = 300\n    Width = 60\n    Height = 24\n    Caption "
    "= "
    "'Go'\n    TabOrder = 0\n  end\n"
    "  object Assist: TVRXAssist\n    Left = 8\n    Top = 8\n    Width = 400\n    Height = 280\n    "
    "ActivePage = "
    "First\n    TabOrder = 1\n"
    "    object First: TVRXAssistPage\n      Caption = 'Welcome'\n    end\n"
    "    object Second: TVRXAssistPage\n      Caption = 'Folder'\n      object InSecond: TButton\n        "
    "Left = "
    "8\n        Top = 8\n        Width = 80\n        Height = 24\n        Anchors = [akTop, akRight]\n       "
    " "
    "Caption = 'Browse'\n        TabOrder = 0\n      end\n    end\n  end\nend\n";

class PagesInTheDesigner : public DesignerTest {
 protected:
  PagesInTheDesigner() : DesignerTest(Form) {}
  template <class C>
  C& As(const char* name) {
    return dynamic_cast<C&>(Get(name));
  }
  // Where the tab of a page is on the surface.
  QPoint Tab(TCustomTabControl& book, int index) {
    return Surface().WidgetRect(book).topLeft() + book.TabRects()[static_cast<std::size_t>(index)].center();
  }
  void Run(const char* name, const char* verb) {
    Select(name);
    const auto editor = Session().Registry().GetComponentEditor(&Get(name), &Session());
    for (int i = 0; i < editor->GetVerbCount(); ++i)
      if (editor->GetVerb(i) == QLatin1StringView(verb)) {
        Session().Run(QLatin1StringView(verb), {}, [&] { editor->ExecuteVerb(i); });
        return;
      }
    ADD_FAILURE() << "no verb " << verb;
  }
  void Open(const QByteArray& form) {
    const QString file = folder_.filePath(QStringLiteral("other.dfm"));
    Write(file, form);
    ASSERT_TRUE(window_->OpenForm(file));
    QCoreApplication::processEvents();
  }
  template <class C>
  C& Drop(QPoint at) {
    Surface().SetTool(&C::StaticClass());
    Click(at);
    return dynamic_cast<C&>(*Session().SelectedComponents().at(0));
  }
};
}  // namespace

TEST_F(PagesInTheDesigner, OpeningAFormMovesNothingOnItsPages) {
  EXPECT_EQ(Session().Bytes().toStdString(), Form.toStdString());
  EXPECT_EQ(Bounds("InSecond"), QRect(8, 8, 80, 24));
  EXPECT_EQ(Bounds("First"), As<TVRXAssist>("Assist").DisplayRect());
}

TEST_F(PagesInTheDesigner, AClickOnAStepMakesItsPageTheActiveOneAsOneCommand) {
  auto& assist = As<TVRXAssist>("Assist");
  Click(Tab(assist, 1));
  EXPECT_EQ(Selected(), "Assist");
  EXPECT_EQ(assist.FrontPage(), &Get("Second"));
  EXPECT_EQ(Session().Bytes().toStdString(),
            QByteArray(Form).replace("ActivePage = First", "ActivePage = Second").toStdString());
  Click(Tab(assist, 1));
  Session().Undo();
  EXPECT_EQ(Session().Bytes().toStdString(), Form.toStdString());
  EXPECT_FALSE(Session().CanUndo()) << "a click on the one in front is no command";
  Select("InSecond");
  EXPECT_EQ(assist.FrontPage(), &Get("Second"));
  EXPECT_FALSE(Session().CanUndo()) << "showing where it stands changes nothing";
}

TEST_F(PagesInTheDesigner, WhatIsDroppedStandsOnThePageShown) {
  auto& assist = As<TVRXAssist>("Assist");
  Click(Tab(assist, 1));
  const QRect page = Surface().WidgetRect(Get("Second"));
  TEdit& edit = Drop<TEdit>(page.topLeft() + QPoint(40, 80));
  EXPECT_EQ(edit.Parent(), &Get("Second"));
  Click(Tab(assist, 0));
  TLabel& label = Drop<TLabel>(page.topLeft() + QPoint(40, 80));
  EXPECT_EQ(label.Parent(), &Get("First"));
}

TEST_F(PagesInTheDesigner, TheWizardsVerbsAreOneCommandEach) {
  auto& assist = As<TVRXAssist>("Assist");
  Run("Assist", "&New Page");
  EXPECT_EQ(assist.Pages().size(), 3u);
  EXPECT_EQ(Selected(), "VRXAssistPage1");
  EXPECT_EQ(assist.FrontPage(), &Get("VRXAssistPage1"));
  Session().Undo();
  EXPECT_EQ(Session().Bytes().toStdString(), Form.toStdString());
  Run("First", "Ne&xt Page");
  EXPECT_EQ(Selected(), "Second");
  EXPECT_EQ(assist.FrontPage(), &Get("Second"));
  EXPECT_EQ(assist.ActivePage(), &Get("Second"));
  Session().Undo();
  EXPECT_EQ(Session().Bytes().toStdString(), Form.toStdString());
  Run("Assist", "&Previous Page");
  EXPECT_EQ(assist.ActivePage(), &Get("Second"));
  EXPECT_EQ(Selected(), "Assist");
}

TEST_F(PagesInTheDesigner, ANotebookIsFilledPageByPage) {
  auto& made = *Session().CreateComponent(TVRXNoteBook::StaticClass(), nullptr, QRect(16, 16, 300, 200));
  const std::string name = made.Name().toStdString();
  Run(name.c_str(), "&New Page");
  EXPECT_EQ(Selected(), "VRXNoteBookPage1");
  Run("VRXNoteBookPage1", "&New Page");
  auto& book = As<TVRXNoteBook>(name.c_str());
  EXPECT_EQ(Selected(), "VRXNoteBookPage2");
  EXPECT_EQ(book.ActivePage(), &Get("VRXNoteBookPage2"));
  const QByteArray two = Session().Bytes();
  Click(Tab(book, 0));
  EXPECT_EQ(book.ActivePage(), &Get("VRXNoteBookPage1"));
  Session().Undo();
  EXPECT_EQ(Session().Bytes().toStdString(), two.toStdString());
  Run(name.c_str(), "Display Page VRXNoteBookPage1");
  EXPECT_EQ(Selected(), "VRXNoteBookPage1");
  TButton& button = Drop<TButton>(Surface().WidgetRect(Get("VRXNoteBookPage1")).center());
  EXPECT_EQ(button.Parent(), &Get("VRXNoteBookPage1"));
  Run(button.Parent()->Name().toLatin1().constData(), "Select Control");
  EXPECT_EQ(Selected(), name);
  while (Session().CanUndo()) Session().Undo();
  EXPECT_EQ(Session().Bytes().toStdString(), Form.toStdString());
}

TEST_F(PagesInTheDesigner, PanelsOfAGroupFoldMoveAndComeBack) {
  auto& made =
      *Session().CreateComponent(TVRXCaptionPanelGroup::StaticClass(), nullptr, QRect(16, 16, 200, 300));
  const std::string name = made.Name().toStdString();
  for (int i = 0; i < 3; ++i) Run(name.c_str(), "Add Panel");
  const auto& group = As<TVRXCaptionPanelGroup>(name.c_str());
  EXPECT_EQ(group.PanelList().size(), 3u);
  TEdit& edit = Drop<TEdit>(Surface().WidgetRect(Get("VRXCaptionPanel1")).center());
  EXPECT_EQ(edit.Parent(), &Get("VRXCaptionPanel1"));
  const QByteArray open = Session().Bytes();
  const QRect second = Bounds("VRXCaptionPanel2"), inside = edit.BoundsRect();
  Run("VRXCaptionPanel1", "Collapse all Panels");
  EXPECT_LT(Bounds("VRXCaptionPanel2").top(), second.top());
  EXPECT_LT(Bounds("VRXCaptionPanel2").height(), 40);
  EXPECT_EQ(edit.BoundsRect(), inside);
  const QByteArray folded = Session().Bytes();
  EXPECT_TRUE(folded.contains("Expanded = False"));
  EXPECT_TRUE(folded.contains("ExpandedSize = 105"));
  Session().Undo();
  EXPECT_EQ(Session().Bytes().toStdString(), open.toStdString());
  EXPECT_EQ(Bounds("VRXCaptionPanel2"), second);
  Session().Redo();
  EXPECT_EQ(Session().Bytes().toStdString(), folded.toStdString());
  Run(name.c_str(), "Expand all Panels");
  EXPECT_EQ(Session().Bytes().toStdString(), open.toStdString()) << "nothing is left of having been folded";
  Run("VRXCaptionPanel3", "Move Up");
  EXPECT_EQ(group.PanelList()[1], &Get("VRXCaptionPanel3"));
  EXPECT_EQ(Bounds("VRXCaptionPanel3").top(), second.top());
  Session().Undo();
  EXPECT_EQ(Session().Bytes().toStdString(), open.toStdString());
  Run("VRXCaptionPanel2", "Select all Panels");
  EXPECT_EQ(Selected(), "VRXCaptionPanel1+VRXCaptionPanel2+VRXCaptionPanel3");
}

TEST_F(PagesInTheDesigner, PanelsThatStandFlushChangePlacesAndTurns) {
  auto& made =
      *Session().CreateComponent(TVRXCaptionPanelGroup::StaticClass(), nullptr, QRect(16, 16, 200, 300));
  const std::string name = made.Name().toStdString();
  for (int i = 0; i < 3; ++i) Run(name.c_str(), "Add Panel");
  const char* names[] = {"VRXCaptionPanel1", "VRXCaptionPanel2", "VRXCaptionPanel3"};
  const int heights[] = {80, 60, 90};
  Session().Run(QStringLiteral("flush"), {}, [&] {
    for (int i = 0; i < 3; ++i) As<TVRXCaptionPanel>(names[i]).SetHeight(heights[i]);
    As<TVRXCaptionPanelGroup>(name.c_str()).Set(TVRXCaptionPanelGroup::ScrollPos, 0);
  });
  QByteArray flush = Session().Bytes();
  flush.replace("Top = 4\n", "Top = 0\n")
      .replace("Top = 88\n", "Top = 80\n")
      .replace("Top = 152\n", "Top = 140\n");
  Open(flush);
  ASSERT_EQ(Bounds(names[2]).top(), 140);
  const auto places = [&] {
    QStringList all;
    for (const char* n : names)
      all << QStringLiteral("%1 %2").arg(Bounds(n).top()).arg(As<TVRXCaptionPanel>(n).TabOrder());
    return all.join(u'|').toStdString();
  };
  EXPECT_EQ(places(), "0 0|80 1|140 2");
  Run(names[0], "Move Down");
  EXPECT_EQ(places(), "60 1|0 0|140 2");
  Run(names[2], "Move Up");
  EXPECT_EQ(places(), "150 2|0 0|60 1");
  Session().Undo();
  Session().Undo();
  EXPECT_EQ(Session().Bytes().toStdString(), flush.toStdString());
  Session().DeleteComponents({&Get(names[0])});
  EXPECT_EQ(Bounds(names[1]).top(), 0) << "nobody leaves the group";
  EXPECT_EQ(Bounds(names[2]).top(), 60);
}

TEST_F(PagesInTheDesigner, CopiesOfPanelsFollowEachOther) {
  for (const auto& [count, height] : {std::pair(2, 280), std::pair(3, 280), std::pair(2, 150)}) {
    auto& made =
        *Session().CreateComponent(TVRXCaptionPanelGroup::StaticClass(), nullptr, QRect(16, 16, 200, height));
    auto& group = dynamic_cast<TVRXCaptionPanelGroup&>(made);
    const std::string name = made.Name().toStdString();
    for (int i = 0; i < 3; ++i) Run(name.c_str(), "Add Panel");
    std::vector<TVRXCaptionPanel*> panels = group.PanelList();
    Session().Run(QStringLiteral("sizes"), {}, [&] {
      for (TVRXCaptionPanel* panel : panels) panel->SetHeight(80);
      group.Set(TVRXCaptionPanelGroup::ScrollPos, 0);
    });
    ASSERT_EQ(panels[2]->Top(), 172);
    const QByteArray before = Session().Bytes();
    Session().Select(std::vector<TComponent*>(panels.begin(), panels.begin() + count));
    Action("duplicate").trigger();
    panels = group.PanelList();
    ASSERT_EQ(static_cast<int>(panels.size()), 3 + count);
    for (int i = 0; i < 3 + count; ++i)
      EXPECT_EQ(panels[static_cast<std::size_t>(i)]->Top(), 4 + 84 * i) << i;
    Session().Undo();
    EXPECT_EQ(Session().Bytes().toStdString(), before.toStdString());
  }
}

TEST_F(PagesInTheDesigner, ADoubleClickIsCalledAsTheVerbThatItRuns) {
  auto& made = *Session().CreateComponent(TVRXAssist::StaticClass(), nullptr, QRect(16, 16, 400, 250));
  Session().Edit(made);
  EXPECT_EQ(Session().UndoText(), QStringLiteral("New Page"));
}

TEST_F(PagesInTheDesigner, ArrowsBesideTabsScrollAndChangeNothing) {
  auto& made = *Session().CreateComponent(TVRXNoteBook::StaticClass(), nullptr, QRect(16, 16, 220, 150));
  const std::string name = made.Name().toStdString();
  for (int i = 0; i < 5; ++i) Run(name.c_str(), "&New Page");
  auto& book = As<TVRXNoteBook>(name.c_str());
  Run(name.c_str(), "Display Page VRXNoteBookPage1");
  Session().Select({&book});
  const QByteArray before = Session().Bytes();
  const QString undo = Session().UndoText();
  const QPoint corner = Surface().WidgetRect(book).topLeft();
  const QPoint forth = corner + QPoint(book.Width() - 8, 10), back = forth - QPoint(18, 0);
  const int from = book.TabRects()[0].left(), to = book.TabRects()[4].left();
  ASSERT_EQ(from, 2);
  for (int i = 0; i < 2; ++i) {
    Click(forth);
    QTest::mouseDClick(&Surface(), Qt::LeftButton, {}, forth);
  }
  EXPECT_LT(book.TabRects()[4].left(), to);
  EXPECT_LE(book.TabRects()[4].right(), book.Width() - 36) << "the last one can be read";
  EXPECT_EQ(Session().Bytes().toStdString(), before.toStdString());
  EXPECT_EQ(Session().UndoText(), undo);
  EXPECT_EQ(book.FrontPage(), &Get("VRXNoteBookPage1"));
  Click(Tab(book, 4));
  EXPECT_EQ(book.ActivePage(), &Get("VRXNoteBookPage5"));
  for (int i = 0; i < 6; ++i) Click(back);
  EXPECT_EQ(book.TabRects()[0].left(), from);
  EXPECT_EQ(book.ActivePage(), &Get("VRXNoteBookPage5"));
}

TEST_F(PagesInTheDesigner, WhatHasNoPagesSaysHowToGetOne) {
  for (const TClass* cls : {&TVRXAssist::StaticClass(), &TVRXNoteBook::StaticClass()}) {
    auto& made = dynamic_cast<TControl&>(*Session().CreateComponent(*cls, nullptr, QRect(16, 16, 400, 250)));
    const auto picture = [&] {
      QImage image(made.Width(), made.Height(), QImage::Format_RGB32);
      QPainter painter(&image);
      PaintControl(made, painter);
      return image;
    };
    const QImage designed = picture();
    made.SetDesigning(false);
    EXPECT_NE(designed, picture()) << "when the program runs it is just empty";
    made.SetDesigning(true);
    Run(made.Name().toLatin1().constData(), "&New Page");
    const QImage filled = picture();
    made.SetDesigning(false);
    EXPECT_EQ(filled, picture());
    made.SetDesigning(true);
  }
}

TEST_F(PagesInTheDesigner, AHeadersButtonComesToItsPlaceAndGoesAgain) {
  auto& made = *Session().CreateComponent(TVRXHeaderPanel::StaticClass(), nullptr, QRect(16, 16, 200, 120));
  const QByteArray before = Session().Bytes();
  auto& button = Drop<TVRXHeaderPanelButton>(Surface().WidgetRect(made).center());
  EXPECT_EQ(button.Parent(), &made);
  EXPECT_EQ(button.Align(), TAlign::alRight);
  EXPECT_LT(button.Top() + button.Height(), 30);
  EXPECT_GT(button.Left(), 170);
  Session().Undo();
  EXPECT_EQ(Session().Bytes().toStdString(), before.toStdString());
}
