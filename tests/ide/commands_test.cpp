// Every kind of command, with undo and redo to the byte.
#include "tests/ide/SessionTest.h"

using namespace ide;

TEST_F(SessionTest, AnUntouchedFormIsWrittenAsItWasRead) {
  EXPECT_EQ(session_->Bytes(), Sample);
  EXPECT_FALSE(session_->IsModified());
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_FALSE(session_->CanRedo());
}

TEST_F(SessionTest, AMoveChangesOnlyTheLinesOfThePlace) {
  auto& button = Get("Button1");
  session_->Run(QStringLiteral("Move"), {&button}, [&] { button.SetBounds(248, 48, 75, 25); });
  EXPECT_EQ(Changes(), "-Left = 240|-Top = 40|+Left = 248|+Top = 48");
  EXPECT_EQ(session_->UndoText(), QStringLiteral("Move"));
  ExpectUndoable();
}

TEST_F(SessionTest, AResizeChangesOnlyTheLinesOfTheSize) {
  auto& button = Get("Button1");
  session_->Run(QStringLiteral("Resize"), {&button}, [&] { button.SetBounds(240, 40, 90, 30); });
  EXPECT_EQ(Changes(), "-Width = 75|-Height = 25|+Width = 90|+Height = 30");
  ExpectUndoable();
}

TEST_F(SessionTest, AFormThatGrowsTakesItsAnchoredControlsAlong) {
  session_->Run(QStringLiteral("Resize"), {&session_->Form()}, [&] { session_->Form().SetClientWidth(480); });
  EXPECT_EQ(Get("Button1").Left(), 320);
  EXPECT_EQ(Changes(), "-ClientWidth = 400|+ClientWidth = 480|-Left = 240|+Left = 320");
  ExpectUndoable();
}

TEST_F(SessionTest, APropertyChangesItsLine) {
  auto& label = Get("Label1");
  session_->Run(QStringLiteral("Change"), {&label}, [&] { label.SetCaption(QStringLiteral("It's here")); });
  EXPECT_EQ(Changes(), "-Caption = 'Go'|+Caption = 'It'#39's here'");
  ExpectUndoable();
}

TEST_F(SessionTest, APropertyThatGetsItsDefaultLosesItsLine) {
  auto& timer = Get<TTimer>("Timer1");
  session_->Run(QStringLiteral("Change"), {&timer}, [&] { timer.SetInterval(1000); });
  EXPECT_EQ(Changes(), "-Interval = 250");
  ExpectUndoable();
}

TEST_F(SessionTest, APropertyThatLeavesItsDefaultGetsALine) {
  auto& button = Get<TButton>("Button1");
  session_->Run(QStringLiteral("Change"), {&button}, [&] { button.SetDefault(true); });
  EXPECT_EQ(Changes(), "+Default = True");
  ExpectUndoable();
}

TEST_F(SessionTest, ANestedPropertyChangesItsLine) {
  auto& led = Get<TVRXLEDLabel>("Led");
  session_->Run(QStringLiteral("Change"), {&led}, [&] {
    led.LED()->SetSize(1, 20);
    led.LED()->SetColor(0, clRed);
  });
  EXPECT_EQ(Changes(), "-LED.ActiveColor = clAqua|+LED.ActiveColor = clRed|+LED.HorzSize = 20");
  ExpectUndoable();
}

TEST_F(SessionTest, AFontOfTheFormReachesControlsThatTakeIt) {
  session_->Run(QStringLiteral("Change"), {&session_->Form()},
                [&] { session_->Form().Font()->SetColor(clBlue); });
  EXPECT_EQ(Get("Button1").Font()->Color(), clBlue);
  EXPECT_EQ(Get("Label1").Font()->Color(), clRed);
  ExpectUndoable();
}

TEST_F(SessionTest, AReferenceIsWrittenAndTakenBack) {
  auto& label = Get<TLabel>("InnerLabel");
  session_->Run(QStringLiteral("Change"), {&label}, [&] { label.SetFocusControl(&Get<TButton>("Button1")); });
  EXPECT_EQ(Changes(), "-FocusControl = Inner|+FocusControl = Button1");
  ExpectUndoable();
}

TEST_F(SessionTest, AnAlignmentMovesTheNeighboursInTheSameCommand) {
  auto& panel = Get("Panel1");
  session_->Run(QStringLiteral("Change"), {&panel}, [&] { panel.SetAlign(TAlign::alTop); });
  EXPECT_EQ(panel.BoundsRect(), QRect(0, 0, 400, 100));
  ExpectUndoable();
}

