// What the package registers, and how rows become calls.
#include "package/registration/VRX_RegMain.h"

#include <gtest/gtest.h>

#include "designintf/DesignRegistry.h"
#include "designintf/RegistrationTable.h"
#include "library/controls/LEDLabel.h"
#include "library_design/pVRXCommon.h"
#include "package/registration/VRX_RegMainEditors.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"

namespace {
class TKnob : public TComponent {
  VRX_CLASS(TKnob)
 public:
  using TComponent::TComponent;
};
const TClass& TKnob::StaticClass() {
  static const TClass cls(DescribeClass<TKnob>("TKnob", TComponent::StaticClass()));
  return cls;
}
class TDial : public TComponent {
  VRX_CLASS(TDial)
 public:
  using TComponent::TComponent;
};
const TClass& TDial::StaticClass() {
  static const TClass cls(DescribeClass<TDial>("TDial", TComponent::StaticClass()));
  return cls;
}
class TDialEditor : public TDefaultEditor {
 public:
  using TDefaultEditor::TDefaultEditor;
};
class TCountProperty : public TIntegerProperty {
 public:
  using TIntegerProperty::TIntegerProperty;
};
const TTypeInfo& TagType() { return *TComponent::StaticClass().GetProp("Tag").PropType; }
bool Labeled() { return VRXEditorOption(TVRXEditorOption::LabeledVariants); }

using namespace registration;
const Row kRows[] = {
    Page("First", Classes<TKnob, TDial>()),
    Component<TDial, TDialEditor>(),
    Page("Labeled", Classes<TDial>()).OnlyIf(Labeled),
    Actions("Edits", Classes<TKnob>()),
    Page("Labeled", Classes<TKnob>()).OnlyIf(Labeled),
    Property<int, TCountProperty>(),
    Property<TVRXLED, TCountProperty, TDial>("Look"),
    Property<TagType, TCountProperty>("Tag"),
    Hidden<bool, TDial>("AutoSize"),
    Category<TKnob>("Turning", {"Left", "Right"}),
    Category<TDial>(TResString::sVisualCategoryName, {"Look"}),
};

class Registering : public testing::Test {
 protected:
  DesignRegistry registry_;
  void SetUp() override { ORLENVOKITEDITOROPTIONS = 0; }
  void TearDown() override { ORLENVOKITEDITOROPTIONS = 0; }
  // The calls of this test, in words.
  QStringList Calls() const {
    QStringList calls;
    for (const TRegistration& row : registry_.Rows())
      if (row.Package == this) calls << Words(row);
    return calls;
  }
  static QString Words(const TRegistration& row) {
    const QString cls =
        row.ComponentClass ? QString::fromLatin1(row.ComponentClass->ClassName()) : QStringLiteral("any");
    QStringList names;
    for (const TClass* c : row.Classes) names << QString::fromLatin1(c->ClassName());
    switch (row.Kind) {
      case TRegistrationKind::Components:
        return QStringLiteral("page %1: %2").arg(row.PageOrCategory, names.join(u' '));
      case TRegistrationKind::Actions:
        return QStringLiteral("actions %1: %2").arg(row.PageOrCategory, names.join(u' '));
      case TRegistrationKind::ComponentEditor:
        return QStringLiteral("%1 by %2").arg(cls, QString::fromLatin1(row.ComponentEditor->Name));
      case TRegistrationKind::PropertyEditor:
        return QStringLiteral("%1 %2.%3 by %4")
            .arg(QString::fromLatin1(row.PropertyType->Name), cls, QString::fromLatin1(row.PropertyName),
                 row.PropertyEditor ? QString::fromLatin1(row.PropertyEditor->Name) : QStringLiteral("none"));
      case TRegistrationKind::Category:
        return QStringLiteral("%1 of %2: %3").arg(row.PageOrCategory, cls, row.Properties.join(u' '));
    }
    return {};
  }
  void Register(std::span<const Row> rows) {
    const RegistrationScope scope(registry_, this, "test");
    MakeCalls(rows);
  }
};
const QString kAfterPages = QStringLiteral(
    "Integer any. by TCountProperty|TVRXLED TDial.Look by TCountProperty|"
    "NativeInt any.Tag by TCountProperty|Boolean TDial.AutoSize by none|"
    "Turning of TKnob: Left Right|Visual of TDial: Look");
}  // namespace

