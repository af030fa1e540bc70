// What holds for every dialog: those of the package, and those that they open.
#include "dclstd/DialogDescription.h"
#include "dclstd/DialogRegistration.h"
#include "dclstd/FontDialog.h"
#include "designintf/IdeTheme.h"
#include "library_design/ColorDialogs.h"
#include "library_design/DateTimeFormatDialog.h"
#include "library_design/FillDialog.h"
#include "library_design/Font3DDialog.h"
#include "library_design/FontDialogs.h"
#include "library_design/ImageListDialogs.h"
#include "library_design/LookDialogs.h"
#include "library_design/SettingEditors.h"
#include "library_design/ValueDialogs.h"
#include "package/dialogs/pVRXCaptionEditorDlg.h"
#include "package/dialogs/pVRXLEDEditorDlg.h"
#include "package/dialogs/pVRXShadowEditorDlg.h"
#include "package/dialogs/pVRXSimpleBevelEditorDlg.h"
#include "package/dialogs/pVRXTeethEditorDlg.h"
#include "package/experts/pVRXRegOS.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "package/registration/VRX_RegMainEditors.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "tests/package/PixelDialogTest.h"
#include "tests/support/Contrast.h"
#include "tests/support/Fields.h"
#include "vcl/Theme.h"

namespace {
// What Tab goes through as a dialog opens, page by page.
struct TabRow {
  const char* dialog;
  int page;
  const char* controls;
};
constexpr TabRow TabRows[] = {
    {"TVRXLEDEditorDlg", 0, "edhs edvs edt cmbb bt1 cmbL bt2 pred chk ok Button1 reset"},
    {"TVRXShadowEditorDlg", 0, "cmbstyle cmbS dlgl spind ok Button1 reset"},
    {"TVRXSimpleBevelEditorDlg", 0, "cmbstyle spind cmbL dlgl cmbs dlgs cmbn dlgn ok Button1 reset"},
    {"TVRXTeethEditorDlg", 0, "cmb spinc spinW spinh chkc chko ok Button1 reset"},
    {"TVRXCaptionEditorDlg", 0, "cap cmb chk btnf btnffx ok Button1 reset"},
    {"TVRXShapeEditorDlg", 0, "pred btnOK btnCancel"},
    {"TVRXLightEditorDlg", 0, "pred btnOK btnCancel"},
    {"TVRX3DEffectEditorDlg", 0,
     "btngetpic btngetcap spind cmbB dlgb cmbD dlgd cmbL dlgl cmbS dlgs EXECUTE STOP Ok VRXButton4"},
    {"TVRXfrmRegionFromBMPdlg", 0, "pages LoadButton VRXScrollBox1 cl CancelButton"},
    {"TVRXfrmRegionFromBMPdlg", 1, "pages cb colb ccb ResultBox CancelButton"},
    {"TVRXFilterPropsDlg", 0, "FilterGrid AddRow DeleteRow MoveDown OKBtn CancelBtn"},
    {"TfrmTVRXPointListEditor", 0, "plb AddBtn OkBtn CancelBtn"},
    {"TVRXDateListEditorDlg", 0, "DList AddBtn OkBtn CancelBtn"},
    {"TVRXValueListDlg", 0, "ValueListEditor AddRow OkButton CancelButton"},
    {"TVRXRegExprForm", 0,
     "edRegExpr edSample edExprName sgExpressions btAddExpr btLoad btSave btOK btCancel"},
    {"TVRXSendKeyEditorDlg", 0, "m wnd last pages lb2 Button1 Button3 Close"},
    {"TVRXSendKeyEditorDlg", 1, "m wnd last pages lb Update Button1 Button3 Close"},
    {"TVRXDlgBtnEditorDlg", 0,
     "rb1 chk1 chk2 chk3 chk4 chk5 chk6 chk7 chk8 chk9 chk10 chk11 list2 ext1 ext2 chkr chkr2 ok cancel"},
    {"TVRXButtonBarEditorDlg", 0,
     "bbar pages btnSectionAdd small smallbtn smalllbx large largebtn largelbx ok cancel"},
    {"TVRXButtonBarEditorDlg", 1,
     "bbar pages btnFillObject btnFont btnBevel btnFont3D VRXCheckBox1 lih sih small smallbtn smalllbx large "
     "largebtn largelbx ok cancel"},
    {"TVRXControlFaceEditorDlg", 0,
     "btnLoad btnSave btnAddState remove clear controllerStateList stateObjectList VRXSpeedButton1 "
     "VRXSpeedButton2 VRXSpeedButton3 VRXSpeedButton4 btnProp btnAddFont btnAddFont3D btnAddFontFx "
     "btnAddFillObject btnAddBitmapEffect btnAddBevel btnAddColor btnAddStyles controllerObjectsList "
     "edFilePath btnBrowse btnOk btnCancel"},
    {"TVRXControlFaceEditorDlgAddState", 0, "notUsedStates btnAll btnNone btnOk btnCancel"},
    {"TVRXButtonFaceDlg", 0, "lb SelectBtn nopicture ClearAll sync synchot VRXButton1 OKButton CancelButton"},
    {"TVRXGraphicLabelEditorDlg", 0,
     "pages ComboBoxTransform VRXSpinEditFactor ButtonFillObjectDialog ButtonOK ButtonCancel"},
    {"TVRXGraphicLabelEditorDlg", 1,
     "pages ComboBoxStyle VRXSpinEditLightDepth VRXSpinEditShadowDepth VRXSpinEditAngle VRXSpinEditTracing "
     "VRXLightColorComboBox VRXShadowColorComboBox ButtonOK ButtonCancel"},
    {"TVRXGraphicLabelEditorDlg", 2,
     "pages VRXFontComboBox VRXColorComboBox VRXFontSizeComboBox ButtonFontDialog ButtonOK ButtonCancel"},
    {"TVRXGraphicLabelEditorDlg", 3,
     "pages VRXSpinEditToggle ComboBoxPerspective VRXSpinEditPerspectiveDepth CheckBoxEqualLetters "
     "CheckBoxAutoToggle CheckBoxToggled ButtonOK ButtonCancel"},
    {"TfrmVRXStyleManProp", 0,
     "byComponent fltEdit PropTree PropView bttLoadFromFile btnSaveToFile btnAddStyle btnDeleteStyle "
     "btnAddComponent btnCreateStyle Styles cbStateStyles cbConfirmDeletion cbCtlXp cbAlign cbUseBgr "
     "cbCascade "
     "OkBtn CancelBtn"},
    {"TVRXOSPropForm", 0, "ComponentsTree PropListView ExcludedPropertiesList OkBtn CancelBtn"},
    {"TVRXFontFxEditorDlg", 0, "cmbstyle edlight cmbL edshadow cmbs edangle edtracing ok cancel reset"},
    {"FontDialog", 0,
     "cmbname edsize edheight cmbcolor cmbcharset cmbpitch bold italic underline strikeout ok cancel reset"},
    {"TVRXFillEditorDlg", 0,
     "cmbkind cmbcolor dlgc cmbend dlge cmbdirection colors btnadd cmbhatch cmbplace edindex btnbitmap ok "
     "cancel reset"},
    {"TVRXBevelEditorDlg", 0,
     "cmbouter cmbinner edwidth cmbL dlgl cmbs dlgs edborder cmbb dlgb ok cancel reset"},
    {"TVRXBrushEditorDlg", 0, "cmbstyle cmbcolor dlgc ok cancel reset"},
    {"TVRXFont3DEditorDlg", 0, "cmbstyle edlight cmbL edshadow cmbs edx edy ok cancel reset"},
    {"TVRXDateTimeFormatDlg", 0, "edformat usual ok cancel"},
    {"TVRXImageListDlg", 0, "lists images ok cancel"},
    {"TVRXSelectValueDlg", 0, "names ok cancel"},
    {"TVRXTextDlg", 0, "text ok cancel"},
    {"TVRXBitmapEffectDlg", 0, "cmbkind edamount cmbcolor dlgc ok cancel reset"},
};

std::vector<TDialogRegistration> AllDialogs() {
  DesignRegistry registry;
  const RegistrationScope scope(registry, nullptr, {});
  VRX_RegMainEditors::Register();
  pVRXRegOS::Register();
  registration::Dialogs<TVRXFontFxEditorDlg, FontDialog, TVRXFillEditorDlg, TVRXBevelEditorDlg,
                        TVRXBrushEditorDlg, TVRXFont3DEditorDlg, TVRXDateTimeFormatDlg, TVRXImageListDlg,
                        TVRXSelectValueDlg, TVRXTextDlg, TVRXBitmapEffectDlg>()
      .Call();
  return registry.Dialogs();
}
void ForEveryDialog(const std::function<void(ModalDialog&)>& check) {
  for (const TDialogRegistration& entry : AllDialogs()) {
    SCOPED_TRACE(entry.Name.constData());
    const std::unique_ptr<QDialog> dialog = entry.Open();
    check(dynamic_cast<ModalDialog&>(*dialog));
  }
}

// Hears of every change of what a preview shows.
class Listener : public IControlHost {
 public:
  explicit Listener(bool broken = false) : broken_(broken) {}
  void ControlChanged(TControl&) override {
    ++changes;
    if (broken_) throw Exception(QStringLiteral("The view is broken."));
  }
  int changes = 0;

