// Context menus written as tables, and what every editor of the package has in common.
#include "library_design/VerbEditor.h"

#include <gtest/gtest.h>

#include "package/component_editors/pVRXCEMain.h"
#include "package/registration/VRX_RegMain.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"
#include "tests/designintf/DesignTest.h"

namespace {
enum class TShine : std::uint8_t { shDim, shWarm, shCold };
using TShines = TSet<TShine>;
}  // namespace
VRX_ENUM(TShine, {"shDim", "shWarm", "shCold"})
VRX_SET(TShines, TShine)

namespace {
class TLamp : public TComponent {
  VRX_CLASS(TLamp)
 public:
  using TComponent::TComponent;
  bool Active() const { return active; }
  void SetActive(bool v) { Change(active, v); }
  TShines Shines() const { return shines; }
  void SetShines(TShines v) { Change(shines, v); }
  TLamp* Part() const { return const_cast<TLamp*>(this); }

  bool active = false;
  TShines shines{TShine::shWarm};
  QStringList bulbs{QStringLiteral("Left"), QStringLiteral("Right")};
  bool refuses = false;
  bool round = false;
  QStringList done;
};
const TClass& TLamp::StaticClass() {
  static const TClass cls(DescribeClass<TLamp>("TLamp", TComponent::StaticClass())
                              .Published("Active", &TLamp::Active, &TLamp::SetActive, false)
                              .Published("Shines", &TLamp::Shines, &TLamp::SetShines, TShines()));
  return cls;
}
class TVRXDBLamp : public TLamp {
  VRX_CLASS(TVRXDBLamp)
 public:
  using TLamp::TLamp;
};
const TClass& TVRXDBLamp::StaticClass() {
  static const TClass cls(DescribeClass<TVRXDBLamp>("TVRXDBLamp", TLamp::StaticClass()));
  return cls;
}

bool Polish(TLamp& lamp, const QString& with) {
  if (lamp.refuses) return false;
  lamp.done << QStringLiteral("polish with ") + with;
  return true;
}

class TBaseEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 2; }
  QString GetVerb(int index) const override {
    return index == 0 ? QStringLiteral("Base 0") : index == 1 ? QStringLiteral("Base 1") : QString();
  }
  void ExecuteVerb(int index) override {
    dynamic_cast<TLamp&>(*GetComponent()).done << QStringLiteral("base %1").arg(index);
  }
};

VRX_VERB_EDITOR(TLampEditor, TLamp);
const TLampEditor::Verbs TLampEditor::Table = {
    Flag("Active").DataAware("[DB] Not available"),
    Flag("Lit ", "Active"),
    BracketFlag("Arrowed", "Active"),
    ElementFlag("Cold", "Shines", 2),
    {"-"},
    {"Polish", Launch(&TLamp::Part, Polish, QStringLiteral("wax"))},
    {[](const TLamp& l) { return l.round ? "To square" : "To round"; }, [](TLamp& l) { l.round = !l.round; }},
    Verb("Only round", [](TLamp& l) { l.done << QStringLiteral("only"); }).When([](const TLamp& l) {
      return l.round;
    }),
    Verb([](const TLamp& l, int i) { return QStringLiteral("Bulb ") + l.bulbs[i]; },
         [](TLamp& l, IDesigner& d, int i) { l.done << d.UniqueName(l.bulbs[i]); })
        .Times([](const TLamp& l) { return static_cast<int>(l.bulbs.size()); }),
    {"Name", [](TLamp& l, IDesigner& d) { l.done << d.GetRootClassName(); }},
};

VRX_VERB_EDITOR(TFirstEditor, TLamp, TBaseEditor);
const TFirstEditor::Verbs TFirstEditor::Table = {{"Own", [](TLamp& l) { l.done << QStringLiteral("own"); }}};
VRX_VERB_EDITOR(TLastEditor, TLamp, TBaseEditor, TOwnVerbs::Last);
const TLastEditor::Verbs TLastEditor::Table = {{"Own", [](TLamp& l) { l.done << QStringLiteral("own"); }}};
VRX_VERB_EDITOR(TMistypedEditor, TLamp);
const TMistypedEditor::Verbs TMistypedEditor::Table = {Flag("Aktive")};

