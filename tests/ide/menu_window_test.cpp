// The window in which a menu is built, on an open form.
#include <QtTest>
#include <QtWidgets>

#include "SessionTest.h"
#include "dclstd/MenuWindow.h"
#include "designintf/ComponentEditor.h"
#include "tests/support/Prompted.h"

using namespace ide;

namespace {
const QByteArray Form = R"(object Main: TMain
  ClientHeight = 300
  ClientWidth = 400
  Menu = MainMenu1
  object MainMenu1: TMainMenu
    Left = 20
    Top = 30
    object File1: TMenuItem
      Caption = '&File'
      object Open1: TMenuItem
        Caption = '&Open...'
        ShortCut = 16463
      end
      object N1: TMenuItem
        Caption = '-'
      end
      object Exit1: TMenuItem
        Caption = 'E&xit'
      end
    end
    object Help1: TMenuItem
      Caption = '&Help'
    end
  end
end
)";

class MenuWindowTest : public testing::Test {
 protected:
  MenuWindowTest() {
    RegisterAll();
    Open(Form, "MainMenu1");
  }
  ~MenuWindowTest() override { delete window_; }
  void Open(const QByteArray& form, const char* menu) {
    delete window_;
    session_ = FormSession::FromBytes(form);
    before_ = form;
    const auto editor = session_->Registry().GetComponentEditor(&Get(menu), session_.get());
    EXPECT_EQ(editor->GetVerb(0), QStringLiteral("Menu Designer..."));
    editor->Edit();
    window_ = qobject_cast<MenuWindow*>(ComponentWindow::All().value(0));
    ASSERT_TRUE(window_);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_));
    window_->canvas->setFocus();
    // Most begin behind the last item.
    window_->GoTo({&window_->Menu(), nullptr});
  }
  TComponent& Get(const char* name) { return *session_->GetComponent(QLatin1StringView(name)); }
  TMenuItem& Item(const char* name) { return dynamic_cast<TMenuItem&>(Get(name)); }
  void GoTo(const char* name) { window_->GoTo({Item(name).Around(), &Item(name)}); }
  // Where typing goes: an item, or "(Level)" for the place behind its last one.
  std::string Current() const {
    const auto& place = window_->Current();
    return place.Item ? place.Item->Name().toStdString() : '(' + place.Level->Name().toStdString() + ')';
  }
  std::string Selected() {
    QStringList names;
    for (const TComponent* c : session_->SelectedComponents()) names << c->Name();
    return names.join(u'+').toStdString();
  }
  std::string Tree(const TNestedComponent& level) const {
    QStringList items;
    for (const TNestedComponent* c : level.Nested()) {
      const std::string below = Tree(*c);
      items << c->Name() + (below.empty() ? QString() : u'[' + QString::fromStdString(below) + u']');
    }
    return items.join(u' ').toStdString();
  }
  std::string Tree() { return Tree(dynamic_cast<TMenu&>(Get("MainMenu1"))); }
  void Key(Qt::Key key, Qt::KeyboardModifiers keys = {}) { QTest::keyClick(Focused(), key, keys); }
  void Type(const char* text) {
    for (const char* c = text; *c; ++c) QTest::keyClick(Focused(), *c);
  }
  QPoint At(const char* name) { return window_->canvas->RectOf({Item(name).Around(), &Item(name)}).center(); }
  void ExpectSteps(int steps) {
    const QByteArray edited = session_->Bytes();
    for (int i = 0; i < steps; ++i) {
      ASSERT_TRUE(session_->CanUndo());
      session_->Undo();
    }
    EXPECT_FALSE(session_->CanUndo());
    EXPECT_EQ(session_->Bytes(), before_);
    EXPECT_EQ(StateOf(*session_), StateOf(before_));
    for (int i = 0; i < steps; ++i) session_->Redo();
    EXPECT_EQ(session_->Bytes(), edited);
    EXPECT_EQ(StateOf(*session_), StateOf(edited));
  }

  std::unique_ptr<FormSession> session_;
  QPointer<MenuWindow> window_;
  QByteArray before_;

 private:
  QWidget* Focused() const {
    return window_->caption->isVisible() ? static_cast<QWidget*>(window_->caption) : window_->canvas;
  }
};
}  // namespace

TEST_F(MenuWindowTest, ACaptionThatIsGivenUpChangesNothing) {
  EXPECT_EQ(Current(), "(MainMenu1)");
  EXPECT_FALSE(session_->CanUndo());
  Type("x");
  Key(Qt::Key_Escape);
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_EQ(Tree(), "File1[Open1 N1 Exit1] Help1");
}