TEST_F(Registering, WithoutTheOptionTheLabeledRowsAreLeftOut) {
  Register(kRows);
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page First: TKnob TDial|TDial by TDialEditor|"
                                               "actions Edits: TKnob|") +
                                    kAfterPages);
}

TEST_F(Registering, WithTheOptionTheLabeledRowsShareOnePage) {
  ORLENVOKITEDITOROPTIONS = 1;
  Register(kRows);
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page First: TKnob TDial|TDial by TDialEditor|"
                                               "page Labeled: TDial|actions Edits: TKnob|"
                                               "page Labeled: TKnob|") +
                                    kAfterPages);
  QString labeled;
  for (const TPalettePage& page : registry_.PalettePages())
    if (page.Name == QStringLiteral("Labeled"))
      for (const TClass* cls : page.Classes) labeled += QString::fromLatin1(cls->ClassName()) + u' ';
  EXPECT_EQ(labeled, QStringLiteral("TDial TKnob "));
}

TEST_F(Registering, OnlyBitZeroOfTheOptionsCounts) {
  ORLENVOKITEDITOROPTIONS = 0xFE;
  Register(kRows);
  EXPECT_FALSE(Calls().join(u'|').contains(QStringLiteral("Labeled")));
}

TEST_F(Registering, TheOptionIsAskedAtEachCall) {
  ORLENVOKITEDITOROPTIONS = 1;
  const Row rows[] = {Page("Labeled", Classes<TDial>()).OnlyIf(Labeled),
                      Row([] { ORLENVOKITEDITOROPTIONS = 0; }),
                      Page("Labeled", Classes<TKnob>()).OnlyIf(Labeled)};
  Register(rows);
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page Labeled: TDial"));
}

TEST_F(Registering, AClassTwiceOnAPageGivesOneButton) {
  const Row rows[] = {Page("Twice", Classes<TKnob, TDial, TKnob>())};
  Register(rows);
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page Twice: TKnob TDial TKnob"));
  int buttons = 0;
  for (const TPalettePage& page : registry_.PalettePages())
    if (page.Name == QStringLiteral("Twice")) buttons = static_cast<int>(page.Classes.size());
  EXPECT_EQ(buttons, 2);
}

TEST_F(Registering, ARowThatThrowsComesOutAndEndsTheTable) {
  const Row rows[] = {Page("One", Classes<TKnob>()), Row([] { throw Exception(QStringLiteral("no")); }),
                      Page("Two", Classes<TDial>())};
  EXPECT_THROW(Register(rows), Exception);
  EXPECT_EQ(Calls().join(u'|'), QStringLiteral("page One: TKnob"));
}

TEST_F(Registering, ThePackagePutsTheLedLabelOnItsPageWithItsEditors) {
  {
    const RegistrationScope scope(registry_, this, "VRX_RegMain");
    VRX_RegMain::Register();
  }
  std::vector<const TRegistration*> own;
  for (const TRegistration& row : registry_.Rows())
    if (row.Package == this) own.push_back(&row);
  ASSERT_GE(own.size(), 2u);
  const auto page = std::find_if(own.begin(), own.end(), [](const TRegistration* row) {
    return row->Kind == TRegistrationKind::Components && row->PageOrCategory == QStringLiteral("VRX Ext");
  });
  ASSERT_NE(page, own.end());
  const auto& classes = (*page)->Classes;
  EXPECT_EQ(std::count(classes.begin(), classes.end(), &TVRXLEDLabel::StaticClass()), 1);
  const auto editor = std::find_if(own.begin(), own.end(), [](const TRegistration* row) {
    return row->Kind == TRegistrationKind::PropertyEditor && row->PropertyEditor->Name == "TVRXLEDProperty";
  });
  ASSERT_NE(editor, own.end());
  EXPECT_EQ((*editor)->PropertyType, &TVRXLED::StaticTypeInfo());
  EXPECT_EQ((*editor)->ComponentClass, nullptr);
  EXPECT_TRUE((*editor)->PropertyName.isEmpty());
  EXPECT_EQ((*editor)->Procedure, "VRX_RegMain");
}

