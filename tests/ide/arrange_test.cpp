// Places, sizes, order and containers.
#include "ide/Unknown.h"
#include "tests/ide/OperationTest.h"

using namespace ide;

namespace {
// A panel that stands at an odd place, with a button in it, and others around.
constexpr const char* Odd =
    "object F: TF\n  ClientHeight = 300\n  ClientWidth = 400\n  object P: TPanel\n    Left = 13\n    Top = "
    "21\n"
    "    Width = 150\n    Height = 120\n    TabOrder = 0\n    object In: TButton\n      Left = 5\n      Top "
    "= 7\n"
    "      Width = 40\n      Height = 20\n      TabOrder = 0\n    end\n  end\n  object A: TButton\n    Left "
    "= 201\n"
    "    Top = 33\n    Width = 61\n    Height = 27\n    TabOrder = 1\n  end\n  object B: TButton\n    Left = "
    "290\n"
    "    Top = 90\n    Width = 32\n    Height = 18\n    TabOrder = 2\n  end\n  object C: TLabel\n    Left = "
    "222\n    Top = 170\n"
    "    Width = 50\n    Height = 13\n    AutoSize = False\n  end\n  object Bar: TPanel\n    Left = 0\n    "
    "Top = 270\n"
    "    Width = 400\n    Height = 30\n    Align = alBottom\n    TabOrder = 3\n  end\n  object T: TTimer\n   "
    " Left = 30\n    Top = 200\n"
    "  end\nend\n";

class Arranging : public OperationTest {
 protected:
  void SetUp() override { Open(Odd); }
};
}  // namespace

TEST_F(Arranging, EdgesAreAlignedToTheFirstSelected) {
  struct Row {
    const char* id;
    QPoint a, in;  // where these come to stand, B being the measure: 290, 90, 32 x 18
  };
  const Row rows[] = {{"alignLeft", {290, 33}, {277, 7}},  {"alignCenter", {276, 33}, {273, 7}},
                      {"alignRight", {261, 33}, {269, 7}}, {"alignTop", {201, 90}, {5, 69}},
                      {"alignMiddle", {201, 86}, {5, 68}}, {"alignBottom", {201, 81}, {5, 67}}};
  for (const Row& row : rows) {
    Open(Odd);
    Run(row.id, {"B", "A", "In"});
    EXPECT_EQ(Bounds("A"), QRect(row.a, QSize(61, 27))) << row.id;
    EXPECT_EQ(Bounds("In"), QRect(row.in, QSize(40, 20)))
        << row.id << ": as it is seen, in its own container";
    EXPECT_EQ(Bounds("B"), QRect(290, 90, 32, 18)) << row.id;
    ExpectOneCommand();
  }
}

TEST_F(Arranging, TilesAreAlignedLikeControls) {
  Run("alignLeft", {"A", "T"});
  EXPECT_EQ(Bounds("T").topLeft(), QPoint(201, 200));
  ExpectOneCommand();
}

TEST_F(Arranging, SizesFollowTheFirstSelected) {
  Run("sameWidth", {"A", "B", "In", "C"});
  EXPECT_EQ(Bounds("B"), QRect(290, 90, 61, 18));
  EXPECT_EQ(Bounds("In"), QRect(5, 7, 61, 20));
  EXPECT_EQ(Bounds("C"), QRect(222, 170, 61, 13));
  ExpectOneCommand();
  Open(Odd);
  Run("sameHeight", {"A", "B"});
  EXPECT_EQ(Bounds("B"), QRect(290, 90, 32, 27));
  ExpectOneCommand();
  Open(Odd);
  Run("sameSize", {"B", "A"});
  EXPECT_EQ(Bounds("A"), QRect(201, 33, 32, 18));
  ExpectOneCommand();
}

TEST_F(Arranging, OnlyLinesThatSayItChange) {
  Run("sameHeight", {"A", "B"});
  EXPECT_EQ(Changes(), "-Height = 18|+Height = 27");
}

TEST_F(Arranging, GapsBecomeTheSame) {
  Run("spaceHorizontally", {"B", "A", "C"});
  // From 201 to 290: 61 and 50 wide leave -22 for two gaps.
  EXPECT_EQ(Bounds("A").left(), 201);
  EXPECT_EQ(Bounds("C").left(), 251);
  EXPECT_EQ(Bounds("B").left(), 290);
  ExpectOneCommand();
  Open(Odd);
  Run("spaceVertically", {"C", "In", "B", "A"});
  // In at 28 seen from the form, A 33, B 90, C 170: 142 less 20, 27 and 18 leaves 77 for three gaps.
  EXPECT_EQ(Bounds("In").top(), 7);
  EXPECT_EQ(Bounds("A").top(), 74);
  EXPECT_EQ(Bounds("B").top(), 126);
  EXPECT_EQ(Bounds("C").top(), 170);
  ExpectOneCommand();
}

