// What the LED dialog looks like: names, texts, hints, limits, size.
#include "tests/package/LedTest.h"

#include "designintf/IdeTheme.h"
#include "library_design/pVRXCommon.h"

using namespace ledtest;

namespace {
QLabel* LabelOf(const QWidget& dialog, const QWidget* control) {
  for (QLabel* label : dialog.findChildren<QLabel*>())
    if (label->buddy() == control) return label;
  return nullptr;
}
}  // namespace

TEST_F(LedDialog, EveryControlHasItsNameAndHint) {
  const TVRXLEDEditorDlg dlg(nullptr);
  const std::pair<const char*, const char*> expected[] = {
      {"edhs", "Defines the horizontal size of the LED-letters."},
      {"edvs", "Defines the vertical size of the LED-letters."},
      {"edt", "Defines the thickness of the LED-letters."},
      {"cmbb", "Defines the color for active LED-letters."},
      {"bt1", ""},
      {"cmbL", "Defines the color for inactive LED-letters."},
      {"bt2", ""},
      {"pred", "Defines the color for both \r\nactive and inactive LED-letters."},
      {"chk",
       "If DisabledDigits is set to true and\r\nEnabled to false, the LED will be \r\ndisplayed with the "
       "InactiveColor."},
      {"test", "Shows the current settings."},
      {"ok", ""},
      {"Button1", ""},
      {"reset", ""}};
  for (const auto& [name, hint] : expected) {
    const auto* control = dlg.findChild<QWidget*>(QLatin1StringView(name));
    ASSERT_NE(control, nullptr) << name;
    EXPECT_EQ(control->toolTip().toStdString(), hint) << name;
  }
}

TEST_F(LedDialog, LabelsCarryTheirAcceleratorsAndLeadToTheirControls) {
  const TVRXLEDEditorDlg dlg(nullptr);
  const std::pair<QWidget*, const char*> expected[] = {
      {dlg.edhs, "&HorzSize:"},    {dlg.edvs, "&VertSize:"},      {dlg.edt, "&Thickness:"},
      {dlg.cmbb, "&ActiveColor:"}, {dlg.cmbL, "&InActiveColor:"}, {dlg.pred, "&Pred. Color:"}};
  for (const auto& [control, text] : expected) {
    const QLabel* label = LabelOf(dlg, control);
    ASSERT_NE(label, nullptr) << text;
    EXPECT_EQ(label->text().toStdString(), text);
  }
}

TEST_F(LedDialog, ButtonsNoteAndCheckBoxHaveTheirTexts) {
  const TVRXLEDEditorDlg dlg(nullptr);
  EXPECT_EQ(dlg.windowTitle(), QStringLiteral("LED Editor"));
  EXPECT_EQ(dlg.ok->text(), QStringLiteral("OK"));
  EXPECT_EQ(dlg.Button1->text(), QStringLiteral("Cancel"));
  EXPECT_EQ(dlg.reset->text(), QStringLiteral("Reset"));
  EXPECT_EQ(dlg.chk->text(), QStringLiteral(" &DisabledDigits"));
  EXPECT_EQ(dlg.test->Caption(), QStringLiteral("Preview"));
  bool note = false;
  for (const QLabel* label : dlg.findChildren<QLabel*>())
    note = note ||
           label->text() == QStringLiteral(
                                "Predefined Color-Settings for Active-/InActiveColor\r\ndon't appear in the "
                                "Combobox.");
  EXPECT_TRUE(note);
}

TEST_F(LedDialog, OkIsTheDefaultButtonAndTheOthersAreNot) {
  const TVRXLEDEditorDlg dlg(nullptr);
  EXPECT_TRUE(dlg.ok->isDefault());
  for (const QPushButton* other : {dlg.Button1, dlg.reset}) {
    EXPECT_FALSE(other->isDefault());
    EXPECT_FALSE(other->autoDefault());
  }
}

TEST_F(LedDialog, TheColourButtonsHaveAMarkAndNoText) {
  const TVRXLEDEditorDlg dlg(nullptr);
  for (const QToolButton* button : {dlg.bt1, dlg.bt2}) {
    EXPECT_EQ(button->text(), QString());
    EXPECT_FALSE(button->icon().isNull());
    EXPECT_FALSE(button->accessibleName().isEmpty());
  }
}

TEST_F(LedDialog, PredefinedColoursAreListedInOrderAndNoneIsSelected) {
  const TVRXLEDEditorDlg dlg(nullptr);
  QStringList items;
  for (int i = 0; i < dlg.pred->count(); ++i) items << dlg.pred->itemText(i);
  EXPECT_EQ(items.join(u' '), QStringLiteral("lcNone lcBlue lcRed lcGreen lcYellow lcMarine lcPurple"));
  EXPECT_EQ(dlg.pred->currentIndex(), -1);
  EXPECT_EQ(dlg.pred->maxVisibleItems(), 4);
  EXPECT_FALSE(dlg.pred->isEditable());
}

TEST_F(LedDialog, SpinEditsHaveTheirLimits) {
  const TVRXLEDEditorDlg dlg(nullptr);
  for (const TVRXSpinEdit* edit : {dlg.edhs, dlg.edvs}) {
    EXPECT_EQ(edit->maximum(), 255);
    EXPECT_EQ(edit->minimum(), 0);
    EXPECT_EQ(edit->findChild<QLineEdit*>()->maxLength(), 3);
  }
  EXPECT_EQ(dlg.edt->findChild<QLineEdit*>()->maxLength(), 2);
}

