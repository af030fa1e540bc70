// The window of an action list, on an open form.
#include <QtTest>
#include <QtWidgets>

#include "SessionTest.h"
#include "dclstd/ActionListWindow.h"
#include "designintf/ComponentEditor.h"

using namespace ide;

namespace {
const QByteArray Form = R"(object Main: TMain
  ClientHeight = 300
  ClientWidth = 400
  object Actions: TActionList
    Left = 20
    Top = 30
    object OpenAction: TAction
      Category = 'File'
      Caption = 'Open'
    end
    object CopyAction: TAction
      Category = 'Edit'
    end
    object SaveAction: TAction
      Category = 'File'
    end
    object LooseAction: TAction
    end
  end
end
)";

class ActionListWindowTest : public testing::Test {
 protected:
  ActionListWindowTest() {
    RegisterAll();
    session_ = FormSession::FromBytes(Form);
    const auto editor = session_->Registry().GetComponentEditor(&Get("Actions"), session_.get());
    EXPECT_EQ(editor->GetVerb(0), QStringLiteral("Action List Editor..."));
    editor->Edit();
    window_ = qobject_cast<ActionListWindow*>(ComponentWindow::All().value(0));
  }
  ~ActionListWindowTest() override { delete window_; }
  TComponent& Get(const char* name) { return *session_->GetComponent(QLatin1StringView(name)); }
  static std::string Texts(const QListWidget& list) {
    QStringList texts;
    for (int i = 0; i < list.count(); ++i)
      texts << (list.item(i)->isSelected() ? u'*' + list.item(i)->text() : list.item(i)->text());
    return texts.join(u'|').toStdString();
  }
  std::string Actions() const { return Texts(*window_->actions); }
  std::string Order() {
    QStringList names;
    for (const TNestedComponent* c : window_->List().Nested()) names << c->Name();
    return names.join(u' ').toStdString();
  }
  std::string Selected() {
    QStringList names;
    for (const TComponent* c : session_->SelectedComponents()) names << c->Name();
    return names.join(u'+').toStdString();
  }
  void Pick(std::initializer_list<int> rows) {
    window_->actions->clearSelection();
    for (const int row : rows) window_->actions->item(row)->setSelected(true);
  }
  void ExpectSteps(int steps) {
    for (int i = 0; i < steps; ++i) session_->Undo();
    EXPECT_FALSE(session_->CanUndo());
    EXPECT_EQ(session_->Bytes(), Form);
    EXPECT_EQ(StateOf(*session_), StateOf(Form));
    for (int i = 0; i < steps; ++i) session_->Redo();
  }

  std::unique_ptr<FormSession> session_;
  QPointer<ActionListWindow> window_;
};
}  // namespace

TEST_F(ActionListWindowTest, ListsCategoriesAndTheirActions) {
  ASSERT_TRUE(window_);
  window_->categories->clearSelection();
  EXPECT_EQ(Texts(*window_->categories), "(All Actions)|(No Category)|File|Edit");
  window_->categories->setCurrentRow(0);
  EXPECT_EQ(Actions(), "OpenAction|CopyAction|SaveAction|LooseAction");
  window_->categories->setCurrentRow(2);
  EXPECT_EQ(Actions(), "OpenAction|SaveAction");
  window_->categories->setCurrentRow(1);
  EXPECT_EQ(Actions(), "LooseAction");
  EXPECT_FALSE(session_->CanUndo());
}

TEST_F(ActionListWindowTest, TheFormsSelectionAndTheListAreOne) {
  Pick({0, 2});
  EXPECT_EQ(Selected(), "OpenAction+SaveAction");
  session_->Select({&Get("CopyAction")});
  EXPECT_EQ(Actions(), "OpenAction|*CopyAction|SaveAction|LooseAction");
  session_->Select({&session_->Form()});
  EXPECT_EQ(Actions(), "OpenAction|CopyAction|SaveAction|LooseAction");
  EXPECT_FALSE(window_->remove->isEnabled());
}

TEST_F(ActionListWindowTest, AddsToTheCategoryThatIsShown) {
  window_->categories->setCurrentRow(3);
  QTest::mouseClick(window_->add, Qt::LeftButton);
  EXPECT_EQ(Actions(), "CopyAction|*Action1");
  EXPECT_EQ(Selected(), "Action1");
  EXPECT_EQ(Order(), "OpenAction CopyAction SaveAction LooseAction Action1");
  EXPECT_TRUE(session_->Bytes().contains("object Action1: TAction\n      Category = 'Edit'\n    end\n  end"));
  ExpectSteps(1);
}

