#include <gtest/gtest.h>

#include <random>

#include "DesignTest.h"
#include "rtl/ClassRegistry.h"

namespace {
template <int N>
class Numbered : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  QString GetValue() const override { return QString::number(N); }
};
template <int... N>
std::vector<TPropertyEditorClass> Editors(std::integer_sequence<int, N...>) {
  return {PropertyEditorClass<Numbered<N>>("Numbered")...};
}
const std::vector<TPropertyEditorClass>& NumberedEditors() {
  static const auto editors = Editors(std::make_integer_sequence<int, 24>());
  return editors;
}
const TTypeInfo& IntType() { return TypeInfoOf<int>::Get(); }
QString Chosen(TPersistent& instance, const char* name) {
  const auto editor = EditorOf({&instance}, name);
  return editor ? editor->GetValue() : QStringLiteral("hidden");
}

template <int N>
class NumberedComponentEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  QString GetVerb(int) const override { return QString::number(N); }
  int GetVerbCount() const override { return 1; }
};
}  // namespace

TEST(Registry, RecordsEveryCallInOrder) {
  const DesignRegistry registry;
  const std::size_t before = DesignRegistry::Current().Rows().size();
  const int package = 0;
  {
    const RegistrationScope scope(&package, "UnitA");
    RegisterComponents(QStringLiteral("Ices"), {&TIce::StaticClass(), &TBigIce::StaticClass()});
    RegisterActions(QStringLiteral("Lick"), {&TIce::StaticClass()}, nullptr);
    {
      const RegistrationScope inner(&package, "UnitB");
      RegisterPropertyEditor(IntType(), &TIce::StaticClass(), "Scoops", NumberedEditors()[0]);
    }
    RegisterPropertyEditor(IntType(), nullptr, {}, std::nullopt);
    RegisterComponentEditor(TIce::StaticClass(), VRX_COMPONENT_EDITOR(TDefaultEditor));
    RegisterPropertiesInCategory(QStringLiteral("Taste"), TIce::StaticClass(), {QStringLiteral("Flavour")});
  }
  const auto& rows = DesignRegistry::Current().Rows();
  ASSERT_EQ(rows.size(), before + 6);
  const TRegistration* r = &rows[before];
  using enum TRegistrationKind;
  const TRegistrationKind kinds[] = {Components,     Actions,         PropertyEditor,
                                     PropertyEditor, ComponentEditor, Category};
  const char* procedures[] = {"UnitA", "UnitA", "UnitB", "UnitA", "UnitA", "UnitA"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(r[i].Kind, kinds[i]) << i;
    EXPECT_EQ(r[i].Procedure, procedures[i]) << i;
    EXPECT_EQ(r[i].Package, &package) << i;
  }
  EXPECT_EQ(r[0].PageOrCategory, QStringLiteral("Ices"));
  EXPECT_EQ(r[0].Classes, (std::vector{&TIce::StaticClass(), &TBigIce::StaticClass()}));
  EXPECT_EQ(r[1].PageOrCategory, QStringLiteral("Lick"));
  EXPECT_EQ(r[2].PropertyType, &IntType());
  EXPECT_EQ(r[2].ComponentClass, &TIce::StaticClass());
  EXPECT_EQ(r[2].PropertyName, "Scoops");
  EXPECT_EQ(r[2].PropertyEditor->Name, "Numbered");
  EXPECT_EQ(r[3].ComponentClass, nullptr);
  EXPECT_TRUE(r[3].PropertyName.isEmpty());
  EXPECT_FALSE(r[3].PropertyEditor.has_value());
  EXPECT_EQ(r[4].ComponentEditor->Name, "TDefaultEditor");
  EXPECT_EQ(r[5].Properties, QStringList{QStringLiteral("Flavour")});
  DesignRegistry::Current().UnregisterPackage(&package);
  EXPECT_EQ(DesignRegistry::Current().Rows().size(), before);
}

