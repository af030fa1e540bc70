// Changes that no command said it would make: they reach the file, undo takes them back, a throw rolls them
// back.
#include "SessionTest.h"
#include "rtl/PropAccess.h"

using namespace ide;

namespace {
using UnannouncedTest = SessionTest;

// A component whose setter tells nobody.
class TSilent : public TComponent {
  VRX_CLASS(TSilent)
 public:
  using TComponent::TComponent;
  int Level() const { return level_; }
  void SetLevel(int v) { level_ = v; }

 private:
  int level_ = 0;
};
const TClass& TSilent::StaticClass() {
  static const TClass cls(DescribeClass<TSilent>("TSilent", TComponent::StaticClass())
                              .Published("Level", &TSilent::Level, &TSilent::SetLevel, 0));
  return cls;
}
// One that says that it tells.
class TQuiet : public TSilent {
  VRX_CLASS(TQuiet)
 public:
  using TSilent::TSilent;
};
const TClass& TQuiet::StaticClass() {
  static const TClass cls(DescribeClass<TQuiet>("TQuiet", TSilent::StaticClass()));
  return cls;
}
}  // namespace

TEST_F(UnannouncedTest, EveryComponentThatAnActionChangesIsFound) {
  session_->Run(QStringLiteral("verb"), {}, [&] {
    Get<TLabel>("Label1").SetHint(QStringLiteral("new"));
    Get<TVRXLEDLabel>("Led").LED()->SetColor(0, clRed);
    Get<TButton>("Inner").SetTag(7);
    Get<TComponent>("Timer1").SetDesignInfo(DesignWordOf({11, 12}));
  });
  EXPECT_EQ(Changes(),
            "+Tag = 7|+Hint = 'new'|-LED.ActiveColor = clAqua|+LED.ActiveColor = clRed|-Left = 320|-Top = "
            "200|+Left = 11|+Top = 12");
  ExpectUndoable();
}

TEST_F(UnannouncedTest, AThrowTakesBackWhatNobodyAnnounced) {
  EXPECT_THROW(session_->Run(QStringLiteral("verb"), {},
                             [&] {
                               Get<TLabel>("Label1").Font()->SetHeight(-40);
                               Get("Panel1").SetBounds(1, 2, 3, 4);
                               delete &Get<TComponent>("Timer1");
                               (new TPanel(session_->GetRoot()))->SetParent(&session_->Form());
                               throw Exception(QStringLiteral("no"));
                             }),
               Exception);
  EXPECT_EQ(session_->Bytes(), Sample);
  EXPECT_EQ(StateOf(*session_), state_);
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_FALSE(session_->IsBusy());
}

TEST_F(UnannouncedTest, HandlersAndReferencesAreFound) {
  session_->Run(QStringLiteral("verb"), {}, [&] {
    auto& button = Get<TButton>("Button1");
    SetMethodProp(button, button.ClassType().GetProp("OnClick"), QStringLiteral("OtherClick"));
    Get<TLabel>("InnerLabel").SetFocusControl(&button);
  });
  EXPECT_EQ(Changes(),
            "-FocusControl = Inner|+FocusControl = Button1|-OnClick = Button1Click|+OnClick = OtherClick");
  ExpectUndoable();
}

TEST_F(UnannouncedTest, ARenamingReachesWhoeverRefersToIt) {
  session_->Run(QStringLiteral("verb"), {}, [&] { Get("Inner").SetName(QStringLiteral("Outer")); });
  EXPECT_EQ(
      Changes(),
      "-object Inner: TButton|+object Outer: TButton|-Caption = 'Inner'|+Caption = 'Outer'|-FocusControl = "
      "Inner|+FocusControl = Outer");
  ExpectUndoable();
}

TEST_F(UnannouncedTest, AComponentThatPlainCodeMakesIsInTheFile) {
  session_->Run(QStringLiteral("verb"), {}, [&] {
    auto* panel = new TPanel(session_->GetRoot());
    panel->SetParent(&Get<TPanel>("Panel1"));
    panel->SetBounds(10, 20, 30, 40);
    auto* label = new TLabel(session_->GetRoot());
    label->SetParent(panel);
    new TTimer(session_->GetRoot());
  });
  EXPECT_TRUE(session_->GetComponent(QStringLiteral("Panel2")));
  const QByteArray text = session_->Bytes();
  EXPECT_TRUE(text.contains("      object Label2: TLabel\n"));
  EXPECT_TRUE(text.contains("  object Timer2: TTimer\n"));
  ExpectUndoable();
}

TEST_F(UnannouncedTest, AComponentThatPlainCodeFreesLeavesTheFileWithEverythingInIt) {
  session_->Run(QStringLiteral("verb"), {}, [&] { delete &Get("Panel1"); });
  EXPECT_FALSE(session_->GetComponent(QStringLiteral("Inner")));
  EXPECT_FALSE(session_->Bytes().contains("Inner"));
  ExpectUndoable();
}