namespace {
// Whether all words stand in the text, in this order.
bool InOrder(const QString& text, const char* words) {
  qsizetype at = 0;
  for (const QString& word : QString::fromLatin1(words).split(u' ')) {
    at = text.indexOf(word + u' ', at);
    if (at < 0) return false;
    at += word.size();
  }
  return true;
}
}  // namespace

TEST_F(Registering, ShapesLightsSwitchesAndLinesStandAtTheirPlacesWithTheirEditors) {
  {
    const RegistrationScope scope(registry_, this, "VRX_RegMain");
    VRX_RegMain::Register();
  }
  {
    const RegistrationScope scope(registry_, this, "VRX_RegMainEditors");
    VRX_RegMainEditors::Register();
  }
  const QStringList calls = Calls();
  QStringList pages;
  for (const QString& call : calls)
    if (call.startsWith(QStringLiteral("page "))) pages << call + u' ';
  ASSERT_EQ(pages.size(), 10);
  EXPECT_TRUE(InOrder(pages[0], "Std: TVRXFaceController TVRXStaticText TVRXStyleManager"));
  EXPECT_TRUE(InOrder(pages[1],
                      "Ext: TVRXClock TVRXButtonBar TVRXButtonBarPopupMenu TVRXDlgButtonPanel TVRXCalendar "
                      "TVRXCalculator TVRXTechnicalLine TVRXClock TVRXLEDLabel "
                      "TVRXSwitch TVRXWSwitch "
                      "TVRXLight TVRXFlyoutController"));
  EXPECT_TRUE(InOrder(
      pages[2], "Cont: TVRXStackComponent TVRXQueueComponent TVRXListComponent TVRXMMButtonFaceController"));
  EXPECT_TRUE(InOrder(pages[3],
                      "Dlg: TVRXAboutDlg TVRXDirDlg TVRXTipDlg TVRXMessageBoxDlg TVRXInputDlg "
                      "TVRXCheckListDlg TVRXCalendarDlg TVRXCalculatorDlg TVRXTextEditDlg TVRXFormOpenDialog "
                      "TVRXFormSaveDialog TVRXFormColorDialog TVRXFormFontDialog TVRXFormPageSetupDialog "
                      "TVRXFormPrinterSetupDialog TVRXFormPrintCommDialog"));
  EXPECT_TRUE(InOrder(pages[4],
                      "Edit: TVRXCalendarEdit TVRXCalculatorEdit TVRXEditAutoComplete TVRXTagEditor "
                      "TVRXEditControlPrintTask TVRXDateTimePicker TVRXFormComboBox"));
  EXPECT_TRUE(InOrder(pages[5],
                      "List: TVRXDriveComboBox TVRXListComboBox TVRXTreeComboBox TVRXHeaderListComboBox "
                      "TVRXCheckListComboBox TVRXCalculatorComboBox TVRXCalendarComboBox "
                      "TVRXTrackBarComboBox TVRXValueListBox TVRXValueComboBox"));
  EXPECT_TRUE(InOrder(pages[6],
                      "Form: TVRXForm TVRXBack TVRXFormFill TVRXFormStyler TVRXFormShadow TVRXFormShape "
                      "TVRXSysMenu TVRXCaptionButtons"));
  EXPECT_TRUE(InOrder(pages[7],
                      "MM: TVRXLabelFill TVRXScrollText TVRXMMButton TVRXShapeButton TVRX3DEffectButton "
                      "TVRXHiTimer TVRXShapeControl "
                      "TVRXRepeatedShape TVRXAniCtrl TVRXPanelShape TVRXWndButtonShape"));
  EXPECT_TRUE(InOrder(pages[8],
                      "Sys: TVRXHideNonVC TVRXAlarmComponent TVRXSendKeys TVRXGlobalHotKey TVRXPopupMenu "
                      "TVRXRegExpr TVRXExpressionEval TVRXClipboardMonitor"));
  EXPECT_TRUE(InOrder(pages[9],
                      "HTML: TVRXHTMLExtListBox TVRXHTMLComboBox TVRXHTMLListBox TVRXHTMLListBoxExt "
                      "TVRXHTMLHeaderControl"));
  qsizetype last = -1;
  for (const char* call : {"TVRXStyleManager by TVRXStyleManEditor",
                           "TVRXFaceController by TVRXFaceControllerEditor",
                           "TVRXLEDCustomLabel by TVRXLEDLabelComponentEditor",
                           "TVRXClock by TVRXClockComponentEditor",
                           "TVRXTechnicalLine by TVRXTechnicalLineComponentEditor",
                           "TCollection TVRXButtonBar.Sections by TVRXButtonBarCollectionProperty",
                           "TVRXButtonBar by TVRXButtonBarComponentEditor",
                           "TVRXDlgButtonPanel by TVRXDlgButtonComponentEditor",
                           "TVRXCustomSwitch by TVRXSwitchComponentEditor",
                           "TVRXLightColor any. by TVRXLightColorProperty",
                           "TVRXCustomLight by TVRXLightComponentEditor",
                           "TVRXFill by TVRXFillComponentEditor",
                           "TVRXMMButtonFaceController by TVRXButtonFaceControllerEditor",
                           "TVRXMessageBoxDlg by TVRXMessageBoxComponentEditor",
                           "TVRXBaseDialog by TVRXExtDlgEditor",
                           "TVRXFormStyler by TVRXFormStylerComponentEditor",
                           "TVRXCustomFormFill by TVRXFormFillComponentEditor",
                           "TVRXFormShadow by TVRXShadowComponentEditor",
                           "TVRXFormShape by TVRXFormShapeComponentEditor",
                           "TVRXAniCtrl by TVRXAniCtrlComponentEditor",
                           "TVRXCustomLabelFill by TVRXLabelFillComponentEditor",
                           "TVRXBaseShape by TVRXCustomShapeComponentEditor",
                           "TVRXWndButtonShape by TVRXWndButtonShapeComponentEditor",
                           "TVRXPanelShape by TVRXPanelShapeComponentEditor",
                           "TVRXScrollText by TVRXScrollTextComponentEditor",
                           "TVRXCustom3DButton by TVRXExtGraphicButtonComponentEditor",
                           "TVRXCustomMMButton by TVRXExtGraphicButtonComponentEditor",
                           "TVRXHideNonVC by TVRXHideNonVCEditor",
                           "TVRXSendKeys by TVRXSendKeyComponentEditor",
                           "TCustomImageList TVRXBaseDialog.ImageList by TVRXCustomImageListProperty",
                           "TCustomImageList TVRXMessageBoxDlg.ImageList by TVRXCustomImageListProperty",
                           "TCustomImageList TVRXMessageBoxDlg.CustomGlyphImageList by "
                           "TVRXCustomImageListProperty",
                           "TCustomImageList TVRXButtonBar.LargeImageList by TVRXCustomImageListProperty",
                           "TCustomImageList TVRXButtonBar.SmallImageList by TVRXCustomImageListProperty",
                           "TCustomImageList TVRXCustomMMButton.ButtonFaceImageList by "
                           "TVRXCustomImageListProperty",
                           "TCustomImageList TVRXCustomShapeButton.ShapeFillImageList by "
                           "TVRXCustomImageListProperty",
                           "TCustomImageList TVRXMMButtonFaceController.ButtonFaceImageList by "
                           "TVRXCustomImageListProperty",
                           "TCustomImageList TVRXPopupMenu.ImageList by TVRXCustomImageListProperty",
                           "TVRXShadow any. by TVRXShadowProperty",
                           "TVRXShapeFill any. by TVRXShapeFillProperty",
                           "TVRXPointList any. by TVRXPointListProperty",
                           "TVRXCaption any. by TVRXCaptionProperty",
                           "TVRXDateList TVRXSpecialDates.Dates by TVRXDateListProperty",
                           "string TVRXFormOpenDialog.Filter by TVRXFilterProperty",
                           "string TVRXFormSaveDialog.Filter by TVRXFilterProperty",
                           "TVRXRegionMask any. by TVRXRegionMaskProperty",
                           "TVRXRegExString any.Expression by TVRXVldRegExprProperty",
                           "TVRXButtonFace any. by TVRXButtonFaceProperty",
                           "TVRXSimpleBevel any. by TVRXSimpleBevelProperty",
                           "TVRXShapeType any. by TVRXShapeProperty",
                           "TVRXTeeth any. by TVRXTeethProperty",
                           "TStrings TVRXValueListBox.Items by TVRXValueListProperty",
                           "TStrings TVRXValueListBox.Values by TVRXValueListProperty",
                           "string TVRXValueListBox.Value by TVRXValueListValueProperty",
                           "TStrings TVRXValueComboBox.Items by TVRXValueListProperty",
                           "TStrings TVRXValueComboBox.Values by TVRXValueListProperty",
                           "string TVRXValueComboBox.Value by TVRXValueListValueProperty"}) {
    const qsizetype at = calls.indexOf(QString::fromLatin1(call));
    EXPECT_GT(at, last) << call;
    last = at;
  }
}