TEST(Registry, UnregisteringLeavesNothingAndOthersAlone) {
  const Scope keep("Keep");
  const std::size_t before = DesignRegistry::Current().Rows().size();
  RegisterComponents(QStringLiteral("Kept"), {&TIce::StaticClass()});
  TIce ice(nullptr);
  const int gone = 0;
  {
    const RegistrationScope scope(&gone, "Gone");
    RegisterComponents(QStringLiteral("Gone"), {&TBigIce::StaticClass()});
    RegisterPropertyEditor(IntType(), nullptr, "Scoops", NumberedEditors()[3]);
    RegisterPropertiesInCategory(QStringLiteral("Taste"), TIce::StaticClass(), {QStringLiteral("Flavour")});
    EXPECT_EQ(Chosen(ice, "Scoops"), QStringLiteral("3"));
    EXPECT_EQ(FindClass("tbigice"), &TBigIce::StaticClass());
  }
  DesignRegistry::Current().UnregisterPackage(&gone);
  EXPECT_EQ(FindClass("TBigIce"), nullptr);
  EXPECT_EQ(FindClass("TIce"), &TIce::StaticClass());
  EXPECT_EQ(Chosen(ice, "Scoops"), QStringLiteral("1")) << "the plain integer editor shows the value";
  EXPECT_EQ(DesignRegistry::Current().CategoriesOf(TIce::StaticClass(), "Flavour"),
            QStringList{QStringLiteral("Miscellaneous")});
  EXPECT_EQ(DesignRegistry::Current().Rows().size(), before + 1);
  for (const TPalettePage& page : DesignRegistry::Current().PalettePages())
    EXPECT_NE(page.Name, QStringLiteral("Gone"));
}

TEST(Registry, TwoLiveSideBySide) {
  DesignRegistry one;
  const int package = 0;
  TIce ice(nullptr);
  TBigIce big(nullptr);
  {
    DesignRegistry two;
    for (DesignRegistry* registry : {&one, &two}) {
      const RegistrationScope scope(*registry, &package, "Unit");
      RegisterComponents(QStringLiteral("Ices"), {&TIce::StaticClass(), &TBigIce::StaticClass()});
    }
    one.NamePackage(&package, QStringLiteral("Parlour"));
    {
      const RegistrationScope scope(one, &package, "Unit");
      RegisterComponentEditor(TIce::StaticClass(), VRX_COMPONENT_EDITOR(NumberedComponentEditor<1>));
      {
        const RegistrationScope inner(two, &package, "Other");
        RegisterComponentEditor(TIce::StaticClass(), VRX_COMPONENT_EDITOR(NumberedComponentEditor<2>));
      }
      RegisterPropertyEditor(IntType(), nullptr, "Scoops", std::nullopt);
    }
    EXPECT_EQ(one.Rows().size(), 3u);
    EXPECT_EQ(two.Rows().size(), 2u);
    EXPECT_EQ(two.Rows().back().Procedure, "Other");
    EXPECT_EQ(one.Rows().back().Procedure, "Unit");
    EXPECT_EQ(one.GetComponentEditor(&ice, nullptr)->GetVerb(0), QStringLiteral("1"));
    EXPECT_EQ(two.GetComponentEditor(&ice, nullptr)->GetVerb(0), QStringLiteral("2"));
    const TPropInfo& scoops = ice.ClassType().GetProp("Scoops");
    EXPECT_EQ(one.CreatePropertyEditor(nullptr, {{&ice, &scoops}}), nullptr);
    EXPECT_NE(two.CreatePropertyEditor(nullptr, {{&ice, &scoops}}), nullptr);
    EXPECT_EQ(one.ConstructorOf(ice.ClassType()).Package, QStringLiteral("Parlour"));
    EXPECT_EQ(two.ConstructorOf(ice.ClassType()).Package, QString());
    two.UnregisterPackage(&package);
    EXPECT_TRUE(two.PalettePages().empty());
    EXPECT_EQ(one.PalettePages().size(), 1u);
    EXPECT_NE(FindClass("TBigIce"), nullptr) << "the other one still has it";
  }
  EXPECT_NE(FindClass("TBigIce"), nullptr);
  one.UnregisterPackage(&package);
  EXPECT_EQ(FindClass("TBigIce"), nullptr);
}

TEST(Registry, ClassesOfPackagesGoWithTheRegistry) {
  const int package = 0;
  {
    DesignRegistry registry;
    const RegistrationScope scope(registry, &package, "Unit");
    RegisterComponents(QStringLiteral("Ices"), {&TBigIce::StaticClass()});
    EXPECT_EQ(FindClass("TBigIce"), &TBigIce::StaticClass());
  }
  EXPECT_EQ(FindClass("TBigIce"), nullptr);
}

TEST(Registry, PartsOfAValueObjectAreMadeByTheSameRegistry) {
  DesignRegistry plain, hiding;
  {
    const RegistrationScope scope(hiding, nullptr, {});
    RegisterPropertyEditor(IntType(), &TCone::StaticClass(), "Depth", std::nullopt);
  }
  TIce ice(nullptr);
  const auto parts = [&](const DesignRegistry& registry) {
    QStringList names;
    const auto cone = registry.CreatePropertyEditor(nullptr, {{&ice, &ice.ClassType().GetProp("Cone")}});
    for (const auto& part : PartsOf(*cone)) names << part->GetName();
    return names.join(u' ');
  };
  EXPECT_EQ(parts(plain), QStringLiteral("Depth Paper"));
  EXPECT_EQ(parts(hiding), QStringLiteral("Paper"));
}