TEST_F(UnannouncedTest, AnotherParentAndAnotherPlaceInTheOrderAreFound) {
  session_->Run(QStringLiteral("verb"), {}, [&] {
    Get("Button1").SetParent(&Get<TPanel>("Panel1"));
    Get("Led").SendToBack();
  });
  EXPECT_TRUE(session_->Bytes().contains("    object Button1: TButton\n") ||
              session_->ObjectOf(Get("Button1"))->parent == session_->ObjectOf(Get("Panel1")));
  EXPECT_EQ(session_->Document().Root().children[0]->name, "Led");
  ExpectUndoable();
}

TEST_F(UnannouncedTest, AChangeOutsideOfAnyCommandBecomesOne) {
  Get<TLabel>("Label1").SetHint(QStringLiteral("late"));
  EXPECT_FALSE(session_->IsBusy());
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(Changes(), "+Hint = 'late'");
  EXPECT_TRUE(session_->IsModified());
  ExpectUndoable();
}

TEST_F(UnannouncedTest, AStrayChangeIsNotMixedIntoTheNextCommand) {
  Get<TLabel>("Label1").SetHint(QStringLiteral("late"));
  session_->Run(QStringLiteral("tag"), {}, [&] { Get("Inner").SetTag(3); });
  EXPECT_EQ(Changes(), "+Tag = 3|+Hint = 'late'");
  session_->Undo();
  EXPECT_EQ(Changes(), "+Hint = 'late'");
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Sample);
}

TEST_F(UnannouncedTest, UndoTakesBackAStrayChangeFirst) {
  Get<TLabel>("Label1").SetHint(QStringLiteral("late"));
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Sample);
  EXPECT_EQ(StateOf(*session_), state_);
}

TEST_F(UnannouncedTest, ASetterThatTellsNobodyIsFoundWhenTheEditorSaysSo) {
  RegisterClass(TSilent::StaticClass());
  session_ = FormSession::FromBytes("object F: TF\n  object S: TSilent\n    Level = 1\n  end\nend\n");
  auto& silent = Get<TSilent>("S");
  session_->Run(QStringLiteral("verb"), {}, [&] {
    silent.SetLevel(2);
    session_->Modified();
  });
  EXPECT_TRUE(session_->Bytes().contains("Level = 2"));
  silent.SetLevel(3);
  session_->Modified();
  EXPECT_TRUE(session_->Bytes().contains("Level = 3"));
  session_->Undo();
  EXPECT_EQ(silent.Level(), 2);
  // Through its property it needs to say nothing.
  session_->Run(QStringLiteral("inspector"), {},
                [&] { SetOrdProp(silent, silent.ClassType().GetProp("Level"), 9); });
  EXPECT_TRUE(session_->Bytes().contains("Level = 9"));
}

namespace {
class SilentTest : public UnannouncedTest {
 protected:
  void SetUp() override {
    UnannouncedTest::SetUp();
    RegisterClass(TSilent::StaticClass());
    session_ = FormSession::FromBytes(Text);
  }
  TSilent& S() { return Get<TSilent>("S"); }
  void ExpectChange(const QByteArray& lines) {
    EXPECT_EQ(ChangedLines(Text, session_->Bytes()).join('|'), lines);
    session_->Undo();
    EXPECT_EQ(session_->Bytes(), Text);
    EXPECT_FALSE(session_->CanUndo());
    EXPECT_EQ(S().Level(), 1);
    session_->Redo();
    EXPECT_EQ(ChangedLines(Text, session_->Bytes()).join('|'), lines);
  }
  static inline const QByteArray Text =
      "object F: TF\n  object L: TLabel\n    Left = 3\n    AutoSize = False\n  end\n"
      "  object S: TSilent\n    Level = 1\n    Tag = 5\n  end\nend\n";
};
}  // namespace

TEST_F(SilentTest, WhatNobodyToldOfIsFoundBesideWhatOthersTold) {
  session_->Run(QStringLiteral("verb"), {}, [&] {
    S().SetLevel(2);
    Get<TLabel>("L").SetTag(8);
    session_->Modified();
  });
  ExpectChange("+Tag = 8|-Level = 1|+Level = 2");
}

TEST_F(SilentTest, WhatNobodyToldOfIsFoundBesideWhatTheSameComponentTold) {
  session_->Run(QStringLiteral("verb"), {}, [&] {
    S().SetLevel(2);
    S().SetTag(6);
    session_->Modified();
  });
  ExpectChange("-Level = 1|-Tag = 5|+Level = 2|+Tag = 6");
}

TEST_F(SilentTest, AThrowTakesBackWhatNobodyToldOf) {
  EXPECT_THROW(session_->Run(QStringLiteral("verb"), {},
                             [&] {
                               S().SetLevel(2);
                               throw Exception(QStringLiteral("no"));
                             }),
               Exception);
  EXPECT_EQ(S().Level(), 1);
  EXPECT_EQ(session_->Bytes(), Text);
  EXPECT_FALSE(session_->CanUndo());
}

