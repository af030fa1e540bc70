// The rows of the inspector and what editing them does.
#include "ide/InspectorModel.h"
#include "tests/ide/SessionTest.h"

using namespace ide;

namespace {
class InspectorTest : public SessionTest {
 protected:
  void Show(std::initializer_list<const char*> names) {
    std::vector<TComponent*> components;
    for (const char* name : names) components.push_back(session_->GetComponent(QLatin1StringView(name)));
    session_->Select(components);
    model_.SetSession(session_.get());
  }
  void TearDown() override {
    model_.SetSession(nullptr);
    DesignRegistry::Current().UnregisterPackage(this);
  }
  QModelIndex At(const char* path) const { return model_.IndexOfPath(QLatin1StringView(path)); }
  std::string Text(const char* path) const { return model_.ValueText(At(path)).toStdString(); }
  QString Set(const char* path, const char* text) {
    return model_.SetValueText(At(path), QLatin1StringView(text));
  }
  QStringList Rows(const QModelIndex& parent = {}) const {
    QStringList rows;
    for (int i = 0; i < model_.rowCount(parent); ++i) rows << model_.index(i, 0, parent).data().toString();
    return rows;
  }
  InspectorModel model_;
};
}  // namespace

TEST_F(InspectorTest, ShowsPublishedPropertiesByNameWithTheirValues) {
  Show({"Timer1"});
  EXPECT_EQ(Rows().join(u' '), QStringLiteral("Enabled Interval Name Tag"));
  EXPECT_EQ(Text("Interval"), "250");
  EXPECT_EQ(Text("Name"), "Timer1");
  EXPECT_EQ(Text("Enabled"), "True");
}

namespace {
// The rows of which the model said that they changed, each once.
class ToldRows {
 public:
  explicit ToldRows(const InspectorModel& model) : told_(&model, &QAbstractItemModel::dataChanged) {}
  std::string Take() {
    QStringList rows;
    for (const QList<QVariant>& call : std::exchange(static_cast<QList<QList<QVariant>>&>(told_), {})) {
      const auto first = call[0].toModelIndex(), last = call[1].toModelIndex();
      EXPECT_EQ(first.column(), 1);
      EXPECT_EQ(last.column(), 1);
      EXPECT_EQ(first.parent(), last.parent());
      for (int row = first.row(); row <= last.row(); ++row)
        rows << first.siblingAtRow(row).data(InspectorModel::PathRole).toString();
    }
    return rows.join(u' ').toStdString();
  }

 private:
  QSignalSpy told_;
};
}  // namespace

TEST_F(InspectorTest, TellsOfTheRowsThatChangedAndOfNoOther) {
  Show({"Button1"});
  const auto look = [&](const auto& self, const QModelIndex& parent) -> void {
    for (int row = 0; row < model_.rowCount(parent); ++row) {
      const QModelIndex i = model_.index(row, 0, parent);
      i.siblingAtColumn(1).data();
      i.siblingAtColumn(1).data(InspectorModel::NotDefaultRole);
      if (i.data().toString() == QStringLiteral("Font")) self(self, i);
    }
  };
  look(look, {});
  ToldRows told(model_);
  EXPECT_EQ(Set("Tag", "7"), QString());
  EXPECT_EQ(told.Take(), "Tag");
  session_->Run(QStringLiteral("several"), {}, [&] {
    Get("Button1").SetBounds(1, 40, 2, 3);  // its top stays
    Get<TButton>("Button1").Font()->SetHeight(-30);
  });
  EXPECT_EQ(told.Take(), "Font Height Left ParentFont Width Font.Height Font.Size");
  look(look, {});
  session_->Undo();
  EXPECT_EQ(told.Take(), "Font Height Left ParentFont Width Font.Height Font.Size");
  // Nobody looked since, so nobody shows anything old.
  session_->Redo();
  EXPECT_EQ(told.Take(), "");
  session_->Run(QStringLiteral("another"), {}, [&] { Get("Label1").SetTag(3); });
  EXPECT_EQ(told.Take(), "");
}

