// A form with an ancestor in the real window: what is inherited is selected, moved and marked like the rest.
#include "DesignerTest.h"
#include "designer/MessageBar.h"
#include "tests/support/InheritedForms.h"

using namespace inherited_forms;

namespace designer {
namespace {
class InheritedFormTest : public DesignerTest {
 protected:
  void SetUp() override {
    DesignerTest::SetUp();
    ASSERT_TRUE(window_->OpenForm(files_.Path("Derived.dfm")));
    QCoreApplication::processEvents();
    Surface().setFocus();
  }
  Files files_;
};
}  // namespace

TEST_F(InheritedFormTest, AClickSelectsWhatIsInheritedAndADragWritesItsPlace) {
  Click(At("Button1"));
  EXPECT_EQ(Selected(), "Button1");
  Drag(At("Button1"), At("Button1") + QPoint(16, 8));
  EXPECT_EQ(Bounds("Button1"), QRect(24, 16, 75, 25));
  EXPECT_EQ(
      Session().Bytes().toStdString(),
      QByteArray(Derived)
          .replace("  object Extra",
                   "  inherited Panel1: TPanel\n    inherited Button1: TButton\n      Left = 24\n      Top = "
                   "16\n    end\n  end\n  object Extra")
          .toStdString());
  Action("undo").trigger();
  EXPECT_EQ(Session().Bytes().toStdString(), Derived.toStdString());
  EXPECT_EQ(Bounds("Button1"), QRect(8, 9, 75, 25));
}

TEST_F(InheritedFormTest, TheTreeMarksWhatIsInherited) {
  ComponentModel model(ComponentModel::Shape::Tree);
  model.SetSession(&Session());
  const auto mark = [&](const char* name) {
    const QModelIndex row = model.IndexOf(Get(name));
    return std::pair(row.data(Qt::ForegroundRole).isValid(),
                     row.data(Qt::AccessibleDescriptionRole).toString());
  };
  EXPECT_EQ(mark("Button1"), std::pair(true, QStringLiteral("inherited")));
  EXPECT_EQ(mark("Panel1"), std::pair(true, QStringLiteral("inherited")));
  EXPECT_EQ(mark("Extra"), std::pair(false, QString()));
  EXPECT_EQ(mark("Derived"), std::pair(false, QString()));
}

TEST_F(InheritedFormTest, WhatIsInheritedStaysWhenItIsToBeDeleted) {
  Select("Button1");
  Key(Qt::Key_Delete);
  expectedWarnings_ = prompts_.warnings;
  EXPECT_NE(Session().GetComponent(QStringLiteral("Button1")), nullptr);
  EXPECT_EQ(Session().Bytes().toStdString(), Derived.toStdString());
}

// --- Back to what the ancestor says

namespace {
struct RevertEntry {
  bool enabled = false;
  QString text;
};
}  // namespace

TEST_F(InheritedFormTest, AValueIsRevertedByTheMenuOfItsRow) {
  Select("Button1");
  Session().Run(QStringLiteral("edit"), {}, [&] {
    auto& button = dynamic_cast<TControl&>(Get("Button1"));
    button.SetCaption(QStringLiteral("Stop"));
    button.SetLeft(20);
  });
  const QByteArray edited = Session().Bytes();
  QTreeView& view = Inspector().View();
  const auto menu = [&](const char* path, bool choose) {
    RevertEntry entry;
    QTimer::singleShot(0, [&] {
      auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(popup, nullptr);
      for (QAction* action : popup->actions())
        if (action->objectName() == QStringLiteral("revertToInherited")) {
          entry = {action->isEnabled(), action->text()};
          if (choose) action->trigger();
        }
      popup->close();
    });
    const QModelIndex row = Inspector().Model().IndexOfPath(QLatin1StringView(path));
    view.scrollTo(row);
    emit view.customContextMenuRequested(view.visualRect(row).center());
    return entry;
  };
  EXPECT_EQ(menu("Caption", false).text, QStringLiteral("Revert to &inherited"));
  EXPECT_FALSE(menu("Top", false).enabled);
  EXPECT_FALSE(menu("Enabled", false).enabled) << "no default, but the ancestor's";
  EXPECT_EQ(Session().Bytes(), edited);
  EXPECT_TRUE(menu("Caption", true).enabled);
  EXPECT_EQ(dynamic_cast<TControl&>(Get("Button1")).Caption(), QStringLiteral("Go"));
  EXPECT_EQ(Session().Bytes().toStdString(),
            QByteArray(edited).replace("      Caption = 'Stop'\n", "").toStdString());
  EXPECT_EQ(Session().UndoText(), QStringLiteral("Revert Caption to inherited"));
  EXPECT_TRUE(menu("Left", true).enabled);
  EXPECT_EQ(Session().Bytes().toStdString(), Derived.toStdString());
  Session().Undo();
  Session().Undo();
  EXPECT_EQ(Session().Bytes(), edited);
  EXPECT_EQ(dynamic_cast<TControl&>(Get("Button1")).Caption(), QStringLiteral("Stop"));
  Select("Extra");
  EXPECT_FALSE(menu("Caption", false).enabled) << "nobody's but the form's";
}

TEST_F(InheritedFormTest, AValueIsRevertedByAKey) {
  Select("Derived");
  ASSERT_TRUE(Inspector().ShowProperty(QStringLiteral("Caption")));
  Inspector().FocusValue();
  const auto press = [] {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace, Qt::ControlModifier | Qt::ShiftModifier);
  };
  press();
  EXPECT_EQ(Session().Form().Caption(), QStringLiteral("Base"));
  EXPECT_FALSE(Session().Bytes().contains("Caption = 'Derived'"));
  EXPECT_EQ(Editor().Field()->text(), QStringLiteral("Base"));
  press();
  Session().Undo();
  EXPECT_EQ(Session().Bytes(), Derived) << "one step, and none for nothing";
  EXPECT_FALSE(Session().CanUndo());
}