 private:
  bool broken_;
};

// One step of whatever can be changed.
void Touch(QWidget& control) {
  if (auto* edit = qobject_cast<SpinEdit*>(&control)) edit->setValue(edit->value() + 1);
  if (auto* box = qobject_cast<QCheckBox*>(&control)) box->click();
  if (auto* edit = qobject_cast<QLineEdit*>(&control)) edit->setText(edit->text() + QStringLiteral("x"));
  if (auto* color = qobject_cast<ColorComboBox*>(&control)) {
    color->SetSelected(color->Selected() == clRed ? clBlue : clRed);
    emit color->Change();
  } else if (auto* combo = qobject_cast<QComboBox*>(&control)) {
    combo->setCurrentIndex(combo->currentIndex() == 1 ? 2 : 1);
  }
}

QStringList TextsOf(const TPersistent& value) {
  QStringList texts;
  for (const TPropInfo* prop : value.ClassType().Properties())
    if (prop->Is<QByteArray>())
      texts << QString::fromLatin1(GetBinaryProp(value, *prop).toHex());
    else if (prop->IsPart())
      texts << TextsOf(*GetObjectProp(value, *prop));
    else
      texts << QString::fromLatin1(prop->Name) + u'=' + GetPropText(value, *prop);
  return texts;
}
int Lightness(const QColor& color, const QColor& ground) {
  const double a = color.alphaF();
  return static_cast<int>(a * qGray(color.rgb()) + (1 - a) * qGray(ground.rgb()));
}
}  // namespace

