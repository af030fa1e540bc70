#include <gtest/gtest.h>

#include "DesignTest.h"

using enum TPropertyAttribute;

namespace {
struct Two {
  TComponent form{nullptr};
  TIce a{&form}, b{&form};
  FakeDesigner designer{&form};
  Two() {
    a.SetName(QStringLiteral("A"));
    b.SetName(QStringLiteral("B"));
  }
  std::unique_ptr<TPropertyEditor> Editor(const char* name) { return EditorOf({&a, &b}, name, &designer); }
};
}  // namespace

TEST(Editor, EveryKindHasItsOwn) {
  Two t;
  const auto is = [&]<class T>(const char* name, T*) {
    return dynamic_cast<T*>(t.Editor(name).get()) != nullptr;
  };
  EXPECT_TRUE(is("Scoops", static_cast<TIntegerProperty*>(nullptr)));
  EXPECT_TRUE(is("Flavour", static_cast<TEnumProperty*>(nullptr)));
  EXPECT_FALSE(is("Flavour", static_cast<TBoolProperty*>(nullptr)));
  EXPECT_TRUE(is("Melted", static_cast<TBoolProperty*>(nullptr)));
  EXPECT_TRUE(is("Toppings", static_cast<TSetProperty*>(nullptr)));
  EXPECT_TRUE(is("Weight", static_cast<TFloatProperty*>(nullptr)));
  EXPECT_TRUE(is("Label", static_cast<TStringProperty*>(nullptr)));
  EXPECT_TRUE(is("Cone", static_cast<TClassProperty*>(nullptr)));
  EXPECT_TRUE(is("Spoon", static_cast<TComponentProperty*>(nullptr)));
  EXPECT_TRUE(is("OnMelt", static_cast<TMethodProperty*>(nullptr)));
}

TEST(Editor, AccessorsReachEveryComponent) {
  Two t;
  t.b.scoops = 7;
  const auto scoops = t.Editor("Scoops");
  EXPECT_EQ(scoops->PropCount(), 2);
  EXPECT_EQ(scoops->GetComponent(0), &t.a);
  EXPECT_EQ(scoops->GetComponent(1), &t.b);
  EXPECT_EQ(scoops->GetName(), QStringLiteral("Scoops"));
  EXPECT_EQ(scoops->GetPropInfo().Name, "Scoops");
  EXPECT_EQ(scoops->GetPropType().Name, "Integer");
  EXPECT_EQ(scoops->Designer(), &t.designer);
  EXPECT_EQ(scoops->GetOrdValue(), 1);
  EXPECT_EQ(scoops->GetOrdValueAt(1), 7);
  EXPECT_ANY_THROW(scoops->GetComponent(2));
  scoops->SetOrdValue(4);
  EXPECT_EQ(t.a.scoops, 4);
  EXPECT_EQ(t.b.scoops, 4);
  EXPECT_EQ(t.designer.modified, 1);
  t.Editor("Weight")->SetFloatValue(2.5L);
  EXPECT_EQ(t.b.weight, 2.5);
  EXPECT_EQ(t.Editor("Weight")->GetFloatValueAt(1), 2.5L);
  t.Editor("Label")->SetStrValue(QStringLiteral("x"));
  EXPECT_EQ(t.Editor("Label")->GetStrValueAt(1), QStringLiteral("x"));
  t.Editor("OnMelt")->SetMethodValue(QStringLiteral("Go"));
  EXPECT_EQ(t.Editor("OnMelt")->GetMethodValueAt(1), QStringLiteral("Go"));
  TCone cone;
  cone.SetDepth(9);
  t.Editor("Cone")->SetOrdValue(&cone);
  EXPECT_EQ(t.a.cone.Depth(), 9);
  EXPECT_EQ(t.Editor("Cone")->GetObjectValueAt(1), &t.b.cone);
  EXPECT_EQ(t.b.cone.Depth(), 9);
  EXPECT_EQ(t.designer.modified, 5);
}