// --- The ancestor's file

TEST_F(InheritedFormTest, AChangeOfTheAncestorsFileIsToldAndShownOnDemand) {
  const auto comeBack = [&] {
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(window_.get(), &activated);
  };
  auto& bar = *window_->findChild<MessageBar*>();
  comeBack();
  EXPECT_EQ(bar.Text(), QString());
  files_.Write("Base.dfm", QByteArray(Base).replace("'Go'", "'Theirs'"));
  comeBack();
  EXPECT_EQ(bar.Text().toStdString(),
            "Base.dfm, which Derived.dfm inherits from, was changed by another program.");
  bar.hide();
  comeBack();
  EXPECT_EQ(bar.Text(), QString()) << "once";
  EXPECT_EQ(dynamic_cast<TControl&>(Get("Button1")).Caption(), QStringLiteral("Go"));
  QFile::remove(files_.Path("Base.dfm"));
  files_.Write("Base.dfm", Base);
  comeBack();
  files_.Write("Base.dfm", QByteArray(Base).replace("'Go'", "'Theirs'"));
  Select("Button1");
  comeBack();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // the button of the first time
  auto* reload = bar.findChild<QAbstractButton*>(QStringLiteral("reloadAncestor"));
  ASSERT_TRUE(reload && reload->isVisible());
  QTest::mouseClick(reload, Qt::LeftButton);
  EXPECT_EQ(dynamic_cast<TControl&>(Get("Button1")).Caption(), QStringLiteral("Theirs"));
  EXPECT_EQ(Selected(), "Button1");
  comeBack();
  EXPECT_EQ(bar.Text(), QString());
  EXPECT_EQ(files_.Read("Derived.dfm"), Derived);
}

TEST_F(InheritedFormTest, ChangesMadeHereAreNotGivenUpUnasked) {
  Session().Run(QStringLiteral("edit"), {}, [&] { Session().Form().SetCaption(QStringLiteral("Mine")); });
  files_.Write("Base.dfm", QByteArray(Base).replace("'Go'", "'Theirs'"));
  QEvent activated(QEvent::WindowActivate);
  QCoreApplication::sendEvent(window_.get(), &activated);
  auto& bar = *window_->findChild<MessageBar*>();
  EXPECT_TRUE(bar.Text().endsWith(QStringLiteral("Reloading gives up the changes made here.")));
  prompts_.confirm = false;
  QTest::mouseClick(bar.findChild<QAbstractButton*>(QStringLiteral("reloadAncestor")), Qt::LeftButton);
  EXPECT_EQ(prompts_.confirmations.size(), 1);
  EXPECT_EQ(Session().Form().Caption(), QStringLiteral("Mine"));
}

class GroupFormTest : public DesignerTest {};

TEST_F(GroupFormTest, WhatStandsBelowATitleIsHitWhereItIsDrawn) {
  const QString form = folder_.filePath(QStringLiteral("group.lfm"));
  Write(form, R"(object Group: TGroup
  Left = 0
  Height = 200
  Top = 0
  Width = 300
  ClientHeight = 200
  ClientWidth = 300
  object Box: TGroupBox
    Left = 16
    Height = 120
    Top = 16
    Width = 200
    ClientHeight = 90
    ClientWidth = 192
    TabOrder = 0
    object Inner: TButton
      Left = 8
      Height = 20
      Top = 0
      Width = 80
      TabOrder = 0
    end
  end
end
)");
  ASSERT_TRUE(window_->OpenForm(form));
  QCoreApplication::processEvents();
  const QPoint corner = Surface().WidgetRect(Get("Box")).topLeft();
  Click(corner + QPoint(4 + 8 + 40, 26 + 10));
  EXPECT_EQ(Selected(), "Inner");
  Click(corner + QPoint(40, 10));
  EXPECT_EQ(Selected(), "Box");
}

}  // namespace designer