QStringList Menu(const TComponentEditor& editor) {
  QStringList verbs;
  for (int i = -1; i <= editor.GetVerbCount(); ++i) verbs << editor.GetVerb(i);
  return verbs;
}

class Verbs : public testing::Test {
 protected:
  TLamp lamp_{nullptr};
  FakeDesigner designer_;
  TLampEditor editor_{&lamp_, &designer_};
};
}  // namespace

TEST_F(Verbs, TheMenuIsTheTable) {
  EXPECT_EQ(Menu(editor_).join(u'|'),
            QStringLiteral("|Active%1|Lit %1|Arrowed [False]|Cold%1|-|Polish|To round|Bulb Left|Bulb Right|"
                           "Name|")
                .arg(QString::fromUtf8(BoolStr[0])));
}

TEST_F(Verbs, CaptionsAndCountsFollowTheState) {
  lamp_.SetActive(true);
  lamp_.SetShines({TShine::shCold});
  lamp_.round = true;
  lamp_.bulbs = QStringList{QStringLiteral("Top")};
  EXPECT_EQ(Menu(editor_).join(u'|'),
            QStringLiteral("|Active%1|Lit %1|Arrowed [True]|Cold%1|-|Polish|To square|Only round|Bulb Top|"
                           "Name|")
                .arg(QString::fromUtf8(BoolStr[1])));
  editor_.ExecuteVerb(7);
  EXPECT_EQ(lamp_.done.join(u'|'), QStringLiteral("only"));
}

TEST_F(Verbs, FlagsTurnTheirPropertyAndNothingElse) {
  editor_.ExecuteVerb(0);
  EXPECT_TRUE(lamp_.active);
  editor_.ExecuteVerb(1);
  EXPECT_FALSE(lamp_.active);
  editor_.ExecuteVerb(2);
  EXPECT_TRUE(lamp_.active);
  editor_.ExecuteVerb(3);
  EXPECT_EQ(lamp_.shines, (TShines{TShine::shWarm, TShine::shCold}));
  editor_.ExecuteVerb(3);
  EXPECT_EQ(lamp_.shines, TShines{TShine::shWarm});
  EXPECT_EQ(designer_.modified, 5);
}

TEST_F(Verbs, ModifiedIsCalledWhenTheVerbSaysSo) {
  editor_.ExecuteVerb(5);
  EXPECT_EQ(lamp_.done.join(u'|'), QStringLiteral("polish with wax"));
  EXPECT_EQ(designer_.modified, 1);
  lamp_.refuses = true;
  editor_.ExecuteVerb(5);
  EXPECT_EQ(designer_.modified, 1);
  editor_.ExecuteVerb(4);  // the separator
  EXPECT_EQ(designer_.modified, 1);
  EXPECT_EQ(lamp_.done.size(), 1);
}

TEST_F(Verbs, RepeatedVerbsKnowWhichTheyAre) {
  editor_.ExecuteVerb(8);
  editor_.ExecuteVerb(7);
  editor_.ExecuteVerb(9);
  EXPECT_EQ(lamp_.done.join(u'|'), QStringLiteral("Right1|Left1|TFake"));
}

TEST_F(Verbs, IndexesOutsideTheTableDoNothing) {
  for (const int index : {-1, 10, 1000}) editor_.ExecuteVerb(index);
  EXPECT_TRUE(lamp_.done.isEmpty());
  EXPECT_EQ(designer_.modified, 0);
}

