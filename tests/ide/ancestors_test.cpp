// Forms with an ancestor and forms with frames: what they inherit is there, is edited as differences, and is
// never written to where it comes from.
#include "OperationTest.h"
#include "ide/FormFolder.h"
#include "ide/InspectorModel.h"
#include "ide/UnitText.h"
#include "ide/operations/Clipboard.h"
#include "ide/operations/FormText.h"
#include "ide/operations/Places.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "tests/support/InheritedForms.h"
#include "vcl/GroupBox.h"

using namespace inherited_forms;

namespace ide {
namespace {
const QByteArray Frame = R"(object Head: THead
  Left = 0
  Top = 0
  Width = 160
  Height = 80
  TabOrder = 0
  object Title: TLabel
    Left = 4
    Top = 5
    Width = 50
    Height = 15
    Caption = 'Title'
    FocusControl = Field
  end
  object Field: TButton
    Left = 4
    Top = 30
    Width = 75
    Height = 25
    Caption = 'Field'
    TabOrder = 0
  end
end
)";

const QByteArray Host = R"(object Host: THost
  Left = 0
  Top = 0
  ClientHeight = 300
  ClientWidth = 400
  inline Head1: THead
    Left = 10
    Top = 12
    Width = 160
    Height = 80
    TabOrder = 0
  end
  inline Head2: THead
    Left = 10
    Top = 112
    Width = 160
    Height = 80
    TabOrder = 1
    inherited Field: TButton
      Caption = 'Other'
    end
  end
end
)";

class AncestorTest : public testing::Test {
 protected:
  void SetUp() override {
    RegisterAll();
    files_.Write("Head.dfm", Frame);
    files_.Write("Host.dfm", Host);
  }
  QString Path(const char* name) const { return files_.Path(name); }
  void Write(const char* name, const QByteArray& bytes) const { files_.Write(name, bytes); }
  QByteArray Read(const char* name) const { return files_.Read(name); }
  std::unique_ptr<FormSession> Open(const char* name) const { return FormSession::Open(Path(name)); }
  static TControl& Control(const FormSession& session, const char* name) {
    return dynamic_cast<TControl&>(*session.GetComponent(QString::fromLatin1(name)));
  }
  static TControl& Inside(const FormSession& session, const char* frame, const char* name) {
    return dynamic_cast<TControl&>(*Control(session, frame).FindComponent(QString::fromLatin1(name)));
  }
  // The lines that the edit changes; undoing it gives the very bytes, and the file it makes says the same.
  std::string Edited(FormSession& session, const std::function<void()>& edit) {
    const QByteArray before = session.Bytes();
    const std::string stateBefore = StateOf(session);
    session.Run(QStringLiteral("edit"), {}, edit);
    const QByteArray after = session.Bytes();
    const std::string stateAfter = StateOf(session);
    for (int round = 0; round < 2; ++round) {
      session.Undo();
      EXPECT_EQ(session.Bytes(), before);
      EXPECT_EQ(StateOf(session), stateBefore);
      session.Redo();
      EXPECT_EQ(session.Bytes(), after);
      EXPECT_EQ(StateOf(session), stateAfter);
    }
    EXPECT_EQ(StateOf(*FormSession::FromBytes(after, session.FileName())), stateAfter);
    return ChangedLines(before, after).join('|').toStdString();
  }
  static QStringList Texts(const FormSession& session) {
    QStringList texts;
    for (const forms::Finding& f : session.Findings())
      if (f.missingFile) texts << f.text;
    return texts;
  }
  Files files_;
};
}  // namespace

TEST_F(AncestorTest, AnInheritedFormHasWhatItsAncestorHas) {
  const auto session = Open("Derived.dfm");
  EXPECT_EQ(Texts(*session), QStringList());
  EXPECT_EQ(session->Form().Caption(), QStringLiteral("Derived"));
  EXPECT_EQ(session->Form().ClientWidth(), 400);
  EXPECT_EQ(session->Form().Left(), 3);
  TControl& button = Control(*session, "Button1");
  EXPECT_EQ(button.BoundsRect(), QRect(8, 9, 75, 25));
  EXPECT_EQ(button.Caption(), QStringLiteral("Go"));
  EXPECT_FALSE(button.Enabled());
  EXPECT_EQ(button.Parent(), &Control(*session, "Panel1"));
  EXPECT_EQ(dynamic_cast<TLabel&>(Control(*session, "Label1")).FocusControl(), &button);
  EXPECT_EQ(Control(*session, "Box1").StreamClassName(), QByteArray("TMysteryBox"));
  EXPECT_EQ(Control(*session, "Box1").Width(), 60);
  EXPECT_EQ(Control(*session, "Extra").Parent(), &session->Form());
}

