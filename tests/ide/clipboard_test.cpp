// Cut, copy, paste and duplicate.
#include "library/controls/Assist.h"
#include "library/controls/NoteBook.h"
#include "tests/ide/OperationTest.h"
#include "vcl/PageBook.h"

using namespace ide;

TEST_F(OperationTest, ACopyIsFormText) {
  Run("copy", {"Label1"});
  EXPECT_EQ(
      clipboard_.text.toStdString(),
      "object Label1: TLabel\n  Left = 240\n  Top = 16\n  Width = 60\n  Height = 15\n  AutoSize = False\n"
      "  Caption = 'Go'\n  FocusControl = Button1\n  Font.Charset = DEFAULT_CHARSET\n"
      "  Font.Color = clRed\n  Font.Height = -12\n  Font.Name = 'Tahoma'\n  Font.Style = [fsBold]\n"
      "  ParentFont = False\nend\n");
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_EQ(session_->Bytes(), Sample);
}

TEST_F(OperationTest, ACopyOfSeveralIsInTheOrderOfTheFileAndHoldsEachOnce) {
  Run("copy", {"Timer1", "Inner", "Button1", "Panel1"});
  const QStringList lines =
      clipboard_.text.split(u'\n').filter(QRegularExpression(QStringLiteral("^ *object")));
  EXPECT_EQ(lines.join(u'|').toStdString(),
            "object Panel1: TPanel|  object Inner: TButton|  object InnerLabel: TLabel|object Button1: "
            "TButton|object Timer1: TTimer");
}

TEST_F(OperationTest, APasteHasFreeNamesAndItsReferencesFollow) {
  Run("copy", {"Label1", "Button1", "Mystery"});
  Run("paste", {"Main"});
  EXPECT_EQ(Selected(), "Label2+Button2+Mystery1");
  EXPECT_EQ(As<TLabel>("Label2").FocusControl(), &Get("Button2"));
  EXPECT_EQ(PropertyOf("Label2", "FocusControl"), "Button2");
  EXPECT_EQ(PropertyOf("Mystery1", "Link"), "Button2");  // of a class that nobody knows
  EXPECT_EQ(As<TLabel>("Label1").FocusControl(), &Get("Button1"));
  EXPECT_TRUE(session_->GetComponent(QStringLiteral("Secret1")));
  EXPECT_EQ(session_->UndoText(), QStringLiteral("Paste 3 components"));
  ExpectOneCommand();
}

TEST_F(OperationTest, AReferenceToWhatIsNotPastedKeepsItsTarget) {
  Run("copy", {"Label1"});
  Run("paste", {"Main"});
  EXPECT_EQ(As<TLabel>("Label2").FocusControl(), &Get("Button1"));
  EXPECT_EQ(session_->UndoText(), QStringLiteral("Paste Label2"));
  ExpectOneCommand();
}

TEST_F(OperationTest, APasteStepsAsideOfWhatItWouldCover) {
  Run("copy", {"Label1", "Button1", "Timer1"});
  Run("paste", {"Main"});
  EXPECT_EQ(Bounds("Label2"), QRect(248, 24, 60, 15));
  EXPECT_EQ(Bounds("Button2"), QRect(248, 48, 75, 25));
  EXPECT_EQ(Bounds("Timer2").topLeft(), QPoint(328, 208));
  session_->Select({});
  Run("paste");
  EXPECT_EQ(Bounds("Button3"), QRect(256, 56, 75, 25));
  EXPECT_EQ(Bounds("Timer3").topLeft(), QPoint(336, 216));
}

TEST_F(OperationTest, WhereNothingIsCoveredAPasteKeepsItsPlace) {
  Run("copy", {"Button1"});
  const QString text = clipboard_.text;
  session_->DeleteComponents({&Get("Button1")});
  Run("paste", {"Main"});
  EXPECT_EQ(Selected(), "Button1");  // the name is free again
  EXPECT_EQ(Bounds("Button1"), QRect(240, 40, 75, 25));
}

TEST_F(OperationTest, APasteGoesIntoTheSelectedContainerElseBesideTheSelected) {
  Run("copy", {"Led"});
  Run("paste", {"Panel1"});
  EXPECT_EQ(As<TControl>("Led1").Parent(), &Get("Panel1"));
  Run("paste", {"InnerLabel"});
  EXPECT_EQ(As<TControl>("Led2").Parent(), &Get("Panel1"));
  Run("paste", {"Label1"});
  EXPECT_EQ(As<TControl>("Led3").Parent(), &session_->Form());
  Run("paste", {"Timer1"});
  EXPECT_EQ(As<TControl>("Led4").Parent(), &session_->Form());
}