TEST_F(InspectorTest, HearsNothingOfAFormItNoLongerShows) {
  Show({"Button1"});
  const auto other = FormSession::FromBytes("object Other: TOther\nend\n");
  model_.SetSession(other.get());
  const QStringList rows = Rows();
  QSignalSpy reset(&model_, &QAbstractItemModel::modelReset);
  ToldRows told(model_);
  session_->Select({&Get("Label1")});
  session_->Run(QStringLiteral("tag"), {}, [&] { Get("Label1").SetTag(9); });
  session_->DeleteSelection();
  session_.reset();
  EXPECT_EQ(reset.size(), 0);
  EXPECT_EQ(told.Take(), "");
  EXPECT_EQ(Rows(), rows);
  EXPECT_EQ(Text("Name"), "Other");
}

TEST_F(InspectorTest, IsEmptyWhenItsFormIsClosed) {
  Show({"Button1"});
  const auto keep = Rows();
  EXPECT_FALSE(keep.isEmpty());
  session_.reset();
  EXPECT_EQ(model_.rowCount(), 0);
  EXPECT_EQ(model_.IndexOfPath(QStringLiteral("Name")), QModelIndex());
}

TEST_F(InspectorTest, EventsHaveAPageOfTheirOwn) {
  Show({"Timer1"});
  model_.ShowEvents(true);
  EXPECT_EQ(Rows().join(u' '), QStringLiteral("OnTimer"));
  EXPECT_EQ(Text("OnTimer"), "Timer1Timer");
  EXPECT_EQ(Set("OnTimer", "Tick"), QString());
  EXPECT_EQ(Changes(), "-OnTimer = Timer1Timer|+OnTimer = Tick");
  ExpectUndoable();
}

TEST_F(InspectorTest, AnEventIsTakenAwayByAnEmptyText) {
  Show({"Timer1"});
  model_.ShowEvents(true);
  EXPECT_EQ(Set("OnTimer", ""), QString());
  EXPECT_EQ(Changes(), "-OnTimer = Timer1Timer");
  ExpectUndoable();
}

TEST_F(InspectorTest, ObjectsOpenIntoTheirProperties) {
  Show({"Led"});
  EXPECT_EQ(Text("LED"), "(TVRXLED)");
  EXPECT_TRUE(model_.hasChildren(At("LED")));
  EXPECT_EQ(Rows(At("LED")).join(u' '),
            QStringLiteral("ActiveColor DisabledDigits HorzSize InActiveColor Thickness VertSize"));
  EXPECT_EQ(Text("LED.ActiveColor"), "clAqua");
  EXPECT_EQ(Set("LED.HorzSize", "20"), QString());
  EXPECT_EQ(Changes(), "+LED.HorzSize = 20");
  ExpectUndoable();
}

TEST_F(InspectorTest, SetsOpenIntoOneRowForEveryElement) {
  Show({"Button1"});
  EXPECT_EQ(Text("Anchors"), "[akTop,akRight]");
  EXPECT_EQ(Rows(At("Anchors")).join(u' '), QStringLiteral("akLeft akTop akRight akBottom"));
  EXPECT_EQ(Text("Anchors.akRight"), "True");
  EXPECT_EQ(Set("Anchors.akBottom", "True"), QString());
  EXPECT_EQ(Changes(), "-Anchors = [akTop, akRight]|+Anchors = [akTop, akRight, akBottom]");
  ExpectUndoable();
}

TEST_F(InspectorTest, SeveralComponentsShowWhatTheyHaveInCommon) {
  Show({"Button1", "Timer1"});
  EXPECT_EQ(Rows().join(u' '), QStringLiteral("Enabled Tag"));
  Show({"Button1", "Led"});
  EXPECT_TRUE(Rows().contains(QStringLiteral("Caption")));
  EXPECT_FALSE(Rows().contains(QStringLiteral("LED")));
  EXPECT_FALSE(Rows().contains(QStringLiteral("Name")));
}

TEST_F(InspectorTest, ADifferingValueIsEmptyAndAnEqualOneIsShown) {
  Show({"Button1", "Led"});
  EXPECT_EQ(Text("Caption"), "");
  EXPECT_EQ(Text("Left"), "240");
  EXPECT_EQ(Text("Enabled"), "True");
  EXPECT_EQ(Text("Anchors.akRight"), "");
  EXPECT_EQ(Text("Anchors.akTop"), "True");
}

