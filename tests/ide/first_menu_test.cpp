// The menu that a form shows from the moment there is one.
#include "SessionTest.h"
#include "vcl/Menu.h"

using namespace ide;

namespace {
const QByteArray Plain = "object Main: TMain\n  ClientHeight = 300\n  ClientWidth = 400\nend\n";

class FirstMenu : public testing::Test {
 protected:
  FirstMenu() { RegisterAll(); }
  TMainMenu* Place(const QByteArray& form, const char* fileName = "main.dfm") {
    before_ = form;
    session_ = FormSession::FromBytes(form, QString::fromLatin1(fileName));
    return dynamic_cast<TMainMenu*>(
        session_->CreateComponent(TMainMenu::StaticClass(), nullptr, QRect(20, 30, 1, 1)));
  }
  TMainMenu* Menu() const { return session_->Form().Get(TForm::Menu); }
  void ExpectOneStep() {
    const QByteArray edited = session_->Bytes();
    session_->Undo();
    EXPECT_FALSE(session_->CanUndo());
    EXPECT_EQ(session_->Bytes(), before_);
    EXPECT_EQ(Menu(), nullptr);
    session_->Redo();
    EXPECT_EQ(session_->Bytes(), edited);
    EXPECT_NE(Menu(), nullptr);
  }
  std::unique_ptr<FormSession> session_;
  QByteArray before_;
};
}  // namespace

TEST_F(FirstMenu, BecomesTheMenuOfTheForm) {
  TMainMenu* menu = Place(Plain);
  EXPECT_EQ(Menu(), menu);
  EXPECT_TRUE(session_->Bytes().contains("\n  Menu = MainMenu1\n"));
  EXPECT_TRUE(session_->Bytes().contains("\n  ClientHeight = 300\n"));
  ExpectOneStep();
}

TEST_F(FirstMenu, OfTheOtherFamilyToo) {
  const TMainMenu* placed =
      Place("object Main: TMain\n  Left = 300\n  Height = 240\n  Width = 320\n  LCLVersion = '3.0'\nend\n",
            "main.lfm");
  EXPECT_EQ(Menu(), placed);
  EXPECT_TRUE(session_->Bytes().contains("\n  Menu = MainMenu1\n"));
  ExpectOneStep();
}

TEST_F(FirstMenu, TheSecondOneDoesNot) {
  TMainMenu* first = Place(Plain);
  session_->CreateComponent(TMainMenu::StaticClass(), nullptr, QRect(60, 30, 1, 1));
  EXPECT_EQ(Menu(), first);
  EXPECT_EQ(session_->Bytes().count("Menu = "), 1);
}

TEST_F(FirstMenu, AFormThatNamesOneElsewhereKeepsIt) {
  Place("object Main: TMain\n  ClientHeight = 300\n  ClientWidth = 400\n  Menu = Data.Menu1\nend\n");
  EXPECT_TRUE(session_->Bytes().contains("\n  Menu = Data.Menu1\n"));
}

TEST_F(FirstMenu, WhatTheAncestorHasIsNotKnown) {
  QByteArray form = Plain;
  form.replace("object", "inherited");
  Place(form);
  EXPECT_FALSE(session_->Bytes().contains("Menu ="));
}

TEST_F(FirstMenu, APopupMenuIsNone) {
  session_ = FormSession::FromBytes(Plain);
  session_->CreateComponent(TPopupMenu::StaticClass(), nullptr, QRect(20, 30, 1, 1));
  EXPECT_EQ(Menu(), nullptr);
}

TEST_F(FirstMenu, ADataModuleShowsNone) {
  Place(
      "object Data: TData\n  OldCreateOrder = False\n  Height = 200\n  HorizontalOffset = 30\n  "
      "VerticalOffset = 20\n  Width = "
      "300\nend\n");
  ASSERT_EQ(session_->Form().Kind(), TFormKind::DataModule);
  EXPECT_FALSE(session_->Bytes().contains("Menu ="));
}
