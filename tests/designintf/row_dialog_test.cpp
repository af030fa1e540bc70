// Dialogs made of rows: what a row shows, writes and leaves alone, for every kind of control.
#include "dclstd/RowDialog.h"

#include <QGridLayout>

#include "dclstd/ColorComboBox.h"
#include "dclstd/EditValue.h"
#include "dclstd/OneShotComboBox.h"
#include "designintf/CustomColors.h"
#include "designintf/IdeTheme.h"
#include "rtl/PropText.h"
#include "tests/designintf/DesignTest.h"
#include "tests/support/Fields.h"
#include "tests/support/Modal.h"
#include "tests/support/Prompted.h"
#include "vcl/Font.h"

using namespace fields;

namespace {
enum class TTint : std::uint8_t { tnPale, tnDeep, tnLoud };
using TTints = TSet<TTint>;
}  // namespace
VRX_ENUM(TTint, {"tnPale", "tnDeep", "tnLoud"})
VRX_SET(TTints, TTint)

namespace {
// A value with a property for every kind of row.
class TSampleValue : public TPersistent {
  VRX_CLASS(TSampleValue)
 public:
  std::uint8_t Size() const { return size; }
  void SetSize(std::uint8_t v) { Change(size, v); }
  std::int8_t Depth() const { return depth; }
  void SetDepth(std::int8_t v) { Change(depth, std::min<std::int8_t>(v, 100)); }
  TColor Color() const { return color; }
  void SetColor(TColor v) { Change(color, v); }
  TTint Tint() const { return tint; }
  void SetTint(TTint v) { Change(tint, v); }
  TFontCharset Charset() const { return charset; }
  void SetCharset(TFontCharset v) { Change(charset, v); }
  bool Round() const { return round; }
  void SetRound(bool v) { Change(round, v); }
  TTints Tints() const { return tints; }
  void SetTints(TTints v) { Change(tints, v); }
  const QString& Text() const { return text; }
  void SetText(const QString& v) {
    if (v == QStringLiteral("bad")) throw Exception(QStringLiteral("Not that text."));
    Change(text, v);
  }
  QStringList Texts() const {
    QStringList texts;
    for (const TPropInfo* prop : StaticClass().Properties())
      texts << QString::fromLatin1(prop->Name) + u'=' + GetPropText(*this, *prop);
    return texts;
  }
  int changes = 0;

 protected:
  void DoChanged() override { ++changes; }

 private:
  std::uint8_t size = 20;
  std::int8_t depth = 5;
  TColor color = clTeal;
  TTint tint = TTint::tnDeep;
  TFontCharset charset = TFontCharset{204};
  bool round = true;
  TTints tints{TTint::tnPale, TTint::tnLoud};
  QString text = QStringLiteral("words");
};
const TClass& TSampleValue::StaticClass() {
  using T = TSampleValue;
  static const TClass cls(DescribeClass<T>("TSampleValue", TPersistent::StaticClass())
                              .Published("Size", &T::Size, &T::SetSize)
                              .Published("Depth", &T::Depth, &T::SetDepth)
                              .Published("Color", &T::Color, &T::SetColor)
                              .Published("Tint", &T::Tint, &T::SetTint)
                              .Published("Charset", &T::Charset, &T::SetCharset)
                              .Published("Round", &T::Round, &T::SetRound)
                              .Published("Tints", &T::Tints, &T::SetTints)
                              .Published("Text", &T::Text, &T::SetText));
  return cls;
}

class SampleDlg : public RowDialog {
 public:
  explicit SampleDlg(QWidget* owner) : RowDialog(QStringLiteral("Sample"), owner) {
    auto* grid = new QGridLayout(this);
    RowsInto(*grid);
    Edits(value);
    Row(size, "size", "Size", "&Size:", "How large.");
    Row(depth, "depth", "Depth", "&Depth:").Range(-128, 999, 3).Changes(&SampleDlg::DepthChange);
    Row(color, "color", "Color", "&Color:").WithButton(colorButton, "colorButton", &SampleDlg::Open, "More.");
    Row(other, "other", "", "Other:").Changes(&SampleDlg::Count);
    Row(tint, "tint", "Tint", "Tint:");
    Row(charset, "charset", "Charset", "Charset:");
    Row(round, "round", "Round", "Ro&und").Changes(&SampleDlg::RoundChange);
    Row(pale, "pale", "Tints", "Pale").Element(0);
    Row(loud, "loud", "Tints", "Loud").Element(2).Beside(pale);
    Row(text, "text", "Text", "Text:");
    Row(once, "once", "", "Once:")
        .Items({QStringLiteral("a"), QStringLiteral("b")})
        .Changes(&SampleDlg::Count);
    Note("Remark.");
    OkButton(ok, "ok");
    CancelButton(cancel, "cancel");
    ResetButton(reset, "reset");
    Wide({ok, cancel, reset});
    OwnColors({text});
    SetTabSequence();
    FormCreate();
  }
  void Open(const QToolButton* sender) { opened = sender; }
  void Count() { ++counted; }
  void DepthChange() {
    ++depthChanges;
    Apply(depth);
  }
  void RoundChange(const QCheckBox* sender) {
    ++counted;
    Write(sender);
  }
  bool Confirmed() override { return willing; }
  bool ReturnConfirms() const override { return willing; }
  void LoadControls() override {
    ++loads;
    RowDialog::LoadControls();
  }
  using RowDialog::ShowRow;

