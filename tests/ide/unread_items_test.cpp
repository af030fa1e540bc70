// What the items of a collection do not take from a file: it is told of, it stays with its item, and it is
// written again wherever the item goes.
#include "SessionTest.h"
#include "rtl/PropAccess.h"
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
