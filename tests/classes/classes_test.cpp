// What every component class must do, asked of each one that is registered.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <random>

#include "ClassWalk.h"
#include "designintf/ComponentIcons.h"
#include "forms/FormReader.h"
#include "forms/Snapshot.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Clock.h"
#include "rtl/Collection.h"
#include "rtl/ContentProblem.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "vcl/FormColors.h"
#include "vcl/Theme.h"

namespace {
class EveryClass : public testing::TestWithParam<std::string> {
 protected:
  const TClass& Class() const { return GetClass(GetParam()); }
};

QImage Picture(TControl& control) {
  QImage image(std::max(1, control.Width()), std::max(1, control.Height()),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  PaintControl(control, painter);
  return image;
}

class PaintingHost : public IControlHost {
 public:
  void ControlChanged(TControl& control) override {
    ++changes;
    Picture(control);  // a host may paint at any time
  }
  int changes = 0;
};

// Changes some values in any order, as somebody at the inspector would.
QByteArrayList ChangeSome(Stage& stage, std::mt19937& random, unsigned oneIn) {
  QByteArrayList changed, paths = ValuePaths(*stage.subject);
  std::shuffle(paths.begin(), paths.end(), random);
  for (const QByteArray& path : paths)
    if (random() % oneIn == 0 && !IsReadOnly(*stage.subject, path) &&
        SetAnother(stage, path, static_cast<unsigned>(random())))
      changed << path;
  return changed;
}

std::string Joined(const QByteArrayList& list) { return list.join(' ').toStdString(); }

std::unique_ptr<TComponent> ReadForm(const QByteArray& bytes, std::vector<forms::Finding>& findings) {
  forms::Document document = forms::Document::Parse(bytes);
  forms::ObjectMap map;
  forms::FormReader reader(document, map);
  reader.SetDesigning(true);
  reader.SetRootMaker([](const forms::Object& object, TComponent* owner) -> TComponent* {
    auto* form = new TForm(owner);
    form->SetStreamClassName(QByteArray(object.className.constData(), object.className.size()));
    return form;
  });
  auto root = reader.ReadRoot();
  findings = reader.Findings();
  return root;
}
}  // namespace

TEST_P(EveryClass, StartsWithItsDefaults) {
  Stage stage(Class());
  const QByteArrayList paths = ValuePaths(*stage.subject);
  EXPECT_FALSE(paths.isEmpty());
  for (const QByteArray& path : paths) {
    const forms::PropertyTarget t = forms::FindTarget(*stage.subject, path);
    if (!t.prop || !t.prop->Default) continue;
    EXPECT_EQ(GetOrdProp(*t.instance, *t.prop), *t.prop->Default) << path.constData();
    EXPECT_GE(*t.prop->Default, t.prop->PropType->MinValue) << path.constData();
    EXPECT_LE(*t.prop->Default, t.prop->PropType->MaxValue) << path.constData();
    EXPECT_FALSE(IsStoredProp(*t.instance, *t.prop)) << path.constData();
  }
}

TEST_P(EveryClass, HasNoPropertyTwice) {
  QSet<QByteArray> names;
  for (const TPropInfo* p : Class().Properties()) {
    EXPECT_FALSE(names.contains(p->Name.toLower())) << p->Name.constData();
    names << p->Name.toLower();
    EXPECT_EQ(Class().FindProp(p->Name.toUpper()), p);
    EXPECT_FALSE(p->PropType->Name.isEmpty());
  }
  EXPECT_FALSE(Class().Description().isEmpty());
}

TEST_P(EveryClass, EveryValueChangesAndGoesBack) {
  Stage untouched(Class());
  for (const QByteArray& path : ValuePaths(*untouched.subject)) {
    SCOPED_TRACE(path.toStdString());
    Stage stage(Class());
    const QByteArray before = ValueText(*stage.subject, path);
    EXPECT_EQ(before, ValueText(*untouched.subject, path));
    if (IsReadOnly(*stage.subject, path)) continue;
    for (unsigned turn = 0; turn < 3; ++turn) {
      const QByteArray last = ValueText(*stage.subject, path);
      ASSERT_TRUE(SetAnother(stage, path, turn));
      EXPECT_NE(ValueText(*stage.subject, path), last) << "turn " << turn;
    }
    const forms::PropertyTarget t = forms::FindTarget(*stage.subject, path);
    if (!t.prop) continue;
    if (t.prop->IsOrdinal() && !t.prop->Default) {
      const QByteArray now = ValueText(*stage.subject, path);
      ResetProp(*t.instance, *t.prop);
      EXPECT_EQ(ValueText(*stage.subject, path), now) << "without a default it stays";
      continue;
    }
    ResetProp(*t.instance, *t.prop);
    EXPECT_EQ(ValueText(*stage.subject, path), before);
  }
}

namespace {
// Remembers the value of a path from the moment before the first change.
class Listener : public IControlHost {
 public:
  Listener(TComponent& subject, QByteArray path) : subject_(subject), path_(std::move(path)) {}
  void ControlChanged(TControl&) override {}
  void BoundsChanging(TControl& control) override { ComponentChanging(control); }
  void ComponentChanging(TComponent& component) override {
    if (&component == &subject_ && !heard) heard = ValueText(subject_, path_);
  }
  std::optional<QByteArray> heard;

