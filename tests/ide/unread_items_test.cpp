// What the items of a collection do not take from a file: it is told of, it stays with its item, and it is
// written again wherever the item goes.
#include "SessionTest.h"
#include "rtl/PropAccess.h"
#include "vcl/GridPanel.h"
#include "vcl/StatusBar.h"

namespace {
const QByteArray Form = R"(object Main: TMain
  Left = 0
  Top = 0
  ClientHeight = 300
  ClientWidth = 400
  object Bar: TStatusBar
    Left = 0
    Top = 281
    Width = 400
    Height = 19
    Panels = <
      item
        Foreign = 5
        Text = 'one'
        Deep.Colour = clRed
        Width = 70
      end
      item
        Text = 'two'
        Alignment = 'sideways'
        Width = 80
      end>
  end
  object Other: TStatusBar
    Left = 0
    Top = 262
    Width = 400
    Height = 19
    Panels = <>
  end
end
)";

class UnreadItems : public testing::Test {
 protected:
  void SetUp() override {
    ide::RegisterAll();
    session_ = FormSession::FromBytes(Form);
  }
  TStatusBar& Bar(const char* name) const {
    return dynamic_cast<TStatusBar&>(*session_->Form().FindComponent(QString::fromLatin1(name)));
  }
  TStatusPanels& Panels() const { return *Bar("Bar").Get(TStatusBar::Panels); }
  void Run(const std::function<void()>& action) {
    session_->Run(QStringLiteral("edit"), {&Bar("Bar")}, action);
  }

  std::unique_ptr<FormSession> session_;
};
}  // namespace

TEST_F(UnreadItems, TheOthersAreReadAndEachIsToldOf) {
  ASSERT_EQ(Panels().Count(), 2);
  EXPECT_EQ(GetOrdProp(*Panels().Item(0), Panels().Item(0)->ClassType().GetProp("Width")), 70);
  EXPECT_EQ(GetStrProp(*Panels().Item(1), Panels().Item(1)->ClassType().GetProp("Text")),
            QStringLiteral("two"));
  EXPECT_EQ(GetOrdProp(*Panels().Item(1), Panels().Item(1)->ClassType().GetProp("Width")), 80);
  QStringList notes, errors;
  for (const forms::Finding& f : session_->Findings())
    (f.severity == forms::Severity::Error ? errors : notes) << f.text;
  ASSERT_EQ(notes.size(), 2);
  EXPECT_TRUE(notes[0].contains(QStringLiteral("Panels[0].Foreign"))) << notes[0].toStdString();
  EXPECT_TRUE(notes[1].contains(QStringLiteral("Panels[0].Deep.Colour")));
  ASSERT_EQ(errors.size(), 1);
  EXPECT_TRUE(errors[0].contains(QStringLiteral("Alignment"))) << errors[0].toStdString();
  EXPECT_EQ(session_->Bytes(), Form);
}

TEST_F(UnreadItems, AnEditOfTheCollectionChangesWhatItSaysAndNothingElse) {
  Run([&] { SetOrdProp(*Panels().Item(0), Panels().Item(0)->ClassType().GetProp("Width"), 71); });
  EXPECT_EQ(ide::ChangedLines(Form, session_->Bytes()), (QByteArrayList{"-Width = 70", "+Width = 71"}));
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Form);
  session_->Redo();
  EXPECT_EQ(ide::ChangedLines(Form, session_->Bytes()), (QByteArrayList{"-Width = 70", "+Width = 71"}));
}

TEST_F(UnreadItems, TheyMoveAndGoWithTheirItem) {
  Run([&] { Panels().Move(0, 1); });
  QByteArray bytes = session_->Bytes();
  EXPECT_LT(bytes.indexOf("'sideways'"), bytes.indexOf("Foreign = 5"));
  EXPECT_LT(bytes.indexOf("Foreign = 5"), bytes.indexOf("Text = 'one'")) << "and at their place in it";
  EXPECT_LT(bytes.indexOf("Text = 'one'"), bytes.indexOf("Deep.Colour = clRed"));
  EXPECT_LT(bytes.indexOf("Deep.Colour = clRed"), bytes.indexOf("Width = 70"));
  Run([&] { Panels().Delete(1); });
  bytes = session_->Bytes();
  EXPECT_FALSE(bytes.contains("Foreign"));
  EXPECT_TRUE(bytes.contains("'sideways'"));
  session_->Undo();
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Form);
  EXPECT_EQ(Panels().Count(), 2);
}

TEST_F(UnreadItems, CopiesHaveThem) {
  Run([&] { Bar("Other").Get(TStatusBar::Panels)->Assign(&Panels()); });
  EXPECT_EQ(session_->Bytes().count("Foreign = 5"), 2);
  EXPECT_EQ(session_->Bytes().count("'sideways'"), 2);
  Run([&] { Panels().Clear(); });
  EXPECT_EQ(session_->Bytes().count("Foreign = 5"), 1);
}

