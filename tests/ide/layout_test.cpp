// Edits of forms whose coordinates come from elsewhere: what the file says stays, and an edit moves only what
// follows from it.
#include <random>

#include "SessionTest.h"
#include "ide/BoundsCheck.h"
#include "ide/InspectorModel.h"
#include "rtl/PropAccess.h"

namespace ide {
namespace {
std::unique_ptr<FormSession> Case(const char* name) {
  RegisterAll();
  return FormSession::Open(QStringLiteral(VRX_SOURCE_DIR "/tests/ide/cases/") + QString::fromLatin1(name));
}

void Set(FormSession& session, const char* component, const char* property, int value) {
  TComponent& c = *session.GetComponent(QString::fromLatin1(component));
  session.Run(QStringLiteral("set"), {&c}, [&] { SetOrdProp(c, c.ClassType().GetProp(property), value); });
}

// The lines that differ, after an edit whose undo gives the file back.
std::string Edited(FormSession& session, const char* component, const char* property, int value) {
  const QByteArray before = session.Bytes();
  Set(session, component, property, value);
  const QByteArray after = session.Bytes();
  session.Undo();
  EXPECT_EQ(session.Bytes(), before);
  session.Redo();
  EXPECT_EQ(session.Bytes(), after);
  return ChangedLines(before, after).join('|').toStdString();
}
}  // namespace

TEST(Layout, AnOlderFrameMovesTheNeighbourByOnePixel) {
  EXPECT_EQ(Edited(*Case("old-frame.dfm"), "Panel1", "Height", 41),
            "-Height = 40|+Height = 41|-Top = 40|+Top = 41|-Height = 233|+Height = 232");
}

TEST(Layout, AFormMadeWithAnOlderFrameHasTheClientAreaItWasMadeWith) {
  const auto session = Case("old-frame.dfm");
  EXPECT_EQ(session->Form().Width(), 400);
  EXPECT_EQ(session->Form().ClientWidth(), 392);
  EXPECT_EQ(session->Form().ClientHeight(), 273);
}

TEST(Layout, ChildrenOfAnUnknownTabSheetAreNotCrushed) {
  EXPECT_EQ(Edited(*Case("tabsheet-crush.dfm"), "Panel1", "Width", 72),
            "-Left = 321|+Left = 320|-Width = 71|+Width = 72|-Width = 321|+Width = 320");
}

TEST(Layout, BarsThatAreAlignedByDefaultStayWhereTheyAre) {
  EXPECT_EQ(Edited(*Case("toolbar-default-align.dfm"), "Panel1", "Height", 42),
            "-Height = 41|+Height = 42|-Top = 81|+Top = 82|-Height = 200|+Height = 199");
}

TEST(Layout, AToolBarThatGrowsMovesWhatIsBelowIt) {
  EXPECT_EQ(Edited(*Case("toolbar-default-align.dfm"), "ToolBar1", "Height", 45),
            "-Height = 40|+Height = 45|-Top = 40|+Top = 45|-Top = 81|+Top = 86|-Height = 200|+Height = 195");
}

TEST(Layout, TheWidthOfAFormInTheOtherFormatIsItsClientWidth) {
  const auto session = Case("lfm-clientwidth.lfm");
  EXPECT_EQ(session->Form().ClientWidth(), 400);
  EXPECT_EQ(Edited(*session, "Form1", "Width", 410),
            "-Width = 400|+Width = 410|-ClientWidth = 400|+ClientWidth = 410|-Width = 400|+Width = 410");
  EXPECT_EQ(Edited(*session, "Form1", "ClientHeight", 305),
            "-Height = 300|+Height = 305|-ClientHeight = 300|+ClientHeight = 305");
}

TEST(Layout, OnlyTheWayOfGivingTheSizeThatTheFileHasIsWritten) {
  RegisterAll();
  const auto session = FormSession::FromBytes(
      "object F: TF\n  Height = 300\n  ClientWidth = 400\n  object P: TPanel\n    Left = 0\n    Top = 0\n    "
      "Width = 400\n    Height = 20\n    Align = alTop\n  end\nend\n");
  EXPECT_EQ(Edited(*session, "F", "Height", 310), "-Height = 300|+Height = 310");
  EXPECT_EQ(Edited(*session, "F", "ClientWidth", 401),
            "-ClientWidth = 400|+ClientWidth = 401|-Width = 400|+Width = 401");
}

TEST(Layout, AFormThatTellsBothSizesKeepsItsOwnFrame) {
  RegisterAll();
  const auto session = FormSession::FromBytes(
      "object F: TF\n  Width = 410\n  Height = 330\n  ClientHeight = 300\n  ClientWidth = 400\nend\n");
  EXPECT_EQ(session->Form().Width(), 410);
  EXPECT_EQ(Edited(*session, "F", "Width", 411),
            "-Width = 410|+Width = 411|-ClientWidth = 400|+ClientWidth = 401");
}

TEST(Layout, WhatAnAlignmentTakesBackIsRefusedAndSaysSo) {
  const auto session = Case("aligned-silent.dfm");
  InspectorModel model;
  model.SetSession(session.get());
  session->Select({session->GetComponent(QStringLiteral("Panel1"))});
  const QByteArray before = session->Bytes();
  const QString reason =
      model.SetValueText(model.IndexOfPath(QStringLiteral("Width")), QStringLiteral("300"));
  EXPECT_EQ(reason.toStdString(),
            "Width stays 200. Panel1 is aligned (Align = alTop): Form1 decides its place and width. Change "
            "Align first.");
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_FALSE(session->CanUndo());
  EXPECT_EQ(model.SetValueText(model.IndexOfPath(QStringLiteral("Height")), QStringLiteral("31")), QString());
  EXPECT_TRUE(session->CanUndo());
}

TEST(Layout, WhatTheFileLeavesToAnAncestorIsNotInvented) {
  RegisterAll();
  const auto session = FormSession::FromBytes(
      "inherited F: TF\n  Caption = 'F'\n  inherited Label1: TLabel\n    Caption = 'x'\n  end\n  inherited "
      "Bar: TToolBar\n    "
      "Height = 29\n  end\n  inherited Split: TSplitter\n    Left = 200\n    Width = 8\n  end\n  inherited "
      "Memo: TPanel\n    Width = 90\n    Align = alRight\n  end\n  object New: TPanel\n    Left = 10\n    "
      "Top "
      "= 10\n    Width = 100\n    Height = 20\n    Anchors = [akLeft, akTop, akRight]\n  end\nend\n");
  auto& label = *As<TLabel>(session->GetComponent(QStringLiteral("Label1")));
  const QByteArray before = session->Bytes();
  session->Run(QStringLiteral("x"), {}, [&] { label.SetCaption(QStringLiteral("longer")); });
  EXPECT_EQ(ChangedLines(before, session->Bytes()).join('|'), "-Caption = 'x'|+Caption = 'longer'");
  EXPECT_EQ(Edited(*session, "Bar", "Height", 30), "-Height = 29|+Height = 30");
  EXPECT_EQ(Edited(*session, "Split", "Left", 201), "-Left = 200|+Left = 201");
  EXPECT_EQ(Edited(*session, "Memo", "Width", 91), "-Width = 90|+Width = 91");
  // The size it had is the ancestor's secret, so nothing can be said about growth.
  EXPECT_EQ(Edited(*session, "F", "ClientWidth", 500), "+ClientWidth = 500");
  EXPECT_EQ(Edited(*session, "F", "ClientWidth", 510),
            "-ClientWidth = 500|+ClientWidth = 510|-Width = 100|+Width = 110");
  // What is set by hand is written.
  EXPECT_EQ(Edited(*session, "Label1", "Width", 77), "+Width = 77");
}

TEST(Layout, InTheOtherFormatAnchorsDecideWhichEdgeOfALabelStays) {
  RegisterAll();
  for (const bool right : {false, true}) {
    const auto session = FormSession::FromBytes(
        QByteArray("object F: TF\n  Width = 400\n  object L: TLabel\n    Left = 200\n    Width = 50\n    ") +
            (right ? "Anchors = [akTop, akRight]\n    " : "") +
            "Alignment = taRightJustify\n    Caption = 'Go'\n  end\nend\n",
        QStringLiteral("f.lfm"));
    auto& label = *As<TLabel>(session->GetComponent(QStringLiteral("L")));
    session->Run(QStringLiteral("x"), {}, [&] { label.SetCaption(QStringLiteral("Go on")); });
    EXPECT_GT(label.Width(), 50);
    EXPECT_EQ(right ? label.Left() + label.Width() : label.Left() + 50, 250);
  }
}

TEST(Layout, ThePlaceOfAPageThatFillsItsBookIsRefused) {
  RegisterAll();
  const auto session = FormSession::FromBytes(
      "object F: TF\n  object Book: TPageControl\n    Left = 0\n    Top = 0\n    Width = 200\n    Height = "
      "100\n "
      "   object Sheet: TTabSheet\n      Caption = 'One'\n    end\n  end\nend\n");
  const TComponent& sheet = *session->GetComponent(QStringLiteral("Sheet"));
  EXPECT_THROW(RequireBoundsTaken(sheet, sheet.ClassType().GetProp("Top"), 3), EPropertyError);
  const TComponent& book = *session->GetComponent(QStringLiteral("Book"));
  EXPECT_NO_THROW(RequireBoundsTaken(book, book.ClassType().GetProp("Top"), 0));
}

TEST(Layout, ALabelGrowsByTheDifferenceOfTheTwoTexts) {
  RegisterAll();
  const auto session = FormSession::FromBytes(
      "object F: TF\n  object L: TLabel\n    Left = 8\n    Top = 8\n    Width = 444\n    Height = 33\n    "
      "Caption = 'Select'\n    Font.Name = 'No such font'\n    ParentFont = False\n  end\nend\n");
  auto& label = *As<TLabel>(session->GetComponent(QStringLiteral("L")));
  session->Run(QStringLiteral("x"), {&label}, [&] { label.SetCaption(QStringLiteral("Select source")); });
  const int grown = TextExtent(QStringLiteral("Select source"), *label.Font()).width() -
                    TextExtent(QStringLiteral("Select"), *label.Font()).width();
  EXPECT_GT(grown, 0);
  EXPECT_EQ(label.BoundsRect(), QRect(8, 8, 444 + grown, 33));
  session->Run(QStringLiteral("x"), {&label}, [&] { label.SetCaption(QStringLiteral("Select")); });
  EXPECT_EQ(label.BoundsRect(), QRect(8, 8, 444, 33));
}

TEST(Layout, ARightAlignedLabelGrowsToTheLeft) {
  RegisterAll();
  const auto session = FormSession::FromBytes(
      "object F: TF\n  object L: TLabel\n    Left = 200\n    Top = 8\n    Width = 50\n    Height = 13\n    "
      "Alignment = taRightJustify\n    Caption = 'Go'\n  end\nend\n");
  auto& label = *As<TLabel>(session->GetComponent(QStringLiteral("L")));
  session->Run(QStringLiteral("x"), {&label}, [&] { label.SetCaption(QStringLiteral("Go on")); });
  EXPECT_EQ(label.Left() + label.Width(), 250);
  EXPECT_GT(label.Width(), 50);
}

TEST(Layout, MarginsThatNobodyKnowsStay) {
  RegisterAll();
  const auto session = FormSession::FromBytes(
      "object F: TF\n  ClientHeight = 300\n  ClientWidth = 400\n  object A: TPanel\n    AlignWithMargins = "
      "True\n    Left = 3\n    Top = 3\n    Width = 394\n    Height = 40\n    Align = alTop\n  end\n  object "
      "B: "
      "TPanel\n    AlignWithMargins = True\n    Left = 3\n    Top = 49\n    Width = 394\n    Height = 248\n  "
      "  "
      "Align = alClient\n  end\nend\n");
  EXPECT_EQ(Edited(*session, "A", "Height", 41),
            "-Height = 40|+Height = 41|-Top = 49|+Top = 50|-Height = 248|+Height = 247");
  EXPECT_EQ(Edited(*session, "F", "ClientWidth", 401),
            "-ClientWidth = 400|+ClientWidth = 401|-Width = 394|+Width = 395|-Width = 394|+Width = 395");
}

TEST(Layout, WhatIsAlignedAnewStandsAsItsNeighboursDo) {
  RegisterAll();
  const auto session = FormSession::FromBytes(
      "object F: TF\n  ClientHeight = 300\n  ClientWidth = 400\n  object A: TPanel\n    Left = 3\n    Top = "
      "3\n "
      "   Width = 380\n    Height = 40\n    Align = alTop\n  end\n  object B: TPanel\n    Left = 50\n    Top "
      "= "
      "90\n    Width = 100\n    Height = 30\n  end\nend\n");
  auto& b = *As<TControl>(session->GetComponent(QStringLiteral("B")));
  session->Run(QStringLiteral("x"), {&b}, [&] { b.SetAlign(TAlign::alTop); });
  EXPECT_EQ(b.Left(), 3);
  EXPECT_EQ(b.Width(), 380);
  EXPECT_EQ(b.Height(), 30);
}

TEST(Layout, AControlWithoutSideAnchorsStaysInTheMiddle) {
  RegisterAll();
  const auto session = FormSession::FromBytes(
      "object F: TF\n  ClientHeight = 300\n  ClientWidth = 400\n  object A: TPanel\n    Left = 150\n    Top "
      "= "
      "3\n    Width = 100\n    Height = 40\n    Anchors = [akTop]\n  end\nend\n");
  EXPECT_EQ(Edited(*session, "F", "ClientWidth", 420),
            "-ClientWidth = 400|+ClientWidth = 420|-Left = 150|+Left = 160");
}

TEST(Layout, AResizedBottomPanelKeepsItsPlaceInTheRow) {
  RegisterAll();
  const auto session = FormSession::FromBytes(
      "object F: TF\n  ClientHeight = 300\n  ClientWidth = 400\n  object Low: TPanel\n    Left = 0\n    Top "
      "= "
      "280\n    Width = 400\n    Height = 20\n    Align = alBottom\n  end\n  object High: TPanel\n    Left = "
      "0\n    Top = 260\n    Width = 400\n    Height = 20\n    Align = alBottom\n  end\nend\n");
  Set(*session, "High", "Height", 90);
  EXPECT_EQ(As<TControl>(session->GetComponent(QStringLiteral("Low")))->BoundsRect(), QRect(0, 280, 400, 20));
  EXPECT_EQ(As<TControl>(session->GetComponent(QStringLiteral("High")))->BoundsRect(),
            QRect(0, 190, 400, 90));
}

namespace {
std::string Text(const QRect& r) {
  return QStringLiteral("%1 %2 %3 %4")
      .arg(r.left())
      .arg(r.top())
      .arg(r.width())
      .arg(r.height())
      .toStdString();
}

// One more pixel for every place and size of every control: no other coordinate may move by more.
// `rowsAreClear`: no two aligned controls stand so close together that a pixel decides which comes first.
void ExpectNoJumps(const QByteArray& bytes, const QString& name, bool rowsAreClear) {
  const auto session = FormSession::FromBytes(bytes, name);
  const auto places = [&] {
    std::map<const TComponent*, QRect> all;
    for (const TComponent* c : session->AllComponents())
      if (const auto* control = As<TControl>(c)) all[c] = control->BoundsRect();
    return all;
  };
  const auto before = places();
  for (TComponent* c : session->AllComponents()) {
    if (!As<TControl>(c)) continue;
    for (const char* property : {"Left", "Top", "Width", "Height"}) {
      const bool place = property[0] == 'L' || property[0] == 'T';
      if (place && !rowsAreClear && As<TControl>(c)->Align() != TAlign::alNone) continue;
      const TPropInfo& prop = c->ClassType().GetProp(property);
      session->Run(QStringLiteral("one more"), {c}, [&] { SetOrdProp(*c, prop, GetOrdProp(*c, prop) + 1); });
      for (const auto& [other, rect] : places()) {
        const QRect was = before.at(other);
        for (const int jump : {rect.left() - was.left(), rect.top() - was.top(), rect.width() - was.width(),
                               rect.height() - was.height()})
          ASSERT_LE(std::abs(jump), 1)
              << name.toStdString() << ": " << c->Name().toStdString() << '.' << property << " moved "
              << other->Name().toStdString() << " by " << jump;
      }
      if (session->CanUndo()) session->Undo();
      ASSERT_EQ(session->Bytes(), bytes) << name.toStdString();
      for (const auto& [other, rect] : places())
        ASSERT_EQ(Text(rect), Text(before.at(other)))
            << name.toStdString() << ": " << other->Name().toStdString() << " after undo of "
            << c->Name().toStdString() << '.' << property;
    }
  }
}

// A form whose coordinates agree with no layout.
QByteArray StaleForm(unsigned seed) {
  std::mt19937 random(seed);
  const auto roll = [&](int from, int to) { return std::uniform_int_distribution(from, to)(random); };
  static constexpr const char* classes[] = {"TPanel",      "TLabel",    "TButton",
                                            "TStrangeBox", "TTabSheet", "TToolBar"};
  static constexpr const char* aligns[] = {"", "alTop", "alBottom", "alLeft", "alRight", "alClient"};
  static constexpr const char* anchors[] = {"", "[akLeft, akTop, akRight]", "[akRight, akBottom]", "[]",
                                            "[akLeft, akTop, akRight, akBottom]"};
  int count = 0;
  const auto line = [](int depth, const QByteArray& text) {
    return QByteArray(depth * 2, ' ') + text + '\n';
  };
  const std::function<QByteArray(int)> control = [&](int depth) {
    const char* cls = classes[roll(0, 5)];
    QByteArray text = line(depth, "object C" + QByteArray::number(++count) + ": " + cls);
    for (const char* p : {"Left", "Top", "Width", "Height"})
      if (roll(0, 9) > 0) text += line(depth + 1, QByteArray(p) + " = " + QByteArray::number(roll(1, 300)));
    if (const char* a = aligns[roll(0, 5)]; *a) text += line(depth + 1, QByteArray("Align = ") + a);
    if (const char* a = anchors[roll(0, 4)]; *a) text += line(depth + 1, QByteArray("Anchors = ") + a);
    if (QByteArrayView(cls) != "TLabel" && QByteArrayView(cls) != "TButton" && depth < 4)
      for (int i = roll(0, 3); i > 0; --i) text += control(depth + 1);
    return text + line(depth, "end");
  };
  QByteArray form = "object F: TF\n";
  if (roll(0, 1)) form += "  Width = 400\n  Height = 300\n";
  if (roll(0, 1)) form += "  ClientHeight = 280\n  ClientWidth = 390\n";
  for (int i = roll(2, 5); i > 0; --i) form += control(1);
  return form + "end\n";
}
}  // namespace

class StaleLayout : public testing::TestWithParam<unsigned> {};
TEST_P(StaleLayout, OneMorePixelMovesNothingByMore) {
  RegisterAll();
  ExpectNoJumps(StaleForm(GetParam()), QStringLiteral("seed %1.dfm").arg(GetParam()), false);
}
INSTANTIATE_TEST_SUITE_P(Seeds, StaleLayout, testing::Range(0u, 40u));

TEST(Layout, OneMorePixelMovesNothingByMoreInFormsOfOthers) {
  const QString folder = qEnvironmentVariable("VRX_FORM_CORPUS");
  if (folder.isEmpty()) GTEST_SKIP() << "VRX_FORM_CORPUS names no folder";
  RegisterAll();
  for (const QFileInfo& file :
       QDir(folder).entryInfoList({QStringLiteral("*.dfm"), QStringLiteral("*.lfm")})) {
    QFile f(file.filePath());
    ASSERT_TRUE(f.open(QFile::ReadOnly));
    ExpectNoJumps(f.readAll(), file.fileName(), true);
  }
}
}  // namespace ide
