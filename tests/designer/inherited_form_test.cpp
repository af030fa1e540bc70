// A form with an ancestor in the real window: what is inherited is selected, moved and marked like the rest.
#include "DesignerTest.h"
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
  EXPECT_EQ(Bounds("Button1"), QRect(40, 40, 80, 24));
  EXPECT_EQ(
      Session().Bytes().toStdString(),
      QByteArray(Derived)
          .replace("  object Extra",
                   "  inherited Panel1: TPanel\n    inherited Button1: TButton\n      Left = 40\n      Top = "
                   "40\n    end\n  end\n  object Extra")
          .toStdString());
  Action("undo").trigger();
  EXPECT_EQ(Session().Bytes().toStdString(), Derived.toStdString());
  EXPECT_EQ(Bounds("Button1"), QRect(24, 32, 80, 24));
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