TEST_F(Arranging, TheGridTakesPlacesNotSizes) {
  Run("alignToGrid", {"P", "In", "A", "T"});
  EXPECT_EQ(Bounds("P"), QRect(16, 24, 150, 120));
  EXPECT_EQ(Bounds("In"), QRect(8, 8, 40, 20));
  EXPECT_EQ(Bounds("A"), QRect(200, 32, 61, 27));
  EXPECT_EQ(Bounds("T").topLeft(), QPoint(32, 200));
  ExpectOneCommand();
}

TEST_F(Arranging, OrderIsThatOfTheFile) {
  const auto order = [&] {
    QByteArrayList names;
    for (const auto& child : session_->Document().Root().children) names << child->name;
    return names.join(' ').toStdString();
  };
  Run("bringToFront", {"B", "P"});
  EXPECT_EQ(order(), "A C Bar P B T");
  ExpectOneCommand();
  Open(Odd);
  Run("sendToBack", {"C", "Bar"});
  EXPECT_EQ(order(), "C Bar P A B T");
  ExpectOneCommand();
  Open(Odd);
  Run("bringToFront", {"Bar"});
  EXPECT_FALSE(session_->CanUndo());  // it is there already
}

TEST_F(Arranging, WhatAnAlignmentDecidesIsRefused) {
  EXPECT_NE(Refusal("alignLeft", {"A", "Bar"}).find("Bar is aligned (Align = alBottom)"), std::string::npos);
  EXPECT_NE(Refusal("sameWidth", {"A", "B", "Bar"}).find("Change Align first"), std::string::npos);
  EXPECT_NE(Refusal("alignToGrid", {"A", "Bar"}).find("Bar is aligned"), std::string::npos);
  // What it leaves open is taken.
  Run("sameHeight", {"A", "Bar"});
  EXPECT_EQ(Bounds("Bar"), QRect(0, 273, 400, 27));
  ExpectOneCommand();
}

TEST_F(Arranging, WhatMakesNoSenseIsRefusedWithAReason) {
  for (const char* id : {"cut", "copy", "duplicate", "delete", "alignToGrid", "bringToFront"})
    EXPECT_NE(Refusal(id, {"F"}).find("the form itself"), std::string::npos) << id;
  for (const char* id : {"alignLeft", "sameSize"})
    EXPECT_NE(Refusal(id, {"A"}).find("at least 2"), std::string::npos) << id;
  EXPECT_NE(Refusal("spaceVertically", {"A", "B"}).find("at least 3"), std::string::npos);
  EXPECT_NE(Refusal("alignTop", {"A", "P", "In"}).find("In stands on P"), std::string::npos);
  EXPECT_NE(Refusal("sameSize", {"A", "T"}).find("T is no control"), std::string::npos);
  EXPECT_NE(Refusal("bringToFront", {"T"}).find("T is no control"), std::string::npos);
  EXPECT_NE(Refusal("undo", {"A"}).find("nothing to undo"), std::string::npos);
  Open(
      "object Data: TData\n  OldCreateOrder = True\n  Height = 150\n  Width = 215\n  object T: TTimer\n"
      "    Left = 24\n    Top = 16\n  end\n  object U: TTimer\n    Left = 44\n    Top = 66\n  end\nend\n");
  for (const char* id : {"sameSize", "sendToBack"})
    EXPECT_NE(Refusal(id, {"T", "U"}).find("data module"), std::string::npos) << id;
  Run("alignLeft", {"T", "U"});
  EXPECT_EQ(Bounds("U").topLeft(), QPoint(24, 66));
}

