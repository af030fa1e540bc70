// Results of the 3D effect dialog that are older than its settings.
#include "tests/package/EffectDialogTest.h"
#include "tests/support/Fields.h"

using namespace pixeltest;

class OlderResults : public EffectDialog {
 protected:
  void Run() {
    LoadPicture(BarOnSilver());
    Click(dlg.EXECUTE);
    for (std::size_t i = 0; i < 4; ++i) made[i].Assign(&pictures[i]);
  }
  bool Marked() const { return !dlg.note->text().isEmpty(); }
  // What OK would take is still there and is what is shown.
  void ExpectMade() {
    EXPECT_TRUE(dlg.Ok->isEnabled());
    EXPECT_TRUE(dlg.cmbState->isEnabled());
    EXPECT_EQ(State(), QStringLiteral("Up"));
    EXPECT_TRUE(dlg.BtnImg->Picture() == made[1]);
    for (std::size_t i = 0; i < 4; ++i) EXPECT_TRUE(pictures[i] == made[i]) << i;
  }
  void ExpectReturnConfirmsNothing() {
    for (QWidget* field : std::initializer_list<QWidget*>{dlg.spind, dlg.cmbB, dlg.cmbS, dlg.cmbState}) {
      field->setFocus();
      QTest::keyClick(field, Qt::Key_Return);
      QTest::keyClick(field, Qt::Key_Enter);
      ASSERT_TRUE(dlg.isVisible()) << field->objectName().toStdString();
    }
  }
  TBitmap made[4];
};

TEST_F(OlderResults, AreMarkedAfterEveryChangeOfAColour) {
  Show([&] {
    Run();
    EXPECT_FALSE(Marked());
    for (TVRXColorComboBox* combo : {dlg.cmbB, dlg.cmbD, dlg.cmbL, dlg.cmbS}) {
      const QString before = combo->currentText();
      Choose(combo, QStringLiteral("clFuchsia"));
      EXPECT_TRUE(Marked()) << combo->objectName().toStdString();
      ExpectMade();
      ExpectReturnConfirmsNothing();
      Choose(combo, before);
      EXPECT_FALSE(Marked()) << "they are of these colours again";
    }
  });
}

TEST_F(OlderResults, AreMarkedAfterAChangeOfTheWidth) {
  Show([&] {
    Run();
    QTest::keyClick(dlg.spind, Qt::Key_Up);
    EXPECT_TRUE(Marked());
    ExpectMade();
    ExpectReturnConfirmsNothing();
  });
}

// The width becomes another one by the same Return that would confirm.
TEST_F(OlderResults, AreNotConfirmedByTheReturnThatEndsTyping) {
  Show([&] {
    Run();
    dlg.spind->setFocus();
    dlg.spind->selectAll();
    QTest::keyClicks(dlg.spind, QStringLiteral("4"));
    QTest::keyClick(dlg.spind, Qt::Key_Return);
    EXPECT_EQ(dlg.bevelWidth, 4);
    EXPECT_TRUE(dlg.isVisible());
    EXPECT_TRUE(Marked());
  });
}

TEST_F(OlderResults, AreConfirmedByTheButton) {
  EXPECT_EQ(Show([&] {
              Run();
              Choose(dlg.cmbL, QStringLiteral("clAqua"));
              dlg.Ok->setFocus();
              QTest::keyClick(dlg.Ok, Qt::Key_Return);
            }),
            1);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_TRUE(pictures[i] == made[i]) << i;
}

TEST_F(OlderResults, AreReplacedByExecute) {
  EXPECT_EQ(Show([&] {
              Run();
              Choose(dlg.cmbL, QStringLiteral("clAqua"));
              Click(dlg.EXECUTE);
              EXPECT_FALSE(Marked());
              EXPECT_FALSE(pictures[1] == made[1]);
              dlg.spind->setFocus();
              QTest::keyClick(dlg.spind, Qt::Key_Return);
              EXPECT_FALSE(dlg.isVisible()) << "Return is for the default button again";
            }),
            1);
}

TEST_F(OlderResults, ThatWereHandedOverAreMarked) {
  pictures[0] = BarOnSilver();
  FillResults();
  dlg.bevelWidth = 7;
  Show([&] {
    EXPECT_FALSE(Marked());
    Choose(dlg.cmbB, QStringLiteral("clRed"));
    EXPECT_TRUE(Marked());
    EXPECT_TRUE(dlg.Ok->isEnabled());
    ExpectReturnConfirmsNothing();
  });
}

TEST_F(OlderResults, AreNoneWhereThereAreNoResults) {
  Show([&] {
    Choose(dlg.cmbB, QStringLiteral("clRed"));
    EXPECT_FALSE(Marked());
    LoadPicture(BarOnSilver());
    Choose(dlg.cmbB, QStringLiteral("clLime"));
    EXPECT_FALSE(Marked()) << "OK is disabled";
  });
}