TEST_F(AncestorTest, OpeningAndSavingWritesNothing) {
  for (const char* name : {"Derived.dfm", "Host.dfm"}) {
    const QByteArray bytes = Read(name);
    const auto session = Open(name);
    EXPECT_EQ(session->Bytes(), bytes);
    EXPECT_FALSE(session->IsModified());
    session->Save();
    EXPECT_EQ(Read(name), bytes);
  }
  EXPECT_EQ(Read("Base.dfm"), Base);
  EXPECT_EQ(Read("Head.dfm"), Frame);
}

TEST_F(AncestorTest, AnEditOfWhatIsInheritedIsWrittenInsideOfItsInheritedParents) {
  const auto session = Open("Derived.dfm");
  TControl& button = Control(*session, "Button1");
  EXPECT_EQ(Edited(*session, [&] { button.SetCaption(QStringLiteral("Stop")); }),
            "+inherited Panel1: TPanel|+inherited Button1: TButton|+Caption = 'Stop'|+end|+end");
  session->Save();
  EXPECT_EQ(Control(*Open("Derived.dfm"), "Button1").Caption(), QStringLiteral("Stop"));
  EXPECT_EQ(Read("Base.dfm"), Base);
}

TEST_F(AncestorTest, MovingWritesThePlaceThatDiffers) {
  const auto session = Open("Derived.dfm");
  TControl& label = Control(*session, "Label1");
  EXPECT_EQ(Edited(*session,
                   [&] {
                     SetPlace(label, {240, 24, 60, 15});
                   }),
            "+inherited Label1: TLabel|+Top = 24|+end");
  EXPECT_EQ(Edited(*session, [&] { Control(*session, "Box1").SetLeft(101); }),
            "+inherited Panel1: TPanel|+inherited Box1: TMysteryBox|+Left = 101|+end|+end");
  TComponent& timer = *session->GetComponent(QStringLiteral("Timer1"));
  EXPECT_EQ(Edited(*session, [&] { SetOrdProp(timer, timer.ClassType().GetProp("Interval"), 99); }),
            "+inherited Timer1: TTimer|+Interval = 99|+end");
}

TEST_F(AncestorTest, WhatTheAncestorHasIsLeftOutAndTheClassDefaultIsNot) {
  const auto session = Open("Derived.dfm");
  TControl& button = Control(*session, "Button1");
  EXPECT_EQ(Edited(*session, [&] { button.SetEnabled(true); }),
            "+inherited Panel1: TPanel|+inherited Button1: TButton|+Enabled = True|+end|+end");
  EXPECT_EQ(Edited(*session, [&] { button.SetEnabled(false); }),
            "-inherited Panel1: TPanel|-inherited Button1: TButton|-Enabled = True|-end|-end");
  EXPECT_EQ(session->Bytes(), Derived);
  EXPECT_EQ(Edited(*session, [&] { session->Form().SetCaption(QStringLiteral("Base")); }),
            "-Caption = 'Derived'");
}

TEST_F(AncestorTest, WhatIsInheritedIsNeitherDeletedNorRenamed) {
  const auto session = Open("Derived.dfm");
  TControl& button = Control(*session, "Button1");
  for (TComponent* c : {static_cast<TComponent*>(&button), session->GetComponent(QStringLiteral("Panel1"))}) {
    try {
      session->DeleteComponents({c});
      ADD_FAILURE();
    } catch (const Exception& e) {
      EXPECT_EQ(e.Message(),
                c->Name() + QStringLiteral(" comes from the ancestor form and cannot be deleted here."));
    }
  }
  try {
    session->Rename(button, QStringLiteral("Other"));
    ADD_FAILURE();
  } catch (const Exception& e) {
    EXPECT_EQ(e.Message(),
              QStringLiteral("Button1 comes from the ancestor form and cannot be renamed here."));
  }
  EXPECT_EQ(button.Name(), QStringLiteral("Button1"));
  EXPECT_EQ(session->Bytes(), Derived);
  EXPECT_FALSE(session->CanUndo());
  session->Rename(session->Form(), QStringLiteral("Second"));
  session->Rename(Control(*session, "Extra"), QStringLiteral("More"));
  EXPECT_EQ(session->Form().Name(), QStringLiteral("Second"));
}

// --- Copies

namespace {
std::string Copied(const FormSession& session, TComponent& component) {
  return TextOfComponents(session, {&component}).toStdString();
}
}  // namespace