TEST(Palette, KeepsPagesInOrderAndEveryClassOnce) {
  const Scope scope;
  RegisterComponents(QStringLiteral("One"), {&TBigIce::StaticClass()});
  RegisterComponents(QStringLiteral("Two"), {&TIce::StaticClass()});
  RegisterComponents(QStringLiteral("One"),
                     {&TIce::StaticClass(), &TBigIce::StaticClass(), &TIce::StaticClass()});
  RegisterActions(QStringLiteral("Lick"), {&TIce::StaticClass()}, nullptr);
  const auto pages = DesignRegistry::Current().PalettePages();
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_EQ(pages[0].Name, QStringLiteral("One"));
  EXPECT_EQ(pages[0].Classes, (std::vector{&TBigIce::StaticClass(), &TIce::StaticClass()}));
  EXPECT_EQ(pages[1].Name, QStringLiteral("Two"));
  ASSERT_EQ(DesignRegistry::Current().ActionCategories().size(), 1u);
  EXPECT_EQ(DesignRegistry::Current().ActionCategories()[0].Name, QStringLiteral("Lick"));
}

TEST(Palette, AUnitThatOnlyAddsToAPageDoesNotMoveIt) {
  DesignRegistry registry;
  {
    const RegistrationScope scope(registry, nullptr, "Adds");
    RegisterComponents(QStringLiteral("Two"), {&TBigIce::StaticClass()});
  }
  {
    const RegistrationScope scope(registry, nullptr, "Main");
    RegisterComponents(QStringLiteral("One"), {&TIce::StaticClass()});
    RegisterComponents(QStringLiteral("Two"), {&TIce::StaticClass()});
  }
  const auto pages = registry.PalettePages();
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_EQ(pages[0].Name, QStringLiteral("One"));
  EXPECT_EQ(pages[1].Classes, (std::vector{&TBigIce::StaticClass(), &TIce::StaticClass()}));
}

TEST(EditorChoice, NamedBeforeClassBeforeType) {
  TBigIce ice(nullptr);
  const auto editors = NumberedEditors();
  const Scope scope;
  RegisterPropertyEditor(IntType(), &TBigIce::StaticClass(), {}, editors[1]);
  EXPECT_EQ(Chosen(ice, "Scoops"), QStringLiteral("1"));
  RegisterPropertyEditor(IntType(), &TIce::StaticClass(), {}, editors[2]);
  EXPECT_EQ(Chosen(ice, "Scoops"), QStringLiteral("1")) << "the nearer class";
  RegisterPropertyEditor(IntType(), nullptr, "scoops", editors[3]);
  EXPECT_EQ(Chosen(ice, "Scoops"), QStringLiteral("3")) << "a name, in any case";
  RegisterPropertyEditor(IntType(), &TIce::StaticClass(), "Scoops", editors[4]);
  EXPECT_EQ(Chosen(ice, "Scoops"), QStringLiteral("4"));
  RegisterPropertyEditor(IntType(), &TIce::StaticClass(), "Scoops", editors[5]);
  EXPECT_EQ(Chosen(ice, "Scoops"), QStringLiteral("5")) << "the later of equals";
  RegisterPropertyEditor(TypeInfoOf<QString>::Get(), &TBigIce::StaticClass(), "Scoops", editors[6]);
  EXPECT_EQ(Chosen(ice, "Scoops"), QStringLiteral("5")) << "another type";
  RegisterPropertyEditor(IntType(), &TBigIce::StaticClass(), "Scoops", std::nullopt);
  EXPECT_EQ(Chosen(ice, "Scoops"), QStringLiteral("hidden"));
  TIce plain(nullptr);
  EXPECT_EQ(Chosen(plain, "Scoops"), QStringLiteral("5"));
}

TEST(EditorChoice, AnAncestorTypeServesObjects) {
  TIce ice(nullptr);
  const Scope scope;
  RegisterPropertyEditor(TPersistent::StaticTypeInfo(), nullptr, {}, NumberedEditors()[1]);
  EXPECT_EQ(Chosen(ice, "Cone"), QStringLiteral("1"));
  RegisterPropertyEditor(TCone::StaticTypeInfo(), nullptr, {}, NumberedEditors()[2]);
  EXPECT_EQ(Chosen(ice, "Cone"), QStringLiteral("2"));
  RegisterPropertyEditor(TPersistent::StaticTypeInfo(), nullptr, {}, NumberedEditors()[3]);
  EXPECT_EQ(Chosen(ice, "Cone"), QStringLiteral("2")) << "the nearer type";
  EXPECT_EQ(Chosen(ice, "Spoon"), QStringLiteral("3")) << "components are persistent too";
}