TEST_F(Registering, PropertiesOfButtonBarsAreInThreeCategoriesFirstOfAll) {
  {
    const RegistrationScope scope(registry_, this, "VRX_RegMainEditors");
    VRX_RegMainEditors::Register();
  }
  const QStringList calls = Calls();
  ASSERT_GE(calls.size(), 3);
  EXPECT_EQ(calls[0].toStdString(),
            "Orlenvo-Kit of TVRXButtonBar: Sections FillSelectedItem FixedSectionLeftBorder "
            "FixedSectionRightBorder FocusStyle IniSaveOptions IniSection IniKey LargeItemHeight "
            "SmallItemHeight Orientation SaveAndRestore ScrollDelay ScrollStep SectionBtnSize "
            "SingleSectionMode SoftScroll TransparentButtons");
  EXPECT_EQ(calls[1].toStdString(),
            "Layout of TVRXButtonBar: FixedSectionLeftBorder FixedSectionRightBorder LargeItemHeight "
            "SmallItemHeight Orientation SectionBtnSize SingleSectionMode");
  EXPECT_EQ(calls[2].toStdString(),
            "Visual of TVRXButtonBar: FillSelectedItem FixedSectionLeftBorder FixedSectionRightBorder "
            "FocusStyle LargeItemHeight SmallItemHeight Orientation SectionBtnSize SingleSectionMode "
            "TransparentButtons");
}