  TSampleValue value;
  SpinEdit *size, *depth;
  ColorComboBox *color, *other;
  QToolButton* colorButton;
  QComboBox *tint, *charset;
  QCheckBox *round, *pale, *loud;
  QLineEdit* text;
  OneShotComboBox* once;
  QPushButton *ok, *cancel, *reset;
  const QToolButton* opened = nullptr;
  int counted = 0, loads = 0;
  static inline int depthChanges = 0;  // of all dialogs
  bool willing = true;
};

class RowDialogTest : public testing::Test {
 protected:
  void SetUp() override { SaveIDECustomColors({}); }
  // What is different after a touch.
  QStringList ChangedBy(const std::function<void()>& touch) {
    const QStringList before = dlg.value.Texts();
    touch();
    QStringList changed = dlg.value.Texts();
    for (const QString& text : before) changed.removeAll(text);
    return changed;
  }
  void TearDown() override { EXPECT_EQ(prompts.warned, told); }
  static void Choose(QComboBox& combo, const char* text) {
    combo.setCurrentIndex(combo.findText(QLatin1StringView(text)));
  }
  ScriptedPrompts prompts;
  QStringList told;  // what is to be told in a test
  SampleDlg dlg{nullptr};
};
using Lines = QStringList;
}  // namespace

TEST_F(RowDialogTest, EveryKindOfControlShowsItsProperty) {
  dlg.SetLabels();
  EXPECT_EQ(dlg.size->text(), QStringLiteral("20"));
  EXPECT_EQ(dlg.depth->text(), QStringLiteral("5"));
  EXPECT_EQ(dlg.color->Selected(), clTeal);
  EXPECT_EQ(dlg.tint->currentText(), QStringLiteral("tnDeep"));
  EXPECT_EQ(dlg.charset->currentText(), QStringLiteral("RUSSIAN_CHARSET"));
  EXPECT_TRUE(dlg.round->isChecked());
  EXPECT_TRUE(dlg.pale->isChecked());
  EXPECT_TRUE(dlg.loud->isChecked());
  EXPECT_EQ(dlg.text->text(), QStringLiteral("words"));
  EXPECT_EQ(dlg.once->currentIndex(), -1);
}

