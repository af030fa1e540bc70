// A form with an ancestor in the real window: what is inherited is selected, moved and marked like the rest.
#include "DesignerTest.h"

namespace designer {
namespace {
const QByteArray Base = R"(object Base: TBase
  Left = 0
  Top = 0
  ClientHeight = 200
  ClientWidth = 300
  object Holder: TPanel
    Left = 16
    Top = 24
    Width = 200
    Height = 120
    Caption = ''
    TabOrder = 0
    object Deep: TButton
      Left = 24
      Top = 32
      Width = 80
      Height = 24
      Caption = 'Deep'
      TabOrder = 0
    end
  end
end
)";
const QByteArray Derived = R"(inherited Derived: TDerived
  Caption = 'Derived'
  object Own: TButton
    Left = 16
    Top = 160
    Width = 80
    Height = 24
    Caption = 'Own'
    TabOrder = 1
  end
end
)";

class InheritedFormTest : public DesignerTest {
 protected:
  void SetUp() override {
    DesignerTest::SetUp();
    Write(folder_.filePath(QStringLiteral("Base.dfm")), Base);
    Write(folder_.filePath(QStringLiteral("Derived.pas")), "type TDerived = class(TBase) end;");
    form_ = folder_.filePath(QStringLiteral("Derived.dfm"));
    Write(form_, Derived);
    ASSERT_TRUE(window_->OpenForm(form_));
    QCoreApplication::processEvents();
    Surface().setFocus();
  }
  QString form_;
};
}  // namespace

TEST_F(InheritedFormTest, AClickSelectsWhatIsInheritedAndADragWritesItsPlace) {
  Click(At("Deep"));
  EXPECT_EQ(Selected(), "Deep");
  Drag(At("Deep"), At("Deep") + QPoint(16, 8));
  EXPECT_EQ(Bounds("Deep"), QRect(40, 40, 80, 24));
  EXPECT_EQ(
      Session().Bytes().toStdString(),
      QByteArray(Derived)
          .replace("  object Own",
                   "  inherited Holder: TPanel\n    inherited Deep: TButton\n      Left = 40\n      Top = "
                   "40\n    end\n  end\n  object Own")
          .toStdString());
  Action("undo").trigger();
  EXPECT_EQ(Session().Bytes().toStdString(), Derived.toStdString());
  EXPECT_EQ(Bounds("Deep"), QRect(24, 32, 80, 24));
}

TEST_F(InheritedFormTest, TheTreeMarksWhatIsInherited) {
  ComponentModel model(ComponentModel::Shape::Tree);
  model.SetSession(&Session());
  const auto mark = [&](const char* name) {
    const QModelIndex row = model.IndexOf(Get(name));
    return std::pair(row.data(Qt::ForegroundRole).isValid(),
                     row.data(Qt::AccessibleDescriptionRole).toString());
  };
  EXPECT_EQ(mark("Deep"), std::pair(true, QStringLiteral("inherited")));
  EXPECT_EQ(mark("Holder"), std::pair(true, QStringLiteral("inherited")));
  EXPECT_EQ(mark("Own"), std::pair(false, QString()));
  EXPECT_EQ(mark("Derived"), std::pair(false, QString()));
}

TEST_F(InheritedFormTest, WhatIsInheritedStaysWhenItIsToBeDeleted) {
  Select("Deep");
  Key(Qt::Key_Delete);
  expectedWarnings_ = prompts_.warnings;
  EXPECT_NE(Session().GetComponent(QStringLiteral("Deep")), nullptr);
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
