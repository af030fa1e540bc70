// What the package registers, and how page rows become calls.
#include "package/registration/VRX_RegMain.h"

#include <gtest/gtest.h>

#include "designintf/DesignIntf.h"
#include "library/controls/LEDLabel.h"
#include "library_design/pVRXCommon.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"

namespace {
class TKnob : public TComponent {
  VRX_CLASS(TKnob)
 public:
  using TComponent::TComponent;
};
const TClass& TKnob::StaticClass() {
  static const TClass cls(DescribeClass<TKnob>("TKnob", TComponent::StaticClass()));
  return cls;
}
class TDial : public TComponent {
  VRX_CLASS(TDial)
 public:
  using TComponent::TComponent;
};
const TClass& TDial::StaticClass() {
  static const TClass cls(DescribeClass<TDial>("TDial", TComponent::StaticClass()));
  return cls;
}
const TClass* Find(const QByteArray& name) {
  for (const TClass* cls : {&TKnob::StaticClass(), &TDial::StaticClass()})
    if (cls->ClassName() == name) return cls;
  return nullptr;
}

class Registering : public testing::Test {
 protected:
  void SetUp() override { ORLENVOKITEDITOROPTIONS = 0; }
  void TearDown() override {
    UnregisterPackage(this);
    ORLENVOKITEDITOROPTIONS = 0;
  }
  // The calls of this test, as "kind name: classes".
  QStringList Calls() const {
    QStringList calls;
    for (const TRegistration& row : Registrations()) {
      if (row.Package != this) continue;
      QStringList names;
      for (const TClass* cls : row.Classes) names << QString::fromLatin1(cls->ClassName());
      calls << QStringLiteral("%1 %2: %3")
                   .arg(row.Kind == TRegistrationKind::Components ? QStringLiteral("page")
                        : row.Kind == TRegistrationKind::Actions  ? QStringLiteral("actions")
                                                                  : QStringLiteral("other"),
                        row.PageOrCategory, names.join(u' '));
    }
    return calls;
  }
  QStringList Register(const std::vector<TPageRow>& rows) {
    QStringList order;
    const RegistrationScope scope(this, "test");
    RegisterPages(rows, Find, [&](const QByteArray& name) { order << QString::fromLatin1(name); });
    return order;
  }
  const std::vector<TPageRow> rows_{{TPageCall::Components, "First", false, {"TKnob", "TMissing", "TDial"}},
                                    {TPageCall::Components, "Labeled", true, {"TDial"}},
                                    {TPageCall::Actions, "Edits", false, {"TKnob"}},
                                    {TPageCall::Components, "Labeled", true, {"TKnob"}},
                                    {TPageCall::Components, "Empty", false, {"TMissing"}}};
};
}  // namespace

TEST_F(Registering, WithoutTheOptionTheLabeledRowsAreLeftOut) {
  const QStringList editors = Register(rows_);
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page First: TKnob TDial|actions Edits: TKnob"));
  EXPECT_EQ(editors.join(u' '), QStringLiteral("First Edits Empty"));
}

TEST_F(Registering, WithTheOptionTheLabeledRowsShareOnePage) {
  ORLENVOKITEDITOROPTIONS = 1;
  Register(rows_);
  EXPECT_EQ(Calls().join(u'|'),
            QStringLiteral("page First: TKnob TDial|page Labeled: TDial|actions Edits: TKnob|"
                           "page Labeled: TKnob"));
  QString labeled;
  for (const TPalettePage& page : PalettePages())
    if (page.Name == QStringLiteral("Labeled"))
      for (const TClass* cls : page.Classes) labeled += QString::fromLatin1(cls->ClassName()) + u' ';
  EXPECT_EQ(labeled, QStringLiteral("TDial TKnob "));
}

TEST_F(Registering, OnlyBitZeroOfTheOptionsCounts) {
  ORLENVOKITEDITOROPTIONS = 0xFE;
  Register(rows_);
  EXPECT_FALSE(Calls().join(u'|').contains(QStringLiteral("Labeled")));
}

TEST_F(Registering, TheOptionIsAskedAtEachCall) {
  ORLENVOKITEDITOROPTIONS = 1;
  const RegistrationScope scope(this, "test");
  RegisterPages(rows_, Find, [](const QByteArray& name) {
    if (name == "Edits") ORLENVOKITEDITOROPTIONS = 0;
  });
  EXPECT_EQ(Calls().join(u'|').count(QStringLiteral("Labeled")), 1);
}

TEST_F(Registering, AClassTwiceOnAPageGivesOneButton) {
  Register({{TPageCall::Components, "Twice", false, {"TKnob", "TDial", "TKnob"}}});
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page Twice: TKnob TDial TKnob"));
  int buttons = 0;
  for (const TPalettePage& page : PalettePages())
    if (page.Name == QStringLiteral("Twice")) buttons = static_cast<int>(page.Classes.size());
  EXPECT_EQ(buttons, 2);
}

TEST_F(Registering, EditorsComeRightAfterTheirPage) {
  const RegistrationScope scope(this, "test");
  std::vector<std::size_t> seen;
  RegisterPages(rows_, Find,
                [&](const QByteArray&) { seen.push_back(static_cast<std::size_t>(Calls().size())); });
  EXPECT_EQ(seen, (std::vector<std::size_t>{1, 2, 2}));
}

TEST_F(Registering, AnEditorRegistrationThatThrowsComesOut) {
  const RegistrationScope scope(this, "test");
  EXPECT_THROW(RegisterPages(rows_, Find, [](const QByteArray&) { throw Exception(QStringLiteral("no")); }),
               Exception);
  EXPECT_EQ(Calls().size(), 1);
}

TEST_F(Registering, ThePackagePutsTheLedLabelOnItsPageWithItsEditors) {
  {
    const RegistrationScope scope(this, "VRX_RegMain");
    VRX_RegMain::Register();
  }
  std::vector<const TRegistration*> own;
  for (const TRegistration& row : Registrations())
    if (row.Package == this) own.push_back(&row);
  ASSERT_GE(own.size(), 2u);
  EXPECT_EQ(own[0]->Kind, TRegistrationKind::Components);
  EXPECT_EQ(own[0]->PageOrCategory, QStringLiteral("VRX Ext"));
  ASSERT_EQ(own[0]->Classes.size(), 1u);
  EXPECT_EQ(own[0]->Classes[0]->ClassName(), "TVRXLEDLabel");
  const auto editor = std::find_if(own.begin(), own.end(), [](const TRegistration* row) {
    return row->Kind == TRegistrationKind::PropertyEditor && row->PropertyEditor->Name == "TVRXLEDProperty";
  });
  ASSERT_NE(editor, own.end());
  EXPECT_EQ((*editor)->PropertyType, &TVRXLED::StaticTypeInfo());
  EXPECT_EQ((*editor)->ComponentClass, nullptr);
  EXPECT_TRUE((*editor)->PropertyName.isEmpty());
  EXPECT_EQ((*editor)->Procedure, "VRX_RegMain");
}

TEST_F(Registering, UnregisteringLeavesNoRowAndNoClass) {
  const std::size_t before = Registrations().size();
  Register(rows_);
  EXPECT_NE(FindClass("TKnob"), nullptr);
  UnregisterPackage(this);
  EXPECT_EQ(Registrations().size(), before);
  EXPECT_EQ(FindClass("TKnob"), nullptr);
}