 private:
  TComponent& subject_;
  QByteArray path_;
};

// Past the routines that check the value, as an editor's own code does.
void CallSetter(const forms::PropertyTarget& to, const forms::PropertyTarget& from) {
  const TPropAccess& access = *to.prop->Access;
  access.Write(*to.instance,
               IsComponentRef(*to.prop) ? access.Nothing() : GetProp(*from.instance, *from.prop));
}
}  // namespace

TEST_P(EveryClass, EverySetterTellsBeforeItChanges) {
  EXPECT_TRUE(PromisesTelling(Class()));
  Stage paths(Class());
  for (const QByteArray& path : ValuePaths(*paths.subject)) {
    SCOPED_TRACE(path.toStdString());
    if (IsReadOnly(*paths.subject, path)) continue;
    Stage source(Class()), target(Class());
    ASSERT_TRUE(SetAnother(source, path, 0));
    const forms::PropertyTarget from = forms::FindTarget(*source.subject, path);
    const forms::PropertyTarget to = forms::FindTarget(*target.subject, path);
    if (!to.prop || to.prop->IsPart()) continue;
    if (IsComponentRef(*to.prop)) SetAnother(target, path, 0);  // so that there is one to drop
    const QByteArray before = ValueText(*target.subject, path);
    Listener listener(*target.subject, path);
    target.form->SetHost(&listener);
    CallSetter(to, from);
    target.form->SetHost(nullptr);
    ASSERT_TRUE(listener.heard.has_value());
    EXPECT_EQ(*listener.heard, before);
    EXPECT_NE(ValueText(*target.subject, path), before);
  }
}

namespace {
// How often the subject told that it is about to change, and everything that reached the host at all.
class Counter : public IControlHost {
 public:
  explicit Counter(TComponent& subject) : subject_(subject) {}
  void ControlChanged(TControl&) override { ++anything; }
  void BoundsChanging(TControl& control) override {
    ++anything, bounds += &control == &subject_ && !control.IsFollowing();
  }
  void ComponentChanging(TComponent& component) override { ++anything, changes += &component == &subject_; }
  int changes = 0, bounds = 0, anything = 0;

