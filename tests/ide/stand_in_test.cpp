// Forms of classes nobody has: what they are taken for, and where they stand.
#include "ide/Placing.h"
#include "ide/Tiles.h"
#include "ide/Unknown.h"
#include "tests/ide/SessionTest.h"
#include "vcl/FormColors.h"
#include "vcl/FormFrame.h"
#include "vcl/PictureFile.h"

namespace {
using namespace ide;

std::unique_ptr<FormSession> Open(const QByteArray& text) {
  RegisterAll();
  return FormSession::FromBytes(text);
}
TComponent& Get(const FormSession& session, const char* name) {
  return *session.GetComponent(QLatin1StringView(name));
}
TUnknownControl& Control(const FormSession& session, const char* name) {
  return dynamic_cast<TUnknownControl&>(Get(session, name));
}
TFormKind KindOf(const QByteArray& text) { return Open(text)->Form().Kind(); }

QByteArray OnForm(const QByteArray& children) {
  return "object Form1: TForm1\n  Caption = 'Form1'\n  ClientHeight = 300\n  ClientWidth = 400\n" + children +
         "end\n";
}
const QByteArray Book = OnForm(R"(  object Book: TStrangePageControl
    Left = 8
    Top = 8
    Width = 300
    Height = 200
    ActivePage = Second
    object First: TStrangeTabSheet
      Caption = 'One'
      object Inner: TButton
        Left = 8
        Top = 8
        Width = 200
        Height = 25
        Anchors = [akLeft, akTop, akRight]
        Caption = 'Inner'
        TabOrder = 0
      end
    end
    object Second: TStrangeTabSheet
      Caption = 'Two'
    end
  end
)");
}  // namespace

TEST(RootKind, AFormHasWhatOnlyFormsHave) {
  EXPECT_EQ(KindOf(OnForm("")), TFormKind::Form);
  EXPECT_EQ(KindOf("object Form1: TForm1\nend\n"), TFormKind::Form);
  EXPECT_EQ(KindOf("object Form1: TForm1\n  object T: TTimer\n  end\nend\n"), TFormKind::Form);
  EXPECT_EQ(KindOf("object Box: TBoxFrame\n  BorderStyle = bsDialog\n  TabOrder = 0\nend\n"),
            TFormKind::Form);
  EXPECT_EQ(KindOf("inherited Box: TBox\n  TextHeight = 13\n  object B: TButton\n  end\nend\n"),
            TFormKind::Form);
}

TEST(RootKind, AFrameHasWhatFormsLeaveOut) {
  EXPECT_EQ(
      KindOf("object Box: TBox\n  Left = 0\n  Top = 0\n  Width = 90\n  Height = 50\n  TabOrder = 0\nend\n"),
      TFormKind::Frame);
  EXPECT_EQ(KindOf("object Box: TBox\n  Height = 90\n  ClientHeight = 90\n  DesignTop = 3\nend\n"),
            TFormKind::Frame);
  EXPECT_EQ(KindOf("object Box: TBoxFrame\n  Width = 90\n  object B: TButton\n  end\nend\n"),
            TFormKind::Frame);
  EXPECT_EQ(KindOf("inherited Box: TBox\n  inherited B: TButton\n  end\nend\n"), TFormKind::Frame);
}

TEST(RootKind, ADataModuleHoldsOnlyWhatIsNotVisible) {
  const QByteArray head = "object Data: TData\n  OldCreateOrder = False\n  Height = 150\n  Width = 215\n";
  EXPECT_EQ(KindOf(head + "end\n"), TFormKind::DataModule);
  EXPECT_EQ(KindOf(head + "  object Q: TSomeQuery\n    Left = 8\n    Top = 8\n  end\nend\n"),
            TFormKind::DataModule);
  EXPECT_EQ(KindOf(head + "  object B: TButton\n  end\nend\n"), TFormKind::Form);
}

