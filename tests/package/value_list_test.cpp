// Lists of names with values: the dialog, the editors, and the two controls.
#include "library/controls/ValueListBox.h"

#include "package/dialogs/pVRXValueListDlg.h"
#include "package/property_editors/pVRXPeMain.h"
#include "tests/library/VisibleProperties.h"
#include "tests/package/ListEditorTest.h"

namespace {
using ValueDialog = ListEditors;

QStringList L(std::initializer_list<const char*> texts) {
  QStringList list;
  for (const char* text : texts) list << QString::fromUtf8(text);
  return list;
}
// Writes down in which order it is asked.
class Recorder : public IVRXValueListControl, private IVRXValueHolder {
 public:
  TStrings& ItemNames() override {
    calls << QStringLiteral("names");
    return names;
  }
  IVRXValueHolder& ItemValues() override {
    calls << QStringLiteral("values");
    return *this;
  }
  TStrings names;
  QStringList values, calls;

 private:
  QString Value(int index) const override { return values.value(index); }
  void SetValue(int index, const QString& value) override {
    calls << QStringLiteral("%1=%2").arg(index).arg(value);
    values.resize(std::max<qsizetype>(values.size(), index + 1));
    values[index] = value;
  }
  void Remove(int index, int count) override { values = values.mid(0, index) + values.mid(index + count); }
};
template <class C>
void Fill(C& control) {
  control.ItemNames().SetLines(L({"Red", "Green", "", "Blue"}));
  control.Get(C::Values)->SetLines(L({"#f00", "#0f0", "none", "#00f"}));
}
}  // namespace

TEST_F(ValueDialog, IsKnownByItsIdentifier) {
  EXPECT_STREQ(qobject_interface_iid<IVRXValueListControl*>(), "{A4471D99-9D56-4D26-89DF-289AB1DDE66C}");
}

TEST_F(ValueDialog, UntouchedItLeavesValuesAloneThatNoRowShowsAndAddsNone) {
  const auto confirm = [](Recorder& control) {
    modal::NextOf<TVRXValueListDlg>([](auto& d) { d.OkBtn->click(); });
    EXPECT_TRUE(TVRXValueListDlg::Execute(control));
    return control.values;
  };
  Recorder more;
  more.names.SetLines(L({"one", "two"}));
  more.values = L({"1", "2", "x", "y"});
  EXPECT_EQ(confirm(more), L({"1", "2", "x", "y"}));
  Recorder none;
  none.values = L({"1", "2"});
  EXPECT_EQ(confirm(none), L({"1", "2"}));
  Recorder fewer;
  fewer.names.SetLines(L({"one", "two", "three"}));
  fewer.values = L({"1"});
  EXPECT_EQ(confirm(fewer), L({"1"}));
}