TEST_F(SilentTest, AfterUndoAndRedoTheNextChangeIsFoundAndNoOther) {
  for (int level = 2; level < 4; ++level) {
    S().SetLevel(level);
    session_->Modified();
  }
  session_->Undo();
  session_->Modified();
  EXPECT_EQ(session_->RedoText(), QStringLiteral("Change"));  // nothing new came on top
  session_->Redo();
  session_->Modified();
  EXPECT_FALSE(session_->CanRedo());
  EXPECT_EQ(S().Level(), 3);
  S().SetLevel(1);
  session_->Modified();
  EXPECT_EQ(session_->Bytes(), Text);
  session_->Undo();
  EXPECT_EQ(S().Level(), 3);
}

TEST_F(SilentTest, ANewComponentOfItsClassIsWatchedToo) {
  TComponent* made = session_->CreateComponent(TSilent::StaticClass(), nullptr, QRect(8, 8, 0, 0));
  const QByteArray before = session_->Bytes();
  dynamic_cast<TSilent&>(*made).SetLevel(4);
  session_->Modified();
  EXPECT_EQ(ChangedLines(before, session_->Bytes()).join('|'), "+Level = 4");
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), before);
}

TEST_F(SilentTest, NothingChangedIsNoCommand) {
  session_->Modified();
  session_->Run(QStringLiteral("verb"), {}, [&] { session_->Modified(); });
  S().SetLevel(2);
  S().SetLevel(1);
  session_->Modified();
  EXPECT_FALSE(session_->CanUndo());
}

// What the promise saves: nobody looks at a component whose class gave it.
TEST_F(SilentTest, AClassThatPromisesToTellIsTakenAtItsWord) {
  const int package = 0;
  RegisterClass(TQuiet::StaticClass(), &package);
  PromiseTelling(TQuiet::StaticClass());
  EXPECT_FALSE(PromisesTelling(TSilent::StaticClass()));
  session_ = FormSession::FromBytes(QByteArray(Text).replace("TSilent", "TQuiet"));
  S().SetLevel(2);
  session_->Modified();
  EXPECT_FALSE(session_->CanUndo());
  session_.reset();
  UnRegisterClasses(&package);
  EXPECT_FALSE(PromisesTelling(TQuiet::StaticClass()));
}

TEST_F(UnannouncedTest, MakingTheComponentsAnewWaitsForTheCommand) {
  TComponent* label = &Get<TLabel>("Label1");
  int rebuilt = 0;
  QObject listener;
  QObject::connect(session_.get(), &FormSession::Changed, &listener,
                   [&](const FormChange& change) { rebuilt += change.structure; });
  session_->Run(QStringLiteral("dialog"), {}, [&] {
    session_->Rebuild();
    EXPECT_EQ(session_->GetComponent(QStringLiteral("Label1")), label);
    Get<TLabel>("Label1").SetHint(QStringLiteral("x"));
    session_->Undo();
    EXPECT_EQ(rebuilt, 0);
  });
  EXPECT_EQ(rebuilt, 1);
  EXPECT_EQ(Changes(), "+Hint = 'x'");
  ExpectUndoable();
}

TEST_F(UnannouncedTest, AfterAFailedCommandTheNextOneWorks) {
  for (int i = 0; i < 2; ++i) EXPECT_THROW(session_->Run(QStringLiteral("x"), {}, [] { throw 1; }), int);
  session_->Run(QStringLiteral("tag"), {}, [&] { Get("Inner").SetTag(3); });
  ExpectUndoable();
}

TEST_F(UnannouncedTest, ADragIsOneCommandOrNone) {
  session_->BeginLive();
  for (int i = 1; i < 5; ++i) {
    session_->RestartLive();
    Get("Panel1").SetBounds(8 + i, 8, 200, 100);
  }
  EXPECT_TRUE(session_->IsBusy());
  session_->EndLive(QStringLiteral("Move"), true);
  EXPECT_EQ(Changes(), "-Left = 8|+Left = 12");
  ExpectUndoable();
  session_->BeginLive();
  Get("Panel1").SetBounds(50, 50, 20, 10);
  session_->EndLive({}, false);
  EXPECT_EQ(Changes(), "-Left = 8|+Left = 12");
}

TEST_F(UnannouncedTest, ACommandEndsADragThatGoesOn) {
  session_->BeginLive();
  Get("Panel1").SetBounds(50, 50, 20, 10);
  session_->Run(QStringLiteral("tag"), {}, [&] { Get("Inner").SetTag(3); });
  EXPECT_FALSE(session_->IsLive());
  EXPECT_EQ(Changes(), "+Tag = 3");
  ExpectUndoable();
}