TEST_F(MenuWindowTest, CaptionsAreTypedOneAfterTheOther) {
  Type("&View");
  Key(Qt::Key_Return);
  EXPECT_EQ(Current(), "(View1)") << "below the new item of the bar";
  Type("Save &As...");
  Key(Qt::Key_Return);
  EXPECT_EQ(Current(), "(View1)");
  Type("-");
  Key(Qt::Key_Return);
  Type("3D");
  Key(Qt::Key_Return);
  EXPECT_EQ(Tree(), "File1[Open1 N1 Exit1] Help1 View1[SaveAs1 N2 N3D1]");
  EXPECT_EQ(Item("SaveAs1").Get(TMenuItem::Caption), QStringLiteral("Save &As..."));
  EXPECT_TRUE(Item("N2").IsSeparator());
  EXPECT_EQ(Selected(), "View1");
  ExpectSteps(4);
}

TEST_F(MenuWindowTest, ACaptionIsChangedAndTheNameStays) {
  GoTo("Exit1");
  EXPECT_EQ(Selected(), "Exit1");
  Key(Qt::Key_F2);
  EXPECT_EQ(window_->caption->text(), QStringLiteral("E&xit"));
  Key(Qt::Key_Return);
  EXPECT_FALSE(session_->CanUndo()) << "confirmed as it was";
  GoTo("Exit1");
  Type("Quit");
  Key(Qt::Key_Return);
  EXPECT_EQ(Item("Exit1").Get(TMenuItem::Caption), QStringLiteral("Quit"));
  EXPECT_EQ(Current(), "(File1)");
  ExpectSteps(1);
}

TEST_F(MenuWindowTest, ArrowsWalkThroughTheMenu) {
  GoTo("File1");
  Key(Qt::Key_Down);
  EXPECT_EQ(Current(), "Open1");
  EXPECT_EQ(Selected(), "Open1");
  Key(Qt::Key_Up);
  EXPECT_EQ(Current(), "File1");
  Key(Qt::Key_Right);
  EXPECT_EQ(Current(), "Help1");
  Key(Qt::Key_Down);
  EXPECT_EQ(Current(), "(Help1)");
  Key(Qt::Key_Left);
  EXPECT_EQ(Current(), "Open1") << "the drop-down beside it";
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(Current(), "(File1)");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Current(), "File1");
  Key(Qt::Key_Left);
  EXPECT_EQ(Current(), "File1") << "there is nothing before it";
}

TEST_F(MenuWindowTest, InsertsInFrontOfTheItem) {
  GoTo("Exit1");
  Key(Qt::Key_Insert);
  Type("Close");
  Key(Qt::Key_Return);
  EXPECT_EQ(Tree(), "File1[Open1 N1 Close1 Exit1] Help1");
  const QByteArray text = session_->Bytes();
  EXPECT_LT(text.indexOf("object Close1"), text.indexOf("object Exit1"));
  EXPECT_GT(text.indexOf("object Close1"), text.indexOf("object N1"));
  ExpectSteps(1);
}

TEST_F(MenuWindowTest, ANewItemIsTypedInAPlaceOfItsOwn) {
  for (const char* name : {"Exit1", "Open1", "Help1", "File1"}) {
    GoTo(name);
    const QRect before = window_->canvas->RectOf(window_->Current());
    Key(Qt::Key_Insert);
    Type("N");
    ASSERT_TRUE(window_->caption->isVisible());
    const QRect field = window_->caption->geometry();
    for (const char* item : {"File1", "Help1", "Open1", "N1", "Exit1"}) {
      const QRect other = window_->canvas->RectOf({Item(item).Around(), &Item(item)});
      EXPECT_FALSE(!other.isEmpty() && field.intersects(other)) << name << ' ' << item;
    }
    EXPECT_TRUE(field.contains(before.topLeft() + QPoint(5, 5))) << "where the item was";
    Key(Qt::Key_Escape);
    EXPECT_EQ(window_->canvas->RectOf(window_->Current()), before) << "the room is gone again";
  }
  EXPECT_FALSE(session_->CanUndo());
}

TEST_F(MenuWindowTest, DeletesTheItemWithWhatIsBelowIt) {
  GoTo("File1");
  Key(Qt::Key_Delete);
  EXPECT_EQ(Tree(), "Help1");
  EXPECT_EQ(Current(), "Help1");
  EXPECT_FALSE(session_->Bytes().contains("Open1"));
  ExpectSteps(1);
  EXPECT_EQ(Tree(), "Help1");
  session_->Undo();
  EXPECT_EQ(Tree(), "File1[Open1 N1 Exit1] Help1") << "back in its place";
}