TEST_F(InspectorTest, WritingReachesEverySelectedComponentAsOneCommand) {
  Show({"Button1", "Led", "Label1"});
  EXPECT_EQ(Set("Caption", "same"), QString());
  for (const char* name : {"Button1", "Led", "Label1"})
    EXPECT_EQ(Get(name).Caption(), QStringLiteral("same")) << name;
  EXPECT_EQ(Text("Caption"), "same");
  ExpectUndoable();
}

TEST_F(InspectorTest, ARefusedValueChangesNothingAndSaysWhy) {
  Show({"Button1", "Led"});
  const struct {
    const char *path, *text;
  } cases[] = {{"Left", "wide"}, {"Enabled", "perhaps"}, {"Anchors.akTop", "7"}, {"Tag", ""}};
  for (const auto& c : cases) {
    const QString reason = Set(c.path, c.text);
    EXPECT_FALSE(reason.isEmpty()) << c.path;
    EXPECT_EQ(session_->Bytes(), Sample) << c.path;
    EXPECT_EQ(StateOf(*session_), state_) << c.path;
    EXPECT_FALSE(session_->CanUndo()) << c.path;
  }
}

TEST_F(InspectorTest, AValueOutOfRangeIsRefused) {
  Show({"Led"});
  EXPECT_FALSE(Set("LED.HorzSize", "256").isEmpty());
  EXPECT_FALSE(Set("LED.HorzSize", "-1").isEmpty());
  EXPECT_EQ(session_->Bytes(), Sample);
}

TEST_F(InspectorTest, ATakenNameIsRefused) {
  Show({"Button1"});
  EXPECT_TRUE(Set("Name", "Led").contains(QStringLiteral("Led")));
  EXPECT_FALSE(Set("Name", "").isEmpty());
  EXPECT_EQ(session_->Bytes(), Sample);
  EXPECT_EQ(StateOf(*session_), state_);
}

TEST_F(InspectorTest, AnObjectItselfIsReadOnly) {
  Show({"Label1"});
  EXPECT_TRUE(model_.EditorAt(At("Font"))->GetAttributes().Contains(TPropertyAttribute::paReadOnly));
  EXPECT_FALSE(Set("Font", "x").isEmpty());
  EXPECT_EQ(session_->Bytes(), Sample);
}

TEST_F(InspectorTest, AReferenceOffersTheFormsComponents) {
  Show({"Label1"});
  EXPECT_EQ(Text("FocusControl"), "Button1");
  const QStringList values = model_.ValueList(At("FocusControl"));
  EXPECT_TRUE(values.contains(QStringLiteral("Inner")));
  EXPECT_TRUE(values.contains(QStringLiteral("Panel1")));
  EXPECT_FALSE(values.contains(QStringLiteral("Timer1")));
  EXPECT_EQ(Set("FocusControl", "Inner"), QString());
  EXPECT_EQ(Changes(), "-FocusControl = Button1|+FocusControl = Inner");
  EXPECT_FALSE(Set("FocusControl", "Timer1").isEmpty());
  EXPECT_FALSE(Set("FocusControl", "Nobody").isEmpty());
  ExpectUndoable();
}

TEST_F(InspectorTest, TheFilterLeavesMatchingNames) {
  Show({"Button1"});
  model_.SetFilter(QStringLiteral("NABLE"));
  EXPECT_EQ(Rows().join(u' '), QStringLiteral("Enabled"));
  model_.SetFilter(QStringLiteral("no such"));
  EXPECT_EQ(model_.rowCount(), 0);
  model_.SetFilter({});
  EXPECT_TRUE(Rows().contains(QStringLiteral("Caption")));
}

TEST_F(InspectorTest, TheFilterFindsSubPropertiesAndKeepsTheRowsAbove) {
  Show({"Led"});
  model_.SetFilter(QStringLiteral("ActiveCol"));
  EXPECT_EQ(Rows().join(u' '), QStringLiteral("LED"));
  EXPECT_EQ(Rows(At("LED")).join(u' '), QStringLiteral("ActiveColor InActiveColor"));
  EXPECT_TRUE(At("LED").data(InspectorModel::IsAboveRole).toBool());
  EXPECT_FALSE(At("LED").data(InspectorModel::FitsRole).toBool());
  EXPECT_TRUE(At("LED.ActiveColor").data(InspectorModel::FitsRole).toBool());
  EXPECT_EQ(At("LED.InActiveColor").parent(), At("LED"));
  EXPECT_EQ(Set("LED.ActiveColor", "clRed"), QString());
  EXPECT_EQ(Text("LED.ActiveColor"), "clRed");
  model_.SetFilter({});
  EXPECT_EQ(Rows(At("LED")).size(), 6);
  EXPECT_TRUE(Rows().contains(QStringLiteral("Caption")));
  EXPECT_FALSE(At("LED").data(InspectorModel::IsAboveRole).toBool());
}