TEST_F(SessionTest, ARenameReachesEveryReference) {
  session_->Rename(Get("Button1"), QStringLiteral("GoButton"));
  EXPECT_EQ(
      Changes(),
      "-FocusControl = Button1|+FocusControl = GoButton|-object Button1: TButton|+object GoButton: TButton");
  EXPECT_EQ(Get<TLabel>("Label1").FocusControl(), session_->GetComponent(QStringLiteral("GoButton")));
  ExpectUndoable();
}

TEST_F(SessionTest, ACaptionThatFollowsItsNameIsPartOfTheRename) {
  session_->Rename(Get("Inner"), QStringLiteral("Deep"));
  EXPECT_EQ(Get("Deep").Caption(), QStringLiteral("Deep"));
  ExpectUndoable();
}

TEST_F(SessionTest, RenamingTheFormRenamesItsClass) {
  session_->Rename(session_->Form(), QStringLiteral("Console"));
  EXPECT_EQ(session_->GetRootClassName(), QStringLiteral("TConsole"));
  EXPECT_EQ(Changes(), "-object Main: TMain|+object Console: TConsole");
  ExpectUndoable();
  session_->Undo();
  EXPECT_EQ(session_->GetRootClassName(), QStringLiteral("TMain"));
}

TEST_F(SessionTest, ANameThatIsTakenEmptyOrNoIdentifierIsRefused) {
  for (const char* name : {"Label1", "label1", "Main", "", "two words", "1st", "gr\xC3\xBCn"}) {
    EXPECT_THROW(session_->Rename(Get("Button1"), QString::fromUtf8(name)), Exception) << name;
    EXPECT_EQ(session_->Bytes(), Sample) << name;
    EXPECT_EQ(StateOf(*session_), state_) << name;
    EXPECT_FALSE(session_->CanUndo()) << name;
  }
}

TEST_F(SessionTest, AControlIsCreatedInAPanel) {
  auto* created = session_->CreateComponent(TButton::StaticClass(), &Get("Panel1"), QRect(16, 24, 80, 32));
  EXPECT_EQ(created->Name(), QStringLiteral("Button2"));
  EXPECT_EQ(created->GetParentComponent(), &Get("Panel1"));
  EXPECT_EQ(As<TControl>(created)->BoundsRect(), QRect(16, 24, 80, 32));
  EXPECT_EQ(session_->SelectedComponents(), std::vector<TComponent*>{created});
  EXPECT_EQ(Changes(),
            "+object Button2: TButton|+Left = 16|+Top = 24|+Width = 80|+Height = 32|+Caption = "
            "'Button2'|+TabOrder = "
            "1|+end");
  ExpectUndoable();
}

TEST_F(SessionTest, AControlWithoutARectangleGetsTheSizeOfItsClass) {
  auto* created =
      As<TControl>(session_->CreateComponent(TPanel::StaticClass(), nullptr, QRect(8, 200, 0, 0)));
  EXPECT_EQ(created->BoundsRect(), QRect(8, 200, 185, 41));
  EXPECT_EQ(created->Parent(), &session_->Form());
  ExpectUndoable();
}

TEST_F(SessionTest, AControlDroppedOnALabelLandsInTheFormAroundIt) {
  auto* created = session_->CreateComponent(TButton::StaticClass(), &Get("Label1"), QRect(0, 0, 0, 0));
  EXPECT_EQ(created->GetParentComponent(), &session_->Form());
}

TEST_F(SessionTest, AComponentThatIsNoControlIsCreatedBehindTheOthers) {
  auto* created = session_->CreateComponent(TTimer::StaticClass(), &Get("Panel1"), QRect(100, 120, 0, 0));
  EXPECT_EQ(created->Name(), QStringLiteral("Timer2"));
  EXPECT_EQ(created->GetParentComponent(), &session_->Form());
  EXPECT_EQ(Changes(), "+object Timer2: TTimer|+Left = 100|+Top = 120|+end");
  ExpectUndoable();
}