TEST_F(AncestorTest, ACopyOfWhatIsInheritedSaysEverything) {
  Write(
      "Derived.dfm",
      "inherited Derived: TDerived\n  inherited Panel1: TPanel\n    Left = 12\n    inherited Button1: "
      "TButton\n"
      "      Caption = 'Mine'\n      Hint = 'More'\n    end\n    object Own: TLabel\n      Caption = 'Own'\n"
      "    end\n  end\nend\n");
  const auto session = Open("Derived.dfm");
  EXPECT_EQ(
      Copied(*session, Control(*session, "Panel1")),
      "object Panel1: TPanel\n  Left = 12\n  Top = 20\n  Width = 200\n  Height = 100\n  Caption = ''\n"
      "  TabOrder = 0\n  object Button1: TButton\n    Left = 8\n    Top = 9\n    Width = 75\n"
      "    Height = 25\n    Caption = 'Mine'\n    Enabled = False\n    TabOrder = 0\n    Hint = 'More'\n"
      "  end\n  object Box1: TMysteryBox\n    Left = 100\n    Top = 9\n    Width = 60\n    Height = 25\n"
      "  end\n  object Own: TLabel\n    Caption = 'Own'\n  end\nend\n");
}

TEST_F(AncestorTest, ADuplicateOfWhatIsInheritedStandsByItself) {
  const auto session = Open("Derived.dfm");
  session->Select({&Control(*session, "Panel1")});
  DuplicateSelection(*session, 8);
  TControl& copy = Control(*session, "Panel2");
  EXPECT_EQ(copy.BoundsRect(), QRect(18, 28, 200, 100));
  EXPECT_EQ(session->ObjectOf(copy)->kind, forms::ObjectKind::Object);
  TControl& button = Control(*session, "Button2");
  EXPECT_EQ(button.Caption(), QStringLiteral("Go"));
  EXPECT_FALSE(button.Enabled());
  EXPECT_EQ(button.Parent(), &copy);
  const auto again = FormSession::FromBytes(session->Bytes(), session->FileName());
  EXPECT_EQ(StateOf(*again), StateOf(*session));
  session->DeleteComponents({&copy});  // it may go
  session->Undo();
  session->Undo();
  EXPECT_EQ(session->Bytes(), Derived);
}

TEST_F(AncestorTest, ACopyOfAnInheritedFrameIsThatFrameWithWhatTheAncestorSaysOfIt) {
  Write("Base.dfm", QByteArray(Host).replace("object Host: THost", "object Base: TBase"));
  Write("Derived.dfm",
        "inherited Derived: TDerived\n  inherited Head2: THead\n    Left = 20\n    inherited Title: TLabel\n"
        "      Caption = 'Here'\n    end\n  end\nend\n");
  const auto session = Open("Derived.dfm");
  EXPECT_EQ(
      Copied(*session, Control(*session, "Head1")),
      "inline Head1: THead\n  Left = 10\n  Top = 12\n  Width = 160\n  Height = 80\n  TabOrder = 0\nend\n");
  EXPECT_EQ(Copied(*session, Control(*session, "Head2")),
            "inline Head2: THead\n  Left = 20\n  Top = 112\n  Width = 160\n  Height = 80\n  TabOrder = 1\n"
            "  inherited Title: TLabel\n    Caption = 'Here'\n  end\n  inherited Field: TButton\n"
            "    Caption = 'Other'\n  end\nend\n");
}

TEST_F(AncestorTest, WhatIsInheritedIsNotCutAndWithoutItsAncestorNotCopied) {
  class Clipboard : public IClipboard {
   public:
    QString Text() const override { return text; }
    void SetText(const QString& t) override { text = t; }
    QString text;
  } clipboard;
  const auto refusal = [&](const auto& action) {
    try {
      action();
    } catch (const Exception& e) {
      return e.Message().toStdString();
    }
    return std::string();
  };
  auto session = Open("Derived.dfm");
  session->Select({&Control(*session, "Button1")});
  EXPECT_EQ(refusal([&] { CutSelection(*session, clipboard); }),
            "Button1 comes from the ancestor form and cannot be cut here.");
  Write("Derived.dfm", "inherited Derived: TDerived\n  inherited Button1: TButton\n  end\nend\n");
  QFile::remove(Path("Base.dfm"));
  session = Open("Derived.dfm");
  session->Select({&Control(*session, "Button1")});
  EXPECT_EQ(refusal([&] { CopySelection(*session, clipboard); }),
            "Button1 comes from the ancestor form, which was not found; it cannot be copied here.");
  EXPECT_EQ(clipboard.text, QString());
}

