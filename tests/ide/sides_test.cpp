// What forms of one family tell otherwise: client areas that start below a title, and coordinates left out
// because they follow from the sides of a control or from its content.
#include "SessionTest.h"
#include "ide/operations/Containers.h"
#include "ide/operations/Places.h"
#include "vcl/CheckBox.h"
#include "vcl/Edit.h"
#include "vcl/GroupBox.h"

namespace ide {
namespace {
std::unique_ptr<FormSession> Opened(const QByteArray& inside, int width = 400) {
  RegisterAll();
  const QByteArray w = QByteArray::number(width);
  return FormSession::FromBytes("object Main: TMain\n  Left = 0\n  Height = 300\n  Top = 0\n  Width = " + w +
                                    "\n  ClientHeight = 300\n  ClientWidth = " + w + "\n" + inside + "end\n",
                                QStringLiteral("main.lfm"));
}
TControl& Control(const FormSession& session, const char* name) {
  return dynamic_cast<TControl&>(*session.GetComponent(QString::fromLatin1(name)));
}
QRect Bounds(const FormSession& session, const char* name) { return Control(session, name).BoundsRect(); }

QByteArray Box(const QByteArray& cls, const QByteArray& told) {
  return "  object Box: " + cls +
         "\n    Left = 10\n    Height = 105\n    Top = 20\n    Width = 200\n    Caption = 'Box'\n" + told +
         "    TabOrder = 0\n    object Inner: TButton\n      Left = 6\n      Height = 25\n      Top = 5\n    "
         "  Width = 75\n"
         "      TabOrder = 0\n    end\n    object Wide: TPanel\n      Left = 0\n      Height = 20\n      Top "
         "= 65\n"
         "      Width = 196\n      Align = alBottom\n      TabOrder = 1\n    end\n  end\n";
}
const QByteArray Told = "    ClientHeight = 85\n    ClientWidth = 196\n";
// Another control to be tied to.
const QByteArray Anchor =
    "  object Field: TEdit\n    Left = 50\n    Height = 23\n    Top = 40\n    Width = 120\n    "
    "BorderSpacing.Bottom = 9\n    TabOrder = 0\n  end\n";
}  // namespace

TEST(ToldClientArea, WhatStandsInAGroupIsCountedFromBelowItsTitle) {
  for (const char* cls : {"TGroupBox", "TStrangeGroupBox"}) {
    const auto session = Opened(Box(cls, Told));
    EXPECT_EQ(Bounds(*session, "Inner"), QRect(6, 5, 75, 25)) << cls;
    EXPECT_EQ(FormPlaceOf(Control(*session, "Inner")), QRect(18, 43, 75, 25)) << cls;
    EXPECT_EQ(FormPlaceOf(Control(*Opened(Box(cls, {})), "Inner")), QRect(16, 25, 75, 25)) << cls;
  }
}

TEST(ToldClientArea, ItIsTheSameForDrawingDroppingAndTheFile) {
  const auto session = Opened(Box("TGroupBox", Told));
  const QByteArray bytes = session->Bytes();
  TForm& form = session->Form();
  QImage image(400, 300, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  {
    QPainter painter(&image);
    Control(*session, "Wide").SetColor(clRed);
    PaintControl(form, painter);
  }
  EXPECT_EQ(image.pixelColor(100, 20 + 18 + 65 + 10), QColor(Qt::red));
  EXPECT_NE(image.pixelColor(100, 20 + 65 + 10), QColor(Qt::red));
  EXPECT_EQ(&ContainerAt(*session, {100, 20 + 18 + 65 + 10}, {}), &Control(*session, "Wide"));
  EXPECT_EQ(&ContainerAt(*session, {100, 20 + 65 + 10}, {}), &Control(*session, "Box"));
  session->Undo();
  EXPECT_EQ(session->Bytes(), bytes);
}

TEST(ToldClientArea, AlignedControlsFollowItsEdges) {
  const auto session = Opened(Box("TGroupBox", Told));
  const QByteArray before = session->Bytes();
  TControl& box = Control(*session, "Box");
  session->Run(QStringLiteral("size"), {}, [&] { box.SetBounds(10, 20, 210, 125); });
  EXPECT_EQ(Bounds(*session, "Wide"), QRect(0, 85, 206, 20));
  EXPECT_EQ(ChangedLines(before, session->Bytes()).join('|').toStdString(),
            "-Height = 105|+Height = 125|-Width = 200|+Width = 210|-ClientHeight = 85|-ClientWidth = "
            "196|+ClientHeight = 105|+ClientWidth = 206|-Top = 65|-Width = 196|+Top = 85|+Width = 206");
}

TEST(Sides, APlaceThatIsLeftOutFollowsFromWhatTheSideIsTiedTo) {
  const auto session = Opened(
      Anchor +
      "  object Below: TCheckBox\n    AnchorSideLeft.Control = Field\n    AnchorSideTop.Control = Field\n"
      "    AnchorSideTop.Side = asrBottom\n    Height = 19\n    Width = 80\n    BorderSpacing.Top = 4\n"
      "    BorderSpacing.Around = 2\n    TabOrder = 1\n  end\n"
      "  object Right: TButton\n    AnchorSideLeft.Control = Field\n    AnchorSideLeft.Side = asrBottom\n"
      "    AnchorSideTop.Control = Field\n    AnchorSideTop.Side = asrCenter\n    Height = 31\n    Width = "
      "75\n"
      "    BorderSpacing.Left = 5\n    TabOrder = 2\n  end\n"
      "  object Corner: TButton\n    AnchorSideRight.Control = Owner\n    AnchorSideRight.Side = asrBottom\n"
      "    AnchorSideBottom.Control = Owner\n    AnchorSideBottom.Side = asrBottom\n    Height = 25\n    "
      "Width = 75\n"
      "    Anchors = [akRight, akBottom]\n    BorderSpacing.Right = 6\n    BorderSpacing.Bottom = 7\n    "
      "TabOrder = 3\n  end\n"
      "  object Wide: TPanel\n    AnchorSideLeft.Control = Owner\n    AnchorSideTop.Control = Below\n"
      "    AnchorSideTop.Side = asrBottom\n    AnchorSideRight.Control = Corner\n    Height = 30\n"
      "    Anchors = [akTop, akLeft, akRight]\n    BorderSpacing.Left = 3\n    TabOrder = 4\n  end\n");
  EXPECT_EQ(Bounds(*session, "Below"), QRect(52, 72, 80, 19))
      << "the larger distance counts, 9 below the field";
  EXPECT_EQ(Bounds(*session, "Right"), QRect(175, 36, 75, 31));
  EXPECT_EQ(Bounds(*session, "Corner"), QRect(319, 268, 75, 25));
  EXPECT_EQ(Bounds(*session, "Wide"), QRect(3, 93, 316, 30));
}

TEST(Sides, TheOrderInTheFileDoesNotMatter) {
  const auto session = Opened(
      "  object Last: TButton\n    AnchorSideLeft.Control = Middle\n    AnchorSideLeft.Side = asrBottom\n    "
      "Height = 25\n"
      "    Top = 40\n    Width = 20\n    TabOrder = 0\n  end\n"
      "  object Middle: TButton\n    AnchorSideLeft.Control = Field\n    AnchorSideLeft.Side = asrBottom\n   "
      " Height = 25\n"
      "    Top = 40\n    Width = 30\n    TabOrder = 1\n  end\n" +
      Anchor);
  EXPECT_EQ(Bounds(*session, "Middle"), QRect(170, 40, 30, 25));
  EXPECT_EQ(Bounds(*session, "Last"), QRect(200, 40, 20, 25));
}

TEST(Sides, WhatTheFileGivesStandsAndTiesInACircleComeToNothing) {
  const auto session = Opened(Anchor +
                              "  object Given: TButton\n    AnchorSideLeft.Control = Field\n    "
                              "AnchorSideTop.Control = Field\n    Left = 1\n"
                              "    Height = 25\n    Top = 2\n    Width = 75\n    TabOrder = 1\n  end\n"
                              "  object A: TButton\n    AnchorSideTop.Control = B\n    AnchorSideTop.Side = "
                              "asrBottom\n    Left = 300\n    Height = 25\n"
                              "    Width = 75\n    TabOrder = 2\n  end\n"
                              "  object B: TButton\n    AnchorSideTop.Control = A\n    AnchorSideTop.Side = "
                              "asrTop\n    Left = 300\n    Height = 25\n"
                              "    Width = 75\n    TabOrder = 3\n  end\n"
                              "  object Free: TButton\n    AnchorSideLeft.Control = Field\n    Height = 25\n "
                              "   Top = 200\n    Width = 75\n"
                              "    Anchors = [akTop]\n    TabOrder = 4\n  end\n");
  EXPECT_EQ(Bounds(*session, "Given"), QRect(1, 2, 75, 25));
  EXPECT_EQ(Bounds(*session, "Free"), QRect(0, 200, 75, 25)) << "its left side is not anchored";
}

TEST(Sides, AnEditElsewhereWritesNothingOfThem) {
  const auto session = Opened(Anchor +
                              "  object Right: TButton\n    AnchorSideLeft.Control = Field\n    "
                              "AnchorSideLeft.Side = asrBottom\n    Height = 25\n"
                              "    Top = 40\n    Width = 75\n    Caption = 'Go'\n    TabOrder = 1\n  end\n");
  const QByteArray before = session->Bytes();
  TControl& right = Control(*session, "Right");
  session->Run(QStringLiteral("edit"), {}, [&] { right.SetCaption(QStringLiteral("Stop")); });
  EXPECT_EQ(ChangedLines(before, session->Bytes()).join('|').toStdString(),
            "-Caption = 'Go'|+Caption = 'Stop'");
  session->Run(QStringLiteral("edit"), {}, [&] { Control(*session, "Field").SetLeft(60); });
  EXPECT_EQ(ChangedLines(before, session->Bytes()).join('|').toStdString(),
            "-Left = 50|+Left = 60|-Caption = 'Go'|+Caption = 'Stop'");
  session->Run(QStringLiteral("edit"), {}, [&] { right.SetLeft(222); });
  EXPECT_TRUE(session->Bytes().contains("    Left = 222\n"));
  for (int i = 0; i < 3; ++i) session->Undo();
  EXPECT_EQ(session->Bytes(), before);
  EXPECT_EQ(right.Left(), 170);
}

TEST(Sides, ASizeThatIsLeftOutIsThatOfTheContent) {
  const QByteArray label =
      "  object Text: TLabel\n    Left = 5\n    Top = 6\n    Caption = 'A text of some length'\n";
  const auto session = Opened(label + "  end\n");
  const TControl& text = Control(*session, "Text");
  const QSize wanted = TextExtent(text.Caption(), *text.Font());
  EXPECT_EQ(text.BoundsRect(), QRect(QPoint(5, 6), wanted));
  EXPECT_EQ(Bounds(*Opened(label + "    Width = 40\n  end\n"), "Text"), QRect(5, 6, 40, wanted.height()));
  EXPECT_EQ(Bounds(*Opened(label + "    Height = 40\n    Width = 41\n  end\n"), "Text"), QRect(5, 6, 41, 40));
  EXPECT_EQ(Bounds(*Opened(label + "    AutoSize = False\n  end\n"), "Text").size(),
            TLabel(nullptr).BoundsRect().size());
  const auto check = Opened(
      "  object Check: TCheckBox\n    Left = 5\n    Top = 6\n    AutoSize = True\n    Caption = 'A text of "
      "some length'\n"
      "    TabOrder = 0\n  end\n  object Next: TButton\n    AnchorSideLeft.Control = Check\n"
      "    AnchorSideLeft.Side = asrBottom\n    Height = 25\n    Top = 40\n    Width = 75\n    TabOrder = "
      "1\n  end\n");
  EXPECT_GT(Bounds(*check, "Check").width(), wanted.width());
  EXPECT_EQ(Bounds(*check, "Next").left(), 5 + Bounds(*check, "Check").width());
}

}  // namespace ide
