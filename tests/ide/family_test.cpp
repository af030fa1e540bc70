// Properties that forms of one family or the other hold besides those of the class: known, kept, edited, and
// in no new form.
#include "SessionTest.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "rtl/ValueList.h"
#include "vcl/Grid.h"
#include "vcl/Panel.h"

namespace {
std::unique_ptr<FormSession> Opened(const QByteArray& text) {
  ide::RegisterAll();
  auto session = FormSession::FromBytes(text);
  for (const auto& f : session->Findings()) ADD_FAILURE() << f.text.toStdString();
  return session;
}

const QByteArray OneFamily = R"(object Main: TMain
  Left = 10
  Height = 200
  Top = 20
  Width = 300
  ActiveControl = Name
  ClientHeight = 200
  ClientWidth = 300
  DesignTimePPI = 144
  SessionProperties = 'Top;Left'
  ShowInTaskBar = stAlways
  LCLVersion = '2.2.0.4'
  object Box: TPanel
    AnchorSideRight.Control = Owner
    AnchorSideRight.Side = asrBottom
    Left = 10
    Height = 100
    Top = 10
    Width = 200
    BorderSpacing.Around = 6
    ChildSizing.Layout = cclLeftToRightThenTopToBottom
    ChildSizing.ControlsPerLine = 2
    ClientHeight = 96
    ClientWidth = 196
    TabOrder = 0
    object Name: TEdit
      AnchorSideTop.Control = Box
      AnchorSideTop.Side = asrCenter
      Left = 5
      Height = 21
      Top = 5
      Width = 80
      BorderSpacing.Left = 3
      PasswordChar = '*'
      TabOrder = 0
    end
  end
end
)";

const QByteArray OtherFamily = R"(object Main: TMain
  Left = 0
  Top = 0
  ActiveControl = Go
  Caption = 'Main'
  ClientHeight = 120
  ClientWidth = 240
  OldCreateOrder = True
  PixelsPerInch = 96
  DesignSize = (
    240
    120)
  TextHeight = 13
  object Go: TButton
    Left = 8
    Top = 8
    Width = 75
    Height = 25
    Caption = 'Go'
    TabOrder = 0
    ExplicitLeft = 4
    ExplicitWidth = 70
  end
end
)";

QByteArray Replaced(QByteArray text, const QByteArray& before, const QByteArray& after) {
  EXPECT_EQ(text.count(before), 1) << before.constData();
  return text.replace(before, after);
}
void SetText(FormSession& session, const char* name, const char* path, const QString& text) {
  TComponent* c = session.GetComponent(QString::fromLatin1(name));
  session.Run(QStringLiteral("set"), {c}, [&] {
    const auto target = forms::FindTarget(*c, path);
    ASSERT_TRUE(target.prop) << path;
    SetPropText(*target.instance, *target.prop, text);
  });
}
}  // namespace

TEST(FormFamilies, BothAreKnownAndSavedAsTheyWere) {
  for (const QByteArray& text : {OneFamily, OtherFamily}) EXPECT_EQ(Opened(text)->Bytes(), text);
}

TEST(FormFamilies, AnEditOfSuchAPropertyChangesItsLineOnly) {
  auto session = Opened(OneFamily);
  SetText(*session, "Box", "BorderSpacing.Around", QStringLiteral("8"));
  QByteArray expected = Replaced(OneFamily, "Around = 6", "Around = 8");
  EXPECT_EQ(session->Bytes(), expected);
  SetText(*session, "Name", "AnchorSideTop.Side", QStringLiteral("asrBottom"));
  expected = Replaced(expected, "Side = asrCenter", "Side = asrBottom");
  EXPECT_EQ(session->Bytes(), expected);
  SetText(*session, "Name", "PasswordChar", QStringLiteral("35"));
  expected = Replaced(expected, "PasswordChar = '*'", "PasswordChar = '#'");
  EXPECT_EQ(session->Bytes(), expected);
  for (int i = 0; i < 3; ++i) session->Undo();
  EXPECT_EQ(session->Bytes(), OneFamily);

  session = Opened(OtherFamily);
  SetText(*session, "Go", "ExplicitLeft", QStringLiteral("5"));
  SetText(*session, "Main", "TextHeight", QStringLiteral("15"));
  EXPECT_EQ(session->Bytes(), Replaced(Replaced(OtherFamily, "ExplicitLeft = 4", "ExplicitLeft = 5"),
                                       "TextHeight = 13", "TextHeight = 15"));
}