class DialogSuite : public testing::Test {
 protected:
  void SetUp() override { SaveIDECustomColors({}); }
  void TearDown() override {
    QApplication::setFont(font_);
    ApplyTheme(TTheme::Light);
  }
  ScriptedPrompts prompts;

 private:
  QFont font_ = QApplication::font();
};

TEST_F(DialogSuite, KnowsEveryDialogOfThePackageAndWhereTabGoesInIt) {
  QStringList registered, known;
  for (const TDialogRegistration& entry : AllDialogs()) registered << QString::fromLatin1(entry.Name);
  for (const TabRow& row : TabRows)
    if (row.page == 0) known << QString::fromLatin1(row.dialog);
  EXPECT_EQ(registered, known);
}

TEST_F(DialogSuite, OpenedUnseenADialogIsNotOnTheScreen) {
  ForEveryDialog([](ModalDialog& dialog) {
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(dialog.activated);
    EXPECT_FALSE(dialog.windowTitle().isEmpty());
    EXPECT_GE(DescribeControls(dialog).size(), 4u);
    EXPECT_FALSE(dialog.isVisible());
  });
}

TEST_F(DialogSuite, FormsThatHaveANameKeepIt) {
  QStringList names;
  ForEveryDialog([&](ModalDialog& dialog) { names << dialog.objectName(); });
  names.removeAll(QString());
  EXPECT_EQ(names.join(u' ').toStdString(),
            "VRX3DEffectEditorDlg VRXfrmRegionFromBMPdlg VRXFilterPropsDlg frmTVRXPointListEditor "
            "VRXDateListEditorDlg VRXValueListDlg VRXRegExprForm VRXSendKeyEditorDlg VRXDlgBtnEditorDlg "
            "VRXButtonBarEditorDlg frmVRXStyleManProp VRXOSPropForm");
}

TEST_F(DialogSuite, EveryControlHasANameOfItsOwn) {
  ForEveryDialog([](ModalDialog& dialog) {
    QStringList names;
    for (const ControlDescription& control : DescribeControls(dialog)) names << control.name;
    EXPECT_EQ(names.removeDuplicates(), 0) << names.join(u' ').toStdString();
    for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
      if (widget->window() != &dialog) continue;  // an open list
      const bool reached = (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy();
      EXPECT_FALSE(reached && widget->objectName().isEmpty() && !qobject_cast<const QTabBar*>(widget))
          << widget->metaObject()->className();
    }
  });
}