TEST(RootKind, AFrameLosesNothingToAWindowFrame) {
  const QByteArray text =
      "object Box: TBox\n  Left = 0\n  Top = 0\n  Width = 100\n  Height = 60\n  TabOrder = 0\nend\n";
  const auto session = Open(text);
  EXPECT_EQ(session->Form().ClientRect(), QRect(0, 0, 100, 60));
  EXPECT_EQ(RenderRoot(*session, 1).size(), QSize(100, 60));
  session->Run(QStringLiteral("Resize"), {&session->Form()}, [&] { session->Form().SetWidth(101); });
  EXPECT_EQ(ChangedLines(text, session->Bytes()).join('|'), "-Width = 100|+Width = 101");
}

TEST(RootKind, ADataModuleShowsTilesAndTakesNoControls) {
  const auto session = Open(
      "object Data: TData\n  OldCreateOrder = False\n  Height = 80\n  Width = 90\n"
      "  object Q: TSomeQuery\n    Left = 20\n    Top = 10\n    object QName: TStringField\n    end\n  end\n"
      "  object Far: TSomeSource\n    Left = 200\n    Top = 10\n  end\nend\n");
  const QByteArray before = session->Bytes();
  EXPECT_TRUE(HasTile(*session, Get(*session, "Q")));
  EXPECT_FALSE(HasTile(*session, Get(*session, "QName")));
  EXPECT_EQ(&ShownFor(*session, Get(*session, "QName")), &Get(*session, "Q"));
  const QImage picture = RenderRoot(*session, 1);
  EXPECT_GE(picture.width(), 228);
  const QColor desk = ToQColor(clWindow);
  const auto painted = [&](const QRect& r) {
    int count = 0;
    for (int y = r.top(); y <= r.bottom(); ++y)
      for (int x = r.left(); x <= r.right(); ++x) count += picture.pixelColor(x, y) != desk;
    return count;
  };
  EXPECT_GT(painted(TileRect(Get(*session, "Q"))), 50);
  EXPECT_GT(painted(TileRect(Get(*session, "Far"))), 50);
  EXPECT_EQ(painted({0, 0, 10, 5}), 0);
  EXPECT_THROW(session->CreateComponent(TButton::StaticClass(), nullptr, {}), EComponentError);
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_FALSE(session->CanUndo());
  EXPECT_NE(session->CreateComponent(TTimer::StaticClass(), nullptr, {}), nullptr);
}

TEST(StandIn, EvidenceTellsControlsFromComponents) {
  const std::pair<const char*, bool> rows[] = {
      {"object X: TNobody\n    Left = 8\n    Top = 8\n", false},
      {"object X: TNobody\n    Left = 8\n    Top = 8\n    TabOrder = 3\n", true},
      {"object X: TNobody\n    Align = alTop\n", true},
      {"object X: TNobody\n    Width = 10\n    Height = 10\n", true},
      {"object X: TNobody\n    Left = 8\n    Width = 10\n", false},
      {"object X: TNobody\n    Caption = 'Text'\n", false},
      {"inline X: TNobody\n    Left = 8\n    Top = 8\n", true},
      {"object X: TSomeCheckBox\n    Left = 8\n    Top = 8\n", true},
      {"object X: TSomeImageList\n    Width = 24\n    Height = 24\n    Left = 8\n", false},
      {"object X: TPopupMenu\n    Left = 8\n    object Y: TMenuItem\n      Caption = 'Y'\n    end\n", false},
      {"object X: TNobody\n    object Y: TButton\n    end\n", true},
      {"object X: TNobody\n    object Y: TTimer\n    end\n", false},
  };
  for (const auto& [text, control] : rows) {
    const auto session = Open(OnForm("  " + QByteArray(text) + "  end\n"));
    EXPECT_EQ(As<TControl>(&Get(*session, "X")) != nullptr, control) << text;
  }
}

TEST(StandIn, AControlWithoutAStoredSizeHasTheUsualOne) {
  const auto session =
      Open(OnForm("  object A: TSomeButton\n    Left = 8\n    Top = 8\n  end\n"
                  "  object B: TSomeMemo\n    Left = 8\n    Top = 40\n    ExplicitWidth = 77\n    "
                  "ExplicitHeight = 66\n  end\n"));
  EXPECT_EQ(Control(*session, "A").BoundsRect(), QRect(8, 8, 75, 25));
  EXPECT_EQ(Control(*session, "B").BoundsRect(), QRect(8, 40, 77, 66));
}