TEST_F(AncestorTest, NoPageIsPastedIntoWhatAFrameHolds) {
  Write(
      "Head.dfm",
      "object Head: THead\n  Left = 0\n  Top = 0\n  Width = 160\n  Height = 80\n  object Book: TPageControl\n"
      "    Left = 0\n    Top = 0\n    Width = 100\n    Height = 60\n  end\nend\n");
  const auto session = Open("Host.dfm");
  const QByteArray before = session->Bytes();
  FakeClipboard clipboard;
  clipboard.text = QStringLiteral("object P: TTabSheet\n  Caption = 'x'\nend\n");
  session->Select({&Inside(*session, "Head1", "Book")});
  EXPECT_THROW(PasteInto(*session, clipboard, 8), Exception);
  EXPECT_EQ(session->Bytes(), before);
}

TEST_F(AncestorTest, OfWhatIsInheritedTheInspectorMarksWhatThisFormSays) {
  const auto session = Open("Host.dfm");
  InspectorModel model;
  model.SetSession(session.get());
  const auto marked = [&](TControl& control, const char* property) {
    session->Select({&control});
    const QModelIndex row = model.IndexOfPath(QLatin1StringView(property));
    EXPECT_TRUE(row.isValid());
    return row.data(InspectorModel::NotDefaultRole).toBool();
  };
  EXPECT_TRUE(marked(Inside(*session, "Head2", "Field"), "Caption"));
  EXPECT_FALSE(marked(Inside(*session, "Head1", "Field"), "Caption")) << "the frame says it";
  EXPECT_FALSE(marked(Inside(*session, "Head2", "Title"), "Caption"));
  Edited(*session, [&] { Inside(*session, "Head1", "Field").SetCaption(QStringLiteral("Mine")); });
  EXPECT_TRUE(marked(Inside(*session, "Head1", "Field"), "Caption"));
}

// --- Back to the ancestor

TEST_F(AncestorTest, ARevertedPartIsTheAncestorsAndTheRestStays) {
  const QByteArray form =
      "inherited Derived: TDerived\n  inherited Label1: TLabel\n    Left = 250\n    Font.Color = clRed\n"
      "    ParentFont = False\n    Wings = 4\n  end\nend\n";
  Write("Derived.dfm", form);
  const auto session = Open("Derived.dfm");
  TComponent& label = Control(*session, "Label1");
  EXPECT_TRUE(session->SaysItself(label, "Font"));
  EXPECT_FALSE(session->SaysItself(label, "Fon"));
  EXPECT_FALSE(session->SaysItself(label, "Top"));
  const std::string before = StateOf(*session);
  session->RevertToInherited({&label}, "Font");
  EXPECT_EQ(session->Bytes(), QByteArray(form).replace("    Font.Color = clRed\n", ""));
  EXPECT_EQ(StateOf(*FormSession::FromBytes(session->Bytes(), session->FileName())), StateOf(*session));
  session->RevertToInherited({&label}, "Wings");
  session->RevertToInherited({&label}, "ParentFont");
  session->RevertToInherited({&label}, "Left");
  EXPECT_EQ(session->Bytes(), "inherited Derived: TDerived\nend\n");
  for (int i = 0; i < 4; ++i) session->Undo();
  EXPECT_FALSE(session->CanUndo());
  EXPECT_EQ(session->Bytes(), form);
  EXPECT_EQ(StateOf(*session), before);
}

TEST_F(AncestorTest, ARenamedFormStillKnowsItsAncestor) {
  const auto session = Open("Derived.dfm");
  session->Rename(session->Form(), QStringLiteral("Second"));
  const QByteArray renamed = session->Bytes();
  TControl& button = Control(*session, "Button1");
  session->Run(QStringLiteral("edit"), {}, [&] { button.SetEnabled(true); });
  session->Run(QStringLiteral("edit"), {}, [&] { button.SetEnabled(false); });
  EXPECT_EQ(session->Bytes(), renamed);
  session->Rebuild();
  EXPECT_EQ(Texts(*session), QStringList());
  EXPECT_EQ(Control(*session, "Button1").Caption(), QStringLiteral("Go"));
}

TEST_F(AncestorTest, ANewComponentInAnInheritedContainerBringsItsBlock) {
  const auto session = Open("Derived.dfm");
  session->CreateComponent(TLabel::StaticClass(), &Control(*session, "Panel1"), QRect(5, 50, 40, 20));
  const std::string lines = ChangedLines(Derived, session->Bytes()).join('|').toStdString();
  EXPECT_EQ(lines.find("+inherited Panel1: TPanel|+object Label2: TLabel"), 0u) << lines;
  session->Undo();
  EXPECT_EQ(session->Bytes(), Derived);
  session->Redo();
  EXPECT_EQ(StateOf(*FormSession::FromBytes(session->Bytes(), session->FileName())), StateOf(*session));
}

