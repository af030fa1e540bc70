// What the LED dialog looks like, besides its texts.
#include "tests/package/LedTest.h"

#include "library_design/pVRXCommon.h"

using namespace ledtest;

TEST_F(LedDialog, FieldsTakeSoManyCharacters) {
  const TVRXLEDEditorDlg dlg(nullptr);
  const std::pair<const TVRXSpinEdit*, int> lengths[] = {{dlg.edhs, 3}, {dlg.edvs, 3}, {dlg.edt, 2}};
  for (const auto& [edit, length] : lengths) EXPECT_EQ(edit->findChild<QLineEdit*>()->maxLength(), length);
  EXPECT_EQ(dlg.pred->maxVisibleItems(), 4);
  EXPECT_FALSE(dlg.pred->isEditable());
  EXPECT_EQ(dlg.pred->currentIndex(), -1);
  EXPECT_EQ(VRXThemeMode(dlg), 1);
}

TEST_F(LedDialog, TheColourButtonsHaveAMarkAndNoText) {
  const TVRXLEDEditorDlg dlg(nullptr);
  for (const QToolButton* button : {dlg.bt1, dlg.bt2}) {
    EXPECT_EQ(button->text(), QString());
    EXPECT_FALSE(button->icon().isNull());
    EXPECT_FALSE(button->accessibleName().isEmpty());
  }
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