TEST_F(InspectorTest, ARowThatIsFoundKeepsWhatItOpensInto) {
  Show({"Led"});
  model_.SetFilter(QStringLiteral("led"));
  EXPECT_TRUE(Rows().contains(QStringLiteral("LED")));
  EXPECT_EQ(Rows(At("LED")).size(), 6);
}

TEST_F(InspectorTest, AFilterWithADotLooksInPaths) {
  Show({"Led"});
  model_.SetFilter(QStringLiteral("led.h"));
  EXPECT_EQ(Rows().join(u' '), QStringLiteral("LED"));
  EXPECT_EQ(Rows(At("LED")).join(u' '), QStringLiteral("HorzSize"));
}

TEST_F(InspectorTest, TheFilterFollowsTheSelection) {
  Show({"Button1"});
  model_.SetFilter(QStringLiteral("horzsize"));
  EXPECT_EQ(model_.rowCount(), 0);
  session_->Select({session_->GetComponent(QStringLiteral("Led"))});
  EXPECT_EQ(Rows(At("LED")).join(u' '), QStringLiteral("HorzSize"));
}

TEST_F(InspectorTest, TheFilterWorksInCategoriesToo) {
  Show({"Led"});
  model_.GroupByCategory(true);
  model_.SetFilter(QStringLiteral("horzsize"));
  EXPECT_EQ(Rows().join(u' '), QStringLiteral("Visual"));
  EXPECT_EQ(Rows(At("Visual.LED")).join(u' '), QStringLiteral("HorzSize"));
}

namespace {
// An editor whose rows open into rows of the same kind, without end.
class EndlessProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  TPropertyAttributes GetAttributes() const override {
    return {TPropertyAttribute::paSubProperties, TPropertyAttribute::paMultiSelect};
  }
  void GetProperties(const TGetPropProc& proc) const override {
    ++asked;
    proc(std::make_unique<EndlessProperty>(Designer(), Props()));
    proc(std::make_unique<EndlessProperty>(Designer(), Props()));
  }
  inline static int asked = 0;
};

// A reference that opens into what it refers to.
class OpenReferenceProperty : public TComponentProperty {
 public:
  using TComponentProperty::TComponentProperty;
  TPropertyAttributes GetAttributes() const override {
    return {TPropertyAttribute::paMultiSelect, TPropertyAttribute::paValueList,
            TPropertyAttribute::paSubProperties};
  }
  void GetProperties(const TGetPropProc& proc) const override {
    if (TPersistent* object = GetObjectValue()) Source()->GetComponentProperties({object}, Designer(), proc);
  }
};
}  // namespace

TEST_F(InspectorTest, TheFilterEndsWhereRowsNeverDo) {
  {
    const RegistrationScope scope(this, "test");
    RegisterPropertyEditor(TypeInfoOf<unsigned>::Get(), &TTimer::StaticClass(), "Interval",
                           VRX_PROPERTY_EDITOR(EndlessProperty));
  }
  Show({"Timer1"});
  EndlessProperty::asked = 0;
  model_.SetFilter(QStringLiteral("nothing is called so"));
  EXPECT_EQ(model_.rowCount(), 0);
  EXPECT_GT(EndlessProperty::asked, 0);
  EXPECT_LT(EndlessProperty::asked, 200);
}