TEST_F(AncestorTest, WhatTheFormSaysOfAnInheritedComponentComesAfterTheAncestor) {
  Write(
      "Derived.dfm",
      "inherited Derived: TDerived\n  ClientWidth = 500\n  inherited Label1: TLabel\n    Left = 250\n  end\n"
      "  inherited Panel1: TPanel\n    inherited Button1: TButton\n      Caption = 'Mine'\n    end\n  "
      "end\nend\n");
  const auto session = Open("Derived.dfm");
  EXPECT_EQ(Control(*session, "Label1").BoundsRect(), QRect(250, 16, 60, 15));
  EXPECT_EQ(Control(*session, "Button1").BoundsRect(), QRect(8, 9, 75, 25));
  EXPECT_EQ(Control(*session, "Button1").Caption(), QStringLiteral("Mine"));
  EXPECT_EQ(session->Form().ClientWidth(), 500);
  EXPECT_EQ(session->AllComponents().size(), 6u);
  EXPECT_EQ(session->Bytes(), Read("Derived.dfm"));
}

TEST_F(AncestorTest, AFrameShowsItsPartsUnderNamesOfTheirOwn) {
  const auto session = Open("Host.dfm");
  EXPECT_EQ(Texts(*session), QStringList());
  EXPECT_EQ(session->GetComponent(QStringLiteral("Field")), nullptr);
  EXPECT_EQ(Inside(*session, "Head1", "Field").Caption(), QStringLiteral("Field"));
  EXPECT_EQ(Inside(*session, "Head2", "Field").Caption(), QStringLiteral("Other"));
  for (const char* frame : {"Head1", "Head2"}) {
    TControl& field = Inside(*session, frame, "Field");
    EXPECT_EQ(field.BoundsRect(), QRect(4, 30, 75, 25));
    EXPECT_EQ(field.Parent(), &Control(*session, frame));
    EXPECT_EQ(dynamic_cast<TLabel&>(Inside(*session, frame, "Title")).FocusControl(), &field);
  }
  EXPECT_EQ(FormPlaceOf(Inside(*session, "Head2", "Title")), QRect(14, 117, 50, 15));
}

TEST_F(AncestorTest, AnEditInsideOfAFrameIsWrittenThere) {
  const auto session = Open("Host.dfm");
  EXPECT_EQ(Edited(*session, [&] { Inside(*session, "Head1", "Title").SetHint(QStringLiteral("Mine")); }),
            "+inherited Title: TLabel|+Hint = 'Mine'|+end");
  EXPECT_LT(session->Bytes().indexOf("'Mine'"), session->Bytes().indexOf("Head2"));
  EXPECT_EQ(Inside(*session, "Head2", "Title").Hint(), QString());
  EXPECT_EQ(Edited(*session, [&] { Inside(*session, "Head2", "Field").SetCaption(QStringLiteral("Field")); }),
            "-inherited Field: TButton|-Caption = 'Other'|-end");
}

TEST_F(AncestorTest, AFrameThatIsDeletedComesBackWithItsParts) {
  const auto session = Open("Host.dfm");
  const std::string state = StateOf(*session);
  session->DeleteComponents({&Control(*session, "Head2")});
  EXPECT_EQ(session->GetComponent(QStringLiteral("Head2")), nullptr);
  session->Undo();
  EXPECT_EQ(StateOf(*session), state);
  EXPECT_EQ(session->Bytes(), Host);
}

TEST_F(AncestorTest, AFrameThatIsPastedBringsItsParts) {
  const auto session = Open("Host.dfm");
  const QString text = TextOfComponents(*session, {&Control(*session, "Head1")});
  EXPECT_FALSE(text.contains(QStringLiteral("inherited"))) << text.toStdString();
  forms::Document objects = ObjectsOfText(text);
  MakeNamesFree(objects, *session);
  session->Insert(objects, {{objects.Root().children[0].get(), session->ObjectOf(session->Form())}});
  EXPECT_EQ(Inside(*session, "Head3", "Field").Caption(), QStringLiteral("Field"));
  EXPECT_EQ(StateOf(*FormSession::FromBytes(session->Bytes(), session->FileName())), StateOf(*session));
  session->Undo();
  EXPECT_EQ(session->Bytes(), Host);
}