TEST(StandIn, ShowsItsCaptionAndNotItsName) {
  const auto picture = [](const char* name, const char* extra) {
    const auto session = Open(OnForm("  object " + QByteArray(name) +
                                     ": TNobody\n    Left = 8\n    Top = 8\n"
                                     "    Width = 200\n    Height = 40\n" +
                                     extra + "  end\n"));
    return RenderForm(session->Form(), 1);
  };
  EXPECT_NE(picture("Aaa", ""), picture("Bbbbbb", ""));
  EXPECT_EQ(picture("Aaa", "    Caption = 'Text'\n"), picture("Bbbbbb", "    Caption = 'Text'\n"));
  EXPECT_EQ(picture("Aaa", "    Text = 'Text'\n"), picture("Bbbbbb", "    Text = 'Text'\n"));
  EXPECT_NE(picture("Aaa", "    Caption = 'Text'\n"), picture("Aaa", "    Caption = 'Other'\n"));
  const char* child = "    object C: TLabel\n      Left = 2\n      Top = 2\n      Caption = 'C'\n    end\n";
  EXPECT_EQ(picture("Aaa", child), picture("Bbbbbb", child));
  EXPECT_EQ(picture("Aaa", "    Caption = 'Text'\n    Font.Height = -20\n"),
            picture("Bbb", "    Caption = 'Text'\n    Font.Height = -20\n"));
  EXPECT_NE(picture("Aaa", "    Caption = 'Text'\n    Font.Height = -20\n"),
            picture("Aaa", "    Caption = 'Text'\n"));
}

TEST(StandIn, ShowsColumnsPictureTextsAndButtonsThatTheFileStores) {
  const auto picture = [](const char* cls, const QByteArray& extra) {
    const auto session =
        Open(OnForm("  object X: " + QByteArray(cls) +
                    "\n    Left = 8\n    Top = 8\n    Width = 200\n    Height = 80\n" + extra + "  end\n"));
    return RenderForm(session->Form(), 1);
  };
  const auto column = [](const char* caption) {
    return "    Columns = <\n      item\n        " + QByteArray(caption) +
           "\n        Width = 90\n      end>\n";
  };
  EXPECT_NE(picture("TXGrid", column("Title.Caption = 'One'")),
            picture("TXGrid", column("Title.Caption = 'Two'")));
  EXPECT_EQ(picture("TXGrid", column("Title.Caption = 'One'")), picture("TXGrid", column("Caption = 'One'")));
  EXPECT_NE(picture("TXListView", column("Caption = 'One'")), picture("TXListView", ""));
  EXPECT_EQ(picture("TXEdit", "    DataField = 'CITY'\n"), picture("TXEdit", "    Text = 'CITY'\n"));
  EXPECT_NE(picture("TXButtonPanel", "    ShowButtons = [pbOK]\n"), picture("TXButtonPanel", ""));
  EXPECT_EQ(picture("TXButtonPanel", "    ShowButtons = [pbHelp, pbOK, pbClose, pbCancel]\n"),
            picture("TXButtonPanel", ""));
  EXPECT_NE(picture("TXDividerBevel", "    Caption = 'One'\n"), picture("TXDividerBevel", ""));
  QImage pixels(3, 2, QImage::Format_ARGB32);
  pixels.fill(QColor(10, 200, 30, 128));
  const QByteArray png = PictureToBytes(pixels, "PNG");
  EXPECT_NE(picture("TXImage", "    Picture.Data = {" + png.toHex().toUpper() + "}\n"),
            picture("TXImage", ""));
}

TEST(StandIn, LooksAsTheFileSaysAfterAnEditOfItAndAfterUndo) {
  const auto session =
      Open(OnForm("  object X: TXEdit\n    Left = 8\n    Top = 8\n    Width = 100\n    "
                  "Height = 40\n    Text = 'One'\n  end\n"));
  const QImage before = RenderForm(session->Form(), 1);
  session->SetStored(Get(*session, "X"), "Text", QStringLiteral("'Two'"));
  const QImage after = RenderForm(session->Form(), 1);
  EXPECT_NE(after, before);
  session->Undo();
  EXPECT_EQ(RenderForm(session->Form(), 1), before);
  session->Redo();
  EXPECT_EQ(RenderForm(session->Form(), 1), after);
}