TEST_F(InspectorTest, TheFilterDoesNotSearchTheFormsOtherComponents) {
  {
    const RegistrationScope scope(this, "test");
    RegisterPropertyEditor(TWinControl::StaticTypeInfo(), &TLabel::StaticClass(), "FocusControl",
                           VRX_PROPERTY_EDITOR(OpenReferenceProperty));
  }
  Show({"Label1"});
  ASSERT_TRUE(model_.hasChildren(At("FocusControl")));
  model_.SetFilter(QStringLiteral("taborder"));  // the button has one, the label has none
  EXPECT_EQ(model_.rowCount(), 0);
  model_.SetFilter({});
  // By hand it opens, and its events are the other page's.
  EXPECT_TRUE(Rows(At("FocusControl")).contains(QStringLiteral("TabOrder")));
  EXPECT_FALSE(Rows(At("FocusControl")).contains(QStringLiteral("OnClick")));
  model_.ShowEvents(true);
  EXPECT_TRUE(Rows(At("FocusControl")).contains(QStringLiteral("OnClick")));
  EXPECT_FALSE(Rows(At("FocusControl")).contains(QStringLiteral("TabOrder")));
}

TEST_F(InspectorTest, TheFilterFindsEvents) {
  Show({"Timer1"});
  model_.ShowEvents(true);
  model_.SetFilter(QStringLiteral("TIM"));
  EXPECT_EQ(Rows().join(u' '), QStringLiteral("OnTimer"));
  model_.SetFilter(QStringLiteral("interval"));
  EXPECT_EQ(model_.rowCount(), 0);
}

TEST_F(InspectorTest, RowsBelowAnotherObjectAreMadeAnew) {
  {
    const RegistrationScope scope(this, "test");
    RegisterPropertyEditor(TWinControl::StaticTypeInfo(), &TLabel::StaticClass(), "FocusControl",
                           VRX_PROPERTY_EDITOR(OpenReferenceProperty));
  }
  Show({"Label1"});
  EXPECT_EQ(Text("FocusControl.Name"), "Button1");
  EXPECT_EQ(Set("FocusControl", "Inner"), QString());
  EXPECT_EQ(Text("FocusControl.Name"), "Inner");
  EXPECT_EQ(Set("FocusControl", ""), QString());
  EXPECT_TRUE(Rows(At("FocusControl")).isEmpty());
}

TEST_F(InspectorTest, ASelectionThatIsToldAgainMakesNoRowsAnew) {
  Show({"Button1"});
  int resets = 0;
  QObject listener;
  QObject::connect(&model_, &QAbstractItemModel::modelReset, &listener, [&] { ++resets; });
  session_->Select(session_->SelectedComponents());
  EXPECT_EQ(Set("Left", "248"), QString());
  EXPECT_FALSE(Set("Left", "wide").isEmpty());  // taken back
  session_->Undo();
  EXPECT_EQ(resets, 0);
  EXPECT_EQ(Text("Left"), "240");
}

namespace {
// Changes the components of the form while it works, and goes on.
class MakingProperty : public TIntegerProperty {
 public:
  using TIntegerProperty::TIntegerProperty;
  void SetValue(const QString& value) override {
    Designer()->CreateComponent(TTimer::StaticClass(), nullptr, QRect(8, 8, 0, 0));
    name = GetName();
    TIntegerProperty::SetValue(value);
  }
  inline static QString name;
};
}  // namespace

TEST_F(InspectorTest, AnEditorOutlivesTheRowsItMakesAnew) {
  {
    const RegistrationScope scope(this, "test");
    RegisterPropertyEditor(TypeInfoOf<unsigned>::Get(), &TTimer::StaticClass(), "Interval",
                           VRX_PROPERTY_EDITOR(MakingProperty));
  }
  Show({"Timer1"});
  EXPECT_EQ(Set("Interval", "700"), QString());
  EXPECT_EQ(MakingProperty::name, QStringLiteral("Interval"));
  EXPECT_NE(session_->GetComponent(QStringLiteral("Timer2")), nullptr);
  EXPECT_EQ(session_->Bytes().count("Interval = 700"), 1);
}

TEST_F(InspectorTest, APropertyStandsUnderEveryCategoryItBelongsTo) {
  {
    const RegistrationScope scope(this, "test");
    RegisterPropertiesInCategory(QStringLiteral("Favourites"), TVRXLEDLabel::StaticClass(),
                                 {QStringLiteral("LED")});
  }
  Show({"Led"});
  model_.GroupByCategory(true);
  const QStringList categories = Rows();
  for (const char* name : {"Favourites", "Layout", "Visual", "Miscellaneous"})
    EXPECT_TRUE(categories.contains(QLatin1StringView(name))) << name;
  EXPECT_TRUE(At("Favourites").data(InspectorModel::IsCategoryRole).toBool());
  EXPECT_EQ(Rows(At("Favourites")).join(u' '), QStringLiteral("LED"));
  EXPECT_TRUE(Rows(At("Visual")).contains(QStringLiteral("LED")));
  EXPECT_TRUE(Rows(At("Layout")).contains(QStringLiteral("Left")));
  EXPECT_TRUE(Rows(At("Miscellaneous")).contains(QStringLiteral("Tag")));
  EXPECT_EQ(Set("Favourites.LED.HorzSize", "22"), QString());
  EXPECT_EQ(Text("Visual.LED.HorzSize"), "22");
  EXPECT_EQ(Set("Layout.Left", "248"), QString());
  EXPECT_EQ(Text("Layout.Left"), "248");
}