TEST_F(AncestorTest, FramesInAncestorsAndInFramesAreThere) {
  Write("Base.dfm",
        QByteArray(Base).replace("  object Timer1: TTimer",
                                 "  inline Head1: THead\n    Left = 1\n    Top = 130\n    Width = 160\n"
                                 "    Height = 80\n    TabOrder = 3\n    inherited Title: TLabel\n"
                                 "      Caption = 'Of the base'\n    end\n  end\n"
                                 "  object Timer1: TTimer"));
  Write("Head.dfm",
        QByteArray(Frame).replace("  object Field: TButton",
                                  "  inline Deep1: TDeep\n    Left = 80\n    Top = 0\n    Width = 70\n"
                                  "    Height = 25\n    TabOrder = 1\n  end\n  object Field: TButton"));
  Write("Deep.dfm",
        "object Deep: TDeep\n  Width = 70\n  Height = 25\n  TabOrder = 0\n  object Field: TButton\n    Left "
        "= 2\n    "
        "Top = 2\n    Width = 50\n    Height = 20\n    Caption = 'Deep'\n    TabOrder = 0\n  end\nend\n");
  const auto session = Open("Derived.dfm");
  EXPECT_EQ(Texts(*session), QStringList());
  EXPECT_EQ(Inside(*session, "Head1", "Title").Caption(), QStringLiteral("Of the base"));
  EXPECT_EQ(Inside(*session, "Head1", "Field").Caption(), QStringLiteral("Field"));
  TControl& deep = Inside(*session, "Head1", "Deep1");
  TControl& field = dynamic_cast<TControl&>(*deep.FindComponent(QStringLiteral("Field")));
  EXPECT_EQ(field.Caption(), QStringLiteral("Deep"));
  EXPECT_EQ(Edited(*session, [&] { field.SetCaption(QStringLiteral("Here")); }),
            "+inherited Head1: THead|+inherited Deep1: TDeep|+inherited Field: TButton|+Caption = "
            "'Here'|+end|+end|+end");
}

TEST_F(AncestorTest, AncestorsAreReadInEveryKindOfFile) {
  const forms::Document base = forms::Document::Parse(Base);
  for (const forms::Format format : {forms::Format::Binary, forms::Format::Resource}) {
    Write("Base.dfm", base.WriteAs(format));
    Write("Derived.dfm", forms::Document::Parse(Derived).WriteAs(format));
    const QByteArray bytes = Read("Derived.dfm");
    const auto session = Open("Derived.dfm");
    EXPECT_EQ(Texts(*session), QStringList());
    TControl& button = Control(*session, "Button1");
    EXPECT_EQ(button.BoundsRect(), QRect(8, 9, 75, 25));
    EXPECT_EQ(session->Bytes(), bytes);
    session->Run(QStringLiteral("edit"), {}, [&] { button.SetCaption(QStringLiteral("Stop")); });
    const auto again = FormSession::FromBytes(session->Bytes(), session->FileName());
    EXPECT_EQ(Control(*again, "Button1").Caption(), QStringLiteral("Stop"));
    EXPECT_TRUE(again->ObjectOf(Control(*again, "Button1"))->Find("Caption"));
    session->Undo();
    EXPECT_EQ(session->Bytes(), bytes);
  }
}

TEST_F(AncestorTest, FormsOfTheOtherDialectStandOnThoseOfTheirOwn) {
  Write("Base.lfm",
        "object Base: TBase\n  Left = 0\n  Height = 90\n  Top = 0\n  Width = 120\n  ClientHeight = 90\n  "
        "ClientWidth = 120\n"
        "  object Only: TButton\n    Left = 7\n    Height = 25\n    Top = 8\n    Width = 75\n    Caption = "
        "'Only'\n"
        "    TabOrder = 0\n  end\nend\n");
  Write("Derived.lfm", "inherited Derived: TDerived\n  Caption = 'Derived'\nend\n");
  const auto session = Open("Derived.lfm");
  EXPECT_EQ(session->GetComponent(QStringLiteral("Panel1")), nullptr)
      << "the .dfm of that class is another one";
  EXPECT_EQ(session->Form().ClientWidth(), 120);
  EXPECT_EQ(Edited(*session, [&] { Control(*session, "Only").SetLeft(9); }),
            "+inherited Only: TButton|+Left = 9|+end");
}

TEST_F(AncestorTest, WhatIsNotThereIsToldOnceAndTheFormIsShownAsItIs) {
  QFile::remove(Path("Head.dfm"));
  QFile::remove(Path("Derived.pas"));
  const QString folder = QDir(files_.Folder()).path();
  const auto host = Open("Host.dfm");
  EXPECT_EQ(Texts(*host),
            QStringList{QStringLiteral("The form file of THead was not found in %1. What comes from "
                                       "there is not shown.")
                            .arg(folder)});
  EXPECT_EQ(host->AllComponents().size(), 4u);
  EXPECT_EQ(host->Bytes(), Host);
  const auto derived = Open("Derived.dfm");
  EXPECT_EQ(Texts(*derived),
            QStringList{
                QStringLiteral("TDerived is inherited, but Derived.pas, which says from which class, was not "
                               "found in %1. What it inherits is not shown.")
                    .arg(folder)});
  Write("Derived.pas", "unit Derived; type TOther = class(TBase) end;");
  EXPECT_TRUE(Texts(*Open("Derived.dfm")).value(0).contains(QStringLiteral("does not say from which class")));
  Write("Derived.pas", Unit);
  Write("Base.dfm", "object Base: TBase\n  Caption = \nend\n");
  EXPECT_TRUE(Texts(*Open("Derived.dfm"))
                  .value(0)
                  .contains(QStringLiteral("Base.dfm, which has TBase, cannot be read")));
}