TEST_F(OperationTest, WhatIsNoControlStandsOnTheFormWhateverIsSelected) {
  Run("copy", {"Timer1"});
  Run("paste", {"Inner"});
  EXPECT_EQ(session_->ObjectOf(Get("Timer2"))->parent, &session_->Document().Root());
  ExpectOneCommand();
}

TEST_F(OperationTest, WhatWouldBeOutOfSightComesIntoSight) {
  Run("copy", {"Led"});  // at 240, 80; the panel is 200 wide
  Run("paste", {"Panel1"});
  EXPECT_EQ(Bounds("Led1"), QRect(8, 8, 120, 40));
  ExpectOneCommand();
}

TEST_F(OperationTest, ControlsAreWrittenBeforeWhatIsNone) {
  Run("copy", {"Button1", "Timer1", "Label1"});
  Run("paste", {"Main"});
  QByteArrayList names;
  for (const auto& child : session_->Document().Root().children) names << child->name;
  EXPECT_EQ(names.join(' '), "Panel1 Label1 Button1 Led Mystery Label2 Button2 Timer1 Timer2");
}

TEST_F(OperationTest, PastedControlsComeLastInTheTabOrder) {
  clipboard_.text = QStringLiteral(
      "object B: TButton TabOrder = 7 end object A: TButton TabOrder = 3 end object L: TLabel end");
  Run("paste", {"Main"});
  EXPECT_EQ(PropertyOf("A", "TabOrder"), "2");
  EXPECT_EQ(PropertyOf("B", "TabOrder"), "3");
  EXPECT_EQ(PropertyOf("L", "TabOrder"), "-");
  ExpectOneCommand();
}

TEST_F(OperationTest, TextFromAnEditorIsPastedAsItIs) {
  clipboard_.text = QStringLiteral(
      "\r\n   OBJECT Fancy : TButton\r\n Caption = 'gr\u00FC\u00DF'#33 Left = $21\r\n Top=7 Width = 90\r\n"
      " Height = 31 Foreign.Thing = <item end item A = 'x' end>\r\n OnClick = GoNow end\r\n\r\n");
  Run("paste", {"Main"});
  EXPECT_EQ(Selected(), "Fancy");
  EXPECT_EQ(As<TButton>("Fancy").Caption(), QStringLiteral("gr\u00FC\u00DF!"));
  EXPECT_EQ(Bounds("Fancy"), QRect(33, 7, 90, 31));
  EXPECT_EQ(Changes(),
            "+object Fancy: TButton|+Caption = 'gr'#252#223'!'|+Left = 33|+Top = 7|+Width = 90|+Height = 31|"
            "+Foreign.Thing = <|+item|+end|+item|+A = 'x'|+end>|+OnClick = GoNow|+end");
  ExpectOneCommand();
}

TEST_F(OperationTest, NamelessObjectsGetNames) {
  clipboard_.text = QStringLiteral("object TButton end object TButton end object TNobodys Width = 9 end");
  Run("paste", {"Main"});
  EXPECT_EQ(Selected(), "Button2+Button3+Nobodys1");
  ExpectOneCommand();
}

TEST_F(OperationTest, NamesTwiceInOneTextAreToldApart) {
  clipboard_.text = QStringLiteral(
      "object P: TPanel object E: TButton end object L: TLabel FocusControl = E end end "
      "object P: TPanel object E: TButton end object L: TLabel FocusControl = e end end");
  Run("paste", {"Main"});
  EXPECT_EQ(Selected(), "P+P1");
  EXPECT_EQ(As<TLabel>("L").FocusControl(), &Get("E"));
  EXPECT_EQ(As<TLabel>("L1").FocusControl(), &Get("E1"));
  ExpectOneCommand();
}