TEST(Editor, TextsAreReadAndWritten) {
  Two t;
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"Scoops", "1", "12"},
      {"Flavour", "flSweet", "flBitter"},
      {"Toppings", "[tpCream]", "[tpNuts,tpFruit]"},
      {"Melted", "False", "True"},
      {"Weight", "0", "1.25"},
      {"Label", "", "cold"},
      {"OnMelt", "", "IceMelt"},
      {"Spoon", "", "B"},
  };
  int modified = 0;
  for (const auto& [name, before, after] : rows) {
    const auto editor = t.Editor(name);
    EXPECT_EQ(editor->GetValue(), QString::fromLatin1(before)) << name;
    EXPECT_TRUE(editor->IsDefault()) << name;
    editor->SetValue(QString::fromLatin1(after));
    EXPECT_EQ(t.designer.modified, ++modified);
    EXPECT_EQ(editor->GetValue(), QString::fromLatin1(after)) << name;
    EXPECT_EQ(GetPropText(t.b, editor->GetPropInfo()), QString::fromLatin1(after)) << name;
    EXPECT_FALSE(editor->IsDefault()) << name;
    EXPECT_TRUE(editor->AllEqual()) << name;
    SetPropText(t.b, editor->GetPropInfo(), QString::fromLatin1(before));
    EXPECT_FALSE(editor->AllEqual()) << name;
    EXPECT_FALSE(editor->IsDefault()) << name;
    editor->Revert();
    EXPECT_EQ(t.designer.modified, ++modified);
    EXPECT_EQ(editor->GetValue(), QString::fromLatin1(before)) << name;
    EXPECT_TRUE(editor->IsDefault()) << name;
    EXPECT_TRUE(editor->AllEqual()) << name;
  }
}

TEST(Editor, ARefusedTextChangesNothing) {
  Two t;
  const std::pair<const char*, const char*> rows[] = {{"Scoops", "many"},     {"Scoops", "99999999999"},
                                                      {"Flavour", "flUmami"}, {"Toppings", "[tpNuts,tpGold]"},
                                                      {"Melted", "perhaps"},  {"Weight", "light"},
                                                      {"Spoon", "Nobody"},    {"OnMelt", "not a name"},
                                                      {"Cone", "deep"}};
  for (const auto& [name, text] : rows) {
    const auto editor = t.Editor(name);
    const QString before = editor->GetValue();
    EXPECT_THROW(editor->SetValue(QString::fromLatin1(text)), Exception) << name << ' ' << text;
    EXPECT_EQ(editor->GetValue(), before) << name;
    EXPECT_TRUE(editor->AllEqual()) << name;
  }
  EXPECT_EQ(t.designer.modified, 0);
}

// The second component refuses what the first has taken already.
TEST(Editor, AllComponentsTakeAValueOrNone) {
  Two t;
  t.a.scoops = 3;
  t.a.weight = 1.0 / 3;
  t.b.limit = 5;
  EXPECT_THROW(t.Editor("Scoops")->SetValue(QStringLiteral("9")), EPropertyError);
  EXPECT_EQ(t.a.scoops, 3);
  EXPECT_THROW(t.Editor("Scoops")->SetOrdValue(9), EPropertyError);
  EXPECT_EQ(t.a.scoops, 3);
  EXPECT_THROW(t.Editor("Weight")->SetValue(QStringLiteral("7.5")), EPropertyError);
  EXPECT_EQ(t.a.weight, 1.0 / 3) << "to the last bit";
  EXPECT_THROW(t.Editor("Weight")->SetFloatValue(7.5L), EPropertyError);
  EXPECT_EQ(t.a.weight, 1.0 / 3);
  EXPECT_THROW(t.Editor("Label")->SetStrValue(QStringLiteral("much too long")), EPropertyError);
  EXPECT_EQ(t.a.label, QString());
  t.b.limit = 3;
  const auto parts = PartsOf(*t.Editor("Toppings"));
  ASSERT_EQ(parts.size(), 3u);
  EXPECT_THROW(parts[2]->SetValue(QStringLiteral("True")), EPropertyError);
  EXPECT_EQ(t.a.toppings, TToppings{TTopping::tpCream});
  EXPECT_EQ(t.b.toppings, TToppings{TTopping::tpCream});
  EXPECT_EQ(t.designer.modified, 0);
}

TEST(Editor, ListsTheValuesOfEnumerations) {
  Two t;
  EXPECT_EQ(ValuesOf(*t.Editor("Flavour")).join(u' '), QStringLiteral("flSweet flSour flBitter"));
  EXPECT_EQ(ValuesOf(*t.Editor("Melted")).join(u' '), QStringLiteral("False True"));
  EXPECT_TRUE(t.Editor("Flavour")->GetAttributes().Contains(paValueList));
  EXPECT_TRUE(ValuesOf(*t.Editor("Scoops")).isEmpty());
  EXPECT_FALSE(t.Editor("Scoops")->GetAttributes().Contains(paValueList));
}