TEST_F(MenuWindowTest, MakesASubmenu) {
  GoTo("Open1");
  Key(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(Current(), "(Open1)");
  Type("Again");
  Key(Qt::Key_Return);
  EXPECT_EQ(Tree(), "File1[Open1[Again1] N1 Exit1] Help1");
  ExpectSteps(1);
  GoTo("N1");
  EXPECT_FALSE(window_->submenu->isEnabled());
}

TEST_F(MenuWindowTest, MovesWithTheKeysInTheFileToo) {
  GoTo("Exit1");
  Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(Tree(), "File1[Open1 Exit1 N1] Help1");
  EXPECT_LT(session_->Bytes().indexOf("object Exit1"), session_->Bytes().indexOf("object N1"));
  ExpectSteps(1);
  EXPECT_EQ(Current(), "Exit1");
  Key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(session_->Bytes(), Form);
}

TEST_F(MenuWindowTest, ADraggedItemComesInFrontOfWhereItIsDropped) {
  GoTo("Open1");
  const QPoint from = At("Exit1"), to = At("Open1");
  QTest::mousePress(window_->canvas, Qt::LeftButton, {}, from);
  EXPECT_EQ(Selected(), "Exit1");
  QTest::mouseMove(window_->canvas, to);
  QTest::mouseRelease(window_->canvas, Qt::LeftButton, {}, to);
  EXPECT_EQ(Tree(), "File1[Exit1 Open1 N1] Help1");
  EXPECT_EQ(Current(), "Exit1");
  ExpectSteps(1);
}

TEST_F(MenuWindowTest, AnItemMovesToAnotherLevelButNotIntoItself) {
  window_->MoveItemTo(Item("Open1"), {&Item("Help1"), nullptr});
  EXPECT_EQ(Tree(), "File1[N1 Exit1] Help1[Open1]");
  ExpectSteps(1);
  window_->MoveItemTo(Item("Help1"), {&Item("Help1"), &Item("Open1")});
  EXPECT_EQ(Tree(), "File1[N1 Exit1] Help1[Open1]");
  window_->MoveItemTo(Item("Help1"), {Item("File1").Around(), &Item("File1")});
  EXPECT_EQ(Tree(), "Help1[Open1] File1[N1 Exit1]");
  ExpectSteps(2);
}

TEST_F(MenuWindowTest, FollowsTheSelectionOfTheForm) {
  session_->Select({&Get("Exit1")});
  EXPECT_EQ(Current(), "Exit1");
  session_->Select({&session_->Form()});
  EXPECT_EQ(Current(), "Exit1") << "nothing of this menu";
}

TEST_F(MenuWindowTest, FollowsWhatOthersDoAndGoesWithTheMenu) {
  GoTo("Open1");
  session_->DeleteComponents({&Get("File1")});
  EXPECT_EQ(Current(), "(MainMenu1)");
  session_->Undo();
  session_->Rebuild();
  ASSERT_TRUE(window_->isVisible());
  EXPECT_EQ(Current(), "Open1") << "where undo had put the selection";
  session_->DeleteComponents({&Get("MainMenu1")});
  EXPECT_TRUE(ComponentWindow::All().isEmpty());
}

TEST_F(MenuWindowTest, ClosedItAsksNothingOfAFormThatIsGone) {
  window_->close();
  EXPECT_TRUE(ComponentWindow::All().isEmpty());
  session_.reset();
  ASSERT_TRUE(window_) << "it goes with the next event";
  EXPECT_EQ(window_->canvas->sizeHint(), QSize());
  EXPECT_FALSE(window_->canvas->grab().isNull());
}

TEST_F(MenuWindowTest, APopupMenuBeginsWithItsDropDown) {
  Open("object Main: TMain\n  object Pop: TPopupMenu\n    Left = 8\n    Top = 8\n  end\nend\n", "Pop");
  EXPECT_EQ(Current(), "(Pop)");
  Type("Copy");
  Key(Qt::Key_Return);
  EXPECT_EQ(Current(), "(Pop)") << "on below";
  Type("Paste");
  Key(Qt::Key_Return);
  EXPECT_EQ(Tree(dynamic_cast<TMenu&>(Get("Pop"))), "Copy1 Paste1");
  Key(Qt::Key_Up);
  EXPECT_EQ(Current(), "Paste1");
}