TEST_F(OperationTest, ValuesThatOnlyLookLikeNamesAreNoReferences) {
  clipboard_.text = QStringLiteral(
      "object clRed: TButton end object Button1: TLabel Color = clRed Font.Color = clRed OnClick = Button1 "
      "FocusControl = clRed Caption = 'clRed' end");
  session_->Rename(Get("Led"), QStringLiteral("clRed"));
  first_ = session_->Bytes();
  Run("paste", {"Main"});
  EXPECT_EQ(Selected(), "clRed1+Button2");
  EXPECT_EQ(PropertyOf("Button2", "Color"), "clRed");
  EXPECT_EQ(PropertyOf("Button2", "Font.Color"), "clRed");
  EXPECT_EQ(PropertyOf("Button2", "OnClick"), "Button1");
  EXPECT_EQ(PropertyOf("Button2", "FocusControl"), "clRed1");
}

TEST_F(OperationTest, AReferenceToNothingFindsWhatComesUnderThatName) {
  Open(
      "object F: TF\n  ClientHeight = 200\n  ClientWidth = 300\n  object L: TLabel\n    Left = 9\n"
      "    FocusControl = Late\n  end\nend\n");
  EXPECT_FALSE(As<TLabel>("L").FocusControl());
  clipboard_.text = QStringLiteral("object Late: TButton Left = 77 end");
  Run("paste", {"F"});
  EXPECT_EQ(As<TLabel>("L").FocusControl(), &Get("Late"));
  ExpectOneCommand();
}

TEST_F(OperationTest, WhatIsNoFormTextIsRefusedWithItsPlace) {
  const std::pair<const char*, const char*> rows[] = {
      {"Hello world", "Line 1, column 1"},
      {"object A: TButton\n  Left = 8\n  Top == 9\nend", "Line 3, column 8"},
      {"object A: TButton\nend\n\nbutton", "Line 4, column 1"},
      {"object A: TButton\n  Left = 8\n", "Line 3"},
      {"object A: TPanel\n  inherited B: TButton\n  end\nend", "Line 2, column 3"},
  };
  for (const auto& [text, place] : rows) {
    clipboard_.text = QString::fromLatin1(text);
    const std::string reason = Refusal("paste", {"Panel1"});
    EXPECT_TRUE(QString::fromStdString(reason).contains(QLatin1StringView(place), Qt::CaseInsensitive))
        << reason;
    EXPECT_NE(reason.find("no form text"), std::string::npos) << reason;
  }
  clipboard_.text = QStringLiteral(" \n");
  EXPECT_NE(Refusal("paste", {"Main"}).find("no text on the clipboard"), std::string::npos);
}

TEST_F(OperationTest, CutTakesAwayAndPasteBringsBackUnderTheSameNames) {
  Run("cut", {"Label1", "Button1"});
  EXPECT_FALSE(session_->GetComponent(QStringLiteral("Button1")));
  EXPECT_EQ(session_->UndoText(), QStringLiteral("Cut 2 components"));
  ExpectOneCommand();
  Run("paste", {"Panel1"});
  EXPECT_EQ(Selected(), "Label1+Button1");
  EXPECT_EQ(As<TLabel>("Label1").FocusControl(), &Get("Button1"));
  EXPECT_EQ(As<TControl>("Button1").Parent(), &Get("Panel1"));
}

TEST_F(OperationTest, ADuplicateStandsBesideItsOriginalInTheSameContainer) {
  clipboard_.text = QStringLiteral("mine");
  Run("duplicate", {"Inner", "InnerLabel", "Led", "Timer1"});
  EXPECT_EQ(Selected(), "Inner1+InnerLabel1+Led1+Timer2");
  EXPECT_EQ(As<TControl>("Inner1").Parent(), &Get("Panel1"));
  EXPECT_EQ(As<TLabel>("InnerLabel1").FocusControl(), &Get("Inner1"));
  EXPECT_EQ(Bounds("Inner1"), QRect(16, 48, 75, 25));
  EXPECT_EQ(Bounds("Led1"), QRect(248, 88, 120, 40));
  EXPECT_EQ(As<TVRXLEDLabel>("Led1").LED()->ActiveColor(), clAqua);
  EXPECT_EQ(clipboard_.text, QStringLiteral("mine"));
  ExpectOneCommand();
}