// Random rows against a search that looks at all pairs.
TEST(EditorChoice, MatchesASlowSearch) {
  const TClass* classes[] = {nullptr, &TComponent::StaticClass(), &TIce::StaticClass(),
                             &TBigIce::StaticClass()};
  const QByteArray names[] = {{}, {}, "Scoops", "Cone", "TAG"};
  const TTypeInfo* types[] = {&IntType(), &TPersistent::StaticTypeInfo(), &TCone::StaticTypeInfo(),
                              TComponent::StaticClass().GetProp("Tag").PropType};
  struct Row {
    const TTypeInfo* type;
    const TClass* cls;
    QByteArray name;
    int number;
  };
  std::mt19937 random(11);
  const auto pick = [&](int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); };
  const auto chain = [](const TClass* cls) {
    std::vector<const TClass*> all;
    for (; cls; cls = cls->ClassParent()) all.push_back(cls);
    return all;
  };
  for (int round = 0; round < 300; ++round) {
    const Scope scope;
    std::vector<Row> rows;
    for (int i = pick(24); i >= 0; --i) {
      rows.push_back({types[pick(4)], classes[pick(4)], names[pick(5)], static_cast<int>(rows.size())});
      const bool hide = pick(6) == 0;
      RegisterPropertyEditor(*rows.back().type, rows.back().cls, rows.back().name,
                             hide ? std::nullopt : std::optional(NumberedEditors()[rows.size() - 1]));
      if (hide) rows.back().number = -1;
    }
    TBigIce big(nullptr);
    TIce ice(nullptr);
    for (TIce* instance : {&ice, static_cast<TIce*>(&big)})
      for (const char* name : {"Scoops", "Cone", "Tag"}) {
        const TPropInfo& prop = instance->ClassType().GetProp(name);
        const auto owners = chain(&instance->ClassType());
        // Steps up to the row's class or type; more are farther.
        const auto distance = [](const std::vector<const TClass*>& up, const TClass* to) {
          return static_cast<int>(std::find(up.begin(), up.end(), to) - up.begin());
        };
        std::optional<std::array<int, 3>> best;
        int chosen = -2;
        for (const Row& row : rows) {
          if (!row.name.isEmpty() && row.name.toLower() != prop.Name.toLower()) continue;
          int typeSteps = 0;
          if (row.type != prop.PropType) {
            if (!row.type->ClassType || !prop.PropType->ClassType) continue;
            const auto up = chain(&prop.PropType->ClassType());
            typeSteps = distance(up, &row.type->ClassType());
            if (typeSteps == static_cast<int>(up.size())) continue;
          }
          const int classSteps = row.cls ? distance(owners, row.cls) : 1000;
          if (row.cls && classSteps == static_cast<int>(owners.size())) continue;
          const std::array<int, 3> far{row.name.isEmpty(), classSteps, typeSteps};
          if (best && far > *best) continue;
          best = far;
          chosen = row.number;
        }
        const QString got = Chosen(*instance, name);
        if (chosen == -2)
          ASSERT_EQ(got, GetPropText(*instance, prop)) << round << name;
        else
          ASSERT_EQ(got, chosen < 0 ? QStringLiteral("hidden") : QString::number(chosen)) << round << name;
      }
  }
}

TEST(ComponentEditors, TheNearestClassAndTheLaterOfEqualsWins) {
  TBigIce ice(nullptr);
  const auto verb = [&](TComponent& c) {
    return DesignRegistry::Current().GetComponentEditor(&c, nullptr)->GetVerb(0);
  };
  EXPECT_EQ(verb(ice), QString()) << "the default editor has no verbs";
  EXPECT_NE(dynamic_cast<TDefaultEditor*>(DesignRegistry::Current().GetComponentEditor(&ice, nullptr).get()),
            nullptr);
  const Scope scope;
  RegisterComponentEditor(TIce::StaticClass(), VRX_COMPONENT_EDITOR(NumberedComponentEditor<1>));
  RegisterComponentEditor(TComponent::StaticClass(), VRX_COMPONENT_EDITOR(NumberedComponentEditor<2>));
  EXPECT_EQ(verb(ice), QStringLiteral("1"));
  TComponent plain(nullptr);
  EXPECT_EQ(verb(plain), QStringLiteral("2"));
  RegisterComponentEditor(TBigIce::StaticClass(), VRX_COMPONENT_EDITOR(NumberedComponentEditor<3>));
  RegisterComponentEditor(TIce::StaticClass(), VRX_COMPONENT_EDITOR(NumberedComponentEditor<4>));
  EXPECT_EQ(verb(ice), QStringLiteral("3"));
  TIce small(nullptr);
  EXPECT_EQ(verb(small), QStringLiteral("4"));
  FakeDesigner designer;
  const auto editor = DesignRegistry::Current().GetComponentEditor(&ice, &designer);
  EXPECT_EQ(editor->GetComponent(), &ice);
  EXPECT_EQ(editor->GetDesigner(), &designer);
}