TEST_F(ValueDialog, ShowsTheItemsInOrderAndWritesThemByPlace) {
  Recorder control;
  control.names.SetLines(L({"a", "b", "a"}));
  control.values = L({"1", "2", "9"});
  for (const bool ok : {false, true}) {
    control.calls.clear();
    modal::NextOf<TVRXValueListDlg>([&](auto& d) {
      EXPECT_EQ(control.calls, L({"names", "values"}));
      control.calls.clear();
      PairsModel& grid = d.ValueListEditor->Pairs();
      EXPECT_EQ(grid.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Item"));
      EXPECT_EQ(grid.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Value"));
      EXPECT_EQ(grid.Rows(), (QList<TTextPair>{{QStringLiteral("a"), QStringLiteral("1")},
                                               {QStringLiteral("b"), QStringLiteral("2")},
                                               {QStringLiteral("a"), QStringLiteral("9")}}));
      grid.SetRow(1, {QStringLiteral("c=;"), QStringLiteral("3\n")});
      d.ValueListEditor->Select(2);
      d.DeleteRow->click();
      ok ? d.accept() : d.reject();
    });
    EXPECT_EQ(TVRXValueListDlg::Execute(control), ok);
    EXPECT_EQ(control.calls, ok ? L({"names", "values", "0=1", "1=3\n"}) : QStringList());
    EXPECT_EQ(control.names.Lines(), ok ? L({"a", "c=;"}) : L({"a", "b", "a"}));
    EXPECT_EQ(control.values, ok ? L({"1", "3\n"}) : L({"1", "2", "9"}));
  }
}

TEST_F(ValueDialog, OfAControlWithoutItemsHasOnlyTheTitles) {
  Recorder control;
  modal::NextOf<TVRXValueListDlg>([&](auto& d) {
    EXPECT_EQ(d.ValueListEditor->RowCount(), 1);
    fields::ShowActive(d);
    QTest::mouseClick(d.AddRow, Qt::LeftButton);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("new"));
    QTest::mouseClick(d.OkBtn, Qt::LeftButton);
  });
  EXPECT_TRUE(TVRXValueListDlg::Execute(control));
  EXPECT_EQ(control.names.Lines(), L({"new"}));
  EXPECT_EQ(control.values, L({""}));
}

template <class C>
class ValueControl : public ListEditors {};
using ValueControls = testing::Types<TVRXValueListBox, TVRXValueComboBox>;
TYPED_TEST_SUITE(ValueControl, ValueControls);

TYPED_TEST(ValueControl, IsEditedByOneDialogForItemsAndValues) {
  using enum TPropertyAttribute;
  const QByteArray cls = TypeParam::StaticClass().ClassName();
  const auto session = this->FormWith(
      "  object V: " + cls +
          "\n    Left = 8\n    Top = 8\n    Width = 90\n    Height = 60\n    Items.Strings = "
          "(\n      'Red'\n      'Blue')\n    Values.Strings = (\n      '#f00'\n      '#00f')\n  end\n",
      this->registry);
  EXPECT_TRUE(session->Findings().empty());
  const QByteArray before = session->Bytes();
  TComponent& control = *session->GetComponent(QStringLiteral("V"));
  for (const char* name : {"Items", "Values"}) {
    EXPECT_EQ(this->Of({&control}, name)->GetAttributes(), (TPropertyAttributes{paDialog, paReadOnly}));
    this->template Edit<TVRXValueListDlg>(*session, control, name, [](auto& d) { d.accept(); });
    EXPECT_EQ(session->Bytes(), before);
    this->template Edit<TVRXValueListDlg>(*session, control, name, [](auto& d) {
      d.ValueListEditor->Pairs().SetRow(1, {QStringLiteral("Navy"), QStringLiteral("#008")});
      d.accept();
    });
    EXPECT_EQ(session->Bytes(), QByteArray(before).replace("'Blue'", "'Navy'").replace("'#00f'", "'#008'"));
    session->Undo();
    EXPECT_EQ(session->Bytes(), before);
    EXPECT_FALSE(session->CanUndo());
  }
}

TYPED_TEST(ValueControl, OffersItsItemsForTheValueAndTakesTheirNames) {
  TypeParam control(nullptr);
  Fill(control);
  const auto editor = this->Of({&control}, "Value");
  EXPECT_EQ(editor->GetAttributes(), TPropertyAttributes{TPropertyAttribute::paValueList});
  EXPECT_EQ(ValuesOf(*editor), L({"Red", "Green", "Blue"}));
  editor->SetValue(QStringLiteral("Blue"));
  EXPECT_EQ(control.ChosenValue(), QStringLiteral("#00f"));
  EXPECT_EQ(control.ItemOfValue(), 3);
  editor->SetValue(QStringLiteral("#0f0"));
  EXPECT_EQ(control.ItemOfValue(), 1);
  editor->SetValue(QStringLiteral("unknown"));
  EXPECT_EQ(control.ChosenValue(), QStringLiteral("unknown"));
  EXPECT_EQ(control.ItemOfValue(), -1);
  editor->SetValue(QString());
  EXPECT_EQ(control.ItemOfValue(), -1);
}

TYPED_TEST(ValueControl, AValueThatIsAnotherItemsNameIsTheValue) {
  TypeParam control(nullptr);
  control.ItemNames().SetLines(L({"1", "2"}));
  control.Get(TypeParam::Values)->SetLines(L({"2", "1"}));
  control.ChooseValue(QStringLiteral("2"));
  EXPECT_EQ(control.ChosenValue(), QStringLiteral("2"));
  EXPECT_EQ(control.ItemOfValue(), 0);
}

TYPED_TEST(ValueControl, TakesTheValueOfAFileAsItIs) {
  const auto session =
      this->FormWith("  object V: " + TypeParam::StaticClass().ClassName() +
                         "\n    Left = 8\n    Top = 8\n    Width = 90\n    Height = 60\n    Items.Strings = "
                         "(\n      'Red')\n    Values.Strings = (\n      '#f00')\n    Value = 'Red'\n  end\n",
                     this->registry);
  const auto& control = dynamic_cast<TypeParam&>(*session->GetComponent(QStringLiteral("V")));
  EXPECT_EQ(control.ChosenValue(), QStringLiteral("Red"));
  EXPECT_EQ(control.ItemOfValue(), -1);
}

TYPED_TEST(ValueControl, ShowsWhichItemIsChosen) {
  const auto draw = [](const char* value, const QStringList& values) {
    TypeParam control(nullptr);
    Fill(control);
    control.Get(TypeParam::Values)->SetLines(values);
    control.ChooseValue(QString::fromLatin1(value));
    control.SetBounds(0, 0, 131, 97);
    return Draw(control, Qt::magenta);
  };
  const QStringList values = L({"#f00", "#0f0", "none", "#00f"});
  const QImage none = draw("", values), red = draw("#f00", values), blue = draw("#00f", values);
  EXPECT_NE(none, red);
  EXPECT_NE(red, blue);
  EXPECT_EQ(draw("#123", values), none);
  EXPECT_EQ(draw("#f00", L({"1", "#f00"})), draw("#0f0", values)) << "by its place, whatever the value is";
}

TEST_F(ValueDialog, ThePropertiesOfTheListShow) {
  TVRXValueListBox list(nullptr);
  const QImage empty = Draw(list, Qt::magenta);
  for (int i = 0; i < 40; ++i) list.ItemNames().Add(QString::number(i));
  const QImage filled = Draw(list, Qt::magenta);
  EXPECT_NE(empty, filled);
  list.Set(TCustomListBox::TopIndex, 1);
  EXPECT_NE(Draw(list, Qt::magenta), filled);
  list.Set(TCustomListBox::TopIndex, 0);
  list.Set(TCustomListBox::Columns, 2);
  EXPECT_NE(Draw(list, Qt::magenta), filled);
  TVRXValueComboBox combo(nullptr);
  const QImage bare = Draw(combo, Qt::magenta);
  combo.Set(TCustomComboBox::TextHint, QStringLiteral("Choose"));
  EXPECT_NE(Draw(combo, Qt::magenta), bare);
}

TEST_F(ValueDialog, AComponentWithoutItemsOpensNothing) {
  // The editor on a list that belongs to no such control.
  class TPlain : public TVRXValueListProperty {
   public:
    using TVRXValueListProperty::TVRXValueListProperty;
  };
  TListBox box(nullptr);
  TPlain items(&designer, {{&box, &box.ClassType().GetProp("Items")}});
  items.Edit();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(designer.modified, 0);
  TVRXValueListValueProperty value(&designer, {{&box, &box.ClassType().GetProp("Hint")}});
  EXPECT_EQ(ValuesOf(value), QStringList());
}

TEST_F(ValueDialog, OtherListsOfTheControlKeepTheUsualEditor) {
  TListBox box(nullptr);
  EXPECT_NE(dynamic_cast<TStringListProperty*>(Of({&box}, "Items").get()), nullptr);
}