TEST_F(InspectorTest, AHiddenPropertyHasNoRow) {
  {
    const RegistrationScope scope(this, "test");
    RegisterPropertyEditor(TypeInfoOf<unsigned>::Get(), &TTimer::StaticClass(), "Interval", std::nullopt);
  }
  Show({"Timer1"});
  EXPECT_EQ(Rows().join(u' '), QStringLiteral("Enabled Name Tag"));
  model_.GroupByCategory(true);
  EXPECT_FALSE(At("Miscellaneous.Interval").isValid());
}

TEST_F(InspectorTest, ValuesThatDifferFromTheDefaultAreMarked) {
  Show({"Timer1"});
  EXPECT_TRUE(At("Interval").data(InspectorModel::NotDefaultRole).toBool());
  EXPECT_FALSE(At("Enabled").data(InspectorModel::NotDefaultRole).toBool());
  EXPECT_EQ(model_.Reset(At("Interval")), QString());
  EXPECT_FALSE(At("Interval").data(InspectorModel::NotDefaultRole).toBool());
  EXPECT_EQ(Changes(), "-Interval = 250");
  ExpectUndoable();
}

TEST_F(InspectorTest, BooleansAreKnownAsSuch) {
  Show({"Button1"});
  EXPECT_TRUE(At("Default").data(InspectorModel::IsBooleanRole).toBool());
  EXPECT_TRUE(At("Anchors.akTop").data(InspectorModel::IsBooleanRole).toBool());
  EXPECT_FALSE(At("Caption").data(InspectorModel::IsBooleanRole).toBool());
  EXPECT_EQ(model_.ValueList(At("Default")).join(u' '), QStringLiteral("False True"));
}

TEST_F(InspectorTest, RowsFollowUndo) {
  Show({"Button1"});
  Set("Caption", "x");
  session_->Undo();
  EXPECT_EQ(Text("Caption"), "Go");
}

TEST_F(InspectorTest, RowsFollowTheSelection) {
  Show({"Button1"});
  session_->Select({session_->GetComponent(QStringLiteral("Timer1"))});
  EXPECT_EQ(Rows().join(u' '), QStringLiteral("Enabled Interval Name Tag"));
}

TEST_F(InspectorTest, AnUnknownComponentShowsWhatIsKnown) {
  Show({"Mystery"});
  EXPECT_EQ(Text("Width"), "50");
  EXPECT_EQ(Set("Left", "16"), QString());
  EXPECT_EQ(Changes(), "-Left = 240|+Left = 16");
  ExpectUndoable();
}

TEST_F(InspectorTest, WhatNoClassKnowsIsShownAsFormText) {
  Show({"Mystery"});
  EXPECT_EQ(Text("Link"), "Button1");
  EXPECT_EQ(Text("Items"), "< item Text = 'one' end item Text = 'two' end>");
  EXPECT_TRUE(At("Link").data(InspectorModel::NotDefaultRole).toBool());
  Show({"Main"});
  EXPECT_EQ(Text("Strange.Property"), "{00FF}");
  Show({"Secret"});
  EXPECT_EQ(Text("Deep"), "( 1 2.500000000000000000)");
  // Of several, what all of them have.
  Show({"Mystery", "Secret"});
  EXPECT_FALSE(At("Link").isValid());
  EXPECT_FALSE(At("Deep").isValid());
}