TEST(FormFamilies, SidesLeadToControlsAndLoseThemWithThem) {
  auto session = Opened(OneFamily);
  TComponent* name = session->GetComponent(QStringLiteral("Name"));
  TComponent* box = session->GetComponent(QStringLiteral("Box"));
  const auto top = forms::FindTarget(*name, "AnchorSideTop.Control");
  EXPECT_EQ(GetObjectProp(*top.instance, *top.prop), box);
  const auto right = forms::FindTarget(*box, "AnchorSideRight.Control");
  EXPECT_EQ(GetObjectProp(*right.instance, *right.prop), &session->Form());
  // Renaming what a side is tied to renames it there; the form itself has a word of its own.
  session->Run(QStringLiteral("name"), {box}, [&] { box->SetName(QStringLiteral("Frame1")); });
  EXPECT_TRUE(session->Bytes().contains("AnchorSideTop.Control = Frame1\n"));
  EXPECT_TRUE(session->Bytes().contains("AnchorSideRight.Control = Owner\n"));
}

TEST(FormFamilies, AToldClientAreaFollowsTheSize) {
  auto session = Opened(OneFamily);
  auto* box = dynamic_cast<TPanel*>(session->GetComponent(QStringLiteral("Box")));
  session->Run(QStringLiteral("size"), {box}, [&] { box->SetBounds(10, 10, 230, 100); });
  EXPECT_EQ(session->Bytes(), Replaced(Replaced(OneFamily, "Width = 200", "Width = 230"), "ClientWidth = 196",
                                       "ClientWidth = 226"));
  session->Undo();
  EXPECT_EQ(session->Bytes(), OneFamily);
}

TEST(FormFamilies, NewComponentsWriteNoneOfIt) {
  auto session = Opened("object Main: TMain\n  ClientHeight = 100\n  ClientWidth = 100\nend\n");
  session->Run(QStringLiteral("new"), {}, [&] {
    auto* panel = new TPanel(&session->Form());
    panel->SetParent(&session->Form());
    auto* grid = new TStringGrid(&session->Form());
    grid->SetParent(&session->Form());
  });
  for (const char* word : {"Explicit", "AnchorSide", "BorderSpacing", "ChildSizing", "DesignSize",
                           "ColWidths", "TextHeight", "LCLVersion", "OldCreateOrder"})
    EXPECT_FALSE(session->Bytes().contains(word)) << session->Bytes().constData();
  EXPECT_EQ(session->Bytes().count("ClientWidth"), 1);
}

TEST(FormFamilies, CellsOfAGridChangeWhereTheyStand) {
  const QByteArray text = R"(object Main: TMain
  ClientHeight = 200
  ClientWidth = 400
  object Grid: TStringGrid
    Left = 8
    Top = 8
    Width = 300
    Height = 120
    TabOrder = 0
    ColWidths = (
      42
      51)
    Cells = (
      1
      1
      2
      'it''s')
  end
end
)";
  auto session = Opened(text);
  EXPECT_EQ(session->Bytes(), text);
  auto* grid = dynamic_cast<TStringGrid*>(session->GetComponent(QStringLiteral("Grid")));
  EXPECT_EQ(grid->Cell(1, 2), QStringLiteral("it's"));
  EXPECT_EQ(grid->ColWidth(1), 51);
  session->Run(QStringLiteral("cell"), {grid}, [&] { grid->SetCell(1, 2, QStringLiteral("mine")); });
  EXPECT_EQ(session->Bytes(), Replaced(text, "'it''s'", "'mine'"));
}