TEST_F(LedDialog, SpinEditsSelectTheirTextWhenTheyGetTheFocus) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  for (TVRXSpinEdit* edit : {dlg.edhs, dlg.edvs, dlg.edt}) {
    edit->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(edit->findChild<QLineEdit*>()->selectedText(), edit->text());
    EXPECT_FALSE(edit->text().isEmpty());
  }
}

TEST_F(LedDialog, ColourCombosOfferNamedSystemAndAnyColour) {
  const TVRXLEDEditorDlg dlg(nullptr);
  for (const TVRXColorComboBox* combo : {dlg.cmbb, dlg.cmbL}) {
    EXPECT_GE(combo->findText(QStringLiteral("clRed")), 0);
    EXPECT_GE(combo->findText(QStringLiteral("clWindowText")), 0);
    EXPECT_GE(combo->findText(QStringLiteral("Custom...")), 0);
  }
}

TEST_F(LedDialog, TheClientAreaHasItsFixedSize) {
  TVRXLEDEditorDlg dlg(nullptr);
  ShowActive(dlg);
  EXPECT_EQ(dlg.size(), QSize(533, 318));
  EXPECT_EQ(dlg.minimumSize(), dlg.maximumSize());
  EXPECT_EQ(dlg.bt1->size(), QSize(23, 23));
  EXPECT_EQ(dlg.bt2->size(), QSize(23, 23));
  EXPECT_EQ(dlg.findChild<QWidget*>(QStringLiteral("previewPanel"))->parentWidget()->width(), 198);
}

TEST_F(LedDialog, TheBorderHasOnlyTheSystemMenu) {
  const TVRXLEDEditorDlg dlg(nullptr);
  const Qt::WindowFlags flags = dlg.windowFlags();
  EXPECT_TRUE(flags & Qt::WindowSystemMenuHint);
  EXPECT_FALSE(flags & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint |
                        Qt::WindowContextHelpButtonHint));
}

TEST_F(LedDialog, OpensInTheMiddleOfTheScreen) {
  TVRXLEDEditorDlg dlg(nullptr);
  ShowActive(dlg);
  const QPoint off = dlg.frameGeometry().center() - dlg.screen()->availableGeometry().center();
  EXPECT_LE(off.manhattanLength(), 8);  // the frame is not known before the window is there
}

TEST_F(LedDialog, NoTextIsCutAndNothingLiesOutside) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  for (const QLabel* label : dlg.findChildren<QLabel*>()) {
    const int needed = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
    EXPECT_GE(label->height(), needed) << label->text().toStdString();
    EXPECT_GE(label->width(), label->minimumSizeHint().width()) << label->text().toStdString();
    const int wanted = label->wordWrap() ? 0 : label->sizeHint().width();
    EXPECT_GE(label->width(), wanted) << label->text().toStdString();
  }
  for (const QAbstractButton* button :
       std::initializer_list<QAbstractButton*>{dlg.ok, dlg.Button1, dlg.reset, dlg.chk}) {
    EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
    EXPECT_GE(button->height(), button->sizeHint().height()) << button->text().toStdString();
  }
  for (const QWidget* child : dlg.findChildren<QWidget*>()) {
    if (!child->isVisible() || child->isWindow() || child->parentWidget() == nullptr) continue;
    if (child->objectName().isEmpty()) continue;
    const QRect place(child->mapTo(&dlg, QPoint()), child->size());
    EXPECT_TRUE(dlg.rect().contains(place)) << child->objectName().toStdString();
  }
}

TEST_F(LedDialog, TheControlsFollowEachOtherFromTopToBottom) {
  TVRXLEDEditorDlg dlg(nullptr);
  ShowActive(dlg);
  int last = -1;
  for (const QWidget* control :
       std::initializer_list<QWidget*>{dlg.edhs, dlg.edvs, dlg.edt, dlg.cmbb, dlg.cmbL, dlg.pred, dlg.chk}) {
    const int top = control->mapTo(&dlg, QPoint()).y();
    EXPECT_GT(top, last) << control->objectName().toStdString();
    last = top + control->height() - 1;
  }
}

TEST_F(LedDialog, AcceleratorsMoveTheFocus) {
  TVRXLEDEditorDlg dlg(nullptr);
  ShowActive(dlg);
  const std::pair<Qt::Key, QWidget*> keys[] = {{Qt::Key_H, dlg.edhs}, {Qt::Key_V, dlg.edvs},
                                               {Qt::Key_T, dlg.edt},  {Qt::Key_A, dlg.cmbb},
                                               {Qt::Key_I, dlg.cmbL}, {Qt::Key_P, dlg.pred}};
  for (const auto& [key, control] : keys) {
    dlg.ok->setFocus();
    QTest::keyClick(&dlg, key, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), control) << static_cast<char>(key);
  }
}

TEST_F(LedDialog, ThePreviewAloneStaysOutOfTheTheming) {
  const TVRXLEDEditorDlg dlg(nullptr);
  EXPECT_EQ(VRXThemeMode(dlg), 1);
  EXPECT_TRUE(IsIDEThemed(dlg));
  EXPECT_FALSE(dlg.NeedTheme(*dlg.testView));
  EXPECT_FALSE(IsIDEThemed(*dlg.testView));
  for (const QWidget* control :
       std::initializer_list<QWidget*>{dlg.edhs, dlg.edvs, dlg.edt, dlg.cmbb, dlg.cmbL, dlg.bt1, dlg.bt2,
                                       dlg.pred, dlg.chk, dlg.ok, dlg.Button1, dlg.reset}) {
    EXPECT_TRUE(dlg.NeedTheme(*control)) << control->objectName().toStdString();
    EXPECT_TRUE(IsIDEThemed(*control)) << control->objectName().toStdString();
  }
}