TEST(Editor, ASetHasARowForEveryElement) {
  Two t;
  t.b.toppings = {TTopping::tpNuts, TTopping::tpCream};
  const auto set = t.Editor("Toppings");
  EXPECT_TRUE(set->GetAttributes().Contains(paSubProperties));
  EXPECT_FALSE(set->AllEqual());
  const auto parts = PartsOf(*set);
  ASSERT_EQ(parts.size(), 3u);
  EXPECT_EQ(parts[0]->GetName(), QStringLiteral("tpNuts"));
  EXPECT_EQ(parts[2]->GetName(), QStringLiteral("tpFruit"));
  EXPECT_EQ(parts[0]->GetValue(), QStringLiteral("False"));
  EXPECT_FALSE(parts[0]->AllEqual());
  EXPECT_FALSE(parts[0]->IsDefault());
  EXPECT_EQ(parts[1]->GetValue(), QStringLiteral("True"));
  EXPECT_TRUE(parts[1]->AllEqual());
  EXPECT_TRUE(parts[1]->IsDefault());
  EXPECT_EQ(ValuesOf(*parts[0]).join(u' '), QStringLiteral("False True"));
  parts[2]->SetValue(QStringLiteral("true"));
  EXPECT_EQ(t.a.toppings, (TToppings{TTopping::tpCream, TTopping::tpFruit}));
  EXPECT_EQ(t.b.toppings, (TToppings{TTopping::tpNuts, TTopping::tpCream, TTopping::tpFruit}))
      << "the others stay";
  parts[0]->Revert();
  EXPECT_EQ(t.b.toppings, (TToppings{TTopping::tpCream, TTopping::tpFruit}));
  parts[1]->SetValue(QStringLiteral("False"));
  parts[1]->Revert();
  EXPECT_TRUE(t.a.toppings.Contains(TTopping::tpCream));
  EXPECT_THROW(parts[0]->SetValue(QStringLiteral("maybe")), EConvertError);
}

TEST(Editor, AnObjectExpandsIntoItsProperties) {
  Two t;
  t.b.cone.SetPaper(QStringLiteral("white"));
  const auto cone = t.Editor("Cone");
  EXPECT_EQ(cone->GetValue(), QStringLiteral("(TCone)"));
  const auto parts = PartsOf(*cone);
  ASSERT_EQ(parts.size(), 2u);
  EXPECT_EQ(parts[0]->GetName(), QStringLiteral("Depth"));
  EXPECT_TRUE(parts[0]->AllEqual());
  EXPECT_FALSE(parts[1]->AllEqual());
  parts[0]->SetValue(QStringLiteral("8"));
  EXPECT_EQ(t.a.cone.Depth(), 8);
  EXPECT_EQ(t.b.cone.Depth(), 8);
  EXPECT_FALSE(cone->IsDefault());
  cone->Revert();
  EXPECT_EQ(t.b.cone.Depth(), 3);
  EXPECT_EQ(t.b.cone.Paper(), QString());
  EXPECT_TRUE(cone->IsDefault());
}

TEST(Editor, AReferenceOffersTheFormsComponentsOfItsClass) {
  Two t;
  EXPECT_EQ(ValuesOf(*t.Editor("Spoon")).join(u' '), QStringLiteral("A B"));
  TComponent other(&t.form);
  other.SetName(QStringLiteral("Other"));
  EXPECT_EQ(ValuesOf(*t.Editor("Spoon")).join(u' '), QStringLiteral("A B Other"));
  t.Editor("Spoon")->SetValue(QStringLiteral("other"));
  EXPECT_EQ(t.a.spoon, &other);
  EXPECT_EQ(t.Editor("Spoon")->GetValue(), QStringLiteral("Other"));
  t.Editor("Spoon")->SetValue(QString());
  EXPECT_EQ(t.b.spoon, nullptr);
}

TEST(Editor, AnEventOffersMethodsAndMakesOne) {
  Two t;
  t.designer.methods = {QStringLiteral("FormCreate"), QStringLiteral("Lick")};
  const auto lick = t.Editor("OnLick");
  EXPECT_EQ(ValuesOf(*lick), t.designer.methods);
  EXPECT_EQ(t.designer.askedFor, "TLickEvent");
  lick->Edit();
  EXPECT_EQ(lick->GetValue(), QStringLiteral("ALick"));
  EXPECT_EQ(GetPropText(t.b, lick->GetPropInfo()), QStringLiteral("ALick"));
  EXPECT_EQ(t.designer.shown, QStringList{QStringLiteral("ALick")});
  EXPECT_EQ(t.designer.modified, 1);
  lick->SetValue(QStringLiteral("Lick"));
  lick->Edit();
  EXPECT_EQ(lick->GetValue(), QStringLiteral("Lick")) << "one that is there is only shown";
  EXPECT_EQ(t.designer.shown.last(), QStringLiteral("Lick"));
  EXPECT_EQ(t.designer.modified, 2);
}