TEST_F(SessionTest, ADeletedComponentTakesReferencesToItAlong) {
  session_->DeleteComponents({&Get("Button1")});
  EXPECT_EQ(session_->GetComponent(QStringLiteral("Button1")), nullptr);
  EXPECT_EQ(Get<TLabel>("Label1").FocusControl(), nullptr);
  EXPECT_TRUE(Changes().startsWith("-FocusControl = Button1|-object Button1: TButton|-Left = 240"))
      << Changes().data();
  ExpectUndoable();
  session_->Undo();
  EXPECT_EQ(Get<TLabel>("Label1").FocusControl(), session_->GetComponent(QStringLiteral("Button1")));
}

TEST_F(SessionTest, ADeletedContainerTakesItsChildrenAlong) {
  session_->DeleteComponents({&Get("Panel1"), &Get("Inner")});
  EXPECT_EQ(session_->GetComponent(QStringLiteral("InnerLabel")), nullptr);
  ExpectUndoable();
  session_->Undo();
  EXPECT_EQ(Get<TLabel>("InnerLabel").FocusControl(), session_->GetComponent(QStringLiteral("Inner")));
  EXPECT_EQ(session_->Form().Controls().front(), &Get("Panel1"));
}

TEST_F(SessionTest, ADeletedUnknownComponentComesBackWhole) {
  session_->DeleteComponents({session_->GetComponent(QStringLiteral("Mystery"))});
  EXPECT_FALSE(session_->Bytes().contains("Secret"));
  ExpectUndoable();
}

TEST_F(SessionTest, TheFormItselfIsNotDeleted) {
  session_->DeleteComponents({&session_->Form()});
  EXPECT_EQ(session_->Bytes(), Sample);
  EXPECT_FALSE(session_->CanUndo());
}

TEST_F(SessionTest, AnActionThatChangesNothingIsNoCommand) {
  auto& button = Get("Button1");
  session_->Run(QStringLiteral("Nothing"), {&button}, [&] {
    button.SetCaption(QStringLiteral("Other"));
    button.SetCaption(QStringLiteral("Go"));
  });
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_FALSE(session_->IsModified());
  EXPECT_EQ(session_->Bytes(), Sample);
}

TEST_F(SessionTest, NestedCommandsAreOne) {
  auto& button = Get("Button1");
  session_->Run(QStringLiteral("Outer"), {&button}, [&] {
    button.SetCaption(QStringLiteral("One"));
    session_->Run(QStringLiteral("Inner"), {&Get("Label1")},
                  [&] { Get("Label1").SetCaption(QStringLiteral("Two")); });
    session_->CreateComponent(TTimer::StaticClass(), nullptr, {});
  });
  EXPECT_EQ(session_->UndoText(), QStringLiteral("Outer"));
  ExpectUndoable();
}

TEST_F(SessionTest, AComponentCreatedAndDeletedInOneCommandLeavesNoTrace) {
  session_->Run(QStringLiteral("Both"), {&Get("Label1")}, [&] {
    session_->DeleteComponents(
        {session_->CreateComponent(TButton::StaticClass(), nullptr, QRect(0, 0, 10, 10))});
    Get("Label1").SetCaption(QStringLiteral("x"));
  });
  EXPECT_EQ(Changes(), "-Caption = 'Go'|+Caption = 'x'");
  ExpectUndoable();
}

TEST_F(SessionTest, AComponentReplacedInOneCommandComesBackOnUndo) {
  session_->Run(QStringLiteral("Replace"), {&Get("Button1")}, [&] {
    session_->DeleteComponents({&Get("Button1")});
    auto* fresh = session_->CreateComponent(TButton::StaticClass(), nullptr, QRect(1, 2, 30, 40));
    fresh->SetName(QStringLiteral("Button1"));
  });
  ExpectUndoable();
}

TEST_F(SessionTest, ReferencesBetweenDeletedComponentsComeBack) {
  session_->DeleteComponents({&Get("Button1"), &Get("Label1")});
  ExpectUndoable();
  session_->Undo();
  session_->DeleteComponents({&Get("Label1"), &Get("Button1")});
  ExpectUndoable();
  session_->Undo();
  EXPECT_EQ(Get<TLabel>("Label1").FocusControl(), session_->GetComponent(QStringLiteral("Button1")));
}

TEST_F(SessionTest, AnAnchoredControlDeletedWithAResizeComesBackInItsPlace) {
  session_->Run(QStringLiteral("Both"), {&session_->Form()}, [&] {
    session_->Form().SetClientWidth(200);
    session_->DeleteComponents({&Get("Button1")});
  });
  ExpectUndoable();
}