TEST_F(InspectorTest, WhatNoClassKnowsIsEditedAsFormText) {
  Show({"Mystery"});
  EXPECT_EQ(Set("Link", "Other"), QString());
  EXPECT_EQ(Text("Link"), "Other");
  EXPECT_EQ(Changes(), "-Link = Button1|+Link = Other");
  ExpectUndoable();
  session_->Undo();
  EXPECT_EQ(Text("Link"), "Button1");
  EXPECT_EQ(Set("Items", "<item Text = 'it''s' end>"), QString());
  EXPECT_EQ(Text("Items"), "< item Text = 'it'#39's' end>");
  session_->Undo();
  EXPECT_EQ(session_->Bytes(), Sample);
}

TEST_F(InspectorTest, TheSameFormTextChangesNothing) {
  Show({"Mystery"});
  for (const char* name : {"Link", "Items"}) EXPECT_EQ(Set(name, Text(name).c_str()), QString());
  EXPECT_EQ(session_->Bytes(), Sample);
  EXPECT_FALSE(session_->CanUndo());
}

TEST_F(InspectorTest, WhatIsNoFormTextIsRefusedAndNothingIsAddedBesides) {
  Show({"Mystery"});
  for (const char* text : {"'open", "1\n  Foo = 2", "1\nend\nobject A: TA", "<item", "("}) {
    const QString refusal = Set("Link", text);
    EXPECT_TRUE(refusal.contains(QStringLiteral("is no value of a form file")))
        << text << qPrintable(refusal);
    EXPECT_EQ(session_->Bytes(), Sample) << text;
  }
}

TEST_F(InspectorTest, ResetLeavesOutWhatNoClassKnowsAndUndoShowsItAgain) {
  Show({"Mystery"});
  EXPECT_EQ(model_.Reset(At("Link")), QString());
  EXPECT_FALSE(At("Link").isValid());
  EXPECT_EQ(Changes(), "-Link = Button1");
  session_->Undo();
  EXPECT_EQ(Text("Link"), "Button1");
  EXPECT_EQ(session_->Bytes(), Sample);
}

TEST_F(InspectorTest, StoredEventsStandAmongTheEvents) {
  session_ = FormSession::FromBytes(
      "object Main: TMain\n  object X: TMystery\n    OnChange = XChange\n    Once = 1\n  end\nend\n");
  Show({"X"});
  EXPECT_FALSE(At("OnChange").isValid());
  EXPECT_EQ(Text("Once"), "1");
  model_.ShowEvents(true);
  EXPECT_EQ(Text("OnChange"), "XChange");
  EXPECT_FALSE(At("Once").isValid());
}

TEST(InspectorOfRoots, FramesAndDataModulesOfferOnlyWhatTheyHave) {
  ide::RegisterAll();
  const auto offers = [](const QByteArray& form, const char* property) {
    const auto session = FormSession::FromBytes(form);
    InspectorModel model;
    model.SetSession(session.get());
    return model.IndexOfPath(QString::fromLatin1(property)).isValid();
  };
  const QByteArray module = "object M: TM\n  OldCreateOrder = False\n  Height = 200\n  Width = 300\nend\n";
  EXPECT_FALSE(offers(module, "Caption"));
  EXPECT_FALSE(offers(module, "ClientWidth"));
  EXPECT_TRUE(offers(module, "Width"));
  const QByteArray frame =
      "object F: TF\n  Width = 300\n  Height = 200\n  TabOrder = 0\n  object B: TButton\n  end\nend\n";
  EXPECT_FALSE(offers(frame, "BorderStyle"));
  EXPECT_TRUE(offers(frame, "Font"));
  EXPECT_TRUE(offers("object F: TF\n  Caption = 'x'\nend\n", "BorderStyle"));
}

TEST_F(InspectorTest, ARowShowsTheBeginningOfAnEndlessText) {
  const QString endless(5'000'000, u'x');
  auto& button = *session_->GetComponent(QStringLiteral("Inner"));
  session_->Run(QStringLiteral("long"), {&button},
                [&] { static_cast<TControl&>(button).SetCaption(endless); });
  Show({"Inner"});
  const QModelIndex cell = At("Caption").siblingAtColumn(1);
  EXPECT_GT(cell.data(Qt::DisplayRole).toString().size(), 500);
  EXPECT_LT(cell.data(Qt::DisplayRole).toString().size(), 2000);
  EXPECT_LT(cell.data(Qt::ToolTipRole).toString().size(), 2000);
  EXPECT_EQ(model_.ValueText(cell), endless) << "the value itself is whole";
}