TEST_F(RowDialogTest, LoadingWritesNothingAndCallsNoHandler) {
  dlg.SetLabels();
  dlg.value.SetSize(255);
  dlg.value.SetColor(TColor(0x123456));
  dlg.value.SetTint(TTint::tnPale);
  dlg.value.SetCharset(TFontCharset{3});
  dlg.value.SetRound(false);
  dlg.value.SetTints({TTint::tnDeep});
  dlg.value.SetText(QStringLiteral("one\ntwo\r") + QChar(0x2028));
  const QStringList before = dlg.value.Texts();
  dlg.value.changes = 0;
  for (int i = 0; i < 2; ++i) dlg.SetLabels();
  EXPECT_EQ(dlg.value.changes, 0);
  EXPECT_EQ(dlg.value.Texts(), before);
  EXPECT_EQ(dlg.counted, 0);
  EXPECT_EQ(dlg.loads, 3) << "no control called for another load";
}

TEST_F(RowDialogTest, EveryControlChangesItsOwnPropertyOnly) {
  dlg.SetLabels();
  ShowActive(dlg);
  EXPECT_EQ(ChangedBy([&] { Type(*dlg.size, QStringLiteral("7")); }), Lines{QStringLiteral("Size=7")});
  EXPECT_EQ(ChangedBy([&] { Type(*dlg.depth, QStringLiteral("9")); }), Lines{QStringLiteral("Depth=9")});
  EXPECT_EQ(ChangedBy([&] {
              dlg.color->setFocus();
              QTest::keyClick(dlg.color, Qt::Key_Down);
            }),
            Lines{QStringLiteral("Color=clGray")});
  EXPECT_EQ(ChangedBy([&] { Choose(*dlg.tint, "tnLoud"); }), Lines{QStringLiteral("Tint=tnLoud")});
  EXPECT_EQ(ChangedBy([&] { Choose(*dlg.charset, "THAI_CHARSET"); }),
            Lines{QStringLiteral("Charset=THAI_CHARSET")});
  EXPECT_EQ(ChangedBy([&] { dlg.round->click(); }), Lines{QStringLiteral("Round=False")});
  EXPECT_EQ(ChangedBy([&] { dlg.loud->click(); }), Lines{QStringLiteral("Tints=[tnPale]")});
  EXPECT_EQ(ChangedBy([&] { dlg.pale->click(); }), Lines{QStringLiteral("Tints=[]")});
  EXPECT_EQ(ChangedBy([&] { dlg.loud->click(); }), Lines{QStringLiteral("Tints=[tnLoud]")});
  EXPECT_EQ(ChangedBy([&] { Type(*dlg.text, QStringLiteral("!")); }), Lines{QStringLiteral("Text=words!")});
}

TEST_F(RowDialogTest, ANumberThatIsTooLargeForTheTypeComesAroundAndIsShownSo) {
  dlg.SetLabels();
  ShowActive(dlg);
  Type(*dlg.depth, QStringLiteral("200"));
  EXPECT_EQ(dlg.value.Depth(), -56);
  EXPECT_EQ(dlg.depth->text(), QStringLiteral("-56"));
  Type(*dlg.depth, QStringLiteral("120"));
  EXPECT_EQ(dlg.value.Depth(), 100);
  EXPECT_EQ(dlg.depth->text(), QStringLiteral("100")) << "what the value kept";
}

TEST_F(RowDialogTest, NothingIsLoadedAgainBeforeTheFirstActivation) {
  dlg.size->setValue(9);
  EXPECT_EQ(dlg.value.Size(), 9);
  EXPECT_EQ(dlg.loads, 0);
  ShowActive(dlg);
  dlg.size->setValue(10);
  EXPECT_EQ(dlg.loads, 1);
  dlg.round->click();
  EXPECT_EQ(dlg.loads, 1) << "its handler only writes";
}