TEST(StandIn, WhatIsStoredAnewStandsLast) {
  const QByteArray text = OnForm("  object X: TNobody\n    Left = 8\n    Tab = 1\n  end\n");
  const auto session = Open(text);
  session->SetStored(Get(*session, "X"), "Fresh", QStringLiteral("[a, b]"));
  EXPECT_EQ(session->Bytes(), QByteArray(text).replace("    Tab = 1\n", "    Tab = 1\n    Fresh = [a, b]\n"));
  session->SetStored(Get(*session, "X"), "Fresh", QString());
  EXPECT_EQ(session->Bytes(), text);
  session->SetStored(Get(*session, "X"), "Absent", QString());
  EXPECT_EQ(session->UndoText(), QStringLiteral("Change Fresh"));
}

TEST(StandIn, ACornerMarksWhatNobodyKnows) {
  const auto session =
      Open(OnForm("  object X: TXPanel\n    Left = 0\n    Top = 0\n    Width = 60\n    "
                  "Height = 40\n  end\n"));
  QImage image(60, 40, QImage::Format_RGB32);
  image.fill(Qt::red);
  QPainter painter(&image);
  PaintControl(Control(*session, "X"), painter);
  EXPECT_NE(image.pixel(58, 1), image.pixel(2, 38));
  EXPECT_NE(image.pixel(58, 1), image.pixel(30, 20));
}

TEST(StandIn, EveryLookIsPaintedInBothSchemesAndAnySize) {
  for (const char* cls :
       {"TXPanel",    "TXGroupBox",    "TXLabel",    "TXEdit",         "TXMemo",        "TXComboBox",
        "TXSpinEdit", "TXButton",      "TXCheckBox", "TXRadioButton",  "TXRadioGroup",  "TXCheckGroup",
        "TXListBox",  "TXGrid",        "TXImage",    "TXPageControl",  "TXToolBar",     "TXStatusBar",
        "TXTrackBar", "TXProgressBar", "TXSplitter", "TXDividerBevel", "TXButtonPanel", "TNobody"})
    for (const char* size : {"0", "1", "9", "120"}) {
      const QByteArray text =
          OnForm("  object X: " + QByteArray(cls) + "\n    Left = 8\n    Top = 8\n    Width = " + size +
                 "\n    Height = " + size +
                 "\n    TabOrder = 0\n    Items.Strings = (\n      'One'\n      'Two')\n  end\n");
      const auto session = Open(text);
      const QImage light = RenderForm(session->Form(), 1);
      const FormColorScope colors(TFormColors::Dark);
      EXPECT_NE(RenderForm(session->Form(), 1), light);
      EXPECT_EQ(session->Bytes(), text);
    }
}

TEST(StandIn, APageFillsThePageAreaAndTheFirstOrActiveIsInFront) {
  const auto session = Open(Book);
  const QRect book = Control(*session, "Book").BoundsRect();
  TUnknownControl &first = Control(*session, "First"), &second = Control(*session, "Second");
  EXPECT_EQ(Control(*session, "Book").FrontPage(), &second);
  EXPECT_GT(second.Width(), book.width() - 20);
  EXPECT_GT(second.Height(), book.height() - 40);
  EXPECT_LE(second.Left() + second.Width(), book.width());
  EXPECT_LT(first.Left() + first.Width(), 0);
  EXPECT_EQ(first.Width(), second.Width());
  EXPECT_EQ(dynamic_cast<TControl&>(Get(*session, "Inner")).BoundsRect(), QRect(8, 8, 200, 25));
  RevealPages(Get(*session, "Inner"));
  EXPECT_EQ(Control(*session, "Book").FrontPage(), &first);
  EXPECT_GE(first.Left(), 0);
  EXPECT_LT(second.Left() + second.Width(), 0);
  EXPECT_EQ(session->Bytes(), Book);
}