TEST_F(AncestorTest, FormsWithoutAFileLookForNothing) {
  const auto session = FormSession::FromBytes(Host);
  EXPECT_EQ(Texts(*session), QStringList());
  EXPECT_EQ(session->AllComponents().size(), 4u);
}

TEST_F(AncestorTest, FilesWithAnotherEndingAreAnotherFrameworks) {
  QFile::rename(Path("Head.dfm"), Path("Head.lfm"));
  const auto session = Open("Host.dfm");
  EXPECT_EQ(Texts(*session).size(), 1);
  EXPECT_EQ(session->AllComponents().size(), 4u);
}

TEST_F(AncestorTest, CirclesAreTold) {
  Write("Head.dfm",
        QByteArray(Frame).replace("end\nend\n", "end\n  inline Deep1: TDeep\n    Left = 1\n  end\nend\n"));
  Write("Deep.dfm", "object Deep: TDeep\n  TabOrder = 0\n  inline Head1: THead\n    Left = 1\n  end\nend\n");
  const auto session = Open("Host.dfm");
  EXPECT_EQ(Texts(*session).size(), 1);
  EXPECT_TRUE(
      Texts(*session).value(0).contains(QStringLiteral("THead stands on itself: THead > TDeep > THead")))
      << Texts(*session).join(u'|').toStdString();
  EXPECT_EQ(Inside(*session, "Head1", "Field").Caption(), QStringLiteral("Field"));
  EXPECT_EQ(session->Bytes(), Host);
  Write("Head.dfm",
        QByteArray(Frame).replace("  object Field", "  inline Again: THead\n  end\n  object Field"));
  EXPECT_TRUE(
      Texts(*Open("Head.dfm")).value(0).contains(QStringLiteral("THead comes from this form itself")));
}

TEST_F(AncestorTest, FramesThatDoubleEachOtherEndSomewhere) {
  for (int i = 0; i < 12; ++i) {
    QByteArray text = "object F: TF" + QByteArray::number(i) + "\n  TabOrder = 0\n";
    for (int k = 0; k < 8 && i < 11; ++k)
      text += "  inline G" + QByteArray::number(k) + ": TF" + QByteArray::number(i + 1) + "\n  end\n";
    Write(("F" + QByteArray::number(i) + ".dfm").constData(), text + "end\n");
  }
  const auto session = Open("F0.dfm");
  EXPECT_LE(session->AllComponents().size(), 20010u);
  EXPECT_FALSE(Texts(*session).isEmpty());
  EXPECT_EQ(session->Bytes(), Read("F0.dfm"));
}

TEST_F(AncestorTest, WhatTheFormPutElsewhereDoesNotPlaceItsNeighbours) {
  Write("Base.dfm",
        "object Base: TBase\n  object Panel1: TPanel\n    object A: TLabel\n    end\n    object B: TLabel\n"
        "    end\n  end\n  object Button1: TButton\n  end\n  object Button2: TButton\n  end\nend\n");
  Write("Derived.dfm",
        "inherited Derived: TDerived\n  inherited Panel1: TPanel\n    inherited A: TLabel\n    end\n"
        "    inherited B: TLabel\n    end\n    inherited Button1: TButton\n    end\n  end\n  object Own: "
        "TLabel\n  end\nend\n");
  const auto session = Open("Derived.dfm");
  QStringList names;
  for (const auto& child : session->Document().Root().children) names << QString::fromUtf8(child->name);
  EXPECT_EQ(names, QStringList({QStringLiteral("Panel1"), QStringLiteral("Button2"), QStringLiteral("Own")}));
  EXPECT_EQ(Control(*session, "Button1").Parent(), &Control(*session, "Panel1"));
  EXPECT_EQ(session->Bytes(), Read("Derived.dfm"));
}