TEST_F(RowDialogTest, TypesGiveRangesAndEntries) {
  EXPECT_EQ(dlg.size->minimum(), 0);
  EXPECT_EQ(dlg.size->maximum(), 255);
  EXPECT_EQ(dlg.size->findChild<QLineEdit*>()->maxLength(), 3);
  EXPECT_EQ(dlg.depth->minimum(), -128);
  EXPECT_EQ(dlg.depth->maximum(), 999);
  EXPECT_EQ(fields::Texts(*dlg.tint).join(u' '), QStringLiteral("tnPale tnDeep tnLoud"));
  EXPECT_EQ(dlg.charset->itemText(0), QStringLiteral("ANSI_CHARSET"));
  EXPECT_EQ(dlg.charset->count(), 19);
}

TEST_F(RowDialogTest, AValueWithoutAnEntryHasOneWhileItIsShownAndStays) {
  dlg.value.SetCharset(TFontCharset{3});
  dlg.SetLabels();
  EXPECT_EQ(dlg.charset->currentText(), QStringLiteral("3"));
  dlg.SetLabels();
  EXPECT_EQ(dlg.charset->count(), 20);
  dlg.tint->setCurrentIndex(0);
  EXPECT_EQ(dlg.value.Charset(), TFontCharset{3});
}

TEST_F(RowDialogTest, ResetBringsANewValue) {
  dlg.value.SetSize(1);
  dlg.value.SetText(QStringLiteral("x"));
  ShowActive(dlg);
  dlg.reset->click();
  EXPECT_EQ(dlg.value.Texts(), TSampleValue().Texts());
  EXPECT_EQ(dlg.text->text(), QStringLiteral("words"));
  EXPECT_TRUE(dlg.isVisible());
}

TEST_F(RowDialogTest, AHandlerThatThrowsLeavesTheValueAndTheDialog) {
  dlg.SetLabels();
  ShowActive(dlg);
  EXPECT_EQ(ChangedBy([&] { dlg.text->setText(QStringLiteral("bad")); }), Lines());
  told << QStringLiteral("Not that text.");
  EXPECT_EQ(prompts.warned, told);
  EXPECT_TRUE(dlg.isVisible());
  dlg.round->click();
  EXPECT_FALSE(dlg.value.Round()) << "the others still work";
}

TEST_F(RowDialogTest, LabelsHintsAndNotesStandByTheirControls) {
  const auto labelOf = [&](const QWidget* control) {
    for (const QLabel* label : dlg.findChildren<QLabel*>())
      if (label->buddy() == control) return label->text();
    return QString();
  };
  EXPECT_EQ(labelOf(dlg.size), QStringLiteral("&Size:"));
  EXPECT_EQ(labelOf(dlg.once), QStringLiteral("Once:"));
  EXPECT_EQ(dlg.size->toolTip(), QStringLiteral("How large."));
  EXPECT_EQ(dlg.colorButton->toolTip(), QStringLiteral("More."));
  EXPECT_EQ(dlg.round->text(), QStringLiteral("Ro&und"));
  EXPECT_EQ(dlg.findChild<QLabel*>(QStringLiteral("note"))->text(), QStringLiteral("Remark."));
  ShowActive(dlg);
  EXPECT_EQ(dlg.loud->y(), dlg.pale->y());
  EXPECT_GT(dlg.loud->x(), dlg.pale->x());
  EXPECT_GT(dlg.pale->y(), dlg.round->y());
  EXPECT_NEAR(dlg.colorButton->geometry().center().y(), dlg.color->geometry().center().y(), 1);
  EXPECT_GT(dlg.colorButton->x(), dlg.color->x());
  dlg.ShowRow(dlg.size, false);
  EXPECT_FALSE(dlg.size->isVisible());
  for (const QLabel* label : dlg.findChildren<QLabel*>()) {
    EXPECT_EQ(label->isVisible(), label->buddy() != dlg.size) << label->text().toStdString();
  }
}

TEST_F(RowDialogTest, TheFocusGoesThroughTheRowsInTheirOrder) {
  dlg.SetLabels();
  ShowActive(dlg);
  QStringList names;
  dlg.size->setFocus();
  do {
    names << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  } while (QApplication::focusWidget() != dlg.size && names.size() < 40);
  EXPECT_EQ(names.join(u' ').toStdString(),
            "size depth color colorButton other tint charset round pale loud text once ok cancel reset");
}