 private:
  TComponent& subject_;
};
}  // namespace

TEST_P(EveryClass, EveryChangeIsToldOnceAndTheSameValueToNobody) {
  Stage paths(Class());
  for (const QByteArray& path : ValuePaths(*paths.subject)) {
    SCOPED_TRACE(path.toStdString());
    if (IsReadOnly(*paths.subject, path)) continue;
    Stage source(Class()), target(Class());
    ASSERT_TRUE(SetAnother(source, path, 0));
    const forms::PropertyTarget from = forms::FindTarget(*source.subject, path);
    const forms::PropertyTarget to = forms::FindTarget(*target.subject, path);
    if (!to.prop || to.prop->IsPart()) continue;
    if (IsComponentRef(*to.prop)) SetAnother(target, path, 0);
    Counter first(*target.subject);
    target.form->SetHost(&first);
    CallSetter(to, from);
    // A place is told of as that; bounds may follow from another value, too: of a text, of an alignment.
    EXPECT_EQ(first.changes > 0 ? first.changes : first.bounds, 1);
    Counter again(*target.subject);
    target.form->SetHost(&again);
    CallSetter(to, from);
    EXPECT_EQ(again.anything, 0);
    target.form->SetHost(nullptr);
  }
}

TEST_P(EveryClass, WhatHasNoDefaultIsAPlaceOrFollowsFromSomethingElse) {
  // Ordinals that are stored whatever they are: places and sizes, what the parent decides about, and a
  // font's.
  static const QSet<QByteArray> always{"Left",        "Top",          "Width", "Height",
                                       "ClientWidth", "ClientHeight", "Color", "PixelsPerInch",
                                       "Charset",     "Size",         "Style"};
  Stage stage(Class());
  for (const QByteArray& path : ValuePaths(*stage.subject)) {
    const forms::PropertyTarget t = forms::FindTarget(*stage.subject, path);
    if (!t.prop || !t.prop->IsOrdinal() || t.prop->Default) continue;
    EXPECT_TRUE(always.contains(t.prop->Name)) << path.constData();
  }
}

TEST_P(EveryClass, HasAnIconThatCanBeRead) {
  EXPECT_FALSE(Class().Icon().isEmpty());
  EXPECT_EQ(UnknownWordOf(Class().Icon()), QByteArray());
}

TEST_P(EveryClass, ResettingAPartResetsAllOfIt) {
  for (const TPropInfo* prop : Class().Properties()) {
    if (prop->Kind() != TTypeKind::tkClass || IsComponentRef(*prop)) continue;
    Stage stage(Class()), untouched(Class());
    ResetProp(*untouched.subject, *prop);
    const bool atDefault = IsDefaultValue(*untouched.subject, *prop);
    for (const QByteArray& path : ValuePaths(*stage.subject))
      if (path == prop->Name || path.startsWith(prop->Name + '.')) SetAnother(stage, path, 0);
    EXPECT_FALSE(IsDefaultValue(*stage.subject, *prop)) << prop->Name.constData();
    ResetProp(*stage.subject, *prop);
    EXPECT_EQ(IsDefaultValue(*stage.subject, *prop), atDefault) << prop->Name.constData();
  }
}

TEST_P(EveryClass, EveryValueSurvivesItsText) {
  Stage paths(Class());
  for (const QByteArray& path : ValuePaths(*paths.subject)) {
    SCOPED_TRACE(path.toStdString());
    Stage source(Class()), target(Class());
    const forms::PropertyTarget from = forms::FindTarget(*source.subject, path);
    if (!from.prop || from.prop->ReadOnly || from.prop->Kind() == TTypeKind::tkUnknown ||
        (from.prop->Kind() == TTypeKind::tkClass))
      continue;
    for (unsigned turn = 0; turn < 3; ++turn) {
      ASSERT_TRUE(SetAnother(source, path, turn));
      const QString text = GetPropText(*from.instance, *from.prop);
      const forms::PropertyTarget to = forms::FindTarget(*target.subject, path);
      SetPropText(*to.instance, *to.prop, text);
      EXPECT_EQ(ValueText(*target.subject, path), ValueText(*source.subject, path)) << text.toStdString();
    }
  }
}

TEST_P(EveryClass, WrongValuesAreRefusedAndChangeNothing) {
  Stage stage(Class());
  for (const QByteArray& path : ValuePaths(*stage.subject)) {
    const forms::PropertyTarget t = forms::FindTarget(*stage.subject, path);
    if (!t.prop || !t.prop->IsOrdinal()) continue;
    SCOPED_TRACE(path.toStdString());
    const QByteArray before = ValueText(*stage.subject, path);
    EXPECT_THROW(SetPropText(*t.instance, *t.prop, QStringLiteral("no such value")), Exception);
    if (t.prop->PropType->MaxValue < INT64_MAX) {
      EXPECT_THROW(SetOrdProp(*t.instance, *t.prop, t.prop->PropType->MaxValue + 1), EPropertyError);
      EXPECT_THROW(SetOrdProp(*t.instance, *t.prop, t.prop->PropType->MinValue - 1), EPropertyError);
    }
    EXPECT_EQ(ValueText(*stage.subject, path), before);
  }
}

TEST_P(EveryClass, IsReadBackAsItWasWritten) {
  for (unsigned seed = 0; seed < 40; ++seed) {
    std::mt19937 random(seed);
    Stage stage(Class());
    const QByteArrayList changed = ChangeSome(stage, random, 1 + seed % 6);
    forms::Document document = forms::Document::Create("TForm1", "Form1");
    forms::DescribeComponent(*stage.form, document, document.Root());
    const forms::Format format = static_cast<forms::Format>(seed % 3);
    std::vector<forms::Finding> findings;
    const auto root = ReadForm(document.WriteAs(format), findings);
    // Lines that their owner can do nothing with are told, and kept all the same.
    QString problem;
    for (const TPropInfo* prop : Class().Properties())
      if (prop->IsPart())
        if (const auto* part = As<IContentProblem>(GetObjectProp(*stage.subject, *prop)))
          problem = part->ContentProblem();
    for (const auto& f : findings)
      if (problem.isEmpty() || !f.text.endsWith(problem))
        ADD_FAILURE() << f.text.toStdString() << "\n" << document.Write().toStdString();
    EXPECT_EQ(findings.empty(), problem.isEmpty());
    TComponent* subject =
        stage.subject == stage.form.get() ? root.get() : root->FindComponent(QStringLiteral("Subject"));
    ASSERT_NE(subject, nullptr);
    EXPECT_EQ(&subject->ClassType(), &Class());
    for (const QByteArray& path : ValuePaths(*subject))
      ASSERT_EQ(ValueText(*subject, path), ValueText(*stage.subject, path))
          << path.constData() << " after changing " << Joined(changed) << "\n"
          << document.Write().toStdString();
    // Writing again gives the same bytes.
    forms::Document again = forms::Document::Create("TForm1", "Form1");
    forms::DescribeComponent(*root, again, again.Root());
    EXPECT_EQ(again.WriteAs(format), document.WriteAs(format));
  }
}

TEST_P(EveryClass, AssignMakesTheValuesEqual) {
  for (unsigned seed = 0; seed < 40; ++seed) {
    std::mt19937 random(1000 + seed);
    Stage source(Class()), target(Class());
    const QByteArrayList changed = ChangeSome(source, random, 1 + seed % 6);
    target.subject->Assign(source.subject);
    // A control that sizes itself has the size of its content, whatever somebody set it to for a moment; with
    // the size goes the place of what is aligned.
    const auto* control = dynamic_cast<const TControl*>(source.subject);
    const bool sizesItself = control && control->AutoSize();
    const bool isPlaced = sizesItself && control->Align() != TAlign::alNone;
    for (const QByteArray& path : ValuePaths(*target.subject)) {
      if (sizesItself && (path == "Width" || path == "Height")) continue;
      if (isPlaced && (path == "Left" || path == "Top")) continue;
      ASSERT_EQ(ValueText(*target.subject, path), ValueText(*source.subject, path))
          << path.constData() << " after changing " << Joined(changed);
    }
  }
}

TEST_P(EveryClass, AssignRefusesAStranger) {
  Stage stage(Class());
  TFont font;
  EXPECT_THROW(stage.subject->Assign(&font), EConvertError);
  EXPECT_THROW(stage.subject->Assign(nullptr), EConvertError);
}

TEST_P(EveryClass, TellsItsHostAndPaintsAfterEveryChange) {
  for (const auto colors : {TFormColors::Light, TFormColors::Dark}) {
    const FormColorScope scope(colors);
    Stage stage(Class());
    auto* control = dynamic_cast<TControl*>(stage.subject);
    PaintingHost host;
    stage.form->SetHost(&host);
    for (const QByteArray& path : ValuePaths(*stage.subject)) {
      if (IsReadOnly(*stage.subject, path)) continue;
      SetAnother(stage, path, 1);
      stage.subject->BeginUpdate();
      SetAnother(stage, path, 2);
      stage.subject->EndUpdate();
      if (control) Picture(*control);
    }
    EXPECT_TRUE(!control || host.changes > 3);
    if (control && control != stage.form.get()) {
      control->SetBounds(0, 0, 120, 40);
      EXPECT_FALSE(Picture(*control).isNull());
      control->SetParent(nullptr);
      control->SetParent(stage.form.get());
    }
    stage.form->SetHost(nullptr);
  }
}

TEST_P(EveryClass, LooksTheSameInEachThemeOfTheDesigner) {
  const TClockOverride still([] { return std::int64_t{10'000'000}; });
  QImage pictures[2];
  for (const auto theme : {TTheme::Light, TTheme::Dark}) {
    ApplyTheme(theme);
    Stage stage(Class());
    if (auto* control = dynamic_cast<TControl*>(stage.subject)) {
      control->SetBounds(0, 0, 120, 40);
      pictures[theme == TTheme::Dark] = Picture(*control);
    }
  }
  ApplyTheme(TTheme::Light);
  EXPECT_EQ(pictures[0], pictures[1]);
}

TEST_P(EveryClass, FreeingWhatItRefersToClearsTheReference) {
  Stage stage(Class());
  for (const QByteArray& path : ValuePaths(*stage.subject)) {
    const forms::PropertyTarget t = forms::FindTarget(*stage.subject, path);
    if (!t.prop || !IsComponentRef(*t.prop)) continue;
    ASSERT_TRUE(SetAnother(stage, path, 0)) << path.constData();
    auto* target = static_cast<TComponent*>(GetObjectProp(*t.instance, *t.prop));
    ASSERT_NE(target, nullptr);
    delete target;
    EXPECT_EQ(GetObjectProp(*t.instance, *t.prop), nullptr) << path.constData();
  }
}

INSTANTIATE_TEST_SUITE_P(Classes, EveryClass, testing::ValuesIn(ConcreteClasses()),
                         [](const auto& i) { return i.param; });

TEST(Classes, TheStandardAndTheLibrarysAreAmongThem) {
  const auto names = ConcreteClasses();
  for (const char* name : {"TForm", "TLabel", "TButton", "TPanel", "TTimer", "TVRXLEDLabel"})
    EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
}