TEST_F(AncestorTest, WhatFollowsAnEditIsWrittenWhereTheAncestorSaysSomethingElse) {
  files_.Write(
      "Base.dfm",
      "object Base: TBase\n  Left = 0\n  Top = 0\n  ClientHeight = 300\n  ClientWidth = 400\n"
      "  object Panel1: TPanel\n    Left = 0\n    Top = 260\n    Width = 400\n    Height = 40\n"
      "    Align = alBottom\n    TabOrder = 0\n    object Button1: TButton\n      Left = 320\n      Top = 8\n"
      "      Width = 75\n      Height = 25\n      Anchors = [akTop, akRight]\n      TabOrder = 0\n    end\n"
      "  end\nend\n");
  const auto session = Open("Derived.dfm");
  EXPECT_EQ(Edited(*session, [&] { session->Form().SetClientWidth(500); }),
            "+ClientWidth = 500|+inherited Panel1: TPanel|+Width = 500|+inherited Button1: TButton|+Left = "
            "420|+end|+end");
}

TEST_F(AncestorTest, WhatFollowsInsideOfAFrameIsWrittenThere) {
  files_.Write("Head.dfm",
               QByteArray(Frame).replace("    Caption = 'Field'\n",
                                         "    Anchors = [akLeft, akTop, akRight]\n    Caption = 'Field'\n"));
  const auto session = Open("Host.dfm");
  EXPECT_EQ(Edited(*session, [&] { Control(*session, "Head1").SetWidth(200); }),
            "-Width = 160|+Width = 200|+inherited Field: TButton|+Width = 115|+end");
}

TEST_F(AncestorTest, TooManyAboveEachOtherAreTold) {
  constexpr int Count = 20;
  for (int i = 0; i < Count; ++i) {
    const QByteArray me = QByteArray::number(i), above = QByteArray::number(i + 1);
    Write(("L" + me + ".dfm").constData(), (i + 1 < Count ? "inherited L: TL" : "object L: TL") + me +
                                               "\n  object B" + me + ": TButton\n  end\nend\n");
    Write(("L" + me + ".pas").constData(),
          "type TL" + me + " = class(" + (i + 1 < Count ? "TL" + above : QByteArray("TForm")) + ") end;");
  }
  const auto session = Open("L0.dfm");
  ASSERT_EQ(Texts(*session).size(), 1);
  EXPECT_TRUE(Texts(*session)[0].contains(QStringLiteral("more than 16 above each other, are not read")))
      << Texts(*session)[0].toStdString();
  EXPECT_NE(session->GetComponent(QStringLiteral("B16")), nullptr);
  EXPECT_EQ(session->GetComponent(QStringLiteral("B17")), nullptr);
}

TEST_F(AncestorTest, OfTwoFilesWithOneClassTheFirstByNameCounts) {
  Write("Again.dfm", QByteArray(Frame).replace("'Title'", "'Again'"));
  Write("Zagain.dfm", QByteArray(Frame).replace("'Title'", "'Zagain'"));
  EXPECT_EQ(Inside(*Open("Host.dfm"), "Head1", "Title").Caption(), QStringLiteral("Again"));
}

TEST(FormFolder, TheClassIsReadFromTheHead) {
  EXPECT_EQ(RootClassOf("\xEF\xBB\xBF  inherited Form2 :  TForm2 [3]\r\n"), "TForm2");
  EXPECT_EQ(RootClassOf("object TLonely\n"), "TLonely");
  EXPECT_EQ(RootClassOf("unit Form2;\n"), QByteArray());
  EXPECT_EQ(RootClassOf(QByteArray("TPF0\xF1\x06TForm2\x05"
                                   "Form2",
                                   18)),
            "TForm2");
  EXPECT_EQ(RootClassOf(QByteArray("TPF0\x06TForm2\x05"
                                   "Form2",
                                   17)),
            "TForm2");
  EXPECT_EQ(RootClassOf(QByteArray("TPF0\x40TForm2", 11)), QByteArray());
  EXPECT_EQ(RootClassOf({}), QByteArray());
}

TEST(UnitText, TheAncestorIsTheFirstClassInBrackets) {
  EXPECT_EQ(DeclaredAncestor("type TA=class(TB)end;", "ta"), "TB");
  EXPECT_EQ(DeclaredAncestor("type TA = class abstract ( U.V.TB , I ) end;", "TA"), "TB");
  EXPECT_EQ(DeclaredAncestor("type TA = class; TAB = class(TC); TA = class sealed(TB)", "TA"), "TB");
  EXPECT_EQ(DeclaredAncestor("type TA = class end;", "TA"), QByteArray());
  EXPECT_EQ(DeclaredAncestor("{ never closed TA = class(TB)", "TA"), QByteArray());
  EXPECT_EQ(DeclaredAncestor("var TA: TB; x = TA", "TA"), QByteArray());
}

}  // namespace ide