TEST(StandIn, PagesFollowTheirBookWithoutALineInTheFile) {
  const auto session = Open(Book);
  TUnknownControl& first = Control(*session, "First");
  const int width = first.Width();
  session->Run(QStringLiteral("Resize"), {&Get(*session, "Book")},
               [&] { Control(*session, "Book").SetWidth(310); });
  EXPECT_EQ(first.Width(), width + 10);
  EXPECT_EQ(ChangedLines(Book, session->Bytes()).join('|'),
            "-Width = 300|+Width = 310|-Width = 200|+Width = 210");
  session->Undo();
  EXPECT_EQ(first.Width(), width);
  EXPECT_EQ(session->Bytes(), Book);
  EXPECT_EQ(dynamic_cast<TControl&>(Get(*session, "Inner")).Width(), 200);
}

TEST(StandIn, ADeletedFrontPageMakesRoomAndComesBack) {
  const auto session = Open(Book);
  session->DeleteComponents({&Get(*session, "Second")});
  ArrangePages(session->Form());
  EXPECT_EQ(Control(*session, "Book").FrontPage(), &Control(*session, "First"));
  EXPECT_GE(Control(*session, "First").Left(), 0);
  session->Undo();
  EXPECT_EQ(session->Bytes(), Book);
  EXPECT_EQ(Control(*session, "Second").Width(), Control(*session, "First").Width());
}

TEST(StandIn, ANavigatorHasTheButtonsOfOne) {
  const auto picture = [](const QByteArray& more) {
    const auto session = Open(
        OnForm("  object X: TDBNavigator\n    Left = 8\n    Top = 8\n    Width = 241\n    Height = 25\n" +
               more + "  end\n"));
    return RenderForm(session->Form(), 1);
  };
  const QImage usual = picture("");
  EXPECT_EQ(picture("    VisibleButtons = [nbFirst, nbPrior, nbNext, nbLast, nbInsert, nbDelete, nbEdit, "
                    "nbPost, nbCancel, nbRefresh]\n"),
            usual);
  EXPECT_NE(picture("    VisibleButtons = [nbFirst, nbPrior, nbNext, nbLast, nbInsert, nbDelete]\n"), usual);
  EXPECT_NE(picture("    VisibleButtons = [pbHelp, pbOK, pbClose, pbCancel]\n"), usual);
}

TEST(StandIn, AStatusBarShowsItsPanels) {
  const auto picture = [](const QByteArray& panels) {
    const auto session = Open(
        OnForm("  object X: TFooStatusBar\n    Left = 0\n    Top = 281\n    Width = 400\n    Height = 19\n" +
               panels + "  end\n"));
    return RenderForm(session->Form(), 1);
  };
  const auto panels = [](const QByteArray& text, const QByteArray& width) {
    return "    Panels = <\n      item\n        Text = '" + text + "'\n        Width = " + width +
           "\n      end\n      item\n        Text = 'Second'\n        Width = 50\n      end>\n";
  };
  const QImage one = picture(panels("One", "90"));
  EXPECT_NE(one, picture(""));
  EXPECT_NE(one, picture(panels("Two", "90")));
  EXPECT_NE(one, picture(panels("One", "130")));
}

TEST(Container, WhatTakesNoControlsHandsThemToItsParent) {
  const auto session = Open(OnForm(R"(  object Box: TPanel
    Left = 8
    Top = 8
    Width = 300
    Height = 200
    object Bar: TStatusBar
      Left = 1
      Top = 180
      Width = 298
      Height = 19
      Panels = <>
    end
    object Notes: TMemo
      Left = 8
      Top = 8
      Width = 100
      Height = 50
    end
  end
)"));
  for (const char* name : {"Bar", "Notes"}) {
    session->Select({&Get(*session, name)});
    TComponent* made = PlaceInMiddle(*session, TButton::StaticClass(), 8);
    EXPECT_EQ(dynamic_cast<TControl*>(made)->Parent(), &Get(*session, "Box")) << name;
  }
}
