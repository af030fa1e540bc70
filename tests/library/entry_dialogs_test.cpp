// Dialogs that ask for a value, as a person uses them by keys and sees them on the screen.
#include "library/components/EntryDialogs.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "tests/support/AnsweredDialog.h"
#include "tests/support/Fields.h"

TEST(CalculatorDialog, CountsEveryKeyAtAnySpeed) {
  constexpr std::pair<const char*, const char*> rows[] = {
      {"1122", "1122"}, {"9999999999", "9999999999"}, {"0.1+0.2=", "0.3"}, {"50--8*11=", "462"}};
  for (const int pause : {0, 30})
    for (const auto& [typed, shown] : rows) {
      TVRXCalculatorDlg dlg(nullptr);
      Answered(dlg, QDialog::Accepted, [&](QDialog& dialog) {
        fields::ShowActive(dialog);
        auto& display = In<QLineEdit>(dialog, "display");
        QTest::keyClicks(&display, QString::fromLatin1(typed), Qt::NoModifier, pause);
        EXPECT_EQ(display.text().toStdString(), shown) << typed << " every " << pause << " ms";
      });
      EXPECT_EQ(dlg.Get(TVRXCalculatorDlg::Value), QString::fromLatin1(shown).toDouble());
    }
}

TEST(CalculatorDialog, ShowsForAMomentWhichKeyWasTyped) {
  TVRXCalculatorDlg dlg(nullptr);
  Answered(dlg, QDialog::Accepted, [&](QDialog& dialog) {
    fields::ShowActive(dialog);
    const auto& seven = In<QPushButton>(dialog, "7");
    QTest::keyClick(&In<QLineEdit>(dialog, "display"), Qt::Key_7);
    EXPECT_TRUE(seven.isDown());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !seven.isDown(); }));
    QTest::keyClick(&In<QLineEdit>(dialog, "display"), Qt::Key_8);
  });
  EXPECT_EQ(dlg.Get(TVRXCalculatorDlg::Value), 78) << "showing it presses nothing";
}