TEST_F(RowDialogTest, ButtonsAndListsCallTheirHandlersWithTheSender) {
  dlg.colorButton->click();
  EXPECT_EQ(dlg.opened, dlg.colorButton);
  dlg.once->setCurrentIndex(1);
  EXPECT_EQ(dlg.counted, 1);
}

TEST_F(RowDialogTest, ThemeLeavesOutWhatHasItsOwnColours) {
  EXPECT_TRUE(IsIDEThemed(*dlg.size));
  EXPECT_FALSE(IsIDEThemed(*dlg.text));
  EXPECT_FALSE(dlg.NeedTheme(*dlg.text));
}

TEST_F(RowDialogTest, AllListsShareTheIDEsCustomColoursAndClosingSavesThem) {
  SaveIDECustomColors(CustomColorEntries({TColor(0x112233)}));
  for (const bool confirm : {true, false}) {
    SampleDlg shown(nullptr);
    EXPECT_EQ(shown.other->CustomColors(), LoadIDECustomColors());
    ShowActive(shown);
    const QStringList colors =
        CustomColorEntries({TColor(0x112233), TColor(confirm ? 0x445566u : 0x778899u)});
    shown.other->SetCustomColors(colors);
    EXPECT_EQ(shown.color->CustomColors(), colors);
    EXPECT_NE(LoadIDECustomColors(), colors);
    confirm ? shown.accept() : shown.reject();
    EXPECT_EQ(LoadIDECustomColors(), colors);
  }
}

TEST_F(RowDialogTest, ReturnIsForTheDefaultButtonOnlyWhenTheDialogSaysSo) {
  ShowActive(dlg);
  dlg.size->setFocus();
  dlg.willing = false;
  QTest::keyClick(dlg.size, Qt::Key_Return);
  QTest::keyClick(dlg.size, Qt::Key_Enter);
  EXPECT_TRUE(dlg.isVisible());
  dlg.willing = true;
  QTest::keyClick(dlg.size, Qt::Key_Return);
  EXPECT_FALSE(dlg.isVisible());
  EXPECT_EQ(dlg.result(), QDialog::Accepted);
}

TEST_F(RowDialogTest, TheLauncherWritesOnlyWhatIsConfirmed) {
  const auto launch = [](TSampleValue& value, bool willing, bool confirm) {
    modal::NextOf<SampleDlg>([=](SampleDlg& shown) {
      EXPECT_EQ(shown.size->value(), 33);
      shown.willing = willing;
      shown.size->setValue(44);
      confirm ? shown.ok->click() : shown.cancel->click();
    });
    return EditValue<SampleDlg>(value, nullptr, [](SampleDlg& made) { EXPECT_EQ(made.loads, 0); });
  };
  for (const auto& [willing, confirm] :
       {std::pair(true, false), std::pair(false, true), std::pair(true, true)}) {
    TSampleValue value;
    value.SetSize(33);
    EXPECT_EQ(launch(value, willing, confirm), willing && confirm);
    EXPECT_EQ(value.Size(), willing && confirm ? 44 : 33);
  }
}

TEST_F(RowDialogTest, DestroyedOnTheScreenItCallsNoHandlerAnyMore) {
  auto shown = std::make_unique<SampleDlg>(nullptr);
  shown->SetLabels();
  ShowActive(*shown);
  shown->depth->setFocus();
  shown->depth->setKeyboardTracking(false);
  shown->depth->selectAll();
  QTest::keyClicks(shown->depth, QStringLiteral("42"));
  const int before = SampleDlg::depthChanges;
  shown.reset();
  EXPECT_EQ(SampleDlg::depthChanges, before);
}

TEST_F(RowDialogTest, AControlThatShowsNoValueIsRefusedAsARow) { EXPECT_THROW(RowKindOf(dlg), Exception); }