TEST_F(DialogSuite, TabReachesEveryControlOnceInTheOrderOfTheRows) {
  for (const TabRow& row : TabRows) {
    SCOPED_TRACE(row.dialog);
    const auto all = AllDialogs();
    const auto entry =
        std::find_if(all.begin(), all.end(), [&](const auto& e) { return e.Name == row.dialog; });
    ASSERT_NE(entry, all.end());
    const auto dialog = entry->Open();
    if (auto* pages = dialog->findChild<QTabWidget*>()) pages->setCurrentIndex(row.page);
    fields::ShowActive(*dialog);
    const auto nameOf = [](const QWidget* w) {
      return qobject_cast<const QTabBar*>(w) ? w->parentWidget()->objectName() : w->objectName();
    };
    const QStringList wanted = QString::fromLatin1(row.controls).split(u' ');
    auto* first = dialog->findChild<QWidget*>(wanted[0]);
    first->setFocus();
    QStringList reached;
    for (qsizetype i = 0; i < wanted.size() + 1; ++i) {
      reached << nameOf(QApplication::focusWidget());
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(reached.join(u' ').toStdString(), (wanted + QStringList{wanted[0]}).join(u' ').toStdString());
  }
}

// A letter that two of them have only moves the focus between the two.
TEST_F(DialogSuite, NoTwoControlsOfADialogShareALetter) {
  ForEveryDialog([](ModalDialog& dialog) {
    QMap<QString, QStringList> owners;
    const auto take = [&](const QWidget& widget, const QString& text) {
      const QKeySequence key = QKeySequence::mnemonic(text);
      if (!key.isEmpty() && widget.isVisibleTo(&dialog)) owners[key.toString()] << widget.objectName() + text;
    };
    for (const auto* button : dialog.findChildren<QAbstractButton*>()) take(*button, button->text());
    for (const auto* label : dialog.findChildren<QLabel*>())
      if (label->buddy()) take(*label, label->text());
    for (auto i = owners.cbegin(); i != owners.cend(); ++i)
      EXPECT_EQ(i->size(), 1) << dialog.windowTitle().toStdString() << ' ' << i.key().toStdString() << ": "
                              << i->join(u", ").toStdString();
  });
}

TEST_F(DialogSuite, TextsFitAndCanBeReadWithEveryFontAndTheme) {
  for (const TTheme theme : {TTheme::Light, TTheme::Dark})
    for (const int points : {6, 9, 17}) {
      ApplyTheme(theme);
      QFont font = QApplication::font();
      font.setPointSize(points);
      QApplication::setFont(font);
      ForEveryDialog([&](ModalDialog& dialog) {
        fields::ShowActive(dialog);
        const int ground = qGray(dialog.grab().toImage().pixel(2, dialog.height() - 3));
        EXPECT_EQ(ground < 128, theme == TTheme::Dark);
        for (const QWidget* child : dialog.findChildren<QWidget*>()) {
          const auto* label = qobject_cast<const QLabel*>(child);
          const auto* button = qobject_cast<const QAbstractButton*>(child);
          if ((!label && !button) || !child->isVisible() || child->objectName().startsWith(u"qt_")) continue;
          if (button && button->text().isEmpty()) continue;
          SCOPED_TRACE((label ? label->text() : button->text()).toStdString());
          EXPECT_TRUE(dialog.rect().contains(QRect(child->mapTo(&dialog, QPoint()), child->size())));
          const bool wraps = label && label->wordWrap();
          const int height = wraps ? child->heightForWidth(child->width()) : child->sizeHint().height();
          EXPECT_GE(child->height(), height);
          EXPECT_GE(child->width(), wraps ? child->minimumSizeHint().width() : child->sizeHint().width());
          const QPalette palette = child->palette();
          const QColor under = palette.color(child->backgroundRole());
          const QColor text = palette.color(QPalette::Active, child->foregroundRole());
          EXPECT_GE(std::abs(Lightness(text, under) - qGray(under.rgb())), 60);
          // Strokes thinner than a pixel never have the whole colour of their letters.
          constexpr int wholePixels = 9;
          constexpr double readable = 4.5;
          if (child->isEnabled() && points >= wholePixels && (button || !label->text().isEmpty())) {
            EXPECT_GE(Contrast(const_cast<QWidget*>(child)->grab().toImage()), readable);
          }
        }
      });
    }
}

TEST_F(DialogSuite, LoadingChangesNothing) {
  ForEveryDialog([](ModalDialog& dialog) {
    auto* editor = dynamic_cast<RowDialog*>(&dialog);
    ASSERT_NE(editor, nullptr);
    for (QWidget* control : dialog.findChildren<QWidget*>())
      if (!qobject_cast<QLineEdit*>(control->parentWidget())) Touch(*control);
    auto* view = dialog.findChild<ControlView*>();
    Listener listener;
    const bool showsIt =
        view && view->Control() && !qobject_cast<FontDialog*>(&dialog);  // that one shows another font
    if (showsIt) view->Control()->SetHost(&listener);
    const bool hasValue = editor->HasValue();
    const QStringList before = hasValue ? TextsOf(editor->Value()) : QStringList();
    for (int i = 0; i < 2; ++i) dialog.SetLabels();
    EXPECT_EQ(listener.changes, 0);
    EXPECT_EQ(hasValue ? TextsOf(editor->Value()) : QStringList(), before);
    if (showsIt) view->Control()->SetHost(nullptr);
  });
}

TEST_F(DialogSuite, NothingBeyondItsLimitsCanBeTypedIntoASpinEdit) {
  int edits = 0;
  ForEveryDialog([&](ModalDialog& dialog) {
    fields::ShowActive(dialog);
    for (SpinEdit* edit : dialog.findChildren<SpinEdit*>()) {
      SCOPED_TRACE(edit->objectName().toStdString());
      const int length = edit->findChild<QLineEdit*>()->maxLength();
      for (const int beyond : {edit->maximum() + 1, edit->minimum() - 1}) {
        const QString digits = QString::number(beyond) + u'9';
        fields::Type(*edit, digits);
        EXPECT_GE(edit->value(), edit->minimum());
        EXPECT_LE(edit->value(), edit->maximum());
        EXPECT_LE(edit->text().size(), length);
        EXPECT_EQ(edit->text(), QString::number(edit->value()));
      }
      ++edits;
    }
  });
  EXPECT_EQ(edits, 10 + 1 + 1 + 3 + 1 + 2 + 2 + 4 + 2 + 3 + 1 + 7);
}

TEST_F(DialogSuite, AllColoursOfADialogShareTheirCustomColours) {
  int shared = 0;
  ForEveryDialog([&](ModalDialog& dialog) {
    const auto combos = dialog.findChildren<ColorComboBox*>();
    if (combos.isEmpty()) return;
    fields::ShowActive(dialog);
    QStringList colors;
    for (qsizetype i = 0; i < combos.size(); ++i) {
      colors = CustomColorEntries({TColor(0x010203u * static_cast<unsigned>(i + 1)), clNavy});
      combos[i]->SetCustomColors(colors);
      for (const ColorComboBox* other : combos) EXPECT_EQ(other->CustomColors(), colors);
      ++shared;
    }
    dialog.reject();
    EXPECT_EQ(LoadIDECustomColors(), colors);
  });
  EXPECT_EQ(shared, 2 + 1 + 3 + 4 + 2 + 1 + 2 + 3 + 1 + 2 + 1 + 3);
}

TEST_F(DialogSuite, TheExtendedColourDialogKeepsTheLastSixteenCustomColours) {
  std::vector<TColor> colors;
  for (unsigned i = 0; i < 15; ++i) colors.push_back(TColor(0x030201 * (i + 1)));
  const auto add = [](std::vector<TColor> before, const std::vector<const char*>& added) {
    QStringList entries = CustomColorEntries(before);
    TColor color = clRed;
    modal::Next([&](QDialog& dialog) {
      for (const char* text : added) {
        auto* field = dialog.findChildren<QLineEdit*>().last();
        for (QLineEdit* edit : dialog.findChildren<QLineEdit*>())
          if (edit->toolTip().contains(QStringLiteral("BBGGRR"))) field = edit;
        field->selectAll();
        QTest::keyClicks(field, QString::fromLatin1(text));
        pixeltest::Click(dialog.findChild<QPushButton*>(QStringLiteral("addCustom")));
      }
      dialog.reject();
    });
    EXPECT_FALSE(ChooseColorEnh(nullptr, color, entries));
    EXPECT_EQ(color, clRed);
    return CustomColorValues(entries);
  };
  std::vector<TColor> expected = colors;
  expected.push_back(clAqua);
  EXPECT_EQ(add(colors, {"clAqua", "clAqua"}), expected) << "the last place, and each colour once";
  expected.erase(expected.begin());
  expected.push_back(clNavy);
  EXPECT_EQ(add(colors, {"clAqua", "clNavy"}), expected);
  EXPECT_EQ(expected.size(), 16u);
}

TEST_F(DialogSuite, OneButtonIsTheDefaultAndItConfirms) {
  ForEveryDialog([](ModalDialog& dialog) {
    QStringList defaults;
    for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
      if (button->isDefault()) defaults << button->text().toUpper().remove(u'&');
      EXPECT_FALSE(button->autoDefault()) << button->objectName().toStdString();
    }
    // One tries out, and confirms nothing.
    const bool tries = dialog.objectName() == QStringLiteral("VRXSendKeyEditorDlg");
    EXPECT_EQ(defaults, QStringList{tries ? QStringLiteral("SEND") : QStringLiteral("OK")});
  });
}

