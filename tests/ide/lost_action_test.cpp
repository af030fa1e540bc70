// What the clients of an action show when it goes.
#include "OperationTest.h"
#include "ide/InspectorModel.h"
#include "vcl/Action.h"
#include "vcl/Menu.h"
#include "vcl/ToolBar.h"

using namespace ide;

namespace {
const QByteArray Form = R"(object Main: TMain
  ClientHeight = 300
  ClientWidth = 400
  Menu = MainMenu1
  object Own: TButton
    Left = 240
    Top = 100
    Width = 75
    Height = 25
    Action = OpenAction
    Caption = 'Mine'
    Enabled = True
    TabOrder = 0
  end
  object Bar: TToolBar
    Left = 0
    Top = 0
    Width = 400
    Height = 29
    object Tool: TToolButton
      Left = 0
      Top = 0
      Action = OpenAction
      Hint = 'of the button'
    end
  end
  object Actions: TActionList
    Left = 20
    Top = 30
    object OpenAction: TAction
      Caption = '&Open...'
      Checked = True
      Enabled = False
      Hint = 'Opens a file'
      ImageIndex = 7
      ShortCut = 16463
      Visible = False
    end
    object SaveAction: TAction
      Caption = 'Save'
    end
  end
  object MainMenu1: TMainMenu
    Left = 80
    Top = 30
    object Item: TMenuItem
      Action = OpenAction
    end
    object Other: TMenuItem
      Action = SaveAction
    end
  end
end
)";

class LostAction : public OperationTest {
 protected:
  void SetUp() override { Open(Form); }
  // What the file says of the object, without its place.
  std::string Text(const char* name) {
    QStringList lines;
    const forms::Object& object = *session_->ObjectOf(Get(name));
    for (const forms::Property& p : object.properties)
      if (const QByteArray path = p.Name().toByteArray();
          path != "Left" && path != "Top" && path != "Width" && path != "Height" && path != "TabOrder")
        lines << QString::fromUtf8(path);
    return lines.join(u' ').toStdString();
  }
  std::string Choose(const char* component, const char* action) {
    session_->Select({&Get(component)});
    InspectorModel inspector;
    inspector.SetSession(session_.get());
    return inspector
        .SetValueText(inspector.IndexOfPath(QStringLiteral("Action")), QString::fromLatin1(action))
        .toStdString();
  }
  void ExpectTheItemKeepsAll() {
    auto& item = dynamic_cast<TMenuItem&>(Get("Item"));
    EXPECT_EQ(item.Get(TMenuItem::Action), nullptr);
    EXPECT_EQ(item.Get(TMenuItem::Caption), QStringLiteral("&Open..."));
    EXPECT_TRUE(item.Get(TMenuItem::Checked));
    EXPECT_FALSE(item.Get(TMenuItem::Enabled));
    EXPECT_EQ(item.Get(TMenuItem::Hint), QStringLiteral("Opens a file"));
    EXPECT_EQ(item.Get(TMenuItem::ImageIndex), 7);
    EXPECT_EQ(ShortCutToText(item.Get(TMenuItem::ShortCut)), QStringLiteral("Ctrl+O"));
    EXPECT_FALSE(item.Get(TMenuItem::Visible));
    EXPECT_EQ(Text("Item"), "Caption Checked Enabled Hint ImageIndex ShortCut Visible");
  }
};
}  // namespace

TEST_F(LostAction, ThatIsDeletedLeavesItsValuesToItsClients) {
  session_->DeleteComponents({&Get("OpenAction")});
  ExpectTheItemKeepsAll();
  const auto& tool = dynamic_cast<TToolButton&>(Get("Tool"));
  EXPECT_EQ(tool.ShownCaption(), QStringLiteral("&Open..."));
  EXPECT_EQ(tool.Get(TToolButton::ImageIndex), 7);
  EXPECT_TRUE(tool.Get(TToolButton::Down));
  EXPECT_EQ(tool.Hint(), QStringLiteral("of the button")) << "its own";
  EXPECT_EQ(Text("Other"), "Action") << "the client of another one";
  ExpectOneCommand();
}

TEST_F(LostAction, WhatAClientStoresItselfStays) {
  session_->DeleteComponents({&Get("OpenAction")});
  const auto& button = dynamic_cast<TControl&>(Get("Own"));
  EXPECT_EQ(button.Caption(), QStringLiteral("Mine"));
  EXPECT_TRUE(button.Enabled()) << "said in the file, though it is the default";
  EXPECT_FALSE(button.Visible());
}

TEST_F(LostAction, WhatTheSameStepGivesAClientStays) {
  session_->Run(QStringLiteral("take off"), {}, [&] {
    auto& item = dynamic_cast<TMenuItem&>(Get("Item"));
    item.Set(TMenuItem::Action, nullptr);
    item.Set(TMenuItem::Hint, QStringLiteral("new"));
  });
  const auto& item = dynamic_cast<TMenuItem&>(Get("Item"));
  EXPECT_EQ(item.Get(TMenuItem::Hint), QStringLiteral("new"));
  EXPECT_EQ(item.Get(TMenuItem::Caption), QStringLiteral("&Open..."));
  ExpectOneCommand();
}

TEST_F(LostAction, ThatGoesWithItsListDoesSoToo) {
  session_->DeleteComponents({&Get("Actions")});
  ExpectTheItemKeepsAll();
  EXPECT_EQ(Text("Other"), "Caption");
  ExpectOneCommand();
}

TEST_F(LostAction, ThatGoesWithItsClientsComesBackWithThem) {
  session_->DeleteComponents({&Get("Actions"), &Get("MainMenu1"), &Get("Bar")});
  EXPECT_EQ(session_->GetComponent(QStringLiteral("Item")), nullptr);
  ExpectOneCommand();
}

TEST_F(LostAction, ThatIsTakenOffLeavesItsValuesThere) {
  EXPECT_EQ(Choose("Item", ""), "");
  ExpectTheItemKeepsAll();
  EXPECT_TRUE(Get("Tool").RefersTo(Get("OpenAction")));
  ExpectOneCommand();
}

TEST_F(LostAction, AnotherActionIsShownInstead) {
  EXPECT_EQ(Choose("Item", "SaveAction"), "");
  EXPECT_EQ(Text("Item"), "Action");
  EXPECT_EQ(dynamic_cast<TMenuItem&>(Get("Item")).ShownCaption(), QStringLiteral("Save"));
  ExpectOneCommand();
}

TEST_F(LostAction, SettingOneAndUndoingItKeepsNothingOfIt) {
  QByteArray form = Form;
  form.replace("    object Item: TMenuItem\n      Action = OpenAction\n",
               "    object Item: TMenuItem\n      Caption = 'x'\n");
  Open(form);
  EXPECT_EQ(Choose("Item", "OpenAction"), "");
  EXPECT_EQ(Text("Item"), "Action Caption");
  ExpectOneCommand();
  session_->Undo();
  EXPECT_EQ(Text("Item"), "Caption");
  EXPECT_EQ(dynamic_cast<TMenuItem&>(Get("Item")).Get(TMenuItem::Hint), QString());
}

TEST_F(LostAction, ReadingAndMakingAnewChangeNothing) {
  EXPECT_EQ(session_->Bytes(), Form);
  session_->Rebuild();
  EXPECT_EQ(session_->Bytes(), Form);
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_FALSE(dynamic_cast<TMenuItem&>(Get("Item")).IsKept(&TMenuItem::Hint));
}