TEST_F(Registering, LabeledVariantsComeBehindTheirPagesAndShareOne) {
  ORLENVOKITEDITOROPTIONS = 1;
  {
    const RegistrationScope scope(registry_, this, "VRX_RegMain");
    VRX_RegMain::Register();
  }
  QStringList pages;
  for (const QString& call : Calls())
    if (call.startsWith(QStringLiteral("page VRX L")) || call.startsWith(QStringLiteral("page VRX Edit")) ||
        call.startsWith(QStringLiteral("actions")))
      pages << call.section(u':', 0, 0);
  EXPECT_EQ(pages.join(u'|'), QStringLiteral("page VRX Edit|page VRX Labeled|actions VRXEdit|page VRX List|"
                                             "page VRX Labeled"));
  EXPECT_TRUE(Calls().contains(
      QStringLiteral("actions VRXEdit: TVRXEditCut TVRXEditCopy TVRXEditPaste TVRXEditSelectAll TVRXEditUndo "
                     "TVRXEditRedo TVRXEditDelete TVRXEditFind TVRXEditReplace")));
  for (const TPalettePage& page : registry_.PalettePages()) {
    if (page.Name != QStringLiteral("VRX Labeled")) continue;
    QStringList names;
    for (const TClass* cls : page.Classes) names << QString::fromLatin1(cls->ClassName()).mid(11);
    EXPECT_EQ(names.join(u' '),
              QStringLiteral("CalendarEdit CalculatorEdit ListComboBox DriveComboBox CalculatorComboBox "
                             "TrackBarComboBox CalendarComboBox HeaderListComboBox CheckListComboBox "
                             "TreeComboBox"));
  }
}

TEST_F(Registering, UnregisteringLeavesNoRowAndNoClass) {
  const std::size_t before = registry_.Rows().size();
  Register(kRows);
  EXPECT_NE(FindClass("TKnob"), nullptr);
  registry_.UnregisterPackage(this);
  EXPECT_EQ(registry_.Rows().size(), before);
  EXPECT_EQ(FindClass("TKnob"), nullptr);
}