// The first that is set right takes along what was told of it, and of nothing else.
TEST_F(UnreadItems, ANewValueTakesAlongWhatWasToldOfThisComponentOnly) {
  session_ =
      FormSession::FromBytes(QByteArray(Form).replace("    Panels =", "    Align = sideways\n    Panels ="));
  const auto refused = [&] {
    return std::count_if(session_->Findings().begin(), session_->Findings().end(),
                         [](const auto& f) { return f.property.compare("Align", Qt::CaseInsensitive) == 0; });
  };
  ASSERT_EQ(refused(), 2);
  Run([&] { Bar("Bar").SetAlign(TAlign::alTop); });
  EXPECT_EQ(refused(), 1);
}

// --- References of items

namespace {
const QByteArray GridForm = R"(object Main: TMain
  Left = 0
  Top = 0
  ClientHeight = 300
  ClientWidth = 400
  object Grid: TGridPanel
    Left = 8
    Top = 8
    Width = 200
    Height = 100
    Caption = ''
    ColumnCollection = <
      item
        Value = 50.000000000000000000
      end
      item
        Value = 50.000000000000000000
      end>
    ControlCollection = <
      item
        Column = 0
        Control = Here
        Row = 0
      end
      item
        Column = 1
        Control = Gone
        Row = 0
      end
      item
        Column = 0
        Control = Timer1
        Row = 1
      end>
    TabOrder = 0
    object Here: TButton
      Left = 1
      Top = 1
      Width = 75
      Height = 25
      Caption = 'Here'
      TabOrder = 0
    end
  end
  object Spare: TGridPanel
    Left = 8
    Top = 120
    Width = 200
    Height = 100
    Caption = ''
    ColumnCollection = <>
    ControlCollection = <>
    TabOrder = 1
  end
  object Timer1: TTimer
    Left = 320
    Top = 200
  end
end
)";

class ItemReferences : public testing::Test {
 protected:
  void SetUp() override {
    ide::RegisterAll();
    session_ = FormSession::FromBytes(GridForm);
  }
  TGridPanel& Grid(const char* name = "Grid") const {
    return dynamic_cast<TGridPanel&>(*session_->GetComponent(QLatin1StringView(name)));
  }
  TControlCollection& Cells(const char* name = "Grid") const {
    return *Grid(name).Get(TGridPanel::ControlCollection);
  }
  void Run(const std::function<void()>& action) { session_->Run(QStringLiteral("edit"), {}, action); }
  void SetRow(int item, int row) {
    Run([&] { Cells().Item(item)->Set(TGridControlItem::Row, row); });
  }
  std::string Warnings() const {
    QStringList texts;
    for (const forms::Finding& f : session_->Findings()) texts << f.text;
    return texts.join(u'|').toStdString();
  }
  static std::string Changes(const QByteArray& after) {
    return ide::ChangedLines(GridForm, after).join('|').toStdString();
  }
  std::unique_ptr<FormSession> session_;
};
}  // namespace

TEST_F(ItemReferences, ThatLeadToNothingAreToldAndStayWhenTheCollectionIsEdited) {
  EXPECT_EQ(Warnings(),
            "Grid.ControlCollection refers to Gone, which is not on this form|"
            "Grid.ControlCollection refers to Timer1, which is a TTimer and no TControl");
  SetRow(1, 1);
  EXPECT_EQ(Changes(session_->Bytes()), "-Row = 0|+Row = 1");
  const std::string edited = session_->Bytes().toStdString();
  for (int round = 0; round < 2; ++round) {
    session_->Undo();
    EXPECT_EQ(session_->Bytes(), GridForm);
    session_->Redo();
    EXPECT_EQ(session_->Bytes().toStdString(), edited);
  }
  // What was undone is what is edited next.
  session_->Undo();
  SetRow(2, 0);
  EXPECT_EQ(Changes(session_->Bytes()), "-Row = 1|+Row = 0");
}

TEST_F(ItemReferences, GoWhereTheirItemGoes) {
  Run([&] { Cells().Move(1, 0); });
  const QByteArray bytes = session_->Bytes();
  EXPECT_LT(bytes.indexOf("Control = Gone"), bytes.indexOf("Control = Here"));
  Run([&] { Cells("Spare").Assign(&Cells()); });
  EXPECT_EQ(session_->Bytes().count("Control = Gone"), 2);
  Run([&] { Cells().Delete(0); });
  EXPECT_EQ(session_->Bytes().count("Control = Gone"), 1);
}