TEST_F(DialogSuite, ThePreviewAndNothingElseIsLeftOutOfTheTheme) {
  const QStringList own{QStringLiteral("test"),   QStringLiteral("BtnImg"), QStringLiteral("Image1"),
                        QStringLiteral("Result"), QStringLiteral("zoom"),   QStringLiteral("cc"),
                        QStringLiteral("bbar")};
  ForEveryDialog([&](ModalDialog& dialog) {
    EXPECT_TRUE(IsIDEThemed(dialog));
    for (const ControlDescription& control : DescribeControls(dialog)) {
      const auto* widget = dialog.findChild<QWidget*>(control.name);
      EXPECT_EQ(IsIDEThemed(*widget), !own.contains(control.name)) << control.name.toStdString();
      EXPECT_EQ(dynamic_cast<RowDialog&>(dialog).NeedTheme(*widget), !own.contains(control.name));
    }
  });
}

namespace {
// Every row of the value's dialog throws; what was handed over stays, and the dialog too.
template <class Dialog, class Value>
void ExpectBrokenHandlersHarmless(bool (*launch)(Value&), ScriptedPrompts& prompts) {
  Value value;
  const QStringList before = TextsOf(value);
  int touched = 0;
  modal::NextOf<Dialog>([&](Dialog& dialog) {
    Listener broken(true);
    dialog.testView->Control()->SetHost(&broken);
    for (const ControlDescription& control : DescribeControls(dialog)) {
      prompts.warned.clear();
      const int changes = broken.changes;
      Touch(*dialog.template findChild<QWidget*>(control.name));
      if (broken.changes == changes) continue;
      ++touched;
      EXPECT_EQ(prompts.warned, QStringList{QStringLiteral("The view is broken.")})
          << control.name.toStdString();
      EXPECT_TRUE(dialog.isVisible());
      EXPECT_EQ(TextsOf(value), before);
    }
    dialog.testView->Control()->SetHost(nullptr);
    dialog.reject();
  });
  EXPECT_FALSE(launch(value));
  EXPECT_GE(touched, 3);
  EXPECT_EQ(TextsOf(value), before);
}
}  // namespace

TEST_F(DialogSuite, AnExceptionInAHandlerLeavesTheValueAsItWas) {
  ExpectBrokenHandlersHarmless<TVRXLEDEditorDlg, TVRXLED>(VRXCPGetLED, prompts);
  ExpectBrokenHandlersHarmless<TVRXCaptionEditorDlg, TVRXCaption>(
      [](TVRXCaption& value) { return VRXCPGetVRXCaption(value, true); }, prompts);
  ExpectBrokenHandlersHarmless<TVRXFontFxEditorDlg, TVRXFxCaption>(VRXCPGetFontFx, prompts);
  ExpectBrokenHandlersHarmless<TVRXShadowEditorDlg, TVRXShadow>(VRXCPGetShadow, prompts);
  ExpectBrokenHandlersHarmless<TVRXSimpleBevelEditorDlg, TVRXSimpleBevel>(VRXCPGetSimpleBevel, prompts);
  ExpectBrokenHandlersHarmless<TVRXTeethEditorDlg, TVRXTeeth>(VRXCPGetTeeth, prompts);
  ExpectBrokenHandlersHarmless<TVRXBevelEditorDlg, TVRXBevel>(VRXCPGetBevel, prompts);
}