TEST_F(ActionListWindowTest, StandardActionsComeInTheirUsualCategory) {
  const auto add = [&](const char* cls) {
    for (QAction* page : window_->add->menu()->actions())
      for (QAction* entry : page->menu()->actions())
        if (entry->text() == QLatin1StringView(cls)) return entry->trigger();
    ADD_FAILURE() << cls;
  };
  window_->categories->setCurrentRow(0);
  add("TEditPaste");
  EXPECT_TRUE(session_->Bytes().contains(": TEditPaste\n      Category = 'Edit'\n"));
  window_->categories->setCurrentRow(2);
  add("TEditCut");
  EXPECT_TRUE(session_->Bytes().contains(": TEditCut\n      Category = 'File'\n"));
  ExpectSteps(2);
}

TEST_F(ActionListWindowTest, DeletesWhatIsSelectedAsOneStep) {
  Pick({0, 1});
  QTest::keyClick(window_->actions, Qt::Key_Delete);
  EXPECT_EQ(Actions(), "*SaveAction|LooseAction");
  EXPECT_EQ(Selected(), "SaveAction");
  window_->categories->clearSelection();
  EXPECT_EQ(Texts(*window_->categories), "(All Actions)|(No Category)|File");
  ExpectSteps(1);
}

TEST_F(ActionListWindowTest, MovesPastTheNeighbourThatIsShown) {
  window_->categories->setCurrentRow(2);
  Pick({1});
  QTest::keyClick(window_->actions, Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(Actions(), "*SaveAction|OpenAction");
  EXPECT_EQ(Order(), "SaveAction OpenAction CopyAction LooseAction");
  EXPECT_FALSE(window_->up->isEnabled());
  ExpectSteps(1);
  window_->categories->setCurrentRow(0);
  Pick({0, 1});
  QTest::mouseClick(window_->down, Qt::LeftButton);
  EXPECT_EQ(Actions(), "CopyAction|*SaveAction|*OpenAction|LooseAction");
  EXPECT_EQ(Order(), "CopyAction SaveAction OpenAction LooseAction");
  ExpectSteps(2);
}

TEST_F(ActionListWindowTest, RowsStandAlikeWithAndWithoutAPicture) {
  TImageList images(nullptr);
  images.Set(TCustomImageList::Width, 40);
  images.Set(TCustomImageList::Height, 28);
  QImage picture(40, 28, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  picture.setPixelColor(0, 0, Qt::red);
  images.SetPictures({picture});
  session_->Run(QStringLiteral("pictures"), {}, [&] {
    window_->List().Set(TActionList::Images, &images);
    dynamic_cast<TAction&>(Get("CopyAction")).Set(TAction::ImageIndex, 0);
  });
  const QListWidget& list = *window_->actions;
  for (int i = 0; i < list.count(); ++i) {
    EXPECT_EQ(list.visualItemRect(list.item(i)).height(), list.visualItemRect(list.item(1)).height()) << i;
    EXPECT_GE(list.visualItemRect(list.item(i)).height(), 28) << i;
    const QPixmap shown = list.item(i)->icon().pixmap(40, 28);
    EXPECT_EQ(shown.size(), QSize(40, 28)) << i;
    EXPECT_EQ(shown.toImage().pixelColor(0, 0).alpha(), i == 1 ? 255 : 0) << i;
  }
  session_->Run(QStringLiteral("none"), {}, [&] {
    window_->List().Set(TActionList::Images, nullptr);
    dynamic_cast<TAction&>(Get("CopyAction")).Set(TAction::ImageIndex, 1);
  });
  EXPECT_TRUE(list.item(1)->icon().isNull()) << "without a list of pictures there is no room for any";
}

TEST_F(ActionListWindowTest, FollowsUndoAndOthersAndGoesWithTheList) {
  session_->DeleteComponents({&Get("CopyAction")});
  EXPECT_EQ(Actions(), "OpenAction|SaveAction|LooseAction");
  session_->Undo();
  EXPECT_EQ(Actions().find("CopyAction") != std::string::npos, true);
  session_->Rename(Get("CopyAction"), QStringLiteral("Cut"));
  EXPECT_NE(Actions().find("Cut"), std::string::npos);
  session_->Rebuild();
  QTest::mouseClick(window_->add, Qt::LeftButton);
  EXPECT_EQ(Order(), "OpenAction Cut SaveAction LooseAction Action1");
  session_->DeleteComponents({&Get("Actions")});
  EXPECT_TRUE(ComponentWindow::All().isEmpty());
}