TEST_F(Arranging, EveryActionHasItsOwnIdTextAndKeys) {
  QSet<QString> ids, titles, keys;
  for (const ActionRow& row : ActionTable()) {
    EXPECT_FALSE(ids.contains(QLatin1StringView(row.id))) << row.id;
    EXPECT_FALSE(titles.contains(row.Title())) << row.id;
    ids << QLatin1StringView(row.id);
    titles << row.Title();
    EXPECT_FALSE(row.Title().contains(u'&'));
    EXPECT_EQ(row.Text().count(u'&'), 1) << row.id;
    for (const QString& key :
         QString::fromLatin1(row.shortcuts).split(QStringLiteral("; "), Qt::SkipEmptyParts)) {
      EXPECT_FALSE(keys.contains(key)) << row.id;
      keys << key;
    }
    EXPECT_EQ(FindAction(QString::fromLatin1(row.id)), &row);
  }
  EXPECT_FALSE(FindAction(QStringLiteral("alignleft")));
}

// --- Containers

TEST_F(Arranging, AControlKeepsItsPlaceOnTheScreenInAnotherContainer) {
  MoveInto(*session_, {&Get("A"), &Get("B")}, As<TWinControl>("P"));
  EXPECT_EQ(As<TControl>("A").Parent(), &Get("P"));
  EXPECT_EQ(Bounds("A"), QRect(201 - 13, 33 - 21, 61, 27));
  EXPECT_EQ(FormPlaceOf(Get("B")), QRect(290, 90, 32, 18));
  EXPECT_EQ(PropertyOf("A", "TabOrder"), "1");
  EXPECT_EQ(PropertyOf("B", "TabOrder"), "2");
  ExpectOneCommand();
}

TEST_F(Arranging, AControlComesOutOfItsContainerAsItStands) {
  MoveInto(*session_, {&Get("In")}, session_->Form());
  EXPECT_EQ(Bounds("In"), QRect(18, 28, 40, 20));
  EXPECT_EQ(session_->ObjectOf(Get("In"))->parent, &session_->Document().Root());
  EXPECT_EQ(PropertyOf("In", "TabOrder"), "4");
  ExpectOneCommand();
}

namespace {
// The panel that moves, with something of everybody in it, as deep as it stands.
QByteArray InsideText(int indent, int left, int top) {
  const QByteArray text = QStringLiteral(
                              "object Inside: TPanel\n"
                              "  Left = %1\n"
                              "  Top = %2\n"
                              "  Width = 90\n"
                              "  Height = 90\n"
                              "  object Deep: TButton\n"
                              "    Left = 1\n"
                              "    Strange.Lines = (\n"
                              "      'one'\n"
                              "      'two')\n"
                              "    TabOrder = 0\n"
                              "  end\n"
                              "end\n")
                              .arg(left)
                              .arg(top)
                              .toUtf8();
  QByteArray indented;
  for (const QByteArray& line : text.chopped(1).split('\n'))
    indented += QByteArray(indent, ' ') + line + '\n';
  return indented;
}
QByteArray FormText(const QByteArray& inBox, const QByteArray& behindIt) {
  return "object Main: TMain\n"
         "  Caption = 'x'\n"
         "  ClientHeight = 300\n"
         "  ClientWidth = 400\n"
         "  object Box: TPanel\n"
         "    Left = 100\n"
         "    Top = 50\n"
         "    Width = 200\n"
         "    Height = 150\n" +
         inBox + "  end\n" + behindIt + "end\n";
}
}  // namespace

TEST_F(Arranging, WhatComesToAnotherContainerIsIndentedThereLikeTheRest) {
  Open(FormText(InsideText(4, 8, 8), {}));
  MoveInto(*session_, {&Get("Inside")}, session_->Form());
  EXPECT_EQ(session_->Bytes(), FormText({}, InsideText(2, 108, 58)));
  ExpectOneCommand();
  MoveInto(*session_, {&Get("Deep")}, As<TWinControl>("Box"));
  MoveInto(*session_, {&Get("Inside")}, As<TWinControl>("Box"));
  EXPECT_TRUE(session_->Bytes().contains(
      "\n    object Deep: TButton\n      Left = 9\n      Top = 8\n      Strange.Lines = (\n        'one'\n"));
  EXPECT_TRUE(session_->Bytes().contains("\n    object Inside: TPanel\n      Left = 8\n"));
  EXPECT_TRUE(session_->Bytes().endsWith("\n      Height = 90\n    end\n  end\nend\n"));
  while (session_->CanUndo()) session_->Undo();
  EXPECT_EQ(session_->Bytes(), first_);
}