TEST(Editor, TheHandlersOfTheRootAreCalledForm) {
  TIce root(nullptr);
  root.SetName(QStringLiteral("MainIce"));
  FakeDesigner designer(&root);
  const auto editor = EditorOf({&root}, "OnMelt", &designer);
  EXPECT_EQ(dynamic_cast<TMethodProperty&>(*editor).GetFormMethodName(), QStringLiteral("FormMelt"));
}

TEST(Editor, WorksWithoutADesigner) {
  TIce ice(nullptr);
  EditorOf({&ice}, "Scoops")->SetValue(QStringLiteral("2"));
  EXPECT_EQ(ice.scoops, 2);
  EXPECT_TRUE(ValuesOf(*EditorOf({&ice}, "Spoon")).isEmpty());
  EXPECT_TRUE(ValuesOf(*EditorOf({&ice}, "OnMelt")).isEmpty());
}

TEST(Selection, OnlySharedPropertiesThatMayBeEditedTogetherAppear) {
  TIce ice(nullptr);
  TBigIce big(nullptr);
  TComponent plain(nullptr);
  const auto names = [](const TDesignerSelections& objects) {
    QStringList list;
    DesignRegistry::Current().GetComponentProperties(
        objects, nullptr, [&](std::unique_ptr<TPropertyEditor> e) { list << e->GetName(); });
    return list.join(u' ');
  };
  const QString all =
      QStringLiteral("Name Tag Scoops Flavour Toppings Melted Weight Label Cone Spoon OnMelt OnLick");
  EXPECT_EQ(names({&ice}), all);
  EXPECT_EQ(names({&ice, &big}), all);
  EXPECT_EQ(names({&ice, &plain}), QStringLiteral("Name Tag"));
  EXPECT_EQ(names({}), QString());
  const Scope scope;
  RegisterPropertyEditor(TypeInfoOf<int>::Get(), &TIce::StaticClass(), "Scoops", std::nullopt);
  RegisterPropertyEditor(*TComponent::StaticClass().GetProp("Name").PropType, nullptr, {},
                         VRX_PROPERTY_EDITOR(TComponentNameProperty));
  EXPECT_FALSE(names({&ice}).contains(QStringLiteral("Scoops")));
  EXPECT_TRUE(names({&ice}).contains(QStringLiteral("Name")));
  EXPECT_FALSE(names({&ice, &big}).contains(QStringLiteral("Name"))) << "names are not set together";
}

namespace {
class TClicker : public TComponent {
  VRX_CLASS(TClicker)
 public:
  using TComponent::TComponent;
};
const TClass& TClicker::StaticClass() {
  static const TClass cls(DescribeClass<TClicker>("TClicker", TComponent::StaticClass())
                              .Event("OnFirst")
                              .Event("OnClick")
                              .Event("OnLast"));
  return cls;
}

class VerbEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return verbs; }
  void ExecuteVerb(int index) override { executed = index; }
  int verbs = 2;
  int executed = -1;
};
}  // namespace

TEST(DefaultEditor, EditsTheUsualEventElseTheFirst) {
  TClicker clicker(nullptr);
  clicker.SetName(QStringLiteral("Clicker"));
  FakeDesigner designer;
  DesignRegistry::Current().GetComponentEditor(&clicker, &designer)->Edit();
  EXPECT_EQ(designer.shown, QStringList{QStringLiteral("ClickerClick")});
  TIce ice(nullptr);
  ice.SetName(QStringLiteral("Ice"));
  DesignRegistry::Current().GetComponentEditor(&ice, &designer)->Edit();
  EXPECT_EQ(designer.shown.last(), QStringLiteral("IceMelt"));
  TComponent plain(nullptr);
  DesignRegistry::Current().GetComponentEditor(&plain, &designer)->Edit();
  EXPECT_EQ(designer.shown.size(), 2);
}

TEST(ComponentEditor, ADoubleClickIsTheFirstVerb) {
  TIce ice(nullptr);
  VerbEditor editor(&ice, nullptr);
  editor.Edit();
  EXPECT_EQ(editor.executed, 0);
  editor.executed = -1;
  editor.verbs = 0;
  editor.Edit();
  EXPECT_EQ(editor.executed, -1);
}