TEST_F(OperationTest, AnAlignedCopyTakesItsStripAndTheOthersMakeRoom) {
  Open(
      "object F: TF\n  ClientHeight = 200\n  ClientWidth = 300\n  object Bar: TPanel\n    Left = 0\n    Top "
      "= 0\n"
      "    Width = 300\n    Height = 30\n    Align = alTop\n  end\n  object Rest: TPanel\n    Left = 0\n"
      "    Top = 30\n    Width = 300\n    Height = 170\n    Align = alClient\n  end\nend\n");
  Run("duplicate", {"Bar"});
  EXPECT_EQ(Bounds("Bar1").size(), QSize(300, 30));
  EXPECT_EQ(Bounds("Rest"), QRect(0, 60, 300, 140));
  ExpectOneCommand();
}

TEST_F(OperationTest, ACopyInAGridOrAFlowTakesAPlaceOfItsOwn) {
  const QByteArray grid =
      "object F: TF\n  ClientHeight = 200\n  ClientWidth = 300\n  object Grid: TGridPanel\n    Left = 0\n"
      "    Top = 0\n    Width = 200\n    Height = 100\n    ControlCollection = <\n      item\n"
      "        Column = 0\n        Control = A\n        Row = 0\n      end>\n    object A: TButton\n"
      "      Left = 1\n      Top = 1\n      Width = 75\n      Height = 25\n    end\n  end\nend\n";
  for (const bool duplicate : {true, false}) {
    Open(grid);
    if (duplicate) {
      Run("duplicate", {"A"});
      ExpectOneCommand();
    } else {
      Run("copy", {"A"});
      Run("paste", {"Grid"});
    }
    const QByteArray& bytes = session_->Bytes();
    EXPECT_EQ(bytes.count("Control = "), 2) << bytes.toStdString();
    EXPECT_TRUE(bytes.contains("        Column = 1\n        Control = A1\n        Row = 0\n"))
        << bytes.toStdString();
    EXPECT_FALSE(Bounds("A").intersects(Bounds("A1")));
  }
  Open(
      "object F: TF\n  ClientHeight = 200\n  ClientWidth = 300\n  object Flow: TFlowPanel\n    Left = 0\n"
      "    Top = 0\n    Width = 200\n    Height = 100\n    object A: TButton\n      Left = 1\n"
      "      Top = 1\n      Width = 75\n      Height = 25\n    end\n  end\nend\n");
  Run("duplicate", {"A"});
  EXPECT_EQ(Bounds("A1"), QRect(76, 1, 75, 25));
  ExpectOneCommand();
}

TEST_F(OperationTest, WhatIsPutOnAGridTakesTheFreeCellThatIsThere) {
  const QByteArray grid =
      "object F: TF\n  ClientHeight = 200\n  ClientWidth = 300\n  object Grid: TGridPanel\n    Left = 0\n"
      "    Top = 0\n    Width = 200\n    Height = 100\n    ControlCollection = <\n      item\n"
      "        Column = 0\n        Control = A\n        Row = 0\n      end>\n    object A: TButton\n"
      "      Left = 1\n      Top = 1\n      Width = 75\n      Height = 25\n    end\n  end\n"
      "  object B: TButton\n    Left = 210\n    Top = 0\n    Width = 75\n    Height = 25\n  end\nend\n";
  const struct {
    QPoint drop;
    const char* cell;  // of the new button
  } drops[] = {{{150, 80}, "Column = 1\n        Control = Button1\n        Row = 1"},
               {{30, 90}, "Column = 0\n        Control = Button1\n        Row = 1"},
               {{10, 10}, "Column = 1\n        Control = Button1\n        Row = 0"}};
  for (const auto& [drop, cell] : drops) {
    Open(grid);
    session_->CreateComponent(TButton::StaticClass(), &Get("Grid"), {drop, QSize()});
    EXPECT_TRUE(session_->Bytes().contains(cell)) << session_->Bytes().toStdString();
    ExpectOneCommand();
  }
  // From outside, and from cell to cell.
  Open(grid);
  As<TControl>("B").SetBounds(30, 70, 75, 25);
  MoveInto(*session_, {&Get("B")}, As<TWinControl>("Grid"));
  EXPECT_TRUE(session_->Bytes().contains("Column = 0\n        Control = B\n        Row = 1"))
      << session_->Bytes().toStdString();
  session_->Run(QStringLiteral("Move"), {}, [&] { SetPlace(Get("A"), {120, 60, 75, 25}); });
  EXPECT_TRUE(session_->Bytes().contains("Column = 1\n        Control = A\n        Row = 1"))
      << session_->Bytes().toStdString();
  session_->Run(QStringLiteral("Move"), {}, [&] { SetPlace(Get("B"), {120, 60, 75, 25}); });
  EXPECT_TRUE(session_->Bytes().contains("Column = 0\n        Control = B\n        Row = 1"))
      << "the cell is taken";
}