TEST(Categories, AreInheritedAndOrdered) {
  const Scope scope;
  RegisterPropertiesInCategory(QStringLiteral("B"), TIce::StaticClass(),
                               {QStringLiteral("Scoops"), QStringLiteral("Label")});
  RegisterPropertiesInCategory(QStringLiteral("A"), TBigIce::StaticClass(), {QStringLiteral("scoops")});
  RegisterPropertiesInCategory(QStringLiteral("B"), TIce::StaticClass(), {QStringLiteral("Scoops")});
  EXPECT_EQ(DesignRegistry::Current().CategoriesOf(TBigIce::StaticClass(), "Scoops"),
            (QStringList{QStringLiteral("B"), QStringLiteral("A")}));
  EXPECT_EQ(DesignRegistry::Current().CategoriesOf(TIce::StaticClass(), "Scoops"),
            QStringList{QStringLiteral("B")});
  EXPECT_EQ(DesignRegistry::Current().CategoriesOf(TComponent::StaticClass(), "Scoops"),
            QStringList{QStringLiteral("Miscellaneous")});
  EXPECT_EQ(DesignRegistry::Current().CategoriesOf(TIce::StaticClass(), "Flavour"),
            QStringList{QStringLiteral("Miscellaneous")});
}

TEST(ResStrings, NameTheCategories) {
  EXPECT_EQ(LoadResString(TResString::sLayoutCategoryName), QStringLiteral("Layout"));
  EXPECT_EQ(LoadResString(TResString::sVisualCategoryName), QStringLiteral("Visual"));
  EXPECT_EQ(LoadResString(TResString::sMiscCategoryName), QStringLiteral("Miscellaneous"));
}

TEST(Attributes, HaveTheirBitsInDeclaredOrder) {
  const QByteArrayList names{
      "paValueList", "paSubProperties", "paDialog",          "paMultiSelect",    "paAutoUpdate",
      "paSortList",  "paReadOnly",      "paRevertable",      "paFullWidthName",  "paVolatileSubProperties",
      "paVCL",       "paNotNestable",   "paDisplayReadOnly", "paCustomDropDown", "paValueEditable"};
  const TTypeInfo& type = TypeInfoOf<TPropertyAttribute>::Get();
  EXPECT_EQ(type.Elements, names);
  for (int i = 0; i < 15; ++i) {
    EXPECT_EQ(TPropertyAttributes{static_cast<TPropertyAttribute>(i)}.Bits(), 1u << i);
    EXPECT_EQ(OrdToText(TypeInfoOf<TPropertyAttributes>::Get(), std::int64_t{1} << i),
              u'[' + QString::fromLatin1(names[i]) + u']');
  }
  EXPECT_EQ(static_cast<int>(TPropertyAttribute::paValueEditable), 14);
  EXPECT_EQ(TypeInfoOf<TPropertyAttributes>::Get().MaxValue, (1 << 15) - 1);
}

TEST(PackageCalls, ARefusedValueIsToldInTheSettersWords) {
  const auto message = [](const char* call, auto error) {
    try {
      PackageCall(
          [&] {
            return TPackageCall{QStringLiteral("Guest"), QString::fromLatin1(call)};
          },
          [&] { throw error; });
    } catch (const Exception& e) {
      return e.Message().toStdString();
    }
    return std::string();
  };
  const EPropertyError refused(QStringLiteral("No such flavor."));
  const EConvertError unread(QStringLiteral("That is no number."));
  EXPECT_EQ(message("TFlavorProperty.SetValue", refused), "No such flavor.");
  EXPECT_EQ(message("TFlavorProperty.SetValue", unread), "That is no number.");
  EXPECT_EQ(message("TFlavorProperty.SetValue", std::runtime_error("torn")),
            "torn (TFlavorProperty.SetValue of package Guest)");
  EXPECT_EQ(message("TFlavorProperty.GetValue", refused),
            "No such flavor. (TFlavorProperty.GetValue of package Guest)");
}