TEST_F(Verbs, ADataAwareComponentShowsItsTextInstead) {
  TVRXDBLamp lamp(nullptr);
  TLampEditor editor(&lamp, &designer_);
  EXPECT_EQ(editor.GetVerb(0), QStringLiteral("[DB] Not available"));
  EXPECT_TRUE(editor.GetVerb(1).startsWith(QStringLiteral("Lit ")));
  editor.ExecuteVerb(0);
  EXPECT_FALSE(lamp.active);
  EXPECT_EQ(designer_.modified, 0);
  EXPECT_TRUE(VRXCPIsDBControl(lamp));
  EXPECT_FALSE(VRXCPIsDBControl(lamp_));
}

TEST_F(Verbs, OwnVerbsStandBeforeOrBehindTheBases) {
  TFirstEditor first(&lamp_, &designer_);
  EXPECT_EQ(Menu(first).join(u'|'), QStringLiteral("|Own|Base 0|Base 1|"));
  TLastEditor last(&lamp_, &designer_);
  EXPECT_EQ(Menu(last).join(u'|'), QStringLiteral("|Base 0|Base 1|Own|"));
  first.ExecuteVerb(0);
  first.ExecuteVerb(2);
  last.ExecuteVerb(2);
  last.ExecuteVerb(0);
  EXPECT_EQ(lamp_.done.join(u'|'), QStringLiteral("own|base 1|own|base 0"));
}

TEST_F(Verbs, AComponentOfAnotherClassHasTheBasesVerbsOnly) {
  TComponent other(nullptr);
  EXPECT_EQ(Menu(TFirstEditor(&other, &designer_)).join(u'|'), QStringLiteral("|Base 0|Base 1|"));
}

TEST_F(Verbs, AFlagWithoutAPropertyIsRefusedByName) {
  TMistypedEditor editor(&lamp_, &designer_);
  EXPECT_THROW(editor.GetVerb(0), EPropertyError);
}

TEST_F(Verbs, WithoutADesignerVerbsThatNeedItDoNothing) {
  TLampEditor editor(&lamp_, nullptr);
  editor.ExecuteVerb(9);
  EXPECT_TRUE(lamp_.done.isEmpty());
  editor.ExecuteVerb(0);
  EXPECT_TRUE(lamp_.active);
}

// Every class of the library, with the editor that the package registers for it.
TEST(EveryComponentEditor, HasACaptionForEachVerbAndNothingBeyond) {
  const Scope scope("VRX_RegMain");
  VRX_RegMain::Register();
  FakeDesigner designer;
  int edited = 0;
  for (const TClass* cls : RegisteredClasses()) {
    if (cls->IsAbstract() || !cls->InheritsFrom(TComponent::StaticClass())) continue;
    SCOPED_TRACE(cls->ClassName().toStdString());
    const std::unique_ptr<TComponent> component(cls->NewComponent(nullptr));
    const auto editor = scope.registry.GetComponentEditor(component.get(), &designer);
    const int count = editor->GetVerbCount();
    edited += count;
    for (int i = 0; i < count; ++i) EXPECT_FALSE(editor->GetVerb(i).isEmpty()) << i;
    for (const int i : {-1, count, count + 100}) {
      EXPECT_TRUE(editor->GetVerb(i).isEmpty()) << i;
      editor->ExecuteVerb(i);
    }
  }
  EXPECT_GE(edited, 2);
  EXPECT_EQ(designer.modified, 0);
}

TEST(EveryComponentEditor, LedLabelsAndButtonsHaveTheVerbsOfTheirDialogs) {
  TVRXLEDLabel label(nullptr);
  TVRX3DEffectButton button(nullptr);
  EXPECT_EQ(Menu(TVRXLEDLabelComponentEditor(&label, nullptr)).join(u'|'),
            QStringLiteral("|Caption|AutoSize: True|Bevel|LED|"));
  EXPECT_EQ(Menu(TVRXExtGraphicButtonComponentEditor(&button, nullptr)).join(u'|'),
            QStringLiteral("|Button-Editor|Caption|Font|Down: False|Enabled: True|"));
}
