// Values in the style editor that nobody has given yet, numbers at the ends of their types, and what its
// lists show while something is looked for or dragged.
#include "library/controls/CustomLabel.h"
#include "library/controls/Faced.h"
#include "library/values/FaceStates.h"
#include "tests/package/StyleDialogTest.h"

using namespace style_dialog;

namespace {
class StyleEditing : public StyleDialogTest {
 protected:
  void SetUp() override {
    StyleDialogTest::SetUp();
    for (const TTypeInfo* type : Types()) Item(type->Name.constData(), *type);
  }
  static std::vector<const TTypeInfo*> Types() {
    static const TTypeInfo flavour = EnumType("TFlavour8", {"flSweet", "flSour"});
    static const TTypeInfo types[] = {
        FloatTypeInfo("Double", TFloatType::ftDouble), FloatTypeInfo("TDateTime", TFloatType::ftDateTime),
        OrdinalType("Cardinal", 0, UINT32_MAX), SetType("TFlavours8", flavour), StringType("TNote8")};
    return {&flavour, &types[0], &types[1], &types[2], &types[3], &types[4]};
  }
  // Puts a property of each kind on the style, none with a value.
  std::unique_ptr<Dlg> WithLooseProperties() {
    auto d = Shown();
    for (const char* name : Names) DragProperty(*d, Property(*d, "TButton", name), Find(*d, "TButton"));
    return d;
  }
  static const TVRXStyleValue* Value(Dlg& d, const char* name) {
    return d.Tree().Value(*Find(d, "TButton", name));
  }
  static QWidget* Open(Dlg& d, const char* name) {
    Select(d, "TButton", name);
    Press(d, Qt::Key_F2);
    QWidget* editor = d.Styles->Delegate().Editor();
    EXPECT_NE(editor, nullptr) << name;
    return editor;
  }
  static constexpr const char* Names[] = {"TFlavour8",  "Double", "TDateTime", "Cardinal",
                                          "TFlavours8", "TNote8", "Color",     "Height"};
};

TEST_F(StyleEditing, PropertiesWithoutAValueSayThatTheyHaveNone) {
  const auto d = WithLooseProperties();
  for (const char* name : Names) {
    const QModelIndex value = IndexOf(*d, Find(*d, "TButton", name)).siblingAtColumn(1);
    EXPECT_EQ(S(value.data().toString()), "no value yet") << name;
    EXPECT_EQ(S(value.data(Qt::ToolTipRole).toString()),
              "A property is kept with its style once it has a value");
  }
  const QModelIndex width = IndexOf(*d, Find(*d, "TButton", "Width")).siblingAtColumn(1);
  EXPECT_EQ(S(width.data().toString()), "77");
  EXPECT_FALSE(width.data(Qt::ToolTipRole).isValid());
  EXPECT_FALSE(width.data(Qt::ForegroundRole).isValid());
}

TEST_F(StyleEditing, APictureThatWasTakenAwayIsNone) {
  manager.WritePropValue(Q("TButton"), Q("Sign"), QByteArray("BM?"), Q("TBitmap"));
  const auto d = Shown();
  Node* sign = Find(*d, "TButton", "Sign");
  EXPECT_EQ(S(IndexOf(*d, sign).siblingAtColumn(1).data().toString()), "(TBitmap)");
  d->Tree().ClearValue(*sign);
  EXPECT_EQ(S(IndexOf(*d, sign).siblingAtColumn(1).data().toString()), "(none)");
}

TEST_F(StyleEditing, DeletingGoesOnWithTheNextOfTheKind) {
  manager.WritePropValue(Q("TButton"), Q("Caption"), Q("x"), Q("TCaption"));
  manager.WritePropValue(Q("TButton"), Q("Height"), std::int64_t{5}, Q("Integer"));
  Fill(manager);
  const auto d = Shown();
  d->cbConfirmDeletion->setChecked(false);
  Select(*d, "TButton", "Height");
  Press(*d, Qt::Key_Delete);
  EXPECT_EQ(d->Styles->Selected(), Find(*d, "TButton", "Width"));
  Press(*d, Qt::Key_Delete);
  EXPECT_EQ(d->Styles->Selected(), Find(*d, "TButton", "Caption")) << "the last one: the one before";
  Press(*d, Qt::Key_Delete);
  EXPECT_EQ(d->Styles->Selected(), Find(*d, "TButton"));
  EXPECT_NE(Find(*d, "TButton|.Big", "Caption"), nullptr);
  Select(*d, ".Body");
  Press(*d, Qt::Key_Delete);
  EXPECT_EQ(d->Styles->Selected(), Find(*d, "TButton")) << "a style";
}

TEST_F(StyleEditing, AnEditorThatIsOnlyLookedAtGivesNoValue) {
  const auto d = WithLooseProperties();
  const TVRXStyles before = d->Manager().Styles();
  for (const char* name : Names) {
    Open(*d, name);
    d->fltEdit->setFocus();
    EXPECT_EQ(Value(*d, name), nullptr) << name << ": the focus went elsewhere";
    Open(*d, name);
    Press(*d, Qt::Key_Shift);
    Press(*d, Qt::Key_Escape);
    EXPECT_EQ(Value(*d, name), nullptr) << name << ": Escape";
    Open(*d, name);
    Press(*d, Qt::Key_Tab);
    d->SavePropValue();
    EXPECT_EQ(Value(*d, name), nullptr) << name << ": Tab";
  }
  Open(*d, "Height");
  d->accept();
  EXPECT_TRUE(d->Manager().Styles() == before);
}

TEST_F(StyleEditing, ReturnGivesWhatAnEditorShows) {
  const auto d = WithLooseProperties();
  for (const char* name : Names) {
    Open(*d, name);
    Press(*d, Qt::Key_Return);
    EXPECT_NE(Value(*d, name), nullptr) << name;
  }
  EXPECT_EQ(*Value(*d, "Height"), TVRXStyleValue(std::int64_t{0}));
  EXPECT_EQ(*Value(*d, "TNote8"), TVRXStyleValue(QString()));
  EXPECT_EQ(*Value(*d, "TFlavours8"), TVRXStyleValue(Q("[]")));
  EXPECT_EQ(*Value(*d, "TFlavour8"), TVRXStyleValue(std::int64_t{0}));
}

TEST_F(StyleEditing, WhatIsTypedCountsEvenWhenItWasShownBefore) {
  const auto d = WithLooseProperties();
  Open(*d, "Height");
  Type(*d, "0");
  d->fltEdit->setFocus();
  ASSERT_NE(Value(*d, "Height"), nullptr);
  EXPECT_EQ(*Value(*d, "Height"), TVRXStyleValue(std::int64_t{0}));
}

TEST_F(StyleEditing, FloatsOfEverySizeAreTyped) {
  const auto d = WithLooseProperties();
  for (const auto& [text, value] : {std::pair{"1e10", 1e10L}, {"-2.5E-12", -2.5e-12L}, {"1e300", 1e300L}}) {
    Open(*d, "Double");
    Type(*d, text);
    Press(*d, Qt::Key_Return);
    ASSERT_NE(Value(*d, "Double"), nullptr) << text;
    EXPECT_EQ(static_cast<double>(std::get<long double>(*Value(*d, "Double"))), static_cast<double>(value))
        << text;
  }
  Open(*d, "Double");
  Type(*d, "12x7e");
  Press(*d, Qt::Key_Return);
  EXPECT_EQ(std::get<long double>(*Value(*d, "Double")), 127.0L) << "letters are not taken, half a number is";
  Open(*d, "Double");
  Press(*d, Qt::Key_Up);
  Press(*d, Qt::Key_Return);
  EXPECT_EQ(std::get<long double>(*Value(*d, "Double")), 128.0L);
}

TEST_F(StyleEditing, FloatsAreShownWithAllTheirDigits) {
  manager.WritePropValue(Q("TButton"), Q("Double"), -2.5e-12L, Q("Double"));
  const auto d = Shown();
  const auto* spin = qobject_cast<QDoubleSpinBox*>(Open(*d, "Double"));
  ASSERT_NE(spin, nullptr);
  EXPECT_EQ(S(spin->text()), "-2.5e-12");
}

TEST_F(StyleEditing, ANameThatIsRefusedStaysInItsDialog) {
  const auto d = Shown();
  const auto refusedThen = [&](QToolButton* button, const char* wrong, const char* right) {
    modal::NextOf<StyleInputDialog>([=](StyleInputDialog& input) {
      input.input->setText(Q(wrong));
      Click(input.OkBtn);
      ASSERT_TRUE(input.isVisible());
      EXPECT_EQ(S(input.input->selectedText()), wrong) << "what is typed next takes its place";
      QTest::keyClicks(input.input, Q(right));
      Click(input.OkBtn);
      EXPECT_FALSE(input.isVisible());
    });
    Click(button);
  };
  Select(*d, "TButton");
  refusedThen(d->btnAddStyle, ".Big", ".Bigger");
  EXPECT_NE(Find(*d, "TButton|.Bigger"), nullptr);
  EXPECT_EQ(answers.Said(), "Substyle '.Big' already exists in destination style!");
  refusedThen(d->btnAddComponent, "TNowhere", "TEdit");
  EXPECT_NE(Property(*d, "TEdit", "ReadOnly"), nullptr);
  EXPECT_EQ(answers.Said(), "Cannot find component class 'TNowhere'!");
}

TEST_F(StyleEditing, IntegersWithoutASignHaveAllTheirBits) {
  const auto d = WithLooseProperties();
  Open(*d, "Cardinal");
  Type(*d, "4294967295");
  Press(*d, Qt::Key_Return);
  ASSERT_NE(Value(*d, "Cardinal"), nullptr);
  EXPECT_EQ(*Value(*d, "Cardinal"), TVRXStyleValue(std::int64_t{UINT32_MAX}));
  Open(*d, "Cardinal");
  Press(*d, Qt::Key_Return);
  EXPECT_EQ(*Value(*d, "Cardinal"), TVRXStyleValue(std::int64_t{UINT32_MAX})) << "looked at";
  Open(*d, "Cardinal");
  Type(*d, "17");
  Press(*d, Qt::Key_Return);
  EXPECT_EQ(*Value(*d, "Cardinal"), TVRXStyleValue(std::int64_t{17}));
  Open(*d, "Cardinal");
  Type(*d, "5000000000");
  Press(*d, Qt::Key_Return);
  EXPECT_EQ(*Value(*d, "Cardinal"), TVRXStyleValue(std::int64_t{UINT32_MAX})) << "the nearest there is";
}

TEST_F(StyleEditing, WhereNothingCanBeDroppedTheMouseSaysSo) {
  const auto d = Shown();
  const auto cursor = [&](QTreeView& from, const QModelIndex& index, const QModelIndex& target) {
    from.scrollTo(index);
    QWidget* view = from.viewport();
    const QPoint start = from.visualRect(index).center();
    const QPoint place = target.isValid() ? d->Styles->visualRect(target).center()
                                          : QPoint(20, d->Styles->viewport()->height() - 3);
    const QPoint end = view->mapFromGlobal(d->Styles->viewport()->mapToGlobal(place));
    QTest::mousePress(view, Qt::LeftButton, {}, start);
    QMouseEvent move(QEvent::MouseMove, end, view->mapToGlobal(end), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view, &move);
    const Qt::CursorShape shape = view->cursor().shape();
    QTest::keyClick(&from, Qt::Key_Escape);
    return shape;
  };
  const QModelIndex root = IndexOf(*d, &d->Tree().Root()), body = IndexOf(*d, Find(*d, ".Body"));
  const auto property = [&](QTreeWidgetItem* item) { return d->PropTree->indexFromItem(item); };
  const QModelIndex enabled = property(Property(*d, "TButton", "Enabled"));
  EXPECT_EQ(cursor(*d->PropTree, enabled, body), Qt::DragCopyCursor);
  EXPECT_EQ(cursor(*d->PropTree, enabled, root), Qt::ForbiddenCursor);
  EXPECT_EQ(cursor(*d->PropTree, enabled, {}), Qt::ForbiddenCursor);
  EXPECT_EQ(cursor(*d->PropTree, property(Property(*d, "TCheckBox")), root), Qt::DragCopyCursor);
  const QModelIndex width = IndexOf(*d, Find(*d, "TButton", "Width"));
  EXPECT_EQ(cursor(*d->Styles, width, body), Qt::DragMoveCursor);
  EXPECT_EQ(cursor(*d->Styles, width, root), Qt::ForbiddenCursor);
  EXPECT_EQ(cursor(*d->Styles, body, root), Qt::DragMoveCursor);
}

TEST_F(StyleEditing, WhatTheFilterFindsIsInSightAndTheRestComesBack) {
  const auto d = Shown();
  QTreeWidgetItem* led = Property(*d, "TVRXLEDLabel");
  led->setExpanded(true);
  QTest::keyClicks(d->fltEdit, Q("*olor"));
  int open = 0;
  for (int i = 0; i < d->PropTree->topLevelItemCount(); ++i) {
    const QTreeWidgetItem* top = d->PropTree->topLevelItem(i);
    EXPECT_EQ(top->isExpanded(), top->childCount() > 0) << S(top->text(0));
    open += top->isExpanded();
  }
  EXPECT_GE(open, 3);
  Click(d->fltClear);
  EXPECT_TRUE(Property(*d, "TVRXLEDLabel")->isExpanded());
  EXPECT_FALSE(Property(*d, "TButton")->isExpanded());
  EXPECT_FALSE(Property(*d, "TCheckBox")->isExpanded());
}

TEST_F(StyleEditing, UndoWorksWhereverTheKeysAre) {
  const auto d = Shown();
  DragProperty(*d, Property(*d, "TCheckBox"), nullptr);
  ASSERT_NE(Find(*d, "TCheckBox"), nullptr);
  d->PropTree->setFocus();
  QTest::keySequence(d->PropTree, QKeySequence::Undo);
  EXPECT_EQ(Find(*d, "TCheckBox"), nullptr);
  d->cbAlign->setFocus();
  QTest::keyClick(d->cbAlign, Qt::Key_Y, Qt::ControlModifier);
  EXPECT_NE(Find(*d, "TCheckBox"), nullptr);
  d->fltEdit->setFocus();
  QTest::keyClicks(d->fltEdit, Q("Co"));
  QTest::keySequence(d->fltEdit, QKeySequence::Undo);
  EXPECT_NE(Find(*d, "TCheckBox"), nullptr) << "that is the field's own";
}

TEST_F(StyleEditing, EscapeAsksBeforeItThrowsWorkAway) {
  const auto d = Shown();
  QTest::keyClick(d.get(), Qt::Key_Escape);
  EXPECT_FALSE(d->isVisible()) << "nothing was done";
  EXPECT_EQ(answers.Said(), "");
  fields::ShowActive(*d);
  DragProperty(*d, Property(*d, "TCheckBox"), nullptr);
  QTest::keyClick(d.get(), Qt::Key_Escape);
  EXPECT_TRUE(d->isVisible());
  EXPECT_EQ(answers.Said(), "Close without the changes that were made here?");
  answers.yes = true;
  QTest::keyClick(d.get(), Qt::Key_Escape);
  EXPECT_FALSE(d->isVisible());
}

// While a message is up the tree is as wide as before.
TEST_F(StyleEditing, MessagesLeaveTheColumnsAsTheyAre) {
  const auto d = Shown();
  const int width = d->Styles->header()->sectionSize(1);
  EXPECT_GT(width, 150);
  int shown = 0;
  answers.seen = [&] {
    ++shown;
    QCoreApplication::processEvents();
    EXPECT_EQ(d->Styles->header()->sectionSize(1), width);
    EXPECT_EQ(d->Styles->header()->count(), 2);
  };
  Select(*d, "TButton", "Width");
  Press(*d, Qt::Key_Delete);
  DragStyle(*d, Find(*d, "TButton"), Find(*d, "TButton|.Big"));
  Rename(*d, ".Body", "a.b");
  EXPECT_EQ(shown, 3);
}

TEST_F(StyleEditing, ReturnOpensTheEditorOfARow) {
  const auto d = Shown();
  Select(*d, "TButton", "Width");
  QTest::keyClick(d->Styles, Qt::Key_Return);
  EXPECT_NE(d->Styles->Delegate().Editor(), nullptr);
  EXPECT_TRUE(d->isVisible());
}

TEST_F(StyleEditing, AControlListsTheStylesOfItsManager) {
  Fill(manager);
  const QString state = QString::fromLatin1(StateStyleNames[0]);
  manager.WritePropValue(VRXStylePath(Q("TButton"), state), Q("Width"), std::int64_t{5}, Q("Integer"));
  TVRXStaticText label(nullptr);
  const auto listed = [&] {
    const auto editor = Of({&label}, "Style");
    QStringList values;
    editor->GetValues([&](const QString& value) { values << value; });
    EXPECT_EQ(editor->GetAttributes().Contains(TPropertyAttribute::paValueList), !values.isEmpty());
    return S(values.join(u' '));
  };
  EXPECT_EQ(listed(), "") << "without a manager";
  label.Set(VRXStyleManagerRef, &manager);
  EXPECT_EQ(listed(), ".Body TButton TButton|.Big");
  const auto editor = Of({&label}, "Style");
  editor->SetValue(Q(".Coming"));
  EXPECT_EQ(S(label.Get(VRXStyleRef)), ".Coming") << "one that is still to be made";
  const auto hint = Of({&label}, "Hint");
  EXPECT_FALSE(hint->GetAttributes().Contains(TPropertyAttribute::paValueList));
  pVRXStyleManProp::Finalization();
  EXPECT_EQ(listed(), "");
  pVRXStyleManProp::Initialization();
}

TEST_F(StyleEditing, TheControlHasRoomInTheDialogOfTheUsualSize) {
  Dlg d(nullptr);
  d.SetData(manager);
  fields::ShowActive(d);
  EXPECT_GE(d.findChild<QFrame*>(Q("PreviewPanel"))->height(), 80);
}
}  // namespace
