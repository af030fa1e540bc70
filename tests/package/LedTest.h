// Short cuts for tests of the LED dialog.
#pragma once
#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "designintf/CustomColors.h"
#include "package/dialogs/pVRXLEDEditorDlg.h"
#include "tests/support/Modal.h"
#include "tests/support/Waiting.h"

namespace ledtest {

struct Look {
  int horz, thickness, vert;
  TColor active, inactive;
  bool disabledDigits;
  bool operator==(const Look&) const = default;
};
inline Look LookOf(const TVRXLED& led) {
  return {led.HorzSize(),    led.Thickness(),     led.VertSize(),
          led.ActiveColor(), led.InActiveColor(), led.DisabledDigits()};
}
inline const Look Other{21, 5, 17, clAqua, clNavy, true};
inline void Apply(const Look& look, TVRXLED& led) {
  led.SetSize(1, static_cast<std::uint8_t>(look.horz));
  led.SetSize(2, static_cast<std::uint8_t>(look.thickness));
  led.SetSize(3, static_cast<std::uint8_t>(look.vert));
  led.SetColor(0, look.active);
  led.SetColor(1, look.inactive);
  led.SetDisabledDigits(look.disabledDigits);
}

inline void ShowActive(QWidget& window) {
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window, WaitLimit));
}

// Puts a text into a spin edit as a person does.
inline void Type(TVRXSpinEdit& edit, const QString& text) {
  edit.setFocus();
  edit.selectAll();
  QTest::keyClicks(&edit, text);
  QTest::keyClick(&edit, Qt::Key_Tab);
}

// Chooses an entry of a drop-down list with the keyboard.
inline void ChooseRow(QComboBox& combo, int row) {
  ASSERT_GE(row, 0);
  combo.showPopup();
  combo.view()->setCurrentIndex(combo.model()->index(row, 0));
  QTest::keyClick(combo.view(), Qt::Key_Return);
}

class LedDialog : public testing::Test {
 protected:
  void SetUp() override { SaveIDECustomColors({}); }
};

// Makes a colour a custom one in the framework's colour dialog.
inline void AddInColorDialog(QDialog& dialog, TColor color) {
  auto& colors = dynamic_cast<QColorDialog&>(dialog);
  colors.setCurrentColor(ToQColor(color));
  for (QPushButton* button : dialog.findChildren<QPushButton*>())
    if (button->text().remove(u'&').contains(QStringLiteral("Custom Colors"))) return button->click();
  ADD_FAILURE() << "no button for custom colours";
}
// The same in the extended dialog.
inline void AddInEnhDialog(QDialog& dialog, TColor color) {
  const QColor q = ToQColor(color);
  const auto numbers = dialog.findChildren<QSpinBox*>();
  ASSERT_EQ(numbers.size(), 3);
  numbers[0]->setValue(q.red());
  numbers[1]->setValue(q.green());
  numbers[2]->setValue(q.blue());
  QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("addCustom")), Qt::LeftButton);
}

}  // namespace ledtest