TEST_F(OperationTest, PagesGoIntoWhatTakesThemAndControlsOntoThePageInFront) {
  const struct {
    const char *book, *page, *active;
  } kinds[] = {{"TPageControl", "TTabSheet", "ActivePage"},
               {"TVRXNoteBook", "TVRXNoteBookPage", "ActivePage"},
               {"TVRXAssist", "TVRXAssistPage", "ActivePage"},
               {"TOtherPages", "TTabSheet", "ActivePage"}};
  RegisterComponents(QStringLiteral("Pages"), {&TVRXNoteBook::StaticClass(), &TVRXAssist::StaticClass()});
  for (const auto& kind : kinds) {
    SCOPED_TRACE(kind.book);
    const QByteArray page = QByteArray("    object %1: ") + kind.page +
                            "\n      Caption = 'Caption %1'\n      object B%1: TButton\n        Left = 9\n"
                            "        Top = 8\n        Width = 75\n        Height = 25\n      end\n    end\n";
    Open(QByteArray("object F: TF\n  ClientHeight = 300\n  ClientWidth = 500\n  object Book: ") + kind.book +
         "\n    Left = 10\n    Top = 10\n    Width = 400\n    Height = 250\n    " + kind.active + " = Q\n" +
         QByteArray(page).replace("%1", "P") + QByteArray(page).replace("%1", "Q") +
         "  end\n  object Panel: TPanel\n    Left = 0\n    Top = 270\n    Width = 90\n    Height = 20\n"
         "  end\nend\n");
    const auto parent = [&](const char* name) { return As<TControl>(name).Parent()->Name(); };
    for (const char* at : {"P", "Book", "BQ"}) {
      Run("copy", {"P"});
      ASSERT_NO_THROW(Run("paste", {at})) << at;
      ASSERT_EQ(Selected(), "P1") << at;
      EXPECT_EQ(parent("P1"), QStringLiteral("Book")) << at;
      EXPECT_EQ(As<TWinControl>("Book").ControlIndex(&As<TControl>("P1")), 2);
      EXPECT_EQ(parent("BP1"), QStringLiteral("P1"));
      ExpectOneCommand();
      session_->Undo();
    }
    Run("cut", {"P"});
    ASSERT_EQ(Selected(), "Book");
    ASSERT_NO_THROW(Run("paste"));
    EXPECT_EQ(parent("P"), QStringLiteral("Book"));
    EXPECT_EQ(parent("BP"), QStringLiteral("P"));
    for (const char* at : {"Panel", "F"})
      EXPECT_NE(Refusal("paste", {at}).find("P is a page. Select the control"), std::string::npos) << at;
    if (!dynamic_cast<TPageBook*>(&Get("Book"))) continue;
    const char* const other = QByteArray(kind.page) == "TTabSheet" ? "TVRXAssistPage" : "TTabSheet";
    clipboard_.text = QStringLiteral("object Other: %1\nend\n").arg(QLatin1StringView(other));
    EXPECT_NE(Refusal("paste", {"Book"}).find("Other is a page"), std::string::npos);
    Run("copy", {"Panel"});
    Run("paste", {"Book"});
    EXPECT_EQ(parent("Panel1"), QStringLiteral("Q")) << "what is no page stands on the one in front";
  }
}

TEST_F(OperationTest, TextsOfAnOldCodePageKeepTheirMeaningElsewhere) {
  Open(
      "object F: TF\n  ClientHeight = 200\n  ClientWidth = 300\n  Font.Charset = RUSSIAN_CHARSET\n"
      "  object A: TButton\n    Left = 3\n    Caption = '\xCF\xF0'\n  end\nend\n");
  ASSERT_EQ(As<TButton>("A").Caption(), QStringLiteral("\u041F\u0440"));
  Run("copy", {"A"});
  Open(Sample);
  Run("paste", {"Main"});
  EXPECT_EQ(As<TButton>("A").Caption(), QStringLiteral("\u041F\u0440"));
  ExpectOneCommand();
}

