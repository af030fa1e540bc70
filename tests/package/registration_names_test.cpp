// What the package's registrations name is there: a class to serve, a property to edit or to sort into a
// category.
#include <gtest/gtest.h>

#include "dclstd/StandardEditors.h"
#include "designintf/DesignRegistry.h"
#include "library_design/pVRXCommon.h"
#include "package/experts/pVRXRegOS.h"
#include "package/registration/VRX_RegMain.h"
#include "package/registration/VRX_RegMainEditors.h"
#include "rtl/ClassRegistry.h"

namespace {
class RegisteredNames : public testing::Test {
 protected:
  RegisteredNames() {
    SetEditorOption(TEditorOption::LabeledVariants, true);
    RegisterStandard(registry_);
    const RegistrationScope scope(registry_, this, {});
    pVRXRegOS::Register();
    VRX_RegMainEditors::Register();
    VRX_RegMain::Register();
  }
  ~RegisteredNames() override { SetEditorOption(TEditorOption::LabeledVariants, false); }

  std::vector<const TRegistration*> Rows(TRegistrationKind kind) const {
    std::vector<const TRegistration*> rows;
    for (const TRegistration& row : registry_.Rows())
      if (row.Package == this && row.Kind == kind) rows.push_back(&row);
    return rows;
  }
  // Whether the class, or a value that it publishes, has a property that the row's editor serves.
  bool IsServed(const TRegistration& row, const TClass& cls, std::set<const TClass*>& seen) const {
    if (!seen.insert(&cls).second) return false;
    return std::any_of(cls.Properties().begin(), cls.Properties().end(), [&](const TPropInfo* prop) {
      const bool named = row.PropertyName.isEmpty() || row.PropertyName == prop->Name;
      if (named && (!row.ComponentClass || cls.InheritsFrom(*row.ComponentClass))) {
        const auto editor = registry_.PropertyEditorOf(cls, *prop);
        if (editor.has_value() == row.PropertyEditor.has_value() &&
            (!editor || editor->Name == row.PropertyEditor->Name))
          return true;
      }
      return prop->IsPart() && prop->PropType->ClassType && IsServed(row, prop->PropType->ClassType(), seen);
    });
  }
  DesignRegistry registry_;
};
}  // namespace

TEST_F(RegisteredNames, EveryComponentEditorHasAClassToServe) {
  const auto rows = Rows(TRegistrationKind::ComponentEditor);
  EXPECT_EQ(rows.size(), 36u);
  const auto classes = RegisteredClasses();
  for (const TRegistration* row : rows) {
    const bool served = std::any_of(classes.begin(), classes.end(), [&](const TClass* cls) {
      return !cls->IsAbstract() && cls->InheritsFrom(*row->ComponentClass) &&
             registry_.ComponentEditorOf(*cls) == row->ComponentEditor->Name;
    });
    EXPECT_TRUE(served) << row->ComponentClass->ClassName().constData();
  }
}

TEST_F(RegisteredNames, EveryPropertyEditorHasAPropertyToEdit) {
  const auto rows = Rows(TRegistrationKind::PropertyEditor);
  EXPECT_EQ(rows.size(), 38u);
  const auto classes = RegisteredClasses();
  for (const TRegistration* row : rows) {
    if (row->PropertyType->Name == "TVRXPointList") continue;  // no component publishes one so far
    std::set<const TClass*> seen;
    const bool served = std::any_of(classes.begin(), classes.end(),
                                    [&](const TClass* cls) { return IsServed(*row, *cls, seen); });
    EXPECT_TRUE(served) << row->PropertyType->Name.constData() << ' '
                        << (row->ComponentClass ? row->ComponentClass->ClassName().constData() : "any") << '.'
                        << row->PropertyName.constData();
  }
}

TEST_F(RegisteredNames, EveryPropertyOfACategoryIsPublished) {
  const auto rows = Rows(TRegistrationKind::Category);
  EXPECT_EQ(rows.size(), 3u);
  for (const TRegistration* row : rows)
    for (const QString& name : row->Properties) {
      const TPropInfo* prop = row->ComponentClass->FindProp(name.toLatin1());
      ASSERT_NE(prop, nullptr) << name.toStdString();
      EXPECT_EQ(prop->Name, name.toLatin1());
      EXPECT_EQ(prop->Visibility, TPropVisibility::Published) << name.toStdString();
      EXPECT_TRUE(registry_.CategoriesOf(*row->ComponentClass, prop->Name).contains(row->PageOrCategory));
    }
}

TEST_F(RegisteredNames, WhatIsOnAPageCanBeMadeAndIsKnownByItsName) {
  int classes = 0;
  for (const TRegistration* row : Rows(TRegistrationKind::Components))
    for (const TClass* cls : row->Classes) {
      EXPECT_FALSE(cls->IsAbstract()) << cls->ClassName().constData();
      EXPECT_EQ(FindClass(cls->ClassName()), cls) << cls->ClassName().constData();
      ++classes;
    }
  EXPECT_GE(classes, 100);
}