TEST_F(Arranging, AContainerNeverGoesIntoItselfAndNothingIntoAButton) {
  const auto why = [&](const char* control, const char* container) {
    return WhyNotInto(*session_, {&Get(control)}, As<TWinControl>(container)).toStdString();
  };
  session_->CreateComponent(TPanel::StaticClass(), &Get("P"), QRect(50, 50, 40, 40));
  EXPECT_EQ(why("P", "Panel1"), "P cannot be placed inside itself.");
  EXPECT_EQ(why("P", "P"), "P cannot be placed inside itself.");
  EXPECT_EQ(why("A", "B"), "B takes no controls.");
  EXPECT_EQ(why("T", "P"), "T stands in no container.");
  EXPECT_NE(why("Bar", "P").find("Bar is aligned"), std::string::npos);
  EXPECT_EQ(why("A", "Panel1"), "");
  const QByteArray bytes = session_->Bytes();
  EXPECT_THROW(MoveInto(*session_, {&Get("A"), &Get("Bar")}, As<TWinControl>("P")), EComponentError);
  EXPECT_EQ(session_->Bytes(), bytes);
}

TEST_F(Arranging, TheInnermostContainerUnderThePointerIsFound) {
  const auto at = [&](int x, int y, std::vector<TComponent*> dragged = {}) {
    return ContainerAt(*session_, {x, y}, dragged).Name().toStdString();
  };
  EXPECT_EQ(at(20, 30), "P");
  EXPECT_EQ(at(20, 30, {&Get("P")}), "F");
  EXPECT_EQ(at(210, 40), "F");  // a button is none
  EXPECT_EQ(at(13 + 6, 21 + 8), "P");
  EXPECT_EQ(at(12, 30), "F");
  EXPECT_EQ(at(162, 140), "P");
  EXPECT_EQ(at(163, 140), "F");
}

TEST_F(Arranging, ContainersOfUnknownClassesTakeControlsFramesDoNot) {
  Open(
      "object F: TF\n  ClientHeight = 200\n  ClientWidth = 300\n  object Box: TNiceGroupBox\n    Left = 9\n  "
      "  Top = 3\n"
      "    Width = 80\n    Height = 70\n  end\n  object Thing: TThing\n    Left = 109\n    Width = 40\n    "
      "Height = 30\n  end\n"
      "  inline Fr: TFr\n    Left = 9\n    Top = 90\n    Width = 80\n    Height = 70\n  end\n"
      "  object A: TButton\n    Left = 201\n    Top = 33\n    Width = 61\n    Height = 27\n  end\nend\n");
  EXPECT_TRUE(CanHold(*session_, Get("Box")));
  EXPECT_FALSE(CanHold(*session_, Get("Thing")));
  EXPECT_FALSE(CanHold(*session_, Get("Fr")));
  MoveInto(*session_, {&Get("A")}, As<TWinControl>("Box"));
  EXPECT_EQ(Bounds("A"), QRect(192, 30, 61, 27));
  ExpectOneCommand();
}

TEST_F(Arranging, HiddenIconsComeBackWhereNoOtherOneStands) {
  std::string form =
      "object F: TF\n  ClientHeight = 300\n  ClientWidth = 100\n"
      "  object Shown: TTimer\n    Left = 8\n    Top = 8\n  end\n"
      "  object A: TTimer\n    Left = -32768\n    Top = -32768\n    Tag = 77\n  end\n"
      "  object B: TTimer\n    Left = -32768\n    Top = -32768\n  end\n"
      "  object C: TTimer\n    Left = -32768\n    Top = -32768\n  end\nend\n";
  Open(form.c_str());
  EXPECT_EQ(Refusal("showIcons", {"Shown"}), "No icon of what is selected is hidden.");
  EXPECT_FALSE(Refusal("showIcons", {"F"}).empty());
  Run("showIcons", {"Shown", "A", "B"});
  const QRect shown = Bounds("Shown"), a = Bounds("A"), b = Bounds("B");
  EXPECT_EQ(shown.topLeft(), QPoint(8, 8));
  for (const QRect& place : {a, b}) {
    EXPECT_FALSE(place.intersects(shown));
    EXPECT_TRUE(QRect(0, 0, 100, 300).contains(place));
  }
  EXPECT_FALSE(a.intersects(b));
  EXPECT_EQ(a.top(), shown.top()) << "beside it as long as there is room";
  EXPECT_GT(b.top(), shown.top()) << "and below it then";
  EXPECT_EQ(Bounds("C").topLeft(), QPoint(-32768, -32768)) << "was not selected";
  EXPECT_EQ(Get("A").Tag(), 77);
  ExpectOneCommand();
}
