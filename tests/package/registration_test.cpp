// What the package registers, and how rows become calls.
#include "package/registration/VRX_RegMain.h"

#include <gtest/gtest.h>

#include "designintf/DesignRegistry.h"
#include "designintf/RegistrationTable.h"
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
class TDialEditor : public TDefaultEditor {
 public:
  using TDefaultEditor::TDefaultEditor;
};
class TCountProperty : public TIntegerProperty {
 public:
  using TIntegerProperty::TIntegerProperty;
};
const TTypeInfo& TagType() { return *TComponent::StaticClass().GetProp("Tag").PropType; }
bool Labeled() { return EditorOption(TEditorOption::LabeledVariants); }

using namespace registration;
const Row kRows[] = {
    Page("First", Classes<TKnob, TDial>()),
    Component<TDial, TDialEditor>(),
    Page("Labeled", Classes<TDial>()).OnlyIf(Labeled),
    Actions("Edits", Classes<TKnob>()),
    Page("Labeled", Classes<TKnob>()).OnlyIf(Labeled),
    Property<int, TCountProperty>(),
    Property<TVRXLED, TCountProperty, TDial>("Look"),
    Property<TagType, TCountProperty>("Tag"),
    Hidden<bool, TDial>("AutoSize"),
    Category<TKnob>("Turning", {"Left", "Right"}),
    Category<TDial>(TResString::sVisualCategoryName, {"Look"}),
};

class Registering : public testing::Test {
 protected:
  DesignRegistry registry_;
  void SetUp() override { ORLENVOKITEDITOROPTIONS = 0; }
  void TearDown() override { ORLENVOKITEDITOROPTIONS = 0; }
  // The calls of this test, in words.
  QStringList Calls() const {
    QStringList calls;
    for (const TRegistration& row : registry_.Rows())
      if (row.Package == this) calls << Words(row);
    return calls;
  }
  static QString Words(const TRegistration& row) {
    const QString cls =
        row.ComponentClass ? QString::fromLatin1(row.ComponentClass->ClassName()) : QStringLiteral("any");
    QStringList names;
    for (const TClass* c : row.Classes) names << QString::fromLatin1(c->ClassName());
    switch (row.Kind) {
      case TRegistrationKind::Components:
        return QStringLiteral("page %1: %2").arg(row.PageOrCategory, names.join(u' '));
      case TRegistrationKind::Actions:
        return QStringLiteral("actions %1: %2").arg(row.PageOrCategory, names.join(u' '));
      case TRegistrationKind::ComponentEditor:
        return QStringLiteral("%1 by %2").arg(cls, QString::fromLatin1(row.ComponentEditor->Name));
      case TRegistrationKind::PropertyEditor:
        return QStringLiteral("%1 %2.%3 by %4")
            .arg(QString::fromLatin1(row.PropertyType->Name), cls, QString::fromLatin1(row.PropertyName),
                 row.PropertyEditor ? QString::fromLatin1(row.PropertyEditor->Name) : QStringLiteral("none"));
      case TRegistrationKind::Category:
        return QStringLiteral("%1 of %2: %3").arg(row.PageOrCategory, cls, row.Properties.join(u' '));
    }
    return {};
  }
  void Register(std::span<const Row> rows) {
    const RegistrationScope scope(registry_, this, "test");
    MakeCalls(rows);
  }
};
const QString kAfterPages = QStringLiteral(
    "Integer any. by TCountProperty|TVRXLED TDial.Look by TCountProperty|"
    "NativeInt any.Tag by TCountProperty|Boolean TDial.AutoSize by none|"
    "Turning of TKnob: Left Right|Visual of TDial: Look");
}  // namespace

TEST_F(Registering, WithoutTheOptionTheLabeledRowsAreLeftOut) {
  Register(kRows);
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page First: TKnob TDial|TDial by TDialEditor|"
                                               "actions Edits: TKnob|") +
                                    kAfterPages);
}

TEST_F(Registering, WithTheOptionTheLabeledRowsShareOnePage) {
  ORLENVOKITEDITOROPTIONS = 1;
  Register(kRows);
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page First: TKnob TDial|TDial by TDialEditor|"
                                               "page Labeled: TDial|actions Edits: TKnob|"
                                               "page Labeled: TKnob|") +
                                    kAfterPages);
  QString labeled;
  for (const TPalettePage& page : registry_.PalettePages())
    if (page.Name == QStringLiteral("Labeled"))
      for (const TClass* cls : page.Classes) labeled += QString::fromLatin1(cls->ClassName()) + u' ';
  EXPECT_EQ(labeled, QStringLiteral("TDial TKnob "));
}

TEST_F(Registering, OnlyBitZeroOfTheOptionsCounts) {
  ORLENVOKITEDITOROPTIONS = 0xFE;
  Register(kRows);
  EXPECT_FALSE(Calls().join(u'|').contains(QStringLiteral("Labeled")));
}

TEST_F(Registering, TheOptionIsAskedAtEachCall) {
  ORLENVOKITEDITOROPTIONS = 1;
  const Row rows[] = {Page("Labeled", Classes<TDial>()).OnlyIf(Labeled),
                      Row([] { ORLENVOKITEDITOROPTIONS = 0; }),
                      Page("Labeled", Classes<TKnob>()).OnlyIf(Labeled)};
  Register(rows);
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page Labeled: TDial"));
}

TEST_F(Registering, AClassTwiceOnAPageGivesOneButton) {
  const Row rows[] = {Page("Twice", Classes<TKnob, TDial, TKnob>())};
  Register(rows);
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page Twice: TKnob TDial TKnob"));
  int buttons = 0;
  for (const TPalettePage& page : registry_.PalettePages())
    if (page.Name == QStringLiteral("Twice")) buttons = static_cast<int>(page.Classes.size());
  EXPECT_EQ(buttons, 2);
}

TEST_F(Registering, ARowThatThrowsComesOutAndEndsTheTable) {
  const Row rows[] = {Page("One", Classes<TKnob>()), Row([] { throw Exception(QStringLiteral("no")); }),
                      Page("Two", Classes<TDial>())};
  EXPECT_THROW(Register(rows), Exception);
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page One: TKnob"));
}

TEST_F(Registering, ThePackagePutsTheLedLabelOnItsPageWithItsEditors) {
  {
    const RegistrationScope scope(registry_, this, "VRX_RegMain");
    VRX_RegMain::Register();
  }
  std::vector<const TRegistration*> own;
  for (const TRegistration& row : registry_.Rows())
    if (row.Package == this) own.push_back(&row);
  ASSERT_GE(own.size(), 2u);
  const auto page = std::find_if(own.begin(), own.end(), [](const TRegistration* row) {
    return row->Kind == TRegistrationKind::Components && row->PageOrCategory == QStringLiteral("VRX Ext");
  });
  ASSERT_NE(page, own.end());
  const auto& classes = (*page)->Classes;
  EXPECT_EQ(std::count(classes.begin(), classes.end(), &TVRXLEDLabel::StaticClass()), 1);
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
  const std::size_t before = registry_.Rows().size();
  Register(kRows);
  EXPECT_NE(FindClass("TKnob"), nullptr);
  registry_.UnregisterPackage(this);
  EXPECT_EQ(registry_.Rows().size(), before);
  EXPECT_EQ(FindClass("TKnob"), nullptr);
}