TEST_F(OperationTest, BinaryFormsGiveAndTakeFormText) {
  const QByteArray binary = forms::Document::Parse(Sample).WriteAs(forms::Format::Binary);
  Open(binary);
  Run("copy", {"Panel1"});
  EXPECT_TRUE(clipboard_.text.startsWith(QStringLiteral("object Panel1: TPanel\n  Left = 8\n")));
  Run("paste", {"Main"});
  EXPECT_EQ(Selected(), "Panel2");
  EXPECT_EQ(As<TLabel>("InnerLabel1").FocusControl(), &Get("Inner1"));
  ExpectOneCommand();
}

TEST_F(OperationTest, ControlsStayOffADataModule) {
  Open(
      "object Data: TData\n  OldCreateOrder = True\n  Height = 150\n  Width = 215\n  object T: TTimer\n"
      "    Left = 24\n    Top = 16\n  end\nend\n");
  clipboard_.text = QStringLiteral("object B: TButton\nend");
  EXPECT_NE(Refusal("paste", {"Data"}).find("data module"), std::string::npos);
  Run("duplicate", {"T"});
  EXPECT_EQ(Bounds("T1").topLeft(), QPoint(32, 24));
  ExpectOneCommand();
}

TEST_F(OperationTest, WhatComesFromAnAncestorIsNeitherCopiedNorCutNorDuplicated) {
  Open(
      "inherited F: TF\n  Caption = 'x'\n  inherited Base: TButton [0]\n    Left = 9\n  end\n"
      "  object Own: TButton [1]\n    Left = 90\n    Top = 4\n  end\nend\n");
  for (const char* id : {"copy", "cut", "duplicate", "delete", "bringToFront", "sendToBack"})
    EXPECT_NE(Refusal(id, {"Own", "Base"}).find("Base comes from the ancestor form"), std::string::npos)
        << id;
  EXPECT_EQ(clipboard_.text, QString());
  Run("duplicate", {"Own"});
  EXPECT_FALSE(session_->ObjectOf(Get("Own1"))->position);
}

TEST_F(OperationTest, AFrameIsCopiedWholeItsPartsAreNot) {
  Open(
      "object F: TF\n  ClientHeight = 200\n  ClientWidth = 300\n  inline Fr: TFr\n    Left = 9\n    Width = "
      "80\n"
      "    Height = 70\n    inherited Part: TButton\n      Caption = 'in'\n    end\n    inherited Lab: "
      "TLabel\n"
      "      FocusControl = Part\n    end\n  end\n  object Part: TButton\n    Left = 120\n  end\n  object "
      "Lab: TLabel\n    "
      "FocusControl = Fr.Part\n  end\nend\n");
  Run("duplicate", {"Fr", "Part", "Lab"});
  EXPECT_EQ(Selected(), "Fr1+Part1+Lab1");
  EXPECT_EQ(PropertyOf("Lab1", "FocusControl"), "Fr1.Part");
  EXPECT_TRUE(session_->Bytes().contains("inline Fr1: TFr"));
  const TComponent* inner = Get("Fr1").FindComponent(QStringLiteral("Lab"));
  ASSERT_TRUE(inner);
  EXPECT_EQ(dynamic_cast<const TLabel*>(inner)->FocusControl(),
            Get("Fr1").FindComponent(QStringLiteral("Part")));
  ExpectOneCommand();
  session_->Select({Get("Fr").FindComponent(QStringLiteral("Part"))});
  EXPECT_NE(Refusal("copy").find("belongs to the frame Fr"), std::string::npos);
}

TEST_F(OperationTest, APasteThatNestsTooDeepIsTakenBack) {
  QByteArray deep;
  for (int i = 0; i < forms::MaxDepth - 1; ++i) deep += "object TPanel\n";
  for (int i = 0; i < forms::MaxDepth - 1; ++i) deep += "end\n";
  clipboard_.text = QString::fromUtf8(deep);
  EXPECT_NE(Refusal("paste", {"Panel1"}).find("deep"), std::string::npos);
}

TEST_F(OperationTest, WhatIsCutComesBackToWhereItStood) {
  Select({"Inner"});
  CutSelection(*session_, clipboard_);
  EXPECT_EQ(Selected(), "Panel1");
  PasteInto(*session_, clipboard_, 8);
  EXPECT_EQ(As<TControl>("Inner").Parent(), &Get("Panel1"));
}