TEST_F(ItemReferences, StayWhenControlsComeAndGo) {
  session_->CreateComponent(TButton::StaticClass(), &Grid(), QRect(8, 8, 75, 25));
  QByteArray bytes = session_->Bytes();
  EXPECT_TRUE(bytes.contains("Control = Button1")) << bytes.toStdString();
  EXPECT_TRUE(bytes.contains("Control = Gone"));
  EXPECT_TRUE(bytes.contains("Control = Timer1"));
  session_->DeleteComponents({session_->GetComponent(QStringLiteral("Here"))});
  bytes = session_->Bytes();
  EXPECT_FALSE(bytes.contains("Control = Here"));
  EXPECT_TRUE(bytes.contains("Control = Gone"));
}

TEST_F(ItemReferences, AnotherOneTakesThePlaceOfTheLostOne) {
  auto* here = dynamic_cast<TControl*>(session_->GetComponent(QStringLiteral("Here")));
  Run([&] { Cells().Item(1)->Set(TControlItem::Control, here); });
  EXPECT_EQ(Changes(session_->Bytes()), "-Control = Gone|+Control = Here");
  Run([&] { Cells().Item(1)->Set(TControlItem::Control, nullptr); });
  EXPECT_EQ(Changes(session_->Bytes()), "-Control = Gone");
  session_->Undo();
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), GridForm);
}

TEST_F(ItemReferences, AValueTakesThePlaceOfARefusedOne) {
  const QByteArray form = QByteArray(GridForm).replace("Column = 1", "Column = 'right'");
  session_ = FormSession::FromBytes(form);
  Run([&] { Cells().Item(1)->Set(TGridControlItem::Column, 2); });
  EXPECT_EQ(ide::ChangedLines(form, session_->Bytes()), (QByteArrayList{"-Column = 'right'", "+Column = 2"}));
}

TEST_F(ItemReferences, OfOnePastedTogetherFindEachOther) {
  const forms::Document text = forms::Document::ParseObjects(
      "object Copy: TGridPanel\n  ControlCollection = <\n    item\n      Column = 0\n      Control = Later\n"
      "      Row = 0\n    end>\nend\nobject Later: TButton\nend\n");
  forms::Object* root = session_->ObjectOf(session_->Form());
  session_->Insert(text, {{text.Root().children[0].get(), root}, {text.Root().children[1].get(), root}});
  EXPECT_EQ(Cells("Copy").Item(0)->Get(TControlItem::Control),
            session_->GetComponent(QStringLiteral("Later")));
  const QByteArray pasted = session_->Bytes();
  Run([&] { Cells("Copy").Item(0)->Set(TGridControlItem::Row, 1); });
  EXPECT_EQ(session_->Bytes().count("Control = Later"), 1) << session_->Bytes().toStdString();
}

// An ancestor's items are replaced by the form's: their references are no longer looked up.
TEST_F(ItemReferences, OfReplacedItemsAreForgotten) {
  QTemporaryDir folder;
  const auto write = [&](const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(QLatin1StringView(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  };
  write("Base.dfm", QByteArray(GridForm).replace("object Main: TMain", "object Base: TBase"));
  write("Main.pas", "type TMain = class(TBase) end;");
  const QByteArray own =
      "inherited Main: TMain\n  inherited Grid: TGridPanel\n    ControlCollection = <\n      item\n"
      "        Column = 1\n        Control = Lost\n        Row = 1\n      end>\n  end\nend\n";
  write("Main.dfm", own);
  session_ = FormSession::Open(folder.filePath(QStringLiteral("Main.dfm")));
  ASSERT_EQ(Cells().Count(), 1);
  EXPECT_EQ(Warnings(), "Grid.ControlCollection refers to Lost, which is not on this form");
  SetRow(0, 0);
  EXPECT_EQ(session_->Bytes(), QByteArray(own).replace("Row = 1", "Row = 0"));
}

TEST_F(ItemReferences, AreFoundAgainWhenBothComeBack) {
  TComponent* here = session_->GetComponent(QStringLiteral("Here"));
  session_->DeleteComponents({&Grid()});
  session_->Undo();
  here = session_->GetComponent(QStringLiteral("Here"));
  EXPECT_EQ(Cells().Item(0)->Get(TControlItem::Control), here);
  SetRow(2, 0);
  EXPECT_EQ(Changes(session_->Bytes()), "-Row = 1|+Row = 0");
}

TEST_F(ItemReferences, WhatLeadsNowhereKeepsItsPlaceAmongWhatIsNotKnown) {
  session_ = FormSession::FromBytes(QByteArray(GridForm).replace(
      "        Control = Gone\n", "        Foreign = 1\n        Control = Gone\n        Strange = 2\n"));
  Run([&] { Cells("Spare").Assign(&Cells()); });
  const QByteArray copy = session_->Bytes().mid(session_->Bytes().indexOf("object Spare"));
  EXPECT_LT(copy.indexOf("Foreign = 1"), copy.indexOf("Control = Gone")) << copy.toStdString();
  EXPECT_LT(copy.indexOf("Control = Gone"), copy.indexOf("Strange = 2"));
  EXPECT_GT(copy.indexOf("Foreign = 1"), 0);
}
